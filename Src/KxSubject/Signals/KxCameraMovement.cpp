#include <KxSubject/Signals/KxCameraMovement.h>

#include <opencv2/calib3d.hpp>
#include <opencv2/core/hal/hal.hpp>
#include <opencv2/imgproc.hpp>
#include <opencv2/video/tracking.hpp>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>

namespace
{

constexpr std::size_t LeastFollowed = 12; ///< corners; with fewer the camera counts as static
constexpr double LeastStrength = 4.0;     ///< a slope of a quarter of a grey level
/// Lucas-Kanade compares eight columns at once: a window of 15 takes nearly twice as long.
constexpr int WindowPx = 16;
constexpr int PyramidLevels = 2;

cv::Mat HalfOf(const cv::Mat& grey)
{
    cv::Mat half;
    cv::resize(grey, half, {(grey.cols + 1) / 2, (grey.rows + 1) / 2}, 0.0, 0.0, cv::INTER_AREA);
    return half;
}

bool IsPlausible(const cv::Mat& movement, cv::Size size)
{
    if (movement.empty() || !cv::checkRange(movement)) {
        return false;
    }
    const cv::Matx33d m = movement;
    const double determinant = m(0, 0) * m(1, 1) - m(0, 1) * m(1, 0);
    return determinant > 0.5 && determinant < 2.0 && std::abs(m(2, 0)) * size.width < 0.3 &&
           std::abs(m(2, 1)) * size.height < 0.3;
}

/// Products of the slopes in a row.
struct SlopeProducts {
    std::vector<float> acrossSquared;
    std::vector<float> downSquared;
    std::vector<float> mixed;
};

void Multiply(const std::int16_t* across, const std::int16_t* down, SlopeProducts& products)
{
    for (std::size_t x = 0; x < products.mixed.size(); ++x) {
        const auto acrossHere = static_cast<float>(across[x]);
        const auto downHere = static_cast<float>(down[x]);
        products.acrossSquared[x] = acrossHere * acrossHere;
        products.downSquared[x] = downHere * downHere;
        products.mixed[x] = acrossHere * downHere;
    }
}

/// The sums of blocks of three by three, for the middle row; at its ends the row is mirrored. `columns` is for
/// intermediate results and has two values more.
void SumBlocks(const std::vector<float>& above, const std::vector<float>& here, const std::vector<float>& below,
               std::vector<float>& columns, std::vector<float>& sums)
{
    const std::size_t count = sums.size();
    for (std::size_t x = 0; x < count; ++x) {
        columns[x + 1] = above[x] + here[x] + below[x];
    }
    columns.front() = columns[std::min<std::size_t>(2, count)];
    columns.back() = columns[std::max<std::size_t>(count, 2) - 1];
    for (std::size_t x = 0; x < count; ++x) {
        sums[x] = columns[x] + columns[x + 1] + columns[x + 2];
    }
}

/// The smaller eigenvalue of the structure tensor (Shi and Tomasi 1994), up to a factor. cv::cornerMinEigenVal and
/// cv::boxFilter give the same in many times the time: here, three rows at once stay in the processor's cache.
cv::Mat StrengthOf(const cv::Mat& grey)
{
    cv::Mat across;
    cv::Mat down;
    cv::spatialGradient(grey, across, down);
    const auto count = static_cast<std::size_t>(grey.cols);
    const std::vector<float> empty(count);
    std::array<SlopeProducts, 3> rows;
    rows.fill({empty, empty, empty});
    std::vector<float> columns(count + 2);
    std::vector<float> acrossSquared = empty;
    std::vector<float> downSquared = empty;
    std::vector<float> mixed = empty;
    std::vector<float> root = empty;
    const auto productsOf = [&rows](int y) -> SlopeProducts& { return rows[static_cast<std::size_t>(y % 3)]; };
    const int last = grey.rows - 1;
    cv::Mat strength(grey.size(), CV_32FC1);
    Multiply(across.ptr<std::int16_t>(0), down.ptr<std::int16_t>(0), productsOf(0));
    for (int y = 0; y <= last; ++y) {
        if (y < last) {
            Multiply(across.ptr<std::int16_t>(y + 1), down.ptr<std::int16_t>(y + 1), productsOf(y + 1));
        }
        const SlopeProducts& here = productsOf(y);
        const SlopeProducts& above = productsOf(y > 0 ? y - 1 : std::min(1, last));
        const SlopeProducts& below = productsOf(y < last ? y + 1 : std::max(last - 1, 0));
        SumBlocks(above.acrossSquared, here.acrossSquared, below.acrossSquared, columns, acrossSquared);
        SumBlocks(above.downSquared, here.downSquared, below.downSquared, columns, downSquared);
        SumBlocks(above.mixed, here.mixed, below.mixed, columns, mixed);
        auto* out = strength.ptr<float>(y);
        for (std::size_t x = 0; x < count; ++x) {
            out[x] = acrossSquared[x] + downSquared[x];
            acrossSquared[x] -= downSquared[x];
            mixed[x] *= 2.0F;
        }
        cv::hal::magnitude32f(acrossSquared.data(), mixed.data(), root.data(), grey.cols);
        constexpr float blockArea = 9.0F;
        for (std::size_t x = 0; x < count; ++x) {
            out[x] = (out[x] - root[x]) / blockArea;
        }
    }
    return strength;
}

} // namespace

KxCameraMovement::KxCameraMovement(const KxSubjectOptions::Camera& options)
    : m_options(options)
{
}

std::vector<cv::Point2f> KxCameraMovement::Corners(const cv::Mat& grey) const
{
    const cv::Mat strength = StrengthOf(grey);
    double strongest = 0.0;
    cv::minMaxLoc(strength, nullptr, &strongest);
    cv::Mat around;
    const int side = 2 * m_options.cornerDistancePx + 1;
    cv::dilate(strength, around, cv::getStructuringElement(cv::MORPH_RECT, {side, side}));

    const auto least = static_cast<float>(std::max(m_options.cornerQuality * strongest, LeastStrength));
    const bool wide = grey.cols >= grey.rows;
    const int columns = wide ? m_options.cellsAlong : m_options.cellsAcross;
    const int rows = wide ? m_options.cellsAcross : m_options.cellsAlong;
    struct Corner {
        float strength;
        cv::Point place;
    };
    std::vector<std::vector<Corner>> cells(static_cast<std::size_t>(columns) * static_cast<std::size_t>(rows));
    for (int y = 0; y < grey.rows; ++y) {
        const auto* value = strength.ptr<float>(y);
        const auto* largest = around.ptr<float>(y);
        for (int x = 0; x < grey.cols; ++x) {
            if (value[x] == largest[x] && value[x] > least) {
                const int cell = y * rows / grey.rows * columns + x * columns / grey.cols;
                cells[static_cast<std::size_t>(cell)].push_back({value[x], {x, y}});
            }
        }
    }
    std::vector<cv::Point2f> corners;
    for (std::vector<Corner>& cell : cells) {
        std::sort(cell.begin(), cell.end(), [](const Corner& a, const Corner& b) { return a.strength > b.strength; });
        cell.resize(std::min(cell.size(), static_cast<std::size_t>(m_options.cornersInCell)));
        for (const Corner& corner : cell) {
            corners.emplace_back(corner.place);
        }
    }
    return corners;
}

std::optional<cv::Matx33d> KxCameraMovement::Between(const cv::Mat& before, const cv::Mat& now) const
{
    const std::optional<cv::Matx33d> movement = BetweenHalves(HalfOf(before), HalfOf(now));
    // The middle of a pixel of the half lies between those of two pixels.
    const cv::Matx33d enlarge(2, 0, 0.5, 0, 2, 0.5, 0, 0, 1);
    return movement ? std::optional(enlarge * *movement * enlarge.inv()) : std::nullopt;
}

std::optional<cv::Matx33d> KxCameraMovement::BetweenHalves(const cv::Mat& before, const cv::Mat& now) const
{
    const std::vector<cv::Point2f> corners = Corners(before);
    if (corners.size() < LeastFollowed) {
        return cv::Matx33d::eye();
    }
    std::vector<cv::Point2f> moved;
    std::vector<uchar> found;
    cv::calcOpticalFlowPyrLK(before, now, corners, moved, found, cv::noArray(), {WindowPx, WindowPx}, PyramidLevels,
                             cv::TermCriteria(cv::TermCriteria::COUNT + cv::TermCriteria::EPS, 12, 0.03));
    std::vector<cv::Point2f> from;
    std::vector<cv::Point2f> to;
    for (std::size_t i = 0; i < corners.size(); ++i) {
        if (found[i] != 0) {
            from.push_back(corners[i]);
            to.push_back(moved[i]);
        }
    }
    if (from.size() < LeastFollowed) {
        return std::nullopt;
    }
    cv::Mat agrees;
    const cv::Mat movement = cv::findHomography(from, to, cv::USAC_FAST, m_options.inlierPx, agrees, 500, 0.995);
    if (cv::countNonZero(agrees) < m_options.agreeingShare * static_cast<double>(corners.size()) ||
        !IsPlausible(movement, now.size())) {
        return std::nullopt;
    }
    return cv::Matx33d(movement);
}
