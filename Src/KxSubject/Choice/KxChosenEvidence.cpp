#include <KxSubject/Choice/KxChosenEvidence.h>

#include <KxSubject/Choice/KxAvoidedThing.h>

#include <algorithm>

KxChosenEvidence::KxChosenEvidence(const KxSubjectRequest& request, const KxChoiceRanges& ranges,
                                   const KxSubjectOptions::Follow& options, double frameRate, KxAxis axis)
{
    const auto part = [&](const KxChoiceRanges::Range& range) {
        const KxFollowTrack none;
        const KxFollowTrack& track = range.choice < request.tracks.size() ? request.tracks[range.choice] : none;
        const KxFollowEvidence::Axis along{frameRate, axis};
        return Part{range, KxFollowEvidence(request.choices[range.choice], track, range, options, along)};
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

void KxChosenEvidence::LeaveWhatIsHeld(const CentreAt& centreAt, double extent, double heldShare)
{
    m_followed.erase(
        std::remove_if(m_followed.begin(), m_followed.end(),
                       [&](const Part& part) { return part.evidence.HeldBy(centreAt, extent) >= heldShare; }),
        m_followed.end());
}

void KxChosenEvidence::LeaveWhatGainsNothing(const CentreAt& automatic, const CentreAt& followed, double extent)
{
    const auto gainsNothing = [&](const Part& part) {
        return part.evidence.HeldBy(automatic, extent) >= part.evidence.HeldBy(followed, extent);
    };
    m_followed.erase(std::remove_if(m_followed.begin(), m_followed.end(), gainsNothing), m_followed.end());
}
