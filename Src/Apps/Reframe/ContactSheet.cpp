#include <Apps/Reframe/ContactSheet.h>

#include <Apps/Reframe/DrawnCrop.h>
#include <KxMedia/Picture/KxPictureScaler.h>
#include <KxMedia/Read/KxVideoReader.h>

#include <QPainter>

namespace
{

constexpr int Columns = 4;
constexpr int MostCells = 12;
constexpr int CellLongSidePx = 400;
constexpr int GapPx = 12;
constexpr int BarPx = 4;

const QColor Background(0x1B, 0x1D, 0x21);
const QColor BarColor(0x3A, 0x3E, 0x46);
const QColor Accent(DrawnCrop::Accent);

void DrawCell(QPainter& painter, const QRect& cell, const QImage& image, const QRectF& crop, double position)
{
    painter.drawImage(cell.topLeft(), image);
    DrawnCrop::Draw(painter, cell, crop);

    const QRect bar(cell.x(), cell.bottom() + 1 + BarPx, cell.width(), BarPx);
    painter.fillRect(bar, BarColor);
    painter.fillRect(QRect(bar.topLeft(), QSize(qMax(1, qRound(bar.width() * position)), BarPx)), Accent);
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
    const QSize cell = source.scaled(CellLongSidePx, CellLongSidePx, Qt::KeepAspectRatio).expandedTo(QSize(2, 2));
    const int cells = qMin(MostCells, crops.size());
    const int rows = (cells + Columns - 1) / Columns;
    const int stepX = cell.width() + GapPx;
    const int stepY = cell.height() + 2 * BarPx + GapPx;
    QImage sheet(qMin(cells, Columns) * stepX + GapPx, rows * stepY + GapPx, QImage::Format_RGB32);
    sheet.fill(Background);

    QPainter painter(&sheet);
    KxPictureScaler scaler;
    for (int i = 0; i < cells; ++i) {
        // The centres of equal parts: a first or last frame is often black.
        const int frame = static_cast<int>((2LL * i + 1) * crops.size() / (2 * cells));
        KxVideoFrame picture;
        const KxReadStatus status = (*reader)->Read(frame, picture);
        if (status == KxReadStatus::Cancelled) {
            return KxResult<QImage>::Failure(QStringLiteral("Interrupted."));
        }
        if (status != KxReadStatus::Delivered) {
            break;
        }
        const QPoint corner(GapPx + (i % Columns) * stepX, GapPx + (i / Columns) * stepY);
        DrawCell(painter, QRect(corner, cell), scaler.Scale(picture, cell, QImage::Format_RGB32),
                 crops.at(frame).cropRect(), (frame + 0.5) / crops.size());
    }
    painter.end();
    return sheet;
}
