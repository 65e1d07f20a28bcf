#include <Apps/AutoReframe/Backend/ExportRecord.h>

#include <gtest/gtest.h>

namespace
{

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

TEST(TestExportRecord, EveryValueIsTaken)
{
    const KxResult<ExportOrder> order = ExportRecord::Read(Record());
    ASSERT_TRUE(order);
    EXPECT_EQ(order->filePath, QStringLiteral("/videos/out/clip-AutoReframe-9 16.mp4"));
    EXPECT_EQ(order->resolution, QSize(608, 1080));
    EXPECT_NEAR(order->frameRate, 23.97, 1e-5);
    EXPECT_EQ(order->videoBitRate, 4000000);
    EXPECT_EQ(order->audioBitRate, 192000);
}

TEST(TestExportRecord, TheRootFolderNeedsNoSecondSeparator)
{
    QVariantMap record = Record();
    record.insert(QStringLiteral("path"), QStringLiteral("/"));
    EXPECT_EQ(ExportRecord::Read(record)->filePath, QStringLiteral("/clip-AutoReframe-9 16.mp4"));
}

TEST(TestExportRecord, WhatLacksANameAFolderOrASizeIsRefusedWithTheReason)
{
    for (const char* const key : {"name", "path", "resolution"}) {
        QVariantMap record = Record();
        record.remove(QLatin1String(key));
        const KxResult<ExportOrder> order = ExportRecord::Read(record);
        EXPECT_FALSE(order) << key;
        EXPECT_TRUE(order.Message().startsWith(QLatin1String("Cannot export"))) << key;
    }
    EXPECT_FALSE(ExportRecord::Read(QVariant()));
}
