#include "gui/ModalScript.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialogButtonBox>
#include <QEvent>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>

#include <algorithm>

namespace ls::test {

namespace {

constexpr int MillisecondsBetweenLooks = 5;

std::string PictureName(QMessageBox::Icon icon)
{
    switch (icon) {
    case QMessageBox::Critical:
        return "critical";
    case QMessageBox::Warning:
        return "warning";
    case QMessageBox::Information:
        return "information";
    case QMessageBox::Question:
        return "question";
    case QMessageBox::NoIcon:
        break;
    }
    return "none";
}

std::string ButtonNames(QMessageBox::StandardButtons buttons)
{
    std::string names;
    names += buttons.testFlag(QMessageBox::Yes) ? "Yes" : "";
    names += buttons.testFlag(QMessageBox::No) ? "No" : "";
    names += buttons.testFlag(QMessageBox::Ok) ? "OK" : "";
    names += buttons.testFlag(QMessageBox::Cancel) ? "Cancel" : "";
    return names == "OK" ? "" : "|" + names;
}

// A caption as a user reads it. "&" only underlines the next character, and "&&" is one "&".
QString WithoutMark(const QString& caption)
{
    QString read;
    for (qsizetype at = 0; at < caption.size(); ++at) {
        at += caption[at] == u'&' && at + 1 < caption.size() ? 1 : 0;
        read += caption[at];
    }
    return read;
}

QMessageBox::StandardButton ButtonOf(Reply reply)
{
    switch (reply) {
    case Reply::Cancel:
        return QMessageBox::Cancel;
    case Reply::Yes:
        return QMessageBox::Yes;
    case Reply::No:
        return QMessageBox::No;
    case Reply::Ok:
        break;
    }
    return QMessageBox::Ok;
}

void ClickReply(QWidget& window, Reply reply)
{
    auto* box = qobject_cast<QMessageBox*>(&window);
    QAbstractButton* button = box != nullptr ? box->button(ButtonOf(reply)) : nullptr;
    if (button == nullptr) {
        ADD_FAILURE() << "this cannot be answered so: " << Describe(window);
        window.close();
        return;
    }
    QTest::mouseClick(button, Qt::LeftButton);
}

void EnterText(QWidget& window, const std::optional<std::string>& text)
{
    auto* edit = window.findChild<QLineEdit*>();
    auto* buttons = window.findChild<QDialogButtonBox*>();
    if (qobject_cast<QInputDialog*>(&window) == nullptr || edit == nullptr || buttons == nullptr) {
        ADD_FAILURE() << "nothing can be entered here: " << Describe(window);
        window.close();
        return;
    }
    if (text) {
        edit->selectAll();
        QTest::keyClick(edit, Qt::Key_Delete);
        QTest::keyClicks(edit, QString::fromStdString(*text));
    }
    const auto button = text ? QDialogButtonBox::Ok : QDialogButtonBox::Cancel;
    QTest::mouseClick(buttons->button(button), Qt::LeftButton);
}

} // namespace

std::string Describe(const QWidget& window)
{
    const std::string title = window.windowTitle().toStdString();
    if (const auto* box = qobject_cast<const QMessageBox*>(&window); box != nullptr) {
        return PictureName(box->icon()) + "|" + title + "|" + box->text().toStdString() +
               ButtonNames(box->standardButtons());
    }
    if (const auto* box = qobject_cast<const QInputDialog*>(&window); box != nullptr) {
        const auto* prompt = box->findChild<QLabel*>();
        return "input|" + title + "|" + (prompt != nullptr ? WithoutMark(prompt->text()).toStdString() : "") +
               "|" + box->textValue().toStdString();
    }
    return "form|" + window.objectName().toStdString() + "|" + title;
}

ModalScript::ModalScript()
{
    connect(&m_timer, &QTimer::timeout, this, &ModalScript::Look);
    m_timer.setSingleShot(true);
    m_timer.start(MillisecondsBetweenLooks);
}

ModalScript::~ModalScript()
{
    EXPECT_TRUE(m_steps.empty()) << m_steps.size() << " expected windows never came";
}

ModalScript& ModalScript::Answer(Reply reply)
{
    return Do([reply](QWidget& window) { ClickReply(window, reply); });
}

ModalScript& ModalScript::Enter(std::optional<std::string> text)
{
    return Do([text = std::move(text)](QWidget& window) { EnterText(window, text); });
}

ModalScript& ModalScript::Escape()
{
    return Do([](QWidget& window) { QTest::keyClick(&window, Qt::Key_Escape); });
}

ModalScript& ModalScript::Do(std::function<void(QWidget&)> step)
{
    m_steps.push_back(std::move(step));
    return *this;
}

// A step may open a window and then runs inside that window's event loop. So the next look is scheduled
// before the step begins.
void ModalScript::Look()
{
    m_timer.start(MillisecondsBetweenLooks);
    QWidget* window = QApplication::activeModalWidget();
    const bool isNew = window != nullptr && window->isVisible() &&
                       std::find(m_handled.begin(), m_handled.end(), window) == m_handled.end();
    if (isNew) {
        Handle(*window);
    }
}

void ModalScript::Handle(QWidget& window)
{
    m_handled.emplace_back(&window);
    window.installEventFilter(this);
    m_seen.push_back(Describe(window));
    if (m_steps.empty()) {
        ADD_FAILURE() << "no step is left for: " << m_seen.back();
        window.close();
        return;
    }
    const auto step = std::move(m_steps.front());
    m_steps.pop_front();
    step(window);
}

// Forgets a closed window. If it opens again, it counts as a new one.
bool ModalScript::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Hide) {
        std::erase_if(m_handled,
                      [watched](const auto& window) { return window.isNull() || window == watched; });
        watched->removeEventFilter(this);
    }
    return QObject::eventFilter(watched, event);
}

} // namespace ls::test
