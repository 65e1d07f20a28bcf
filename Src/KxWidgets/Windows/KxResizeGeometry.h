#pragma once

#include <KxCore/KxExport.h>

#include <QRect>
#include <QSize>
#include <Qt>

#include <array>

/// Arithmetic for resizing a window without a frame at its edges. Pure; logical pixels.
namespace KxResizeGeometry
{
/// Widths of the strips along the edges and, wider, at the corners.
inline constexpr int EdgePx = 5;
inline constexpr int CornerPx = 12;

inline constexpr std::array<Qt::Edges, 4> Corners{Qt::LeftEdge | Qt::TopEdge, Qt::RightEdge | Qt::TopEdge,
                                                  Qt::LeftEdge | Qt::BottomEdge, Qt::RightEdge | Qt::BottomEdge};

/// The edges that a press at `position` in a window of size `size` drags; none in the middle and outside.
KXWIDGETS_API Qt::Edges EdgesAt(const QPoint& position, const QSize& size);

/// The rectangle in a window of size `size` in which a press drags `edges` (one edge, or two that meet). Rectangles of
/// corners overlap those of edges and take precedence.
KXWIDGETS_API QRect AreaOf(Qt::Edges edges, const QSize& size);

/// The part of a window of size `size` that is at most `thicknessPx` away from all of `edges`.
KXWIDGETS_API QRect Strip(Qt::Edges edges, const QSize& size, int thicknessPx);

KXWIDGETS_API Qt::CursorShape CursorFor(Qt::Edges edges);

/// `start` with `edges` moved by `delta`. The opposite edges do not move, even if a size limit is reached.
KXWIDGETS_API QRect Resized(const QRect& start, Qt::Edges edges, const QPoint& delta, const QSize& smallest,
                            const QSize& largest);
} // namespace KxResizeGeometry
