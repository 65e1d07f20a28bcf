#include <Tests/KxMedia/Read/ReadClips.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <random>

using ReadClips::Kind;
using ReadClips::Words;

namespace
{

MadeVideo::Recipe Made(int frames, const char* output, const char* rate = "25", QSize size = {96, 64})
{
    MadeVideo::Recipe recipe;
    recipe.size = size;
    recipe.frames = frames;
    recipe.rate = QString::fromLatin1(rate);
    recipe.output = Words(output);
    return recipe;
}

// Of each ten pictures the first five are there.
int HalfKept(qint64 frame, const KxRational& rate)
{
    int shown = 0;
    for (int number = 0; std::lround(number / 25.0 * rate.ToDouble()) <= frame; ++number) {
        shown = number % 10 < 5 ? number : shown;
    }
    return std::min(shown, 94);
}

std::vector<Kind> Kinds()
{
    const char* const half = "-vf select=lt(mod(n\\,10)\\,5) -vsync vfr -c:v libx264 -g 30 -bf 2";
    return {
        {"H264Mp4LongGop", "mp4", Made(280, "-c:v libx264 -g 250 -bf 3 -pix_fmt yuv420p"), {}},
        {"H264Mp4ShortGop", "mp4", Made(100, "-c:v libx264 -g 12 -bf 3 -pix_fmt yuv420p"), {}},
        {"H264Mp4OpenGop", "mp4", Made(100, "-c:v libx264 -g 12 -bf 3 -x264-params open-gop=1 -pix_fmt yuv420p"), {}},
        {"H264Mp4NtscRate", "mp4", Made(100, "-c:v libx264 -g 24 -bf 3 -pix_fmt yuv420p", "30000/1001"), {}},
        {"H264Mp4Fragmented",
         "mp4",
         Made(100, "-c:v libx264 -g 24 -bf 2 -pix_fmt yuv420p -movflags frag_keyframe+empty_moov"),
         {}},
        {"H264Mp4TenBit", "mp4", Made(40, "-c:v libx264 -g 12 -bf 2 -pix_fmt yuv420p10le"), {}},
        {"H264Mp4OddSize444", "mp4", Made(40, "-c:v libx264 -g 12 -bf 2 -pix_fmt yuv444p", "25", {161, 97}), {}},
        {"H264Mp4HalfTheFrames", "mp4", Made(100, half), HalfKept, 95},
        {"H264MkvHalfTheFrames", "mkv", Made(100, half), HalfKept, 95},
        {"H264Mkv", "mkv", Made(100, "-c:v libx264 -g 24 -bf 3 -pix_fmt yuv420p", "30000/1001"), {}},
        {"H264MkvRate60", "mkv", Made(120, "-c:v libx264 -g 24 -bf 3 -pix_fmt yuv420p", "60000/1001"), {}},
        {"H264Avi", "avi", Made(100, "-c:v libx264 -g 24 -bf 2 -pix_fmt yuv420p"), {}},
        {"H264Flv", "flv", Made(100, "-c:v libx264 -g 24 -bf 2 -pix_fmt yuv420p"), {}},
        {"H264Ts", "ts", Made(100, "-c:v libx264 -g 24 -bf 3 -pix_fmt yuv420p"), {}},
        {"H264Raw", "h264", Made(100, "-c:v libx264 -g 24 -bf 3 -pix_fmt yuv420p"), {}},
        {"H264RawOpenGop", "h264", Made(100, "-c:v libx264 -g 12 -bf 3 -x264-params open-gop=1 -pix_fmt yuv420p"), {}},
        {"H264Mp4Interlaced", "mp4", Made(100, "-c:v libx264 -g 24 -bf 3 -flags +ildct+ilme -pix_fmt yuv420p"), {}},
        {"H264RawInterlaced", "h264", Made(60, "-c:v libx264 -g 24 -bf 3 -flags +ildct+ilme -pix_fmt yuv420p"), {}},
        {"Mpeg2TransportStreamInterlaced",
         "ts",
         Made(100, "-c:v mpeg2video -q:v 3 -g 12 -bf 2 -flags +ildct+ilme"),
         {}},
        {"HevcMp4",
         "mp4",
         Made(60, "-c:v libx265 -g 20 -x265-params log-level=none:pools=1", "25", {128, 96}),
         {},
         0,
         "libx265"},
        {"HevcRaw",
         "hevc",
         Made(60, "-c:v libx265 -g 20 -x265-params log-level=none:pools=1", "25", {128, 96}),
         {},
         0,
         "libx265"},
        {"Mpeg4AviBFrames", "avi", Made(100, "-c:v mpeg4 -q:v 3 -g 24 -bf 2"), {}},
        {"Mpeg4AviPacked", "avi", Made(100, "-c:v libxvid -q:v 3 -g 24 -bf 2"), {}, 0, "libxvid", 1},
        {"Mpeg4Mp4", "mp4", Made(60, "-c:v mpeg4 -q:v 3 -g 24 -bf 2", "25", {97, 65}), {}},
        {"Mpeg4Raw", "m4v", Made(60, "-c:v mpeg4 -q:v 3 -g 24 -f m4v"), {}},
        {"Mpeg2ProgramStream", "mpg", Made(100, "-c:v mpeg2video -q:v 3 -g 12 -bf 2 -f vob"), {}},
        {"Mpeg2TransportStream", "ts", Made(100, "-c:v mpeg2video -q:v 3 -g 12 -bf 2"), {}},
        {"Mpeg2Mxf", "mxf", Made(60, "-c:v mpeg2video -q:v 3 -g 12 -bf 2"), {}},
        {"Vp8Webm", "webm", Made(60, "-c:v libvpx -g 20 -deadline realtime -cpu-used 8"), {}, 0, "libvpx"},
        {"Vp9Webm", "webm", Made(60, "-c:v libvpx-vp9 -g 20 -deadline realtime -cpu-used 8"), {}, 0, "libvpx-vp9"},
        {"Flv1", "flv", Made(60, "-c:v flv -q:v 3 -g 20"), {}},
        {"Mjpeg", "avi", Made(40, "-c:v mjpeg -q:v 3"), {}},
        {"ProRes", "mov", Made(40, "-c:v prores_ks"), {}},
        {"Wmv", "wmv", Made(60, "-c:v wmv2 -q:v 3 -g 20"), {}},
        {"Theora", "ogv", Made(60, "-c:v libtheora -q:v 7 -g 20"), {}, 0, "libtheora"},
        {"Gif", "gif", Made(40, "-c:v gif"), {}},
    };
}

std::string NameOf(const testing::TestParamInfo<Kind>& info)
{
    return info.param.name;
}

class KxVideoReaderKinds : public testing::TestWithParam<Kind>
{
protected:
    void SetUp() override
    {
        const Kind& kind = GetParam();
        if (kind.encoder != nullptr && !MadeVideo::HasEncoder(QString::fromLatin1(kind.encoder))) {
            GTEST_SKIP() << "no encoder " << kind.encoder;
        }
        const QString path =
            ReadClips::Path(QStringLiteral("%1.%2").arg(QLatin1String(kind.name), QLatin1String(kind.suffix)));
        ASSERT_TRUE(MadeVideo::Make(path, kind.recipe));
        m_reader = ReadClips::OpenReader(path);
        ASSERT_NE(m_reader, nullptr);
        m_count = m_reader->Facts().video->frameCount;
        m_rate = m_reader->Facts().video->frameRate;
    }

    int Expected(qint64 frame) const
    {
        const Kind& kind = GetParam();
        const qint64 shown = std::min(frame, m_count - 1);
        return kind.numberAt ? kind.numberAt(shown, m_rate) : static_cast<int>(shown);
    }

    void Check(qint64 frame)
    {
        const auto [known, isNew] = m_numbers.try_emplace(std::min(frame, m_count - 1), Expected(frame));
        const int number = ReadClips::ReadNumber(*m_reader, frame);
        if (isNew && GetParam().lateBy > 0 && number >= 0) {
            EXPECT_LE(std::abs(number - known->second), GetParam().lateBy) << "frame " << frame;
            known->second = number;
        }
        EXPECT_EQ(number, known->second) << "frame " << frame;
    }

    std::map<qint64, int> m_numbers;
    std::unique_ptr<KxVideoReader> m_reader;
    qint64 m_count = 0;
    KxRational m_rate;
};

} // namespace

TEST_P(KxVideoReaderKinds, ReadsEveryFrameInAnyOrder)
{
    const Kind& kind = GetParam();
    EXPECT_EQ(m_count, kind.frameCount > 0 ? kind.frameCount : kind.recipe.frames);
    for (qint64 frame = 0; frame < m_count; ++frame) {
        Check(frame);
    }
    std::mt19937 random(7);
    for (int i = 0; i < 20; ++i) {
        Check(static_cast<qint64>(random() % static_cast<unsigned>(m_count)));
    }
    for (qint64 frame = m_count - 1; frame >= 0; frame -= 7) {
        Check(frame);
    }
    Check(m_count - 1);
    Check(0);
    Check(m_count + 1000);
    EXPECT_FALSE(m_reader->EndedEarly());
    EXPECT_EQ(m_reader->DecodableFrames(), m_count);
}

INSTANTIATE_TEST_SUITE_P(Made, KxVideoReaderKinds, testing::ValuesIn(Kinds()), NameOf);
