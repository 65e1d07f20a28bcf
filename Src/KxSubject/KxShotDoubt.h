#pragma once

#include <KxSubject/KxSubjectFindings.h>

/// Why a person should look at a shot.
enum class KxShotDoubt {
    None,
    NothingStandsOut,
    SeveralPlaces, ///< what stands out is in several places
    SeveralPeople, ///< the same, and people, animals or faces are what stands out
};

inline KxShotDoubt KxDoubtOf(const KxSubjectFindings::Shot& shot)
{
    // On the clips of Docs/ANALYSIS.md these are the least confident fifth of the shots.
    constexpr float leastConfidence = 0.55F;
    constexpr float noEvidence = 0.02F;
    if (shot.evidence < noEvidence) {
        return KxShotDoubt::NothingStandsOut;
    }
    if (shot.confidence >= leastConfidence) {
        return KxShotDoubt::None;
    }
    const bool arePeople = shot.dominantSignal == KxSignal::Faces || shot.dominantSignal == KxSignal::Detections;
    return arePeople ? KxShotDoubt::SeveralPeople : KxShotDoubt::SeveralPlaces;
}
