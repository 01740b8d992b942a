#include "forms/FormMessages.h"
#include "gui/Controls.h"
#include "gui/ModalScript.h"

#include <gtest/gtest.h>

#include <QDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>

namespace ls {
namespace {

using test::ModalScript;
using test::TakePicture;

class FormMessagesTest : public testing::Test
{
protected:
    ProgramEnd end;
    FormMessages messages{end};
    ModalScript modals;
};

struct PictureCase
{
    Icon icon;
    const char* word;
};

constexpr PictureCase Pictures[] = {
    {Icon::None, "none"},       {Icon::Critical, "critical"},       {Icon::Exclamation, "warning"},
    {Icon::Warning, "warning"}, {Icon::Information, "information"}, {Icon::Question, "question"}};

struct ButtonsCase
{
    Buttons buttons;
    const char* word;
    std::vector<Reply> replies;
    Reply onEscape;
    Reply onEnter;
};

const ButtonsCase ButtonSets[] = {
    {Buttons::Ok, "", {Reply::Ok}, Reply::Ok, Reply::Ok},
    {Buttons::OkCancel, "|OKCancel", {Reply::Ok, Reply::Cancel}, Reply::Cancel, Reply::Cancel},
    {Buttons::YesNo, "|YesNo", {Reply::Yes, Reply::No}, Reply::No, Reply::Yes},
    {Buttons::YesNoCancel,
     "|YesNoCancel",
     {Reply::Yes, Reply::No, Reply::Cancel},
     Reply::Cancel,
     Reply::Yes}};

TEST_F(FormMessagesTest, everyPictureAndReply_isShownAndReturned)
{
    std::vector<std::string> expected;
    for (const PictureCase& picture : Pictures) {
        for (const ButtonsCase& set : ButtonSets) {
            for (const Reply reply : set.replies) {
                modals.Answer(reply);
                EXPECT_EQ(messages.MsgBox("Start over?", picture.icon, set.buttons), reply);
                expected.push_back(picture.word + std::string("|Lodestar Advisor|Start over?") + set.word);
            }
        }
    }
    EXPECT_EQ(modals.Seen(), expected);
}

TEST_F(FormMessagesTest, escape_givesTheSafeReply)
{
    for (const ButtonsCase& set : ButtonSets) {
        modals.Escape();
        EXPECT_EQ(messages.MsgBox("text", Icon::Question, set.buttons), set.onEscape) << set.word;
        EXPECT_EQ(set.onEscape, SafeReply(set.buttons)) << set.word;
    }
}

TEST_F(FormMessagesTest, closeButton_givesTheSafeReply)
{
    for (const ButtonsCase& set : ButtonSets) {
        modals.Do([](QWidget& box) { box.close(); });
        EXPECT_EQ(messages.MsgBox("text", Icon::Question, set.buttons), set.onEscape) << set.word;
    }
}

TEST_F(FormMessagesTest, enter_givesTheDefaultReply)
{
    for (const ButtonsCase& set : ButtonSets) {
        modals.Do([](QWidget& box) { QTest::keyClick(&box, Qt::Key_Return); });
        EXPECT_EQ(messages.MsgBox("text", Icon::Question, set.buttons), set.onEnter) << set.word;
    }
}

// The text of the label that the box shows. It must be plain text, not markup.
std::string LabelText(const QWidget& box)
{
    const auto* label = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
    return label == nullptr || label->textFormat() != Qt::PlainText ? "no plain label"
                                                                    : label->text().toStdString();
}

TEST_F(FormMessagesTest, markupInAText_isShownLiterally)
{
    const std::string text = "Topic <<A <B>bold</B> &AMP; more>> was not found.";
    std::string shown;
    modals.Do([&](QWidget& box) {
        shown = LabelText(box);
        TakePicture(box, "box-markup");
        box.close();
    });
    messages.MsgBox(text, Icon::Critical);
    EXPECT_EQ(shown, text);
}

TEST_F(FormMessagesTest, longTexts_areWrapped)
{
    int width = 0;
    modals.Do([&](QWidget& box) {
        width = box.width();
        TakePicture(box, "box-long");
        box.close();
    });
    std::string text;
    for (int i = 0; i < 60; ++i) {
        text += "many words ";
    }
    messages.MsgBox(text, Icon::Question, Buttons::OkCancel);
    EXPECT_LT(width, 700);
}

TEST_F(FormMessagesTest, hugeText_isCutInTheMiddleBetweenCharacters)
{
    std::string shown;
    const auto show = [&](const std::string& text) {
        modals.Do([&](QWidget& box) {
            shown = LabelText(box);
            box.close();
        });
        messages.MsgBox(text, Icon::Warning);
        return shown;
    };
    const std::string whole = "begin" + std::string(1990, 'x') + "final";
    EXPECT_EQ(show(whole), whole) << "2,000 bytes are shown";
    EXPECT_EQ(show("begin" + std::string(3000, 'x') + "final"),
              "begin" + std::string(1495, 'x') + " ... " + std::string(495, 'x') + "final");
    std::string accents;
    for (int i = 0; i < 3000; ++i) {
        accents += "\xC3\xA9";
    }
    const std::string cut = show("x" + accents + "yy");
    EXPECT_EQ(cut, "x" + accents.substr(0, 1498) + " ... " + accents.substr(0, 498) + "yy");
    EXPECT_EQ(show("x" + accents + "y"),
              "x" + accents.substr(0, 1498) + " ... " + accents.substr(0, 498) + "y");
}

TEST_F(FormMessagesTest, parent_isTheWindowThatWasSet)
{
    QWidget window;
    messages.SetParent(&window);
    const QWidget* parent = nullptr;
    modals.Do([&](QWidget& box) {
        parent = box.parentWidget();
        box.close();
    });
    messages.MsgBox("text", Icon::Information);
    EXPECT_EQ(parent, &window);
}

TEST_F(FormMessagesTest, parentGone_boxStillComes)
{
    {
        QWidget window;
        messages.SetParent(&window);
    }
    modals.Answer(Reply::Ok);
    messages.MsgBox("text", Icon::Information);
    EXPECT_EQ(modals.Seen(), (std::vector<std::string>{"information|Lodestar Advisor|text"}));
}

TEST_F(FormMessagesTest, overAnOpenForm_boxBelongsToThatForm)
{
    QWidget window;
    messages.SetParent(&window);
    QDialog form(&window);
    form.setObjectName(QStringLiteral("InfoForm"));
    const QWidget* parent = nullptr;
    modals.Do([&](QWidget&) {
        messages.MsgBox("from the form", Icon::Exclamation);
        form.accept();
    });
    modals.Do([&](QWidget& box) {
        parent = box.parentWidget();
        box.close();
    });
    form.exec();
    EXPECT_EQ(parent, &form);
    EXPECT_EQ(modals.Seen(),
              (std::vector<std::string>{"form|InfoForm|", "warning|Lodestar Advisor|from the form"}));
}

TEST_F(FormMessagesTest, inputBoxWithText_returnsIt)
{
    modals.Enter("Second Topic");
    EXPECT_EQ(messages.InputBox("Name of the topic?", "Add Topic", "First"), "Second Topic");
    EXPECT_EQ(modals.Seen(), (std::vector<std::string>{"input|Add Topic|Name of the topic?|First"}));
}

TEST_F(FormMessagesTest, inputBoxLeftAsItIs_returnsTheInitialText)
{
    modals.Do([](QWidget& box) { QTest::keyClick(&box, Qt::Key_Return); });
    EXPECT_EQ(messages.InputBox("Name?", "Title", "na\xC3\xAFve <B> & C"), "na\xC3\xAFve <B> & C");
}

TEST_F(FormMessagesTest, inputBoxEmptied_returnsAnEmptyText)
{
    modals.Enter("");
    EXPECT_EQ(messages.InputBox("Name?", "Title", "First"), "");
}

TEST_F(FormMessagesTest, inputBoxCancelled_returnsNothing)
{
    modals.Enter(std::nullopt);
    EXPECT_EQ(messages.InputBox("Name?", "Title", "First"), std::nullopt);
    modals.Escape();
    EXPECT_EQ(messages.InputBox("Name?", "Title", "First"), std::nullopt);
}

TEST_F(FormMessagesTest, markupInAPrompt_isShownLiterally)
{
    Qt::TextFormat format = Qt::AutoText;
    QString text;
    modals.Do([&](QWidget& box) {
        format = box.findChild<QLabel*>()->textFormat();
        text = box.findChild<QLabel*>()->text();
        TakePicture(box, "input-markup");
        box.close();
    });
    messages.InputBox("A <B>name</B> for \"Fish & Chips\"?", "Title", "First");
    EXPECT_EQ(format, Qt::PlainText);
    // A single "&" would not be shown, and would underline the next letter.
    EXPECT_EQ(text, QStringLiteral("A <B>&name</B> for \"Fish && Chips\"?"));
}

TEST_F(FormMessagesTest, programEnded_showsNothingAndAnswersSafely)
{
    EndProgram(end, "a fault");
    EXPECT_EQ(messages.MsgBox("text", Icon::Question, Buttons::YesNo), Reply::No);
    EXPECT_EQ(messages.MsgBox("text", Icon::Question, Buttons::OkCancel), Reply::Cancel);
    EXPECT_EQ(messages.InputBox("text", "title", "initial"), std::nullopt);
    EXPECT_TRUE(modals.Seen().empty());
}

} // namespace
} // namespace ls
