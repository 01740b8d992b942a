#include "app/FormMessages.h"

#include <QApplication>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>

#include <algorithm>
#include <vector>

namespace ls {

namespace {

QMessageBox::Icon PictureOf(Icon icon)
{
    switch (icon) {
    case Icon::Critical:
        return QMessageBox::Critical;
    case Icon::Exclamation:
    case Icon::Warning:
        return QMessageBox::Warning;
    case Icon::Information:
        return QMessageBox::Information;
    case Icon::Question:
        return QMessageBox::Question;
    case Icon::None:
        break;
    }
    return QMessageBox::NoIcon;
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

std::vector<Reply> RepliesOf(Buttons buttons)
{
    switch (buttons) {
    case Buttons::OkCancel:
        return {Reply::Ok, Reply::Cancel};
    case Buttons::YesNo:
        return {Reply::Yes, Reply::No};
    case Buttons::YesNoCancel:
        return {Reply::Yes, Reply::No, Reply::Cancel};
    case Buttons::Ok:
        break;
    }
    return {Reply::Ok};
}

// OK with Cancel is asked before something is given up ("Exit without saving changes?"): a careless Enter
// keeps it. Yes with No offers help, and Yes is what most people want.
Reply EnterReply(Buttons buttons)
{
    return buttons == Buttons::OkCancel ? Reply::Cancel : RepliesOf(buttons).front();
}

// A line of a broken file may be as long as the file, and a box that lays it out would stand still for
// minutes. The end of a text matters as much as its beginning: it says what went wrong.
QString Shortened(const std::string& text)
{
    constexpr std::size_t longest = 2000; // bytes; about what a box can show at once
    constexpr std::size_t tail = 500;
    const auto isInsideCharacter = [&text](std::size_t at) {
        return (static_cast<unsigned char>(text[at]) & 0xC0U) == 0x80U;
    };
    if (text.size() <= longest) {
        return QString::fromStdString(text);
    }
    std::size_t head = longest - tail;
    std::size_t rest = text.size() - tail;
    while (head > 0 && isInsideCharacter(head)) {
        --head;
    }
    while (rest < text.size() && isInsideCharacter(rest)) {
        ++rest;
    }
    return QString::fromStdString(text.substr(0, head) + " ... " + text.substr(rest));
}

// The prompt is its edit's label: a lone "&" would be taken for the mark of a shortcut.
void SetPrompt(QInputDialog& box, QString prompt)
{
    box.setLabelText(prompt.replace(u'&', QStringLiteral("&&")));
    if (auto* label = box.findChild<QLabel*>(); label != nullptr) {
        label->setTextFormat(Qt::PlainText);
    }
}

} // namespace

QWidget* FormMessages::Window() const
{
    QWidget* form = QApplication::activeModalWidget();
    return form != nullptr ? form : m_window.data();
}

Reply FormMessages::ShowBox(const std::string& text, Icon icon, Buttons buttons, const std::string& title)
{
    QMessageBox box(Window());
    box.setTextFormat(Qt::PlainText);
    box.setWindowTitle(QString::fromStdString(title));
    box.setText(Shortened(text).replace(QStringLiteral("\r\n"), QStringLiteral("\n")));
    box.setIcon(PictureOf(icon));
    const std::vector<Reply> replies = RepliesOf(buttons);
    for (const Reply reply : replies) {
        box.addButton(ButtonOf(reply));
    }
    box.setDefaultButton(ButtonOf(EnterReply(buttons)));
    box.setEscapeButton(ButtonOf(SafeReply(buttons)));
    const int pressed = box.exec();
    const auto given = std::find_if(replies.begin(), replies.end(),
                                    [pressed](Reply reply) { return ButtonOf(reply) == pressed; });
    return given != replies.end() ? *given : SafeReply(buttons);
}

std::optional<std::string> FormMessages::ShowInputBox(const std::string& prompt, const std::string& title,
                                                      const std::string& initial)
{
    QInputDialog box(Window());
    box.setWindowTitle(QString::fromStdString(title));
    SetPrompt(box, Shortened(prompt));
    box.setTextValue(QString::fromStdString(initial));
    if (box.exec() != QDialog::Accepted) {
        return std::nullopt;
    }
    return box.textValue().toStdString();
}

} // namespace ls
