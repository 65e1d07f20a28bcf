#include <KxModel/KxPointedPicture.h>

#include <KxMedia/Picture/KxPictureScaler.h>
#include <KxMedia/Read/KxVideoReader.h>
#include <KxSubject/KxPointedBox.h>

#include <cstdlib>

KxAutoReframeGuess KxPointedPicture::GuessAt(const QString& path, qint64 frame, const QPointF& point)
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
    const QRectF found(box.x, box.y, box.width, box.height);
    return {found, IsPlain(image, found)};
}

bool KxPointedPicture::IsPlain(const QImage& picture, const QRectF& box)
{
    // Of 255, between neighbours; noise and a gradual light stay below.
    constexpr int edge = 14;
    constexpr double fewEdges = 0.02;
    const QRect area = QRectF(box.x() * picture.width(), box.y() * picture.height(), box.width() * picture.width(),
                              box.height() * picture.height())
                           .toAlignedRect() &
                       picture.rect().adjusted(0, 0, -1, -1);
    if (area.isEmpty()) {
        return false;
    }
    qint64 edges = 0;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            const QRgb here = picture.pixel(x, y);
            const QRgb right = picture.pixel(x + 1, y);
            const QRgb below = picture.pixel(x, y + 1);
            const auto differs = [here](QRgb other) {
                return std::abs(qRed(here) - qRed(other)) > edge || std::abs(qGreen(here) - qGreen(other)) > edge ||
                       std::abs(qBlue(here) - qBlue(other)) > edge;
            };
            edges += differs(right) || differs(below) ? 1 : 0;
        }
    }
    return static_cast<double>(edges) < fewEdges * area.width() * area.height();
}
