#include <Apps/AutoReframe/Backend/ExportRecord.h>

#include <gtest/gtest.h>

namespace
{

constexpr int NoSound = 0;

QVariantMap Record()
{
    return {{QStringLiteral("name"), QStringLiteral("clip-AutoReframe-9 16")},
            {QStringLiteral("path"), QStringLiteral("/videos/out")},
            {QStringLiteral("resolution"), QSize(608, 1080)},
            {QStringLiteral("frame_rate"), 23.97F},
            {QStringLiteral("video_bit_rate"), 4000000},
            {QStringLiteral("audio_bit_rate"), 192000}};
}

} // namespace

TEST(TestExportRecord, ReadsEveryValue)
{
    const KxResult<KxRenderSettings> settings = ExportRecord::Read(Record(), NoSound);
    ASSERT_TRUE(settings);
    EXPECT_EQ(settings->outputPath, QStringLiteral("/videos/out/clip-AutoReframe-9 16.mp4"));
    EXPECT_EQ(settings->resolution, QSize(608, 1080));
    EXPECT_NEAR(settings->frameRate, 23.97, 1e-5);
    EXPECT_EQ(settings->videoBitRate, 4000000);
    EXPECT_EQ(settings->audioBitRate, 192000);
}

TEST(TestExportRecord, SoundIsCopiedUnlessItsBitRateIsAboveTheRecords)
{
    using Sound = KxOutputFormat::Sound;
    QVariantMap record = Record();
    EXPECT_EQ(ExportRecord::Read(record, 192000)->format.sound, Sound::Automatic);
    EXPECT_EQ(ExportRecord::Read(record, 192001)->format.sound, Sound::Encoded);
    EXPECT_EQ(ExportRecord::Read(record, NoSound)->format.sound, Sound::Automatic);
    record.remove(QStringLiteral("audio_bit_rate"));
    EXPECT_EQ(ExportRecord::Read(record, 192000)->format.sound, Sound::Automatic);
}

TEST(TestExportRecord, AddsNoSecondSeparatorToTheRootFolder)
{
    QVariantMap record = Record();
    record.insert(QStringLiteral("path"), QStringLiteral("/"));
    EXPECT_EQ(ExportRecord::Read(record, NoSound)->outputPath, QStringLiteral("/clip-AutoReframe-9 16.mp4"));
}

TEST(TestExportRecord, RefusesARecordWithoutNameFolderOrSize)
{
    for (const char* const key : {"name", "path", "resolution"}) {
        QVariantMap record = Record();
        record.remove(QLatin1String(key));
        const KxResult<KxRenderSettings> settings = ExportRecord::Read(record, NoSound);
        EXPECT_FALSE(settings) << key;
        EXPECT_TRUE(settings.Message().startsWith(QLatin1String("Cannot export"))) << key;
    }
    EXPECT_FALSE(ExportRecord::Read(QVariant(), NoSound));
}
