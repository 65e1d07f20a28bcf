#pragma once

#include <QPainter>
#include <QRectF>

/// How every picture of this program shows a crop. Any thread.
namespace DrawnCrop
{
constexpr QRgb accent = 0xFF55E5C5;

/// Where `crop` (fractions of a picture) lies when the picture fills `area`, pixels.
QRectF Area(const QRectF& area, const QRectF& crop);

/// Dims what lies outside of `crop` and outlines it.
void Draw(QPainter& painter, const QRect& area, const QRectF& crop);
} // namespace DrawnCrop
