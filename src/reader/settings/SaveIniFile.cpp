#include "base/Messages.h"
#include "base/Text.h"
#include "reader/settings/IniFile.h"
#include "reader/settings/Settings.h"
#include "reader/settings/StatementReader.h"

#include <string_view>
#include <tuple>

namespace ls {

namespace {

constexpr std::string_view NewType = ".new";
constexpr std::string_view BackupType = ".bak";
constexpr int MaxBackups = 99;

// A path as its record holds it. "~" goes before a character with a special meaning, and before a blank at
// either end, which would be trimmed. ";" goes after a final blank, so that the line does not end in a blank.
std::string Escaped(const std::string& path)
{
    std::string text;
    for (std::size_t i = 0; i < path.size(); ++i) {
        const char c = path[i];
        const bool first = i == 0;
        const bool last = i + 1 == path.size();
        if (c == '~' || c == ';' || (c == '+' && last) || (c == ' ' && (first || last))) {
            text += '~';
        }
        text += c;
    }
    return path.ends_with(' ') ? text + ';' : text;
}

// A path with a line end would break its record. Such a book opens, but is not remembered.
bool FitsOnALine(const std::string& path)
{
    return path.find_first_of(LineEnd) == std::string::npos;
}

std::string IniText(const Settings& settings)
{
    std::string text;
    text.append(IniSignature).append(LineEnd);
    if (settings.RecentFileCount > 0) {
        text.append(RecentFilesSection).append(LineEnd);
    }
    for (int number = 1; number <= settings.RecentFileCount; ++number) {
        const std::string& path = settings.RecentFiles[static_cast<std::size_t>(number - 1)];
        if (FitsOnALine(path)) {
            text += "*" + std::to_string(number) + "; NAME=" + Escaped(path);
            text += LineEnd;
        }
    }
    return text;
}

// Creates the file that will replace the settings file; removes one that a crash left.
FileError WriteNewFile(FileSystem& files, const std::string& path, const std::string& text)
{
    std::unique_ptr<OutputFile> file;
    FileError error = files.CreateNew(path, file);
    if (error.number == error::FileAlreadyExists) {
        error = files.Remove(path);
        error = error.Ok() ? files.CreateNew(path, file) : error;
    }
    if (!error.Ok()) {
        return error;
    }
    error = file->Write(text);
    if (error.Ok()) {
        error = file->Finish();
    }
    if (!error.Ok()) {
        file.reset();
        files.RemoveIfPossible(path);
    }
    return error;
}

// Whether to keep the existing file: loading would refuse it, cannot read it, or did not read all of it.
bool MustBeKept(FileSystem& files, const std::string& path, bool readIncomplete)
{
    if (!files.Exists(path)) {
        return false;
    }
    std::unique_ptr<BookFile> file;
    if (const FileError error = files.OpenForReading(path, Sharing::Shared, file); !error.Ok()) {
        return error.number != error::PathFileAccess; // a folder is not moved; saving then fails
    }
    StatementReader reader(*file);
    std::string signature;
    return readIncomplete || !reader.ReadLine(signature) || !IsIniSignature(signature);
}

// Renames the file to the first free backup name: ".bak", ".bak2", ...
FileError KeepBeside(FileSystem& files, const std::string& path, std::string& backup)
{
    FileError error;
    for (int number = 1; number <= MaxBackups; ++number) {
        backup = path + std::string(BackupType);
        if (number > 1) {
            backup += std::to_string(number);
        }
        error = files.RenameToNew(path, backup);
        if (error.number != error::FileAlreadyExists) {
            break;
        }
    }
    return error;
}

FileError ReplaceIniFile(FileSystem& files, const std::string& path, const std::string& text,
                         bool readIncomplete)
{
    const std::string newPath = path + std::string(NewType);
    FileError error = WriteNewFile(files, newPath, text);
    if (!error.Ok()) {
        return error;
    }
    std::string backup;
    if (MustBeKept(files, path, readIncomplete)) {
        error = KeepBeside(files, path, backup);
    }
    if (error.Ok()) {
        error = files.RenameOver(newPath, path);
        if (!error.Ok() && !backup.empty()) {
            std::ignore = files.RenameToNew(backup, path); // the first error is the one to report
        }
    }
    if (!error.Ok()) {
        files.RemoveIfPossible(newPath);
    }
    return error;
}

} // namespace

void SaveIniFile(Settings& settings, const Seams& seams)
{
    const std::string path = IniPath(seams.files, seams.paths, settings.IniDir);
    const FileError error = ReplaceIniFile(seams.files, path, IniText(settings), settings.ReadIncomplete);
    settings.ReadIncomplete = settings.ReadIncomplete && !error.Ok();
    if (!error.Ok()) {
        seams.messages.MsgBox("Failed to save configuration and preferences to LSADVISOR.INI" + DueTo(error),
                              Icon::Warning);
    }
}

} // namespace ls
