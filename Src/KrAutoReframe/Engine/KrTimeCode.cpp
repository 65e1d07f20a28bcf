#include <KrAutoReframe/Engine/KrTimeCode.h>

#include <QStringList>

namespace
{

QString TwoDigits(int number)
{
    return (number < 10 ? QStringLiteral("0%1") : QStringLiteral("%1")).arg(number);
}

} // namespace

QString KrTimeCode::ToText(int frame, float frameRate, Detail detail)
{
    const int wholeRate = static_cast<int>(frameRate);
    Q_ASSERT(wholeRate > 0);
    const int frames = frame % wholeRate;
    const int seconds = static_cast<int>(static_cast<float>(frame - frames) / frameRate);

    QStringList parts{TwoDigits(seconds / 3600), TwoDigits(seconds / 60 % 60), TwoDigits(seconds % 60)};
    if (detail == Detail::Frames) {
        parts.append(TwoDigits(frames));
    }
    return parts.join(QLatin1Char(':'));
}
