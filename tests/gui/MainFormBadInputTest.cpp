// Files that are damaged, missing, refused, or changed while open: each gives a message, and the window goes
// on.

#include "gui/MainFormFixture.h"

namespace ls {
namespace {

using test::ModalScript;
using test::Press;

constexpr const char* TheFileForm = "form|FileForm|Lodestar Advisor Open";
constexpr const char* AskPlain = "question|Lodestar Advisor|The file you opened is not a Lodestar Book or "
                                 "Advice file. Do you want to view "
                                 "it as a single topic text file?|OKCancel";

struct MainFormBadInputTest : MainFormFixture
{
    [[nodiscard]] std::string OpenError(const std::string& name, const std::string& code) const
    {
        return "critical|Lodestar Advisor|Error opening <<" + Path(name) + ">> with code " + code;
    }
};

TEST_F(MainFormBadInputTest, startWithMissingFolder_error76)
{
    ModalScript script;
    script.Answer(Reply::Ok).Escape();
    Start(Path("none/Book.IDA"));
    EXPECT_EQ(script.Seen(), (Strings{OpenError("none/Book.IDA", "76: Path not found"), TheFileForm}));
    ExpectUsable(script);
}

TEST_F(MainFormBadInputTest, openLockedElsewhere_error70)
{
    Start(WriteThree());
    const std::string taken = Write("Taken.IDA", "LODESTAR BOOK V5.3\r\n[T]\r\n");
    std::unique_ptr<BookFile> elsewhere;
    ASSERT_TRUE(files.OpenForReading(taken, Sharing::Locked, elsewhere).Ok());
    ModalScript script;
    script.Do([taken](QWidget& chooser) { ChooseFile(chooser, taken); }).Answer(Reply::Ok);
    Press(form, "OpenItem");
    EXPECT_EQ(script.Seen(), (Strings{TheFileForm, OpenError("Taken.IDA", "70: Permission denied")}));
    EXPECT_EQ(ItemTexts(), Strings{});
    ExpectUsable(script);
}

TEST_F(MainFormBadInputTest, openWithUnixLineEndsDeclined_goesOnWithTheOneEndlessLine)
{
    Start(WriteThree());
    const std::string note = Write("Unix.TXT", "one\ntwo\n");
    ModalScript script;
    script.Do([note](QWidget& chooser) { ChooseFile(chooser, note); }).Answer(Reply::No).Answer(Reply::Ok);
    Press(form, "OpenItem");
    EXPECT_EQ(script.Seen(),
              (Strings{TheFileForm,
                       "question|Lodestar Advisor|<<" + note +
                           ">> has Unix line ends.  Do you want to open a converted copy?|YesNo",
                       AskPlain}));
    EXPECT_EQ(PaneText(), "one\ntwo\n");
    EXPECT_EQ(QFile::exists(QString::fromStdString(Path("Unix (001).IDA"))), false);
    ExpectUsable(script);
}

TEST_F(MainFormBadInputTest, truncatedWhileOpen_saysSoAndStaysUsable)
{
    Start(WriteThree());
    QFile::resize(QString::fromStdString(Path("Three.IDA")), 25);
    ModalScript script;
    script.Answer(Reply::Ok);
    Press(form, "NextButton");
    ASSERT_EQ(script.Seen().size(), 1U);
    EXPECT_EQ(script.Seen().front(), "warning|Lodestar Advisor|Failed to fetch topic [B] due to error #62: "
                                     "Input past end of file");
    EXPECT_EQ(PaneText(), "");
    ExpectUsable(script);
}

} // namespace
} // namespace ls
