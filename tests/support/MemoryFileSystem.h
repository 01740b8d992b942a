#pragma once

#include "base/FileSystem.h"

#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

namespace ls::test {

/// A file system in memory. Paths use "/". A folder exists when it was added or contains a file.
///
/// `fail` injects errors: it is called before every operation ("open /a", "read /a 1", "size /a", "write /a",
/// "finish /a", "create /a", "rename /a /b", "remove /a", "list /a", "writable /a", "folder /a") and returns
/// the error number to fail with, 0 for none.
class MemoryFileSystem : public FileSystem
{
public:
    FileError OpenForReading(const std::string& path, Sharing sharing,
                             std::unique_ptr<BookFile>& file) override;
    FileError CreateNew(const std::string& path, std::unique_ptr<OutputFile>& file) override;
    FileError RenameToNew(const std::string& from, const std::string& to) override;
    FileError RenameOver(const std::string& from, const std::string& to) override;
    FileError Remove(const std::string& path) override;
    FileError CheckWritable(const std::string& path) override;
    bool Exists(const std::string& path) override;
    bool SameFile(const std::string& a, const std::string& b) override;
    FileError List(const std::string& folder, std::vector<FolderEntry>& entries) override;
    FileError MakeFolder(const std::string& folder) override;
    std::string CurrentFolder() override { return currentFolder; }

    /// The content of a file; creates a missing file. It may change while the file is open.
    std::string& operator[](const std::string& path);
    [[nodiscard]] bool Has(const std::string& path) const { return m_files.count(path) != 0; }
    void AddFolder(const std::string& path) { m_folders.insert(path); }

    std::string currentFolder = "/work";
    std::function<int(const std::string& operation)> fail;
    std::vector<std::string> log;    ///< every operation; reads with their position: "read /a 1"
    std::vector<std::string> opened; ///< "path shared" or "path locked"

    /// The injected error number for an operation; logs the operation.
    int Fault(const std::string& operation);

private:
    [[nodiscard]] std::string Full(const std::string& path) const;
    [[nodiscard]] bool IsFolder(const std::string& path) const;

    std::map<std::string, std::shared_ptr<std::string>> m_files;
    std::set<std::string> m_folders;
};

} // namespace ls::test
