#include <KxMedia/Container/KxMp4Tracks.h>
#include <KxMedia/Read/KxAudioReader.h>
#include <KxMedia/Read/KxVideoPackets.h>
#include <KxMedia/Write/KxSoundPackets.h>

#include <Tests/KxMedia/Read/ReadClips.h>

#include <QFile>
#include <QtEndian>

#include <gtest/gtest.h>

using ReadClips::Path;
using ReadClips::Words;
using Kind = KxMp4Track::Kind;
using Tracks = KxInputFile::Tracks;

namespace
{

constexpr int Frames = 20;

/// With the sound in front of the pictures, so that the pictures' stream has another number without it.
QString MakeClip(const char* name, const char* options, const char* sound = "-c:a aac")
{
    MadeVideo::Recipe recipe;
    recipe.frames = Frames;
    recipe.inputs = Words("-f lavfi -i sine=frequency=440:sample_rate=48000:duration=6");
    recipe.output = Words("-map 1:a -map 0:v -c:v libx264 -pix_fmt yuv420p") + Words(sound) + Words(options);
    const QString path = Path(QLatin1String(name));
    EXPECT_TRUE(MadeVideo::Make(path, recipe));
    return path;
}

std::unique_ptr<KxInputFile> Opened(const QString& path, Tracks tracks)
{
    KxResult<std::unique_ptr<KxInputFile>> input = KxInputFile::Open(path, {}, tracks);
    EXPECT_TRUE(input) << input.Message().toStdString();
    return input ? std::move(*input) : nullptr;
}

std::vector<qint64> TimesOf(KxVideoPackets& packets)
{
    std::vector<qint64> times;
    const KxAvPacket packet(av_packet_alloc());
    while (packets.Next(*packet) == KxReadStatus::Delivered) {
        times.push_back(packet->pts);
        av_packet_unref(packet.get());
    }
    return times;
}

QByteArray Box(const char* type, const QByteArray& content)
{
    QByteArray size(4, '\0');
    qToBigEndian(static_cast<quint32>(content.size() + 8), size.data());
    return size + type + content;
}

QByteArray Track(const char* kind)
{
    const QByteArray handler = Box("hdlr", QByteArray(8, '\0') + kind + QByteArray(13, '\0'));
    return Box("trak", Box("tkhd", QByteArray(84, '\0')) + Box("mdia", Box("mdhd", QByteArray(24, '\0')) + handler));
}

std::vector<KxMp4Track> TracksOf(const QByteArray& bytes)
{
    return KxMp4TracksOf([&bytes](qint64 position, int count) { return bytes.mid(static_cast<int>(position), count); },
                         bytes.size());
}

} // namespace

TEST(KxLeftOutTracks, OfAnMp4FileAreNotRead)
{
    for (const auto& [name, options] :
         {std::pair{"end.mp4", ""}, std::pair{"start.mp4", "-movflags +faststart"}, std::pair{"quicktime.mov", ""}}) {
        SCOPED_TRACE(name);
        const QString path = MakeClip(name, options);
        const std::unique_ptr<KxInputFile> pictures = Opened(path, Tracks::AllButSound);
        ASSERT_NE(pictures, nullptr);
        EXPECT_TRUE(pictures->AudioStreams().empty());
        EXPECT_NE(pictures->VideoStream(), nullptr);
        const std::unique_ptr<KxInputFile> sound = Opened(path, Tracks::AllButPictures);
        ASSERT_NE(sound, nullptr);
        EXPECT_EQ(sound->AudioStreams().size(), 1U);
        EXPECT_EQ(sound->VideoStream(), nullptr);
    }
}

TEST(KxLeftOutTracks, StayWhereTheyCannotBeLeftOut)
{
    for (const auto& [name, options] :
         {std::pair{"fragments.mp4", "-movflags +frag_keyframe+empty_moov"}, std::pair{"other.mkv", ""}}) {
        SCOPED_TRACE(name);
        const std::unique_ptr<KxInputFile> input = Opened(MakeClip(name, options), Tracks::AllButSound);
        ASSERT_NE(input, nullptr);
        EXPECT_EQ(input->AudioStreams().size(), 1U);
        EXPECT_NE(input->VideoStream(), nullptr);
    }
}

TEST(KxLeftOutTracks, StayWhereNothingElseIsThere)
{
    const std::unique_ptr<KxInputFile> sound = Opened(MakeClip("sound.mp4", "-vn"), Tracks::AllButSound);
    ASSERT_NE(sound, nullptr);
    EXPECT_EQ(sound->AudioStreams().size(), 1U);
}

// What is left out cannot be damaged.
TEST(KxLeftOutTracks, AreThePicturesForReadersOfSound)
{
    const QString path = MakeClip("refused.mp4", "");
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    constexpr int sizeOffset = 28; // from the type of a sample entry to the pictures' width
    const int entry = file.readAll().lastIndexOf("avc1");
    ASSERT_GT(entry, 0);
    ASSERT_TRUE(file.seek(entry + sizeOffset) && file.write("\xFF\xFF\xFF\xFF", 4) == 4);
    file.close();
    ASSERT_FALSE(KxInputFile::Open(path, {}));
    const KxMediaClock clock{0};
    EXPECT_TRUE(KxAudioReader::Open(path, 0, {}, clock, {}));
    EXPECT_TRUE(KxSoundPackets::Open(path, 0, clock, {}));
}

TEST(KxLeftOutTracks, AreTheSoundOfALongVideo)
{
    for (const auto& [sound, isLong] : {std::pair{"-c:a aac", false}, std::pair{"-c:a flac -frame_size 16", true}}) {
        SCOPED_TRACE(sound);
        const QString path = MakeClip("packets.mp4", "-strict -2", sound);
        KxVideoPackets packets(Opened(path, Tracks::All), {25, 1});
        ASSERT_EQ(packets.Prepare(), KxReadStatus::Delivered);
        const std::vector<qint64> before = TimesOf(packets);
        ASSERT_EQ(before.size(), static_cast<std::size_t>(Frames));
        packets.LeaveOutSound();
        EXPECT_EQ(packets.Input().AudioStreams().empty(), isLong);
        for (int times = 0; times < 2; ++times) {
            ASSERT_TRUE(packets.Rewind());
            EXPECT_EQ(TimesOf(packets), before);
        }
        ASSERT_TRUE(packets.Seek(before.front()));
        EXPECT_EQ(TimesOf(packets), before);
    }
}

// The demuxer cannot seek to a first packet that is no key frame.
TEST(KxLeftOutTracks, StayLeftOutWhereRewindingOpensTheFileAgain)
{
    const QString path = MakeClip("nokey.mp4", "-strict -2", "-c:a flac -frame_size 16");
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    const int keyFrames = file.readAll().lastIndexOf("stss");
    constexpr int firstOffset = 12; // type, version and flags, count
    ASSERT_GT(keyFrames, 0);
    ASSERT_TRUE(file.seek(keyFrames + firstOffset) && file.write(QByteArray("\0\0\0\x0A", 4)) == 4);
    file.close();
    KxVideoPackets packets(Opened(path, Tracks::All), {25, 1});
    ASSERT_EQ(packets.Prepare(), KxReadStatus::Delivered);
    const std::vector<qint64> before = TimesOf(packets);
    packets.LeaveOutSound();
    for (int times = 0; times < 2; ++times) {
        const AVFormatContext* const opened = &packets.Input().Context();
        ASSERT_TRUE(packets.Rewind());
        EXPECT_NE(&packets.Input().Context(), opened);
        EXPECT_TRUE(packets.Input().AudioStreams().empty());
        EXPECT_EQ(TimesOf(packets), before);
    }
}

TEST(KxLeftOutTracks, OfALongVideoChangeNeitherFactsNorPictures)
{
    const std::unique_ptr<KxVideoReader> reader =
        ReadClips::OpenReader(MakeClip("long.mp4", "-strict -2", "-c:a flac -frame_size 16"));
    ASSERT_NE(reader, nullptr);
    EXPECT_EQ(reader->Facts().audio.size(), 1);
    EXPECT_EQ(reader->Facts().video->frameCount, Frames);
    for (const qint64 frame : {19, 3, 0}) {
        EXPECT_EQ(ReadClips::ReadNumber(*reader, frame), frame);
    }
}

TEST(KxMp4Tracks, AreFoundWhereverTheHeaderIs)
{
    const QByteArray header = Box("moov", Box("mvhd", QByteArray(100, '\0')) + Track("vide") + Track("soun") +
                                              Track("text") + Box("udta", QByteArray()));
    const QByteArray start = Box("ftyp", "isom");
    QByteArray longMedia("\0\0\0\1mdat\0\0\0\0\0\0\0\x14"
                         "1234",
                         20);
    for (const QByteArray& front : {start, start + Box("mdat", "12345"), start + longMedia}) {
        const std::vector<KxMp4Track> tracks = TracksOf(front + header);
        ASSERT_EQ(tracks.size(), 3U);
        EXPECT_EQ(tracks[0].kind, Kind::Pictures);
        EXPECT_EQ(tracks[1].kind, Kind::Sound);
        EXPECT_EQ(tracks[2].kind, Kind::Other);
        for (const KxMp4Track& track : tracks) {
            EXPECT_EQ((front + header).mid(static_cast<int>(track.typePosition), 4), QByteArray("trak"));
        }
    }
}

TEST(KxMp4Tracks, AreNotLookedForInFragmentsAndDamagedHeaders)
{
    const QByteArray whole = Box("moov", Track("vide") + Track("soun"));
    ASSERT_EQ(TracksOf(whole).size(), 2U);
    EXPECT_TRUE(TracksOf(Box("moov", Track("vide") + Track("soun") + Box("mvex", QByteArray()))).empty());
    for (int length = 0; length < whole.size(); ++length) {
        EXPECT_TRUE(TracksOf(whole.left(length)).empty()) << length;
    }
    QByteArray damaged = whole;
    damaged[8 + 3] = 7; // smaller than its own header
    EXPECT_TRUE(TracksOf(damaged).empty());
}
