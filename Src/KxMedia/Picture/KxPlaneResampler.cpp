#include <KxMedia/Picture/KxPlaneResampler.h>

#include <zimg.h>

namespace
{

constexpr size_t ScratchAlignment = 64;

bool IsSame(const KxPlaneResampler::Request& a, const KxPlaneResampler::Request& b)
{
    // Compared exactly: a rectangle that differs by a tiny fraction is a different one.
    const auto isEqual = [](double left, double right) { return !(left < right) && !(left > right); };
    return a.source == b.source && a.sourceBits == b.sourceBits && isEqual(a.left, b.left) && isEqual(a.top, b.top) &&
           isEqual(a.width, b.width) && isEqual(a.height, b.height) && a.target == b.target &&
           a.targetBits == b.targetBits && a.mapping == b.mapping;
}

zimg_image_format Format(const QSize& size, int bits, KxPlaneResampler::DepthMapping mapping)
{
    zimg_image_format format;
    zimg_image_format_default(&format, ZIMG_API_VERSION);
    format.width = static_cast<unsigned>(size.width());
    format.height = static_cast<unsigned>(size.height());
    format.pixel_type = bits > 8 ? ZIMG_PIXEL_WORD : ZIMG_PIXEL_BYTE;
    format.depth = static_cast<unsigned>(bits);
    format.color_family = ZIMG_COLOR_GREY;
    format.pixel_range = mapping == KxPlaneResampler::DepthMapping::Stretch ? ZIMG_RANGE_FULL : ZIMG_RANGE_LIMITED;
    return format;
}

} // namespace

KxPlaneResampler::KxPlaneResampler() = default;
KxPlaneResampler::~KxPlaneResampler() = default;

void KxPlaneResampler::GraphDelete::operator()(zimg_filter_graph* graph) const
{
    zimg_filter_graph_free(graph);
}

bool KxPlaneResampler::Prepare(const Request& request)
{
    if (m_graph != nullptr && IsSame(request, m_request)) {
        return true;
    }
    zimg_image_format source = Format(request.source, request.sourceBits, request.mapping);
    source.active_region.left = request.left;
    source.active_region.top = request.top;
    source.active_region.width = request.width;
    source.active_region.height = request.height;
    const zimg_image_format target = Format(request.target, request.targetBits, request.mapping);
    zimg_graph_builder_params params;
    zimg_graph_builder_params_default(&params, ZIMG_API_VERSION);
    // A long kernel is equally sharp at whole and fractional positions, so slow pans do not pulse.
    params.resample_filter = ZIMG_RESIZE_SPLINE36;
    // Ordered dithering is the same in every picture; random dithering and error diffusion would flicker.
    params.dither_type = request.sourceBits > request.targetBits ? ZIMG_DITHER_ORDERED : ZIMG_DITHER_NONE;
    params.cpu_type = ZIMG_CPU_AUTO_64B;
    m_graph.reset(zimg_filter_graph_build(&source, &target, &params));
    m_request = request;
    size_t bytes = 0;
    if (m_graph == nullptr || zimg_filter_graph_get_tmp_size(m_graph.get(), &bytes) != ZIMG_ERROR_SUCCESS) {
        m_graph.reset();
        return false;
    }
    if (m_scratch == nullptr || m_scratch->size < bytes + ScratchAlignment) {
        m_scratch.reset(av_buffer_alloc(bytes + ScratchAlignment));
    }
    return m_scratch != nullptr;
}

bool KxPlaneResampler::Run(const Request& request, const ConstPlane& source, const Plane& target)
{
    if (!Prepare(request)) {
        return false;
    }
    zimg_image_buffer_const from{};
    from.version = ZIMG_API_VERSION;
    from.plane[0].data = source.data;
    from.plane[0].stride = source.strideBytes;
    from.plane[0].mask = ZIMG_BUFFER_MAX;
    zimg_image_buffer to{};
    to.version = ZIMG_API_VERSION;
    to.plane[0].data = target.data;
    to.plane[0].stride = target.strideBytes;
    to.plane[0].mask = ZIMG_BUFFER_MAX;
    const auto address = reinterpret_cast<std::uintptr_t>(m_scratch->data);
    const size_t skip = (ScratchAlignment - address % ScratchAlignment) % ScratchAlignment;
    return zimg_filter_graph_process(m_graph.get(), &from, &to, m_scratch->data + skip, nullptr, nullptr, nullptr,
                                     nullptr) == ZIMG_ERROR_SUCCESS;
}
