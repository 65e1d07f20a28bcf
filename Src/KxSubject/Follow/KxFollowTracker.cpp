#include <KxSubject/Follow/KxFollowTracker.h>

#include <opencv2/imgproc.hpp>

#include <algorithm>
#include <array>
#include <cmath>

namespace
{

// Published values or chosen once, except for the least margin, which was found by trial; none is fitted to clips.
constexpr double MarginShare = 0.6;         ///< of the box's width and height, around it in a window
constexpr double LeastMarginPx = 44.0;      ///< a small thing moves by more than its size
constexpr double PatchPx = 112.0;           ///< the root of a window's area as it is compared
constexpr double SigmaShare = 0.1;          ///< of the box, the width of the learned peak
constexpr double ColourShare = 0.3;         ///< of the answer is the colours'
constexpr double LearnRate = 0.025;         ///< a picture
constexpr double ColourRate = 0.04;         ///< a picture
constexpr double MeanRate = 0.1;            ///< of a peak goes into the running mean
constexpr int PicturesASize = 2;            ///< other sizes are tried in one picture of these
constexpr double SizeStep = 1.04;           ///< from size to size
constexpr double OtherSizeShare = 0.99;     ///< of its peak counts, or the size would never rest
constexpr double LeastScale = 0.2;          ///< of the first size
constexpr double GoodPeakShare = 0.35;      ///< of the running mean: a lower peak is a miss
constexpr double LeastPeak = 0.08;          ///< a lower one is a miss, too
constexpr double GoodPeakToSidelobe = 4.5;  ///< a lower one is a miss, too
constexpr int MissesToSearch = 2;           ///< in a row before it is searched for elsewhere
constexpr int PicturesASearch = 2;          ///< searched for in one picture of these
constexpr int SearchedSteps = 2;            ///< half windows each way
constexpr double FoundPeakToSidelobe = 6.0; ///< where it is found again
constexpr double FoundPeakShare = 0.5;      ///< of the running mean, the same
constexpr double NoPeakToSidelobe = 3.5;    ///< gives no confidence
constexpr double SureSpan = 5.0;            ///< beyond, gives full confidence
constexpr double SurePeakShare = 0.6;       ///< of the running mean, the same

/// Pixels of the picture for one of a patch, above which a smaller picture is taken: sampling would skip pixels.
constexpr double MostStep = 1.5;

/// The sizes of the Fourier transforms; these and their products are fast.
int FastCells(double cells)
{
    constexpr int least = 16;
    constexpr int most = 48;
    return cv::getOptimalDFTSize(std::clamp(cvRound(cells / 2.0), least / 2, most / 2)) * 2;
}

cv::Size2d WindowOf(const cv::Size2d& box)
{
    const double margin = std::max(MarginShare * (box.width + box.height), LeastMarginPx);
    return {box.width + margin, box.height + margin};
}

cv::Size CellsOf(const cv::Size2d& window)
{
    const double scale = PatchPx / std::sqrt(window.area()) / KxPatchFeatures::CellPx;
    return {FastCells(window.width * scale), FastCells(window.height * scale)};
}

double SigmaOf(const cv::Size2d& box, const cv::Size2d& window, const cv::Size& cells)
{
    const double share = std::sqrt(box.area() / window.area());
    return std::max(0.5, SigmaShare * share * std::sqrt(cells.area()));
}

/// A box that has an extent and touches the picture.
cv::Rect2d Sane(const cv::Rect2d& box, const cv::Size& picture)
{
    constexpr double leastPx = 4.0;
    const double width = std::clamp(box.width, leastPx, static_cast<double>(picture.width));
    const double height = std::clamp(box.height, leastPx, static_cast<double>(picture.height));
    const double x = std::clamp(box.x + box.width / 2.0, 0.0, static_cast<double>(picture.width));
    const double y = std::clamp(box.y + box.height / 2.0, 0.0, static_cast<double>(picture.height));
    return {x - width / 2.0, y - height / 2.0, width, height};
}

/// Where a parabola through three neighbouring values has its peak, from -0.5 to 0.5 of a step.
double PeakBetween(float before, float at, float after)
{
    const double bend = static_cast<double>(before) - 2.0 * static_cast<double>(at) + static_cast<double>(after);
    const double slope = static_cast<double>(before) - static_cast<double>(after);
    return bend < -1e-9 ? std::clamp(slope / (2.0 * bend), -0.5, 0.5) : 0.0;
}

/// How far the peak rises above what is around it, in deviations.
double PeakToSidelobe(const cv::Mat& response, cv::Point peak)
{
    constexpr int radius = 4;
    cv::Mat around(response.size(), CV_8UC1, cv::Scalar(255));
    cv::rectangle(around, peak - cv::Point(radius, radius), peak + cv::Point(radius, radius), cv::Scalar(0),
                  cv::FILLED);
    cv::Scalar mean;
    cv::Scalar deviation;
    cv::meanStdDev(response, mean, deviation, around);
    return (static_cast<double>(response.at<float>(peak)) - mean[0]) / std::max(deviation[0], 1e-6);
}

} // namespace

KxFollowTracker::KxFollowTracker(const cv::Mat& picture, const cv::Rect2d& box)
    : m_picturePx(picture.size())
    , m_centre((Sane(box, m_picturePx).tl() + Sane(box, m_picturePx).br()) / 2.0)
    , m_size(Sane(box, m_picturePx).size())
    , m_windowPx(WindowOf(m_size))
    , m_features(CellsOf(m_windowPx))
    , m_filter(CellsOf(m_windowPx), SigmaOf(m_size, m_windowPx, CellsOf(m_windowPx)))
{
    Prepare(picture);
    Learn(1.0, 1.0);
}

cv::Rect2d KxFollowTracker::Box() const
{
    const cv::Size2d size(m_size.width * m_scale, m_size.height * m_scale);
    return {m_centre.x - size.width / 2.0, m_centre.y - size.height / 2.0, size.width, size.height};
}

void KxFollowTracker::Prepare(const cv::Mat& picture)
{
    m_levels = {picture};
    const double step = m_windowPx.width * m_scale / m_features.PatchPx().width;
    for (double coarser = step; coarser > MostStep; coarser /= 2.0) {
        cv::Mat half;
        cv::resize(m_levels.back(), half, {}, 0.5, 0.5, cv::INTER_AREA);
        m_levels.push_back(half);
    }
}

cv::Mat KxFollowTracker::Patch(cv::Point2d wholeCentre, double scale) const
{
    const cv::Mat& picture = m_levels.back();
    const double shrunk = static_cast<double>(picture.cols) / m_picturePx.width;
    const cv::Point2d centre = wholeCentre * shrunk;
    const cv::Size patchPx = m_features.PatchPx();
    const double stepX = m_windowPx.width * scale * shrunk / patchPx.width;
    const double stepY = m_windowPx.height * scale * shrunk / patchPx.height;
    // The middle of the patch's first pixel.
    const double left = centre.x - (patchPx.width - 1) / 2.0 * stepX - 0.5;
    const double top = centre.y - (patchPx.height - 1) / 2.0 * stepY - 0.5;
    const cv::Matx23d map(stepX, 0.0, left, 0.0, stepY, top);
    cv::Mat patch;
    cv::warpAffine(picture, patch, map, patchPx, cv::INTER_LINEAR | cv::WARP_INVERSE_MAP, cv::BORDER_REPLICATE);
    return patch;
}

void KxFollowTracker::Learn(double filterRate, double colourRate)
{
    const cv::Mat patch = Patch(m_centre, m_scale);
    m_filter.Learn(m_features.Of(patch), filterRate);
    const double width = m_size.width / m_windowPx.width * patch.cols;
    const double height = m_size.height / m_windowPx.height * patch.rows;
    m_colours.Learn(
        patch,
        {cvRound((patch.cols - width) / 2.0), cvRound((patch.rows - height) / 2.0), cvRound(width), cvRound(height)},
        colourRate);
}

KxFollowTracker::Match KxFollowTracker::Look(cv::Point2d centre, double factor)
{
    const double scale = m_scale * factor;
    const cv::Mat patch = Patch(centre, scale);
    cv::Mat response = m_filter.Respond(m_features.Of(patch));
    const cv::Size kernel(std::max(1, cvRound(m_size.width / m_windowPx.width * patch.cols)),
                          std::max(1, cvRound(m_size.height / m_windowPx.height * patch.rows)));
    cv::Mat colours;
    cv::blur(m_colours.Likelihood(patch), colours, kernel, {-1, -1}, cv::BORDER_REPLICATE);
    for (int y = 0; y < response.rows; ++y) {
        for (int x = 0; x < response.cols; ++x) {
            const float colour = colours.at<float>(y * KxPatchFeatures::CellPx, x * KxPatchFeatures::CellPx);
            float& value = response.at<float>(y, x);
            value += static_cast<float>(ColourShare) * (colour - value);
        }
    }
    cv::Point peak;
    cv::minMaxLoc(response, nullptr, nullptr, nullptr, &peak);
    const auto at = [&response](int x, int y) {
        return response.at<float>((y + response.rows) % response.rows, (x + response.cols) % response.cols);
    };
    const float top = at(peak.x, peak.y);
    const double x =
        peak.x - response.cols / 2 + PeakBetween(at(peak.x - 1, peak.y), top, at(peak.x + 1, peak.y)); // NOLINT
    const double y =
        peak.y - response.rows / 2 + PeakBetween(at(peak.x, peak.y - 1), top, at(peak.x, peak.y + 1)); // NOLINT
    const cv::Point2d moved(x * m_windowPx.width * scale / response.cols,
                            y * m_windowPx.height * scale / response.rows);
    return {centre + moved, factor, static_cast<double>(top), PeakToSidelobe(response, peak)};
}

bool KxFollowTracker::IsGood(const Match& match) const
{
    return match.peak > GoodPeakShare * m_meanPeak && match.peak > LeastPeak &&
           match.peakToSidelobe > GoodPeakToSidelobe;
}

KxFollowTracker::Match KxFollowTracker::LookAround()
{
    Match best;
    for (int row = -SearchedSteps; row <= SearchedSteps; ++row) {
        for (int column = -SearchedSteps; column <= SearchedSteps; ++column) {
            const cv::Point2d centre(m_centre.x + column * m_windowPx.width * m_scale / 2.0,
                                     m_centre.y + row * m_windowPx.height * m_scale / 2.0);
            if (!cv::Rect2d(cv::Point2d(), cv::Size2d(m_picturePx)).contains(centre)) {
                continue;
            }
            const Match match = Look(centre, 1.0);
            if (match.peakToSidelobe > FoundPeakToSidelobe && match.peak > FoundPeakShare * m_meanPeak &&
                match.peak > best.peak) {
                best = match;
            }
        }
    }
    return best;
}

void KxFollowTracker::MoveTo(cv::Point2d centre)
{
    m_centre = {std::clamp(centre.x, 0.0, static_cast<double>(m_picturePx.width)),
                std::clamp(centre.y, 0.0, static_cast<double>(m_picturePx.height))};
}

void KxFollowTracker::Accept(const Match& match)
{
    MoveTo(match.centre);
    const double most = std::min(m_picturePx.width / m_size.width, m_picturePx.height / m_size.height);
    m_scale = std::clamp(m_scale * match.factor, std::min(LeastScale, most), most);
    m_meanPeak += MeanRate * (match.peak - m_meanPeak);
    m_misses = 0;
}

void KxFollowTracker::AddPicture(const cv::Mat& picture)
{
    ++m_pictures;
    Prepare(picture);
    Match match = Look(m_centre, 1.0);
    if (IsGood(match) && m_pictures % PicturesASize == 0) {
        for (const double factor : {1.0 / SizeStep, SizeStep}) {
            const Match other = Look(m_centre, factor);
            if (other.peak * OtherSizeShare > match.peak) {
                match = other;
            }
        }
    }
    m_confidence = std::clamp((match.peakToSidelobe - NoPeakToSidelobe) / SureSpan, 0.0, 1.0) *
                   std::clamp(match.peak / (SurePeakShare * m_meanPeak), 0.0, 1.0);
    if (IsGood(match)) {
        Accept(match);
        Learn(LearnRate, ColourRate);
        return;
    }
    ++m_misses;
    m_confidence = 0.0;
    if (m_misses > MissesToSearch && m_misses % PicturesASearch == 0) {
        const Match found = LookAround();
        if (found.peak > 0.0) {
            Accept(found);
        }
    }
}
