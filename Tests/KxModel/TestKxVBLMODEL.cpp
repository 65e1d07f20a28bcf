#include <KxModel/KxVBLMODEL.h>

#include <gtest/gtest.h>

TEST(KxVBLMODEL, KnowsTheUsualFrameRates)
{
    EXPECT_EQ(KxVBLMODEL::toFrameRateType({24000, 1001}), KxProjectFrameRateType::Fps23_976);
    EXPECT_EQ(KxVBLMODEL::toFrameRateType({24, 1}), KxProjectFrameRateType::Fps24);
    EXPECT_EQ(KxVBLMODEL::toFrameRateType({25, 1}), KxProjectFrameRateType::Fps25);
    EXPECT_EQ(KxVBLMODEL::toFrameRateType({30000, 1001}), KxProjectFrameRateType::Fps29_97);
    EXPECT_EQ(KxVBLMODEL::toFrameRateType({2997, 100}), KxProjectFrameRateType::Fps29_97);
    EXPECT_EQ(KxVBLMODEL::toFrameRateType({30, 1}), KxProjectFrameRateType::Fps30);
    EXPECT_EQ(KxVBLMODEL::toFrameRateType({50, 1}), KxProjectFrameRateType::Fps50);
    EXPECT_EQ(KxVBLMODEL::toFrameRateType({60000, 1001}), KxProjectFrameRateType::Fps59_94);
    EXPECT_EQ(KxVBLMODEL::toFrameRateType({120, 2}), KxProjectFrameRateType::Fps60);
}

TEST(KxVBLMODEL, AnyOtherFrameRateIsCustom)
{
    EXPECT_EQ(KxVBLMODEL::toFrameRateType({15, 1}), KxProjectFrameRateType::Custom);
    EXPECT_EQ(KxVBLMODEL::toFrameRateType({0, 1}), KxProjectFrameRateType::Custom);
    EXPECT_EQ(KxVBLMODEL::toFrameRateType({25, 0}), KxProjectFrameRateType::Custom);
    EXPECT_EQ(KxVBLMODEL::toFrameRateType({25, -1}), KxProjectFrameRateType::Custom);
}

TEST(KxVBLMODEL, KnowsAspectRatiosExactly)
{
    EXPECT_EQ(KxVBLMODEL::toAspectRatioType({1920, 1080}), KxProjectAspectRatio16x9);
    EXPECT_EQ(KxVBLMODEL::toAspectRatioType({9, 16}), KxProjectAspectRatio9x16);
    EXPECT_EQ(KxVBLMODEL::toAspectRatioType({700, 700}), KxProjectAspectRatio1x1);
    EXPECT_EQ(KxVBLMODEL::toAspectRatioType({640, 480}), KxProjectAspectRatio4x3);
    EXPECT_EQ(KxVBLMODEL::toAspectRatioType({21, 9}), KxProjectAspectRatio21x9);
    EXPECT_EQ(KxVBLMODEL::toAspectRatioType({1366, 768}), KxProjectAspectRatioUnknown);
}

TEST(KxVBLMODEL, FourToFiveIsUnknown)
{
    EXPECT_EQ(KxVBLMODEL::toAspectRatioType({4, 5}), KxProjectAspectRatioUnknown);
    EXPECT_EQ(static_cast<int>(KxProjectAspectRatioUnknown), 0);
}

TEST(KxVBLMODEL, AnEmptySizeIsUnknown)
{
    EXPECT_EQ(KxVBLMODEL::toAspectRatioType(QSize()), KxProjectAspectRatioUnknown);
    EXPECT_EQ(KxVBLMODEL::toAspectRatioType({0, 0}), KxProjectAspectRatioUnknown);
}
