#include "KxSignalProfile.h"

#include <gtest/gtest.h>

#include <numeric>

namespace
{

constexpr double EmptyFloor = 0.01;
const cv::Size PictureSize(320, 180);
const cv::Rect Whole(0, 0, 320, 180);

cv::Mat MapWith(const cv::Rect& place, float value)
{
    cv::Mat map = cv::Mat::zeros(PictureSize, CV_32FC1);
    map(place).setTo(value);
    return map;
}

float ShareBetween(const KxSignalProfile& profile, std::size_t first, std::size_t end)
{
    return std::accumulate(profile.share.begin() + static_cast<std::ptrdiff_t>(first),
                           profile.share.begin() + static_cast<std::ptrdiff_t>(end), 0.0F);
}

} // namespace

TEST(KxSignalProfile, AnEmptyMapAndAnEvenMapSayNothing)
{
    EXPECT_EQ(KxSignalProfile::Of(MapWith({0, 0, 1, 1}, 0.0F), Whole, PictureSize, KxAxis::Across, EmptyFloor).Sum(),
              0.0F);
    EXPECT_NEAR(KxSignalProfile::Of(MapWith(Whole, 0.7F), Whole, PictureSize, KxAxis::Across, EmptyFloor).Sum(), 0.0F,
                1e-3F);
}

TEST(KxSignalProfile, MassLiesWhereTheMapHasIt)
{
    const cv::Mat map = MapWith({80, 45, 80, 45}, 1.0F);
    const auto across = KxSignalProfile::Of(map, Whole, PictureSize, KxAxis::Across, EmptyFloor);
    const auto upDown = KxSignalProfile::Of(map, Whole, PictureSize, KxAxis::UpDown, EmptyFloor);
    EXPECT_NEAR(ShareBetween(across, 24, 48), across.Sum(), 1e-5F);
    EXPECT_NEAR(ShareBetween(upDown, 24, 48), upDown.Sum(), 1e-5F);
    EXPECT_GT(across.Sum(), 0.8F);
    EXPECT_LT(across.Sum(), 1.0F);
}

TEST(KxSignalProfile, AMapWithAsMuchAsTheFloorSaysHalf)
{
    // 24 x 24 px of 1 are 1 % of the area; a little goes with the mean.
    const auto profile =
        KxSignalProfile::Of(MapWith({100, 50, 24, 24}, 1.0F), Whole, PictureSize, KxAxis::Across, EmptyFloor);
    EXPECT_NEAR(profile.Sum(), 0.5F, 0.01F);
}

TEST(KxSignalProfile, AMapOfAPartLiesInItsPart)
{
    cv::Mat part = cv::Mat::zeros(180, 160, CV_32FC1);
    part.colRange(0, 40).setTo(1.0F);
    const auto profile = KxSignalProfile::Of(part, cv::Rect(80, 0, 160, 180), PictureSize, KxAxis::Across, EmptyFloor);
    EXPECT_NEAR(ShareBetween(profile, 24, 36), profile.Sum(), 1e-5F);
}

TEST(KxSignalProfile, AddSpreadsEvenlyAndLosesWhatIsOutside)
{
    KxSignalProfile profile;
    profile.Add(-0.25, 0.25, 1.0);
    EXPECT_NEAR(profile.Sum(), 0.5F, 1e-5F);
    EXPECT_NEAR(ShareBetween(profile, 0, 12), 0.25F, 1e-5F);
    profile.Add(0.5, 0.5, 1.0);
    EXPECT_NEAR(profile.Sum(), 0.5F, 1e-5F);
}

TEST(KxSignalProfile, PackingKeepsTheProfileInPairsOfBins)
{
    KxSignalProfile profile;
    profile.Add(0.1, 0.4, 0.7);
    profile.Add(0.62, 0.63, 0.3);
    const KxSignalProfile back = KxPackedProfile(profile).Unpacked();
    float largest = 0.0F;
    for (std::size_t bin = 0; bin < KxSignalProfile::Bins; bin += 2) {
        largest = std::max(largest, profile.share[bin] + profile.share[bin + 1]);
    }
    for (std::size_t bin = 0; bin < KxSignalProfile::Bins; bin += 2) {
        const float pair = profile.share[bin] + profile.share[bin + 1];
        EXPECT_NEAR(back.share[bin] + back.share[bin + 1], pair, largest / 255.0F);
        EXPECT_EQ(back.share[bin], back.share[bin + 1]);
    }
    EXPECT_NEAR(back.Sum(), profile.Sum(), 0.01F);
}

TEST(KxSignalProfile, PackingKeepsThatNothingWasSaid)
{
    EXPECT_EQ(KxPackedProfile(KxSignalProfile()).Unpacked().Sum(), 0.0F);
    EXPECT_EQ(KxPackedProfile().Unpacked().Sum(), 0.0F);
}

TEST(KxSignalProfile, ASampleOfALongVideoIsSmall)
{
    // Ten of them stand for each second of a video: an hour has to stay within a few megabytes.
    EXPECT_LE(sizeof(KxPackedProfile), 52U);
}
