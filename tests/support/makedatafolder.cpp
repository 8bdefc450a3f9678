// makedatafolder FOLDER SQLFILE...: makes the data folders that the servers of the tests begin
// with, in FOLDER, which has none yet: "system" has the system tables, "reference" besides the
// attendance server's database and account, and what the files create.

#include "privatedb/datafolder.h"
#include "privatedb/privatemariadb.h"
#include "tests/support/sqlscript.h"

#include <QCoreApplication>
#include <QSqlError>
#include <QSqlQuery>

#include <cstdio>

namespace {

/// Runs the statements of the files. The database's error; empty when there is none.
QString load(const PrivateMariaDb &server, const QStringList &sqlFiles)
{
    const QString name = QStringLiteral("load");
    QString error;
    {
        QSqlDatabase database = server.addConnection(name, PrivateMariaDb::Account::Administrator);
        database.setDatabaseName(server.databaseName());
        if (!database.open())
            error = database.lastError().text();
        QSqlQuery query(database);
        for (const QString &file : sqlFiles) {
            for (const QString &statement : statementsOf(file)) {
                if (error.isEmpty() && !query.exec(statement))
                    error = query.lastError().text() + QStringLiteral(" - ") + statement;
            }
        }
    }
    QSqlDatabase::removeDatabase(name);
    return error;
}

bool makeSystem(const QString &folder, QString &error)
{
    PrivateMariaDb server;
    server.setMadeDataFolder(QString());
    error = server.prepare() ? QString() : server.errorString();
    return error.isEmpty() && copyDataFolder(server.dataDir(), folder, error);
}

bool makeReference(const QString &system, const QStringList &sqlFiles, const QString &folder,
                   QString &error)
{
    PrivateMariaDb server;
    server.setMadeDataFolder(system);
    server.setHostRights(PrivateMariaDb::HostRights::None);
    error = server.start() ? load(server, sqlFiles) : server.errorString();
    if (error.isEmpty() && !server.stop())
        error = server.errorString();
    return error.isEmpty() && copyDataFolder(server.dataDir(), folder, error);
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() < 2)
        return 2;
    const QString system = arguments.at(1) + QStringLiteral("/system");
    const QString reference = arguments.at(1) + QStringLiteral("/reference");
    QString error;
    if (makeSystem(system, error) && makeReference(system, arguments.mid(2), reference, error))
        return 0;
    std::fprintf(stderr, "makedatafolder: %s\n", qPrintable(error));
    return 1;
}
