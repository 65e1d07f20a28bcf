#pragma once

#include <QString>

namespace TimeLeft
{
/// How long a stage still takes that came to `progress` ten-thousandths in `elapsedMs`, for the end of a progress line:
/// ", 12 s left", ", 3 min 5 s left". Empty while an estimate would be a guess. Pure.
QString Text(qint64 elapsedMs, int progress);
} // namespace TimeLeft
