#include <KxSubject/KxSubjectDecision.h>

#include <KxSubject/Choice/KxCentreScore.h>
#include <KxSubject/Choice/KxChoiceRanges.h>
#include <KxSubject/Choice/KxChosenEvidence.h>
#include <KxSubject/Choice/KxEvidence.h>
#include <KxSubject/Choice/KxShotConfidence.h>
#include <KxSubject/Choice/KxSubjectTracker.h>
#include <KxSubject/Decision/KxDecisionTask.h>
#include <KxSubject/Decision/KxPlacedCrops.h>
#include <KxSubject/Decision/KxShotSpan.h>
#include <KxSubject/Decision/KxSpeakerCentres.h>
#include <KxSubject/Path/KxCropPath.h>
#include <KxSubject/Path/KxHeldRanges.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

namespace
{

constexpr double EaseSeconds = 1.0; ///< for coming to a place that a person chose

class Decider
{
public:
    Decider(const KxSubjectRecord& record, const KxSubjectRequest& request, const KxSubjectOptions& options)
        : m_task{record, request, options}
        , m_shots(KxShotSpansOf(record, m_task.LongestHoldFrames()))
        , m_score(options.evidence, m_task.geometry)
        , m_withoutAvoided(WithoutAvoidedThings())
        , m_evidence(m_withoutAvoided ? *m_withoutAvoided : record, options, m_task.geometry.FreeAxis())
    {
    }

    KxSubjectDecision Run(const KxCancelToken& cancel);

private:
    /// The record less what a person wants to avoid; nothing if there is no such choice.
    std::optional<KxSubjectRecord> WithoutAvoidedThings() const;
    /// What is known about one shot: the signals, and what the person makes of them.
    struct ShotEvidence {
        KxEvidence::InShot signals;
        KxChosenEvidence chosen;
    };
    /// The evidence of all signals, its peaks amplified, so that one subject outweighs what is spread wide.
    KxSignalProfile Combined(const KxEvidence::Parts& parts, const ShotEvidence& evidence, std::size_t sample) const;
    KxCentreScore::Scores ScoresAt(const ShotEvidence& evidence, std::size_t sample) const;
    /// The tracker's cost of a move by one width: where pictures are missing, fewer samples have to pay for a move.
    double MoveCost(const KxShotSpan& shot) const;
    ShotEvidence EvidenceIn(const KxShotSpan& shot, const KxChoiceRanges& choices, const KxCancelToken& cancel) const;
    /// The centre that the evidence asks for at each sample.
    std::vector<KxPathPoint> WantedCentres(const KxShotSpan& shot, const ShotEvidence& evidence,
                                           const KxCancelToken& cancel) const;
    std::vector<double> Drawn(const KxShotSpan& shot, const ShotEvidence& evidence,
                              const std::vector<KxPathPoint>& points, const KxCancelToken& cancel) const;
    std::vector<double> CentresOf(const KxShotSpan& shot, const KxChoiceRanges& choices,
                                  const std::vector<KxHeldRange>& held, const KxCancelToken& cancel);
    void AddCrops(const KxShotSpan& shot, const KxCancelToken& cancel, std::vector<KxCropRect>& crops);
    struct DecidedShot {
        const KxShotSpan& span;
        const ShotEvidence& evidence;
        const std::vector<KxPathPoint>& wanted; ///< the centre at each sample
        const std::vector<double>& path;        ///< the centre at each frame, as the evidence wants it
        const KxSpeakerCentres& speaker;
    };
    void RecordFindings(const DecidedShot& shot);
    KxSubjectOptions::Reaction ReactionIn(const ShotEvidence& evidence) const;

    KxDecisionTask m_task;
    std::vector<KxShotSpan> m_shots;
    KxCentreScore m_score;
    std::optional<KxSubjectRecord> m_withoutAvoided;
    KxEvidence m_evidence;
    KxSubjectFindings m_findings;
};

std::optional<KxSubjectRecord> Decider::WithoutAvoidedThings() const
{
    const bool avoids = std::any_of(m_task.request.choices.begin(), m_task.request.choices.end(),
                                    [](const KxSubjectChoice& choice) { return choice.kind == KxChoiceKind::Avoid; });
    if (!avoids) {
        return std::nullopt;
    }
    KxSubjectRecord left = m_task.record;
    for (const KxShotSpan& shot : m_shots) {
        const KxChoiceRanges choices(m_task.request.choices, m_task.record.source.frameRate, shot.first, shot.end);
        const KxChosenEvidence chosen(m_task.request, choices, m_task.options.follow, m_task.record.source.frameRate,
                                      m_task.geometry.FreeAxis());
        chosen.RemoveAvoided(left, m_task.options);
    }
    return left;
}

KxSignalProfile Decider::Combined(const KxEvidence::Parts& parts, const ShotEvidence& evidence,
                                  std::size_t sample) const
{
    return evidence.chosen.Of(parts.Sum(), m_task.record.samples[sample].frame)
        .Concentrated(m_task.options.evidence.concentration);
}

KxCentreScore::Scores Decider::ScoresAt(const ShotEvidence& evidence, std::size_t sample) const
{
    const KxEvidence::Parts parts = evidence.signals.At(sample);
    const KxSignalProfile combined = Combined(parts, evidence, sample);
    return m_score.Of(combined, parts.Detected(combined));
}

KxSubjectOptions::Reaction Decider::ReactionIn(const ShotEvidence& evidence) const
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

double Decider::MoveCost(const KxShotSpan& shot) const
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

std::vector<KxPathPoint> Decider::WantedCentres(const KxShotSpan& shot, const ShotEvidence& evidence,
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

std::vector<double> Decider::Drawn(const KxShotSpan& shot, const ShotEvidence& evidence,
                                   const std::vector<KxPathPoint>& points, const KxCancelToken& cancel) const
{
    return KxCropPath(m_task.options.path, ReactionIn(evidence), m_task.geometry)
        .Draw(points, {shot.first, shot.end, m_task.record.source.frameRate}, 0.5, cancel);
}

Decider::ShotEvidence Decider::EvidenceIn(const KxShotSpan& shot, const KxChoiceRanges& choices,
                                          const KxCancelToken& cancel) const
{
    const auto evidenceWith = [&](const KxChoiceRanges& ranges) {
        return ShotEvidence{m_evidence.Of(shot.first, shot.end),
                            {m_task.request, ranges, m_task.options.follow, m_task.record.source.frameRate,
                             m_task.geometry.FreeAxis()}};
    };
    ShotEvidence evidence = evidenceWith(choices);
    if (!evidence.chosen.Follows()) {
        return evidence;
    }
    const auto centresOf = [&](const ShotEvidence& from) {
        return [first = shot.first, centres = Drawn(shot, from, WantedCentres(shot, from, cancel), cancel)](
                   std::int64_t frame) { return centres[static_cast<std::size_t>(frame - first)]; };
    };
    const KxChosenEvidence::CentreAt automatic = centresOf(evidenceWith(KxChoiceRanges::None()));
    evidence.chosen.LeaveWhatIsHeld(automatic, m_task.geometry.Extent(), m_task.options.follow.heldShare);
    if (!evidence.chosen.Follows()) {
        return evidence;
    }
    const KxChosenEvidence::CentreAt followed = centresOf(evidence);
    evidence.chosen.AdjustAutomatic(automatic);
    const KxChosenEvidence::CentreAt adjusted = evidence.chosen.Adjusts() ? centresOf(evidence) : followed;
    evidence.chosen.FollowWhatIsHeldBetter(adjusted, followed, m_task.geometry.Extent());
    evidence.chosen.LeaveWhatGainsLittle(adjusted, followed, m_task.geometry.Extent());
    return evidence;
}

std::vector<double> Decider::CentresOf(const KxShotSpan& shot, const KxChoiceRanges& choices,
                                       const std::vector<KxHeldRange>& held, const KxCancelToken& cancel)
{
    const ShotEvidence evidence = EvidenceIn(shot, choices, cancel);
    std::vector<KxPathPoint> wanted = WantedCentres(shot, evidence, cancel);
    for (const KxHeldRange& range : held) {
        for (KxPathPoint& point : wanted) {
            point.centre = point.frame >= range.first && point.frame < range.end ? range.centre : point.centre;
        }
    }
    std::vector<double> centres = Drawn(shot, evidence, wanted, cancel);
    const bool isChosen = !choices.Placed().empty() || !choices.Avoided().empty();
    KxSpeakerCentres speaker = isChosen ? KxSpeakerCentres() : KxSpeakerCentresOf(m_task, shot, centres, cancel);
    if (m_task.request.wantsFindings && !cancel.IsCancelled()) {
        RecordFindings({shot, evidence, wanted, centres, speaker});
    }
    if (!speaker.centres.empty()) {
        centres = std::move(speaker.centres);
    }
    if (!cancel.IsCancelled()) {
        KxHoldRanges(centres, {shot.first, shot.end, m_task.record.source.frameRate}, held, EaseSeconds);
    }
    return centres;
}

void Decider::AddCrops(const KxShotSpan& shot, const KxCancelToken& cancel, std::vector<KxCropRect>& crops)
{
    const KxChoiceRanges choices(m_task.request.choices, m_task.record.source.frameRate, shot.first, shot.end);
    const KxPlacedCrops placed = KxPlacedCropsOf(m_task.request.choices, choices, m_task.geometry);
    for (const double centre : CentresOf(shot, choices, placed.held, cancel)) {
        crops.push_back(m_task.geometry.At(centre));
    }
    for (const KxChoiceRanges::Range& range : placed.whole) {
        std::fill(crops.begin() + range.first, crops.begin() + range.end, m_task.record.content);
    }
}

void Decider::RecordFindings(const DecidedShot& shot)
{
    KxShotConfidence confidence(m_score, m_task.geometry.Extent() / 2.0);
    std::array<float, KxSignalCount> totals{};
    float whole = 0.0F;
    for (std::size_t i = 0; i < shot.wanted.size(); ++i) {
        const std::size_t index = shot.span.firstSample + i;
        const KxEvidence::Parts parts = shot.evidence.signals.At(index);
        KxSubjectFindings::Sample sample;
        sample.frame = shot.wanted[i].frame;
        sample.wanted = shot.wanted[i].centre;
        const KxSignalProfile combined = Combined(parts, shot.evidence, index);
        whole += combined.Sum();
        const double drawn = shot.path[static_cast<std::size_t>(sample.frame - shot.span.first)];
        confidence.Add(drawn, combined);
        sample.evidence = KxPackedProfile(combined);
        const std::array<const KxSignalProfile*, KxSignalCount> signals{&parts.motion, &parts.movers, &parts.saliency,
                                                                        &parts.faces, &parts.detections};
        for (std::size_t signal = 0; signal < KxSignalCount; ++signal) {
            sample.scores[signal] = m_score.Excess(sample.wanted, *signals[signal]);
            totals[signal] += sample.scores[signal];
            // What a person points at need not be what the signals prefer.
            if (!shot.evidence.chosen.Follows()) {
                confidence.AddSignal(drawn, *signals[signal]);
            }
        }
        m_findings.samples.push_back(sample);
    }
    const auto dominant = std::max_element(totals.begin(), totals.end()) - totals.begin();
    const bool followsSpeaker = !shot.speaker.centres.empty();
    m_findings.shots.push_back({shot.span.first, shot.span.end, static_cast<KxSignal>(dominant),
                                followsSpeaker ? shot.speaker.confidence : confidence.Value(),
                                whole / static_cast<float>(shot.wanted.size()), shot.speaker.speech,
                                shot.speaker.changes});
}

KxSubjectDecision Decider::Run(const KxCancelToken& cancel)
{
    KxSubjectDecision decision;
    decision.crops.reserve(static_cast<std::size_t>(m_task.record.source.frameCount));
    m_findings.freeAxis = m_task.geometry.FreeAxis();
    m_findings.content = m_task.record.content;
    for (const KxShotSpan& shot : m_shots) {
        if (shot.first < m_task.request.frames.end && shot.end > m_task.request.frames.first) {
            AddCrops(shot, cancel, decision.crops);
        } else {
            decision.crops.insert(decision.crops.end(), static_cast<std::size_t>(shot.end - shot.first),
                                  m_task.geometry.At(0.5));
        }
        if (cancel.IsCancelled()) {
            return {};
        }
    }
    decision.findings = std::move(m_findings);
    return decision;
}

} // namespace

KxSubjectDecision KxDecide(const KxSubjectRecord& record, const KxSubjectRequest& request,
                           const KxSubjectOptions& options, const KxCancelToken& cancel)
{
    return Decider(record, request, options).Run(cancel);
}
