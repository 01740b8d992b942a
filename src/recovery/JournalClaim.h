#pragma once

#include "base/FileSystem.h"
#include "base/PathRules.h"

#include <functional>
#include <memory>
#include <string>

namespace ls {

/// Gives names for journals, none of them twice.
using JournalNames = std::function<std::string()>;

/// Names of 16 hexadecimal digits by chance: two programs never come upon the same.
[[nodiscard]] std::string RandomJournalName();

/// What the files of a journal are called behind its name.
inline constexpr std::string_view JournalType = ".journal";
inline constexpr std::string_view JournalLockType = ".lock";
inline constexpr std::string_view DamagedJournalType = ".damaged";

/// This program's hold on a journal: as long as it lasts, no other running program takes, offers or removes
/// it. A locked file beside the journal tells them; the system gives that lock back even when the program is
/// killed. The journal itself need not exist yet.
class JournalClaim
{
public:
    ~JournalClaim() = default;
    JournalClaim(const JournalClaim&) = delete;
    JournalClaim& operator=(const JournalClaim&) = delete;

    /// A hold on a new journal in a folder that exists.
    static FileError MakeNew(FileSystem& files, PathRules paths, const std::string& folder,
                             const JournalNames& names, std::unique_ptr<JournalClaim>& claim);

    /// A hold on the journal of that name that some program left. Error 70 when that program is running, or
    /// another one has taken it.
    static FileError Take(FileSystem& files, PathRules paths, const std::string& folder,
                          const std::string& name, std::unique_ptr<JournalClaim>& claim);

    /// The journal's full path.
    [[nodiscard]] std::string Path() const { return m_base + std::string(JournalType); }

    /// The path under which it is kept when it is damaged.
    [[nodiscard]] std::string DamagedPath() const { return m_base + std::string(DamagedJournalType); }

    /// Takes the journal away, and gives the hold up. While the journal cannot be removed the hold on it goes
    /// on.
    FileError Remove();

    /// Copies a journal that could not be read whole under a name that is never offered: what it holds can
    /// still be looked for by hand once the journal is written anew or removed.
    FileError KeepDamaged();

private:
    JournalClaim(FileSystem& files, std::string base) : m_files(files), m_base(std::move(base)) {}
    FileError Lock();

    FileSystem& m_files;
    std::string m_base;
    std::unique_ptr<BookFile> m_lock; ///< none in a folder where none can be made
};

} // namespace ls
