#include <KxSubject/Choice/KxHeardSound.h>

#include <algorithm>
#include <cmath>

namespace
{

constexpr double FloorSeconds = 5.0; ///< each way, whose tenth percentile is the quiet
constexpr double LevelsPerDecibel = 100.0;
constexpr double Silence = -70.0;          ///< decibels, where the sound is not known
constexpr double FloorPeriodSeconds = 0.4; ///< the quiet changes slowly

std::size_t StepsOf(double seconds)
{
    return static_cast<std::size_t>(std::lround(seconds * KxSoundSpan::LevelsPerSecond));
}

/// The quiet around each level.
KxSeries::Values Floors(const KxSeries::Values& decibels)
{
    const std::size_t reach = StepsOf(FloorSeconds);
    KxSeries::Values floors(decibels.size());
    for (std::size_t i = 0; i < decibels.size(); ++i) {
        if (i % StepsOf(FloorPeriodSeconds) != 0) {
            floors[i] = floors[i - 1];
            continue;
        }
        const auto from = decibels.begin() + static_cast<std::ptrdiff_t>(i > reach ? i - reach : 0);
        const auto to = decibels.begin() + static_cast<std::ptrdiff_t>(std::min(decibels.size(), i + reach + 1));
        floors[i] = KxSeries::Percentile({from, to}, 0.1);
    }
    return floors;
}

void CloseGaps(std::vector<bool>& gate, std::size_t shorterThan)
{
    std::size_t end = 0; // of the last open stretch
    for (std::size_t i = 0; i < gate.size(); ++i) {
        if (gate[i]) {
            if (end > 0 && i - end < shorterThan) {
                std::fill(gate.begin() + static_cast<std::ptrdiff_t>(end),
                          gate.begin() + static_cast<std::ptrdiff_t>(i), true);
            }
            end = i + 1;
        }
    }
}

} // namespace

KxHeardSound::KxHeardSound(const KxSubjectRecord& record, const KxSubjectOptions::Speech& options, std::int64_t first,
                           std::int64_t end)
{
    if (first >= end) {
        return;
    }
    const auto margin = static_cast<std::int64_t>(StepsOf(FloorSeconds));
    std::int64_t from = first;
    std::int64_t to = end;
    for (const KxSoundSpan& span : record.sound) {
        const std::int64_t spanEnd = span.first + static_cast<std::int64_t>(span.levels.size());
        if (span.first < end + margin && spanEnd > first - margin) {
            from = std::min(from, std::max(span.first, first - margin));
            to = std::max(to, std::min(spanEnd, end + margin));
        }
    }
    KxSeries::Values decibels(static_cast<std::size_t>(to - from), Silence);
    KxSeries::Values known;
    bool isKnown = false;
    for (const KxSoundSpan& span : record.sound) {
        const std::int64_t spanEnd = span.first + static_cast<std::int64_t>(span.levels.size());
        isKnown = isKnown || (span.first < end && spanEnd > first);
        for (std::int64_t at = std::max(from, span.first); at < std::min(to, spanEnd); ++at) {
            known.push_back(span.levels[static_cast<std::size_t>(at - span.first)] / LevelsPerDecibel);
            decibels[static_cast<std::size_t>(at - from)] = known.back();
        }
    }
    if (!isKnown) {
        return;
    }
    const double loud = KxSeries::Percentile(known, 0.95);
    const KxSeries::Values smooth = KxSeries::MeansAround(decibels, 1);
    const KxSeries::Values floors = Floors(decibels);
    std::vector<bool> gate(decibels.size());
    for (std::size_t i = 0; i < gate.size(); ++i) {
        gate[i] = smooth[i] > std::max(floors[i] + options.aboveFloor, loud - options.belowLoud);
    }
    CloseGaps(gate, StepsOf(options.gapSeconds));
    const KxSeries::Values scores =
        KxSeries::LocalScores(smooth, StepsOf(options.meanSeconds), StepsOf(options.deviationSeconds));
    const auto skip = static_cast<std::ptrdiff_t>(first - from);
    const auto count = static_cast<std::ptrdiff_t>(end - first);
    m_gate.assign(gate.begin() + skip, gate.begin() + skip + count);
    m_scores.assign(scores.begin() + skip, scores.begin() + skip + count);
}
