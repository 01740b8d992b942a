#include "gui/StuckBoxGuard.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QStandardPaths>

// Tests see the same desktop everywhere: one style, and no folder of the user's.
int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    QStandardPaths::setTestModeEnabled(true);
    const QApplication application(argc, argv);
    // Set behind the start: an application owns, and frees, only such a style.
    QApplication::setStyle(QStringLiteral("fusion"));
    QApplication::setQuitOnLastWindowClosed(false);
    const ls::test::StuckBoxGuard guard;
    return RUN_ALL_TESTS();
}
