#include <KxCore/KxConfig.h>

#include <KxCore/KxConfigFile.h>
#include <KxCore/KxMachineFacts.h>

#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>
#include <QStorageInfo>

namespace
{

const QString ImportFolderKey = QStringLiteral("Import/Folder");

QString NearestExistingFolder(const QString& path)
{
    QString folder = QFileInfo(path).absoluteFilePath();
    while (!QFileInfo(folder).isDir()) {
        const QString parent = QFileInfo(folder).absolutePath();
        if (parent == folder) {
            break;
        }
        folder = parent;
    }
    return folder;
}

} // namespace

KxMachineFacts& KxMachineFacts::Replaced()
{
    static KxMachineFacts facts;
    return facts;
}

KxConfig& KxConfig::Instance()
{
    static KxConfig config;
    return config;
}

bool KxConfig::algorithmEnabled(int algorithm) const
{
    if (KxMachineFacts::Replaced().algorithmEnabled) {
        return KxMachineFacts::Replaced().algorithmEnabled(algorithm);
    }
    // The analysis runs on every machine that the program supports; the host knows no other algorithm.
    constexpr int autoReframe = 4;
    return algorithm == autoReframe;
}

QString KxConfig::getDefaultImportDir(const QString& fallback) const
{
    const QSettings settings(GetKorviConfigFile(), QSettings::IniFormat);
    const QString folder = settings.value(ImportFolderKey).toString();
    return !folder.isEmpty() && QFileInfo(folder).isDir() ? folder : fallback;
}

void KxConfig::setDefaultImportDir(const QString& folder)
{
    QSettings settings(GetKorviConfigFile(), QSettings::IniFormat);
    settings.setValue(ImportFolderKey, folder);
}

QString KxConfig::GetKorviConfigFile()
{
    return KxConfigFile::Path();
}

QString KxConfig::GetKorviOutputDirectory()
{
    const QString movies = QStandardPaths::writableLocation(QStandardPaths::MoviesLocation);
    return movies.isEmpty() ? QDir::homePath() : movies;
}

qint64 KxConfig::GetDiskFreeSpaceSize(const void*, const QString& path)
{
    if (KxMachineFacts::Replaced().freeSpaceMb) {
        return KxMachineFacts::Replaced().freeSpaceMb(path);
    }
    const bool isDrive = path.size() == 2 && path.at(1) == QLatin1Char(':');
    const QStorageInfo storage(isDrive ? path + QLatin1Char('/') : NearestExistingFolder(path));
    constexpr qint64 megabyte = 1024 * 1024;
    return storage.isValid() && storage.bytesAvailable() >= 0 ? storage.bytesAvailable() / megabyte : -1;
}
