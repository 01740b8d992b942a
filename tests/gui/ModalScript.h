#pragma once

#include "base/Messages.h"

#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QWidget>

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace ls::test {

/// What a window says, as one text: a message box reads "critical|Lodestar Advisor|Overflow" with
/// "|OKCancel" or the like behind it when it asks, an input box "input|title|prompt|text", any other window
/// "form|object name|title". The pictures of a warning and an exclamation are the same: both read "warning".
[[nodiscard]] std::string Describe(const QWidget& window);

/// Does what a user does to the modal windows that open, one step for each, in their order. While a window
/// that had its step stays open, the next step waits for a window over it.
///
/// A step whose window never came fails the test, and so does a window that no step is left for (it is closed
/// then, so that nothing hangs).
class ModalScript : public QObject
{
    Q_OBJECT

public:
    ModalScript();
    ~ModalScript() override;

    /// A message box comes; its button is clicked.
    ModalScript& Answer(Reply reply);

    /// An input box comes; the text is typed and OK clicked, or Cancel without a text.
    ModalScript& Enter(std::optional<std::string> text);

    /// A window comes; Escape is pressed in it.
    ModalScript& Escape();

    /// A window comes; anything may be done to it. It must be closed in the end.
    ModalScript& Do(std::function<void(QWidget& window)> step);

    /// What the windows said that came so far, in their order.
    [[nodiscard]] const std::vector<std::string>& Seen() const { return m_seen; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Look();
    void Handle(QWidget& window);

    QTimer m_timer;
    std::deque<std::function<void(QWidget&)>> m_steps;
    std::vector<QPointer<QObject>> m_handled; ///< windows that had their step and are still open
    std::vector<std::string> m_seen;
};

} // namespace ls::test
