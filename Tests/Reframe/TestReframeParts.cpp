#include <Tests/KxRender/RenderFixture.h>
#include <Tests/Reframe/ReframeRun.h>
#include <Tests/Support/MadeVideo.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPainter>
#include <QProcess>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace
{

constexpr int Frames = 150;

/// A disc that wanders, in another scene from picture 70 on.
QImage DrawScene(int number)
{
    QImage image(320, 180, QImage::Format_RGB32);
    const bool isSecond = number >= 70;
    image.fill(isSecond ? QColor(40, 90, 60) : QColor(120, 110, 100));
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    for (int x = 0; x < image.width(); x += 20) {
        painter.fillRect(x, isSecond ? 20 : 120, 10, 40, QColor::fromHsv(x % 360, 120, isSecond ? 90 : 160));
    }
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(230, 40, 40));
    painter.drawEllipse(QPointF(160 + 110 * std::sin(0.05 * number), 90 + (isSecond ? 30 : -10)), 22, 22);
    painter.end();
    return image;
}

class ReframePartsTest : public RenderFixture
{
protected:
    /// A clip with two scenes and a beep every half second.
    void MakeScenes(const QString& name, const QStringList& codec)
    {
        MadeVideo::Recipe recipe;
        recipe.size = QSize(320, 180);
        recipe.frames = Frames;
        recipe.rate = QStringLiteral("30");
        recipe.draw = &DrawScene;
        Make(name, recipe, codec);
    }
    /// A clip whose pictures show their numbers.
    void MakeNumbers(const QString& name)
    {
        MadeVideo::Recipe recipe;
        recipe.size = QSize(320, 180);
        recipe.frames = Frames;
        recipe.rate = QStringLiteral("30");
        Make(name, recipe,
             {QStringLiteral("-c:v"), QStringLiteral("libx264"), QStringLiteral("-g"), QStringLiteral("40")});
    }
    void Make(const QString& name, MadeVideo::Recipe& recipe, const QStringList& codec)
    {
        recipe.inputs = QStringList{QStringLiteral("-f"), QStringLiteral("lavfi"), QStringLiteral("-i"),
                                    QStringLiteral("aevalsrc='0.8*sin(2*PI*880*t)*lt(mod(t,0.5),0.05)':s=48000:d=%1")
                                        .arg(recipe.frames / recipe.rate.toDouble())};
        recipe.output = codec + QStringList{QStringLiteral("-pix_fmt"), QStringLiteral("yuv420p"),
                                            QStringLiteral("-c:a"), QStringLiteral("aac"), QStringLiteral("-shortest")};
        ASSERT_TRUE(MadeVideo::Make(Path(name), recipe));
    }

    QByteArray Content(const QString& name) const
    {
        QFile file(Path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    /// The shape of a pixel, and for each packet of the pictures a line with its times, size and hash.
    QByteArray Packets(const QString& name) const
    {
        QProcess ffmpeg;
        ffmpeg.start(QStringLiteral("ffmpeg"),
                     {QStringLiteral("-v"), QStringLiteral("error"), QStringLiteral("-i"), Path(name),
                      QStringLiteral("-map"), QStringLiteral("0:v"), QStringLiteral("-c"), QStringLiteral("copy"),
                      QStringLiteral("-f"), QStringLiteral("framehash"), QStringLiteral("-")});
        EXPECT_TRUE(ffmpeg.waitForFinished());
        QByteArray lines;
        for (const QByteArray& line : ffmpeg.readAllStandardOutput().split('\n')) {
            if (line.startsWith("#sar") || (!line.startsWith('#') && !line.isEmpty())) {
                lines += line + '\n';
            }
        }
        return lines;
    }
    /// Runs the program without a cache and without networks; what it reports as an error.
    QString Reframe(const QStringList& arguments, int exitStatus = 0) const
    {
        const ReframeRun run(QStringList{QStringLiteral("--cache"), QStringLiteral("none"), QStringLiteral("--models"),
                                         QStringLiteral("none")} +
                             arguments);
        EXPECT_EQ(run.exitStatus, exitStatus) << run.standardError.toStdString();
        return run.standardError;
    }
    QString Analyse(const QString& clip, const QString& track, const QStringList& more = {}) const
    {
        return Reframe(QStringList{QStringLiteral("--no-video"), QStringLiteral("--overwrite"),
                                   QStringLiteral("--keyframes"), Path(track)} +
                       more + QStringList{Path(clip)});
    }
    /// Writes the part `frames` of the clip; its path.
    QString Part(const QString& clip, const QString& frames, const QString& part, const QStringList& more = {}) const
    {
        Reframe(QStringList{QStringLiteral("--frames"), frames, QStringLiteral("--output"), Path(part)} + more +
                QStringList{Path(clip)});
        return Path(part);
    }
    /// The error message of a join that is refused.
    QString Refused(const QString& clip, const QStringList& parts) const
    {
        return Reframe(QStringList{QStringLiteral("--join"), QStringLiteral("--no-video"),
                                   QStringLiteral("--keyframes"), Path(QStringLiteral("refused.json")), Path(clip)} +
                           parts,
                       1);
    }
};

const QStringList X264{QStringLiteral("-c:v"), QStringLiteral("libx264"), QStringLiteral("-g"), QStringLiteral("40")};

} // namespace

TEST_F(ReframePartsTest, JoinedPicturesGiveTheCropTrackOfTheWhole)
{
    struct Clip {
        QString name;
        QStringList codec;
        int lastFrame = Frames - 1;
    };
    // Closed and open groups of pictures, pictures without others that refer to them, and one group only.
    const std::vector<Clip> clips{
        {QStringLiteral("closed.mp4"), X264},
        {QStringLiteral("open.mkv"), X264 + QStringList{QStringLiteral("-x264-params"), QStringLiteral("open-gop=1")}},
        {QStringLiteral("long.mp4"),
         {QStringLiteral("-c:v"), QStringLiteral("libx264"), QStringLiteral("-g"), QStringLiteral("1000")}},
        {QStringLiteral("stream.ts"), X264},
        {QStringLiteral("old.avi"),
         {QStringLiteral("-c:v"), QStringLiteral("mpeg4"), QStringLiteral("-q:v"), QStringLiteral("3"),
          QStringLiteral("-g"), QStringLiteral("25")},
         Frames}, // its header counts one more
    };
    for (const Clip& clip : clips) {
        SCOPED_TRACE(clip.name.toStdString());
        MakeScenes(clip.name, clip.codec);
        Analyse(clip.name, QStringLiteral("whole.json"));
        // In any order; a border within the half second after another, one at the cut, and one anywhere.
        const QStringList parts{
            Part(clip.name, QStringLiteral("70-123"), QStringLiteral("c.pictures")),
            Part(clip.name, QStringLiteral("124-%1").arg(clip.lastFrame), QStringLiteral("d.pictures")),
            Part(clip.name, QStringLiteral("0-63"), QStringLiteral("a.pictures")),
            Part(clip.name, QStringLiteral("64-69"), QStringLiteral("b.pictures"))};
        Reframe(QStringList{QStringLiteral("--join"), QStringLiteral("--no-video"), QStringLiteral("--overwrite"),
                            QStringLiteral("--keyframes"), Path(QStringLiteral("joined.json")), Path(clip.name)} +
                parts);
        const QByteArray whole = Content(QStringLiteral("whole.json"));
        EXPECT_FALSE(whole.isEmpty());
        EXPECT_TRUE(whole == Content(QStringLiteral("joined.json")));
        // The crops move, so that equal tracks mean something.
        EXPECT_GT(whole.count("],"), Frames / 2);
        ASSERT_TRUE(QFile::remove(Path(QStringLiteral("joined.json"))));
        for (const QString& part : parts) {
            ASSERT_TRUE(QFile::remove(part));
        }
    }
}

TEST_F(ReframePartsTest, JoinedVideosShowEachFrameOnceWithTheSoundInStep)
{
    const QString clip = QStringLiteral("clip.mp4");
    MakeNumbers(clip);
    // All of the picture, so that the numbers can be read.
    QByteArray track = "frame,x,y,w,h\n";
    for (int frame = 0; frame < Frames; ++frame) {
        track += QByteArray::number(frame) + ",0,0,1,1\n";
    }
    QFile file(Path(QStringLiteral("track.csv")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(track);
    file.close();
    const QStringList apply{QStringLiteral("--apply"), file.fileName(), QStringLiteral("--aspect"),
                            QStringLiteral("16:9")};
    QStringList parts;
    for (const QString& part : {QStringLiteral("3/3"), QStringLiteral("1/3"), QStringLiteral("2/3")}) {
        parts += Part(clip, part, QStringLiteral("part%1.mp4").arg(parts.size()), apply);
    }
    const auto render = [&](const QString& name, const QStringList& inputs, const QStringList& more = {}) {
        Reframe(apply + more + QStringList{QStringLiteral("--output"), Path(name)} + inputs);
    };
    render(QStringLiteral("whole.mp4"), {Path(clip)});
    render(QStringLiteral("joined.mp4"), QStringList{Path(clip)} + parts, {QStringLiteral("--join")});

    std::vector<int> expected(Frames);
    std::iota(expected.begin(), expected.end(), 0);
    EXPECT_EQ(Numbers(Path(QStringLiteral("joined.mp4"))), expected);
    const std::vector<double> whole = SoundTimes(Path(QStringLiteral("whole.mp4")));
    const std::vector<double> joined = SoundTimes(Path(QStringLiteral("joined.mp4")));
    ASSERT_GT(whole.size(), 8U);
    EXPECT_EQ(joined, whole);
    // The same run with --if-needed finds the joined video up to date.
    const ReframeRun again(apply + QStringList{QStringLiteral("--cache"), QStringLiteral("none"),
                                               QStringLiteral("--models"), QStringLiteral("none"),
                                               QStringLiteral("--if-needed"), QStringLiteral("--output"),
                                               Path(QStringLiteral("joined.mp4")), Path(clip)});
    EXPECT_TRUE(again.standardOutput.contains(QLatin1String("skipped"))) << again.standardOutput.toStdString();
}

TEST_F(ReframePartsTest, PicturesAreMadeAgainOnlyForAnotherPart)
{
    const QString clip = QStringLiteral("clip.mp4");
    MadeVideo::Recipe recipe;
    Make(clip, recipe, X264);
    const QString part = QStringLiteral("part.pictures");
    const auto run = [&](const QString& frames) {
        return ReframeRun({QStringLiteral("--if-needed"), QStringLiteral("--frames"), frames,
                           QStringLiteral("--output"), Path(part), Path(clip)})
            .standardOutput;
    };
    run(QStringLiteral("1/2"));
    const QByteArray first = Content(part);
    EXPECT_FALSE(first.isEmpty());
    EXPECT_TRUE(run(QStringLiteral("1/2")).contains(QLatin1String("skipped")));
    EXPECT_FALSE(run(QStringLiteral("2/2")).contains(QLatin1String("skipped")));
    EXPECT_NE(Content(part), first);
    EXPECT_FALSE(QFile::exists(Path(QStringLiteral("part (2).pictures"))));
}

TEST_F(ReframePartsTest, VideosJoinedFromPartsOfAQualityAreTheWholeVideo)
{
    // Four seconds a scene, so that scenes, parts and segments of ten seconds end at different frames.
    const QString clip = QStringLiteral("clip.mp4");
    MadeVideo::Recipe recipe;
    recipe.size = QSize(320, 180);
    recipe.rate = QStringLiteral("5");
    recipe.frames = 210;
    recipe.draw = [](int number) { return DrawScene(number % 40 + 50); };
    Make(clip, recipe, X264);
    Analyse(clip, QStringLiteral("track.json"));
    for (const QString& codec : {QStringLiteral("h264"), QStringLiteral("hevc"), QStringLiteral("av1")}) {
        SCOPED_TRACE(codec.toStdString());
        const QStringList apply{QStringLiteral("--apply"),    Path(QStringLiteral("track.json")),
                                QStringLiteral("--codec"),    codec,
                                QStringLiteral("--quality"),  QStringLiteral("60"),
                                QStringLiteral("--overwrite")};
        const QStringList parts{Part(clip, QStringLiteral("1/3"), QStringLiteral("a.mp4"), apply),
                                Part(clip, QStringLiteral("2/3"), QStringLiteral("b.mp4"), apply),
                                Part(clip, QStringLiteral("3/3"), QStringLiteral("c.mp4"), apply)};
        // Parts begin at segments of 50 frames, the last one of which has 10.
        EXPECT_EQ(Pictures(parts[0]).size(), 50U);
        EXPECT_EQ(Pictures(parts[1]).size(), 50U);
        EXPECT_EQ(Pictures(parts[2]).size(), 110U);
        Reframe(apply + QStringList{QStringLiteral("--output"), Path(QStringLiteral("whole.mp4")), Path(clip)});
        Reframe(apply +
                QStringList{QStringLiteral("--join"), QStringLiteral("--output"), Path(QStringLiteral("joined.mp4")),
                            Path(clip)} +
                parts);
        const QByteArray whole = Packets(QStringLiteral("whole.mp4"));
        EXPECT_EQ(whole.count('\n'), 211);
        EXPECT_EQ(Packets(QStringLiteral("joined.mp4")), whole);
    }
}

TEST_F(ReframePartsTest, PartsThatDoNotMakeAWholeAreRefused)
{
    const QString clip = QStringLiteral("clip.mp4");
    MakeScenes(clip, X264);
    const QString first = Part(clip, QStringLiteral("0-74"), QStringLiteral("first.pictures"));
    const QString last = Part(clip, QStringLiteral("75-149"), QStringLiteral("last.pictures"));
    const QString middle = Part(clip, QStringLiteral("70-99"), QStringLiteral("middle.pictures"));
    EXPECT_TRUE(Refused(clip, {first}).contains(QLatin1String("the frames 75 to 149 are missing")));
    EXPECT_TRUE(Refused(clip, {last}).contains(QLatin1String("the frames 0 to 74 are missing")));
    EXPECT_TRUE(Refused(clip, {last, middle, first}).contains(QLatin1String("both have the frames 70 to 74")));
    EXPECT_TRUE(Refused(clip, {first, Path(clip)}).contains(QLatin1String("it is no part that --frames wrote")));
    MakeNumbers(QStringLiteral("other.mp4"));
    EXPECT_TRUE(Refused(QStringLiteral("other.mp4"), {first, last}).contains(QLatin1String("of another video")));
    EXPECT_FALSE(QFileInfo::exists(Path(QStringLiteral("refused.json"))));

    const QString track = Path(QStringLiteral("track.json"));
    Analyse(clip, QStringLiteral("track.json"));
    const QStringList apply{QStringLiteral("--apply"), track};
    const QString video = Part(clip, QStringLiteral("1/2"), QStringLiteral("one.mp4"), apply);
    const QString other = Part(clip, QStringLiteral("2/2"), QStringLiteral("two.mp4"),
                               apply + QStringList{QStringLiteral("--codec"), QStringLiteral("h264"),
                                                   QStringLiteral("--quality"), QStringLiteral("30")});
    EXPECT_TRUE(Refused(clip, {video, last}).contains(QLatin1String("holds pictures")));
    const QString message = Reframe(apply + QStringList{QStringLiteral("--join"), QStringLiteral("--output"),
                                                        Path(QStringLiteral("no.mp4")), Path(clip), video, other},
                                    1);
    EXPECT_TRUE(message.contains(QLatin1String("it was made with other settings"))) << message.toStdString();
    EXPECT_FALSE(QFileInfo::exists(Path(QStringLiteral("no.mp4"))));
    EXPECT_TRUE(Reframe({QStringLiteral("--frames"), QStringLiteral("100-150"), Path(clip)}, 1)
                    .contains(QLatin1String("its last frame is 149")));
}

TEST_F(ReframePartsTest, DamagedPicturesAreRefused)
{
    const QString clip = QStringLiteral("clip.mp4");
    MakeScenes(clip, X264);
    const QString first = Part(clip, QStringLiteral("0-74"), QStringLiteral("first.pictures"));
    const QString last = Part(clip, QStringLiteral("75-149"), QStringLiteral("last.pictures"));
    QFile file(last);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    const QString message = QStringLiteral("last.pictures is damaged");
    for (const qint64 place : {file.size() / 2, file.size() / 3}) {
        ASSERT_TRUE(file.seek(place));
        ASSERT_EQ(file.write(QByteArray(64, '\x55')), 64);
        ASSERT_TRUE(file.flush());
        const QString refused = Refused(clip, {first, last});
        EXPECT_TRUE(refused.contains(message)) << refused.toStdString();
        EXPECT_EQ(refused.trimmed().count(QLatin1Char('\n')), 0) << refused.toStdString();
    }
    ASSERT_TRUE(file.resize(file.size() / 2));
    EXPECT_TRUE(Refused(clip, {first, last}).contains(message));
}
