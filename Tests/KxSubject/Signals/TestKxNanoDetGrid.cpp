#include <KxSubject/Signals/KxNanoDetGrid.h>

#include <opencv2/core.hpp>

#include <gtest/gtest.h>

#include <array>
#include <limits>
#include <optional>

namespace
{

constexpr int StridePx = 32;
const cv::Size InputPx(128, 64); ///< 4 x 2 places
constexpr float Threshold = 0.35F;
constexpr int Person = 0;
constexpr int Dog = 16;
constexpr int Car = 2;

/// A grid in which nothing is found.
KxNanoDetGrid EmptyGrid()
{
    const int places = KxNanoDetPlaces(InputPx, StridePx);
    return {cv::Mat::zeros(places, KxNanoDetGrid::Classes, CV_32F),
            cv::Mat::zeros(places, KxNanoDetGrid::Sides, CV_32F), StridePx};
}

/// Sets the distances of a place to whole bins: left, top, right, bottom.
void SetSides(KxNanoDetGrid& grid, int place, const std::array<int, 4>& bins)
{
    for (int side = 0; side < 4; ++side) {
        grid.sides.at<float>(place, side * KxNanoDetGrid::Bins + bins.at(static_cast<std::size_t>(side))) = 100.0F;
    }
}

std::vector<KxNanoDetBox> Read(const KxNanoDetGrid& grid)
{
    std::vector<KxNanoDetBox> boxes;
    KxReadNanoDetGrid(grid, InputPx, Threshold, boxes);
    return boxes;
}

KxNanoDetBox Box(const cv::Rect2d& box, float score, KxDetectionKind kind = KxDetectionKind::Person)
{
    return {box, score, kind};
}

} // namespace

TEST(KxNanoDetGrid, ABoxLiesAroundTheCentreOfItsPlace)
{
    KxNanoDetGrid grid = EmptyGrid();
    grid.scores.at<float>(6, Person) = 0.8F; // third column, second row
    SetSides(grid, 6, {1, 0, 2, 3});
    const std::vector<KxNanoDetBox> boxes = Read(grid);
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_NEAR(boxes[0].box.x, 80 - 32, 1e-6);
    EXPECT_NEAR(boxes[0].box.y, 48, 1e-6);
    EXPECT_NEAR(boxes[0].box.br().x, 80 + 64, 1e-6);
    EXPECT_NEAR(boxes[0].box.br().y, 48 + 96, 1e-6);
    EXPECT_FLOAT_EQ(boxes[0].score, 0.8F);
    EXPECT_EQ(boxes[0].kind, KxDetectionKind::Person);
}

TEST(KxNanoDetGrid, ADistanceIsTheMeanOfItsDistribution)
{
    KxNanoDetGrid grid = EmptyGrid();
    grid.scores.at<float>(0, Person) = 0.8F;
    // Left: two bins of equal weight, large enough to overflow a plain exponential. The others: all bins alike.
    grid.sides.at<float>(0, 2) = 1000.0F;
    grid.sides.at<float>(0, 3) = 1000.0F;
    const std::vector<KxNanoDetBox> boxes = Read(grid);
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_NEAR(boxes[0].box.x, 16 - 2.5 * 32, 1e-6);
    EXPECT_NEAR(boxes[0].box.y, 16 - 5.0 * 32, 1e-6);
    EXPECT_NEAR(boxes[0].box.br().x, 16 + 5.0 * 32, 1e-6);
}

TEST(KxNanoDetGrid, OnlyPeopleVehiclesAndAnimalsCount)
{
    for (int kind = 0; kind < KxNanoDetGrid::Classes; ++kind) {
        KxNanoDetGrid grid = EmptyGrid();
        grid.scores.at<float>(0, kind) = 0.9F;
        std::optional<KxDetectionKind> expected;
        if (kind == Person) {
            expected = KxDetectionKind::Person;
        } else if (kind <= 8) {
            expected = KxDetectionKind::Vehicle;
        } else if (kind >= 14 && kind <= 23) {
            expected = KxDetectionKind::Animal;
        }
        const std::vector<KxNanoDetBox> boxes = Read(grid);
        ASSERT_EQ(boxes.size(), expected ? 1U : 0U) << kind;
        if (expected) {
            EXPECT_EQ(boxes[0].kind, *expected) << kind;
        }
    }
}

TEST(KxNanoDetGrid, TheHigherScoreDecidesBetweenPersonAndAnimal)
{
    KxNanoDetGrid grid = EmptyGrid();
    grid.scores.at<float>(0, Person) = 0.5F;
    grid.scores.at<float>(0, Dog) = 0.6F;
    ASSERT_EQ(Read(grid).size(), 1U);
    EXPECT_EQ(Read(grid)[0].kind, KxDetectionKind::Animal);
    EXPECT_FLOAT_EQ(Read(grid)[0].score, 0.6F);
}

TEST(KxNanoDetGrid, WhoRidesInAVehicleIsFoundBesidesIt)
{
    KxNanoDetGrid grid = EmptyGrid();
    grid.scores.at<float>(0, Person) = 0.5F;
    grid.scores.at<float>(0, Car) = 0.9F;
    const std::vector<KxNanoDetBox> boxes = Read(grid);
    ASSERT_EQ(boxes.size(), 2U);
    EXPECT_EQ(boxes[0].kind, KxDetectionKind::Person);
    EXPECT_FLOAT_EQ(boxes[0].score, 0.5F);
    EXPECT_EQ(boxes[1].kind, KxDetectionKind::Vehicle);
    EXPECT_FLOAT_EQ(boxes[1].score, 0.9F);
}

TEST(KxNanoDetGrid, AScoreBelowTheThresholdIsNothing)
{
    KxNanoDetGrid grid = EmptyGrid();
    grid.scores.at<float>(3, Person) = 0.34F;
    EXPECT_TRUE(Read(grid).empty());
    grid.scores.at<float>(3, Person) = 0.36F;
    EXPECT_EQ(Read(grid).size(), 1U);
}

TEST(KxNanoDetGrid, ScoresThatAreNoNumbersAreNothing)
{
    KxNanoDetGrid grid = EmptyGrid();
    grid.scores.setTo(std::numeric_limits<float>::quiet_NaN());
    EXPECT_TRUE(Read(grid).empty());
}

TEST(KxNanoDetGrid, OfOverlappingBoxesTheHighestScoreRemains)
{
    const std::vector<KxNanoDetBox> kept = KxSuppressOverlaps(
        {Box({0, 0, 100, 100}, 0.5F), Box({10, 0, 100, 100}, 0.7F), Box({300, 0, 100, 100}, 0.6F)}, 0.6F);
    ASSERT_EQ(kept.size(), 2U);
    EXPECT_FLOAT_EQ(kept[0].score, 0.7F);
    EXPECT_FLOAT_EQ(kept[1].score, 0.6F);
}

TEST(KxNanoDetGrid, BoxesThatOverlapLittleAllRemain)
{
    // 50 of 150 are in common.
    EXPECT_EQ(KxSuppressOverlaps({Box({0, 0, 100, 1}, 0.5F), Box({50, 0, 100, 1}, 0.7F)}, 0.34F).size(), 2U);
    EXPECT_EQ(KxSuppressOverlaps({Box({0, 0, 100, 1}, 0.5F), Box({50, 0, 100, 1}, 0.7F)}, 0.33F).size(), 1U);
}

TEST(KxNanoDetGrid, AnAnimalDoesNotSuppressThePersonWhoHoldsIt)
{
    EXPECT_EQ(
        KxSuppressOverlaps({Box({0, 0, 100, 100}, 0.5F), Box({0, 0, 100, 100}, 0.7F, KxDetectionKind::Animal)}, 0.6F)
            .size(),
        2U);
}
