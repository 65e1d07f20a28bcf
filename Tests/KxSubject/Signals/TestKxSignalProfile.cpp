#include <KxSubject/KxSignalProfile.h>

#include <KxSubject/Signals/KxMapProfile.h>

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

TEST(KxSignalProfile, AnEmptyMapAndAnEvenMapAreNoEvidence)
{
    EXPECT_EQ(KxProfileOfMap(MapWith({0, 0, 1, 1}, 0.0F), Whole, PictureSize, KxAxis::Across, EmptyFloor).Sum(), 0.0F);
    EXPECT_NEAR(KxProfileOfMap(MapWith(Whole, 0.7F), Whole, PictureSize, KxAxis::Across, EmptyFloor).Sum(), 0.0F,
                1e-3F);
}

TEST(KxSignalProfile, MassIsWhereTheMapHasIt)
{
    const cv::Mat map = MapWith({80, 45, 80, 45}, 1.0F);
    const auto across = KxProfileOfMap(map, Whole, PictureSize, KxAxis::Across, EmptyFloor);
    const auto upDown = KxProfileOfMap(map, Whole, PictureSize, KxAxis::UpDown, EmptyFloor);
    EXPECT_NEAR(ShareBetween(across, 24, 48), across.Sum(), 1e-5F);
    EXPECT_NEAR(ShareBetween(upDown, 24, 48), upDown.Sum(), 1e-5F);
    EXPECT_GT(across.Sum(), 0.8F);
    EXPECT_LT(across.Sum(), 1.0F);
}

TEST(KxSignalProfile, AMapWithAsMuchAsTheFloorGivesHalf)
{
    // 24 x 24 px of 1 are 1 % of the area; the subtracted mean takes a little of it.
    const auto profile =
        KxProfileOfMap(MapWith({100, 50, 24, 24}, 1.0F), Whole, PictureSize, KxAxis::Across, EmptyFloor);
    EXPECT_NEAR(profile.Sum(), 0.5F, 0.01F);
}

TEST(KxSignalProfile, AMapOfARegionFillsOnlyThatRegion)
{
    cv::Mat part = cv::Mat::zeros(180, 160, CV_32FC1);
    part.colRange(0, 40).setTo(1.0F);
    const auto profile = KxProfileOfMap(part, cv::Rect(80, 0, 160, 180), PictureSize, KxAxis::Across, EmptyFloor);
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

TEST(KxSignalProfile, ConcentrationAmplifiesPeaksAndWeakensSpreadEvidence)
{
    KxSignalProfile profile;
    profile.Add(0.0, 0.5, 0.5);
    profile.Add(0.75, 0.75 + 1.0 / KxSignalProfile::Bins, 0.25);
    const std::size_t peak = KxSignalProfile::Bins * 3 / 4;

    const KxSignalProfile concentrated = profile.Concentrated(2.0);
    // The spread half holds 1/96 in each of 48 bins, the peak 0.25 in one: squared, the peak has twelve times as much.
    EXPECT_NEAR(concentrated.Sum(), 0.75F, 1e-5F);
    EXPECT_NEAR(concentrated.share[peak], 0.75F * 0.0625F / (0.0625F + 48.0F / (96.0F * 96.0F)), 1e-4F);
    EXPECT_NEAR(concentrated.share[0], concentrated.share[KxSignalProfile::Bins / 2 - 1], 1e-6F);
    EXPECT_EQ(concentrated.share[KxSignalProfile::Bins / 2], 0.0F);

    const KxSignalProfile same = profile.Concentrated(1.0);
    EXPECT_NEAR(same.share[0], profile.share[0], 1e-6F);
    EXPECT_NEAR(same.share[peak], profile.share[peak], 1e-6F);
    EXPECT_EQ(KxSignalProfile().Concentrated(2.0).Sum(), 0.0F);
}

TEST(KxSignalProfile, PackingKeepsMassAndPlace)
{
    KxSignalProfile profile;
    profile.Add(0.25, 0.5, 0.7);
    profile.Add(0.75, 0.76, 0.3);
    const KxSignalProfile back = KxPackedProfile(profile).Unpacked();
    EXPECT_NEAR(back.Sum(), profile.Sum(), 0.01F);
    EXPECT_NEAR(ShareBetween(back, 28, 44), ShareBetween(profile, 28, 44), 0.01F);
    EXPECT_NEAR(ShareBetween(back, 68, 80), ShareBetween(profile, 68, 80), 0.01F);
    EXPECT_EQ(ShareBetween(back, 84, 96), 0.0F);
}

TEST(KxSignalProfile, AnUnpackedProfileHasNoSteps)
{
    KxSignalProfile slope;
    for (std::size_t bin = 0; bin < KxSignalProfile::Bins; ++bin) {
        slope.share[bin] = static_cast<float>(bin) / 4560.0F;
    }
    const KxSignalProfile back = KxPackedProfile(slope).Unpacked();
    for (std::size_t bin = 2; bin + 2 < KxSignalProfile::Bins; ++bin) {
        EXPECT_NEAR(back.share[bin], slope.share[bin], slope.share.back() / 100.0F) << bin;
    }
}

TEST(KxSignalProfile, APackedEmptyProfileIsEmpty)
{
    EXPECT_EQ(KxPackedProfile(KxSignalProfile()).Unpacked().Sum(), 0.0F);
    EXPECT_EQ(KxPackedProfile().Unpacked().Sum(), 0.0F);
}

TEST(KxSignalProfile, ASampleOfALongVideoIsSmall)
{
    // A second of video has ten of them: an hour must not need more than a few megabytes.
    EXPECT_LE(sizeof(KxPackedProfile), 28U);
}
