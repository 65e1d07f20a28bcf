#include <KxModel/KxPointedPicture.h>

#include <KxMedia/Picture/KxPictureScaler.h>
#include <KxMedia/Read/KxVideoReader.h>
#include <KxSubject/KxPointedBox.h>

#include <QImage>

QRectF KxPointedPicture::BoxAt(const QString& path, qint64 frame, const QPointF& point)
{
    // As large as the pictures in which what was pointed at is followed.
    constexpr int sidePx = 320;
    const KxResult<std::unique_ptr<KxVideoReader>> reader =
        KxVideoReader::Open(path, KxCancelToken(), KxVideoReader::Purpose::Analysis);
    KxVideoFrame picture;
    if (!reader || (*reader)->Read(frame, picture) != KxReadStatus::Delivered) {
        return {};
    }
    const QSize size = (*reader)->Facts().video->resolution.scaled(sidePx, sidePx, Qt::KeepAspectRatio);
    KxPictureScaler scaler(KxPictureScaler::Detail::Coarse);
    const QImage image = scaler.Scale(picture, size, QImage::Format_BGR888);
    if (image.isNull()) {
        return {};
    }
    const KxSubjectBox box = KxGuessBoxAt(
        {image.constBits(), {image.width(), image.height()}, static_cast<std::size_t>(image.bytesPerLine())}, point.x(),
        point.y());
    return {box.x, box.y, box.width, box.height};
}
