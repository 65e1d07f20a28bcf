#include <KxWidgets/Windows/KxWindowCorners.h>

#include <KxWidgets/Style/KxTheme.h>
#include <KxWidgets/Windows/KxResizeGeometry.h>

#include <QPainter>
#include <QPainterPath>
#include <QWidget>

namespace
{

class CornerPiece : public QWidget
{
public:
    explicit CornerPiece(QWidget* window)
        : QWidget(window)
    {
        setAttribute(Qt::WA_TransparentForMouseEvents);
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        const QRectF frame = QRectF(window()->rect()).translated(-pos());
        QPainterPath inside;
        inside.addRoundedRect(frame, KxTheme::WindowRadiusPx, KxTheme::WindowRadiusPx);
        QPainterPath outside;
        outside.addRect(rect());
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setCompositionMode(QPainter::CompositionMode_DestinationOut);
        painter.fillPath(outside - inside, Qt::black);
        painter.setCompositionMode(QPainter::CompositionMode_SourceAtop);
        painter.setPen(KxUIStyle::Colour(KxUIStyle::Role::FieldLine));
        painter.drawRoundedRect(frame.adjusted(0.5, 0.5, -0.5, -0.5), KxTheme::WindowRadiusPx - 0.5,
                                KxTheme::WindowRadiusPx - 0.5);
    }
};

} // namespace

KxWindowCorners::KxWindowCorners(QWidget* window)
    : KxWindowPieces(window)
{
    for (const Qt::Edges corner : KxResizeGeometry::Corners) {
        Add(new CornerPiece(window),
            [corner](const QSize& size) { return KxResizeGeometry::Strip(corner, size, KxTheme::WindowRadiusPx); });
    }
}

KxWindowCorners::~KxWindowCorners() = default;
