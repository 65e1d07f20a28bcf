#include <Tests/KxMedia/Picture/CutPicture.h>

extern "C" {
#include <libavutil/pixdesc.h>
}

#include <cmath>
#include <cstdint>

using CutPicture::CutPixels;
using CutPicture::ExpectSamePictures;
using CutPicture::Whole;
using MadePicture::Make;
using MadePicture::Mean;
using MadePicture::Sample;
using MadePicture::Texture;
using MadePicture::Wrap;

TEST(KxFrameCutter, PlaceOnTheGridAndColourTagsAreKept)
{
    KxAvFrame made = Make(AV_PIX_FMT_YUV420P, QSize(160, 90), &Texture);
    made->color_primaries = AVCOL_PRI_SMPTE170M;
    made->color_trc = AVCOL_TRC_SMPTE170M;
    made->colorspace = AVCOL_SPC_SMPTE170M;
    made->color_range = AVCOL_RANGE_JPEG;
    KxFrameCutter cutter(QSize(50, 90));
    const KxVideoFrame cut = CutPixels(cutter, Wrap(std::move(made), 4711), QRectF(0, 0, 50, 90));
    ASSERT_FALSE(cut.IsNull());
    EXPECT_EQ(cut.Index(), 4711);
    EXPECT_EQ(cut.DisplayedSize(), QSize(50, 90));
    const AVFrame& picture = cut.Picture();
    EXPECT_EQ(picture.format, AV_PIX_FMT_YUV420P);
    EXPECT_EQ(picture.color_primaries, AVCOL_PRI_SMPTE170M);
    EXPECT_EQ(picture.color_trc, AVCOL_TRC_SMPTE170M);
    EXPECT_EQ(picture.colorspace, AVCOL_SPC_SMPTE170M);
    EXPECT_EQ(picture.color_range, AVCOL_RANGE_JPEG);
    EXPECT_EQ(picture.sample_aspect_ratio.num, 1);
    EXPECT_EQ(picture.sample_aspect_ratio.den, 1);
}

TEST(KxFrameCutter, FullRangeByPixelFormatSetsTheRange)
{
    KxFrameCutter cutter(QSize(50, 90));
    const KxVideoFrame cut = Whole(cutter, Make(AV_PIX_FMT_YUVJ420P, QSize(50, 90), &Texture));
    ASSERT_FALSE(cut.IsNull());
    EXPECT_EQ(cut.Picture().format, AV_PIX_FMT_YUV420P);
    EXPECT_EQ(cut.Picture().color_range, AVCOL_RANGE_JPEG);
    EXPECT_EQ(Sample(cut.Picture(), 0, 20, 20), Texture(0, 20, 20));
}

TEST(KxFrameCutter, TenBitsAreDitheredNotTruncated)
{
    KxFrameCutter cutter(QSize(64, 64));
    const KxVideoFrame cut = Whole(
        cutter, Make(AV_PIX_FMT_YUV420P10, QSize(64, 64), [](int plane, int, int) { return plane == 0 ? 402 : 512; }));
    ASSERT_FALSE(cut.IsNull());
    EXPECT_NEAR(Mean(cut.Picture(), 0), 100.5, 0.05);
    EXPECT_EQ(Mean(cut.Picture(), 1), 128.0);
}

TEST(KxFrameCutter, FullRangeTenBitsReachWhiteAndKeepGreyNeutral)
{
    KxFrameCutter cutter(QSize(64, 64));
    KxAvFrame made =
        Make(AV_PIX_FMT_YUV420P10, QSize(64, 64), [](int plane, int, int) { return plane == 0 ? 1023 : 512; });
    made->color_range = AVCOL_RANGE_JPEG;
    const KxVideoFrame cut = Whole(cutter, std::move(made));
    ASSERT_FALSE(cut.IsNull());
    EXPECT_EQ(Mean(cut.Picture(), 0), 255.0);
    EXPECT_EQ(Mean(cut.Picture(), 1), 128.0);
}

namespace
{

// The same numbers in another arrangement.
KxAvFrame Rearranged(const AVFrame& source, AVPixelFormat format)
{
    KxAvFrame target(av_frame_alloc());
    target->format = format;
    target->width = source.width;
    target->height = source.height;
    av_frame_get_buffer(target.get(), 0);
    const AVPixFmtDescriptor& description = *av_pix_fmt_desc_get(format);
    for (int component = 0; component < 3; ++component) {
        const AVComponentDescriptor& place = description.comp[component];
        const QSize samples = MadePicture::PlaneSize(source, component);
        for (int y = 0; y < samples.height(); ++y) {
            std::uint8_t* at = target->data[place.plane] +
                               static_cast<std::ptrdiff_t>(y) * target->linesize[place.plane] + place.offset;
            for (int x = 0; x < samples.width(); ++x, at += place.step) {
                const int value = Sample(source, component, x, y) << place.shift;
                at[0] = static_cast<std::uint8_t>(value);
                if (place.depth > 8) {
                    at[1] = static_cast<std::uint8_t>(value >> 8);
                }
            }
        }
    }
    return target;
}

} // namespace

TEST(KxFrameCutter, InterleavedFormatsGiveTheSamePicture)
{
    struct Case {
        AVPixelFormat planar;
        AVPixelFormat interleaved;
    };
    for (const Case& c : {Case{AV_PIX_FMT_YUV420P, AV_PIX_FMT_NV12}, Case{AV_PIX_FMT_YUV420P, AV_PIX_FMT_NV21},
                          Case{AV_PIX_FMT_YUV422P, AV_PIX_FMT_YUYV422}, Case{AV_PIX_FMT_YUV420P10, AV_PIX_FMT_P010}}) {
        SCOPED_TRACE(av_get_pix_fmt_name(c.interleaved));
        const int scale = c.planar == AV_PIX_FMT_YUV420P10 ? 4 : 1;
        KxAvFrame planar =
            Make(c.planar, QSize(160, 90), [&](int p, int x, int y) { return scale * Texture(p, x, y); });
        planar->color_range = AVCOL_RANGE_JPEG;
        KxAvFrame interleaved = Rearranged(*planar, c.interleaved);
        interleaved->color_range = AVCOL_RANGE_JPEG;
        KxFrameCutter cutter(QSize(50, 90));
        const QRectF crop(20.3, 0, 50, 90);
        const KxVideoFrame expected = CutPixels(cutter, Wrap(std::move(planar)), crop);
        const KxVideoFrame cut = CutPixels(cutter, Wrap(std::move(interleaved)), crop);
        ASSERT_FALSE(cut.IsNull() || expected.IsNull());
        ExpectSamePictures(cut.Picture(), expected.Picture());
    }
}

TEST(KxFrameCutter, PlanesThatAreNotAlignedAreCopied)
{
    KxAvFrame aligned = Make(AV_PIX_FMT_YUV420P, QSize(160, 90), &Texture);
    KxAvFrame shifted(av_frame_clone(aligned.get()));
    // One pixel of luma to the right: any address will do.
    shifted->data[0] += 1;
    shifted->width = 158;
    aligned = Make(AV_PIX_FMT_YUV420P, QSize(158, 90),
                   [](int plane, int x, int y) { return Texture(plane, plane == 0 ? x + 1 : x, y); });
    KxFrameCutter cutter(QSize(50, 90));
    const QRectF crop(20.3, 0, 50, 90);
    const KxVideoFrame expected = CutPixels(cutter, Wrap(std::move(aligned)), crop);
    const KxVideoFrame cut = CutPixels(cutter, Wrap(std::move(shifted)), crop);
    ASSERT_FALSE(cut.IsNull() || expected.IsNull());
    ExpectSamePictures(cut.Picture(), expected.Picture());
}

TEST(KxFrameCutter, RgbBecomesBt709LimitedRange)
{
    KxAvFrame made(av_frame_alloc());
    made->format = AV_PIX_FMT_RGB24;
    made->width = 64;
    made->height = 64;
    ASSERT_GE(av_frame_get_buffer(made.get(), 0), 0);
    for (int y = 0; y < 64; ++y) {
        for (int x = 0; x < 64; ++x) {
            std::uint8_t* const pixel = made->data[0] + y * made->linesize[0] + 3 * x;
            pixel[0] = 255;
            pixel[1] = 0;
            pixel[2] = 0;
        }
    }
    KxFrameCutter cutter(QSize(32, 32));
    const KxVideoFrame cut = Whole(cutter, std::move(made));
    ASSERT_FALSE(cut.IsNull());
    EXPECT_NEAR(Mean(cut.Picture(), 0), 62.6, 1.0);
    EXPECT_NEAR(Mean(cut.Picture(), 1), 102.3, 1.0);
    EXPECT_NEAR(Mean(cut.Picture(), 2), 240.0, 1.0);
    EXPECT_EQ(cut.Picture().colorspace, AVCOL_SPC_BT709);
    EXPECT_EQ(cut.Picture().color_range, AVCOL_RANGE_MPEG);
    EXPECT_EQ(cut.Picture().color_primaries, AVCOL_PRI_BT709);
    EXPECT_EQ(cut.Picture().color_trc, AVCOL_TRC_BT709);
}

TEST(KxFrameCutter, GreyHasNoColour)
{
    KxFrameCutter cutter(QSize(32, 32));
    for (const AVPixelFormat format : {AV_PIX_FMT_GRAY8, AV_PIX_FMT_GRAY10LE}) {
        const int value = format == AV_PIX_FMT_GRAY8 ? 77 : 308;
        const KxVideoFrame cut = Whole(cutter, Make(format, QSize(64, 48), [&](int, int, int) { return value; }));
        ASSERT_FALSE(cut.IsNull());
        EXPECT_EQ(Mean(cut.Picture(), 0), 77.0);
        EXPECT_EQ(Mean(cut.Picture(), 1), 128.0);
        EXPECT_EQ(Mean(cut.Picture(), 2), 128.0);
    }
}

TEST(KxFrameCutter, FormatAndSizeMayChangeFromPictureToPicture)
{
    KxFrameCutter cutter(QSize(32, 32));
    for (int round = 0; round < 2; ++round) {
        for (const AVPixelFormat format : {AV_PIX_FMT_YUV420P, AV_PIX_FMT_YUV444P, AV_PIX_FMT_YUV422P10}) {
            const int scale = format == AV_PIX_FMT_YUV422P10 ? 4 : 1;
            const KxVideoFrame cut = Whole(cutter, Make(format, QSize(64 + 2 * round, 48),
                                                        [&](int plane, int, int) { return scale * (90 + plane); }));
            ASSERT_FALSE(cut.IsNull());
            EXPECT_EQ(Mean(cut.Picture(), 2), 92.0);
        }
    }
}

namespace
{

// Luma of a grey field of that code value after the way through the cutter.
double Mapped(KxFrameCutter& cutter, AVColorTransferCharacteristic transfer, int luma10, AVFrame* tags = nullptr)
{
    KxAvFrame made =
        Make(AV_PIX_FMT_YUV420P10, QSize(64, 48), [&](int plane, int, int) { return plane == 0 ? luma10 : 512; });
    made->color_trc = transfer;
    if (luma10 % 2 == 0) {
        // With and without the other tags: some files name the transfer alone.
        made->color_primaries = AVCOL_PRI_BT2020;
        made->colorspace = AVCOL_SPC_BT2020_NCL;
        made->color_range = AVCOL_RANGE_MPEG;
    }
    const KxVideoFrame cut = Whole(cutter, std::move(made));
    if (cut.IsNull()) {
        return -1;
    }
    EXPECT_NEAR(Mean(cut.Picture(), 1), 128, 1.0);
    EXPECT_NEAR(Mean(cut.Picture(), 2), 128, 1.0);
    if (tags != nullptr) {
        tags->color_primaries = cut.Picture().color_primaries;
        tags->color_trc = cut.Picture().color_trc;
        tags->colorspace = cut.Picture().colorspace;
        tags->color_range = cut.Picture().color_range;
        tags->format = cut.Picture().format;
    }
    return Mean(cut.Picture(), 0);
}

} // namespace

TEST(KxFrameCutter, HighDynamicRangeIsToneMappedToBt709)
{
    KxFrameCutter cutter(QSize(32, 32));
    for (const AVColorTransferCharacteristic transfer : {AVCOL_TRC_SMPTE2084, AVCOL_TRC_ARIB_STD_B67}) {
        SCOPED_TRACE(av_color_transfer_name(transfer));
        const KxAvFrame tags(av_frame_alloc());
        EXPECT_NEAR(Mapped(cutter, transfer, 64, tags.get()), 16, 1.0);
        EXPECT_EQ(tags->color_primaries, AVCOL_PRI_BT709);
        EXPECT_EQ(tags->color_trc, AVCOL_TRC_BT709);
        EXPECT_EQ(tags->colorspace, AVCOL_SPC_BT709);
        EXPECT_EQ(tags->color_range, AVCOL_RANGE_MPEG);
        EXPECT_EQ(tags->format, AV_PIX_FMT_YUV420P);
        double previous = 16;
        for (const int luma10 : {200, 301, 400, 501, 600, 701}) {
            const double luma = Mapped(cutter, transfer, luma10);
            EXPECT_GT(luma, previous + 3) << luma10;
            EXPECT_LE(luma, 235) << luma10;
            previous = luma;
        }
    }
}

TEST(KxFrameCutter, TurnedHighDynamicRangePictureIsUpright)
{
    KxAvFrame made = Make(AV_PIX_FMT_YUV420P10, QSize(64, 48),
                          [](int plane, int x, int) { return plane == 0 ? (x < 32 ? 150 : 500) : 512; });
    made->color_trc = AVCOL_TRC_SMPTE2084;
    KxFrameCutter cutter(QSize(48, 64));
    const KxVideoFrame cut = CutPixels(cutter, Wrap(std::move(made), 0, {90, false}), QRectF(0, 0, 48, 64));
    ASSERT_FALSE(cut.IsNull());
    EXPECT_LT(Sample(cut.Picture(), 0, 24, 8), Sample(cut.Picture(), 0, 24, 56));
    EXPECT_NEAR(Sample(cut.Picture(), 0, 4, 8), Sample(cut.Picture(), 0, 44, 8), 1);
}
