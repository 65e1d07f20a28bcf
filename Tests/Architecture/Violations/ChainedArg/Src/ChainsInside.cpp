#include <QDir>

QString Numbered(const QDir& folder, const QString& name, int number)
{
    return folder.filePath(QStringLiteral("%1 (%2)").arg(name).arg(number));
}
