#pragma once

#include <QRectF>
#include <QSizeF>

/// Where an edit point lies in another aspect ratio. Rectangles in fractions of the picture; pure.
namespace KrEditPlacement
{
/// `placed` itself if it has that size; otherwise a rectangle of that size around its centre, moved into the picture.
QRectF InSize(const QRectF& placed, const QSizeF& size);
} // namespace KrEditPlacement
