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
    // Set after the application exists, because only then it owns the style and frees it.
    QApplication::setStyle(QStringLiteral("fusion"));
    QApplication::setQuitOnLastWindowClosed(false);
    const ls::test::StuckBoxGuard guard;
    return RUN_ALL_TESTS();
}
