#pragma once

#include <string>

namespace ls {

/// What the file form is told and what it answers. Whoever shows it sets the inputs anew each time. Names are
/// the system's own bytes.
struct FileDialog
{
    std::string FileMode;            ///< in: "R" opens a book, "W" saves one
    std::string FileFormTitle;       ///< in: the words above the name; emptied once they are shown
    bool ShowSharing = false;        ///< in: whether the user chooses between a lock and a shared read
    std::string DefaultFolder;       ///< in: where relative names lie; empty = the current folder
    std::string FilePattern;         ///< in: for the file selector; empty = "*.*"
    std::string InitialFileName;     ///< in: proposed name
    std::string SearchSpec;          ///< `DefaultFolder` with `FilePattern`, handed to the file selector
    std::string ChosenFile;          ///< out: the name as it was typed or picked
    std::string ChosenFullPath;      ///< out: that name made absolute
    bool FileFormOK = false;         ///< out: accepted, not cancelled
    bool OverwriteConfirmed = false; ///< out of the file selector: the user agreed to replace a file
    std::string BrowsedName;         ///< the name that Browse put into the box last
};

} // namespace ls
