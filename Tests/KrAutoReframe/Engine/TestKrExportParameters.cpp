#include <KrAutoReframe/Engine/KrExportParameters.h>

#include <gtest/gtest.h>

namespace
{

int EvenWidth(int source, double fraction)
{
    return KrExportParameters::EvenResolution(QSize(source, 100), QRectF(0, 0, fraction, 1.0)).width();
}

} // namespace

TEST(KrExportParameters, AnOddSizeMovesTowardsTheExactOne)
{
    EXPECT_EQ(KrExportParameters::EvenResolution(QSize(1920, 1080), QRectF(0, 0, 0.31640625, 1.0)), QSize(608, 1080));
    EXPECT_EQ(EvenWidth(1920, 0.5625), 1080);
    EXPECT_EQ(EvenWidth(1000, 0.6075), 608);
    EXPECT_EQ(EvenWidth(1000, 0.6066), 606);
    EXPECT_EQ(EvenWidth(1000, 0.6074), 608);
    EXPECT_EQ(EvenWidth(601, 0.5), 300) << "300.5 rounds away from zero to 301, which lies above";
    EXPECT_EQ(EvenWidth(1000, 0.1996), 200);
    EXPECT_EQ(EvenWidth(1000, 0.1994), 200);
    EXPECT_EQ(EvenWidth(402, 0.5), 202) << "exactly 201";
}

TEST(KrExportParameters, BothSidesFollowTheSameRule)
{
    const QSize size = KrExportParameters::EvenResolution(QSize(1000, 1000), QRectF(0.3, 0.2, 0.6066, 0.6074));
    EXPECT_EQ(size, QSize(606, 608));
}

TEST(KrExportParameters, TheFrameRateIsTheSourcesUpTo60)
{
    EXPECT_DOUBLE_EQ(KrExportParameters::FrameRate({30000, 1001}), 30000.0 / 1001.0);
    EXPECT_DOUBLE_EQ(KrExportParameters::FrameRate({24000, 1001}), 23.97);
    EXPECT_DOUBLE_EQ(KrExportParameters::FrameRate({24, 1}), 24.0);
    EXPECT_DOUBLE_EQ(KrExportParameters::FrameRate({60, 1}), 60.0);
    EXPECT_DOUBLE_EQ(KrExportParameters::FrameRate({120, 1}), 60.0);
    EXPECT_DOUBLE_EQ(KrExportParameters::FrameRate({0, 1}), 0.0);
    EXPECT_DOUBLE_EQ(KrExportParameters::FrameRate({25, 0}), 0.0);
    EXPECT_DOUBLE_EQ(KrExportParameters::FrameRate({-25, -1}), 0.0);
}

TEST(KrExportParameters, BitRatesStayBetweenTheirBounds)
{
    EXPECT_EQ(KrExportParameters::VideoBitRate(100000), 256000);
    EXPECT_EQ(KrExportParameters::VideoBitRate(256000), 256000);
    EXPECT_EQ(KrExportParameters::VideoBitRate(256001), 256001);
    EXPECT_EQ(KrExportParameters::VideoBitRate(150000000), 150000000);
    EXPECT_EQ(KrExportParameters::VideoBitRate(200000000), 150000000);
    EXPECT_EQ(KrExportParameters::AudioBitRate(64000), 96000);
    EXPECT_EQ(KrExportParameters::AudioBitRate(96001), 96001);
    EXPECT_EQ(KrExportParameters::AudioBitRate(320000), 320000);
    EXPECT_EQ(KrExportParameters::AudioBitRate(448000), 320000);
}

TEST(KrExportParameters, UnknownParametersHaveDefaults)
{
    EXPECT_FLOAT_EQ(KrExportParameters::DefaultFrameRate, 25.0F);
    EXPECT_EQ(KrExportParameters::DefaultVideoBitRate, 2000000);
    EXPECT_EQ(KrExportParameters::DefaultAudioBitRate, 192000);
}

TEST(KrExportParameters, TheShapeOfTheResultIsThatOfItsFirstCrop)
{
    const QList<IKxAutoReframeResult> results{{0, {0.1, 0.0, 0.315, 1.0}}, {1, {0.2, 0.0, 0.317, 1.0}}};
    EXPECT_EQ(KrExportParameters::ShapeOfResult(results, QSize(1280, 720), QSize(9, 16)), QRectF(0.1, 0.0, 0.315, 1.0));
}

TEST(KrExportParameters, AShotThatShowsTheWholePictureDoesNotSetTheShape)
{
    const QList<IKxAutoReframeResult> results{
        {0, {0.0, 0.0, 1.0, 1.0}}, {1, {0.0, 0.12, 1.0, 0.76}}, {2, {0.2, 0.0, 0.317, 1.0}}};
    EXPECT_EQ(KrExportParameters::ShapeOfResult(results, QSize(1280, 720), QSize(9, 16)), QRectF(0.2, 0.0, 0.317, 1.0));
}

TEST(KrExportParameters, IfAllShotsShowTheWholePictureTheAspectRatioSetsTheShape)
{
    const QList<IKxAutoReframeResult> whole{{0, {0.0, 0.0, 1.0, 1.0}}};
    const QRectF shape = KrExportParameters::ShapeOfResult(whole, QSize(1280, 720), QSize(9, 16));
    EXPECT_DOUBLE_EQ(shape.width(), 405.0 / 1280.0);
    EXPECT_DOUBLE_EQ(shape.height(), 1.0);
    EXPECT_DOUBLE_EQ(shape.center().x(), 0.5);
}
