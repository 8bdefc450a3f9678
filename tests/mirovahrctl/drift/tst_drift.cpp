#include "tests/mirovahrctl/drift/driftedsite.h"
#include "tests/mirovahrctl/program/rulefixtures.h"
#include "tests/worker/support/sampleexport.h"
#include "tests/worker/support/statechanges.h"
#include "tests/worker/support/workertest.h"

#include <QDir>
#include <QSqlDatabase>
#include <QTest>

using R = ExportRow;

namespace {

/// How what was lost comes back.
enum class Remedy { Force, Start, Never };

QString tomorrowsMonth()
{
    return QDate::currentDate().addDays(1).toString("yyyyMM");
}

} // namespace

Q_DECLARE_METATYPE(Remedy)

/// What drift finds after the worker has written two new employees, and rows were changed behind
/// its back.
class TestDrift : public WorkerTest {
    Q_OBJECT

private Q_SLOTS:
    void init();

    void afterASynchronisationThereIsNone();
    void losses_data();
    void losses();
    void lossesComeBackAsTheReportSays_data() { losses_data(); }
    void lossesComeBackAsTheReportSays();
    void statementsMendWhatDoesNotComeByItself_data() { losses_data(); }
    void statementsMendWhatDoesNotComeByItself();
    void statementsChangeNothingThatIsNotAsItWasFound_data();
    void statementsChangeNothingThatIsNotAsItWasFound();
    void everySupervisorComesHome();
    void monthsAreMendedWithTheirAttendance();
    void aTerminalFetchesAMendedMember();

    void whatIsNoLoss_data();
    void whatIsNoLoss();
    void peopleWhoAreNotInTheExportAreNotCompared();
    void ofPeopleWhoHaveLeftOnlyPersonalDataAreCompared();
    void whoWaitsForABranchIsCountedOnly();
    void whatWasDoneBeforeADayCanBeLeftOut();
    void uncertainLinesAreLeftOut_data();
    void uncertainLinesAreLeftOut();
    void theGateSaysWhatWasAdmittedLast();
    void aPendingSynchronisationIsMentioned_data();
    void aPendingSynchronisationIsMentioned();
    void whatTheConfigurationPreventsIsReported_data();
    void whatTheConfigurationPreventsIsReported();

    void theReportNamesTheRemedies();
    void nothingIsWritten();
    void whatMakesNoSenseIsWrongUsage_data();
    void whatMakesNoSenseIsWrongUsage();
    void aTableThatIsMissingBreaksTheContract();
    void everyRuleHasItsFixtures();

private:
    void lose(const QString &change);
    ToolRun drift(const QStringList &more = {});
    void synchroniseAgain();
    QString filled(QString sql) const;
    DatabaseState lasting();

    DriftedSite m_site{m_db};
    QVector<ExportRow> m_lines;
    QString m_pid;
    QString m_uid;
};

/// Somebody else, and Eva, whose supervisor is 1002 (administrator 2), in branch 1 with the
/// administrators 1 and 4 and the terminals 1 and 2.
void TestDrift::init()
{
    WorkerTest::init();
    m_site.unlockAccount();
    m_site.configure({});
    m_site.exportFile().remove();
    const int number = newPersonalNumber();
    m_lines = {SampleExport::newcomer(newPersonalNumber())
                   .with(&R::prijmeni, "Veľká")
                   .with(&R::nadrizenyOsobniCislo, 1001),
               SampleExport::newcomer(number).with(&R::nadrizenyOsobniCislo, 1002)};
    synchronise(m_lines);
    m_pid = QString::number(number) + '1';
    m_uid = QString::number(uidOf(m_pid.toUInt()));
    m_db.run(filled("INSERT INTO groups_month (gid, uid, month) VALUES (11, %uid, %month)"));
}

/// The text with the ids of Eva for "%uid" and "%pid", and the month of her calendar for "%month".
QString TestDrift::filled(QString sql) const
{
    return sql.replace("%uid", m_uid).replace("%pid", m_pid).replace("%month", tomorrowsMonth());
}

void TestDrift::lose(const QString &change)
{
    for (const QString &sql : change.split(';', Qt::SkipEmptyParts))
        m_db.run(filled(sql));
}

ToolRun TestDrift::drift(const QStringList &more)
{
    dropWorker();
    return m_site.drift(m_export->path(), more);
}

/// A forced synchronisation by the worker that has seen the export before.
void TestDrift::synchroniseAgain()
{
    force();
    m_worker->checkSync();
}

/// The tables without what says when something was done, and without the queue.
DatabaseState TestDrift::lasting()
{
    m_db.run("UPDATE people SET edited = 0");
    return m_db.dumpAll({"term_sync"});
}

void TestDrift::afterASynchronisationThereIsNone()
{
    const ToolRun run = drift();
    QCOMPARE(DriftedSite::found(run), QStringList());
    COMPARE_EXIT(run, ExitStatus::Fine);
    QCOMPARE(run.json().value("facts").toObject().value("compared").toInt(), 2);
    QCOMPARE(run.json()["verdict"].toString(),
             QString("The database holds what the export says of the people that were compared."));
}

void TestDrift::losses_data()
{
    QTest::addColumn<QString>("change");
    QTest::addColumn<QString>("rule");
    QTest::addColumn<QString>("message");
    QTest::addColumn<Remedy>("remedy");

    QTest::newRow("the supervisor")
        << "DELETE FROM admins_people WHERE aid = 2 AND uid = %uid"
        << "supervisor-missing"
        << "Nobody receives the person's requests; the export names 1002, administrator 2."
        << Remedy::Start;
    QTest::newRow("the supervisor's flag")
        << "UPDATE admins_people SET request = 0 WHERE aid = 2 AND uid = %uid"
        << "supervisor-missing"
        << "Nobody receives the person's requests; the export names 1002, administrator 2."
        << Remedy::Start;
    QTest::newRow("the former supervisor stays")
        << "UPDATE admins_people SET request = (aid <> 2) WHERE uid = %uid"
        << "supervisor-other"
        << "The person's requests go to administrator 1, 4; the export names 1002, administrator 2."
        << Remedy::Start;
    QTest::newRow("the employment type")
        << "UPDATE people SET type = 3 WHERE uid = %uid"
        << "employment-type"
        << "The employment type is 3, by the export it is 1." << Remedy::Start;
    QTest::newRow("the payroll export's selection")
        << "UPDATE vars SET value = REPLACE(value, ',%pid', '') WHERE name LIKE '%selPeople'"
        << "payroll-selection"
        << "The person is not in exportPam.1.selPeople." << Remedy::Never;
    QTest::newRow("the binding to the payroll export")
        << "DELETE FROM people_pam WHERE uid = %uid"
        << "payroll-binding"
        << "The person is not bound to settings 1 of the payroll export." << Remedy::Never;
    QTest::newRow("a terminal of the branch")
        << "DELETE FROM people_term WHERE tid = 2 AND uid = %uid"
        << "terminal-missing"
        << "The person is not on terminal 2 of branch 1." << Remedy::Never;
    QTest::newRow("an administrator of the branch")
        << "DELETE FROM admins_people WHERE aid = 4 AND uid = %uid"
        << "administrator-missing"
        << "The person is not with administrator 4 of branch 1." << Remedy::Never;
    QTest::newRow("the mark of a terminal")
        << "UPDATE term SET syn = syn & ~2 WHERE tid = 1"
        << "terminal-not-marked"
        << "People are queued for terminal 1, which is not marked as having people to fetch."
        << Remedy::Never;
    QTest::newRow("the group of a month")
        << "UPDATE groups_month SET gid = 12 WHERE uid = %uid"
        << "months-differ"
        << "Month %month has group 12 instead of 11." << Remedy::Never;

    QTest::newRow("a name") << "UPDATE people SET surname = 'Nová' WHERE uid = %uid"
                            << "person-differs"
                            << "In the database and by the export: Surname \"Nová\" and \"Malá\"."
                            << Remedy::Force;
    QTest::newRow("several fields")
        << "UPDATE people SET title = 'Ing.', calendarID = 3, bid = 2 WHERE uid = %uid"
        << "person-differs"
        << "In the database and by the export: Title \"Ing.\" and nothing, HR's calendar \"3\" and "
           "\"1\", Cost centre \"130\" and \"120\"."
        << Remedy::Force;
    QTest::newRow("the membership")
        << "DELETE FROM brape WHERE uid = %uid"
        << "not-member"
        << "The person is not a member of branch 1, cost centre 120." << Remedy::Force;
    QTest::newRow("the plan") << "DELETE FROM groups_plan WHERE uid = %uid"
                              << "group-not-planned"
                              << "Group 11 of calendar 1 is not planned from %month on."
                              << Remedy::Force;
    QTest::newRow("another group is planned")
        << "UPDATE groups_plan SET gid = 12 WHERE uid = %uid"
        << "group-not-planned"
        << "Group 11 of calendar 1 is not planned from %month on." << Remedy::Force;
    QTest::newRow("the person") << "UPDATE people SET status = 0 WHERE uid = %uid"
                                << "person-missing"
                                << "The person's row is not active." << Remedy::Force;
    QTest::newRow("the balance")
        << "INSERT INTO funds_move (type, day, month, value, fid, uid) VALUES (1, 0, 197001, 250, "
           "2, %uid)"
        << "balance-differs"
        << "The balance is 2.50 days, by the export it is 0." << Remedy::Force;
}

void TestDrift::losses()
{
    QFETCH(QString, change);
    QFETCH(QString, rule);
    QFETCH(QString, message);
    lose(change);
    const ToolRun run = drift();
    const QString subject =
        rule == "terminal-not-marked" ? "terminal 1" : m_lines.last().osobniCislo + ".1 Eva Malá";
    QCOMPARE(DriftedSite::found(run), QStringList{rule + ": " + subject + ": " + filled(message)});
    COMPARE_EXIT(run, rule == "balance-differs" ? ExitStatus::Fine : ExitStatus::Findings);
}

void TestDrift::lossesComeBackAsTheReportSays()
{
    QFETCH(QString, change);
    QFETCH(QString, rule);
    QFETCH(Remedy, remedy);
    lose(change);
    // The same line again does nothing.
    m_worker->checkSync();
    synchroniseAgain();
    const ToolRun forced = drift();
    QCOMPARE(forced.rules(), remedy == Remedy::Force ? QStringList() : QStringList{rule});

    newWorker();
    m_worker->checkSync();
    const ToolRun started = drift();
    // The synchronisation of a worker that was just started marks the terminals of everybody.
    const bool isBack = remedy != Remedy::Never || rule == "terminal-not-marked";
    QCOMPARE(started.rules(), isBack ? QStringList() : QStringList{rule});
}

void TestDrift::statementsMendWhatDoesNotComeByItself()
{
    QFETCH(QString, change);
    QFETCH(QString, rule);
    QFETCH(Remedy, remedy);
    const DatabaseState before = lasting();
    lose(change);
    const DatabaseState lost = lasting();
    QCOMPARE(drift().rules(), QStringList{rule});
    QVERIFY2(m_site.mend(), qPrintable(m_db.server().errorString()));
    QString difference =
        TestDatabase::difference(remedy == Remedy::Force ? lost : before, lasting());
    QCOMPARE(difference, QString());
    QCOMPARE(drift().rules(), remedy == Remedy::Force ? QStringList{rule} : QStringList());
}

void TestDrift::statementsChangeNothingThatIsNotAsItWasFound_data()
{
    QTest::addColumn<QString>("loss");
    QTest::addColumn<QString>("meanwhile");

    const QString noSupervisor = "DELETE FROM admins_people WHERE aid = 2 AND uid = %uid";
    QTest::newRow("somebody chose a supervisor")
        << noSupervisor << "UPDATE admins_people SET request = 1 WHERE aid = 4 AND uid = %uid";
    QTest::newRow("the supervisor is back")
        << noSupervisor << "INSERT INTO admins_people VALUES (2, %uid, 1)";
    QTest::newRow("somebody chose another supervisor")
        << "UPDATE admins_people SET request = (aid = 1) WHERE uid = %uid"
        << "UPDATE admins_people SET request = (aid = 4) WHERE uid = %uid";
    QTest::newRow("the person has got another pid") << noSupervisor
            + ";DELETE FROM people_pam WHERE uid = %uid;UPDATE people SET type = 3 "
              "WHERE uid = %uid"
                                                    << "UPDATE people SET pid = 5 WHERE uid = %uid";
    QTest::newRow("the employment type was changed")
        << "UPDATE people SET type = 3 WHERE uid = %uid"
        << "UPDATE people SET type = 4 WHERE uid = %uid";
    QTest::newRow("the binding is another one") << "DELETE FROM people_pam WHERE uid = %uid"
                                                << "INSERT INTO people_pam VALUES (%uid, 2)";
    QTest::newRow("the person was selected")
        << "UPDATE vars SET value = REPLACE(value, ',%pid', '') WHERE name LIKE '%selPeople'"
        << "UPDATE vars SET value = CONCAT('%pid,', value) WHERE name LIKE '%selPeople'";
    const QString noTerminal = "DELETE FROM people_term WHERE tid = 1 AND uid = %uid";
    QTest::newRow("the person is on the terminal")
        << noTerminal << "INSERT INTO people_term VALUES (1, %uid)";
    QTest::newRow("the person has left the branch")
        << noTerminal + ";DELETE FROM admins_people WHERE aid = 4 AND uid = %uid"
        << "DELETE FROM brape WHERE uid = %uid";
    QTest::newRow("the terminal was switched off")
        << noTerminal << "UPDATE term SET status = 0 WHERE tid = 1";
    QTest::newRow("the administrator has left the branch")
        << "DELETE FROM admins_people WHERE aid = 4 AND uid = %uid"
        << "DELETE FROM bradm WHERE aid = 4 AND bid = 1";
    QTest::newRow("the terminal has fetched its queue") << "UPDATE term SET syn = 0 WHERE tid = 1"
                                                        << "DELETE FROM term_sync";
    QTest::newRow("the month has got another group")
        << "UPDATE groups_month SET gid = 12 WHERE uid = %uid"
        << "UPDATE groups_month SET gid = 13 WHERE uid = %uid";
}

void TestDrift::statementsChangeNothingThatIsNotAsItWasFound()
{
    QFETCH(QString, loss);
    QFETCH(QString, meanwhile);
    lose(loss);
    QVERIFY(!drift().rules().isEmpty());
    lose(meanwhile);
    const DatabaseState before = m_db.dumpAll();
    QVERIFY2(m_site.mend(), qPrintable(m_db.server().errorString()));
    QCOMPARE(TestDatabase::difference(before, m_db.dumpAll()), QString());
}

/// As a cluster loses them at COMMIT, without a word.
void TestDrift::everySupervisorComesHome()
{
    m_lines.clear();
    for (int i = 0; i < 60; ++i) {
        m_lines += SampleExport::newcomer(newPersonalNumber())
                       .with(&R::nadrizenyOsobniCislo, 1001 + i % 3);
    }
    synchronise(m_lines);
    const DatabaseState before = lasting();
    m_db.run("DELETE FROM admins_people WHERE request AND uid > 10 AND uid % 3 = 0");
    m_db.run("UPDATE admins_people SET request = 0 WHERE uid > 10 AND uid % 3 = 1");
    m_db.run("INSERT INTO admins_people (aid, uid, request) SELECT 4, uid, 1 FROM people WHERE uid "
             "> 10 AND uid % 6 = 1 ON DUPLICATE KEY UPDATE request = 1");
    synchroniseAgain();
    QVERIFY(drift().findings().size() > 30);
    QVERIFY2(m_site.mend(), qPrintable(m_db.server().errorString()));
    QCOMPARE(DriftedSite::found(drift()), QStringList());
    QCOMPARE(TestDatabase::difference(before, lasting()), QString());
}

void TestDrift::monthsAreMendedWithTheirAttendance()
{
    const QDate first = QDate::currentDate().addMonths(-3).addDays(1 - QDate::currentDate().day());
    m_db.run("INSERT INTO atten (uid, `date`, ok, `lock`, man) VALUES "
             + QStringList{"(%uid, %1, 1, 0, 0)", "(%uid, %2, 1, 0, 0)", "(%uid, %3, 1, 1, 0)",
                           "(%uid, %4, 1, 0, 1)"}
                   .join(", ")
                   .replace("%uid", m_uid)
                   .arg(localMidnight(first.addDays(-1)))
                   .arg(localMidnight(first))
                   .arg(localMidnight(first.addDays(1)))
                   .arg(localMidnight(first.addDays(2))));
    m_db.run(filled("UPDATE people SET lastCalc = UNIX_TIMESTAMP(), calc = 1 WHERE uid = %uid"));
    m_lines.last().with(&R::kalendarPlatnostOd, first).with(&R::kalendar, 2);
    synchronise(m_lines);
    const DatabaseState before = lasting();
    m_db.run(filled("UPDATE groups_month SET gid = 13 WHERE uid = %uid AND month < %month"));
    m_db.run(filled("UPDATE atten SET ok = 1 WHERE uid = %uid"));
    m_db.run(filled("UPDATE people SET lastCalc = UNIX_TIMESTAMP(), calc = 1 WHERE uid = %uid"));
    QCOMPARE(drift().rules(), QStringList{"months-differ"});
    QVERIFY2(m_site.mend(), qPrintable(m_db.server().errorString()));
    QCOMPARE(TestDatabase::difference(before, lasting()), QString());
}

void TestDrift::aTerminalFetchesAMendedMember()
{
    lose("DELETE FROM people_term WHERE tid = 1 AND uid = %uid;DELETE FROM term_sync;"
         "UPDATE term SET syn = 0");
    QCOMPARE(drift().rules(), QStringList{"terminal-missing"});
    QVERIFY2(m_site.mend(), qPrintable(m_db.server().errorString()));
    QCOMPARE(m_db.rows("SELECT tid, type, ref, ref_col, ref_id, flags FROM term_sync"),
             (TableRows{{"1", "I", "people_term", "uid", m_uid, "2"}}));
    QCOMPARE(m_db.rows("SELECT tid FROM term WHERE syn & 2"), (TableRows{{"1"}}));
}

// What is not a loss ------------------------------------------------------------------------------

void TestDrift::whatIsNoLoss_data()
{
    QTest::addColumn<QString>("change");

    QTest::newRow("an administrator more receives the requests")
        << "UPDATE admins_people SET request = 1 WHERE aid = 4 AND uid = %uid";
    QTest::newRow("settings of the payroll export that somebody chose")
        << "UPDATE people_pam SET id = 2 WHERE uid = %uid";
    QTest::newRow("a further branch") << "INSERT INTO brape VALUES (2, %uid, 1)";
    QTest::newRow("a further terminal") << "INSERT INTO people_term VALUES (7, %uid)";
    QTest::newRow("a month before the calendar's first")
        << "INSERT INTO groups_plan VALUES (13, %uid, 201001);INSERT INTO groups_month VALUES (12, "
           "%uid, 201001)";
    QTest::newRow("no payroll export") << "DELETE FROM vars WHERE name LIKE 'exportPam%'";
    QTest::newRow("two payroll exports")
        << "INSERT INTO vars VALUES ('exportPam.2.active', '1');UPDATE vars SET value = '' WHERE "
           "name LIKE '%selPeople'";
    QTest::newRow("a supervisor who is no administrator")
        << "DELETE FROM admins_people WHERE aid = 2 AND uid = %uid;UPDATE admins SET "
           "personalNumber = NULL WHERE aid = 2";
    QTest::newRow("attendance that is to be calculated keeps the balance")
        << "INSERT INTO funds_move (type, day, month, value, fid, uid) VALUES (1, 0, 197001, 250, "
           "2, %uid);INSERT INTO atten (uid, `date`) VALUES (%uid, 1)";
    QTest::newRow("the balance was corrected today")
        << "INSERT INTO funds_move (type, day, month, value, fid, uid) SELECT 3, "
           "midnightFromTs(UNIX_TIMESTAMP()), 202601, 250, 2, %uid;INSERT INTO funds_move (type, "
           "day, month, value, fid, uid) VALUES (1, 0, 197001, 250, 2, %uid)";
    QTest::newRow("no vacation fund")
        << "INSERT INTO funds_move (type, day, month, value, fid, uid) VALUES (1, 0, 197001, 250, "
           "2, %uid);DELETE FROM funds";
    QTest::newRow("what a terminal has to fetch besides people")
        << "DELETE FROM term_sync WHERE flags & 2;UPDATE term SET syn = 0;INSERT INTO term_sync "
           "(tid, type, ref, ref_col, ref_id, created, flags) VALUES (1, 'I', 'inters', 'iid', 1, "
           "1, 1)";
}

void TestDrift::whatIsNoLoss()
{
    QFETCH(QString, change);
    lose(change);
    QCOMPARE(DriftedSite::found(drift()), QStringList());
}

void TestDrift::peopleWhoAreNotInTheExportAreNotCompared()
{
    lose("DELETE FROM admins_people WHERE aid = 2 AND uid = %uid;"
         "UPDATE people SET surname = 'Nová' WHERE uid = %uid");
    m_export->write(QVector<ExportRow>{m_lines.first()});
    QCOMPARE(DriftedSite::found(drift()), QStringList());
}

void TestDrift::ofPeopleWhoHaveLeftOnlyPersonalDataAreCompared()
{
    m_lines.last().with(&R::datumVystupu, QDate::currentDate().addDays(-2));
    m_export->write(m_lines);
    lose("DELETE FROM admins_people WHERE uid = %uid;DELETE FROM brape WHERE uid = %uid;"
         "DELETE FROM people_pam WHERE uid = %uid");
    QCOMPARE(drift().rules(), QStringList{"person-differs"});
    newWorker();
    m_worker->checkSync();
    lose("DELETE FROM admins_people WHERE uid = %uid");
    QCOMPARE(DriftedSite::found(drift()), QStringList());
}

void TestDrift::whoWaitsForABranchIsCountedOnly()
{
    for (ExportRow &line : m_lines)
        line.with(&R::stredisko, 999);
    m_lines.first().with(&R::stredisko, 130).with(&R::kalendar, 2); // which has no such calendar
    synchronise(m_lines);
    const ToolRun run = drift();
    QCOMPARE(DriftedSite::found(run), QStringList());
    QVERIFY2(run.out.contains("lacks the branch or calendar group of 2 people"),
             run.report().constData());
}

void TestDrift::whatWasDoneBeforeADayCanBeLeftOut()
{
    lose("DELETE FROM people_pam WHERE uid = %uid;DELETE FROM people_term WHERE uid = %uid;"
         "DELETE FROM admins_people WHERE uid = %uid;"
         "UPDATE vars SET value = '' WHERE name LIKE '%selPeople'");
    const QString today = QDate::currentDate().toString(Qt::ISODate);
    const QString tomorrow = QDate::currentDate().addDays(1).toString(Qt::ISODate);
    QCOMPARE(drift({"--since", today}).rules(),
             (QStringList{"administrator-missing", "payroll-binding", "payroll-selection",
                          "supervisor-missing", "terminal-missing"}));
    QCOMPARE(drift({"--since", tomorrow}).rules(), QStringList{"supervisor-missing"});
}

void TestDrift::uncertainLinesAreLeftOut_data()
{
    QTest::addColumn<int>("kind");
    QTest::newRow("a line with an error") << 0;
    QTest::newRow("a person with two lines") << 1;
    QTest::newRow("a row with another payroll id") << 2;
}

void TestDrift::uncertainLinesAreLeftOut()
{
    QFETCH(int, kind);
    lose("DELETE FROM admins_people WHERE aid = 2 AND uid = %uid");
    if (kind == 0)
        m_lines.last().with(&R::prijmeni, "O'Hara");
    else if (kind == 1)
        m_lines += ExportRow(m_lines.last()).with(&R::nadrizenyOsobniCislo, 1003);
    else
        lose("UPDATE people SET pamId = '9.9' WHERE uid = %uid");
    m_export->write(m_lines);
    const ToolRun run = drift();
    QCOMPARE(DriftedSite::found(run),
             QStringList{"left-out: : Left out: 1 person whose line has an error, who have several "
                         "lines, or whose payroll id and pid do not belong together."});
    COMPARE_EXIT(run, ExitStatus::Fine);
}

// The export and the configuration ----------------------------------------------------------------

void TestDrift::theGateSaysWhatWasAdmittedLast()
{
    dropWorker();
    lose("DELETE FROM admins_people WHERE aid = 2 AND uid = %uid");
    // HR has changed its mind since, and the plugin has not read that yet.
    m_site.exportFile().write(QVector<ExportRow>{m_lines.first()});
    const QString to = m_site.filePath("published");
    const ToolRun gate = runTool({"gate", "--json", "--from", m_export->path(), "--to", to,
                                  "--state", m_site.filePath("gate"), "--accept"});
    QVERIFY2(gate.status == ExitStatus::Fine, gate.report().constData());
    QCOMPARE(m_site.drift({}).rules(), QStringList{"synchronisation-pending"});
    QCOMPARE(m_site.drift({}, {"--gate-folder", m_site.filePath("gate")}).rules(),
             (QStringList{"supervisor-missing", "synchronisation-pending"}));
}

void TestDrift::aPendingSynchronisationIsMentioned_data()
{
    QTest::addColumn<bool>("isForced");
    QTest::newRow("a forced one") << true;
    QTest::newRow("an export that was not read") << false;
}

void TestDrift::aPendingSynchronisationIsMentioned()
{
    QFETCH(bool, isForced);
    if (isForced) {
        force();
    } else {
        m_site.configure("deleteFile=true\n");
        m_site.exportFile().write(m_lines);
    }
    const ToolRun run = drift();
    QCOMPARE(run.rules(), QStringList{"synchronisation-pending"});
    COMPARE_EXIT(run, ExitStatus::Fine);
}

void TestDrift::whatTheConfigurationPreventsIsReported_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("rule");
    QTest::newRow("disabled") << QByteArray("enabled=false\n") << "disabled";
    QTest::newRow("test mode") << QByteArray("testMode=true\n") << "test-mode";
}

void TestDrift::whatTheConfigurationPreventsIsReported()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, rule);
    m_site.configure(content);
    QCOMPARE(drift().rules(), QStringList{rule});
}

// The report --------------------------------------------------------------------------------------

void TestDrift::theReportNamesTheRemedies()
{
    lose(
        "DELETE FROM admins_people WHERE aid = 2 AND uid = %uid;DELETE FROM people_pam WHERE uid = "
        "%uid;DELETE FROM groups_plan WHERE uid = %uid");
    dropWorker();
    const QString page = m_site.filePath("drift.html");
    const ToolRun run = m_site.driftAsText(m_export->path(), {"--html", page});
    COMPARE_EXIT(run, ExitStatus::Findings);
    const QString verdict =
        "3 differences, to be mended: 1 by a forced synchronisation, 1 by the next start of the "
        "attendance server or --sql, 1 only by --sql.";
    QVERIFY2(run.out.contains(verdict), run.report().constData());
    QFile file(page);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(QString::fromUtf8(file.readAll()).contains(verdict));
}

void TestDrift::nothingIsWritten()
{
    lose("DELETE FROM admins_people WHERE aid = 2 AND uid = %uid");
    dropWorker();
    const DatabaseState before = m_db.dumpAll();
    m_db.clearStatements();
    const QStringList connections = QSqlDatabase::connectionNames();
    drift();
    QCOMPARE(QSqlDatabase::connectionNames(), connections);
    const TableRows statements = m_db.rows(
        "SELECT CONVERT(argument USING utf8mb4) FROM mysql.general_log WHERE user_host LIKE"
        " 'mirovahrctl[%' AND command_type IN ('Query', 'Prepare', 'Execute') AND argument NOT"
        " LIKE 'SET NAMES %' AND argument <> 'SELECT ? + ?'");
    QVERIFY(statements.size() > 10);
    for (const QStringList &statement : statements) {
        QVERIFY2(statement.first().startsWith("SELECT ")
                     || statement.first() == "SET SESSION TRANSACTION READ ONLY",
                 qPrintable(statement.first()));
    }
    QCOMPARE(TestDatabase::difference(before, m_db.dumpAll()), QString());
    QVERIFY(m_export->exists());
}

void TestDrift::whatMakesNoSenseIsWrongUsage_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("error");

    const QString file = "/nowhere/export";
    QTest::newRow("no such file") << QStringList{file} << "There is no file '/nowhere/export'.";
    QTest::newRow("no day") << QStringList{"--since", "yesterday"}
                            << "--since takes a day such as 2026-03-01.";
    QTest::newRow("no export") << QStringList{}
                               << "There is no export: name the file that was synchronised last.";
    QTest::newRow("two sources") << QStringList{file, "--gate-folder", "/nowhere"}
                                 << "Name either FILE or --gate-folder.";
}

void TestDrift::whatMakesNoSenseIsWrongUsage()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, error);
    dropWorker();
    m_site.exportFile().remove();
    const ToolRun run = m_site.drift({}, arguments);
    COMPARE_EXIT(run, ExitStatus::Usage);
    QCOMPARE(run.failure(), error);
}

void TestDrift::aTableThatIsMissingBreaksTheContract()
{
    m_db.hideTable("people_term");
    const ToolRun run = drift();
    m_db.restoreTable("people_term");
    COMPARE_EXIT(run, ExitStatus::ContractBroken);
    QVERIFY2(run.failure().contains("people_term"), run.report().constData());
}

void TestDrift::everyRuleHasItsFixtures()
{
    QCOMPARE(RuleFixtures::ofReports("drift").missing("drift", {}), QStringList());
}

QTEST_GUILESS_MAIN(TestDrift)
#include "tst_drift.moc"
