#pragma once

#include "base/Volumes.h"

#include <string>
#include <string_view>
#include <utility>

namespace ls {

/// The volumes of a Linux system: the root, the home folder, and what is mounted where removable and other
/// disks go
/// (/media, /run/media, /mnt). Their folders are the roots themselves.
class LinuxVolumes : public Volumes
{
public:
    explicit LinuxVolumes(std::string table = "/proc/self/mounts") : m_table(std::move(table)) {}

    /// Of a table that cannot be read to its end those that were read; the root and the home folder anyway.
    std::vector<Volume> List() override;

private:
    std::string m_table;
};

/// The volumes of a mount table in the form of /proc/self/mounts, with the home folder behind the root.
[[nodiscard]] std::vector<Volume> VolumesOf(std::string_view mounts, const std::string& home);

} // namespace ls
