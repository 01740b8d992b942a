#include "CliFixture.h"

#include "support/TestSeams.h"

namespace ls {
namespace {

using Info = test::CliFixture;

constexpr const char* NoBook = "question: The file you opened is not a Lodestar Book or Advice file. Do you "
                               "want to view it as a single topic text file?\n";

TEST_F(Info, book_fieldsForPeople)
{
    files["/work/a.IDA"] = test::SmallBook();
    EXPECT_EQ(Out({"info", "a.IDA"}), "File              a.IDA\n"
                                      "Kind              book, version 5.3\n"
                                      "Author            René\n"
                                      "Copyright         -\n"
                                      "Web address       http://127.0.0.1/\n"
                                      "Post              YES\n"
                                      "Topics            3\n"
                                      "Cross references  3\n"
                                      "Size              363 bytes\n"
                                      "Line ends         CR LF\n"
                                      "Code page         Windows-1252\n");
}

TEST_F(Info, book_jsonInTheOrderOfItsFields)
{
    files["/work/a.IDA"] = test::SmallBook();
    EXPECT_EQ(Out({"info", "a.IDA", "--json"}), "{\n"
                                                "  \"magic\": \"LODESTAR BOOK\",\n"
                                                "  \"version\": 5.3,\n"
                                                "  \"author\": \"René\",\n"
                                                "  \"copyright\": \"\",\n"
                                                "  \"url\": \"http://127.0.0.1/\",\n"
                                                "  \"post\": \"YES\",\n"
                                                "  \"is_book\": true,\n"
                                                "  \"bad_header\": false,\n"
                                                "  \"topic_count\": 3,\n"
                                                "  \"xref_count\": 3,\n"
                                                "  \"book_start_pos\": 73,\n"
                                                "  \"messages\": []\n"
                                                "}\n");
}

TEST_F(Info, badHeader_isToldAndTheRestIsRead)
{
    files["/work/a.IDA"] = "LODESTAR BOOK V5.3 /TITLE=\"x\" /AUTHOR=\"Ann\"\r\n[A]\r\n";
    EXPECT_EQ(Run({"info", "a.IDA", "--json"}), 0);
    const std::string text = "Invalid Lodestar Book header: <<LODESTAR BOOK V5.3 /TITLE=\"x\" "
                             "/AUTHOR=\"Ann\">>.  Some information may not be loaded.";
    EXPECT_EQ(err, "warning: " + text + "\n");
    const test::Json info = test::Json::Parse(out);
    EXPECT_TRUE(info["bad_header"].Bool());
    EXPECT_EQ(info["author"].String(), "Ann");
    EXPECT_EQ(info["topic_count"].Int(), 1);
    ASSERT_EQ(info["messages"].Items().size(), 1U);
    const test::Json& message = info["messages"].Items().front();
    EXPECT_EQ(message["icon"].String(), "warning");
    EXPECT_EQ(message["text"].String(), text);
    EXPECT_EQ(message["reply"].String(), "OK");
}

TEST_F(Info, noBook_isDeclinedAndStillDescribed)
{
    files["/work/a.txt"] = "Hello\n";
    EXPECT_EQ(Run({"info", "a.txt"}), 1);
    EXPECT_EQ(err, std::string(NoBook) + "lsbook: --plain takes it as plain text.\n");
    EXPECT_EQ(out, "File              a.txt\n"
                   "Kind              no book\n"
                   "Size              6 bytes\n"
                   "Line ends         LF\n"
                   "                  a LF alone ends no line of a book: all of it reads as one line\n"
                   "Code page         Windows-1252, ASCII only\n");
}

TEST_F(Info, noBookInJson_tellsTheSafeReply)
{
    files["/work/a.txt"] = "Hello\r\n";
    EXPECT_EQ(Run({"info", "a.txt", "--json"}), 1);
    const test::Json info = test::Json::Parse(out);
    EXPECT_FALSE(info["is_book"].Bool());
    EXPECT_EQ(info["magic"].String(), "");
    EXPECT_EQ(info["version"].Number(), 0);
    ASSERT_EQ(info["messages"].Items().size(), 1U);
    EXPECT_EQ(info["messages"].Items().front()["icon"].String(), "question");
    EXPECT_EQ(info["messages"].Items().front()["reply"].String(), "Cancel");
}

TEST_F(Info, noBookTakenAsPlainText_isDone)
{
    files["/work/a.txt"] = "Hello\r\n";
    EXPECT_EQ(Run({"info", "a.txt", "--plain", "--json"}), 0);
    EXPECT_EQ(err, NoBook);
    const test::Json info = test::Json::Parse(out);
    EXPECT_FALSE(info["is_book"].Bool());
    EXPECT_EQ(info["topic_count"].Int(), 0);
    EXPECT_EQ(info["book_start_pos"].Int(), 8);
    EXPECT_EQ(info["messages"].Items().front()["reply"].String(), "OK");
    EXPECT_EQ(Run({"info", "a.txt", "--plain"}), 0);
    EXPECT_TRUE(out.starts_with("File              a.txt\nKind              no book, taken as plain text\n"))
        << out;
}

TEST_F(Info, codePageNotes_nameBytesAndUtf8)
{
    files["/work/a.IDA"] = "LODESTAR BOOK V5.3\r\n[A]\r\n\x81 \x9D\x9D\r\n";
    EXPECT_NE(Out({"info", "a.IDA"})
                  .find("Code page         Windows-1252\n"
                        "                  bytes without a character (how many): 81 (1), 9D (2)\n"),
              std::string::npos)
        << out;
    files["/work/b.IDA"] = "LODESTAR BOOK V5.3\r\n[A]\r\nCaf\xC3\xA9\r\n";
    EXPECT_NE(
        Out({"info", "b.IDA"})
            .find("                  the text reads as UTF-8: its letters with accents will show wrong\n"),
        std::string::npos)
        << out;
}

TEST_F(Info, emptyFileAsPlainText_isDescribed)
{
    files["/work/a.IDA"] = "";
    EXPECT_EQ(Run({"info", "a.IDA", "--plain"}), 0);
    EXPECT_EQ(out, "File              a.IDA\n"
                   "Kind              no book, taken as plain text\n"
                   "Size              0 bytes\n"
                   "Line ends         none\n"
                   "Code page         Windows-1252, ASCII only\n");
}

TEST_F(Info, longBookOnATerminal_showsProgressAndTakesItAway)
{
    errIsTerminal = true;
    std::string book = "LODESTAR BOOK V5.3\r\n";
    const std::string topic = "[T]\r\n" + std::string(1024 * 1024, 'x') + "\r\n";
    for (int i = 0; i < 18; ++i) {
        book += topic;
    }
    files["/work/a.IDA"] = book;
    EXPECT_EQ(Run({"info", "a.IDA", "--json"}), 0);
    EXPECT_NE(err.find("\rReading 44%"), std::string::npos) << err;
    EXPECT_TRUE(err.ends_with("\r\033[K")) << err;
    errIsTerminal = false;
    EXPECT_EQ(OutJson({"info", "a.IDA"})["topic_count"].Int(), 18);
}

} // namespace
} // namespace ls
