#pragma once

#include "SQLRow.h"
#include "UserCalendar.h"

#include <QList>

#include <concepts>
#include <functional>
#include <optional>

struct sqlite3;
struct sqlite3_stmt;

namespace ormiva {

/// A value to be bound to a parameter: what the program holds, or nothing (null).
class SQLArgument {
public:
    SQLArgument(std::nullopt_t = std::nullopt)
        : m_value(SQLNull()) {}
    SQLArgument(std::integral auto value)
        : m_value(static_cast<qint64>(value)) {}
    SQLArgument(double value)
        : m_value(value) {}
    SQLArgument(QString value)
        : m_value(std::move(value)) {}
    SQLArgument(QByteArray value)
        : m_value(std::move(value)) {}
    /// Seconds since 1970.
    SQLArgument(Instant value)
        : m_value(static_cast<double>(value.time_since_epoch().count()) / 1000) {}
    template <typename T>
    SQLArgument(const std::optional<T>& value)
        : m_value(SQLNull()) {
        if (value)
            *this = SQLArgument(*value);
    }

    const SQLValue& value() const { return m_value; }

private:
    SQLValue m_value;
};

using SQLArguments = QList<SQLArgument>;

/// One SQLite connection, for one thread. Every failure is an `OMError::database` with SQLite's own sentence.
/// An operation on a closed connection fails with "closed".
class SQLiteDB {
public:
    /// Opens a file, and makes it when it is missing and `readOnly` is false. SQLite reads nothing yet, so
    /// a file that is no database fails at the first statement. Another process's lock is waited for 3
    /// seconds.
    explicit SQLiteDB(const QString& path, bool readOnly = false);
    ~SQLiteDB();
    SQLiteDB(const SQLiteDB&) = delete;
    SQLiteDB& operator=(const SQLiteDB&) = delete;

    const QString& path() const { return m_path; }

    /// Runs one or several statements without parameters.
    void exec(const QString& sql);
    /// Runs one statement to its first row or its end and gives the last insert row id.
    /// A text is bound up to its first NUL.
    qint64 run(const QString& sql, const SQLArguments& arguments);
    /// All rows of one statement.
    QList<SQLRow> query(const QString& sql, const SQLArguments& arguments = {});
    /// The integer of a single-column query's first row; 0 for no row, no number and, on purpose, any
    /// failure: callers compare with a count of 1, where a failed read must look like a row that isn't there.
    qint64 scalarInt(const QString& sql, const SQLArguments& arguments = {});
    /// Runs `body` between BEGIN IMMEDIATE and COMMIT; when either fails, rolls back and throws that failure
    /// again. Transactions don't nest.
    void transaction(const std::function<void()>& body);

    bool isInTransaction() const;
    /// Rows changed by the last statement.
    int changes() const;
    /// SQLite's sentence for the last failure, "closed" when the connection is closed.
    QString lastError() const;
    /// SQLite's primary result code of the last failure, 0 when the connection is closed.
    int lastErrorCode() const;
    /// Closes the connection; a second call does nothing.
    void close();

private:
    sqlite3_stmt* prepare(const QString& sql, const SQLArguments& arguments);

    sqlite3* m_handle = nullptr;
    QString m_path;
};

} // namespace ormiva
