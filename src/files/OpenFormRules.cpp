#include "files/OpenFormRules.h"

#include "base/CodePage.h"
#include "base/FileSystem.h"
#include "base/FindSpelling.h"
#include "base/ItemAt.h"
#include "base/Messages.h"
#include "base/StdSubs.h"

#include <algorithm>
#include <utility>

namespace ls {

namespace {

// Sorts names without regard to case. Names that differ only in case are ordered by their bytes.
void SortNames(std::vector<std::string>& names)
{
    std::vector<std::pair<std::string, std::string>> keyed;
    keyed.reserve(names.size());
    for (std::string& name : names) {
        std::string key = LowerCaseAscii(name);
        keyed.emplace_back(std::move(key), std::move(name));
    }
    std::sort(keyed.begin(), keyed.end());
    std::transform(keyed.begin(), keyed.end(), names.begin(),
                   [](auto& entry) { return std::move(entry.second); });
}

struct Listing
{
    FileError error;
    std::vector<std::string> folders;
    std::vector<std::string> hiddenFolders;
    std::vector<std::string> files;
};

// The contents of a folder, sorted. Hidden files are left out.
Listing ListingOf(FileSystem& files, const std::string& folder)
{
    Listing listing;
    std::vector<FolderEntry> entries;
    listing.error = files.List(folder, entries);
    for (FolderEntry& entry : entries) {
        if (entry.isFolder) {
            (entry.hidden ? listing.hiddenFolders : listing.folders).push_back(std::move(entry.name));
        } else if (!entry.hidden) {
            listing.files.push_back(std::move(entry.name));
        }
    }
    SortNames(listing.folders);
    SortNames(listing.files);
    return listing;
}

// "C:" of "C:\\Books"; empty on systems without drives.
std::string DriveOf(std::string_view path)
{
    return path.size() >= 2 && path[1] == ':' ? std::string(path.substr(0, 2)) : std::string();
}

std::string WithoutTrailingSeparator(PathRules rules, std::string path)
{
    if (path.size() > 1 && path.back() == rules.separator && !(rules.drives && path.size() == 3)) {
        path.pop_back();
    }
    return path;
}

} // namespace

OpenFormRules::OpenFormRules(const Seams& seams, Volumes& volumes, std::string fileMode, std::string workDir)
    : m_seams(seams), m_fileMode(std::move(fileMode)), m_workDir(std::move(workDir)),
      m_volumes(volumes.List())
{
    for (const Volume& volume : m_volumes) {
        m_driveLabels.push_back(volume.label);
    }
}

void OpenFormRules::Load(const std::string& startPath)
{
    m_overwriteConfirmed = false;
    m_chosenFullPath = startPath;
    const std::string current = m_seams.files.CurrentFolder();
    m_folderPath = current;
    SelectDriveOf(current);
    if (!ReadFolder(current).Ok()) {
        m_folderPath.clear();
    }

    std::string path = startPath;
    if (path.empty()) {
        path = m_workDir.empty() ? current : m_workDir;
    } else if (path.back() == m_seams.paths.separator) {
        path.pop_back();
    }
    if (path.find('*') == std::string::npos) {
        path += m_seams.paths.separator;
        path += '*';
        path += BookType;
    }
    m_text = path;
    Apply();
}

std::string OpenFormRules::InFolder(const std::string& name) const
{
    return JoinPath(m_seams.paths, m_folderPath, name);
}

void OpenFormRules::ResetText()
{
    m_text = InFolder(m_pattern);
}

// The drive's name in the drive list, up to its ":". A one-letter name gets a ":".
std::string OpenFormRules::CurrentDriveText()
{
    const std::string* const shown = ItemAt(m_driveLabels, m_drive);
    const std::string label = shown == nullptr ? std::string() : *shown;
    if (const std::size_t colon = label.find(':'); colon != std::string::npos) {
        return label.substr(0, colon + 1);
    }
    if (label.size() == 1) {
        return label + ":";
    }
    m_seams.messages.MsgBox("Invalid disk name found.  We will use <<C:>>", Icon::Exclamation);
    return "C:";
}

bool OpenFormRules::SwitchDrive(const std::string& drive)
{
    const std::string letter = LowerCaseAscii(drive.substr(0, 1));
    const auto isMeant = [&letter](const Volume& volume) {
        return LowerCaseAscii(std::string_view(volume.label).substr(0, 1)) == letter;
    };
    if (const Volume* const current = ItemAt(m_volumes, m_drive); current != nullptr && isMeant(*current)) {
        return true;
    }
    const auto found = std::find_if(m_volumes.begin(), m_volumes.end(), isMeant);
    const FileError error =
        found == m_volumes.end() ? MakeFileError(error::DeviceUnavailable) : ReadFolder(found->folder);
    if (!error.Ok()) {
        m_seams.messages.MsgBox("Sorry, you cannot choose drive " + FromPath(drive) +
                                    DueTo(error, ErrorForm::WithoutMark),
                                Icon::Exclamation);
        ResetText();
        return false;
    }
    m_drive = static_cast<int>(found - m_volumes.begin());
    return true;
}

// Reads a folder; if that succeeds, it becomes the shown folder.
FileError OpenFormRules::ReadFolder(const std::string& folder)
{
    Listing listing;
    m_run([&] { listing = ListingOf(m_seams.files, folder); });
    if (!listing.error.Ok()) {
        return listing.error;
    }
    m_subfolders = std::move(listing.folders);
    m_hiddenFolders = std::move(listing.hiddenFolders);
    m_allFiles = std::move(listing.files);
    m_folderPath = WithoutTrailingSeparator(m_seams.paths, folder);
    SelectDriveOf(m_folderPath);
    ListFolders();
    FilterFiles();
    return {};
}

void OpenFormRules::FilterFiles()
{
    m_files.clear();
    std::copy_if(m_allFiles.begin(), m_allFiles.end(), std::back_inserter(m_files),
                 [this](const std::string& name) { return MatchesPattern(name, m_pattern); });
}

void OpenFormRules::ListFolders()
{
    const PathRules rules = m_seams.paths;
    m_folders.clear();
    std::vector<std::string> way{m_folderPath};
    for (std::string parent = FolderOf(rules, m_folderPath); !parent.empty() && parent != way.back();
         parent = FolderOf(rules, parent)) {
        way.push_back(parent);
    }
    std::reverse(way.begin(), way.end());
    for (std::size_t i = 0; i < way.size(); ++i) {
        const std::string name = NameOf(rules, way[i]);
        m_folders.push_back({name.empty() ? way[i] : name, way[i], static_cast<int>(i), true});
    }
    for (const std::string& name : m_subfolders) {
        m_folders.push_back({name, InFolder(name), static_cast<int>(way.size()), false});
    }
}

// Selects the volume with the longest root that holds the folder.
void OpenFormRules::SelectDriveOf(const std::string& folder)
{
    std::size_t longest = 0;
    for (std::size_t i = 0; i < m_volumes.size(); ++i) {
        const std::string root = m_seams.paths.drives ? m_volumes[i].label.substr(0, 2) : m_volumes[i].folder;
        const std::string within = JoinPath(m_seams.paths, root, "");
        const bool holds = m_seams.paths.drives ? LowerCaseAscii(folder.substr(0, 2)) == LowerCaseAscii(root)
                                                : folder == root || folder.starts_with(within);
        if (holds && root.size() > longest) {
            longest = root.size();
            m_drive = static_cast<int>(i);
        }
    }
}

bool OpenFormRules::SwitchFolder(const std::string& folder, const std::string& asWritten)
{
    const FileError error = ReadFolder(folder);
    if (error.Ok()) {
        return true;
    }
    m_seams.messages.MsgBox("Sorry, you cannot choose " + FromPath(LowerCaseAscii(asWritten)) +
                                DueTo(error, ErrorForm::WithoutMark),
                            Icon::Exclamation);
    ResetText();
    return false;
}

// The folder that a text names. No folder means the shown one; a relative folder is below the shown one.
std::string OpenFormRules::FolderMeant(const PathParts& parts) const
{
    if (parts.folder.empty()) {
        return m_folderPath;
    }
    const std::string folder = parts.folder.front() == m_seams.paths.separator
                                   ? (m_seams.paths.drives ? DriveOf(m_folderPath) : "") + parts.folder
                                   : JoinPath(m_seams.paths, m_folderPath, parts.folder);
    const std::string bare = WithoutTrailingSeparator(m_seams.paths, folder);
    if (m_seams.paths.drives) {
        return LowerCaseAscii(bare) == LowerCaseAscii(m_folderPath) ? m_folderPath : bare;
    }
    // Names that differ only in case may be two folders here. The exact spelling wins.
    return FindSpelling(m_seams.files, m_seams.paths, bare);
}

OpenFormRules::Outcome OpenFormRules::Apply()
{
    PathParts parts = SplitPath(m_seams.paths, m_text);
    if (m_seams.paths.drives) {
        parts.drive = parts.drive.empty() ? CurrentDriveText() : LowerCaseAscii(parts.drive);
        if (!SwitchDrive(parts.drive)) {
            return Outcome::Stay;
        }
    }
    const std::string folder = FolderMeant(parts);
    // The comparison is exact, as names that differ only in case are two folders on some systems.
    if (folder != m_folderPath && !SwitchFolder(folder, parts.folder)) {
        return Outcome::Stay;
    }
    if (HasWildcard(parts.Pattern())) {
        m_pattern = parts.Pattern();
        FilterFiles();
        ResetText();
        return Outcome::Stay;
    }
    if (!SwitchFolder(m_folderPath, m_folderPath)) { // reads again: files may be new or gone
        return Outcome::Stay;
    }
    return ChooseName(parts.Pattern());
}

// With drives, a name in other case is the same folder.
bool OpenFormRules::IsSubfolder(const std::string& name) const
{
    const bool anyCase = m_seams.paths.drives;
    const auto isMeant = [&](const std::string& folder) {
        return folder == name || (anyCase && LowerCaseAscii(folder) == LowerCaseAscii(name));
    };
    return std::any_of(m_subfolders.begin(), m_subfolders.end(), isMeant) ||
           std::any_of(m_hiddenFolders.begin(), m_hiddenFolders.end(), isMeant);
}

OpenFormRules::Outcome OpenFormRules::ChooseName(const std::string& name)
{
    // Searches the whole folder, not only the files that match the pattern, so that "does not exist" is true.
    // The exact spelling wins, else the first name that differs only in case.
    auto found = std::find(m_allFiles.begin(), m_allFiles.end(), name);
    if (found == m_allFiles.end()) {
        found = std::find_if(m_allFiles.begin(), m_allFiles.end(),
                             [lower = LowerCaseAscii(name)](const std::string& file) {
                                 return LowerCaseAscii(file) == lower;
                             });
    }
    // A hidden file is not listed, but it exists.
    const bool hidden =
        found == m_allFiles.end() && m_seams.files.Exists(InFolder(name)) && !IsSubfolder(name);
    const bool exists = found != m_allFiles.end() || hidden;
    const std::string real = found != m_allFiles.end() ? *found : name;
    if (m_fileMode == "R" && !exists) {
        m_seams.messages.MsgBox("File does not exist: " + FromPath(LowerCaseAscii(m_text)),
                                Icon::Exclamation);
        return Outcome::Stay;
    }
    if (m_fileMode == "W" && exists) {
        if (m_seams.messages.MsgBox("File already exists.  Overwrite?", Icon::Question, Buttons::OkCancel) !=
            Reply::Ok) {
            return Outcome::Stay;
        }
        m_overwriteConfirmed = true;
    }
    return Accept(real);
}

OpenFormRules::Outcome OpenFormRules::Accept(const std::string& name)
{
    m_text = InFolder(name);
    m_chosenFullPath = m_text;
    return Outcome::Accepted;
}

OpenFormRules::Outcome OpenFormRules::OkClicked(const std::string& text)
{
    m_text = text;
    return Apply();
}

void OpenFormRules::DriveChanged(int index)
{
    const Volume* const volume = ItemAt(m_volumes, index);
    if (volume == nullptr || index == m_drive) {
        return;
    }
    m_text = JoinPath(m_seams.paths, volume->folder, m_pattern);
    Apply();
}

void OpenFormRules::FolderClicked(int index)
{
    if (const auto* const folder = ItemAt(m_folders, index)) {
        m_text = JoinPath(m_seams.paths, folder->path, m_pattern);
        Apply();
    }
}

void OpenFormRules::FileClicked(int index)
{
    if (const std::string* const file = ItemAt(m_files, index)) {
        m_text = InFolder(*file);
    }
}

OpenFormRules::Outcome OpenFormRules::FileDoubleClicked(int index)
{
    FileClicked(index);
    return Apply();
}

void OpenFormRules::Cancel()
{
    m_chosenFullPath.clear();
}

} // namespace ls
