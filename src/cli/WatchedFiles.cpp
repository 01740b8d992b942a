#include "cli/WatchedFiles.h"

#include <utility>

namespace ls {

namespace {

class WatchedBookFile : public BookFile
{
public:
    WatchedBookFile(WatchedFiles& owner, std::string path, std::unique_ptr<BookFile> file)
        : m_owner(&owner), m_path(std::move(path)), m_file(std::move(file))
    {
    }

    FileError ReadAt(FilePos pos, char* buffer, std::size_t size, std::size_t& got) override
    {
        return m_owner->Note(m_path, m_file->ReadAt(pos, buffer, size, got));
    }
    FileError Size(FilePos& size) override { return m_owner->Note(m_path, m_file->Size(size)); }

private:
    WatchedFiles* m_owner;
    std::string m_path;
    std::unique_ptr<BookFile> m_file;
};

class WatchedOutputFile : public OutputFile
{
public:
    WatchedOutputFile(WatchedFiles& owner, std::string path, std::unique_ptr<OutputFile> file)
        : m_owner(&owner), m_path(std::move(path)), m_file(std::move(file))
    {
    }

    FileError Write(std::string_view bytes) override { return m_owner->Note(m_path, m_file->Write(bytes)); }
    FileError Finish() override { return m_owner->Note(m_path, m_file->Finish()); }

private:
    WatchedFiles* m_owner;
    std::string m_path;
    std::unique_ptr<OutputFile> m_file;
};

} // namespace

FileError WatchedFiles::Note(const std::string& path, FileError error)
{
    if (!error.Ok() && m_error.Ok()) {
        m_error = error;
        m_failedPath = path;
    }
    return error;
}

FileError WatchedFiles::OpenForReading(const std::string& path, Sharing sharing,
                                       std::unique_ptr<BookFile>& file)
{
    FileError error = Note(path, m_files->OpenForReading(path, sharing, file));
    if (error.Ok()) {
        m_lastOpened = path;
        file = std::make_unique<WatchedBookFile>(*this, path, std::move(file));
    }
    return error;
}

FileError WatchedFiles::CreateNew(const std::string& path, std::unique_ptr<OutputFile>& file)
{
    FileError error = Note(path, m_files->CreateNew(path, file));
    if (error.Ok()) {
        file = std::make_unique<WatchedOutputFile>(*this, path, std::move(file));
    }
    return error;
}

FileError WatchedFiles::RenameToNew(const std::string& from, const std::string& to)
{
    return Note(to, m_files->RenameToNew(from, to));
}

FileError WatchedFiles::RenameOver(const std::string& from, const std::string& to)
{
    return Note(to, m_files->RenameOver(from, to));
}

FileError WatchedFiles::Remove(const std::string& path)
{
    return Note(path, m_files->Remove(path));
}

} // namespace ls
