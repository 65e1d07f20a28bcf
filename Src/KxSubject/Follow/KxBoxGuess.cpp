#include <KxSubject/Follow/KxBoxGuess.h>

#include <opencv2/imgproc.hpp>

#include <algorithm>

namespace
{

/// Shares of the picture, each way from the point: what can be part of the thing at all, and what certainly is.
constexpr double ReachX = 0.22;
constexpr double ReachY = 0.45;
constexpr int Rounds = 3;
/// A region narrower or wider than this, in pictures, is not the thing alone.
constexpr double LeastWidth = 0.03;
constexpr double MostWidth = 0.6;
/// Less to compare on either side teaches nothing.
constexpr int LeastPixels = 16;

cv::Rect2d Centred(const cv::Point2d& point, const cv::Size2d& size)
{
    return {point.x - size.width / 2.0, point.y - size.height / 2.0, size.width, size.height};
}

/// The connected part of the mask that the point lies in or next to.
cv::Rect RegionAt(const cv::Mat& mask, const cv::Point& point, int nearPx)
{
    cv::Mat labels;
    cv::Mat stats;
    cv::Mat centres;
    const int count = cv::connectedComponentsWithStats(mask, labels, stats, centres, 8, CV_32S);
    const cv::Rect nearby = cv::Rect(point.x - nearPx, point.y - nearPx, 2 * nearPx + 1, 2 * nearPx + 1) &
                            cv::Rect(cv::Point(), mask.size());
    int best = 0;
    for (int y = nearby.y; y < nearby.br().y; ++y) {
        for (int x = nearby.x; x < nearby.br().x; ++x) {
            const int label = labels.at<int>(y, x);
            const bool isLarger =
                best == 0 || stats.at<int>(label, cv::CC_STAT_AREA) > stats.at<int>(best, cv::CC_STAT_AREA);
            best = label > 0 && isLarger ? label : best;
        }
    }
    if (count < 2 || best == 0) {
        return {};
    }
    return {stats.at<int>(best, cv::CC_STAT_LEFT), stats.at<int>(best, cv::CC_STAT_TOP),
            stats.at<int>(best, cv::CC_STAT_WIDTH), stats.at<int>(best, cv::CC_STAT_HEIGHT)};
}

} // namespace

KxBoxGuess::Guess KxBoxGuess::Around(const cv::Mat& picture, const cv::Point2d& point,
                                     const KxSubjectOptions::Follow& options)
{
    const cv::Size2d usual(options.pointWidth * picture.cols, options.pointHeight * picture.rows);
    const Guess fallback{Centred(point, usual)};
    const cv::Rect whole(cv::Point(), picture.size());
    const cv::Rect reach = cv::Rect(Centred(point, {2.0 * ReachX * picture.cols, 2.0 * ReachY * picture.rows})) & whole;
    cv::Mat labels(picture.size(), CV_8UC1, cv::Scalar(cv::GC_BGD));
    labels(reach).setTo(cv::Scalar(cv::GC_PR_BGD));
    cv::Mat seed(picture.size(), CV_8UC1, cv::Scalar(0));
    cv::ellipse(seed, cv::RotatedRect(point, usual, 0.0F), cv::Scalar(255), cv::FILLED);
    labels.setTo(cv::Scalar(cv::GC_PR_FGD), seed);
    const int likely = cv::countNonZero(seed);
    if (likely < LeastPixels || whole.area() - likely < LeastPixels) {
        return fallback;
    }
    // Its clusters start from random colours; the same click must give the same box.
    cv::theRNG().state = 1;
    cv::Mat background;
    cv::Mat foreground;
    cv::grabCut(picture, labels, whole, background, foreground, Rounds, cv::GC_INIT_WITH_MASK);
    const cv::Mat found = (labels == cv::GC_FGD) | (labels == cv::GC_PR_FGD);
    const cv::Rect region = RegionAt(found, point, std::max(1, picture.cols / 40));
    const bool isSane = region.width >= LeastWidth * picture.cols && region.width <= MostWidth * picture.cols;
    return isSane ? Guess{cv::Rect2d(region), true} : fallback;
}
