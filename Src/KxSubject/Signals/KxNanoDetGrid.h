#pragma once

#include <KxCore/KxExport.h>

#include <KxSubject/KxDetection.h>

#include <opencv2/core.hpp>

#include <vector>

/// One output grid of a NanoDet network with the 80 classes of COCO. The grid has one place for every `stridePx` pixels
/// of the input, row by row. All rows and columns are `float` values without gaps.
struct KxNanoDetGrid {
    static constexpr int Classes = 80;
    static constexpr int Bins = 11;        ///< of the distribution of one distance
    static constexpr int Sides = 4 * Bins; ///< left, top, right, bottom

    cv::Mat scores; ///< Classes probabilities a place
    cv::Mat sides;  ///< Sides values a place, before softmax; the bins are whole strides
    int stridePx;
};

/// A box of the input, in its pixels; it may reach over the edges.
struct KxNanoDetBox {
    cv::Rect2d box;
    float score;
    KxDetectionKind kind;
};

/// The number of places of a grid.
KXSUBJECT_API int KxNanoDetPlaces(cv::Size inputPx, int stridePx);

/// The places of a grid where a person, an animal or a vehicle scores at least `threshold`, appended to `boxes`. Of a
/// person and an animal in one place the higher score counts; a vehicle is there besides them, since people ride in it.
/// The other classes are ignored. The grid fits the size of the input.
KXSUBJECT_API void KxReadNanoDetGrid(const KxNanoDetGrid& grid, cv::Size inputPx, float threshold,
                                     std::vector<KxNanoDetBox>& boxes);

/// Of boxes of one kind that overlap by more than `threshold` (intersection over union) the one with the highest score;
/// the highest score comes first.
KXSUBJECT_API std::vector<KxNanoDetBox> KxSuppressOverlaps(const std::vector<KxNanoDetBox>& boxes, float threshold);
