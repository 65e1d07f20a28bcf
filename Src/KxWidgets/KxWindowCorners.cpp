#include "KxWindowCorners.h"

#include "KxTheme.h"

#include <QEvent>
#include <QPainter>
#include <QPainterPath>
#include <QWidget>

class KxWindowCorners::CornerPiece : public QWidget
{
public:
    CornerPiece(QWidget* window, Qt::Corner corner)
        : QWidget(window)
        , m_corner(corner)
    {
        setAttribute(Qt::WA_TransparentForMouseEvents);
    }

    void Place(const QSize& windowSize)
    {
        constexpr int side = KxTheme::WindowRadiusPx;
        const bool right = m_corner == Qt::TopRightCorner || m_corner == Qt::BottomRightCorner;
        const bool bottom = m_corner == Qt::BottomLeftCorner || m_corner == Qt::BottomRightCorner;
        setGeometry(right ? windowSize.width() - side : 0, bottom ? windowSize.height() - side : 0, side, side);
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

private:
    const Qt::Corner m_corner;
};

KxWindowCorners::KxWindowCorners(QWidget* window)
    : QObject(window)
    , m_window(window)
{
    for (const Qt::Corner corner :
         {Qt::TopLeftCorner, Qt::TopRightCorner, Qt::BottomLeftCorner, Qt::BottomRightCorner}) {
        m_pieces.append(new CornerPiece(window, corner));
    }
    window->installEventFilter(this);
    Place();
}

KxWindowCorners::~KxWindowCorners() = default;

bool KxWindowCorners::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::Resize:
    case QEvent::Show:
    case QEvent::WindowStateChange:
        Place();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void KxWindowCorners::Place()
{
    const bool shown = (m_window->windowState() & (Qt::WindowMaximized | Qt::WindowFullScreen)) == 0;
    for (CornerPiece* piece : qAsConst(m_pieces)) {
        piece->Place(m_window->size());
        piece->setVisible(shown);
        piece->raise();
    }
}
