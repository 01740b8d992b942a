#include "gui/Controls.h"

#include <QAbstractButton>
#include <QAction>
#include <QDir>
#include <QTest>

namespace ls::test {

namespace {

constexpr int WaitMilliseconds = 5000;

void PickEntry(QAction& entry, const char* name)
{
    EXPECT_TRUE(entry.isEnabled() && entry.isVisible()) << name << " cannot be picked";
    if (entry.isEnabled() && entry.isVisible()) {
        entry.trigger();
    }
}

} // namespace

void Press(const QWidget& form, const char* name)
{
    if (auto* entry = form.findChild<QAction*>(QString::fromLatin1(name)); entry != nullptr) {
        PickEntry(*entry, name);
        return;
    }
    auto* button = Find<QAbstractButton>(form, name);
    if (button == nullptr) {
        return;
    }
    EXPECT_TRUE(button->isVisible() && button->isEnabled()) << name << " cannot be pressed";
    if (button->isVisible() && button->isEnabled()) {
        QTest::mouseClick(button, Qt::LeftButton);
    }
}

void Type(const QWidget& form, const char* name, const QString& text)
{
    auto* edit = Find<QWidget>(form, name);
    if (edit == nullptr) {
        return;
    }
    EXPECT_TRUE(edit->isVisible() && edit->isEnabled()) << name << " cannot be typed into";
    QTest::keyClick(edit, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(edit, Qt::Key_Delete);
    TypeKeys(*edit, text);
}

void TypeKeys(QWidget& control, const QString& text)
{
    for (const QChar character : text) {
        if (character == u'\n') {
            QTest::keyClick(&control, Qt::Key_Return);
        } else {
            QTest::keyClicks(&control, character);
        }
    }
}

bool WaitFor(const std::function<bool()>& condition)
{
    return QTest::qWaitFor(condition, WaitMilliseconds);
}

void ShowActive(QWidget& window)
{
    window.show();
    window.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window)) << "the window does not become active";
}

void TakePicture(QWidget& widget, const char* name)
{
    const QString folder = qEnvironmentVariable("LS_PICTURES");
    if (!folder.isEmpty()) {
        const QString path = QDir(folder).filePath(QString::fromLatin1(name) + QStringLiteral(".png"));
        EXPECT_TRUE(widget.grab().save(path)) << path.toStdString();
    }
}

} // namespace ls::test
