#pragma once

#include <QPainter>
#include <QRectF>

/// Draws a crop, in the same way in every picture of this program. Any thread.
namespace DrawnCrop
{
constexpr QRgb Accent = 0xFF55E5C5;

/// Dims what lies outside of `crop` (fractions of a picture that fills `area`) and outlines it.
void Draw(QPainter& painter, const QRect& area, const QRectF& crop);
} // namespace DrawnCrop
