#include <KxWidgets/Windows/KxFileFilter.h>

#include <QStringList>

QString KxFileFilter::ToQt(const QString& group)
{
    const int open = group.indexOf(QLatin1Char('('));
    const int close = group.lastIndexOf(QLatin1Char(')'));
    const QString name = group.left(open).trimmed();
    QStringList patterns;
    if (open >= 0 && close > open) {
        const QStringList written = group.mid(open + 1, close - open - 1).split(QLatin1Char(';'), Qt::SkipEmptyParts);
        for (const QString& pattern : written) {
            patterns += pattern.split(QLatin1Char(' '), Qt::SkipEmptyParts);
        }
    }
    if (patterns.isEmpty()) {
        patterns.append(QStringLiteral("*"));
    }
    return QStringLiteral("%1 (%2)").arg(name, patterns.join(QLatin1Char(' ')));
}
