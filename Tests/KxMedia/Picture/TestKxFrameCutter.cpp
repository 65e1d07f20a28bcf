#include <Tests/KxMedia/Picture/CutPicture.h>

extern "C" {
#include <libavutil/pixdesc.h>
}

#include <cmath>
#include <limits>

using CutPicture::CutPixels;
using CutPicture::ExpectSamePictures;
using CutPicture::Whole;
using MadePicture::Make;
using MadePicture::Mean;
using MadePicture::Psnr;
using MadePicture::Sample;
using MadePicture::Texture;
using MadePicture::Wrap;

namespace
{

int Rounded(double value)
{
    return static_cast<int>(std::lround(value));
}

} // namespace

TEST(KxFrameCutter, RampMovesByTheExactFractionInLumaAndChroma)
{
    const KxVideoFrame picture = Wrap(Make(AV_PIX_FMT_YUV420P, QSize(96, 48), [](int plane, int x, int) {
        return plane == 0 ? std::min(16 + 4 * x, 255) : std::min(16 + 8 * x, 255);
    }));
    KxFrameCutter cutter(QSize(32, 48));
    const KxVideoFrame whole = CutPixels(cutter, picture, QRectF(10.0, 0, 32, 48));
    ASSERT_FALSE(whole.IsNull());
    const double luma = Mean(whole.Picture(), 0);
    const double chroma = Mean(whole.Picture(), 1);
    EXPECT_NEAR(luma, 16 + 4 * (10 + 15.5), 0.001);
    EXPECT_NEAR(chroma, 16 + 8 * (5 + 7.5), 0.001);
    for (const double fraction : {0.25, 0.5, 0.75}) {
        const KxVideoFrame moved = CutPixels(cutter, picture, QRectF(10.0 + fraction, 0, 32, 48));
        ASSERT_FALSE(moved.IsNull());
        EXPECT_NEAR(Mean(moved.Picture(), 0) - luma, 4 * fraction, 0.01) << fraction;
        EXPECT_NEAR(Mean(moved.Picture(), 1) - chroma, 4 * fraction, 0.01) << fraction;
        EXPECT_NEAR(Mean(moved.Picture(), 2) - chroma, 4 * fraction, 0.01) << fraction;
    }
}

TEST(KxFrameCutter, SlowPanMovesASoftEdgeEvenly)
{
    const KxVideoFrame picture = Wrap(Make(AV_PIX_FMT_YUV420P, QSize(320, 32), [](int plane, int x, int) {
        return plane == 0 ? Rounded(16 + 219 / (1 + std::exp(-(x + 0.5 - 160) / 2.0))) : 128;
    }));
    KxFrameCutter cutter(QSize(128, 32));
    constexpr double start = 100.0;
    for (int n = 0; n < 60; ++n) {
        const double left = start + 0.1 * n;
        const KxVideoFrame cut = CutPixels(cutter, picture, QRectF(left, 0, 128, 32));
        ASSERT_FALSE(cut.IsNull());
        const double edge = 128 - (Mean(cut.Picture(), 0) - 16) / 219 * 128;
        EXPECT_NEAR(edge, 160 - left, 0.02) << "frame " << n;
    }
}

TEST(KxFrameCutter, WholePixelCropIsTheSourceItself)
{
    const KxVideoFrame picture = Wrap(Make(AV_PIX_FMT_YUV420P, QSize(320, 180), &Texture));
    KxFrameCutter cutter(QSize(102, 180));
    const KxVideoFrame cut = CutPixels(cutter, picture, QRectF(38, 0, 102, 180));
    ASSERT_FALSE(cut.IsNull());
    const KxAvFrame reference = Make(AV_PIX_FMT_YUV420P, QSize(102, 180), [](int plane, int x, int y) {
        return Texture(plane, x + (plane == 0 ? 38 : 19), y);
    });
    ExpectSamePictures(cut.Picture(), *reference);
}

TEST(KxFrameCutter, OddPixelCropKeepsLumaUntouched)
{
    const KxVideoFrame picture = Wrap(Make(AV_PIX_FMT_YUV420P, QSize(320, 180), &Texture));
    KxFrameCutter cutter(QSize(102, 160));
    const KxVideoFrame cut = CutPixels(cutter, picture, QRectF(37, 11, 102, 160));
    ASSERT_FALSE(cut.IsNull());
    const KxAvFrame reference = Make(AV_PIX_FMT_YUV420P, QSize(102, 160),
                                     [](int plane, int x, int y) { return Texture(plane, x + 37, y + 11); });
    EXPECT_EQ(Psnr(cut.Picture(), *reference, 0), 100.0);
}

namespace
{

struct SitingCase {
    int clockwiseDegrees;
    bool mirror;
    AVPixelFormat format;
    AVChromaLocation location;
    QSize sourceSize;
};

// A plane that tilts in both directions, so that every sample's value says where it lies in the coded picture.
constexpr double Base = 20;
constexpr double PerPixelX = 0.9;
constexpr double PerPixelY = 0.6;

double TiltAt(double xPx, double yPx)
{
    return Base + PerPixelX * xPx + PerPixelY * yPx;
}

// Where the sample of the source lies, luma pixels from the picture's edge.
QPointF PlaceInSource(const SitingCase& c, int plane, int x, int y)
{
    const AVPixFmtDescriptor& format = *av_pix_fmt_desc_get(c.format);
    const int stepX = plane == 0 ? 1 : 1 << format.log2_chroma_w;
    const int stepY = plane == 0 ? 1 : 1 << format.log2_chroma_h;
    const bool isLeft = c.location != AVCHROMA_LOC_CENTER && c.location != AVCHROMA_LOC_TOP;
    const bool isTop = c.location == AVCHROMA_LOC_TOPLEFT || c.location == AVCHROMA_LOC_TOP;
    return {x * stepX + (isLeft ? 0.5 : stepX / 2.0), y * stepY + (isTop ? 0.5 : stepY / 2.0)};
}

// Fractions of the upright picture to fractions of the coded one, by following the two steps backwards.
QPointF ToCoded(const SitingCase& c, const QPointF& upright)
{
    QPointF coded = upright;
    for (int degrees = c.clockwiseDegrees; degrees > 0; degrees -= 90) {
        coded = QPointF(coded.y(), 1 - coded.x());
    }
    return c.mirror ? QPointF(1 - coded.x(), coded.y()) : coded;
}

class KxFrameCutterSiting : public testing::TestWithParam<SitingCase>
{
};

} // namespace

TEST_P(KxFrameCutterSiting, EverySampleShowsItsPlace)
{
    const SitingCase c = GetParam();
    KxAvFrame made = Make(c.format, c.sourceSize, [&](int plane, int x, int y) {
        const QPointF place = PlaceInSource(c, plane, x, y);
        return Rounded(4 * TiltAt(place.x(), place.y()));
    });
    made->chroma_location = c.location;
    const KxVideoFrame picture = Wrap(std::move(made), 0, {c.clockwiseDegrees, c.mirror});
    const QRectF crop(0.23, 0.17, 0.51, 0.62);
    const QSize size(64, 72);
    KxFrameCutter cutter(size);
    const KxResult<KxVideoFrame> cut = cutter.Cut(picture, crop);
    ASSERT_TRUE(cut) << cut.Message().toStdString();
    EXPECT_EQ(cut->Picture().chroma_location, AVCHROMA_LOC_LEFT);
    EXPECT_EQ(cut->Turn().clockwiseDegrees, 0);
    EXPECT_FALSE(cut->Turn().mirror);
    for (int plane = 0; plane < 3; ++plane) {
        const QSize samples = MadePicture::PlaneSize(cut->Picture(), plane);
        double bias = 0;
        double worst = 0;
        for (int y = 0; y < samples.height(); ++y) {
            for (int x = 0; x < samples.width(); ++x) {
                const QPointF placePx = plane == 0 ? QPointF(x + 0.5, y + 0.5) : QPointF(2 * x + 0.5, 2 * y + 1.0);
                const QPointF upright(crop.x() + crop.width() * placePx.x() / size.width(),
                                      crop.y() + crop.height() * placePx.y() / size.height());
                const QPointF coded = ToCoded(c, upright);
                const double expected = TiltAt(coded.x() * c.sourceSize.width(), coded.y() * c.sourceSize.height());
                const double error = Sample(cut->Picture(), plane, x, y) - expected;
                bias += error / (samples.width() * samples.height());
                worst = std::max(worst, std::abs(error));
            }
        }
        EXPECT_NEAR(bias, 0, 0.06) << "plane " << plane;
        EXPECT_LT(worst, 1.2) << "plane " << plane;
    }
}

INSTANTIATE_TEST_SUITE_P(Turns, KxFrameCutterSiting,
                         testing::Values(SitingCase{0, false, AV_PIX_FMT_YUV420P10, AVCHROMA_LOC_LEFT, {150, 96}},
                                         SitingCase{90, false, AV_PIX_FMT_YUV420P10, AVCHROMA_LOC_LEFT, {150, 96}},
                                         SitingCase{180, false, AV_PIX_FMT_YUV420P10, AVCHROMA_LOC_LEFT, {150, 96}},
                                         SitingCase{270, false, AV_PIX_FMT_YUV420P10, AVCHROMA_LOC_LEFT, {150, 96}},
                                         SitingCase{0, true, AV_PIX_FMT_YUV420P10, AVCHROMA_LOC_LEFT, {150, 96}},
                                         SitingCase{90, true, AV_PIX_FMT_YUV420P10, AVCHROMA_LOC_LEFT, {150, 96}},
                                         SitingCase{180, true, AV_PIX_FMT_YUV420P10, AVCHROMA_LOC_LEFT, {150, 96}},
                                         SitingCase{270, true, AV_PIX_FMT_YUV420P10, AVCHROMA_LOC_LEFT, {150, 96}}));

INSTANTIATE_TEST_SUITE_P(
    Formats, KxFrameCutterSiting,
    testing::Values(SitingCase{0, false, AV_PIX_FMT_YUV420P10, AVCHROMA_LOC_UNSPECIFIED, {150, 96}},
                    SitingCase{0, false, AV_PIX_FMT_YUV420P10, AVCHROMA_LOC_CENTER, {150, 96}},
                    SitingCase{90, false, AV_PIX_FMT_YUV420P10, AVCHROMA_LOC_TOPLEFT, {150, 96}},
                    SitingCase{0, false, AV_PIX_FMT_YUV420P10, AVCHROMA_LOC_TOP, {150, 96}},
                    SitingCase{0, false, AV_PIX_FMT_YUV422P10, AVCHROMA_LOC_LEFT, {150, 96}},
                    SitingCase{270, true, AV_PIX_FMT_YUV444P10, AVCHROMA_LOC_UNSPECIFIED, {150, 96}},
                    SitingCase{0, false, AV_PIX_FMT_YUV420P10, AVCHROMA_LOC_LEFT, {151, 97}},
                    SitingCase{90, true, AV_PIX_FMT_YUV420P10, AVCHROMA_LOC_LEFT, {151, 97}},
                    SitingCase{180, false, AV_PIX_FMT_YUV444P10, AVCHROMA_LOC_LEFT, {151, 97}}));

TEST(KxFrameCutter, WholeOddSizedPictureIsScaledToItsEdges)
{
    for (const AVPixelFormat format : {AV_PIX_FMT_YUV420P, AV_PIX_FMT_YUV422P, AV_PIX_FMT_YUV444P}) {
        KxFrameCutter cutter(QSize(80, 60));
        const KxVideoFrame cut =
            Whole(cutter, Make(format, QSize(321, 241), [](int plane, int, int) { return 100 + plane; }));
        ASSERT_FALSE(cut.IsNull());
        for (int plane = 0; plane < 3; ++plane) {
            EXPECT_EQ(Mean(cut.Picture(), plane), 100 + plane) << av_get_pix_fmt_name(format);
        }
    }
}

TEST(KxFrameCutter, CropBeyondTheEdgeIsMovedInside)
{
    const KxVideoFrame picture = Wrap(Make(AV_PIX_FMT_YUV420P, QSize(160, 90), &Texture));
    KxFrameCutter cutter(QSize(50, 90));
    struct Case {
        QRectF outside;
        QRectF inside;
    };
    for (const Case& c : {Case{{-7, 0, 50, 90}, {0, 0, 50, 90}}, Case{{113, 2, 50, 90}, {110, 0, 50, 90}},
                          Case{{10, -3, 50, 60}, {10, 0, 50, 60}}, Case{{-20, -20, 200, 130}, {0, 0, 160, 90}}}) {
        const KxVideoFrame moved = CutPixels(cutter, picture, c.outside);
        const KxVideoFrame expected = CutPixels(cutter, picture, c.inside);
        ASSERT_FALSE(moved.IsNull() || expected.IsNull());
        ExpectSamePictures(moved.Picture(), expected.Picture());
    }
}

TEST(KxFrameCutter, EmptyOrInfiniteRectangleFails)
{
    const KxVideoFrame picture = Wrap(Make(AV_PIX_FMT_YUV420P, QSize(160, 90), &Texture));
    KxFrameCutter cutter(QSize(50, 90));
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double infinite = std::numeric_limits<double>::infinity();
    for (const QRectF& crop :
         {QRectF(), QRectF(0, 0, 0, 1), QRectF(0, 0, -1, 1), QRectF(nan, 0, 1, 1), QRectF(0, 0, infinite, 1)}) {
        const KxResult<KxVideoFrame> cut = cutter.Cut(picture, crop);
        EXPECT_FALSE(cut);
        EXPECT_EQ(cut.Message(), QStringLiteral("Cannot cut a picture: the rectangle to cut out is empty."));
    }
    EXPECT_FALSE(cutter.Cut(KxVideoFrame(), QRectF(0, 0, 1, 1)));
}

TEST(KxFrameCutter, TinyCropIsCutAsOnePixel)
{
    const KxVideoFrame picture = Wrap(Make(AV_PIX_FMT_YUV420P, QSize(160, 90), &Texture));
    KxFrameCutter cutter(QSize(50, 90));
    const KxResult<KxVideoFrame> cut = cutter.Cut(picture, QRectF(0.9999, 0.9999, 1e-9, 1e-9));
    EXPECT_TRUE(cut) << cut.Message().toStdString();
}

TEST(KxFrameCutter, MemoryOfAReleasedPictureIsReused)
{
    KxFrameCutter cutter(QSize(64, 64));
    const KxVideoFrame picture = Wrap(Make(AV_PIX_FMT_YUV420P, QSize(128, 96), &Texture));
    const std::uint8_t* const first = CutPixels(cutter, picture, QRectF(0, 0, 64, 64)).Picture().data[0];
    for (int n = 0; n < 10; ++n) {
        EXPECT_EQ(CutPixels(cutter, picture, QRectF(n * 0.3, 0, 64, 64)).Picture().data[0], first);
    }
}

TEST(KxFrameCutter, PicturesOutliveTheCutter)
{
    auto cutter = std::make_unique<KxFrameCutter>(QSize(64, 64));
    const KxVideoFrame picture = Wrap(Make(AV_PIX_FMT_YUV420P, QSize(64, 64), &Texture));
    const KxVideoFrame cut = CutPixels(*cutter, picture, QRectF(0, 0, 64, 64));
    cutter.reset();
    EXPECT_EQ(Sample(cut.Picture(), 0, 63, 63), Texture(0, 63, 63));
}
