#pragma once

#include <KxSubject/KxCropGeometry.h>
#include <KxSubject/KxSignalProfile.h>

#include <array>
#include <cstdint>
#include <vector>

/// A signal of the analysis.
enum class KxSignal { Motion, Movers, Saliency, Faces, Detections };
constexpr std::size_t KxSignalCount = 5;

/// What a shot does about people who talk.
enum class KxSpeech {
    None,    ///< fewer than two faces that last, or no sound
    Unclear, ///< it is not clear who speaks: the choice is made without the sound
    Held,    ///< the choice without the sound holds who speaks
    Followed ///< the crop follows who speaks
};

/// Intermediate results of an analysis, which explain the position of each crop.
struct KxSubjectFindings {
    struct Sample {
        std::int64_t frame = 0;
        /// The centre that the evidence asks for, before the path is drawn; fraction of the free axis.
        double wanted = 0.5;
        /// By KxSignal: the weighted evidence inside a crop at the wanted centre, less that of an average place.
        std::array<float, KxSignalCount> scores{};
        KxPackedProfile evidence; ///< of all signals, along the free axis
    };
    struct Shot {
        std::int64_t first = 0;
        std::int64_t end = 0;
        KxSignal dominantSignal = KxSignal::Saliency; ///< the one with the highest score over the shot
        float confidence = 0.0F;                      ///< 0 to 1, see KxShotConfidence; of speech, if followed
        float evidence = 0.0F; ///< the mean sum of the samples' evidence; 0: nothing attracts attention
        KxSpeech speech = KxSpeech::None;
        int speakerChanges = 0; ///< how often the crop changes between people who speak
    };

    KxAxis freeAxis = KxAxis::Across;
    KxCropRect content; ///< what is not bars
    std::vector<Shot> shots;
    std::vector<Sample> samples; ///< growing by frame
};
