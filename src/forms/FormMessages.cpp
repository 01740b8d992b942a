#include "forms/FormMessages.h"

#include "base/Text.h"
#include "forms/Mnemonic.h"
#include "forms/TitleWidth.h"

#include <QApplication>
#include <QDialog>
#include <QGridLayout>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QSpacerItem>

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

// Each button has the program's own letter for Alt, not the desktop's.
QString CaptionOf(Reply reply)
{
    switch (reply) {
    case Reply::Cancel:
        return QStringLiteral("&Cancel");
    case Reply::Yes:
        return QStringLiteral("&Yes");
    case Reply::No:
        return QStringLiteral("&No");
    case Reply::Ok:
        break;
    }
    return QStringLiteral("&OK");
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

// The button that Enter presses. OK with Cancel asks before something is lost ("Exit without saving
// changes?"), so a careless Enter cancels. Yes with No offers help; most users want Yes.
Reply EnterReply(Buttons buttons)
{
    return buttons == Buttons::OkCancel ? Reply::Cancel : RepliesOf(buttons).front();
}

// Cuts the middle out of a long text: a line of a broken file may be as long as the file, and laying it out
// would block the program for minutes. The end stays, because it says what went wrong.
QString Shortened(const std::string& text)
{
    constexpr std::size_t longest = 2000; // bytes; about what a box can show
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

// The prompt is the label of its edit. Its letter for Alt differs from those of both buttons.
void SetPrompt(QInputDialog& box, const QString& prompt)
{
    box.setLabelText(WithMnemonic(prompt, u"OC"));
    if (auto* label = box.findChild<QLabel*>(); label != nullptr) {
        label->setTextFormat(Qt::PlainText);
    }
}

// A box gets its width from its text, so a short text would cut off the title. The toolkit fits a box to its
// layout; a spacer in the layout makes it wide enough.
void WidenToTitle(QDialog& box)
{
    auto* room = new QSpacerItem(TitleWidth(box.windowTitle()), 0);
    if (auto* grid = qobject_cast<QGridLayout*>(box.layout()); grid != nullptr) {
        grid->addItem(room, grid->rowCount(), 0, 1, grid->columnCount());
    } else {
        box.layout()->addItem(room); // the layout owns it
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
    box.setObjectName(QStringLiteral("MsgBox"));
    box.setTextFormat(Qt::PlainText);
    box.setWindowTitle(QString::fromStdString(title));
    box.setText(Shortened(text).replace(QLatin1String(LineEnd.data()), QStringLiteral("\n")));
    box.setIcon(PictureOf(icon));
    const std::vector<Reply> replies = RepliesOf(buttons);
    for (const Reply reply : replies) {
        box.addButton(ButtonOf(reply))->setText(CaptionOf(reply));
    }
    box.setDefaultButton(ButtonOf(EnterReply(buttons)));
    box.setEscapeButton(ButtonOf(SafeReply(buttons)));
    WidenToTitle(box);
    const int pressed = box.exec();
    const auto given = std::find_if(replies.begin(), replies.end(),
                                    [pressed](Reply reply) { return ButtonOf(reply) == pressed; });
    return given != replies.end() ? *given : SafeReply(buttons);
}

std::optional<std::string> FormMessages::ShowInputBox(const std::string& prompt, const std::string& title,
                                                      const std::string& initial)
{
    QInputDialog box(Window());
    box.setObjectName(QStringLiteral("InputBox"));
    box.setWindowTitle(QString::fromStdString(title));
    SetPrompt(box, Shortened(prompt));
    box.setOkButtonText(CaptionOf(Reply::Ok));
    box.setCancelButtonText(CaptionOf(Reply::Cancel));
    box.setTextValue(QString::fromStdString(initial));
    WidenToTitle(box);
    if (box.exec() != QDialog::Accepted) {
        return std::nullopt;
    }
    return box.textValue().toStdString();
}

} // namespace ls
