#include <KxMediaLibrary/KxThumbnailPicture.h>

#include <KxMedia/Picture/KxPictureScaler.h>
#include <KxMedia/Read/KxVideoReader.h>

#include <QCoreApplication>
#include <QFileInfo>

#include <algorithm>

namespace
{

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(KxThumbnailPicture)
};

/// Where pictures are taken, as fractions of the video's length.
constexpr double Places[] = {0.1, 0.35, 0.65};

/// Black, white or fog: a picture by which no video is recognised.
bool IsOfOneColour(const QImage& picture)
{
    constexpr int leastContrast = 24;
    int darkest = 255;
    int brightest = 0;
    for (int y = 0; y < picture.height(); ++y) {
        const auto* const line = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        std::for_each(line, line + picture.width(), [&darkest, &brightest](QRgb pixel) {
            darkest = std::min(darkest, qGray(pixel));
            brightest = std::max(brightest, qGray(pixel));
        });
    }
    return brightest - darkest < leastContrast;
}

QSize FitInto(const QSize& displayed, const QSize& roomPx)
{
    const QSize fitted = displayed.scaled(roomPx, Qt::KeepAspectRatio).boundedTo(displayed);
    return fitted.expandedTo(QSize(1, 1));
}

} // namespace

KxResult<QImage> KxThumbnailPicture::Make(const QString& path, const QSize& roomPx, const KxCancelToken& cancel)
{
    KxResult<std::unique_ptr<KxVideoReader>> reader = KxVideoReader::Open(path, cancel);
    if (!reader) {
        return KxResult<QImage>::Failure(reader.Message());
    }
    const qint64 frameCount = (*reader)->Facts().video->frameCount;
    KxPictureScaler scaler;
    QImage first;
    for (const double place : Places) {
        KxVideoFrame frame;
        if ((*reader)->Read(static_cast<qint64>(place * static_cast<double>(frameCount)), frame) !=
            KxReadStatus::Delivered) {
            break;
        }
        const QImage picture = scaler.Scale(frame, FitInto(frame.DisplayedSize(), roomPx), QImage::Format_RGB32);
        if (!picture.isNull() && !IsOfOneColour(picture)) {
            return picture;
        }
        first = first.isNull() ? picture : first;
    }
    if (first.isNull()) {
        return KxResult<QImage>::Failure(
            Texts::tr("Cannot show %1: no picture could be read.").arg(QFileInfo(path).fileName()));
    }
    return first;
}
