#include <Apps/AutoReframe/Store/LibraryConnection.h>

#include <QCoreApplication>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QUuid>

namespace
{

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(LibraryConnection)
};

using Problem = LibraryConnection::Problem;

// The result codes of SQLite, whose header is not needed for anything else.
enum SqliteCode {
    Busy = 5,
    Locked = 6,
    ReadOnly = 8,
    IoError = 10,
    Corrupt = 11,
    Full = 13,
    CannotOpen = 14,
    NoDatabase = 26
};

int CodeOf(const QSqlError& error)
{
    // The other bits distinguish kinds of one code.
    return error.nativeErrorCode().toInt() & 0xff;
}

Problem ProblemOf(const QSqlError& error)
{
    switch (CodeOf(error)) {
    case Corrupt:
    case NoDatabase:
        return Problem::Damaged;
    case Busy:
    case Locked:
    case IoError:
    case Full:
        return Problem::Temporary;
    default:
        return Problem::Other;
    }
}

QString ReasonOf(const QSqlError& error)
{
    switch (CodeOf(error)) {
    case Busy:
    case Locked:
        return Texts::tr("another program is using it");
    case ReadOnly:
        return Texts::tr("it is write-protected");
    case IoError:
        return Texts::tr("the disk cannot be read or written");
    case Corrupt:
    case NoDatabase:
        return Texts::tr("it is damaged");
    case Full:
        return Texts::tr("the disk is full");
    case CannotOpen:
        return Texts::tr("it cannot be opened");
    default:
        return error.databaseText().isEmpty() ? error.driverText() : error.databaseText();
    }
}

} // namespace

LibraryConnection::LibraryConnection(const QString& filePath)
    : m_name(QUuid::createUuid().toString())
{
    QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), m_name);
    database.setDatabaseName(filePath);
    database.setConnectOptions(QStringLiteral("QSQLITE_BUSY_TIMEOUT=5000"));
}

LibraryConnection::~LibraryConnection()
{
    QSqlDatabase::database(m_name, false).close();
    QSqlDatabase::removeDatabase(m_name);
}

KxError LibraryConnection::Run(QSqlQuery& query, const QString& statement, const QVariantList& values)
{
    m_problem = Problem::None;
    const bool isPrepared = query.prepare(statement);
    for (const QVariant& value : values) {
        // Qt would bind a null string as NULL. Here NULL is a null value of another type.
        query.addBindValue(value.type() == QVariant::String && value.isNull() ? QVariant(QStringLiteral("")) : value);
    }
    if (isPrepared && query.exec()) {
        return std::nullopt;
    }
    m_problem = ProblemOf(query.lastError());
    return ReasonOf(query.lastError());
}

KxError LibraryConnection::Select(const QString& statement, const QVariantList& values,
                                  const std::function<void(const QSqlQuery& row)>& row)
{
    QSqlDatabase database = QSqlDatabase::database(m_name);
    if (!database.isOpen()) {
        m_problem = ProblemOf(database.lastError());
        return ReasonOf(database.lastError());
    }
    QSqlQuery query(database);
    query.setForwardOnly(true);
    if (const KxError failure = Run(query, statement, values)) {
        return failure;
    }
    while (query.next()) {
        row(query);
    }
    if (query.lastError().isValid()) {
        m_problem = ProblemOf(query.lastError());
        return ReasonOf(query.lastError());
    }
    return std::nullopt;
}

KxError LibraryConnection::Execute(const QString& statement, const QVariantList& values)
{
    return Select(statement, values, [](const QSqlQuery&) {});
}

KxResult<QVariant> LibraryConnection::Value(const QString& statement, const QVariantList& values)
{
    QVariant first;
    const KxError failure =
        Select(statement, values, [&first](const QSqlQuery& row) { first = first.isValid() ? first : row.value(0); });
    return failure ? KxResult<QVariant>::Failure(*failure) : KxResult<QVariant>(first);
}

KxError LibraryConnection::InTransaction(const std::function<KxError()>& work)
{
    // The lock for writing is taken at once: a transaction that reads first could not wait for another writer later.
    if (const KxError failure = Execute(QStringLiteral("BEGIN IMMEDIATE"))) {
        return failure;
    }
    KxError failure = work();
    if (!failure) {
        failure = Execute(QStringLiteral("COMMIT"));
    }
    if (failure) {
        const Problem problem = m_problem;
        Execute(QStringLiteral("ROLLBACK"));
        m_problem = problem;
    }
    return failure;
}
