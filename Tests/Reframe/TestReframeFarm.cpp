#include <Tests/Reframe/ReframeRun.h>
#include <Tests/Support/MadeVideo.h>

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <fstream>

namespace
{

class ReframeFarmTest : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(QDir(m_folder.path()).mkpath(QStringLiteral("in/sub")));
        ASSERT_TRUE(QDir(m_folder.path()).mkpath(QStringLiteral("out")));
        MakeClip(QStringLiteral("in/a.mp4"), 40);
    }
    QString Path(const QString& name) const { return m_folder.filePath(name); }

    void MakeClip(const QString& name, int frames) const
    {
        MadeVideo::Recipe recipe;
        recipe.frames = frames;
        recipe.output = QStringList{QStringLiteral("-c:v"), QStringLiteral("libx264"), QStringLiteral("-pix_fmt"),
                                    QStringLiteral("yuv420p")};
        ASSERT_TRUE(MadeVideo::Make(Path(name), recipe));
    }
    void WriteFile(const QString& name, const QByteArray& content) const
    {
        QFile file(Path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(content), content.size());
    }
    QByteArray Content(const QString& name) const
    {
        QFile file(Path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    QStringList Results() const { return QDir(Path(QStringLiteral("out"))).entryList(QDir::Files, QDir::Name); }

    /// What the program prints when it writes crop tracks of the inputs only.
    QString Reframe(const QStringList& arguments, int exitStatus = 0) const
    {
        const ReframeRun run(
            QStringList{QStringLiteral("--no-video"), QStringLiteral("--keyframes"), Path(QStringLiteral("out"))} +
            arguments);
        EXPECT_EQ(run.exitStatus, exitStatus) << run.standardError.toStdString();
        return run.standardOutput;
    }

    const QString m_track = QStringLiteral("out/a-AutoReframe-9 16.json");
    QTemporaryDir m_folder;
};

} // namespace

TEST_F(ReframeFarmTest, AFolderIsTheVideosInItWithoutResults)
{
    MakeClip(QStringLiteral("in/sub/b.mp4"), 40);
    WriteFile(QStringLiteral("in/notes.txt"), "no video");
    WriteFile(QStringLiteral("in/a-AutoReframe-9 16.mp4"), "a result");
    WriteFile(QStringLiteral("in/a-AutoReframe-9 16 (2).mp4"), "a result");
    Reframe({Path(QStringLiteral("in"))});
    EXPECT_EQ(Results(), QStringList{QStringLiteral("a-AutoReframe-9 16.json")});
    Reframe({QStringLiteral("--recursive"), QStringLiteral("--overwrite"), Path(QStringLiteral("in"))});
    EXPECT_EQ(Results(),
              QStringList({QStringLiteral("a-AutoReframe-9 16.json"), QStringLiteral("b-AutoReframe-9 16.json")}));
}

TEST_F(ReframeFarmTest, AFolderWithoutVideosIsReported)
{
    const QString folder = Path(QStringLiteral("out"));
    const ReframeRun run({QStringLiteral("--no-video"), folder});
    EXPECT_EQ(run.exitStatus, 1);
    EXPECT_EQ(run.standardError, QStringLiteral("Cannot reframe %1: there is no video in this folder.\n").arg(folder));
}

#ifndef Q_OS_WIN
TEST_F(ReframeFarmTest, AVideoWhoseNameQtCannotHoldIsReported)
{
    // Qt's lists of a folder leave it out.
    const std::string in = Path(QStringLiteral("in")).toStdString();
    const std::array<std::string, 4> files{in + "/bad\xff.mp4", in + "/sub/b\xfe.mp4", in + "/bad\xff.txt",
                                           in + "/bad\xff-AutoReframe-9 16.mp4"};
    for (const std::string& file : files) {
        std::ofstream(file) << "a file";
    }
    std::filesystem::create_directory(in + "/folder\xff.mp4");
    const ReframeRun run({QStringLiteral("--no-video"), Path(QStringLiteral("in"))});
    EXPECT_EQ(run.exitStatus, 1);
    const QString message = QStringLiteral("Cannot open %1/%2: its name is not valid UTF-8; rename it.\n");
    const QString folder = Path(QStringLiteral("in"));
    EXPECT_EQ(run.standardError, message.arg(folder, QStringLiteral("bad\uFFFD.mp4")));
    EXPECT_TRUE(run.standardOutput.contains(QLatin1String("a.mp4")));
    const ReframeRun all({QStringLiteral("--no-video"), QStringLiteral("--recursive"), Path(QStringLiteral("in"))});
    EXPECT_EQ(all.standardError, message.arg(folder, QStringLiteral("bad\uFFFD.mp4")) +
                                     message.arg(folder, QStringLiteral("sub/b\uFFFD.mp4")));
    for (const std::string& file : files) {
        std::filesystem::remove(file); // Qt cannot
    }
    std::filesystem::remove(in + "/folder\xff.mp4");
}
#endif

TEST_F(ReframeFarmTest, InputsComeFromAFile)
{
    WriteFile(QStringLiteral("list"), Path(QStringLiteral("in/a.mp4")).toUtf8() + "\r\n\n");
    Reframe({QStringLiteral("--inputs"), Path(QStringLiteral("list"))});
    EXPECT_EQ(Results(), QStringList{QStringLiteral("a-AutoReframe-9 16.json")});
    Reframe({QStringLiteral("--inputs"), Path(QStringLiteral("missing"))}, 2);
}

TEST_F(ReframeFarmTest, TheStatusFileHasEachEventAndTheExitStatus)
{
    const QString out = Reframe({QStringLiteral("--quiet"), QStringLiteral("--status"), Path(QStringLiteral("status")),
                                 Path(QStringLiteral("in/a.mp4")), Path(QStringLiteral("missing.mp4"))},
                                1);
    EXPECT_EQ(out, QString());
    QStringList events;
    QJsonObject last;
    for (const QByteArray& line : Content(QStringLiteral("status")).trimmed().split('\n')) {
        last = QJsonDocument::fromJson(line).object();
        const QString event = last.value(QStringLiteral("event")).toString();
        if (events.isEmpty() || events.last() != event) {
            events += event;
        }
    }
    EXPECT_EQ(events, QStringList({QStringLiteral("progress"), QStringLiteral("done"), QStringLiteral("error"),
                                   QStringLiteral("end")}));
    EXPECT_EQ(last.value(QStringLiteral("exit_status")).toInt(), 1);
    const QString clip = Path(QStringLiteral("in/a.mp4"));
    const qint64 bytes = QFileInfo(clip).size();
    Reframe({QStringLiteral("--status"), clip, clip}, 2);
    EXPECT_EQ(QFileInfo(clip).size(), bytes);
    Reframe({QStringLiteral("--status"), Path(QStringLiteral("none/status")), Path(QStringLiteral("in/a.mp4"))}, 1);
}

TEST_F(ReframeFarmTest, OnlyWhatIsNotUpToDateIsDone)
{
    const QStringList arguments{QStringLiteral("--if-needed"), Path(QStringLiteral("in/a.mp4"))};
    const QString skipped = QStringLiteral("skipped");
    EXPECT_FALSE(Reframe(arguments).contains(skipped));
    const QByteArray first = Content(m_track);
    EXPECT_TRUE(Reframe(arguments).contains(skipped));
    EXPECT_EQ(Content(m_track), first);
    // Other settings: the same file is replaced.
    EXPECT_FALSE(Reframe(arguments + QStringList{QStringLiteral("--speed"), QStringLiteral("slow")}).contains(skipped));
    EXPECT_NE(Content(m_track), first);
    EXPECT_EQ(Results().size(), 1);
    // Another input of this name: what belongs to the former one stays.
    const QByteArray second = Content(m_track);
    MakeClip(QStringLiteral("in/a.mp4"), 50);
    EXPECT_FALSE(Reframe(arguments).contains(skipped));
    EXPECT_EQ(Content(m_track), second);
    EXPECT_EQ(Results().size(), 2);
}

TEST_F(ReframeFarmTest, FilesThatStoreNoSettingsAreReplacedWithThoseThatDo)
{
    const QString list = QStringLiteral("out/a.mlt");
    const QStringList arguments{QStringLiteral("--if-needed"), QStringLiteral("--edit-list"), Path(list),
                                Path(QStringLiteral("in/a.mp4"))};
    Reframe(arguments);
    const QByteArray first = Content(list);
    EXPECT_TRUE(first.startsWith("<?xml"));
    Reframe(arguments + QStringList{QStringLiteral("--size"), QStringLiteral("100p")});
    EXPECT_NE(Content(list), first);
    EXPECT_EQ(Results().size(), 2);
}

TEST_F(ReframeFarmTest, AFileOfSomebodyElseStays)
{
    const QString list = QStringLiteral("out/a.mlt");
    const QStringList slow{QStringLiteral("--if-needed"), QStringLiteral("--speed"), QStringLiteral("slow"),
                           Path(QStringLiteral("in/a.mp4"))};
    const QStringList arguments{QStringLiteral("--if-needed"), QStringLiteral("--edit-list"), Path(list),
                                Path(QStringLiteral("in/a.mp4"))};
    const QByteArray content = "a file of somebody else";
    WriteFile(list, content);
    // The results that lie beside it are newer, and those of a run without edit lists.
    Reframe(slow);
    for (const char* const speed : {"fast", "auto"}) {
        Reframe(arguments + QStringList{QStringLiteral("--speed"), QLatin1String(speed)});
        EXPECT_EQ(Content(list), content) << speed;
        EXPECT_TRUE(Content(QStringLiteral("out/a (2).mlt")).startsWith("<?xml")) << speed;
    }
}

TEST_F(ReframeFarmTest, TheFilesOfARunHaveTheSameNumber)
{
    const QString list = QStringLiteral("out/a.mlt");
    const QStringList arguments{QStringLiteral("--if-needed"), QStringLiteral("--edit-list"), Path(list),
                                Path(QStringLiteral("in/a.mp4"))};
    WriteFile(list, "a file of somebody else");
    const QStringList expected{QStringLiteral("a (2).mlt"), QStringLiteral("a-AutoReframe-9 16 (2).json"),
                               QStringLiteral("a.mlt")};
    Reframe(arguments);
    EXPECT_EQ(Results(), expected);
    EXPECT_TRUE(Reframe(arguments).contains(QLatin1String("skipped")));
    Reframe(arguments + QStringList{QStringLiteral("--speed"), QStringLiteral("slow")});
    EXPECT_EQ(Results(), expected);
    EXPECT_EQ(Content(list), "a file of somebody else");
}

TEST_F(ReframeFarmTest, AFileThatWasChangedSinceItWasWrittenStays)
{
    const QString list = QStringLiteral("out/a.mlt");
    const QStringList arguments{QStringLiteral("--if-needed"), QStringLiteral("--edit-list"), Path(list),
                                Path(QStringLiteral("in/a.mp4"))};
    Reframe(arguments);
    EXPECT_EQ(Results().size(), 2);
    WriteFile(list, "changed by a person");
    QFile file(Path(list));
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    ASSERT_TRUE(file.setFileTime(QDateTime::currentDateTime().addSecs(2), QFileDevice::FileModificationTime));
    file.close();
    Reframe(arguments + QStringList{QStringLiteral("--speed"), QStringLiteral("slow")});
    EXPECT_EQ(Content(list), "changed by a person");
    EXPECT_TRUE(Content(QStringLiteral("out/a (2).mlt")).startsWith("<?xml"));
}

TEST_F(ReframeFarmTest, ATrackIsWrittenAfterTheFilesThatStoreNoSettings)
{
    // Killed in between, the program would otherwise find files of other settings up to date.
    const ReframeRun run({QStringLiteral("--no-video"), QStringLiteral("--keyframes"), Path(QStringLiteral("k.json")),
                          QStringLiteral("--edit-list"), Path(QStringLiteral("a.mlt")), QStringLiteral("--preview"),
                          Path(QStringLiteral("a.png")), QStringLiteral("--report"), Path(QStringLiteral("a.html")),
                          Path(QStringLiteral("in/a.mp4"))});
    ASSERT_EQ(run.exitStatus, 0) << run.standardError.toStdString();
    EXPECT_TRUE(run.standardOutput.trimmed().endsWith(Path(QStringLiteral("k.json"))))
        << run.standardOutput.toStdString();
}

TEST_F(ReframeFarmTest, ResultsOfInputsWithTheSameNameAreFoundAgain)
{
    MakeClip(QStringLiteral("in/sub/a.mp4"), 50);
    const QStringList arguments{QStringLiteral("--if-needed"), QStringLiteral("--recursive"),
                                Path(QStringLiteral("in"))};
    Reframe(arguments);
    EXPECT_EQ(Results().size(), 2);
    EXPECT_EQ(Reframe(arguments).count(QStringLiteral("skipped")), 2);
    EXPECT_EQ(Results().size(), 2);
    Reframe(arguments + QStringList{QStringLiteral("--speed"), QStringLiteral("slow")});
    EXPECT_EQ(Results().size(), 2);
}

TEST_F(ReframeFarmTest, AVideoKnowsWhatItWasMadeOf)
{
    const QStringList arguments{QStringLiteral("--if-needed"), QStringLiteral("--output"), Path(QStringLiteral("out")),
                                Path(QStringLiteral("in/a.mp4"))};
    const QString video = QStringLiteral("out/a-AutoReframe-9 16.mp4");
    WriteFile(video, "a file of somebody else");
    const ReframeRun first(arguments);
    ASSERT_EQ(first.exitStatus, 0) << first.standardError.toStdString();
    EXPECT_EQ(Content(video), "a file of somebody else");
    EXPECT_EQ(Results().size(), 2);
    ASSERT_TRUE(QFile::remove(Path(video)));
    ASSERT_EQ(ReframeRun(arguments).exitStatus, 0);
    const QByteArray content = Content(video);
    const ReframeRun again(arguments);
    EXPECT_EQ(again.exitStatus, 0);
    EXPECT_TRUE(again.standardOutput.contains(QLatin1String("skipped"))) << again.standardOutput.toStdString();
    EXPECT_EQ(Content(video), content);
    ASSERT_TRUE(QFile::rename(Path(video), Path(QStringLiteral("out/a.m4v"))));
    const ReframeRun renamed({arguments.at(0), arguments.at(1), Path(QStringLiteral("out/a.m4v")), arguments.last()});
    EXPECT_TRUE(renamed.standardOutput.contains(QLatin1String("skipped"))) << renamed.standardOutput.toStdString();
}
