// Steps of an author, in the forms that edit a book. Nothing is saved, so the book's file does not change.

#include "Tour.h"

#include "reader/window/AskRecoveryBox.h"
#include "recovery/FindJournals.h"
#include "render/pane/ReadingPane.h"

#include <QComboBox>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QtTest/qtestkeyboard.h>
#include <QtTest/qtestmouse.h>
#include <QtTest/qtestsystem.h>

#include <algorithm>

namespace ls {

namespace {

template <typename Control>
Control* In(const QWidget* window, const char* name)
{
    return window == nullptr ? nullptr : window->findChild<Control*>(QLatin1String(name));
}

} // namespace

bool Tour::TakeAuthor()
{
    const bool edited = WalkEditItem("EdTextItem", "TxEdForm", &Tour::WalkTextEditor) &&
                        TakeSteps({{"edited", &Tour::LookAtEditedTopic}}) &&
                        WalkEditItem("DelTopicItem", "DelTopicForm", &Tour::WalkRemoval) &&
                        WalkEditItem("ReorderItem", "MoveTopicsForm", &Tour::WalkMove) &&
                        WalkEditItem("EditPropertiesOption", "InfoForm", &Tour::WalkProperties);
    const auto* references = In<QPushButton>(&m_window, "XRButton");
    if (!edited || references == nullptr || !references->isVisible())
        return edited;
    return WalkForm(
        "XrefForm", [this] { return Press("XRButton"); }, &Tour::WalkReferences);
}

bool Tour::WalkEditItem(const char* item, const char* form, bool (Tour::*walk)())
{
    return Report(QStringLiteral("Edit"), OpenMenu("EditMenu")) &&
           WalkForm(
               form, [this, item] { return ClickItem(m_window, "EditMenu", item); }, walk);
}

Tour::Fault Tour::PressInForm(const char* button) const
{
    auto* found = In<QPushButton>(m_form, button);
    if (found == nullptr || !found->isVisible() || !found->isEnabled())
        return QStringLiteral("%1 cannot be pressed").arg(QLatin1String(button));
    QTest::mouseClick(found, Qt::LeftButton);
    return {};
}

bool Tour::WalkTextEditor()
{
    return TakeSteps({{"text", &Tour::LookAtText}, {"bold", &Tour::MakeBold}}) &&
           Report(QStringLiteral("Done"), PressInForm("SaveButton"));
}

Tour::Fault Tour::LookAtText()
{
    const auto* text = In<QPlainTextEdit>(m_form, "MainTxBox");
    if (text == nullptr || !m_form->isActiveWindow())
        return QStringLiteral("the editor is not the active window");
    if (!text->hasFocus() || text->toPlainText().isEmpty())
        return QStringLiteral("the text does not wait for the author");
    return {};
}

/// Types a line above the text, selects it by keys and makes it bold by the button.
Tour::Fault Tour::MakeBold()
{
    auto* text = In<QPlainTextEdit>(m_form, "MainTxBox");
    QTest::keyClick(text, Qt::Key_Home, Qt::ControlModifier);
    QTest::keyClicks(text, QStringLiteral("Written on tour"));
    QTest::keyClick(text, Qt::Key_Return);
    QTest::keyClick(text, Qt::Key_Up);
    QTest::keyClick(text, Qt::Key_End, Qt::ShiftModifier);
    if (Fault fault = PressInForm("BButton"); !fault.isEmpty())
        return fault;
    if (!text->toPlainText().startsWith(QStringLiteral("<B>Written on tour</B>\n")))
        return QStringLiteral("the markup does not stand around the selected text");
    return {};
}

Tour::Fault Tour::LookAtEditedTopic()
{
    const auto& runs = m_pane->Runs();
    const bool shown = std::any_of(runs.begin(), runs.end(), [](const Run& run) {
        return run.row == 1 && run.bold && run.text == "Written on tour";
    });
    return shown ? Fault() : QStringLiteral("the pane does not begin with the bold line");
}

bool Tour::WalkRemoval()
{
    return TakeSteps({{"remove", &Tour::CheckTopic}}) &&
           Report(QStringLiteral("Cancel"), PressInForm("CancelButton"));
}

Tour::Fault Tour::CheckTopic()
{
    auto* list = In<QListWidget>(m_form, "TopicListBox");
    if (list == nullptr || list->count() != m_list->count())
        return QStringLiteral("the list does not hold the book's topics");
    QTest::keyClick(list, Qt::Key_Home);
    QTest::keyClick(list, Qt::Key_Down);
    QTest::keyClick(list, Qt::Key_Space);
    return list->item(1)->checkState() == Qt::Checked ? Fault()
                                                      : QStringLiteral("the second topic is not checked");
}

bool Tour::WalkMove()
{
    return TakeSteps({{"move", &Tour::PickTopicToMove}, {"behind", &Tour::PickTarget}}) &&
           Report(QStringLiteral("Cancel"), PressInForm("CancelButton"));
}

Tour::Fault Tour::PickTopicToMove()
{
    auto* list = In<QListWidget>(m_form, "MoveFromList");
    if (list == nullptr || list->count() != m_list->count())
        return QStringLiteral("the list does not hold the book's topics");
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->item(1)).center());
    return list->selectedItems().size() == 1 ? Fault() : QStringLiteral("no topic is selected");
}

Tour::Fault Tour::PickTarget()
{
    if (Fault fault = PressInForm("DoneButton"); !fault.isEmpty())
        return fault;
    auto* list = In<QListWidget>(m_form, "MoveToList");
    if (!list->isVisible() || list->count() != m_list->count())
        return QStringLiteral("the second step does not offer the start and the topics that stay");
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->item(0)).center());
    return list->selectedItems().size() == 1 ? Fault() : QStringLiteral("no place is selected");
}

bool Tour::WalkProperties()
{
    return TakeSteps({{"properties", &Tour::LookAtForm}}) &&
           Report(QStringLiteral("Cancel"), PressInForm("CancelBox"));
}

Tour::Fault Tour::LookAtForm()
{
    return m_form != nullptr && QTest::qWaitForWindowActive(m_form)
               ? Fault()
               : QStringLiteral("the form is not the active window");
}

bool Tour::WalkReferences()
{
    return TakeSteps({{"references", &Tour::PickReference}}) &&
           Report(QStringLiteral("Close"), PressInForm("CloseButton"));
}

// Checks the book's file, after the steps above have changed topics in memory.
bool Tour::TakeCheck()
{
    return Report(QStringLiteral("Action"), OpenMenu("ActionMenu")) &&
           WalkForm(
               "CheckForm", [this] { return ClickItem(m_window, "ActionMenu", "CheckItem"); },
               &Tour::WalkCheck);
}

bool Tour::WalkCheck()
{
    return TakeSteps({{"check", &Tour::LookAtForm}}) &&
           Report(QStringLiteral("Close"), PressInForm("CloseButton"));
}

// Shows the question that the next start would ask if the program were killed now.
bool Tour::TakeRecovery()
{
    return WalkForm(
        "RecoveryBox",
        [this] {
            JournalReading reading{JournalState::Whole, {}};
            reading.journal.book = JournalBook{"/home/ann/books/Guide.IDA", 1, true};
            const RecoveryChoice choice =
                AskRecoveryBox(&m_window, RecoveryQuestion(reading, JournalFit::Fits));
            return choice == RecoveryChoice::Later ? Fault() : QStringLiteral("closing it is not Later");
        },
        &Tour::WalkRecovery);
}

bool Tour::WalkRecovery()
{
    return TakeSteps({{"recovery", &Tour::LookAtForm}});
}

Tour::Fault Tour::PickReference()
{
    for (const char* name : {"ToList", "InList"}) {
        auto* list = In<QListWidget>(m_form, name);
        if (list != nullptr && list->isVisible()) {
            QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                              list->visualItemRect(list->item(0)).center());
            return list->selectedItems().size() == 1 ? Fault() : QStringLiteral("no reference is selected");
        }
    }
    return QStringLiteral("neither list is there");
}

} // namespace ls
