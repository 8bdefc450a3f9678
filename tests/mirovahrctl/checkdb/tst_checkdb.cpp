#include "tests/mirovahrctl/program/rulefixtures.h"
#include "tests/mirovahrctl/program/toolrun.h"
#include "tests/support/mysqlproxy.h"
#include "tests/support/testdatabase.h"

#include <QJsonDocument>
#include <QTemporaryFile>
#include <QTest>
#include <QVersionNumber>

#include <ctime>

namespace {

const char kZone[] = "Europe/Bratislava";

const QString kWideBranchIds =
    "ALTER TABLE branches MODIFY bid INT UNSIGNED NOT NULL AUTO_INCREMENT\n";
const QString kWideAdminIds = "ALTER TABLE admins MODIFY aid INT UNSIGNED NOT NULL AUTO_INCREMENT\n"
                              "ALTER TABLE admins_people MODIFY aid INT UNSIGNED NOT NULL\n";

/// The right to change a routine goes with it.
QString replaceFunction(const QString &name, const QString &arguments, const QString &body)
{
    return QStringLiteral("CREATE OR REPLACE FUNCTION %1(%2) RETURNS BIGINT"
                          " READS SQL DATA SQL SECURITY INVOKER RETURN %3")
        .arg(name, arguments, body);
}

QString replaceProcedure(const QString &arguments, const QString &body)
{
    return QStringLiteral("CREATE OR REPLACE PROCEDURE updateTermsSync(%1)"
                          " MODIFIES SQL DATA SQL SECURITY INVOKER %2")
        .arg(arguments, body);
}

/// The message, with the moments that depend on today replaced by "#".
QString steady(QString message, const QString &rule, const QString &field)
{
    const bool dependsOnToday =
        rule == "time-zone" || field == "midnightFromTs" || field == "monthFromTimestamp";
    return dependsOnToday ? message.replace(QRegularExpression("[0-9]{4}[0-9-]*"), "#") : message;
}

} // namespace

/// check-db on databases that each violate one requirement.
class TestCheckDb : public QObject {
    Q_OBJECT

public:
    static void initMain()
    {
        qputenv("TZ", kZone);
        tzset();
    }

private Q_SLOTS:
    void initTestCase();
    void init();

    void theReferenceDatabaseIsFine();
    void theTextReportNamesWhatWasChecked();

    void violationsAreReported_data();
    void violationsAreReported();
    void warningsAreReported_data();
    void warningsAreReported();
    void aBrokenDatabaseIsReportedInFull();

    void theSiteMayHaveMore_data();
    void theSiteMayHaveMore();
    void everyRowMayHaveANumberOfItsOwn();
    void noRowNeedsANumberOfItsOwn();
    void aServerThatIsAloneHasNoOtherNodes();
    void aLiteralBackslashIsNoted();

    void everyTableIsRequired_data();
    void everyTableIsRequired();
    void everyColumnIsRequired_data();
    void everyColumnIsRequired();
    void everyKeyIsRequired_data();
    void everyKeyIsRequired();
    void whatTheConfigurationWritesFits_data();
    void whatTheConfigurationWritesFits();
    void whatTheConfigurationWritesDoesNotFit_data();
    void whatTheConfigurationWritesDoesNotFit();
    void lettersOfAStateThatTheColumnLacks();
    void aConfigurationThatIsNotThereIsBadUsage();

    void aDifferentClockIsReported();
    void countingFoundRowsIsAViolation_data();
    void countingFoundRowsIsAViolation();

    void aConnectionThatWaitsForEverIsReported_data();
    void aConnectionThatWaitsForEverIsReported();
    void theConnectionOfAnotherAccountMayWait();

    void nothingIsWritten();
    void aProcedureThatWritesForEverybodyIsStopped();

    void aPayrollExportThatCannotBeReadIsNotMissing();
    void anUnreachableServerIsNoDatabase();
    void withoutAServerTheUsageIsWrong();
    void theHelpSaysHowToConnect();
    void everyRuleHasItsFixtures();

private:
    QStringList connection();
    ToolRun check(const QStringList &more = {});
    ToolRun checkWithConfiguration(const QString &text);
    void apply(const QString &change);
    void compareOnlyFinding(const ToolRun &run, ExitStatus status);

    TestDatabase m_db;
};

void TestCheckDb::initTestCase()
{
    QVERIFY2(m_db.start(), qPrintable(m_db.errorString()));
    // The rules cannot find what is hidden from the account.
    const TableRows tables = m_db.rows("SHOW TABLES");
    for (const QStringList &table : tables)
        m_db.run(QStringLiteral("GRANT SELECT ON `%1` TO yav@localhost").arg(table.first()));
}

void TestCheckDb::init()
{
    m_db.run("SET GLOBAL sql_mode = DEFAULT");
    m_db.run("SET GLOBAL time_zone = DEFAULT");
    m_db.run("SET GLOBAL init_connect = ''");
    m_db.run("SET GLOBAL read_only = 0");
    m_db.run("SET GLOBAL innodb_force_primary_key = 0");
    m_db.run("SET GLOBAL enforce_storage_engine = NULL");
    m_db.run("SET GLOBAL default_tmp_storage_engine = NULL");
    m_db.reset();
}

QStringList TestCheckDb::connection()
{
    return {
        "--socket", m_db.server().socketPath(), "--database",      m_db.server().databaseName(),
        "--user",   m_db.server().userName(),   "--password-file", m_db.server().passwordFile()};
}

ToolRun TestCheckDb::check(const QStringList &more)
{
    return runTool(QStringList{"check-db", "--json"} + connection() + kTimeouts + more);
}

ToolRun TestCheckDb::checkWithConfiguration(const QString &text)
{
    QTemporaryFile file;
    if (!file.open() || file.write(text.toUtf8()) < 0 || !file.flush())
        qFatal("%s cannot be written", qPrintable(file.fileName()));
    return check({"--config", file.fileName()});
}

/// Runs the statements of a change, one a line.
void TestCheckDb::apply(const QString &change)
{
    const QStringList statements = change.split('\n');
    for (const QString &statement : statements)
        m_db.run(statement);
}

void TestCheckDb::theReferenceDatabaseIsFine()
{
    const ToolRun run = check();
    COMPARE_EXIT(run, ExitStatus::Fine);
    QCOMPARE(run.findings(), QJsonArray());
    QCOMPARE(run.json().value("verdict").toString(),
             QString("The database meets the plugin's requirements."));
    const QJsonObject facts = run.json().value("facts").toObject();
    QCOMPARE(facts.value("server").toString(),
             QString("MariaDB ") + m_db.value("SELECT VERSION()").toString());
    QCOMPARE(facts.value("account").toString(), QString("yav@localhost"));
    QCOMPARE(facts.value("severalStatements"), QJsonValue(true));
    QCOMPARE(facts.value("timeZone").toString(), QString(kZone));
    const auto version = QVersionNumber::fromString(m_db.value("SELECT VERSION()").toString());
    QCOMPARE(facts.value("timeAfter2038"), QJsonValue(version >= QVersionNumber(11, 5)));
}

void TestCheckDb::theTextReportNamesWhatWasChecked()
{
    const ToolRun run = runTool(QStringList{"check-db"} + connection() + kTimeouts);
    COMPARE_EXIT(run, ExitStatus::Fine);
    QVERIFY2(
        run.out.startsWith("Database tepdb\n==============\n\nServer\n------\nServer: MariaDB "),
        run.report().constData());
    for (const char *line :
         {"The server and its SQL mode are suitable for the plugin.",
          "The connection works as the plugin requires.",
          "The server and this program agree about time.",
          "All tables and columns exist, and new rows can be inserted.",
          "check-file checks HR's, and --config lets this check those of the INI file.",
          "people.surname     80          utf8mb4", "The unique keys are as the plugin requires.",
          "The server accepts them where they are used.",
          "The server finds their rows without walking a large table.",
          "The account has the rights that the plugin needs, and hardly more.",
          "The routines work as the plugin requires.",
          "The data meets the plugin's requirements."}) {
        QVERIFY2(run.out.contains(QString::fromUtf8(line) + '\n'), line);
    }
    QVERIFY(run.out.endsWith("\n\nThe database meets the plugin's requirements.\n"));
}

void TestCheckDb::compareOnlyFinding(const ToolRun &run, ExitStatus status)
{
    QFETCH(QString, rule);
    QFETCH(QString, field);
    QFETCH(QString, message);
    COMPARE_EXIT(run, status);
    QVERIFY2(run.rules() == QStringList(rule), run.report().constData());
    const QJsonObject finding = run.findings().first().toObject();
    QCOMPARE(steady(finding.value("message").toString(), rule, field), message + '.');
    QCOMPARE(finding.value("field").toString(), field);
}

void TestCheckDb::violationsAreReported_data()
{
    QTest::addColumn<QString>("change");
    QTest::addColumn<QString>("rule");
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("message");

    QTest::newRow("grouping by every column")
        << "SET GLOBAL sql_mode = 'STRICT_TRANS_TABLES,ONLY_FULL_GROUP_BY'"
        << "sql-mode-group-by"
        << ""
        << "The SQL mode ONLY_FULL_GROUP_BY is on: the statements that rebuild groups_month and "
           "queue a time zone for the terminals fail";
    QTest::newRow("empty texts are NULL")
        << "SET GLOBAL sql_mode = 'STRICT_TRANS_TABLES,EMPTY_STRING_IS_NULL'"
        << "sql-mode-empty-null"
        << ""
        << "The SQL mode EMPTY_STRING_IS_NULL is on: people without a title or telephone cannot be "
           "written to columns that do not allow NULL";
    QTest::newRow("a server that takes no writes")
        << "SET GLOBAL read_only = 1"
        << "server-read-only"
        << ""
        << "The server is read-only: every write of the plugin fails";

    QTest::newRow("another zone")
        << "SET GLOBAL time_zone = '+05:30'"
        << "time-zone"
        << ""
        << "The server (time zone +05:30) and this program (Europe/Bratislava) disagree about when "
           "days begin, such as #. Days of attendance and vacation would be missed or duplicated";
    QTest::newRow("a zone without daylight saving")
        << "SET GLOBAL time_zone = '+01:00'"
        << "time-zone"
        << ""
        << "The server (time zone +01:00) and this program (Europe/Bratislava) disagree about when "
           "days begin, such as #. Days of attendance and vacation would be missed or duplicated";

    QTest::newRow("no table")
        << "DROP TABLE mastergroups"
        << "table-missing"
        << "mastergroups"
        << "The table mastergroups does not exist, or the account has no rights on it";
    QTest::newRow("no column")
        << "ALTER TABLE people DROP COLUMN phone"
        << "column-missing"
        << "people.phone"
        << "The column people.phone does not exist, or the account has no rights on it";
    QTest::newRow("a column that must be filled")
        << "ALTER TABLE people ADD card VARCHAR(20) NOT NULL"
        << "column-without-default"
        << "people.card"
        << "The column people.card has no default value and does not allow NULL: in strict SQL "
           "modes the plugin's new rows, which leave it out, are refused";
    QTest::newRow("a column that one of two inserts leaves out")
        << "ALTER TABLE admins_people MODIFY request TINYINT UNSIGNED NOT NULL"
        << "column-without-default"
        << "admins_people.request"
        << "The column admins_people.request has no default value and does not allow NULL: in "
           "strict SQL modes the plugin's new rows, which leave it out, are refused";
    QTest::newRow("new people are inactive")
        << "ALTER TABLE people ALTER status SET DEFAULT 0"
        << "status-default"
        << "people.status"
        << "The default of people.status is not 1: people whom the plugin creates are inactive "
           "until their line of the export changes";

    QTest::newRow("a date instead of a number")
        << "ALTER TABLE term_sync MODIFY created DATETIME NOT NULL"
        << "column-kind"
        << "term_sync.created"
        << "The column term_sync.created is datetime; the plugin writes numbers into it";
    QTest::newRow("a number instead of a text")
        << "ALTER TABLE term_sync MODIFY ref INT NOT NULL"
        << "column-kind"
        << "term_sync.ref"
        << "The column term_sync.ref is int(11); the plugin writes texts into it";
    QTest::newRow("an end that must be known")
        << "UPDATE people SET `end` = 0 WHERE `end` IS NULL\n"
           "ALTER TABLE people MODIFY `end` BIGINT NOT NULL DEFAULT 0"
        << "column-not-null"
        << "people.end"
        << "The column people.end (employed until) does not allow NULL, which the plugin writes "
           "for people who have none";

    QTest::newRow("no key") << "ALTER TABLE brape DROP PRIMARY KEY"
                            << "key-missing"
                            << "brape"
                            << "The table brape has no unique key on exactly bid, uid: the plugin "
                               "inserts a second row instead of updating the first";
    QTest::newRow("a key that is not unique")
        << "ALTER TABLE people DROP KEY pid, ADD KEY (pid)"
        << "key-missing"
        << "people"
        << "The table people has no unique key on exactly pid: the plugin inserts a second row "
           "instead of updating the first";
    QTest::newRow("a key on more")
        << "ALTER TABLE people_pam DROP PRIMARY KEY, ADD PRIMARY KEY (uid, id)"
        << "key-missing"
        << "people_pam"
        << "The table people_pam has no unique key on exactly uid: the plugin inserts a second row "
           "instead of updating the first";
    QTest::newRow("numbers that are not automatic")
        << "ALTER TABLE people MODIFY uid INT UNSIGNED NOT NULL DEFAULT 0"
        << "not-automatic"
        << "people.uid"
        << "The column people.uid is not AUTO_INCREMENT: the plugin leaves its value to the server";

    QTest::newRow("no function")
        << "DROP FUNCTION getCurrentGid"
        << "routine-missing"
        << "getCurrentGid"
        << "The routine getCurrentGid does not exist, or the account may not call it";
    QTest::newRow("no procedure")
        << "DROP PROCEDURE updateTermsSync"
        << "routine-missing"
        << "updateTermsSync"
        << "The routine updateTermsSync does not exist, or the account may not call it";
    QTest::newRow("a function with another argument")
        << replaceFunction("midnightFromTs", "t BIGINT, u BIGINT", "t") << "routine-arguments"
        << "midnightFromTs"
        << "The routine midnightFromTs takes a different number of arguments from what the plugin "
           "passes";
    QTest::newRow("a procedure with another argument")
        << replaceProcedure("u INT", "DO 1") << "routine-arguments"
        << "updateTermsSync"
        << "The routine updateTermsSync takes a different number of arguments from what the plugin "
           "passes";
    QTest::newRow("a function that fails")
        << replaceFunction("monthFromTimestamp", "t BIGINT", "(SELECT nothing FROM nowhere)")
        << "routine-fails"
        << "monthFromTimestamp"
        << "The routine monthFromTimestamp fails: SELECT command denied to user 'yav'@'localhost' "
           "for table `tepdb`.`nowhere`";
    QTest::newRow("a procedure that fails")
        << replaceProcedure("u INT, f INT", "DO (SELECT nothing FROM nowhere)") << "routine-fails"
        << "updateTermsSync"
        << "The routine updateTermsSync fails: SELECT command denied to user 'yav'@'localhost' for "
           "table `tepdb`.`nowhere`";
    QTest::newRow("midnights of another zone")
        << replaceFunction("midnightFromTs", "t BIGINT", "t - t % 86400") << "routine-wrong"
        << "midnightFromTs"
        << "The function midnightFromTs returns a wrong result: midnightFromTs(#) gives #, not #";
    QTest::newRow("no midnights") << replaceFunction("midnightFromTs", "t BIGINT", "NULL")
                                  << "routine-wrong"
                                  << "midnightFromTs"
                                  << "The function midnightFromTs returns a wrong result: "
                                     "midnightFromTs(#) gives NULL, not #";
    QTest::newRow("midnights of days of 24 hours")
        << replaceFunction("midnightFromTs", "t BIGINT", "t - TIME_TO_SEC(TIME(FROM_UNIXTIME(t)))")
        << "routine-wrong"
        << "midnightFromTs"
        << "The function midnightFromTs returns a wrong result: midnightFromTs(#) gives #, not #";
    QTest::newRow("months counted from 0") << replaceFunction(
        "monthFromTimestamp", "t BIGINT", "EXTRACT(YEAR_MONTH FROM FROM_UNIXTIME(t)) - 1")
                                           << "routine-wrong"
                                           << "monthFromTimestamp"
                                           << "The function monthFromTimestamp returns a wrong "
                                              "result: monthFromTimestamp(#) gives #, not #";
    QTest::newRow("the group of another month")
        << replaceFunction("getCurrentGid", "u INT, m INT, d INT",
                           "COALESCE((SELECT gid FROM groups_plan WHERE uid = u"
                           " ORDER BY since DESC LIMIT 1), d)")
        << "routine-wrong"
        << "getCurrentGid"
        << "The function getCurrentGid returns a wrong result: getCurrentGid(4, 201904, 7) gives "
           "13, not 11";
    QTest::newRow("no default group")
        << replaceFunction("getCurrentGid", "u INT, m INT, d INT",
                           "(SELECT gid FROM groups_plan WHERE uid = u AND since <= m"
                           " ORDER BY since DESC LIMIT 1)")
        << "routine-wrong"
        << "getCurrentGid"
        << "The function getCurrentGid returns a wrong result: getCurrentGid(0, 202401, 7) gives "
           "NULL, not 7";
    QTest::newRow("a group for nobody")
        << replaceFunction("getCurrentGid", "u INT, m INT, d INT",
                           "COALESCE((SELECT gid FROM groups_plan WHERE uid = u AND since <= m"
                           " ORDER BY since DESC LIMIT 1), d, 0)")
        << "routine-wrong"
        << "getCurrentGid"
        << "The function getCurrentGid returns a wrong result: getCurrentGid(0, 202401, NULL) "
           "gives 0, not NULL";
}

void TestCheckDb::violationsAreReported()
{
    QFETCH(QString, change);
    apply(change);
    compareOnlyFinding(check(), ExitStatus::ContractBroken);
}

void TestCheckDb::warningsAreReported_data()
{
    QTest::addColumn<QString>("change");
    QTest::addColumn<QString>("rule");
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("message");

    QTest::newRow("no strict mode")
        << "SET GLOBAL sql_mode = ''"
        << "sql-mode-not-strict"
        << ""
        << "No strict SQL mode is on: texts longer than their column are cut and numbers that do "
           "not fit are altered without any message";
    QTest::newRow("dates to 2038")
        << "ALTER TABLE people MODIFY `end` INT NULL"
        << "column-too-narrow"
        << "people.end"
        << "The column people.end is int(11); it holds only times from 1901-12-13 to 2038-01-19, "
           "and the plugin may write others into it (employed until). Values that do not fit are "
           "refused, or altered where no strict SQL mode is on";
    QTest::newRow("no negative dates")
        << "ALTER TABLE people MODIFY lastCalc BIGINT UNSIGNED NOT NULL DEFAULT 0"
        << "column-too-narrow"
        << "people.lastCalc"
        << "The column people.lastCalc is bigint(20) unsigned; it holds only times from "
           "1970-01-01 on, and the plugin may write others into it (attendance recalculated from). "
           "Values that do not fit are refused, or altered where no strict SQL mode is on";
    QTest::newRow("no negative days")
        << "ALTER TABLE atten MODIFY ok TINYINT UNSIGNED NOT NULL DEFAULT 1"
        << "column-too-narrow"
        << "atten.ok"
        << "The column atten.ok is tinyint(3) unsigned; the plugin writes -1 into it (below 0: "
           "to be calculated). Values that do not fit are refused, or altered where no strict SQL "
           "mode is on";
    QTest::newRow("small moves")
        << "ALTER TABLE funds_move MODIFY value DECIMAL(7, 2) NOT NULL"
        << "column-too-narrow"
        << "funds_move.value"
        << "The column funds_move.value is decimal(7,2); the plugin writes -2147483648 to "
           "2147483647 into it (hundredths of a day). Values that do not fit are refused, or "
           "altered where no strict SQL mode is on";
    QTest::newRow("inexact pids")
        << "ALTER TABLE people MODIFY pid FLOAT NOT NULL"
        << "column-too-narrow"
        << "people.pid"
        << "The column people.pid is float; the plugin writes 0 to 4294967295 into it (pid). "
           "Values that do not fit are refused, or "
           "altered where no strict SQL mode is on";
    QTest::newRow("fewer ids than people have")
        << "ALTER TABLE brape MODIFY uid SMALLINT UNSIGNED NOT NULL"
        << "column-too-narrow"
        << "brape.uid"
        << "The column brape.uid is smallint(5) unsigned; the plugin writes 0 to 4294967295 into "
           "it (what people.uid holds). Values that do not fit are refused, or altered where no "
           "strict SQL mode is on";
    QTest::newRow("a department of 8 bits")
        << "ALTER TABLE people MODIFY did TINYINT UNSIGNED NULL"
        << "column-too-narrow"
        << "people.did"
        << "The column people.did is tinyint(3) unsigned; the plugin writes 1 to 4294967295 into "
           "it (department). Values that do not fit are refused, or altered where no strict SQL "
           "mode is on";
    QTest::newRow("a department that must be known")
        << "ALTER TABLE people MODIFY did INT UNSIGNED NOT NULL DEFAULT 0"
        << "column-not-null"
        << "people.did"
        << "The column people.did (department) does not allow NULL, which the plugin writes for "
           "people who have none";
    QTest::newRow("calendars of 16 bits")
        << "ALTER TABLE people MODIFY calendarID SMALLINT UNSIGNED NOT NULL DEFAULT 0"
        << "column-too-narrow"
        << "people.calendarID"
        << "The column people.calendarID is smallint(5) unsigned; the plugin writes 0 to "
           "4294967295 into it (HR's calendar). Values that do not fit are refused, or altered "
           "where no strict SQL mode is on";
    QTest::newRow("short texts")
        << "ALTER TABLE people MODIFY pamId VARCHAR(20) NOT NULL DEFAULT ''"
        << "column-too-narrow"
        << "people.pamId"
        << "The column people.pamId is varchar(20); the plugin writes up to 21 characters into "
           "it. Values that do not fit are refused, or altered where no strict SQL mode is on";
    QTest::newRow("another character set")
        << "ALTER TABLE people MODIFY surname VARCHAR(80) CHARACTER SET latin2 NOT NULL DEFAULT ''"
        << "column-charset"
        << "people.surname"
        << "The column people.surname has the character set latin2: letters that it lacks are "
           "refused, or stored as question marks where no strict SQL mode is on";
    QTest::newRow("no transactions")
        << "ALTER TABLE admins_people ENGINE = Aria TRANSACTIONAL = 0"
        << "not-transactional"
        << "admins_people"
        << "The table admins_people does not support transactions: if a supervisor cannot be set, "
           "the previous one loses the person's requests all the same";

    QTest::newRow("a primary key is forced")
        << "SET GLOBAL innodb_force_primary_key = 1"
        << "temporary-table-refused"
        << ""
        << "The server has innodb_force_primary_key = ON: CREATE TEMPORARY TABLE "
           "tmptbl_updateTermsSyncTZ fails with error 1173. The plugin does not need it, but where "
           "the attendance server uses the same classes, a changed time zone does not reach the "
           "terminals";
    QTest::newRow("an engine is forced")
        << "SET GLOBAL enforce_storage_engine = MyISAM"
        << "temporary-table-refused"
        << ""
        << "The server has enforce_storage_engine = MyISAM: CREATE TEMPORARY TABLE "
           "tmptbl_updateTermsSyncTZ fails with error 1290. The plugin does not need it, but where "
           "the attendance server uses the same classes, a changed time zone does not reach the "
           "terminals";

    QTest::newRow("no key of another component")
        << "ALTER TABLE bas DROP PRIMARY KEY"
        << "key-missing-elsewhere"
        << "bas"
        << "The table bas has no unique key on exactly attrid, bid, secid: another component of "
           "the attendance server inserts a second row instead of updating the first";
    QTest::newRow("groups that are there twice")
        << "ALTER TABLE `groups` MODIFY gid INT UNSIGNED NOT NULL, DROP PRIMARY KEY"
        << "identity-missing"
        << "groups"
        << "The table groups has no unique key on gid: of two rows with the same value, either may "
           "be used";
    QTest::newRow("a further key")
        << "ALTER TABLE brape ADD UNIQUE KEY one_branch (uid, since)"
        << "key-unexpected"
        << "brape"
        << "The table brape has a unique key one_branch on since, uid: a row that the plugin "
           "inserts can collide with another row in it and change that one instead";

    QTest::newRow("a further key whose column is the same in every new row")
        << "ALTER TABLE people_term ADD place INT NOT NULL DEFAULT 0\n"
           "UPDATE people_term SET place = tid * 100 + uid\n"
           "ALTER TABLE people_term ADD UNIQUE KEY one_place (place)"
        << "key-unexpected"
        << "people_term"
        << "The table people_term has a unique key one_place on place: a row that the plugin "
           "inserts can collide with another row in it and change that one instead";

    QTest::newRow("no vacation fund") << "DELETE FROM funds WHERE iid = 3 AND unit = 2"
                                      << "vacation-fund-none"
                                      << "funds"
                                      << "There is no vacation fund (a row of funds with iid 3 and "
                                         "unit 2): vacation balances are not synchronised";
    QTest::newRow("two vacation funds")
        << "INSERT INTO funds (fid, iid, unit) VALUES (9, 3, 2)"
        << "vacation-fund-several"
        << "funds"
        << "There are several vacation funds (iid 3, unit 2): 2, 9. The plugin uses the first that "
           "the server happens to return";
    QTest::newRow("a vacation fund with a large number")
        << "UPDATE funds SET fid = 65536 WHERE iid = 3 AND unit = 2"
        << "vacation-fund-number"
        << "funds"
        << "The vacation fund has the number 65536; the plugin keeps 16 bits of it and would write "
           "to another fund";
    QTest::newRow("months of days that the server knows only")
        << replaceFunction("monthFromTimestamp", "t BIGINT",
                           "EXTRACT(YEAR_MONTH FROM FROM_UNIXTIME(t))")
        << "routine-late-days"
        << "monthFromTimestamp"
        << "The function monthFromTimestamp fails for days beyond the server's range (Truncated "
           "incorrect unixtime value: '#'). A single such day of attendance, for example with a "
           "mistyped year, keeps every month of that person from being filled";
    QTest::newRow("no payroll export")
        << "DELETE FROM vars WHERE name = 'exportPam.1.active'"
        << "payroll-export-none"
        << "vars"
        << "There is no payroll export. The plugin adds new people to one only when there is "
           "exactly one key exportPam.N.active in vars, whatever its value";
    QTest::newRow("two payroll exports")
        << "INSERT INTO vars (name, value) VALUES ('exportPam.2.active', '0')"
        << "payroll-export-several"
        << "vars"
        << "There are several payroll exports: exportPam.1.active, exportPam.2.active. The plugin "
           "adds new people to one only when there is exactly one key exportPam.N.active in vars, "
           "whatever its value";
    QTest::newRow("a short selection")
        << "ALTER TABLE vars MODIFY value VARCHAR(41) NULL"
        << "selection-width"
        << "vars.value"
        << "The column vars.value holds 41 characters; the selection of the payroll export would "
           "need 42 to name every active person";
    QTest::newRow("two branches of a cost centre")
        << "UPDATE branches SET number = 120 WHERE bid = 3"
        << "branch-number-twice"
        << "branches.number"
        << "Several branches have the same number: 120. People of that cost centre are placed in "
           "any of them";
    QTest::newRow("a branch with a large id")
        << kWideBranchIds + "UPDATE branches SET bid = 70000 WHERE bid = 3"
        << "branch-id-large"
        << "branches.bid"
        << "The ids of these branches exceed 16 bits: 70000. Members are added to another branch, "
           "or to none";
    QTest::newRow("two groups of a calendar")
        << "INSERT INTO `groups` (gid, parent, calendarID) VALUES (14, 1, 2)"
        << "calendar-twice"
        << "groups.calendarID"
        << "Several calendar groups have the same calendar: 2 of master group 1. People are placed "
           "in any of them";
    QTest::newRow("administrators with large ids")
        << kWideAdminIds + "UPDATE admins SET aid = aid + 65533 WHERE aid > 1"
        << "admin-id-large"
        << "admins.aid"
        << "The ids of these administrators exceed 16 bits: 65536, 65537. The plugin writes them "
           "correctly, but other components of the attendance server that use its repository "
           "classes keep only 16 bits: people are assigned to another administrator, or to none";
    QTest::newRow("two supervisors of a number")
        << "UPDATE admins SET personalNumber = 1001 WHERE aid = 4"
        << "supervisor-twice"
        << "admins.personalNumber"
        << "Several administrators have the same personal number: 1001. Any of them gets the "
           "requests";
    QTest::newRow("another payroll id than the pid")
        << "UPDATE people SET pamId = '1234.2' WHERE pid = 12341"
        << "payroll-id-strange"
        << "people.pamId"
        << "The pid and pamId of these active people disagree: 12341 (1234.2). The plugin looks a "
           "person up by pamId and writes by pid: it changes nobody, or treats the person as new";
    QTest::newRow("a payroll id without relationship")
        << "UPDATE people SET pamId = '12341' WHERE pid = 12341"
        << "payroll-id-strange"
        << "people.pamId"
        << "The pid and pamId of these active people disagree: 12341 (12341). The plugin looks a "
           "person up by pamId and writes by pid: it changes nobody, or treats the person as new";
}

void TestCheckDb::warningsAreReported()
{
    QFETCH(QString, change);
    apply(change);
    compareOnlyFinding(check(), ExitStatus::Findings);
}

void TestCheckDb::aBrokenDatabaseIsReportedInFull()
{
    m_db.run("DROP TABLE groups_plan");
    m_db.run("ALTER TABLE people MODIFY `end` INT NULL");
    m_db.run("DELETE FROM vars");
    const ToolRun run = check();
    COMPARE_EXIT(run, ExitStatus::ContractBroken);
    QCOMPARE(run.rules(), QStringList({"column-too-narrow", "routine-fails", "table-missing"}));
    QCOMPARE(run.json().value("result").toString(), QString("contract-broken"));
    QCOMPARE(
        run.json().value("verdict").toString(),
        QString(
            "The plugin cannot work properly with this database: 2 requirements are violated."));
}

void TestCheckDb::theSiteMayHaveMore_data()
{
    QTest::addColumn<QString>("change");
    QTest::newRow("a column that takes NULL") << "ALTER TABLE people ADD card VARCHAR(20) NULL";
    QTest::newRow("a column with a default")
        << "ALTER TABLE people ADD card VARCHAR(20) NOT NULL DEFAULT ''";
    QTest::newRow("a computed column")
        << "ALTER TABLE people ADD label VARCHAR(200) AS (CONCAT(name, surname)) STORED";
    QTest::newRow("an automatic number")
        << "ALTER TABLE brape ADD id INT UNSIGNED NOT NULL AUTO_INCREMENT, ADD KEY (id)";
    QTest::newRow("a column that must be filled, in a table that gets no rows")
        << "ALTER TABLE branches ADD place VARCHAR(20) NOT NULL";
    QTest::newRow("a table") << "CREATE TABLE doors (did INT NOT NULL PRIMARY KEY)";
    QTest::newRow("wider numbers") << "ALTER TABLE brape MODIFY uid BIGINT NOT NULL";
    QTest::newRow("exact decimal numbers")
        << "ALTER TABLE people MODIFY pid DECIMAL(10) NOT NULL, MODIFY `end` DECIMAL(12) NULL";
    QTest::newRow("numbers with exact fractions")
        << "ALTER TABLE funds_move MODIFY value DECIMAL(12, 2) NOT NULL";
    QTest::newRow("double precision") << "ALTER TABLE people MODIFY pid DOUBLE NOT NULL";
    QTest::newRow("longer texts") << "ALTER TABLE people MODIFY surname TEXT NOT NULL DEFAULT ''";
    QTest::newRow("texts of fixed length")
        << "ALTER TABLE people MODIFY pamId CHAR(30) NOT NULL DEFAULT ''";
    QTest::newRow("Unicode without the rarest characters")
        << "ALTER TABLE people MODIFY name VARCHAR(60) CHARACTER SET utf8mb3 NOT NULL DEFAULT ''";
    QTest::newRow("a key with its columns in another order")
        << "ALTER TABLE brape DROP PRIMARY KEY, ADD PRIMARY KEY (uid, bid)";
    QTest::newRow("a key on the beginning of a text")
        << "ALTER TABLE vars DROP PRIMARY KEY, ADD UNIQUE KEY (name(100))";
    QTest::newRow("another key that is not unique") << "ALTER TABLE people ADD KEY (surname)";
    QTest::newRow("a further unique key where no row is made")
        << "ALTER TABLE branches ADD UNIQUE KEY (number)";
    QTest::newRow("a number of its own for each row")
        << "ALTER TABLE brape DROP PRIMARY KEY, ADD UNIQUE KEY (bid, uid),"
           " ADD id INT UNSIGNED NOT NULL AUTO_INCREMENT PRIMARY KEY";
    QTest::newRow("a number of its own in a further key")
        << "ALTER TABLE vars ADD id INT UNSIGNED NOT NULL AUTO_INCREMENT,"
           " ADD UNIQUE KEY (id, value(10))";
    for (const char *function : {"uuid", "uuid_short", "sys_guid"}) {
        QTest::addRow("a key that %s() fills", function)
            << QStringLiteral("ALTER TABLE funds_move DROP PRIMARY KEY,"
                              " ADD UNIQUE KEY (type, day, fid, uid),"
                              " ADD id VARCHAR(36) NOT NULL DEFAULT %1() PRIMARY KEY")
                   .arg(function);
    }
    QTest::newRow("a column's name in other letters")
        << "ALTER TABLE people RENAME COLUMN calendarID TO CALENDARID";
    QTest::newRow("a routine of somebody else")
        << "CREATE OR REPLACE DEFINER = root@localhost PROCEDURE updateTermsSync(u INT, f INT)"
           " UPDATE term SET syn = syn | f WHERE status = 1 AND flags & f AND tid IN (SELECT tid"
           " FROM people_term WHERE uid = u)";
    QTest::newRow("a backslash that is one")
        << "SET GLOBAL sql_mode = 'STRICT_ALL_TABLES,ANSI_QUOTES,PIPES_AS_CONCAT'";
    QTest::newRow("nobody") << "DELETE FROM people";
    QTest::newRow("no plans") << "DELETE FROM groups_plan";
    QTest::newRow("a plan since ever") << "UPDATE groups_plan SET since = 0 WHERE uid = 1";
    QTest::newRow("several funds of another kind")
        << "INSERT INTO funds (fid, iid, unit) VALUES (9, 3, 1)";
    QTest::newRow("a selection as long as it must be")
        << "ALTER TABLE vars MODIFY value VARCHAR(42) NULL";
    QTest::newRow("administrators without a number")
        << "INSERT INTO admins (personalNumber) VALUES (NULL), (0), (0)";
    QTest::newRow("a branch of no cost centre with a large id")
        << kWideBranchIds + "UPDATE branches SET bid = 70000 WHERE number IS NULL";
    QTest::newRow("an administrator with the largest id of 16 bits")
        << "UPDATE admins SET aid = 65535 WHERE aid = 4";
    QTest::newRow("an inactive person with another payroll id")
        << "UPDATE people SET pamId = '' WHERE NOT status";
    QTest::newRow("a person without relationship")
        << "UPDATE people SET pid = 12340, pamId = '1234' WHERE uid = 4";
    QTest::newRow("leading zeros")
        << "UPDATE people SET pid = 12341, pamId = '01234.01' WHERE uid = 4";
}

void TestCheckDb::theSiteMayHaveMore()
{
    QFETCH(QString, change);
    apply(change);
    const ToolRun run = check();
    COMPARE_EXIT(run, ExitStatus::Fine);
    QCOMPARE(run.findings(), QJsonArray());
}

void TestCheckDb::everyRowMayHaveANumberOfItsOwn()
{
    m_db.addOwnNumbers();
    const ToolRun run = check();
    COMPARE_EXIT(run, ExitStatus::Fine);
    QCOMPARE(run.findings(), QJsonArray());
}

void TestCheckDb::noRowNeedsANumberOfItsOwn()
{
    m_db.removeOwnNumbers();
    const ToolRun run = check();
    COMPARE_EXIT(run, ExitStatus::Fine);
    QCOMPARE(run.findings(), QJsonArray());
}

void TestCheckDb::aServerThatIsAloneHasNoOtherNodes()
{
    const ToolRun run = runTool(QStringList{"check-db", "--every-node"} + connection() + kTimeouts);
    COMPARE_EXIT(run, ExitStatus::Fine);
    QVERIFY2(
        run.out.contains("\n\nCluster\n-------\nThe server does not belong to a cluster: there "
                         "are no other nodes.\n"),
        run.report().constData());
}

void TestCheckDb::aLiteralBackslashIsNoted()
{
    m_db.run("SET GLOBAL sql_mode = 'STRICT_TRANS_TABLES,NO_BACKSLASH_ESCAPES'");
    const ToolRun run = check();
    COMPARE_EXIT(run, ExitStatus::Fine);
    QCOMPARE(run.rules(), QStringList("sql-mode-backslash"));
    QCOMPARE(run.findings().first().toObject().value("message").toString(),
             QString("The SQL mode NO_BACKSLASH_ESCAPES is on: a backslash in a text of the export "
                     "is stored literally. Without the mode it escapes the next character."));
    QCOMPARE(run.findings().first().toObject().value("advice").toString(),
             QString("Run the gate with --texts no-backslash-escapes: otherwise it doubles "
                     "backslashes."));
}

void TestCheckDb::everyTableIsRequired_data()
{
    QTest::addColumn<QString>("table");
    const TableRows tables = m_db.rows("SHOW TABLES");
    QCOMPARE(tables.size(), 24);
    for (const QStringList &table : tables)
        QTest::newRow(qPrintable(table.first())) << table.first();
}

void TestCheckDb::everyTableIsRequired()
{
    QFETCH(QString, table);
    m_db.hideTable(table);
    const ToolRun run = check();
    m_db.restoreTable(table);
    const bool ofThePlugin =
        !QStringList({"sections", "sec_branch", "bas", "inters", "inters_term", "pzt"})
             .contains(table);
    COMPARE_EXIT(run, ofThePlugin ? ExitStatus::ContractBroken : ExitStatus::Fine);
    const QJsonObject finding =
        run.findingsOf(ofThePlugin ? "table-missing" : "missing-elsewhere").value(0);
    QVERIFY2(finding.value("message").toString().contains(' ' + table), run.report().constData());
}

void TestCheckDb::everyColumnIsRequired_data()
{
    QTest::addColumn<int>("position");
    for (int position = 1; position <= 24; ++position)
        QTest::addRow("column %d of every table", position) << position;
}

void TestCheckDb::everyColumnIsRequired()
{
    QFETCH(int, position);
    const TableRows columns = m_db.rows(
        QStringLiteral("SELECT table_name, column_name FROM information_schema.columns WHERE"
                       " table_schema = DATABASE() AND ordinal_position = %1"
                       " AND extra NOT LIKE '%INVISIBLE%'")
            .arg(position));
    QVERIFY(!columns.isEmpty());
    for (const QStringList &column : columns) {
        m_db.run(QStringLiteral("ALTER TABLE `%1` RENAME COLUMN `%2` TO hidden")
                     .arg(column.at(0), column.at(1)));
    }
    const ToolRun run = check();
    COMPARE_EXIT(run, ExitStatus::ContractBroken);
    QString missing = run.findingsOf("missing-elsewhere").value(0).value("message").toString();
    const QVector<QJsonObject> findings = run.findingsOf("column-missing");
    for (const QJsonObject &finding : findings)
        missing += ' ' + finding.value("field").toString() + ',';
    missing.replace('.', ',');
    for (const QStringList &column : columns) {
        QVERIFY2(missing.contains(' ' + column.join(',') + ','),
                 qPrintable(column.join('.') + " in " + missing));
    }
}

void TestCheckDb::everyKeyIsRequired_data()
{
    QTest::addColumn<QString>("table");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("rule");
    QTest::newRow("people") << "people"
                            << "KEY pid"
                            << "key-missing";
    for (const char *table : {"people_pam", "brape", "groups_plan", "groups_month", "funds_move",
                              "admins_people", "people_term", "vars"})
        QTest::newRow(table) << table << "PRIMARY KEY"
                             << "key-missing";
    for (const char *table : {"bradm", "sec_branch", "bas"})
        QTest::newRow(table) << table << "PRIMARY KEY"
                             << "key-missing-elsewhere";
    for (const char *table : {"atten", "inters_term"})
        QTest::newRow(table) << table << "PRIMARY KEY"
                             << "identity-missing";
}

void TestCheckDb::everyKeyIsRequired()
{
    QFETCH(QString, table);
    QFETCH(QString, key);
    QFETCH(QString, rule);
    m_db.run(QStringLiteral("ALTER TABLE %1 DROP %2").arg(table, key));
    const ToolRun run = check();
    QCOMPARE(run.rules(), QStringList(rule));
    QCOMPARE(run.findings().first().toObject().value("field").toString(), table);
}

void TestCheckDb::whatTheConfigurationWritesFits_data()
{
    QTest::addColumn<QString>("change");
    QTest::addColumn<QString>("configuration");
    QTest::newRow("nothing") << "ALTER TABLE people MODIFY did TINYINT NULL"
                             << "";
    QTest::newRow("a department") << "ALTER TABLE people MODIFY did TINYINT UNSIGNED NULL"
                                  << "departmentId=255";
    QTest::newRow("a department in a column that must have one")
        << "ALTER TABLE people MODIFY did TINYINT UNSIGNED NOT NULL"
        << "departmentId=7";
    QTest::newRow("no department") << "ALTER TABLE people MODIFY did TINYINT UNSIGNED NULL"
                                   << "departmentId=0";
    QTest::newRow("a state") << "ALTER TABLE people MODIFY rsText VARCHAR(18) NOT NULL DEFAULT ''"
                             << "[MES]\n21=\"materská dovolenka\"";
    QTest::newRow("a state in a column that counts bytes")
        << "ALTER TABLE people MODIFY rsText TINYTEXT NOT NULL DEFAULT ''"
        << "[MES]\n21=\"" + QString(127, u'á') + '"';
}

void TestCheckDb::whatTheConfigurationWritesFits()
{
    QFETCH(QString, change);
    QFETCH(QString, configuration);
    apply(change);
    const ToolRun run = checkWithConfiguration(configuration);
    COMPARE_EXIT(run, ExitStatus::Fine);
    QCOMPARE(run.findings(), QJsonArray());
}

void TestCheckDb::whatTheConfigurationWritesDoesNotFit_data()
{
    QTest::addColumn<QString>("change");
    QTest::addColumn<QString>("configuration");
    QTest::addColumn<QString>("rule");
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("message");

    QTest::newRow("a department")
        << "ALTER TABLE people MODIFY did TINYINT UNSIGNED NULL"
        << "departmentId=256"
        << "department-too-large"
        << "people.did"
        << "The column people.did is tinyint(3) unsigned and cannot hold the department of the "
           "configuration, 256: nobody is created or updated, or everybody gets another department "
           "where no strict SQL mode is on";
    QTest::newRow("no department")
        << "ALTER TABLE people MODIFY did TINYINT UNSIGNED NOT NULL"
        << "departmentId=0"
        << "column-not-null"
        << "people.did"
        << "The column people.did does not allow NULL, which the plugin writes because "
           "departmentId is 0 in the configuration";
    QTest::newRow("a state") << "ALTER TABLE people MODIFY rsText VARCHAR(17) NOT NULL DEFAULT ''"
                             << "[MES]\n021=\"materská dovolenka\"\n22=\"rodičovská\""
                             << "state-text-too-long"
                             << "people.rsText"
                             << "The column people.rsText is varchar(17); the text of register "
                                "state 21 in the configuration is longer, \"materská dovolenka\": "
                                "people in this state are refused, or their text is cut where no "
                                "strict SQL mode is on";
    const QString longText(128, u'á');
    QTest::newRow("a state in a column that counts bytes")
        << "ALTER TABLE people MODIFY rsText TINYTEXT NOT NULL DEFAULT ''"
        << "[MES]\n21=\"" + longText + '"' << "state-text-too-long"
        << "people.rsText"
        << "The column people.rsText is tinytext; the text of register state 21 in the "
           "configuration is longer, \""
            + QString(60, u'á')
            + "\"…: people in this state are "
              "refused, or their text is cut where no strict SQL mode is on";
}

void TestCheckDb::whatTheConfigurationWritesDoesNotFit()
{
    QFETCH(QString, change);
    QFETCH(QString, configuration);
    apply(change);
    compareOnlyFinding(checkWithConfiguration(configuration), ExitStatus::ContractBroken);
}

void TestCheckDb::lettersOfAStateThatTheColumnLacks()
{
    m_db.run("ALTER TABLE people MODIFY rsText VARCHAR(120) CHARACTER SET latin1 NOT NULL"
             " DEFAULT ''");
    ToolRun run = checkWithConfiguration("[MES]\n21=\"materská dovolenka\"");
    COMPARE_EXIT(run, ExitStatus::Findings);
    QCOMPARE(run.rules(), QStringList("column-charset"));

    run = checkWithConfiguration("[MES]\n22=\"rodičovská dovolenka\"");
    COMPARE_EXIT(run, ExitStatus::ContractBroken);
    QCOMPARE(run.rules(), QStringList({"column-charset", "state-text-letters"}));
    QCOMPARE(run.findingsOf("state-text-letters").first().value("message").toString(),
             QString("The column people.rsText has the character set latin1, which lacks letters "
                     "of the text of register state 22 in the configuration, \"rodičovská "
                     "dovolenka\": people in this state are refused, or get question marks where "
                     "no strict SQL mode is on."));
}

void TestCheckDb::aConfigurationThatIsNotThereIsBadUsage()
{
    const ToolRun run = check({"--config", "/nowhere/MirovaHR.ini"});
    COMPARE_EXIT(run, ExitStatus::Usage);
    QCOMPARE(run.err,
             QString("mirovahrctl: check-db: There is no file '/nowhere/MirovaHR.ini'.\n"));
}

void TestCheckDb::aDifferentClockIsReported()
{
    m_db.run("SET GLOBAL init_connect = 'SET timestamp = 1700000000'");
    const ToolRun run = check();
    COMPARE_EXIT(run, ExitStatus::Findings);
    QCOMPARE(run.rules(), QStringList("clock"));
    const QString message = run.findings().first().toObject().value("message").toString();
    QVERIFY2(QRegularExpression("^The server's clock is [0-9]+ seconds behind this machine's\\.$")
                 .match(message)
                 .hasMatch(),
             qPrintable(message));
}

void TestCheckDb::countingFoundRowsIsAViolation_data()
{
    QTest::addColumn<QString>("options");
    QTest::addColumn<bool>("counts");
    QTest::newRow("bare") << "CLIENT_FOUND_ROWS" << true;
    QTest::newRow("on") << "CLIENT_FOUND_ROWS=1" << true;
    QTest::newRow("true, among others") << "CLIENT_COMPRESS=1; CLIENT_FOUND_ROWS = true" << true;
    QTest::newRow("off") << "CLIENT_FOUND_ROWS=0" << false;
    QTest::newRow("another option") << "CLIENT_IGNORE_SPACE=1" << false;
}

void TestCheckDb::countingFoundRowsIsAViolation()
{
    QFETCH(QString, options);
    QFETCH(bool, counts);
    const ToolRun run = check({"--connect-options", options + ';' + kTimeouts.last()});
    COMPARE_EXIT(run, counts ? ExitStatus::ContractBroken : ExitStatus::Fine);
    QCOMPARE(run.rules(), counts ? QStringList("found-rows") : QStringList());
}

void TestCheckDb::aConnectionThatWaitsForEverIsReported_data()
{
    QTest::addColumn<QString>("options");
    QTest::addColumn<QString>("missing");
    const QString limits = kTimeouts.last();
    QTest::newRow("no options") << QString()
                                << "MYSQL_OPT_CONNECT_TIMEOUT, MYSQL_OPT_READ_TIMEOUT, "
                                   "MYSQL_OPT_WRITE_TIMEOUT";
    QTest::newRow("reading only") << "MYSQL_OPT_READ_TIMEOUT=120"
                                  << "MYSQL_OPT_CONNECT_TIMEOUT, MYSQL_OPT_WRITE_TIMEOUT";
    QTest::newRow("all") << limits << QString();
    QTest::newRow("all, with blanks")
        << " MYSQL_OPT_CONNECT_TIMEOUT = 5 ; MYSQL_OPT_READ_TIMEOUT = 5; MYSQL_OPT_WRITE_TIMEOUT=5"
        << QString();
    QTest::newRow("0") << limits + ";MYSQL_OPT_READ_TIMEOUT=0"
                       << "MYSQL_OPT_READ_TIMEOUT";
    QTest::newRow("0, replaced") << "MYSQL_OPT_READ_TIMEOUT=0;" + limits << QString();
    QTest::newRow("below 0") << limits + ";MYSQL_OPT_WRITE_TIMEOUT=-1"
                             << "MYSQL_OPT_WRITE_TIMEOUT";
}

void TestCheckDb::aConnectionThatWaitsForEverIsReported()
{
    QFETCH(QString, options);
    QFETCH(QString, missing);
    // The limit of the tool itself is not that of the attendance server.
    const ToolRun run = check({"--connect-options", options, "--read-timeout", "60"});
    COMPARE_EXIT(run, missing.isEmpty() ? ExitStatus::Fine : ExitStatus::Findings);
    QCOMPARE(run.rules(), missing.isEmpty() ? QStringList() : QStringList("no-timeout"));
    const QString message = run.findings().first().toObject().value("message").toString();
    QCOMPARE(message.section(" lack ", 1).section('.', 0, 0), missing);
}

void TestCheckDb::theConnectionOfAnotherAccountMayWait()
{
    COMPARE_EXIT(check({"--connect-options", QString(), "--other-account"}), ExitStatus::Fine);
}

void TestCheckDb::nothingIsWritten()
{
    const DatabaseState before = m_db.dumpAll();
    m_db.clearStatements();
    COMPARE_EXIT(check(), ExitStatus::Fine);
    const QStringList statements = m_db.statements();
    QVERIFY(statements.size() > 10);
    QCOMPARE(statements.first(), QString("SET SESSION TRANSACTION READ ONLY"));
    QStringList others;
    for (const QString &statement : statements.mid(1)) {
        if (!statement.startsWith("SELECT ") && !statement.startsWith("SHOW VARIABLES ")
            && !statement.startsWith("EXPLAIN SELECT "))
            others += statement;
    }
    QCOMPARE(others, QStringList("CALL updateTermsSync(0, 2)"));
    QCOMPARE(statements.filter(QRegularExpression("^SHOW VARIABLES ")).size(), 1);
    QCOMPARE(TestDatabase::difference(before, m_db.dumpAll()), QString());
}

void TestCheckDb::aProcedureThatWritesForEverybodyIsStopped()
{
    m_db.run("CREATE OR REPLACE PROCEDURE updateTermsSync(u INT, f INT) BEGIN COMMIT;"
             " START TRANSACTION; UPDATE term SET syn = syn | f; COMMIT; END");
    const DatabaseState before = m_db.dumpAll();
    COMPARE_EXIT(check(), ExitStatus::Fine);
    QCOMPARE(TestDatabase::difference(before, m_db.dumpAll()), QString());
}

void TestCheckDb::aPayrollExportThatCannotBeReadIsNotMissing()
{
    MySqlProxy proxy(m_db.server().socketPath());
    Disturbance damage;
    damage.way = Disturbance::Way::Refuse;
    damage.errorNumber = 1034;
    damage.sqlState = "HY000";
    damage.errorText = "Index for table 'vars' is corrupt; try to repair it";
    proxy.disturb("SELECT name", damage);
    proxy.release();
    const ToolRun run = check({"--socket", proxy.socketPath()});
    COMPARE_EXIT(run, ExitStatus::NoDatabase);
    QCOMPARE(
        run.failure(),
        QString("The database cannot be used: Index for table 'vars' is corrupt; try to repair "
                "it."));
    QCOMPARE(run.rules(), QStringList());
}

void TestCheckDb::anUnreachableServerIsNoDatabase()
{
    const ToolRun run =
        runTool({"check-db", "--socket", "/nowhere/s", "--database", "tepdb", "--user", "yav"});
    COMPARE_EXIT(run, ExitStatus::NoDatabase);
    QCOMPARE(run.out, QString());
    QVERIFY2(run.err.startsWith("mirovahrctl: check-db: The database cannot be opened: "),
             run.report().constData());
}

void TestCheckDb::withoutAServerTheUsageIsWrong()
{
    const ToolRun run = runTool({"check-db"});
    COMPARE_EXIT(run, ExitStatus::Usage);
    QCOMPARE(run.err,
             QString("mirovahrctl: check-db: Name the database server with either --host"
                     " or --socket, or in the file /etc/yav/mirovahrctl.ini.\n"));
}

void TestCheckDb::theHelpSaysHowToConnect()
{
    const ToolRun run = runTool({"check-db", "--help"});
    COMPARE_EXIT(run, ExitStatus::Fine);
    QVERIFY2(run.out.startsWith("Usage: mirovahrctl check-db [OPTION...]\n"),
             run.report().constData());
    QVERIFY(run.out.contains("First connect as the plugin does"));
    QVERIFY(run.out.contains("--other-account"));
}

void TestCheckDb::everyRuleHasItsFixtures()
{
    // These take other accounts, servers or more rows: see TestCheckDbRights, TestCheckDbServer,
    // TestCheckDbStatements and, for all rules of clusters, TestCheckDbCluster.
    QSet<QString> others{"columns-hidden",     "connection-charset", "groups-reserved",
                         "primary-key-wanted", "right-excess",       "right-missing",
                         "routine-unseen",     "several-statements", "statement-scans"};
    const QStringList rules = registeredRules("check-db");
    for (const QString &rule : rules) {
        if (rule.startsWith("cluster-"))
            others += rule;
    }
    QCOMPARE(RuleFixtures::ofReports("check-db").missing("check-db", others), QStringList());
}

QTEST_GUILESS_MAIN(TestCheckDb)
#include "tst_checkdb.moc"
