#pragma once

#include <KxMedia/Container/KxAvHandles.h>

#include <QSize>

#include <cstddef>
#include <cstdint>

struct zimg_filter_graph;

/// Scales a part of one plane, accurate to a fraction of a sample, and changes its bit depth in the same step. Caches
/// its setup for the last request. One thread at a time.
class KxPlaneResampler
{
public:
    /// How values are mapped to another bit depth: Shift for limited range and all chroma, Stretch for full-range luma.
    enum class DepthMapping { Shift, Stretch };

    struct Request {
        QSize source;
        int sourceBits = 8; ///< samples of more than 8 bits take two bytes
        /// In samples of the source. May extend slightly beyond its edge, where samples are mirrored.
        double left = 0.0;
        double top = 0.0;
        double width = 0.0;
        double height = 0.0;
        QSize target;
        int targetBits = 8;
        DepthMapping mapping = DepthMapping::Shift;
    };
    struct ConstPlane {
        const std::uint8_t* data = nullptr;
        std::ptrdiff_t strideBytes = 0;
    };
    struct Plane {
        std::uint8_t* data = nullptr;
        std::ptrdiff_t strideBytes = 0;
    };

    KxPlaneResampler();
    ~KxPlaneResampler();
    KxPlaneResampler(const KxPlaneResampler&) = delete;
    KxPlaneResampler& operator=(const KxPlaneResampler&) = delete;

    /// Planes and strides have the alignment of KxFramePool. False if memory runs out or the request cannot be
    /// fulfilled.
    bool Run(const Request& request, const ConstPlane& source, const Plane& target);

private:
    struct GraphDelete {
        void operator()(zimg_filter_graph* graph) const;
    };

    bool Prepare(const Request& request);

    Request m_request;
    std::unique_ptr<zimg_filter_graph, GraphDelete> m_graph;
    KxAvBuffer m_scratch;
};
