#pragma once

#include <KxCore/KxExport.h>

#include <QRect>
#include <QSize>
#include <Qt>

/// Where a window without a frame is taken to be resized, and what becomes of its place. Pure; logical pixels.
namespace KxResizeGeometry
{
/// The strips that belong to the edges and, wider, to the corners.
inline constexpr int EdgePx = 5;
inline constexpr int CornerPx = 12;

/// The edges that a press at `position` inside a window of `size` takes; none in the middle and outside.
KXWIDGETS_API Qt::Edges EdgesAt(const QPoint& position, const QSize& size);

/// The area in a window of `size` that takes exactly `edges` (one edge, or two that meet) by a rectangle; the corners'
/// rectangles lie over those of the edges.
KXWIDGETS_API QRect AreaOf(Qt::Edges edges, const QSize& size);

KXWIDGETS_API Qt::CursorShape CursorFor(Qt::Edges edges);

/// `start` with `edges` moved by `delta`; the opposite edges stay where they are when a limit is met.
KXWIDGETS_API QRect Resized(const QRect& start, Qt::Edges edges, const QPoint& delta, const QSize& smallest,
                            const QSize& largest);
} // namespace KxResizeGeometry
