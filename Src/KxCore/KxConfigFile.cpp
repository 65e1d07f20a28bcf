#include <KxCore/KxConfigFile.h>

#include <QSettings>
#include <QStandardPaths>

QString KxConfigFile::Path()
{
    const QString named = qEnvironmentVariable("KX_CONFIG_FILE");
    if (!named.isEmpty()) {
        return named;
    }
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/auto-reframe/auto-reframe.ini");
}

QString KxConfigFile::ReadAutoReframe(const QString& key)
{
    QSettings settings(Path(), QSettings::IniFormat);
    settings.beginGroup(QStringLiteral("Auto Reframe"));
    return settings.value(key).toString();
}
