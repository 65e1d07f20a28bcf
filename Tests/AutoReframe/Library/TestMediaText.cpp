#include <Apps/AutoReframe/Library/MediaText.h>

#include <gtest/gtest.h>

TEST(TestMediaText, FrameRatesAreRoundedToHundredths)
{
    EXPECT_EQ(MediaText::FrameRate({30, 1}), QStringLiteral("30 fps"));
    EXPECT_EQ(MediaText::FrameRate({60000, 1001}), QStringLiteral("59.94 fps"));
    EXPECT_EQ(MediaText::FrameRate({24000, 1001}), QStringLiteral("23.98 fps"));
    EXPECT_EQ(MediaText::FrameRate({25, 2}), QStringLiteral("12.5 fps"));
    EXPECT_EQ(MediaText::FrameRate({1000, 1}), QStringLiteral("1000 fps"));
    EXPECT_EQ(MediaText::FrameRate({0, 0}), QString());
}

TEST(TestMediaText, FileSizesKeepTwoFigures)
{
    EXPECT_EQ(MediaText::FileSize(34LL * 1024 * 1024), QStringLiteral("34 MB"));
    EXPECT_EQ(MediaText::FileSize(2LL * 1024 * 1024 + 300 * 1024), QStringLiteral("2.3 MB"));
    EXPECT_EQ(MediaText::FileSize(50 * 1024), QStringLiteral("50 KB"));
    EXPECT_EQ(MediaText::FileSize(0), QStringLiteral("1 KB"));
}

TEST(TestMediaText, TimeLeftGrowsCoarser)
{
    EXPECT_EQ(MediaText::TimeLeft(8), QStringLiteral("8 s left"));
    EXPECT_EQ(MediaText::TimeLeft(125), QStringLiteral("2 min 5 s left"));
    EXPECT_EQ(MediaText::TimeLeft(3900), QStringLiteral("1 h 5 min left"));
}
