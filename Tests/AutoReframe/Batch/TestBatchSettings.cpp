#include <Apps/AutoReframe/Batch/BatchSettings.h>

#include <gtest/gtest.h>

namespace
{

BatchVideo Video(const char* path, const QSize& resolution = QSize(1920, 1080))
{
    return {QLatin1String(path), resolution, 250};
}

bool IsNeverTaken(const QString&)
{
    return false;
}

QStringList Paths(const QList<PlannedExport>& planned)
{
    QStringList paths;
    for (const PlannedExport& one : planned) {
        paths += one.outputPath;
    }
    return paths;
}

TEST(BatchSettingsTest, OneExportForEachVideoAndRatioVideoByVideo)
{
    BatchSettings settings;
    settings.aspects = {QSize(9, 16), QSize(1, 1)};
    settings.speed = 8;
    settings.shortSidePx = 1080;
    settings.folder = QStringLiteral("/out");
    const QList<BatchVideo> videos{Video("/clips/a.b.mp4"), Video("/clips/c.mov")};
    const QList<PlannedExport> planned = settings.PlanFor(videos, &IsNeverTaken);
    EXPECT_EQ(Paths(planned), QStringList({QStringLiteral("/out/a.b-9x16.mp4"), QStringLiteral("/out/a.b-1x1.mp4"),
                                           QStringLiteral("/out/c-9x16.mp4"), QStringLiteral("/out/c-1x1.mp4")}));
    EXPECT_EQ(settings.CountFor(videos), 4);
    EXPECT_EQ(planned[1].path, QStringLiteral("/clips/a.b.mp4"));
    EXPECT_TRUE(planned[1].plan == (ReframePlan{QSize(1, 1), 8, 1080}));
    EXPECT_EQ(planned[1].frames, 250);
}

TEST(BatchSettingsTest, ARatioThatAVideoHasAlreadyIsLeftOut)
{
    BatchSettings settings;
    settings.aspects = {QSize(16, 9), QSize(9, 16)};
    settings.folder = QStringLiteral("/out");
    const QList<BatchVideo> videos{Video("/wide.mp4"), Video("/tall.mp4", QSize(1080, 1920)),
                                   Video("/unknown.mp4", QSize())};
    EXPECT_EQ(Paths(settings.PlanFor(videos, &IsNeverTaken)),
              QStringList({QStringLiteral("/out/wide-9x16.mp4"), QStringLiteral("/out/tall-16x9.mp4"),
                           QStringLiteral("/out/unknown-16x9.mp4"), QStringLiteral("/out/unknown-9x16.mp4")}));
    EXPECT_EQ(settings.CountFor(videos), 4);
}

TEST(BatchSettingsTest, VideosOfOneNameAndExistingFilesGetNumbers)
{
    BatchSettings settings;
    settings.folder = QStringLiteral("/out");
    const auto planned = settings.PlanFor({Video("/one/a.mp4"), Video("/two/a.mp4")},
                                          [](const QString& path) { return path == QLatin1String("/out/a-9x16.mp4"); });
    EXPECT_EQ(Paths(planned),
              QStringList({QStringLiteral("/out/a-9x16 (2).mp4"), QStringLiteral("/out/a-9x16 (3).mp4")}));
}

TEST(BatchSettingsTest, TheyAreReadAsTheyWereWritten)
{
    BatchSettings settings;
    settings.aspects = {QSize(4, 5), QSize(21, 9)};
    settings.speed = 24;
    settings.shortSidePx = 720;
    settings.heightPx = 2160;
    settings.folder = QString::fromUtf8("/videos/Вечер \"1\"");
    settings.pattern = QStringLiteral("{date}");
    const BatchSettings read = BatchSettings::FromJson(settings.ToJson());
    EXPECT_EQ(read.aspects, settings.aspects);
    EXPECT_EQ(read.speed, 24);
    EXPECT_EQ(read.shortSidePx, 720);
    EXPECT_EQ(read.heightPx, 2160);
    EXPECT_EQ(read.folder, settings.folder);
    EXPECT_EQ(read.pattern, settings.pattern);
}

TEST(BatchSettingsTest, UnreadableSettingsBecomeTheDefaults)
{
    for (const char* const text : {"", "no JSON", "[]", R"({"aspects":[[0,1],7,"x"]})"}) {
        const BatchSettings read = BatchSettings::FromJson(text);
        EXPECT_EQ(read.aspects, QList<QSize>{QSize(9, 16)}) << text;
        EXPECT_EQ(read.speed, 16) << text;
        EXPECT_EQ(read.pattern, QStringLiteral("{name}-{ratio}")) << text;
    }
}

} // namespace
