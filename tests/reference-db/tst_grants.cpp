#include "db/branchesrepository.h"
#include "db/groupsplanrepo.h"
#include "db/tepdbsettings.h"
#include "db/termsyncrepository.h"
#include "tests/support/accountrights.h"
#include "tests/support/logcapture.h"
#include "tests/worker/support/sampleexport.h"
#include "tests/worker/support/workertest.h"

#include <QRegularExpression>
#include <QTest>

namespace {

QStringList denials(const QStringList &log)
{
    return log.filter(QRegularExpression("^C .*denied"));
}

/// The log while the repositories run all their operations.
QStringList useTheRepositories(const QSqlDatabase &db)
{
    const LogCapture log;
    BranchesRepository branches(nullptr, true, true);
    branches.setDB(db);
    BranchRecord branch;
    branch.name = "Dielňa";
    branch.bid = branches.addBranch(branch);
    branches.updateBranch(branch);
    branches.addPeopleToBranch(1, "6");
    branches.delPeopleFromBranch(1, "4");
    branches.addBranchToTerms(1, "6");
    branches.delBranchFromTerms(1, "1");
    branches.addAdminsToBranch(1, "2");
    branches.delAdminsFromBranch(1, "4");
    branches.addSectionsToBranch(1, "3");
    branches.delSectionsFromBranch(1, "1");
    branches.addBAS(BASData{1, 2, 3});
    branches.deleteBAS(QStringList{"2-1-2"});
    branches.getUids4Branch(1);

    GroupsPlanRepo plan(nullptr);
    plan.setDB(db);
    plan.add({12, 4, 202503});
    plan.del({12, 5, 202006});
    plan.getCurrentGid(5, 0, true);

    TermSyncRepository queue;
    queue.setDB(db);
    queue.addTermSyncPerson(4, 'U', "people");
    queue.addTermSyncPerson(1, 4, 'U', "people");
    queue.addTermSyncInter(1, 'U', "inters");
    queue.addTermSyncInter(1, 1, 'U', "inters");
    queue.addTermSyncInters(1, {"1"}, 'U');
    queue.addTermSyncPZT(4, 1, 1, 'I', "pzt");
    queue.addColorGroup(1, 4);
    queue.addColorGroup(1, QStringList{"4"});
    queue.addColorGroupsToTermSync();

    TepDbSettings settings(db);
    settings.variableGetMultiple(QStringList{"a"});
    settings.variableSet("a", 1);
    settings.variableDel("a", false);
    settings.variableDel("a", true);
    return log.lines();
}

} // namespace

/// The accounts of reference-db/grants.sql have the rights that they need, and no others.
class TestGrants : public WorkerTest {
    Q_OBJECT

private Q_SLOTS:
    void theRightsOfThePluginAreEnough();
    void thePluginNeedsEveryRightOfItsAccount_data();
    void thePluginNeedsEveryRightOfItsAccount();
    void otherServersWantTwoRightsMore();
    void thePluginMayNeitherDeleteNorMakeTables();

    void theRightsForTheRepositoriesAreEnough();
    void theRepositoriesNeedEveryFurtherRight_data();
    void theRepositoriesNeedEveryFurtherRight();

    void aNewAccountIsLocked_data();
    void aNewAccountIsLocked();
    void loadingTwiceChangesNothing();

private:
    const QVector<AccountRight> &pluginRights();
    QVector<AccountRight> repositoryRights();
    QStringList runThePlugin();

    AccountRights m_rights{m_db, "yav"};
    QVector<AccountRight> m_pluginRights;
};

/// As long as nothing but grants.sql was loaded.
const QVector<AccountRight> &TestGrants::pluginRights()
{
    if (m_pluginRights.isEmpty())
        m_pluginRights = m_rights.all();
    return m_pluginRights;
}

/// What grants-repositories.sql grants on top. It stays granted.
QVector<AccountRight> TestGrants::repositoryRights()
{
    const QStringList known = AccountRights::texts(pluginRights());
    m_db.grant("grants-repositories.sql");
    QVector<AccountRight> further;
    const QVector<AccountRight> all = m_rights.all();
    for (const AccountRight &right : all) {
        if (!known.contains(right.text()))
            further.append(right);
    }
    return further;
}

/// The log of a forced synchronisation that runs every operation.
QStringList TestGrants::runThePlugin()
{
    m_db.run("UPDATE people SET rsBegin = 1700000000 WHERE uid = 4");
    m_db.run("UPDATE people SET status = 0 WHERE uid = 5");
    m_db.run("DELETE FROM people_pam WHERE uid = 5");
    force();
    const QVector<ExportRow> lines{
        SampleExport::maria().with(&ExportRow::dovolenaZustatek, QStringLiteral("21")),
        SampleExport::peter().with(&ExportRow::nadrizenyOsobniCislo, 1001),
        SampleExport::jana().with(&ExportRow::stredisko, 130), SampleExport::jan(),
        SampleExport::newcomer(newPersonalNumber())
            .with(&ExportRow::kalendarPlatnostOd, QDate(2024, 1, 1))};
    return synchronise(lines).log;
}

void TestGrants::theRightsOfThePluginAreEnough()
{
    QCOMPARE(runThePlugin().filter(QRegularExpression("^[CW] ")).join('\n'), QString());
    QCOMPARE(m_db.value("SELECT value FROM vars WHERE name = 'YAV.MHRWorker.forceSync'").toInt(),
             0);
}

void TestGrants::thePluginNeedsEveryRightOfItsAccount_data()
{
    QVector<AccountRight> needed;
    for (const AccountRight &right : pluginRights()) {
        if (right.text() != "SELECT (`bid`) ON `people`"
            && right.text() != "UPDATE (`status`) ON `people`") {
            needed.append(right);
        }
    }
    AccountRights::addRows(needed);
}

void TestGrants::thePluginNeedsEveryRightOfItsAccount()
{
    QFETCH(QString, privilege);
    QFETCH(QString, object);
    const AccountRight right{privilege, object};
    m_rights.revoke(right);
    const QStringList log = runThePlugin();
    m_rights.grant(right);
    QVERIFY2(!denials(log).isEmpty(), qPrintable(log.join('\n')));
}

void TestGrants::otherServersWantTwoRightsMore()
{
    // Should this server begin to ask for them, they belong to the rows of the test above.
    const QVector<AccountRight> spare{{"SELECT (`bid`)", "`people`"},
                                      {"UPDATE (`status`)", "`people`"}};
    for (const AccountRight &right : spare) {
        QVERIFY(AccountRights::texts(pluginRights()).contains(right.text()));
        m_rights.revoke(right);
    }
    const QStringList log = runThePlugin();
    for (const AccountRight &right : spare)
        m_rights.grant(right);
    QCOMPARE(denials(log), QStringList());
}

void TestGrants::thePluginMayNeitherDeleteNorMakeTables()
{
    for (const AccountRight &right : pluginRights()) {
        const QString verb = right.privilege.section(' ', 0, 0);
        QVERIFY2(QStringList({"SELECT", "INSERT", "UPDATE", "EXECUTE"}).contains(verb),
                 qPrintable(right.text()));
        QVERIFY2(verb == "EXECUTE" || right.privilege.contains('('), qPrintable(right.text()));
    }
}

void TestGrants::theRightsForTheRepositoriesAreEnough()
{
    QVERIFY(!repositoryRights().isEmpty());
    QCOMPARE(useTheRepositories(m_db.openPluginConnection()).join('\n'), QString());
}

void TestGrants::theRepositoriesNeedEveryFurtherRight_data()
{
    AccountRights::addRows(repositoryRights());
}

void TestGrants::theRepositoriesNeedEveryFurtherRight()
{
    QFETCH(QString, privilege);
    QFETCH(QString, object);
    const AccountRight right{privilege, object};
    m_rights.revoke(right);
    const QStringList log = useTheRepositories(m_db.openPluginConnection());
    m_rights.grant(right);
    QVERIFY2(!denials(log).isEmpty(), qPrintable(log.join('\n')));
}

void TestGrants::aNewAccountIsLocked_data()
{
    QTest::addColumn<QString>("account");
    QTest::newRow("the plugin's") << "yav";
    QTest::newRow("the tool's") << "mirovahrctl";
}

void TestGrants::aNewAccountIsLocked()
{
    QFETCH(QString, account);
    const QString name = QStringLiteral("'%1'@'localhost'").arg(account);
    const QString before = m_db.value("SHOW CREATE USER " + name).toString();
    m_db.run("DROP USER " + name);
    m_db.grant("grants.sql");
    QCOMPARE(m_db.value("SHOW CREATE USER " + name).toString(),
             QStringLiteral("CREATE USER `%1`@`localhost` ACCOUNT LOCK").arg(account));
    m_db.run("DROP USER " + name);
    m_db.run(before);
    m_db.grant("grants.sql");
}

void TestGrants::loadingTwiceChangesNothing()
{
    const QStringList before = AccountRights::texts(m_rights.all());
    m_db.grant("grants.sql");
    QCOMPARE(AccountRights::texts(m_rights.all()), before);
    QVERIFY(m_db.openPluginConnection().isOpen()); // neither locked nor without its password
}

QTEST_GUILESS_MAIN(TestGrants)
#include "tst_grants.moc"
