#include "Tour.h"

#include "render/pane/ReadingPane.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPixmap>
#include <QRegularExpression>
#include <QScreen>
#include <QScrollBar>
#include <QTextStream>
#include <QtTest/qtestkeyboard.h>
#include <QtTest/qtestmouse.h>
#include <QtTest/qtestsystem.h>

#include <algorithm>
#include <cstdlib>
#include <iterator>

namespace ls {

namespace {

/// Enough for the window manager to place, draw and decorate what a step opened.
constexpr int SettleMs = 250;
constexpr int WidenBy = 260;

void Say(const QString& line)
{
    QTextStream(stdout) << line << Qt::endl;
}

QString TextOf(const QWidget& dialog)
{
    if (const auto* box = qobject_cast<const QMessageBox*>(&dialog))
        return box->text();
    return dialog.windowTitle();
}

/// The area of the screen that the window covers, with its frame and an open menu.
QRect VisibleArea(const QWidget& window)
{
    QRect area = window.frameGeometry();
    for (const QWidget* other : QApplication::topLevelWidgets())
        if (other->isVisible())
            area |= other->frameGeometry();
    return area & window.screen()->geometry();
}

} // namespace

Tour::Tour(QWidget& window, const QDir& pictures) : m_window(window), m_pictures(pictures)
{
    // No step expects a message box. A box would wait for an answer forever, so it ends the tour.
    QObject::connect(&m_boxWatch, &QTimer::timeout, &m_window, [this] { LookForBox(); });
    m_boxWatch.start(100);
}

bool Tour::Take()
{
    const bool read = TakeSteps({
        {"open", &Tour::LookAtOpenBook},
        {"pick", &Tour::PickTopic},
        {"topic", &Tour::GoToPickedTopic},
        {"page", &Tour::ScrollByPage},
        {"end", &Tour::ScrollToEnd},
        {"next", &Tour::ShowNextTopic},
        {"menu", &Tour::OpenIndexMenu},
        {"alphabetic", &Tour::SortByAlphabet},
        {"contents", &Tour::SortByContents},
        {"wide", &Tour::WidenWindow},
    });
    return read && TakeAuthor() && TakePrint() && TakeCheck() && TakeFind() && TakeRecovery() && TakeFiles();
}

bool Tour::TakeSteps(std::initializer_list<Step> steps)
{
    return std::all_of(steps.begin(), steps.end(),
                       [this](const Step& step) { return TakeStep(step, ++m_taken); });
}

bool Tour::TakeStep(const Step& step, int number)
{
    const QString name =
        QStringLiteral("%1-%2").arg(number, 2, 10, QLatin1Char('0')).arg(QLatin1String(step.name));
    Fault fault = (this->*step.take)();
    QTest::qWait(SettleMs);
    if (!SavePicture(name) && fault.isEmpty())
        fault = QStringLiteral("the picture cannot be saved");
    return Report(name, fault);
}

bool Tour::Report(const QString& name, const Fault& fault)
{
    if (fault.isEmpty())
        Say(QStringLiteral("ok      %1").arg(name));
    else
        Say(QStringLiteral("FAILED  %1: %2").arg(name, fault));
    return fault.isEmpty();
}

bool Tour::SavePicture(const QString& name) const
{
    const QRect area = VisibleArea(m_window);
    const QPixmap picture = m_window.screen()->grabWindow(0, area.x(), area.y(), area.width(), area.height());
    return picture.save(m_pictures.filePath(name + QStringLiteral(".png")), "PNG");
}

void Tour::LookForBox() const
{
    const QWidget* box = QApplication::activeModalWidget();
    if (box == nullptr || box == m_form)
        return;
    Say(QStringLiteral("FAILED  an unexpected box: %1").arg(TextOf(*box)));
    if (!SavePicture(QStringLiteral("99-unexpected-box")))
        Say(QStringLiteral("the picture of the box cannot be saved"));
    // The box waits in an event loop of its own, so the program can only exit.
    std::_Exit(EXIT_FAILURE);
}

Tour::Fault Tour::FindControls()
{
    m_list = m_window.findChild<QComboBox*>(QStringLiteral("TopicList"));
    m_bar = m_window.findChild<QScrollBar*>(QStringLiteral("VScroll1"));
    m_pane = m_window.findChild<ReadingPane*>(QStringLiteral("MsgPic"));
    if (!m_list || !m_bar || !m_pane)
        return QStringLiteral("the window lacks one of TopicList, VScroll1 and MsgPic");
    return {};
}

Tour::Fault Tour::LookAtOpenBook()
{
    if (Fault fault = FindControls(); !fault.isEmpty())
        return fault;
    if (!QTest::qWaitForWindowActive(&m_window))
        return QStringLiteral("the window is not the active one");
    if (!m_list->isVisible() || m_list->count() < 2)
        return QStringLiteral("the tour needs a book of two topics or more");
    if (m_list->currentIndex() != 0)
        return QStringLiteral("the first topic is not selected");
    if (Shown().isEmpty())
        return QStringLiteral("the pane is empty");
    return {};
}

/// By keys: gives the list the focus and presses Down until the middle entry is reached.
Tour::Fault Tour::PickTopic()
{
    const int wanted = std::max(1, (m_list->count() - 1) / 2);
    m_list->setFocus();
    for (int i = m_list->currentIndex(); i < wanted; ++i)
        QTest::keyClick(m_list, Qt::Key_Down);
    if (m_list->currentIndex() != wanted)
        return QStringLiteral("entry %1 is selected instead of %2").arg(m_list->currentIndex()).arg(wanted);
    if (!Shown().isEmpty())
        return QStringLiteral("the pane still shows the topic before");
    if (m_bar->isVisible())
        return QStringLiteral("the scroll bar is still there");
    return {};
}

Tour::Fault Tour::GoToPickedTopic()
{
    const int picked = m_list->currentIndex();
    if (Fault fault = Press("GoToButton"); !fault.isEmpty())
        return fault;
    if (m_list->currentIndex() != picked)
        return QStringLiteral("the selection moved");
    if (Shown().isEmpty() || !m_bar->isVisible())
        return QStringLiteral("the topic is not shown");
    return {};
}

Tour::Fault Tour::ScrollByPage()
{
    const int page = m_bar->pageStep();
    const QString before = Shown();
    QTest::mouseClick(m_pane, Qt::LeftButton);
    QTest::keyClick(m_window.windowHandle(), Qt::Key_PageDown);
    const int wanted = std::min(1 + page, m_bar->maximum());
    if (m_bar->value() != wanted)
        return QStringLiteral("line %1 is on top instead of %2").arg(m_bar->value()).arg(wanted);
    if (Shown() == before)
        return QStringLiteral("the pane shows what it showed before");
    return {};
}

Tour::Fault Tour::ScrollToEnd()
{
    QTest::keyClick(m_window.windowHandle(), Qt::Key_End);
    if (m_bar->value() != m_bar->maximum())
        return QStringLiteral("line %1 of %2 is on top").arg(m_bar->value()).arg(m_bar->maximum());
    for (const Run& run : m_pane->Runs())
        if (run.row > 1)
            return QStringLiteral("something stands below the last line");
    return {};
}

Tour::Fault Tour::ShowNextTopic()
{
    const int before = m_list->currentIndex();
    const QString shown = Shown();
    const bool atEnd = before == m_list->count() - 1;
    if (Fault fault = Press(atEnd ? "BackButton" : "NextButton"); !fault.isEmpty())
        return fault;
    if (m_list->currentIndex() != before + (atEnd ? -1 : 1))
        return QStringLiteral("entry %1 is selected after %2").arg(m_list->currentIndex()).arg(before);
    if (Shown() == shown)
        return QStringLiteral("the pane shows the topic before");
    if (m_bar->value() != 1)
        return QStringLiteral("the topic does not begin at its first line");
    return {};
}

Tour::Fault Tour::OpenIndexMenu()
{
    return OpenMenu("IndexMenu");
}

Tour::Fault Tour::SortByAlphabet()
{
    const QString title = BareTitle(m_list->currentText());
    if (Fault fault = ChooseItem("IndexMenu", "AlphaItem"); !fault.isEmpty())
        return fault;
    const QStringList items = Items();
    const bool sorted = std::is_sorted(items.begin(), items.end(), [](const QString& a, const QString& b) {
        return a.compare(b, Qt::CaseInsensitive) < 0;
    });
    if (!sorted)
        return QStringLiteral("the titles are not in the order of the alphabet");
    if (m_list->currentText() != title)
        return QStringLiteral("'%1' is selected instead of '%2'").arg(m_list->currentText(), title);
    QTest::mouseClick(m_list, Qt::LeftButton);
    QTest::qWait(SettleMs);
    return m_list->view()->isVisible() ? Fault() : QStringLiteral("the list does not open");
}

Tour::Fault Tour::SortByContents()
{
    QTest::keyClick(m_list->view(), Qt::Key_Escape);
    QTest::qWait(SettleMs);
    const QString title = m_list->currentText();
    if (Fault fault = OpenMenu("IndexMenu"); !fault.isEmpty())
        return fault;
    if (Fault fault = ChooseItem("IndexMenu", "ContentsItem"); !fault.isEmpty())
        return fault;
    for (int i = 0; i < m_list->count(); ++i)
        if (m_list->itemText(i).section(QStringLiteral(". "), 0, 0).toInt() != i + 1)
            return QStringLiteral("entry %1 is '%2'").arg(i + 1).arg(m_list->itemText(i));
    if (BareTitle(m_list->currentText()) != title)
        return QStringLiteral("'%1' is selected instead of '%2'").arg(m_list->currentText(), title);
    return {};
}

Tour::Fault Tour::WidenWindow()
{
    const int before = m_pane->width();
    const int lines = m_bar->maximum();
    m_window.resize(m_window.width() + WidenBy, m_window.height() + WidenBy / 4);
    QTest::qWait(SettleMs);
    // When the pane first grows, the gap beside the scroll bar takes 2 pixels of the gain. At scales such as
    // 150 % the window's size is rounded to whole pixels. So the check allows 4.
    if (m_pane->width() < before + WidenBy - 4)
        return QStringLiteral("the pane is %1 wide after %2").arg(m_pane->width()).arg(before);
    if (m_bar->maximum() > lines)
        return QStringLiteral("the wider text has more lines");
    if (Shown().isEmpty() || m_bar->value() != 1)
        return QStringLiteral("the topic is not shown from its first line");
    return {};
}

/// `open` returns only when the form has closed, so a timer starts the steps in the form.
bool Tour::WalkForm(const char* name, const std::function<Fault()>& open, bool (Tour::*walk)())
{
    const QPointer<QWidget> outer = m_form;
    bool walked = false;
    QTimer start;
    start.setSingleShot(true);
    QObject::connect(&start, &QTimer::timeout, &m_window, [this, name, walk, &walked] {
        m_form = QApplication::activeModalWidget();
        if (m_form != nullptr && m_form->objectName() != QLatin1String(name))
            // Another window ends the tour as an unexpected box.
            m_form = nullptr;
        m_boxWatch.start();
        walked = (this->*walk)();
        if (m_form != nullptr)
            m_form->close();
    });
    m_boxWatch.stop(); // until the form is known
    start.start(SettleMs);
    const bool opened = Report(QLatin1String(name), open());
    m_form = outer;
    m_boxWatch.start();
    return opened && walked;
}

Tour::Fault Tour::Press(const char* button) const
{
    auto* found = m_window.findChild<QAbstractButton*>(QLatin1String(button));
    if (found == nullptr)
        return QStringLiteral("there is no %1").arg(QLatin1String(button));
    if (!found->isVisible() || !found->isEnabled())
        return QStringLiteral("%1 cannot be pressed").arg(QLatin1String(button));
    QTest::mouseClick(found, Qt::LeftButton);
    return {};
}

Tour::Fault Tour::OpenMenu(const QWidget& window, const char* name)
{
    auto* bar = window.findChild<QMenuBar*>();
    auto* menu = window.findChild<QMenu*>(QLatin1String(name));
    if (bar == nullptr || menu == nullptr)
        return QStringLiteral("there is no %1").arg(QLatin1String(name));
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->actionGeometry(menu->menuAction()).center());
    QTest::qWait(SettleMs);
    if (!menu->isVisible())
        return QStringLiteral("%1 does not open").arg(QLatin1String(name));
    return {};
}

Tour::Fault Tour::ClickItem(const QWidget& window, const char* menu, const char* item)
{
    auto* opened = window.findChild<QMenu*>(QLatin1String(menu));
    auto* action = window.findChild<QAction*>(QLatin1String(item));
    if (opened == nullptr || action == nullptr || !action->isEnabled())
        return QStringLiteral("%1 cannot be chosen").arg(QLatin1String(item));
    QTest::mouseClick(opened, Qt::LeftButton, {}, opened->actionGeometry(action).center());
    return {};
}

Tour::Fault Tour::ChooseItem(const char* menu, const char* item) const
{
    if (Fault fault = ClickItem(m_window, menu, item); !fault.isEmpty())
        return fault;
    QTest::qWait(SettleMs);
    if (!m_window.findChild<QAction*>(QLatin1String(item))->isChecked())
        return QStringLiteral("%1 is not checked").arg(QLatin1String(item));
    return {};
}

QStringList Tour::Items() const
{
    QStringList items;
    for (int i = 0; i < m_list->count(); ++i)
        items << m_list->itemText(i);
    return items;
}

QString Tour::BareTitle(const QString& item) const
{
    static const QRegularExpression number(QStringLiteral("^[0-9]+\\. "));
    return QString(item).remove(number);
}

QString Tour::Shown() const
{
    QString text;
    for (const Run& run : m_pane->Runs())
        text += QString::fromLatin1(run.text.data(), static_cast<qsizetype>(run.text.size()));
    return text;
}

} // namespace ls
