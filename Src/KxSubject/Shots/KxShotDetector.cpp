#include <KxSubject/Shots/KxShotDetector.h>

#include <KxSubject/KxSubjectSampling.h>

#include <opencv2/imgproc.hpp>

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace
{

constexpr std::size_t ReturnReach = 24;
static_assert(ReturnReach < KxShotCuts::Open);
constexpr std::size_t FlashReach = 4;
constexpr std::size_t BrightFlashReach = 7;
constexpr std::ptrdiff_t ManyPictures = 6;

cv::Size SizePx()
{
    return {KxSubjectSampling::ShotSize.width, KxSubjectSampling::ShotSize.height};
}

bool IsInside(const KxShotBoundary& cut, const KxShotBoundary& blend, std::int64_t margin)
{
    return cut.frame >= blend.first - margin && cut.frame <= blend.last + margin;
}

} // namespace

KxShotDetector::KxShotDetector(const KxSubjectOptions::Shots& options, const KxSubjectOptions::Bars& bars,
                               KxInCommon inCommon)
    : m_options(options)
    , m_bars(bars, SizePx())
    , m_content({0, 0}, SizePx())
    , m_cuts(options)
    , m_blends(options, std::move(inCommon))
{
}

KxShotDetector::Histogram KxShotDetector::ColoursOf(const cv::Mat& small)
{
    cv::Mat hsv;
    cv::cvtColor(small, hsv, cv::COLOR_BGR2HSV);
    Histogram histogram{};
    for (int y = 0; y < hsv.rows; ++y) {
        const auto* row = hsv.ptr<cv::Vec3b>(y);
        for (int x = 0; x < hsv.cols; ++x) {
            const int bin = (row[x][0] * 12 / 180 * 6 + row[x][1] * 6 / 256) * 6 + row[x][2] * 6 / 256;
            ++histogram[static_cast<std::size_t>(bin)];
        }
    }
    return histogram;
}

void KxShotDetector::Reserve(std::size_t pictures)
{
    m_frames.reserve(pictures);
}

void KxShotDetector::Measure(Picture& picture) const
{
    cv::Scalar mean;
    cv::Scalar deviation;
    cv::meanStdDev(picture.grey(m_content), mean, deviation);
    picture.mean = mean[0];
    picture.deviation = deviation[0];
    picture.colours = ColoursOf(picture.colour(m_content));
}

void KxShotDetector::FindContent()
{
    m_bars.AddPicture(m_pictures.back().grey);
    const cv::Rect content = m_bars.Content();
    if (content == m_content) {
        Measure(m_pictures.back());
        return;
    }
    m_content = content;
    m_blends.SetContent(content);
    for (Picture& picture : m_pictures) {
        Measure(picture);
    }
}

void KxShotDetector::AddPicture(std::int64_t frame, const cv::Mat& picture)
{
    Picture& newest = m_pictures.emplace_back();
    cv::resize(picture, newest.colour, SizePx(), 0.0, 0.0, cv::INTER_AREA);
    cv::cvtColor(newest.colour, newest.grey, cv::COLOR_BGR2GRAY);
    FindContent();
    m_frames.push_back(static_cast<std::int32_t>(frame));
    KxPictureChange change;
    change.frame = m_frames.back();
    if (m_pictures.size() > 1) {
        const Histogram& before = Earlier(1).colours;
        int moved = 0;
        for (std::size_t i = 0; i < before.size(); ++i) {
            moved += std::abs(newest.colours[i] - before[i]);
        }
        change.colour = static_cast<float>(moved) / static_cast<float>(2 * m_content.area());
        change.grey = static_cast<float>(DifferenceTo(Earlier(1)));
        change.similarity = cv::saturate_cast<std::uint8_t>(255.0 * SimilarityTo(Earlier(1)));
    }
    m_cuts.Add(change);
    for (std::size_t back = 2; back < m_pictures.size(); ++back) {
        LookForReturn(back);
    }
    if (m_pictures.size() > ReturnReach + 1) {
        m_pictures.pop_front();
    }
    m_blends.AddPicture(frame, m_pictures.back().grey);
}

const KxShotDetector::Picture& KxShotDetector::Earlier(std::size_t pictures) const
{
    return m_pictures[m_pictures.size() - 1 - pictures];
}

double KxShotDetector::DifferenceTo(const Picture& earlier) const
{
    const cv::Mat& grey = m_pictures.back().grey;
    return cv::norm(grey(m_content), earlier.grey(m_content), cv::NORM_L1) / m_content.area();
}

double KxShotDetector::SimilarityTo(const Picture& earlier) const
{
    // Prevents the noise of two plain pictures from counting as similar.
    constexpr double noise = 4.0;
    const Picture& newest = m_pictures.back();
    const double covariance =
        newest.grey(m_content).dot(earlier.grey(m_content)) / m_content.area() - newest.mean * earlier.mean;
    return covariance / (newest.deviation * earlier.deviation + noise);
}

bool KxShotDetector::IsFlash(std::size_t back) const
{
    const std::size_t pictures = back - 1;
    if (pictures <= FlashReach) {
        return true;
    }
    const double bright = std::max(m_pictures.back().mean, Earlier(back).mean) + m_options.flashLight;
    const auto last = m_pictures.end() - 1;
    return pictures <= BrightFlashReach &&
           std::all_of(last - static_cast<std::ptrdiff_t>(pictures), last,
                       [bright](const Picture& picture) { return picture.mean > bright; });
}

void KxShotDetector::LookForReturn(std::size_t back)
{
    KxPictureChange& away = m_cuts.Newest(back - 1);
    KxPictureChange& home = m_cuts.Newest(0);
    const bool awayAsks = m_cuts.IsAboveFloors(away) && away.backAfter == 0;
    const bool homeAsks = m_cuts.IsAboveFloors(home) && home.backBefore == 0;
    if (!awayAsks && !homeAsks) {
        return;
    }
    const double difference = DifferenceTo(Earlier(back));
    const bool isBack = awayAsks && difference < m_options.returnRatio * static_cast<double>(away.grey);
    const bool hadBeen = homeAsks && difference < m_options.returnRatio * static_cast<double>(home.grey);
    if (!isBack && !hadBeen) {
        return;
    }
    const bool flash = IsFlash(back);
    if (SimilarityTo(Earlier(back)) < (flash ? m_options.flashSimilarity : m_options.returnSimilarity)) {
        return;
    }
    if (isBack) {
        away.backAfter = static_cast<std::uint8_t>(back - 1);
        away.flash = away.flash || flash;
    }
    if (hadBeen) {
        home.backBefore = static_cast<std::uint8_t>(back - 1);
        home.flash = home.flash || flash;
    }
}

std::ptrdiff_t KxShotDetector::PicturesIn(const KxShotBoundary& boundary) const
{
    const auto first = std::lower_bound(m_frames.begin(), m_frames.end(), boundary.first);
    return std::upper_bound(first, m_frames.end(), boundary.last) - first;
}

std::vector<KxShotDetector::Candidate> KxShotDetector::Candidates() const
{
    std::vector<Candidate> cuts;
    for (const KxPictureChange& cut : m_cuts.Find()) {
        cuts.push_back({{cut.frame, cut.frame, cut.frame, KxShotBoundaryKind::Cut}, m_cuts.Strength(cut)});
    }
    std::vector<Candidate> candidates;
    for (const KxShotBoundary& blend : m_blends.Found()) {
        const bool dissolve = blend.kind == KxShotBoundaryKind::Dissolve;
        const bool denied = dissolve && std::any_of(cuts.begin(), cuts.end(), [this, &blend](const Candidate& cut) {
                                return IsInside(cut.boundary, blend, 0) && PicturesIn(blend) > ManyPictures;
                            });
        if (!denied) {
            candidates.push_back({blend, std::numeric_limits<double>::infinity()});
            cuts.erase(std::remove_if(cuts.begin(), cuts.end(),
                                      [&blend](const Candidate& cut) { return IsInside(cut.boundary, blend, 1); }),
                       cuts.end());
        }
    }
    candidates.insert(candidates.end(), cuts.begin(), cuts.end());
    std::sort(candidates.begin(), candidates.end(),
              [](const Candidate& left, const Candidate& right) { return left.boundary.frame < right.boundary.frame; });
    return candidates;
}

std::vector<KxShotBoundary> KxShotDetector::Boundaries(double frameRate) const
{
    const double minimumFrames = m_options.minimumShotSeconds * frameRate;
    std::vector<Candidate> kept;
    for (const Candidate& candidate : Candidates()) {
        const std::int64_t last = kept.empty() ? 0 : kept.back().boundary.frame;
        if (static_cast<double>(candidate.boundary.frame - last) >= minimumFrames) {
            kept.push_back(candidate);
        } else if (!kept.empty() && candidate.strength > kept.back().strength) {
            kept.back() = candidate;
        }
    }
    std::vector<KxShotBoundary> boundaries;
    for (const Candidate& candidate : kept) {
        boundaries.push_back(candidate.boundary);
    }
    return boundaries;
}
