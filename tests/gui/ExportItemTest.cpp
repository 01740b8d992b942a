// The Export Topic item of the real main window, on real files.

#include "gui/MainFormFixture.h"

namespace ls {
namespace {

using test::ModalScript;
using test::Press;

constexpr const char* Asked = "input|Lodestar Advisor|Filename for export to HTML|Export.htm";

struct ExportItemFormTest : MainFormFixture
{
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

} // namespace
} // namespace ls
