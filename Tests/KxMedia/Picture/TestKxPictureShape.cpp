#include <KxMedia/Picture/KxPictureShape.h>

#include <gtest/gtest.h>

namespace
{

constexpr std::int32_t One = 65536;

void ExpectTurn(const std::array<std::int32_t, 9>& matrix, int clockwiseDegrees, bool mirror)
{
    const KxVideoFrame::Orientation orientation = KxOrientationOf(matrix);
    EXPECT_EQ(orientation.clockwiseDegrees, clockwiseDegrees);
    EXPECT_EQ(orientation.mirror, mirror);
}

} // namespace

TEST(KxPictureShape, ReadsTheEightTurnsOfADisplayMatrix)
{
    ExpectTurn({One, 0, 0, 0, One, 0, 0, 0, 1 << 30}, 0, false);
    ExpectTurn({0, One, 0, -One, 0, 0, 0, 0, 1 << 30}, 90, false);
    ExpectTurn({-One, 0, 0, 0, -One, 0, 0, 0, 1 << 30}, 180, false);
    ExpectTurn({0, -One, 0, One, 0, 0, 0, 0, 1 << 30}, 270, false);
    ExpectTurn({-One, 0, 0, 0, One, 0, 0, 0, 1 << 30}, 0, true);
    ExpectTurn({One, 0, 0, 0, -One, 0, 0, 0, 1 << 30}, 180, true);
    ExpectTurn({0, -One, 0, -One, 0, 0, 0, 0, 1 << 30}, 90, true);
    ExpectTurn({0, One, 0, One, 0, 0, 0, 0, 1 << 30}, 270, true);
}

TEST(KxPictureShape, AMatrixOfZerosIsNoTurn)
{
    ExpectTurn({}, 0, false);
}

TEST(KxPictureShape, StretchesTheWidthOfPicturesWithNonSquarePixels)
{
    EXPECT_EQ(KxDisplayedSize({720, 576}, {64, 45}, {}), QSize(1024, 576));
    EXPECT_EQ(KxDisplayedSize({720, 480}, {8, 9}, {}), QSize(640, 480));
    EXPECT_EQ(KxDisplayedSize({720, 576}, {64, 45}, {90, false}), QSize(576, 1024));
    EXPECT_EQ(KxDisplayedSize({720, 576}, {0, 1}, {}), QSize(720, 576));
    EXPECT_EQ(KxDisplayedSize({720, 576}, {1000, 1}, {}), QSize(720, 576));
}
