#include <KxSubject/Choice/KxSpeakerChoice.h>

#include <KxSubject/Choice/KxHeardSound.h>
#include <KxSubject/Choice/KxMouthEvidence.h>
#include <KxSubject/Choice/KxSpeakerRuns.h>

#include <algorithm>
#include <cmath>

namespace
{

constexpr double LeastSeconds = 2.0; ///< that each of two faces lasts, and of speech
constexpr double LeastShare = 0.6;   ///< of a shot, in which two mouths are seen
constexpr double Room = 0.25;        ///< in widths of a face on each side, so that it fits

} // namespace

KxSpeakerChoice::KxSpeakerChoice(const KxSubjectRecord& record, const KxSubjectOptions::Speech& options,
                                 std::int64_t first, std::int64_t end)
    : m_record(record)
    , m_options(options)
    , m_first(first)
    , m_faces(record, first, end)
{
    constexpr double levels = KxSoundSpan::LevelsPerSecond;
    const auto firstLevel = static_cast<std::int64_t>(std::floor(record.SecondsAt(first) * levels));
    const auto endLevel = static_cast<std::int64_t>(std::ceil(record.SecondsAt(end) * levels));
    const KxHeardSound sound(record, options, firstLevel, endLevel);
    if (!sound.IsKnown()) {
        return;
    }
    std::vector<std::size_t> people;
    std::vector<KxSeries::Values> emissions;
    std::vector<int> measured(sound.Gate().size(), 0); // how many people are, at each level
    for (std::size_t person = 0; person < m_faces.People().size(); ++person) {
        const KxMouthEvidence mouth(record, options, sound, firstLevel, m_faces.People()[person].faces);
        if (mouth.MeasuredSeconds() >= LeastSeconds) {
            people.push_back(person);
            emissions.push_back(mouth.Emissions(sound.Gate()));
            std::transform(measured.begin(), measured.end(), mouth.Measured().begin(), measured.begin(), std::plus<>());
        }
    }
    const auto several = std::count_if(measured.begin(), measured.end(), [](int count) { return count >= 2; });
    m_hasSeveral = static_cast<double>(several) >= LeastShare * static_cast<double>(measured.size());
    if (people.size() < 2 || !m_hasSeveral) {
        return;
    }
    const KxSpeakerRuns speakers(emissions, sound.Gate(), options);
    m_margin = speakers.margin;
    if (speakers.margin < options.leastMargin || speakers.speechSeconds < LeastSeconds) {
        return;
    }
    const auto frameAt = [&record, firstLevel](std::size_t step) {
        const double seconds = (static_cast<double>(firstLevel) + static_cast<double>(step)) / levels;
        return static_cast<std::int64_t>(std::lround(seconds * record.source.frameRate));
    };
    for (const KxSpeakerRun& run : speakers.runs) {
        m_turns.push_back({std::max(first, frameAt(run.first)), std::min(end, frameAt(run.end)), {people[run.person]}});
    }
    if (!m_turns.empty()) {
        m_turns.front().first = first;
        m_turns.back().end = end;
    }
}

KxSpeakerChoice::Extent KxSpeakerChoice::ExtentAt(const std::vector<std::size_t>& people, double seconds,
                                                  KxAxis axis) const
{
    Extent extent{1.0, 0.0};
    for (const std::size_t person : people) {
        const KxCropRect box = m_faces.BoxAt(person, seconds);
        const double from = axis == KxAxis::Across ? box.x : box.y;
        const double length = axis == KxAxis::Across ? box.width : box.height;
        extent.from = std::min(extent.from, from - Room * length);
        extent.to = std::max(extent.to, from + (1.0 + Room) * length);
    }
    return extent;
}

bool KxSpeakerChoice::Fits(const std::vector<std::size_t>& people, std::int64_t first, std::int64_t end,
                           const KxCropGeometry& geometry) const
{
    constexpr double stepSeconds = 0.5;
    const double to = m_record.SecondsAt(end);
    for (double seconds = m_record.SecondsAt(first); seconds < to; seconds += stepSeconds) {
        const Extent extent = ExtentAt(people, seconds, geometry.FreeAxis());
        if (extent.to - extent.from > geometry.Extent()) {
            return false;
        }
    }
    return true;
}

std::vector<KxSpeakerChoice::Part> KxSpeakerChoice::Parts(const KxCropGeometry& geometry) const
{
    std::vector<Part> parts;
    for (const Part& turn : m_turns) {
        if (!parts.empty()) {
            std::vector<std::size_t> both = parts.back().people;
            if (std::find(both.begin(), both.end(), turn.people.front()) == both.end()) {
                both.push_back(turn.people.front());
            }
            if (Fits(both, parts.back().first, turn.end, geometry)) {
                parts.back().people = std::move(both);
                parts.back().end = turn.end;
                continue;
            }
        }
        parts.push_back(turn);
    }
    return parts;
}

double KxSpeakerChoice::CentreAt(const Part& part, std::int64_t frame, KxAxis axis) const
{
    const Extent extent = ExtentAt(part.people, m_record.SecondsAt(frame), axis);
    return (extent.from + extent.to) / 2.0;
}

double KxSpeakerChoice::ShareHeld(const std::vector<double>& centres, const KxCropGeometry& geometry) const
{
    std::int64_t held = 0;
    for (const Part& turn : m_turns) {
        for (std::int64_t frame = turn.first; frame < turn.end; ++frame) {
            const Extent face = ExtentAt(turn.people, m_record.SecondsAt(frame), geometry.FreeAxis());
            const double room = Room / (1.0 + 2.0 * Room) * (face.to - face.from);
            const double centre = std::clamp(centres[static_cast<std::size_t>(frame - m_first)],
                                             geometry.MinimumCentre(), geometry.MaximumCentre());
            held += face.from + room >= centre - geometry.Extent() / 2.0 &&
                            face.to - room <= centre + geometry.Extent() / 2.0
                        ? 1
                        : 0;
        }
    }
    return centres.empty() ? 0.0 : static_cast<double>(held) / static_cast<double>(centres.size());
}
