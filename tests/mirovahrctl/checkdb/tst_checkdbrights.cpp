#include "tests/mirovahrctl/program/toolrun.h"
#include "tests/support/accountrights.h"
#include "tests/support/testdatabase.h"

#include <QSqlError>
#include <QSqlQuery>
#include <QTest>

Q_DECLARE_METATYPE(ExitStatus)

namespace {

const char kPlugin[] = "yav";
const char kTool[] = "mirovahrctl";
const QString kFirstCheck =
    "As far as this account can see, the database meets the plugin's requirements.";

/// The rules of all findings, or of those of one severity.
QString messages(const ToolRun &run, const QString &severity = QString())
{
    QStringList messages;
    const QJsonArray findings = run.findings();
    for (const QJsonValue &value : findings) {
        const QJsonObject finding = value.toObject();
        if (severity.isEmpty() || finding.value("severity").toString() == severity)
            messages += finding.value("message").toString();
    }
    return messages.join('\n');
}

} // namespace

/// check-db and the accounts of reference-db/grants.sql: missing rights, excess rights, and the
/// rights that the account of mirovahrctl needs.
class TestCheckDbRights : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();

    void theAccountOfThePluginIsFine();
    void theSecondCheckFindsWhatThePluginsAccountCannotSee_data();
    void theSecondCheckFindsWhatThePluginsAccountCannotSee();
    void anAccountThatReadsWholeTablesSeesAllColumns();
    void everyRightThatThePluginLacksIsFound_data();
    void everyRightThatThePluginLacksIsFound();
    void aMissingRightIsNamed();
    void rightsOfARoleCount();
    void excessRightsAreReported_data();
    void excessRightsAreReported();
    void rightsOnSomeTablesAreNotExcessive();

    void theAccountOfTheToolIsFine();
    void everyRightOfTheToolIsNeeded_data();
    void everyRightOfTheToolIsNeeded();
    void theToolSeesTheTextsOfTheRoutines();
    void theToolCannotWrite_data();
    void theToolCannotWrite();
    void theRightsOfAnotherAccountAreNotChecked();
    void aTableThatCannotBeReadEndsTheCheck();

private:
    ToolRun check(const char *account, const QStringList &more = {});
    ToolRun checkWithTool() { return check(kTool, {"--other-account"}); }

    TestDatabase m_db;
    AccountRights m_plugin{m_db, kPlugin};
    AccountRights m_tool{m_db, kTool};
};

void TestCheckDbRights::initTestCase()
{
    QVERIFY2(m_db.start(), qPrintable(m_db.errorString()));
    m_db.run(QStringLiteral("ALTER USER mirovahrctl@localhost IDENTIFIED BY '%1' ACCOUNT UNLOCK")
                 .arg(m_db.server().password()));
}

void TestCheckDbRights::cleanup()
{
    m_db.run("REVOKE ALL PRIVILEGES, GRANT OPTION FROM yav@localhost, mirovahrctl@localhost");
    m_db.grant("grants.sql");
}

ToolRun TestCheckDbRights::check(const char *account, const QStringList &more)
{
    return runTool(QStringList{"check-db", "--json", "--socket", m_db.server().socketPath(),
                               "--database", m_db.server().databaseName(), "--user", account,
                               "--password-file", m_db.server().passwordFile()}
                   + kTimeouts + more);
}

void TestCheckDbRights::theAccountOfThePluginIsFine()
{
    const ToolRun run = check(kPlugin);
    COMPARE_EXIT(run, ExitStatus::Fine);
    QCOMPARE(run.json().value("verdict").toString(), kFirstCheck);
    QCOMPARE(
        messages(run),
        QString(
            "Missing, or hidden from this account: branches.name, branches.address, branches.note, "
            "branches.wh1b, branches.wh1e, branches.wh2b, branches.wh2e, branches.wh3b, "
            "branches.wh3e, branches.wh4b, branches.wh4e, branches.wh5b, branches.wh5e, "
            "branches.wh6b, branches.wh6e, branches.wh7b, branches.wh7e, sections, sec_branch, "
            "bas, term_sync.ref_col2, term_sync.ref_id2, inters, inters_term, pzt. The plugin does "
            "not use them; other components of the attendance server may.\n"
            "This account has rights on single columns of these tables and sees no others: people, "
            "people_pam, funds_move, term_sync. This check cannot find a column that the site "
            "added there without a default value, which makes every new row fail, nor a unique key "
            "on hidden columns."));
}

void TestCheckDbRights::theSecondCheckFindsWhatThePluginsAccountCannotSee_data()
{
    QTest::addColumn<QString>("change");
    QTest::addColumn<QString>("rule");
    QTest::addColumn<ExitStatus>("status");
    QTest::newRow("a column that must be filled")
        << "ALTER TABLE people ADD card VARCHAR(20) NOT NULL"
        << "column-without-default" << ExitStatus::ContractBroken;
    QTest::newRow("a further unique key") << "ALTER TABLE brape ADD place INT NOT NULL DEFAULT 0,"
                                             " ADD UNIQUE KEY (uid, place)"
                                          << "key-unexpected" << ExitStatus::Findings;
}

void TestCheckDbRights::theSecondCheckFindsWhatThePluginsAccountCannotSee()
{
    QFETCH(QString, change);
    QFETCH(QString, rule);
    QFETCH(ExitStatus, status);
    m_db.run(change);
    const ToolRun first = check(kPlugin);
    const ToolRun second = checkWithTool();
    m_db.reset();
    COMPARE_EXIT(first, ExitStatus::Fine);
    QCOMPARE(first.json().value("verdict").toString(), kFirstCheck);
    QCOMPARE(first.findingsOf("columns-hidden").size(), 1);
    COMPARE_EXIT(second, status);
    QCOMPARE(second.rules(), QStringList(rule));
}

void TestCheckDbRights::anAccountThatReadsWholeTablesSeesAllColumns()
{
    const TableRows tables = m_db.rows("SHOW TABLES");
    for (const QStringList &table : tables)
        m_db.run(QStringLiteral("GRANT SELECT ON `%1` TO yav@localhost").arg(table.first()));
    ToolRun run = check(kPlugin);
    COMPARE_EXIT(run, ExitStatus::Fine);
    QCOMPARE(messages(run), QString());
    QCOMPARE(run.json().value("verdict").toString(),
             QString("The database meets the plugin's requirements."));

    m_db.run("ALTER TABLE brape ADD place INT NOT NULL DEFAULT 0");
    m_db.run("REVOKE SELECT ON brape FROM yav@localhost");
    m_db.grant("grants.sql");
    m_db.run("DELETE FROM funds WHERE iid = 3 AND unit = 2");
    run = check(kPlugin);
    m_db.reset();
    COMPARE_EXIT(run, ExitStatus::Findings);
    QVERIFY(messages(run).contains("sees no others: brape. "));
    QCOMPARE(run.json().value("verdict").toString(),
             QString("As far as this account can see, the plugin can work with this database; "
                     "1 finding needs attention."));
}

void TestCheckDbRights::everyRightThatThePluginLacksIsFound_data()
{
    AccountRights::addRows(m_plugin.all());
}

void TestCheckDbRights::everyRightThatThePluginLacksIsFound()
{
    QFETCH(QString, privilege);
    QFETCH(QString, object);
    m_plugin.revoke({privilege, object});
    const ToolRun run = check(kPlugin);
    COMPARE_EXIT(run, ExitStatus::ContractBroken);
    const QString name = object.section('`', 1, 1);
    const QString column = privilege.section('`', 1, 1);
    const QString errors = messages(run, "error");
    QVERIFY2(errors.contains(name, Qt::CaseInsensitive), run.report().constData());
    QVERIFY2(errors.contains(column) || errors.contains("The table " + name + " does not exist"),
             run.report().constData());
}

void TestCheckDbRights::aMissingRightIsNamed()
{
    m_db.run("REVOKE INSERT (name), UPDATE (did, type) ON people FROM yav@localhost");
    const ToolRun run = check(kPlugin);
    COMPARE_EXIT(run, ExitStatus::ContractBroken);
    QCOMPARE(run.findingsOf("right-missing").size(), 2);
    QCOMPARE(run.findingsOf("right-missing").at(0).value("message").toString(),
             QString("The account lacks INSERT on name of the table people."));
    QCOMPARE(run.findingsOf("right-missing").at(1).value("message").toString(),
             QString("The account lacks UPDATE on type, did of the table people."));
}

void TestCheckDbRights::rightsOfARoleCount()
{
    m_db.run("REVOKE UPDATE (ok) ON atten FROM yav@localhost");
    m_db.run("CREATE ROLE recalculation");
    m_db.run("GRANT UPDATE (ok) ON atten TO recalculation");
    m_db.run("GRANT recalculation TO yav@localhost");
    m_db.run("SET DEFAULT ROLE recalculation FOR yav@localhost");
    const ToolRun run = check(kPlugin);
    m_db.run("DROP ROLE recalculation");
    COMPARE_EXIT(run, ExitStatus::Fine);
}

void TestCheckDbRights::excessRightsAreReported_data()
{
    QTest::addColumn<QString>("grant");
    QTest::addColumn<QString>("message");
    QTest::newRow("on the server")
        << "GRANT FILE, RELOAD ON *.* TO yav@localhost"
        << "The account has rights on the whole server that the plugin does not need: RELOAD, "
           "FILE. Texts of the export go into the plugin's statements unescaped, so whoever writes "
           "the export can do whatever the account may do";
    QTest::newRow("on the database")
        << "GRANT DELETE, DROP ON tepdb.* TO yav@localhost"
        << "The account has rights on whole databases that the plugin does not need: DELETE, DROP. "
           "Texts of the export go into the plugin's statements unescaped, so whoever writes the "
           "export can do whatever the account may do";
}

void TestCheckDbRights::excessRightsAreReported()
{
    QFETCH(QString, grant);
    QFETCH(QString, message);
    m_db.run(grant);
    const ToolRun run = check(kPlugin);
    COMPARE_EXIT(run, ExitStatus::Findings);
    const QVector<QJsonObject> findings = run.findingsOf("right-excess");
    QCOMPARE(findings.size(), 1);
    QCOMPARE(findings.first().value("message").toString(), message + '.');
    QCOMPARE(findings.first().value("severity").toString(), QString("warning"));
}

void TestCheckDbRights::rightsOnSomeTablesAreNotExcessive()
{
    m_db.run("GRANT DELETE ON term_sync TO yav@localhost");
    const ToolRun run = check(kPlugin);
    COMPARE_EXIT(run, ExitStatus::Fine);
    QVERIFY(run.findingsOf("right-excess").isEmpty());
}

void TestCheckDbRights::theAccountOfTheToolIsFine()
{
    const ToolRun run = checkWithTool();
    COMPARE_EXIT(run, ExitStatus::Fine);
    QCOMPARE(messages(run), QString());
    QCOMPARE(run.json().value("facts").toObject().value("account").toString(),
             QString("mirovahrctl@localhost"));
}

void TestCheckDbRights::everyRightOfTheToolIsNeeded_data()
{
    AccountRights::addRows(m_tool.all());
}

void TestCheckDbRights::everyRightOfTheToolIsNeeded()
{
    QFETCH(QString, privilege);
    QFETCH(QString, object);
    m_tool.revoke({privilege, object});
    const ToolRun run = checkWithTool();
    QVERIFY2(messages(run).contains(object.section('`', 1, 1), Qt::CaseInsensitive),
             run.report().constData());
}

void TestCheckDbRights::theToolSeesTheTextsOfTheRoutines()
{
    m_db.run("REVOKE SELECT ON mysql.proc FROM mirovahrctl@localhost");
    const ToolRun run = checkWithTool();
    COMPARE_EXIT(run, ExitStatus::Fine);
    QCOMPARE(messages(run), QString("This account cannot see the routine updateTermsSync."));
}

void TestCheckDbRights::theToolCannotWrite_data()
{
    QTest::addColumn<QString>("statement");
    const TableRows tables = m_db.rows("SHOW TABLES");
    for (const QStringList &row : tables) {
        const QString table = row.first();
        const QString column = m_db.value(QStringLiteral("SELECT column_name FROM"
                                                         " information_schema.columns WHERE"
                                                         " table_schema = DATABASE() AND"
                                                         " table_name = '%1' LIMIT 1")
                                              .arg(table))
                                   .toString();
        QTest::addRow("insert into %s", qPrintable(table))
            << QStringLiteral("INSERT INTO `%1` SELECT * FROM `%1`").arg(table);
        QTest::addRow("update %s", qPrintable(table))
            << QStringLiteral("UPDATE `%1` SET `%2` = `%2`").arg(table, column);
        QTest::addRow("delete from %s", qPrintable(table))
            << QStringLiteral("DELETE FROM `%1`").arg(table);
    }
    QTest::newRow("mark terminals") << "CALL updateTermsSync(4, 2)";
    QTest::newRow("make a table") << "CREATE TABLE mine (n INT)";
    QTest::newRow("make a temporary table") << "CREATE TEMPORARY TABLE mine (n INT)";
    QTest::newRow("change a routine") << "DROP FUNCTION midnightFromTs";
    QTest::newRow("change the routines behind the server's back")
        << "UPDATE mysql.proc SET body = body";
    QTest::newRow("look at accounts") << "SELECT * FROM mysql.global_priv";
}

void TestCheckDbRights::theToolCannotWrite()
{
    QFETCH(QString, statement);
    QSqlDatabase db = m_db.pluginConnection();
    db.setUserName(kTool);
    QVERIFY(db.open());
    QSqlQuery query(db);
    QVERIFY(!query.exec(statement));
    QVERIFY2(query.lastError().databaseText().contains("denied"),
             qPrintable(query.lastError().text()));
}

void TestCheckDbRights::theRightsOfAnotherAccountAreNotChecked()
{
    m_db.run("REVOKE UPDATE (did) ON people FROM yav@localhost");
    m_db.run("GRANT DROP ON tepdb.* TO yav@localhost");
    const ToolRun run = check(kPlugin, {"--other-account"});
    COMPARE_EXIT(run, ExitStatus::Fine);
    QVERIFY(run.findingsOf("right-missing").isEmpty());
    QVERIFY(run.findingsOf("right-excess").isEmpty());
}

void TestCheckDbRights::aTableThatCannotBeReadEndsTheCheck()
{
    m_db.run("REVOKE SELECT ON funds FROM mirovahrctl@localhost");
    m_db.run("GRANT UPDATE ON funds TO mirovahrctl@localhost");
    const ToolRun run = checkWithTool();
    COMPARE_EXIT(run, ExitStatus::NoDatabase);
    QVERIFY2(run.err.startsWith("mirovahrctl: check-db: The database cannot be used: SELECT command"
                                " denied to user 'mirovahrctl'@'localhost'"),
             run.report().constData());
}

QTEST_GUILESS_MAIN(TestCheckDbRights)
#include "tst_checkdbrights.moc"
