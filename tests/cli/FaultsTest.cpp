// Every command on bad books, and on files that are no books.

#include "CliFixture.h"

#include <random>

namespace ls {
namespace {

using Strings = std::vector<std::string>;

const std::string Declined = "question: The file you opened is not a Lodestar Book or Advice file. Do you "
                             "want to view it as a single topic text file?\n";
const std::string NoBook = Declined + "lsbook: --plain takes it as plain text.\n";

// Each command, run on the file "/work/x".
const std::vector<Strings> Commands = {
    {"info", "x"},      {"topics", "x"},    {"xrefs", "x"},       {"xrefs", "x", "A"},
    {"show", "x", "A"}, {"text", "x", "A"}, {"export", "x", "A"}, {"pages", "x", "A"},
};

class Faults : public test::CliFixture
{
protected:
    // All commands give that status and message, as plain text and as JSON. The JSON parses.
    void ExpectAll(int status, const std::string& message)
    {
        for (Strings command : Commands) {
            SCOPED_TRACE(testing::PrintToString(command));
            // A plain text file has no topic to export, so the message of export does not offer --plain.
            const bool noHint = message == NoBook && command.front() == "export";
            const std::string& expected = noHint ? Declined : message;
            EXPECT_EQ(Run(command), status);
            EXPECT_EQ(err, expected);
            command.emplace_back("--json");
            EXPECT_EQ(Run(command), status);
            EXPECT_EQ(err, expected);
            EXPECT_EQ(test::Json::Parse(out)["messages"].Items().size(), 1U);
        }
    }
};

TEST_F(Faults, missingFile_isError53)
{
    ExpectAll(3, "critical: Error opening <<x>> with code 53: File not found\n");
}

TEST_F(Faults, fileThatIsNoBook_isDeclined)
{
    for (const std::string& bytes :
         {std::string(), std::string(1, '\0'), std::string("\r"), std::string("\n"), std::string("["),
          std::string("<"), std::string("\x1A"), std::string("\xFF"), std::string(5000, '\0'),
          std::string(3'000'000, '[')}) {
        files["/work/x"] = bytes;
        ExpectAll(1, NoBook);
    }
}

TEST_F(Faults, plainFilesOfAnyKind_areTakenByEveryCommand)
{
    const Strings contents = {
        "",  std::string(1, '\0'),  std::string(5000, '\0'), std::string(1'000'000, 'x'), "\r", "\n",
        "<", "[EOF]\r\n<INDEX>\r\n"};
    for (const std::string& content : contents) {
        files["/work/x"] = content;
        for (const std::string command : {"info", "topics", "xrefs", "show", "text", "pages"}) {
            SCOPED_TRACE(command + " of " + std::to_string(content.size()) + " bytes");
            EXPECT_EQ(Run({command, "x", "--plain", "--json"}), 0);
            EXPECT_EQ(test::Json::Parse(out)["messages"].Items().size(), 1U);
            EXPECT_EQ(Run({command, "x", "--plain"}), 0);
        }
    }
}

TEST_F(Faults, bookOfNulBytesAndAHugeLine_isRead)
{
    files["/work/x"] =
        "LODESTAR BOOK V5.3\r\n[A]\r\n" + std::string(2'000'000, 'x') + std::string(3, '\0') + "\r\n";
    EXPECT_EQ(OutJson({"text", "x", "A"})["text"].String().size(), 2'000'005U);
    EXPECT_EQ(OutJson({"show", "x", "A", "--width", "32767"})["count"].Int(), 62);
    EXPECT_EQ(OutJson({"info", "x"})["topic_count"].Int(), 1);
}

// A book with some bytes changed, inserted and removed. The same seed gives the same book.
std::string Damaged(std::uint32_t seed)
{
    std::string book = test::SmallBook();
    std::minstd_rand random(seed);
    const std::string bytes("<>[]/&;=\"\r\n \t\\\0\x81\xFF", 17);
    for (int i = 0; i < 12; ++i) {
        // The first 18 bytes stay, so that most of the files still count as books.
        const std::size_t at = 18 + random() % (book.size() - 18);
        const std::size_t kind = random() % 4;
        if (kind == 0) {
            book.erase(at, random() % 5);
        } else if (kind == 1) {
            book.insert(at, 1, bytes[random() % bytes.size()]);
        } else if (kind == 2) {
            book.insert(at, book.substr(18 + random() % (at - 17), random() % 60));
        } else {
            book[at] = bytes[random() % bytes.size()];
        }
    }
    return book;
}

TEST_F(Faults, damagedBooks_endInGoodOrderWithJsonThatParses)
{
    int opened = 0;
    for (std::uint32_t seed = 1; seed <= 400; ++seed) {
        SCOPED_TRACE(seed);
        files["/work/x"] = Damaged(seed);
        for (const Strings& command : {Strings{"info", "x"},
                                       {"topics", "x"},
                                       {"xrefs", "x"},
                                       {"xrefs", "x", "--number", "1"},
                                       {"show", "x", "--number", "2", "--width", "11"},
                                       {"show", "x", "--number", "1", "--runs"},
                                       {"text", "x", "--number", "1"}}) {
            Strings withJson = command;
            withJson.emplace_back("--json");
            const int status = Run(withJson);
            EXPECT_TRUE(status == 0 || (status == 1 && !err.empty())) << status << err;
            EXPECT_EQ(test::Json::Parse(out).GetKind(), test::Json::Kind::Object);
            EXPECT_EQ(Run(command), status) << "JSON has the same exit status";
            opened += status == 0 ? 1 : 0;
        }
    }
    EXPECT_GT(opened, 1000) << "most books must open, or the test proves little";
}

TEST_F(Faults, pathThatIsNoUtf8_isShownSafely)
{
    EXPECT_EQ(Run({"info", "x\xFF"}), 3);
    EXPECT_EQ(err, "critical: Error opening <<x\xEF\xBF\xBD>> with code 53: File not found\n");
}

} // namespace
} // namespace ls
