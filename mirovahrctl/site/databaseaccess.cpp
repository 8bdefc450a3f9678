#include "mirovahrctl/site/databaseaccess.h"

#include "cli/database.h"
#include "mirovahrctl/site/sqlsession.h"

namespace {

constexpr char kReadOnly[] = "SET SESSION TRANSACTION READ ONLY";

} // namespace

std::unique_ptr<Database> openDatabase(const DatabaseOptions &options, DatabaseAccess access,
                                       QString &error)
{
    if (!Database::isDriverAvailable()) {
        error = Database::missingDriverText();
        return nullptr;
    }
    auto database = std::make_unique<Database>(options, QStringLiteral("mirovahrctl"));
    if (!database->open()) {
        error = QStringLiteral("The database cannot be opened: %1").arg(database->errorString());
        return nullptr;
    }
    if (access == DatabaseAccess::ReadOnly && !refuseWriting(database->handle(), error))
        return nullptr;
    return database;
}

bool refuseWriting(const QSqlDatabase &connection, QString &error)
{
    SqlSession session(connection);
    if (session.run(QLatin1String(kReadOnly)))
        return true;
    error =
        QStringLiteral("The database cannot be opened read-only: %1").arg(session.errorString());
    return false;
}
