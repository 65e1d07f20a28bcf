#include <KxMedia/Picture/KxPictureScaler.h>

#include <KxMedia/Picture/KxCoarsePicture.h>

extern "C" {
#include <libavutil/imgutils.h>
#include <libavutil/mem.h>
#include <libavutil/pixdesc.h>
}

#include <QTransform>

#include <tuple>

namespace
{

// The converter may write up to this many bytes beyond the end of a row.
constexpr int RowPadding = 64;

AVPixelFormat TargetFormat(QImage::Format format)
{
    switch (format) {
    case QImage::Format_RGB32:
        return AV_PIX_FMT_RGB32;
    case QImage::Format_BGR888:
        return AV_PIX_FMT_BGR24;
    case QImage::Format_Grayscale8:
        return AV_PIX_FMT_GRAY8;
    default:
        return AV_PIX_FMT_NONE;
    }
}

QImage MakeImage(const QSize& size, QImage::Format format)
{
    const int bytesAPixel = QImage::toPixelFormat(format).bitsPerPixel() / 8;
    const int stride = (size.width() * bytesAPixel + 2 * RowPadding - 1) / RowPadding * RowPadding;
    auto* data =
        static_cast<uchar*>(av_malloc(static_cast<size_t>(stride) * static_cast<size_t>(size.height()) + RowPadding));
    if (data == nullptr) {
        return {};
    }
    return QImage(
        data, size.width(), size.height(), stride, format, [](void* memory) { av_free(memory); }, data);
}

// The unused alpha byte of such an image must be set.
void MakeOpaque(QImage& image)
{
    for (int y = 0; y < image.height(); ++y) {
        auto* row = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            row[x] |= 0xff000000U;
        }
    }
}

bool MayBeTransparent(AVPixelFormat format)
{
    const AVPixFmtDescriptor* description = av_pix_fmt_desc_get(format);
    return description != nullptr && (description->flags & (AV_PIX_FMT_FLAG_ALPHA | AV_PIX_FMT_FLAG_PAL)) != 0;
}

bool IsFullRange(const AVFrame& picture)
{
    if (picture.color_range != AVCOL_RANGE_UNSPECIFIED) {
        return picture.color_range == AVCOL_RANGE_JPEG;
    }
    const AVPixFmtDescriptor* description = av_pix_fmt_desc_get(static_cast<AVPixelFormat>(picture.format));
    const bool isGrey = description != nullptr && description->nb_components == 1;
    return isGrey || QByteArray(description != nullptr ? description->name : "").startsWith("yuvj");
}

// If the file does not specify a matrix, the convention for its size applies: BT.709 from 720 lines on, otherwise
// BT.601.
int MatrixOf(const AVFrame& picture)
{
    if (picture.colorspace == AVCOL_SPC_BT2020_CL) {
        return SWS_CS_BT2020;
    }
    if (picture.colorspace == AVCOL_SPC_UNSPECIFIED || picture.colorspace == AVCOL_SPC_RESERVED) {
        return picture.width >= 1280 || picture.height >= 720 ? SWS_CS_ITU709 : SWS_CS_ITU601;
    }
    return picture.colorspace;
}

} // namespace

class KxPictureScaler::Impl
{
public:
    explicit Impl(Detail detail)
        : m_detail(detail)
    {
    }

    QImage Scale(const AVFrame& picture, const QSize& size, QImage::Format format);

private:
    struct Key {
        QSize from;
        int fromFormat = AV_PIX_FMT_NONE;
        QSize to;
        int toFormat = AV_PIX_FMT_NONE;
        int matrix = 0;
        int range = 0;
        bool operator==(const Key& other) const
        {
            return std::tie(fromFormat, toFormat, matrix, range) ==
                       std::tie(other.fromFormat, other.toFormat, other.matrix, other.range) &&
                   from == other.from && to == other.to;
        }
    };
    bool Prepare(const Key& key);

    Detail m_detail;
    KxCoarsePicture m_coarse;
    KxAvScaler m_scaler;
    Key m_key;
};

bool KxPictureScaler::Impl::Prepare(const Key& key)
{
    if (m_scaler && m_key == key) {
        return true;
    }
    const bool isSmaller = key.to.width() <= key.from.width() && key.to.height() <= key.from.height();
    // The fastest conversion darkens by more than one step of 255, which is acceptable only for large pictures.
    const int flags = (isSmaller ? SWS_AREA : SWS_BICUBIC) | (m_detail == Detail::Full ? 0 : SWS_ACCURATE_RND);
    m_scaler.reset(sws_getContext(key.from.width(), key.from.height(), static_cast<AVPixelFormat>(key.fromFormat),
                                  key.to.width(), key.to.height(), static_cast<AVPixelFormat>(key.toFormat), flags,
                                  nullptr, nullptr, nullptr));
    m_key = key;
    if (!m_scaler) {
        return false;
    }
    // -1 if neither side has a matrix; then there is nothing to set.
    sws_setColorspaceDetails(m_scaler.get(), sws_getCoefficients(key.matrix), key.range,
                             sws_getCoefficients(SWS_CS_ITU709), 1, 0, 1 << 16, 1 << 16);
    return true;
}

QImage KxPictureScaler::Impl::Scale(const AVFrame& picture, const QSize& size, QImage::Format format)
{
    const auto chroma = m_detail == Detail::Overview ? KxCoarsePicture::Chroma::Full : KxCoarsePicture::Chroma::Half;
    const AVFrame* coarse = m_detail == Detail::Full ? nullptr : m_coarse.Of(picture, size, chroma);
    const AVFrame& source = coarse != nullptr ? *coarse : picture;
    const auto from = static_cast<AVPixelFormat>(source.format);
    if (sws_isSupportedInput(from) == 0) {
        return {};
    }
    const int range = IsFullRange(picture) ? 1 : 0;
    if (!Prepare({{source.width, source.height}, from, size, TargetFormat(format), MatrixOf(picture), range})) {
        return {};
    }
    QImage image = MakeImage(size, format);
    if (image.isNull()) {
        return image;
    }
    uint8_t* const rows[4] = {image.bits(), nullptr, nullptr, nullptr};
    const int strides[4] = {image.bytesPerLine(), 0, 0, 0};
    if (sws_scale(m_scaler.get(), source.data, source.linesize, 0, source.height, rows, strides) <= 0) {
        return {};
    }
    if (format == QImage::Format_RGB32 && MayBeTransparent(from)) {
        MakeOpaque(image);
    }
    return image;
}

KxPictureScaler::KxPictureScaler(Detail detail)
    : m_impl(std::make_unique<Impl>(detail))
{
}

KxPictureScaler::~KxPictureScaler() = default;

QImage KxPictureScaler::Scale(const KxVideoFrame& picture, const QSize& size, QImage::Format format)
{
    if (picture.IsNull() || size.isEmpty() || TargetFormat(format) == AV_PIX_FMT_NONE) {
        return {};
    }
    const KxVideoFrame::Orientation& turn = picture.Turn();
    const QSize lying = turn.clockwiseDegrees % 180 == 0 ? size : size.transposed();
    QImage image = m_impl->Scale(picture.Picture(), lying, format);
    if (turn.mirror) {
        image = image.mirrored(true, false);
    }
    return turn.clockwiseDegrees == 0 ? image : image.transformed(QTransform().rotate(turn.clockwiseDegrees));
}
