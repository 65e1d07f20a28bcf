#pragma once

#include <QString>

/// Times as people read them. Header-only, so that the module needs no library of the host for it. Times are 0 or more.
namespace KxTimeText
{
/// `number` with leading zeros: Padded(7, 2) is "07". A longer number keeps all of its digits.
inline QString Padded(qint64 number, int digits)
{
    return QStringLiteral("%1").arg(number, digits, 10, QLatin1Char('0'));
}

/// "01:02:03"; from 100 hours on the hours have three digits.
inline QString HoursMinutesSeconds(qint64 seconds)
{
    return QStringLiteral("%1:%2:%3")
        .arg(Padded(seconds / 3600, 2), Padded(seconds / 60 % 60, 2), Padded(seconds % 60, 2));
}

/// "62:03"; the minutes go on above 59.
inline QString MinutesSeconds(qint64 seconds)
{
    return QStringLiteral("%1:%2").arg(QString::number(seconds / 60), Padded(seconds % 60, 2));
}

/// The length of a video: "02:03" below an hour, otherwise "1:02:03".
inline QString Length(qint64 seconds)
{
    const QString rest = QStringLiteral("%1:%2").arg(Padded(seconds / 60 % 60, 2), Padded(seconds % 60, 2));
    return seconds < 3600 ? rest : QStringLiteral("%1:%2").arg(QString::number(seconds / 3600), rest);
}
} // namespace KxTimeText
