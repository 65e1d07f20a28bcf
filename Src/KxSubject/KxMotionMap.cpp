#include "KxMotionMap.h"

#include <opencv2/calib3d.hpp>
#include <opencv2/imgproc.hpp>
#include <opencv2/video/tracking.hpp>

#include <algorithm>
#include <cmath>

namespace
{

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

} // namespace

KxMotionMap::KxMotionMap(const KxSubjectOptions::Motion& options)
    : m_options(options)
{
}

cv::Matx33d KxMotionMap::CameraMovement(const cv::Mat& before, const cv::Mat& now) const
{
    std::vector<cv::Point2f> corners;
    cv::goodFeaturesToTrack(before, corners, m_options.corners, m_options.cornerQuality, m_options.cornerDistancePx);
    if (static_cast<int>(corners.size()) < m_options.leastFollowed) {
        return cv::Matx33d::eye();
    }
    std::vector<cv::Point2f> moved;
    std::vector<uchar> found;
    std::vector<float> errors;
    cv::calcOpticalFlowPyrLK(before, now, corners, moved, found, errors, cv::Size(15, 15), 3,
                             cv::TermCriteria(cv::TermCriteria::COUNT + cv::TermCriteria::EPS, 12, 0.03));
    std::vector<cv::Point2f> from;
    std::vector<cv::Point2f> to;
    for (std::size_t i = 0; i < corners.size(); ++i) {
        if (found[i] != 0) {
            from.push_back(corners[i]);
            to.push_back(moved[i]);
        }
    }
    if (static_cast<int>(from.size()) < m_options.leastFollowed) {
        return cv::Matx33d::eye();
    }
    const cv::Mat movement = cv::findHomography(from, to, cv::RANSAC, m_options.inlierPx, cv::noArray(), 500, 0.995);
    return IsPlausible(movement, now.size()) ? cv::Matx33d(movement) : cv::Matx33d::eye();
}

void KxMotionMap::ClearBorder(cv::Mat& map, const cv::Matx33d& movement) const
{
    const auto right = static_cast<float>(map.cols - 1);
    const auto bottom = static_cast<float>(map.rows - 1);
    const std::vector<cv::Point2f> corners{{0.0F, 0.0F}, {right, 0.0F}, {right, bottom}, {0.0F, bottom}};
    std::vector<cv::Point2f> warped;
    cv::perspectiveTransform(corners, warped, movement);
    std::vector<cv::Point> outline;
    for (const cv::Point2f& corner : warped) {
        outline.emplace_back(cvRound(corner.x), cvRound(corner.y));
    }
    cv::Mat inside(map.size(), CV_8UC1, cv::Scalar(0));
    cv::fillConvexPoly(inside, outline, cv::Scalar(255));
    const int border = std::min(m_options.borderPx, std::min(map.cols, map.rows) / 8);
    cv::erode(inside, inside, cv::getStructuringElement(cv::MORPH_RECT, cv::Size(2 * border + 1, 2 * border + 1)),
              cv::Point(-1, -1), 1, cv::BORDER_CONSTANT, cv::Scalar(0));
    map.setTo(0.0F, inside == 0);
}

cv::Mat KxMotionMap::Between(const cv::Mat& before, const cv::Mat& now) const
{
    const cv::Matx33d movement = CameraMovement(before, now);
    cv::Mat warped;
    cv::warpPerspective(before, warped, movement, now.size(), cv::INTER_LINEAR, cv::BORDER_REPLICATE);
    cv::Mat difference;
    cv::absdiff(warped, now, difference);
    cv::Mat across;
    cv::Mat down;
    cv::spatialGradient(now, across, down);

    cv::Mat map(now.size(), CV_32FC1);
    const auto tolerated = static_cast<float>(m_options.toleratedPx);
    const auto full = static_cast<float>(m_options.fullPx);
    const auto differenceFloor = static_cast<float>(m_options.differenceFloor);
    const auto gradientFloor = static_cast<float>(m_options.gradientFloor);
    for (int y = 0; y < map.rows; ++y) {
        const auto* change = difference.ptr<uchar>(y);
        const auto* gx = across.ptr<short>(y);
        const auto* gy = down.ptr<short>(y);
        auto* out = map.ptr<float>(y);
        for (int x = 0; x < map.cols; ++x) {
            const auto slopeX = static_cast<float>(gx[x]) / 8.0F;
            const auto slopeY = static_cast<float>(gy[x]) / 8.0F;
            const float slope = std::sqrt(slopeX * slopeX + slopeY * slopeY);
            const float excess = static_cast<float>(change[x]) - differenceFloor - tolerated * slope;
            out[x] = std::clamp(excess / (gradientFloor + slope), 0.0F, full);
        }
    }
    ClearBorder(map, movement);
    cv::GaussianBlur(map, map, cv::Size(), m_options.blurSigmaPx);
    return map;
}
