#include <KxMedia/Picture/KxFramePool.h>

extern "C" {
#include <libavutil/imgutils.h>
#include <libavutil/pixdesc.h>
}

#include <cstdint>

namespace
{

constexpr size_t Alignment = KxFramePool::AlignmentBytes;

size_t RoundedUp(size_t bytes)
{
    return (bytes + Alignment - 1) / Alignment * Alignment;
}

} // namespace

KxFramePool::Layout KxFramePool::LayOut(AVPixelFormat format, const QSize& size)
{
    Layout layout;
    const AVPixFmtDescriptor* const description = av_pix_fmt_desc_get(format);
    const int planes = av_pix_fmt_count_planes(format);
    if (description == nullptr || av_image_fill_linesizes(layout.strideBytes, format, size.width()) < 0) {
        return {};
    }
    for (int plane = 0; plane < planes; ++plane) {
        const bool isChroma = plane == 1 || plane == 2;
        const int rows = isChroma ? AV_CEIL_RSHIFT(size.height(), description->log2_chroma_h) : size.height();
        const size_t strideBytes = RoundedUp(static_cast<size_t>(layout.strideBytes[plane]));
        layout.strideBytes[plane] = static_cast<int>(strideBytes);
        layout.offset[plane] = layout.bytes;
        layout.bytes += strideBytes * static_cast<size_t>(rows);
    }
    return layout;
}

KxAvFrame KxFramePool::Take(AVPixelFormat format, const QSize& size)
{
    if (m_pool == nullptr || format != m_format || size != m_size) {
        m_layout = LayOut(format, size);
        if (m_layout.bytes == 0) {
            return nullptr;
        }
        m_pool.reset(av_buffer_pool_init(m_layout.bytes + Alignment, nullptr));
        m_format = format;
        m_size = size;
    }
    KxAvFrame frame(av_frame_alloc());
    if (m_pool == nullptr || frame == nullptr) {
        return nullptr;
    }
    frame->buf[0] = av_buffer_pool_get(m_pool.get());
    if (frame->buf[0] == nullptr) {
        return nullptr;
    }
    const auto address = reinterpret_cast<std::uintptr_t>(frame->buf[0]->data);
    std::uint8_t* const start = frame->buf[0]->data + (RoundedUp(address) - address);
    for (int plane = 0; plane < av_pix_fmt_count_planes(format); ++plane) {
        frame->data[plane] = start + m_layout.offset[plane];
        frame->linesize[plane] = m_layout.strideBytes[plane];
    }
    frame->format = format;
    frame->width = size.width();
    frame->height = size.height();
    return frame;
}
