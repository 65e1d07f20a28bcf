#pragma once

#include <KxCore/KxExport.h>

#include <KxSubject/KxSubjectOptions.h>

#include <cstdint>
#include <vector>

/// How far a picture is from the ones around it. Of hours of video one of these is kept for every picture.
struct KxPictureChange {
    std::int32_t frame = 0;
    float grey = 0.0F;           ///< mean difference to the picture before, of 255
    float colour = 0.0F;         ///< part of the colour histogram that moved since the picture before, 0 to 1
    std::uint8_t similarity = 0; ///< to the picture before in structure, whatever the light: 0 to 255
    std::uint8_t backAfter = 0;  ///< so many pictures after this one the picture before came back; 0: not soon
    std::uint8_t backBefore = 0; ///< so many pictures before the last one this one was to be seen already; 0: not
    bool flash = false;          ///< what lies between this one and its return is a flash
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
