#pragma once

#include <KxCore/KxResult.h>

#include <QString>
#include <QVariant>

#include <functional>

class QSqlQuery;

/// One connection to an SQLite file. Used and destroyed by the thread that made it.
class LibraryConnection
{
public:
    /// The file is opened or created by the first statement. Other programs that write to it are waited for.
    explicit LibraryConnection(const QString& filePath);
    ~LibraryConnection();
    LibraryConnection(const LibraryConnection&) = delete;
    LibraryConnection& operator=(const LibraryConnection&) = delete;

    /// The reason of a failure is a clause, for the end of a message.
    KxError Execute(const QString& statement, const QVariantList& values = {});
    /// Calls `row` for each row of the result.
    KxError Select(const QString& statement, const QVariantList& values,
                   const std::function<void(const QSqlQuery& row)>& row);
    /// The first column of the first row; invalid without a row.
    KxResult<QVariant> Value(const QString& statement, const QVariantList& values = {});
    /// Runs `work` in a transaction, which is rolled back if `work` fails.
    KxError InTransaction(const std::function<KxError()>& work);

    /// Why the last statement failed.
    enum class Problem {
        None,
        Damaged,   ///< the content of the file is no database, or a damaged one
        Temporary, ///< the disk is full, or another program holds the file: the same may succeed later
        Other,
    };
    Problem LastProblem() const { return m_problem; }

private:
    KxError Run(QSqlQuery& query, const QString& statement, const QVariantList& values);

    const QString m_name;
    Problem m_problem = Problem::None;
};
