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

/// The content of a window as one text. A message box is "critical|Lodestar Advisor|Overflow", with
/// "|OKCancel" or the like at the end if it asks. An input box is "input|title|prompt|text". Any other window
/// is "form|object name|title". A warning and an exclamation have the same picture: both read "warning".
[[nodiscard]] std::string Describe(const QWidget& window);

/// Acts as the user in the modal windows that open: one step for each window, in order. If a window stays
/// open after its step, the next step waits for a window above it.
///
/// The test fails if a step gets no window, or a window gets no step. A window without a step is closed, so
/// that nothing hangs.
class ModalScript : public QObject
{
    Q_OBJECT

public:
    ModalScript();
    ~ModalScript() override;

    /// Expects a message box and clicks its button.
    ModalScript& Answer(Reply reply);

    /// Expects an input box, types the text and clicks OK. Without a text it clicks Cancel.
    ModalScript& Enter(std::optional<std::string> text);

    /// Expects a window and presses Escape in it.
    ModalScript& Escape();

    /// Expects a window and calls `step` with it. The window must be closed in the end.
    ModalScript& Do(std::function<void(QWidget& window)> step);

    /// The content of the windows so far, in order.
    [[nodiscard]] const std::vector<std::string>& Seen() const { return m_seen; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Look();
    void Handle(QWidget& window);

    QTimer m_timer;
    std::deque<std::function<void(QWidget&)>> m_steps;
    std::vector<QPointer<QObject>> m_handled; ///< windows that are still open after their step
    std::vector<std::string> m_seen;
};

} // namespace ls::test
