#include <KxMedia/Write/KxVideoEncoder.h>
#include <Tests/KxMedia/Picture/MadePicture.h>

#include <gtest/gtest.h>

namespace
{

std::unique_ptr<KxVideoEncoder> Open(const QSize& size)
{
    const KxAvFrame colours(av_frame_alloc());
    KxVideoEncoder::Settings settings;
    settings.size = size;
    settings.frameRate = {25, 1};
    settings.bitRate = 8000000;
    settings.preset = QStringLiteral("veryfast");
    auto encoder = KxVideoEncoder::Open(settings, *colours);
    EXPECT_TRUE(encoder) << encoder.Message().toStdString();
    return encoder ? std::move(*encoder) : nullptr;
}

} // namespace

TEST(KxVideoEncoder, UsesBFramesUpTo4096Squared)
{
    for (const QSize& size : {QSize(640, 360), QSize(4096, 4096)}) {
        const auto encoder = Open(size);
        ASSERT_NE(encoder, nullptr);
        EXPECT_GT(encoder->Context().has_b_frames, 0) << size.width();
    }
}

TEST(KxVideoEncoder, SavesMemoryForLargerPictures)
{
    const auto encoder = Open(QSize(4096, 4098));
    ASSERT_NE(encoder, nullptr);
    EXPECT_EQ(encoder->Context().has_b_frames, 0);
    EXPECT_EQ(encoder->Context().refs, 1);
}

namespace
{

/// The FFmpeg that is built for Windows has libx264 alone; Debian's has all of them.
bool IsHere(KxOutputFormat::Codec codec)
{
    KxOutputFormat format;
    format.codec = codec;
    const bool isHere = avcodec_find_encoder_by_name(KxVideoEncoder::NameOf(format).toLatin1().constData()) != nullptr;
#ifndef Q_OS_WIN
    EXPECT_TRUE(isHere) << KxVideoEncoder::NameOf(format).toStdString();
#endif
    return isHere;
}

/// Bytes of a few textured pictures at a quality.
qint64 BytesAt(KxOutputFormat::Codec codec, int quality)
{
    constexpr QSize size(320, 192);
    const KxAvFrame picture = MadePicture::Make(AV_PIX_FMT_YUV420P, size, &MadePicture::Texture);
    KxVideoEncoder::Settings settings;
    settings.size = size;
    settings.frameRate = {25, 1};
    settings.preset = QStringLiteral("medium");
    settings.format.codec = codec;
    settings.format.quality = quality;
    auto encoder = KxVideoEncoder::Open(settings, *picture);
    EXPECT_TRUE(encoder) << encoder.Message().toStdString();
    qint64 bytes = 0;
    const KxPacketSink sink = [&bytes](AVPacket& packet) {
        bytes += packet.size;
        return 0;
    };
    constexpr int frames = 5;
    for (int frame = 0; encoder && frame < frames; ++frame) {
        EXPECT_EQ((*encoder)->Encode(*picture, frame, sink), 0);
    }
    EXPECT_EQ(encoder ? (*encoder)->Finish(sink) : -1, 0);
    return bytes;
}

} // namespace

TEST(KxVideoEncoder, ABetterQualityTakesMoreBytesInEachCodec)
{
    for (const auto codec : {KxOutputFormat::Codec::H264, KxOutputFormat::Codec::Hevc, KxOutputFormat::Codec::Av1}) {
        if (!IsHere(codec)) {
            continue;
        }
        const qint64 low = BytesAt(codec, 10);
        const qint64 middle = BytesAt(codec, 50);
        const qint64 high = BytesAt(codec, 90);
        EXPECT_GT(low, 0);
        EXPECT_GT(middle, low);
        EXPECT_GT(high, middle);
    }
}

TEST(KxVideoEncoder, PicturesOfTenBitsKeepTenBits)
{
    if (!IsHere(KxOutputFormat::Codec::Hevc)) {
        GTEST_SKIP() << "this FFmpeg has no libx265";
    }
    const KxAvFrame picture = MadePicture::Make(AV_PIX_FMT_YUV420P10, QSize(320, 192), &MadePicture::Texture);
    KxVideoEncoder::Settings settings;
    settings.size = QSize(320, 192);
    settings.frameRate = {25, 1};
    settings.format.codec = KxOutputFormat::Codec::Hevc;
    settings.format.quality = 50;
    const auto encoder = KxVideoEncoder::Open(settings, *picture);
    ASSERT_TRUE(encoder) << encoder.Message().toStdString();
    EXPECT_EQ((*encoder)->Context().pix_fmt, AV_PIX_FMT_YUV420P10);
}

TEST(KxVideoEncoder, AMissingEncoderIsNamed)
{
    const KxAvFrame colours(av_frame_alloc());
    KxVideoEncoder::Settings settings;
    settings.size = QSize(320, 192);
    settings.frameRate = {25, 1};
    settings.format.codec = KxOutputFormat::Codec::Av1;
    settings.format.encoder = KxOutputFormat::Encoder::Qsv;
    const auto encoder = KxVideoEncoder::Open(settings, *colours);
    ASSERT_FALSE(encoder);
    EXPECT_EQ(encoder.Message(), QStringLiteral("the video encoder av1_qsv is missing"));
}
