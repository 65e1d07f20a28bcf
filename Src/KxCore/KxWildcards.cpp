#include <KxCore/KxWildcards.h>

#include <QDir>
#include <QFileInfo>

namespace
{

bool HasWildcard(const QString& text)
{
    return text.contains(QLatin1Char('*')) || text.contains(QLatin1Char('?'));
}

QStringList Matches(const QString& path)
{
    const QFileInfo info(path);
    // The start of the path as it was written.
    const QString folder = path.left(path.size() - info.fileName().size());
    if (!HasWildcard(info.fileName()) || HasWildcard(folder) || info.exists()) {
        return {};
    }
    QStringList names = QDir(info.path()).entryList({info.fileName()}, QDir::Files, QDir::Name | QDir::IgnoreCase);
    for (QString& name : names) {
        name.prepend(folder);
    }
    return names;
}

} // namespace

QStringList KxWildcards::Expand(const QStringList& paths)
{
    QStringList expanded;
    for (const QString& path : paths) {
        const QStringList matches = Matches(path);
        if (matches.isEmpty()) {
            expanded += path;
        } else {
            expanded += matches;
        }
    }
    return expanded;
}
