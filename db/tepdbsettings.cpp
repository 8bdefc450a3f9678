#include "db/tepdbsettings.h"

#include "db/placeholders.h"
#include "db/sqlstatement.h"

#include <QDebug>
#include <QSqlError>
#include <QSqlQuery>

namespace {

const QLatin1String kSelectOne("SELECT value FROM vars WHERE name='%1' LIMIT 1");
const QLatin1String kSelectListed("SELECT name, value FROM vars WHERE name IN(%1)");
const QLatin1String kSelectPrefix("SELECT name, value FROM vars WHERE name LIKE '%1%'");
const QLatin1String kUpsert("INSERT INTO vars (name, value) VALUES(:name, :value)"
                            " ON DUPLICATE KEY UPDATE value=VALUES(value);");
const QLatin1String kDeleteOne("DELETE FROM vars WHERE name='%1'");
const QLatin1String kDeletePrefix("DELETE FROM vars WHERE name LIKE '%1%'");

void logSetError(const QSqlQuery &query)
{
    const QSqlError error = query.lastError();
    if (error.isValid())
        qCritical() << "variableSet ERROR:" << error.text();
}

bool prepareSet(QSqlQuery &query)
{
    const bool prepared = query.prepare(kUpsert);
    if (!prepared)
        logSetError(query);
    return prepared;
}

bool executeSet(QSqlQuery &query, const QString &name, const QVariant &value)
{
    query.bindValue(QStringLiteral(":name"), name);
    query.bindValue(QStringLiteral(":value"), value);
    const bool executed = query.exec();
    if (!executed)
        logSetError(query);
    return executed;
}

} // namespace

TepDbSettings::TepDbSettings(const QSqlDatabase &db)
    : m_db(db)
{
}

void TepDbSettings::setDB(const QSqlDatabase &db)
{
    m_db = db;
}

bool TepDbSettings::openDB()
{
    const bool opened = m_db.open();
    if (!opened)
        qCritical() << "TepDbSettings Database Error:" << m_db.lastError().text();
    return opened;
}

void TepDbSettings::closeDB()
{
    m_db.close();
}

QVariant TepDbSettings::variableGet(const QString &name, const QVariant &defaultValue) const
{
    QSqlQuery query = SqlStatement::run(m_db, Placeholders::filled(kSelectOne, name));
    if (query.next())
        return query.value(0);
    SqlStatement::failed(query, "TepDbSettings::variableGet - SQL ERROR:");
    return defaultValue;
}

bool TepDbSettings::variableSet(const QString &name, const QVariant &value)
{
    QSqlQuery query(m_db);
    return prepareSet(query) && executeSet(query, name, value);
}

bool TepDbSettings::variableDel(const QString &name, bool like)
{
    const QString sql = QString(like ? kDeletePrefix : kDeleteOne).arg(name);
    const QSqlQuery query = SqlStatement::run(m_db, sql);
    SqlStatement::failed(query, "TepDbSettings::variableDel - SQL ERROR:");
    return query.isActive();
}

QMap<QString, QVariant> TepDbSettings::variableGetMultiple(const QStringList &names) const
{
    if (names.isEmpty())
        return {};
    QStringList quoted;
    for (const QString &name : names)
        quoted += QLatin1Char('\'') + name + QLatin1Char('\'');
    return selectVariables(Placeholders::filled(kSelectListed, quoted.join(QLatin1Char(','))));
}

QMap<QString, QVariant> TepDbSettings::variableGetMultiple(const QString &prefix) const
{
    return selectVariables(QString(kSelectPrefix).arg(prefix));
}

bool TepDbSettings::variableSetMultiple(const QMap<QString, QVariant> &values)
{
    QSqlQuery query(m_db);
    if (!prepareSet(query))
        return false;
    bool allWritten = true;
    for (auto it = values.cbegin(); it != values.cend(); ++it)
        allWritten = executeSet(query, it.key(), it.value()) && allWritten;
    return allWritten;
}

QMap<QString, QVariant> TepDbSettings::selectVariables(const QString &sql) const
{
    QMap<QString, QVariant> values;
    QSqlQuery query = SqlStatement::run(m_db, sql);
    while (query.next())
        values.insert(query.value(0).toString(), query.value(1));
    SqlStatement::failed(query, "TepDbSettings::variableGetMultiple - SQL ERROR:");
    return values;
}
