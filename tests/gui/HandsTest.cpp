#include "gui/Controls.h"
#include "gui/ModalScript.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <QAction>
#include <QDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QVBoxLayout>

// Tests the helpers that press controls for other tests: they must notice what is wrong.
namespace ls {
namespace {

using test::ModalScript;

int AskYesNo()
{
    return QMessageBox::question(nullptr, QStringLiteral("Title"), QStringLiteral("Sure?"));
}

TEST(ModalScript, windowThatNeverComes_failsTheTest)
{
    EXPECT_NONFATAL_FAILURE(ModalScript().Answer(Reply::Ok), "1 expected windows never came");
}

TEST(ModalScript, windowWithoutAStep_failsTheTestAndIsClosed)
{
    EXPECT_NONFATAL_FAILURE(
        {
            const ModalScript script;
            AskYesNo();
        },
        "no step is left for: question|Title|Sure?|YesNo");
}

TEST(ModalScript, replyThatTheBoxLacks_failsTheTestAndClosesIt)
{
    EXPECT_NONFATAL_FAILURE(
        {
            ModalScript script;
            script.Answer(Reply::Cancel);
            AskYesNo();
        },
        "this cannot be answered so: question|Title|Sure?|YesNo");
}

TEST(ModalScript, textForAMessageBox_failsTheTestAndClosesIt)
{
    EXPECT_NONFATAL_FAILURE(
        {
            ModalScript script;
            script.Enter("text");
            AskYesNo();
        },
        "nothing can be entered here: question|Title|Sure?|YesNo");
}

TEST(ModalScript, oneBoxAfterTheOther_eachGetsItsStep)
{
    ModalScript script;
    script.Answer(Reply::Yes).Answer(Reply::No).Escape();
    EXPECT_EQ(AskYesNo(), QMessageBox::Yes);
    EXPECT_EQ(AskYesNo(), QMessageBox::No);
    EXPECT_EQ(AskYesNo(), QMessageBox::No);
    EXPECT_EQ(script.Seen().size(), 3U);
}

TEST(ModalScript, formShownTwice_isANewWindowEachTime)
{
    QDialog form;
    form.setObjectName(QStringLiteral("OpenForm"));
    ModalScript script;
    script.Do([&](QWidget&) { form.accept(); }).Do([&](QWidget&) { form.reject(); });
    EXPECT_EQ(form.exec(), QDialog::Accepted);
    EXPECT_EQ(form.exec(), QDialog::Rejected);
    EXPECT_EQ(script.Seen(), (std::vector<std::string>{"form|OpenForm|", "form|OpenForm|"}));
}

// A form with two buttons, an entry and a line to type into.
class ControlsTest : public testing::Test
{
protected:
    ControlsTest()
    {
        auto* layout = new QVBoxLayout(&form);
        layout->addWidget(button);
        layout->addWidget(edit);
        form.addAction(entry);
        button->setObjectName(QStringLiteral("GoToButton"));
        edit->setObjectName(QStringLiteral("AuthorBox"));
        entry->setObjectName(QStringLiteral("OpenItem"));
        QObject::connect(button, &QPushButton::clicked, &form, [this] { ++clicks; });
        QObject::connect(entry, &QAction::triggered, &form, [this] { ++clicks; });
        test::ShowActive(form);
    }

    QWidget form;
    QPushButton* button = new QPushButton(&form);
    QLineEdit* edit = new QLineEdit(&form);
    QAction* entry = new QAction(&form);
    int clicks = 0;
};

TEST_F(ControlsTest, buttonAndEntry_arePressedByName)
{
    test::Press(form, "GoToButton");
    test::Press(form, "OpenItem");
    EXPECT_EQ(clicks, 2);
}

TEST_F(ControlsTest, disabledOrHidden_failsTheTest)
{
    button->setEnabled(false);
    EXPECT_NONFATAL_FAILURE(test::Press(form, "GoToButton"), "GoToButton cannot be pressed");
    button->setEnabled(true);
    button->hide();
    EXPECT_NONFATAL_FAILURE(test::Press(form, "GoToButton"), "GoToButton cannot be pressed");
    entry->setEnabled(false);
    EXPECT_NONFATAL_FAILURE(test::Press(form, "OpenItem"), "OpenItem cannot be picked");
    entry->setEnabled(true);
    entry->setVisible(false);
    EXPECT_NONFATAL_FAILURE(test::Press(form, "OpenItem"), "OpenItem cannot be picked");
    EXPECT_EQ(clicks, 0);
}

TEST_F(ControlsTest, missing_failsTheTest)
{
    EXPECT_NONFATAL_FAILURE(test::Press(form, "NoSuchButton"), "there is no NoSuchButton");
}

TEST_F(ControlsTest, typing_replacesTheText)
{
    edit->setText(QStringLiteral("old"));
    test::Type(form, "AuthorBox", QStringLiteral("A. Writer"));
    EXPECT_EQ(edit->text(), QStringLiteral("A. Writer"));
}

TEST_F(ControlsTest, waiting_tellsWhetherItCame)
{
    QTimer::singleShot(20, &form, [this] { ++clicks; });
    EXPECT_TRUE(test::WaitFor([this] { return clicks == 1; }));
}

} // namespace
} // namespace ls
