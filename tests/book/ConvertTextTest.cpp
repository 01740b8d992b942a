#include "book/ConvertText.h"

#include "base/Progress.h"
#include "support/MemoryFileSystem.h"
#include "support/RowName.h"

#include <gtest/gtest.h>

#include <vector>

namespace ls {
namespace {

struct ConvertTextTest : testing::Test
{
    TextFindings Find(const std::string& bytes)
    {
        files["/work/in"] = bytes;
        EXPECT_TRUE(files.OpenForReading("/work/in", Sharing::Shared, input).Ok());
        TextFindings findings;
        EXPECT_TRUE(FindUnconvertible(*input, nullptr, findings).Ok());
        return findings;
    }

    std::string Convert(const std::string& bytes)
    {
        const TextFindings findings = Find(bytes);
        EXPECT_TRUE(findings.Convertible());
        std::unique_ptr<OutputFile> output;
        EXPECT_TRUE(files.CreateNew("/work/out", output).Ok());
        EXPECT_TRUE(ConvertText(*input, findings, *output, nullptr, lines).Ok());
        EXPECT_TRUE(output->Finish().Ok());
        return files["/work/out"];
    }

    test::MemoryFileSystem files;
    std::unique_ptr<BookFile> input;
    ConvertedLines lines;
};

struct TextCase
{
    const char* name;
    std::string from;
    std::string to;
    std::int64_t lines;
    std::int64_t converted;
};

struct ConvertTextCaseTest : ConvertTextTest, testing::WithParamInterface<TextCase>
{
};

TEST_P(ConvertTextCaseTest, text_getsCrLfAndTheBytesOfTheCodePage)
{
    const TextCase& row = GetParam();
    EXPECT_EQ(Convert(row.from), row.to);
    EXPECT_EQ(lines, (ConvertedLines{row.lines, row.converted}));
}

const TextCase TextCases[] = {
    {"empty", "", "", 0, 0},
    {"noLineEnd", "a", "a", 1, 0},
    {"crLf", "a\r\nb\r\n", "a\r\nb\r\n", 2, 0},
    {"lf", "a\nb\n", "a\r\nb\r\n", 2, 2},
    {"lfAndAnEndWithout", "a\nb", "a\r\nb", 2, 1},
    {"cr", "a\rb\r", "a\r\nb\r\n", 2, 2},
    {"mixed", "a\nb\r\nc\rd\r\n", "a\r\nb\r\nc\r\nd\r\n", 4, 2},
    {"crCrLf", "a\r\r\nb", "a\r\n\r\nb", 3, 1},
    {"lfCr", "a\n\rb", "a\r\n\r\nb", 3, 2},
    {"emptyLines", "\n\r\n\n", "\r\n\r\n\r\n", 3, 2},
    {"utf8", "caf\xC3\xA9\r\nx\r\n", "caf\xE9\r\nx\r\n", 2, 1},
    {"utf8OfTheHighControls", "\xE2\x82\xAC\xE2\x80\x9C\r\n", "\x80\x93\r\n", 1, 1},
    {"utf8OfAnUnassignedByte", "\xC2\x81\r\n", "\x81\r\n", 1, 1},
    {"utf8AndLf", "\xC3\xA9\nb\n", "\xE9\r\nb\r\n", 2, 2},
    {"utf8Mark", "\xEF\xBB\xBFLODESTAR\r\na\r\n", "LODESTAR\r\na\r\n", 2, 1},
    {"utf8MarkAlone", "\xEF\xBB\xBF", "", 0, 0},
    {"codePage", "caf\xE9\nb\r\n", "caf\xE9\r\nb\r\n", 2, 1},
    {"codePageThatBeginsLikeUtf8", "\xC3\xA9\xE9\r\n", "\xC3\xA9\xE9\r\n", 1, 0},
    {"codePageThatEndsLikeUtf8", "a\xC3", "a\xC3", 1, 0},
    {"overlong", "\xC0\x8A\r\n", "\xC0\x8A\r\n", 1, 0},
    {"nul", std::string("a\0b\n", 4), std::string("a\0b\r\n", 5), 1, 1},
};

INSTANTIATE_TEST_SUITE_P(Texts, ConvertTextCaseTest, testing::ValuesIn(TextCases), test::RowName());

// The end of a block may cut a character or a line end. The result is the same as for one whole piece.
TEST_F(ConvertTextTest, characterAndLineEndAcrossBlocks_areKeptTogether)
{
    constexpr std::size_t Block = 256 * 1024;
    for (std::size_t before = Block - 3; before <= Block; ++before) {
        SCOPED_TRACE(before);
        files.RemoveIfPossible("/work/out");
        EXPECT_EQ(Convert(std::string(before, 'a') + "\xE2\x82\xAC\r\nb"),
                  std::string(before, 'a') + "\x80\r\nb");
        EXPECT_EQ(lines, (ConvertedLines{2, 1}));
        files.RemoveIfPossible("/work/out");
        EXPECT_EQ(Convert(std::string(before, 'a') + "\r\n"), std::string(before, 'a') + "\r\n");
        EXPECT_EQ(lines, (ConvertedLines{1, 0}));
    }
}

TEST_F(ConvertTextTest, charactersWithoutAByte_areAllFoundWithTheirLines)
{
    const TextFindings findings = Find("\xE2\x86\x92\r\n\xD0\x96 \xE2\x86\x92\xE2\x86\x92\n\rx\xE2\x86\x92");
    EXPECT_FALSE(findings.Convertible());
    EXPECT_EQ(findings.noPlace, (std::vector<NoPlace>{{0x2192, {1, 2, 4}, 0}, {0x416, {2}, 0}}));
}

TEST_F(ConvertTextTest, characterInMoreThanTenLines_theOthersAreCounted)
{
    std::string text;
    for (int line = 1; line <= 13; ++line) {
        text += "\xE2\x86\x92\n";
    }
    const TextFindings findings = Find(text);
    ASSERT_EQ(findings.noPlace.size(), 1U);
    EXPECT_EQ(findings.noPlace[0].lines, (std::vector<std::int64_t>{1, 2, 3, 4, 5, 6, 7, 8, 9, 10}));
    EXPECT_EQ(findings.noPlace[0].moreLines, 3);
}

TEST_F(ConvertTextTest, replacementCharacterAndLaterMark_haveNoByte)
{
    EXPECT_EQ(Find("a\xEF\xBF\xBD\xEF\xBB\xBF").noPlace,
              (std::vector<NoPlace>{{0xFFFD, {1}, 0}, {0xFEFF, {1}, 0}}));
}

TEST_F(ConvertTextTest, coding_isToldFromTheBytes)
{
    EXPECT_EQ(Find("abc\n").coding, TextCoding::Ascii);
    EXPECT_EQ(Find("\xC3\xA9").coding, TextCoding::Utf8);
    EXPECT_EQ(Find("\xE2\x86\x92\xE9").coding, TextCoding::CodePage);
    EXPECT_TRUE(Find("\xE2\x86\x92\xE9").noPlace.empty());
    EXPECT_EQ(Find("\xFF\xFE"
                   "a")
                  .coding,
              TextCoding::Utf16);
    EXPECT_EQ(Find("\xFE\xFF").coding, TextCoding::Utf16);
}

TEST_F(ConvertTextTest, markOfUtf8BeforeOtherBytes_namesTheLine)
{
    const TextFindings findings = Find("\xEF\xBB\xBF"
                                       "a\nb\xE9\n");
    EXPECT_EQ(findings.coding, TextCoding::BadUtf8);
    EXPECT_EQ(findings.badLine, 2);
    EXPECT_FALSE(findings.Convertible());
}

class RecordingProgress : public Progress
{
public:
    bool Step(std::int64_t done, std::int64_t total) override
    {
        percents.push_back(static_cast<int>(done * 100 / total));
        return true;
    }
    std::vector<int> percents;
};

TEST_F(ConvertTextTest, progressOfALongText_goesOnceFromStartToEnd)
{
    RecordingProgress progress;
    TextFindings findings = Find(std::string(600 * 1024, 'a'));
    std::unique_ptr<OutputFile> output;
    ASSERT_TRUE(files.CreateNew("/work/out", output).Ok());
    ASSERT_TRUE(FindUnconvertible(*input, &progress, findings).Ok());
    ASSERT_TRUE(ConvertText(*input, findings, *output, &progress, lines).Ok());
    EXPECT_EQ(progress.percents, (std::vector<int>{21, 42, 50, 50, 71, 92, 100, 100}));
}

} // namespace
} // namespace ls
