#include <Apps/Reframe/DrawnCrop.h>

#include <QRegion>

QRectF DrawnCrop::Area(const QRectF& area, const QRectF& crop)
{
    return {area.x() + crop.x() * area.width(), area.y() + crop.y() * area.height(), crop.width() * area.width(),
            crop.height() * area.height()};
}

void DrawnCrop::Draw(QPainter& painter, const QRect& area, const QRectF& crop)
{
    const QColor dimmed(0, 0, 0, 142);
    const QRectF kept = Area(area, crop);
    QRegion outside(area);
    outside -= kept.toAlignedRect();
    for (const QRect& part : outside) {
        painter.fillRect(part, dimmed);
    }
    painter.setPen(QPen(QColor(accent), 2.0));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(kept.adjusted(1.0, 1.0, -1.0, -1.0));
}
