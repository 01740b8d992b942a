#pragma once

#include "base/FileSystem.h"

#include <string>

namespace ls {

/// The system's files. It remembers the first error, which decides the exit status even if the operation goes
/// on.
class WatchedFiles : public FileSystem
{
public:
    explicit WatchedFiles(FileSystem& files) : m_files(&files) {}

    /// The first error of an operation on a file; success when there was none.
    [[nodiscard]] const FileError& Error() const { return m_error; }

    /// The path of that error.
    [[nodiscard]] const std::string& FailedPath() const { return m_failedPath; }

    /// The last file that was opened; empty when none was.
    [[nodiscard]] const std::string& LastOpened() const { return m_lastOpened; }

    FileError OpenForReading(const std::string& path, Sharing sharing,
                             std::unique_ptr<BookFile>& file) override;
    FileError CreateNew(const std::string& path, std::unique_ptr<OutputFile>& file) override;
    FileError RenameToNew(const std::string& from, const std::string& to) override;
    FileError RenameOver(const std::string& from, const std::string& to) override;
    FileError Remove(const std::string& path) override;
    FileError CheckWritable(const std::string& path) override
    {
        return Note(path, m_files->CheckWritable(path));
    }
    bool Exists(const std::string& path) override { return m_files->Exists(path); }
    bool SameFile(const std::string& a, const std::string& b) override { return m_files->SameFile(a, b); }
    FileError List(const std::string& folder, std::vector<FolderEntry>& entries) override
    {
        return m_files->List(folder, entries); // not noted: a failed search for another spelling is harmless
    }
    FileError MakeFolder(const std::string& folder) override
    {
        return Note(folder, m_files->MakeFolder(folder));
    }
    std::string CurrentFolder() override { return m_files->CurrentFolder(); }

    /// Remembers an error and returns it.
    FileError Note(const std::string& path, FileError error);

private:
    FileSystem* m_files;
    FileError m_error;
    std::string m_failedPath;
    std::string m_lastOpened;
};

} // namespace ls
