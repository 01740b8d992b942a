#pragma once

#include "base/FileSystem.h"

namespace ls {

/// The files of a Windows system.
///
/// Locked lets nobody else open the file while it is open here; Shared lets others read, write, rename and
/// delete it. The system itself keeps to that, so a locked file is safe from every program. Only files on a
/// disk are opened: "CON", "COM1" or a pipe could keep the program waiting for ever, and is error 68.
class WindowsFileSystem : public FileSystem
{
public:
    WindowsFileSystem();

    FileError OpenForReading(const std::string& path, Sharing sharing,
                             std::unique_ptr<BookFile>& file) override;
    FileError CreateNew(const std::string& path, std::unique_ptr<OutputFile>& file) override;
    FileError RenameToNew(const std::string& from, const std::string& to) override;
    FileError RenameOver(const std::string& from, const std::string& to) override;

    /// Takes the name away; a folder is error 75, a file that is marked as read-only 70.
    FileError Remove(const std::string& path) override;

    /// A link that leads nowhere has its name, too.
    FileError CheckWritable(const std::string& path) override;
    bool Exists(const std::string& path) override;

    bool SameFile(const std::string& a, const std::string& b) override;

    /// "" is the current folder, "C:" the current folder of that drive. A link to a folder counts as a
    /// folder.
    FileError List(const std::string& folder, std::vector<FolderEntry>& entries) override;

    FileError MakeFolder(const std::string& folder) override;

    std::string CurrentFolder() override;
};

} // namespace ls
