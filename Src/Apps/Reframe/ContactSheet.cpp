#include <Apps/Reframe/ContactSheet.h>

#include <Apps/Reframe/DrawnCrop.h>
#include <KxMedia/Picture/KxPictureScaler.h>
#include <KxMedia/Read/KxVideoReader.h>

#include <QPainter>

namespace
{

constexpr int columns = 4;
constexpr int mostCells = 12;
constexpr int cellLongSidePx = 400;
constexpr int gapPx = 12;
constexpr int barPx = 4;

const QColor background(0x1B, 0x1D, 0x21);
const QColor barColor(0x3A, 0x3E, 0x46);
const QColor accent(DrawnCrop::accent);

void DrawCell(QPainter& painter, const QRect& cell, const QImage& image, const QRectF& crop, double position)
{
    painter.drawImage(cell.topLeft(), image);
    DrawnCrop::Draw(painter, cell, crop);

    const QRect bar(cell.x(), cell.bottom() + 1 + barPx, cell.width(), barPx);
    painter.fillRect(bar, barColor);
    painter.fillRect(QRect(bar.topLeft(), QSize(qMax(1, qRound(bar.width() * position)), barPx)), accent);
}

} // namespace

KxResult<QImage> ContactSheet::Draw(const QString& videoPath, const QList<IKxAutoReframeResult>& crops,
                                    const KxCancelToken& cancel)
{
    KxResult<std::unique_ptr<KxVideoReader>> reader = KxVideoReader::Open(videoPath, cancel);
    if (!reader) {
        return KxResult<QImage>::Failure(reader.Message());
    }
    const QSize source = (*reader)->Facts().video->resolution;
    const QSize cell = source.scaled(cellLongSidePx, cellLongSidePx, Qt::KeepAspectRatio).expandedTo(QSize(2, 2));
    const int cells = qMin(mostCells, crops.size());
    const int rows = (cells + columns - 1) / columns;
    const int stepX = cell.width() + gapPx;
    const int stepY = cell.height() + 2 * barPx + gapPx;
    QImage sheet(qMin(cells, columns) * stepX + gapPx, rows * stepY + gapPx, QImage::Format_RGB32);
    sheet.fill(background);

    QPainter painter(&sheet);
    KxPictureScaler scaler;
    for (int i = 0; i < cells; ++i) {
        // The middles of equal parts: neither a black first frame nor the last one.
        const int frame = static_cast<int>((2LL * i + 1) * crops.size() / (2 * cells));
        KxVideoFrame picture;
        const KxReadStatus status = (*reader)->Read(frame, picture);
        if (status == KxReadStatus::Cancelled) {
            return KxResult<QImage>::Failure(QStringLiteral("Interrupted."));
        }
        if (status != KxReadStatus::Delivered) {
            break;
        }
        const QPoint corner(gapPx + (i % columns) * stepX, gapPx + (i / columns) * stepY);
        DrawCell(painter, QRect(corner, cell), scaler.Scale(picture, cell, QImage::Format_RGB32),
                 crops.at(frame).cropRect(), (frame + 0.5) / crops.size());
    }
    painter.end();
    return sheet;
}
