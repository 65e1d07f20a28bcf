#include <KxSubject/Choice/KxChosenEvidence.h>

#include <KxSubject/Choice/KxAvoidedThing.h>
#include <KxSubject/Choice/KxDetectedBox.h>

#include <algorithm>

namespace
{

/// 0.4 to 0.6 of what the automatic crop misses: a crop that follows a box that a person drew must miss less.
constexpr double StillMissed = 0.5;

/// Whether the person only clicked, at places where the object detector looked and saw no extent.
bool IsGuess(const KxSubjectChoice& choice, const KxChoiceRanges::Range& range, const KxSubjectRecord& record,
             const KxSubjectOptions::Detections& options)
{
    const auto isKnown = [&](const KxSubjectSeed& seed) {
        const std::int64_t frame = KxChoiceRanges::FrameAt(seed.seconds, record.source.frameRate);
        return frame >= range.first && frame < range.end &&
               (seed.extent == KxSubjectSeed::Extent::Drawn ||
                KxDetectedBoxAt(record, options, frame, seed.box.x + seed.box.width / 2.0,
                                seed.box.y + seed.box.height / 2.0));
    };
    return !record.looks.empty() && std::none_of(choice.seeds.begin(), choice.seeds.end(), isKnown);
}

} // namespace

KxChosenEvidence::KxChosenEvidence(const KxSubjectRequest& request, const KxChoiceRanges& ranges,
                                   const KxSubjectOptions& options, const KxSubjectRecord& record, KxAxis axis)
    : m_options(options.follow)
{
    const auto part = [&](const KxChoiceRanges::Range& range) {
        const KxFollowTrack none;
        const KxFollowTrack& track = range.choice < request.tracks.size() ? request.tracks[range.choice] : none;
        const KxSubjectChoice& choice = request.choices[range.choice];
        return Part{range, KxFollowEvidence(choice, track, range, options.follow, {record.source.frameRate, axis}),
                    IsGuess(choice, range, record, options.detections), false};
    };
    for (const KxChoiceRanges::Range& range : ranges.Placed()) {
        if (request.choices[range.choice].kind == KxChoiceKind::Follow) {
            m_followed.push_back(part(range));
        }
    }
    for (const KxChoiceRanges::Range& range : ranges.Avoided()) {
        m_avoided.push_back(part(range));
    }
}

void KxChosenEvidence::RemoveAvoided(KxSubjectRecord& record, const KxSubjectOptions& options) const
{
    for (const Part& avoided : m_avoided) {
        KxRemoveAvoidedThing(record, options, avoided.range, avoided.evidence);
    }
}

KxSignalProfile KxChosenEvidence::Of(const KxSignalProfile& evidence, std::int64_t frame) const
{
    KxSignalProfile chosen = evidence;
    for (const Part& avoided : m_avoided) {
        if (avoided.Has(frame)) {
            chosen = avoided.evidence.WithoutAvoided(chosen, frame);
        }
    }
    for (const Part& followed : m_followed) {
        if (followed.Has(frame)) {
            chosen = followed.evidence.Followed(chosen, frame);
        }
    }
    return chosen;
}

void KxChosenEvidence::LeaveWhatIsHeld(const CentreAt& centreAt, double extent)
{
    const auto isHeld = [&](const Part& part) {
        return part.evidence.HeldBy(centreAt, extent) >= m_options.heldShare ||
               (part.isGuess && part.evidence.HeldAtSeeds(centreAt, extent) >= m_options.heldGuess);
    };
    m_followed.erase(std::remove_if(m_followed.begin(), m_followed.end(), isHeld), m_followed.end());
}

void KxChosenEvidence::AdjustAutomatic(const CentreAt& automatic)
{
    m_automatic = automatic;
    for (Part& part : m_followed) {
        part.isAdjusted = part.evidence.IsDrawn();
    }
}

void KxChosenEvidence::FollowWhatIsHeldBetter(const CentreAt& adjusted, const CentreAt& followed, double extent)
{
    for (Part& part : m_followed) {
        part.isAdjusted =
            part.isAdjusted && part.evidence.HeldBy(adjusted, extent) >= part.evidence.HeldBy(followed, extent);
    }
}

void KxChosenEvidence::LeaveWhatGainsLittle(const CentreAt& adjusted, const CentreAt& followed, double extent)
{
    const auto gainsLittle = [&](const Part& part) {
        const double missed = 1.0 - part.evidence.HeldBy(part.isAdjusted ? adjusted : followed, extent);
        const double share = part.evidence.IsDrawn() ? StillMissed : 1.0;
        return missed >= share * (1.0 - part.evidence.HeldBy(m_automatic, extent));
    };
    m_followed.erase(std::remove_if(m_followed.begin(), m_followed.end(), gainsLittle), m_followed.end());
}

bool KxChosenEvidence::Adjusts() const
{
    return std::any_of(m_followed.begin(), m_followed.end(), [](const Part& part) { return part.isAdjusted; });
}

std::optional<double> KxChosenEvidence::AdjustedCentre(std::int64_t frame, double extent) const
{
    const auto part = std::find_if(m_followed.begin(), m_followed.end(),
                                   [frame](const Part& one) { return one.isAdjusted && one.Has(frame); });
    return part != m_followed.end() ? std::optional(part->evidence.Holding(m_automatic(frame), frame, extent))
                                    : std::nullopt;
}
