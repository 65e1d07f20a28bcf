#include <KxMedia/Read/KxVideoDecoder.h>

#include <Tests/KxMedia/Read/ReadClips.h>

#include <QFile>

#include <gtest/gtest.h>

#include <set>

using ReadClips::Path;
using ReadClips::Words;

namespace
{

constexpr int GroupCount = 8;
constexpr int GroupFrames = 12;

struct OpenGroups {
    const char* name;
    const char* output;
};

constexpr OpenGroups Clips[] = {
    {"opengop.mp4", "-c:v libx264 -g 12 -bf 3 -b_strategy 0 -x264-params open-gop=1 -pix_fmt yuv420p"},
    {"opengop.mkv", "-c:v libx264 -g 12 -bf 3 -b_strategy 0 -x264-params open-gop=1 -pix_fmt yuv420p"},
    {"wrongflag.mkv", "-c:v mpeg2video -q:v 3 -g 12 -bf 2 -b_strategy 0"},
    {"opengop.ts", "-c:v mpeg2video -q:v 3 -g 12 -bf 2 -b_strategy 0"},
};

// Claims that all groups of pictures in an MPEG-2 stream are closed, so that the decoder drops no picture of its own
// accord.
bool MarkGroupsAsClosed(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadWrite)) {
        return false;
    }
    QByteArray contents = file.readAll();
    const QByteArray header("\0\0\1\xB8", 4);
    constexpr char closed = 0x40;
    for (int at = contents.indexOf(header); at >= 0; at = contents.indexOf(header, at + 1)) {
        contents[at + 7] = static_cast<char>(contents[at + 7] | closed);
    }
    return file.seek(0) && file.write(contents) == contents.size();
}

} // namespace

// The pictures that are displayed before the key frame refer to pictures that were not decoded.
TEST(KxVideoDecoder, DropsThePicturesBeforeTheKeyFrameOfASeek)
{
    for (const OpenGroups& clip : Clips) {
        SCOPED_TRACE(clip.name);
        const QString path = Path(QLatin1String(clip.name));
        MadeVideo::Recipe recipe;
        recipe.size = {96, 64};
        recipe.frames = GroupCount * GroupFrames;
        recipe.output = Words(clip.output);
        ASSERT_TRUE(MadeVideo::Make(path, recipe));
        ASSERT_TRUE(QByteArray(clip.name) != "wrongflag.mkv" || MarkGroupsAsClosed(path));
        KxResult<std::unique_ptr<KxInputFile>> input = KxInputFile::Open(path, {});
        ASSERT_TRUE(input) << input.Message().toStdString();
        KxVideoPackets packets(std::move(*input), {25, 1});
        ASSERT_EQ(packets.Prepare(), KxReadStatus::Delivered);
        KxResult<std::unique_ptr<KxVideoDecoder>> decoder = KxVideoDecoder::Open(packets, KxVideoDecoder::Effort::Full);
        ASSERT_TRUE(decoder) << decoder.Message().toStdString();
        KxVideoDecoder::Picture picture;
        ASSERT_EQ((*decoder)->Next(picture), KxReadStatus::Delivered);
        const qint64 firstTicks = picture.ticks;

        std::set<qint64> keyFrames;
        for (int frame = GroupFrames; frame < recipe.frames; frame += GroupFrames / 2) {
            const qint64 target = firstTicks + frame * packets.StepTicks();
            KxAvPacket packet(av_packet_alloc());
            ASSERT_TRUE(packets.Seek(target));
            ASSERT_EQ(packets.Next(*packet), KxReadStatus::Delivered);
            ASSERT_NE(packet->pts, AV_NOPTS_VALUE);
            keyFrames.insert(packet->pts);
            ASSERT_TRUE(packets.Seek(target));
            (*decoder)->Flush(KxVideoDecoder::Place::KeyFrame);
            ASSERT_EQ((*decoder)->Next(picture), KxReadStatus::Delivered);
            EXPECT_EQ(picture.ticks, packet->pts) << "sought frame " << frame;
        }
        EXPECT_GE(keyFrames.size(), 4U) << "too few key frames to seek to";
    }
}
