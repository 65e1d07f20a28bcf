#pragma once

#include <QColor>
#include <QIcon>
#include <QRectF>
#include <QString>

class QPainter;

/// The icons of the family: drawings of lines on a grid of 16, tinted when they are painted. User-interface thread.
namespace KxGlyph
{
enum class State { Normal, Hover, Pressed, Disabled, Checked };

bool Exists(const QString& name);

/// Fills the largest square in the middle of `area`; nothing for a name that does not exist.
void Paint(QPainter& painter, const QString& name, const QRectF& area, State state);
void Paint(QPainter& painter, const QString& name, const QRectF& area, const QColor& colour);

/// Null for a name that does not exist.
QIcon Icon(const QString& name);
} // namespace KxGlyph
