#pragma once

#include <optional>
#include <string>
#include <vector>

namespace ls::test {

/// A way in which system calls fail.
struct SystemFault
{
    const char* name;
    int code;     ///< the system's error: an `errno`, or a code of `GetLastError`
    bool forGood; ///< all calls after the first one fail too
};

/// Makes one of the program's own system calls fail. The linker replaces these calls by those in
/// WrappedCalls.cpp.
class FailingCalls
{
public:
    /// Makes call number `failAt`, counted from now, fail, and with `forGood` all calls after it. 0 only
    /// counts.
    FailingCalls(int failAt, const SystemFault& fault);
    ~FailingCalls();
    FailingCalls(const FailingCalls&) = delete;
    FailingCalls& operator=(const FailingCalls&) = delete;

    /// The name of the first call that failed; empty if none did.
    [[nodiscard]] std::string Error() const;

    /// The path given to the call of `Error`. For a call on an open file, the path opened last.
    [[nodiscard]] std::string Path() const;
};

/// Used by the replaced calls: the error code if this call must fail now. `path` is the call's path, if it
/// has one.
[[nodiscard]] std::optional<int> CodeOfFailing(const char* call, const std::string& path = {});

/// Whether a `FailingCalls` exists. If so, the replaced calls do not wait.
[[nodiscard]] bool CallsAreFailing();

/// The errors of this system for a failing disk or file.
[[nodiscard]] std::vector<SystemFault> SystemFaults();

/// The system calls that save a book, and the one that removes a file.
[[nodiscard]] std::vector<std::string> CallsOfSaving();
[[nodiscard]] std::string CallOfRemoving();

} // namespace ls::test
