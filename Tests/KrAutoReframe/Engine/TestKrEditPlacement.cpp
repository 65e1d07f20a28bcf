#include <KrAutoReframe/Engine/KrEditPlacement.h>

#include <gtest/gtest.h>

namespace
{

void ExpectSame(const QRectF& found, const QRectF& expected)
{
    EXPECT_NEAR(found.x(), expected.x(), 1e-12);
    EXPECT_NEAR(found.y(), expected.y(), 1e-12);
    EXPECT_NEAR(found.width(), expected.width(), 1e-12);
    EXPECT_NEAR(found.height(), expected.height(), 1e-12);
}

} // namespace

TEST(KrEditPlacement, ARectangleOfThatSizeStaysExactlyAsItIs)
{
    const QRectF placed(0.9, -0.1, 0.3, 1.0);
    EXPECT_EQ(KrEditPlacement::InSize(placed, {0.3 + 1e-9, 1.0}), placed);
}

TEST(KrEditPlacement, AnotherSizeKeepsTheCentre)
{
    ExpectSame(KrEditPlacement::InSize({0.4, 0.0, 0.2, 1.0}, {0.5, 0.8}), {0.25, 0.1, 0.5, 0.8});
}

TEST(KrEditPlacement, ALargerOneIsMovedIntoThePicture)
{
    ExpectSame(KrEditPlacement::InSize({0.0, 0.0, 0.2, 0.5}, {0.6, 1.0}), {0.0, 0.0, 0.6, 1.0});
    ExpectSame(KrEditPlacement::InSize({0.8, 0.5, 0.2, 0.5}, {0.6, 0.7}), {0.4, 0.3, 0.6, 0.7});
}
