#include <KxSubject/Signals/KxMotionMap.h>

#include <opencv2/imgproc.hpp>

#include <algorithm>
#include <cmath>

namespace
{

cv::Mat SlopeOf(const cv::Mat& grey)
{
    cv::Mat across;
    cv::Mat down;
    cv::spatialGradient(grey, across, down);
    across.convertTo(across, CV_32F);
    down.convertTo(down, CV_32F);
    cv::Mat slope;
    cv::magnitude(across, down, slope);
    constexpr double sobelGain = 8.0;
    slope /= sobelGain;
    return slope;
}

} // namespace

cv::Size KxMotionMap::HalfOf(cv::Size picturePx)
{
    return {(picturePx.width + 1) / 2, (picturePx.height + 1) / 2};
}

KxMotionMap::KxMotionMap(const KxSubjectOptions::Motion& options)
    : m_options(options)
{
}

void KxMotionMap::ClearBorder(cv::Mat& map, cv::Size picturePx, const cv::Matx33d& movement) const
{
    const auto right = static_cast<float>(picturePx.width - 1);
    const auto bottom = static_cast<float>(picturePx.height - 1);
    const std::vector<cv::Point2f> corners{{0.0F, 0.0F}, {right, 0.0F}, {right, bottom}, {0.0F, bottom}};
    std::vector<cv::Point2f> warped;
    cv::perspectiveTransform(corners, warped, movement);
    std::vector<cv::Point> outline;
    for (const cv::Point2f& corner : warped) {
        outline.emplace_back(cvRound(corner.x / 2.0F), cvRound(corner.y / 2.0F));
    }
    cv::Mat inside(map.size(), CV_8UC1, cv::Scalar(0));
    cv::fillConvexPoly(inside, outline, cv::Scalar(255));
    const int border = std::min((m_options.borderPx + 1) / 2, std::min(map.cols, map.rows) / 8);
    cv::erode(inside, inside, cv::getStructuringElement(cv::MORPH_RECT, cv::Size(2 * border + 1, 2 * border + 1)),
              cv::Point(-1, -1), 1, cv::BORDER_CONSTANT, cv::Scalar(0));
    map.setTo(0.0F, inside == 0);
}

cv::Mat KxMotionMap::Difference(const cv::Mat& now, const cv::Mat& slope, const KxNeighbourPicture& other) const
{
    cv::Mat warped;
    cv::warpPerspective(other.grey, warped, other.movement, now.size(), cv::INTER_LINEAR, cv::BORDER_REPLICATE);
    cv::Mat difference;
    cv::absdiff(warped, now, difference);
    cv::Mat map(now.size(), CV_32FC1);
    const auto tolerated = static_cast<float>(m_options.toleratedPx);
    const auto full = static_cast<float>(m_options.fullPx);
    const auto differenceFloor = static_cast<float>(m_options.differenceFloor);
    const auto gradientFloor = static_cast<float>(m_options.gradientFloor);
    for (int y = 0; y < map.rows; ++y) {
        const auto* change = difference.ptr<uchar>(y);
        const auto* steep = slope.ptr<float>(y);
        auto* out = map.ptr<float>(y);
        for (int x = 0; x < map.cols; ++x) {
            const float excess = static_cast<float>(change[x]) - differenceFloor - tolerated * steep[x];
            out[x] = std::clamp(excess / (gradientFloor + steep[x]), 0.0F, full);
        }
    }
    return map;
}

cv::Mat KxMotionMap::Of(const cv::Mat& now, const std::vector<KxNeighbourPicture>& neighbours) const
{
    const cv::Size halfPx = HalfOf(now.size());
    if (neighbours.empty()) {
        return cv::Mat::zeros(halfPx, CV_32FC1);
    }
    const cv::Mat slope = SlopeOf(now);
    cv::Mat whole = Difference(now, slope, neighbours.front());
    for (std::size_t i = 1; i < neighbours.size(); ++i) {
        whole = cv::min(whole, Difference(now, slope, neighbours[i]));
    }
    cv::Mat map;
    cv::resize(whole, map, halfPx, 0.0, 0.0, cv::INTER_AREA);
    for (const KxNeighbourPicture& neighbour : neighbours) {
        ClearBorder(map, now.size(), neighbour.movement);
    }
    cv::GaussianBlur(map, map, cv::Size(), m_options.blurSigmaPx / 2.0);
    return map;
}
