#include "gui/StuckBoxGuard.h"

#include "gui/ModalScript.h"

#include <gtest/gtest.h>

#include <QApplication>

namespace ls::test {

namespace {

constexpr int MillisecondsBetweenLooks = 1000;
constexpr int LooksUntilStuck = 20;

} // namespace

StuckBoxGuard::StuckBoxGuard()
{
    QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { Look(); });
    m_timer.start(MillisecondsBetweenLooks);
}

void StuckBoxGuard::Look()
{
    QWidget* modal = QApplication::activeModalWidget();
    m_looks = modal != nullptr && modal == m_seen ? m_looks + 1 : 0;
    m_seen = modal;
    if (modal != nullptr && m_looks >= LooksUntilStuck) {
        ADD_FAILURE() << "nobody answered: " << Describe(*modal);
        modal->close();
    }
}

} // namespace ls::test
