#include <KxMedia/Picture/KxPlanarConverter.h>

#include <KxMedia/Picture/KxPictureColour.h>

extern "C" {
#include <libavutil/imgutils.h>
#include <libavutil/pixdesc.h>
}

#include <algorithm>
#include <array>
#include <cstdint>

namespace
{

AVPixelFormat FormatOf(const AVFrame& picture)
{
    return static_cast<AVPixelFormat>(picture.format);
}

bool IsPlanar(const AVPixFmtDescriptor& format)
{
    constexpr unsigned unfit = AV_PIX_FMT_FLAG_RGB | AV_PIX_FMT_FLAG_PAL | AV_PIX_FMT_FLAG_BITSTREAM |
                               AV_PIX_FMT_FLAG_HWACCEL | AV_PIX_FMT_FLAG_FLOAT | AV_PIX_FMT_FLAG_BAYER |
                               AV_PIX_FMT_FLAG_BE;
    const int components = std::min<int>(format.nb_components, 3);
    if ((format.flags & unfit) != 0 || components == 2) {
        return false;
    }
    for (int i = 0; i < components; ++i) {
        const AVComponentDescriptor& component = format.comp[i];
        const int bytes = component.depth > 8 ? 2 : 1;
        if (component.plane != i || component.offset != 0 || component.shift != 0 || component.step != bytes ||
            component.depth < 8 || component.depth > 16) {
            return false;
        }
    }
    return true;
}

bool IsAligned(const AVFrame& picture)
{
    constexpr int alignment = KxFramePool::AlignmentBytes;
    for (int plane = 0; plane < av_pix_fmt_count_planes(FormatOf(picture)); ++plane) {
        if (reinterpret_cast<std::uintptr_t>(picture.data[plane]) % alignment != 0 ||
            picture.linesize[plane] % alignment != 0) {
            return false;
        }
    }
    return true;
}

// One row for each depth: up to 8, 10, 12 and 16 bits.
using Family = std::array<AVPixelFormat, 4>;
constexpr Family Grey{AV_PIX_FMT_GRAY8, AV_PIX_FMT_GRAY10LE, AV_PIX_FMT_GRAY12LE, AV_PIX_FMT_GRAY16LE};
constexpr Family Yuv420{AV_PIX_FMT_YUV420P, AV_PIX_FMT_YUV420P10LE, AV_PIX_FMT_YUV420P12LE, AV_PIX_FMT_YUV420P16LE};
constexpr Family Yuv422{AV_PIX_FMT_YUV422P, AV_PIX_FMT_YUV422P10LE, AV_PIX_FMT_YUV422P12LE, AV_PIX_FMT_YUV422P16LE};
constexpr Family Yuv444{AV_PIX_FMT_YUV444P, AV_PIX_FMT_YUV444P10LE, AV_PIX_FMT_YUV444P12LE, AV_PIX_FMT_YUV444P16LE};

AVPixelFormat PlanarFormatFor(const AVPixFmtDescriptor& format)
{
    const bool isPalette = (format.flags & AV_PIX_FMT_FLAG_PAL) != 0;
    const int bits = isPalette ? 8 : format.comp[0].depth;
    const size_t row = bits <= 8 ? 0 : bits <= 10 ? 1 : bits <= 12 ? 2 : 3;
    const bool isRgb = isPalette || (format.flags & AV_PIX_FMT_FLAG_RGB) != 0;
    if (isRgb || (format.nb_components >= 3 && format.log2_chroma_w == 0)) {
        return Yuv444[row];
    }
    if (format.nb_components < 3) {
        return Grey[row];
    }
    return format.log2_chroma_h == 0 ? Yuv422[row] : Yuv420[row];
}

} // namespace

const AVFrame* KxPlanarConverter::Convert(const AVFrame& source)
{
    const AVPixFmtDescriptor* const format = av_pix_fmt_desc_get(FormatOf(source));
    if (format == nullptr || source.width <= 0 || source.height <= 0) {
        return nullptr;
    }
    if (IsPlanar(*format)) {
        return IsAligned(source) ? &source : CopyAligned(source);
    }
    const AVPixelFormat target = PlanarFormatFor(*format);
    if (!Prepare(source, target)) {
        return nullptr;
    }
    m_converted = m_pool.Take(target, m_size);
    if (m_converted == nullptr) {
        return nullptr;
    }
    KxPictureColour::Copy(source, *m_converted);
    if (KxPictureColour::IsRgb(FormatOf(source))) {
        KxPictureColour::MarkAsConvertedRgb(*m_converted);
    }
    const int rows = sws_scale(m_scaler.get(), source.data, source.linesize, 0, source.height, m_converted->data,
                               m_converted->linesize);
    return rows == source.height ? m_converted.get() : nullptr;
}

bool KxPlanarConverter::Prepare(const AVFrame& source, AVPixelFormat target)
{
    const QSize size(source.width, source.height);
    if (m_scaler != nullptr && m_sourceFormat == FormatOf(source) && m_size == size) {
        return true;
    }
    m_size = size;
    m_sourceFormat = FormatOf(source);
    m_scaler.reset(sws_getContext(source.width, source.height, m_sourceFormat, source.width, source.height, target,
                                  SWS_BICUBIC | SWS_ACCURATE_RND | SWS_FULL_CHR_H_INP, nullptr, nullptr, nullptr));
    if (m_scaler == nullptr) {
        return false;
    }
    // YUV keeps its matrix and range: with equal settings on both sides, only the components are separated.
    const int* const coefficients = sws_getCoefficients(SWS_CS_ITU709);
    const int sourceRange = KxPictureColour::IsRgb(m_sourceFormat) ? 1 : 0;
    return sws_setColorspaceDetails(m_scaler.get(), coefficients, sourceRange, coefficients, 0, 0, 1 << 16, 1 << 16) >=
               0 ||
           !KxPictureColour::IsRgb(m_sourceFormat);
}

const AVFrame* KxPlanarConverter::CopyAligned(const AVFrame& source)
{
    const QSize size(source.width, source.height);
    m_converted = m_pool.Take(FormatOf(source), size);
    if (m_converted == nullptr || av_frame_copy(m_converted.get(), &source) < 0) {
        return nullptr;
    }
    KxPictureColour::Copy(source, *m_converted);
    return m_converted.get();
}
