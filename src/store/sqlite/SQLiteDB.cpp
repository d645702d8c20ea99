#include "SQLiteDB.h"

#include "OMError.h"

#include <memory>
#include <sqlite3.h>

namespace ormiva {

namespace {

constexpr int busyTimeoutMilliseconds = 3000;

struct Finalizer {
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};
using Statement = std::unique_ptr<sqlite3_stmt, Finalizer>;

/// Result codes of the bind calls are not examined: an index without a parameter is simply not bound.
struct Binder {
    sqlite3_stmt* statement;
    int index;

    void operator()(qint64 value) const { sqlite3_bind_int64(statement, index, value); }
    void operator()(double value) const { sqlite3_bind_double(statement, index, value); }
    void operator()(const QString& value) const {
        sqlite3_bind_text(statement, index, value.toUtf8().constData(), -1, SQLITE_TRANSIENT);
    }
    void operator()(const QByteArray& value) const {
        // A null pointer would bind null, and an empty byte string is not nothing.
        const char* bytes = value.isEmpty() ? "" : value.constData();
        sqlite3_bind_blob64(statement, index, bytes, static_cast<sqlite3_uint64>(value.size()),
                            SQLITE_TRANSIENT);
    }
    void operator()(SQLNull) const { sqlite3_bind_null(statement, index); }
};

SQLValue columnValue(sqlite3_stmt* statement, int column) {
    switch (sqlite3_column_type(statement, column)) {
    case SQLITE_INTEGER:
        return static_cast<qint64>(sqlite3_column_int64(statement, column));
    case SQLITE_FLOAT:
        return sqlite3_column_double(statement, column);
    case SQLITE_TEXT:
        return QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(statement, column)));
    case SQLITE_BLOB: {
        const auto* bytes = static_cast<const char*>(sqlite3_column_blob(statement, column));
        return bytes ? QByteArray(bytes, sqlite3_column_bytes(statement, column)) : QByteArray("");
    }
    default:
        return SQLNull();
    }
}

SQLRow currentRow(sqlite3_stmt* statement) {
    SQLRow row;
    const int count = sqlite3_column_count(statement);
    for (int column = 0; column < count; ++column)
        row.values.insert_or_assign(QString::fromUtf8(sqlite3_column_name(statement, column)),
                                    columnValue(statement, column));
    return row;
}

} // namespace

SQLiteDB::SQLiteDB(const QString& path, bool readOnly)
    : m_path(path) {
    const int flags = readOnly ? SQLITE_OPEN_READONLY : SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE;
    sqlite3* handle = nullptr;
    if (sqlite3_open_v2(path.toUtf8().constData(), &handle, flags, nullptr) != SQLITE_OK) {
        const QString text =
            handle ? QString::fromUtf8(sqlite3_errmsg(handle)) : QStringLiteral("could not open");
        sqlite3_close(handle);
        throw OMError::database(text);
    }
    m_handle = handle;
    sqlite3_busy_timeout(m_handle, busyTimeoutMilliseconds);
    if (readOnly)
        return;
    try {
        exec(QStringLiteral("PRAGMA foreign_keys = ON"));
    } catch (...) {
        close();
        throw;
    }
}

SQLiteDB::~SQLiteDB() {
    close();
}

void SQLiteDB::exec(const QString& sql) {
    if (!m_handle)
        throw OMError::database(lastError());
    char* message = nullptr;
    const int result = sqlite3_exec(m_handle, sql.toUtf8().constData(), nullptr, nullptr, &message);
    const QString text = message ? QString::fromUtf8(message) : lastError();
    sqlite3_free(message);
    if (result != SQLITE_OK)
        throw OMError::database(text);
}

qint64 SQLiteDB::run(const QString& sql, const SQLArguments& arguments) {
    const Statement statement(prepare(sql, arguments));
    const int result = sqlite3_step(statement.get());
    if (result != SQLITE_ROW && result != SQLITE_DONE)
        throw OMError::database(lastError());
    return sqlite3_last_insert_rowid(m_handle);
}

QList<SQLRow> SQLiteDB::query(const QString& sql, const SQLArguments& arguments) {
    const Statement statement(prepare(sql, arguments));
    QList<SQLRow> rows;
    for (;;) {
        const int result = sqlite3_step(statement.get());
        if (result == SQLITE_DONE)
            return rows;
        if (result != SQLITE_ROW)
            throw OMError::database(lastError());
        rows.append(currentRow(statement.get()));
    }
}

qint64 SQLiteDB::scalarInt(const QString& sql, const SQLArguments& arguments) {
    try {
        const QList<SQLRow> rows = query(sql, arguments);
        if (rows.isEmpty() || rows.first().values.empty())
            return 0;
        return integerOf(rows.first().values.begin()->second).value_or(0);
    } catch (const OMError&) {
        return 0;
    }
}

void SQLiteDB::transaction(const std::function<void()>& body) {
    exec(QStringLiteral("BEGIN IMMEDIATE"));
    try {
        body();
        exec(QStringLiteral("COMMIT"));
    } catch (...) {
        try {
            exec(QStringLiteral("ROLLBACK"));
        } catch (
            const OMError&) { // SQLite may have rolled back by itself; the first failure is the one to tell.
        }
        throw;
    }
}

bool SQLiteDB::isInTransaction() const {
    return m_handle && sqlite3_get_autocommit(m_handle) == 0;
}

int SQLiteDB::changes() const {
    return m_handle ? sqlite3_changes(m_handle) : 0;
}

QString SQLiteDB::lastError() const {
    return m_handle ? QString::fromUtf8(sqlite3_errmsg(m_handle)) : QStringLiteral("closed");
}

int SQLiteDB::lastErrorCode() const {
    return m_handle ? sqlite3_errcode(m_handle) & 0xff : 0;
}

void SQLiteDB::close() {
    sqlite3_close_v2(m_handle);
    m_handle = nullptr;
}

sqlite3_stmt* SQLiteDB::prepare(const QString& sql, const SQLArguments& arguments) {
    sqlite3_stmt* statement = nullptr;
    if (!m_handle ||
        sqlite3_prepare_v2(m_handle, sql.toUtf8().constData(), -1, &statement, nullptr) != SQLITE_OK ||
        !statement)
        throw OMError::database(lastError());
    for (int i = 0; i < arguments.size(); ++i)
        std::visit(Binder{statement, i + 1}, arguments.at(i).value());
    return statement;
}

} // namespace ormiva
