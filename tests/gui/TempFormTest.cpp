#include "advisor/TempForm.h"

#include "gui/Controls.h"

#include <QFontInfo>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
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

    void Load(const std::string& text, const std::string& findings = {})
    {
        form = std::make_unique<TempForm>(nullptr, text, findings);
        test::ShowActive(*form);
    }

    [[nodiscard]] QPlainTextEdit& Box(const char* name) const { return *Find<QPlainTextEdit>(*form, name); }

    void Key(Qt::Key key) const { QTest::keyClick(form->windowHandle(), key); }
};

TEST_F(TempFormTest, load_showsTextAndFindingsReadOnly)
{
    Load("<IXML>\r\ncaf\xC3\xA9 <B>&amp;</B>\r\n", "one\r\ntwo");
    EXPECT_EQ(form->windowTitle(), QStringLiteral("Temp results"));
    EXPECT_EQ(Box("Text1").toPlainText().toStdString(), "<IXML>\ncaf\xC3\xA9 <B>&amp;</B>\n");
    EXPECT_EQ(Box("FindingsBox").toPlainText(), QStringLiteral("one\ntwo"));
    EXPECT_EQ(Find<QLabel>(*form, "FindingsLabel")->text().remove(u'&'),
              QStringLiteral("What the book check finds in this block:"));
    EXPECT_EQ(Find<QPushButton>(*form, "CloseButton")->text(), QStringLiteral("Close"));
    for (const char* name : {"Text1", "FindingsBox"}) {
        const QString before = Box(name).toPlainText();
        EXPECT_TRUE(Box(name).isReadOnly()) << name;
        QTest::keyClicks(&Box(name), QStringLiteral("x"));
        EXPECT_EQ(Box(name).toPlainText(), before) << name;
    }
    EXPECT_TRUE(QFontInfo(Box("Text1").font()).fixedPitch());
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

TEST_F(TempFormTest, tabOrder_goesAsTheEyeGoes)
{
    Load("x", "y");
    Box("Text1").setFocus();
    Strings order;
    for (int i = 0; i < 4; ++i) {
        order.push_back(form->focusWidget()->objectName().toStdString());
        Key(Qt::Key_Tab);
    }
    EXPECT_EQ(order, (Strings{"Text1", "FindingsBox", "CloseButton", "Text1"}));
}

TEST_F(TempFormTest, resize_textTakesTheHeight)
{
    Load("x", "y");
    const QSize text = Box("Text1").size();
    const QSize findings = Box("FindingsBox").size();
    form->resize(form->size() + QSize(90, 70));
    QTest::qWait(20);
    EXPECT_EQ(Box("Text1").size(), text + QSize(90, 70));
    EXPECT_EQ(Box("FindingsBox").size(), findings + QSize(90, 0));
}

} // namespace
} // namespace ls
