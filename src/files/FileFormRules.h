#pragma once

#include "base/Seams.h"
#include "files/FileDialog.h"

#include <string>
#include <vector>

namespace ls {

struct Settings;

/// What the file form shows at first.
struct FileFormView
{
    std::string caption;
    std::string title;
    std::string defaultLabel;
    bool showSharing = false;
    bool showInfo = false;                ///< "Save Info"
    std::vector<std::string> recentFiles; ///< the rows of the name box's list
    std::string fileName;                 ///< the text of the name box
};

/// Clears the results in `dialog`, fills in its empty inputs, and returns what to show. A mode other than "R"
/// and "W" ends the program; the returned view is then meaningless.
[[nodiscard]] FileFormView LoadFileForm(FileDialog& dialog, const Settings& settings, const Seams& seams);

/// O.K.: accepts the name in the box. A name with a wildcard shows a message and gives false. `lockBook` is
/// set if the form asked about sharing.
bool AcceptFileName(FileDialog& dialog, const std::string& text, bool exclusive, bool& lockBook,
                    const Seams& seams);

/// Puts the file selector's `ChosenFullPath` into the name box: relative to the default folder if it is below
/// that folder, else as the whole path. A cancelled selector (an empty path) leaves `text` unchanged.
void TakeBrowsedFile(FileDialog& dialog, std::string& text, const Seams& seams);

/// The path by which a chosen book is opened: the name in the box. For a name from Browse it is the full path
/// if `workDir` is set, because a name with a separator would be searched for in the current folder.
[[nodiscard]] std::string PathOfChosenBook(const FileDialog& dialog, const std::string& workDir);

/// Makes a file name absolute with `folder`, or with the current folder if `folder` is empty. Empty and
/// absolute names stay unchanged.
[[nodiscard]] std::string MakeFullPath(const std::string& folder, const std::string& name,
                                       const Seams& seams);

} // namespace ls
