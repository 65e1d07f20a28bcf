#include <Apps/AutoReframe/Store/LibraryLock.h>

#include <QLockFile>
#include <QString>

namespace
{

/// Longer than any process takes to write into the lock file that it has just made.
constexpr int WritingMs = 500;

bool NamesNoProcess(const QLockFile& lock)
{
    qint64 process = 0;
    QString host;
    QString program;
    return lock.error() == QLockFile::LockFailedError && !lock.getLockInfo(&process, &host, &program);
}

} // namespace

bool LibraryLock::Take(QLockFile& lock, int patienceMs)
{
    // However long its holder lives, the lock is not stale.
    lock.setStaleLockTime(0);
    if (lock.tryLock(0)) {
        return true;
    }
    if (NamesNoProcess(lock)) {
        if (lock.tryLock(WritingMs)) {
            return true;
        }
        if (NamesNoProcess(lock)) {
            lock.removeStaleLockFile();
        }
    }
    return lock.tryLock(patienceMs);
}
