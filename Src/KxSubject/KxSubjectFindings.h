#pragma once

#include <KxSubject/KxCropGeometry.h>
#include <KxSubject/Signals/KxSignalProfile.h>

#include <array>
#include <cstdint>
#include <vector>

/// What speaks for a place.
enum class KxSignal { Motion, Movers, Saliency, Faces };
constexpr std::size_t KxSignalCount = 4;

/// What an analysis found on its way to the crops, for a person who wants to see why.
struct KxSubjectFindings {
    struct Sample {
        std::int64_t frame = 0;
        double wanted =
            0.5; ///< the centre that the evidence asks for, before the path is drawn; fraction of the free axis
        /// By KxSignal: how much more each signal says, weighed, inside a crop at the wanted centre than at all places
        /// on average.
        std::array<float, KxSignalCount> said{};
        KxPackedProfile evidence; ///< of all signals, along the free axis
    };
    struct Shot {
        std::int64_t first = 0;
        std::int64_t end = 0;
        KxSignal carrier = KxSignal::Saliency; ///< said most through the shot
    };

    KxAxis freeAxis = KxAxis::Across;
    KxCropRect content; ///< what is not bars
    std::vector<Shot> shots;
    std::vector<Sample> samples; ///< growing by frame
};
