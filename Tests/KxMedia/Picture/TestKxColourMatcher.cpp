#include <KxMedia/Picture/KxColourMatcher.h>
#include <Tests/KxMedia/Picture/MadePicture.h>

#include <gtest/gtest.h>

#include <array>

using MadePicture::Mean;

namespace
{

/// Luma and chroma of one colour, 8 bits.
using Samples = std::array<int, 3>;
// Red, green and blue of 200, 60 and 40 (of 255) in limited and in full range, by the matrices of both standards.
constexpr Samples InBt709{92, 105, 190};
constexpr Samples InBt601{101, 99, 191};
constexpr Samples InBt709FullRange{88, 102, 199};

KxVideoFrame Picture(const Samples& samples, AVColorSpace matrix, AVColorRange range = AVCOL_RANGE_MPEG)
{
    KxAvFrame made = MadePicture::Make(AV_PIX_FMT_YUV420P, QSize(64, 36), [&samples](int plane, int, int) {
        return samples.at(static_cast<std::size_t>(plane));
    });
    made->color_primaries = AVCOL_PRI_BT709;
    made->color_trc = AVCOL_TRC_BT709;
    made->colorspace = matrix;
    made->color_range = range;
    return MadePicture::Wrap(std::move(made), 7);
}

void ExpectSamples(const KxVideoFrame& picture, const Samples& samples)
{
    for (int plane = 0; plane < 3; ++plane) {
        EXPECT_NEAR(Mean(picture.Picture(), plane), samples.at(static_cast<std::size_t>(plane)), 1.0) << plane;
    }
}

} // namespace

TEST(KxColourMatcher, PicturesInTheColoursOfTheFirstStayAsTheyAre)
{
    KxColourMatcher matcher;
    for (int picture = 0; picture < 3; ++picture) {
        const KxVideoFrame made = Picture(InBt709, AVCOL_SPC_BT709);
        EXPECT_EQ(&matcher.Match(made).Picture(), &made.Picture());
    }
}

TEST(KxColourMatcher, AnotherMatrixIsConverted)
{
    KxColourMatcher matcher;
    matcher.Match(Picture(InBt709, AVCOL_SPC_BT709));
    const KxVideoFrame matched = matcher.Match(Picture(InBt601, AVCOL_SPC_SMPTE170M));
    EXPECT_EQ(matched.Picture().colorspace, AVCOL_SPC_BT709);
    EXPECT_EQ(matched.Picture().format, AV_PIX_FMT_YUV420P);
    EXPECT_EQ(matched.Index(), 7);
    EXPECT_EQ(matched.DisplayedSize(), QSize(64, 36));
    ExpectSamples(matched, InBt709);
}

TEST(KxColourMatcher, AnotherRangeIsConverted)
{
    KxColourMatcher matcher;
    matcher.Match(Picture(InBt709FullRange, AVCOL_SPC_BT709, AVCOL_RANGE_JPEG));
    const KxVideoFrame matched = matcher.Match(Picture(InBt709, AVCOL_SPC_BT709));
    EXPECT_EQ(matched.Picture().color_range, AVCOL_RANGE_JPEG);
    ExpectSamples(matched, InBt709FullRange);
}

TEST(KxColourMatcher, WhatIsNotSpecifiedCountsAsEqual)
{
    KxColourMatcher matcher;
    matcher.Match(Picture(InBt709, AVCOL_SPC_UNSPECIFIED));
    const KxVideoFrame unchanged = Picture(InBt601, AVCOL_SPC_SMPTE170M);
    EXPECT_EQ(&matcher.Match(unchanged).Picture(), &unchanged.Picture());

    // Of another range, but in whatever matrix.
    for (const AVColorSpace matrix : {AVCOL_SPC_UNSPECIFIED, AVCOL_SPC_SMPTE170M, AVCOL_SPC_BT709}) {
        const KxVideoFrame changed = matcher.Match(Picture(InBt709FullRange, matrix, AVCOL_RANGE_JPEG));
        EXPECT_EQ(changed.Picture().color_range, AVCOL_RANGE_MPEG);
        ExpectSamples(changed, InBt709);
    }
}

TEST(KxColourMatcher, ColoursThatCannotBeConvertedStayAsTheyAre)
{
    KxColourMatcher matcher;
    matcher.Match(Picture(InBt709, AVCOL_SPC_BT709));
    const KxVideoFrame unknown = Picture(InBt601, AVCOL_SPC_SMPTE2085);
    EXPECT_EQ(&matcher.Match(unknown).Picture(), &unknown.Picture());
    // The next one is converted all the same.
    ExpectSamples(matcher.Match(Picture(InBt601, AVCOL_SPC_SMPTE170M)), InBt709);
}
