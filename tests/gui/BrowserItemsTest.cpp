// The items of the real main window that open a web browser (help and the author's web site), and its About
// box.

#include "gui/MainFormFixture.h"

namespace ls {
namespace {

using test::ModalScript;
using test::Press;

struct BrowserItemsTest : MainFormFixture
{
    BrowserItemsTest() { registry.RegisterForUser(".HTM", "page", "/usr/bin/web"); }

    std::string WriteBook(const std::string& header)
    {
        return Write("Sample.IDA", "LODESTAR BOOK V5.3" + header + "\r\n[A]\r\na\r\n[B]\r\nb\r\n");
    }
};

// A program with help pages in its folder. The window looks for them when it is made, so they are written
// first.
struct HelpItemTest : BrowserItemsTest
{
    std::string WriteHelp()
    {
        processes.programFolder = Path("");
        return Write("Lodestar_Reader.htm", "");
    }
    const std::string page = WriteHelp();
    MainForm window{global, seams, {*volumes, dde, registry, printer}};
};

TEST_F(HelpItemTest, help_showsTheReadersPage)
{
    window.Form_Load({});
    Press(window, "HelpItem");
    EXPECT_EQ(processes.started, Strings{"/usr/bin/web " + page});
}

TEST_F(HelpItemTest, help_noBrowser_selectorFindsOne)
{
    registry.keys.clear();
    Write("web", "");
    window.Form_Load({});
    ModalScript script;
    script.Answer(Reply::Ok).Answer(Reply::Yes).Do([this](QWidget& selector) {
        test::Type(selector, "TextBox", QString::fromStdString(Path("web")));
        test::Press(selector, "OKButton");
    });
    Press(window, "HelpItem");
    ASSERT_EQ(script.Seen().size(), 3U);
    EXPECT_EQ(script.Seen()[2], "form|OpenForm|LSAdvisor File Selector");
    EXPECT_EQ(processes.started, Strings{Path("web") + " " + page});
}

TEST_F(BrowserItemsTest, help_noPageBesideTheProgram_isDisabled)
{
    EXPECT_FALSE(Get<QAction>("HelpItem").isEnabled());
}

TEST_F(BrowserItemsTest, explain_bookThatTakesComments_postsTheTopicOnShow)
{
    Start(WriteBook(" /AUTHOR=\"Ann\" /URL=\"ann.example\" /POST=\"yes\""), "B");
    Press(form, "ExplainButton");
    EXPECT_EQ(processes.started, Strings{"/usr/bin/web " + Path("Lodestar_Ideas_Temp.htm")});
    EXPECT_NE(Read("Lodestar_Ideas_Temp.htm").find(" VALUE=\"Sample: B\">"), std::string::npos);
    EXPECT_EQ(PaneText(), "b");
}

TEST_F(BrowserItemsTest, about_tellsOfTheProgramAndTheBook)
{
    Start(WriteBook(" /AUTHOR=\"Ann\" /COPYRIGHT=\"2026\""));
    ModalScript script;
    script.Answer(Reply::Ok);
    Press(form, "AboutItem");
    EXPECT_EQ(
        script.Seen(),
        Strings{
            "information|Lodestar Advisor|Lodestar Advisor, version 5.3. Copyright (c) 2026 The Lodestar "
            "Advisor authors. It is available at http://www.lodestar-advisor.example/\n\nThe book you are "
            "viewing was written by Ann, copyright 2026"});
}

} // namespace
} // namespace ls
