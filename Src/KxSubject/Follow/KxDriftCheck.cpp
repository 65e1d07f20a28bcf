#include <KxSubject/Follow/KxDriftCheck.h>

#include <KxSubject/Follow/KxFollowTracker.h>

#include <opencv2/imgproc.hpp>

#include <cmath>
#include <cstdlib>
#include <iterator>

namespace
{

constexpr double ReturnShare = 0.5; ///< of the box's side: farther from where it began, it is lost
constexpr double SameColours = 0.7; ///< in common, a coefficient of Bhattacharyya

/// The colours in a box, 16 levels of each channel; their sum is 1.
cv::Mat ColoursOf(const cv::Mat& picture, const cv::Rect2d& box)
{
    const cv::Rect inside = cv::Rect(box) & cv::Rect({}, picture.size());
    constexpr int levels = 16;
    const std::vector<int> sizes{levels, levels, levels};
    cv::Mat colours = cv::Mat::zeros(3, sizes.data(), CV_32FC1);
    if (!inside.empty()) {
        const std::vector<cv::Mat> parts{picture(inside)};
        cv::calcHist(parts, {0, 1, 2}, {}, colours, sizes, {0.0F, 256.0F, 0.0F, 256.0F, 0.0F, 256.0F});
        colours /= inside.area();
    }
    return colours;
}

/// The Bhattacharyya coefficient: 1 for the same colours, 0 for none in common.
double InCommon(const cv::Mat& a, const cv::Mat& b)
{
    cv::Mat roots;
    cv::sqrt(a.mul(b), roots);
    return cv::sum(roots)[0];
}

cv::Point2d MiddleOf(const cv::Rect2d& box)
{
    return (box.tl() + box.br()) / 2.0;
}

} // namespace

KxDriftCheck::KxDriftCheck(std::int64_t framesASecond)
    : m_framesASecond(framesASecond)
{
}

void KxDriftCheck::SeeAt(std::int64_t frame, const cv::Mat& picture, const cv::Rect2d& box)
{
    m_colours = ColoursOf(picture, box);
    m_second = {{frame, picture.clone(), box}};
    m_doubtedSince.reset();
}

void KxDriftCheck::Add(std::int64_t frame, const cv::Mat& picture, const cv::Rect2d& box)
{
    if (m_second.empty() || m_doubtedSince) {
        return;
    }
    m_second.push_back({frame, picture.clone(), box});
    if (std::abs(frame - m_second.front().frame) < m_framesASecond) {
        return;
    }
    if (!HasItsColours(m_second.back()) && !LeadsBack()) {
        m_doubtedSince = m_second.front().frame;
    }
    m_second = {m_second.back()};
}

bool KxDriftCheck::HasItsColours(const Tracked& last) const
{
    return InCommon(m_colours, ColoursOf(last.picture, last.box)) >= SameColours;
}

bool KxDriftCheck::LeadsBack() const
{
    KxFollowTracker back(m_second.back().picture, m_second.back().box);
    for (auto tracked = std::next(m_second.rbegin()); tracked != m_second.rend(); ++tracked) {
        back.AddPicture(tracked->picture);
    }
    const cv::Rect2d& began = m_second.front().box;
    return cv::norm(MiddleOf(back.Box()) - MiddleOf(began)) <= ReturnShare * std::sqrt(began.area());
}
