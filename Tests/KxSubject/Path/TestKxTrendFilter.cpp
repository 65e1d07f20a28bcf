#include <KxSubject/Path/KxTrendFilter.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace
{

KxTrendFilter::Settings Usual()
{
    KxTrendFilter::Settings settings;
    settings.stillSpeed = 0.004;
    return settings;
}

double Travel(const std::vector<double>& line)
{
    double travel = 0.0;
    for (std::size_t i = 1; i < line.size(); ++i) {
        travel += std::abs(line[i] - line[i - 1]);
    }
    return travel;
}

double LargestStep(const std::vector<double>& line)
{
    double largest = 0.0;
    for (std::size_t i = 1; i < line.size(); ++i) {
        largest = std::max(largest, std::abs(line[i] - line[i - 1]));
    }
    return largest;
}

} // namespace

TEST(KxTrendFilter, ShortLinesAreAccepted)
{
    EXPECT_TRUE(KxTrendFilter(Usual()).Smooth({}, KxCancelToken()).empty());
    EXPECT_EQ(KxTrendFilter(Usual()).Smooth({0.4}, KxCancelToken()), std::vector<double>{0.4});
    for (std::size_t size = 2; size < 6; ++size) {
        const std::vector<double> line = KxTrendFilter(Usual()).Smooth(std::vector<double>(size, 0.3), KxCancelToken());
        ASSERT_EQ(line.size(), size);
        for (const double value : line) {
            EXPECT_NEAR(value, 0.3, 1e-9);
        }
    }
}

TEST(KxTrendFilter, ANoisyStillLineBecomesExactlyStill)
{
    std::vector<double> wanted;
    for (int i = 0; i < 100; ++i) {
        wanted.push_back(0.4 + 0.015 * std::sin(i * 2.3) + 0.01 * std::sin(i * 0.7));
    }
    const std::vector<double> line = KxTrendFilter(Usual()).Smooth(wanted, KxCancelToken());
    EXPECT_EQ(LargestStep(line), 0.0);
    EXPECT_NEAR(line.front(), 0.4, 0.01);
}

TEST(KxTrendFilter, ARampBecomesAConstantPan)
{
    std::vector<double> wanted;
    for (int i = 0; i < 80; ++i) {
        wanted.push_back(0.2 + 0.006 * i + 0.008 * std::sin(i * 1.9));
    }
    const std::vector<double> line = KxTrendFilter(Usual()).Smooth(wanted, KxCancelToken());
    for (std::size_t i = 15; i + 16 < line.size(); ++i) {
        EXPECT_NEAR(line[i + 1] - line[i], 0.006, 0.0012) << i;
    }
    for (std::size_t i = 20; i + 22 < line.size(); ++i) {
        EXPECT_LT(std::abs(line[i + 2] - 2.0 * line[i + 1] + line[i]), 2e-4) << i;
    }
}

TEST(KxTrendFilter, AStepIsPassedSmoothlyBetweenTwoStillSpans)
{
    std::vector<double> wanted(100, 0.3);
    std::fill(wanted.begin() + 50, wanted.end(), 0.6);
    const std::vector<double> line = KxTrendFilter(Usual()).Smooth(wanted, KxCancelToken());
    EXPECT_EQ(line[0], line[20]);
    EXPECT_EQ(line[80], line[99]);
    EXPECT_NEAR(line[0], 0.3, 0.02);
    EXPECT_NEAR(line[99], 0.6, 0.02);
    EXPECT_LT(LargestStep(line), 0.08);
    EXPECT_NEAR(Travel(line), line[99] - line[0], 1e-9);
}

TEST(KxTrendFilter, AShortExcursionIsNotFollowed)
{
    std::vector<double> wanted(80, 0.3);
    wanted[40] = wanted[41] = 0.8;
    EXPECT_EQ(LargestStep(KxTrendFilter(Usual()).Smooth(wanted, KxCancelToken())), 0.0);
}

TEST(KxTrendFilter, ALineNeverLeavesItsBounds)
{
    std::vector<double> wanted;
    for (int i = 0; i < 120; ++i) {
        wanted.push_back(0.5 + 0.3 * std::sin(i * 0.15));
    }
    KxTrendFilter::Settings settings = Usual();
    settings.lowest = 0.2;
    settings.highest = 0.8;
    for (const double value : KxTrendFilter(settings).Smooth(wanted, KxCancelToken())) {
        EXPECT_GE(value, 0.2);
        EXPECT_LE(value, 0.8);
    }
}

TEST(KxTrendFilter, MoreSmoothingTravelsLess)
{
    std::vector<double> wanted;
    for (int i = 0; i < 150; ++i) {
        wanted.push_back(0.5 + 0.12 * std::sin(i * 0.12) + 0.05 * std::sin(i * 0.5));
    }
    const auto travel = [&wanted](double scale) {
        KxTrendFilter::Settings settings = Usual();
        settings.speedWeight *= scale;
        settings.accelerationWeight *= scale;
        settings.jerkWeight *= scale;
        return Travel(KxTrendFilter(settings).Smooth(wanted, KxCancelToken()));
    };
    EXPECT_GT(travel(0.35), travel(1.0));
    EXPECT_GT(travel(1.0), travel(2.0));
}

TEST(KxTrendFilter, ACancelledFilterDoesNotIterate)
{
    KxTrendFilter::Settings settings = Usual();
    settings.iterations = std::numeric_limits<int>::max();
    KxCancelToken cancel;
    cancel.Cancel();
    EXPECT_EQ(KxTrendFilter(settings).Smooth({0.2, 0.8, 0.2, 0.8, 0.2}, cancel).size(), 5U);
}
