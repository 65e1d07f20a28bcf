#include <KxMedia/Picture/KxFrameCutter.h>

#include <KxCore/KxCropWindow.h>
#include <KxMedia/Picture/KxFramePool.h>
#include <KxMedia/Picture/KxPictureColour.h>
#include <KxMedia/Picture/KxPictureTurner.h>
#include <KxMedia/Picture/KxPlanarConverter.h>
#include <KxMedia/Picture/KxPlaneGeometry.h>
#include <KxMedia/Picture/KxPlaneResampler.h>
#include <KxMedia/Picture/KxToneMapper.h>

extern "C" {
#include <libavutil/pixdesc.h>
}

#include <QCoreApplication>

#include <algorithm>
#include <cstdint>

namespace
{

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(KxFrameCutter)
};

using KxPlaneGeometry::PlaneSampling;
using KxPlaneGeometry::Span;

PlaneSampling ChromaSampling(const AVFrame& picture, const AVPixFmtDescriptor& format)
{
    const int stepX = 1 << format.log2_chroma_w;
    const int stepY = 1 << format.log2_chroma_h;
    const double left = 0.5;
    const double middleX = stepX / 2.0;
    const double top = 0.5;
    const double middleY = stepY / 2.0;
    const double bottom = stepY - 0.5;
    switch (picture.chroma_location) {
    case AVCHROMA_LOC_CENTER:
        return {{middleX, stepX}, {middleY, stepY}};
    case AVCHROMA_LOC_TOPLEFT:
        return {{left, stepX}, {top, stepY}};
    case AVCHROMA_LOC_TOP:
        return {{middleX, stepX}, {top, stepY}};
    case AVCHROMA_LOC_BOTTOMLEFT:
        return {{left, stepX}, {bottom, stepY}};
    case AVCHROMA_LOC_BOTTOM:
        return {{middleX, stepX}, {bottom, stepY}};
    default:
        return {{left, stepX}, {middleY, stepY}};
    }
}

const AVPixFmtDescriptor& Describe(const AVFrame& picture)
{
    return *av_pix_fmt_desc_get(static_cast<AVPixelFormat>(picture.format));
}

KxPlaneResampler::Request LumaRequest(const AVFrame& source, const QRectF& windowPx, const AVFrame& target)
{
    KxPlaneResampler::Request request;
    request.source = QSize(source.width, source.height);
    request.sourceBits = Describe(source).comp[0].depth;
    request.left = windowPx.x();
    request.top = windowPx.y();
    request.width = windowPx.width();
    request.height = windowPx.height();
    request.target = QSize(target.width, target.height);
    request.targetBits = Describe(target).comp[0].depth;
    request.mapping = target.color_range == AVCOL_RANGE_JPEG ? KxPlaneResampler::DepthMapping::Stretch
                                                             : KxPlaneResampler::DepthMapping::Shift;
    return request;
}

KxPlaneResampler::Request ChromaRequest(const AVFrame& source, const QRectF& windowPx,
                                        const KxVideoFrame::Orientation& turn, const AVFrame& target)
{
    const AVPixFmtDescriptor& from = Describe(source);
    const AVPixFmtDescriptor& to = Describe(target);
    const PlaneSampling sourceSampling = ChromaSampling(source, from);
    const PlaneSampling targetSampling =
        to.log2_chroma_w != 0 ? KxPlaneGeometry::LeftSitedAfterTurn(turn) : PlaneSampling{};
    KxPlaneResampler::Request request = LumaRequest(source, windowPx, target);
    request.source =
        QSize(AV_CEIL_RSHIFT(source.width, from.log2_chroma_w), AV_CEIL_RSHIFT(source.height, from.log2_chroma_h));
    request.target = QSize(target.width >> to.log2_chroma_w, target.height >> to.log2_chroma_h);
    const Span across =
        KxPlaneGeometry::PlaneSpan({windowPx.x(), windowPx.width()}, target.width, sourceSampling.horizontal,
                                   targetSampling.horizontal, request.target.width());
    const Span down =
        KxPlaneGeometry::PlaneSpan({windowPx.y(), windowPx.height()}, target.height, sourceSampling.vertical,
                                   targetSampling.vertical, request.target.height());
    request.left = across.start;
    request.top = down.start;
    request.width = across.length;
    request.height = down.length;
    request.mapping = KxPlaneResampler::DepthMapping::Shift;
    return request;
}

// A grey picture gets neutral chroma: the middle of the scale.
void FillNeutral(const KxPlaneResampler::Request& request, AVFrame& target, int plane)
{
    for (int y = 0; y < request.target.height(); ++y) {
        std::uint8_t* const row = target.data[plane] + static_cast<std::ptrdiff_t>(y) * target.linesize[plane];
        if (request.targetBits > 8) {
            std::fill_n(reinterpret_cast<std::uint16_t*>(row), request.target.width(),
                        static_cast<std::uint16_t>(1 << (request.targetBits - 1)));
        } else {
            std::fill_n(row, request.target.width(), std::uint8_t{128});
        }
    }
}

} // namespace

class KxFrameCutter::Impl
{
public:
    Impl(const QSize& size, KxHighRange highRange)
        : m_size(size)
        , m_highRange(highRange)
    {
    }

    KxResult<KxVideoFrame> Cut(const KxVideoFrame& picture, const QRectF& crop);

private:
    using Cutting = KxResult<KxAvFrame>;

    Cutting CutCoded(const AVFrame& source, const QRectF& codedCrop, const KxVideoFrame::Orientation& turn,
                     AVPixelFormat format);
    bool CutPlane(const AVFrame& source, int plane, const KxPlaneResampler::Request& request, AVFrame& target);
    Cutting Turned(KxAvFrame cut, const KxVideoFrame::Orientation& turn);

    QSize m_size;
    const KxHighRange m_highRange;
    KxPlanarConverter m_converter;
    KxFramePool m_cutPool;
    KxFramePool m_turnPool;
    KxPlaneResampler m_luma;
    KxPlaneResampler m_chroma;
    KxToneMapper m_toneMapper;
};

KxResult<KxVideoFrame> KxFrameCutter::Impl::Cut(const KxVideoFrame& picture, const QRectF& crop)
{
    using Result = KxResult<KxVideoFrame>;
    if (picture.IsNull() || !KxCropWindow::IsUsable(crop)) {
        return Result::Failure(Texts::tr("Cannot cut a picture: the rectangle to cut out is empty."));
    }
    const AVFrame* const source = m_converter.Convert(picture.Picture());
    if (source == nullptr) {
        const char* const name = av_get_pix_fmt_name(static_cast<AVPixelFormat>(picture.Picture().format));
        return Result::Failure(Texts::tr("Cannot cut a picture: its pixel format \"%1\" cannot be converted.")
                                   .arg(QLatin1String(name != nullptr ? name : "unknown")));
    }
    const KxVideoFrame::Orientation& turn = picture.Turn();
    const QRectF codedCrop = KxPlaneGeometry::ToCoded(KxCropWindow::Inside(crop), turn);
    const bool keeps = m_highRange == KxHighRange::Kept;
    const bool isMapped = !keeps && KxPictureColour::IsHighDynamicRange(*source);
    // Tone mapping needs more than 8 bits; full-resolution chroma saves it a scaling step.
    const AVPixelFormat format = keeps ? AV_PIX_FMT_YUV420P10 : isMapped ? AV_PIX_FMT_YUV444P10 : AV_PIX_FMT_YUV420P;
    Cutting cut = CutCoded(*source, codedCrop, turn, format);
    if (cut && (turn.clockwiseDegrees != 0 || turn.mirror)) {
        cut = Turned(std::move(*cut), turn);
    }
    if (cut && (keeps || isMapped)) {
        KxPictureColour::CopyBrightness(picture.Picture(), **cut);
    }
    if (cut && isMapped) {
        cut = m_toneMapper.Map(**cut);
    }
    if (!cut) {
        return Result::Failure(cut.Message());
    }
    (*cut)->sample_aspect_ratio = AVRational{1, 1};
    return KxVideoFrame(std::shared_ptr<const AVFrame>(std::move(*cut)), picture.Index(), {}, m_size);
}

KxFrameCutter::Impl::Cutting KxFrameCutter::Impl::CutCoded(const AVFrame& source, const QRectF& codedCrop,
                                                           const KxVideoFrame::Orientation& turn, AVPixelFormat format)
{
    const bool isQuarter = turn.clockwiseDegrees == 90 || turn.clockwiseDegrees == 270;
    const QSize size = isQuarter ? m_size.transposed() : m_size;
    KxAvFrame target = m_cutPool.Take(format, size);
    if (target == nullptr) {
        return Cutting::Failure(Texts::tr("Cannot cut a picture: memory ran out."));
    }
    KxPictureColour::Copy(source, *target);
    target->chroma_location = format == AV_PIX_FMT_YUV444P10 ? AVCHROMA_LOC_UNSPECIFIED : AVCHROMA_LOC_LEFT;
    const QRectF windowPx = KxCropWindow::Pixels(codedCrop, QSize(source.width, source.height));
    const KxPlaneResampler::Request luma = LumaRequest(source, windowPx, *target);
    const KxPlaneResampler::Request chroma = ChromaRequest(source, windowPx, turn, *target);
    if (!CutPlane(source, 0, luma, *target) || !CutPlane(source, 1, chroma, *target) ||
        !CutPlane(source, 2, chroma, *target)) {
        return Cutting::Failure(Texts::tr("Cannot cut a picture: it cannot be scaled from %1 x %2 to %3 x %4.")
                                    .arg(QString::number(windowPx.width()), QString::number(windowPx.height()),
                                         QString::number(size.width()), QString::number(size.height())));
    }
    return Cutting(std::move(target));
}

bool KxFrameCutter::Impl::CutPlane(const AVFrame& source, int plane, const KxPlaneResampler::Request& request,
                                   AVFrame& target)
{
    if (plane >= av_pix_fmt_count_planes(static_cast<AVPixelFormat>(source.format))) {
        FillNeutral(request, target, plane);
        return true;
    }
    KxPlaneResampler& resampler = plane == 0 ? m_luma : m_chroma;
    return resampler.Run(request, {source.data[plane], source.linesize[plane]},
                         {target.data[plane], target.linesize[plane]});
}

KxFrameCutter::Impl::Cutting KxFrameCutter::Impl::Turned(KxAvFrame cut, const KxVideoFrame::Orientation& turn)
{
    KxAvFrame turned = m_turnPool.Take(static_cast<AVPixelFormat>(cut->format), m_size);
    if (turned == nullptr) {
        return Cutting::Failure(Texts::tr("Cannot cut a picture: memory ran out."));
    }
    KxPictureColour::Copy(*cut, *turned);
    KxPictureTurner::Turn(*cut, turn, *turned);
    return Cutting(std::move(turned));
}

KxFrameCutter::KxFrameCutter(const QSize& size, KxHighRange highRange)
    : m_impl(std::make_unique<Impl>(size, highRange))
{
}
KxFrameCutter::~KxFrameCutter() = default;

KxResult<KxVideoFrame> KxFrameCutter::Cut(const KxVideoFrame& picture, const QRectF& crop)
{
    return m_impl->Cut(picture, crop);
}
