#include <KrAutoReframe/Engine/KrGuides.h>

#include <gtest/gtest.h>

namespace
{

constexpr QRectF FullHd(0.0, 0.0, 1080.0, 1920.0);

bool AreNear(const QRectF& a, const QRectF& b)
{
    constexpr double slack = 1e-9;
    return std::abs(a.x() - b.x()) < slack && std::abs(a.y() - b.y()) < slack &&
           std::abs(a.width() - b.width()) < slack && std::abs(a.height() - b.height()) < slack;
}

} // namespace

TEST(KrGuides, TheSafeAreaOfAVerticalVideoIsClearOfEveryPlayer)
{
    const QRectF clear = KrGuides::SafeArea(FullHd);
    EXPECT_DOUBLE_EQ(clear.left(), 120.0);
    EXPECT_DOUBLE_EQ(clear.right(), 888.0);
    EXPECT_DOUBLE_EQ(clear.top(), 288.0);
    EXPECT_DOUBLE_EQ(clear.bottom(), 1248.0);
}

TEST(KrGuides, TheSafeAreaScalesWithTheResult)
{
    EXPECT_TRUE(AreNear(KrGuides::SafeArea({100.0, 50.0, 270.0, 480.0}), {130.0, 122.0, 192.0, 240.0}));
}

TEST(KrGuides, ASizeOfWholeEvenPixelsIsStillVertical)
{
    EXPECT_FALSE(KrGuides::SafeArea({0.0, 0.0, 406.0, 720.0}).isEmpty());
    EXPECT_FALSE(KrGuides::SafeArea({0.0, 0.0, 202.0, 360.0}).isEmpty());
}

TEST(KrGuides, OtherRatiosHaveNoSafeArea)
{
    for (const QSizeF& size : {QSizeF(1080, 1080), QSizeF(1080, 1350), QSizeF(1920, 1080), QSizeF(1080, 1440)}) {
        EXPECT_TRUE(KrGuides::SafeArea(QRectF(QPointF(), size)).isEmpty()) << size.width() << " x " << size.height();
    }
    EXPECT_TRUE(KrGuides::SafeArea({}).isEmpty());
}

TEST(KrGuides, TheGridDividesTheResultIntoThirds)
{
    const QList<QLineF> expected{
        {40.0, 20.0, 40.0, 110.0}, {10.0, 50.0, 100.0, 50.0}, {70.0, 20.0, 70.0, 110.0}, {10.0, 80.0, 100.0, 80.0}};
    EXPECT_EQ(KrGuides::Thirds({10.0, 20.0, 90.0, 90.0}), expected);
}

TEST(KrGuides, TheHeadroomIsABandBelowTheUpperEdge)
{
    EXPECT_TRUE(AreNear(KrGuides::Headroom({10.0, 20.0, 90.0, 200.0}), {10.0, 30.0, 90.0, 14.0}));
}
