#include <KxMedia/Picture/KxCoarsePicture.h>

extern "C" {
#include <libavutil/pixdesc.h>
}

#include <algorithm>

namespace
{

// Averaging this many source rows is as good as averaging all of them.
constexpr int RowsForOne = 3;

QSize PlaneSize(const AVPixFmtDescriptor& format, int plane, const QSize& picture)
{
    const bool isChroma = plane > 0;
    return {isChroma ? AV_CEIL_RSHIFT(picture.width(), format.log2_chroma_w) : picture.width(),
            isChroma ? AV_CEIL_RSHIFT(picture.height(), format.log2_chroma_h) : picture.height()};
}

bool HasPlanesOfYuv(const AVPixFmtDescriptor& format)
{
    constexpr std::uint64_t other = AV_PIX_FMT_FLAG_RGB | AV_PIX_FMT_FLAG_PAL | AV_PIX_FMT_FLAG_HWACCEL |
                                    AV_PIX_FMT_FLAG_BITSTREAM | AV_PIX_FMT_FLAG_FLOAT | AV_PIX_FMT_FLAG_BAYER |
                                    AV_PIX_FMT_FLAG_ALPHA | (Q_BYTE_ORDER == Q_LITTLE_ENDIAN ? AV_PIX_FMT_FLAG_BE : 0);
    if ((format.flags & other) != 0 || (format.nb_components != 1 && format.nb_components != 3)) {
        return false;
    }
    int plane = 0;
    return std::all_of(format.comp, format.comp + format.nb_components, [&](const AVComponentDescriptor& component) {
        return component.plane == plane++ && component.shift == 0 && component.offset == 0 && component.depth >= 8 &&
               component.depth <= 16 && component.step == (component.depth > 8 ? 2 : 1);
    });
}

} // namespace

const AVFrame* KxCoarsePicture::Of(const AVFrame& picture, const QSize& size, Chroma chroma)
{
    const AVPixFmtDescriptor* from = av_pix_fmt_desc_get(static_cast<AVPixelFormat>(picture.format));
    if (from == nullptr || !HasPlanesOfYuv(*from) || size.width() > picture.width || size.height() > picture.height) {
        return nullptr;
    }
    const AVPixelFormat coloured = chroma == Chroma::Full ? AV_PIX_FMT_YUV444P : AV_PIX_FMT_YUV420P;
    const AVPixelFormat format = from->nb_components == 1 ? AV_PIX_FMT_GRAY8 : coloured;
    const AVPixFmtDescriptor& to = *av_pix_fmt_desc_get(format);
    m_small.reset();
    m_small = m_pool.Take(format, size);
    if (m_small == nullptr) {
        return nullptr;
    }
    for (int plane = 0; plane < from->nb_components; ++plane) {
        const QSize source = PlaneSize(*from, plane, {picture.width, picture.height});
        const QSize target = PlaneSize(to, plane, size);
        if (target.width() > source.width() || target.height() > source.height()) {
            return nullptr;
        }
        const int step = std::max(1, source.height() / (target.height() * RowsForOne));
        const std::ptrdiff_t stride = picture.linesize[plane];
        const std::uint8_t* firstMiddle = picture.data[plane] + stride * ((step - 1) / 2);
        m_shrinker.Run(
            {firstMiddle, stride * step, QSize(source.width(), source.height() / step), from->comp[plane].depth},
            {m_small->data[plane], m_small->linesize[plane], target});
    }
    return m_small.get();
}
