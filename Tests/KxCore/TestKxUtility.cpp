#include <KxCore/KxUtility.h>

#include <gtest/gtest.h>

using KxUtility::getFitCentralWindowRectByRatio;

TEST(KxUtilityFit, TakesTheWholeRectangleOfTheSameAspect)
{
    EXPECT_EQ(getFitCentralWindowRectByRatio(QRect(3, 5, 640, 360), QSize(16, 9)), QRect(3, 5, 640, 360));
}

TEST(KxUtilityFit, LeavesRoomAtTheSidesOfATallPicture)
{
    EXPECT_EQ(getFitCentralWindowRectByRatio(QRect(10, 20, 640, 360), QSize(1080, 1920)), QRect(229, 20, 202, 360));
}

TEST(KxUtilityFit, LeavesRoomAboveAndBelowAWidePicture)
{
    EXPECT_EQ(getFitCentralWindowRectByRatio(QRect(0, 0, 640, 480), QSize(16, 9)), QRect(0, 60, 640, 360));
}

TEST(KxUtilityFit, RoundsSidesDownAndPutsTheOddPixelLast)
{
    // 101 * 9 / 16 = 56.8; 100 - 56 leaves 22 on both sides, 99 - 56 leaves 21 and 22.
    EXPECT_EQ(getFitCentralWindowRectByRatio(QRect(0, 0, 101, 100), QSize(16, 9)), QRect(0, 22, 101, 56));
    EXPECT_EQ(getFitCentralWindowRectByRatio(QRect(0, 0, 101, 99), QSize(16, 9)), QRect(0, 21, 101, 56));
}

TEST(KxUtilityFit, APictureWiderByLessThanAPixelTakesTheWholeHeight)
{
    // At full height it would be 640.3 pixels wide.
    EXPECT_EQ(getFitCentralWindowRectByRatio(QRect(0, 0, 640, 360), QSize(1921, 1080)), QRect(0, 0, 640, 360));
}

TEST(KxUtilityFit, TheOddPixelBesideATallRectangleIsOnItsRight)
{
    // 100 * 9 / 16 = 56.25; 101 - 56 leaves 45: 22 on the left, 23 on the right.
    EXPECT_EQ(getFitCentralWindowRectByRatio(QRect(0, 0, 101, 100), QSize(9, 16)), QRect(22, 0, 56, 100));
    EXPECT_EQ(getFitCentralWindowRectByRatio(QRect(7, 3, 101, 100), QSize(9, 16)), QRect(29, 3, 56, 100));
}

TEST(KxUtilityFit, IsEmptyWithoutARectangleOrARatio)
{
    EXPECT_TRUE(getFitCentralWindowRectByRatio(QRect(0, 0, 0, 100), QSize(16, 9)).isEmpty());
    EXPECT_TRUE(getFitCentralWindowRectByRatio(QRect(0, 0, 100, 100), QSize(0, 9)).isEmpty());
    EXPECT_TRUE(getFitCentralWindowRectByRatio(QRect(0, 0, 100, 100), QSize()).isEmpty());
}

TEST(KxUtilityFit, HoldsForSizesWhoseProductPasses32Bits)
{
    EXPECT_EQ(getFitCentralWindowRectByRatio(QRect(0, 0, 100000, 50000), QSize(64000, 32000)),
              QRect(0, 0, 100000, 50000));
}
