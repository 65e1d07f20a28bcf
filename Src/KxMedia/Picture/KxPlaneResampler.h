#pragma once

#include <KxMedia/Container/KxAvHandles.h>

#include <QSize>

#include <cstddef>
#include <cstdint>

struct zimg_filter_graph;

/// Scales a part of one plane, met to a fraction of a sample, and changes its bit depth in the same step. Keeps what it
/// prepared for the last request. One thread at a time.
class KxPlaneResampler
{
public:
    /// What maps values of one bit depth to another: a shift for limited range and all chroma, a stretch for luma of
    /// full range.
    enum class DepthMapping { Shift, Stretch };

    struct Request {
        QSize source;
        int sourceBits = 8; ///< samples of more than 8 bits take two bytes
        /// In samples of the source. May reach a little over its edge: what lies there is mirrored from inside.
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

    /// Planes and strides are aligned as KxFramePool aligns them. False when memory runs out or the request is absurd.
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
