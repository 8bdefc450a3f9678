#include "tests/worker/support/sampleexport.h"
#include "tests/worker/support/statechanges.h"
#include "tests/worker/support/workertest.h"
#include "tests/worker/synchronisation/sent.h"

#include <QRegularExpression>
#include <QTest>

using namespace SampleExport;

namespace {

QDate today()
{
    return QDate::currentDate();
}

/// How the log shows a newcomer.
QString described(const QString &number, const QString &surname = "Malá",
                  const QString &supervisor = "0")
{
    return number + ".1 " + surname + " Eva (S: 120, K: 1 from " + shortDate(today().addDays(1))
        + ") N-V: " + shortDate(today().addDays(-10))
        + " - ; ES: 0, RS:  -  '' TPP: 11  DOV: 0 NOC: " + supervisor;
}

QString newRow(const QString &number, int uid, const QString &surname = "Malá",
               const QString &edited = "0")
{
    return "people + uid=" + QString::number(uid) + " pid=" + number + "1 pamId=" + number
        + ".1 title= name=Eva surname=" + surname + " title2= phone= begin="
        + isoDate(today().addDays(-10)) + " end=NULL created=now edited=" + edited
        + " editor=0 rsBegin=NULL rsEnd=NULL rsText= type=1 did=1 calendarID=1 bid=1 status=1 "
          "lastCalc=0 calc=0 gid=NULL";
}

QString selectionWith(const QString &pid)
{
    return "vars name=exportPam.1.selPeople: value 10011,10021,10031,12341,12351,12361 -> "
           "10011,10021,10031,12341,12351,12361,"
        + pid;
}

/// What a new member of branch 1 changes for its terminals and administrators.
QStringList joined(int uid)
{
    const QString id = QString::number(uid);
    const QString insert = " type=I ref=people_term ref_col=uid ref_id=" + id
        + " ref_col2=NULL ref_id2=NULL created=now flags=2";
    return {"brape + bid=1 uid=" + id + " since=now",
            "people_term + tid=1 uid=" + id,
            "people_term + tid=2 uid=" + id,
            "term_sync + tid=1" + insert,
            "term_sync + tid=2" + insert,
            "term tid=1: syn 0 -> 2",
            "term tid=2: syn 0 -> 2",
            "admins_people + aid=1 uid=" + id + " request=0",
            "admins_people + aid=4 uid=" + id + " request=0"};
}

QString notThere(const QString &table)
{
    return "Table 'tepdb." + table + "' doesn't exist QMYSQL: Unable to execute query";
}

} // namespace

/// Malformed exports and damaged databases: what is written nevertheless, what the log reports, and
/// that everything else is unaffected.
class TestBadInput : public WorkerTest {
    Q_OBJECT
private Q_SLOTS:
    void aQuoteInANameKeepsThatPersonOut();
    void aQuoteInTheNameOfAKnownPersonKeepsTheRowAsItWas();
    void brokenLinesLeaveTheOthersAlone();
    void twoLinesOfOneNewcomerMakeOnePerson();
    void aLeavingPersonKeepsEverythingElse();

    void inTestModeNoPersonIsWritten();
    void inTestModeTheNextCycleIsAsQuiet();

    void aTableThatVanishesStopsNothing_data();
    void aTableThatVanishesStopsNothing();
    void aServerThatIsLostInTheMiddleStopsNothing();
    void aTickWithoutAServerDoesNothing();
};

void TestBadInput::aQuoteInANameKeepsThatPersonOut()
{
    const QString bad = QString::number(newPersonalNumber());
    const QString good = QString::number(newPersonalNumber());
    StateChanges changes(m_db);
    const Trace trace = synchronise(
        {newcomer(bad.toInt()).with(&ExportRow::prijmeni, "D'Arc"), newcomer(good.toInt())});
    QCOMPARE(trace.log.size(), 2);
    QVERIFY2(trace.log[0].startsWith("C MHRWorker::dbAddPerson(" + bad
                                     + ".1) - SQL ERROR: You have an error in your SQL syntax;"),
             qPrintable(trace.log[0]));
    QCOMPARE(trace.log[1],
             "W MHRWorker: can't add record '" + described(bad, "D'Arc") + "' into [groups_plan]!");
    const QString uid = QString::number(uidOf(QString(good + "1").toUInt()));
    QCOMPARE(changes.lines(),
             sorted(QStringList{newRow(good, uid.toInt()), selectionWith(good + "1"),
                                "people_pam + uid=" + uid + " id=1",
                                "groups_plan + gid=11 uid=" + uid
                                    + " since=" + monthNumber(today().addDays(1))}
                    << joined(uid.toInt())));
    // Both joined the branch in one statement, the first with uid 0.
    QVERIFY(trace.statements.contains(Sent::joinBranch(1, "0," + uid)));
}

void TestBadInput::aQuoteInTheNameOfAKnownPersonKeepsTheRowAsItWas()
{
    StateChanges changes(m_db);
    const Trace trace = synchronise({jana().with(&ExportRow::prijmeni, "O'Neill"),
                                     peter().with(&ExportRow::telefon, "0905999999")});
    QCOMPARE(trace.log.size(), 1);
    QVERIFY2(trace.log[0].startsWith("C MHRWorker::dbUpdatePerson(1234.1) - SQL ERROR: You have an "
                                     "error in your SQL syntax;"),
             qPrintable(trace.log[0]));
    QCOMPARE(changes.lines(),
             sorted({"people uid=2: phone 0905000002 -> 0905999999, edited 0 -> now",
                     "term_sync + tid=4 type=U ref=people ref_col=uid ref_id=2 ref_col2=NULL "
                     "ref_id2=NULL created=now flags=2",
                     "term tid=4: syn 0 -> 2"}));
    // The line is known now, wrong as it is; the corrected one is written.
    QCOMPARE(synchronise().log, QStringList());
    QCOMPARE(synchronise({jana()}).log, QStringList());
    QCOMPARE(m_db.value("SELECT edited > 0 FROM people WHERE uid = 4").toInt(), 0);
    QCOMPARE(synchronise({jana().with(&ExportRow::prijmeni, "Nová")}).log, QStringList());
    QCOMPARE(m_db.value("SELECT surname FROM people WHERE uid = 4").toString(), QString("Nová"));
}

void TestBadInput::brokenLinesLeaveTheOthersAlone()
{
    m_export->write(QStringList{
        "",
        "not a line",
        jana().text() + "|", // 19 fields
        jana().with(&ExportRow::osobniCislo, "12a4").text(),
        jana().with(&ExportRow::poradoveCisloPP, 0).text(),
        jana().with(&ExportRow::jmeno, "").with(&ExportRow::prijmeni, "").text(),
        "   " + peter().with(&ExportRow::telefon, "0905999999").text() + "\t\r",
        QString(70000, 'x'),
        tomas().text(),
    });
    StateChanges changes(m_db);
    QCOMPARE(synchronise().log, QStringList());
    QCOMPARE(changes.lines(),
             sorted({"people uid=2: phone 0905000002 -> 0905999999, edited 0 -> now",
                     "people uid=8: edited 0 -> now",
                     "term_sync + tid=4 type=U ref=people ref_col=uid ref_id=2 ref_col2=NULL "
                     "ref_id2=NULL created=now flags=2",
                     "term tid=4: syn 0 -> 2"}));
}

void TestBadInput::twoLinesOfOneNewcomerMakeOnePerson()
{
    const QString number = QString::number(newPersonalNumber());
    const ExportRow first = newcomer(number.toInt());
    const ExportRow second = ExportRow(first).with(&ExportRow::prijmeni, "Veľká");
    StateChanges changes(m_db);
    const Trace trace = synchronise({first, second, second});
    // The people were loaded before the first line, so the second one is taken for a newcomer's,
    // too; its payroll settings are there already.
    QCOMPARE(trace.log,
             QStringList("W MHRWorker::doSyncRecord(" + described(number, "Veľká")
                         + ") - dbAddPersonIntoPam(" + number + "1, 1) FAILED!"));
    QCOMPARE(
        changes.lines(),
        sorted(QStringList{newRow(number, 9, "Veľká", "now"), selectionWith(number + "1"),
                           "people_pam + uid=9 id=1",
                           "groups_plan + gid=11 uid=9 since=" + monthNumber(today().addDays(1))}
               << joined(9)));
}

void TestBadInput::aLeavingPersonKeepsEverythingElse()
{
    synchronise({jana()});
    m_db.run("UPDATE people SET edited = 0");
    m_db.run("DELETE FROM term_sync");
    StateChanges changes(m_db);
    const QDate yesterday = today().addDays(-1);
    const ExportRow line = jana().with(&ExportRow::datumVystupu, yesterday);
    QCOMPARE(synchronise({line}).log, QStringList());
    // No row is deleted: not from the branch, the terminals, the administrators.
    QCOMPARE(
        changes.lines(),
        sorted({"people uid=4: end NULL -> " + isoDate(yesterday) + " 23:59:59, edited 0 -> now",
                "term_sync + tid=1 type=U ref=people ref_col=uid ref_id=4 ref_col2=NULL "
                "ref_id2=NULL created=now flags=2"}));
    const DatabaseState state = m_db.dumpAll();
    synchronise();
    QCOMPARE(TestDatabase::difference(state, m_db.dumpAll()), QString());
}

void TestBadInput::inTestModeNoPersonIsWritten()
{
    newWorker(1);
    m_worker->setTestMode(true);
    const QString number = QString::number(newPersonalNumber());
    StateChanges changes(m_db);
    const Trace trace =
        synchronise({jana()
                         .with(&ExportRow::prijmeni, "Malá")
                         .with(&ExportRow::dovolenaZustatek, "20")
                         .with(&ExportRow::kalendar, 2)
                         .with(&ExportRow::kalendarPlatnostOd, QDate(2025, 3, 1))
                         .with(&ExportRow::nadrizenyOsobniCislo, 1002),
                     newcomer(number.toInt()).with(&ExportRow::nadrizenyOsobniCislo, 1002)});
    const QString person = described(number, "Malá", "1002");
    QCOMPARE(
        trace.log.filter(QRegularExpression("^[WC]")),
        QStringList(
            {"W MHRWorker::dbUpdatePerson(1234.1) - Testing mode is active, person not really "
             "update!",
             "W MHRWorker::dbAddPerson(" + number
                 + ".1) - Testing mode is active, person not really add!",
             "W MHRWorker::dbAddPersonIntoPam(pid: " + number
                 + "1, pamSettingsID: 1) - Testing mode is active, person not really add into PaM!",
             "W MHRWorker - zamestnanec s osobnym cislom " + number + "1 nebol najdeny!",
             "W MHRWorker: can't add record '" + person + "' into [groups_plan]!"}));
    // Only the writing of persons is tried out; everything else is written.
    QCOMPARE(
        changes.lines(),
        sorted({"funds_move + type=3 day=" + isoDate(today()) + " month=" + monthNumber(today())
                    + " value=250 fid=2 uid=4",
                "admins_people aid=1 uid=4: request 1 -> 0",
                "admins_people + aid=2 uid=4 request=1", "groups_plan + gid=12 uid=4 since=202503",
                "groups_month uid=4 month=202503: gid 13 -> 12",
                "atten uid=4 date=2025-03-05: ok 1 -> -1",
                "people uid=4: lastCalc 2025-03-31 -> 2025-02-28"}));
}

void TestBadInput::inTestModeTheNextCycleIsAsQuiet()
{
    m_worker->setTestMode(true);
    const QString number = QString::number(newPersonalNumber());
    synchronise({tomas().with(&ExportRow::telefon, "1"), newcomer(number.toInt())});
    const DatabaseState state = m_db.dumpAll();
    const uint pid = QString(number + "1").toUInt();
    const Trace trace = synchronise();
    QCOMPARE(trace.log, QStringList());
    QCOMPARE(trace.statements,
             Sent::begin() << Sent::fundChecks(20012, 8) << Sent::movesOfToday(pid)
                           << Sent::calculation(pid));
    QCOMPARE(TestDatabase::difference(state, m_db.dumpAll()), QString());
}

void TestBadInput::aTableThatVanishesStopsNothing_data()
{
    QTest::addColumn<QString>("table");
    QTest::addColumn<QStringList>("log"); // @: pid of the newcomer, #: personal number, $: person
    QTest::newRow("people")
        << "people"
        << QStringList{
               "C MHRWorker::dbCheckFundMove() - SQL ERROR [1146]: " + notThere("people"),
               "C MHRWorker::dbCheckAttendance() - SQL ERROR [1146]: " + notThere("people"),
               "C MHRWorker::dbUpdatePerson(1234.1) - SQL ERROR: " + notThere("people"),
               "C MHRWorker::dbCheckPersonInBranch() - SQL ERROR [1146]: " + notThere("people"),
               "C GroupsPlanRepo::updateGroupsMonth - ERROR[1146]: " + notThere("people"),
               "C MHRWorker::dbChangeLastCalc() [UPDATE people] - SQL ERROR "
               "[1146]: "
                   + notThere("people"),
               "C MHRWorker::dbChangeLastCalc() [UPDATE people] - SQL ERROR "
               "[1146]: "
                   + notThere("people"),
               "C MHRWorker::dbCheckFundMove() - SQL ERROR [1146]: " + notThere("people"),
               "C MHRWorker::dbCheckAttendance() - SQL ERROR [1146]: " + notThere("people"),
               "C MHRWorker::dbAddPerson(#.1) - SQL ERROR: " + notThere("people"),
               "C MHRWorker::dbGetUidByPid() - SQL ERROR [1146]: " + notThere("people"),
               "C MHRWorker::dbCheckPersonInBranch() - SQL ERROR [1146]: " + notThere("people"),
               "W MHRWorker: can't add record '$' into [groups_plan]!",
               "C BranchesRepository::addPeopleToBranch - ERROR: " + notThere("people"),
           };
    QTest::newRow("brape")
        << "brape"
        << QStringList{
               "C MHRWorker::dbCheckPersonInBranch() - SQL ERROR [1146]: " + notThere("brape"),
               "C MHRWorker::dbCheckPersonInBranch() - SQL ERROR [1146]: " + notThere("brape"),
               "C BranchesRepository::addPeopleToBranch - ERROR: " + notThere("brape"),
           };
    QTest::newRow("groups_plan")
        << "groups_plan"
        << QStringList{
               "C MHRWorker::dbCheckGroupsPlan() - SQL ERROR [1146]: " + notThere("groups_plan"),
               "C GroupsPlanRepo::add - ERROR[1146]: " + notThere("groups_plan"),
               "W MHRWorker: can't add record '1234.1 Nováková Jana (S: 120, K: 2 from 1 Mar 2025) "
               "N-V: 1 Apr 2019 - ; ES: 0, RS:  -  '' TPP: 11  DOV: 20 NOC: 1002' into "
               "[groups_plan]!",
               "C MHRWorker::dbCheckGroupsPlan() - SQL ERROR [1146]: " + notThere("groups_plan"),
               "C GroupsPlanRepo::add - ERROR[1146]: " + notThere("groups_plan"),
               "W MHRWorker: can't add record '$' into [groups_plan]!",
           };
    QTest::newRow("atten")
        << "atten"
        << QStringList{
               "C MHRWorker::dbCheckAttendance() - SQL ERROR [1146]: " + notThere("atten"),
               "C GroupsPlanRepo::updateGroupsMonth - ERROR[1146]: " + notThere("atten"),
               "C MHRWorker::dbChangeLastCalc() [UPDATE atten] - SQL ERROR "
               "[1146]: "
                   + notThere("atten"),
               "C MHRWorker::dbChangeLastCalc() [UPDATE atten] - SQL ERROR "
               "[1146]: "
                   + notThere("atten"),
               "C MHRWorker::dbCheckAttendance() - SQL ERROR [1146]: " + notThere("atten"),
               "C GroupsPlanRepo::updateGroupsMonth - ERROR[1146]: " + notThere("atten"),
           };
    QTest::newRow("term_sync")
        << "term_sync"
        << QStringList{
               "C MHRWorker::addTermSyncPerson() ERROR: " + notThere("term_sync"),
               "C TermSyncRepository::addTermSyncPeople() ERROR: " + notThere("term_sync"),
               "C TermSyncRepository::addTermSyncPeople() ERROR: " + notThere("term_sync"),
           };
    QTest::newRow("people_term")
        << "people_term"
        << QStringList{
               "C MHRWorker::addTermSyncPerson() ERROR: " + notThere("people_term"),
               "C BranchesRepository::AddPeopleToTerm - ERROR: " + notThere("people_term"),
               "C BranchesRepository::AddPeopleToTerm - ERROR: " + notThere("people_term"),
               "W BranchesRepository::slotAddedPeopleToBranch() - AddPeopleToTerms() FAILED!",
           };
    QTest::newRow("bradm") << "bradm"
                           << QStringList{
                                  "C BranchesRepository::getAids4Branch - ERROR: "
                                      + notThere("bradm"),
                              };
    QTest::newRow("vars") << "vars"
                          << QStringList{
                                 "C TepDbSettings::variableGetMultiple - SQL ERROR: "
                                     + notThere("vars"),
                                 "W MHRWorker::dbAddPerson(#.1) - addPersonIntoPam() FAILED!",
                             };
}

void TestBadInput::aTableThatVanishesStopsNothing()
{
    QFETCH(QString, table);
    QFETCH(QStringList, log);
    const QString number = QString::number(newPersonalNumber());
    const QVector<ExportRow> lines = {jana()
                                          .with(&ExportRow::telefon, "1")
                                          .with(&ExportRow::dovolenaZustatek, "20")
                                          .with(&ExportRow::kalendar, 2)
                                          .with(&ExportRow::kalendarPlatnostOd, QDate(2025, 3, 1))
                                          .with(&ExportRow::nadrizenyOsobniCislo, 1002),
                                      newcomer(number.toInt())};
    m_export->write(lines);
    const Trace trace = observe([&] {
        m_worker->loadAndParseData();
        m_worker->dbLoadPeople();
        m_db.hideTable(table);
        m_worker->doSync();
    });
    log.replaceInStrings("#", number).replaceInStrings("$", described(number));
    QCOMPARE(trace.log, log);

    // Once the table is back, so is the synchronisation.
    m_db.restoreTable(table);
    force();
    QCOMPARE(synchronise().log, QStringList());
    QCOMPARE(m_db.value("SELECT phone FROM people WHERE uid = 4").toString(), QString("1"));
    QVERIFY(uidOf(QString(number + "1").toUInt()) != 0);
}

void TestBadInput::aServerThatIsLostInTheMiddleStopsNothing()
{
    m_export->write({tomas(), peter().with(&ExportRow::telefon, "0905999999")});
    m_worker->dbCheckOpen();
    const LogCapture log;
    m_worker->loadAndParseData();
    m_worker->dbLoadPeople();
    m_db.killServer();
    m_worker->doSync();
    m_worker->dbClose();
    const QString gone = "Server has gone away QMYSQL: Unable to execute query";
    QCOMPARE(log.lines(),
             QStringList(
                 {"C MHRWorker::dbLoadBranches() - SQL ERROR [2006]: " + gone,
                  "C MHRWorker::checkDovolenkaFond() - SQL ERROR [2006]: " + gone,
                  "C MHRWorker::dbUpdatePerson(2001.2) - SQL ERROR: " + gone,
                  "C MHRWorker::dbUpdatePerson(1002.1) - SQL ERROR: " + gone,
                  "W MHRWorker: Branch '130' NOT FOUND for employee: '1002.1 Horváth Peter "
                  "(S: 130, K: 1 from 1 Sep 2016) N-V: 1 Sep 2016 - ; ES: 0, RS:  -  '' "
                  "TPP: 11  DOV: 0 NOC: 0'",
                  "C MHRWorker::dbChangeLastCalc() [UPDATE atten] - SQL ERROR [2006]: " + gone}));

    m_db.startServer();
    force();
    QCOMPARE(synchronise().log, QStringList());
    QCOMPARE(m_db.value("SELECT phone FROM people WHERE uid = 2").toString(),
             QString("0905999999"));
}

void TestBadInput::aTickWithoutAServerDoesNothing()
{
    synchronise({tomas()});
    m_export->write({tomas().with(&ExportRow::telefon, "1")});
    m_db.stopServer();
    {
        const LogCapture log;
        m_worker->checkSync();
        QCOMPARE(log.lines().size(), 2);
        QVERIFY(log.lines().first().startsWith("C MHRWorker::dbCheckOpen() - SQL ERROR: "));
        QCOMPARE(log.lines().last(), QString("W MHRWorker::checkSync() - database not open!"));
    }
    m_db.startServer();
    QCOMPARE(synchronise().log, QStringList());
    QCOMPARE(m_db.value("SELECT phone FROM people WHERE uid = 8").toString(), QString("1"));
}

QTEST_GUILESS_MAIN(TestBadInput)
#include "tst_badinput.moc"
