#include <KxPlayer/KxPictureMaker.h>

#include <KxCore/KxCropWindow.h>
#include <KxPlayer/KxPicturePlace.h>

#include <QPainter>

#include <algorithm>

KxPictureMaker::KxPictureMaker(std::shared_ptr<const KxPlaySource> source, std::unique_ptr<KxVideoReader> reader)
    : m_source(std::move(source))
    , m_reader(std::move(reader))
    , m_fileClock(std::make_shared<const KxMediaClock>(m_reader->Clock()))
{
}

KxPictureMaker::~KxPictureMaker() = default;

KxResult<std::unique_ptr<KxPictureMaker>> KxPictureMaker::Open(std::shared_ptr<const KxPlaySource> source,
                                                               const KxCancelToken& cancel)
{
    KxResult<std::unique_ptr<KxVideoReader>> reader = KxVideoReader::Open(source->path, cancel);
    if (!reader) {
        return KxResult<std::unique_ptr<KxPictureMaker>>::Failure(reader.Message());
    }
    return std::unique_ptr<KxPictureMaker>(new KxPictureMaker(std::move(source), std::move(*reader)));
}

KxReadStatus KxPictureMaker::Make(int frame, const QSize& area, KxPlayerPicture& picture)
{
    KxVideoFrame decoded;
    const KxReadStatus status = m_reader->Read(frame, decoded);
    if (status != KxReadStatus::Delivered) {
        return status;
    }
    picture.frame = frame;
    picture.area = area;
    picture.fileClock = m_fileClock;
    picture.shape = m_source->ShapeAt(frame, decoded.DisplayedSize());
    const QSize size = KxPicturePlace::In(area, picture.shape).size().expandedTo(QSize(1, 1));
    const std::optional<QRectF> crop = m_source->CropAt(frame);
    const QSize displayed = decoded.DisplayedSize();
    picture.image = m_source->IsFittedAt(frame, displayed) ? Fitted(decoded, *crop, size)
                    : crop                                 ? Cut(decoded, *crop, size)
                                                           : Whole(decoded, size);
    return picture.image.isNull() ? KxReadStatus::Failed : KxReadStatus::Delivered;
}

QImage KxPictureMaker::Whole(const KxVideoFrame& decoded, const QSize& size)
{
    return m_scaler.Scale(decoded, size, QImage::Format_RGB32);
}

QImage KxPictureMaker::Fitted(const KxVideoFrame& decoded, const QRectF& crop, const QSize& size)
{
    const QSize even(size.width() + size.width() % 2, size.height() + size.height() % 2);
    if (m_fittedCutter == nullptr || m_fittedCutter->Size() != even) {
        m_fittedCutter = std::make_unique<KxFittedCutter>(even);
    }
    const KxResult<KxVideoFrame> fitted = m_fittedCutter->Cut(decoded, crop);
    return fitted ? Whole(*fitted, size) : QImage();
}

QImage KxPictureMaker::Cut(const KxVideoFrame& decoded, const QRectF& crop, const QSize& size)
{
    // First the whole picture is scaled, in good quality, until the crop has about the wanted size. It is never
    // enlarged, so that a small crop costs no more than a large one. Drawing it below applies the fractions of a pixel.
    const QSize displayed = decoded.DisplayedSize();
    const QRectF cropPx = KxCropWindow::Pixels(crop, displayed);
    const double scale = std::min(1.0, std::max(size.width() / cropPx.width(), size.height() / cropPx.height()));
    const QSize wholeSize = (QSizeF(displayed) * scale).toSize().expandedTo(QSize(1, 1));
    const QImage whole = Whole(decoded, wholeSize);
    if (whole.isNull()) {
        return whole;
    }
    QImage cut(size, QImage::Format_RGB32);
    if (cut.isNull()) {
        return cut;
    }
    QPainter painter(&cut);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const QTransform toWhole = QTransform::fromScale(static_cast<double>(wholeSize.width()) / displayed.width(),
                                                     static_cast<double>(wholeSize.height()) / displayed.height());
    painter.drawImage(QRectF(QPointF(0, 0), QSizeF(size)), whole, toWhole.mapRect(cropPx));
    return cut;
}
