#include <KxSubject/Choice/KxDetectionTracks.h>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <tuple>

namespace
{

constexpr double FullArea = 0.06;      ///< of the picture: a larger box weighs no more
constexpr double Centrality = 0.4;     ///< how much less a box at the picture's edge weighs
constexpr double MostGapSeconds = 2.5; ///< a box that is missed for longer is another one
constexpr double FadeSeconds = 1.0;    ///< before the first and after the last look at a track

double AreaOf(const KxDetection& box)
{
    return static_cast<double>(box.width) * static_cast<double>(box.height);
}

double MiddleX(const KxDetection& box)
{
    return static_cast<double>(box.x) + static_cast<double>(box.width) / 2.0;
}

double MiddleY(const KxDetection& box)
{
    return static_cast<double>(box.y) + static_cast<double>(box.height) / 2.0;
}

KxDetection Between(const KxDetection& a, const KxDetection& b, double part)
{
    const auto mix = [part](float from, float to) {
        return static_cast<float>(static_cast<double>(from) + part * static_cast<double>(to - from));
    };
    return {mix(a.x, b.x),           mix(a.y, b.y),         mix(a.width, b.width),
            mix(a.height, b.height), mix(a.score, b.score), a.kind};
}

/// By score, size and place.
double ValueOf(const KxDetection& box)
{
    const double offCentre = std::max(std::abs(MiddleX(box) - 0.5), std::abs(MiddleY(box) - 0.5)) / 0.5;
    return static_cast<double>(box.score) * std::sqrt(std::min(AreaOf(box), FullArea)) * (1.0 - Centrality * offCentre);
}

KxDetectionLook SubjectsOf(const KxDetectionLook& look)
{
    KxDetectionLook subjects{look.frame, {}};
    std::copy_if(look.found.begin(), look.found.end(), std::back_inserter(subjects.found),
                 [](const KxDetection& found) { return KxIsSubject(found.kind); });
    return subjects;
}

} // namespace

KxDetectionTracks::KxDetectionTracks(const KxSubjectRecord& record, const KxSubjectOptions::Detections& options,
                                     std::int64_t first, std::int64_t end, Kinds kinds)
    : m_options(options)
{
    const auto isBefore = [](const KxDetectionLook& look, std::int64_t frame) { return look.frame < frame; };
    const auto from = std::lower_bound(record.looks.begin(), record.looks.end(), first, isBefore);
    const auto to = std::lower_bound(from, record.looks.end(), end, isBefore);
    for (auto look = from; look != to; ++look) {
        Link(kinds == Kinds::All ? *look : SubjectsOf(*look), record.SecondsAt(look->frame));
    }
    for (Track& track : m_tracks) {
        for (const Track::Point& point : track.points) {
            track.weight += ValueOf(point.box) / static_cast<double>(to - from);
        }
    }
}

KxDetection KxDetectionTracks::Track::At(double seconds) const
{
    const auto after = std::lower_bound(points.begin(), points.end(), seconds,
                                        [](const Point& point, double time) { return point.seconds < time; });
    if (after == points.begin() || after == points.end()) {
        return after == points.end() ? points.back().box : after->box;
    }
    const Point& before = *std::prev(after);
    return Between(before.box, after->box, (seconds - before.seconds) / (after->seconds - before.seconds));
}

void KxDetectionTracks::Link(const KxDetectionLook& look, double seconds)
{
    std::vector<std::tuple<double, std::size_t, std::size_t>> pairs;
    for (std::size_t i = 0; i < m_tracks.size(); ++i) {
        const Track::Point& last = m_tracks[i].points.back();
        const double gap = seconds - last.seconds;
        for (std::size_t j = 0; gap <= MostGapSeconds && j < look.found.size(); ++j) {
            const KxDetection& box = look.found[j];
            const double side = std::sqrt(std::max(AreaOf(box), AreaOf(last.box)));
            const double reach = m_options.reachBySize * side + m_options.reachPerSecond * gap;
            const double distance =
                std::hypot(MiddleX(box) - MiddleX(last.box), MiddleY(box) - MiddleY(last.box)) / reach;
            const double growth = std::abs(std::log(AreaOf(box) / AreaOf(last.box)));
            if (distance < 1.0 && growth < m_options.mostGrowth && box.kind == last.box.kind) {
                pairs.emplace_back(distance + growth / m_options.mostGrowth, i, j);
            }
        }
    }
    std::sort(pairs.begin(), pairs.end());
    std::vector<bool> isTaken(look.found.size(), false);
    for (const auto& [cost, i, j] : pairs) {
        if (!isTaken[j] && m_tracks[i].points.back().seconds < seconds) {
            m_tracks[i].points.push_back({seconds, look.found[j]});
            isTaken[j] = true;
        }
    }
    for (std::size_t j = 0; j < look.found.size(); ++j) {
        if (!isTaken[j]) {
            m_tracks.push_back({{{seconds, look.found[j]}}, 0.0});
        }
    }
}

void KxDetectionTracks::AddTrack(const Track& track, double seconds, KxAxis axis, KxSignalProfile& profile) const
{
    const double away = std::max({track.points.front().seconds - seconds, seconds - track.points.back().seconds, 0.0});
    const double presence = std::max(0.0, 1.0 - away / FadeSeconds);
    const KxDetection box = track.At(seconds);
    const bool across = axis == KxAxis::Across;
    const double upper = box.kind == KxDetectionKind::Person ? m_options.personUpperShare : 1.0;
    const double from = static_cast<double>(across ? box.x : box.y);
    const double length = across ? static_cast<double>(box.width) : static_cast<double>(box.height) * upper;
    profile.Add(from, from + length, presence * track.weight);
}

KxSignalProfile KxDetectionTracks::ProfileAt(double seconds, KxAxis axis) const
{
    double heaviest = 0.0;
    for (const Track& track : m_tracks) {
        heaviest = std::max(heaviest, track.weight);
    }
    KxSignalProfile boxes;
    for (const Track& track : m_tracks) {
        KxSignalProfile one;
        AddTrack(track, seconds, axis, one);
        boxes.Add(one, track.weight / heaviest);
    }
    KxSignalProfile scaled;
    scaled.Add(boxes, 1.0 / (static_cast<double>(boxes.Sum()) + m_options.emptyFloor));
    return scaled;
}
