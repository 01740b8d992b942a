#include "files/FileFormRules.h"

#include "base/CodePage.h"
#include "base/FileSystem.h"
#include "base/Messages.h"
#include "base/ProgramEnd.h"
#include "files/PathParts.h"
#include "reader/settings/Settings.h"

namespace ls {

namespace {

// Whether `path` is below `folder`; `prefix` is `folder` with a separator. On a system without drives, names
// that differ only in case are two folders. But if `folder` does not exist as spelled, the other spelling is
// meant.
bool LiesIn(const std::string& path, const std::string& prefix, const std::string& folder, const Seams& seams)
{
    if (path.size() <= prefix.size() || path.starts_with(prefix)) {
        return path.size() > prefix.size();
    }
    return LowerCaseAscii(path.substr(0, prefix.size())) == LowerCaseAscii(prefix) &&
           (seams.paths.drives || !seams.files.Exists(folder));
}

} // namespace

FileFormView LoadFileForm(FileDialog& dialog, const Settings& settings, const Seams& seams)
{
    FileFormView view;
    dialog.ChosenFile.clear();
    dialog.ChosenFullPath.clear();
    dialog.BrowsedName.clear();
    dialog.FileFormOK = false;
    view.title = dialog.FileFormTitle;
    dialog.FileFormTitle.clear();
    if (dialog.DefaultFolder.empty()) {
        dialog.DefaultFolder = seams.files.CurrentFolder();
    }
    view.defaultLabel = "Default folder: " + FromPath(dialog.DefaultFolder);
    if (dialog.FilePattern.empty()) {
        dialog.FilePattern = "*.*";
    }
    dialog.SearchSpec = JoinPath(seams.paths, dialog.DefaultFolder, dialog.FilePattern);
    view.showSharing = dialog.ShowSharing;
    if (dialog.FileMode == "R") {
        view.caption = "Lodestar Advisor Open";
        for (int i = 0; i < settings.RecentFileCount; ++i) {
            view.recentFiles.push_back(settings.RecentFiles.at(static_cast<std::size_t>(i)));
        }
    } else if (dialog.FileMode == "W") {
        view.caption = "Lodestar Advisor Save";
        view.showInfo = true;
    } else {
        EndProgram(seams.end, "unknown mode of the file form");
    }
    view.fileName = dialog.InitialFileName;
    return view;
}

bool AcceptFileName(FileDialog& dialog, const std::string& text, bool exclusive, bool& lockBook,
                    const Seams& seams)
{
    // Intended: the user may type "?". Only "*" and "%" are wildcards here.
    if (text.find_first_of("*%") != std::string::npos) {
        seams.messages.MsgBox("Sorry, you cannot include a wildcard symbol in the filename.",
                              Icon::Exclamation);
        return false;
    }
    if (dialog.ShowSharing) {
        lockBook = exclusive;
    }
    dialog.ChosenFile = text;
    dialog.ChosenFullPath = MakeFullPath(dialog.DefaultFolder, text, seams);
    dialog.FileFormOK = true;
    return true;
}

void TakeBrowsedFile(FileDialog& dialog, std::string& text, const Seams& seams)
{
    if (dialog.ChosenFullPath.empty()) {
        return;
    }
    const std::string folder =
        dialog.DefaultFolder.empty() ? seams.files.CurrentFolder() : dialog.DefaultFolder;
    const std::string prefix = JoinPath(seams.paths, folder, "");
    const std::string& path = dialog.ChosenFullPath;
    const bool below = LiesIn(path, prefix, folder, seams);
    dialog.ChosenFile = below ? path.substr(prefix.size()) : path;
    dialog.BrowsedName = dialog.ChosenFile;
    text = dialog.ChosenFile;
}

std::string PathOfChosenBook(const FileDialog& dialog, const std::string& workDir)
{
    const bool browsed = !dialog.BrowsedName.empty() && dialog.ChosenFile == dialog.BrowsedName;
    return browsed && !workDir.empty() ? dialog.ChosenFullPath : dialog.ChosenFile;
}

std::string MakeFullPath(const std::string& folder, const std::string& name, const Seams& seams)
{
    if (name.empty()) {
        return {};
    }
    const bool namesADrive = seams.paths.drives && name.find(':') != std::string::npos;
    if (name.front() == seams.paths.separator || namesADrive) {
        return name;
    }
    return JoinPath(seams.paths, folder.empty() ? seams.files.CurrentFolder() : folder, name);
}

} // namespace ls
