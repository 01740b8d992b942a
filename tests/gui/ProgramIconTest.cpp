#include "forms/ProgramIcon.h"

#include <QImage>
#include <QPixmap>

#include <gtest/gtest.h>

#include <algorithm>

namespace ls {
namespace {

TEST(ProgramIcon, programIcon_everySize_isAPictureOfItsOwn)
{
    const QIcon icon = ProgramIcon();
    QList<QSize> sizes = icon.availableSizes();
    std::sort(sizes.begin(), sizes.end(), [](QSize a, QSize b) { return a.width() < b.width(); });
    QList<QSize> expected;
    for (const int size : {16, 24, 32, 48, 64, 128, 256}) {
        expected.append(QSize(size, size));
    }
    EXPECT_EQ(sizes, expected);
}

TEST(ProgramIcon, programIcon_aboveTheBook_showsTheStar)
{
    const QImage picture = ProgramIcon().pixmap(QSize(256, 256)).toImage();
    ASSERT_EQ(picture.size(), QSize(256, 256));
    EXPECT_EQ(picture.pixelColor(128, 78), QColor(0xff, 0xd5, 0x4a));
    EXPECT_EQ(picture.pixelColor(0, 0).alpha(), 0) << "the corners are round";
}

} // namespace
} // namespace ls
