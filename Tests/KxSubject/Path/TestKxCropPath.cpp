#include <KxSubject/Path/KxCropPath.h>

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>

using testing::Each;
using testing::SizeIs;

namespace
{

constexpr double FrameRate = 30.0;
const KxCropGeometry Portrait({1920, 1080}, {9, 16}, {0.0, 0.0, 1.0, 1.0});
const KxSubjectOptions Options;

std::vector<double> Draw(const std::vector<KxPathPoint>& points, std::int64_t first, std::int64_t end,
                         KxMotionSpeed speed = KxMotionSpeed::Auto)
{
    return KxCropPath(Options.path, Options.For(speed), Portrait)
        .Draw(points, {first, end, FrameRate}, 0.5, KxCancelToken());
}

template<typename Function>
std::vector<KxPathPoint> Points(std::int64_t first, std::int64_t end, Function centre)
{
    std::vector<KxPathPoint> points;
    for (std::int64_t frame = first; frame < end; frame += 3) {
        points.push_back({frame, centre(static_cast<double>(frame - first) / FrameRate)});
    }
    return points;
}

double MeanDistance(const std::vector<double>& line, const std::vector<KxPathPoint>& points)
{
    double sum = 0.0;
    for (const KxPathPoint& point : points) {
        sum += std::abs(line[static_cast<std::size_t>(point.frame)] - point.centre);
    }
    return sum / static_cast<double>(points.size());
}

} // namespace

TEST(KxCropPath, NoPointGivesTheFallback)
{
    EXPECT_THAT(Draw({}, 0, 20), testing::AllOf(SizeIs(20), Each(0.5)));
    EXPECT_THAT(Draw({}, 5, 5), SizeIs(0));
}

TEST(KxCropPath, WithOnePointTheCropStaysThere)
{
    EXPECT_THAT(Draw({{7, 0.3}}, 5, 12), testing::AllOf(SizeIs(7), Each(0.3)));
}

TEST(KxCropPath, ASmallRangeIsExactlyStill)
{
    const auto line = Draw(Points(0, 300, [](double s) { return 0.4 + 0.02 * std::sin(s); }), 0, 300);
    EXPECT_THAT(line, Each(line.front()));
    EXPECT_NEAR(line.front(), 0.4, 0.02);
}

TEST(KxCropPath, AWideCropIsAsReadyToMoveAsANarrowOne)
{
    const auto points = Points(0, 300, [](double s) { return 0.4 + 0.04 * std::sin(0.6 * s); });
    const KxCropGeometry square({1920, 1080}, {1, 1}, {0.0, 0.0, 1.0, 1.0});
    const auto line =
        KxCropPath(Options.path, Options.automatic, square).Draw(points, {0, 300, FrameRate}, 0.5, KxCancelToken());
    const auto narrow = Draw(points, 0, 300);
    ASSERT_EQ(line.size(), narrow.size());
    for (std::size_t i = 0; i < line.size(); ++i) {
        EXPECT_NEAR(line[i], narrow[i], 1e-9) << i;
    }
    EXPECT_GT(*std::max_element(line.begin(), line.end()) - *std::min_element(line.begin(), line.end()), 0.02);
}

TEST(KxCropPath, AFewOutliersDoNotMakeItMove)
{
    auto points = Points(0, 300, [](double) { return 0.4; });
    points[30].centre = 0.8;
    points[31].centre = 0.8;
    EXPECT_THAT(Draw(points, 0, 300), Each(0.4));
}

TEST(KxCropPath, AWalkIsFollowedAtAConstantSpeed)
{
    const auto points = Points(0, 240, [](double s) { return 0.2 + 0.07 * s; });
    const auto line = Draw(points, 0, 240);
    EXPECT_LT(MeanDistance(line, points), 0.03);
    for (std::size_t i = 60; i < 180; ++i) {
        EXPECT_NEAR(line[i + 1] - line[i], 0.07 / FrameRate, 5e-4);
    }
}

TEST(KxCropPath, SpeedAndAccelerationHaveNoJumps)
{
    const auto line = Draw(Points(0, 300, [](double s) { return s < 4.0 ? 0.25 : 0.7; }), 0, 300);
    for (std::size_t i = 0; i + 3 < line.size(); ++i) {
        const double jerk = line[i + 3] - 3.0 * line[i + 2] + 3.0 * line[i + 1] - line[i];
        EXPECT_LT(std::abs(jerk), 2e-3) << i;
    }
    EXPECT_EQ(line[0], line[30]);
    EXPECT_EQ(line[250], line[299]);
}

TEST(KxCropPath, APanSpeedsUpOnceAndSlowsDownOnce)
{
    const auto wanted = [](double s) {
        return std::clamp(0.25 + 0.06 * (s - 2.0) + 0.012 * std::sin(7.0 * s), 0.25, 0.6);
    };
    const auto line = Draw(Points(0, 300, wanted), 0, 300);
    double fastest = 0.0;
    double speedChanges = 0.0;
    double largestChange = 0.0;
    for (std::size_t i = 0; i + 2 < line.size(); ++i) {
        const double change = std::abs(line[i + 2] - 2.0 * line[i + 1] + line[i]);
        fastest = std::max(fastest, std::abs(line[i + 1] - line[i]));
        speedChanges += change;
        largestChange = std::max(largestChange, change);
    }
    EXPECT_GT(fastest, 0.05 / FrameRate);
    EXPECT_LT(speedChanges, 2.05 * fastest);
    EXPECT_LT(largestChange, fastest / 55.0) << "the eases are long";
}

TEST(KxCropPath, AtALowFrameRateEasesHaveEnoughFrames)
{
    const auto strongestJerk = [](double frameRate) {
        const auto second = static_cast<std::int64_t>(frameRate);
        const std::vector<double> line = KxCropPath(Options.path, Options.automatic, Portrait)
                                             .Draw({{0, 0.3}, {4 * second, 0.3}, {6 * second, 0.6}, {10 * second, 0.6}},
                                                   {0, 10 * second, frameRate}, 0.5, KxCancelToken());
        double strongest = 0.0;
        for (std::size_t i = 0; i + 3 < line.size(); ++i) {
            strongest = std::max(strongest, std::abs(line[i + 3] - 3.0 * (line[i + 2] - line[i + 1]) - line[i]));
        }
        return strongest;
    };
    EXPECT_LT(strongestJerk(10.0), 3.0 * strongestJerk(24.0));
}

TEST(KxCropPath, AShotThatBeginsLateHasAPathFromItsFirstFrame)
{
    const auto early = Draw(Points(0, 120, [](double s) { return 0.2 + 0.1 * s; }), 0, 120);
    const auto late = Draw(Points(1000, 1120, [](double s) { return 0.2 + 0.1 * s; }), 1000, 1120);
    ASSERT_EQ(early.size(), late.size());
    for (std::size_t i = 0; i < early.size(); ++i) {
        EXPECT_NEAR(early[i], late[i], 1e-9);
    }
}

TEST(KxCropPath, FastFollowsCloserThanAutoAndAutoThanSlow)
{
    const auto points = Points(0, 450, [](double s) { return 0.5 + 0.25 * std::sin(0.9 * s); });
    const double fast = MeanDistance(Draw(points, 0, 450, KxMotionSpeed::Fast), points);
    const double usual = MeanDistance(Draw(points, 0, 450, KxMotionSpeed::Auto), points);
    const double slow = MeanDistance(Draw(points, 0, 450, KxMotionSpeed::Slow), points);
    EXPECT_LT(fast, usual);
    EXPECT_LT(usual, slow);
}

TEST(KxCropPath, SparsePointsAreInterpolated)
{
    const auto line = Draw({{0, 0.3}, {90, 0.6}}, 0, 120);
    ASSERT_THAT(line, SizeIs(120));
    EXPECT_LT(line[10], line[80]);
    EXPECT_NEAR(line[0], 0.3, 0.03);
    EXPECT_NEAR(line[90], 0.6, 0.03);
}

TEST(KxCropPath, ThePathEasesIntoTheLimitOfItsRange)
{
    const double lowest = Portrait.MinimumCentre();
    const auto line = Draw(Points(0, 120, [lowest](double s) { return std::max(lowest, 0.5 - 0.1 * s); }), 0, 120);
    for (std::size_t i = 0; i + 3 < line.size(); ++i) {
        EXPECT_GE(line[i], lowest);
        EXPECT_LT(std::abs(line[i + 3] - 3.0 * line[i + 2] + 3.0 * line[i + 1] - line[i]), 2e-4) << i;
    }
}

TEST(KxCropPath, AShotOfOneFrameHasAPath)
{
    EXPECT_THAT(Draw({{0, 0.7}}, 0, 1), testing::ElementsAre(0.7));
}

TEST(KxCropPath, FarFromItsPointsThePathIsHeld)
{
    const std::int64_t weeks = 50000000;
    const auto points = Points(weeks, weeks + 240, [](double s) { return 0.25 + 0.06 * s; });
    const auto line = Draw(points, weeks - 2000000, weeks + 2000000);
    ASSERT_THAT(line, SizeIs(4000000));
    EXPECT_NEAR(line.front(), points.front().centre, 0.05);
    EXPECT_EQ(line[1000000], line.front());
    EXPECT_NEAR(line.back(), points.back().centre, 0.05);
    EXPECT_EQ(line[3000000], line.back());
}
