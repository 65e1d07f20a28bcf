#include <KxSubject/Decision/KxEvidenceCentres.h>

#include <KxSubject/Choice/KxSubjectTracker.h>

#include <algorithm>
#include <cmath>

KxEvidenceCentres::KxEvidenceCentres(const KxDecisionTask& task, const std::vector<KxShotSpan>& shots)
    : m_task(task)
    , m_score(task.options.evidence, task.geometry)
    , m_withoutAvoided(WithoutAvoidedThings(shots))
    , m_evidence(m_withoutAvoided ? *m_withoutAvoided : task.record, task.options, task.geometry.FreeAxis())
{
}

KxChosenEvidence KxEvidenceCentres::ChosenIn(const KxChoiceRanges& choices) const
{
    return {m_task.request, choices, m_task.options, m_task.record, m_task.geometry.FreeAxis()};
}

std::optional<KxSubjectRecord> KxEvidenceCentres::WithoutAvoidedThings(const std::vector<KxShotSpan>& shots) const
{
    const KxSubjectChoices& choices = m_task.request.choices;
    const bool avoids = std::any_of(choices.begin(), choices.end(),
                                    [](const KxSubjectChoice& choice) { return choice.kind == KxChoiceKind::Avoid; });
    if (!avoids) {
        return std::nullopt;
    }
    KxSubjectRecord left = m_task.record;
    for (const KxShotSpan& shot : shots) {
        const KxChoiceRanges ranges(choices, left.source.frameRate, shot.first, shot.end);
        ChosenIn(ranges).RemoveAvoided(left, m_task.options);
    }
    return left;
}

KxSignalProfile KxEvidenceCentres::Combined(const KxEvidence::Parts& parts, const KxShotEvidence& evidence,
                                            std::size_t sample) const
{
    return evidence.chosen.Of(parts.Sum(), m_task.record.samples[sample].frame)
        .Concentrated(m_task.options.evidence.concentration);
}

KxCentreScore::Scores KxEvidenceCentres::ScoresAt(const KxShotEvidence& evidence, std::size_t sample) const
{
    const KxEvidence::Parts parts = evidence.signals.At(sample);
    const KxSignalProfile combined = Combined(parts, evidence, sample);
    return m_score.Of(combined, parts.Detected(combined));
}

KxSubjectOptions::Reaction KxEvidenceCentres::ReactionIn(const KxShotEvidence& evidence) const
{
    if (evidence.chosen.Adjusts()) {
        // The automatic crop is smooth by itself, and the adjustment must not come too late.
        return m_task.options.fast;
    }
    KxSubjectOptions::Reaction reaction = m_task.options.For(m_task.request.speed);
    if (evidence.chosen.Follows()) {
        // A person who points at something wants it in the picture more than a calm camera.
        reaction.smoothingSeconds = std::min(reaction.smoothingSeconds, m_task.options.follow.smoothingSeconds);
    }
    return reaction;
}

double KxEvidenceCentres::MoveCost(const KxShotSpan& shot) const
{
    if (shot.firstSample == shot.endSample) {
        return 0.0;
    }
    const KxSubjectOptions& options = m_task.options;
    const std::vector<KxSignalSample>& samples = m_task.record.samples;
    const std::int64_t longestHold = m_task.LongestHoldFrames();
    const std::int64_t first = std::max(shot.first, samples[shot.firstSample].frame - longestHold);
    const std::int64_t last = std::min(shot.end - 1, samples[shot.endSample - 1].frame + longestHold);
    const double patience = options.For(m_task.request.speed).holdSeconds / options.automatic.holdSeconds;
    const double usualRate = options.sampling.samplesPerSecond;
    const double rate = static_cast<double>(shot.endSample - shot.firstSample) * m_task.record.source.frameRate /
                        static_cast<double>(last + 1 - first);
    return options.path.moveCost * m_task.geometry.NarrowShare() * patience * std::sqrt(usualRate) *
           std::min(1.0, rate / usualRate);
}

std::vector<KxPathPoint> KxEvidenceCentres::Wanted(const KxShotSpan& shot, const KxShotEvidence& evidence,
                                                   const KxCancelToken& cancel) const
{
    const std::vector<KxSignalSample>& samples = m_task.record.samples;
    KxSubjectTracker tracker(MoveCost(shot) * m_score.Spacing());
    for (std::size_t i = shot.firstSample; i < shot.endSample && !cancel.IsCancelled(); ++i) {
        const bool clear = samples[i].frame >= shot.clearFirst && samples[i].frame < shot.clearEnd;
        tracker.Add(clear ? ScoresAt(evidence, i) : KxCentreScore::Scores{});
    }
    std::vector<KxPathPoint> points;
    for (const std::size_t position : tracker.BestRun()) {
        const std::int64_t frame = samples[shot.firstSample + points.size()].frame;
        const std::optional<double> adjusted = evidence.chosen.AdjustedCentre(frame, m_task.geometry.Extent());
        points.push_back({frame, adjusted ? *adjusted : m_score.CentreAt(position)});
    }
    return points;
}

std::vector<double> KxEvidenceCentres::Drawn(const KxShotSpan& shot, const KxShotEvidence& evidence,
                                             const std::vector<KxPathPoint>& wanted, const KxCancelToken& cancel) const
{
    return KxCropPath(m_task.options.path, ReactionIn(evidence), m_task.geometry)
        .Draw(wanted, {shot.first, shot.end, m_task.record.source.frameRate}, 0.5, cancel);
}

KxShotEvidence KxEvidenceCentres::EvidenceIn(const KxShotSpan& shot, const KxChoiceRanges& choices,
                                             const KxCancelToken& cancel) const
{
    const auto evidenceWith = [&](const KxChoiceRanges& ranges) {
        return KxShotEvidence{m_evidence.Of(shot.first, shot.end), ChosenIn(ranges)};
    };
    KxShotEvidence evidence = evidenceWith(choices);
    if (!evidence.chosen.Follows()) {
        return evidence;
    }
    const auto centresOf = [&](const KxShotEvidence& from) {
        return [first = shot.first, centres = Drawn(shot, from, Wanted(shot, from, cancel), cancel)](
                   std::int64_t frame) { return centres[static_cast<std::size_t>(frame - first)]; };
    };
    const double extent = m_task.geometry.Extent();
    const KxChosenEvidence::CentreAt automatic = centresOf(evidenceWith(KxChoiceRanges::None()));
    evidence.chosen.LeaveWhatIsHeld(automatic, extent);
    if (!evidence.chosen.Follows()) {
        return evidence;
    }
    const KxChosenEvidence::CentreAt followed = centresOf(evidence);
    evidence.chosen.AdjustAutomatic(automatic);
    const KxChosenEvidence::CentreAt adjusted = evidence.chosen.Adjusts() ? centresOf(evidence) : followed;
    evidence.chosen.FollowWhatIsHeldBetter(adjusted, followed, extent);
    evidence.chosen.LeaveWhatGainsLittle(adjusted, followed, extent);
    return evidence;
}
