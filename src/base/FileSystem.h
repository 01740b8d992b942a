#pragma once

#include "base/FileError.h"
#include "base/FilePos.h"

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

namespace ls {

/// How a file that is opened for reading may be used by others at the same time.
enum class Sharing
{
    Shared, ///< others may read and write it
    Locked, ///< nobody else may open it; a file that is locked elsewhere fails with error 70
};

/// An open file, read by position. It has no position of its own: each reader brings one (see `LineCursor`),
/// so that no reader can move another's.
class BookFile
{
public:
    virtual ~BookFile() = default;

    /// Reads up to `size` bytes from 1-based `pos` on into `buffer`. `got` is fewer only at the end of the
    /// file.
    virtual FileError ReadAt(FilePos pos, char* buffer, std::size_t size, std::size_t& got) = 0;

    /// The file's size in bytes now: another program may have changed it since it was opened.
    virtual FileError Size(FilePos& size) = 0;
};

/// A file that is being written. Closing it by the destructor gives no verdict; call `Finish`.
class OutputFile
{
public:
    virtual ~OutputFile() = default;

    virtual FileError Write(std::string_view bytes) = 0;

    /// Brings everything to the disk, closes the file and tells whether all of it got there.
    virtual FileError Finish() = 0;
};

/// What a folder holds under one name.
struct FolderEntry
{
    std::string name;
    bool isFolder = false;
    bool hidden = false;

    friend bool operator==(const FolderEntry&, const FolderEntry&) = default;
};

/// The files of the running system, as the core sees them. Paths are the system's own bytes, never book text.
class FileSystem
{
public:
    virtual ~FileSystem() = default;

    /// A missing file is error 53, a missing folder 76, a folder 75, a refused or locked one 70.
    virtual FileError OpenForReading(const std::string& path, Sharing sharing,
                                     std::unique_ptr<BookFile>& file) = 0;

    /// Fails with 58 when the name exists, also when somebody else makes it at the same moment.
    virtual FileError CreateNew(const std::string& path, std::unique_ptr<OutputFile>& file) = 0;

    /// The same for a file that only this user may read and write. Where a file takes its rights from its
    /// folder, that is the folder's business.
    virtual FileError CreateNewPrivate(const std::string& path, std::unique_ptr<OutputFile>& file)
    {
        return CreateNew(path, file);
    }

    /// Gives `from` the name `to`; fails with 58 when `to` exists.
    virtual FileError RenameToNew(const std::string& from, const std::string& to) = 0;

    /// Gives `from` the name `to`, in one step, in place of what had that name.
    virtual FileError RenameOver(const std::string& from, const std::string& to) = 0;

    virtual FileError Remove(const std::string& path) = 0;

    /// Clears up after an error that is reported, or before a fresh start: a file that cannot be removed
    /// stays.
    void RemoveIfPossible(const std::string& path) { std::ignore = Remove(path); }

    /// Whether the user may write over a file: error 70 for one that is marked read-only. The system may let
    /// another file take its name all the same.
    virtual FileError CheckWritable(const std::string& path) = 0;

    /// Whether anything has this name. Takes no lock.
    virtual bool Exists(const std::string& path) = 0;

    /// Whether two names lead to one file, however they are spelled or linked. False when either leads
    /// nowhere.
    virtual bool SameFile(const std::string& a, const std::string& b) = 0;

    /// The entries of a folder, in the order in which the system gives them.
    virtual FileError List(const std::string& folder, std::vector<FolderEntry>& entries) = 0;

    /// Makes a folder, and those above it that are missing, which only this user may look into. One that is
    /// there already is left as it is; a file of that name is error 75.
    virtual FileError MakeFolder(const std::string& folder) = 0;

    virtual std::string CurrentFolder() = 0;
};

} // namespace ls
