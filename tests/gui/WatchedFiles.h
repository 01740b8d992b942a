#pragma once

#include "base/FileSystem.h"

#include <chrono>
#include <thread>
#include <utility>

namespace ls::test {

/// Passes calls to real files, counts the reads of books and can make them fail.
class WatchedFiles : public FileSystem
{
public:
    explicit WatchedFiles(std::unique_ptr<FileSystem> files) : m_files(std::move(files)) {}

    int reads = 0;
    int failure = 0;     ///< the error number of all reads after `readsBefore` more reads; 0 for none
    int readsBefore = 0; ///< the number of reads that still succeed
    int pause = 0;       ///< milliseconds for each read, as on a slow disk

    FileError OpenForReading(const std::string& path, Sharing sharing,
                             std::unique_ptr<BookFile>& file) override
    {
        const FileError error = m_files->OpenForReading(path, sharing, file);
        if (error.Ok()) {
            file = std::make_unique<Watched>(*this, std::move(file));
        }
        return error;
    }
    FileError CreateNew(const std::string& path, std::unique_ptr<OutputFile>& file) override
    {
        return m_files->CreateNew(path, file);
    }
    FileError CreateNewPrivate(const std::string& path, std::unique_ptr<OutputFile>& file) override
    {
        return m_files->CreateNewPrivate(path, file);
    }
    FileError RenameToNew(const std::string& from, const std::string& to) override
    {
        return m_files->RenameToNew(from, to);
    }
    FileError RenameOver(const std::string& from, const std::string& to) override
    {
        return m_files->RenameOver(from, to);
    }
    FileError Remove(const std::string& path) override { return m_files->Remove(path); }
    FileError CheckWritable(const std::string& path) override { return m_files->CheckWritable(path); }
    bool Exists(const std::string& path) override { return m_files->Exists(path); }
    bool SameFile(const std::string& a, const std::string& b) override { return m_files->SameFile(a, b); }
    FileError List(const std::string& folder, std::vector<FolderEntry>& entries) override
    {
        return m_files->List(folder, entries);
    }
    FileError MakeFolder(const std::string& folder) override { return m_files->MakeFolder(folder); }
    std::string CurrentFolder() override { return m_files->CurrentFolder(); }

private:
    class Watched : public BookFile
    {
    public:
        Watched(WatchedFiles& owner, std::unique_ptr<BookFile> file) : m_owner(owner), m_file(std::move(file))
        {
        }
        FileError ReadAt(FilePos pos, char* buffer, std::size_t size, std::size_t& got) override
        {
            ++m_owner.reads;
            std::this_thread::sleep_for(std::chrono::milliseconds(m_owner.pause));
            if (m_owner.failure != 0 && m_owner.readsBefore-- <= 0) {
                return MakeFileError(m_owner.failure);
            }
            return m_file->ReadAt(pos, buffer, size, got);
        }
        FileError Size(FilePos& size) override { return m_file->Size(size); }

    private:
        WatchedFiles& m_owner;
        std::unique_ptr<BookFile> m_file;
    };

    std::unique_ptr<FileSystem> m_files;
};

} // namespace ls::test
