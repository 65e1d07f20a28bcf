#include <Apps/AutoReframe/Store/LibraryRun.h>

#include <QFileInfo>
#include <QLockFile>
#include <QUuid>

namespace
{

QString LockPath(const QString& name, const QString& folder)
{
    return QStringLiteral("%1/run-%2.lock").arg(folder, name);
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
