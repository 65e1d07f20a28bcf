#pragma once

#include <KxCore/KxExport.h>

#include <KxSubject/KxFollowTrack.h>
#include <KxSubject/KxSubjectOptions.h>

#include <vector>

/// Joins what was seen from two seeds of one shot on the way to each other.
namespace KxTrackBlend
{
struct Side {
    KxFollowTrack::Point seed;
    std::vector<KxFollowTrack::Point> points; ///< away from the seed
};

/// The points between the two seeds, without these, growing by frame. If one side alone ends on the other seed, it was
/// right and counts alone. Where both sides agree, the box goes over from one to the other; where not, the nearer and
/// surer one counts; where both have lost the thing, the line between the places before and after where it was seen.
KXSUBJECT_API std::vector<KxFollowTrack::Point> Between(const Side& left, const Side& right,
                                                        const KxSubjectOptions::Follow& options);
} // namespace KxTrackBlend
