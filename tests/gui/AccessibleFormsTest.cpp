// What a screen reader learns about the controls of every form: the name, the role, and the label of a box.

#include "authoring/MoveTopicsForm.h"
#include "gui/EveryForm.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>

#include <algorithm>
#include <set>

namespace ls {
namespace {

// Whether the form's design names the control. The toolkit's parts of controls do not count.
bool IsOwn(const QWidget& control)
{
    const QString name = control.objectName();
    return !name.isEmpty() && !name.startsWith(QStringLiteral("qt_"));
}

// Containers and lines are no controls. A menu has the name of the item that opens it.
bool IsControl(const QWidget& widget)
{
    const QString kind = QString::fromLatin1(widget.metaObject()->className());
    return IsOwn(widget) && kind != QStringLiteral("QWidget") && kind != QStringLiteral("ls::FindBar") &&
           kind != QStringLiteral("QFrame") && kind != QStringLiteral("Line") &&
           kind != QStringLiteral("QMenu") && kind != QStringLiteral("QMenuBar");
}

// A control to type or choose in, which needs a label beside it.
bool IsBox(const QWidget& widget)
{
    return IsOwn(widget) && (qobject_cast<const QComboBox*>(&widget) != nullptr ||
                             qobject_cast<const QLineEdit*>(&widget) != nullptr ||
                             qobject_cast<const QPlainTextEdit*>(&widget) != nullptr ||
                             qobject_cast<const QAbstractItemView*>(&widget) != nullptr);
}

QString NameOf(QWidget& widget)
{
    QAccessibleInterface* told = QAccessible::queryAccessibleInterface(&widget);
    return told != nullptr ? told->text(QAccessible::Name) : QString();
}

bool HasRole(QWidget& widget)
{
    QAccessibleInterface* told = QAccessible::queryAccessibleInterface(&widget);
    return told != nullptr && told->role() != QAccessible::NoRole && told->role() != QAccessible::Client;
}

bool IsLabelled(const QWidget& window, const QWidget& box)
{
    const QList<QLabel*> labels = window.findChildren<QLabel*>();
    return std::any_of(labels.begin(), labels.end(),
                       [&](const QLabel* label) { return label->buddy() == &box; });
}

using Names = std::set<std::string>;

struct AccessibleFormsTest : EveryForm
{
    /// Calls `look` for every form, with its name. Message boxes are left out, as they belong to the toolkit.
    void WithEach(const std::function<void(QWidget& window, const std::string& name)>& look)
    {
        ForEach([&look](const std::string& name, QWidget& window) {
            if (name.find("Form") != std::string::npos) {
                look(window, window.objectName().toStdString());
            }
        });
    }
};

// On this system the name of a combo box is its chosen entry, so its label must identify it.
TEST_F(AccessibleFormsTest, everyControl_hasANameAndARole)
{
    Names without;
    WithEach([&](QWidget& window, const std::string& name) {
        EXPECT_FALSE(window.windowTitle().isEmpty()) << name;
        for (QWidget* control : window.findChildren<QWidget*>()) {
            const auto* label = qobject_cast<QLabel*>(control);
            const bool empty = label != nullptr && label->text().isEmpty();
            const bool named = qobject_cast<QComboBox*>(control) != nullptr
                                   ? IsLabelled(window, *control) || !control->accessibleName().isEmpty()
                                   : !NameOf(*control).isEmpty();
            if (IsControl(*control) && !named && !empty) {
                without.insert(name + "." + control->objectName().toStdString() + " has no name");
            }
            if (IsControl(*control) && !HasRole(*control)) {
                without.insert(name + "." + control->objectName().toStdString() + " has no role");
            }
        }
    });
    EXPECT_EQ(without, Names{});
}

// The boxes listed here have no label. Only their names distinguish them.
TEST_F(AccessibleFormsTest, everyBox_isTheBuddyOfALabel)
{
    Names without;
    WithEach([&](QWidget& window, const std::string& name) {
        for (QWidget* box : window.findChildren<QWidget*>()) {
            const bool inside = qobject_cast<QComboBox*>(box->parentWidget()) != nullptr;
            if (IsBox(*box) && !inside && !IsLabelled(window, *box)) {
                without.insert(name + "." + box->objectName().toStdString());
            }
        }
    });
    EXPECT_EQ(without,
              (Names{"XrefForm.NoteBox", "TempForm.Text1", "TxEdForm.SymCombo", "MoveTopicsForm.MoveFromList",
                     "MoveTopicsForm.MoveToList", "CheckForm.FindingList", "CheckForm.TextBox"}));
}

// The labels listed here are captions of a whole form, or show a text.
TEST_F(AccessibleFormsTest, labelsWithoutABuddy_areThese)
{
    Names lone;
    WithEach([&](QWidget& window, const std::string& name) {
        for (const QLabel* label : window.findChildren<QLabel*>()) {
            if (IsOwn(*label) && label->buddy() == nullptr) {
                lone.insert(name + "." + label->objectName().toStdString());
            }
        }
    });
    EXPECT_EQ(lone, (Names{"MainForm.FindCount", "XrefForm.TitleLabel", "AdvForm.WarningLabel",
                           "TxEdForm.Label2", "LgEdForm.Label7", "InfoForm.Label1", "CheckForm.SummaryLabel",
                           "CheckForm.NotesLabel", "FileForm.DefaultLabel"}));
}

TEST_F(AccessibleFormsTest, clearButtonInTheFindBox_hasAName)
{
    const auto buttons = Get<QLineEdit>("FindBox").findChildren<QAbstractButton*>();
    ASSERT_EQ(buttons.size(), 1);
    EXPECT_EQ(NameOf(*buttons.first()), QStringLiteral("Clear"));
}

TEST_F(AccessibleFormsTest, moveTopics_secondStep_isLabelledAsWell)
{
    StartOnFullBook();
    MoveTopicsForm move(&form, global.book, global.topicFlags, seams);
    const auto* label = test::Find<QLabel>(move, "InstructionLabel");
    EXPECT_EQ(label->buddy(), test::Find<QWidget>(move, "MoveFromList"));
    test::Find<QListWidget>(move, "MoveFromList")->setCurrentRow(0);
    test::Find<QPushButton>(move, "DoneButton")->click();
    EXPECT_EQ(label->buddy(), test::Find<QWidget>(move, "MoveToList"));
}

} // namespace
} // namespace ls
