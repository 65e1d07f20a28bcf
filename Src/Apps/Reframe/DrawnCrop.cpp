#include <Apps/Reframe/DrawnCrop.h>

#include <KxCore/KxCropWindow.h>

#include <QRegion>

void DrawnCrop::Draw(QPainter& painter, const QRect& area, const QRectF& crop)
{
    const QColor dimmed(0, 0, 0, 142);
    const QRectF kept = KxCropWindow::MappedTo(area, crop);
    QRegion outside(area);
    outside -= kept.toAlignedRect();
    for (const QRect& part : outside) {
        painter.fillRect(part, dimmed);
    }
    painter.setPen(QPen(QColor(Accent), 2.0));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(kept.adjusted(1.0, 1.0, -1.0, -1.0));
}
