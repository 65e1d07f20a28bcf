#pragma once

#include <KxCore/KxExport.h>

#include <KxSubject/KxCropRect.h>
#include <KxSubject/KxDetection.h>
#include <KxSubject/KxIntSize.h>
#include <KxSubject/KxShotBoundary.h>
#include <KxSubject/KxSignalProfile.h>
#include <KxSubject/KxSubjectSource.h>

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

/// The people and animals that the object detector found in one picture; none is a finding, too.
struct KxDetectionLook {
    std::int32_t frame = 0;
    std::vector<KxDetection> found;
};

/// What one pass over a video saw. It depends on the pictures alone, so every aspect, speed and choice can be decided
/// on it without another pass.
struct KXSUBJECT_API KxSubjectRecord {
    KxSubjectSource source;                 ///< with positive sizes and rate
    KxIntSize workingSizePx;                ///< of the pictures that were measured
    KxCropRect content{0.0, 0.0, 1.0, 1.0}; ///< what is not bars, in fractions of the picture
    std::vector<KxShotBoundary> boundaries; ///< growing by frame
    std::vector<KxSignalSample> samples;    ///< growing by frame
    std::vector<KxMover> movers;            ///< growing by first sample
    std::vector<KxFaceTrack> faces;
    std::vector<KxDetectionLook> looks; ///< growing by frame; none without the object detector

    double SecondsAt(std::int64_t frame) const { return static_cast<double>(frame) / source.frameRate; }
};
