#include <KxWidgets/Windows/KxResizeGrips.h>

#include <KxWidgets/Windows/KxResizeGeometry.h>

#include <QMouseEvent>
#include <QWidget>
#include <QWindow>

#include <optional>

namespace
{

class Grip : public QWidget
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

} // namespace

KxResizeGrips::KxResizeGrips(QWidget* window)
    : KxWindowPieces(window)
{
    SetActive(false);
    const auto add = [this, window](Qt::Edges edges) {
        Add(new Grip(window, edges), [edges](const QSize& size) { return KxResizeGeometry::AreaOf(edges, size); });
    };
    for (const Qt::Edge edge : {Qt::LeftEdge, Qt::RightEdge, Qt::TopEdge, Qt::BottomEdge}) {
        add(edge);
    }
    for (const Qt::Edges corner : KxResizeGeometry::Corners) {
        add(corner);
    }
}

KxResizeGrips::~KxResizeGrips() = default;
