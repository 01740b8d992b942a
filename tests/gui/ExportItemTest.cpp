// The Export Topic item of the real main window, on real files.

#include "gui/MainFormFixture.h"

namespace ls {
namespace {

using test::ModalScript;
using test::Press;

constexpr const char* Asked = "input|Lodestar Advisor|Filename for export to HTML|Export.htm";

struct ExportItemFormTest : MainFormFixture
{
    std::string Read(const std::string& name)
    {
        QFile file(QString::fromStdString(Path(name)));
        return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : "(none)";
    }
};

TEST_F(ExportItemFormTest, topicOnShow_isExportedToTheNamedFile)
{
    Start(WriteThree(), "B");
    ModalScript script;
    script.Enter(Path("b.htm")).Answer(Reply::Ok);
    Press(form, "ExportItem");
    EXPECT_EQ(script.Seen(), (Strings{Asked, "information|Lodestar Advisor|The export is complete."}));
    EXPECT_EQ(Read("b.htm"), test::CrLf({"<HTML>", "<HEAD>", "<TITLE>B</TITLE>", "</HEAD>", "<BODY>",
                                         "<P>b</P>", "</BODY>", "</HTML>"}));
    EXPECT_EQ(PaneText(), "b") << "the topic stays on show";
}

TEST_F(ExportItemFormTest, anotherEntryChosenButNotShown_asksForGoFirst)
{
    Start(WriteThree());
    Select(1);
    ModalScript script;
    script.Answer(Reply::Ok);
    Press(form, "ExportItem");
    EXPECT_EQ(script.Seen(), Strings{"warning|Lodestar Advisor|Please display the topic first by choosing it "
                                     "from the list and clicking Go."});
}

TEST_F(ExportItemFormTest, cancel_writesNothing)
{
    Start(WriteThree());
    const int before = static_cast<int>(QDir(folder.path()).entryList().size());
    ModalScript script;
    script.Enter(std::nullopt);
    Press(form, "ExportItem");
    EXPECT_EQ(script.Seen(), Strings{Asked});
    EXPECT_EQ(QDir(folder.path()).entryList().size(), before);
}

TEST_F(ExportItemFormTest, openBookItself_isRefused)
{
    const std::string path = WriteThree();
    Start(path);
    ModalScript script;
    script.Enter(path).Answer(Reply::Ok);
    Press(form, "ExportItem");
    ASSERT_EQ(script.Seen().size(), 2U);
    EXPECT_EQ(script.Seen()[1], "warning|Lodestar Advisor|Failed to open <<" + path +
                                    ">> due to error #55: File already open.");
    EXPECT_TRUE(Read("Three.IDA").starts_with("LODESTAR BOOK"));
}

} // namespace
} // namespace ls
