#include "CliFixture.h"

#include "check/CheckCases.h"
#include "support/TestSeams.h"

#include <algorithm>

namespace ls {
namespace {

using Check = test::CliFixture;
using test::CrLf;

// A book with one error, and one with a warning.
std::string ErrorBook()
{
    return CrLf({"LODESTAR BOOK V5.3", "[Caf\xE9]", "<IXML>", "<LOGIC>", "TARGET G", "G(1) = A(1)",
                 "G(2) = A(2)", "</LOGIC>", "<DEFINITIONS>", "<Q ID=G></Q>", "<AV ID=G(1)>one</AV>",
                 "<AV ID=G(2)>two</AV>", "</DEFINITIONS>", "</IXML>"});
}

std::string WarningBook()
{
    return CrLf({"LODESTAR BOOK V5.3", "[Two]", "<IXML>", "<LOGIC>", "TARGET G", "G(1) = A(1)", "G(2) = A(2)",
                 "</LOGIC>", "<DEFINITIONS>", "<Q ID=G></Q>", "<Q ID=A>A?</Q>", "<AV ID=G(1)>one</AV>",
                 "</DEFINITIONS>", "</IXML>"});
}

constexpr const char* ErrorLine =
    "e.IDA:6: error: no-question: The condition variable A has neither a question nor a DEFINE, so the "
    "reader "
    "is told that its definition cannot be found and the dialogue stops: add <Q ID=A>, empty if the rules "
    "conclude it.\n";
constexpr const char* WarningLine = "w.IDA:7: warning: advice-without-text: The advice G(2) is concluded but "
                                    "has no text, so the reader comes "
                                    "to an empty box: write it as <AV ID=G(2)>...</AV>.\n";

TEST_F(Check, bookWithAnError_oneLineAndStatus1)
{
    files["/work/e.IDA"] = ErrorBook();
    EXPECT_EQ(Out({"check", "e.IDA"}, 1), ErrorLine);
}

TEST_F(Check, bookWithAWarning_status0)
{
    files["/work/w.IDA"] = WarningBook();
    EXPECT_EQ(Out({"check", "w.IDA"}), WarningLine);
}

TEST_F(Check, bookWithAWarningUnderStrict_status1)
{
    files["/work/w.IDA"] = WarningBook();
    EXPECT_EQ(Out({"check", "w.IDA", "--strict"}, 1), WarningLine);
}

TEST_F(Check, cleanBookUnderStrict_nothingAndStatus0)
{
    files["/work/c.IDA"] = "LODESTAR BOOK V5.3\r\n[One]\r\ntext\r\n";
    EXPECT_EQ(Out({"check", "c.IDA", "--strict"}), "");
}

TEST_F(Check, severalBooks_theirFindingsOneAfterTheOther)
{
    files["/work/w.IDA"] = WarningBook();
    files["/work/e.IDA"] = ErrorBook();
    EXPECT_EQ(Out({"check", "w.IDA", "e.IDA"}, 1), std::string(WarningLine) + ErrorLine);
}

TEST_F(Check, severalBooksInJson_oneListInTheOrderOfItsFields)
{
    files["/work/w.IDA"] = WarningBook();
    files["/work/e.IDA"] = ErrorBook();
    EXPECT_EQ(
        Out({"check", "e.IDA", "w.IDA", "--json"}, 1),
        "{\n"
        "  \"findings\": [\n"
        "    {\"file\": \"e.IDA\", \"line\": 6, \"topic\": \"Café\", \"severity\": \"error\", \"rule\": "
        "\"no-question\", \"text\": \"The condition variable A has neither a question nor a DEFINE, so the "
        "reader is told that its definition cannot be found and the dialogue stops: add <Q ID=A>, empty "
        "if the rules conclude it.\"},\n"
        "    {\"file\": \"w.IDA\", \"line\": 7, \"topic\": \"Two\", \"severity\": \"warning\", \"rule\": "
        "\"advice-without-text\", \"text\": \"The advice G(2) is concluded but has no text, so the reader "
        "comes to an empty box: write it as <AV ID=G(2)>...</AV>.\"}\n"
        "  ]\n"
        "}\n");
}

TEST_F(Check, cleanBookInJson_emptyList)
{
    files["/work/c.IDA"] = "LODESTAR BOOK V5.3\r\n[One]\r\ntext\r\n";
    EXPECT_EQ(Out({"check", "c.IDA", "--json"}), "{\n  \"findings\": []\n}\n");
}

TEST_F(Check, missingBookAmongOthers_theOthersAreCheckedAndStatus3)
{
    files["/work/w.IDA"] = WarningBook();
    EXPECT_EQ(Run({"check", "none.IDA", "w.IDA"}), 3);
    EXPECT_EQ(out, WarningLine);
    EXPECT_EQ(err, "critical: Error opening <<none.IDA>> with code 53: File not found\n");
}

TEST_F(Check, fileThatIsNoBook_isToldAndStatus1)
{
    files["/work/a.txt"] = "Hello\r\n";
    EXPECT_EQ(Run({"check", "a.txt"}), 1);
    EXPECT_EQ(out, "");
    EXPECT_EQ(err,
              "question: The file you opened is not a Lodestar Book or Advice file. Do you want to view it "
              "as a single topic text file?\n");
}

TEST_F(Check, onATerminal_progressIsShownAndTakenAway)
{
    files["/work/w.IDA"] = WarningBook();
    errIsTerminal = true;
    EXPECT_EQ(Run({"check", "w.IDA"}), 0);
    EXPECT_EQ(out, WarningLine);
    EXPECT_TRUE(err.starts_with("\rReading 0%")) << err;
    EXPECT_TRUE(err.ends_with("\rReading 100%\r\033[K")) << err;
}

} // namespace
} // namespace ls
