#include <KxMedia/Read/KxAudioReader.h>

#include <KxMedia/Read/KxMediaProbe.h>

#include <Tests/KxMedia/Read/ReadClips.h>
#include <Tests/Support/OpenedSound.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

using ReadClips::Path;
using ReadClips::Words;

namespace
{

std::unique_ptr<KxAudioReader> OpenAudio(const QString& path, int stream = 0, const KxAudioReader::Format& format = {},
                                         const KxCancelToken& cancel = {})
{
    KxResult<std::unique_ptr<KxAudioReader>> reader = OpenedSound(path, stream, format, cancel);
    if (!reader) {
        ADD_FAILURE() << reader.Message().toStdString();
        return nullptr;
    }
    return std::move(*reader);
}

// A picture a frame at 25 a second, and a click (10 ms of a tone) at the start of each second of the sound.
QString Clicks(const QString& name, const char* output, double seconds = 4)
{
    MadeVideo::Recipe recipe;
    recipe.size = {96, 64};
    recipe.frames = static_cast<int>(seconds * 25);
    recipe.inputs =
        QStringList{QStringLiteral("-f"), QStringLiteral("lavfi"), QStringLiteral("-i"),
                    QStringLiteral("aevalsrc=exprs=sin(2*PI*1000*t)*lt(mod(t\\,1)\\,0.01):s=44100:d=%1").arg(seconds)};
    recipe.output = Words("-c:v libx264 -g 12 -bf 2 -pix_fmt yuv420p") + Words(output);
    MadeVideo::Make(Path(name), recipe);
    return Path(name);
}

struct Sound {
    qint64 startUs = 0;
    int channels = 0;
    std::vector<float> samples;

    /// Seconds after time zero at which the first channel becomes loud after a silence.
    std::vector<double> Clicks() const
    {
        std::vector<double> clicks;
        qint64 lastLoud = -48000;
        for (size_t i = 0; i < samples.size(); i += static_cast<size_t>(channels)) {
            const auto frame = static_cast<qint64>(i) / channels;
            if (std::abs(samples[i]) > 0.2F) {
                if (frame - lastLoud > 9600) {
                    clicks.push_back(static_cast<double>(startUs) / 1e6 + static_cast<double>(frame) / 48000.0);
                }
                lastLoud = frame;
            }
        }
        return clicks;
    }
};

Sound ReadAll(KxAudioReader& reader)
{
    Sound sound;
    KxAudioBlock block;
    qint64 expectedUs = -1;
    while (reader.Next(block) == KxReadStatus::Delivered) {
        if (expectedUs < 0) {
            sound.startUs = block.timeUs;
            sound.channels = block.channels;
        } else {
            EXPECT_NEAR(static_cast<double>(block.timeUs), static_cast<double>(expectedUs), 1.0);
        }
        sound.samples.insert(sound.samples.end(), block.samples.begin(), block.samples.end());
        const auto frames = static_cast<qint64>(sound.samples.size()) / sound.channels;
        expectedUs = sound.startUs + frames * 1000000 / 48000;
    }
    return sound;
}

float WorstDifference(const std::vector<float>& part, const std::vector<float>& whole, int position)
{
    float worst = 0;
    for (size_t i = 0; i < part.size(); ++i) {
        const qint64 place = position + static_cast<qint64>(i);
        if (place >= 0 && place < static_cast<qint64>(whole.size())) {
            worst = std::max(worst, std::abs(part[i] - whole[static_cast<size_t>(place)]));
        }
    }
    return worst;
}

void ExpectClicksAt(const Sound& sound, const std::vector<double>& seconds)
{
    const std::vector<double> clicks = sound.Clicks();
    ASSERT_EQ(clicks.size(), seconds.size());
    for (size_t i = 0; i < seconds.size(); ++i) {
        EXPECT_NEAR(clicks[i], seconds[i], 0.002);
    }
}

} // namespace

TEST(KxAudioReader, PlacesSoundAgainstTheFirstPicture)
{
    for (const char* name : {"aac.mp4", "aac.mkv", "aac.ts", "aac.flv", "pcm.mov", "pcm.avi", "mp3.avi", "flac.mkv"}) {
        SCOPED_TRACE(name);
        const QByteArray codec(name);
        const char* output = codec.startsWith("pcm")    ? "-c:a pcm_s16le"
                             : codec.startsWith("mp3")  ? "-c:a libmp3lame"
                             : codec.startsWith("flac") ? "-c:a flac"
                                                        : "-c:a aac";
        const std::unique_ptr<KxAudioReader> reader = OpenAudio(Clicks(QLatin1String(name), output));
        ASSERT_NE(reader, nullptr);
        const Sound sound = ReadAll(*reader);
        EXPECT_EQ(sound.channels, 2);
        EXPECT_GE(sound.startUs, 0);
        ASSERT_GE(sound.Clicks().size(), 4U);
        for (const double click : sound.Clicks()) {
            // Priming that a container does not signal moves the sound of AAC and MP3 by up to 50 ms.
            const bool isExact = codec == "aac.mp4" || codec.startsWith("pcm") || codec.startsWith("flac");
            EXPECT_NEAR(click, std::round(click), isExact ? 0.002 : 0.06);
        }
    }
}

TEST(KxAudioReader, StartsWithTheFirstSound)
{
    const QString clicks = Clicks(QStringLiteral("base.mov"), "-c:a pcm_s16le");
    const QString late = Path(QStringLiteral("late.mov"));
    ASSERT_TRUE(MadeVideo::RunFfmpeg(Words("-i") << clicks << Words("-itsoffset 0.5 -i") << clicks
                                                 << Words("-map 0:v -map 1:a -c copy") << late));
    const std::unique_ptr<KxAudioReader> reader = OpenAudio(late);
    ASSERT_NE(reader, nullptr);
    const Sound sound = ReadAll(*reader);
    EXPECT_NEAR(static_cast<double>(sound.startUs), 500000, 1000);
    ExpectClicksAt(sound, {0.5, 1.5, 2.5, 3.5});
}

TEST(KxAudioReader, DropsSoundBeforeTheFirstPicture)
{
    const QString clicks = Clicks(QStringLiteral("base2.mov"), "-c:a pcm_s16le");
    const QString early = Path(QStringLiteral("early.mkv"));
    ASSERT_TRUE(MadeVideo::RunFfmpeg(Words("-itsoffset 0.5 -i") << clicks << Words("-i") << clicks
                                                                << Words("-map 0:v -map 1:a -c copy") << early));
    const std::unique_ptr<KxAudioReader> reader = OpenAudio(early);
    ASSERT_NE(reader, nullptr);
    const Sound sound = ReadAll(*reader);
    EXPECT_EQ(sound.startUs, 0);
    ExpectClicksAt(sound, {0.5, 1.5, 2.5});
}

TEST(KxAudioReader, FillsGapsWithSilence)
{
    const QString path = Clicks(QStringLiteral("gap.mkv"), "-af aselect=not(between(t\\,1.2\\,2.7)) -c:a pcm_s16le");
    const std::unique_ptr<KxAudioReader> reader = OpenAudio(path);
    ASSERT_NE(reader, nullptr);
    ExpectClicksAt(ReadAll(*reader), {0, 1, 3});
}

TEST(KxAudioReader, SeeksWithThePrecisionOfTheContainer)
{
    for (const char* name : {"seek.mp4", "seekpcm.mov", "seekflac.mkv"}) {
        SCOPED_TRACE(name);
        const char* output = QByteArray(name) == "seek.mp4"      ? "-c:a aac"
                             : QByteArray(name) == "seekpcm.mov" ? "-c:a pcm_s16le"
                                                                 : "-c:a flac";
        const std::unique_ptr<KxAudioReader> reader = OpenAudio(Clicks(QLatin1String(name), output), 0, {44100, 1});
        ASSERT_NE(reader, nullptr);
        std::vector<float> whole;
        KxAudioBlock block;
        while (reader->Next(block) == KxReadStatus::Delivered) {
            whole.insert(whole.end(), block.samples.begin(), block.samples.end());
        }
        for (const int position : {88200, 44100, 132311, 1000, 0}) {
            reader->Seek(qint64{position} * 1000000 / 44100);
            ASSERT_EQ(reader->Next(block), KxReadStatus::Delivered);
            EXPECT_NEAR(static_cast<double>(block.timeUs), position * 1e6 / 44100, 23.0);
            // Matroska keeps whole milliseconds.
            const int slack = QByteArray(name).endsWith(".mkv") ? 45 : 0;
            float worst = 2;
            for (int shift = -slack; shift <= slack; ++shift) {
                worst = std::min(worst, WorstDifference(block.samples, whole, position + shift));
            }
            EXPECT_LT(worst, 0.01F) << position;
        }
        reader->Seek(qint64{3600} * 1000000);
        EXPECT_EQ(reader->Next(block), KxReadStatus::End);
    }
}

TEST(KxAudioReader, BeginsWithSilenceAfterASeekBeforeTheSound)
{
    const QString clicks = Clicks(QStringLiteral("base3.mov"), "-c:a pcm_s16le");
    const QString late = Path(QStringLiteral("late3.mov"));
    ASSERT_TRUE(MadeVideo::RunFfmpeg(Words("-i") << clicks << Words("-itsoffset 1 -i") << clicks
                                                 << Words("-map 0:v -map 1:a -c copy") << late));
    const std::unique_ptr<KxAudioReader> reader = OpenAudio(late);
    ASSERT_NE(reader, nullptr);
    reader->Seek(250000);
    const Sound sound = ReadAll(*reader);
    EXPECT_EQ(sound.startUs, 250000);
    ExpectClicksAt(sound, {1, 2, 3, 4});
}

TEST(KxAudioReader, ReadsTheRequestedTrack)
{
    MadeVideo::Recipe recipe;
    recipe.size = {96, 64};
    recipe.frames = 25;
    recipe.inputs =
        Words("-f lavfi -i sine=frequency=500:duration=1 -f lavfi -i sine=frequency=2000:duration=1:sample_rate=22050");
    recipe.output = Words("-map 0 -map 1 -map 2 -disposition:a:1 default -disposition:a:0 0 -c:v libx264 -pix_fmt "
                          "yuv420p -c:a pcm_s16le");
    const QString path = Path(QStringLiteral("tracks.mkv"));
    ASSERT_TRUE(MadeVideo::Make(path, recipe));
    const auto facts = KxProbeMedia(path, KxCancelToken());
    ASSERT_TRUE(facts);
    ASSERT_EQ(facts->audio.size(), 2);
    EXPECT_EQ(facts->audio[0].sampleRateHz, 44100);
    EXPECT_EQ(facts->audio[1].sampleRateHz, 22050);
    EXPECT_EQ(facts->audio[1].channels, 1);
    EXPECT_EQ(facts->defaultAudio, 1);
    for (const int stream : {0, 1}) {
        const std::unique_ptr<KxAudioReader> reader = OpenAudio(path, stream);
        ASSERT_NE(reader, nullptr);
        const Sound sound = ReadAll(*reader);
        int crossings = 0;
        for (size_t i = 2; i < sound.samples.size(); i += 2) {
            crossings += sound.samples[i - 2] < 0 && sound.samples[i] >= 0 ? 1 : 0;
        }
        EXPECT_NEAR(crossings, stream == 0 ? 500 : 2000, 3);
    }
    EXPECT_EQ(OpenedSound(path, 2, {}).Message(),
              QStringLiteral("Cannot open tracks.mkv: it has no such sound track."));
}

TEST(KxAudioReader, StopsWhenCancelled)
{
    KxCancelToken cancel;
    const std::unique_ptr<KxAudioReader> reader =
        OpenAudio(Clicks(QStringLiteral("stop.mp4"), "-c:a aac"), 0, {}, cancel);
    ASSERT_NE(reader, nullptr);
    KxAudioBlock block;
    EXPECT_EQ(reader->Next(block), KxReadStatus::Delivered);
    cancel.Cancel();
    KxReadStatus status = KxReadStatus::Delivered;
    for (int i = 0; i < 10 && status == KxReadStatus::Delivered; ++i) {
        status = reader->Next(block);
    }
    EXPECT_EQ(status, KxReadStatus::Cancelled);
}

TEST(KxAudioReader, ReadsFromTheStartAgainAfterTheEnd)
{
    const std::unique_ptr<KxAudioReader> reader = OpenAudio(Clicks(QStringLiteral("again.mov"), "-c:a pcm_s16le"));
    ASSERT_NE(reader, nullptr);
    ExpectClicksAt(ReadAll(*reader), {0, 1, 2, 3});
    reader->Seek(0);
    ExpectClicksAt(ReadAll(*reader), {0, 1, 2, 3});
}
