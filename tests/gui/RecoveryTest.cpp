// The recovery journal of the real main window.

#include "book/BookLoader.h"
#include "forms/Notice.h"
#include "gui/AuthorFixture.h"
#include "reader/window/AskRecoveryBox.h"
#include "reader/window/JournalKeeper.h"
#include "recovery/FindJournals.h"
#include "recovery/JournalFile.h"
#include "recovery/OfferJournals.h"
#include "recovery/OwnJournal.h"

#include <QAbstractButton>
#include <QDialog>
#include <QElapsedTimer>
#include <QListWidget>
#include <QMessageBox>

#include <algorithm>
#include <random>

namespace ls {
namespace {

struct RecoveryTest : AuthorFixture
{
    RecoveryTest() { QObject::connect(&form, &MainForm::CommandDone, &keeper, &JournalKeeper::Keep); }
    ~RecoveryTest() override { global.book.BookChanged = false; } // otherwise the window asks when it closes

    std::string state = Path("state");
    OwnJournal journal{seams, state, [] { return "own"; }};
    JournalKeeper keeper{global.book, seams, journal, [this] { return form.Busy(); },
                         [this](const std::string& text) { ShowNotice(&form, text); }};

    /// The journal on disk now; empty if there is none.
    Journal Standing()
    {
        JournalReading reading;
        if (QFile::exists(QString::fromStdString(state + "/own.journal"))) {
            EXPECT_EQ(ReadJournal(files, state + "/own.journal", reading), FileError{});
            EXPECT_EQ(reading.state, JournalState::Whole);
        }
        return reading.journal;
    }

    /// Opens the form of that item, runs `step` in it, waits until the typed text is in the journal, and
    /// cancels the form. Returns the journal.
    Journal Typed(const char* item, const std::function<void(QWidget&)>& step)
    {
        Journal seen;
        test::ModalScript script;
        script.Do([&](QWidget& editor) {
            step(editor);
            EXPECT_TRUE(test::WaitFor([&] {
                seen = Standing();
                return !seen.running.None();
            }));
            static_cast<QDialog&>(editor).done(QDialog::Rejected);
        });
        test::Press(form, item);
        return seen;
    }
};

TEST_F(RecoveryTest, acceptedEdit_standsAtOnce)
{
    Start(WriteThree());
    EXPECT_TRUE(Standing().recs.empty());
    EditTopicOnShow();
    const Journal standing = Standing();
    ASSERT_EQ(standing.recs.size(), 1U);
    EXPECT_EQ(standing.recs.front().text, global.book.TopicRecs(1).Text);
    EXPECT_TRUE(standing.running.None());
    EXPECT_EQ(standing.book->path, Path("Three.IDA"));
}

TEST_F(RecoveryTest, typedText_standsWhileTheEditorIsOpenAndGoesWithCancel)
{
    Start(WriteThree());
    keeper.Start();
    const Journal seen = Typed("EdTextItem", [](QWidget& editor) {
        auto* box = test::Find<QPlainTextEdit>(editor, "MainTxBox");
        box->selectAll();
        box->insertPlainText(QStringLiteral("typed \u2192")); // as pasting does
    });
    ASSERT_TRUE(seen.running.text);
    EXPECT_EQ(*seen.running.text, (RunningText{1, "[A]", "typed \xE2\x86\x92"}));
    EXPECT_FALSE(journal.Stands());
}

TEST_F(RecoveryTest, typedProperties_standWhileTheFormIsOpen)
{
    Start(WriteThree());
    keeper.Start();
    const Journal seen = Typed("EditPropertiesOption",
                               [](QWidget& info) { test::Type(info, "AuthorBox", QStringLiteral("Ann")); });
    ASSERT_TRUE(seen.running.properties);
    EXPECT_EQ(*seen.running.properties, (Properties{"Ann", "", "", false}));
}

TEST_F(RecoveryTest, typedLogic_standsWhileTheEditorIsOpen)
{
    Start(WriteThree());
    keeper.Start();
    const Journal seen = Typed("AdviceEdItem", [](QWidget& editor) {
        test::Type(editor, "LogicTextbox", QStringLiteral("TARGET GO"));
    });
    ASSERT_TRUE(seen.running.logic);
    EXPECT_EQ(seen.running.logic->name, "[A]");
    EXPECT_NE(seen.running.logic->utf8.find("TARGET GO"), std::string::npos);
}

TEST_F(RecoveryTest, checkedForRemoval_standsWhileTheFormIsOpen)
{
    Start(WriteThree());
    keeper.Start();
    const Journal seen = Typed("DelTopicItem", [](QWidget& removal) {
        auto* list = test::Find<QListWidget>(removal, "TopicListBox");
        list->setCurrentRow(1);
        QTest::keyClick(list, Qt::Key_Space);
    });
    EXPECT_EQ(seen.running.removals, (std::vector<RunningRemoval>{{2, "[B]", true}}));
    EXPECT_FALSE(journal.Stands());
}

// The author may leave the question about "[...]" open for a long time. The journal must be written before.
TEST_F(RecoveryTest, boxOverTheEditor_whatWasTypedBeforeItStands)
{
    Start(WriteThree());
    keeper.Start();
    Journal seen;
    test::ModalScript script;
    script
        .Do([](QWidget& editor) {
            test::Type(editor, "MainTxBox", QStringLiteral("[Heading]"));
            test::Press(editor, "SaveButton"); // returns after the answer to the box
            static_cast<QDialog&>(editor).done(QDialog::Rejected);
        })
        .Do([this, &seen](QWidget& box) {
            EXPECT_TRUE(test::WaitFor([&] {
                seen = Standing();
                return !seen.running.None();
            }));
            static_cast<QMessageBox&>(box).button(QMessageBox::Cancel)->click();
        });
    test::Press(form, "EdTextItem");
    ASSERT_TRUE(seen.running.text);
    EXPECT_EQ(seen.running.text->utf8, "[Heading]");
}

// Save Info accepts the properties while the form that asks for a file is still open.
TEST_F(RecoveryTest, propertiesAcceptedWhileSaving_stand)
{
    Start(WriteThree());
    keeper.Start();
    EditTopicOnShow();
    Journal seen;
    test::ModalScript script;
    script
        .Answer(Reply::Ok) // it was not locked
        .Do([this, &seen](QWidget& chooser) {
            test::Press(chooser, "InfoButton");
            EXPECT_TRUE(test::WaitFor([&] {
                seen = Standing();
                return seen.header && seen.header->author == "Ann" && !seen.running.properties;
            }));
            static_cast<QDialog&>(chooser).done(QDialog::Rejected);
        })
        .Do([](QWidget& info) {
            test::Type(info, "AuthorBox", QStringLiteral("Ann"));
            test::Press(info, "OKBox");
        });
    test::Press(form, "SaveItem");
    ASSERT_TRUE(seen.header);
    EXPECT_EQ(seen.header->author, "Ann");
}

TEST_F(RecoveryTest, topicAddedAndItsEditorOpen_stands)
{
    Start(WriteThree());
    test::ModalScript script;
    script.Enter("New").Do([this](QWidget& editor) {
        keeper.Keep();
        EXPECT_EQ(Standing().recs.size(), 1U);
        static_cast<QDialog&>(editor).done(QDialog::Rejected);
    });
    test::Press(form, "AddTopicItem");
}

// Typing must be in the journal within two seconds. The test types at random moments between two looks, and
// reads the file as another program would.
TEST_F(RecoveryTest, typing_standsWithinTwoSeconds)
{
    constexpr int rounds = 8;
    Start(WriteThree());
    keeper.Start();
    std::mt19937 chance(std::random_device{}());
    qint64 longest = 0;
    test::ModalScript script;
    script.Do([&](QWidget& editor) {
        auto* box = test::Find<QPlainTextEdit>(editor, "MainTxBox");
        for (int round = 1; round <= rounds; ++round) {
            QTest::qWait(static_cast<int>(chance() % 1000));
            const std::string mark = "typed in round " + std::to_string(round) + ".";
            box->insertPlainText(QString::fromStdString(mark));
            QElapsedTimer since;
            since.start();
            EXPECT_TRUE(test::WaitFor([&] {
                const std::optional<RunningText> text = Standing().running.text;
                return text && text->utf8.find(mark) != std::string::npos;
            }));
            longest = std::max(longest, since.elapsed());
        }
        static_cast<QDialog&>(editor).done(QDialog::Rejected);
    });
    test::Press(form, "EdTextItem");
    RecordProperty("LongestMilliseconds", static_cast<int>(longest));
    EXPECT_LE(longest, JournalMaxAgeMilliseconds);
}

TEST_F(RecoveryTest, cannotBeWritten_isToldOnceWithoutStoppingTheWork)
{
    Start(WriteThree());
    Write("state", "a file where the folder should be");
    keeper.Start();
    test::ModalScript script;
    script.Do([](QWidget& editor) {
        auto* box = test::Find<QPlainTextEdit>(editor, "MainTxBox");
        QTest::keyClicks(box, QStringLiteral("one"));
        EXPECT_TRUE(test::WaitFor([&] { return editor.findChild<QMessageBox*>() != nullptr; }));
        auto* notice = editor.findChild<QMessageBox*>(QStringLiteral("NoticeBox"));
        ASSERT_NE(notice, nullptr);
        EXPECT_FALSE(notice->isModal());
        EXPECT_TRUE(notice->text().contains(QStringLiteral("due to error #75")));
        QTest::keyClicks(box, QStringLiteral(" two"));
        EXPECT_TRUE(box->toPlainText().startsWith(QStringLiteral("one two")));
        test::TakePicture(*notice, "JournalNotice");
        notice->button(QMessageBox::Ok)->click();
        QTest::qWait(JournalIntervalMilliseconds + 200);
        EXPECT_EQ(editor.findChild<QMessageBox*>(), nullptr);
        static_cast<QDialog&>(editor).done(QDialog::Rejected);
    });
    test::Press(form, "EdTextItem");
}

// The journal is not written between the typing and the fault.
TEST_F(RecoveryTest, faultInTheTextEditor_keepsWhatWasTypedUntilThen)
{
    Start(WriteThree());
    test::ModalScript script;
    script.Do([this](QWidget& editor) {
        test::Type(editor, "MainTxBox", QStringLiteral("typed"));
        EXPECT_FALSE(journal.Stands());
        EndProgram(global.end, "a fault");
        static_cast<QDialog&>(editor).done(QDialog::Rejected);
    });
    test::Press(form, "EdTextItem");
    keeper.Finish();
    ASSERT_TRUE(Standing().running.text);
    EXPECT_EQ(Standing().running.text->utf8, "typed");
    EXPECT_EQ(Standing().recs.size(), 1U);
}

TEST_F(RecoveryTest, recoveryBox_eachButton_givesItsChoice)
{
    const struct
    {
        const char* button;
        RecoveryChoice choice;
    } rows[] = {{"&Recover", RecoveryChoice::Recover},
                {"&Discard", RecoveryChoice::Discard},
                {"&Later", RecoveryChoice::Later}};
    for (const auto& row : rows) {
        test::ModalScript script;
        script.Do([&row](QWidget& box) {
            test::TakePicture(box, "RecoveryBox");
            for (QAbstractButton* button : box.findChildren<QAbstractButton*>()) {
                if (button->text() == QString::fromLatin1(row.button)) {
                    button->click();
                    return;
                }
            }
            ADD_FAILURE() << row.button;
        });
        EXPECT_EQ(AskRecoveryBox(&form, "Recover?"), row.choice) << row.button;
    }
    test::ModalScript script;
    script.Escape();
    EXPECT_EQ(AskRecoveryBox(&form, "Recover?"), RecoveryChoice::Later);
    script.Do([](QWidget& box) { QTest::keyClick(&box, Qt::Key_Return); });
    EXPECT_EQ(AskRecoveryBox(&form, "Recover?"), RecoveryChoice::Recover) << "Enter is safe, too";
}

TEST_F(RecoveryTest, recoveredAtTheStart_isShownAndCanBeSaved)
{
    WriteThree();
    {
        Book book;
        book.BookPath = Path("Three.IDA");
        ASSERT_TRUE(OpenBook(book, seams) && ScanBook(book, seams));
        book.TopicRecs(1).Text = "recovered\r\n";
        book.BookChanged = true;
        OwnJournal killed(seams, state, [] { return "left"; });
        ASSERT_EQ(killed.Update(book, {}, 1), FileError{});
    }
    CommandLine commandLine;
    commandLine.iniDir = Path("");
    form.Form_Load(commandLine, [this] {
        return OfferJournals(state, global.book, seams, journal,
                             [](const std::string&) { return RecoveryChoice::Recover; });
    });
    form.show();
    Settle(); // the Open form must not appear
    EXPECT_EQ(PaneText(), "recovered");
    EXPECT_EQ(ItemTexts(), (Strings{"1. A", "2. B", "3. C"}));
    EXPECT_TRUE(global.book.BookChanged);
    EXPECT_TRUE(journal.Stands());
}

} // namespace
} // namespace ls
