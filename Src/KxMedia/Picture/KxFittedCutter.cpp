#include <KxMedia/Picture/KxFittedCutter.h>

#include <KxCore/KxCropWindow.h>
#include <KxMedia/Picture/KxFrameCutter.h>
#include <KxMedia/Picture/KxFramePool.h>
#include <KxMedia/Picture/KxPictureColour.h>
#include <KxMedia/Picture/KxPlaneResampler.h>

#include <QCoreApplication>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <optional>
#include <vector>

namespace
{

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(KxFittedCutter)
};

using Cutting = KxResult<KxVideoFrame>;

constexpr int Planes = 3;

// The background is made at this size and enlarged: the blur is a part of the picture, not a number of pixels.
constexpr int BackgroundSidePx = 48;
constexpr int BlurRadius = 2;
constexpr int BlurPasses = 2;
// What remains of the background's light and colour, so that the picture before it stands out.
constexpr double Remaining = 0.45;

// In values of 8 bits.
constexpr int Neutral = 128;
constexpr int BlackOfLimitedRange = 16;

int Even(double exact)
{
    return std::max(2, 2 * static_cast<int>(std::lround(exact / 2.0)));
}

QSize BackgroundSize(const QSize& size)
{
    const QSizeF fitted = QSizeF(size).scaled(BackgroundSidePx, BackgroundSidePx, Qt::KeepAspectRatio);
    return {Even(fitted.width()), Even(fitted.height())};
}

QSize PlaneSize(const QSize& size, int plane)
{
    return plane == 0 ? size : size / 2;
}

/// One plane of a picture.
template<typename Sample>
struct Plane {
    Sample* samples;
    std::ptrdiff_t stride; ///< in samples
    QSize size;
};

template<typename Sample>
Plane<Sample> PlaneOf(AVFrame& picture, int plane)
{
    return {reinterpret_cast<Sample*>(picture.data[plane]),
            static_cast<std::ptrdiff_t>(picture.linesize[plane] / static_cast<int>(sizeof(Sample))),
            PlaneSize({picture.width, picture.height}, plane)};
}

/// A running mean along a line of samples that lie `step` samples apart; the ends are repeated.
template<typename Sample>
void BlurLine(Sample* samples, int count, std::ptrdiff_t step, std::vector<Sample>& line)
{
    line.resize(static_cast<std::size_t>(count));
    for (int at = 0; at < count; ++at) {
        line[static_cast<std::size_t>(at)] = samples[at * step];
    }
    constexpr int width = 2 * BlurRadius + 1;
    for (int at = 0; at < count; ++at) {
        int sum = width / 2;
        for (int near = at - BlurRadius; near <= at + BlurRadius; ++near) {
            sum += line[static_cast<std::size_t>(std::clamp(near, 0, count - 1))];
        }
        samples[at * step] = static_cast<Sample>(sum / width);
    }
}

template<typename Sample>
void Blur(const Plane<Sample>& plane)
{
    std::vector<Sample> line;
    for (int pass = 0; pass < BlurPasses; ++pass) {
        for (int y = 0; y < plane.size.height(); ++y) {
            BlurLine(plane.samples + y * plane.stride, plane.size.width(), 1, line);
        }
        for (int x = 0; x < plane.size.width(); ++x) {
            BlurLine(plane.samples + x, plane.size.height(), plane.stride, line);
        }
    }
}

template<typename Sample>
void Darken(const Plane<Sample>& plane, int unchanged)
{
    for (int y = 0; y < plane.size.height(); ++y) {
        Sample* const row = plane.samples + y * plane.stride;
        std::transform(row, row + plane.size.width(), row, [unchanged](Sample value) {
            return static_cast<Sample>(std::lround(unchanged + (value - unchanged) * Remaining));
        });
    }
}

int SampleBytes(const AVFrame& picture)
{
    return picture.format == AV_PIX_FMT_YUV420P10 ? 2 : 1;
}

template<typename Sample>
void BlurAndDarken(AVFrame& picture, int plane)
{
    constexpr int unit = sizeof(Sample) == 1 ? 1 : 4; // 10 bits
    const int black = picture.color_range == AVCOL_RANGE_JPEG ? 0 : BlackOfLimitedRange;
    const Plane<Sample> samples = PlaneOf<Sample>(picture, plane);
    Blur(samples);
    Darken(samples, (plane == 0 ? black : Neutral) * unit);
}

void CopyPlane(const AVFrame& from, AVFrame& to, int plane, const QRect& place)
{
    const QRect area = plane == 0 ? place : QRect(place.topLeft() / 2, place.size() / 2);
    const int bytes = SampleBytes(to);
    for (int y = 0; y < area.height(); ++y) {
        std::memcpy(to.data[plane] + static_cast<std::ptrdiff_t>(area.y() + y) * to.linesize[plane] +
                        std::ptrdiff_t{1} * area.x() * bytes,
                    from.data[plane] + static_cast<std::ptrdiff_t>(y) * from.linesize[plane],
                    static_cast<std::size_t>(area.width() * bytes));
    }
}

/// The middle of `crop` with the shape of a picture of size `size`.
QRectF MiddleOf(const QRectF& crop, const QSizeF& shape, const QSize& size)
{
    const QRectF middle = KxCropWindow::Central(shape, size);
    return KxCropWindow::MappedTo(crop, middle);
}

} // namespace

class KxFittedCutter::Impl
{
public:
    Impl(const QSize& size, KxHighRange highRange)
        : m_size(size)
        , m_highRange(highRange)
        , m_backgroundSize(BackgroundSize(size))
        , m_background(m_backgroundSize, highRange)
    {
    }

    const QSize& Size() const { return m_size; }
    Cutting Cut(const KxVideoFrame& picture, const QRectF& crop);

private:
    /// Fills `target` with the blurred and darkened `small`.
    bool PaintBackground(const AVFrame& small, AVFrame& target);

    const QSize m_size;
    const KxHighRange m_highRange;
    const QSize m_backgroundSize;
    KxFrameCutter m_background;
    /// For the last shape of a crop.
    std::unique_ptr<KxFrameCutter> m_front;
    QSize m_frontSize;
    KxFramePool m_blurPool;
    KxFramePool m_pool;
    KxPlaneResampler m_luma;
    KxPlaneResampler m_chroma;
};

Cutting KxFittedCutter::Impl::Cut(const KxVideoFrame& picture, const QRectF& crop)
{
    if (picture.IsNull() || !KxCropWindow::IsUsable(crop)) {
        return Cutting::Failure(Texts::tr("Cannot cut a picture: the rectangle to cut out is empty."));
    }
    const QRectF inside = KxCropWindow::Inside(crop);
    const QSizeF shape = KxCropWindow::Pixels(inside, picture.DisplayedSize()).size();
    const QRect place = PlaceOf(shape, m_size);
    if (m_front == nullptr || m_frontSize != place.size()) {
        m_front = std::make_unique<KxFrameCutter>(place.size(), m_highRange);
        m_frontSize = place.size();
    }
    const Cutting front = m_front->Cut(picture, inside);
    const Cutting background = m_background.Cut(picture, MiddleOf(inside, shape, m_size));
    if (!front || !background) {
        return front ? background : front;
    }
    const AVFrame& cut = (*front).Picture();
    KxAvFrame result = m_pool.Take(static_cast<AVPixelFormat>(cut.format), m_size);
    if (result == nullptr || !PaintBackground((*background).Picture(), *result)) {
        return Cutting::Failure(Texts::tr("Cannot cut a picture: memory ran out."));
    }
    KxPictureColour::Copy(cut, *result);
    KxPictureColour::CopyBrightness(cut, *result);
    result->sample_aspect_ratio = cut.sample_aspect_ratio;
    for (int plane = 0; plane < Planes; ++plane) {
        CopyPlane(cut, *result, plane, place);
    }
    return KxVideoFrame(std::shared_ptr<const AVFrame>(std::move(result)), picture.Index(), {}, m_size);
}

bool KxFittedCutter::Impl::PaintBackground(const AVFrame& small, AVFrame& target)
{
    const KxAvFrame blurred = m_blurPool.Take(static_cast<AVPixelFormat>(small.format), m_backgroundSize);
    if (blurred == nullptr) {
        return false;
    }
    blurred->color_range = small.color_range;
    const bool isDeep = SampleBytes(small) > 1;
    for (int plane = 0; plane < Planes; ++plane) {
        const QSize size = PlaneSize(m_backgroundSize, plane);
        CopyPlane(small, *blurred, plane, QRect(QPoint(0, 0), m_backgroundSize));
        isDeep ? BlurAndDarken<std::uint16_t>(*blurred, plane) : BlurAndDarken<std::uint8_t>(*blurred, plane);
        KxPlaneResampler::Request request;
        request.sourceBits = isDeep ? 10 : 8;
        request.targetBits = request.sourceBits;
        request.source = size;
        request.width = size.width();
        request.height = size.height();
        request.target = PlaneSize(m_size, plane);
        KxPlaneResampler& resampler = plane == 0 ? m_luma : m_chroma;
        if (!resampler.Run(request, {blurred->data[plane], blurred->linesize[plane]},
                           {target.data[plane], target.linesize[plane]})) {
            return false;
        }
    }
    return true;
}

KxFittedCutter::KxFittedCutter(const QSize& size, KxHighRange highRange)
    : m_impl(std::make_unique<Impl>(size, highRange))
{
}

KxFittedCutter::~KxFittedCutter() = default;

const QSize& KxFittedCutter::Size() const
{
    return m_impl->Size();
}

Cutting KxFittedCutter::Cut(const KxVideoFrame& picture, const QRectF& crop)
{
    return m_impl->Cut(picture, crop);
}

QRect KxFittedCutter::PlaceOf(const QSizeF& shape, const QSize& size)
{
    const QSizeF fitted = shape.scaled(size, Qt::KeepAspectRatio);
    const QSize even(std::min(Even(fitted.width()), size.width()), std::min(Even(fitted.height()), size.height()));
    const QSize rest = size - even;
    // Chroma has half the resolution, so that edges are even.
    return {QPoint(rest.width() / 4 * 2, rest.height() / 4 * 2), even};
}
