#pragma once

#include <KxSubject/KxSubjectFindings.h>

/// Why a person should look at a shot.
enum class KxShotDoubt {
    None,
    NothingStandsOut,
    SeveralPlaces,      ///< what stands out is in several places
    SeveralPeople,      ///< the same, and people, animals or faces are what stands out
    SpeakerUnclear,     ///< several people talk, and the crop follows none of them
    SpeakerHardlyClear, ///< the crop follows who speaks, without certainty
};

inline KxShotDoubt KxDoubtOf(const KxSubjectFindings::Shot& shot)
{
    // On the clips of Docs/ANALYSIS.md these are the least confident fifth of the shots.
    constexpr float leastConfidence = 0.55F;
    constexpr float noEvidence = 0.02F;
    const bool followsSpeaker = shot.speech == KxSpeech::Followed;
    if (shot.speech == KxSpeech::Unclear) {
        return KxShotDoubt::SpeakerUnclear;
    }
    if (shot.evidence < noEvidence && !followsSpeaker) {
        return KxShotDoubt::NothingStandsOut;
    }
    if (shot.confidence >= leastConfidence) {
        return KxShotDoubt::None;
    }
    if (followsSpeaker) {
        return KxShotDoubt::SpeakerHardlyClear;
    }
    const bool arePeople = shot.dominantSignal == KxSignal::Faces || shot.dominantSignal == KxSignal::Detections;
    return arePeople ? KxShotDoubt::SeveralPeople : KxShotDoubt::SeveralPlaces;
}
