#include "tests/support/accountrights.h"

#include "tests/support/testdatabase.h"

#include <QTest>

namespace {

QString inBackticks(const QString &name)
{
    return '`' + name + '`';
}

QString grantee(const QString &account)
{
    return QStringLiteral("'%1'@'localhost'").arg(account);
}

} // namespace

AccountRights::AccountRights(TestDatabase &database, const QString &account)
    : m_database(database)
    , m_account(account)
{
}

QVector<AccountRight> AccountRights::all()
{
    return onTables() + onDatabase() + onRoutines();
}

QVector<AccountRight> AccountRights::onTables()
{
    QVector<AccountRight> rights;
    const TableRows rows = m_database.rows(
        QStringLiteral("SELECT CONCAT(privilege_type, ' (`', column_name, '`)'), table_name"
                       " FROM information_schema.column_privileges"
                       " WHERE table_schema = DATABASE() AND grantee = \"%1\""
                       " UNION ALL SELECT privilege_type, table_name"
                       " FROM information_schema.table_privileges"
                       " WHERE table_schema = DATABASE() AND grantee = \"%1\"")
            .arg(grantee(m_account)));
    for (const QStringList &row : rows)
        rights.append({row.at(0), inBackticks(row.at(1))});
    return rights;
}

QVector<AccountRight> AccountRights::onDatabase()
{
    QVector<AccountRight> rights;
    const TableRows rows = m_database.rows(
        QStringLiteral("SELECT privilege_type FROM information_schema.schema_privileges"
                       " WHERE grantee = \"%1\"")
            .arg(grantee(m_account)));
    for (const QStringList &row : rows)
        rights.append({row.first(), "*"});
    return rights;
}

QVector<AccountRight> AccountRights::onRoutines()
{
    QVector<AccountRight> rights;
    const TableRows rows =
        m_database.rows(QStringLiteral("SELECT UPPER(proc_priv), routine_type, routine_name"
                                       " FROM mysql.procs_priv WHERE user = '%1'")
                            .arg(m_account));
    for (const QStringList &row : rows)
        rights.append({row.at(0), row.at(1) + ' ' + inBackticks(row.at(2))});
    return rights;
}

void AccountRights::revoke(const AccountRight &right)
{
    m_database.run(QStringLiteral("REVOKE %1 FROM %2").arg(right.text(), grantee(m_account)));
}

void AccountRights::grant(const AccountRight &right)
{
    m_database.run(QStringLiteral("GRANT %1 TO %2").arg(right.text(), grantee(m_account)));
}

QStringList AccountRights::texts(const QVector<AccountRight> &rights)
{
    QStringList texts;
    for (const AccountRight &right : rights)
        texts += right.text();
    return texts;
}

void AccountRights::addRows(const QVector<AccountRight> &rights)
{
    QTest::addColumn<QString>("privilege");
    QTest::addColumn<QString>("object");
    for (const AccountRight &right : rights)
        QTest::newRow(qPrintable(right.text())) << right.privilege << right.object;
}
