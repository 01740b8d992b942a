// Files that are broken, missing, refused or changed under the program: a message, and a window that goes on.

#include "gui/MainFormFixture.h"

#include <unistd.h>

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

TEST_F(MainFormBadInputTest, startWithAFolder_error75)
{
    ModalScript script;
    script.Answer(Reply::Ok).Escape();
    Start(Path(""));
    EXPECT_EQ(script.Seen(), (Strings{OpenError("", "75: Path/File access error"), TheFileForm}));
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

// Root may read everything: as long as one of these lives, the test runs as somebody else.
class AsNobody
{
public:
    AsNobody() : m_user(geteuid())
    {
        if (m_user == 0) {
            EXPECT_EQ(seteuid(65534), 0);
        }
    }
    ~AsNobody() { EXPECT_EQ(seteuid(m_user), 0); }
    AsNobody(const AsNobody&) = delete;
    AsNobody& operator=(const AsNobody&) = delete;

private:
    uid_t m_user;
};

TEST_F(MainFormBadInputTest, openWithoutPermission_error70)
{
    const std::string secret = Write("Secret.IDA", "LODESTAR BOOK V5.3\r\n[T]\r\n");
    QFile::setPermissions(QString::fromStdString(secret), QFileDevice::Permissions());
    QFile::setPermissions(folder.path(), QFile::permissions(folder.path()) | QFileDevice::ExeOther);
    ModalScript script;
    script.Answer(Reply::Ok).Escape();
    {
        const AsNobody user;
        Start(secret);
    }
    EXPECT_EQ(script.Seen(), (Strings{OpenError("Secret.IDA", "70: Permission denied"), TheFileForm}));
    ExpectUsable(script);
}

struct BadFile
{
    const char* name;
    std::string bytes;
    Strings boxes;
    std::string pane;
};

void PrintTo(const BadFile& row, std::ostream* stream)
{
    *stream << row.name;
}

struct BadFileTest : MainFormBadInputTest, testing::WithParamInterface<BadFile>
{
};

TEST_P(BadFileTest, start_badFile_answersAndStaysUsable)
{
    const BadFile& row = GetParam();
    ModalScript script;
    for (std::size_t i = 0; i < row.boxes.size(); ++i) {
        script.Answer(Reply::Ok);
    }
    const bool staysEmpty =
        !row.boxes.empty() && row.boxes.back() == "critical|Lodestar Advisor|Overflow" && row.pane.empty();
    if (staysEmpty) {
        script.Escape();
    }
    Start(Write("Bad.IDA", row.bytes));
    Strings expected = row.boxes;
    if (staysEmpty) {
        expected.emplace_back(TheFileForm);
    }
    EXPECT_EQ(script.Seen(), expected);
    EXPECT_EQ(PaneText().substr(0, 200), row.pane);
    ExpectUsable(script);
}

std::string ManyTopics()
{
    std::string bytes = "LODESTAR BOOK V5.3\r\n";
    for (int i = 1; i <= 32768; ++i) {
        bytes += "[T" + std::to_string(i) + "]\r\n";
    }
    return bytes;
}

INSTANTIATE_TEST_SUITE_P(
    Rows, BadFileTest,
    testing::Values(BadFile{"empty", "", {AskPlain}, ""}, //
                    BadFile{"oneByte", "x", {AskPlain}, "x"},
                    BadFile{"nulBytes", std::string("\0\0\0", 3), {AskPlain}, std::string("\0\0\0", 3)},
                    BadFile{"brokenHeader",
                            "LODESTAR BOOK V5.3 /AUTHOR\r\n[T]\r\nbody\r\n",
                            {"warning|Lodestar Advisor|Invalid Lodestar Book header: <<LODESTAR BOOK V5.3 "
                             "/AUTHOR>>.  Some information may not be loaded."},
                            "body"},
                    BadFile{"onlyAHeader",
                            "LODESTAR BOOK V5.3\r\n",
                            {"information|Lodestar Advisor|There are no topics in this file."},
                            ""},
                    BadFile{"tooManyTopics", ManyTopics(), {"critical|Lodestar Advisor|Overflow"}, ""}),
    [](const testing::TestParamInfo<BadFile>& row) { return std::string(row.param.name); });

TEST_F(MainFormBadInputTest, startWithUnixLineEnds_opensTheConvertedCopy)
{
    const std::string book = Write("Unix.IDA", "LODESTAR BOOK V5.3\n[T]\nbody\n[U]\nmore\n");
    ModalScript script;
    script.Answer(Reply::Yes);
    Start(book);
    EXPECT_EQ(script.Seen(), Strings{"question|Lodestar Advisor|<<" + book +
                                     ">> has Unix line ends.  Do you want to open a converted copy?|YesNo"});
    EXPECT_EQ(ItemTexts(), (Strings{"1. T", "2. U"}));
    EXPECT_EQ(PaneText(), "body");
    EXPECT_EQ(global.settings.RecentFiles[0], Path("Unix (001).IDA"));
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

TEST_F(MainFormBadInputTest, changedWhileOpen_saysSoAndStaysUsable)
{
    Start(WriteThree());
    QFile file(QString::fromStdString(Path("Three.IDA")));
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    file.write("LODESTAR BOOK V5.3\r\n[A]\r\nchanged by somebody else\r\n[B]\r\nb\r\n");
    file.close();
    ModalScript script;
    script.Answer(Reply::Ok);
    Press(form, "NextButton");
    EXPECT_EQ(script.Seen(), Strings{"warning|Lodestar Advisor|Error looking up topic: [B]"});
    EXPECT_EQ(PaneText(), "");
    EXPECT_TRUE(Get<QPushButton>("GoToButton").isDefault());
    ExpectUsable(script);
}

TEST_F(MainFormBadInputTest, thirtyThousandTopics_areListedAndReached)
{
    std::string bytes = "LODESTAR BOOK V5.3\r\n";
    for (int i = 1; i <= 30000; ++i) {
        bytes += "[T" + std::to_string(i) + "]\r\nbody " + std::to_string(i) + "\r\n";
    }
    Start(Write("Many.IDA", bytes));
    auto& list = Get<QComboBox>("TopicList");
    EXPECT_EQ(list.count(), 30000);
    EXPECT_EQ(list.itemText(0), QStringLiteral("00001. T1"));
    list.setCurrentIndex(29999);
    Press(form, "GoToButton");
    EXPECT_EQ(PaneText(), "body 30000");
    list.showPopup();
    EXPECT_TRUE(list.view()->isVisible());
    list.hidePopup();
}

} // namespace
} // namespace ls
