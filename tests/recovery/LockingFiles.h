#pragma once

#include "support/MemoryFileSystem.h"

#include <map>
#include <memory>
#include <string>
#include <utility>

namespace ls::test {

/// Files in memory with locks like the system's: a file that is open and locked cannot be opened again, and
/// an open file cannot be locked.
class LockingFiles : public MemoryFileSystem
{
public:
    FileError OpenForReading(const std::string& path, Sharing sharing,
                             std::unique_ptr<BookFile>& file) override
    {
        file.reset();
        std::shared_ptr<Openings>& openings = m_openings[path];
        if (!openings) {
            openings = std::make_shared<Openings>();
        }
        if (openings->locked || (sharing == Sharing::Locked && openings->count > 0)) {
            Fault("refuse " + path);
            return MakeFileError(error::PermissionDenied);
        }
        FileError error = MemoryFileSystem::OpenForReading(path, sharing, file);
        if (error.Ok()) {
            file = std::make_unique<Held>(std::move(file), openings, sharing == Sharing::Locked);
        }
        return error;
    }

private:
    struct Openings
    {
        int count = 0;
        bool locked = false;
    };

    class Held : public BookFile
    {
    public:
        Held(std::unique_ptr<BookFile> file, std::shared_ptr<Openings> openings, bool locked)
            : m_file(std::move(file)), m_openings(std::move(openings)), m_locked(locked)
        {
            ++m_openings->count;
            m_openings->locked = m_openings->locked || m_locked;
        }
        ~Held() override
        {
            --m_openings->count;
            m_openings->locked = m_openings->locked && !m_locked;
        }
        Held(const Held&) = delete;
        Held& operator=(const Held&) = delete;

        FileError ReadAt(FilePos pos, char* buffer, std::size_t size, std::size_t& got) override
        {
            return m_file->ReadAt(pos, buffer, size, got);
        }
        FileError Size(FilePos& size) override { return m_file->Size(size); }

    private:
        std::unique_ptr<BookFile> m_file;
        std::shared_ptr<Openings> m_openings;
        bool m_locked;
    };

    std::map<std::string, std::shared_ptr<Openings>> m_openings;
};

} // namespace ls::test
