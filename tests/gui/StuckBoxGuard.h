#pragma once

#include <QPointer>
#include <QTimer>
#include <QWidget>

namespace ls::test {

/// Ends a modal window that no test answers: after some seconds the test fails with what the window said, and
/// the window is closed, so that the tests after it still run.
class StuckBoxGuard
{
public:
    StuckBoxGuard();

private:
    void Look();

    QTimer m_timer;
    QPointer<QWidget> m_seen;
    int m_looks = 0; ///< how often it was found open
};

} // namespace ls::test
