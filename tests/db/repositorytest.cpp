#include "tests/db/repositorytest.h"

#include "tests/support/verifysql.h"

void RepositoryTest::runOnConnection(const QString &sql)
{
    QSqlQuery query(m_connection);
    VERIFY_SQL(query, query.exec(sql));
    m_database.clearStatements();
}

void RepositoryTest::initTestCase()
{
    QVERIFY2(m_database.start(), qPrintable(m_database.errorString()));
    m_database.grant("grants-repositories.sql");
    m_connection = m_database.pluginConnection();
}

void RepositoryTest::init()
{
    m_connection.close();
    m_database.resetEmpty();
    VERIFY_SQL(m_connection, m_connection.open());
}
