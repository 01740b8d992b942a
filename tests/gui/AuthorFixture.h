#pragma once

#include "gui/MainFormFixture.h"

#include <QListWidget>
#include <QPlainTextEdit>

namespace ls {

/// The line that `EditTopicOnShow` types.
inline constexpr const char* TypedLine = "A line that was typed";

/// The real window on real files, used as an author uses it.
struct AuthorFixture : MainFormFixture
{
    std::string Read(const std::string& path)
    {
        QFile file(QString::fromStdString(path));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path;
        return file.readAll().toStdString();
    }

    /// Starts the program. The user opens that file and locks it for editing.
    void StartWith(const std::string& path)
    {
        test::ModalScript script;
        script.Do([path](QWidget& chooser) {
            test::Find<QAbstractButton>(chooser, "ExclusiveOption")->click();
            ChooseFile(chooser, path);
        });
        Start("");
    }

    /// Starts the program without a book.
    void StartWithoutBook()
    {
        test::ModalScript script;
        script.Escape();
        Start("");
    }

    /// Saves under the suggested name, which must be `name`, and checks the message at the end.
    void Save(const std::string& name)
    {
        test::ModalScript script;
        script
            .Do([name](QWidget& chooser) {
                const std::string offered =
                    test::Find<QComboBox>(chooser, "FilenameBox")->currentText().toStdString();
                EXPECT_EQ(offered.substr(offered.rfind('/') + 1), name);
                test::Press(chooser, "OKButton");
            })
            .Answer(Reply::Ok);
        test::Press(form, "SaveItem");
        EXPECT_EQ(script.Seen(), (Strings{"form|FileForm|Lodestar Advisor Save",
                                          "information|Lodestar Advisor|File saved"}));
        EXPECT_EQ(global.book.BookPath, Path(name)) << "the program goes on in the new file";
        EXPECT_TRUE(global.book.LockBook);
        EXPECT_FALSE(global.book.BookChanged);
        EXPECT_EQ(Get<QComboBox>("TopicList").currentIndex(), 0);
    }

    /// Opens the open book once more, as a user would the next day.
    void OpenAgain()
    {
        test::ModalScript script;
        Open(script, global.book.BookPath);
        EXPECT_EQ(script.Seen().size(), 1U);
    }

    void GoTo(int index)
    {
        Select(index);
        test::Press(form, "GoToButton");
    }

    /// Types at the start of the topic on show, makes the text bold with the button, and presses Done.
    void EditTopicOnShow()
    {
        test::ModalScript script;
        script.Do([](QWidget& editor) {
            auto* box = test::Find<QPlainTextEdit>(editor, "MainTxBox");
            QTest::keyClick(box, Qt::Key_Home, Qt::ControlModifier);
            QTest::keyClick(box, Qt::Key_Return);
            QTest::keyClick(box, Qt::Key_Up);
            QTest::keyClicks(box, QString::fromLatin1(TypedLine));
            QTest::keyClick(box, Qt::Key_Home, Qt::ShiftModifier);
            test::Press(editor, "BButton");
            test::Press(editor, "SaveButton");
        });
        test::Press(form, "EdTextItem");
        EXPECT_EQ(script.Seen(), Strings{"form|TxEdForm|Topic Text Edit"});
    }

    /// Every line of the topic on show, with bold text in brackets. Scrolls through the topic.
    Strings ShownText()
    {
        auto& bar = Get<QScrollBar>("VScroll1");
        Strings lines;
        for (int top = bar.minimum(); top <= bar.maximum(); ++top) {
            bar.setValue(top);
            std::string line;
            for (const auto& run : Get<ReadingPane>("MsgPic").Runs()) {
                if (run.row == 1) {
                    line += run.bold ? "[" + run.text + "]" : run.text;
                }
            }
            lines.push_back(line);
        }
        bar.setValue(bar.minimum());
        return lines;
    }

    /// The bytes of every topic in the file of the open book, from its header line on.
    Strings TopicBytes()
    {
        const Book& book = global.book;
        const std::string bytes = Read(book.OpenPath);
        Strings topics;
        for (int i = 1; i <= book.TopicCount; ++i) {
            const bool last = i == book.TopicCount;
            const FilePos from = book.TopicPos(i);
            const FilePos end = last ? book.ScanEndPos : book.TopicPos(i + 1);
            topics.push_back(
                bytes.substr(static_cast<std::size_t>(from - 1), static_cast<std::size_t>(end - from)));
        }
        return topics;
    }

    /// The bytes that a save must write for a topic in memory.
    std::string EditedBytes(int number)
    {
        const TopicRec& rec = global.book.TopicRecs(number);
        return global.book.TopicNames(number) + "\r\n" + rec.Text + "\r\n" +
               (rec.Logic.empty() ? "" : rec.Logic + "\r\n");
    }

    /// Checks or unchecks the boxes of these rows in the form that removes topics.
    void ToggleRemoved(const std::vector<int>& rows)
    {
        test::ModalScript script;
        script.Do([&rows](QWidget& removal) {
            auto* list = test::Find<QListWidget>(removal, "TopicListBox");
            for (const int row : rows) {
                list->setCurrentRow(row);
                QTest::keyClick(list, Qt::Key_Space);
            }
            test::Press(removal, "OKButton");
        });
        test::Press(form, "DelTopicItem");
    }

    /// Moves the topic of that row to the start; -1 is the last row.
    void MoveToStart(int row)
    {
        test::ModalScript script;
        script.Do([row](QWidget& move) {
            auto* from = test::Find<QListWidget>(move, "MoveFromList");
            from->setCurrentRow(row < 0 ? from->count() - 1 : row);
            test::Press(move, "DoneButton");
            test::Find<QListWidget>(move, "MoveToList")->setCurrentRow(0);
            test::Press(move, "DoneButton");
        });
        test::Press(form, "ReorderItem");
    }

    /// Adds a topic with that name and text: Add Topic, the name, the text, Done.
    void Add(const std::string& name, const QString& text)
    {
        test::ModalScript script;
        script.Enter(name).Do([text](QWidget& editor) {
            EXPECT_EQ(test::Find<QPlainTextEdit>(editor, "MainTxBox")->toPlainText(),
                      QStringLiteral("Insert text here."));
            test::Type(editor, "MainTxBox", text);
            test::Press(editor, "SaveButton");
        });
        test::Press(form, "AddTopicItem");
    }

    void EnterProperties()
    {
        test::ModalScript script;
        script.Do([](QWidget& info) {
            test::Type(info, "AuthorBox", QStringLiteral("Ann Author"));
            test::Type(info, "CopyrightBox", QStringLiteral("2001 A/B"));
            test::Type(info, "WebURLBox", QStringLiteral("http://localhost/a?b=c"));
            test::Find<QAbstractButton>(info, "WebPostCheck")->setChecked(true);
            test::Press(info, "OKBox");
        });
        test::Press(form, "EditPropertiesOption");
    }

    Strings Titles()
    {
        Strings titles;
        for (const std::string& item : ItemTexts()) {
            titles.push_back(item.substr(item.find(". ") + 2));
        }
        return titles;
    }
};

} // namespace ls
