#pragma once

#include "base/FileSystem.h"

namespace ls {

/// The files of a Linux system.
///
/// A lock is an advisory one that is taken without waiting: Locked excludes every other opening by this
/// program, here or elsewhere; Shared excludes only Locked. Where the file system knows no locks, a lock
/// counts as granted. Only regular files are opened: a pipe or a device could keep the program waiting for
/// ever, and is error 68.
class LinuxFileSystem : public FileSystem
{
public:
    LinuxFileSystem();

    FileError OpenForReading(const std::string& path, Sharing sharing,
                             std::unique_ptr<BookFile>& file) override;
    FileError CreateNew(const std::string& path, std::unique_ptr<OutputFile>& file) override;
    FileError CreateNewPrivate(const std::string& path, std::unique_ptr<OutputFile>& file) override;
    FileError RenameToNew(const std::string& from, const std::string& to) override;
    FileError RenameOver(const std::string& from, const std::string& to) override;

    /// Takes the name away; a folder is error 75.
    FileError Remove(const std::string& path) override;

    FileError CheckWritable(const std::string& path) override;

    /// A link that leads nowhere has its name, too.
    bool Exists(const std::string& path) override;

    bool SameFile(const std::string& a, const std::string& b) override;

    /// "" is the current folder. A link to a folder counts as a folder, a name with a leading dot as hidden.
    FileError List(const std::string& folder, std::vector<FolderEntry>& entries) override;

    FileError MakeFolder(const std::string& folder) override;

    /// Empty when the folder has been removed.
    std::string CurrentFolder() override;
};

} // namespace ls
