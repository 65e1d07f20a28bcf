#include <Tests/Reframe/ReframeRun.h>

#include <KxMedia/Container/KxAvLog.h>
#include <KxMedia/Picture/KxPictureScaler.h>
#include <KxMedia/Read/KxVideoReader.h>
#include <KxMedia/Write/KxLoudness.h>
#include <Tests/Support/MadeVideo.h>
#include <Tests/Support/OpenedSound.h>

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cmath>

namespace
{

QStringList Words(const char* line)
{
    return QString::fromLatin1(line).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

/// A film of 720 x 528 pixels with sound.
const QString Footage = QStringLiteral("/usr/share/doc/opencv-doc/examples/data/Megamind.avi");

/// What is written, of a few seconds of real footage.
class ReframeOutputTest : public testing::Test
{
protected:
    static constexpr int Frames = 40;
    static constexpr int FramesOfFootage = 270;

    void SetUp() override
    {
        KxRouteAvLog();
        if (!QFile::exists(Footage)) {
            GTEST_SKIP() << "the package opencv-doc is not installed";
        }
        ASSERT_TRUE(Make("clip.mp4", Footage, "-ss 2 -t 2 -frames:v 40 -c:v libx264 -crf 12 -c:a aac -b:a 96k"));
    }

    bool Make(const char* name, const QString& footage, const char* codecs) const
    {
        return MadeVideo::RunFfmpeg(Words("-loglevel error -y -i") + QStringList(footage) + Words(codecs) +
                                    QStringList(Path(name)));
    }
    QString Path(const char* name) const { return m_folder.filePath(QLatin1String(name)); }

    /// A file with the crops of so many frames, so that nothing has to be analysed.
    QString Track(int frames) const
    {
        QFile track(Path("track.csv"));
        EXPECT_TRUE(track.open(QIODevice::WriteOnly));
        track.write("frame,x,y,w,h\n");
        for (int frame = 0; frame < frames; ++frame) {
            track.write(QByteArray::number(frame) + ",0.2,0,0.4125,1\n");
        }
        return track.fileName();
    }
    QStringList Arguments(const char* options, const char* output, const QString& clip) const
    {
        const int frames = clip == Footage ? FramesOfFootage : Frames;
        return Words(options) + QStringList{QStringLiteral("--apply"), m_track.isEmpty() ? Track(frames) : m_track,
                                            QStringLiteral("--output"), Path(output), clip};
    }

    /// Runs the program on `clip` and returns the line of JSON that reports the result.
    QJsonObject Run(const char* options, const char* output, const QString& clip)
    {
        const ReframeRun run(Arguments(options, output, clip) + Words("--json --overwrite"));
        EXPECT_EQ(run.exitStatus, 0) << run.standardError.toStdString();
        m_messages = run.standardError;
        const QStringList lines = run.standardOutput.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
        return lines.isEmpty() ? QJsonObject() : QJsonDocument::fromJson(lines.last().toUtf8()).object();
    }

    QJsonObject Run(const char* options, const char* output) { return Run(options, output, Path("clip.mp4")); }

    /// The reader, or a failure of the test.
    std::unique_ptr<KxVideoReader> Reader(const char* name) const
    {
        auto reader = KxVideoReader::Open(Path(name), KxCancelToken());
        EXPECT_TRUE(reader) << reader.Message().toStdString();
        return reader ? std::move(*reader) : nullptr;
    }

    /// Least peak signal-to-noise ratio of the pictures of two files of the same length, scaled to the same size, dB.
    double Similarity(const char* a, const char* b) const
    {
        const auto readerA = Reader(a);
        const auto readerB = Reader(b);
        double least = readerA != nullptr && readerB != nullptr ? 100.0 : 0.0;
        KxPictureScaler scaler;
        for (int frame = 0; least > 0.0 && frame < Frames; ++frame) {
            KxVideoFrame pictureA;
            KxVideoFrame pictureB;
            if (readerA->Read(frame, pictureA) != KxReadStatus::Delivered ||
                readerB->Read(frame, pictureB) != KxReadStatus::Delivered) {
                return 0.0;
            }
            constexpr QSize size(144, 256);
            least = std::min(least, Psnr(scaler.Scale(pictureA, size, QImage::Format_RGB32),
                                         scaler.Scale(pictureB, size, QImage::Format_RGB32)));
        }
        return least;
    }

    static double Psnr(const QImage& a, const QImage& b)
    {
        double sum = 0.0;
        for (int y = 0; y < a.height(); ++y) {
            for (int x = 0; x < a.width(); ++x) {
                const double difference = qGray(a.pixel(x, y)) - qGray(b.pixel(x, y));
                sum += difference * difference;
            }
        }
        return 10.0 * std::log10(255.0 * 255.0 * a.width() * a.height() / std::max(sum, 1e-9));
    }

    /// What ffprobe reports about a stream, one entry a line.
    QString Probe(const char* name, const char* stream, const char* entries) const
    {
        const ProgramRun probe(QStringLiteral("ffprobe"),
                               Words("-v error -of default=noprint_wrappers=1 -select_streams") + Words(stream) +
                                   Words("-show_entries") + Words(entries) + QStringList(Path(name)));
        EXPECT_EQ(probe.exitStatus, 0);
        return probe.standardOutput;
    }

    double LoudnessOf(const char* name) const
    {
        const KxAudioReader::Format format{44100, 2};
        const auto reader = OpenedSound(Path(name), 0, format);
        const auto meter = KxLoudnessMeter::Make(format);
        EXPECT_TRUE(reader && meter);
        KxAudioBlock block;
        while (reader && meter && (*reader)->Next(block) == KxReadStatus::Delivered) {
            EXPECT_FALSE((*meter)->Add(block));
        }
        const auto measured = (*meter)->Result();
        EXPECT_TRUE(measured && *measured);
        return measured && *measured ? (*measured)->integratedLufs : 0.0;
    }

    /// The bytes of the sound's packets.
    QByteArray SoundPackets(const QString& file) const
    {
        const QString path = Path("sound.md5");
        EXPECT_TRUE(MadeVideo::RunFfmpeg(Words("-loglevel error -y -i") + QStringList(file) +
                                         Words("-map 0:a -c copy -f framemd5") + QStringList(path)));
        QFile sumsFile(path);
        EXPECT_TRUE(sumsFile.open(QIODevice::ReadOnly));
        QByteArray sums;
        for (const QByteArray& line : sumsFile.readAll().split('\n')) {
            sums += line.isEmpty() || line.startsWith('#') ? QByteArray() : line.split(',').value(5) + '\n';
        }
        return sums;
    }

    void ExpectPackets(const char* name, const QString& source, int count) const
    {
        const QByteArray copied = SoundPackets(Path(name));
        EXPECT_EQ(copied.count('\n'), count);
        EXPECT_TRUE(SoundPackets(source).contains(copied));
    }

    QTemporaryDir m_folder;
    QString m_track; ///< instead of Track(), if not empty
    QString m_messages;
};

} // namespace

TEST_F(ReframeOutputTest, EachCodecShowsTheSamePicturesInTheSizeAndRateThatWereAskedFor)
{
    Run("", "usual.mp4");
    struct {
        const char* options;
        const char* codec;
    } const cases[] = {{"--quality 80", "h264"},
                       {"--codec hevc --bitrate 3M", "hevc"},
                       {"--codec av1 --quality 70 --encoder software", "av1"}};
    for (const auto& [options, codec] : cases) {
        const QByteArray all = QByteArray(options) + " --size 270x480";
        const QJsonObject result = Run(all.constData(), "wanted.mp4");
        EXPECT_EQ(result.value(QLatin1String("width")), 270) << options;
        EXPECT_EQ(result.value(QLatin1String("height")), 480) << options;
        EXPECT_FALSE(m_messages.contains(QStringLiteral("enlarged"))) << m_messages.toStdString();
        EXPECT_EQ(Probe("wanted.mp4", "v", "stream=codec_name,width,height,nb_frames"),
                  QStringLiteral("codec_name=%1\nwidth=270\nheight=480\nnb_frames=40\n").arg(QLatin1String(codec)));
        EXPECT_GT(Similarity("usual.mp4", "wanted.mp4"), 30.0) << options;
    }
}

TEST_F(ReframeOutputTest, MoreQualityIsCloserToTheSourceAndLarger)
{
    Run("--quality 100", "best.mp4");
    Run("--quality 20", "low.mp4");
    Run("--quality 70", "high.mp4");
    EXPECT_GT(Similarity("best.mp4", "high.mp4"), Similarity("best.mp4", "low.mp4") + 3.0);
    EXPECT_GT(QFile(Path("high.mp4")).size(), 2 * QFile(Path("low.mp4")).size());
}

TEST_F(ReframeOutputTest, AnotherRateKeepsTheDuration)
{
    const QString rate = Probe("clip.mp4", "v", "stream=r_frame_rate");
    ASSERT_EQ(rate, QStringLiteral("r_frame_rate=2997/125\n"));
    Run("--fps 12", "slow.mp4");
    EXPECT_EQ(Probe("slow.mp4", "v", "stream=r_frame_rate,nb_frames"),
              QStringLiteral("r_frame_rate=12/1\nnb_frames=20\n"));
}

TEST_F(ReframeOutputTest, AnEnlargedPictureIsReported)
{
    const QJsonObject result = Run("--size 1080x1920 --quality 10", "large.mp4");
    EXPECT_EQ(result.value(QLatin1String("height")), 1920);
    EXPECT_TRUE(m_messages.contains(
        QStringLiteral("The picture of %1 is enlarged: its size, 1080 x 1920, is above that of the crop, 298 x 528.")
            .arg(Path("clip.mp4"))))
        << m_messages.toStdString();
}

TEST_F(ReframeOutputTest, ASizeOfAnotherShapeIsRefused)
{
    const ReframeRun run(Arguments("--size 1080x1080", "x.mp4", Path("clip.mp4")));
    EXPECT_EQ(run.exitStatus, 1);
    EXPECT_TRUE(run.standardError.contains(QStringLiteral("1080 x 1920 does"))) << run.standardError.toStdString();
    EXPECT_FALSE(QFile::exists(Path("x.mp4")));
}

TEST_F(ReframeOutputTest, TheChosenEncoderIsReportedWithTheReason)
{
    const QJsonObject result = Run("--encoder auto --codec av1 --quality 40 --size 270x480", "chosen.mp4");
    EXPECT_EQ(result.value(QLatin1String("encoder")), QStringLiteral("libsvtav1"));
    // FFmpeg 5.1 has no encoder for AV1 in hardware, so that the reason is the same on every machine.
    EXPECT_TRUE(
        result.value(QLatin1String("encoder_reason")).toString().contains(QStringLiteral("av1_vaapi is missing")));
    const ReframeRun run(Arguments("--encoder auto --codec av1 --size 270x480", "again.mp4", Path("clip.mp4")));
    EXPECT_TRUE(run.standardOutput.endsWith(QStringLiteral("(encoded by libsvtav1)\n")))
        << run.standardOutput.toStdString();
    EXPECT_EQ(run.standardError, QString());
    const ReframeRun missing(Arguments("--encoder qsv --codec av1", "never.mp4", Path("clip.mp4")));
    EXPECT_EQ(missing.exitStatus, 1);
    EXPECT_TRUE(missing.standardError.contains(QStringLiteral("the video encoder av1_qsv is missing")))
        << missing.standardError.toStdString();
}

TEST_F(ReframeOutputTest, CopiedSoundHasTheSamePackets)
{
    Run("--sound copy --quality 30", "copied.mp4");
    EXPECT_EQ(m_messages, QString());
    // 1.67 s; the last packet begins before the end of the pictures.
    constexpr int packets = 80;
    ExpectPackets("copied.mp4", Path("clip.mp4"), packets);
    // Here the encoder is chosen after ten pictures, and their sound waits.
    Run("--sound copy --quality 30 --encoder auto --codec av1 --size 270x480", "late.mp4");
    ExpectPackets("late.mp4", Path("clip.mp4"), packets);
    // So it is when nothing is said, because this sound plays everywhere.
    Run("--quality 30", "automatic.mp4");
    ExpectPackets("automatic.mp4", Path("clip.mp4"), packets);
    Run("--sound encode --quality 30", "encoded.mp4");
    EXPECT_FALSE(SoundPackets(Path("clip.mp4")).startsWith(SoundPackets(Path("encoded.mp4"))));
}

TEST_F(ReframeOutputTest, SoundOfAnotherContainerIsCopiedAsWell)
{
    Run("--sound copy --quality 10 --size 148x264", "copied.mp4", Footage);
    EXPECT_EQ(m_messages, QString());
    EXPECT_EQ(Probe("copied.mp4", "a", "stream=codec_name,channels"), QStringLiteral("codec_name=ac3\nchannels=2\n"));
    // All but the first one, which is the end of a frame that was cut: ffmpeg -c copy leaves it out as well.
    ExpectPackets("copied.mp4", Footage, 351);
}

TEST_F(ReframeOutputTest, SoundThatMp4CannotHoldIsEncodedWithAWarning)
{
    ASSERT_TRUE(Make("clip.mkv", Path("clip.mp4"), "-c:v copy -c:a pcm_s16le"));
    Run("--sound copy --quality 30", "encoded.mp4", Path("clip.mkv"));
    EXPECT_TRUE(m_messages.contains(QStringLiteral("The sound is encoded again: MP4 cannot hold pcm_s16le.")))
        << m_messages.toStdString();
    EXPECT_EQ(Probe("encoded.mp4", "a", "stream=codec_name"), QStringLiteral("codec_name=aac\n"));
}

TEST_F(ReframeOutputTest, TheLoudnessIsTheOneThatWasAskedFor)
{
    Run("--quality 30", "as-it-was.mp4");
    EXPECT_GT(std::abs(LoudnessOf("as-it-was.mp4") + 14.0), 2.0);
    for (const double wanted : {-14.0, -23.0}) {
        const QByteArray options = "--quality 30 --loudness " + QByteArray::number(wanted);
        Run(options.constData(), "wanted.mp4");
        EXPECT_EQ(m_messages, QString());
        EXPECT_NEAR(LoudnessOf("wanted.mp4"), wanted, 0.5);
    }
}

TEST_F(ReframeOutputTest, HighDynamicRangeIsKeptWithItsTags)
{
    ASSERT_TRUE(
        Make("hdr.mp4", Path("clip.mp4"),
             "-vf format=yuv420p10le -c:v libx265 -preset ultrafast -x265-params "
             "log-level=none:colorprim=bt2020:transfer=smpte2084:colormatrix=bt2020nc:"
             "master-display=G(13250,34500)B(7500,3000)R(34000,16000)WP(15635,16450)L(10000000,1):max-cll=1000,400 "
             "-color_primaries bt2020 -color_trc smpte2084 -colorspace bt2020nc -c:a aac"));
    const char* const entries = "stream=codec_name,profile,pix_fmt,color_transfer,color_primaries";
    Run("--hdr keep", "kept.mp4", Path("hdr.mp4"));
    EXPECT_EQ(Probe("kept.mp4", "v", entries),
              QStringLiteral("codec_name=hevc\nprofile=Main 10\npix_fmt=yuv420p10le\ncolor_transfer=smpte2084\n"
                             "color_primaries=bt2020\n"));
    const QString brightness = Probe("kept.mp4", "v", "frame=side_data_list -read_intervals %+#1 -show_frames");
    EXPECT_TRUE(brightness.contains(QStringLiteral("max_content=1000"))) << brightness.toStdString();
    EXPECT_TRUE(brightness.contains(QStringLiteral("green_x=13250/50000"))) << brightness.toStdString();
    Run("", "mapped.mp4", Path("hdr.mp4"));
    EXPECT_EQ(Probe("mapped.mp4", "v", entries),
              QStringLiteral("codec_name=h264\nprofile=High\npix_fmt=yuv420p\ncolor_transfer=bt709\n"
                             "color_primaries=bt709\n"));
}

TEST_F(ReframeOutputTest, AWholePictureOverItsBlurredSelfHasTenBitsAsWell)
{
    QFile track(Path("fitted.json"));
    ASSERT_TRUE(track.open(QIODevice::WriteOnly));
    track.write(R"({"version":1,"source":{"path":"clip.mp4","width":720,"height":528,"frame_count":40,)"
                R"("frame_rate":[2997,125]},"aspect":[9,16],"speed":"auto","models":"none",)"
                R"("other_shapes":"fitted","frames":[[0,0,1,1])" +
                QByteArray(",[0,0,1,1]").repeated(Frames - 1) + "]}");
    track.close();
    m_track = track.fileName();
    Run("--quality 90 --size 270x480", "eight.mp4");
    Run("--quality 90 --size 270x480 --hdr keep", "ten.mp4");
    EXPECT_EQ(Probe("ten.mp4", "v", "stream=pix_fmt"), QStringLiteral("pix_fmt=yuv420p10le\n"));
    EXPECT_GT(Similarity("eight.mp4", "ten.mp4"), 36.0);
}
