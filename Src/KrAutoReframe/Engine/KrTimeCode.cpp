#include <KrAutoReframe/Engine/KrTimeCode.h>

#include <KxCore/KxTimeText.h>

QString KrTimeCode::ToText(int frame, float frameRate, Detail detail)
{
    const int wholeRate = static_cast<int>(frameRate);
    Q_ASSERT(wholeRate > 0);
    const int frames = frame % wholeRate;
    const int seconds = static_cast<int>(static_cast<float>(frame - frames) / frameRate);

    const QString text = KxTimeText::HoursMinutesSeconds(seconds);
    return detail == Detail::Seconds ? text : QStringLiteral("%1:%2").arg(text, KxTimeText::Padded(frames, 2));
}
