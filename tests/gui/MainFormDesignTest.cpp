// The design of the controls and menus: names, captions, tool tips, pictures, places.

#include "forms/ButtonIcons.h"
#include "gui/MainFormFixture.h"

#include <QImage>

#include <utility>

namespace ls {
namespace {

struct MainFormDesignTest : MainFormFixture
{
};

TEST_F(MainFormDesignTest, design_paneHolds80CharactersAndWholeRows)
{
    const auto& pane = Get<ReadingPane>("MsgPic");
    EXPECT_GE(pane.InnerWidth() / pane.TextWidth("W"), 80.25) << "also two pixels narrower, when resized";
    EXPECT_GE(pane.InnerHeight() / pane.TextHeight("W"), 25);
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

// Two kinds may be disabled: Help if the program's folder has no help page, and the Go items, because no
// other topic was shown before.
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
