#pragma once

#include "base/Volumes.h"

#include <string>
#include <string_view>
#include <utility>

namespace ls {

/// The volumes of a Linux system: the root, the home folder, and the disks mounted below /media, /run/media
/// and /mnt. Each volume's folder is its root.
class LinuxVolumes : public Volumes
{
public:
    explicit LinuxVolumes(std::string table = "/proc/self/mounts") : m_table(std::move(table)) {}

    /// After a read error: the volumes read so far. The root and the home folder are always there.
    std::vector<Volume> List() override;

private:
    std::string m_table;
};

/// The volumes of a mount table in the form of /proc/self/mounts. The home folder follows the root.
[[nodiscard]] std::vector<Volume> VolumesOf(std::string_view mounts, const std::string& home);

} // namespace ls
