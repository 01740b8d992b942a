#pragma once

#include "base/Seams.h"
#include "files/FileDialog.h"

#include <string>
#include <vector>

namespace ls {

struct Settings;

/// What the file form shows when it comes up.
struct FileFormView
{
    std::string caption;
    std::string title;
    std::string defaultLabel;
    bool showSharing = false;
    bool showInfo = false;                ///< "Save Info"
    std::vector<std::string> recentFiles; ///< for the list of the name box
    std::string fileName;                 ///< its text
};

/// Clears the answers of `dialog`, completes its inputs, and tells what to show. Another mode than "R" and
/// "W" ends the program; the result is then of no use.
[[nodiscard]] FileFormView LoadFileForm(FileDialog& dialog, const Settings& settings, const Seams& seams);

/// O.K.: takes the name in the box unless it holds a wildcard, which shows a message and gives false.
/// `lockBook` is set when the form asked about sharing.
bool AcceptFileName(FileDialog& dialog, const std::string& text, bool exclusive, bool& lockBook,
                    const Seams& seams);

/// What the name box shows after the file selector gave back `ChosenFullPath`: the name as it stands below
/// the default folder, else the whole path. A cancelled selector (an empty path) leaves `text` as it was.
void TakeBrowsedFile(FileDialog& dialog, std::string& text, const Seams& seams);

/// The path by which a chosen book is opened: the name as it stood in the box. One that Browse found below
/// the default folder goes by its full path when `workDir` is set: with a separator in it, it would be taken
/// in the current folder.
[[nodiscard]] std::string PathOfChosenBook(const FileDialog& dialog, const std::string& workDir);

/// A file name made absolute: empty stays empty, absolute stays as it is, else it lies in `folder` (the
/// current folder when that is empty).
[[nodiscard]] std::string MakeFullPath(const std::string& folder, const std::string& name,
                                       const Seams& seams);

} // namespace ls
