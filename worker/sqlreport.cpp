#include "worker/sqlreport.h"

#include <QDebug>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QVariant>

bool SqlReport::exec(QSqlQuery &query, const QString &sql, const char *message)
{
    if (query.exec(sql))
        return true;
    const QSqlError error = query.lastError();
    qCritical("%s [%s]: %s", message, qUtf8Printable(error.nativeErrorCode()),
              qUtf8Printable(error.text()));
    return false;
}

bool SqlReport::execShowingStatement(QSqlQuery &query, const QString &sql, const char *message)
{
    if (query.exec(sql))
        return true;
    const QSqlError error = query.lastError();
    qCritical("%s [%s]: %s\n SQL: %s", message, qUtf8Printable(error.nativeErrorCode()),
              qUtf8Printable(error.text()), qUtf8Printable(query.lastQuery()));
    return false;
}

uint SqlReport::nextNumber(QSqlQuery &query)
{
    return query.next() ? query.value(0).toUInt() : 0;
}

uint SqlReport::findNumber(const QSqlDatabase &db, const QString &sql)
{
    QSqlQuery query(db);
    return query.exec(sql) ? nextNumber(query) : 0;
}
