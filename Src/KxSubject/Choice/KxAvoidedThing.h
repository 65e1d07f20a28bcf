#pragma once

#include <KxCore/KxExport.h>

#include <KxSubject/Choice/KxFollowEvidence.h>
#include <KxSubject/KxSubjectOptions.h>
#include <KxSubject/KxSubjectRecord.h>

/// Takes a thing that a person wants to avoid out of a record: its movers, faces and detections, also at times when the
/// tracker did not recognise it. The times at which both are known show whether one of these is the thing. `thing` was
/// seen in the frames of `range`, which lie in one shot.
KXSUBJECT_API void KxRemoveAvoidedThing(KxSubjectRecord& record, const KxSubjectOptions& options,
                                        const KxChoiceRanges::Range& range, const KxFollowEvidence& thing);
