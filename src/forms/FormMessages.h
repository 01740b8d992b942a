#pragma once

#include "base/Messages.h"

#include <QPointer>
#include <QWidget>

namespace ls {

/// The messages of the desktop program: modal boxes over the open form.
///
/// Texts are plain ("<B>" is no markup here). A text of more than 2,000 bytes is shown without its middle.
/// Escape and the close button give the safe answer. A fault may end the program while a box is open, so
/// callers test for that afterwards.
class FormMessages : public Messages
{
public:
    explicit FormMessages(const ProgramEnd& end) : Messages(end) {}

    /// The window under the boxes while no form is open.
    void SetParent(QWidget* window) { m_window = window; }

protected:
    Reply ShowBox(const std::string& text, Icon icon, Buttons buttons, const std::string& title) override;
    std::optional<std::string> ShowInputBox(const std::string& prompt, const std::string& title,
                                            const std::string& initial) override;

private:
    [[nodiscard]] QWidget* Window() const;

    QPointer<QWidget> m_window;
};

} // namespace ls
