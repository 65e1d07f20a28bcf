#include <Apps/Reframe/TimeLeft.h>

#include <QCoreApplication>

namespace
{

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(TimeLeft)
};

} // namespace

QString TimeLeft::Text(qint64 elapsedMs, int progress)
{
    constexpr qint64 enoughToJudgeMs = 1000;
    if (elapsedMs < enoughToJudgeMs || progress <= 0) {
        return {};
    }
    const qint64 seconds = (elapsedMs * (10000 - progress) / progress + 999) / 1000;
    return seconds < 60
               ? Texts::tr(", %1 s left").arg(seconds)
               : Texts::tr(", %1 min %2 s left").arg(QString::number(seconds / 60), QString::number(seconds % 60));
}
