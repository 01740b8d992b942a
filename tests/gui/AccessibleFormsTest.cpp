// What every form tells a screen reader of its controls: a name, a role, and the label that stands beside a
// box.

#include "advisor/AdvForm.h"
#include "advisor/TempForm.h"
#include "authoring/DelTopicForm.h"
#include "authoring/InfoForm.h"
#include "authoring/LgEdForm.h"
#include "authoring/MoveTopicsForm.h"
#include "authoring/TxEdForm.h"
#include "files/FileForm.h"
#include "files/OpenForm.h"
#include "gui/MainFormFixture.h"
#include "reader/window/CheckForm.h"
#include "reader/window/CheckItem.h"
#include "reader/window/XrefForm.h"
#include "render/print/PrtForm.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>

#include <algorithm>

namespace ls {
namespace {

// A control that the form's design names; what the toolkit puts inside of others is its own affair.
bool IsOwn(const QWidget& control)
{
    const QString name = control.objectName();
    return !name.isEmpty() && !name.startsWith(QStringLiteral("qt_"));
}

// Containers and lines are no controls, and a menu goes by the name of the item that opens it.
bool IsControl(const QWidget& widget)
{
    const QString kind = QString::fromLatin1(widget.metaObject()->className());
    return IsOwn(widget) && kind != QStringLiteral("QWidget") && kind != QStringLiteral("ls::FindBar") &&
           kind != QStringLiteral("QFrame") && kind != QStringLiteral("Line") &&
           kind != QStringLiteral("QMenu") && kind != QStringLiteral("QMenuBar");
}

// What is filled in or chosen from, and so needs a caption beside it.
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

struct AccessibleFormsTest : MainFormFixture
{
    AccessibleFormsTest()
    {
        Start(Write("Book.IDA", test::CrLf({"LODESTAR BOOK V5.3", "[A]", "a", "<XREF TOPIC=\"B\">note</XREF>",
                                            "[B]", "b"})));
        volumes = MakeVolumes();
        printer.names = {"Office"};
    }

    /// Does something with every form: its name comes with it.
    void WithEach(const std::function<void(QWidget& window, const std::string& name)>& look)
    {
        const FormSeams forms{*volumes, dde, registry, printer};
        const auto one = [&](QWidget&& window) { look(window, window.objectName().toStdString()); };
        look(form, "MainForm");
        one(XrefForm(&form, global.book, seams));
        one(AdvForm(&form, global.book, global.advisor, seams));
        one(TempForm(&form, "text", {}));
        one(TxEdForm(&form, global.book, seams));
        one(LgEdForm(&form, global.book, seams));
        one(DelTopicForm(&form, global.book, global.topicFlags, false));
        one(MoveTopicsForm(&form, global.book, global.topicFlags, seams));
        one(InfoForm(&form, global.book, seams));
        one(OpenForm(&form, global.fileDialog, seams, *volumes, ""));
        one(PrtForm(&form, global.print, global.book, seams, forms));
        one(CheckForm(&form, checked));
        global.fileDialog.FileMode = "R";
        one(FileForm(&form, global.fileDialog, global.book, global.settings, seams, forms));
    }

    CheckedBook checked{{}, "Nothing was found.", ""};
};

TEST_F(AccessibleFormsTest, everyForm_isWalked)
{
    Strings names;
    WithEach([&](QWidget& window, const std::string& name) {
        names.push_back(name);
        EXPECT_FALSE(window.windowTitle().isEmpty()) << name;
        EXPECT_GE(window.findChildren<QPushButton*>().size(), 1) << name;
    });
    EXPECT_EQ(names,
              (Strings{"MainForm", "XrefForm", "AdvForm", "TempForm", "TxEdForm", "LgEdForm", "DelTopicForm",
                       "MoveTopicsForm", "InfoForm", "OpenForm", "PrtForm", "CheckForm", "FileForm"}));
}

// On this system a combo box is named by what is chosen in it, and known by its label.
TEST_F(AccessibleFormsTest, everyControl_hasANameAndARole)
{
    Strings without;
    WithEach([&](QWidget& window, const std::string& name) {
        for (QWidget* control : window.findChildren<QWidget*>()) {
            const auto* label = qobject_cast<QLabel*>(control);
            const bool empty = label != nullptr && label->text().isEmpty();
            const bool named = qobject_cast<QComboBox*>(control) != nullptr
                                   ? IsLabelled(window, *control) || !control->accessibleName().isEmpty()
                                   : !NameOf(*control).isEmpty();
            if (IsControl(*control) && !named && !empty) {
                without.push_back(name + "." + control->objectName().toStdString() + " has no name");
            }
            if (IsControl(*control) && !HasRole(*control)) {
                without.push_back(name + "." + control->objectName().toStdString() + " has no role");
            }
        }
    });
    EXPECT_EQ(without, Strings{});
}

// Those without a label are told apart by their names alone.
TEST_F(AccessibleFormsTest, everyBox_isTheBuddyOfALabel)
{
    Strings without;
    WithEach([&](QWidget& window, const std::string& name) {
        for (QWidget* box : window.findChildren<QWidget*>()) {
            const bool inside = qobject_cast<QComboBox*>(box->parentWidget()) != nullptr;
            if (IsBox(*box) && !inside && !IsLabelled(window, *box)) {
                without.push_back(name + "." + box->objectName().toStdString());
            }
        }
    });
    EXPECT_EQ(without, (Strings{"XrefForm.NoteBox", "TempForm.Text1", "TxEdForm.SymCombo",
                                "MoveTopicsForm.MoveToList", "CheckForm.FindingList", "CheckForm.TextBox"}));
}

// The others are captions of a whole form, or tell something.
TEST_F(AccessibleFormsTest, labelsWithoutABuddy_areThese)
{
    Strings lone;
    WithEach([&](QWidget& window, const std::string& name) {
        for (const QLabel* label : window.findChildren<QLabel*>()) {
            if (IsOwn(*label) && label->buddy() == nullptr) {
                lone.push_back(name + "." + label->objectName().toStdString());
            }
        }
    });
    EXPECT_EQ(lone, (Strings{"MainForm.FindCount", "XrefForm.TitleLabel", "AdvForm.WarningLabel",
                             "TxEdForm.Label2", "LgEdForm.Label7", "InfoForm.Label1",
                             "CheckForm.SummaryLabel", "CheckForm.NotesLabel", "FileForm.DefaultLabel"}));
}

TEST_F(AccessibleFormsTest, clearButtonInTheFindBox_hasAName)
{
    const auto buttons = Get<QLineEdit>("FindBox").findChildren<QAbstractButton*>();
    ASSERT_EQ(buttons.size(), 1);
    EXPECT_EQ(NameOf(*buttons.first()), QStringLiteral("Clear"));
}

TEST_F(AccessibleFormsTest, moveTopics_secondStep_isLabelledAsWell)
{
    MoveTopicsForm move(&form, global.book, global.topicFlags, seams);
    const auto* label = test::Find<QLabel>(move, "InstructionLabel");
    EXPECT_EQ(label->buddy(), test::Find<QWidget>(move, "MoveFromList"));
    test::Find<QListWidget>(move, "MoveFromList")->setCurrentRow(0);
    test::Find<QPushButton>(move, "DoneButton")->click();
    EXPECT_EQ(label->buddy(), test::Find<QWidget>(move, "MoveToList"));
}

} // namespace
} // namespace ls
