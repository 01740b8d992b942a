#include "recovery/JournalFile.h"

#include <memory>

namespace ls {

namespace {

constexpr std::size_t PieceSize = 256 * 1024;

FileError WriteWhole(FileSystem& files, const std::string& path, std::string_view bytes)
{
    std::unique_ptr<OutputFile> file;
    if (FileError error = files.CreateNewPrivate(path, file); !error.Ok()) {
        return error;
    }
    if (FileError error = file->Write(bytes); !error.Ok()) {
        return error;
    }
    return file->Finish();
}

// A file that shrinks while it is read is read to its new end.
FileError ReadWhole(FileSystem& files, const std::string& path, std::string& bytes)
{
    std::unique_ptr<BookFile> file;
    if (FileError error = files.OpenForReading(path, Sharing::Shared, file); !error.Ok()) {
        return error;
    }
    FilePos size = 0;
    if (FileError error = file->Size(size); !error.Ok()) {
        return error;
    }
    if (size > MostJournalBytes) {
        return MakeFileError(error::OutOfMemory);
    }
    for (std::size_t got = PieceSize; got == PieceSize;) {
        const std::size_t read = bytes.size();
        bytes.resize(read + PieceSize);
        got = 0;
        FileError error = file->ReadAt(static_cast<FilePos>(read) + 1, bytes.data() + read, PieceSize, got);
        bytes.resize(read + got);
        if (!error.Ok()) {
            return error;
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
    files.RemoveIfPossible(newPath); // left over from an earlier failure
    FileError error = WriteWhole(files, newPath, bytes);
    if (error.Ok()) {
        error = files.RenameOver(newPath, path);
    }
    if (!error.Ok()) {
        files.RemoveIfPossible(newPath);
    }
    return error;
}

FileError CopyJournal(FileSystem& files, const std::string& from, const std::string& to)
{
    std::string bytes;
    FileError error = ReadWhole(files, from, bytes);
    return error.Ok() ? WriteJournal(files, to, bytes) : error;
}

FileError ReadJournal(FileSystem& files, const std::string& path, JournalReading& reading)
{
    std::string bytes;
    FileError error = ReadWhole(files, path, bytes);
    reading = error.Ok() ? ParseJournal(bytes) : JournalReading{};
    return error;
}

} // namespace ls
