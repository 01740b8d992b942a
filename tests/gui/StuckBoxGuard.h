#pragma once

#include <QPointer>
#include <QTimer>
#include <QWidget>

namespace ls::test {

/// Closes a modal window that no test answers. After some seconds the test fails with the window's content,
/// and the window is closed so that later tests still run.
class StuckBoxGuard
{
public:
    StuckBoxGuard();

private:
    void Look();

    QTimer m_timer;
    QPointer<QWidget> m_seen;
    int m_looks = 0; ///< the number of checks that found it open
};

} // namespace ls::test
