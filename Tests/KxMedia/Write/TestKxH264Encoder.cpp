#include <KxMedia/Write/KxH264Encoder.h>

#include <gtest/gtest.h>

namespace
{

std::unique_ptr<KxH264Encoder> Open(const QSize& size)
{
    const KxAvFrame colours(av_frame_alloc());
    KxH264Encoder::Settings settings;
    settings.size = size;
    settings.frameRate = {25, 1};
    settings.bitRate = 8000000;
    settings.preset = QStringLiteral("veryfast");
    auto encoder = KxH264Encoder::Open(settings, *colours);
    EXPECT_TRUE(encoder) << encoder.Message().toStdString();
    return encoder ? std::move(*encoder) : nullptr;
}

} // namespace

TEST(KxH264Encoder, UsesBFramesUpTo4096Squared)
{
    for (const QSize& size : {QSize(640, 360), QSize(4096, 4096)}) {
        const auto encoder = Open(size);
        ASSERT_NE(encoder, nullptr);
        EXPECT_GT(encoder->Context().has_b_frames, 0) << size.width();
    }
}

TEST(KxH264Encoder, SavesMemoryForLargerPictures)
{
    const auto encoder = Open(QSize(4096, 4098));
    ASSERT_NE(encoder, nullptr);
    EXPECT_EQ(encoder->Context().has_b_frames, 0);
    EXPECT_EQ(encoder->Context().refs, 1);
}
