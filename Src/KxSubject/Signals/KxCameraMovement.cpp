#include <KxSubject/Signals/KxCameraMovement.h>

#include <opencv2/calib3d.hpp>
#include <opencv2/imgproc.hpp>
#include <opencv2/video/tracking.hpp>

#include <algorithm>
#include <cmath>

namespace
{

constexpr double LeastStrength = 4.0; ///< a slope of a quarter of a grey level
constexpr int WindowPx = 15;
constexpr int PyramidLevels = 3;

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

/// The sums of all blocks of three by three, for whole numbers below 2^20; beyond its edges the map is mirrored.
cv::Mat SumsOf(const cv::Mat& map)
{
    cv::Mat sums(map.size(), CV_32FC1);
    std::vector<float> columns(static_cast<std::size_t>(map.cols) + 2);
    const int lastRow = map.rows - 1;
    const int nextColumn = std::min(1, map.cols - 1);
    for (int y = 0; y <= lastRow; ++y) {
        const auto* above = map.ptr<float>(std::abs(y - 1) <= lastRow ? std::abs(y - 1) : 0);
        const auto* here = map.ptr<float>(y);
        const auto* below = map.ptr<float>(y < lastRow ? y + 1 : std::max(lastRow - 1, 0));
        float* inner = columns.data() + 1;
        for (int x = 0; x < map.cols; ++x) {
            inner[x] = above[x] + here[x] + below[x];
        }
        columns.front() = inner[nextColumn];
        columns.back() = inner[map.cols - 1 - nextColumn];
        const float* left = columns.data();
        auto* out = sums.ptr<float>(y);
        for (int x = 0; x < map.cols; ++x) {
            out[x] = left[x] + left[x + 1] + left[x + 2];
        }
    }
    return sums;
}

/// The smaller eigenvalue of the structure tensor (Shi and Tomasi 1994), up to a factor. cv::cornerMinEigenVal and
/// cv::boxFilter give the same in many times the time.
cv::Mat StrengthOf(const cv::Mat& grey)
{
    cv::Mat across;
    cv::Mat down;
    cv::spatialGradient(grey, across, down);
    across.convertTo(across, CV_32F);
    down.convertTo(down, CV_32F);
    const cv::Mat acrossSquared = SumsOf(across.mul(across));
    const cv::Mat downSquared = SumsOf(down.mul(down));
    const cv::Mat mixed = SumsOf(across.mul(down));
    cv::Mat root;
    cv::magnitude(acrossSquared - downSquared, 2.0 * mixed, root);
    constexpr double blockArea = 9.0;
    return (acrossSquared + downSquared - root) / blockArea;
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
            if (value[x] > least && value[x] == largest[x]) {
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
    const std::vector<cv::Point2f> corners = Corners(before);
    const auto enough = static_cast<std::size_t>(m_options.leastFollowed);
    if (corners.size() < enough) {
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
    if (from.size() < enough) {
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
