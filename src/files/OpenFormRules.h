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

/// An entry of the folder list: the way from the root to the folder on show, then the folders in it.
struct FolderItem
{
    std::string label; ///< the folder's name; a root is shown as it is written
    std::string path;
    int depth = 0;     ///< levels below the root, for the indentation
    bool open = false; ///< lies on the way to the folder on show, or is it
};

/// The rules of the file selector: one text that always holds a full path or a full pattern, and three lists
/// that are kept in step with it. The form shows what stands here and reports what the user picked.
class OpenFormRules
{
public:
    /// What an action came to.
    enum class Outcome
    {
        Stay,     ///< the form shows the lists and the text anew
        Accepted, ///< `ChosenFullPath` is set; the form closes
    };

    /// `fileMode` "R" wants an existing file, "W" asks before one that exists.
    OpenFormRules(const Seams& seams, Volumes& volumes, std::string fileMode, std::string workDir);

    /// Reads a folder, which may be large or far away; returns when that is done.
    using RunWork = std::function<void(const std::function<void()>&)>;

    /// Lets folders be read by `run` instead of directly, so that a form can stay alive meanwhile.
    void ReadFoldersBy(RunWork run) { m_run = std::move(run); }

    /// Starts at a folder, a folder with a pattern, or a pattern alone; empty: `WorkDir`, else the current
    /// folder.
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
    std::string m_folderPath;              ///< without a trailing separator, but for a root
    std::vector<std::string> m_subfolders; ///< those that are listed, sorted
    std::vector<std::string> m_hiddenFolders;
    std::vector<std::string> m_allFiles; ///< of the folder, sorted
    std::vector<FolderItem> m_folders;
    std::vector<std::string> m_files; ///< those that fit the pattern
    std::string m_pattern = "*.*";
    std::string m_text;

    std::string m_chosenFullPath;
    bool m_overwriteConfirmed = false;
};

} // namespace ls
