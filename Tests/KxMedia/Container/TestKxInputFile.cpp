#include <Tests/KxMedia/Read/ReadClips.h>

#include <KxMedia/Container/KxInputFile.h>

#include <gtest/gtest.h>

namespace
{

using Time = std::chrono::steady_clock::time_point;

// Larger than the first read, so that reading continues after opening.
QString LongClip()
{
    MadeVideo::Recipe recipe;
    recipe.size = {320, 192};
    recipe.output = ReadClips::Words("-c:v rawvideo -pix_fmt yuv420p");
    const QString path = ReadClips::Path(QStringLiteral("long.avi"));
    MadeVideo::Make(path, recipe);
    return path;
}

int PacketsOf(KxInputFile& input)
{
    const KxAvPacket packet(av_packet_alloc());
    int packets = 0;
    while (input.Read(*packet) == KxReadStatus::Delivered) {
        av_packet_unref(packet.get());
        ++packets;
    }
    return packets;
}

} // namespace

TEST(KxInputFile, TheLimitOnOpeningEndsWithTheOpening)
{
    Time now;
    auto input = KxInputFile::Open(LongClip(), KxCancelToken(), KxInputFile::Tracks::All, [&now] { return now; });
    ASSERT_TRUE(input) << input.Message().toStdString();
    now += std::chrono::hours(10);
    EXPECT_EQ(PacketsOf(**input), 60);
}

TEST(KxInputFile, OpeningThatTakesTooLongEnds)
{
    Time now;
    const auto input = KxInputFile::Open(LongClip(), KxCancelToken(), KxInputFile::Tracks::All,
                                         [&now] { return now += std::chrono::hours(1); });
    ASSERT_FALSE(input);
    EXPECT_EQ(input.Message().toStdString(), "Cannot open long.avi: reading it takes too long.");
}
