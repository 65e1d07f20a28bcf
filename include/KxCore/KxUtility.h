#pragma once

#include <KxCore/KxExport.h>

#include <QRect>
#include <QSize>

/// Small calculations that the host's parts share. Pure; any thread.
namespace KxUtility
{
/// The largest rectangle of the aspect ratio of `ratio` that fits into `rect`, in its middle. Sides are rounded down,
/// so it never leaves `rect`; an odd pixel of the room around it goes to the right or the bottom. Empty when one of the
/// two is empty.
KXCORE_API QRect getFitCentralWindowRectByRatio(const QRect& rect, const QSize& ratio);
} // namespace KxUtility
