#pragma once

#include <KxCore/KxExport.h>

#include <opencv2/core.hpp>

#include <array>
#include <optional>
#include <string>
#include <vector>

/// A cascade of boosted trees on sums of upright rectangles (Viola and Jones 2001; Lienhart and Maydt 2002).
struct KXSUBJECT_API KxHaarCascade {
    struct Area {
        cv::Rect place; ///< in the window
        float weight = 0.0F;
    };
    struct Feature {
        std::array<Area, 3> areas;
        int count = 0; ///< of areas: 2 or 3
    };
    /// A value below the threshold leads to `below`, any other to `otherwise`: 1 is the second node, 0 and less is the
    /// leaf of that number without its sign.
    struct Node {
        int below = 0;
        int otherwise = 0;
        int feature = 0;
        float threshold = 0.0F;
    };
    struct Tree {
        std::array<Node, 2> nodes;
        std::array<float, 3> leaves{};
        int count = 0; ///< of nodes: 1 or 2
    };
    /// A window whose trees add up to less than the threshold is rejected.
    struct Stage {
        std::vector<Tree> trees;
        float threshold = 0.0F;
    };

    /// Reads a cascade file of OpenCV. Nothing if it is none, is damaged, or has tilted rectangles or larger trees. May
    /// throw cv::Exception.
    static std::optional<KxHaarCascade> Read(const std::string& xml);

    cv::Size windowPx;
    std::vector<Feature> features;
    std::vector<Stage> stages;
};
