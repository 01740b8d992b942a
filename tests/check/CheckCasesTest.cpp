#include "CheckCases.h"

#include <gtest/gtest.h>

#include <set>

namespace ls {
namespace {

std::string RuleOf(const std::string& finding)
{
    const std::size_t from = finding.find(": ", finding.find(": ") + 2) + 2;
    return finding.substr(from, finding.find(':', from) - from);
}

TEST(CheckCases, everyBook_hasExactlyItsFindings)
{
    for (const test::CheckCase& one : test::ReadCheckCases()) {
        SCOPED_TRACE(one.name);
        EXPECT_EQ(test::FindingsOf(one.book), one.findings);
    }
}

TEST(CheckCases, everyRule_hasABookThatTriggersItAndANearOneThatDoesNot)
{
    std::set<std::string> triggered;
    std::set<std::string> near;
    for (const test::CheckCase& one : test::ReadCheckCases()) {
        const bool isNear = one.name.starts_with("near ");
        const std::string name = isNear ? one.name.substr(5) : one.name;
        const std::string rule = name.substr(0, name.find(' '));
        std::set<std::string> found;
        for (const std::string& finding : one.findings) {
            found.insert(RuleOf(finding));
        }
        EXPECT_EQ(found.count(rule), isNear ? 0U : 1U) << one.name;
        triggered.insert(found.begin(), found.end());
        if (isNear) {
            near.insert(rule);
        }
    }
    EXPECT_EQ(triggered, near);
}

} // namespace
} // namespace ls
