#include <KxWidgets/Windows/KxNearestFolder.h>

#include <QDir>
#include <QFileInfo>

QString KxNearestFolder::To(const QString& folder, const std::function<bool(const QString&)>& isFolder)
{
    if (QDir::isRelativePath(folder)) {
        return QDir::homePath();
    }
    QString nearest = folder;
    while (!isFolder(nearest)) {
        const QString above = QFileInfo(nearest).path();
        // On Windows the root of a missing drive is its own parent although it does not count as a root.
        if (above == nearest) {
            return QDir::homePath();
        }
        nearest = above;
    }
    return nearest;
}

bool KxNearestFolder::IsFolder(const QString& path)
{
    return QFileInfo(path).isDir();
}
