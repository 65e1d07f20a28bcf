#include <QFileInfo>

QString Numbered(const QFileInfo& info, int number)
{
    return QStringLiteral("%1 (%2)").arg(info.completeBaseName()).arg(number);
}
