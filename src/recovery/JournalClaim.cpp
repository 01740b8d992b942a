#include "recovery/JournalClaim.h"

#include "recovery/JournalFile.h"

#include <array>
#include <cstdio>
#include <random>

namespace ls {

namespace {

constexpr int MaxTries = 20;

bool IsMissing(const FileError& error)
{
    return error.number == error::FileNotFound || error.number == error::PathNotFound;
}

FileError MakeEmptyFile(FileSystem& files, const std::string& path)
{
    std::unique_ptr<OutputFile> file;
    FileError error = files.CreateNewPrivate(path, file);
    return error.Ok() ? file->Finish() : error;
}

} // namespace

std::string RandomJournalName()
{
    std::random_device chance;
    std::array<char, 17> name{};
    std::snprintf(name.data(), name.size(), "%08x%08x", static_cast<unsigned>(chance()),
                  static_cast<unsigned>(chance()));
    return name.data();
}

// Tries another name if a program that looks for journals has the new lock file open, or has removed it as
// one that was left over.
FileError JournalClaim::MakeNew(FileSystem& files, PathRules paths, const std::string& folder,
                                const JournalNames& names, std::unique_ptr<JournalClaim>& claim)
{
    FileError error;
    for (int tries = 0; tries < MaxTries; ++tries) {
        std::unique_ptr<JournalClaim> made(new JournalClaim(files, JoinPath(paths, folder, names())));
        if (files.Exists(made->Path())) {
            error = MakeFileError(error::FileAlreadyExists);
            continue;
        }
        error = MakeEmptyFile(files, made->m_base + std::string(JournalLockType));
        if (error.Ok()) {
            error = made->Lock();
        }
        if (error.Ok()) {
            claim = std::move(made);
            return {};
        }
        const bool taken = error.number == error::FileAlreadyExists ||
                           error.number == error::PermissionDenied || IsMissing(error);
        if (!taken) {
            break;
        }
    }
    return error;
}

FileError JournalClaim::Take(FileSystem& files, PathRules paths, const std::string& folder,
                             const std::string& name, std::unique_ptr<JournalClaim>& claim)
{
    std::unique_ptr<JournalClaim> taken(new JournalClaim(files, JoinPath(paths, folder, name)));
    FileError error = taken->Lock();
    if (IsMissing(error)) {
        // No program claims the journal: it was copied here, or a user removed its lock file. A new lock file
        // is made. Another program may make one at the same moment; then that one is locked. In a folder that
        // cannot be written no program can make one, so the claim holds without it.
        error = MakeEmptyFile(files, taken->m_base + std::string(JournalLockType));
        const bool lockable = error.Ok() || error.number == error::FileAlreadyExists;
        error = lockable ? taken->Lock() : FileError{};
    }
    if (error.Ok()) {
        claim = std::move(taken);
    }
    return error;
}

// Checks that the file still exists: another program may remove it between opening and locking, and the lock
// on a removed file would keep nobody away.
FileError JournalClaim::Lock()
{
    const std::string path = m_base + std::string(JournalLockType);
    FileError error = m_files.OpenForReading(path, Sharing::Locked, m_lock);
    if (error.Ok() && !m_files.Exists(path)) {
        m_lock.reset();
        error = MakeFileError(error::FileNotFound);
    }
    return error;
}

FileError JournalClaim::Remove()
{
    m_files.RemoveIfPossible(NewJournalName(Path()));
    FileError error = m_files.Remove(Path());
    if (!error.Ok() && !IsMissing(error)) {
        return error;
    }
    m_lock.reset(); // some systems cannot remove an open file
    m_files.RemoveIfPossible(m_base + std::string(JournalLockType));
    return {};
}

FileError JournalClaim::KeepDamaged()
{
    return CopyJournal(m_files, Path(), DamagedPath());
}

} // namespace ls
