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

/// The real logic editor on a book in memory. A script answers messages and input boxes.
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

    /// A block with the variables RISK (choices HIGH and LOW), AGE (YOUNG and OLD) and NOTE (no choices).
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

    /// Opens the editor and selects nothing in its lists.
    void LoadUntouched(const std::string& block = Block())
    {
        book.TopicRecs(1).Logic = block;
        form = std::make_unique<LgEdForm>(nullptr, book, world.Get());
        ASSERT_TRUE(form->Form_Load());
        test::ShowActive(*form);
    }

    /// Opens the editor and picks the first variable, if there is one.
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

    /// Selects an entry with the keys, as a user does.
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

    /// Presses a key in the control that has the focus.
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

    /// Sets the answers to the next input boxes. An empty answer means Cancel.
    void Answer(std::vector<std::optional<std::string>> inputs)
    {
        world.messages.inputs.assign(inputs.begin(), inputs.end());
    }

    /// Presses Done, which must close the editor, and returns the block that it stored.
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
