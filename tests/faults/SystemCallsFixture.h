#pragma once

#include "FailingCalls.h"
#include "support/ScratchFolder.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

namespace ls::test {

/// Repeats an action, each time with another one of its system calls failing.
class SystemCalls : public testing::TestWithParam<SystemFault>
{
protected:
    /// Repeats `prepare`, `act` and `check`. Call number n of `act` fails in round n, and `check` gets that
    /// call's name. Ends after a round in which no call failed.
    void ForEachCall(const std::function<void(const std::string& error)>& check,
                     const std::function<void()>& act, const std::function<void()>& prepare)
    {
        for (int failAt = 1; failAt < 500; ++failAt) {
            prepare();
            {
                const FailingCalls failing(failAt, GetParam());
                act();
                calls.push_back(failing.Error());
            }
            if (calls.back().empty()) {
                break;
            }
            SCOPED_TRACE(std::to_string(failAt) + " " + calls.back());
            check(calls.back());
            if (HasFailure()) {
                break;
            }
        }
        EXPECT_TRUE(calls.back().empty()) << "it does not end";
        EXPECT_GT(calls.size(), 1U) << "it makes no system call";
    }

    ScratchFolder folder;
    std::vector<std::string> calls; ///< the names of the calls that failed, in their order
};

} // namespace ls::test
