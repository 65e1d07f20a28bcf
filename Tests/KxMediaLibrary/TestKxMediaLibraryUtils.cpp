#include <KxMedia/Read/KxMediaProbe.h>
#include <Tests/Support/MadeVideo.h>

#include <KxMediaLibrary/KxMediaLibraryUtils.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace
{

struct Format {
    const char* suffix;
    /// Arguments for ffmpeg where the suffix does not determine them.
    const char* arguments;
};

const Format Formats[] = {
    {"mp4", ""},
    {"mov", ""},
    {"m4v", ""},
    {"mkv", ""},
    {"webm", "-c:v libvpx -deadline realtime"},
    {"avi", ""},
    {"wmv", ""},
    {"asf", ""},
    {"mts", "-f mpegts"},
    {"m2ts", "-f mpegts"},
    {"ts", ""},
    {"mpg", ""},
    {"mpeg", ""},
    {"vob", ""},
    {"flv", ""},
    {"3gp", "-c:v libx264"},
    {"3g2", "-c:v libx264"},
    {"ogv", "-c:v libtheora"},
    {"mxf", ""},
    {"dv", "-s 720x576 -pix_fmt yuv420p"},
    {"wtv", ""},
    {"y4m", "-pix_fmt yuv420p"},
    {"ivf", "-c:v libvpx -deadline realtime"},
    {"h264", ""},
    {"GIF", ""},
};

QStringList Patterns()
{
    return KxMediaLibraryUtils::getImportVideoFilter().split(QLatin1Char(';'));
}

} // namespace

TEST(KxMediaLibraryUtils, EveryPatternIsTestedHere)
{
    QStringList tried;
    for (const Format& format : Formats) {
        tried += QStringLiteral("*.%1").arg(QLatin1String(format.suffix));
    }
    EXPECT_EQ(Patterns(), tried);
}

TEST(KxMediaLibraryUtils, EveryOfferedFormatCanBeRead)
{
    const QTemporaryDir folder;
    for (const Format& format : Formats) {
        SCOPED_TRACE(format.suffix);
        const QString path = folder.filePath(QStringLiteral("clip.%1").arg(QLatin1String(format.suffix)));
        MadeVideo::Recipe recipe;
        recipe.frames = 10;
        recipe.output = QString::fromLatin1(format.arguments).split(QLatin1Char(' '), Qt::SkipEmptyParts);
        if (recipe.output.value(0) == QLatin1String("-c:v") && !MadeVideo::HasEncoder(recipe.output.value(1))) {
            continue;
        }
        ASSERT_TRUE(MadeVideo::Make(path, recipe));
        const KxResult<KxMediaFacts> facts = KxProbeMedia(path, KxCancelToken());
        ASSERT_TRUE(facts) << facts.Message().toStdString();
        EXPECT_TRUE(facts->video.has_value());
    }
}

TEST(KxMediaLibraryUtils, OnlyAFileWithMovingPicturesPassesTheCheck)
{
    const QTemporaryDir folder;
    const QString video = folder.filePath(QStringLiteral("video.mp4"));
    MadeVideo::Recipe recipe;
    recipe.frames = 10;
    ASSERT_TRUE(MadeVideo::Make(video, recipe));
    EXPECT_EQ(KxMediaLibraryUtils::CheckVideoFile(video), std::nullopt);

    const QString damaged = folder.filePath(QStringLiteral("damaged.mp4"));
    QFile file(damaged);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(QByteArray(4096, 'x'));
    file.close();
    const std::optional<QString> unreadable = KxMediaLibraryUtils::CheckVideoFile(damaged);
    ASSERT_TRUE(unreadable);
    EXPECT_TRUE(unreadable->contains(QStringLiteral("damaged.mp4"))) << unreadable->toStdString();

    const QString sound = folder.filePath(QStringLiteral("sound.wav"));
    QFile wave(sound);
    ASSERT_TRUE(wave.open(QIODevice::WriteOnly));
    QByteArray header = QByteArray::fromHex("52494646"
                                            "a43e0000"
                                            "57415645"
                                            "666d7420"
                                            "10000000"
                                            "0100"
                                            "0100"
                                            "401f0000"
                                            "803e0000"
                                            "0200"
                                            "1000"
                                            "64617461"
                                            "803e0000");
    wave.write(header + QByteArray(16000, '\0'));
    wave.close();
    EXPECT_EQ(KxMediaLibraryUtils::CheckVideoFile(sound),
              QStringLiteral("Cannot open sound.wav: it has no moving picture."));
}
