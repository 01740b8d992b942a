// What users of the keyboard need in every window: each control has its own letter for Alt, and the Tab key
// follows the reading order.

#include "gui/EveryForm.h"

#include <QGroupBox>
#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>
#include <QRegularExpression>

#include <gtest/gtest-spi.h>

#include <map>
#include <set>

namespace ls {
namespace {

struct FormKeysTest : EveryForm
{
};

// The owner of each key. A second owner fails the test.
class KeyTable
{
public:
    explicit KeyTable(std::string place) : m_place(std::move(place)) {}

    void Add(const QKeySequence& key, const QString& owner)
    {
        const auto [at, added] = m_owners.emplace(key.toString(), owner.toStdString());
        EXPECT_TRUE(added) << m_place << ": " << key.toString().toStdString() << " is for " << at->second
                           << " and " << owner.toStdString();
    }

    void AddLetter(const QString& caption, const QString& owner)
    {
        const QKeySequence key = QKeySequence::mnemonic(caption);
        EXPECT_FALSE(key.isEmpty()) << m_place << ": " << owner.toStdString() << " has no letter in '"
                                    << caption.toStdString() << "'";
        if (!key.isEmpty()) {
            Add(key, owner);
        }
    }

private:
    std::string m_place;
    std::map<QString, std::string> m_owners;
};

QString NameOf(const QWidget& control)
{
    return control.objectName().isEmpty() ? QString::fromLatin1(control.metaObject()->className())
                                          : control.objectName();
}

// Hidden controls count too, because the form may show them later.
void AddControls(const QWidget& form, KeyTable& keys)
{
    for (const auto* button : form.findChildren<QAbstractButton*>()) {
        if (button->objectName().startsWith(QStringLiteral("qt_")) ||
            button->inherits("QLineEditIconButton")) {
            continue; // buttons of the toolkit: for a menu bar that is too narrow, and to clear a box
        }
        if (!button->text().isEmpty()) {
            keys.AddLetter(button->text(), NameOf(*button));
        } else {
            EXPECT_FALSE(button->shortcut().isEmpty()) << NameOf(*button).toStdString() << " has no key";
            keys.Add(button->shortcut(), NameOf(*button));
        }
    }
    for (const auto* label : form.findChildren<QLabel*>()) {
        if (label->buddy() != nullptr && label->buddy()->isVisibleTo(&form)) {
            keys.AddLetter(label->text(), NameOf(*label));
        }
    }
    for (const auto* group : form.findChildren<QGroupBox*>()) {
        keys.AddLetter(group->title(), NameOf(*group));
    }
}

void AddMenus(const std::string& name, const QWidget& form, KeyTable& keys)
{
    for (const auto* bar : form.findChildren<QMenuBar*>()) {
        for (const QAction* menu : bar->actions()) {
            keys.AddLetter(menu->text(), menu->menu()->objectName());
        }
    }
    for (const auto* menu : form.findChildren<QMenu*>()) {
        KeyTable letters(name + ", " + menu->objectName().toStdString());
        for (const QAction* item : menu->actions()) {
            if (!item->isSeparator()) {
                letters.AddLetter(item->text(), item->objectName());
            }
        }
    }
    for (const auto* item : form.findChildren<QAction*>()) {
        if (!item->shortcut().isEmpty() && !item->objectName().isEmpty()) {
            keys.Add(item->shortcut(), item->objectName());
        }
    }
}

TEST_F(FormKeysTest, everyForm_hasALetterForEverythingAndEachOnce)
{
    int forms = 0;
    ForEach([&forms](const std::string& name, QWidget& window) {
        SCOPED_TRACE(name);
        KeyTable keys(name);
        AddControls(window, keys);
        AddMenus(name, window, keys);
        ++forms;
    });
    EXPECT_EQ(forms, 24) << "thirteen forms, some of them looked at twice, and the boxes";
}

TEST_F(FormKeysTest, letterThatStandsTwice_isFound)
{
    KeyTable keys("a form");
    keys.AddLetter(QStringLiteral("&Close"), QStringLiteral("first"));
    EXPECT_NONFATAL_FAILURE(keys.AddLetter(QStringLiteral("&Colour"), QStringLiteral("second")),
                            "Alt+C is for first and second");
    EXPECT_NONFATAL_FAILURE(keys.AddLetter(QStringLiteral("Colour"), QStringLiteral("third")),
                            "third has no letter");
}

QString ReadText(const char* path)
{
    QFile file(QString::fromLatin1(path));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path;
    return QString::fromUtf8(file.readAll());
}

// The keys that a page names. They are compared whole: "Ctrl+Page Up" does not name "Ctrl+P".
using Keys = std::set<QString>;

Keys KeysOf(const QString& sheet, const QString& pattern)
{
    Keys keys;
    QRegularExpressionMatchIterator found = QRegularExpression(pattern).globalMatch(sheet);
    while (found.hasNext()) {
        QString key = found.next().captured();
        keys.insert(key.remove(QRegularExpression(QStringLiteral("<[^>]*>"))));
    }
    return keys;
}

// The help page marks up each key: <kbd>Ctrl</kbd>+<kbd>G</kbd>.
Keys KeysOfHelp()
{
    QString page = ReadText(LS_HELP "/Lodestar_Reader.htm");
    page = page.mid(page.indexOf(QStringLiteral("<h2 id=\"keys\">")));
    page.replace(QStringLiteral("&larr;"), QStringLiteral("Left"));
    page.replace(QStringLiteral("&rarr;"), QStringLiteral("Right"));
    return KeysOf(page, QStringLiteral("<kbd>[^<]*</kbd>(\\+<kbd>[^<]*</kbd>)*"));
}

Keys KeysOfGuide()
{
    const QString guide = ReadText(LS_SAMPLES "/Guide.IDA");
    const qsizetype start = guide.indexOf(QStringLiteral("[Keys]\r\n"));
    return KeysOf(guide.mid(start, guide.indexOf(QStringLiteral("<XREF"), start) - start),
                  QStringLiteral("<B>[^<]*</B>"));
}

// The name that readers know: "Ctrl+Page Up" for "Ctrl+PgUp".
QString KeyAsWritten(const QKeySequence& key)
{
    return key.toString()
        .replace(QStringLiteral("PgUp"), QStringLiteral("Page Up"))
        .replace(QStringLiteral("PgDown"), QStringLiteral("Page Down"));
}

// The keys of all menus, and of all buttons without a caption.
Keys KeysOfForms(EveryForm& forms)
{
    Keys keys;
    forms.ForEach([&keys](const std::string& /*name*/, QWidget& window) {
        for (const auto* item : window.findChildren<QAction*>()) {
            if (!item->shortcut().isEmpty() && !item->objectName().isEmpty()) {
                keys.insert(KeyAsWritten(item->shortcut()));
            }
        }
        for (const auto* button : window.findChildren<QAbstractButton*>()) {
            if (button->text().isEmpty() && !button->shortcut().isEmpty()) {
                keys.insert(KeyAsWritten(button->shortcut()));
            }
        }
    });
    return keys;
}

TEST_F(FormKeysTest, sheetsOfKeys_nameEveryKeyOfMenusAndButtons)
{
    const Keys help = KeysOfHelp();
    const Keys guide = KeysOfGuide();
    const Keys keys = KeysOfForms(*this);
    for (const QString& key : keys) {
        EXPECT_EQ(help.count(key), 1U) << "help page: " << key.toStdString();
        EXPECT_EQ(guide.count(key), 1U) << "guide: " << key.toStdString();
    }
    EXPECT_GT(keys.size(), 20U);
}

// Other tests check the keys of the pane, the find bar and text boxes.
TEST_F(FormKeysTest, sheetsOfKeys_nameNoOtherKeys)
{
    Keys known = KeysOfForms(*this);
    for (const char* key : {"Ctrl+Home", "Ctrl+End", "Ctrl+X", "Ctrl+V", "Shift+Tab", "Shift+Enter"}) {
        known.insert(QString::fromLatin1(key));
    }
    const QRegularExpression made(QStringLiteral("^(F[0-9]+|(Ctrl|Alt|Shift)\\+.+)$"));
    for (const Keys& sheet : {KeysOfHelp(), KeysOfGuide()}) {
        for (const QString& key : sheet) {
            if (made.match(key).hasMatch()) {
                EXPECT_EQ(known.count(key), 1U) << key.toStdString();
            }
        }
    }
}

// The controls at which the Tab key stops, in its order.
std::vector<QWidget*> TabStops(QWidget& form)
{
    std::vector<QWidget*> stops;
    for (QWidget* control = form.nextInFocusChain(); control != &form;
         control = control->nextInFocusChain()) {
        if ((control->focusPolicy() & Qt::TabFocus) != 0 && control->isVisibleTo(&form) &&
            control->focusProxy() == nullptr && control->isEnabled() && control->window() == &form) {
            stops.push_back(control);
        }
    }
    return stops;
}

QRect PlaceIn(const QWidget& form, const QWidget& control)
{
    return {control.mapTo(&form, QPoint(0, 0)), control.size()};
}

bool Overlap(int start, int end, int otherStart, int otherEnd)
{
    return start < otherEnd && otherStart < end;
}

// A control is read after those to its left in the same row and those above it in the same column. Controls
// that share neither, as in two columns side by side, have no order.
bool IsReadBefore(const QRect& first, const QRect& second)
{
    const bool sameRow = Overlap(first.top(), first.bottom(), second.top(), second.bottom());
    const bool sameColumn = Overlap(first.left(), first.right(), second.left(), second.right());
    return (sameRow && first.right() <= second.left()) || (sameColumn && first.bottom() <= second.top());
}

TEST_F(FormKeysTest, tabKey_goesAsTheEyeDoes)
{
    ForEach([](const std::string& name, QWidget& window) {
        const std::vector<QWidget*> stops = TabStops(window);
        EXPECT_FALSE(stops.empty()) << name;
        for (std::size_t i = 0; i < stops.size(); ++i) {
            for (std::size_t later = i + 1; later < stops.size(); ++later) {
                EXPECT_FALSE(IsReadBefore(PlaceIn(window, *stops[later]), PlaceIn(window, *stops[i])))
                    << name << ": " << NameOf(*stops[later]).toStdString() << " comes after "
                    << NameOf(*stops[i]).toStdString();
            }
        }
    });
}

TEST_F(FormKeysTest, readingOrder_knowsRowsAndColumns)
{
    const QRect here(100, 100, 50, 20);
    EXPECT_TRUE(IsReadBefore(here, here.translated(60, 5))) << "right of it";
    EXPECT_TRUE(IsReadBefore(here, here.translated(10, 30))) << "below it";
    EXPECT_FALSE(IsReadBefore(here, here.translated(-60, 0))) << "left of it";
    EXPECT_FALSE(IsReadBefore(here, here.translated(0, -30))) << "above it";
    EXPECT_FALSE(IsReadBefore(here, here.translated(60, -30))) << "the next column";
}

} // namespace
} // namespace ls
