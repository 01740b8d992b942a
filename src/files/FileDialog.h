#pragma once

#include <string>

namespace ls {

/// Input and result of the file form (`FileForm`) and of the file selector (`OpenForm`). Callers set the
/// inputs each time before they show a form. Names are in the system's bytes.
struct FileDialog
{
    std::string FileMode;            ///< in: "R" opens a book, "W" saves one
    std::string FileFormTitle;       ///< in: the words above the name; cleared once shown
    bool ShowSharing = false;        ///< in: whether the user chooses between a lock and a shared read
    std::string DefaultFolder;       ///< in: folder of relative names; empty = the current folder
    std::string FilePattern;         ///< in: for the file selector; empty = "*.*"
    std::string InitialFileName;     ///< in: proposed name
    std::string SearchSpec;          ///< `DefaultFolder` with `FilePattern`, for the file selector
    std::string ChosenFile;          ///< out: the name as typed or picked
    std::string ChosenFullPath;      ///< out: that name made absolute
    bool FileFormOK = false;         ///< out: accepted, not cancelled
    bool OverwriteConfirmed = false; ///< out: in the file selector the user agreed to replace a file
    std::string BrowsedName;         ///< the name that Browse put into the box last
};

} // namespace ls
