#pragma once

#include <gtest/gtest.h>

#include <functional>

#include <sys/wait.h>
#include <unistd.h>

namespace ls::test {

/// Runs `work` in a process of its own and returns its result (0 to 255); -1 when a signal ended it.
inline int RunInChild(const std::function<int()>& work)
{
    const pid_t child = ::fork();
    if (child == 0) {
        ::_exit(work());
    }
    int status = 0;
    EXPECT_EQ(::waitpid(child, &status, 0), child);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

/// Gives up root's rights, because root is refused nothing. Only for a child process. False when it failed.
inline bool BecomeOrdinaryUser()
{
    constexpr unsigned Nobody = 65534;
    return ::geteuid() != 0 || (::setgid(Nobody) == 0 && ::setuid(Nobody) == 0);
}

} // namespace ls::test
