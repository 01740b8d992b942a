#pragma once

#include <string>
#include <vector>

namespace ls {

/// A place for files as a user picks it: a drive, a mounted disk, the home folder.
struct Volume
{
    std::string label;  ///< "c: [SYSTEM]", "/", "/media/anna/STICK"; begins with "c:" on systems with drives
    std::string folder; ///< the folder it opens: a drive's current folder, else the volume's root

    friend bool operator==(const Volume&, const Volume&) = default;
};

/// The volumes of the running system.
class Volumes
{
public:
    virtual ~Volumes() = default;

    /// In the order to show them. Read anew each time, because disks come and go.
    virtual std::vector<Volume> List() = 0;
};

} // namespace ls
