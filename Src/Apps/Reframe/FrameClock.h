#pragma once

#include <KxCore/KxRational.h>

#include <QString>

namespace FrameClock
{
/// When `frame` is shown, on the clock of the video, to the millisecond: "00:01:02.040". Pure; any thread.
QString Text(qint64 frame, const KxRational& frameRate);
} // namespace FrameClock
