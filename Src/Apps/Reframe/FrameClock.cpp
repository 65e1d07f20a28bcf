#include <Apps/Reframe/FrameClock.h>

#include <cmath>

QString FrameClock::Text(qint64 frame, const KxRational& frameRate)
{
    const double rate = frameRate.IsPositive() ? frameRate.ToDouble() : 1.0;
    const qint64 milliseconds = std::llround(static_cast<double>(frame) * 1000.0 / rate);
    const QLatin1Char zero('0');
    return QStringLiteral("%1:%2:%3.%4")
        .arg(milliseconds / 3600000, 2, 10, zero)
        .arg(milliseconds / 60000 % 60, 2, 10, zero)
        .arg(milliseconds / 1000 % 60, 2, 10, zero)
        .arg(milliseconds % 1000, 3, 10, zero);
}
