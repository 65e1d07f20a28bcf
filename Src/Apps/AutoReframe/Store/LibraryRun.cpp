#include <Apps/AutoReframe/Store/LibraryRun.h>

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

std::unique_ptr<QLockFile> MakeLock(const QString& name, const QString& folder)
{
    auto lock = std::make_unique<QLockFile>(LockPath(name, folder));
    // However long a run lasts, only its end makes the lock stale.
    lock->setStaleLockTime(0);
    return lock;
}

} // namespace

LibraryRun::LibraryRun(const QString& folder)
    : m_name(QUuid::createUuid().toString(QUuid::WithoutBraces))
    , m_lock(MakeLock(m_name, folder))
{
    m_lock->tryLock(0);
}

LibraryRun::~LibraryRun() = default;

bool LibraryRun::IsAlive(const QString& name, const QString& folder)
{
    if (!QFileInfo::exists(LockPath(name, folder))) {
        return false;
    }
    // Where the lock is taken from a dead process, the destructor removes its file.
    return !MakeLock(name, folder)->tryLock(0);
}

void LibraryRun::RemoveDead(const QString& folder)
{
    const QStringList files = QDir(folder).entryList({Prefix + QLatin1Char('*') + Suffix}, QDir::Files);
    for (const QString& file : files) {
        IsAlive(file.mid(Prefix.size(), file.size() - Prefix.size() - Suffix.size()), folder);
    }
}
