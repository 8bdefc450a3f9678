#include "tests/support/testdatabase.h"
#include "tests/tools/toolrun.h"
#include "tools/dbcheck.h"
#include "tools/dbrules.h"
#include "tools/reportwriter.h"
#include "tools/serverversion.h"

#include <QSqlDriver>
#include <QSqlQuery>
#include <QtTest>

#include <dlfcn.h>

namespace {

/// Keeps the findings and forgets the rest.
class FindingList : public ReportWriter {
public:
    void begin(const QString &, const QString &) override { }
    void section(const QString &, const QString &) override { }
    void sentence(const QString &) override { }
    void table(const Table &) override { }
    void finding(const Finding &finding) override { findings += finding; }
    void fact(const QString &, const QString &, const QVariant &) override { }
    void end(ExitStatus, const QString &) override { }

    QVector<Finding> findings;
};

/// Tells the server to take one statement in a text only, as a proxy would.
bool refuseSeveralStatements(const QSqlDatabase &db)
{
    constexpr int kMultiStatementsOff = 1;
    using SetServerOption = int (*)(void *, int);
    void *const library = ::dlopen("libmariadb.so.3", RTLD_NOW | RTLD_NOLOAD);
    const auto setOption = library == nullptr
        ? nullptr
        : reinterpret_cast<SetServerOption>(::dlsym(library, "mysql_set_server_option"));
    const QVariant handle = db.driver()->handle();
    return setOption != nullptr && qstrcmp(handle.typeName(), "MYSQL*") == 0
        && setOption(*static_cast<void *const *>(handle.constData()), kMultiStatementsOff) == 0;
}

} // namespace

/// The rules of check-db about server and connection that need a connection or a server of their
/// own.
class TestCheckDbServer : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void aConnectionThatIsNotUnicodeIsTold_data();
    void aConnectionThatIsNotUnicodeIsTold();
    void aConnectionThatTakesOneStatementAtATimeIsTold();
    void anOrdinaryConnectionIsFine();
    void aConnectionThatIsLostEndsTheCheck();

    void aServerThatReservesGroupsIsOfNoUse();
    void versionsAreTakenApart_data();
    void versionsAreTakenApart();

private:
    TestDatabase m_db;
};

void TestCheckDbServer::initTestCase()
{
    QVERIFY2(m_db.start(), qPrintable(m_db.errorString()));
}

void TestCheckDbServer::aConnectionThatIsNotUnicodeIsTold_data()
{
    QTest::addColumn<QString>("statement");
    QTest::addColumn<QString>("message");
    QTest::newRow("all of it") << "SET NAMES latin2"
                               << "The connection's character set is not UTF-8 (client latin2, "
                                  "connection latin2, results latin2): letters with accents arrive "
                                  "wrong";
    QTest::newRow("what is read") << "SET character_set_results = latin1"
                                  << "The connection's character set is not UTF-8 (client utf8mb3, "
                                     "connection utf8mb3, results latin1): letters with accents "
                                     "arrive wrong";
}

void TestCheckDbServer::aConnectionThatIsNotUnicodeIsTold()
{
    QFETCH(QString, statement);
    QFETCH(QString, message);
    const QSqlDatabase db = m_db.openPluginConnection();
    QVERIFY(QSqlQuery(db).exec(statement));
    FindingList report;
    DbCheck check(db, report);
    DbRules::checkConnection(check);
    QCOMPARE(report.findings.size(), 1);
    QCOMPARE(report.findings.first().rule, QString("connection-charset"));
    QCOMPARE(report.findings.first().message, message + '.');
    QCOMPARE(report.findings.first().severity, Severity::Error);
    QVERIFY(!check.isContractBroken());
}

void TestCheckDbServer::aConnectionThatTakesOneStatementAtATimeIsTold()
{
    const QSqlDatabase db = m_db.openPluginConnection();
    QVERIFY(refuseSeveralStatements(db));
    FindingList report;
    DbCheck check(db, report);
    DbRules::checkConnection(check);
    QCOMPARE(report.findings.size(), 1);
    QCOMPARE(report.findings.first().rule, QString("several-statements"));
    QCOMPARE(report.findings.first().message,
             QString("The connection refuses several statements in one text. The plugin does "
                     "without, but where the attendance server uses the same classes, a changed "
                     "time zone does not reach the terminals."));
    QVERIFY(!check.isContractBroken());
}

void TestCheckDbServer::anOrdinaryConnectionIsFine()
{
    FindingList report;
    DbCheck check(m_db.openPluginConnection(), report);
    DbRules::checkConnection(check);
    QCOMPARE(report.findings.size(), 0);
    QCOMPARE(check.unusable(), QString());
}

void TestCheckDbServer::aConnectionThatIsLostEndsTheCheck()
{
    const QSqlDatabase db = m_db.openPluginConnection();
    QSqlQuery query(db);
    QVERIFY(query.exec("SELECT CONNECTION_ID()") && query.next());
    m_db.run("KILL " + query.value(0).toString());
    FindingList report;
    DbCheck check(db, report);
    DbRules::checkServer(check);
    QVERIFY(!check.unusable().isEmpty());
}

void TestCheckDbServer::aServerThatReservesGroupsIsOfNoUse()
{
    TestDatabase other;
    QVERIFY2(other.start({"--version=8.0.35"}), qPrintable(other.errorString()));
    const ToolRun run =
        runTool({"check-db", "--json", "--socket", other.server().socketPath(), "--database",
                 "tepdb", "--user", "yav", "--password-file", other.server().passwordFile()});
    COMPARE_EXIT(run, ExitStatus::ContractBroken);
    const QJsonObject finding = run.findingsOf("groups-reserved").value(0);
    QCOMPARE(finding.value("message").toString(),
             QString("The server is MySQL 8.0.35. There \"groups\" is a reserved word, and the "
                     "plugin's statement that looks up a calendar group, which writes it bare, "
                     "fails for everybody."));
    QCOMPARE(finding.value("advice").toString(), QString("Use MariaDB, or MySQL up to 5.7."));
}

void TestCheckDbServer::versionsAreTakenApart_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("reserves");
    QTest::newRow("MariaDB") << "10.11.6-MariaDB-0+deb12u1-log"
                             << "MariaDB 10.11.6-MariaDB-0+deb12u1-log" << false;
    QTest::newRow("MySQL 5.7") << "5.7.44-log"
                               << "MySQL 5.7.44-log" << false;
    QTest::newRow("MySQL 8") << "8.0.35-0ubuntu0.22.04.1"
                             << "MySQL 8.0.35-0ubuntu0.22.04.1" << true;
    QTest::newRow("MySQL 9") << "9.1.0"
                             << "MySQL 9.1.0" << true;
    QTest::newRow("nothing") << ""
                             << "MySQL " << false;
}

void TestCheckDbServer::versionsAreTakenApart()
{
    QFETCH(QString, text);
    QFETCH(QString, name);
    QFETCH(bool, reserves);
    const ServerVersion version = ServerVersion::parse(text);
    QCOMPARE(version.name(), name);
    QCOMPARE(version.reservesGroups(), reserves);
}

QTEST_GUILESS_MAIN(TestCheckDbServer)
#include "tst_checkdbserver.moc"
