#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace ls::test {

/// The sorted names of the cases in a folder of the tests' data ("cases/text"). A case is a book worked out
/// by hand, "NAME.IDA", with its expected results in "NAME.json".
[[nodiscard]] std::vector<std::string> CaseNames(const std::string& folder);

/// The path of a case's file without its type.
[[nodiscard]] std::string CasePath(const std::string& folder, const std::string& name);

/// A case's name as the name of a test.
[[nodiscard]] std::string CaseTestName(const testing::TestParamInfo<std::string>& info);

} // namespace ls::test
