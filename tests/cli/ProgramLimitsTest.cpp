// The built program at its limits, with real files. Counts end at 32,767. Memory or the system limits sizes.

#include "ProgramFixture.h"

#include "support/Json.h"
#include "support/LimitBooks.h"
#include "support/TestSeams.h"

#include <algorithm>
#include <filesystem>
#include <fstream>

namespace ls {
namespace {

constexpr const char* Overflow = "critical: Overflow\n";

// A program that takes far more memory than it should fails, before it fills the machine's memory.
constexpr const char* OneGibibyte = "ulimit -v 1048576; ";

using test::BookHeader;
using test::BookOfMany;
using test::Limit;

class ProgramLimits : public test::ProgramFixture
{
protected:
    // Writes a book: `before`, a hole of zeros, and `behind`, which begins at byte `size`. The hole takes no
    // room on the disk.
    void WriteWithHole(const std::string& before, std::uintmax_t size, const std::string& behind)
    {
        const std::string path = scratch.Write("a.IDA", BookHeader + before);
        std::filesystem::resize_file(path, size);
        std::ofstream(path, std::ios::binary | std::ios::app) << behind;
    }

    // The number of lines in the last command's output.
    [[nodiscard]] std::ptrdiff_t Lines() const { return std::count(out.begin(), out.end(), '\n'); }

    // The last line of the last command's output.
    [[nodiscard]] std::string LastLine() const
    {
        return out.empty() ? out : out.substr(out.rfind('\n', out.size() - 2) + 1);
    }
};

TEST_F(ProgramLimits, allTopicsThatCanBeCounted_areListedShownAndSaved)
{
    scratch.Write("a.IDA", BookOfMany(Limit, "", test::NthTopic));
    EXPECT_EQ(Run("topics a.IDA"), 0);
    EXPECT_EQ(Lines(), Limit);
    EXPECT_EQ(LastLine(), "32767. T32767\n");
    EXPECT_EQ(Run("show a.IDA --number 32767"), 0);
    EXPECT_EQ(out, "body 32767\n");
    EXPECT_EQ(Run("show a.IDA T32767"), 0);
    EXPECT_EQ(out, "body 32767\n");
    EXPECT_EQ(Run("check a.IDA"), 0);
    EXPECT_EQ(Run("save a.IDA b.IDA"), 0);
    EXPECT_EQ(Run("topics b.IDA"), 0);
    EXPECT_EQ(LastLine(), "32767. T32767\n");
}

TEST_F(ProgramLimits, oneTopicMore_isRefusedByEveryCommand)
{
    scratch.Write("a.IDA", BookOfMany(Limit + 1, "", test::NthTopic));
    for (const char* command : {"info a.IDA", "topics a.IDA", "xrefs a.IDA", "show a.IDA T1", "check a.IDA",
                                "text a.IDA --number 32767", "save a.IDA b.IDA"}) {
        SCOPED_TRACE(command);
        EXPECT_EQ(Run(command), 1);
        EXPECT_EQ(out, "");
        EXPECT_EQ(err, Overflow);
    }
    EXPECT_FALSE(scratch.Has("b.IDA")) << "saving a cut table would lose topics";
}

TEST_F(ProgramLimits, allReferencesThatCanBeCounted_areTold)
{
    scratch.Write("a.IDA", BookOfMany(Limit, "[A]\r\n", test::NthReference, "[B]\r\nb\r\n"));
    EXPECT_EQ(Run("info a.IDA --json"), 0);
    EXPECT_EQ(test::Json::Parse(out)["xref_count"].Int(), Limit);
    EXPECT_EQ(Run("xrefs a.IDA --json"), 0);
    const test::Json xrefs = test::Json::Parse(out)["xrefs"];
    ASSERT_EQ(xrefs.Items().size(), static_cast<std::size_t>(Limit));
    EXPECT_EQ(xrefs.Items().back()["text"].String(), "note 32767");
}

TEST_F(ProgramLimits, oneReferenceMore_isRefused)
{
    scratch.Write("a.IDA", BookOfMany(Limit + 1, "[A]\r\n", test::NthReference, "[B]\r\nb\r\n"));
    for (const char* command : {"info a.IDA", "xrefs a.IDA", "xrefs a.IDA B", "show a.IDA B"}) {
        SCOPED_TRACE(command);
        EXPECT_EQ(Run(command), 1);
        EXPECT_EQ(out, "");
        EXPECT_EQ(err, Overflow);
    }
}

std::string Line(int number)
{
    return "line " + std::to_string(number) + "\r\n";
}

TEST_F(ProgramLimits, allLinesThatCanBeCounted_areShown)
{
    scratch.Write("a.IDA", BookOfMany(Limit, "[A]\r\n", Line, "[B]\r\nb\r\n"));
    EXPECT_EQ(Run("show a.IDA A"), 0);
    EXPECT_EQ(err, "");
    EXPECT_EQ(Lines(), Limit);
    EXPECT_EQ(LastLine(), "line 32767\n");
}

TEST_F(ProgramLimits, oneLineMore_isCutFromTheDisplayAndKeptInTheText)
{
    scratch.Write("a.IDA", BookOfMany(Limit + 1, "[A]\r\n", Line, "[B]\r\nb\r\n"));
    EXPECT_EQ(Run("show a.IDA A"), 1);
    EXPECT_EQ(err, Overflow);
    EXPECT_EQ(Lines(), Limit);
    EXPECT_EQ(LastLine(), "line 32767\n");
    EXPECT_EQ(Run("text a.IDA A"), 0);
    EXPECT_EQ(err, "");
    EXPECT_EQ(LastLine(), "line 32768\n");
    EXPECT_EQ(Run("export a.IDA A"), 0);
    EXPECT_NE(out.find("line 32768"), std::string::npos);
    EXPECT_EQ(Run("save a.IDA b.IDA"), 0);
    EXPECT_EQ(scratch.Read("b.IDA"), scratch.Read("a.IDA"));
}

TEST_F(ProgramLimits, allRulesThatCanBeCounted_areAsked)
{
    scratch.Write("a.IDA", BookOfMany(Limit, test::RulesStart, test::NthRule, test::RulesEnd));
    EXPECT_EQ(Run("advise a.IDA A --answers 32767"), 0);
    EXPECT_EQ(err, "");
    EXPECT_EQ(LastLine(), "The last.\n");
}

TEST_F(ProgramLimits, oneRuleMore_isNoAdvisor)
{
    scratch.Write("a.IDA", BookOfMany(Limit + 1, test::RulesStart, test::NthRule, test::RulesEnd));
    EXPECT_EQ(Run("advise a.IDA A --answers 32767"), 1);
    EXPECT_EQ(err, Overflow);
    EXPECT_EQ(LastLine(), "Failure loading logic section for topic <<[A]>>; I can't proceed.\n");
}

TEST_F(ProgramLimits, bookPastFourGibibytes_isReadBehindThem)
{
    WriteWithHole("[A]\r\na\r\n[Hole]\r\n", std::uintmax_t{1} << 32, "\r\n[B]\r\nbehind\r\n");
    EXPECT_EQ(Run("topics a.IDA --json", OneGibibyte), 0);
    const test::Json topics = test::Json::Parse(out)["topics"];
    ASSERT_EQ(topics.Items().size(), 3U);
    EXPECT_EQ(topics.Items()[2]["title"].String(), "B");
    EXPECT_NE(out.find("\"pos\": 4294967299"), std::string::npos) << out;
    EXPECT_EQ(Run("show a.IDA B", OneGibibyte), 0);
    EXPECT_EQ(out, "behind\n");
}

TEST_F(ProgramLimits, lineThatDoesNotFitIntoMemory_isTold)
{
    WriteWithHole("[A]\r\na\r\n[Hole]\r\n", std::uintmax_t{1} << 32, "\r\n[B]\r\nb\r\n");
    EXPECT_EQ(Run("export a.IDA Hole", OneGibibyte), 3);
    EXPECT_EQ(err, "critical: Out of memory\n");
}

TEST_F(ProgramLimits, lineThatDoesNotFitIntoMemory_isShownUntilTheLinesEnd)
{
    WriteWithHole("[A]\r\na\r\n[Hole]\r\n", std::uintmax_t{1} << 32, "\r\n[B]\r\nb\r\n");
    EXPECT_EQ(Run("show a.IDA Hole", OneGibibyte), 1);
    EXPECT_TRUE(err == Overflow) << err;
    EXPECT_EQ(Lines(), Limit);
}

TEST_F(ProgramLimits, lineOfOneGibibyte_isShownUntilTheLinesEnd)
{
    WriteWithHole("[A]\r\nbefore\r\n", std::uintmax_t{1} << 30, "\r\nafter\r\n[B]\r\nb\r\n");
    EXPECT_EQ(Run("show a.IDA A --width 20"), 1);
    EXPECT_EQ(err, Overflow);
    EXPECT_EQ(Lines(), Limit);
    EXPECT_EQ(out.substr(0, 7), "before\n");
    EXPECT_EQ(Run("show a.IDA B"), 0);
    EXPECT_EQ(out, "b\n");
}

TEST_F(ProgramLimits, lineOfOneGibibyte_isInMemoryOnceAndSavedWithoutBeingThere)
{
    // Enough for the line (1 GiB), the program, its libraries and a little work.
    constexpr const char* OnceAndABit = "ulimit -v 1179648; ";
    constexpr const char* NotOnce = "ulimit -v 131072; ";
    WriteWithHole("[A]\r\nbefore\r\n", std::uintmax_t{1} << 30, "\r\nafter\r\n[B]\r\nb\r\n");
    EXPECT_EQ(Run("show a.IDA A --rows 1", OnceAndABit), 1);
    EXPECT_EQ(out + err, "before\n" + std::string(Overflow));
    EXPECT_EQ(Run("text a.IDA A >text && tail -c 7 text", OnceAndABit), 0);
    EXPECT_EQ(out, "\nafter\n");
    EXPECT_EQ(Run("save a.IDA b.IDA >said && cmp a.IDA b.IDA", NotOnce), 0);
    EXPECT_EQ(out, "");
}

// Without a closing ">" the line cannot break. So it becomes one row, which needs as much memory again.
TEST_F(ProgramLimits, lineThatDoesNotBreak_isShownWhereItFitsIntoMemoryTwice)
{
    // 96 MiB hold the program and the line of 64 MiB, but not its row too. 176 MiB hold all of them.
    constexpr const char* OnceAndABit = "ulimit -v 98304; ";
    constexpr const char* TwiceAndABit = "ulimit -v 180224; ";
    const std::string start = "a < b ";
    constexpr std::size_t size = 64 << 20;
    WriteWithHole("[A]\r\n" + start, size, "\r\n[B]\r\nb\r\n");
    EXPECT_EQ(Run("show a.IDA A", OnceAndABit), 3);
    EXPECT_EQ(out, "");
    EXPECT_EQ(err, "critical: Out of memory\n");
    EXPECT_EQ(Run("show a.IDA B", OnceAndABit), 0);
    EXPECT_EQ(out, "b\n");
    EXPECT_EQ(Run("show a.IDA A", TwiceAndABit), 0);
    EXPECT_EQ(err, "");
    const std::string limited = out;
    EXPECT_EQ(Run("show a.IDA A"), 0);
    EXPECT_EQ(err, "");
    EXPECT_TRUE(limited == out);
    const std::size_t row = size - std::string(BookHeader + std::string("[A]\r\n")).size();
    ASSERT_EQ(out.size(), row + 1);
    EXPECT_EQ(out.substr(0, start.size()), start);
    EXPECT_EQ(out.find_first_not_of('\0', start.size()), row) << "what follows is the hole, then a line end";
}

TEST_F(ProgramLimits, titleOfTenThousandCharacters_isATitle)
{
    const std::string title(10000, 'w');
    scratch.Write("a.IDA",
                  BookHeader + ("[" + title + "]\r\nbody\r\n[B]\r\n<XREF TOPIC=") + title + ">n</XREF>\r\n");
    EXPECT_EQ(Run("topics a.IDA"), 0);
    EXPECT_EQ(out, "1. " + title + "\n2. B\n");
    EXPECT_EQ(Run("show a.IDA " + title), 0);
    EXPECT_EQ(out, "body\n");
    EXPECT_EQ(Run("xrefs a.IDA"), 0);
    EXPECT_EQ(out, "B -> " + title + "\n    n\n");
    EXPECT_EQ(Run("check a.IDA"), 0);
    EXPECT_EQ(Run("show a.IDA " + title + "w"), 1);
    EXPECT_EQ(err, "warning: Topic [" + title + "w] was not found.\n");
    EXPECT_EQ(Run("save a.IDA b.IDA"), 0);
    EXPECT_EQ(scratch.Read("b.IDA"), scratch.Read("a.IDA"));
}

// A folder below the scratch folder whose path has this many bytes.
std::string DeepFolder(const test::ScratchFolder& scratch, std::size_t length)
{
    std::string path = scratch.Path();
    while (path.size() + 2 < length) {
        path += "/" + std::string(std::min<std::size_t>(200, length - path.size() - 1), 'd');
        std::filesystem::create_directory(path);
    }
    return path;
}

TEST_F(ProgramLimits, pathOfFourThousandBytes_isReadAndWritten)
{
    const std::string folder = DeepFolder(scratch, 3994);
    const std::string path = folder + "/a.IDA";
    ASSERT_EQ(path.size(), 4000U);
    std::ofstream(path, std::ios::binary) << test::CrLf({"LODESTAR BOOK V5.3", "[A]", "a"});
    EXPECT_EQ(Run("show '" + path + "' A"), 0);
    EXPECT_EQ(out, "a\n");
    EXPECT_EQ(Run("save '" + path + "' '" + folder + "/b.IDA'"), 0);
    EXPECT_EQ(out, "File saved: 28 bytes\n");
    EXPECT_EQ(Run("show '" + folder + "/b.IDA' A"), 0);
    EXPECT_EQ(Run("export '" + path + "' A -o '" + folder + "/a.htm'"), 0);
    EXPECT_TRUE(std::filesystem::exists(folder + "/a.htm"));
}

TEST_F(ProgramLimits, pathThatTheSystemDoesNotTake_isABadFileName)
{
    const std::string path = scratch.Path() + "/" + std::string(5000, 'x');
    EXPECT_EQ(Run("info '" + path + "'"), 3);
    EXPECT_EQ(err, "critical: Error opening <<" + path + ">> with code 52: Bad file name or number\n");
}

} // namespace
} // namespace ls
