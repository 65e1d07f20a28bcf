#include <KrAutoReframe/Engine/KrTimeCode.h>

#include <gtest/gtest.h>

using KrTimeCode::Detail;
using KrTimeCode::ToText;

TEST(KrTimeCode, CountsFromZero)
{
    EXPECT_EQ(ToText(0, 25.0f, Detail::Frames), QStringLiteral("00:00:00:00"));
}

TEST(KrTimeCode, SplitsAFrameNumber)
{
    EXPECT_EQ(ToText(90061, 25.0f, Detail::Frames), QStringLiteral("01:00:02:11"));
    EXPECT_EQ(ToText(65 * 30 + 12, 30.0f, Detail::Frames), QStringLiteral("00:01:05:12"));
}

TEST(KrTimeCode, TurnsOverAtEachUnit)
{
    EXPECT_EQ(ToText(24, 25.0f, Detail::Frames), QStringLiteral("00:00:00:24"));
    EXPECT_EQ(ToText(25, 25.0f, Detail::Frames), QStringLiteral("00:00:01:00"));
    EXPECT_EQ(ToText(25 * 60 - 1, 25.0f, Detail::Frames), QStringLiteral("00:00:59:24"));
    EXPECT_EQ(ToText(25 * 60, 25.0f, Detail::Frames), QStringLiteral("00:01:00:00"));
    EXPECT_EQ(ToText(25 * 3600 - 1, 25.0f, Detail::Frames), QStringLiteral("00:59:59:24"));
    EXPECT_EQ(ToText(25 * 3600, 25.0f, Detail::Frames), QStringLiteral("01:00:00:00"));
}

TEST(KrTimeCode, WritesPartsOfTenAndMoreAsTheyAre)
{
    EXPECT_EQ(ToText(10 * 100 * 3600, 10.0f, Detail::Frames), QStringLiteral("100:00:00:00"));
    EXPECT_EQ(ToText(119, 120.0f, Detail::Frames), QStringLiteral("00:00:00:119"));
}

TEST(KrTimeCode, AFractionalRateCountsFramesWithinTheWholeRate)
{
    // 29.97 frames a second: frame 29 is the first of the second "29 frames", yet no whole second has passed.
    EXPECT_EQ(ToText(28, 29.97f, Detail::Frames), QStringLiteral("00:00:00:28"));
    EXPECT_EQ(ToText(29, 29.97f, Detail::Frames), QStringLiteral("00:00:00:00"));
    EXPECT_EQ(ToText(30, 29.97f, Detail::Frames), QStringLiteral("00:00:00:01"));
    EXPECT_EQ(ToText(58, 29.97f, Detail::Frames), QStringLiteral("00:00:01:00"));
}

TEST(KrTimeCode, DividesInSinglePrecision)
{
    // 16777217 has no single-precision value: it counts as 16777216.
    EXPECT_EQ(ToText(16777217, 1.0f, Detail::Seconds), QStringLiteral("4660:20:16"));
}

TEST(KrTimeCode, LeavesFramesOutWhenAsked)
{
    EXPECT_EQ(ToText(90061, 25.0f, Detail::Seconds), QStringLiteral("01:00:02"));
}
