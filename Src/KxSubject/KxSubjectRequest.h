#pragma once

#include <KxSubject/KxFollowTrack.h>
#include <KxSubject/KxMotionSpeed.h>
#include <KxSubject/KxSubjectChoices.h>

#include <cstdint>
#include <limits>
#include <vector>

/// Whether the crop follows who speaks, in shots with several faces and sound.
enum class KxSpeakerMode { Auto, Off };

/// What is decided on a record.
struct KxSubjectRequest {
    int aspectWidth = 9;
    int aspectHeight = 16;
    KxMotionSpeed speed = KxMotionSpeed::Auto;
    bool wantsFindings = false;    ///< costs a little time and some 30 bytes a frame
    KxSubjectChoices choices = {}; ///< of the person; they replace what the analysis would decide
    /// By choice, as KxSubjectFollower made them; a choice with seeds and without a track is known at its seeds alone.
    std::vector<KxFollowTrack> tracks = {};
    KxSpeakerMode speaker = KxSpeakerMode::Auto;
    /// Shots without a frame from `first` up to, but without, `end` are not decided: their crops are in the middle.
    struct Frames {
        std::int64_t first = 0;
        std::int64_t end = std::numeric_limits<std::int64_t>::max();
    };
    Frames frames = {};
};
