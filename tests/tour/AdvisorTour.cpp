// Steps in the advisor's window.

#include "Tour.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QtTest/qtestkeyboard.h>
#include <QtTest/qtestsystem.h>

#include <algorithm>

namespace ls {

namespace {

constexpr int MostQuestions = 30; // a dialogue with more questions counts as endless
constexpr int SettleMs = 250;

template <typename Control>
Control* In(const QWidget* window, const char* name)
{
    return window == nullptr ? nullptr : window->findChild<Control*>(QLatin1String(name));
}

QString TextIn(const QWidget* window)
{
    const auto* text = In<QPlainTextEdit>(window, "MessageBox");
    return text == nullptr ? QString() : text->toPlainText();
}

bool AsksMore(const QWidget* window)
{
    const auto* next = In<QPushButton>(window, "NextButton");
    return next != nullptr && next->text() == QStringLiteral("&Next");
}

} // namespace

bool Tour::TakeAdvisor()
{
    if (!TakeSteps({{"open", &Tour::LookAtAdvisorTopic}}))
        return false;
    return WalkForm(
               "AdvForm", [this] { return Press("AdvisorButton"); }, &Tour::WalkAdvisor) &&
           TakeSteps({{"closed", &Tour::LookAtAdvisorTopic}}) && TakeLogicEditor();
}

bool Tour::WalkAdvisor()
{
    int questions = 0;
    do {
        if (++questions > MostQuestions)
            return Report(QStringLiteral("questions"), QStringLiteral("they do not end"));
        if (!TakeSteps({{"question", &Tour::LookAtQuestion},
                        {"answers", &Tour::OpenAnswers},
                        {"answer", &Tour::PickAnswer}}))
            return false;
        if (!Report(QStringLiteral("Next"), PressNext()))
            return false;
    } while (AsksMore(m_form));
    return TakeSteps({{"advice", &Tour::LookAtAdvice}}) && Report(QStringLiteral("Close"), CloseAdvisor());
}

Tour::Fault Tour::LookAtAdvisorTopic()
{
    if (Fault fault = FindControls(); !fault.isEmpty())
        return fault;
    if (!QTest::qWaitForWindowActive(&m_window))
        return QStringLiteral("the window is not the active one");
    if (Shown().isEmpty())
        return QStringLiteral("the pane is empty");
    const auto* button = In<QPushButton>(&m_window, "AdvisorButton");
    if (button == nullptr || !button->isVisible() || !button->isEnabled())
        return QStringLiteral("the topic offers no advisor");
    return {};
}

Tour::Fault Tour::LookAtQuestion()
{
    const auto* answers = In<QComboBox>(m_form, "AnswerCombo");
    if (answers == nullptr || !QTest::qWaitForWindowActive(m_form))
        return QStringLiteral("the advisor's window is not the active one");
    if (TextIn(m_form).isEmpty())
        return QStringLiteral("there is no question");
    if (!answers->hasFocus() || answers->count() < 3 || !answers->currentText().isEmpty())
        return QStringLiteral("the list does not wait for an answer");
    return {};
}

Tour::Fault Tour::OpenAnswers()
{
    QTest::keyClick(m_form->windowHandle(), Qt::Key_Down, Qt::AltModifier);
    QTest::qWait(SettleMs);
    return QApplication::activePopupWidget() != nullptr ? Fault() : QStringLiteral("the list does not open");
}

/// Picks the entry after the empty one: "? - unsure" if it is offered.
Tour::Fault Tour::PickAnswer()
{
    auto* answers = In<QComboBox>(m_form, "AnswerCombo");
    QTest::keyClick(answers->view(), Qt::Key_Down);
    QTest::keyClick(answers->view(), Qt::Key_Return);
    QTest::qWait(SettleMs);
    if (QApplication::activePopupWidget() != nullptr)
        return QStringLiteral("the list stays open");
    return answers->currentIndex() == 1 ? Fault() : QStringLiteral("the answer was not taken");
}

/// Presses Enter; the text must change.
Tour::Fault Tour::PressNext()
{
    const QString before = TextIn(m_form);
    QTest::keyClick(m_form->windowHandle(), Qt::Key_Return);
    return TextIn(m_form) != before ? Fault() : QStringLiteral("Enter leads no further");
}

Tour::Fault Tour::LookAtAdvice()
{
    const auto* answers = In<QComboBox>(m_form, "AnswerCombo");
    const auto* next = In<QPushButton>(m_form, "NextButton");
    if (answers == nullptr || answers->isVisible())
        return QStringLiteral("the list is still there");
    if (TextIn(m_form).isEmpty())
        return QStringLiteral("there is no advice");
    if (next->text() != QStringLiteral("&Close") || !next->hasFocus())
        return QStringLiteral("the button does not offer to close");
    return {};
}

Tour::Fault Tour::CloseAdvisor()
{
    QTest::keyClick(m_form->windowHandle(), Qt::Key_Return);
    return m_form->isVisible() ? QStringLiteral("Enter does not close the window") : Fault();
}

} // namespace ls
