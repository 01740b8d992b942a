// The controls and sizes of the logic editor's window.

#include "gui/LgEdFormFixture.h"

#include <QFontInfo>
#include <QFrame>

#include <map>

namespace ls {
namespace {

using test::Find;

using LgEdFormDesign = LgEdFormFixture;

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
