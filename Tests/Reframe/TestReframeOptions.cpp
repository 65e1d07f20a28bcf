#include <Apps/Reframe/ReframeExit.h>
#include <Apps/Reframe/ReframeOptions.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTemporaryFile>

#include <gtest/gtest.h>

namespace
{

ReframeOptions::Parsed Parse(const QStringList& arguments)
{
    return ReframeOptions::Parse(QStringList(QStringLiteral("reframe")) + arguments);
}

QStringList Words(const char* line)
{
    return QString::fromLatin1(line).split(QLatin1Char(' '));
}

} // namespace

TEST(ReframeOptions, DefaultsWhenOnlyAnInputIsGiven)
{
    const auto parsed = Parse({QStringLiteral("clip.mp4")});
    ASSERT_TRUE(parsed.options);
    EXPECT_EQ(parsed.options->inputs, QStringList(QStringLiteral("clip.mp4")));
    EXPECT_EQ(parsed.options->aspects, QList<QSize>({QSize(9, 16)}));
    EXPECT_EQ(parsed.options->speedMode, 16);
    EXPECT_TRUE(parsed.options->writesVideo);
    EXPECT_FALSE(parsed.options->overwrites);
}

TEST(ReframeOptions, SpeedsBecomeTheNumbersOfTheAnalysis)
{
    EXPECT_EQ(Parse(Words("--speed fast a.mp4")).options->speedMode, 8);
    EXPECT_EQ(Parse(Words("--speed slow a.mp4")).options->speedMode, 24);
    EXPECT_EQ(Parse(Words("--speed auto a.mp4")).options->speedMode, 16);
    EXPECT_TRUE(Parse(Words("a.mp4")).options->followsSpeaker);
    EXPECT_TRUE(Parse(Words("--speaker auto a.mp4")).options->followsSpeaker);
    EXPECT_FALSE(Parse(Words("--speaker off a.mp4")).options->followsSpeaker);
}

TEST(ReframeOptions, AcceptsEveryPresetAndOtherWholeNumbers)
{
    for (const char* aspect : {"9:16", "1:1", "16:9", "4:3", "4:5", "21:9", "1080:1920"}) {
        const auto parsed = Parse({QStringLiteral("--aspect"), QLatin1String(aspect), QStringLiteral("a.mp4")});
        ASSERT_TRUE(parsed.options) << aspect;
        EXPECT_EQ(QStringLiteral("%1:%2").arg(QString::number(parsed.options->aspects.first().width()),
                                              QString::number(parsed.options->aspects.first().height())),
                  QLatin1String(aspect));
    }
}

TEST(ReframeOptions, SeveralAspectRatiosAreTakenOnceEach)
{
    const auto parsed = Parse(Words("--aspect 9:16,1:1,9:16,4:5 a.mp4"));
    ASSERT_TRUE(parsed.options);
    EXPECT_EQ(parsed.options->aspects, QList<QSize>({QSize(9, 16), QSize(1, 1), QSize(4, 5)}));
    EXPECT_FALSE(Parse(Words("--aspect 9:16,,1:1 a.mp4")).options);
    EXPECT_FALSE(Parse(Words("--aspect 9:16,1 a.mp4")).options);
}

TEST(ReframeOptions, RefusesAnInvalidAspectRatioAndQuotesIt)
{
    for (const char* aspect :
         {"9", "9:0", "0:16", "-9:16", "9:16:1", "nine:sixteen", "9.5:16", "9x16", "1:100", "99999:99999"}) {
        const auto parsed = Parse({QStringLiteral("--aspect"), QLatin1String(aspect), QStringLiteral("a.mp4")});
        EXPECT_FALSE(parsed.options) << aspect;
        EXPECT_EQ(parsed.exitStatus, ReframeExit::WrongUse);
        EXPECT_TRUE(parsed.text.startsWith(QStringLiteral("\"%1\" is no aspect ratio").arg(QLatin1String(aspect))))
            << parsed.text.toStdString();
    }
}

TEST(ReframeOptions, WrongUseIsOneErrorMessageAndStatusTwo)
{
    for (const char* line : {"--speed quick a.mp4",
                             "--speaker on a.mp4",
                             "--no-such-option a.mp4",
                             "--output o.mp4 --no-video a.mp4",
                             "--output o.mp4 a.mp4 b.mp4",
                             "--apply t.json a.mp4 b.mp4",
                             "--aspect",
                             "--output o.avi a.mp4",
                             "--output folder/ a.mp4",
                             "--keyframes k.txt a.mp4",
                             "--preview p.jpg a.mp4",
                             "--report r.txt a.mp4",
                             "--report r.html --apply t.json a.mp4",
                             "--report r.html a.mp4 b.mp4",
                             "--preview p.mp4 a.mp4 b.mp4",
                             "--output o.mp4 --aspect 9:16,1:1 a.mp4",
                             "--keyframes k.json --aspect 9:16,1:1 a.mp4",
                             "--apply t.json --aspect 9:16,1:1 a.mp4",
                             "--size 1080 a.mp4",
                             "--size 1081x1920 a.mp4",
                             "--fps 0 a.mp4",
                             "--fps many a.mp4",
                             "--quality 101 a.mp4",
                             "--quality -1 a.mp4",
                             "--quality 50 --bitrate 1M a.mp4",
                             "--bitrate 5G a.mp4",
                             "--bitrate 5 a.mp4",
                             "--codec vp9 a.mp4",
                             "--encoder cuda a.mp4",
                             "--hdr on a.mp4",
                             "--hdr keep --codec h264 a.mp4",
                             "--hdr keep --encoder vaapi a.mp4",
                             "--sound none a.mp4",
                             "--sound auto a.mp4",
                             "--loudness 14 a.mp4",
                             "--loudness -14 --sound copy a.mp4",
                             "--edit-list e.avi a.mp4",
                             "--edit-list avi a.mp4",
                             "--edit-list e.mlt a.mp4 b.mp4",
                             "--edit-list e.mlt --aspect 9:16,1:1 a.mp4"}) {
        const auto parsed = Parse(Words(line));
        EXPECT_FALSE(parsed.options) << line;
        EXPECT_EQ(parsed.exitStatus, ReframeExit::WrongUse) << line;
        EXPECT_EQ(parsed.text.count(QLatin1Char('\n')), 1) << parsed.text.toStdString();
        EXPECT_FALSE(parsed.text.contains(QStringLiteral(".."))) << parsed.text.toStdString();
    }
    EXPECT_EQ(Parse({}).exitStatus, ReframeExit::WrongUse);
}

TEST(ReframeOptions, OptionsThatExcludeEachOtherAreNamed)
{
    const char* const ofPart = "--frames does a part of the work; ";
    const struct {
        const char* line;
        const char* message;
    } conflicts[] = {
        {"--frames 0-9 a.mp4 b.mp4", "--frames takes one input."},
        {"--join --frames 0-9 a.mp4 b.pictures", "--frames takes one input."},
        {"--frames 0-9 --aspect 9:16,1:1 a.mp4", "--frames takes one aspect ratio."},
        {"--frames 0-9 --apply t.json --no-video a.mp4", "--frames with --apply renders a part"},
        {"--frames 0-9 --keyframes k.json a.mp4", ofPart},
        {"--frames 0-9 --preview p.png a.mp4", ofPart},
        {"--frames 0-9 --report r.html a.mp4", ofPart},
        {"--frames 0-9 --choices c.json a.mp4", ofPart},
        {"--frames 0-9 --edit-list mlt a.mp4", ofPart},
        {"--frames 0-9 --follow 1@2,3 a.mp4", ofPart},
        {"--frames 0-9 --output o.mp4 a.mp4", "--output takes an existing folder or the name of a .pictures file;"},
        {"--join a.mp4", "--join takes a video and then its parts."},
        {"--save-choices s.json --follow 1@2,3 --aspect 9:16,1:1 a.mp4", "--save-choices takes one aspect ratio."},
        {"--save-choices s.json a.mp4", "--save-choices writes what --choices and --follow decided"},
        {"--choices c.json a.mp4 b.mp4", "--choices and --follow take one input."},
        {"--follow 1@2,3 a.mp4 b.mp4", "--choices and --follow take one input."},
        {"--choices c.json --apply t.json a.mp4", "--choices and --follow guide the analysis"},
        {"--follow 1@2,3 --apply t.json a.mp4", "--choices and --follow guide the analysis"},
    };
    for (const auto& conflict : conflicts) {
        const auto parsed = Parse(Words(conflict.line));
        EXPECT_FALSE(parsed.options) << conflict.line;
        EXPECT_TRUE(parsed.text.startsWith(QLatin1String(conflict.message))) << parsed.text.toStdString();
    }
    EXPECT_TRUE(Parse(Words("--frames 0-9 --output o.pictures a.mp4")).options);
    EXPECT_TRUE(Parse(Words("--frames 0-9 --apply t.json --output o.mp4 a.mp4")).options);
}

TEST(ReframeOptions, TheStatusIsNotWrittenOverAnInput)
{
    QTemporaryFile video;
    ASSERT_TRUE(video.open());
    const auto parsed = Parse({QStringLiteral("--status"), video.fileName(), video.fileName()});
    EXPECT_FALSE(parsed.options);
    EXPECT_TRUE(parsed.text.startsWith(QLatin1String("--status must not name an input."))) << parsed.text.toStdString();
}

TEST(ReframeOptions, APreviewIsAVideoUnlessItIsAFolderOfThatName)
{
    const QTemporaryDir folder;
    const QString preview = folder.filePath(QStringLiteral("p.MP4"));
    const QStringList arguments{QStringLiteral("--preview"), preview, QStringLiteral("a.mp4")};
    EXPECT_TRUE(Parse(arguments).options->PreviewIsVideo());
    ASSERT_TRUE(QDir().mkdir(preview));
    EXPECT_FALSE(Parse(arguments).options->PreviewIsVideo());
}

TEST(ReframeOptions, ASizeThatIsTooLargeIsRefusedWithTheLimit)
{
    EXPECT_TRUE(Parse(Words("--size 16384p a.mp4")).options);
    for (const char* const size : {"16386p", "16386x16384", "20000x35556"}) {
        const auto parsed = Parse({QStringLiteral("--size"), QLatin1String(size), QStringLiteral("a.mp4")});
        EXPECT_FALSE(parsed.options) << size;
        EXPECT_TRUE(parsed.text.contains(QLatin1String("up to 16384"))) << parsed.text.toStdString();
    }
}

TEST(ReframeOptions, AnEmptyValueIsRefused)
{
    for (const char* const option :
         {"--aspect", "--apply", "--choices", "--output", "--keyframes", "--edit-list", "--report", "--preview",
          "--models", "--cache", "--status", "--inputs", "--follow"}) {
        const auto parsed = Parse({QLatin1String(option), QString(), QStringLiteral("a.mp4")});
        EXPECT_FALSE(parsed.options) << option;
        EXPECT_TRUE(parsed.text.startsWith(
            QStringLiteral("%1 needs a value, and an empty one was given.").arg(QLatin1String(option))))
            << parsed.text.toStdString();
    }
    const QString editList = QStringLiteral("--edit-list");
    const auto first = Parse({editList, QString(), editList, QStringLiteral("mlt"), QStringLiteral("a.mp4")});
    EXPECT_TRUE(first.text.startsWith(QStringLiteral("--edit-list needs a value,"))) << first.text.toStdString();
    const auto parsed = Parse({QStringLiteral("a.mp4"), QString()});
    EXPECT_FALSE(parsed.options);
    EXPECT_TRUE(parsed.text.startsWith(QStringLiteral("The name of an input file is empty.")));
}

TEST(ReframeOptions, OneDashBeforeAnOptionIsEnough)
{
    const auto parsed = Parse(Words("-aspect 1:1 -quiet a.mp4"));
    ASSERT_TRUE(parsed.options) << parsed.text.toStdString();
    EXPECT_EQ(parsed.options->aspects, QList<QSize>({QSize(1, 1)}));
    EXPECT_TRUE(parsed.options->quiet);
}

TEST(ReframeOptions, AFileNamedLikeAnOptionIsExplained)
{
    const QTemporaryDir folder;
    const QString before = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(folder.path()));
    ASSERT_TRUE(QFile(QStringLiteral("-clip.mp4")).open(QIODevice::WriteOnly));
    const auto parsed = Parse({QStringLiteral("-clip.mp4")});
    EXPECT_EQ(parsed.exitStatus, ReframeExit::WrongUse);
    EXPECT_TRUE(parsed.text.startsWith(
        QStringLiteral("-clip.mp4 begins like an option; as a file it is written ./-clip.mp4.\n")))
        << parsed.text.toStdString();
    EXPECT_TRUE(Parse({QStringLiteral("--"), QStringLiteral("-clip.mp4")}).options);
    QDir::setCurrent(before);
}

TEST(ReframeOptions, SeveralInputsTakeFolders)
{
    const QTemporaryDir folder;
    const auto parsed =
        Parse({QStringLiteral("--output"), folder.path(), QStringLiteral("a.mp4"), QStringLiteral("b.mp4")});
    ASSERT_TRUE(parsed.options);
    EXPECT_EQ(parsed.options->inputs.size(), 2);
}

TEST(ReframeOptions, EditListsAreFilesOrSuffixesAlone)
{
    const auto one = Parse(Words("--edit-list e.MLT --edit-list fcpxml a.mp4"));
    ASSERT_TRUE(one.options) << one.text.toStdString();
    EXPECT_EQ(one.options->editLists, (QStringList{QStringLiteral("e.MLT"), QStringLiteral("fcpxml")}));
    EXPECT_TRUE(Parse(Words("--edit-list mlt a.mp4 b.mp4")).options);
    EXPECT_TRUE(Parse(Words("--edit-list e.mlt a.mp4 b.mp4"))
                    .text.startsWith(QStringLiteral("With several inputs or aspect ratios --edit-list takes a suffix "
                                                    "alone; write mlt instead of e.mlt.\n")));
}

TEST(ReframeOptions, SayHowTheVideoIsWritten)
{
    const auto usual = Parse(Words("a.mp4"));
    ASSERT_TRUE(usual.options);
    EXPECT_TRUE(usual.options->video.size.IsThatOfTheCrop());
    EXPECT_EQ(usual.options->video.format.codec, KxOutputFormat::Codec::H264);
    EXPECT_EQ(usual.options->video.format.encoder, KxOutputFormat::Encoder::Software);
    EXPECT_FALSE(usual.options->video.format.quality);
    const auto parsed = Parse(Words("--size 720x1280 --fps 29.97 --bitrate 2.5M --codec av1 --encoder auto "
                                    "--loudness -14 a.mp4"));
    ASSERT_TRUE(parsed.options) << parsed.text.toStdString();
    const OutputOptions& video = parsed.options->video;
    EXPECT_EQ(video.size.exact, QSize(720, 1280));
    EXPECT_DOUBLE_EQ(video.frameRate, 29.97);
    EXPECT_EQ(video.videoBitRate, 2500000);
    EXPECT_EQ(video.format.codec, KxOutputFormat::Codec::Av1);
    EXPECT_EQ(video.format.encoder, KxOutputFormat::Encoder::Auto);
    EXPECT_EQ(video.format.loudnessLufs, std::optional(-14.0));
    EXPECT_EQ(Parse(Words("--bitrate 800k a.mp4")).options->video.videoBitRate, 800000);
    EXPECT_EQ(Parse(Words("--quality 75 a.mp4")).options->video.format.quality, std::optional(75.0));
    EXPECT_EQ(Parse(Words("--sound copy a.mp4")).options->video.format.sound, KxOutputFormat::Sound::Copied);
    EXPECT_EQ(Parse(Words("--sound encode a.mp4")).options->video.format.sound, KxOutputFormat::Sound::Encoded);
    EXPECT_EQ(Parse(Words("--loudness -14 a.mp4")).options->video.format.sound, KxOutputFormat::Sound::Automatic);
    EXPECT_EQ(Parse(Words("--hdr keep a.mp4")).options->video.format.codec, KxOutputFormat::Codec::Hevc);
}

TEST(ReframeOptions, ModelsAreAFolderWithADetectorOrNone)
{
    EXPECT_EQ(Parse(Words("a.mp4")).options->models, QString());
    EXPECT_EQ(Parse(Words("--models none a.mp4")).options->models, QStringLiteral("none"));
    const QTemporaryDir folder;
    const QStringList arguments{QStringLiteral("--models"), folder.path(), QStringLiteral("a.mp4")};
    const auto refused = Parse(arguments);
    EXPECT_FALSE(refused.options);
    EXPECT_EQ(refused.exitStatus, ReframeExit::WrongUse);
    EXPECT_TRUE(refused.text.startsWith(
        QStringLiteral("Cannot use the models in %1: it has neither nanodet-g.onnx nor ").arg(folder.path())))
        << refused.text.toStdString();
    ASSERT_TRUE(QFile(folder.filePath(QStringLiteral("nanodet-g.onnx"))).open(QIODevice::WriteOnly));
    ASSERT_TRUE(Parse(arguments).options);
    EXPECT_EQ(Parse(arguments).options->models, folder.path());
}

TEST(ReframeOptions, HelpAndVersionNeedNoInput)
{
    const auto help = Parse({QStringLiteral("--help")});
    EXPECT_FALSE(help.options);
    EXPECT_EQ(help.exitStatus, ReframeExit::Done);
    for (const char* option :
         {"--aspect", "--speed", "--cache", "--output", "--keyframes", "--apply", "--no-video", "--preview", "--report",
          "--models", "--speaker", "--edit-list", "--json", "--quiet", "--version", "--overwrite"}) {
        EXPECT_TRUE(help.text.contains(QLatin1String(option))) << option;
    }
    const auto version = Parse({QStringLiteral("--version")});
    EXPECT_EQ(version.exitStatus, ReframeExit::Done);
    // The program ends the last line.
    EXPECT_FALSE(version.text.endsWith(QLatin1Char('\n')));
    EXPECT_FALSE(help.text.endsWith(QLatin1Char('\n')));
}
