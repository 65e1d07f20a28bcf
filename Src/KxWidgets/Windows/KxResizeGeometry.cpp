#include <KxWidgets/Windows/KxResizeGeometry.h>

#include <algorithm>

Qt::Edges KxResizeGeometry::EdgesAt(const QPoint& position, const QSize& size)
{
    if (!QRect(QPoint(), size).contains(position)) {
        return {};
    }
    const int right = size.width() - 1 - position.x();
    const int bottom = size.height() - 1 - position.y();
    const auto edgesWithin = [&](int reachPx) {
        Qt::Edges edges;
        edges.setFlag(Qt::LeftEdge, position.x() < reachPx);
        edges.setFlag(Qt::RightEdge, right < reachPx);
        edges.setFlag(Qt::TopEdge, position.y() < reachPx);
        edges.setFlag(Qt::BottomEdge, bottom < reachPx);
        return edges;
    };
    const Qt::Edges corner = edgesWithin(CornerPx);
    const bool acrossCorner = corner & (Qt::LeftEdge | Qt::RightEdge) && corner & (Qt::TopEdge | Qt::BottomEdge);
    return acrossCorner && edgesWithin(EdgePx) != Qt::Edges() ? corner : edgesWithin(EdgePx);
}

QRect KxResizeGeometry::AreaOf(Qt::Edges edges, const QSize& size)
{
    const bool isCorner = edges & (Qt::LeftEdge | Qt::RightEdge) && edges & (Qt::TopEdge | Qt::BottomEdge);
    return Strip(edges, size, isCorner ? CornerPx : EdgePx);
}

QRect KxResizeGeometry::Strip(Qt::Edges edges, const QSize& size, int thicknessPx)
{
    QRect area(QPoint(), size);
    if (edges & Qt::LeftEdge) {
        area.setWidth(thicknessPx);
    }
    if (edges & Qt::RightEdge) {
        area.setLeft(size.width() - thicknessPx);
    }
    if (edges & Qt::TopEdge) {
        area.setHeight(thicknessPx);
    }
    if (edges & Qt::BottomEdge) {
        area.setTop(size.height() - thicknessPx);
    }
    return area;
}

Qt::CursorShape KxResizeGeometry::CursorFor(Qt::Edges edges)
{
    if (edges == (Qt::LeftEdge | Qt::TopEdge) || edges == (Qt::RightEdge | Qt::BottomEdge)) {
        return Qt::SizeFDiagCursor;
    }
    if (edges == (Qt::RightEdge | Qt::TopEdge) || edges == (Qt::LeftEdge | Qt::BottomEdge)) {
        return Qt::SizeBDiagCursor;
    }
    if (edges & (Qt::LeftEdge | Qt::RightEdge)) {
        return Qt::SizeHorCursor;
    }
    return edges & (Qt::TopEdge | Qt::BottomEdge) ? Qt::SizeVerCursor : Qt::ArrowCursor;
}

QRect KxResizeGeometry::Resized(const QRect& start, Qt::Edges edges, const QPoint& delta, const QSize& smallest,
                                const QSize& largest)
{
    QSize size = start.size();
    if (edges & (Qt::LeftEdge | Qt::RightEdge)) {
        size.rwidth() += edges & Qt::LeftEdge ? -delta.x() : delta.x();
    }
    if (edges & (Qt::TopEdge | Qt::BottomEdge)) {
        size.rheight() += edges & Qt::TopEdge ? -delta.y() : delta.y();
    }
    size = size.boundedTo(largest).expandedTo(smallest);
    QRect result(start.topLeft(), size);
    if (edges & Qt::LeftEdge) {
        result.moveRight(start.right());
    }
    if (edges & Qt::TopEdge) {
        result.moveBottom(start.bottom());
    }
    return result;
}
