#include "mirovahrctl/preview/previewrun.h"
#include "tests/mirovahrctl/preview/previewbench.h"
#include "tests/worker/support/sampleexport.h"

#include <QRegularExpression>
#include <QTest>

/// Which databases preview refuses to copy, and what it reports about things that it cannot see.
class TestPreviewRefusals : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void anAccountThatMustNotSeeTheRoutines();
    void anAccountThatSeesSingleColumnsOnly();
    void aTableThatIsMissingOrHidden_data();
    void aTableThatIsMissingOrHidden();
    void aRoutineThatIsMissing();
    void aViewInThePlaceOfATable();
    void aForeignKeyToAHiddenTable();
    void aForeignKeyToAnotherDatabase();
    void anotherTimeZone();
    void peopleWhoCannotBeLoaded();
    void branchesThatCannotBeLoaded();
    void aForceFlagThatCannotBeSet();
    void aCopyThatThePluginCannotOpen();

    void hiddenTriggersAreReported();
    void triggersThatTheAccountSeesAreCopied();
    void tablesWithoutASnapshotAreReported();
    void viewsThatARoutineNamesAreReported();
    void whatRoutinesAndKeysNameIsCopied();
    void aTriggerThatNamesTheDatabaseWritesIntoTheCopy();
    void valuesThatADumpWouldRoundOrRefuseAreCopied();
    void routinesKeepTheirModes();
    void nothingOfTheSiteIsWritten();

private:
    PreviewRefusal refusal(const QString &account = QStringLiteral("mirovahrctl"));
    /// Of a synchronisation of the site's database itself.
    PreviewRefusal refusalOfRun();
    PreviewResult accepted(const QString &account = QStringLiteral("mirovahrctl"));

    PreviewBench m_bench;
};

void TestPreviewRefusals::initTestCase()
{
    QVERIFY2(m_bench.start(), qPrintable(m_bench.site().errorString()));
    // The copies' server starts with the settings that the site's server has now.
    init();
    accepted();
}

void TestPreviewRefusals::init()
{
    m_bench.writeExport({SampleExport::jana().with(&ExportRow::prijmeni, "Malá")});
}

void TestPreviewRefusals::cleanup()
{
    m_bench.site().reset();
    m_bench.site().run("REVOKE ALL PRIVILEGES, GRANT OPTION FROM yav@localhost, "
                       "mirovahrctl@localhost");
    m_bench.site().grant("grants.sql");
    m_bench.site().run("SET GLOBAL time_zone = DEFAULT");
}

PreviewRefusal TestPreviewRefusals::refusal(const QString &account)
{
    const PreviewResult result = m_bench.preview(account);
    return result.refusal.value_or(PreviewRefusal{ExitStatus::Fine, "not refused"});
}

PreviewRefusal TestPreviewRefusals::refusalOfRun()
{
    PreviewRun run(Configuration(), m_bench.exportFile().path());
    const bool done = run.run(
        m_bench.site().openPluginConnection(), [](QtMsgType, const QString &) {},
        [](qint64, qint64) {});
    return done ? run.refusal().value_or(PreviewRefusal{ExitStatus::Fine, "not refused"})
                : PreviewRefusal{ExitStatus::Fine, run.errorString()};
}

PreviewResult TestPreviewRefusals::accepted(const QString &account)
{
    const PreviewResult result = m_bench.preview(account);
    if (result.refusal)
        QTest::qFail(qPrintable(result.refusal->sentence), __FILE__, __LINE__);
    return result;
}

void TestPreviewRefusals::anAccountThatMustNotSeeTheRoutines()
{
    m_bench.site().run("REVOKE SELECT ON mysql.proc FROM mirovahrctl@localhost");
    QCOMPARE(refusal().status, ExitStatus::ContractBroken);
    QCOMPARE(refusal().sentence,
             QString("There is no routine updateTermsSync, or this account is not allowed to see "
                     "it: it needs SELECT on mysql.proc. Run check-db for details"));
    m_bench.site().run("GRANT EXECUTE ON PROCEDURE updateTermsSync TO mirovahrctl@localhost");
    QCOMPARE(refusal().status, ExitStatus::NoDatabase);
    QCOMPARE(refusal().sentence,
             QString("This account is not allowed to read the text of the function midnightFromTs: "
                     "it lacks SELECT on mysql.proc"));
}

void TestPreviewRefusals::anAccountThatSeesSingleColumnsOnly()
{
    const PreviewRefusal refused = refusal("yav");
    QCOMPARE(refused.status, ExitStatus::NoDatabase);
    QVERIFY2(refused.sentence.startsWith("This account is not allowed to read the table people: it "
                                         "lacks SELECT on the whole table"),
             qPrintable(refused.sentence));
}

void TestPreviewRefusals::aTableThatIsMissingOrHidden_data()
{
    QTest::addColumn<QString>("sql");
    QTest::newRow("missing") << "DROP TABLE vars";
    QTest::newRow("hidden") << "REVOKE SELECT ON vars FROM mirovahrctl@localhost";
}

void TestPreviewRefusals::aTableThatIsMissingOrHidden()
{
    QFETCH(QString, sql);
    m_bench.site().run(sql);
    QCOMPARE(refusal().status, ExitStatus::ContractBroken);
    QCOMPARE(refusal().sentence,
             QString("There is no table vars, or this account is not allowed to see it: it needs "
                     "SELECT on vars. Run check-db for details"));
}

void TestPreviewRefusals::aRoutineThatIsMissing()
{
    m_bench.site().run("DROP PROCEDURE updateTermsSync");
    QCOMPARE(refusal().status, ExitStatus::ContractBroken);
    QCOMPARE(refusal().sentence,
             QString("There is no routine updateTermsSync, or this account is not allowed to see "
                     "it: it needs SELECT on mysql.proc. Run check-db for details"));
}

void TestPreviewRefusals::aViewInThePlaceOfATable()
{
    m_bench.site().hideTable("funds");
    m_bench.site().run("CREATE VIEW funds AS SELECT * FROM funds_hidden");
    QCOMPARE(refusal().status, ExitStatus::ContractBroken);
    QCOMPARE(refusal().sentence,
             QString("funds is not a table but a view, which cannot be copied"));
}

void TestPreviewRefusals::aForeignKeyToAHiddenTable()
{
    m_bench.site().run("CREATE TABLE departments (did INT UNSIGNED PRIMARY KEY)");
    m_bench.site().run("INSERT INTO departments VALUES (1)");
    m_bench.site().run("ALTER TABLE people ADD FOREIGN KEY (did) REFERENCES departments (did)");
    QCOMPARE(refusal().status, ExitStatus::ContractBroken);
    QCOMPARE(
        refusal().sentence,
        QString("There is no table that people refers to, departments, or this account is not "
                "allowed to see it: it needs SELECT on departments. Run check-db for details"));
}

void TestPreviewRefusals::aForeignKeyToAnotherDatabase()
{
    m_bench.site().run("CREATE DATABASE IF NOT EXISTS other");
    m_bench.site().run("CREATE TABLE other.departments (did INT UNSIGNED PRIMARY KEY)");
    m_bench.site().run("INSERT INTO other.departments VALUES (1)");
    m_bench.site().run(
        "ALTER TABLE people ADD FOREIGN KEY (did) REFERENCES other.departments (did)");
    const PreviewRefusal refused = refusal();
    m_bench.site().run("ALTER TABLE people DROP FOREIGN KEY people_ibfk_1");
    m_bench.site().run("DROP DATABASE other");
    QCOMPARE(refused.status, ExitStatus::ContractBroken);
    QCOMPARE(refused.sentence,
             QString("The table people refers to the database other, which is not copied"));
}

void TestPreviewRefusals::anotherTimeZone()
{
    m_bench.site().run("SET GLOBAL time_zone = '-11:30'");
    QCOMPARE(refusal().status, ExitStatus::Usage);
    QCOMPARE(refusal().sentence,
             QString("The site's server (time zone -11:30) and this program disagree about when "
                     "days begin. Run this program with the TZ of the attendance server"));
}

void TestPreviewRefusals::peopleWhoCannotBeLoaded()
{
    m_bench.site().run("ALTER TABLE people DROP COLUMN title2");
    QCOMPARE(refusal().status, ExitStatus::ContractBroken);
    QCOMPARE(
        refusal().sentence,
        QString("The plugin cannot load the people of this database and would synchronise nobody. "
                "It logs \"MHRWorker::dbLoadPeople() - SQL ERROR [1054]: Unknown column 'p.title2' "
                "in 'SELECT' QMYSQL: Unable to execute query\". Run check-db for details"));
}

void TestPreviewRefusals::branchesThatCannotBeLoaded()
{
    m_bench.site().hideTable("branches");
    m_bench.site().run("CREATE FUNCTION refuseValue() RETURNS INT BEGIN SIGNAL SQLSTATE '45000' SET"
                       " MESSAGE_TEXT = 'refused by the test'; RETURN 0; END");
    // Nobody belongs to branch 4, so the query of the people does not read its number.
    m_bench.site().run("CREATE VIEW branches AS SELECT bid, IF(bid = 4, refuseValue(), number)"
                       " number, mgid FROM branches_hidden");
    const PreviewRefusal refused = refusalOfRun();
    QCOMPARE(refused.status, ExitStatus::ContractBroken);
    QCOMPARE(
        refused.sentence,
        QString("The plugin cannot load the branches of this database; everybody whom it writes "
                "would lose the branch. It logs \"MHRWorker::dbLoadBranches() - SQL ERROR [1644]: "
                "refused by the test QMYSQL: Unable to store result\". Run check-db for details"));
}

void TestPreviewRefusals::aForceFlagThatCannotBeSet()
{
    m_bench.site().run("ALTER TABLE vars RENAME COLUMN value TO content");
    QCOMPARE(refusal().status, ExitStatus::ContractBroken);
    QVERIFY2(
        refusal().sentence.startsWith(
            "The copy cannot be synchronised: The force flag cannot be written: variableSet ERROR: "
            "\"Unknown column 'value' in 'INSERT INTO'"),
        qPrintable(refusal().sentence));
}

void TestPreviewRefusals::aCopyThatThePluginCannotOpen()
{
    m_bench.site().run("GRANT USAGE ON *.* TO yav@localhost WITH MAX_USER_CONNECTIONS 1");
    const PreviewRefusal refused = refusalOfRun();
    m_bench.site().run("GRANT USAGE ON *.* TO yav@localhost WITH MAX_USER_CONNECTIONS 0");
    QCOMPARE(refused.status, ExitStatus::NoDatabase);
    QVERIFY2(refused.sentence.startsWith("The plugin cannot open the copy. It logs "
                                         "\"MHRWorker::dbCheckOpen() - SQL ERROR: User 'yav'"),
             qPrintable(refused.sentence));
}

void TestPreviewRefusals::hiddenTriggersAreReported()
{
    QCOMPARE(accepted().schema.tablesWithHiddenTriggers.join(' '),
             QString("people people_pam atten brape groups_plan groups_month funds_move "
                     "admins_people term term_sync people_term vars"));
    m_bench.site().run("GRANT TRIGGER ON people TO mirovahrctl@localhost");
    QCOMPARE(accepted().schema.tablesWithHiddenTriggers.join(' '),
             QString("people_pam atten brape groups_plan groups_month funds_move admins_people "
                     "term term_sync people_term vars"));
    QCOMPARE(accepted("root").schema.tablesWithHiddenTriggers, QStringList());
}

void TestPreviewRefusals::triggersThatTheAccountSeesAreCopied()
{
    m_bench.site().run("CREATE TRIGGER loud BEFORE UPDATE ON people FOR EACH ROW "
                       "SET NEW.surname = UPPER(NEW.surname)");
    QVERIFY(accepted().sql.contains("`surname` = 'Malá'"));
    m_bench.site().run("GRANT TRIGGER ON tepdb.* TO mirovahrctl@localhost");
    QVERIFY(accepted().sql.contains("`surname` = 'MALÁ'"));
    QCOMPARE(accepted().schema.tablesWithHiddenTriggers, QStringList());
}

void TestPreviewRefusals::tablesWithoutASnapshotAreReported()
{
    m_bench.site().run("ALTER TABLE vars ENGINE=MyISAM");
    QCOMPARE(accepted().schema.tablesOutsideSnapshot, QStringList{"vars"});
}

void TestPreviewRefusals::viewsThatARoutineNamesAreReported()
{
    m_bench.site().run("CREATE VIEW colours AS SELECT * FROM funds");
    m_bench.site().run("DROP FUNCTION getCurrentGid");
    m_bench.site().run("CREATE FUNCTION getCurrentGid(a INT UNSIGNED, b INT UNSIGNED, c INT "
                       "UNSIGNED) RETURNS INT UNSIGNED READS SQL DATA RETURN (SELECT COUNT(*) FROM "
                       "colours)");
    QCOMPARE(accepted("root").schema.namedViews, QStringList{"colours"});
}

void TestPreviewRefusals::whatRoutinesAndKeysNameIsCopied()
{
    m_bench.site().run("CREATE TABLE departments (did INT UNSIGNED PRIMARY KEY)");
    m_bench.site().run("INSERT INTO departments VALUES (1)");
    m_bench.site().run("ALTER TABLE people ADD FOREIGN KEY (did) REFERENCES departments (did)");
    m_bench.site().run("CREATE TABLE `my words` (word TEXT)");
    m_bench.site().run("CREATE TABLE untouched (word TEXT)");
    m_bench.site().run("CREATE PROCEDURE note() INSERT INTO `my words` VALUES ('a')");
    m_bench.site().run("CREATE TRIGGER t AFTER UPDATE ON people FOR EACH ROW CALL note()");
    const PreviewResult result = accepted("root");
    QStringList tables;
    for (const PreviewTable &table : result.schema.tables)
        tables += table.name;
    QVERIFY(tables.contains("departments"));
    QVERIFY(tables.contains("my words"));
    QVERIFY(!tables.contains("untouched"));
    QVERIFY(!tables.contains("sections"));
    QCOMPARE(result.described().filter("my words"),
             QStringList{"other | my words | new row: word |  -> a"});
}

void TestPreviewRefusals::aTriggerThatNamesTheDatabaseWritesIntoTheCopy()
{
    m_bench.site().run("CREATE TABLE trail (uid INT UNSIGNED)");
    m_bench.site().run("CREATE TRIGGER t AFTER UPDATE ON people FOR EACH ROW INSERT INTO "
                       "tepdb.trail VALUES (NEW.uid)");
    QVERIFY(accepted("root").sql.contains("INSERT INTO `trail` (`uid`) VALUES (4)"));
    QCOMPARE(m_bench.site().value("SELECT COUNT(*) FROM trail").toInt(), 0);
}

/// The exact value of a FLOAT, and a row from before its table got the constraint that it breaks.
void TestPreviewRefusals::valuesThatADumpWouldRoundOrRefuseAreCopied()
{
    m_bench.site().run("CREATE TABLE trail (measured FLOAT)");
    m_bench.site().run("INSERT INTO trail VALUES (9999.9990234375)");
    m_bench.site().run("SET SESSION check_constraint_checks = 0");
    m_bench.site().run("ALTER TABLE trail ADD CHECK (measured < 5000)");
    m_bench.site().run("SET SESSION check_constraint_checks = 1");
    m_bench.site().run("CREATE TRIGGER t AFTER UPDATE ON people FOR EACH ROW DELETE FROM trail");
    QVERIFY(accepted("root").sql.contains("WHERE `measured` <=> 9999.9990234375 LIMIT 1"));
}

void TestPreviewRefusals::routinesKeepTheirModes()
{
    m_bench.site().run("SET SESSION sql_mode = 'ANSI_QUOTES,PIPES_AS_CONCAT'");
    m_bench.site().run("CREATE TRIGGER t BEFORE UPDATE ON people FOR EACH ROW "
                       "SET NEW.\"surname\" = NEW.surname || '-' || NEW.uid");
    m_bench.site().run("SET SESSION sql_mode = DEFAULT");
    QVERIFY(accepted("root").sql.contains("`surname` = 'Malá-4'"));
}

void TestPreviewRefusals::nothingOfTheSiteIsWritten()
{
    const DatabaseState before = m_bench.site().dumpAll();
    m_bench.site().clearStatements();
    accepted();
    QCOMPARE(TestDatabase::difference(before, m_bench.site().dumpAll()), QString());
    const TableRows statements = m_bench.site().rows(
        "SELECT CONVERT(argument USING utf8mb4) FROM mysql.general_log WHERE user_host LIKE "
        "'%mirovahrctl%' AND command_type IN ('Query', 'Execute', 'Prepare')");
    QVERIFY(statements.size() > 60);
    static const QRegularExpression reading("^(SELECT|SHOW|SET (NAMES|SESSION)|START TRANSACTION "
                                            "WITH CONSISTENT SNAPSHOT$|COMMIT$)");
    for (const QStringList &statement : statements)
        QVERIFY2(reading.match(statement.first()).hasMatch(), qPrintable(statement.first()));
    QCOMPARE(statements.at(2).first(), QString("SET SESSION TRANSACTION READ ONLY"));
}

QTEST_GUILESS_MAIN(TestPreviewRefusals)
#include "tst_previewrefusals.moc"
