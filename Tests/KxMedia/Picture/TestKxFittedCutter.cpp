#include <KxMedia/Picture/KxFittedCutter.h>
#include <KxMedia/Picture/KxFrameCutter.h>
#include <Tests/KxMedia/Picture/CutPicture.h>
#include <Tests/KxMedia/Picture/MadePicture.h>

#include <gtest/gtest.h>

namespace
{

constexpr QRectF WholePicture(0.0, 0.0, 1.0, 1.0);
constexpr QSize SourceSize(320, 180);
constexpr QSize TallSize(180, 320);

KxVideoFrame Textured()
{
    KxAvFrame made = MadePicture::Make(AV_PIX_FMT_YUV420P, SourceSize, &MadePicture::Texture);
    made->color_range = AVCOL_RANGE_MPEG;
    made->colorspace = AVCOL_SPC_BT709;
    return MadePicture::Wrap(std::move(made), 7);
}

KxVideoFrame Plain(int luma, int chroma, AVColorRange range)
{
    KxAvFrame made = MadePicture::Make(AV_PIX_FMT_YUV420P, SourceSize,
                                       [luma, chroma](int plane, int, int) { return plane == 0 ? luma : chroma; });
    made->color_range = range;
    return MadePicture::Wrap(std::move(made));
}

KxVideoFrame Fitted(const KxVideoFrame& picture, const QSize& size, const QRectF& crop = WholePicture)
{
    KxFittedCutter cutter(size);
    KxResult<KxVideoFrame> fitted = cutter.Cut(picture, crop);
    EXPECT_TRUE(fitted) << fitted.Message().toStdString();
    return fitted ? *fitted : KxVideoFrame();
}

} // namespace

TEST(KxFittedCutter, ThePictureIsCentredAndAsLargeAsItFits)
{
    EXPECT_EQ(KxFittedCutter::PlaceOf({16, 9}, QSize(1080, 1920)), QRect(0, 656, 1080, 608));
    EXPECT_EQ(KxFittedCutter::PlaceOf({16, 9}, QSize(1080, 1080)), QRect(0, 236, 1080, 608));
    EXPECT_EQ(KxFittedCutter::PlaceOf({9, 16}, QSize(1920, 1080)), QRect(656, 0, 608, 1080));
    EXPECT_EQ(KxFittedCutter::PlaceOf({1000, 1}, QSize(2, 2)), QRect(0, 0, 2, 2));
}

TEST(KxFittedCutter, TheWholePictureIsThereAsTheFrameCutterScalesIt)
{
    const KxVideoFrame picture = Textured();
    const QRect place = KxFittedCutter::PlaceOf(SourceSize, TallSize);
    KxFrameCutter cutter(place.size());
    const KxVideoFrame alone = CutPicture::CutPixels(cutter, picture, QRectF(QPointF(), QSizeF(SourceSize)));
    const KxVideoFrame fitted = Fitted(picture, TallSize);
    ASSERT_FALSE(fitted.IsNull());
    EXPECT_EQ(fitted.DisplayedSize(), TallSize);
    EXPECT_EQ(fitted.Index(), 7);
    EXPECT_EQ(fitted.Picture().colorspace, AVCOL_SPC_BT709);
    for (int plane = 0; plane < 3; ++plane) {
        const int part = plane == 0 ? 1 : 2;
        for (int y = 0; y < place.height() / part; ++y) {
            for (int x = 0; x < place.width() / part; ++x) {
                ASSERT_EQ(MadePicture::Sample(fitted.Picture(), plane, place.x() / part + x, place.y() / part + y),
                          MadePicture::Sample(alone.Picture(), plane, x, y))
                    << "plane " << plane << " at " << x << ", " << y;
            }
        }
    }
}

TEST(KxFittedCutter, TheBackgroundIsDarkerAndPaler)
{
    const KxVideoFrame limited = Fitted(Plain(216, 188, AVCOL_RANGE_MPEG), TallSize);
    EXPECT_EQ(MadePicture::Sample(limited.Picture(), 0, 90, 10), 106) << "16 + 200 * 0.45";
    EXPECT_EQ(MadePicture::Sample(limited.Picture(), 1, 45, 5), 155) << "128 + 60 * 0.45";
    EXPECT_EQ(MadePicture::Sample(limited.Picture(), 0, 90, 160), 216) << "the picture itself";
    const KxVideoFrame full = Fitted(Plain(200, 128, AVCOL_RANGE_JPEG), TallSize);
    EXPECT_EQ(MadePicture::Sample(full.Picture(), 0, 90, 10), 90) << "200 * 0.45";
}

TEST(KxFittedCutter, TheBackgroundIsBlurred)
{
    // A checkerboard of one sample a square would be visible if it were not blurred.
    KxAvFrame made = MadePicture::Make(AV_PIX_FMT_YUV420P, SourceSize, [](int plane, int x, int y) {
        return plane != 0 ? 128 : (x / 8 + y / 8) % 2 == 0 ? 40 : 220;
    });
    made->color_range = AVCOL_RANGE_MPEG;
    const KxVideoFrame fitted = Fitted(MadePicture::Wrap(std::move(made)), TallSize);
    int least = 255;
    int most = 0;
    for (int x = 40; x < 140; ++x) {
        const int value = MadePicture::Sample(fitted.Picture(), 0, x, 40);
        least = std::min(least, value);
        most = std::max(most, value);
    }
    EXPECT_LT(most - least, 12) << "of 180 * 0.45";
}

TEST(KxFittedCutter, OnlyTheCropIsShown)
{
    // The left half is dark, the right half is bright.
    KxAvFrame made = MadePicture::Make(AV_PIX_FMT_YUV420P, SourceSize, [](int plane, int x, int) {
        return plane != 0 ? 128 : x < SourceSize.width() / 2 ? 30 : 230;
    });
    made->color_range = AVCOL_RANGE_MPEG;
    const KxVideoFrame fitted = Fitted(MadePicture::Wrap(std::move(made)), TallSize, QRectF(0.55, 0.0, 0.45, 0.4));
    EXPECT_GT(MadePicture::Sample(fitted.Picture(), 0, 2, 160), 220);
    EXPECT_NEAR(MadePicture::Sample(fitted.Picture(), 0, 2, 4), 112, 2) << "its own background";
}

TEST(KxFittedCutter, APictureOfTheSameShapeFillsTheResult)
{
    const KxVideoFrame picture = Textured();
    KxFrameCutter cutter(QSize(160, 90));
    const KxVideoFrame alone = CutPicture::CutPixels(cutter, picture, QRectF(QPointF(), QSizeF(SourceSize)));
    CutPicture::ExpectSamePictures(Fitted(picture, QSize(160, 90)).Picture(), alone.Picture());
}

TEST(KxFittedCutter, AnEmptyCropIsRefused)
{
    KxFittedCutter cutter(TallSize);
    EXPECT_FALSE(cutter.Cut(Textured(), QRectF()));
}
