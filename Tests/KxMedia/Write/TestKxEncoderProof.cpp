#include <KxMedia/Write/KxEncoderProof.h>
#include <Tests/KxMedia/Picture/MadePicture.h>

#include <gtest/gtest.h>

namespace
{

constexpr QSize Size(192, 128);

std::vector<KxVideoFrame> Pictures()
{
    std::vector<KxVideoFrame> pictures;
    for (int frame = 0; frame < static_cast<int>(KxEncoderProof::Frames); ++frame) {
        pictures.push_back(MadePicture::Wrap(
            MadePicture::Make(AV_PIX_FMT_YUV420P, Size,
                              [frame](int plane, int x, int y) { return MadePicture::Texture(plane, x + frame, y); }),
            frame));
    }
    return pictures;
}

KxVideoEncoder::Settings Settings(KxOutputFormat::Codec codec, qint64 bitRate)
{
    KxVideoEncoder::Settings settings;
    settings.size = Size;
    settings.frameRate = {25, 1};
    settings.bitRate = bitRate;
    settings.preset = QStringLiteral("medium");
    settings.format.codec = codec;
    return settings;
}

} // namespace

TEST(KxEncoderProof, AnEncoderThatWritesThePicturesIsAccepted)
{
    const KxVideoEncoder::Settings settings = Settings(KxOutputFormat::Codec::H264, 4000000);
    const KxError reason = KxEncoderProof::Compare(settings, settings, Pictures());
    EXPECT_FALSE(reason) << reason->toStdString();
}

TEST(KxEncoderProof, AnEncoderThatWritesWorsePicturesIsRefused)
{
    const auto codec = KxOutputFormat::Codec::H264;
    const KxError reason = KxEncoderProof::Compare(Settings(codec, 20000), Settings(codec, 8000000), Pictures());
    ASSERT_TRUE(reason);
    EXPECT_TRUE(reason->contains(QStringLiteral("differs too much"))) << reason->toStdString();
}

TEST(KxEncoderProof, AnEncoderThatDoesNotStartIsRefusedWithTheReason)
{
    KxVideoEncoder::Settings missing = Settings(KxOutputFormat::Codec::Av1, 4000000);
    missing.format.encoder = KxOutputFormat::Encoder::Vaapi; // FFmpeg 5.1 has none
    const KxError reason = KxEncoderProof::Compare(missing, Settings(KxOutputFormat::Codec::Av1, 4000000), Pictures());
    ASSERT_TRUE(reason);
    EXPECT_TRUE(reason->contains(QStringLiteral("av1_vaapi"))) << reason->toStdString();
}

TEST(KxEncoderProof, WithoutHardwareTheSoftwareIsChosenAndEachKindHasAReason)
{
    const KxEncoderProof::Choice choice =
        KxEncoderProof::Choose(Settings(KxOutputFormat::Codec::Av1, 4000000), Pictures());
    EXPECT_EQ(choice.encoder, KxOutputFormat::Encoder::Software);
    for (const char* const name : {"av1_nvenc", "av1_qsv", "av1_vaapi"}) {
        EXPECT_TRUE(choice.reason.contains(QLatin1String(name))) << choice.reason.toStdString();
    }
}
