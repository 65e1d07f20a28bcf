#include <KxSubject/Signals/KxMoverTracks.h>

#include <KxSubject/Choice/KxMoverEvidence.h>
#include <KxSubject/Signals/KxMotionMap.h>

#include <opencv2/core.hpp>
#include <opencv2/imgproc.hpp>

#include <gtest/gtest.h>

#include <cmath>

namespace
{

const cv::Size PictureSize(320, 180);
/// One level: the others work in the same way.
KxSubjectOptions::Movers OneLevel()
{
    KxSubjectOptions::Movers options;
    options.levels = 1;
    return options;
}

cv::Matx33d Shift(double across)
{
    return {1.0, 0.0, across, 0.0, 1.0, 0.0, 0.0, 0.0, 1.0};
}

/// What moves in a picture, in its own resolution.
cv::Mat Picture(const std::vector<cv::Rect>& moving)
{
    cv::Mat map(PictureSize, CV_32FC1, cv::Scalar(0.0));
    for (const cv::Rect& place : moving) {
        map(place & cv::Rect({}, PictureSize)).setTo(1.0);
    }
    return map;
}

cv::Mat MapOf(const cv::Mat& picture)
{
    cv::Mat map;
    cv::resize(picture, map, KxMotionMap::HalfOf(PictureSize), 0.0, 0.0, cv::INTER_AREA);
    return map;
}

/// One map per sample; `place` returns the movers of a sample, `camera` the shift of the picture to the next one.
template<typename Places>
std::vector<KxMover> Followed(int samples, Places places, double camera = 0.0)
{
    KxMoverTracks tracks(OneLevel());
    for (int i = 0; i < samples; ++i) {
        tracks.AddMap(i / 10.0, MapOf(Picture(places(i))), i == 0 ? std::nullopt : std::optional(Shift(camera)));
    }
    return tracks.Finish();
}

/// The evidence of movers at one of the first 100 samples.
KxSignalProfile ProfileAt(std::size_t sample, KxAxis axis, std::vector<KxMover> movers,
                          const KxSubjectOptions::Movers& options = OneLevel())
{
    KxSubjectRecord record;
    record.samples.resize(100);
    record.movers = std::move(movers);
    return KxMoverEvidence(record, options).ProfileAt(sample, axis);
}

double CentreOf(const KxSignalProfile& profile)
{
    double sum = 0.0;
    for (std::size_t bin = 0; bin < KxSignalProfile::Bins; ++bin) {
        sum += profile.share[bin] * (static_cast<double>(bin) + 0.5) / KxSignalProfile::Bins;
    }
    return sum / static_cast<double>(profile.Sum());
}

/// Two movers that cross the picture side by side; between them the map has the height `saddle`.
KxSignalProfile OfPair(float saddle, const KxSubjectOptions::Movers& options)
{
    KxMoverTracks tracks(options);
    for (int i = 0; i < 30; ++i) {
        const int left = 20 + 6 * i;
        cv::Mat picture = Picture({{left, 80, 16, 24}, {left + 40, 80, 16, 24}});
        picture(cv::Rect(left + 16, 80, 24, 24)).setTo(saddle);
        tracks.AddMap(i / 10.0, MapOf(picture), i == 0 ? std::nullopt : std::optional(Shift(0.0)));
    }
    return ProfileAt(15, KxAxis::Across, tracks.Finish(), options);
}

/// The largest part of a profile that a small change of the map moves.
double LargestStep(const KxSubjectOptions::Movers& options)
{
    double largest = 0.0;
    KxSignalProfile before = OfPair(0.2F, options);
    for (float saddle = 0.22F; saddle < 0.5F; saddle += 0.02F) {
        const KxSignalProfile now = OfPair(saddle, options);
        double moved = 0.0;
        for (std::size_t bin = 0; bin < KxSignalProfile::Bins; ++bin) {
            moved += std::abs(now.share[bin] - before.share[bin]);
        }
        largest = std::max(largest, moved);
        before = now;
    }
    return largest;
}

} // namespace

TEST(KxMoverTracks, AMoverThatLastsAndTravelsIsFollowedWithFullConfidence)
{
    const auto movers = Followed(30, [](int i) { return std::vector<cv::Rect>{{20 + 6 * i, 80, 24, 24}}; });
    ASSERT_EQ(movers.size(), 1U);
    const KxMover& mover = movers.front();
    EXPECT_EQ(KxMoverEvidence::ConfidenceIn(mover), 1.0);
    EXPECT_EQ(mover.firstSample, 0);
    EXPECT_EQ(mover.boxes.size(), 30U);
    for (const std::size_t sample : {0U, 12U, 29U}) {
        const double centre = (32.0 + 6.0 * static_cast<double>(sample)) / 320.0;
        EXPECT_NEAR(CentreOf(ProfileAt(sample, KxAxis::Across, movers)), centre, 0.015) << sample;
        EXPECT_NEAR(CentreOf(ProfileAt(sample, KxAxis::UpDown, movers)), 92.0 / 180.0, 0.015) << sample;
    }
}

TEST(KxMoverTracks, ATinyMoverCountsNearlyAsMuchAsALargeOne)
{
    const auto tiny = Followed(30, [](int i) { return std::vector<cv::Rect>{{20 + 6 * i, 80, 10, 10}}; });
    const auto large = Followed(30, [](int i) { return std::vector<cv::Rect>{{20 + 6 * i, 60, 80, 80}}; });
    ASSERT_EQ(tiny.size(), 1U);
    const double ofTiny = ProfileAt(15, KxAxis::Across, tiny).Sum();
    const double ofLarge = ProfileAt(15, KxAxis::Across, large).Sum();
    EXPECT_GT(ofTiny, 0.2);
    EXPECT_LT(ofLarge / ofTiny, 5.0) << "the areas differ by 64";
}

TEST(KxMoverTracks, AnObjectThatMovesInPlaceIsNotASubject)
{
    const auto movers = Followed(60, [](int i) { return std::vector<cv::Rect>{{100 + 2 * (i % 2), 80, 24, 24}}; });
    for (const KxMover& mover : movers) {
        EXPECT_LT(KxMoverEvidence::ConfidenceIn(mover), 0.15);
    }
}

TEST(KxMoverTracks, AnObjectThatMovesWithTheBackgroundInAPanIsNotASubject)
{
    const auto movers = Followed(
        30,
        [](int i) {
            return std::vector<cv::Rect>{{20 + 6 * i, 80, 24, 24}};
        },
        6.0);
    EXPECT_TRUE(movers.empty());
}

TEST(KxMoverTracks, AnObjectThatThePanKeepsInPlaceTravelsRelativeToTheBackground)
{
    const auto movers = Followed(
        30,
        [](int) {
            return std::vector<cv::Rect>{{140, 80, 24, 24}};
        },
        -6.0);
    ASSERT_EQ(movers.size(), 1U);
    EXPECT_EQ(KxMoverEvidence::ConfidenceIn(movers.front()), 1.0);
}

TEST(KxMoverTracks, RandomFlashesAreNotASubject)
{
    cv::RNG anywhere(7);
    const auto movers = Followed(200, [&anywhere](int) {
        return std::vector<cv::Rect>{{anywhere.uniform(0, 300), anywhere.uniform(0, 160), 20, 20}};
    });
    for (const KxMover& mover : movers) {
        EXPECT_LT(KxMoverEvidence::ConfidenceIn(mover), 0.25);
    }
}

TEST(KxMoverTracks, AShortGapIsBridged)
{
    const auto movers = Followed(30, [](int i) {
        return i >= 12 && i < 15 ? std::vector<cv::Rect>() : std::vector<cv::Rect>{{20 + 6 * i, 80, 24, 24}};
    });
    ASSERT_EQ(movers.size(), 1U);
    EXPECT_EQ(movers.front().boxes.size(), 30U);
    EXPECT_NEAR(CentreOf(ProfileAt(13, KxAxis::Across, movers)), (32.0 + 6.0 * 13.0) / 320.0, 0.02);
}

TEST(KxMoverTracks, BoxesOfMissedSamplesLieOnTheLineBetweenTheirNeighbours)
{
    const auto movers = Followed(30, [](int i) {
        return i >= 12 && i < 15 ? std::vector<cv::Rect>() : std::vector<cv::Rect>{{10 + 9 * i, 20 + 4 * i, 24, 24}};
    });
    ASSERT_EQ(movers.size(), 1U);
    const KxMover& mover = movers.front();
    ASSERT_EQ(mover.boxes.size(), 30U);
    const KxMover::Box before = mover.At(11);
    const KxMover::Box after = mover.At(15);
    ASSERT_GT(after.x - before.x, 0.09);
    for (std::size_t missed = 1; missed <= 3; ++missed) {
        const double part = static_cast<double>(missed) / 4.0;
        const KxMover::Box box = mover.At(11 + missed);
        constexpr double packing = 1.5 / 255.0;
        EXPECT_NEAR(box.x, before.x + part * (after.x - before.x), packing) << missed;
        EXPECT_NEAR(box.y, before.y + part * (after.y - before.y), packing) << missed;
        EXPECT_NEAR(box.width, before.width + part * (after.width - before.width), 2.0 * packing) << missed;
        EXPECT_NEAR(box.height, before.height + part * (after.height - before.height), 2.0 * packing) << missed;
    }
}

TEST(KxMoverTracks, TwoMoversThatPassEachOtherStayTwoMovers)
{
    const auto movers = Followed(40, [](int i) {
        return std::vector<cv::Rect>{{10 + 7 * i, 40, 24, 24}, {290 - 7 * i, 110, 24, 24}};
    });
    ASSERT_EQ(movers.size(), 2U);
    for (const KxMover& mover : movers) {
        EXPECT_EQ(mover.boxes.size(), 40U);
        EXPECT_LT(std::abs(mover.At(39).y - mover.At(0).y), 0.02) << "each stays at its height";
    }
}

TEST(KxMoverTracks, AnotherSceneEndsEveryTrack)
{
    KxMoverTracks tracks(OneLevel());
    for (int i = 0; i < 40; ++i) {
        const auto camera = i % 20 == 0 ? std::nullopt : std::optional(Shift(0.0));
        tracks.AddMap(i / 10.0, MapOf(Picture({{20 + 6 * i, 80, 24, 24}})), camera);
    }
    const std::vector<KxMover> movers = tracks.Finish();
    ASSERT_EQ(movers.size(), 2U);
    EXPECT_TRUE(movers[0].Covers(19));
    EXPECT_FALSE(movers[0].Covers(20));
    EXPECT_EQ(movers[1].firstSample, 20);
}

TEST(KxMoverTracks, NothingMovesInEmptyMaps)
{
    const auto movers = Followed(10, [](int) { return std::vector<cv::Rect>(); });
    EXPECT_TRUE(movers.empty());
    EXPECT_EQ(ProfileAt(4, KxAxis::Across, movers).Sum(), 0.0F);
}

TEST(KxMoverTracks, AMoverIsFollowedAtEachLevelAndCountsOnce)
{
    const auto place = [](int i) { return std::vector<cv::Rect>{{20 + 6 * i, 80, 24, 24}}; };
    const KxSubjectOptions::Movers options;
    KxMoverTracks tracks(options);
    for (int i = 0; i < 30; ++i) {
        tracks.AddMap(i / 10.0, MapOf(Picture(place(i))), i == 0 ? std::nullopt : std::optional(Shift(0.0)));
    }
    const std::vector<KxMover> movers = tracks.Finish();
    EXPECT_EQ(movers.size(), static_cast<std::size_t>(options.levels));
    const KxSignalProfile alone = ProfileAt(15, KxAxis::Across, Followed(30, place));
    EXPECT_NEAR(ProfileAt(15, KxAxis::Across, movers, options).Sum(), alone.Sum(), 0.02);
    EXPECT_NEAR(CentreOf(ProfileAt(15, KxAxis::Across, movers, options)), CentreOf(alone), 0.005);
}

TEST(KxMoverTracks, WhetherTwoMoversAreOneChangesGradually)
{
    EXPECT_LT(LargestStep({}), 0.5 * LargestStep(OneLevel()));
}
