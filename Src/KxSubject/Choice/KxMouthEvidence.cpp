#include <KxSubject/Choice/KxMouthEvidence.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace
{

constexpr double MostProduct = 2.5;     ///< bounds what a single step can do, as when a door slams
constexpr int MostLagAfter = 2;         ///< steps that the sound may be earlier than the lips
constexpr double LagSeconds = 2.0;      ///< over which a delay has to hold
constexpr double ActivitySeconds = 1.0; ///< over which the movement is averaged
constexpr double ActivityFloor = 0.02;  ///< deviations: movement far below is noise
constexpr double RestSeconds = 1.0;     ///< of silence that show how a mouth moves at rest
constexpr double RestShare = 0.25;      ///< without silence, the mouth rests this share of the time

using Values = KxSeries::Values;

std::size_t StepsOf(double seconds)
{
    return static_cast<std::size_t>(std::lround(seconds * KxSoundSpan::LevelsPerSecond));
}

/// A measurement at a time in levels.
struct Point {
    double at;
    double value;
};

/// The points at each of `count` levels from `first` on, interpolated; beyond the ends the last one is held.
Values AtLevels(const std::vector<Point>& points, std::int64_t first, std::size_t count)
{
    Values values(count, 0.0);
    std::size_t next = 0;
    for (std::size_t i = 0; i < count && !points.empty(); ++i) {
        const double at = static_cast<double>(first) + static_cast<double>(i);
        while (next < points.size() && points[next].at < at) {
            ++next;
        }
        if (next == 0 || next == points.size()) {
            values[i] = next == 0 ? points.front().value : points.back().value;
            continue;
        }
        const Point& before = points[next - 1];
        const Point& after = points[next];
        values[i] = before.value + (at - before.at) / (after.at - before.at) * (after.value - before.value);
    }
    return values;
}

/// `values` as they are `lag` steps later; those at the ends are held.
double Later(const Values& values, std::size_t i, std::ptrdiff_t lag)
{
    const auto last = static_cast<std::ptrdiff_t>(values.size()) - 1;
    return values[static_cast<std::size_t>(std::clamp<std::ptrdiff_t>(static_cast<std::ptrdiff_t>(i) + lag, 0, last))];
}

} // namespace

KxMouthEvidence::KxMouthEvidence(const KxSubjectRecord& record, const KxSubjectOptions::Speech& options,
                                 const KxHeardSound& sound, std::int64_t first, const std::vector<std::size_t>& faces)
    : m_options(options)
    , m_measured(sound.Scores().size(), false)
{
    Sample(LooksOf(record, first, faces), first, record.source.frameRate);
    Correlate(sound);
    m_activity = KxSeries::MeansAround(m_mouth, StepsOf(ActivitySeconds / 2.0));
    for (double& activity : m_activity) {
        activity = std::log(activity + ActivityFloor);
    }
}

std::vector<const KxMouthLook*> KxMouthEvidence::LooksOf(const KxSubjectRecord& record, std::int64_t first,
                                                         const std::vector<std::size_t>& faces) const
{
    std::vector<const KxMouthLook*> looks;
    const double from = static_cast<double>(first) / KxSoundSpan::LevelsPerSecond;
    const double to = from + static_cast<double>(m_measured.size()) / KxSoundSpan::LevelsPerSecond;
    for (const KxMouthTrack& mouth : record.mouths) {
        if (std::find(faces.begin(), faces.end(), static_cast<std::size_t>(mouth.face)) == faces.end()) {
            continue;
        }
        for (const KxMouthLook& look : mouth.looks) {
            const double seconds = record.SecondsAt(look.frame);
            if (seconds >= from && seconds < to) {
                looks.push_back(&look);
            }
        }
    }
    std::stable_sort(looks.begin(), looks.end(),
                     [](const KxMouthLook* a, const KxMouthLook* b) { return a->frame < b->frame; });
    looks.erase(std::unique(looks.begin(), looks.end(),
                            [](const KxMouthLook* a, const KxMouthLook* b) { return a->frame == b->frame; }),
                looks.end());
    return looks;
}

void KxMouthEvidence::Sample(const std::vector<const KxMouthLook*>& looks, std::int64_t first, double frameRate)
{
    const double levelsPerFrame = KxSoundSpan::LevelsPerSecond / frameRate;
    std::vector<Point> mouth;
    std::vector<Point> head;
    std::vector<Point> opening;
    double open = 0.0;
    for (const KxMouthLook* look : looks) {
        const double end = look->frame * levelsPerFrame;
        const double length = look->frames * levelsPerFrame;
        // A difference over a longer time is larger; it belongs to the middle of that time.
        const double perLevel = 1.0 / (std::sqrt(length) * KxMouthLook::One);
        const double middle = end - length / 2.0 + 0.5;
        mouth.push_back({middle, look->movement * perLevel});
        head.push_back({middle, look->head * perLevel});
        open += look->opening / KxMouthLook::One;
        opening.push_back({end, open});
        const auto last = static_cast<std::ptrdiff_t>(std::ceil(end)) - first;
        for (std::ptrdiff_t i = static_cast<std::ptrdiff_t>(std::floor(end - length)) - first; i <= last; ++i) {
            if (i >= 0 && i < static_cast<std::ptrdiff_t>(m_measured.size())) {
                m_measured[static_cast<std::size_t>(i)] = true;
            }
        }
    }
    m_mouth = AtLevels(mouth, first, m_measured.size());
    m_head = AtLevels(head, first, m_measured.size());
    m_opening = AtLevels(opening, first, m_measured.size());
}

KxSeries::Values KxMouthEvidence::Movement() const
{
    const std::size_t count = m_measured.size();
    const auto scores = [this](const Values& values) {
        return KxSeries::LocalScores(values, StepsOf(m_options.meanSeconds), StepsOf(m_options.deviationSeconds));
    };
    Values moved = KxSeries::WithoutWhatFollows(m_mouth, m_head, StepsOf(m_options.deviationSeconds));
    Values opened = KxSeries::MeansAround(m_opening, StepsOf(m_options.openingSeconds / 2.0));
    for (std::size_t i = 0; i < count; ++i) {
        opened[i] = m_opening[i] - opened[i];
    }
    moved = scores(KxSeries::MeansAround(moved, 1));
    opened = scores(opened);
    const double scale = std::hypot(1.0, m_options.openingWeight);
    Values movement(count, 0.0);
    for (std::size_t i = 0; i < count; ++i) {
        const double both = (moved[i] + Later(moved, i, 1)) / 2.0 + m_options.openingWeight * opened[i];
        movement[i] = m_measured[i] ? both / scale : 0.0;
    }
    return movement;
}

void KxMouthEvidence::Correlate(const KxHeardSound& sound)
{
    const std::size_t count = m_measured.size();
    const Values movement = Movement();
    const auto product = [&](std::ptrdiff_t lag) {
        Values products(count);
        for (std::size_t i = 0; i < count; ++i) {
            products[i] = std::clamp(Later(movement, i, lag) * sound.Scores()[i] / m_options.productScale, -MostProduct,
                                     MostProduct);
        }
        return products;
    };
    double best = -std::numeric_limits<double>::infinity();
    std::ptrdiff_t bestLag = 0;
    for (std::ptrdiff_t lag = -m_options.mostLagBefore; lag <= MostLagAfter; ++lag) {
        const Values smooth = KxSeries::MeansAround(product(lag), StepsOf(LagSeconds / 2.0));
        double sum = 0.0;
        for (std::size_t i = 0; i < count; ++i) {
            sum += sound.Gate()[i] ? std::max(smooth[i], 0.0) : 0.0;
        }
        if (sum > best) {
            best = sum;
            bestLag = lag;
        }
    }
    m_correlation.assign(count, 0.0);
    for (std::ptrdiff_t lag = bestLag - 1; lag <= bestLag + 1; ++lag) {
        const Values products = product(lag);
        for (std::size_t i = 0; i < count; ++i) {
            m_correlation[i] += products[i] / 3.0;
        }
    }
}

double KxMouthEvidence::MeasuredSeconds() const
{
    return static_cast<double>(std::count(m_measured.begin(), m_measured.end(), true)) / KxSoundSpan::LevelsPerSecond;
}

double KxMouthEvidence::ActivityAtRest(const std::vector<bool>& gate) const
{
    Values all;
    double sum = 0.0;
    std::size_t silent = 0;
    for (std::size_t i = 0; i < gate.size(); ++i) {
        if (m_measured[i]) {
            all.push_back(m_activity[i]);
            sum += gate[i] ? 0.0 : m_activity[i];
            silent += gate[i] ? 0 : 1;
        }
    }
    if (silent > StepsOf(RestSeconds)) {
        return sum / static_cast<double>(silent);
    }
    return all.empty() ? 0.0 : KxSeries::Percentile(std::move(all), RestShare);
}

KxSeries::Values KxMouthEvidence::Emissions(const std::vector<bool>& gate) const
{
    const double rest = ActivityAtRest(gate);
    Values emissions(gate.size(), 0.0);
    for (std::size_t i = 0; i < gate.size(); ++i) {
        if (gate[i]) {
            const double active = m_measured[i] ? std::max(m_activity[i] - rest, -1.0) : -1.0;
            emissions[i] = m_correlation[i] + m_options.activityWeight * active;
        }
    }
    return emissions;
}
