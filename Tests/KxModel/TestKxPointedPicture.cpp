#include <KxModel/KxPointedPicture.h>

#include <KxSubject/KxSubjectRecord.h>

#include <QPainter>

#include <gtest/gtest.h>

namespace
{

constexpr QSize PictureSize(320, 180);
constexpr QRectF Box(0.4, 0.3, 0.14, 0.28);

/// A wall whose light changes gradually, with noise.
QImage Wall()
{
    QImage picture(PictureSize, QImage::Format_BGR888);
    quint32 noise = 1;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            noise = noise * 1664525U + 1013904223U;
            const int level = 100 + x / 4 + static_cast<int>(noise >> 29U);
            picture.setPixel(x, y, qRgb(level, level, level + 5));
        }
    }
    return picture;
}

/// Wallpaper with stripes and dots.
QImage Wallpaper()
{
    QImage picture(PictureSize, QImage::Format_BGR888);
    picture.fill(QColor(200, 190, 160));
    QPainter painter(&picture);
    for (int x = 0; x < picture.width(); x += 16) {
        painter.fillRect(x, 0, 6, picture.height(), QColor(90, 120, 90));
        for (int y = 4; y < picture.height(); y += 12) {
            painter.fillRect(x + 9, y, 4, 4, QColor(160, 60, 60));
        }
    }
    return picture;
}

} // namespace

TEST(KxPointedPicture, AWallIsPlain)
{
    EXPECT_TRUE(KxPointedPicture::IsPlain(Wall(), Box));
}

TEST(KxPointedPicture, AThingInFrontOfAWallIsNotPlain)
{
    QImage picture = Wall();
    QPainter(&picture).fillRect(QRect(138, 64, 24, 36), QColor(150, 40, 40));
    EXPECT_FALSE(KxPointedPicture::IsPlain(picture, Box));
}

TEST(KxPointedPicture, ABoxBeyondThePictureIsNotCalledPlain)
{
    EXPECT_FALSE(KxPointedPicture::IsPlain(Wall(), QRectF(1.0, 1.0, 0.2, 0.2)));
    EXPECT_FALSE(KxPointedPicture::IsPlain(QImage(), Box));
    EXPECT_TRUE(KxPointedPicture::IsPlain(Wall(), QRectF(0.9, 0.9, 0.2, 0.2)));
}

TEST(KxPointedPicture, APatternThatGoesOnSharesItsColoursWithItsSurroundings)
{
    EXPECT_FALSE(KxPointedPicture::IsPlain(Wallpaper(), Box));
    EXPECT_GT(KxPointedPicture::SharedColours(Wallpaper(), Box), 0.8);
}

TEST(KxPointedPicture, AThingInFrontOfAPatternDoesNotShareItsColours)
{
    QImage picture = Wallpaper();
    QPainter(&picture).fillRect(QRect(130, 56, 42, 46), QColor(40, 60, 150));
    EXPECT_LT(KxPointedPicture::SharedColours(picture, Box), 0.3);
}

TEST(KxPointedPicture, WithoutSurroundingsNothingIsShared)
{
    EXPECT_EQ(KxPointedPicture::SharedColours(Wallpaper(), QRectF(0.0, 0.0, 1.0, 1.0)), 0.0);
    EXPECT_EQ(KxPointedPicture::SharedColours(Wallpaper(), QRectF(2.0, 0.0, 1.0, 1.0)), 0.0);
    EXPECT_EQ(KxPointedPicture::SharedColours(QImage(), Box), 0.0);
}

namespace
{

using Seen = KxPointedPicture::Seen;

/// A plaid that no other part of the picture resembles, from `topPx` on; `heightPx` high.
QImage WithPlaid(int topPx, int heightPx)
{
    QImage picture = Wallpaper();
    QPainter painter(&picture);
    painter.fillRect(130, topPx, 50, heightPx, QColor(40, 60, 150));
    for (int y = topPx; y + 6 <= topPx + heightPx; y += 12) {
        painter.fillRect(130, y, 50, 6, QColor(70, 30, 110));
    }
    return picture;
}

bool IsBackground(const QImage& picture, const QPointF& point, Seen seen)
{
    return KxPointedPicture::GuessIn(picture, point, seen).isBackground;
}

} // namespace

TEST(KxPointedPicture, WhatAnEdgeOfThePictureCutsOffIsBackgroundWhereNothingWasSeen)
{
    const QImage curtain = WithPlaid(90, 90);
    const QPointF point(0.48, 0.75);
    EXPECT_EQ(KxPointedPicture::GuessIn(curtain, point, Seen::Nothing).box.bottom(), 1.0);
    EXPECT_TRUE(IsBackground(curtain, point, Seen::Nothing));
    EXPECT_FALSE(IsBackground(curtain, point, Seen::Unknown)) << "one edge alone is not clear enough";
    EXPECT_FALSE(IsBackground(curtain, point, Seen::Something));
}

TEST(KxPointedPicture, AThingThatIsWholeInThePictureIsNotBackground)
{
    const QImage thing = WithPlaid(60, 70);
    const QPointF point(0.48, 0.53);
    for (const Seen seen : {Seen::Nothing, Seen::Unknown, Seen::Something}) {
        EXPECT_FALSE(IsBackground(thing, point, seen));
    }
}

TEST(KxPointedPicture, APatternThatGoesOnIsBackgroundUnlessSomethingWasSeen)
{
    const QPointF point(0.48, 0.5);
    EXPECT_TRUE(IsBackground(Wallpaper(), point, Seen::Nothing));
    EXPECT_FALSE(IsBackground(Wallpaper(), point, Seen::Something));
}

TEST(KxPointedPicture, WhatTheDetectorSawThereIsTheBox)
{
    KxSubjectRecord record;
    record.source = {1280, 720, 25.0, 100};
    record.workingSizePx = {320, 180};
    record.looks = {{0, {{0.25F, 0.25F, 0.125F, 0.5F, 0.6F, KxDetectionKind::Person}}}};
    const KxAutoReframeGuess guess = KxPointedPicture::GuessAt(QStringLiteral("missing"), 3, {0.3, 0.4}, &record);
    EXPECT_EQ(guess.box, QRectF(0.25, 0.25, 0.125, 0.5)) << "no picture is needed";
    EXPECT_FALSE(guess.isBackground);
    EXPECT_TRUE(KxPointedPicture::GuessAt(QStringLiteral("missing"), 3, {0.6, 0.4}, &record).box.isEmpty());
}
