#pragma once

#include <KxCore/KxExport.h>

#include <QRectF>
#include <QSize>

/// Arithmetic of crop rectangles, whose sides are fractions of an upright picture: preview, export and reports cut the
/// same window because all of them compute it here. Pure; any thread.
namespace KxCropWindow
{
/// Whether there is anything to cut out: all numbers are finite, width and height are positive.
KXCORE_API bool IsUsable(const QRectF& crop);

/// `crop` inside the picture: a side that is longer than the picture's is shortened, then the rectangle is moved. The
/// whole picture for a crop that is not usable.
KXCORE_API QRectF Inside(const QRectF& crop);

/// The largest window with the shape of `aspect` in the middle of a picture of size `picture`. Neither is empty.
KXCORE_API QRectF Central(const QSizeF& picture, const QSizeF& aspect);

/// The pixels of `crop` in a picture of size `picture`: inside the picture, at least one pixel each way, in steps of
/// 1/4096 pixel. Fractions come with rounding errors; without the steps, a crop of whole pixels would be resampled.
KXCORE_API QRectF Pixels(const QRectF& crop, const QSize& picture);

/// Whether `crop`, in a picture of size `picture`, has the shape of `target`, as far as whole even pixels allow.
/// Neither size is empty.
KXCORE_API bool HasShapeOf(const QSizeF& target, const QRectF& crop, const QSize& picture);

/// Where `crop` lies if the picture fills `area`.
KXCORE_API QRectF MappedTo(const QRectF& area, const QRectF& crop);
} // namespace KxCropWindow
