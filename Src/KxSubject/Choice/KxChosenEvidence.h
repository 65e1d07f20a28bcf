#pragma once

#include <KxCore/KxExport.h>

#include <KxSubject/Choice/KxChoiceRanges.h>
#include <KxSubject/Choice/KxFollowEvidence.h>
#include <KxSubject/KxSubjectRecord.h>
#include <KxSubject/KxSubjectRequest.h>

#include <functional>
#include <optional>
#include <vector>

/// The evidence in one shot after what a person chose to follow and to avoid there.
class KXSUBJECT_API KxChosenEvidence
{
public:
    /// `record`: as it was observed, also what is avoided.
    KxChosenEvidence(const KxSubjectRequest& request, const KxChoiceRanges& ranges, const KxSubjectOptions& options,
                     const KxSubjectRecord& record, KxAxis axis);

    /// Takes the things that are avoided out of the record.
    void RemoveAvoided(KxSubjectRecord& record, const KxSubjectOptions& options) const;
    KxSignalProfile Of(const KxSignalProfile& evidence, std::int64_t frame) const;
    /// Whether something is followed in the shot.
    bool Follows() const { return !m_followed.empty(); }
    /// The centre of a crop along its free axis.
    using CentreAt = std::function<double(std::int64_t frame)>;
    /// Nothing needs to be done for what the automatic crop holds: it stays as it is, so that pointing at it never
    /// makes it worse. Neither for what a person clicked on where the object detector saw no extent of it, if that crop
    /// holds the box that was guessed instead: what a guess leads to is less sure than the automatic choice. Without
    /// the detector the automatic choice is less sure. `centreAt` is that crop's centre, of the extent `extent`.
    void LeaveWhatIsHeld(const CentreAt& centreAt, double extent);
    /// For what a person drew, whose extent is therefore known, the automatic crop is adjusted: it moves only as far as
    /// it must to hold the thing. Where the track has slid to a part of it, the crop then stays near its place.
    void AdjustAutomatic(const CentreAt& automatic);
    /// Takes that back for what the crop that follows it holds more of than the adjusted one.
    void FollowWhatIsHeldBetter(const CentreAt& adjusted, const CentreAt& followed, double extent);
    /// At last, the automatic crop stays as it is for what that crop, adjusted or around `followed`, holds no better:
    /// a track that has lost the thing moves faster than any crop, and following it gains nothing. Where the extent is
    /// known, it must hold half of what the automatic crop misses.
    void LeaveWhatGainsLittle(const CentreAt& adjusted, const CentreAt& followed, double extent);
    /// Whether the automatic crop is adjusted to something in the shot.
    bool Adjusts() const;
    /// The centre of the adjusted crop; nothing at a frame where none is.
    std::optional<double> AdjustedCentre(std::int64_t frame, double extent) const;

private:
    struct Part {
        KxChoiceRanges::Range range;
        KxFollowEvidence evidence;
        bool isGuess = false; ///< the detector looked, and saw no extent of it
        bool isAdjusted = false;
        bool Has(std::int64_t frame) const { return frame >= range.first && frame < range.end; }
    };
    KxSubjectOptions::Follow m_options;
    std::vector<Part> m_followed;
    std::vector<Part> m_avoided;
    CentreAt m_automatic; ///< to adjust
};
