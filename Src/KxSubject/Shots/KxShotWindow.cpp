#include <KxSubject/Shots/KxShotWindow.h>

#include <opencv2/imgproc.hpp>

#include <algorithm>
#include <cmath>

namespace
{

constexpr double Points = KxShotPicture::WidthPx * KxShotPicture::HeightPx;
constexpr std::size_t LeastReach = 24;

cv::Mat MatOf(const KxShotPicture& picture)
{
    // cv::Mat cannot refer to constant data; nothing writes to it.
    return {KxShotPicture::HeightPx, KxShotPicture::WidthPx, CV_8UC1, const_cast<std::uint8_t*>(picture.grey.data())};
}

double SquaredDistance(const KxShotPicture& left, const KxShotPicture& right)
{
    int sum = 0;
    for (std::size_t i = 0; i < left.grey.size(); ++i) {
        const int difference = left.grey[i] - right.grey[i];
        sum += difference * difference;
    }
    return sum;
}

int SquaredDistanceOutside(const KxShotPicture& begin, const KxShotPicture& picture, const KxShotPicture& end)
{
    constexpr int noise = 2;
    int sum = 0;
    for (std::size_t i = 0; i < picture.grey.size(); ++i) {
        const int low = std::min(begin.grey[i], end.grey[i]) - noise;
        const int high = std::max(begin.grey[i], end.grey[i]) + noise;
        const int beyond = std::max(0, std::max(low - picture.grey[i], picture.grey[i] - high));
        sum += beyond * beyond;
    }
    return sum;
}

/// The part of the picture in which the two differ, whatever the amount: 1 for two pictures that have nothing to do
/// with each other, whose differences are about normally distributed; half of that where they agree in half of the
/// picture; up to pi / 2 where all differences are the same.
double PartThatDiffers(const KxShotPicture& left, const KxShotPicture& right)
{
    constexpr double normal = 2.0 / CV_PI; ///< squared mean of absolute values over the mean square
    const double sum = cv::norm(MatOf(left), MatOf(right), cv::NORM_L1);
    return sum * sum / (normal * std::max(1.0, Points * SquaredDistance(left, right)));
}

/// -1 to 1: how well the middle of `other` matches a part of `picture`, moved or zoomed.
double SimilarityMoved(const KxShotPicture& picture, const KxShotPicture& other)
{
    const cv::Mat scene = MatOf(picture);
    const cv::Mat part = MatOf(other)(cv::Rect(6, 4, KxShotPicture::WidthPx - 12, KxShotPicture::HeightPx - 8));
    double best = -1.0;
    for (const double zoom : {0.8, 1.0, 1.25}) {
        cv::Mat zoomed;
        cv::resize(scene, zoomed, cv::Size(), zoom, zoom, cv::INTER_LINEAR);
        cv::Mat similarity;
        cv::matchTemplate(zoomed, part, similarity, cv::TM_CCOEFF_NORMED);
        double here = 0.0;
        cv::minMaxLoc(similarity, nullptr, &here);
        best = std::max(best, here);
    }
    return best;
}

/// The number of pictures on each side that decide whether an end is static.
std::size_t RestReach(std::size_t pictures)
{
    return std::max<std::size_t>(2, pictures / 2);
}

} // namespace

struct KxShotWindow::Fit {
    std::vector<double> shares; ///< of every picture, 0 like the first to 1 like the last
    double misfit = 0.0;        ///< mean distance from the blend, in distances of the ends
    double outside = 0.0;       ///< mean distance from the range between the ends' points, likewise
    double back = 0.0;          ///< total decrease of the share
    double step = 0.0;          ///< largest increase of the share in one step
};

std::size_t KxShotWindow::Reach(std::size_t pictures)
{
    return std::max(RestReach(pictures), LeastReach);
}

KxShotWindow::KxShotWindow(const std::deque<KxShotPicture>& pictures, std::size_t begin, std::size_t end,
                           const KxSubjectOptions::Shots& options)
    : m_pictures(pictures)
    , m_beginIndex(begin)
    , m_endIndex(end)
    , m_begin(pictures[begin])
    , m_end(pictures[end])
    , m_options(options.blends)
    , m_distance(SquaredDistance(m_begin, m_end))
{
}

double KxShotWindow::ShareOf(const KxShotPicture& picture) const
{
    int across = 0;
    for (std::size_t i = 0; i < picture.grey.size(); ++i) {
        across += (picture.grey[i] - m_begin.grey[i]) * (m_end.grey[i] - m_begin.grey[i]);
    }
    return across / m_distance;
}

double KxShotWindow::MisfitOf(const KxShotPicture& picture, double share) const
{
    return std::sqrt(std::max(0.0, SquaredDistance(m_begin, picture) / m_distance - share * share));
}

KxShotWindow::Sort KxShotWindow::SortOfMiddle() const
{
    // |begin - end|^2 = variances + squared difference of the means - 2 covariance
    const double means = (m_end.mean - m_begin.mean) * (m_end.mean - m_begin.mean);
    const double covariance = (m_begin.variance + m_end.variance + means - m_distance / Points) / 2.0;
    const double similarity = covariance / std::sqrt(std::max(1.0, m_begin.variance * m_end.variance));
    const bool fade = m_begin.plainSince || m_end.plainSince;
    if (!fade && (similarity >= m_options.similarity || PartThatDiffers(m_begin, m_end) < m_options.differingPart)) {
        return Sort::None;
    }
    const std::size_t span = m_endIndex - m_beginIndex;
    const KxShotPicture& middle = m_pictures[m_beginIndex + span / 2];
    const double share = ShareOf(middle);
    if (share < m_options.middleShare || share > 1.0 - m_options.middleShare) {
        return Sort::None;
    }
    const double misfit = MisfitOf(middle, share);
    if (fade) {
        return misfit < m_options.misfit ? Sort::Fade : Sort::None;
    }
    const double blended = (1.0 - share) * (1.0 - share) * m_begin.variance + share * share * m_end.variance +
                           2.0 * share * (1.0 - share) * covariance;
    const double excess = std::abs(middle.variance - blended) / ((m_begin.variance + m_end.variance) / 2.0);
    if (span >= m_options.leastPictures && misfit < m_options.misfit && excess < m_options.contrastExcess) {
        return Sort::Dissolve;
    }
    const bool wipe = span >= m_options.wipeLeastPictures && misfit < m_options.wipeMisfit &&
                      m_distance > Points * m_options.wipeFloor * m_options.wipeFloor &&
                      similarity < m_options.wipeSimilarity;
    return wipe ? Sort::Wipe : Sort::None;
}

KxShotWindow::Fit KxShotWindow::FitAll() const
{
    Fit fit;
    for (std::size_t i = m_beginIndex; i <= m_endIndex; ++i) {
        const double share = ShareOf(m_pictures[i]);
        fit.misfit += MisfitOf(m_pictures[i], share);
        fit.outside += std::sqrt(SquaredDistanceOutside(m_begin, m_pictures[i], m_end) / m_distance);
        if (!fit.shares.empty()) {
            fit.back += std::max(0.0, fit.shares.back() - share);
            fit.step = std::max(fit.step, share - fit.shares.back());
        }
        fit.shares.push_back(share);
    }
    const auto between = static_cast<double>(m_endIndex - m_beginIndex - 1);
    fit.misfit /= between;
    fit.outside /= between;
    return fit;
}

bool KxShotWindow::Passes(const Fit& fit, Sort sort) const
{
    const double outside = sort == Sort::Wipe ? m_options.wipeOutside : m_options.outside;
    const double step = sort == Sort::Fade ? m_options.fadeStep : m_options.step;
    return fit.outside <= outside && fit.back <= m_options.back && fit.step <= step &&
           (sort != Sort::Fade || fit.misfit <= m_options.fadeMisfit);
}

double KxShotWindow::Jitter() const
{
    const std::size_t reach = RestReach(m_endIndex - m_beginIndex);
    const auto moved = [this, reach](const KxShotPicture& end, std::size_t other, std::size_t apart) {
        // With too few pictures for a decision, some movement is assumed.
        constexpr double unknown = 0.5;
        const double part = std::sqrt(SquaredDistance(end, m_pictures[other]) / m_distance);
        return apart * 2 < reach ? std::max(part, unknown) : part;
    };
    const std::size_t first = m_beginIndex - std::min(m_beginIndex, reach);
    const std::size_t last = std::min(m_endIndex + reach, m_pictures.size() - 1);
    return moved(m_begin, first, m_beginIndex - first) + moved(m_end, last, last - m_endIndex);
}

bool KxShotWindow::IsMovement() const
{
    const KxShotPicture& middle = m_pictures[(m_beginIndex + m_endIndex) / 2];
    return SimilarityMoved(m_begin, middle) > m_options.movedSimilarity &&
           SimilarityMoved(middle, m_end) > m_options.movedSimilarity;
}

bool KxShotWindow::ComesBack() const
{
    const double near = m_options.returnRatio * m_options.returnRatio * m_distance;
    const std::size_t first = m_beginIndex - std::min(m_beginIndex, LeastReach);
    const std::size_t last = std::min(m_endIndex + LeastReach, m_pictures.size() - 1);
    for (std::size_t i = first; i <= last; ++i) {
        if ((i < m_beginIndex && SquaredDistance(m_pictures[i], m_end) < near) ||
            (i > m_endIndex && SquaredDistance(m_pictures[i], m_begin) < near)) {
            return true;
        }
    }
    return false;
}

double KxShotWindow::CrossingOf(const std::vector<double>& shares, double level) const
{
    std::size_t i = 1;
    while (i + 1 < shares.size() && shares[i] < level) {
        ++i;
    }
    const auto from = static_cast<double>(m_pictures[m_beginIndex + i - 1].frame);
    const auto to = static_cast<double>(m_pictures[m_beginIndex + i].frame);
    const double rise = shares[i] - shares[i - 1];
    return from + (to - from) * (rise > 0.0 ? std::clamp((level - shares[i - 1]) / rise, 0.0, 1.0) : 0.5);
}

std::optional<KxShotWindow::Passage> KxShotWindow::Find() const
{
    if ((m_begin.plainSince && m_end.plainSince) || m_distance < Points * m_options.floor * m_options.floor) {
        return {};
    }
    const Sort sort = SortOfMiddle();
    if (sort == Sort::None) {
        return {};
    }
    const Fit fit = FitAll();
    const double confidence = 1.0 - (fit.misfit + m_options.jitterWeight * Jitter());
    if (!Passes(fit, sort) ||
        (sort != Sort::Fade && (confidence < m_options.minimumConfidence || ComesBack() || IsMovement()))) {
        return {};
    }
    // The quarters are more reliable than the ends, where movement hides passing objects.
    const double quarter = CrossingOf(fit.shares, 0.25);
    const double threeQuarters = CrossingOf(fit.shares, 0.75);
    const double middle = (quarter + threeQuarters) / 2.0;
    const double half = threeQuarters - quarter;
    return Passage{std::max<std::int64_t>(std::llround(middle - half), m_begin.frame), std::llround(middle),
                   std::min<std::int64_t>(std::llround(middle + half), m_end.frame), std::sqrt(m_distance) * confidence,
                   sort == Sort::Wipe};
}
