#include <KxSubject/Choice/KxSpeakerRuns.h>

#include <KxSubject/KxSubjectRecord.h>

#include <algorithm>
#include <cmath>
#include <optional>

namespace
{

constexpr double NobodysEvidence = 0.05; ///< at a step, what a speaker's evidence has to exceed
constexpr double LeastRunSeconds = 0.7;  ///< a shorter turn is not followed
constexpr double PauseSeconds = 1.0;     ///< a word before a longer silence starts no turn

std::ptrdiff_t StepsOf(double seconds)
{
    return std::lround(seconds * KxSoundSpan::LevelsPerSecond);
}

/// The best state at each step; the last state is nobody.
std::vector<std::size_t> BestStates(const std::vector<KxSeries::Values>& emissions, const std::vector<bool>& gate,
                                    const KxSubjectOptions::Speech& options)
{
    const std::size_t nobody = emissions.size();
    std::vector<double> reached(nobody + 1, 0.0);
    std::vector<std::uint8_t> origins;
    origins.reserve(gate.size() * (nobody + 1));
    for (std::size_t step = 0; step < gate.size(); ++step) {
        const auto best = std::max_element(reached.begin(), reached.end());
        const auto from = static_cast<std::uint8_t>(best - reached.begin());
        const double changed = *best - options.changeCost;
        for (std::size_t state = 0; state <= nobody; ++state) {
            const bool changes = changed > reached[state];
            origins.push_back(changes ? from : static_cast<std::uint8_t>(state));
            const double emission = state < nobody ? emissions[state][step] : gate[step] ? NobodysEvidence : 0.0;
            reached[state] = std::max(reached[state], changed) + emission;
        }
    }
    std::vector<std::size_t> states(gate.size());
    auto state = static_cast<std::size_t>(std::max_element(reached.begin(), reached.end()) - reached.begin());
    for (std::size_t step = gate.size(); step > 0; --step) {
        states[step - 1] = state;
        state = origins[(step - 1) * (nobody + 1) + state];
    }
    return states;
}

/// Runs of equal states, without nobody's.
std::vector<KxSpeakerRun> RunsOf(const std::vector<std::size_t>& states, std::size_t nobody)
{
    std::vector<KxSpeakerRun> runs;
    for (std::size_t step = 0; step < states.size(); ++step) {
        if (states[step] == nobody) {
            continue;
        }
        if (!runs.empty() && runs.back().end == step && runs.back().person == states[step]) {
            ++runs.back().end;
        } else {
            runs.push_back({states[step], step, step + 1});
        }
    }
    return runs;
}

/// The first sound of a run. A word that is followed by a long silence is an interjection: the sound after it counts.
std::size_t StartOf(const KxSpeakerRun& run, const std::vector<bool>& gate)
{
    const auto least = StepsOf(LeastRunSeconds);
    const auto pause = StepsOf(PauseSeconds);
    const auto last = gate.begin() + static_cast<std::ptrdiff_t>(run.end) - 1;
    const auto first = std::find(gate.begin() + static_cast<std::ptrdiff_t>(run.first), last, true);
    const auto silent = std::find(first, last, false);
    const auto next = std::find(silent, last, true);
    const bool isInterjection = silent - first < least && next - silent >= pause && next != last;
    return static_cast<std::size_t>((isInterjection ? next : first) - gate.begin());
}

/// Each run from its first sound until the next one; neighbours of one person become one run.
std::vector<KxSpeakerRun> Stretched(const std::vector<KxSpeakerRun>& runs, const std::vector<bool>& gate)
{
    std::vector<KxSpeakerRun> stretched;
    for (KxSpeakerRun run : runs) {
        run.first = StartOf(run, gate);
        if (stretched.empty()) {
            stretched.push_back({run.person, 0, run.end});
        } else if (stretched.back().person != run.person) {
            stretched.back().end = run.first;
            stretched.push_back(run);
        }
    }
    if (!stretched.empty()) {
        stretched.back().end = gate.size();
    }
    return stretched;
}

/// The evidence of the best one besides `person`; 0 if there is nobody.
double BestOther(const std::vector<KxSeries::Values>& emissions, std::size_t person, std::size_t step)
{
    std::optional<double> best;
    for (std::size_t other = 0; other < emissions.size(); ++other) {
        if (other != person) {
            best = std::max(best.value_or(emissions[other][step]), emissions[other][step]);
        }
    }
    return best.value_or(0.0);
}

} // namespace

KxSpeakerRuns::KxSpeakerRuns(const std::vector<KxSeries::Values>& emissions, const std::vector<bool>& gate,
                             const KxSubjectOptions::Speech& options)
{
    std::vector<KxSpeakerRun> spoken = RunsOf(BestStates(emissions, gate, options), emissions.size());
    const auto least = static_cast<std::size_t>(StepsOf(LeastRunSeconds));
    spoken.erase(std::remove_if(spoken.begin(), spoken.end(),
                                [least](const KxSpeakerRun& run) { return run.end - run.first < least; }),
                 spoken.end());
    std::size_t steps = 0;
    for (const KxSpeakerRun& run : spoken) {
        for (std::size_t step = run.first; step < run.end; ++step) {
            if (!gate[step]) {
                continue;
            }
            margin += emissions[run.person][step] - BestOther(emissions, run.person, step);
            ++steps;
        }
    }
    margin = steps > 0 ? margin / static_cast<double>(steps) : 0.0;
    speechSeconds = static_cast<double>(steps) / KxSoundSpan::LevelsPerSecond;
    runs = Stretched(spoken, gate);
}
