#pragma once

#include "base/FileError.h"
#include "base/Seams.h"
#include "base/Volumes.h"
#include "files/PathParts.h"

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace ls {

/// A row of the folder list. The list holds the folders from the root to the shown one, then the shown
/// folder's subfolders.
struct FolderItem
{
    std::string label; ///< the folder's name; for a root its path
    std::string path;
    int depth = 0;     ///< levels below the root, for the indentation
    bool open = false; ///< the shown folder, or a folder above it
};

/// The rules of the file selector: one text that always holds a full path or a full pattern, and three lists
/// that always match it. `OpenForm` shows its state and passes on the user's choices.
class OpenFormRules
{
public:
    /// The result of an action.
    enum class Outcome
    {
        Stay,     ///< the form shows the lists and the text anew
        Accepted, ///< `ChosenFullPath` is set; the form closes
    };

    /// `fileMode` "R" accepts existing files only; "W" asks before it accepts one.
    OpenFormRules(const Seams& seams, Volumes& volumes, std::string fileMode, std::string workDir);

    /// Runs the function and returns when it is done. The function reads a folder that may be large or slow.
    using RunWork = std::function<void(const std::function<void()>&)>;

    /// Reads folders through `run`, so that a form can stay responsive meanwhile.
    void ReadFoldersBy(RunWork run) { m_run = std::move(run); }

    /// Starts at a folder, a folder with a pattern, or a pattern alone. If empty: at `WorkDir`, else at the
    /// current folder.
    void Load(const std::string& startPath);

    Outcome OkClicked(const std::string& text);
    void DriveChanged(int index);
    void FolderClicked(int index);
    void FileClicked(int index);
    Outcome FileDoubleClicked(int index);
    void Cancel();

    [[nodiscard]] const std::vector<std::string>& Drives() const { return m_driveLabels; }
    [[nodiscard]] int CurrentDrive() const { return m_drive; }
    [[nodiscard]] const std::vector<FolderItem>& Folders() const { return m_folders; }
    [[nodiscard]] const std::vector<std::string>& Files() const { return m_files; }
    [[nodiscard]] const std::string& FolderPath() const { return m_folderPath; }
    [[nodiscard]] const std::string& Pattern() const { return m_pattern; }
    [[nodiscard]] const std::string& Text() const { return m_text; }

    [[nodiscard]] const std::string& ChosenFullPath() const { return m_chosenFullPath; }
    [[nodiscard]] bool OverwriteConfirmed() const { return m_overwriteConfirmed; }

private:
    Outcome Apply();
    bool SwitchDrive(const std::string& drive);
    bool SwitchFolder(const std::string& folder, const std::string& asWritten);
    FileError ReadFolder(const std::string& folder);
    void FilterFiles();
    void ListFolders();
    void SelectDriveOf(const std::string& folder);
    [[nodiscard]] std::string CurrentDriveText();
    [[nodiscard]] std::string FolderMeant(const PathParts& parts) const;
    Outcome ChooseName(const std::string& name);
    Outcome Accept(const std::string& name);
    void ResetText();
    [[nodiscard]] bool IsSubfolder(const std::string& name) const;
    [[nodiscard]] std::string InFolder(const std::string& name) const;

    Seams m_seams;
    std::string m_fileMode;
    std::string m_workDir;
    RunWork m_run = [](const std::function<void()>& work) { work(); };

    std::vector<Volume> m_volumes;
    std::vector<std::string> m_driveLabels;
    int m_drive = -1;
    std::string m_folderPath;              ///< without a trailing separator, except for a root
    std::vector<std::string> m_subfolders; ///< listed ones, sorted
    std::vector<std::string> m_hiddenFolders;
    std::vector<std::string> m_allFiles; ///< all listed files of the folder, sorted
    std::vector<FolderItem> m_folders;
    std::vector<std::string> m_files; ///< those that match the pattern
    std::string m_pattern = "*.*";
    std::string m_text;

    std::string m_chosenFullPath;
    bool m_overwriteConfirmed = false;
};

} // namespace ls
