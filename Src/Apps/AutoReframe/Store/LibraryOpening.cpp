#include <Apps/AutoReframe/Store/LibraryOpening.h>

#include <Apps/AutoReframe/Store/LibraryConnection.h>
#include <Apps/AutoReframe/Store/LibraryLock.h>
#include <Apps/AutoReframe/Store/LibrarySchema.h>
#include <KxCore/KxLog.h>

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>

namespace
{

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(LibraryOpening)
};

using Problem = LibraryConnection::Problem;

KxResult<QString> CannotOpen(const QString& filePath, const QString& reason)
{
    return KxResult<QString>::Failure(Texts::tr("Cannot open the library %1: %2. What you do now is not saved.")
                                          .arg(QDir::toNativeSeparators(filePath), reason));
}

KxError CheckContent(LibraryConnection& connection, bool& isDamaged)
{
    const KxResult<QVariant> found = connection.Value(QStringLiteral("PRAGMA quick_check(1)"));
    isDamaged = found ? found->toString() != QLatin1String("ok") : connection.LastProblem() == Problem::Damaged;
    return found || isDamaged ? std::nullopt : KxError(found.Message());
}

/// A consistent copy, also while another program writes. It has its name only once it is complete.
KxError BackUp(LibraryConnection& connection, const QString& filePath, int version)
{
    const QFileInfo info(filePath);
    const QString backup = info.dir().filePath(
        QStringLiteral("%1-version-%2.%3").arg(info.completeBaseName(), QString::number(version), info.suffix()));
    const QString part = backup + QStringLiteral(".part");
    QFile::remove(part);
    if (const KxError failure = connection.Execute(QStringLiteral("VACUUM INTO ?"), {part})) {
        return failure;
    }
    QFile::remove(backup);
    return QFile::rename(part, backup) ? std::nullopt
                                       : KxError(Texts::tr("its backup %1 cannot be written").arg(backup));
}

KxError Migrate(LibraryConnection& connection, const QString& filePath)
{
    const KxResult<QVariant> version = connection.Value(QStringLiteral("PRAGMA user_version"));
    if (!version) {
        return version.Message();
    }
    const int found = version->toInt();
    if (found > LibrarySchema::Version) {
        return Texts::tr("it was written by a newer version of this program");
    }
    if (found == LibrarySchema::Version) {
        return std::nullopt;
    }
    if (found > 0) {
        if (const KxError failure = BackUp(connection, filePath, found)) {
            return failure;
        }
    }
    return connection.InTransaction([&] { return LibrarySchema::Migrate(connection, found); });
}

/// Returns the new name; empty if the file cannot be renamed.
QString SetAside(const QString& filePath)
{
    const QFileInfo info(filePath);
    const QString stamp = QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-HHmmss-zzz"));
    const QString aside =
        info.dir().filePath(QStringLiteral("%1-damaged-%2.%3").arg(info.completeBaseName(), stamp, info.suffix()));
    if (!QFile::rename(filePath, aside)) {
        return {};
    }
    // They belong to the damaged file: SQLite would apply them to the new one.
    for (const char* const suffix : {"-wal", "-shm"}) {
        QFile::rename(filePath + QLatin1String(suffix), aside + QLatin1String(suffix));
    }
    return aside;
}

struct Prepared {
    bool isDamaged = false;
    KxError failure;
};

Prepared CheckAndMigrate(const QString& filePath)
{
    Prepared prepared;
    LibraryConnection connection(filePath);
    prepared.failure = CheckContent(connection, prepared.isDamaged);
    if (prepared.isDamaged || prepared.failure) {
        return prepared;
    }
    // Readers and the writer do not wait for each other. Where it is not supported, as on network drives, they do.
    prepared.failure = connection.Execute(QStringLiteral("PRAGMA journal_mode = WAL"));
    if (!prepared.failure) {
        prepared.failure = Migrate(connection, filePath);
    }
    prepared.isDamaged = prepared.failure && connection.LastProblem() == Problem::Damaged;
    return prepared;
}

} // namespace

KxResult<QString> LibraryOpening::Prepare(const QString& filePath)
{
    const QFileInfo info(filePath);
    if (!QDir().mkpath(info.absolutePath())) {
        return CannotOpen(filePath, Texts::tr("its folder cannot be made"));
    }
    // Opening a pipe could wait for ever.
    if (info.exists() && !info.isFile()) {
        return CannotOpen(filePath, Texts::tr("it is not a regular file"));
    }
    constexpr int patienceMs = 10000;
    QLockFile lock(filePath + QStringLiteral(".lock"));
    if (!LibraryLock::Take(lock, patienceMs)) {
        return CannotOpen(filePath, lock.error() == QLockFile::LockFailedError
                                        ? Texts::tr("another program is opening it")
                                        : Texts::tr("its folder cannot be written to"));
    }
    Prepared prepared = CheckAndMigrate(filePath);
    QString notice;
    if (prepared.isDamaged) {
        const QString aside = SetAside(filePath);
        if (aside.isEmpty()) {
            return CannotOpen(filePath, Texts::tr("it is damaged, and it cannot be renamed"));
        }
        KX_LOG_WARNING(QStringLiteral("The library was damaged and is now %1.").arg(aside));
        notice = Texts::tr("The library was damaged. It was renamed to %1, and a new one was begun.")
                     .arg(QDir::toNativeSeparators(aside));
        prepared = CheckAndMigrate(filePath);
    }
    return prepared.failure ? CannotOpen(filePath, *prepared.failure) : KxResult<QString>(notice);
}
