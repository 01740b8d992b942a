// Every command of lsbook on a file system whose calls fail in turn, and on a full output.

#include "FaultRow.h"
#include "base/FileError.h"
#include "cli/CliEnvironment.h"
#include "cli/RunLsbook.h"
#include "support/Json.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>
#include <streambuf>

namespace ls {
namespace {

using test::Disk;
using test::MemoryFileSystem;
using test::Outcome;
using Strings = std::vector<std::string>;

struct CommandRow
{
    std::string name;
    Strings arguments;
    Disk files = {};
};

// An output that takes `room` bytes.
class FullBuffer : public std::streambuf
{
public:
    explicit FullBuffer(std::size_t room) : m_room(room) {}

    [[nodiscard]] const std::string& Text() const { return m_text; }

protected:
    int_type overflow(int_type c) override
    {
        const char byte = traits_type::to_char_type(c);
        return xsputn(&byte, 1) == 1 ? c : traits_type::eof();
    }
    std::streamsize xsputn(const char* bytes, std::streamsize count) override
    {
        const std::size_t taken = std::min(m_room - m_text.size(), static_cast<std::size_t>(count));
        m_text.append(bytes, taken);
        return static_cast<std::streamsize>(taken);
    }

private:
    std::size_t m_room;
    std::string m_text;
};

// One run of a command in which call number `failAt` fails; 0 for none.
struct CommandRun
{
    CommandRun(const CommandRow& row, bool json, int failAt, int number, bool forGood = false,
               std::size_t room = std::string::npos)
        : buffer(room)
    {
        files["/work/Book.IDA"] = test::DeskBook();
        for (const auto& [name, bytes] : row.files) {
            files["/work/" + name] = bytes;
        }
        before = FilesOf(files, {"/work"});
        files.fail = [this, failAt, number, forGood](const std::string& operation) {
            ++calls;
            if (calls == failAt) {
                outcome.call = operation;
            }
            return calls == failAt || (forGood && failAt > 0 && calls > failAt) ? number : 0;
        };
        Strings arguments = row.arguments;
        if (json) {
            arguments.emplace_back("--json");
        }
        std::istringstream in;
        std::ostream stream(&buffer);
        std::ostringstream errors;
        test::RecordingProcesses processes;
        CliEnvironment environment{in, stream, errors, files, processes, UnixPaths, false, false, false, 80};
        status = RunLsbook(arguments, environment);
        out = buffer.Text();
        outcome.told = errors.str();
        files.fail = nullptr;
        after = FilesOf(files, {"/work"});
    }

    MemoryFileSystem files;
    FullBuffer buffer;
    int calls = 0;
    int status = 0;
    std::string out;
    Outcome outcome;
    Disk before;
    Disk after;
};

// Such as "status 3, no output".
std::string StateOf(const CommandRun& run, const CommandRun& good)
{
    const std::string state = "status " + std::to_string(run.status);
    if (run.out.empty()) {
        return state + ", no output";
    }
    const bool part = good.out.starts_with(run.out);
    return state + (run.out == good.out ? ", the output" : part ? ", a part of it" : ", another output");
}

std::vector<Outcome> OutcomesOf(const CommandRow& row, int number)
{
    std::vector<Outcome> outcomes;
    CommandRun good(row, false, 0, number);
    for (int failAt = 1; failAt <= good.calls; ++failAt) {
        CommandRun run(row, false, failAt, number);
        run.outcome.left = StateOf(run, good);
        run.outcome.disk = test::Changes(run.before, run.after, good.after);
        outcomes.push_back(run.outcome);
    }
    good.outcome.left = StateOf(good, good);
    good.outcome.disk = test::Changes(good.before, good.after, good.after);
    outcomes.push_back(good.outcome);
    return outcomes;
}

class LsbookFaults : public testing::TestWithParam<CommandRow>
{
};

TEST_P(LsbookFaults, eachCallFailing_comesToWhatTheTableSays)
{
    for (const int number : {error::DeviceIo, error::DiskFull, error::PermissionDenied}) {
        SCOPED_TRACE(number);
        const std::string expected = test::ReadTable("lsbook.txt", GetParam().name);
        EXPECT_NE(expected, "") << "the table has no such row";
        EXPECT_EQ(test::TableText(OutcomesOf(GetParam(), number)), test::WithError(expected, number));
    }
}

// The exit status reports every failure, and each file under its final name is whole. This holds for JSON
// too, and if the disk fails for good.
TEST_P(LsbookFaults, eachCallFailing_isTheStatusAndLeavesNoHalfFile)
{
    for (const bool json : {false, true}) {
        for (const bool forGood : {false, true}) {
            const CommandRun good(GetParam(), json, 0, error::DeviceIo);
            ASSERT_GT(good.calls, 0);
            ASSERT_EQ(good.status, 0) << good.outcome.told;
            for (int failAt = 1; failAt <= good.calls; ++failAt) {
                const CommandRun run(GetParam(), json, failAt, error::DeviceIo, forGood);
                SCOPED_TRACE(run.outcome.call + (json ? " json" : "") + (forGood ? " for good" : ""));
                EXPECT_EQ(run.status, 3);
                EXPECT_NE(run.outcome.told, "");
                const std::string disk = test::Changes(run.before, run.after, good.after);
                EXPECT_EQ(disk.find("Book.IDA"), std::string::npos) << disk;
                const std::size_t cut = disk.find(" cut");
                EXPECT_TRUE(cut == std::string::npos || disk.substr(0, cut).ends_with(".part") ||
                            disk.substr(0, cut).ends_with(".new"))
                    << disk;
                if (json && !run.out.empty()) {
                    EXPECT_NE(test::Json::Parse(run.out).GetKind(), test::Json::Kind::Null);
                }
            }
        }
    }
}

TEST_P(LsbookFaults, fullOutput_isToldAndTheStatus)
{
    for (const bool json : {false, true}) {
        const CommandRun good(GetParam(), json, 0, 0);
        for (const std::size_t part : {0U, 1U, 50U, 99U}) {
            const std::size_t room = good.out.size() * part / 100;
            const CommandRun run(GetParam(), json, 0, 0, false, room);
            if (good.out.empty()) {
                EXPECT_EQ(run.status, 0);
                continue;
            }
            EXPECT_EQ(run.status, 3) << room;
            EXPECT_TRUE(run.outcome.told.ends_with("lsbook: standard output cannot be written\n")) << room;
        }
    }
}

const std::string GoodBook =
    "LODESTAR BOOK V5.3\r\n[A]\r\n<IXML>\r\n<LOGIC>\r\nTARGET R\r\nR(1)=X(1)\r\n"
    "R(2)=X(2)\r\n</LOGIC>\r\n<DEFINITIONS>\r\n<Q ID=R></Q>\r\n<Q ID=X>x?</Q>\r\n"
    "<AV ID=R(1)>One.</AV>\r\n<AV ID=R(2)>Two.</AV>\r\n</DEFINITIONS>\r\n</IXML>\r\n";
const Disk Older = {{"Out", "older"}};
const Disk Notes = {{"Notes.txt", "caf\xC3\xA9\n" + std::string(70000, 'x') + "\n"}};
const Disk NotesAndOlder = {{"Notes.txt", "caf\xC3\xA9\n"}, {"Out", "older"}};
const Disk Answers = {{"Answers.json", "[[\"1\", \"1\"]]"}};

const CommandRow Rows[] = {
    {"info", {"info", "Book.IDA"}},
    {"infoNameInAnotherCase", {"info", "book.ida"}},
    {"topics", {"topics", "Book.IDA"}},
    {"xrefs", {"xrefs", "Book.IDA"}},
    {"xrefsOfTopic", {"xrefs", "Book.IDA", "B"}},
    {"show", {"show", "Book.IDA", "B"}},
    {"showRuns", {"show", "Book.IDA", "B", "--runs"}},
    {"showPlain", {"show", "Notes.txt", "--plain"}, Notes},
    {"text", {"text", "Book.IDA", "B"}},
    {"textOfLogic", {"text", "Book.IDA", "Ask", "--logic"}},
    {"textOfPlainFile", {"text", "Notes.txt", "--plain"}, Notes},
    {"export", {"export", "Book.IDA", "B"}},
    {"exportToFile", {"export", "Book.IDA", "B", "-o", "Out"}},
    {"exportOverFile", {"export", "Book.IDA", "B", "-o", "Out", "--force"}, Older},
    {"pages", {"pages", "Book.IDA", "B"}},
    {"pagesPlain", {"pages", "Notes.txt", "--plain"}, Notes},
    {"advise", {"advise", "Book.IDA", "Ask", "--answers", "1,1"}},
    {"adviseAnswersFile", {"advise", "Book.IDA", "Ask", "--answers-json", "Answers.json"}, Answers},
    {"adviseExplore", {"advise", "Book.IDA", "Ask", "--explore"}},
    {"save", {"save", "Book.IDA", "Out"}},
    {"saveOver", {"save", "Book.IDA", "Out", "--force"}, Older},
    {"convert", {"convert", "Notes.txt", "Out"}, Notes},
    {"convertOver", {"convert", "Notes.txt", "Out", "--force"}, NotesAndOlder},
    {"check", {"check", "Good.IDA"}, {{"Good.IDA", GoodBook}}},
};

INSTANTIATE_TEST_SUITE_P(Commands, LsbookFaults, testing::ValuesIn(Rows),
                         [](const auto& row) { return row.param.name; });

} // namespace
} // namespace ls
