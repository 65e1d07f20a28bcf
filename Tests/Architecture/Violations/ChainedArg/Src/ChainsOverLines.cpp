#include <QString>

QString Described(const QString& name, const QString& reason)
{
    return QStringLiteral("Cannot open (%1): %2.")
        .arg(name.isEmpty() ? QStringLiteral("(none)") : name.trimmed())
        .arg(reason);
}
