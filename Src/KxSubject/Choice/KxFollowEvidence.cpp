#include <KxSubject/Choice/KxFollowEvidence.h>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

namespace
{

/// A tracked picture says something about this time around it.
constexpr double ReachSeconds = 0.25;

/// 0.5 to 2: a shorter loss is bridged, so that the crop does not leave for a moment.
constexpr double BridgedSeconds = 1.0;

/// 0.25 to 0.75 of the room that a crop has beside the thing may lie on one side of it alone: more leaves the crop
/// nearer to its place, less shows the thing nearer to the middle.
constexpr double FreeRoom = 0.5;

/// Of what is between two places and in the picture, as a share of the most that a crop of the extent can hold.
double ShareHeld(const std::pair<double, double>& places, double centre, double extent)
{
    const double from = std::max(0.0, places.first);
    const double to = std::min(1.0, places.second);
    const double left = centre - extent / 2.0;
    const double most = std::min(extent, to - from);
    return most > 0.0 ? std::max(0.0, std::min(to, left + extent) - std::max(from, left)) / most : 1.0;
}

} // namespace

KxFollowEvidence::KxFollowEvidence(const KxSubjectChoice& choice, const KxFollowTrack& track,
                                   const KxChoiceRanges::Range& range, const KxSubjectOptions::Follow& options,
                                   const Axis& along)
    : m_options(options)
    , m_frameRate(along.frameRate)
    , m_axis(along.axis)
{
    const auto isInside = [&range](std::int64_t frame) { return frame >= range.first && frame < range.end; };
    std::copy_if(track.points.begin(), track.points.end(), std::back_inserter(m_points),
                 [&isInside](const KxFollowTrack::Point& point) { return isInside(point.frame); });
    const bool isTracked = !m_points.empty();
    for (const KxSubjectSeed& seed : choice.seeds) {
        const std::int64_t frame = KxChoiceRanges::FrameAt(seed.seconds, m_frameRate);
        if (!isInside(frame)) {
            continue;
        }
        m_seedFrames.push_back(frame);
        m_isDrawn = m_isDrawn && seed.extent == KxSubjectSeed::Extent::Drawn;
        if (!isTracked) {
            const bool isPoint = seed.box.width <= 0.0 || seed.box.height <= 0.0;
            const KxSubjectBox usual{seed.box.x - options.pointWidth / 2.0, seed.box.y - options.pointHeight / 2.0,
                                     options.pointWidth, options.pointHeight};
            m_points.push_back({static_cast<std::int32_t>(frame), isPoint ? usual : seed.box, 1.0F});
        }
    }
    std::stable_sort(m_points.begin(), m_points.end(),
                     [](const KxFollowTrack::Point& a, const KxFollowTrack::Point& b) { return a.frame < b.frame; });
    for (std::size_t i = 0; i < m_points.size(); ++i) {
        if (static_cast<double>(m_points[i].confidence) >= options.goodConfidence) {
            m_good.push_back(i);
        }
    }
}

KxFollowEvidence::Place KxFollowEvidence::At(std::int64_t frame) const
{
    const auto isBefore = [this](std::size_t point, std::int64_t time) { return m_points[point].frame < time; };
    const auto after = std::lower_bound(m_good.begin(), m_good.end(), frame, isBefore);
    const KxFollowTrack::Point& next = m_points[after == m_good.end() ? m_good.back() : *after];
    const KxFollowTrack::Point& before = m_points[after == m_good.begin() ? m_good.front() : *std::prev(after)];
    const double length = static_cast<double>(next.frame - before.frame);
    const double part = length > 0.0 ? static_cast<double>(frame - before.frame) / length : 0.0;
    const auto mix = [part](double a, double b) { return a + part * (b - a); };
    const bool across = m_axis == KxAxis::Across;
    Place place;
    place.box = {mix(before.box.x, next.box.x), mix(before.box.y, next.box.y), mix(before.box.width, next.box.width),
                 mix(before.box.height, next.box.height)};
    place.from = across ? place.box.x : place.box.y;
    place.to = place.from + (across ? place.box.width : place.box.height);
    const auto secondsTo = [this, frame](std::int64_t other) {
        return static_cast<double>(std::abs(other - frame)) / m_frameRate;
    };
    place.seconds = std::min(secondsTo(before.frame), secondsTo(next.frame));
    place.isSeed = std::any_of(m_seedFrames.begin(), m_seedFrames.end(),
                               [&](std::int64_t seed) { return secondsTo(seed) <= m_options.seedSeconds; });
    const auto nearest = std::min_element(m_points.begin(), m_points.end(),
                                          [&](const KxFollowTrack::Point& a, const KxFollowTrack::Point& b) {
                                              return std::abs(a.frame - frame) < std::abs(b.frame - frame);
                                          });
    place.confidence = secondsTo(nearest->frame) <= ReachSeconds ? static_cast<double>(nearest->confidence) : 0.0;
    place.isDoubted = nearest->isDoubted;
    return place;
}

bool KxFollowEvidence::IsKnown(const Place& place) const
{
    return place.isSeed || place.confidence >= m_options.goodConfidence;
}

std::optional<KxSubjectBox> KxFollowEvidence::BoxAt(std::int64_t frame) const
{
    const Place place = At(frame);
    return IsKnown(place) ? std::optional(place.box) : std::nullopt;
}

KxSignalProfile KxFollowEvidence::Followed(const KxSignalProfile& evidence, std::int64_t frame) const
{
    const Place place = At(frame);
    const double confidence = place.isSeed ? 1.0 : place.confidence;
    const double weight = place.isSeed ? m_options.seedWeight : m_options.weight;
    const double sigma = m_options.gateWidth + m_options.gateGrowth * place.seconds;
    const double centre = (place.from + place.to) / 2.0;
    KxSignalProfile followed = evidence;
    for (std::size_t bin = 0; bin < KxSignalProfile::Bins; ++bin) {
        const double x = (static_cast<double>(bin) + 0.5) / KxSignalProfile::Bins - centre;
        followed.share[bin] *=
            static_cast<float>(std::exp(-x * x / (2.0 * sigma * sigma)) * (1.0 - m_options.denial * confidence));
    }
    followed.Add(place.from, place.to, weight * confidence);
    return followed;
}

KxSignalProfile KxFollowEvidence::WithoutAvoided(const KxSignalProfile& evidence, std::int64_t frame) const
{
    const Place place = At(frame);
    KxSignalProfile left = evidence;
    if (!IsKnown(place)) {
        return left;
    }
    for (std::size_t bin = 0; bin < KxSignalProfile::Bins; ++bin) {
        const double x = (static_cast<double>(bin) + 0.5) / KxSignalProfile::Bins;
        if (x >= place.from - m_options.avoidedMargin && x <= place.to + m_options.avoidedMargin) {
            left.share[bin] *= static_cast<float>(m_options.avoidedShare);
        }
    }
    // The rest must still outweigh the preference for the middle, although the thing took most of the evidence.
    const double rest = static_cast<double>(left.Sum());
    const double gain = std::min(m_options.avoidedGain, static_cast<double>(evidence.Sum()) / std::max(rest, 1e-9));
    std::for_each(left.share.begin(), left.share.end(), [gain](float& share) { share *= static_cast<float>(gain); });
    return left;
}

double KxFollowEvidence::HeldBy(const std::function<double(std::int64_t frame)>& centreAt, double extent) const
{
    double missed = 0.0;
    for (const std::size_t i : m_good) {
        if (m_points[i].isDoubted || m_points[i].isAmbiguous) {
            continue;
        }
        const KxSubjectBox& box = m_points[i].box;
        const bool across = m_axis == KxAxis::Across;
        const double margin = m_options.boxError * (across ? box.width : box.height);
        const double from = (across ? box.x : box.y) + margin;
        const double to = (across ? box.x + box.width : box.y + box.height) - margin;
        missed += 1.0 - ShareHeld({from, to}, centreAt(m_points[i].frame), extent);
    }
    const auto certain = std::count_if(m_points.begin(), m_points.end(),
                                       [](const KxFollowTrack::Point& point) { return !point.isAmbiguous; });
    return 1.0 - missed / static_cast<double>(std::max<std::ptrdiff_t>(1, certain));
}

double KxFollowEvidence::HeldAtSeeds(const std::function<double(std::int64_t frame)>& centreAt, double extent) const
{
    double least = 1.0;
    for (const std::int64_t frame : m_seedFrames) {
        const Place place = At(frame);
        least = std::min(least, ShareHeld({place.from, place.to}, centreAt(frame), extent));
    }
    return least;
}

double KxFollowEvidence::Holding(double centre, std::int64_t frame, double extent) const
{
    const Place place = At(frame);
    if (place.seconds > BridgedSeconds) {
        return centre;
    }
    const double from = std::clamp(place.from, 0.0, 1.0);
    const double to = std::clamp(place.to, 0.0, 1.0);
    const double free = FreeRoom * std::abs(extent - (to - from)) / 2.0;
    return std::clamp(centre, (from + to) / 2.0 - free, (from + to) / 2.0 + free);
}
