#pragma once

#include <KxCore/KxExport.h>
#include <KxCore/KxRational.h>

#include <QString>
#include <QtGlobal>

/// Conversions between frames (or audio samples) at a rational rate and microseconds. The arithmetic is exact: products
/// have 128 bits, and only the result is rounded. A result that 64 bits cannot hold becomes the nearest value that they
/// can. Pure; any thread.
namespace KxFrameTime
{
enum class Rounding {
    Down,    ///< towards minus infinity
    Nearest, ///< halves away from zero
    Up,      ///< towards plus infinity
};

/// `value` * `numerator` / `denominator`. `numerator` is at least 0, `denominator` positive.
KXCORE_API qint64 Rescale(qint64 value, qint64 numerator, qint64 denominator, Rounding rounding);

/// The time of `frame`, microseconds after frame 0. `rate` is positive, in frames a second; for samples it is
/// {sample rate, 1}. FromMicroseconds() gives the same frame again if one of the two rounds up and the other down, or
/// if FromMicroseconds() rounds to the nearest.
KXCORE_API qint64 ToMicroseconds(qint64 frame, const KxRational& rate, Rounding rounding);
/// With Rounding::Down, the frame that is shown at `timeUs`.
KXCORE_API qint64 FromMicroseconds(qint64 timeUs, const KxRational& rate, Rounding rounding);

/// The time of `frame` (0 or more) to the nearest millisecond: "00:01:02.040". An unknown rate counts as one frame a
/// second.
KXCORE_API QString Text(qint64 frame, const KxRational& rate);
/// The length of `frames` frames, at least a second: "00:42", "1:03:17". Empty when the rate is unknown.
KXCORE_API QString LengthText(qint64 frames, const KxRational& rate);
} // namespace KxFrameTime
