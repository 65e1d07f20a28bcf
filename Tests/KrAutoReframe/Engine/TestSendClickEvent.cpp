#include <KrAutoReframe/Engine/SendClickEvent.h>

#include <KxCore/KxUsageTracker.h>

#include <QStringList>

#include <gtest/gtest.h>

TEST(SendClickEvent, ReportsTheNameToTheTrackerOnce)
{
    QStringList heard;
    KxUsageTracker::SetRecorder([&heard](const QString& name) { heard.append(name); });
    SendClickEvent(QStringLiteral("anlyze_btn"));
    EXPECT_EQ(heard, QStringList{QStringLiteral("anlyze_btn")});

    SendClickEvent(QStringLiteral("convert_cancel_btn"));
    KxUsageTracker::SetRecorder({});
    EXPECT_EQ(heard, (QStringList{QStringLiteral("anlyze_btn"), QStringLiteral("convert_cancel_btn")}));
}
