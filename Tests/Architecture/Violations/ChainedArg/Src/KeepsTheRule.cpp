#include <QString>

QString Clock(int minutes, int seconds)
{
    return QStringLiteral("%1:%2").arg(minutes, 2, 10, QLatin1Char('0')).arg(seconds, 2, 10, QLatin1Char('0'));
}

QString Described(const QString& name, const QString& reason)
{
    return QStringLiteral("Cannot open %1: %2.").arg(name, QStringLiteral("because of %1").arg(reason));
}
