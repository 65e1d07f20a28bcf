#include <KxCore/KxCropWindow.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

namespace
{

constexpr QSize Picture(1920, 1080);

void ExpectNear(const QRectF& actual, const QRectF& expected)
{
    EXPECT_NEAR(actual.x(), expected.x(), 1e-12);
    EXPECT_NEAR(actual.y(), expected.y(), 1e-12);
    EXPECT_NEAR(actual.width(), expected.width(), 1e-12);
    EXPECT_NEAR(actual.height(), expected.height(), 1e-12);
}

} // namespace

TEST(KxCropWindow, AWindowInsideStaysAsItIs)
{
    const QRectF crop(0.1, 0.2, 0.3, 0.4);
    EXPECT_EQ(KxCropWindow::Inside(crop), crop);
    EXPECT_EQ(KxCropWindow::Inside(QRectF(0, 0, 1, 1)), QRectF(0, 0, 1, 1));
}

TEST(KxCropWindow, AWindowBeyondAnEdgeIsMovedToIt)
{
    ExpectNear(KxCropWindow::Inside(QRectF(-0.1, 0.2, 0.3, 0.4)), QRectF(0.0, 0.2, 0.3, 0.4));
    ExpectNear(KxCropWindow::Inside(QRectF(0.8, 0.2, 0.3, 0.4)), QRectF(0.7, 0.2, 0.3, 0.4));
    ExpectNear(KxCropWindow::Inside(QRectF(0.1, -5.0, 0.3, 0.4)), QRectF(0.1, 0.0, 0.3, 0.4));
    ExpectNear(KxCropWindow::Inside(QRectF(0.1, 5.0, 0.3, 0.4)), QRectF(0.1, 0.6, 0.3, 0.4));
}

TEST(KxCropWindow, AWindowLargerThanThePictureIsShortened)
{
    ExpectNear(KxCropWindow::Inside(QRectF(-0.5, 0.2, 2.0, 0.4)), QRectF(0.0, 0.2, 1.0, 0.4));
    ExpectNear(KxCropWindow::Inside(QRectF(0.1, 0.1, 0.3, 7.0)), QRectF(0.1, 0.0, 0.3, 1.0));
}

TEST(KxCropWindow, AnUnusableWindowIsTheWholePicture)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double infinity = std::numeric_limits<double>::infinity();
    for (const QRectF& crop : {QRectF(0.1, 0.1, 0.0, 0.5), QRectF(0.1, 0.1, 0.5, -0.5), QRectF(nan, 0, 1, 1),
                               QRectF(0, -infinity, 1, 1), QRectF(0, 0, infinity, 1), QRectF(0, 0, 1, nan)}) {
        EXPECT_FALSE(KxCropWindow::IsUsable(crop));
        EXPECT_EQ(KxCropWindow::Inside(crop), QRectF(0, 0, 1, 1));
        EXPECT_EQ(KxCropWindow::Pixels(crop, Picture), QRectF(0, 0, 1920, 1080));
    }
    EXPECT_TRUE(KxCropWindow::IsUsable(QRectF(-3, 9, 1e-6, 7)));
}

TEST(KxCropWindow, TheCentralWindowIsAsLargeAsItsShapeAllows)
{
    ExpectNear(KxCropWindow::Central(QSizeF(1920, 1080), QSizeF(9, 16)), QRectF(0.341796875, 0, 0.31640625, 1));
    ExpectNear(KxCropWindow::Central(QSizeF(1000, 1000), QSizeF(2, 1)), QRectF(0, 0.25, 1, 0.5));
    ExpectNear(KxCropWindow::Central(QSizeF(1920, 1080), QSizeF(16, 9)), QRectF(0, 0, 1, 1));
}

TEST(KxCropWindow, AnOddRestPutsTheCentralWindowOnHalfAPixel)
{
    // 1080 of 1921 pixels leave 841: the central window starts at half a pixel.
    const QRectF square = KxCropWindow::Central(QSizeF(1921, 1080), QSizeF(1, 1));
    EXPECT_EQ(KxCropWindow::Pixels(square, QSize(1921, 1080)), QRectF(420.5, 0, 1080, 1080));
}

TEST(KxCropWindow, WholePixelsStayWhole)
{
    for (int x = 0; x + 607 <= 1920; x += 7) {
        // As a crop track writes it, with nine decimals.
        const double written = std::round(x / 1920.0 * 1e9) / 1e9;
        const double width = std::round(607.0 / 1920.0 * 1e9) / 1e9;
        EXPECT_EQ(KxCropWindow::Pixels(QRectF(written, 0, width, 1), Picture), QRectF(x, 0, 607, 1080));
    }
}

TEST(KxCropWindow, PixelsHaveStepsOfA4096th)
{
    const double step = 1.0 / 4096.0;
    const QRectF px = KxCropWindow::Pixels(QRectF((100 + 1.4 * step) / 1920, 0, (500 + 2.6 * step) / 1920, 1), Picture);
    EXPECT_EQ(px.x(), 100 + step);
    EXPECT_EQ(px.width(), 500 + 3 * step);
}

TEST(KxCropWindow, AWindowHasAtLeastOnePixel)
{
    EXPECT_EQ(KxCropWindow::Pixels(QRectF(1e-9, 1.0, 1e-9, 1e-9), Picture), QRectF(0, 1079, 1, 1));
}

TEST(KxCropWindow, AnyPixelsLieInsideThePicture)
{
    std::mt19937 random(11); // NOLINT: the same windows in every run
    std::uniform_real_distribution<double> place(-1.5, 2.5);
    std::uniform_real_distribution<double> extent(0.0, 1.6);
    for (int i = 0; i < 5000; ++i) {
        const QSize picture(1 + i % 1931, 1 + i % 977);
        const QRectF crop(place(random), place(random), extent(random), extent(random));
        const QRectF px = KxCropWindow::Pixels(crop, picture);
        ASSERT_GE(px.width(), 1.0);
        ASSERT_GE(px.height(), 1.0);
        ASSERT_TRUE(QRectF(QPointF(0, 0), picture).contains(px));
    }
}

TEST(KxCropWindow, AWindowIsMappedToWhereThePictureIsShown)
{
    EXPECT_EQ(KxCropWindow::MappedTo(QRectF(10, 20, 400, 200), QRectF(0.25, 0.5, 0.5, 0.25)),
              QRectF(110, 120, 200, 50));
}
