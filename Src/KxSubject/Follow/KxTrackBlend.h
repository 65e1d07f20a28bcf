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

/// The points between the two seeds, without these, growing by frame. If only one side ends on the other seed, it was
/// right and only it counts, without doubt. Where both sides agree, the box moves gradually from one to the other;
/// where they differ, the nearer and more confident one counts; where both have lost the thing, the box lies on the
/// line between the places where it was seen before and after.
KXSUBJECT_API std::vector<KxFollowTrack::Point> Between(const Side& left, const Side& right,
                                                        const KxSubjectOptions::Follow& options);
} // namespace KxTrackBlend
