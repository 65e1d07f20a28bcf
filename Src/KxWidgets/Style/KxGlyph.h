#pragma once

#include <QColor>
#include <QIcon>
#include <QRectF>
#include <QString>

class QPainter;

/// The style's icons: line drawings on a grid of 16, tinted when they are painted. User-interface thread.
namespace KxGlyph
{
enum class State { Normal, Hover, Pressed, Disabled, Checked };

bool Exists(const QString& name);

/// Fills the largest square in the middle of `area`. Paints nothing for an unknown name.
void Paint(QPainter& painter, const QString& name, const QRectF& area, State state);
void Paint(QPainter& painter, const QString& name, const QRectF& area, const QColor& colour);

/// Null for an unknown name.
QIcon Icon(const QString& name);
} // namespace KxGlyph
