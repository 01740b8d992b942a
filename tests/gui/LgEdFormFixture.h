#pragma once

#include "authoring/LgEdForm.h"
#include "book/Book.h"
#include "gui/Controls.h"
#include "support/TestSeams.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QPlainTextEdit>
#include <QTest>

#include <memory>
#include <string>
#include <vector>

namespace ls {

using Strings = std::vector<std::string>;

/// The real logic editor on a book in memory; messages and input boxes come from a script.
struct LgEdFormFixture : testing::Test
{
    test::TestSeams world;
    Book book;
    std::unique_ptr<LgEdForm> form;

    LgEdFormFixture()
    {
        EXPECT_TRUE(book.TopicCount.Add());
        book.TopicNames(1) = "[A]";
        book.CurrentTopicNo = 1;
        book.CurrentTopicName = "[A]";
        book.TopicRecs(1).Text = "a\r\n";
    }

    /// The variables RISK, with the choices HIGH and LOW, AGE, with YOUNG and OLD, and NOTE with none.
    [[nodiscard]] static std::string Block()
    {
        return test::CrLf({"<IXML>",
                           "<LOGIC>",
                           "TARGET RISK",
                           "RISK(HIGH)=AGE(OLD)",
                           "</LOGIC>",
                           "<DEFINITIONS>",
                           "",
                           "<Q ID=RISK></Q>",
                           "",
                           "<AV ID=RISK(HIGH)>Take care.</AV>",
                           "",
                           "<AV ID=RISK(LOW)>Do not worry.</AV>",
                           "",
                           "<Q ID=AGE>How old are you?</Q>",
                           "",
                           "<AV ID=AGE(YOUNG)></AV>",
                           "",
                           "<AV ID=AGE(OLD)></AV>",
                           "",
                           "<Q ID=NOTE></Q>",
                           "",
                           "</DEFINITIONS>",
                           "</IXML>"});
    }

    /// The editor as it comes up, nothing chosen in its lists.
    void LoadUntouched(const std::string& block = Block())
    {
        book.TopicRecs(1).Logic = block;
        form = std::make_unique<LgEdForm>(nullptr, book, world.Get());
        ASSERT_TRUE(form->Form_Load());
        test::ShowActive(*form);
    }

    /// The same with the first variable picked, if there is one.
    void Load(const std::string& block = Block())
    {
        LoadUntouched(block);
        if (List("VarCombo").count() > 0) {
            Pick("VarCombo", List("VarCombo").itemText(0).toUtf8().constData());
            Box("LogicTextbox").setFocus();
        }
    }

    [[nodiscard]] QPlainTextEdit& Box(const char* name) const
    {
        return *test::Find<QPlainTextEdit>(*form, name);
    }
    [[nodiscard]] QComboBox& List(const char* name) const { return *test::Find<QComboBox>(*form, name); }
    [[nodiscard]] std::string Text(const char* name) const { return Box(name).toPlainText().toStdString(); }
    [[nodiscard]] std::string Logic() const { return Text("LogicTextbox"); }
    [[nodiscard]] std::string Question() const { return Text("VQuestionBox"); }
    [[nodiscard]] std::string Advice() const { return Text("VCAnswerBox"); }
    [[nodiscard]] std::string Picked(const char* name) const
    {
        return List(name).currentText().toStdString();
    }

    [[nodiscard]] Strings Entries(const char* name) const
    {
        Strings entries;
        for (int i = 0; i < List(name).count(); ++i) {
            entries.push_back(List(name).itemText(i).toStdString());
        }
        return entries;
    }

    /// Chooses an entry as a user does with the keys.
    void Pick(const char* name, const char* entry) const
    {
        QComboBox& list = List(name);
        const int wanted = list.findText(QString::fromUtf8(entry));
        ASSERT_GE(wanted, 0) << entry;
        list.setFocus();
        while (list.currentIndex() < wanted) {
            QTest::keyClick(&list, Qt::Key_Down);
        }
        while (list.currentIndex() > wanted) {
            QTest::keyClick(&list, Qt::Key_Up);
        }
    }

    void Type(const char* name, const char* text) const { test::Type(*form, name, QString::fromUtf8(text)); }

    /// Presses a key where the focus is.
    void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const
    {
        QTest::keyClick(form->windowHandle(), key, modifiers);
    }

    void Caret(int position) const
    {
        QTextCursor cursor = Box("LogicTextbox").textCursor();
        cursor.setPosition(position);
        Box("LogicTextbox").setTextCursor(cursor);
    }

    /// Answers the next input boxes; nothing stands for Cancel.
    void Answer(std::vector<std::optional<std::string>> inputs)
    {
        world.messages.inputs.assign(inputs.begin(), inputs.end());
    }

    /// Presses Done, which must close the editor, and gives the block that it stored.
    std::string Done()
    {
        test::Press(*form, "SaveButton");
        EXPECT_FALSE(form->isVisible());
        EXPECT_EQ(Boxes(), Strings{"information|Lodestar Advisor|The changes will not take effect until you "
                                   "save the file."});
        return book.TopicRecs(1).Logic;
    }

    Strings Boxes() { return world.messages.Take(); }
};

} // namespace ls
