#include <Tests/Reframe/ReframeRun.h>

#include <KxMedia/Read/KxVideoReader.h>
#include <Tests/Support/MadeVideo.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <filesystem>

namespace
{

class ReframeProgramTest : public testing::Test
{
protected:
    QString Path(const char* name) const { return m_folder.filePath(QLatin1String(name)); }

    QString MakeClip(const char* name, int frames = 40, const QStringList& more = {}) const
    {
        MadeVideo::Recipe recipe;
        recipe.frames = frames;
        recipe.output = QStringList{QStringLiteral("-c:v"), QStringLiteral("libx264"), QStringLiteral("-pix_fmt"),
                                    QStringLiteral("yuv420p")} +
                        more;
        EXPECT_TRUE(MadeVideo::Make(Path(name), recipe));
        return Path(name);
    }

    QString MakeFile(const char* name, const QByteArray& content) const
    {
        QFile file(Path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        return file.fileName();
    }

    /// Everything in the folder, including hidden files.
    QStringList Files() const
    {
        return QDir(m_folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
    }

    /// One clear message on standard error that names the file, and nothing written.
    void ExpectRefused(const QString& input, const char* reason) const
    {
        const QStringList before = Files();
        const ReframeRun run({input});
        EXPECT_TRUE(run.ended);
        EXPECT_EQ(run.exitStatus, 1) << run.standardError.toStdString();
        EXPECT_EQ(run.standardError.count(QLatin1Char('\n')), 1) << run.standardError.toStdString();
        EXPECT_TRUE(run.standardError.contains(QFileInfo(input).fileName())) << run.standardError.toStdString();
        EXPECT_TRUE(run.standardError.contains(QLatin1String(reason), Qt::CaseInsensitive))
            << run.standardError.toStdString();
        EXPECT_EQ(Files(), before);
    }

    QTemporaryDir m_folder;
};

} // namespace

TEST_F(ReframeProgramTest, WritesBesideTheInputAndNeverOverExistingFiles)
{
    const QString clip = MakeClip("clip.mp4");
    for (const char* expected : {"clip-AutoReframe-9 16.mp4", "clip-AutoReframe-9 16 (2).mp4"}) {
        const ReframeRun run({clip});
        ASSERT_EQ(run.exitStatus, 0) << run.standardError.toStdString();
        EXPECT_TRUE(QFile::exists(Path(expected)));
        EXPECT_TRUE(run.standardOutput.contains(QLatin1String(expected))) << run.standardOutput.toStdString();
    }
    const ReframeRun run({QStringLiteral("--overwrite"), clip});
    ASSERT_EQ(run.exitStatus, 0);
    EXPECT_EQ(Files().size(), 3);
}

TEST_F(ReframeProgramTest, TheOutputHasTheAspectAndEveryFrame)
{
    const QString clip = MakeClip("clip.mp4");
    const ReframeRun run(
        {QStringLiteral("--aspect"), QStringLiteral("1:1"), QStringLiteral("--output"), Path("out.mp4"), clip});
    ASSERT_EQ(run.exitStatus, 0) << run.standardError.toStdString();
    const auto reader = KxVideoReader::Open(Path("out.mp4"), KxCancelToken());
    ASSERT_TRUE(reader) << reader.Message().toStdString();
    EXPECT_EQ((*reader)->Facts().video->resolution, QSize(96, 96));
    EXPECT_EQ((*reader)->Facts().video->frameCount, 40);
}

TEST_F(ReframeProgramTest, SeveralAspectRatiosGiveWhatEachAloneGives)
{
    const QString clip = MakeClip("clip.mp4");
    const auto track = [](const QString& folder, const QString& aspect) {
        QFile file(folder + QStringLiteral("/clip-AutoReframe-%1.json").arg(aspect));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << file.fileName().toStdString();
        return file.readAll();
    };
    const auto run = [&](const QString& folder, const char* aspects) {
        QDir().mkpath(folder);
        const ReframeRun done({QStringLiteral("--no-video"), QStringLiteral("--aspect"), QLatin1String(aspects),
                               QStringLiteral("--keyframes"), folder, clip});
        EXPECT_EQ(done.exitStatus, 0) << done.standardError.toStdString();
    };
    run(Path("together"), "9:16,1:1,21:9");
    for (const char* const aspect : {"9:16", "1:1", "21:9"}) {
        const QString name = QString::fromLatin1(aspect).replace(QLatin1Char(':'), QLatin1Char(' '));
        run(m_folder.filePath(name), aspect);
        EXPECT_EQ(track(Path("together"), name), track(m_folder.filePath(name), name)) << aspect;
    }
    EXPECT_NE(track(Path("together"), QStringLiteral("9 16")), track(Path("together"), QStringLiteral("1 1")));
}

TEST_F(ReframeProgramTest, WhatWasSeenIsKeptInTheNamedFolderAlone)
{
    const QString clip = MakeClip("clip.mp4");
    const QStringList options{QStringLiteral("--no-video"), QStringLiteral("--cache")};
    ASSERT_EQ(ReframeRun(options + QStringList{QStringLiteral("none"), clip}).exitStatus, 0);
    EXPECT_EQ(Files(), QStringList(QStringLiteral("clip.mp4")));
    ASSERT_EQ(ReframeRun(options + QStringList{Path("cache"), clip}).exitStatus, 0);
    EXPECT_EQ(QDir(Path("cache")).entryList({QStringLiteral("*.record")}, QDir::Files).size(), 1);
}

TEST_F(ReframeProgramTest, ACacheThatCannotBeWrittenIsOneWarning)
{
    const QString folder = MakeFile("file", "no folder") + QStringLiteral("/cache");
    const ReframeRun run({QStringLiteral("--no-video"), QStringLiteral("--cache"), folder, MakeClip("clip.mp4"),
                          MakeClip("other.mp4", 50)});
    EXPECT_EQ(run.exitStatus, 0);
    EXPECT_TRUE(run.standardError.startsWith(QStringLiteral("Warning: Cannot make the cache folder %1: ").arg(folder)))
        << run.standardError.toStdString();
    EXPECT_EQ(run.standardError.count(QLatin1Char('\n')), 1) << run.standardError.toStdString();
}

TEST_F(ReframeProgramTest, OneFailedInputDoesNotStopTheOthers)
{
    QDir(m_folder.path()).mkdir(QStringLiteral("out"));
    const ReframeRun run(
        {QStringLiteral("--output"), Path("out"), MakeClip("a.mp4"), Path("missing.mp4"), MakeClip("b.mp4")});
    EXPECT_EQ(run.exitStatus, 1);
    EXPECT_TRUE(run.standardError.contains(QStringLiteral("missing.mp4")));
    EXPECT_EQ(QDir(Path("out")).entryList(QDir::Files),
              (QStringList{QStringLiteral("a-AutoReframe-9 16.mp4"), QStringLiteral("b-AutoReframe-9 16.mp4")}));
}

TEST_F(ReframeProgramTest, JsonLinesReportProgressAndResult)
{
    const ReframeRun run({QStringLiteral("--json"), MakeClip("clip.mp4")});
    ASSERT_EQ(run.exitStatus, 0) << run.standardError.toStdString();
    QStringList events;
    QJsonObject done;
    for (const QString& line : run.standardOutput.split(QLatin1Char('\n'), Qt::SkipEmptyParts)) {
        const QJsonObject object = QJsonDocument::fromJson(line.toUtf8()).object();
        ASSERT_FALSE(object.isEmpty()) << line.toStdString();
        events += object.value(QStringLiteral("event")).toString();
        done = object;
    }
    EXPECT_TRUE(events.contains(QStringLiteral("progress")));
    EXPECT_EQ(events.last(), QStringLiteral("done"));
    EXPECT_EQ(done.value(QStringLiteral("output")).toString(), Path("clip-AutoReframe-9 16.mp4"));
    EXPECT_EQ(done.value(QStringLiteral("frames")).toInt(), 40);
    const QJsonArray shots = done.value(QStringLiteral("shots")).toArray();
    ASSERT_EQ(shots.size(), 1);
    EXPECT_EQ(shots.first().toObject().value(QStringLiteral("end")).toInt(), 40);
    const double confidence = shots.first().toObject().value(QStringLiteral("confidence")).toDouble(-1.0);
    EXPECT_TRUE(confidence >= 0.0 && confidence <= 1.0) << confidence;
    EXPECT_EQ(done.value(QStringLiteral("models")), QJsonValue(QStringLiteral("none")));
}

TEST_F(ReframeProgramTest, RefusesFilesOtherThanVideos)
{
    ExpectRefused(Path("missing.mp4"), "");
    QDir(m_folder.path()).mkdir(QStringLiteral("folder.mp4"));
    ExpectRefused(Path("folder.mp4"), "folder");
    ExpectRefused(MakeFile("empty.mp4", ""), "empty");
    ExpectRefused(MakeFile("text.mp4", QByteArray("Dear diary, this is no video.\n").repeated(100)), "");
    ExpectRefused(MakeFile("list.mp4", "#EXTM3U\n#EXT-X-TARGETDURATION:10\n#EXTINF:10,\nother.mp4\n#EXT-X-ENDLIST\n"),
                  "");
}

TEST_F(ReframeProgramTest, RefusesSoundOnlySinglePicturesAndTooShortOrTooSmallVideos)
{
    ASSERT_TRUE(MadeVideo::RunFfmpeg({QStringLiteral("-f"), QStringLiteral("lavfi"), QStringLiteral("-i"),
                                      QStringLiteral("sine=duration=1"), Path("sound.m4a")}));
    ExpectRefused(Path("sound.m4a"), "moving picture");
    ASSERT_TRUE(MadeVideo::Draw(1, QSize(160, 96)).save(Path("picture.png")));
    ExpectRefused(Path("picture.png"), "");
    ExpectRefused(MakeClip("short.mp4", 31), "too short (31 frames; 32 are needed)");
    ExpectRefused(MakeClip("frame.mp4", 1), "too short (1 frame; 32 are needed)");
    ASSERT_TRUE(MadeVideo::RunFfmpeg({QStringLiteral("-f"), QStringLiteral("lavfi"), QStringLiteral("-i"),
                                      QStringLiteral("testsrc=size=1x1:duration=2"), QStringLiteral("-pix_fmt"),
                                      QStringLiteral("gray"), QStringLiteral("-c:v"), QStringLiteral("ffv1"),
                                      Path("dot.mkv")}));
    ExpectRefused(Path("dot.mkv"), "1 x 1 pixels is too small");
}

TEST_F(ReframeProgramTest, RefusesASizeOfAnotherShapeBeforeTheAnalysis)
{
    const ReframeRun run(
        {QStringLiteral("--json"), QStringLiteral("--size"), QStringLiteral("100x100"), MakeClip("clip.mp4", 40)});
    EXPECT_EQ(run.exitStatus, 1);
    EXPECT_TRUE(run.standardError.contains(QStringLiteral("does not have the shape of the crop")))
        << run.standardError.toStdString();
    EXPECT_FALSE(run.standardOutput.contains(QStringLiteral("analyze"))) << run.standardOutput.toStdString();
}

TEST_F(ReframeProgramTest, RefusesTheAspectRatioOfTheSource)
{
    MadeVideo::Recipe recipe;
    recipe.size = QSize(160, 90);
    recipe.frames = 40;
    recipe.output = QStringList{QStringLiteral("-c:v"), QStringLiteral("libx264")};
    ASSERT_TRUE(MadeVideo::Make(Path("wide.mp4"), recipe));
    const ReframeRun run({QStringLiteral("--aspect"), QStringLiteral("16:9"), Path("wide.mp4")});
    EXPECT_EQ(run.exitStatus, 1);
    EXPECT_TRUE(run.standardError.contains(QStringLiteral("aspect ratio 16:9 already")))
        << run.standardError.toStdString();
}

TEST_F(ReframeProgramTest, ATruncatedVideoIsReframedAsFarAsItDecodesWithAWarning)
{
    const QString whole = MakeClip(
        "whole.mp4", 100,
        {QStringLiteral("-g"), QStringLiteral("10"), QStringLiteral("-movflags"), QStringLiteral("+faststart")});
    QFile file(whole);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    MakeFile("cut.mp4", file.read(file.size() * 6 / 10));
    const ReframeRun run({QStringLiteral("--output"), Path("out.mp4"), Path("cut.mp4")});
    EXPECT_EQ(run.exitStatus, 0) << run.standardError.toStdString();
    EXPECT_TRUE(run.standardError.contains(QStringLiteral("Warning: "))) << run.standardError.toStdString();
    EXPECT_TRUE(run.standardError.contains(QStringLiteral("cut.mp4")));
    const auto reader = KxVideoReader::Open(Path("out.mp4"), KxCancelToken());
    ASSERT_TRUE(reader) << reader.Message().toStdString();
    EXPECT_GE((*reader)->Facts().video->frameCount, 20);
    EXPECT_LT((*reader)->Facts().video->frameCount, 90);
}

TEST_F(ReframeProgramTest, ModelsThatCannotBeUsedAreAWarning)
{
    const QByteArray before = qgetenv("KX_MODELS");
    qputenv("KX_MODELS", "/no/such/folder");
    const ReframeRun run({QStringLiteral("--no-video"), MakeClip("clip.mp4", 40)});
    qputenv("KX_MODELS", before);
    EXPECT_EQ(run.exitStatus, 0) << run.standardError.toStdString();
    EXPECT_EQ(run.standardError,
              QStringLiteral("Warning: Cannot use the models in /no/such/folder: there is no such folder.\n"));
}

TEST_F(ReframeProgramTest, ATruncatedVideoWithoutAnIndexGivesAWarningToo)
{
    for (const char* suffix : {"mkv", "avi"}) {
        SCOPED_TRACE(suffix);
        const QString name = QStringLiteral("whole.%1").arg(QLatin1String(suffix));
        QFile file(MakeClip(qPrintable(name), 100,
                            {QStringLiteral("-g"), QStringLiteral("10"), QStringLiteral("-qp"), QStringLiteral("1")}));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        const QString cut = QStringLiteral("cut.%1").arg(QLatin1String(suffix));
        MakeFile(qPrintable(cut), file.read(file.size() * 6 / 10));
        const ReframeRun run(
            {QStringLiteral("--overwrite"), QStringLiteral("--output"), Path("out.mp4"), Path(qPrintable(cut))});
        EXPECT_EQ(run.exitStatus, 0) << run.standardError.toStdString();
        EXPECT_TRUE(run.standardError.contains(cut + QStringLiteral(" is damaged or incomplete: only ")))
            << run.standardError.toStdString();
        EXPECT_TRUE(run.standardError.contains(QStringLiteral(" of 100 frames"))) << run.standardError.toStdString();
    }
}

TEST_F(ReframeProgramTest, WrongUseIsStatusTwo)
{
    EXPECT_EQ(ReframeRun({}).exitStatus, 2);
    EXPECT_EQ(ReframeRun({QStringLiteral("--aspect"), QStringLiteral("0:1"), QStringLiteral("a.mp4")}).exitStatus, 2);
    EXPECT_EQ(ReframeRun({QStringLiteral("--help")}).exitStatus, 0);
}

TEST_F(ReframeProgramTest, AnOutputThatCannotBeWrittenIsNamed)
{
    const QString clip = MakeClip("clip.mp4");
    const ReframeRun run({QStringLiteral("--output"), Path("no/such/folder/out.mp4"), clip});
    EXPECT_EQ(run.exitStatus, 1);
    EXPECT_TRUE(run.standardError.contains(QStringLiteral("out.mp4"))) << run.standardError.toStdString();
    EXPECT_TRUE(run.standardError.contains(QStringLiteral("does not exist"))) << run.standardError.toStdString();
}

TEST_F(ReframeProgramTest, AnOutputThatCannotBeWrittenIsReportedBeforeTheAnalysis)
{
    const QString clip = MakeClip("clip.mp4");
    for (const auto& [option, suffix] : {std::pair("--output", "mp4"), std::pair("--keyframes", "json"),
                                         std::pair("--preview", "png"), std::pair("--report", "html")}) {
        const QString target = Path("no/such/folder/out.") + QLatin1String(suffix);
        const ReframeRun run({QStringLiteral("--json"), QLatin1String(option), target, clip});
        EXPECT_EQ(run.exitStatus, 1) << option;
        EXPECT_TRUE(run.standardError.contains(QStringLiteral("does not exist"))) << option;
        EXPECT_FALSE(run.standardOutput.contains(QStringLiteral("progress"))) << option;
    }
}

TEST_F(ReframeProgramTest, ARunNeverReplacesItsOwnOutput)
{
    for (const char* folder : {"one", "two", "out"}) {
        QDir(m_folder.path()).mkdir(QLatin1String(folder));
    }
    const QString one = MakeClip("one/clip.mp4");
    const QString two = MakeClip("two/clip.mp4");
    const QStringList both{QStringLiteral("clip-AutoReframe-9 16 (2).mp4"),
                           QStringLiteral("clip-AutoReframe-9 16.mp4")};
    for (const QStringList& more : {QStringList(), QStringList(QStringLiteral("--overwrite"))}) {
        const ReframeRun run(more + QStringList{QStringLiteral("--output"), Path("out"), one, two});
        EXPECT_EQ(run.exitStatus, 0) << run.standardError.toStdString();
        EXPECT_EQ(QDir(Path("out")).entryList(QDir::Files), both);
        QFile::remove(Path("out/clip-AutoReframe-9 16 (2).mp4"));
    }
}

TEST_F(ReframeProgramTest, TheInputItselfIsNeverReplaced)
{
    const QString clip = MakeClip("clip.mp4");
    const qint64 size = QFileInfo(clip).size();
    const ReframeRun run({QStringLiteral("--overwrite"), QStringLiteral("--output"), clip, clip});
    EXPECT_EQ(run.exitStatus, 1);
    EXPECT_TRUE(run.standardError.contains(QStringLiteral("it is one of the inputs")))
        << run.standardError.toStdString();
    EXPECT_EQ(QFileInfo(clip).size(), size);
}

TEST_F(ReframeProgramTest, AMissingInputDoesNotFailTheOthersWithOverwrite)
{
    const QString clip = MakeClip("clip.mp4");
    const ReframeRun run({QStringLiteral("--overwrite"), Path("missing.mp4"), clip});
    EXPECT_EQ(run.exitStatus, 1);
    EXPECT_EQ(run.standardError, QStringLiteral("Cannot open %1: there is no such file.\n").arg(Path("missing.mp4")));
    EXPECT_TRUE(QFile::exists(Path("clip-AutoReframe-9 16.mp4")));
}

TEST_F(ReframeProgramTest, ALinkToAnInputIsNotReplacedEither)
{
    const QString clip = MakeClip("clip.mp4");
    std::error_code error;
    std::filesystem::create_symlink(clip.toStdString(), Path("link.mp4").toStdString(), error);
    if (error) {
        GTEST_SKIP() << "no links can be made here: " << error.message();
    }
    const ReframeRun run({QStringLiteral("--overwrite"), QStringLiteral("--output"), Path("link.mp4"), clip});
    EXPECT_EQ(run.exitStatus, 1);
    EXPECT_TRUE(run.standardError.contains(QStringLiteral("it is one of the inputs")));
}

TEST_F(ReframeProgramTest, ATrackOfMoreFramesThanTheVideoIsRefused)
{
    const QString clip = MakeClip("clip.mp4");
    QByteArray content = "frame,x,y,w,h\n";
    for (int frame = 0; frame < 41; ++frame) {
        content += QByteArray::number(frame) + ",0.3,0,0.3,1\n";
    }
    const ReframeRun run({QStringLiteral("--apply"), MakeFile("track.csv", content), clip});
    EXPECT_EQ(run.exitStatus, 1);
    EXPECT_EQ(run.standardError,
              QStringLiteral("Cannot use track.csv: it holds more frames than the video, which has 40.\n"));
}

TEST_F(ReframeProgramTest, RealFootageIsReframed)
{
    const QString footage = QStringLiteral("/usr/share/doc/opencv-doc/examples/data/Megamind.avi");
    if (!QFile::exists(footage)) {
        GTEST_SKIP() << "the package opencv-doc is not installed";
    }
    const ReframeRun run(
        {QStringLiteral("--output"), m_folder.path(), QStringLiteral("--preview"), Path("sheet.png"), footage});
    ASSERT_EQ(run.exitStatus, 0) << run.standardError.toStdString();
    const auto source = KxVideoReader::Open(footage, KxCancelToken());
    const auto result = KxVideoReader::Open(Path("Megamind-AutoReframe-9 16.mp4"), KxCancelToken());
    ASSERT_TRUE(source);
    ASSERT_TRUE(result) << result.Message().toStdString();
    EXPECT_EQ((*result)->Facts().video->frameCount, (*source)->Facts().video->frameCount);
}
