#include "base/PathRules.h"

#include <gtest/gtest.h>

namespace ls {
namespace {

struct JoinCase
{
    const char* name;
    PathRules rules;
    const char* folder;
    const char* file;
    const char* path;
};

struct JoinPathTest : testing::TestWithParam<JoinCase>
{
};

TEST_P(JoinPathTest, join_putsOneSeparatorBetween)
{
    EXPECT_EQ(JoinPath(GetParam().rules, GetParam().folder, GetParam().file), GetParam().path);
}

INSTANTIATE_TEST_SUITE_P(Paths, JoinPathTest,
                         testing::Values(JoinCase{"unix", UnixPaths, "/b", "x.IDA", "/b/x.IDA"},
                                         JoinCase{"unixEnding", UnixPaths, "/b/", "x.IDA", "/b/x.IDA"},
                                         JoinCase{"unixRoot", UnixPaths, "/", "x.IDA", "/x.IDA"},
                                         JoinCase{"unixNoFolder", UnixPaths, "", "x.IDA", "x.IDA"},
                                         JoinCase{"unixBackslash", UnixPaths, "b\\", "x", "b\\/x"},
                                         JoinCase{"windows", WindowsPaths, "C:\\b", "x", "C:\\b\\x"},
                                         JoinCase{"windowsRoot", WindowsPaths, "C:\\", "x", "C:\\x"},
                                         JoinCase{"windowsSlash", WindowsPaths, "b/", "x", "b/\\x"}),
                         [](const auto& row) { return row.param.name; });

struct SplitCase
{
    const char* name;
    PathRules rules;
    const char* path;
    const char* folder;
    const char* file;
    bool absolute;
};

struct SplitPathTest : testing::TestWithParam<SplitCase>
{
};

TEST_P(SplitPathTest, path_isCutBehindItsLastSeparator)
{
    EXPECT_EQ(FolderOf(GetParam().rules, GetParam().path), GetParam().folder);
    EXPECT_EQ(NameOf(GetParam().rules, GetParam().path), GetParam().file);
    EXPECT_EQ(IsAbsolute(GetParam().rules, GetParam().path), GetParam().absolute);
}

INSTANTIATE_TEST_SUITE_P(
    Paths, SplitPathTest,
    testing::Values(SplitCase{"empty", UnixPaths, "", "", "", false},
                    SplitCase{"unixName", UnixPaths, "x.IDA", "", "x.IDA", false},
                    SplitCase{"unixRelative", UnixPaths, "b/x", "b", "x", false},
                    SplitCase{"unixAbsolute", UnixPaths, "/b/c/x", "/b/c", "x", true},
                    SplitCase{"unixRoot", UnixPaths, "/", "/", "", true},
                    SplitCase{"unixInRoot", UnixPaths, "/x", "/", "x", true},
                    SplitCase{"unixEnding", UnixPaths, "/b/", "/b", "", true},
                    SplitCase{"unixDrive", UnixPaths, "C:\\x", "", "C:\\x", false},
                    SplitCase{"unixColon", UnixPaths, "C:x", "", "C:x", false},
                    SplitCase{"windowsName", WindowsPaths, "x", "", "x", false},
                    SplitCase{"windowsRelative", WindowsPaths, "b\\x", "b", "x", false},
                    SplitCase{"windowsAbsolute", WindowsPaths, "C:\\b\\x", "C:\\b", "x", true},
                    SplitCase{"windowsInRoot", WindowsPaths, "C:\\x", "C:\\", "x", true},
                    SplitCase{"windowsOfDrive", WindowsPaths, "C:x", "C:", "x", false},
                    SplitCase{"windowsDrive", WindowsPaths, "C:", "C:", "", false},
                    SplitCase{"windowsNoDrive", WindowsPaths, "\\x", "\\", "x", true},
                    SplitCase{"windowsServer", WindowsPaths, "\\\\s\\b\\x", "\\\\s\\b", "x", true},
                    SplitCase{"windowsOneLetterFolder", WindowsPaths, "b\\c", "b", "c", false},
                    SplitCase{"windowsSlash", WindowsPaths, "/b/x", "", "/b/x", false}),
    [](const auto& row) { return row.param.name; });

} // namespace
} // namespace ls
