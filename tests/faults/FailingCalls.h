#pragma once

#include <optional>
#include <string>
#include <vector>

namespace ls::test {

/// A way in which calls of the system fail.
struct SystemFault
{
    const char* name;
    int code;     ///< what the system would say: an `errno`, or a code of `GetLastError`
    bool forGood; ///< the calls behind the first one fail, too
};

/// Lets one of the system calls fail that the program's own code makes; the linker leads them through here.
class FailingCalls
{
public:
    /// The call of that number, counted from now, fails, or that one and all behind it. 0 only counts.
    FailingCalls(int failAt, const SystemFault& fault);
    ~FailingCalls();
    FailingCalls(const FailingCalls&) = delete;
    FailingCalls& operator=(const FailingCalls&) = delete;

    /// The name of the call that failed first; empty when none did.
    [[nodiscard]] std::string Error() const;

    /// The path that it was given; of a call on something open the path that was opened last.
    [[nodiscard]] std::string Path() const;
};

/// For what stands in a call's place: the code with which it is to fail now, if it is. `path` is what it was
/// given, or nothing.
[[nodiscard]] std::optional<int> CodeOfFailing(const char* call, const std::string& path = {});

/// Whether a `FailingCalls` is there, so that nobody needs to wait for anything.
[[nodiscard]] bool CallsAreFailing();

/// What the running system may say when a disk or a file fails.
[[nodiscard]] std::vector<SystemFault> SystemFaults();

/// The calls by which it saves a book, and the one that takes a file away.
[[nodiscard]] std::vector<std::string> CallsOfSaving();
[[nodiscard]] std::string CallOfRemoving();

} // namespace ls::test
