#include <Apps/AutoReframe/WindowMemory.h>

#include <KxCore/KxConfigFile.h>

#include <QSettings>
#include <QWidget>

namespace
{

const QString geometryKey = QStringLiteral("Main Window/Geometry");

}

bool WindowMemory::Restore(QWidget& window)
{
    const QSettings settings(KxConfigFile::Path(), QSettings::IniFormat);
    return window.restoreGeometry(settings.value(geometryKey).toByteArray());
}

void WindowMemory::Save(const QWidget& window)
{
    QSettings settings(KxConfigFile::Path(), QSettings::IniFormat);
    settings.setValue(geometryKey, window.saveGeometry());
}
