#include <KxMedia/Read/KxAudioTrack.h>

#include <Tests/KxMedia/Read/ReadClips.h>

#include <gtest/gtest.h>

using ReadClips::Path;
using ReadClips::Words;

namespace
{

constexpr qint64 RateHz = 48000;

/// Four seconds of a tone beside pictures, in packets of 1024 samples.
std::unique_ptr<KxAudioTrack> OpenTone()
{
    MadeVideo::Recipe recipe;
    recipe.size = {96, 64};
    recipe.frames = 100;
    recipe.inputs = Words("-f lavfi -i sine=frequency=440:sample_rate=48000:duration=4");
    recipe.output = Words("-c:v libx264 -g 12 -pix_fmt yuv420p -c:a aac");
    const QString path = Path(QStringLiteral("tone.mp4"));
    EXPECT_TRUE(MadeVideo::Make(path, recipe));
    KxResult<std::unique_ptr<KxInputFile>> input = KxInputFile::Open(path, KxCancelToken());
    if (!input || (*input)->AudioStreams().empty()) {
        ADD_FAILURE() << "no sound";
        return nullptr;
    }
    AVStream& stream = *(*input)->AudioStreams().front();
    auto track = KxAudioTrack::Open(std::move(*input), stream, {}, KxMediaClock{});
    EXPECT_TRUE(track) << track.Message().toStdString();
    return track ? std::move(*track) : nullptr;
}

/// The next run that contains samples; an empty one at the end.
KxAudioTrack::Run NextSound(KxAudioTrack& track)
{
    KxAudioTrack::Run run;
    while (run.samples.empty() && track.Next(run) == KxReadStatus::Delivered) {
    }
    return run;
}

void ExpectSoundJustBefore(KxAudioTrack& track, qint64 position)
{
    const KxAudioTrack::Run run = NextSound(track);
    ASSERT_FALSE(run.samples.empty()) << "before " << position;
    EXPECT_LE(run.position, position);
    EXPECT_GT(run.position, position - RateHz);
}

} // namespace

TEST(KxAudioTrack, ASeekAfterTheEndGivesSoundAgain)
{
    const std::unique_ptr<KxAudioTrack> track = OpenTone();
    ASSERT_NE(track, nullptr);
    while (!NextSound(*track).samples.empty()) {
    }
    ASSERT_TRUE(track->SeekBefore(2 * RateHz));
    ExpectSoundJustBefore(*track, 2 * RateHz);
}

TEST(KxAudioTrack, ASeekGivesNoSoundFromWhereItCameFrom)
{
    const std::unique_ptr<KxAudioTrack> track = OpenTone();
    ASSERT_NE(track, nullptr);
    for (const qint64 second : {3, 1, 2}) {
        ASSERT_FALSE(NextSound(*track).samples.empty());
        ASSERT_TRUE(track->SeekBefore(second * RateHz));
        ExpectSoundJustBefore(*track, second * RateHz);
    }
}
