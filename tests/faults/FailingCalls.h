#pragma once

#include <string>

namespace ls::test {

/// Lets one of the system calls fail that the program's own code makes; the linker leads them through here.
class FailingCalls
{
public:
    /// The call of that number, counted from now, fails with `errnoValue`; from then on all of them when
    /// `forGood` is set. 0 only counts.
    FailingCalls(int failAt, int errnoValue, bool forGood = false);
    ~FailingCalls();
    FailingCalls(const FailingCalls&) = delete;
    FailingCalls& operator=(const FailingCalls&) = delete;

    /// How many calls were made.
    [[nodiscard]] int Count() const;

    /// The name of the call that failed first; empty when none did.
    [[nodiscard]] std::string Failed() const;
};

} // namespace ls::test
