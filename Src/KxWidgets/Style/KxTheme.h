#pragma once

#include <KxWidgets/KxUIStyle.h>

#include <QPalette>

/// What the style sheet, the palette and the widgets that paint themselves draw from.
namespace KxTheme
{
inline constexpr int ControlRadiusPx = 6;
inline constexpr int WindowRadiusPx = 8;
inline constexpr int TitleBarHeightPx = 40;

/// The whole program's style sheet, with colours and font families put in.
QString StyleSheet();

QPalette Palette();

QFont Font();
} // namespace KxTheme
