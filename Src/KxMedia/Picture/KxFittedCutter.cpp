#include <KxMedia/Picture/KxFittedCutter.h>

#include <KxCore/KxCropWindow.h>
#include <KxMedia/Picture/KxFrameCutter.h>
#include <KxMedia/Picture/KxFramePool.h>
#include <KxMedia/Picture/KxPictureColour.h>
#include <KxMedia/Picture/KxPlaneResampler.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <optional>
#include <vector>

namespace
{

using Cutting = KxResult<KxVideoFrame>;

constexpr int Planes = 3;

// The background is made at this size and enlarged: the blur is a part of the picture, not a number of pixels.
constexpr int BackgroundSidePx = 48;
constexpr int BlurRadius = 2;
constexpr int BlurPasses = 2;
// What remains of the background's light and colour, so that the picture before it stands out.
constexpr double Remaining = 0.45;

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

/// A running mean along a line of samples that lie `step` bytes apart; the ends are repeated.
void BlurLine(std::uint8_t* samples, int count, std::ptrdiff_t step, std::vector<std::uint8_t>& line)
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
        samples[at * step] = static_cast<std::uint8_t>(sum / width);
    }
}

void Blur(std::uint8_t* plane, std::ptrdiff_t strideBytes, const QSize& size)
{
    std::vector<std::uint8_t> line;
    for (int pass = 0; pass < BlurPasses; ++pass) {
        for (int y = 0; y < size.height(); ++y) {
            BlurLine(plane + y * strideBytes, size.width(), 1, line);
        }
        for (int x = 0; x < size.width(); ++x) {
            BlurLine(plane + x, size.height(), strideBytes, line);
        }
    }
}

void Darken(std::uint8_t* plane, std::ptrdiff_t strideBytes, const QSize& size, int unchanged)
{
    for (int y = 0; y < size.height(); ++y) {
        std::uint8_t* const row = plane + y * strideBytes;
        std::transform(row, row + size.width(), row, [unchanged](std::uint8_t value) {
            return static_cast<std::uint8_t>(std::lround(unchanged + (value - unchanged) * Remaining));
        });
    }
}

void CopyPlane(const AVFrame& from, AVFrame& to, int plane, const QRect& place)
{
    const QRect area = plane == 0 ? place : QRect(place.topLeft() / 2, place.size() / 2);
    for (int y = 0; y < area.height(); ++y) {
        std::memcpy(to.data[plane] + static_cast<std::ptrdiff_t>(area.y() + y) * to.linesize[plane] + area.x(),
                    from.data[plane] + static_cast<std::ptrdiff_t>(y) * from.linesize[plane],
                    static_cast<std::size_t>(area.width()));
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
    explicit Impl(const QSize& size)
        : m_size(size)
        , m_backgroundSize(BackgroundSize(size))
        , m_background(m_backgroundSize)
    {
    }

    const QSize& Size() const { return m_size; }
    Cutting Cut(const KxVideoFrame& picture, const QRectF& crop);

private:
    /// Fills `target` with the blurred and darkened `small`.
    bool PaintBackground(const AVFrame& small, AVFrame& target);

    const QSize m_size;
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
        return Cutting::Failure(QStringLiteral("Cannot cut a picture: the rectangle to cut out is empty."));
    }
    const QRectF inside = KxCropWindow::Inside(crop);
    const QSizeF shape = KxCropWindow::Pixels(inside, picture.DisplayedSize()).size();
    const QRect place = PlaceOf(shape, m_size);
    if (m_front == nullptr || m_frontSize != place.size()) {
        m_front = std::make_unique<KxFrameCutter>(place.size());
        m_frontSize = place.size();
    }
    const Cutting front = m_front->Cut(picture, inside);
    const Cutting background = m_background.Cut(picture, MiddleOf(inside, shape, m_size));
    if (!front || !background) {
        return front ? background : front;
    }
    KxAvFrame result = m_pool.Take(AV_PIX_FMT_YUV420P, m_size);
    if (result == nullptr || !PaintBackground((*background).Picture(), *result)) {
        return Cutting::Failure(QStringLiteral("Cannot cut a picture: memory ran out."));
    }
    const AVFrame& cut = (*front).Picture();
    KxPictureColour::Copy(cut, *result);
    result->sample_aspect_ratio = cut.sample_aspect_ratio;
    for (int plane = 0; plane < Planes; ++plane) {
        CopyPlane(cut, *result, plane, place);
    }
    return KxVideoFrame(std::shared_ptr<const AVFrame>(std::move(result)), picture.Index(), {}, m_size);
}

bool KxFittedCutter::Impl::PaintBackground(const AVFrame& small, AVFrame& target)
{
    const KxAvFrame blurred = m_blurPool.Take(AV_PIX_FMT_YUV420P, m_backgroundSize);
    if (blurred == nullptr) {
        return false;
    }
    const int black = small.color_range == AVCOL_RANGE_JPEG ? 0 : BlackOfLimitedRange;
    for (int plane = 0; plane < Planes; ++plane) {
        const QSize size = PlaneSize(m_backgroundSize, plane);
        CopyPlane(small, *blurred, plane, QRect(QPoint(0, 0), m_backgroundSize));
        Blur(blurred->data[plane], blurred->linesize[plane], size);
        Darken(blurred->data[plane], blurred->linesize[plane], size, plane == 0 ? black : Neutral);
        KxPlaneResampler::Request request;
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

KxFittedCutter::KxFittedCutter(const QSize& size)
    : m_impl(std::make_unique<Impl>(size))
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
