#include "KxShotDetector.h"

#include <opencv2/imgproc.hpp>

#include <algorithm>
#include <cmath>

namespace
{

constexpr std::size_t PicturesKept = 4;

double UsualAround(const std::vector<KxPictureChange>& changes, std::size_t at, float KxPictureChange::*value,
                   const KxSubjectOptions::Shots& options)
{
    const auto reach = static_cast<std::size_t>(options.neighbours);
    const std::size_t first = at > reach ? at - reach : 1;
    const std::size_t end = std::min(changes.size(), at + reach + 1);
    std::vector<float> values;
    for (std::size_t i = first; i < end; ++i) {
        if (i != at) {
            values.push_back(changes[i].*value);
        }
    }
    if (values.empty()) {
        return 0.0;
    }
    const auto rank =
        static_cast<std::ptrdiff_t>(std::floor(options.percentile * static_cast<double>(values.size() - 1)));
    std::nth_element(values.begin(), values.begin() + rank, values.end());
    return values[static_cast<std::size_t>(rank)];
}

bool IsLargestNearby(const std::vector<KxPictureChange>& changes, std::size_t at, float KxPictureChange::*value)
{
    const bool aboveLast = at == 1 || changes[at].*value >= changes[at - 1].*value;
    const bool aboveNext = at + 1 == changes.size() || changes[at].*value >= changes[at + 1].*value;
    return aboveLast && aboveNext;
}

bool IsFlash(const std::vector<KxPictureChange>& changes, std::size_t at, double ratio)
{
    const double limit = static_cast<double>(changes[at].grey) * ratio;
    for (std::size_t bright = 1; bright <= 3; ++bright) {
        const bool returnsAfter = at + bright < changes.size() && changes[at + bright].greyFurther[bright - 1] < limit;
        const bool cameBack = at > bright && changes[at].greyFurther[bright - 1] < limit;
        if (returnsAfter || cameBack) {
            return true;
        }
    }
    return false;
}

double Strength(const KxPictureChange& change, const KxSubjectOptions::Shots& options)
{
    return change.grey / options.greyFloor + change.colour / options.colourFloor;
}

} // namespace

KxShotDetector::KxShotDetector(const KxSubjectOptions::Shots& options)
    : m_options(options)
{
}

KxShotDetector::Histogram KxShotDetector::ColoursOf(const cv::Mat& small)
{
    cv::Mat hsv;
    cv::cvtColor(small, hsv, cv::COLOR_BGR2HSV);
    Histogram histogram{};
    const float share = 1.0F / static_cast<float>(hsv.total());
    for (int y = 0; y < hsv.rows; ++y) {
        const auto* row = hsv.ptr<cv::Vec3b>(y);
        for (int x = 0; x < hsv.cols; ++x) {
            const int bin = (row[x][0] * 12 / 180 * 6 + row[x][1] * 6 / 256) * 6 + row[x][2] * 6 / 256;
            histogram[static_cast<std::size_t>(bin)] += share;
        }
    }
    return histogram;
}

void KxShotDetector::Reserve(std::int64_t pictures)
{
    // A header may claim anything: more than four hours grow as they come.
    constexpr std::int64_t mostPictures = 500000;
    m_changes.reserve(static_cast<std::size_t>(std::clamp<std::int64_t>(pictures, 0, mostPictures)));
}

void KxShotDetector::AddPicture(std::int64_t frame, const cv::Mat& picture)
{
    cv::Mat small;
    cv::Mat grey;
    cv::resize(picture, small, cv::Size(64, 36), 0.0, 0.0, cv::INTER_AREA);
    cv::cvtColor(small, grey, cv::COLOR_BGR2GRAY);
    const Histogram colours = ColoursOf(small);

    KxPictureChange change;
    change.frame = frame;
    const auto meanDifference = [&grey](const cv::Mat& other) {
        return cv::norm(grey, other, cv::NORM_L1) / static_cast<double>(grey.total());
    };
    if (!m_lastGrey.empty()) {
        change.grey = static_cast<float>(meanDifference(m_lastGrey.back()));
        for (std::size_t i = 0; i < colours.size(); ++i) {
            change.colour += std::abs(colours[i] - m_lastColours[i]) / 2.0F;
        }
        for (std::size_t back = 2; back <= m_lastGrey.size(); ++back) {
            change.greyFurther[back - 2] = static_cast<float>(meanDifference(m_lastGrey[m_lastGrey.size() - back]));
        }
    }
    m_changes.push_back(change);
    m_lastColours = colours;
    m_lastGrey.push_back(grey);
    if (m_lastGrey.size() > PicturesKept) {
        m_lastGrey.pop_front();
    }
}

std::vector<std::int64_t> KxShotDetector::Cuts(double frameRate) const
{
    return FindCuts(m_changes, frameRate, m_options);
}

std::vector<std::int64_t> KxShotDetector::FindCuts(const std::vector<KxPictureChange>& changes, double frameRate,
                                                   const KxSubjectOptions::Shots& options)
{
    std::vector<std::size_t> found;
    for (std::size_t i = 1; i < changes.size(); ++i) {
        const bool jump = changes[i].grey > options.greyFloor && changes[i].colour > options.colourFloor &&
                          IsLargestNearby(changes, i, &KxPictureChange::grey) &&
                          IsLargestNearby(changes, i, &KxPictureChange::colour);
        if (jump && changes[i].grey > options.greyRatio * UsualAround(changes, i, &KxPictureChange::grey, options) &&
            changes[i].colour > options.colourRatio * UsualAround(changes, i, &KxPictureChange::colour, options) &&
            !IsFlash(changes, i, options.flashRatio)) {
            found.push_back(i);
        }
    }
    const double minimumFrames = options.minimumShotSeconds * frameRate;
    std::vector<std::size_t> kept;
    for (const std::size_t i : found) {
        const std::size_t last = kept.empty() ? 0 : kept.back();
        if (static_cast<double>(changes[i].frame - changes[last].frame) >= minimumFrames) {
            kept.push_back(i);
        } else if (!kept.empty() && Strength(changes[i], options) > Strength(changes[last], options)) {
            kept.back() = i;
        }
    }
    std::vector<std::int64_t> cuts;
    for (const std::size_t i : kept) {
        cuts.push_back(changes[i].frame);
    }
    return cuts;
}
