#include <KxPlayer/KxPicturePlace.h>

#include <gtest/gtest.h>

#include <ostream>

void PrintTo(const QRect& rect, std::ostream* out)
{
    *out << rect.x() << "," << rect.y() << " " << rect.width() << "x" << rect.height();
}

TEST(KxPicturePlace, FillsAnAreaOfItsOwnShape)
{
    EXPECT_EQ(KxPicturePlace::Fit(QRect(0, 0, 1280, 720), QSizeF(1920, 1080)), QRect(0, 0, 1280, 720));
}

TEST(KxPicturePlace, RoundsDownAndCentresWithWholeHalves)
{
    EXPECT_EQ(KxPicturePlace::Fit(QRect(0, 0, 101, 60), QSizeF(9, 16)), QRect(34, 0, 33, 60));
    EXPECT_EQ(KxPicturePlace::Fit(QRect(10, 20, 100, 100), QSizeF(16, 9)), QRect(10, 42, 100, 56));
}

TEST(KxPicturePlace, TakesTheWholeAreaWithoutAShape)
{
    EXPECT_EQ(KxPicturePlace::Fit(QRect(0, 0, 30, 20), QSizeF()), QRect(0, 0, 30, 20));
    EXPECT_EQ(KxPicturePlace::Fit(QRect(), QSizeF(16, 9)), QRect());
}

TEST(KxPicturePlace, IsAtLeastAPixelThick)
{
    EXPECT_EQ(KxPicturePlace::Fit(QRect(0, 0, 100, 10), QSizeF(10000, 1)).height(), 1);
}

TEST(KxPicturePlace, FitsIntoTheWideFrameFirst)
{
    // In a player taller than 16:9, an upright picture is as tall as the 16:9 frame, not as the player.
    EXPECT_EQ(KxPicturePlace::In(QSize(1600, 1200), QSizeF(3, 4)), QRect(462, 150, 675, 900));
    EXPECT_EQ(KxPicturePlace::In(QSize(1600, 1200), QSizeF()), QRect(0, 150, 1600, 900));
    EXPECT_EQ(KxPicturePlace::In(QSize(1600, 1200), QSizeF(21, 9)), QRect(0, 257, 1600, 685));
}
