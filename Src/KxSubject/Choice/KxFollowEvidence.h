#pragma once

#include <KxCore/KxExport.h>

#include <KxSubject/Choice/KxChoiceRanges.h>
#include <KxSubject/KxCropGeometry.h>
#include <KxSubject/KxFollowTrack.h>
#include <KxSubject/KxSignalProfile.h>
#include <KxSubject/KxSubjectOptions.h>

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

/// Changes the evidence to what a person pointed at. The tracker decides whom to show, the other signals correct where
/// that is; where the tracker gives up, they take over again within some seconds.
class KXSUBJECT_API KxFollowEvidence
{
public:
    /// Of the video, and of the profiles.
    struct Axis {
        double frameRate = 25.0;
        KxAxis axis = KxAxis::Across;
    };

    /// For the frames of `range`, in which the choice has a seed; what lies outside says nothing. Without points of
    /// `track` in it, the seeds are all that is known.
    KxFollowEvidence(const KxSubjectChoice& choice, const KxFollowTrack& track, const KxChoiceRanges::Range& range,
                     const KxSubjectOptions::Follow& options, const Axis& along);

    /// `evidence` of all signals in a picture that the choice follows through.
    KxSignalProfile Followed(const KxSignalProfile& evidence, std::int64_t frame) const;
    /// Where the thing is, if that is known.
    std::optional<KxSubjectBox> BoxAt(std::int64_t frame) const;
    /// The mean share of the thing that a crop of an extent around some centres holds, of the most that it can hold.
    /// What is near the edge of the box does not count, since the box is not exact. Where the thing was not seen well
    /// or the track is doubted, nothing says that the crop does not hold it. Where it is ambiguous, it says nothing at
    /// all.
    double HeldBy(const std::function<double(std::int64_t frame)>& centreAt, double extent) const;
    /// The same at the seed of which least is held, whatever the track says; all of the box counts.
    double HeldAtSeeds(const std::function<double(std::int64_t frame)>& centreAt, double extent) const;
    /// Whether the extent of the thing is known, since a person drew or confirmed each box.
    bool IsDrawn() const { return m_isDrawn; }
    /// The centre nearest to `centre` at which a crop of an extent holds the thing with some room on both sides, also
    /// where the track is doubted or the thing is lost for a moment; `centre` itself where it is lost for longer.
    double Holding(double centre, std::int64_t frame, double extent) const;

    /// `evidence` of all signals in a picture with the thing in it that the choice avoids.
    KxSignalProfile WithoutAvoided(const KxSignalProfile& evidence, std::int64_t frame) const;

private:
    /// The thing at one time.
    struct Place {
        KxSubjectBox box;
        double from = 0.0; ///< along the axis
        double to = 0.0;
        double confidence = 0.0;
        double seconds = 0.0; ///< since, or until, it was seen well
        bool isSeed = false;  ///< a person pointed at it just then
        bool isDoubted = false;
    };
    Place At(std::int64_t frame) const;
    bool IsKnown(const Place& place) const;

    KxSubjectOptions::Follow m_options;
    double m_frameRate;
    KxAxis m_axis;
    bool m_isDrawn = true;
    std::vector<std::int64_t> m_seedFrames;
    std::vector<KxFollowTrack::Point> m_points; ///< growing by frame, never empty
    std::vector<std::size_t> m_good;            ///< those that were seen well
};
