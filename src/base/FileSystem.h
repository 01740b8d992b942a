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

/// What others may do with a file that is open for reading.
enum class Sharing
{
    Shared, ///< others may read and write it
    Locked, ///< nobody else may open it; a file locked elsewhere fails with error 70
};

/// An open file, read by position. It has no position of its own; each reader keeps one (see `LineCursor`),
/// so that no reader can move another's.
class BookFile
{
public:
    virtual ~BookFile() = default;

    /// Reads up to `size` bytes into `buffer`, from 1-based `pos` on. `got` is less than `size` only at the
    /// end of the file.
    virtual FileError ReadAt(FilePos pos, char* buffer, std::size_t size, std::size_t& got) = 0;

    /// The file's size in bytes at this moment; another program may change it while the file is open.
    virtual FileError Size(FilePos& size) = 0;
};

/// A file that is being written. The destructor closes it but reports no errors; call `Finish`.
class OutputFile
{
public:
    virtual ~OutputFile() = default;

    virtual FileError Write(std::string_view bytes) = 0;

    /// Writes everything to the disk, closes the file and reports whether all of it arrived.
    virtual FileError Finish() = 0;
};

/// One entry of a folder.
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

    /// Errors: 53 for a missing file, 76 for a missing folder, 75 for a folder, 70 for a refused or locked
    /// file.
    virtual FileError OpenForReading(const std::string& path, Sharing sharing,
                                     std::unique_ptr<BookFile>& file) = 0;

    /// Fails with 58 when the name exists, even if another program creates it at the same moment.
    virtual FileError CreateNew(const std::string& path, std::unique_ptr<OutputFile>& file) = 0;

    /// Like `CreateNew`, for a file that only this user may read and write. On systems where a file takes its
    /// rights from its folder, the folder decides.
    virtual FileError CreateNewPrivate(const std::string& path, std::unique_ptr<OutputFile>& file)
    {
        return CreateNew(path, file);
    }

    /// Renames `from` to `to`; fails with 58 when `to` exists.
    virtual FileError RenameToNew(const std::string& from, const std::string& to) = 0;

    /// Renames `from` to `to` in one step and replaces an existing `to`.
    virtual FileError RenameOver(const std::string& from, const std::string& to) = 0;

    virtual FileError Remove(const std::string& path) = 0;

    /// For clean-up after a reported error or before a fresh start: ignores a file that cannot be removed.
    void RemoveIfPossible(const std::string& path) { std::ignore = Remove(path); }

    /// Whether the user may overwrite a file: error 70 when it is marked read-only. The system may still
    /// allow a rename over it.
    virtual FileError CheckWritable(const std::string& path) = 0;

    /// Whether a file or folder of this name exists. Takes no lock.
    virtual bool Exists(const std::string& path) = 0;

    /// Whether two names lead to one file, in any spelling and through links. False when either leads
    /// nowhere.
    virtual bool SameFile(const std::string& a, const std::string& b) = 0;

    /// The entries of a folder, in the system's order.
    virtual FileError List(const std::string& folder, std::vector<FolderEntry>& entries) = 0;

    /// Creates a folder and its missing parents; only this user may look into them. An existing folder is
    /// left alone. A file of that name is error 75.
    virtual FileError MakeFolder(const std::string& folder) = 0;

    virtual std::string CurrentFolder() = 0;
};

} // namespace ls
