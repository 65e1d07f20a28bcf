#pragma once

#include <KxCore/KxExport.h>

#include <KxSubject/KxSubjectOptions.h>

#include <cstdint>
#include <vector>

/// The differences between a picture and its neighbours. Small, because one is kept for every picture of hours of
/// video.
struct KxPictureChange {
    std::int32_t frame = 0;
    float grey = 0.0F;           ///< mean difference to the picture before, of 255
    float colour = 0.0F;         ///< part of the colour histogram that moved since the picture before, 0 to 1
    std::uint8_t similarity = 0; ///< in structure to the picture before, independent of light: 0 to 255
    std::uint8_t backAfter = 0;  ///< the picture before this one returns after so many pictures; 0: not soon
    std::uint8_t backBefore = 0; ///< this one was already shown so many pictures before the previous one; 0: never
    bool flash = false;          ///< the pictures between this one and its return are a flash
};
static_assert(sizeof(KxPictureChange) == 16);

namespace KxShotCuts
{

/// The cuts among the changes, as indices, growing: see KxShotDetector.
KXSUBJECT_API std::vector<std::size_t> Find(const std::vector<KxPictureChange>& changes,
                                            const KxSubjectOptions::Shots& options);

bool IsAboveFloors(const KxPictureChange& change, const KxSubjectOptions::Shots& options);

/// How far a cut is above the floors.
double Strength(const KxPictureChange& change, const KxSubjectOptions::Shots& options);

} // namespace KxShotCuts
