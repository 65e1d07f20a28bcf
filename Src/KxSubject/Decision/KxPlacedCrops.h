#pragma once

#include <KxSubject/Choice/KxChoiceRanges.h>
#include <KxSubject/KxCropGeometry.h>
#include <KxSubject/Path/KxHeldRanges.h>

#include <vector>

/// Where a person put the crop in one shot, whatever the evidence.
struct KxPlacedCrops {
    /// Still around one centre: a choice that holds it, and one that fits what the crop can hold. Growing by frame.
    std::vector<KxHeldRange> held;
    /// The whole picture: a choice that fits more than that.
    std::vector<KxChoiceRanges::Range> whole;
};

/// `ranges`: of the choices, in the shot.
KXSUBJECT_API KxPlacedCrops KxPlacedCropsOf(const KxSubjectChoices& choices, const KxChoiceRanges& ranges,
                                            const KxCropGeometry& geometry);
