#include "advisor/TempForm.h"

#include "gui/Controls.h"

#include <QFontInfo>
#include <QLabel>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QTest>

#include <memory>
#include <string>
#include <vector>

namespace ls {
namespace {

using test::Find;
using Strings = std::vector<std::string>;

struct TempFormTest : testing::Test
{
    std::unique_ptr<TempForm> form;

    void Load(const std::string& text, const std::vector<TempFormRow>& rows = {})
    {
        form = std::make_unique<TempForm>(nullptr, text, rows);
        test::ShowActive(*form);
    }

    [[nodiscard]] static std::vector<TempFormRow> TwoFindings()
    {
        return {{1, "Line 1, error: First \xC3\xA9."}, {2, "Line 2, warning: Second."}};
    }

    [[nodiscard]] QPlainTextEdit& Text() const { return *Find<QPlainTextEdit>(*form, "Text1"); }
    [[nodiscard]] QListWidget& Findings() const { return *Find<QListWidget>(*form, "FindingsList"); }

    void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const
    {
        QTest::keyClick(form->windowHandle(), key, modifiers);
    }
};

TEST_F(TempFormTest, load_showsTextReadOnlyAndFindings)
{
    Load("<IXML>\r\ncaf\xC3\xA9 <B>&amp;</B>\r\n", TwoFindings());
    EXPECT_EQ(form->windowTitle(), QStringLiteral("Temp results"));
    const std::string text = "<IXML>\ncaf\xC3\xA9 <B>&amp;</B>\n";
    EXPECT_EQ(Text().toPlainText().toStdString(), text);
    EXPECT_TRUE(Text().isReadOnly());
    QTest::keyClicks(&Text(), QStringLiteral("x"));
    EXPECT_EQ(Text().toPlainText().toStdString(), text);
    EXPECT_TRUE(QFontInfo(Text().font()).fixedPitch());
    EXPECT_EQ(Find<QLabel>(*form, "FindingsLabel")->text().remove(u'&'),
              QStringLiteral("What the book check finds in this block:"));
    ASSERT_EQ(Findings().count(), 2);
    EXPECT_EQ(Findings().item(0)->text().toStdString(), "Line 1, error: First \xC3\xA9.");
    EXPECT_EQ(Findings().item(1)->text().toStdString(), "Line 2, warning: Second.");
    EXPECT_FALSE(Text().textCursor().hasSelection()) << "none is chosen yet";
    EXPECT_EQ(form->focusWidget(), Find<QWidget>(*form, "CloseButton"));
}

TEST_F(TempFormTest, findingThatIsChosen_showsItsLine)
{
    std::string text;
    for (int i = 1; i <= 500; ++i) {
        text += "line " + std::to_string(i) + "\r\n";
    }
    std::vector<TempFormRow> rows = TwoFindings();
    rows[1].line = 400;
    Load(text, rows);
    Key(Qt::Key_C, Qt::AltModifier);
    EXPECT_EQ(form->focusWidget(), &Findings());
    Key(Qt::Key_Down);
    Key(Qt::Key_Down);
    EXPECT_EQ(Text().textCursor().selectedText(), QStringLiteral("line 400"));
    EXPECT_TRUE(Text().rect().contains(Text().cursorRect()));
    EXPECT_EQ(form->focusWidget(), &Findings()) << "the next one can be chosen";
    Key(Qt::Key_Up);
    EXPECT_EQ(Text().textCursor().selectedText(), QStringLiteral("line 1"));
}

TEST_F(TempFormTest, nothingFound_saysSoInPlaceOfTheList)
{
    Load("x");
    EXPECT_EQ(Find<QLabel>(*form, "FindingsLabel")->text(),
              QStringLiteral("The book check finds nothing in this block."));
    EXPECT_FALSE(Findings().isVisible());
}

TEST_F(TempFormTest, closeButtonEnterAndEscape_unloadIt)
{
    Load("x");
    test::Press(*form, "CloseButton");
    EXPECT_FALSE(form->isVisible());
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
        Load("x");
        Key(key);
        EXPECT_FALSE(form->isVisible()) << key;
    }
}

TEST_F(TempFormTest, resize_textTakesTheHeight)
{
    Load("x", TwoFindings());
    const QSize text = Text().size();
    const QSize findings = Findings().size();
    form->resize(form->size() + QSize(90, 70));
    QTest::qWait(20);
    EXPECT_EQ(Text().size(), text + QSize(90, 70));
    EXPECT_EQ(Findings().size(), findings + QSize(90, 0));
}

} // namespace
} // namespace ls
