#pragma once

#include "base/FileSystem.h"
#include "base/PathRules.h"

#include <functional>
#include <memory>
#include <string>

namespace ls {

/// Returns a new name for a journal at each call.
using JournalNames = std::function<std::string()>;

/// A random name of 16 hexadecimal digits. Two programs practically never get the same one.
[[nodiscard]] std::string RandomJournalName();

/// The endings of file names: of a journal, its lock file and the copy of a damaged journal.
inline constexpr std::string_view JournalType = ".journal";
inline constexpr std::string_view JournalLockType = ".lock";
inline constexpr std::string_view DamagedJournalType = ".damaged";

/// This program's claim to a journal. While it lasts, no other running program takes, offers or removes the
/// journal. The claim is a locked file beside the journal; the system releases the lock even when the program
/// is killed. The journal itself need not exist yet.
class JournalClaim
{
public:
    ~JournalClaim() = default;
    JournalClaim(const JournalClaim&) = delete;
    JournalClaim& operator=(const JournalClaim&) = delete;

    /// Claims a new journal in a folder that exists.
    static FileError MakeNew(FileSystem& files, PathRules paths, const std::string& folder,
                             const JournalNames& names, std::unique_ptr<JournalClaim>& claim);

    /// Claims the journal of that name, which some program left. Error 70 if that program is running or if
    /// another program has claimed the journal.
    static FileError Take(FileSystem& files, PathRules paths, const std::string& folder,
                          const std::string& name, std::unique_ptr<JournalClaim>& claim);

    [[nodiscard]] std::string Path() const { return m_base + std::string(JournalType); }

    /// The path of the copy that is made when the journal is damaged.
    [[nodiscard]] std::string DamagedPath() const { return m_base + std::string(DamagedJournalType); }

    /// Removes the journal and ends the claim. If the journal cannot be removed, the claim goes on.
    FileError Remove();

    /// Copies a damaged journal to a name that is never offered. A person can still search the copy after the
    /// journal is rewritten or removed.
    FileError KeepDamaged();

private:
    JournalClaim(FileSystem& files, std::string base) : m_files(files), m_base(std::move(base)) {}
    FileError Lock();

    FileSystem& m_files;
    std::string m_base;
    std::unique_ptr<BookFile> m_lock; ///< null in a folder where no lock file can be made
};

} // namespace ls
