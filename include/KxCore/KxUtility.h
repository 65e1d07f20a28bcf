#pragma once

#include <KxCore/KxExport.h>

#include <QRect>
#include <QSize>

/// Small calculations. Pure; any thread.
namespace KxUtility
{
/// The largest rectangle of the aspect ratio `ratio` that fits into `rect`, centred. Sides are rounded down, so it is
/// inside `rect`; if the margins cannot be equal, the right or bottom one is a pixel wider. Empty if one of the two is
/// empty.
KXCORE_API QRect getFitCentralWindowRectByRatio(const QRect& rect, const QSize& ratio);
} // namespace KxUtility
