// How the logic editor's window is made: its controls, captions, keys and sizes.

#include "gui/LgEdFormFixture.h"

#include <QAbstractButton>
#include <QAction>
#include <QFontInfo>
#include <QFrame>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>

#include <map>

namespace ls {
namespace {

using test::Find;

using LgEdFormDesign = LgEdFormFixture;

struct CaptionCase
{
    const char* name;
    const char* caption;
};

std::string CaptionName(const testing::TestParamInfo<CaptionCase>& info)
{
    return info.param.name;
}

struct LgEdFormCaption : LgEdFormFixture, testing::WithParamInterface<CaptionCase>
{
};

TEST_P(LgEdFormCaption, control_readsAsDesigned)
{
    Load();
    const auto* control = Find<QWidget>(*form, GetParam().name);
    ASSERT_NE(control, nullptr);
    EXPECT_TRUE(control->isVisible());
    EXPECT_EQ(control->property("text").toString().remove(u'&').toStdString(), GetParam().caption);
}

const CaptionCase Captions[] = {
    {"Label1", "Edit logic text. CTRL/C = copy, CTRL/X = cut, CTRL/V = paste"},
    {"Label2", "Variable:"},
    {"Label3", "Variable Question (leave blank for placeholder variable):"},
    {"Label4", "Choice:"},
    {"Label5", "Text for this chosen answer:"},
    {"Label6", "Keyword:"},
    {"Label7", "Required only for target variable:"},
    {"KeywordInsertButton", "Insert (F2)"},
    {"VarAddButton", "Add new variable"},
    {"VarDelButton", "Delete variable"},
    {"InsertButton", "Insert (F3)"},
    {"AddAnsButton", "Add new choice"},
    {"DelAnsButton", "Delete choice"},
    {"InsAdvButton", "Insert (F4)"},
    {"SaveButton", "Done"},
    {"CancelButton", "Cancel"},
};

INSTANTIATE_TEST_SUITE_P(Controls, LgEdFormCaption, testing::ValuesIn(Captions), CaptionName);

TEST_F(LgEdFormDesign, load_showsTitleTextListsAndLines)
{
    Load();
    EXPECT_EQ(form->windowTitle(), QStringLiteral("Topic Logic Edit"));
    EXPECT_EQ(Logic(), "TARGET RISK\nRISK(HIGH)=AGE(OLD)\n");
    EXPECT_TRUE(QFontInfo(Box("LogicTextbox").font()).fixedPitch());
    EXPECT_EQ(Box("LogicTextbox").font().family(), QStringLiteral("Courier New"));
    EXPECT_EQ(Entries("KeywordCombo"), (Strings{"ASSUME", "TARGET", "DEFINE"}));
    EXPECT_EQ(Picked("KeywordCombo"), "");
    EXPECT_EQ(Entries("VarCombo"), (Strings{"RISK", "AGE", "NOTE"}));
    EXPECT_EQ(Entries("AnswerCombo"), (Strings{"HIGH", "LOW"}));
    for (const char* line : {"Line1", "Line2"}) {
        EXPECT_TRUE(Find<QFrame>(*form, line)->isVisible()) << line;
    }
    EXPECT_EQ(form->focusWidget(), &Box("LogicTextbox"));
    test::TakePicture(*form, "LgEdForm");
}

TEST_F(LgEdFormDesign, menus_holdTheirItemsWithTheirKeys)
{
    Load();
    const std::map<const char*, Strings> menus = {
        {"EditMenu",
         {"UndoItem Undo Ctrl+Z", "RedoItem Redo Ctrl+Shift+Z", "SelectAllItem Select All Ctrl+A",
          "FindItem Find... Ctrl+F", "FindNextItem Find Next Ctrl+G"}},
        {"InsertMenu", {"KeywordItem Keyword F2", "InsVarItem Variable F3", "InsAdvItem Choice F4"}},
        {"ShowMenu", {"ShowSpecItem Specification "}},
    };
    for (const auto& [name, wanted] : menus) {
        Strings items;
        for (const QAction* action : Find<QMenu>(*form, name)->actions()) {
            if (!action->isSeparator()) {
                items.push_back((action->objectName() + u' ' + action->text().remove(u'&') + u' ' +
                                 action->shortcut().toString())
                                    .toStdString());
            }
        }
        EXPECT_EQ(items, wanted) << name;
    }
    EXPECT_EQ(Find<QMenu>(*form, "InsertMenu")->title().remove(u'&'), QStringLiteral("Insert"));
    EXPECT_EQ(Find<QMenu>(*form, "ShowMenu")->title().remove(u'&'), QStringLiteral("Show"));
}

// Alt and a letter must lead to one place only.
TEST_F(LgEdFormDesign, mnemonics_areAllDifferent)
{
    Load();
    QStringList captions;
    for (const auto* label : form->findChildren<QLabel*>()) {
        captions.append(label->text());
        EXPECT_EQ(label->text().contains(u'&'), label->buddy() != nullptr) << label->text().toStdString();
    }
    for (const auto* button : form->findChildren<QPushButton*>()) {
        captions.append(button->text());
    }
    for (const QAction* menu : Find<QMenuBar>(*form, "menubar")->actions()) {
        captions.append(menu->text());
    }
    std::map<char, std::string> owners;
    for (const QString& caption : captions) {
        const qsizetype mark = caption.indexOf(u'&');
        if (mark >= 0) {
            const char letter = caption.at(mark + 1).toUpper().toLatin1();
            EXPECT_TRUE(owners.emplace(letter, caption.toStdString()).second)
                << letter << ": " << caption.toStdString() << " and " << owners[letter];
        }
    }
    EXPECT_EQ(owners.size(), 18U);
}

TEST_F(LgEdFormDesign, buddies_takeTheFocusByTheirLabels)
{
    Load();
    const std::map<const char*, std::pair<Qt::Key, const char*>> keys = {
        {"Label1", {Qt::Key_L, "LogicTextbox"}}, {"Label6", {Qt::Key_K, "KeywordCombo"}},
        {"Label2", {Qt::Key_V, "VarCombo"}},     {"Label3", {Qt::Key_Q, "VQuestionBox"}},
        {"Label4", {Qt::Key_H, "AnswerCombo"}},  {"Label5", {Qt::Key_T, "VCAnswerBox"}},
    };
    for (const auto& [label, target] : keys) {
        Find<QWidget>(*form, "CancelButton")->setFocus();
        Key(target.first, Qt::AltModifier);
        EXPECT_EQ(form->focusWidget()->objectName().toStdString(), target.second) << label;
    }
}

TEST_F(LgEdFormDesign, listsAndBoxes_haveAccessibleNames)
{
    Load();
    const std::map<const char*, const char*> names = {
        {"LogicTextbox", "Logic text"},
        {"KeywordCombo", "Keyword"},
        {"KeywordInsertButton", "Insert keyword (F2)"},
        {"VarCombo", "Variable"},
        {"InsertButton", "Insert variable (F3)"},
        {"VQuestionBox", "Question of the variable"},
        {"AnswerCombo", "Choice"},
        {"InsAdvButton", "Insert choice (F4)"},
        {"VCAnswerBox", "Text for this chosen answer"},
    };
    for (const auto& [control, name] : names) {
        EXPECT_EQ(Find<QWidget>(*form, control)->accessibleName().toStdString(), name) << control;
    }
}

TEST_F(LgEdFormDesign, tabOrder_goesAsTheEyeGoes)
{
    Load();
    Strings order;
    for (int i = 0; i < 15; ++i) {
        order.push_back(form->focusWidget()->objectName().toStdString());
        Key(Qt::Key_Tab);
    }
    EXPECT_EQ(order,
              (Strings{"LogicTextbox", "KeywordCombo", "KeywordInsertButton", "VarCombo", "InsertButton",
                       "VarAddButton", "VarDelButton", "VQuestionBox", "AnswerCombo", "InsAdvButton",
                       "AddAnsButton", "DelAnsButton", "VCAnswerBox", "SaveButton", "CancelButton"}));
    EXPECT_EQ(form->focusWidget(), &Box("LogicTextbox"));
}

TEST_F(LgEdFormDesign, taller_logicTextTakesTheHeightAndTheRestItsPlace)
{
    Load();
    const auto fromBelow = [this] {
        std::map<std::string, int> places;
        for (const auto* control : form->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
            const QPoint corner = control->mapTo(form.get(), QPoint(0, control->height()));
            places[control->objectName().toStdString()] = form->height() - corner.y();
        }
        places.erase("menubar");
        places.erase("Label1");
        places.erase("");
        return places;
    };
    const auto before = fromBelow();
    EXPECT_GE(before.size(), 22U);
    const QSize box = Box("LogicTextbox").size();
    const QSize question = Box("VQuestionBox").size();
    form->resize(form->size() + QSize(0, 80));
    QTest::qWait(20);
    EXPECT_EQ(Box("LogicTextbox").size(), box + QSize(0, 80));
    EXPECT_EQ(Box("VQuestionBox").size(), question);
    EXPECT_EQ(fromBelow(), before);
    form->resize(form->size() - QSize(0, 120));
    QTest::qWait(20);
    EXPECT_EQ(Box("LogicTextbox").size(), box - QSize(0, 40));
    EXPECT_EQ(fromBelow(), before);
}

TEST_F(LgEdFormDesign, wider_bothColumnsTakeHalfOfIt)
{
    Load();
    const auto widths = [this] {
        Strings found;
        for (const char* name : {"LogicTextbox", "VarCombo", "VQuestionBox", "AnswerCombo", "VCAnswerBox"}) {
            found.push_back(name + std::to_string(Find<QWidget>(*form, name)->width()));
        }
        return found;
    };
    const int logic = Box("LogicTextbox").width();
    const int variable = List("VarCombo").width();
    const int question = Box("VQuestionBox").width();
    const int choice = List("AnswerCombo").width();
    const int advice = Box("VCAnswerBox").width();
    EXPECT_NEAR(question, advice, 1) << "the columns are of one width";
    for (const int more : {200, -20}) {
        form->resize(form->size() + QSize(more, 0));
        QTest::qWait(20);
        EXPECT_EQ(widths(), (Strings{"LogicTextbox" + std::to_string(logic + more),
                                     "VarCombo" + std::to_string(variable + more / 2),
                                     "VQuestionBox" + std::to_string(question + more / 2),
                                     "AnswerCombo" + std::to_string(choice + more / 2),
                                     "VCAnswerBox" + std::to_string(advice + more / 2)}));
        form->resize(form->size() - QSize(more, 0));
    }
}

} // namespace
} // namespace ls
