#include "tests/worker/operations/workerconnection.h"

#include "tests/support/verifysql.h"

QSqlDatabase workerConnection()
{
    return QSqlDatabase::database(QStringLiteral("YAV.tepdb.MirovaHR"), false);
}

void freezeTime()
{
    QSqlQuery query(workerConnection());
    VERIFY_SQL(query, query.exec(QStringLiteral("SET timestamp = %1").arg(kFrozenTime)));
}
