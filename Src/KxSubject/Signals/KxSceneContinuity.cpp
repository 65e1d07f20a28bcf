#include <KxSubject/Signals/KxSceneContinuity.h>

#include <opencv2/imgproc.hpp>

#include <algorithm>

namespace
{

constexpr int LongSidePx = 160;
constexpr int BlockPx = 16;
constexpr std::size_t MostSamples = 200; ///< the longest dissolve with its surroundings at 10 pictures a second

double ContrastOf(const cv::Mat& part)
{
    cv::Scalar mean;
    cv::Scalar deviation;
    cv::meanStdDev(part, mean, deviation);
    return deviation[0];
}

} // namespace

KxSceneContinuity::KxSceneContinuity(const KxSubjectOptions::Scenes& options, cv::Size picturePx)
    : m_options(options)
    , m_scale(static_cast<double>(LongSidePx) / std::max({picturePx.width, picturePx.height, 1}))
{
    m_sizePx = {std::max(cvRound(picturePx.width * m_scale), 1), std::max(cvRound(picturePx.height * m_scale), 1)};
}

void KxSceneContinuity::AddSample(std::int64_t frame, const cv::Mat& grey, const std::optional<cv::Matx33d>& camera)
{
    Sample sample{frame, {}, std::nullopt};
    cv::resize(grey, sample.grey, m_sizePx, 0.0, 0.0, cv::INTER_AREA);
    if (camera) {
        const cv::Matx33d reduce(m_scale, 0, 0, 0, m_scale, 0, 0, 0, 1);
        sample.camera = reduce * *camera * reduce.inv();
    }
    m_samples.push_back(std::move(sample));
    if (m_samples.size() > MostSamples) {
        m_samples.pop_front();
    }
}

std::optional<cv::Matx33d> KxSceneContinuity::Camera(std::size_t first, std::size_t last) const
{
    cv::Matx33d movement = cv::Matx33d::eye();
    for (std::size_t i = first + 1; i <= last; ++i) {
        if (!m_samples[i].camera) {
            return std::nullopt;
        }
        movement = *m_samples[i].camera * movement;
    }
    return movement;
}

double KxSceneContinuity::PartFound(std::size_t first, std::size_t last, const cv::Matx33d& movement,
                                    const cv::Rect& content) const
{
    const cv::Mat& later = m_samples[last].grey;
    cv::Mat moved;
    cv::Mat known;
    cv::warpPerspective(m_samples[first].grey, moved, movement, m_sizePx, cv::INTER_LINEAR);
    cv::warpPerspective(cv::Mat(m_sizePx, CV_8UC1, cv::Scalar(1)), known, movement, m_sizePx, cv::INTER_NEAREST);
    int compared = 0;
    int found = 0;
    for (int y = content.y; y + BlockPx <= content.br().y; y += BlockPx) {
        for (int x = content.x; x + BlockPx <= content.br().x; x += BlockPx) {
            const cv::Rect block(x, y, BlockPx, BlockPx);
            if (cv::countNonZero(known(block)) < block.area() || ContrastOf(moved(block)) < m_options.leastContrast ||
                ContrastOf(later(block)) < m_options.leastContrast) {
                continue;
            }
            ++compared;
            const int reach = m_options.reachPx;
            const cv::Rect around = cv::Rect(x - reach, y - reach, BlockPx + 2 * reach, BlockPx + 2 * reach) & content;
            cv::Mat similarity;
            cv::matchTemplate(later(around), moved(block), similarity, cv::TM_CCOEFF_NORMED);
            double best = 0.0;
            cv::minMaxLoc(similarity, nullptr, &best);
            found += best > m_options.blockSimilarity ? 1 : 0;
        }
    }
    return std::max(0.0, found - m_options.foundByChance) / std::max(1, compared);
}

double KxSceneContinuity::InCommon(std::int64_t first, std::int64_t last, const cv::Rect& content) const
{
    const auto after = [](std::int64_t frame, const Sample& sample) { return frame < sample.frame; };
    const auto begin = std::upper_bound(m_samples.begin(), m_samples.end(), first, after);
    if (begin == m_samples.begin()) {
        return 0.0;
    }
    const auto beyond = std::upper_bound(begin, m_samples.end(), last, after);
    const auto firstIndex = static_cast<std::size_t>(begin - m_samples.begin()) - 1;
    const auto lastIndex = std::min(static_cast<std::size_t>(beyond - m_samples.begin()), m_samples.size() - 1);
    const cv::Rect inside = cv::Rect(cvCeil(content.x * m_scale), cvCeil(content.y * m_scale),
                                     cvFloor(content.width * m_scale) - 1, cvFloor(content.height * m_scale) - 1) &
                            cv::Rect({0, 0}, m_sizePx);
    const std::optional<cv::Matx33d> camera = Camera(firstIndex, lastIndex);
    const double still = PartFound(firstIndex, lastIndex, cv::Matx33d::eye(), inside);
    return camera ? std::max(still, PartFound(firstIndex, lastIndex, *camera, inside)) : still;
}
