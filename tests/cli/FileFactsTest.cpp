#include "cli/FileFacts.h"

#include "support/MemoryFileSystem.h"

#include <gtest/gtest.h>

namespace ls {
namespace {

FileFacts FactsOf(const std::string& bytes)
{
    test::MemoryFileSystem files;
    files["/f"] = bytes;
    FileFacts facts;
    EXPECT_EQ(GatherFacts(files, "/f", nullptr, facts), FileError{});
    EXPECT_EQ(facts.size, static_cast<FilePos>(bytes.size()));
    return facts;
}

struct LineEndsRow
{
    const char* name;
    std::string bytes;
    const char* expected;
};

TEST(FileFacts, lineEnds_areNamedByKind)
{
    const LineEndsRow rows[] = {
        {"emptyFile", "", "none"},
        {"noLineEnd", "abc", "none"},
        {"dos", "a\r\nb\r\n", "CR LF"},
        {"unix", "a\nb\n", "LF"},
        {"oldMac", "a\rb\r", "CR"},
        {"allThree", "a\r\nb\nc\r", "mixed (1 CR LF, 1 CR, 1 LF)"},
        {"twoCrAndALf", "\r\r\n", "mixed (1 CR LF, 1 CR)"},
        {"lfThenCr", "\n\r", "mixed (1 CR, 1 LF)"},
    };
    for (const LineEndsRow& row : rows) {
        EXPECT_EQ(LineEndsText(FactsOf(row.bytes)), row.expected) << row.name;
    }
}

TEST(FileFacts, lineEndAcrossTheBorderOfTwoBlocks_isOne)
{
    const std::string bytes = std::string(1024 * 1024 - 1, 'x') + "\r\n";
    EXPECT_EQ(LineEndsText(FactsOf(bytes)), "CR LF");
}

TEST(FileFacts, utf8AcrossTheBorderOfTwoBlocks_isUtf8)
{
    const std::string bytes = std::string(1024 * 1024 - 1, 'x') + "\xC3\xA9";
    EXPECT_TRUE(FactsOf(bytes).utf8);
}

TEST(FileFacts, unassignedBytes_areCountedEach)
{
    const FileFacts facts = FactsOf("\x81\x8D\x8D\x8F\x90\x9D\x80");
    EXPECT_EQ(facts.unassigned, (std::array<std::int64_t, 5>{1, 2, 1, 1, 1}));
    EXPECT_FALSE(facts.ascii);
    EXPECT_FALSE(facts.utf8);
}

struct Utf8Row
{
    const char* name;
    std::string bytes;
    bool utf8;
};

TEST(FileFacts, utf8_isToldFromOtherBytes)
{
    const Utf8Row rows[] = {
        {"asciiOnly", "abc", false},
        {"twoBytes", "\xC3\xA9", true},
        {"threeBytes", "\xE2\x82\xAC", true},
        {"fourBytes", "\xF0\x9F\x98\x80", true},
        {"codePageLetter", "Caf\xE9 au", false},
        {"cutAtTheEnd", "a\xC3", false},
        {"overlongTwo", "\xC0\xAF", false},
        {"overlongThree", "\xE0\x80\xAF", false},
        {"overlongFour", "\xF0\x80\x80\xAF", false},
        {"halfOfAPair", "\xED\xA0\x80", false},
        {"beyondUnicode", "\xF4\x90\x80\x80", false},
        {"loneContinuation", "\x80", false},
        {"oneOfEach", "\xC3\xA9\xE9", false},
    };
    for (const Utf8Row& row : rows) {
        EXPECT_EQ(FactsOf(row.bytes).utf8, row.utf8) << row.name;
    }
}

TEST(FileFacts, nulBytes_areCounted)
{
    EXPECT_EQ(FactsOf(std::string("a\0b\0", 4)).nul, 2);
}

} // namespace
} // namespace ls
