// The controls and menus as they are designed: names, captions, tool tips, pictures, places.

#include "forms/ButtonIcons.h"
#include "gui/MainFormFixture.h"

#include <QImage>
#include <QMenu>
#include <QMenuBar>

#include <utility>

namespace ls {
namespace {

struct MainFormDesignTest : MainFormFixture
{
};

std::string Caption(QString text)
{
    return text.remove(QLatin1Char('&')).toStdString();
}

TEST_F(MainFormDesignTest, controls_captionsAndToolTips)
{
    struct Row
    {
        const char* name;
        const char* caption;
        const char* toolTip;
    };
    EXPECT_EQ(form.windowTitle(), QStringLiteral("Lodestar Advisor"));
    EXPECT_EQ(Caption(Get<QLabel>("TopicLabel").text()), "Select a topic, then choose Go To");
    EXPECT_EQ(Get<QComboBox>("TopicList").toolTip(), QStringLiteral("Pick topic from list"));
    for (const Row& row :
         {Row{"GoToButton", "Go To", "Display chosen topic"}, Row{"BackButton", "", "Go to previous topic"},
          Row{"NextButton", "", "Go to next topic"}, Row{"XRButton", "Cross Reference", ""},
          Row{"AdvisorButton", "Advisor", ""}, Row{"DoneButton", "Close", "Close window"},
          Row{"ExplainButton", "", "Find out more on Internet; post a comment"}}) {
        const auto& button = Get<QPushButton>(row.name);
        EXPECT_EQ(Caption(button.text()), row.caption) << row.name;
        EXPECT_EQ(button.toolTip().toStdString(), row.toolTip) << row.name;
        EXPECT_EQ(button.text().isEmpty(), !button.icon().isNull()) << row.name;
        EXPECT_TRUE(!button.text().isEmpty() || !button.accessibleName().isEmpty()) << row.name;
    }
}

TEST_F(MainFormDesignTest, menus_captionsInOrder)
{
    const std::vector<std::pair<const char*, Strings>> expected = {
        {"FileMenu File", {"NewItem New", "OpenItem Open", "SaveItem Save", "ExitItem Exit"}},
        {"EditMenu Edit",
         {"AddTopicItem Add Topic", "EdTextItem Edit Topic Text", "AdviceEdItem Edit Topic Advice",
          "DelTopicItem Remove Topics", "ReorderItem Reorder Topics", "EditPropertiesOption Edit Properties",
          "CopyItem Copy", "SelectAllItem Select All", "FindItem Find", "FindNextItem Find Next",
          "FindPreviousItem Find Previous"}},
        {"ActionMenu Action",
         {"PrevTopic Previous Topic", "NextItem Next Topic", "PrintItem Print Topic",
          "ExportItem Export Topic", "CheckItem Check Book", "GoBackItem Go Back", "GoForwardItem Go Forward",
          "LargerItem Larger Type", "SmallerItem Smaller Type", "NormalSizeItem Normal Type Size"}},
        {"IndexMenu Index",
         {"AlphaItem Alphabetic Order", "ContentsItem Contents Order", "PickTopicItem Pick Topic"}},
        {"HelpMenu Help", {"HelpItem Help", "AboutItem About"}}};
    const QList<QAction*> menus = form.menuBar()->actions();
    ASSERT_EQ(static_cast<std::size_t>(menus.size()), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        const QMenu* menu = menus[static_cast<qsizetype>(i)]->menu();
        EXPECT_EQ(menu->objectName().toStdString() + " " + Caption(menu->title()), expected[i].first);
        Strings items;
        for (const QAction* item : menu->actions()) {
            if (!item->isSeparator()) {
                items.push_back(item->objectName().toStdString() + " " + Caption(item->text()));
            }
        }
        EXPECT_EQ(items, expected[i].second);
    }
}

TEST_F(MainFormDesignTest, design_paneHolds80CharactersAndWholeRows)
{
    const auto& pane = Get<ReadingPane>("MsgPic");
    EXPECT_GE(pane.InnerWidth() / pane.TextWidth("W"), 80.25) << "also two pixels narrower, when resized";
    EXPECT_GE(pane.InnerHeight() / pane.TextHeight("W"), 25);
}

TEST_F(MainFormDesignTest, design_everyControlFitsInTheFormAndShowsItsCaption)
{
    const QRect inner(0, 0, 686, 493);
    for (const char* name : {"TopicLabel", "TopicList", "GoToButton", "BackButton", "NextButton", "MsgPic",
                             "VScroll1", "DoneButton", "AdvisorButton", "XRButton", "ExplainButton"}) {
        const auto& control = Get<QWidget>(name);
        EXPECT_TRUE(inner.contains(control.geometry())) << name;
        if (const auto* button = qobject_cast<const QPushButton*>(&control); button != nullptr) {
            EXPECT_GE(button->width(), button->fontMetrics().horizontalAdvance(button->text()) + 12) << name;
            EXPECT_GE(button->height(), button->fontMetrics().height() + 6) << name;
        }
    }
}

TEST_F(MainFormDesignTest, icons_atTwiceTheScale_areDrawnInFullSize)
{
    for (const ButtonPicture picture : {ButtonPicture::ArrowLeft, ButtonPicture::ArrowRight,
                                        ButtonPicture::Globe, ButtonPicture::QuestionMark}) {
        const QImage once = ButtonIcon(picture).pixmap(QSize(16, 16), 1.0).toImage();
        const QImage twice = ButtonIcon(picture).pixmap(QSize(16, 16), 2.0).toImage();
        EXPECT_EQ(twice.size(), QSize(32, 32));
        EXPECT_NE(once.scaled(32, 32), twice);
        EXPECT_GT(qAlpha(twice.pixel(16, 16)) + qAlpha(twice.pixel(10, 16)), 0) << "something is drawn";
    }
}

// Help is the only one that may be missing: its page need not lie beside the program. No topic was shown
// before the first one.
TEST_F(MainFormDesignTest, items_areAllEnabled)
{
    Start(WriteThree());
    for (const auto* item : form.findChildren<QAction*>()) {
        const bool mayBeDisabled = item->objectName() == QStringLiteral("HelpItem") ||
                                   item->objectName().startsWith(QStringLiteral("Go"));
        EXPECT_TRUE(item->isEnabled() || mayBeDisabled) << item->objectName().toStdString();
    }
}

} // namespace
} // namespace ls
