// The Check Book item of the real main window.

#include "gui/MainFormFixture.h"

#include "support/Json.h"

#include <QPlainTextEdit>
#include <QTreeWidget>

namespace ls {
namespace {

using test::Find;

// The rows of the form's list.
Strings Rows(const QWidget& check)
{
    Strings rows;
    const auto* list = Find<QTreeWidget>(check, "FindingList");
    for (int i = 0; i < list->topLevelItemCount(); ++i) {
        QStringList texts;
        for (int column = 0; column < list->columnCount(); ++column) {
            texts.append(list->topLevelItem(i)->text(column));
        }
        rows.push_back(texts.join(QLatin1Char('|')).toStdString());
    }
    return rows;
}

std::string LabelText(const QWidget& check, const char* name)
{
    const auto* label = Find<QLabel>(check, name);
    return label->isVisible() ? label->text().toStdString() : "(hidden)";
}

QPoint CentreOfRow(QTreeWidget& list, int row)
{
    return list.visualItemRect(list.topLevelItem(row)).center();
}

struct CheckFormTest : MainFormFixture
{
    /// Topics "A", "Café" and "C"; the last two have a finding each.
    std::string WriteFaulty()
    {
        return Write("Faulty.IDA",
                     test::CrLf({"LODESTAR BOOK V5.3", "[A]", "a", "[Caf\xE9]", "b",
                                 "<XREF TOPIC=None></XREF>", "[C]", "c", "<XREF TOPIC=\"<B>Gone\"></XREF>"}));
    }

    /// Presses the item and runs `step` in the form that opens.
    void Check(test::ModalScript& script, std::function<void(QWidget& check)> step)
    {
        script.Do(std::move(step));
        test::Press(form, "CheckItem");
    }
};

TEST_F(CheckFormTest, findings_areListedWithTheSentenceOfTheSelectedOne)
{
    Start(WriteFaulty());
    test::ModalScript script;
    Check(script, [](QWidget& check) {
        auto* list = Find<QTreeWidget>(check, "FindingList");
        EXPECT_EQ(list->headerItem()->text(0), QStringLiteral("Severity"));
        EXPECT_EQ(LabelText(check, "SummaryLabel"), "2 errors and 0 warnings in Faulty.IDA.");
        EXPECT_EQ(LabelText(check, "NotesLabel"), "(hidden)");
        EXPECT_TRUE(Rows(check).at(0).starts_with("error|6|Caf\xC3\xA9|reference-missing-topic|"));
        auto* text = Find<QPlainTextEdit>(check, "TextBox");
        EXPECT_EQ(text->toPlainText(), list->topLevelItem(0)->text(4)) << "the first one is selected";
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, CentreOfRow(*list, 1));
        EXPECT_EQ(text->toPlainText(), list->topLevelItem(1)->text(4));
        test::TakePicture(check, "CheckForm");
        test::Press(check, "CloseButton");
    });
    EXPECT_EQ(script.Seen(), Strings{"form|CheckForm|Check Book"});
    EXPECT_EQ(PaneText(), "a") << "closing goes nowhere";
}

TEST_F(CheckFormTest, doubleClick_goesToTheTopic)
{
    Start(WriteFaulty());
    test::ModalScript script;
    Check(script, [](QWidget& check) {
        auto* list = Find<QTreeWidget>(check, "FindingList");
        const QPoint row = CentreOfRow(*list, 1);
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, row);
        QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, row);
    });
    EXPECT_EQ(PaneText(), "c");
    EXPECT_EQ(Get<QComboBox>("TopicList").currentText(), QStringLiteral("3. C"));
}

TEST_F(CheckFormTest, enterInTheList_goesToTheTopic)
{
    Start(WriteFaulty());
    test::ModalScript script;
    Check(script, [](QWidget& check) {
        EXPECT_EQ(check.focusWidget(), Find<QTreeWidget>(check, "FindingList"));
        QTest::keyClick(check.focusWidget(), Qt::Key_Return);
    });
    EXPECT_EQ(PaneText(), "b");
}

TEST_F(CheckFormTest, goButton_goesToTheTopicOfTheRowThatTheKeysChose)
{
    Start(WriteFaulty());
    test::ModalScript script;
    Check(script, [](QWidget& check) {
        QTest::keyClick(check.focusWidget(), Qt::Key_Down);
        test::Press(check, "GoButton");
    });
    EXPECT_EQ(PaneText(), "c");
}

TEST_F(CheckFormTest, escape_goesNowhere)
{
    Start(WriteFaulty());
    test::ModalScript script;
    script.Escape();
    test::Press(form, "CheckItem");
    EXPECT_EQ(PaneText(), "a");
}

TEST_F(CheckFormTest, cleanBook_saysSoAndHasNoList)
{
    Start(WriteThree());
    test::ModalScript script;
    Check(script, [](QWidget& check) {
        EXPECT_EQ(LabelText(check, "SummaryLabel"),
                  "Nothing was found in Three.IDA that would surprise its author.");
        for (const char* name : {"FindingList", "TextBox", "GoButton", "NotesLabel"}) {
            EXPECT_FALSE(Find<QWidget>(check, name)->isVisible()) << name;
        }
        test::TakePicture(check, "CheckForm-clean");
        QTest::keyClick(&check, Qt::Key_Return);
    });
}

TEST_F(CheckFormTest, unsavedChangesInACleanBook_theWholeNoteIsSeen)
{
    Start(WriteThree());
    global.book.BookChanged = true;
    test::ModalScript script;
    Check(script, [](QWidget& check) {
        for (const char* name : {"SummaryLabel", "NotesLabel"}) {
            const auto* label = Find<QLabel>(check, name);
            EXPECT_GE(label->height(), label->heightForWidth(label->width())) << name;
        }
        test::TakePicture(check, "CheckForm-clean-unsaved");
        QTest::keyClick(&check, Qt::Key_Escape);
    });
    global.book.BookChanged = false;
}

TEST_F(CheckFormTest, slowDisk_showsABoxWhoseCancelKeepsWhatWasFound)
{
    std::string book = "LODESTAR BOOK V5.3\r\n[A]\r\n<XREF TOPIC=None></XREF>\r\n";
    for (int i = 0; i < 300000; ++i) {
        book += "a line of the topic, to make the book long enough for a box that shows how far it is\r\n";
    }
    Start(Write("Long.IDA", book));
    files.pause = 25;
    test::ModalScript script;
    script.Do([](QWidget& box) {
        EXPECT_EQ(box.findChild<QLabel*>()->text(), QStringLiteral("Checking Long.IDA"));
        QTest::mouseClick(box.findChild<QPushButton*>(), Qt::LeftButton);
    });
    Check(script, [this](QWidget& check) {
        files.pause = 0;
        EXPECT_EQ(LabelText(check, "NotesLabel"),
                  "The check was cancelled: this is what was found until then.");
        test::Press(check, "CloseButton");
    });
    EXPECT_EQ(script.Seen(), (Strings{"form|ProgressBox|Lodestar Advisor", "form|CheckForm|Check Book"}));
}

} // namespace
} // namespace ls
