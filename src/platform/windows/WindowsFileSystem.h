#pragma once

#include "base/FileSystem.h"

namespace ls {

/// The files of a Windows system.
///
/// With Locked nobody else can open the file while it is open here; with Shared others may read, write,
/// rename and delete it. The system enforces this for every program. Only files on a disk open: "CON", "COM1"
/// or a pipe could block the program for ever, and is error 68.
class WindowsFileSystem : public FileSystem
{
public:
    WindowsFileSystem();

    FileError OpenForReading(const std::string& path, Sharing sharing,
                             std::unique_ptr<BookFile>& file) override;
    FileError CreateNew(const std::string& path, std::unique_ptr<OutputFile>& file) override;
    FileError RenameToNew(const std::string& from, const std::string& to) override;
    FileError RenameOver(const std::string& from, const std::string& to) override;

    /// Removes a file; error 75 for a folder, 70 for a file marked read-only.
    FileError Remove(const std::string& path) override;

    FileError CheckWritable(const std::string& path) override;
    /// True also for a link that leads nowhere.
    bool Exists(const std::string& path) override;

    bool SameFile(const std::string& a, const std::string& b) override;

    /// "" is the current folder, "C:" the current folder of that drive. A link to a folder counts as a
    /// folder.
    FileError List(const std::string& folder, std::vector<FolderEntry>& entries) override;

    FileError MakeFolder(const std::string& folder) override;

    std::string CurrentFolder() override;
};

} // namespace ls
