#include "KxResizeGrips.h"

#include "KxResizeGeometry.h"

#include <QEvent>
#include <QMouseEvent>
#include <QWidget>
#include <QWindow>

#include <optional>

namespace
{

constexpr Qt::Edges None{};

} // namespace

class KxResizeGrips::Grip : public QWidget
{
public:
    Grip(QWidget* window, Qt::Edges edges)
        : QWidget(window)
        , m_edges(edges)
    {
        setObjectName(QStringLiteral("KxResizeGrip"));
        setProperty("edges", static_cast<int>(edges));
        setCursor(KxResizeGeometry::CursorFor(edges));
    }

    Qt::Edges Edges() const { return m_edges; }

protected:
    void mousePressEvent(QMouseEvent* event) override
    {
        if (event->button() != Qt::LeftButton) {
            return;
        }
        QWindow* handle = window()->windowHandle();
        if (handle != nullptr && handle->startSystemResize(m_edges)) {
            return;
        }
        m_pressedAt = event->globalPos();
        m_start = window()->geometry();
    }

    void mouseMoveEvent(QMouseEvent* event) override
    {
        if (!m_pressedAt) {
            return;
        }
        const QSize smallest = window()->minimumSizeHint().expandedTo(window()->minimumSize());
        window()->setGeometry(KxResizeGeometry::Resized(m_start, m_edges, event->globalPos() - *m_pressedAt, smallest,
                                                        window()->maximumSize()));
    }

    void mouseReleaseEvent(QMouseEvent* /*event*/) override { m_pressedAt.reset(); }

private:
    const Qt::Edges m_edges;
    std::optional<QPoint> m_pressedAt;
    QRect m_start;
};

KxResizeGrips::KxResizeGrips(QWidget* window)
    : QObject(window)
    , m_window(window)
{
    for (const Qt::Edges edges : {None | Qt::LeftEdge, None | Qt::RightEdge, None | Qt::TopEdge, None | Qt::BottomEdge,
                                  Qt::LeftEdge | Qt::TopEdge, Qt::RightEdge | Qt::TopEdge,
                                  Qt::LeftEdge | Qt::BottomEdge, Qt::RightEdge | Qt::BottomEdge}) {
        m_grips.append(new Grip(window, edges));
    }
    window->installEventFilter(this);
    Place();
}

KxResizeGrips::~KxResizeGrips() = default;

void KxResizeGrips::SetActive(bool active)
{
    m_active = active;
    Place();
}

bool KxResizeGrips::eventFilter(QObject* watched, QEvent* event)
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

void KxResizeGrips::Place()
{
    const bool shown = m_active && (m_window->windowState() & (Qt::WindowMaximized | Qt::WindowFullScreen)) == 0;
    for (Grip* grip : qAsConst(m_grips)) {
        grip->setGeometry(KxResizeGeometry::AreaOf(grip->Edges(), m_window->size()));
        grip->setVisible(shown);
        grip->raise();
    }
}
