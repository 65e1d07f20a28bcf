#pragma once

#include <QPainter>
#include <QRectF>

/// How every picture of this program shows a crop. Any thread.
namespace DrawnCrop
{
constexpr QRgb accent = 0xFF55E5C5;

/// Dims what lies outside of `crop` (fractions of a picture that fills `area`) and outlines it.
void Draw(QPainter& painter, const QRect& area, const QRectF& crop);
} // namespace DrawnCrop
