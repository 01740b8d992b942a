// Steps in the editor of a topic's logic.

#include "Tour.h"

#include <QApplication>
#include <QComboBox>
#include <QPlainTextEdit>
#include <QtTest/qtestkeyboard.h>
#include <QtTest/qtestsystem.h>

namespace ls {

namespace {

constexpr int SettleMs = 250;

QString TextIn(const QWidget* window, const char* box)
{
    const auto* text = window == nullptr ? nullptr : window->findChild<QPlainTextEdit*>(QLatin1String(box));
    return text == nullptr ? QString() : text->toPlainText();
}

} // namespace

bool Tour::TakeLogicEditor()
{
    return WalkEditItem("AdviceEdItem", "LgEdForm", &Tour::WalkEditor);
}

bool Tour::WalkEditor()
{
    if (!TakeSteps({{"editor", &Tour::LookAtEditor},
                    {"variable", &Tour::PickVariable},
                    {"choice", &Tour::PickChoice}}))
        return false;
    if (!Report(QStringLiteral("Show"), OpenMenu(*m_form, "ShowMenu")))
        return false;
    const QPointer<QWidget> editor = m_form;
    const auto open = [editor] { return ClickItem(*editor, "ShowMenu", "ShowSpecItem"); };
    if (!WalkForm("TempForm", open, &Tour::WalkSpecification))
        return false;
    QTest::keyClick(m_form->windowHandle(), Qt::Key_Escape);
    const bool closed = !m_form->isVisible();
    return Report(QStringLiteral("Escape"), closed ? Fault() : QStringLiteral("the editor stays open"));
}

bool Tour::WalkSpecification()
{
    return TakeSteps({{"specification", &Tour::LookAtSpecification}});
}

Tour::Fault Tour::LookAtEditor()
{
    const auto* variables =
        m_form == nullptr ? nullptr : m_form->findChild<QComboBox*>(QStringLiteral("VarCombo"));
    if (variables == nullptr || !QTest::qWaitForWindowActive(m_form))
        return QStringLiteral("the editor is not the active window");
    if (variables->count() < 2)
        return QStringLiteral("the tour needs a topic of two variables or more");
    if (TextIn(m_form, "LogicTextbox").isEmpty())
        return QStringLiteral("there are no logic lines");
    return {};
}

/// Picks by keys the first variable that has a question.
Tour::Fault Tour::PickVariable()
{
    auto* variables = m_form->findChild<QComboBox*>(QStringLiteral("VarCombo"));
    variables->setFocus();
    for (int i = 0; i < variables->count() && TextIn(m_form, "VQuestionBox").isEmpty(); ++i) {
        QTest::keyClick(m_form->windowHandle(), Qt::Key_Down);
        QTest::qWait(SettleMs);
        if (variables->currentIndex() != i)
            return QStringLiteral("variable %1 was not picked").arg(i + 1);
    }
    return TextIn(m_form, "VQuestionBox").isEmpty() ? QStringLiteral("no question is shown") : Fault();
}

/// The first variable is the goal. Its first choice is shown with its advice; the second is picked by keys.
Tour::Fault Tour::PickChoice()
{
    auto* variables = m_form->findChild<QComboBox*>(QStringLiteral("VarCombo"));
    auto* choices = m_form->findChild<QComboBox*>(QStringLiteral("AnswerCombo"));
    QTest::keyClick(m_form->windowHandle(), Qt::Key_Home);
    if (variables->currentIndex() != 0 || choices->count() < 2)
        return QStringLiteral("the choices of the first variable are not listed");
    const QString before = TextIn(m_form, "VCAnswerBox");
    choices->setFocus();
    QTest::keyClick(m_form->windowHandle(), Qt::Key_Down);
    const QString after = TextIn(m_form, "VCAnswerBox");
    return after.isEmpty() || after == before ? QStringLiteral("the advice did not change") : Fault();
}

Tour::Fault Tour::LookAtSpecification()
{
    if (m_form == nullptr || !QTest::qWaitForWindowActive(m_form))
        return QStringLiteral("the results are not in the active window");
    if (!TextIn(m_form, "Text1").startsWith(QStringLiteral("<IXML>\n<LOGIC>\n")))
        return QStringLiteral("the block does not begin as it should");
    return {};
}

} // namespace ls
