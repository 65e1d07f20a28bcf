#include <KxWidgets/Windows/KxWindowPieces.h>

#include <QEvent>
#include <QWidget>

KxWindowPieces::KxWindowPieces(QWidget* window)
    : QObject(window)
    , m_window(window)
{
    window->installEventFilter(this);
}

KxWindowPieces::~KxWindowPieces() = default;

void KxWindowPieces::Add(QWidget* piece, Area area)
{
    m_pieces.append({piece, std::move(area)});
    Place();
}

void KxWindowPieces::SetActive(bool active)
{
    m_active = active;
    Place();
}

bool KxWindowPieces::eventFilter(QObject* watched, QEvent* event)
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

void KxWindowPieces::Place()
{
    const bool shown = m_active && (m_window->windowState() & (Qt::WindowMaximized | Qt::WindowFullScreen)) == 0;
    for (const Piece& piece : qAsConst(m_pieces)) {
        piece.widget->setGeometry(piece.area(m_window->size()));
        piece.widget->setVisible(shown);
        piece.widget->raise();
    }
}
