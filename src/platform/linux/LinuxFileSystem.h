#pragma once

#include "base/FileSystem.h"

namespace ls {

/// The files of a Linux system.
///
/// Locks are advisory and never wait. Locked excludes every other opening by this program, in this and other
/// processes; Shared excludes only Locked. Where the file system has no locks, a lock always succeeds. Only
/// regular files open: a pipe or a device could block the program for ever, and is error 68.
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

    /// Removes a file; a folder is error 75.
    FileError Remove(const std::string& path) override;

    FileError CheckWritable(const std::string& path) override;

    /// True also for a link that leads nowhere.
    bool Exists(const std::string& path) override;

    bool SameFile(const std::string& a, const std::string& b) override;

    /// "" is the current folder. A link to a folder counts as a folder; a name that begins with a dot is
    /// hidden.
    FileError List(const std::string& folder, std::vector<FolderEntry>& entries) override;

    FileError MakeFolder(const std::string& folder) override;

    /// Empty when that folder is removed.
    std::string CurrentFolder() override;
};

} // namespace ls
