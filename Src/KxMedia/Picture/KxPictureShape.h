#pragma once

#include <KxMedia/Picture/KxVideoFrame.h>

#include <KxCore/KxRational.h>

#include <array>
#include <cstdint>

/// The orientation given by a container's 3 x 3 display matrix, to the nearest quarter turn: x' = (x m[0] + y m[3]) and
/// y' = (x m[1] + y m[4]), y downwards. Pure arithmetic.
KXMEDIA_API KxVideoFrame::Orientation KxOrientationOf(const std::array<std::int32_t, 9>& matrix);

/// The upright size with square pixels: the coded height is kept and the width is stretched by `pixelShape` (width :
/// height of a pixel; a shape that is unknown or outside 1:8 to 8:1 counts as square), then turned.
KXMEDIA_API QSize KxDisplayedSize(const QSize& coded, const KxRational& pixelShape,
                                  const KxVideoFrame::Orientation& orientation);
