#pragma once

#include <KxCore/KxExport.h>

#include <KxSubject/KxCropRect.h>
#include <KxSubject/KxDetection.h>
#include <KxSubject/KxIntSize.h>
#include <KxSubject/KxPicturePrint.h>
#include <KxSubject/KxShotBoundary.h>
#include <KxSubject/KxSignalProfile.h>
#include <KxSubject/KxSubjectSource.h>
#include <KxSubject/KxUsedModel.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

/// The measurements of one sampled picture, along both axes.
struct KxSignalSample {
    std::int32_t frame = 0;
    std::array<KxPackedProfile, 2> motion;   ///< by axis
    std::array<KxPackedProfile, 2> saliency; ///< by axis
};

/// Something that moved relative to its background, and for how long it was tracked.
struct KXSUBJECT_API KxMover {
    /// In fractions of the picture.
    struct Box {
        double x = 0.0;
        double y = 0.0;
        double width = 0.0;
        double height = 0.0;
    };
    /// A box in 255ths of the picture: hours of them are kept. Left, top, right, bottom.
    using PackedBox = std::array<std::uint8_t, 4>;

    std::int32_t firstSample = 0; ///< an index of KxSubjectRecord::samples
    float seconds = 0.0F;         ///< from its first to its last detection
    float travel = 0.0F;          ///< relative to the background, in picture widths
    std::vector<PackedBox> boxes; ///< one a sample

    Box At(std::size_t sample) const;
    bool Covers(std::size_t sample) const;
};

/// One look for one face: its box in pixels of the working picture, or that it was not there. Small, because hours of
/// them are kept.
struct KxFaceLook {
    float timeSeconds = 0.0F;
    std::int16_t x = 0;
    std::int16_t y = 0;
    std::int16_t width = 0; ///< 0: no face
    std::int16_t height = 0;

    bool IsFace() const { return width > 0; }
};

/// One face over time.
struct KxFaceTrack {
    std::vector<KxFaceLook> looks; ///< growing in time; the first one found the face
};

/// The people, animals and vehicles that the object detector found in one picture; none is a finding, too.
struct KxDetectionLook {
    std::int32_t frame = 0;
    std::vector<KxDetection> found;
};

/// How a mouth and its head moved from one picture to a later one. Small, because hours of them are kept.
struct KxMouthLook {
    /// Movements are mean differences in standard deviations of the face; openings are pixels of a face 44 pixels wide.
    static constexpr double One = 5000.0;

    std::int32_t frame = 0;
    std::uint8_t frames = 1;    ///< since the picture it is compared with, at least 1
    std::uint16_t movement = 0; ///< of the mouth once the head's own translation is undone; One is 1
    std::uint16_t head = 0;     ///< of the eyes and nose, likewise
    std::int16_t opening = 0;   ///< how far the lower lip moved down, less the forehead; One is 1
};

/// The mouth of one face over time.
struct KxMouthTrack {
    std::int32_t face = 0;          ///< an index of KxSubjectRecord::faces
    std::vector<KxMouthLook> looks; ///< growing by frame
};

/// How loud the sound is, in the band of speech.
struct KxSoundSpan {
    static constexpr int LevelsPerSecond = 25;

    std::int64_t first = 0;           ///< the time of the first level, in levels
    std::vector<std::int16_t> levels; ///< hundredths of a decibel
};

/// What one pass over a video saw. It depends on pictures and sound alone, so every aspect, speed and choice can be
/// decided on it without another pass.
struct KXSUBJECT_API KxSubjectRecord {
    KxSubjectSource source;                 ///< with positive sizes and rate
    KxIntSize workingSizePx;                ///< of the pictures that were measured
    KxCropRect content{0.0, 0.0, 1.0, 1.0}; ///< what is not bars, in fractions of the picture
    std::vector<KxShotBoundary> boundaries; ///< growing by frame
    std::vector<KxPicturePrint> prints;     ///< of all pictures that were looked at, growing by frame
    std::vector<KxSignalSample> samples;    ///< growing by frame
    std::vector<KxMover> movers;            ///< growing by first sample
    std::vector<KxFaceTrack> faces;
    std::vector<KxDetectionLook> looks; ///< growing by frame; none without the object detector
    std::vector<KxMouthTrack> mouths;   ///< growing by face; only where two or more faces last
    std::vector<KxSoundSpan> sound;     ///< growing in time, apart from each other; only where there are mouths
    std::vector<KxUsedModel> models;    ///< the networks that were used

    /// The frames from `first` up to, but without, `end`.
    struct Shot {
        std::int64_t first = 0;
        std::int64_t end = 0;
    };
    Shot ShotAt(std::int64_t frame) const;

    double SecondsAt(std::int64_t frame) const { return static_cast<double>(frame) / source.frameRate; }
};
