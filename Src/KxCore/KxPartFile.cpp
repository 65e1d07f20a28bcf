#include <KxCore/KxPartFile.h>

#include <QDir>
#include <QRandomGenerator>

QString KxPartFile::RandomPath(const QString& folder)
{
    const QLatin1String letters("abcdefghijklmnopqrstuvwxyz0123456789");
    constexpr int length = 6;
    QString name;
    for (int i = 0; i < length; ++i) {
        name += letters.at(QRandomGenerator::global()->bounded(letters.size()));
    }
    return QDir(folder).filePath(QStringLiteral(".auto-reframe-%1.part").arg(name));
}

QStringList KxPartFile::PartsIn(const QString& folder)
{
    const QDir parts(folder);
    QStringList paths;
    const QStringList names =
        parts.entryList({QStringLiteral(".auto-reframe-*.part")}, QDir::Files | QDir::Hidden | QDir::NoSymLinks);
    for (const QString& name : names) {
        paths += parts.filePath(name);
    }
    return paths;
}
