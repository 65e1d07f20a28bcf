#include <Apps/Reframe/TimeLeft.h>

QString TimeLeft::Text(qint64 elapsedMs, int progress)
{
    constexpr qint64 enoughToJudgeMs = 1000;
    if (elapsedMs < enoughToJudgeMs || progress <= 0) {
        return {};
    }
    const qint64 seconds = (elapsedMs * (10000 - progress) / progress + 999) / 1000;
    return seconds < 60
               ? QStringLiteral(", %1 s left").arg(seconds)
               : QStringLiteral(", %1 min %2 s left").arg(QString::number(seconds / 60), QString::number(seconds % 60));
}
