#include "SQLiteDB.h"

#include "SQLPrinters.h"
#include "TemporaryFolder.h"

#include <QFile>

#include <stdexcept>

namespace ormiva {
namespace {

using testing::errorOf;
using testing::TemporaryFolder;

using Rows = QList<SQLRow>;

class Database : public ::testing::Test {
protected:
    QList<qint64> numbers() {
        QList<qint64> found;
        for (const SQLRow& row : db.query(u"SELECT n FROM t ORDER BY n"_qs))
            found.append(row.integer(u"n"_qs).value_or(-1));
        return found;
    }
    void makeTable() { db.exec(u"CREATE TABLE t (n INTEGER PRIMARY KEY, v)"_qs); }

    TemporaryFolder folder;
    QString path = folder.file(u"x.sqlite"_qs);
    SQLiteDB db{path};
};

TEST(SQLiteDBOpen, MakesAMissingFile) {
    const TemporaryFolder folder;
    const QString path = folder.file(u"Bärtel's.sqlite"_qs);
    SQLiteDB db(path);
    db.exec(u"CREATE TABLE t (n)"_qs);
    EXPECT_EQ(db.path(), path);
    EXPECT_TRUE(QFile::exists(path));
}

TEST(SQLiteDBOpen, MakesNothingWhenReadOnly) {
    const TemporaryFolder folder;
    const QString path = folder.file(u"x.sqlite"_qs);
    EXPECT_EQ(errorOf([&] { SQLiteDB db(path, true); }),
              OMError::database(u"unable to open database file"_qs));
    EXPECT_FALSE(QFile::exists(path));
}

TEST(SQLiteDBOpen, FailsWithSQLitesSentenceInAMissingFolder) {
    const TemporaryFolder folder;
    EXPECT_EQ(errorOf([&] { SQLiteDB db(folder.file(u"no/x.sqlite"_qs)); }),
              OMError::database(u"unable to open database file"_qs));
}

TEST(SQLiteDBOpen, LeavesAFileThatIsNoDatabaseToTheFirstStatementThatReadsIt) {
    const TemporaryFolder folder;
    const QByteArray text = QByteArray("This is a letter to the vet. ").repeated(200);
    SQLiteDB db(folder.write(u"letter.txt"_qs, text));
    EXPECT_EQ(errorOf([&] { db.query(u"SELECT * FROM sqlite_master"_qs); }),
              OMError::database(u"file is not a database"_qs));
    EXPECT_EQ(folder.read(u"letter.txt"_qs), text);
}

TEST_F(Database, WaitsThreeSecondsForLocksAndKeepsForeignKeys) {
    EXPECT_EQ(db.scalarInt(u"PRAGMA busy_timeout"_qs), 3000);
    EXPECT_EQ(db.scalarInt(u"PRAGMA foreign_keys"_qs), 1);
}

TEST_F(Database, WaitsForLocksButSetsNothingElseWhenReadOnly) {
    makeTable();
    SQLiteDB reader(path, true);
    EXPECT_EQ(reader.scalarInt(u"PRAGMA busy_timeout"_qs), 3000);
    EXPECT_EQ(reader.scalarInt(u"PRAGMA foreign_keys"_qs), 0);
    EXPECT_EQ(errorOf([&] { reader.exec(u"INSERT INTO t (n) VALUES (1)"_qs); }),
              OMError::database(u"attempt to write a readonly database"_qs));
}

TEST_F(Database, RunsSeveralStatementsAtOnce) {
    db.exec(u"CREATE TABLE t (n); INSERT INTO t VALUES (1); INSERT INTO t VALUES (2);"_qs);
    EXPECT_EQ(numbers(), QList<qint64>({1, 2}));
    db.exec(QString());
}

TEST_F(Database, TellsWhyAStatementFailed) {
    const OMError noTable = OMError::database(u"no such table: absent"_qs);
    EXPECT_EQ(errorOf([&] { db.exec(u"DELETE FROM absent"_qs); }), noTable);
    EXPECT_EQ(errorOf([&] { db.run(u"DELETE FROM absent"_qs, {}); }), noTable);
    EXPECT_EQ(errorOf([&] { db.query(u"SELECT * FROM absent"_qs); }), noTable);
    EXPECT_EQ(db.lastError(), u"no such table: absent"_qs);
}

TEST_F(Database, RefusesAnEmptyStatement) {
    EXPECT_EQ(errorOf([&] { db.run(QString(), {}); }), OMError::database(u"not an error"_qs));
    EXPECT_EQ(errorOf([&] { db.query(u"-- only a remark"_qs); }), OMError::database(u"not an error"_qs));
}

TEST_F(Database, GivesTheLastInsertRowId) {
    makeTable();
    EXPECT_EQ(db.run(u"INSERT INTO t (v) VALUES (?)"_qs, {u"a"_qs}), 1);
    EXPECT_EQ(db.run(u"INSERT INTO t (v) VALUES (?)"_qs, {u"b"_qs}), 2);
    EXPECT_EQ(db.run(u"INSERT INTO t (n) VALUES (?)"_qs, {qint64(5'000'000'000)}), 5'000'000'000);
    EXPECT_EQ(db.run(u"DELETE FROM t"_qs, {}), 5'000'000'000);
}

TEST_F(Database, LetsAStatementWithRowsBeRun) {
    EXPECT_EQ(errorOf([&] { db.run(u"SELECT 1 UNION SELECT 2"_qs, {}); }), std::nullopt);
}

TEST_F(Database, TellsAFailureOfTheStepAndStaysUsable) {
    makeTable();
    db.run(u"INSERT INTO t (n) VALUES (1)"_qs, {});
    EXPECT_EQ(errorOf([&] { db.run(u"INSERT INTO t (n) VALUES (1)"_qs, {}); }),
              OMError::database(u"UNIQUE constraint failed: t.n"_qs));
    db.exec(u"DROP TABLE t"_qs); // An open statement would hold the table.
}

TEST_F(Database, BringsBackEveryKindOfValue) {
    makeTable();
    const SQLArguments arguments = {qint64(-9'000'000'000),
                                    421.5,
                                    u"it's 30 °C, “ok”? 🦎"_qs,
                                    QByteArray("\0a\xff", 3),
                                    std::nullopt,
                                    QByteArray(),
                                    u""_qs};
    for (const SQLArgument& argument : arguments)
        db.run(u"INSERT INTO t (v) VALUES (?)"_qs, {argument});
    Rows expected;
    for (qsizetype i = 0; i < arguments.size(); ++i)
        expected.append(SQLRow{{{u"n"_qs, qint64(i + 1)}, {u"v"_qs, arguments.at(i).value()}}});
    EXPECT_EQ(db.query(u"SELECT n, v FROM t ORDER BY n"_qs), expected);
}

TEST_F(Database, BindsInTheOrderOfTheList) {
    const SQLRow expected{{{u"a"_qs, qint64(1)}, {u"b"_qs, u"two"_qs}, {u"c"_qs, 3.5}}};
    EXPECT_EQ(db.query(u"SELECT ? AS a, ? AS b, ? AS c"_qs, {1, u"two"_qs, 3.5}), Rows({expected}));
}

TEST_F(Database, LeavesParametersWithoutAValueNull) {
    const SQLRow expected{{{u"a"_qs, qint64(1)}, {u"b"_qs, SQLNull()}}};
    EXPECT_EQ(db.query(u"SELECT ? AS a, ? AS b"_qs, {1}), Rows({expected}));
    EXPECT_EQ(db.query(u"SELECT ? AS a, NULL AS b"_qs, {1, 2, 3}), Rows({expected}));
}

TEST_F(Database, EndsATextAtItsFirstNul) {
    const SQLRow expected{{{u"a"_qs, u"ab"_qs}}};
    EXPECT_EQ(db.query(u"SELECT ? AS a"_qs, {QString(u"ab"_qs + QChar(0) + u"cd"_qs)}), Rows({expected}));
    EXPECT_EQ(db.query(u"SELECT CAST(x'61620063' AS TEXT) AS a"_qs), Rows({expected}));
}

TEST_F(Database, LetsTheLaterOfTwoColumnsOfOneNameWin) {
    EXPECT_EQ(db.query(u"SELECT 1 AS a, 2 AS b, 3 AS a"_qs),
              Rows({SQLRow{{{u"a"_qs, qint64(3)}, {u"b"_qs, qint64(2)}}}}));
}

TEST_F(Database, GivesAnEmptyListForNoRows) {
    makeTable();
    EXPECT_EQ(db.query(u"SELECT * FROM t"_qs), Rows());
    EXPECT_EQ(db.scalarInt(u"SELECT n FROM t"_qs), 0);
}

TEST_F(Database, DropsTheRowsBeforeAFailure) {
    const QString sql = u"SELECT abs(column1) AS n FROM (VALUES (1), (2), (-9223372036854775807 - 1))"_qs;
    EXPECT_EQ(errorOf([&] { db.query(sql); }), OMError::database(u"integer overflow"_qs));
}

TEST_F(Database, GivesOneIntegerOfTheFirstRow) {
    EXPECT_EQ(db.scalarInt(u"SELECT 7"_qs), 7);
    EXPECT_EQ(db.scalarInt(u"SELECT column1 FROM (VALUES (8), (9))"_qs), 8);
    EXPECT_EQ(db.scalarInt(u"SELECT ?"_qs, {-5}), -5);
    EXPECT_EQ(db.scalarInt(u"SELECT 3.9"_qs), 3);
    EXPECT_EQ(db.scalarInt(u"SELECT -3.9"_qs), -3);
    EXPECT_EQ(db.scalarInt(u"SELECT '+12'"_qs), 12);
}

TEST_F(Database, GivesZeroForWhatIsNoInteger) {
    EXPECT_EQ(db.scalarInt(u"SELECT 'abc'"_qs), 0);
    EXPECT_EQ(db.scalarInt(u"SELECT ' 1'"_qs), 0);
    EXPECT_EQ(db.scalarInt(u"SELECT x'31'"_qs), 0);
    EXPECT_EQ(db.scalarInt(u"SELECT NULL"_qs), 0);
    EXPECT_EQ(db.scalarInt(u"SELECT n FROM absent"_qs), 0);
    EXPECT_EQ(db.scalarInt(u"not a statement"_qs), 0);
}

TEST_F(Database, CountsTheChangedRows) {
    makeTable();
    db.exec(u"INSERT INTO t (v) VALUES (1), (1), (2)"_qs);
    EXPECT_EQ(db.changes(), 3);
    db.run(u"DELETE FROM t WHERE v = ?"_qs, {1});
    EXPECT_EQ(db.changes(), 2);
    db.run(u"DELETE FROM t WHERE v = ?"_qs, {7});
    EXPECT_EQ(db.changes(), 0);
}

TEST_F(Database, KeepsAFinishedTransaction) {
    makeTable();
    db.transaction([&] { db.exec(u"INSERT INTO t (n) VALUES (1), (2)"_qs); });
    EXPECT_EQ(numbers(), QList<qint64>({1, 2}));
    EXPECT_EQ(SQLiteDB(path, true).scalarInt(u"SELECT count(*) FROM t"_qs), 2);
}

TEST_F(Database, UndoesATransactionWhoseBodyFails) {
    makeTable();
    const auto body = [&] {
        db.exec(u"INSERT INTO t (n) VALUES (1)"_qs);
        throw OMError::invalid(u"no more"_qs);
    };
    EXPECT_EQ(errorOf([&] { db.transaction(body); }), OMError::invalid(u"no more"_qs));
    EXPECT_EQ(numbers(), QList<qint64>());
    db.transaction([&] { db.exec(u"INSERT INTO t (n) VALUES (3)"_qs); });
    EXPECT_EQ(numbers(), QList<qint64>({3}));
}

TEST_F(Database, PassesUpAnyFailureOfTheBodyUnchanged) {
    makeTable();
    EXPECT_THROW(db.transaction([&] {
        db.exec(u"INSERT INTO t (n) VALUES (1)"_qs);
        throw std::out_of_range("x");
    }),
                 std::out_of_range);
    EXPECT_EQ(numbers(), QList<qint64>());
}

TEST_F(Database, TellsTheBodysFailureEvenWhenRollingBackFailsToo) {
    makeTable();
    const auto body = [&] {
        db.exec(u"ROLLBACK"_qs);
        throw OMError::notFound();
    };
    EXPECT_EQ(errorOf([&] { db.transaction(body); }), OMError::notFound());
}

TEST_F(Database, UndoesATransactionWhoseCommitFails) {
    db.exec(u"CREATE TABLE p (id INTEGER PRIMARY KEY);"
            "CREATE TABLE t (n INTEGER REFERENCES p(id) DEFERRABLE INITIALLY DEFERRED)"_qs);
    EXPECT_EQ(errorOf([&] { db.transaction([&] { db.exec(u"INSERT INTO t VALUES (99)"_qs); }); }),
              OMError::database(u"FOREIGN KEY constraint failed"_qs));
    EXPECT_EQ(numbers(), QList<qint64>());
    db.transaction([] {});
}

TEST_F(Database, DoesNotRunTheBodyWhenATransactionCannotBegin) {
    makeTable();
    int runs = 0;
    db.transaction([&] {
        db.exec(u"INSERT INTO t (n) VALUES (1)"_qs);
        EXPECT_EQ(errorOf([&] { db.transaction([&] { ++runs; }); }),
                  OMError::database(u"cannot start a transaction within a transaction"_qs));
    });
    EXPECT_EQ(runs, 0);
    EXPECT_EQ(numbers(), QList<qint64>({1}));
}

TEST_F(Database, TakesTheWriteLockAtTheStartOfATransaction) {
    makeTable();
    SQLiteDB other(path);
    other.exec(u"PRAGMA busy_timeout = 0"_qs);
    db.transaction([&] {
        EXPECT_EQ(errorOf([&] { other.exec(u"BEGIN IMMEDIATE"_qs); }),
                  OMError::database(u"database is locked"_qs));
    });
    EXPECT_EQ(errorOf([&] { other.exec(u"BEGIN IMMEDIATE"_qs); }), std::nullopt);
}

TEST_F(Database, SaysClosedOnceItIs) {
    const OMError closed = OMError::database(u"closed"_qs);
    db.close();
    db.close();
    EXPECT_EQ(db.lastError(), u"closed"_qs);
    EXPECT_EQ(errorOf([&] { db.exec(u"SELECT 1"_qs); }), closed);
    EXPECT_EQ(errorOf([&] { db.run(u"SELECT 1"_qs, {}); }), closed);
    EXPECT_EQ(errorOf([&] { db.query(u"SELECT 1"_qs); }), closed);
    int runs = 0;
    EXPECT_EQ(errorOf([&] { db.transaction([&] { ++runs; }); }), closed);
    EXPECT_EQ(runs, 0);
    EXPECT_EQ(db.scalarInt(u"SELECT 1"_qs), 0);
    EXPECT_EQ(db.changes(), 0);
}

TEST_F(Database, LetsGoOfTheFileWhenItIsClosed) {
    makeTable();
    db.exec(u"BEGIN EXCLUSIVE"_qs);
    db.close();
    SQLiteDB other(path);
    EXPECT_EQ(errorOf([&] { other.exec(u"INSERT INTO t (n) VALUES (1)"_qs); }), std::nullopt);
}

TEST_F(Database, LetsGoOfTheFileWithItsLastHolder) {
    makeTable();
    {
        SQLiteDB other(path);
        other.exec(u"BEGIN EXCLUSIVE"_qs);
    }
    EXPECT_EQ(numbers(), QList<qint64>());
}

} // namespace
} // namespace ormiva
