#include <KxCore/KxConfig.h>

#include <KxCore/KxConfigFile.h>

#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>
#include <QStorageInfo>

namespace
{

const QString ImportFolderKey = QStringLiteral("Import/Folder");

KxConfig::MachineFacts& CurrentFacts()
{
    static KxConfig::MachineFacts facts;
    return facts;
}

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

KxConfig& KxConfig::Instance()
{
    static KxConfig config;
    return config;
}

bool KxConfig::algorithmEnabled(int algorithm) const
{
    if (CurrentFacts().algorithmEnabled) {
        return CurrentFacts().algorithmEnabled(algorithm);
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
    if (CurrentFacts().freeSpaceMb) {
        return CurrentFacts().freeSpaceMb(path);
    }
    const bool isDrive = path.size() == 2 && path.at(1) == QLatin1Char(':');
    const QStorageInfo storage(isDrive ? path + QLatin1Char('/') : NearestExistingFolder(path));
    constexpr qint64 megabyte = 1024 * 1024;
    return storage.isValid() && storage.bytesAvailable() >= 0 ? storage.bytesAvailable() / megabyte : -1;
}

void KxConfig::SetMachineFacts(MachineFacts facts)
{
    CurrentFacts() = std::move(facts);
}
