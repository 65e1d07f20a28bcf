#pragma once

#include <QColor>
#include <QPalette>

/// Colours of the slider's marks for shots, which stand out from it (3:1 and more) in dark and in light windows.
namespace KrMarkColours
{
inline QColor Of(const QPalette& palette, const QColor& inDark, const QColor& inLight)
{
    // A style sheet can make the window's own colour transparent, which reads as black.
    constexpr int middle = 128;
    return palette.color(QPalette::WindowText).lightness() > middle ? inDark : inLight;
}

inline QColor Shot(const QPalette& palette)
{
    return Of(palette, QColor(150, 156, 166), QColor(111, 118, 130));
}

inline QColor Doubt(const QPalette& palette)
{
    return Of(palette, QColor(255, 174, 52), QColor(143, 91, 0));
}

/// Of what was lost.
inline QColor Loss(const QPalette& palette)
{
    return Of(palette, QColor(255, 139, 122), QColor(179, 38, 30));
}
} // namespace KrMarkColours
