#pragma once

#include <QRect>
#include <QString>

class QPainter;

/// Error messages in place of a picture. User-interface thread.
namespace KxErrorText
{
/// Draws `text` in the middle of `area` with the painter's font, in the style's colour of errors: in a few lines, and
/// shortened in the middle if it needs more.
void Paint(QPainter& painter, const QRect& area, const QString& text);
} // namespace KxErrorText
