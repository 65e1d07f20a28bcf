#include <KrAutoReframe/Extensions/KrSubjectBox.h>

#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace
{

constexpr QColor LineColour(255, 255, 255);
constexpr QColor EdgeColour(0, 0, 0, 170);
constexpr int HandlePx = 8;
constexpr int GrabPx = 7;
constexpr double LeastSide = 0.01;
constexpr double SoughtRadiusPx = 18.0;
constexpr Qt::Edges WholeBox = Qt::LeftEdge | Qt::TopEdge | Qt::RightEdge | Qt::BottomEdge;

bool IsNear(double a, double b)
{
    return std::abs(a - b) <= GrabPx;
}

} // namespace

KrSubjectBox::KrSubjectBox(QWidget* overlay)
    : QWidget(overlay)
{
    setObjectName(QStringLiteral("KrAutoReframe_subjectBox"));
    setMouseTracking(true);
    hide();
}

KrSubjectBox::~KrSubjectBox() = default;

void KrSubjectBox::SetBox(const QRectF& box)
{
    m_box = box & QRectF(0.0, 0.0, 1.0, 1.0);
    ShowOrHide();
}

void KrSubjectBox::SetSought(const std::optional<QPointF>& place)
{
    m_sought = place;
    if (m_sought) {
        setCursor(Qt::BusyCursor);
    } else {
        unsetCursor();
    }
    ShowOrHide();
}

void KrSubjectBox::ShowOrHide()
{
    setVisible(!m_box.isEmpty() || m_sought);
    update();
}

bool KrSubjectBox::IsInBox(const QPoint& position) const
{
    return EdgesAt(position) != Qt::Edges();
}

QPointF KrSubjectBox::FractionAt(const QPoint& position) const
{
    const auto share = [](int place, int extent) {
        return extent > 0 ? std::max(0.0, std::min(static_cast<double>(place) / extent, 1.0)) : 0.0;
    };
    return {share(position.x(), width()), share(position.y(), height())};
}

QRectF KrSubjectBox::BoxPixels() const
{
    return {m_box.x() * width(), m_box.y() * height(), m_box.width() * width(), m_box.height() * height()};
}

Qt::Edges KrSubjectBox::EdgesAt(const QPoint& position) const
{
    const QRectF box = BoxPixels();
    if (m_box.isEmpty() || !box.adjusted(-GrabPx, -GrabPx, GrabPx, GrabPx).contains(position)) {
        return {};
    }
    Qt::Edges edges;
    edges.setFlag(Qt::LeftEdge, IsNear(position.x(), box.left()));
    edges.setFlag(Qt::RightEdge, !edges.testFlag(Qt::LeftEdge) && IsNear(position.x(), box.right()));
    edges.setFlag(Qt::TopEdge, IsNear(position.y(), box.top()));
    edges.setFlag(Qt::BottomEdge, !edges.testFlag(Qt::TopEdge) && IsNear(position.y(), box.bottom()));
    return edges == Qt::Edges() ? WholeBox : edges;
}

void KrSubjectBox::ShowCursor(const QPoint& position)
{
    const Qt::Edges edges = EdgesAt(position);
    if (m_sought) {
        setCursor(Qt::BusyCursor);
    } else if (edges == Qt::Edges()) {
        unsetCursor();
    } else if (edges == WholeBox) {
        setCursor(Qt::SizeAllCursor);
    } else if (edges == (Qt::LeftEdge | Qt::TopEdge) || edges == (Qt::RightEdge | Qt::BottomEdge)) {
        setCursor(Qt::SizeFDiagCursor);
    } else if (edges == (Qt::RightEdge | Qt::TopEdge) || edges == (Qt::LeftEdge | Qt::BottomEdge)) {
        setCursor(Qt::SizeBDiagCursor);
    } else {
        setCursor(edges & (Qt::LeftEdge | Qt::RightEdge) ? Qt::SizeHorCursor : Qt::SizeVerCursor);
    }
}

void KrSubjectBox::mousePressEvent(QMouseEvent* event)
{
    m_held = event->button() == Qt::LeftButton ? EdgesAt(event->pos()) : Qt::Edges();
    if (m_held == Qt::Edges()) {
        event->ignore();
        return;
    }
    m_boxAtPress = m_box;
    m_pressedAt = event->localPos();
}

void KrSubjectBox::mouseMoveEvent(QMouseEvent* event)
{
    if (m_held == Qt::Edges()) {
        ShowCursor(event->pos());
        event->ignore();
        return;
    }
    const QPointF moved = event->localPos() - m_pressedAt;
    const double dx = moved.x() / std::max(width(), 1);
    const double dy = moved.y() / std::max(height(), 1);
    QRectF box = m_boxAtPress;
    if (m_held == WholeBox) {
        box.moveTo(std::max(0.0, std::min(box.x() + dx, 1.0 - box.width())),
                   std::max(0.0, std::min(box.y() + dy, 1.0 - box.height())));
        SetBox(box);
        return;
    }
    if (m_held & Qt::LeftEdge) {
        box.setLeft(std::min(box.left() + dx, box.right() - LeastSide));
    }
    if (m_held & Qt::RightEdge) {
        box.setRight(std::max(box.right() + dx, box.left() + LeastSide));
    }
    if (m_held & Qt::TopEdge) {
        box.setTop(std::min(box.top() + dy, box.bottom() - LeastSide));
    }
    if (m_held & Qt::BottomEdge) {
        box.setBottom(std::max(box.bottom() + dy, box.top() + LeastSide));
    }
    SetBox(box);
}

void KrSubjectBox::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton || m_held == Qt::Edges()) {
        event->ignore();
        return;
    }
    m_held = {};
    ShowCursor(event->pos());
    if (m_box != m_boxAtPress) {
        Q_EMIT sigAdjusted();
    }
}

void KrSubjectBox::paintEvent(QPaintEvent*)
{
    if (m_sought) {
        PaintSought();
    }
    if (!m_box.isEmpty()) {
        PaintBox();
    }
}

void KrSubjectBox::PaintSought()
{
    const QPointF place(m_sought->x() * width(), m_sought->y() * height());
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(EdgeColour, 5));
    painter.drawEllipse(place, SoughtRadiusPx, SoughtRadiusPx);
    painter.setPen(QPen(LineColour, 2, Qt::DotLine));
    painter.drawEllipse(place, SoughtRadiusPx, SoughtRadiusPx);
}

void KrSubjectBox::PaintBox()
{
    const QRectF box = BoxPixels().adjusted(0.5, 0.5, -0.5, -0.5);
    QPainter painter(this);
    painter.setPen(QPen(EdgeColour, 3));
    painter.drawRect(box);
    painter.setPen(QPen(LineColour, 1, Qt::DashLine));
    painter.drawRect(box);
    painter.setPen(QPen(EdgeColour, 1));
    painter.setBrush(LineColour);
    const double xs[] = {box.left(), box.center().x(), box.right()};
    const double ys[] = {box.top(), box.center().y(), box.bottom()};
    for (const double x : xs) {
        for (const double y : ys) {
            if (x != xs[1] || y != ys[1]) {
                painter.drawRect(QRectF(x - HandlePx / 2.0, y - HandlePx / 2.0, HandlePx, HandlePx));
            }
        }
    }
}
