#include <KxSubject/KxSubjectDecision.h>

#include <KxSubject/Choice/KxCentreScore.h>
#include <KxSubject/Choice/KxChoiceRanges.h>
#include <KxSubject/Choice/KxChosenEvidence.h>
#include <KxSubject/Choice/KxEvidence.h>
#include <KxSubject/Choice/KxShotConfidence.h>
#include <KxSubject/Choice/KxSpeakerChoice.h>
#include <KxSubject/Choice/KxSubjectTracker.h>
#include <KxSubject/KxSubjectRecord.h>
#include <KxSubject/Path/KxCropPath.h>
#include <KxSubject/Path/KxHeldRanges.h>

#include <algorithm>
#include <cmath>
#include <optional>

namespace
{

constexpr double EaseSeconds = 1.0; ///< for coming to a place that a person chose
constexpr double EnoughHeld = 0.95; ///< of the time that the crop holds the speaker anyway: it stays

class Decider
{
public:
    Decider(const KxSubjectRecord& record, const KxSubjectRequest& request, const KxSubjectOptions& options)
        : m_record(record)
        , m_request(request)
        , m_options(options)
        , m_geometry({record.source.pictureWidthPx, record.source.pictureHeightPx},
                     {request.aspectWidth, request.aspectHeight}, record.content)
        , m_score(options.evidence, m_geometry)
        , m_withoutAvoided(WithoutAvoidedThings())
        , m_evidence(m_withoutAvoided ? *m_withoutAvoided : record, options, m_geometry.FreeAxis())
    {
    }

    KxSubjectDecision Run(const KxCancelToken& cancel);

private:
    struct Shot {
        std::int64_t first;
        std::int64_t end;
        /// Frames outside these are blended with the neighbouring shot and do not count as evidence.
        std::int64_t clearFirst;
        std::int64_t clearEnd;
    };
    /// The boundaries that were found, and the ends of long pauses in the pictures: what follows hours later is
    /// another shot, and no path has to be computed through the pause.
    std::vector<KxShotBoundary> Boundaries() const;
    std::vector<Shot> Shots() const;
    /// The record less what a person wants to avoid; nothing if there is no such choice.
    std::optional<KxSubjectRecord> WithoutAvoidedThings() const;
    std::int64_t LongestHoldFrames() const;
    /// What is known about one shot: the signals, and what the person makes of them.
    struct ShotEvidence {
        KxEvidence::InShot signals;
        KxChosenEvidence chosen;
    };
    /// The evidence of all signals, its peaks amplified, so that one subject outweighs what is spread wide.
    KxSignalProfile Combined(const KxEvidence::Parts& parts, const ShotEvidence& evidence, std::size_t sample) const;
    KxCentreScore::Scores ScoresAt(const ShotEvidence& evidence, std::size_t sample) const;
    /// The tracker's cost of a move by one width, in a shot with samples from `begin` up to, but without, `end`: where
    /// pictures are missing, fewer samples have to pay for a move.
    double MoveCost(const Shot& shot, std::size_t begin, std::size_t end) const;
    /// Indices of the record's samples, from `begin` up to, but without, `end`.
    struct Samples {
        std::size_t begin;
        std::size_t end;
    };
    Samples SamplesOf(const Shot& shot) const;
    ShotEvidence EvidenceIn(const Shot& shot, const KxChoiceRanges& choices, const KxCancelToken& cancel) const;
    /// The centre that the evidence asks for at each sample.
    std::vector<KxPathPoint> WantedCentres(const Shot& shot, const ShotEvidence& evidence,
                                           const KxCancelToken& cancel) const;
    std::vector<double> Drawn(const Shot& shot, const ShotEvidence& evidence, const std::vector<KxPathPoint>& points,
                              const KxCancelToken& cancel) const;
    std::vector<double> CentresOf(const Shot& shot, const KxChoiceRanges& choices, const KxCancelToken& cancel);
    /// Where the crop must be still: nothing where more is to be shown than fits into it.
    std::optional<double> HeldCentre(const KxSubjectChoice& choice) const;
    std::vector<KxHeldRange> HeldRanges(const KxChoiceRanges& choices) const;
    void AddCrops(const Shot& shot, const KxCancelToken& cancel, std::vector<KxCropRect>& crops);
    /// With several people who talk: on the one who speaks, where `centres`, the choice without sound, would lose them.
    void FollowSpeaker(const Shot& shot, const KxCancelToken& cancel, std::vector<double>& centres);
    std::vector<double> CentresOnSpeakers(const KxSpeakerChoice& choice,
                                          const std::vector<KxSpeakerChoice::Part>& parts,
                                          const KxCancelToken& cancel) const;
    /// `points`: the wanted centres; `path`: the centre at each frame, as the evidence wants it.
    void RecordFindings(const Shot& shot, const ShotEvidence& evidence, const std::vector<KxPathPoint>& points,
                        const std::vector<double>& path);
    KxSubjectOptions::Reaction ReactionIn(const ShotEvidence& evidence) const;

    const KxSubjectRecord& m_record;
    const KxSubjectRequest& m_request;
    const KxSubjectOptions& m_options;
    KxCropGeometry m_geometry;
    KxCentreScore m_score;
    std::optional<KxSubjectRecord> m_withoutAvoided;
    KxEvidence m_evidence;
    KxSubjectFindings m_findings;
};

std::int64_t Decider::LongestHoldFrames() const
{
    // At a very low rate every picture is held for long.
    constexpr double leastFrames = 4.0;
    return std::llround(std::max(m_options.path.longestHoldSeconds * m_record.source.frameRate, leastFrames));
}

std::vector<KxShotBoundary> Decider::Boundaries() const
{
    std::vector<KxShotBoundary> boundaries = m_record.boundaries;
    const std::vector<KxSignalSample>& samples = m_record.samples;
    const auto isBefore = [](std::int64_t frame, const KxShotBoundary& boundary) { return frame < boundary.frame; };
    std::vector<KxShotBoundary> pauses;
    for (std::size_t i = 1; i < samples.size(); ++i) {
        const std::int64_t frame = samples[i].frame;
        const std::int64_t before = samples[i - 1].frame;
        if (frame - before <= LongestHoldFrames()) {
            continue;
        }
        const auto found = std::upper_bound(boundaries.begin(), boundaries.end(), before, isBefore);
        if (found == boundaries.end() || found->frame > frame) {
            pauses.push_back({frame, frame, frame, KxShotBoundaryKind::Cut});
        }
    }
    boundaries.insert(boundaries.end(), pauses.begin(), pauses.end());
    std::sort(boundaries.begin(), boundaries.end(),
              [](const KxShotBoundary& a, const KxShotBoundary& b) { return a.frame < b.frame; });
    return boundaries;
}

std::vector<Decider::Shot> Decider::Shots() const
{
    std::vector<Shot> shots{{0, m_record.source.frameCount, 0, m_record.source.frameCount}};
    for (const KxShotBoundary& boundary : Boundaries()) {
        shots.back().end = boundary.frame;
        shots.back().clearEnd = std::min(boundary.first, boundary.frame);
        shots.push_back({boundary.frame, m_record.source.frameCount, std::max(boundary.frame, boundary.last),
                         m_record.source.frameCount});
    }
    return shots;
}

std::optional<KxSubjectRecord> Decider::WithoutAvoidedThings() const
{
    const bool avoids = std::any_of(m_request.choices.begin(), m_request.choices.end(),
                                    [](const KxSubjectChoice& choice) { return choice.kind == KxChoiceKind::Avoid; });
    if (!avoids) {
        return std::nullopt;
    }
    KxSubjectRecord left = m_record;
    for (const Shot& shot : Shots()) {
        const KxChoiceRanges choices(m_request.choices, m_record.source.frameRate, shot.first, shot.end);
        const KxChosenEvidence chosen(m_request, choices, m_options.follow, m_record.source.frameRate,
                                      m_geometry.FreeAxis());
        chosen.RemoveAvoided(left, m_options);
    }
    return left;
}

KxSignalProfile Decider::Combined(const KxEvidence::Parts& parts, const ShotEvidence& evidence,
                                  std::size_t sample) const
{
    return evidence.chosen.Of(parts.Sum(), m_record.samples[sample].frame)
        .Concentrated(m_options.evidence.concentration);
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
        return m_options.fast;
    }
    KxSubjectOptions::Reaction reaction = m_options.For(m_request.speed);
    if (evidence.chosen.Follows()) {
        // A person who points at something wants it in the picture more than a calm camera.
        reaction.smoothingSeconds = std::min(reaction.smoothingSeconds, m_options.follow.smoothingSeconds);
    }
    return reaction;
}

double Decider::MoveCost(const Shot& shot, std::size_t begin, std::size_t end) const
{
    if (begin == end) {
        return 0.0;
    }
    const std::vector<KxSignalSample>& samples = m_record.samples;
    const std::int64_t first = std::max(shot.first, samples[begin].frame - LongestHoldFrames());
    const std::int64_t last = std::min(shot.end - 1, samples[end - 1].frame + LongestHoldFrames());
    const double patience = m_options.For(m_request.speed).holdSeconds / m_options.automatic.holdSeconds;
    const double usualRate = m_options.sampling.samplesPerSecond;
    const double rate =
        static_cast<double>(end - begin) * m_record.source.frameRate / static_cast<double>(last + 1 - first);
    return m_options.path.moveCost * m_geometry.NarrowShare() * patience * std::sqrt(usualRate) *
           std::min(1.0, rate / usualRate);
}

std::optional<double> Decider::HeldCentre(const KxSubjectChoice& choice) const
{
    const bool across = m_geometry.FreeAxis() == KxAxis::Across;
    double centre = across ? choice.centreX : choice.centreY;
    if (choice.kind == KxChoiceKind::Fit) {
        double low = 1.0;
        double high = 0.0;
        for (const KxSubjectBox& box : choice.boxes) {
            low = std::min(low, across ? box.x : box.y);
            high = std::max(high, across ? box.x + box.width : box.y + box.height);
        }
        if (choice.boxes.empty() || high - low > m_geometry.Extent()) {
            return std::nullopt;
        }
        centre = (low + high) / 2.0;
    } else if (choice.kind != KxChoiceKind::Hold) {
        return std::nullopt;
    }
    return std::clamp(centre, m_geometry.MinimumCentre(), m_geometry.MaximumCentre());
}

std::vector<KxHeldRange> Decider::HeldRanges(const KxChoiceRanges& choices) const
{
    std::vector<KxHeldRange> held;
    for (const KxChoiceRanges::Range& range : choices.Placed()) {
        if (const std::optional<double> centre = HeldCentre(m_request.choices[range.choice])) {
            held.push_back({range.first, range.end, *centre});
        }
    }
    return held;
}

Decider::Samples Decider::SamplesOf(const Shot& shot) const
{
    const std::vector<KxSignalSample>& samples = m_record.samples;
    const auto isBefore = [](const KxSignalSample& sample, std::int64_t frame) { return sample.frame < frame; };
    const auto from = std::lower_bound(samples.begin(), samples.end(), shot.first, isBefore);
    const auto to = std::lower_bound(from, samples.end(), shot.end, isBefore);
    return {static_cast<std::size_t>(from - samples.begin()), static_cast<std::size_t>(to - samples.begin())};
}

std::vector<KxPathPoint> Decider::WantedCentres(const Shot& shot, const ShotEvidence& evidence,
                                                const KxCancelToken& cancel) const
{
    const Samples range = SamplesOf(shot);
    const std::vector<KxSignalSample>& samples = m_record.samples;
    KxSubjectTracker tracker(MoveCost(shot, range.begin, range.end) * m_score.Spacing());
    for (std::size_t i = range.begin; i < range.end && !cancel.IsCancelled(); ++i) {
        const bool clear = samples[i].frame >= shot.clearFirst && samples[i].frame < shot.clearEnd;
        tracker.Add(clear ? ScoresAt(evidence, i) : KxCentreScore::Scores{});
    }
    std::vector<KxPathPoint> points;
    for (const std::size_t position : tracker.BestRun()) {
        const std::int64_t frame = samples[range.begin + points.size()].frame;
        const std::optional<double> adjusted = evidence.chosen.AdjustedCentre(frame, m_geometry.Extent());
        points.push_back({frame, adjusted ? *adjusted : m_score.CentreAt(position)});
    }
    return points;
}

std::vector<double> Decider::Drawn(const Shot& shot, const ShotEvidence& evidence,
                                   const std::vector<KxPathPoint>& points, const KxCancelToken& cancel) const
{
    return KxCropPath(m_options.path, ReactionIn(evidence), m_geometry)
        .Draw(points, {shot.first, shot.end, m_record.source.frameRate}, 0.5, cancel);
}

Decider::ShotEvidence Decider::EvidenceIn(const Shot& shot, const KxChoiceRanges& choices,
                                          const KxCancelToken& cancel) const
{
    const auto evidenceWith = [&](const KxChoiceRanges& ranges) {
        return ShotEvidence{m_evidence.Of(shot.first, shot.end),
                            {m_request, ranges, m_options.follow, m_record.source.frameRate, m_geometry.FreeAxis()}};
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
    evidence.chosen.LeaveWhatIsHeld(automatic, m_geometry.Extent(), m_options.follow.heldShare);
    if (!evidence.chosen.Follows()) {
        return evidence;
    }
    const KxChosenEvidence::CentreAt followed = centresOf(evidence);
    evidence.chosen.AdjustAutomatic(automatic);
    const KxChosenEvidence::CentreAt adjusted = evidence.chosen.Adjusts() ? centresOf(evidence) : followed;
    evidence.chosen.FollowWhatIsHeldBetter(adjusted, followed, m_geometry.Extent());
    evidence.chosen.LeaveWhatGainsLittle(adjusted, followed, m_geometry.Extent());
    return evidence;
}

std::vector<double> Decider::CentresOf(const Shot& shot, const KxChoiceRanges& choices, const KxCancelToken& cancel)
{
    const ShotEvidence evidence = EvidenceIn(shot, choices, cancel);
    std::vector<KxPathPoint> wanted = WantedCentres(shot, evidence, cancel);
    const std::vector<KxHeldRange> held = HeldRanges(choices);
    for (const KxHeldRange& range : held) {
        for (KxPathPoint& point : wanted) {
            point.centre = point.frame >= range.first && point.frame < range.end ? range.centre : point.centre;
        }
    }
    std::vector<double> centres = Drawn(shot, evidence, wanted, cancel);
    if (m_request.wantsFindings && !cancel.IsCancelled()) {
        RecordFindings(shot, evidence, wanted, centres);
    }
    if (choices.Placed().empty() && choices.Avoided().empty()) {
        FollowSpeaker(shot, cancel, centres);
    }
    if (!cancel.IsCancelled()) {
        KxHoldRanges(centres, {shot.first, shot.end, m_record.source.frameRate}, held, EaseSeconds);
    }
    return centres;
}

void Decider::AddCrops(const Shot& shot, const KxCancelToken& cancel, std::vector<KxCropRect>& crops)
{
    const KxChoiceRanges choices(m_request.choices, m_record.source.frameRate, shot.first, shot.end);
    for (const double centre : CentresOf(shot, choices, cancel)) {
        crops.push_back(m_geometry.At(centre));
    }
    for (const KxChoiceRanges::Range& range : choices.Placed()) {
        const KxSubjectChoice& choice = m_request.choices[range.choice];
        if (choice.kind == KxChoiceKind::Fit && !HeldCentre(choice)) {
            std::fill(crops.begin() + range.first, crops.begin() + range.end, m_record.content);
        }
    }
}

void Decider::FollowSpeaker(const Shot& shot, const KxCancelToken& cancel, std::vector<double>& centres)
{
    if (m_request.speaker == KxSpeakerMode::Off || m_record.mouths.empty() || m_record.sound.empty()) {
        return;
    }
    const KxSpeakerChoice choice(m_record, m_options.speech, shot.first, shot.end);
    KxSpeech speech = !choice.HasSeveral() ? KxSpeech::None : choice.IsClear() ? KxSpeech::Followed : KxSpeech::Unclear;
    if (speech == KxSpeech::Followed && choice.ShareHeld(centres, m_geometry) >= EnoughHeld) {
        speech = KxSpeech::Held;
    }
    const std::vector<KxSpeakerChoice::Part> parts =
        speech == KxSpeech::Followed ? choice.Parts(m_geometry) : std::vector<KxSpeakerChoice::Part>();
    if (!parts.empty()) {
        centres = CentresOnSpeakers(choice, parts, cancel);
    }
    if (m_request.wantsFindings && !m_findings.shots.empty()) {
        KxSubjectFindings::Shot& found = m_findings.shots.back();
        found.speech = speech;
        if (!parts.empty()) {
            found.speakerChanges = static_cast<int>(parts.size()) - 1;
            found.confidence = static_cast<float>(choice.Confidence());
        }
    }
}

std::vector<double> Decider::CentresOnSpeakers(const KxSpeakerChoice& choice,
                                               const std::vector<KxSpeakerChoice::Part>& parts,
                                               const KxCancelToken& cancel) const
{
    const KxCropPath path(m_options.path, m_options.For(m_request.speed), m_geometry);
    const auto step =
        std::max<std::int64_t>(1, std::llround(m_record.source.frameRate / m_options.sampling.samplesPerSecond));
    std::vector<double> centres;
    for (const KxSpeakerChoice::Part& part : parts) {
        std::vector<KxPathPoint> points;
        for (std::int64_t frame = part.first; frame < part.end; frame += step) {
            points.push_back({frame, choice.CentreAt(part, frame, m_geometry.FreeAxis())});
        }
        const std::vector<double> drawn =
            path.Draw(points, {part.first, part.end, m_record.source.frameRate}, 0.5, cancel);
        centres.insert(centres.end(), drawn.begin(), drawn.end());
    }
    return centres;
}

void Decider::RecordFindings(const Shot& shot, const ShotEvidence& evidence, const std::vector<KxPathPoint>& points,
                             const std::vector<double>& path)
{
    const std::size_t firstSample = SamplesOf(shot).begin;
    KxShotConfidence confidence(m_score, m_geometry.Extent() / 2.0);
    std::array<float, KxSignalCount> totals{};
    float whole = 0.0F;
    for (std::size_t i = 0; i < points.size(); ++i) {
        const KxEvidence::Parts parts = evidence.signals.At(firstSample + i);
        KxSubjectFindings::Sample sample;
        sample.frame = points[i].frame;
        sample.wanted = points[i].centre;
        const KxSignalProfile combined = Combined(parts, evidence, firstSample + i);
        whole += combined.Sum();
        const double drawn = path[static_cast<std::size_t>(points[i].frame - shot.first)];
        confidence.Add(drawn, combined);
        sample.evidence = KxPackedProfile(combined);
        const std::array<const KxSignalProfile*, KxSignalCount> signals{&parts.motion, &parts.movers, &parts.saliency,
                                                                        &parts.faces, &parts.detections};
        for (std::size_t signal = 0; signal < KxSignalCount; ++signal) {
            sample.scores[signal] = m_score.Excess(points[i].centre, *signals[signal]);
            totals[signal] += sample.scores[signal];
            // What a person points at need not be what the signals prefer.
            if (!evidence.chosen.Follows()) {
                confidence.AddSignal(drawn, *signals[signal]);
            }
        }
        m_findings.samples.push_back(sample);
    }
    const auto dominant = std::max_element(totals.begin(), totals.end()) - totals.begin();
    m_findings.shots.push_back({shot.first, shot.end, static_cast<KxSignal>(dominant), confidence.Value(),
                                whole / static_cast<float>(points.size()), KxSpeech::None, 0});
}

KxSubjectDecision Decider::Run(const KxCancelToken& cancel)
{
    KxSubjectDecision decision;
    decision.crops.reserve(static_cast<std::size_t>(m_record.source.frameCount));
    m_findings.freeAxis = m_geometry.FreeAxis();
    m_findings.content = m_record.content;
    for (const Shot& shot : Shots()) {
        if (shot.first < m_request.frames.end && shot.end > m_request.frames.first) {
            AddCrops(shot, cancel, decision.crops);
        } else {
            decision.crops.insert(decision.crops.end(), static_cast<std::size_t>(shot.end - shot.first),
                                  m_geometry.At(0.5));
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
