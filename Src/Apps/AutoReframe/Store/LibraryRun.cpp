#include <Apps/AutoReframe/Store/LibraryRun.h>

#include <Apps/AutoReframe/Store/LibraryLock.h>

#include <QDir>
#include <QFileInfo>
#include <QLockFile>
#include <QUuid>

namespace
{

const QString Prefix = QStringLiteral("run-");
const QString Suffix = QStringLiteral(".lock");

QString LockPath(const QString& name, const QString& folder)
{
    return folder + QLatin1Char('/') + Prefix + name + Suffix;
}

} // namespace

LibraryRun::LibraryRun(const QString& folder)
    : m_name(QUuid::createUuid().toString(QUuid::WithoutBraces))
    , m_lock(std::make_unique<QLockFile>(LockPath(m_name, folder)))
{
    LibraryLock::Take(*m_lock, 0);
}

LibraryRun::~LibraryRun() = default;

bool LibraryRun::IsAlive(const QString& name, const QString& folder)
{
    if (!QFileInfo::exists(LockPath(name, folder))) {
        return false;
    }
    // Where the lock is taken from a dead process, the destructor removes its file.
    QLockFile lock(LockPath(name, folder));
    return !LibraryLock::Take(lock, 0);
}

void LibraryRun::RemoveDead(const QString& folder)
{
    const QStringList files = QDir(folder).entryList({Prefix + QLatin1Char('*') + Suffix}, QDir::Files);
    for (const QString& file : files) {
        IsAlive(file.mid(Prefix.size(), file.size() - Prefix.size() - Suffix.size()), folder);
    }
}
