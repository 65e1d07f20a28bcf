#pragma once

#include <cstdint>

enum class KxDetectionKind : std::uint8_t { Person, Animal, Vehicle };

/// Whether the crop follows such a thing by itself. Vehicles stand and pass everywhere: one is followed where a person
/// points at it.
inline bool KxIsSubject(KxDetectionKind kind)
{
    return kind != KxDetectionKind::Vehicle;
}

/// A person, an animal or a vehicle that was found in one picture. The box lies inside the picture, in fractions of it;
/// it is never empty.
struct KxDetection {
    float x = 0.0F;
    float y = 0.0F;
    float width = 0.0F;
    float height = 0.0F;
    float score = 0.0F; ///< 0 to 1, the detector's confidence
    KxDetectionKind kind = KxDetectionKind::Person;
};
