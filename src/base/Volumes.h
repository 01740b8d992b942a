#pragma once

#include <string>
#include <vector>

namespace ls {

/// A place where files are kept, as a person would pick it: a drive, a mounted disk, the home folder.
struct Volume
{
    std::string
        label; ///< "c: [SYSTEM]", "/", "/media/anna/STICK"; where there are drives it begins with "c:"
    std::string folder; ///< where choosing it leads: a drive's current folder, else the volume's root

    friend bool operator==(const Volume&, const Volume&) = default;
};

/// The volumes of the running system.
class Volumes
{
public:
    virtual ~Volumes() = default;

    /// In the order in which they are offered; asked anew each time, since disks come and go.
    virtual std::vector<Volume> List() = 0;
};

} // namespace ls
