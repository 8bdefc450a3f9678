#pragma once

#include "privatedb/privatemariadb.h"
#include "tests/support/databasebaseline.h"

#include <QMap>
#include <QSqlDatabase>
#include <QString>
#include <QStringList>
#include <QTest>
#include <QVariant>
#include <QVector>

class QSqlQuery;

using TableRows = QVector<QStringList>;

namespace QTest {
/// Lets QCOMPARE show rows, one a line.
template <> char *toString(const TableRows &rows);
} // namespace QTest

/// Rows of every table, by table name.
using DatabaseState = QMap<QString, TableRows>;

/// What the server's general log says about one event of a connection.
struct ServerEvent {
    QString command; ///< "Query", "Prepare", "Execute", "Close stmt", "Connect", "Quit", ...
    QString text; ///< Of the statement; of a Connect the account and database.
    quint64 connection = 0; ///< The server's number of the connection.
};

/// A private server with the reference database, for one test program: start() in initTestCase(),
/// reset() or resetEmpty() in init().
///
/// The code under test connects as `yav` (pluginConnection()), with the rights of
/// reference-db/grants.sql and no others; the test itself looks and changes things as `root`
/// through run(), value(), rows() and dump(), which statements() leaves out. When the SQL of a test
/// fails, the test function fails with the database's error at the caller's line.
///
/// The server's time zone is the program's (`TZ` at the time of start()).
class TestDatabase {
public:
    TestDatabase();
    ~TestDatabase();
    TestDatabase(const TestDatabase &) = delete;
    TestDatabase &operator=(const TestDatabase &) = delete;

    /// Starts the server and loads the reference database with its sample data. Use as
    /// `QVERIFY2(m_db.start(), qPrintable(m_db.errorString()))`.
    bool start(const QStringList &serverOptions = {});
    /// Uses a running server instead, that of another owner, which has the reference database; for
    /// what the administrator can do and see. False when it cannot be reached.
    bool attach(PrivateMariaDb &server);
    QString errorString() const { return m_server->errorString(); }

    /// Grants what a file of the reference database says, to stay; after start().
    void grant(const char *file);

    /// Brings back schema, routines and sample data, whatever the test did to tables, triggers,
    /// routines and rows. Then clears the statement log. Open connections stay usable, as long as
    /// none holds a transaction open.
    void reset();
    /// As reset(), without sample data: every table is empty.
    void resetEmpty();

    PrivateMariaDb &server() { return *m_server; }

    /// A registered connection as the attendance server would hand it over, not yet opened, under a
    /// name of its own unless one is given. Removed with this object at the latest.
    QSqlDatabase pluginConnection(const QString &name = QString());
    /// As above, open. Fails the test when it cannot be opened.
    QSqlDatabase openPluginConnection(const QString &name = QString());

    // As administrator ----------------------------------------------------------------------------

    /// Runs one statement.
    void run(const QString &sql, const char *file = __builtin_FILE(), int line = __builtin_LINE());
    /// First column of the first row; invalid when there is no row.
    QVariant value(const QString &sql, const char *file = __builtin_FILE(),
                   int line = __builtin_LINE());
    /// All rows, each column as text, NULL as "NULL".
    TableRows rows(const QString &sql, const char *file = __builtin_FILE(),
                   int line = __builtin_LINE());
    /// The rows of a table, one a line, columns as `name=value`, in a fixed order.
    QString dump(const QString &table, const char *file = __builtin_FILE(),
                 int line = __builtin_LINE());
    /// The rows of every table but those named.
    DatabaseState dumpAll(const QStringList &exceptTables = {}, const char *file = __builtin_FILE(),
                          int line = __builtin_LINE());
    /// What differs, one line a row: "- table: ..." is gone, "+ table: ..." is new. Empty when the
    /// states are equal.
    static QString difference(const DatabaseState &before, const DatabaseState &after);

    // What the server received from the code under test -------------------------------------------

    void clearStatements();
    /// The statements since the last clearStatements(), of all connections of the account `yav`, in
    /// their order. A prepared statement shows as "PREPARE: text with ?" and, for each execution,
    /// "EXECUTE: text with values". What the driver sends of its own accord (connect, character
    /// set, its trial of prepared statements) is left out; "BEGIN WORK", "COMMIT" and "ROLLBACK"
    /// are in.
    ///
    /// The server strips blanks and ";" from the end of a statement before it logs it: a text that
    /// ends in ";" arrives here without it. A text of several statements shows as the whole text.
    QStringList statements();
    /// Everything the log has, the driver's own events included.
    QVector<ServerEvent> events();

    // Making it another site's --------------------------------------------------------------------

    /// Gives each table whose rows have no automatic number one of a column of its own, as the
    /// primary key beside the unique keys that the table has. dump() and its like leave the column
    /// out.
    void addOwnNumbers();

    /// Drops the columns that only number the rows of a table.
    void removeOwnNumbers();

    /// Gives the ids of branches and administrators 32 bits in every table.
    void widenIds();

    // Making things fail --------------------------------------------------------------------------

    void stopServer(); ///< An orderly shutdown: connections are lost.
    void killServer(); ///< A crash: connections are lost.
    void startServer(); ///< Again, with the same data and the same socket.

    /// Renames a table, so that every statement on it fails; restoreTable() brings it back.
    void hideTable(const QString &table);
    void restoreTable(const QString &table);
    /// Makes "INSERT", "UPDATE" or "DELETE" on a table fail with \a message for rows that meet
    /// \a condition (an SQL expression over NEW and OLD), until allow() or the next reset.
    void refuse(const QString &event, const QString &table,
                const QString &message = QStringLiteral("refused by the test"),
                const QString &condition = QStringLiteral("TRUE"));
    void allow(const QString &event, const QString &table);

private:
    TableRows tableRows(const QString &table, const char *file, int line);
    /// Drops the whole database and loads it anew, empty, and takes it as the baseline.
    void loadSchema();
    /// Takes the database, which is empty, as the baseline.
    void takeSchema();
    void loadFiles(const QStringList &files);
    bool openAdministrator();
    void closeAdministrator();
    bool execute(QSqlQuery &query, const QString &sql, const char *file, int line);
    bool check(bool ok, const QString &error, const char *file, int line);

    PrivateMariaDb m_own;
    PrivateMariaDb *m_server = &m_own;
    DatabaseBaseline m_baseline;
    QString m_prefix; ///< Of the names of this object's connections.
    QStringList m_connectionNames;
    int m_connectionCount = 0;
    QSqlDatabase m_administrator;
};
