#include <Apps/CropTracks/CropTrackFile.h>
#include <Tests/Support/MadeVideo.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <csignal>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/types.h>
#include <sys/wait.h>
#include <unistd.h>

namespace
{

constexpr int Frames = 40;
// See InterruptedReframe.cpp. The file is opened for its facts and its pictures, read for the key of the results, and
// read again for the key of the record when the analysis starts; its part is created to try the folder, created to
// render, and opened by the writer.
const QString AnalysisStarts = QStringLiteral("open clip.mp4 3");
const QString RenderStarts = QStringLiteral("create .part 3");
const QString Video = QStringLiteral("clip-AutoReframe-9 16.mp4");

struct Ended {
    int exitStatus = -1; ///< -1: it was ended by a signal or did not end
    QString output;
    QString errors;
};

class ReframeInterruptTest : public testing::Test
{
protected:
    QString Path(const QString& name) const { return m_folder.filePath(name); }

    QString MakeClip(const QString& name, int frames = Frames) const
    {
        MadeVideo::Recipe recipe;
        recipe.frames = frames;
        recipe.output = QStringList{QStringLiteral("-c:v"), QStringLiteral("libx264"), QStringLiteral("-pix_fmt"),
                                    QStringLiteral("yuv420p")};
        EXPECT_TRUE(MadeVideo::Make(Path(name), recipe));
        return Path(name);
    }

    QString MakeTrack() const
    {
        CropTrack track;
        track.aspect = QSize(9, 16);
        for (int frame = 0; frame < Frames; ++frame) {
            track.crops.append(IKxAutoReframeResult(frame, QRectF(0.3, 0.0, 0.3375, 1.0)));
        }
        QFile file(Path(QStringLiteral("track.json")));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(CropTrackFile::Format(track, file.fileName()));
        return file.fileName();
    }

    QStringList Files() const
    {
        return QDir(m_folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
    }

    static Ended End(QProcess& process)
    {
        constexpr int longestMs = 120000;
        process.waitForFinished(longestMs);
        const bool isNormal = process.state() == QProcess::NotRunning && process.exitStatus() == QProcess::NormalExit;
        return {isNormal ? process.exitCode() : -1, QString::fromUtf8(process.readAllStandardOutput()),
                QString::fromUtf8(process.readAllStandardError())};
    }

    /// Runs the program, which is interrupted at `place` (see InterruptedReframe.cpp).
    static Ended RunInterrupted(const QString& place, const QStringList& arguments)
    {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("INTERRUPT_AT"), place);
        process.setProcessEnvironment(environment);
        process.start(QStringLiteral(INTERRUPTED_REFRAME_PROGRAM), arguments);
        return End(process);
    }

    /// Starts the program and returns when it has stopped itself at `place`; SIGCONT resumes it.
    static void StartStopped(QProcess& process, const QString& place, const QStringList& arguments)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("INTERRUPT_AT"), place);
        environment.insert(QStringLiteral("INTERRUPT_BY"), QString::number(SIGSTOP));
        process.setProcessEnvironment(environment);
        process.start(QStringLiteral(INTERRUPTED_REFRAME_PROGRAM), arguments);
        ASSERT_TRUE(process.waitForStarted());
        siginfo_t state{};
        ASSERT_EQ(::waitid(P_PID, static_cast<id_t>(process.processId()), &state, WSTOPPED | WEXITED | WNOWAIT), 0);
        ASSERT_EQ(state.si_code, CLD_STOPPED) << process.readAllStandardError().toStdString();
    }

    static void Send(const QProcess& process, int number)
    {
        ASSERT_EQ(::kill(static_cast<pid_t>(process.processId()), number), 0);
    }

    QTemporaryDir m_folder;
};

} // namespace

TEST_F(ReframeInterruptTest, ASignalThatAsksToEndLeavesNothingBehind)
{
    // So long that it is not rendered before the signal is handled, however busy the machine is.
    const QString clip = MakeClip(QStringLiteral("clip.mp4"), 20 * Frames);
    const QStringList before = Files();
    for (const auto& [place, number] : {std::pair(AnalysisStarts, SIGINT), std::pair(RenderStarts, SIGINT),
                                        std::pair(RenderStarts, SIGTERM), std::pair(RenderStarts, SIGHUP)}) {
        QProcess process;
        StartStopped(process, place, {clip});
        Send(process, number);
        Send(process, SIGCONT);
        EXPECT_EQ(End(process).exitStatus, number == SIGTERM ? 143 : 130) << number;
        EXPECT_EQ(Files(), before) << place.toStdString() << ' ' << number;
    }
}

TEST_F(ReframeInterruptTest, AProcessThatIgnoresHangUpSurvivesItsTerminal)
{
    QProcess process;
    std::signal(SIGHUP, SIG_IGN);
    StartStopped(process, RenderStarts, {MakeClip(QStringLiteral("clip.mp4"))});
    std::signal(SIGHUP, SIG_DFL);
    Send(process, SIGHUP);
    Send(process, SIGCONT);
    EXPECT_EQ(End(process).exitStatus, 0);
    EXPECT_TRUE(QFile::exists(Path(Video)));
}

TEST_F(ReframeInterruptTest, TheNextRunRemovesThePartOfAKilledOne)
{
    const QString clip = MakeClip(QStringLiteral("clip.mp4"));
    QProcess killed;
    StartStopped(killed, RenderStarts, {clip});
    QProcess living;
    StartStopped(living, RenderStarts, {QStringLiteral("--output"), Path(QStringLiteral("second.mp4")), clip});
    EXPECT_EQ(Files().size(), 3) << "the clip and two parts";
    killed.kill();
    End(killed);
    EXPECT_EQ(Files().size(), 3);

    const Ended next = RunInterrupted({}, {QStringLiteral("--output"), Path(QStringLiteral("third.mp4")), clip});
    EXPECT_EQ(next.exitStatus, 0) << next.errors.toStdString();
    EXPECT_EQ(Files().size(), 3) << "the clip, the third video and the part of the second";
    Send(living, SIGCONT);
    EXPECT_EQ(End(living).exitStatus, 0);
    EXPECT_EQ(Files(),
              (QStringList{QStringLiteral("clip.mp4"), QStringLiteral("second.mp4"), QStringLiteral("third.mp4")}));
}

TEST_F(ReframeInterruptTest, AFullStandardOutputIsAnError)
{
    const QString clip = MakeClip(QStringLiteral("clip.mp4"));
    const QStringList before = Files();
    for (const QStringList& options :
         {QStringList(QStringLiteral("--json")), QStringList(QStringLiteral("--no-video"))}) {
        QProcess process;
        process.setStandardOutputFile(QStringLiteral("/dev/full"));
        process.start(QStringLiteral(REFRAME_PROGRAM), options + QStringList(clip));
        const Ended ended = End(process);
        EXPECT_EQ(ended.exitStatus, 1);
        EXPECT_EQ(ended.errors, QStringLiteral("Cannot write to standard output: the disk is full.\n"));
        EXPECT_EQ(Files(), before);
    }
    QProcess help;
    help.setStandardOutputFile(QStringLiteral("/dev/full"));
    help.start(QStringLiteral(REFRAME_PROGRAM), {QStringLiteral("--help")});
    EXPECT_EQ(End(help).exitStatus, 1);
}

TEST_F(ReframeInterruptTest, AReaderThatGoesAwayEndsTheProgramWithoutLeavingFiles)
{
    // So long that the video is not complete when the progress cannot be written.
    const QString clip = MakeClip(QStringLiteral("clip.mp4"), 20 * Frames);
    const QString pipe = Path(QStringLiteral("pipe"));
    ASSERT_EQ(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    const QStringList before = Files();
    const int reader = ::open(QFile::encodeName(pipe).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    ASSERT_GE(reader, 0);
    QProcess process;
    process.setStandardOutputFile(pipe);
    StartStopped(process, RenderStarts, {QStringLiteral("--json"), clip});
    ::close(reader);
    Send(process, SIGCONT);
    const Ended ended = End(process);
    EXPECT_EQ(ended.exitStatus, 1);
    EXPECT_EQ(ended.errors, QStringLiteral("Cannot write to standard output: its reader has gone.\n"));
    EXPECT_EQ(Files(), before);
}

TEST_F(ReframeInterruptTest, AFileBeyondThePermittedSizeIsAnErrorOfThatInput)
{
    const QString clip = MakeClip(QStringLiteral("clip.mp4"));
    const QStringList before = Files();
    QProcess process;
    process.start(QStringLiteral("sh"), {QStringLiteral("-c"), QStringLiteral("ulimit -f 4; exec \"$0\" \"$@\""),
                                         QStringLiteral(REFRAME_PROGRAM), clip});
    const Ended ended = End(process);
    EXPECT_EQ(ended.exitStatus, 1);
    EXPECT_TRUE(ended.errors.contains(QStringLiteral("the file would become too large"))) << ended.errors.toStdString();
    EXPECT_EQ(Files(), before);
}

TEST_F(ReframeInterruptTest, AVideoThatIsCompleteWhenTheSignalComesIsReported)
{
    const QString clip = MakeClip(QStringLiteral("clip.mp4"));
    const QString output = Path(QStringLiteral("out.mp4"));
    const Ended ended = RunInterrupted(QStringLiteral("rename out.mp4 1"), {QStringLiteral("--output"), output, clip});
    EXPECT_EQ(ended.exitStatus, 0) << ended.errors.toStdString();
    EXPECT_TRUE(ended.output.contains(output)) << ended.output.toStdString();
    EXPECT_TRUE(QFile::exists(output));
}

TEST_F(ReframeInterruptTest, WhenAnotherInputWouldFollowTheRunEndsAsInterrupted)
{
    const QString clip = MakeClip(QStringLiteral("clip.mp4"));
    const QString other = MakeClip(QStringLiteral("other.mp4"));
    const QString out = Path(QStringLiteral("out"));
    ASSERT_TRUE(QDir().mkdir(out));
    ASSERT_TRUE(QFile::rename(clip, Path(QStringLiteral("a.mp4"))));
    const Ended ended = RunInterrupted(QStringLiteral("open other.mp4 1"),
                                       {QStringLiteral("--output"), out, Path(QStringLiteral("a.mp4")), other});
    EXPECT_EQ(ended.exitStatus, 130) << ended.errors.toStdString();
    EXPECT_EQ(ended.errors, QStringLiteral("%1: interrupted.\n").arg(other));
    EXPECT_TRUE(ended.output.contains(QStringLiteral("a-AutoReframe-9 16.mp4"))) << ended.output.toStdString();
    EXPECT_EQ(QDir(out).entryList(QDir::Files | QDir::Hidden), QStringList(QStringLiteral("a-AutoReframe-9 16.mp4")));
}

TEST_F(ReframeInterruptTest, OpeningAndTheContactSheetCanBeInterrupted)
{
    const QString clip = MakeClip(QStringLiteral("clip.mp4"));
    const QStringList arguments{QStringLiteral("--no-video"), QStringLiteral("--apply"),         MakeTrack(),
                                QStringLiteral("--preview"),  Path(QStringLiteral("sheet.png")), clip};
    const QStringList before = Files();
    int count = 1;
    for (; count < 20; ++count) {
        const Ended ended = RunInterrupted(QStringLiteral("open clip.mp4 %1").arg(count), arguments);
        if (ended.exitStatus == 0) {
            break;
        }
        EXPECT_EQ(ended.exitStatus, 130) << ended.errors.toStdString();
        EXPECT_EQ(ended.errors, QStringLiteral("%1: interrupted.\n").arg(clip));
        EXPECT_EQ(Files(), before) << "interrupted at opening " << count;
    }
    EXPECT_GE(count, 3) << "opened for its facts and for the sheet";
    EXPECT_TRUE(QFile::exists(Path(QStringLiteral("sheet.png"))));
}

TEST_F(ReframeInterruptTest, RunningOutOfMemoryIsAnErrorOfThatInput)
{
    const QString clip = MakeClip(QStringLiteral("clip.mp4"));
    const Ended ended =
        RunInterrupted(QStringLiteral("memory track.json 1"), {QStringLiteral("--apply"), MakeTrack(), clip});
    EXPECT_EQ(ended.exitStatus, 1);
    EXPECT_EQ(ended.errors, QStringLiteral("Cannot reframe %1: memory ran out.\n").arg(clip));
}
