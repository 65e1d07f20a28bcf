#pragma once

#include <KxWidgets/KxUIStyle.h>

#include <QPalette>

/// Sizes, fonts and colours shared by the style sheet, the palette and the widgets that paint themselves.
namespace KxTheme
{
inline constexpr int ControlRadiusPx = 6;
inline constexpr int WindowRadiusPx = 8;
inline constexpr int TitleBarHeightPx = 40;

/// Of the colours from now on.
void SetScheme(KxUIStyle::Scheme scheme);

/// The program's style sheet, with the placeholders for colours and font families replaced.
QString StyleSheet();

QPalette Palette();

QFont Font();
} // namespace KxTheme
