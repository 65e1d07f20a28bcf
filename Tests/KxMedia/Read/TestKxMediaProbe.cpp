#include <KxMedia/Read/KxMediaProbe.h>

#include <Tests/KxMedia/Read/ReadClips.h>

#include <QFileInfo>

#include <gtest/gtest.h>

using ReadClips::Path;
using ReadClips::Words;

TEST(KxMediaProbe, DescribesAFileWithSound)
{
    MadeVideo::Recipe recipe;
    recipe.size = {160, 96};
    recipe.frames = 90;
    recipe.rate = QStringLiteral("30000/1001");
    recipe.inputs = Words("-f lavfi -i sine=duration=3");
    recipe.output = Words("-c:v libx264 -pix_fmt yuv420p -c:a aac -b:a 96k -ac 2");
    const QString path = Path(QStringLiteral("facts.mp4"));
    ASSERT_TRUE(MadeVideo::Make(path, recipe));
    const auto facts = KxProbeMedia(path, KxCancelToken());
    ASSERT_TRUE(facts);
    EXPECT_EQ(facts->path, path);
    ASSERT_TRUE(facts->video);
    EXPECT_EQ(facts->video->resolution, QSize(160, 96));
    EXPECT_EQ(facts->video->frameRate, (KxRational{30000, 1001}));
    EXPECT_EQ(facts->video->frameCount, 90);
    EXPECT_EQ(facts->video->codecName, QStringLiteral("h264"));
    EXPECT_GT(facts->video->bitRate, 1000);
    EXPECT_EQ(facts->video->firstPictureUs, 0);
    ASSERT_EQ(facts->audio.size(), 1);
    EXPECT_EQ(facts->audio[0].sampleRateHz, 44100);
    EXPECT_EQ(facts->audio[0].channels, 2);
    EXPECT_EQ(facts->audio[0].codecName, QStringLiteral("aac"));
    EXPECT_EQ(facts->defaultAudio, 0);
}

TEST(KxMediaProbe, EstimatesAMissingBitRate)
{
    MadeVideo::Recipe recipe;
    recipe.frames = 50;
    recipe.output = Words("-c:v libx264 -pix_fmt yuv420p");
    const QString path = Path(QStringLiteral("unsaid.mkv"));
    ASSERT_TRUE(MadeVideo::Make(path, recipe));
    const auto facts = KxProbeMedia(path, KxCancelToken());
    ASSERT_TRUE(facts);
    EXPECT_EQ(facts->video->bitRate, QFileInfo(path).size() * 8 / 2);
    EXPECT_EQ(facts->defaultAudio, -1);
    EXPECT_TRUE(facts->audio.isEmpty());
}

// Sound that goes on after the last picture makes no frames.
TEST(KxMediaProbe, CountsPicturesNotSound)
{
    for (const char* suffix : {"mp4", "mkv", "ts", "avi", "flv"}) {
        MadeVideo::Recipe recipe;
        recipe.frames = 50;
        recipe.inputs = Words("-f lavfi -i sine=duration=6");
        recipe.output = Words("-c:v libx264 -bf 2 -pix_fmt yuv420p -c:a aac");
        const QString path = Path(QStringLiteral("long.") + QLatin1String(suffix));
        ASSERT_TRUE(MadeVideo::Make(path, recipe));
        const auto facts = KxProbeMedia(path, KxCancelToken());
        ASSERT_TRUE(facts);
        EXPECT_EQ(facts->video->frameCount, 50) << suffix;
    }
}

TEST(KxMediaProbe, IsCancelled)
{
    KxCancelToken cancel;
    cancel.Cancel();
    MadeVideo::Recipe recipe;
    recipe.frames = 5;
    recipe.output = Words("-c:v libx264 -pix_fmt yuv420p");
    const QString path = Path(QStringLiteral("stopped.mp4"));
    ASSERT_TRUE(MadeVideo::Make(path, recipe));
    const auto facts = KxProbeMedia(path, cancel);
    ASSERT_FALSE(facts);
    EXPECT_EQ(facts.Message(), QStringLiteral("Cannot open stopped.mp4: it was cancelled."));
}
