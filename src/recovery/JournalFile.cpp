#include "recovery/JournalFile.h"

#include <memory>

namespace ls {

namespace {

constexpr std::size_t PieceSize = 256 * 1024;

FileError WriteWhole(FileSystem& files, const std::string& path, std::string_view bytes)
{
    std::unique_ptr<OutputFile> file;
    if (FileError failed = files.CreateNewPrivate(path, file); !failed.Ok()) {
        return failed;
    }
    if (FileError failed = file->Write(bytes); !failed.Ok()) {
        return failed;
    }
    return file->Finish();
}

// A file that shrinks meanwhile is read to its end as it is then.
FileError ReadWhole(FileSystem& files, const std::string& path, std::string& bytes)
{
    std::unique_ptr<BookFile> file;
    if (FileError failed = files.OpenForReading(path, Sharing::Shared, file); !failed.Ok()) {
        return failed;
    }
    FilePos size = 0;
    if (FileError failed = file->Size(size); !failed.Ok()) {
        return failed;
    }
    if (size > MostJournalBytes) {
        return MakeFileError(error::OutOfMemory);
    }
    for (std::size_t got = PieceSize; got == PieceSize;) {
        const std::size_t read = bytes.size();
        bytes.resize(read + PieceSize);
        got = 0;
        FileError failed = file->ReadAt(static_cast<FilePos>(read) + 1, bytes.data() + read, PieceSize, got);
        bytes.resize(read + got);
        if (!failed.Ok()) {
            return failed;
        }
    }
    return {};
}

} // namespace

std::string NewJournalName(const std::string& path)
{
    return path + ".new";
}

FileError WriteJournal(FileSystem& files, const std::string& path, std::string_view bytes)
{
    if (bytes.size() > static_cast<std::size_t>(MostJournalBytes)) {
        return MakeFileError(error::OutOfMemory);
    }
    const std::string newPath = NewJournalName(path);
    files.Remove(newPath); // what an earlier failure could not take away
    FileError failed = WriteWhole(files, newPath, bytes);
    if (failed.Ok()) {
        failed = files.RenameOver(newPath, path);
    }
    if (!failed.Ok()) {
        files.Remove(newPath);
    }
    return failed;
}

FileError CopyJournal(FileSystem& files, const std::string& from, const std::string& to)
{
    std::string bytes;
    FileError failed = ReadWhole(files, from, bytes);
    return failed.Ok() ? WriteJournal(files, to, bytes) : failed;
}

FileError ReadJournal(FileSystem& files, const std::string& path, JournalReading& reading)
{
    std::string bytes;
    FileError failed = ReadWhole(files, path, bytes);
    reading = failed.Ok() ? ParseJournal(bytes) : JournalReading{};
    return failed;
}

} // namespace ls
