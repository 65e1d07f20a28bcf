#pragma once

#include <KxCore/KxExport.h>

#include <KxSubject/Choice/KxChoiceRanges.h>
#include <KxSubject/Choice/KxFollowEvidence.h>
#include <KxSubject/KxSubjectRecord.h>
#include <KxSubject/KxSubjectRequest.h>

#include <functional>
#include <vector>

/// The evidence in one shot after what a person chose to follow and to avoid there.
class KXSUBJECT_API KxChosenEvidence
{
public:
    KxChosenEvidence(const KxSubjectRequest& request, const KxChoiceRanges& ranges,
                     const KxSubjectOptions::Follow& options, double frameRate, KxAxis axis);

    /// Takes the things that are avoided out of the record.
    void RemoveAvoided(KxSubjectRecord& record, const KxSubjectOptions& options) const;
    KxSignalProfile Of(const KxSignalProfile& evidence, std::int64_t frame) const;
    /// Whether something is followed in the shot.
    bool Follows() const { return !m_followed.empty(); }
    /// The centre of a crop along its free axis.
    using CentreAt = std::function<double(std::int64_t frame)>;
    /// Nothing needs to be done for what the automatic crop holds: it stays as it is, so that pointing at it never
    /// makes it worse. `centreAt` is that crop's centre, of the extent `extent`.
    void LeaveWhatIsHeld(const CentreAt& centreAt, double extent, double heldShare);
    /// The same for what the crop that follows it, around `followed`, holds no better than the automatic one: a track
    /// that has lost the thing moves faster than any crop, and following it gains nothing.
    void LeaveWhatGainsNothing(const CentreAt& automatic, const CentreAt& followed, double extent);

private:
    struct Part {
        KxChoiceRanges::Range range;
        KxFollowEvidence evidence;
        bool Has(std::int64_t frame) const { return frame >= range.first && frame < range.end; }
    };
    std::vector<Part> m_followed;
    std::vector<Part> m_avoided;
};
