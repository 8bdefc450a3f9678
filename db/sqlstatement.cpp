#include "db/sqlstatement.h"

#include <QByteArray>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QString>

namespace SqlStatement {

QSqlQuery run(const QSqlDatabase &db, const QString &sql)
{
    QSqlQuery query(db);
    query.exec(sql);
    return query;
}

QSqlQuery runAll(const QSqlDatabase &db, const QString &sql)
{
    QSqlQuery query = run(db, sql);
    while (query.nextResult()) { }
    return query;
}

bool failed(const QSqlQuery &query, const QByteArray &message, Encoding encoding)
{
    const QSqlError error = query.lastError();
    if (!error.isValid())
        return false;
    const QString text = error.text();
    qCritical("%s %s", message.constData(),
              encoding == Encoding::Utf8 ? qUtf8Printable(text) : qPrintable(text));
    return true;
}

} // namespace SqlStatement
