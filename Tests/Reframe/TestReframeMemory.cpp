#include <Tests/Support/MadeVideo.h>

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>

#include <vector>

namespace
{

constexpr qint64 MegaByte = 1024 * 1024;
constexpr int SidePx = 8192;
constexpr qint64 ReferencePictures = 4;
// The program's code, its libraries, and everything that does not depend on the size of the pictures.
constexpr qint64 ProgramBytes = 100 * MegaByte;

struct Outcome {
    int exitStatus = -1;
    qint64 peakBytes = 0;
};

Outcome Measure(const QStringList& arguments)
{
    std::vector<QByteArray> words{REFRAME_PROGRAM, "--quiet"};
    for (const QString& argument : arguments) {
        words.push_back(argument.toLocal8Bit());
    }
    std::vector<char*> pointers;
    for (QByteArray& word : words) {
        pointers.push_back(word.data());
    }
    pointers.push_back(nullptr);
    Outcome run;
    pid_t child = 0;
    if (posix_spawn(&child, REFRAME_PROGRAM, nullptr, nullptr, pointers.data(), environ) != 0) {
        return run;
    }
    int status = 0;
    rusage usage{};
    if (wait4(child, &status, 0, &usage) == child && WIFEXITED(status)) {
        run.exitStatus = WEXITSTATUS(status);
    }
    run.peakBytes = usage.ru_maxrss * 1024;
    return run;
}

class ReframeMemory : public testing::Test
{
protected:
    QString Path(const char* name) const { return m_folder.filePath(QLatin1String(name)); }

    bool MakeLargeVideo(const QString& path, int frames) const
    {
        const QString arguments =
            QStringLiteral("-f lavfi -i testsrc2=size=%1x%1:rate=25 -frames:v %2 -c:v libx264 -preset ultrafast "
                           "-refs %3 -bf 2 -threads 1 -pix_fmt yuv420p")
                .arg(QString::number(SidePx), QString::number(frames), QString::number(ReferencePictures));
        return MadeVideo::RunFfmpeg(arguments.split(QLatin1Char(' ')) << path);
    }

    static qint64 DecoderBytes() { return (ReferencePictures + 2) * 2 * SidePx * SidePx; }

private:
    QTemporaryDir m_folder;
};

} // namespace

TEST_F(ReframeMemory, AnalysisOfTheLargestPicturesStaysWithinItsBound)
{
    const QString video = Path("large.mp4");
    ASSERT_TRUE(MakeLargeVideo(video, 32));

    const Outcome run = Measure({QStringLiteral("--no-video"), video});
    EXPECT_EQ(run.exitStatus, 0);
    EXPECT_GT(run.peakBytes, ReferencePictures * SidePx * SidePx * 3 / 2);
    EXPECT_LT(run.peakBytes / MegaByte, (ProgramBytes + DecoderBytes()) / MegaByte);
}

TEST_F(ReframeMemory, ExportOfTheLargestPicturesStaysWithinItsBound)
{
    const QString video = Path("large.mp4");
    ASSERT_TRUE(MakeLargeVideo(video, 12));
    QFile track(Path("track.csv"));
    ASSERT_TRUE(track.open(QIODevice::WriteOnly));
    QByteArray rows("frame,x,y,w,h\n");
    for (int frame = 0; frame < 12; ++frame) {
        rows += QByteArray::number(frame) + ",0.2,0,0.5625,1\n";
    }
    ASSERT_EQ(track.write(rows), rows.size());
    track.close();

    const Outcome run =
        Measure({QStringLiteral("--apply"), track.fileName(), QStringLiteral("--output"), Path("result.mp4"), video});
    EXPECT_EQ(run.exitStatus, 0);
    constexpr qint64 encoderBytesPerPixel = 18 + 8;
    constexpr qint64 resultPixels = qint64{SidePx} * SidePx * 9 / 16;
    EXPECT_LT(run.peakBytes / MegaByte,
              (ProgramBytes + DecoderBytes() + encoderBytesPerPixel * resultPixels) / MegaByte);
}
