#pragma once

#include <KxCore/KxExport.h>

#include <KxSubject/KxSubjectChoices.h>

#include <vector>

struct KxSubjectRecord;

/// A choice where its pictures are.
struct KxPlacedChoice {
    enum class Place {
        Kept,   ///< where it was: its pictures are there, or it has none
        Moved,  ///< its pictures are at another time, as in a file that was trimmed at its start
        Missing ///< its pictures are not in the video; it is as it was
    };
    KxSubjectChoice choice; ///< if Moved, its times may lie outside the video
    Place place = Place::Kept;
    double movedSeconds = 0.0; ///< positive: to a later time
};

/// `choices` with prints of the pictures that they are about, where they have none.
KXSUBJECT_API KxSubjectChoices KxDescribeChoices(const KxSubjectRecord& record, KxSubjectChoices choices);

/// Looks for the pictures of each choice:
/// 1. all choices are moved by the same time, by which their pictures fit best; none is moved if that fits as well;
/// 2. a choice that does not fit then is looked for on its own, because something may have been cut out or put in;
/// 3. a choice that fits nowhere is missing.
/// A choice without pictures is trusted. Takes some ten milliseconds for an hour of video.
KXSUBJECT_API std::vector<KxPlacedChoice> KxPlaceChoices(const KxSubjectRecord& record,
                                                         const KxSubjectChoices& choices);

/// Those that are not missing, without the seeds that are cut away, and without those that have no part of the video.
KXSUBJECT_API KxSubjectChoices KxChoicesInside(const KxSubjectRecord& record,
                                               const std::vector<KxPlacedChoice>& placed);
