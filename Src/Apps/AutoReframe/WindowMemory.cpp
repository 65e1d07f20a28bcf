#include <Apps/AutoReframe/WindowMemory.h>

#include <KxCore/KxConfigFile.h>

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>
#include <QScreen>
#include <QWidget>

namespace
{

QString FilePath()
{
    const QFileInfo config(KxConfigFile::Path());
    return config.dir().filePath(config.completeBaseName() + QStringLiteral(".window"));
}

} // namespace

bool WindowMemory::Restore(QWidget& window)
{
    // Qt writes less than 100 bytes.
    constexpr qint64 most = 1000;
    QFile file(FilePath());
    // Opening anything but a regular file may block.
    if (!QFileInfo(file).isFile() || !file.open(QIODevice::ReadOnly)) {
        return false;
    }
    return window.restoreGeometry(file.read(most));
}

void WindowMemory::Save(const QWidget& window)
{
    // Without the file the next window has its first size.
    QDir().mkpath(QFileInfo(FilePath()).path());
    QSaveFile file(FilePath());
    if (file.open(QIODevice::WriteOnly)) {
        file.write(window.saveGeometry());
        file.commit();
    }
}

void WindowMemory::ResizeToFit(QWidget& window, const QSize& size)
{
    // The window manager's frame is not known before the window is shown.
    constexpr QSize frame(16, 48);
    window.resize(size.boundedTo(window.screen()->availableSize() - frame));
}
