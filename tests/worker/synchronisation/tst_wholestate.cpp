#include "tests/worker/support/sampleexport.h"
#include "tests/worker/support/statechanges.h"
#include "tests/worker/support/workertest.h"
#include "tests/worker/synchronisation/sent.h"

#include <QScopeGuard>
#include <QTest>

using namespace SampleExport;

namespace {

QDate today()
{
    return QDate::currentDate();
}

QDate firstOfMonth()
{
    return QDate(today().year(), today().month(), 1);
}

/// From here on attendance is recalculated when somebody moved.
QDate recalculated()
{
    return firstOfMonth().addMonths(-1);
}

/// uid 6, pid 12361, branch 2. Her last day was yesterday.
ExportRow lubica()
{
    return ExportRow()
        .with(&ExportRow::osobniCislo, 1236)
        .with(&ExportRow::titul, "")
        .with(&ExportRow::jmeno, "Ľubica")
        .with(&ExportRow::prijmeni, "Ďuricová")
        .with(&ExportRow::telefon, "0905000006")
        .with(&ExportRow::datumNastupu, QDate(2021, 11, 1))
        .with(&ExportRow::datumVystupu, today().addDays(-1))
        .with(&ExportRow::stredisko, 130)
        .with(&ExportRow::strediskoPopis, "Predajňa")
        .with(&ExportRow::kalendar, 3)
        .with(&ExportRow::kalendarPlatnostOd, QDate(2021, 11, 1))
        .with(&ExportRow::dovolenaZustatek, "0");
}

/// uid 7, pid 12371: left years ago, inactive in the table.
ExportRow stefan()
{
    return ExportRow()
        .with(&ExportRow::osobniCislo, 1237)
        .with(&ExportRow::jmeno, "Štefan")
        .with(&ExportRow::prijmeni, "Žiak")
        .with(&ExportRow::datumVystupu, QDate(2023, 12, 31))
        .with(&ExportRow::stavPracovnihoPomeru, 4);
}

/// What HR sends on an ordinary morning about known people.
QVector<ExportRow> ordinaryExport()
{
    return {
        maria(),
        peter().with(&ExportRow::telefon, "0905999999"),
        zuzana()
            .with(&ExportRow::stredisko, 120)
            .with(&ExportRow::strediskoPopis, "Sklad")
            .with(&ExportRow::kalendarPlatnostOd, firstOfMonth()),
        jana()
            .with(&ExportRow::prijmeni, "Malá")
            .with(&ExportRow::dovolenaZustatek, "15.25")
            .with(&ExportRow::nadrizenyOsobniCislo, 1002),
        jan().with(&ExportRow::kalendar, 3).with(&ExportRow::kalendarPlatnostOd, QDate(2025, 3, 1)),
        lubica(),
        tomas(),
        stefan()};
}

} // namespace

/// Whole exports against the whole sample data: what one synchronisation changes, row by row, and
/// that the next one with the same file changes nothing.
class TestWholeState : public WorkerTest {
    Q_OBJECT
private Q_SLOTS:
    void anOrdinaryExportChangesWhatItSays();
    void theSameExportAgainOnlyAsksForTheFund();
    void aForcedRepetitionChangesNothing();

    void newcomersAreTakenUp();
    void newcomersAreSettledInTheSecondCycle();
    void newcomersAreSettledAfterTwoCycles();
    void peopleJoinTheBranchTheyWaitedForOnceItExists();

    void aDatabaseWithoutAnythingTakesPeopleOnly();
    void aNumberOfItsOwnInEveryRowChangesNothing();
    void rowsWithoutANumberOfTheirOwnChangeNothing();
    void aServerThatForcesPrimaryKeysTakesTablesAndSynchronisations();

private:
    /// The sample as it is in daily use: calculated up to yesterday.
    void beCalculated();

    QVector<ExportRow> newcomers(int firstNumber) const;
    /// What two synchronisations of the sample change that handle people of every kind.
    QStringList changesOfTwoCycles();
};

void TestWholeState::beCalculated()
{
    const auto day = [](const QDate &date) {
        return QString::number(localMidnight(date));
    };
    m_db.run("UPDATE people SET lastCalc = " + day(today().addDays(-1)) + " WHERE uid <= 6");
    m_db.run("INSERT INTO atten (uid, `date`, ok, `lock`, man) VALUES (1, "
             + day(today().addDays(-1)) + ", 1, 1, 0), (4, " + day(recalculated().addDays(-1))
             + ", 1, 0, 0), (4, " + day(recalculated()) + ", 1, 0, 0), (4, "
             + day(today().addDays(-1)) + ", 1, 0, 0)");
}

void TestWholeState::anOrdinaryExportChangesWhatItSays()
{
    beCalculated();
    StateChanges changes(m_db);
    QCOMPARE(synchronise(ordinaryExport()).log, QStringList());

    const QString yesterday = isoDate(today().addDays(-1));
    const QString calculated =
        "lastCalc " + yesterday + " -> " + isoDate(recalculated().addDays(-1));
    QCOMPARE(
        changes.lines(),
        sorted({
            // Everybody is seen for the first time, so everybody is written.
            "people uid=1: edited 0 -> now, " + calculated,
            "people uid=2: phone 0905000002 -> 0905999999, edited 0 -> now, " + calculated,
            "people uid=3: edited 0 -> now, bid 3 -> 1, " + calculated,
            "people uid=4: surname Nováková -> Malá, edited 0 -> now, " + calculated,
            "people uid=5: edited 0 -> now, calendarID 2 -> 3, lastCalc " + yesterday
                + " -> 2025-02-28",
            "people uid=6: end NULL -> " + yesterday + " 23:59:59, edited 0 -> now, " + calculated,
            "people uid=8: edited 0 -> now",
            // The terminals are notified: 3 is switched off, 5 under test.
            "term_sync + tid=1 type=U ref=people ref_col=uid ref_id=1 ref_col2=NULL ref_id2=NULL "
            "created=now flags=2",
            "term_sync + tid=4 type=U ref=people ref_col=uid ref_id=2 ref_col2=NULL ref_id2=NULL "
            "created=now flags=2",
            "term_sync + tid=7 type=U ref=people ref_col=uid ref_id=3 ref_col2=NULL ref_id2=NULL "
            "created=now flags=2",
            "term_sync + tid=1 type=U ref=people ref_col=uid ref_id=4 ref_col2=NULL ref_id2=NULL "
            "created=now flags=2",
            "term_sync + tid=1 type=U ref=people ref_col=uid ref_id=5 ref_col2=NULL ref_id2=NULL "
            "created=now flags=2",
            "term_sync + tid=4 type=U ref=people ref_col=uid ref_id=6 ref_col2=NULL ref_id2=NULL "
            "created=now flags=2",
            "term tid=1: syn 0 -> 2",
            "term tid=4: syn 0 -> 2",
            "term tid=7: syn 64 -> 66",
            // Zuzana moves from the office to the warehouse, and is added to its terminals and
            // administrators. She stays a member of the office.
            "brape + bid=1 uid=3 since=now",
            "groups_plan + gid=11 uid=3 since=" + monthNumber(firstOfMonth()),
            "people_term + tid=1 uid=3",
            "people_term + tid=2 uid=3",
            "term_sync + tid=1 type=I ref=people_term ref_col=uid ref_id=3 ref_col2=NULL "
            "ref_id2=NULL created=now flags=2",
            "term_sync + tid=2 type=I ref=people_term ref_col=uid ref_id=3 ref_col2=NULL "
            "ref_id2=NULL created=now flags=2",
            "term tid=2: syn 0 -> 2",
            "admins_people + aid=1 uid=3 request=0",
            // Jana's balance was 17.5 days, her requests went to Kováčová.
            "funds_move + type=3 day=" + isoDate(today()) + " month=" + monthNumber(today())
                + " value=-225 fid=2 uid=4",
            "admins_people aid=1 uid=4: request 1 -> 0",
            "admins_people + aid=2 uid=4 request=1",
            "atten uid=4 date=" + isoDate(recalculated()) + ": ok 1 -> -1",
            "atten uid=4 date=" + yesterday + ": ok 1 -> -1",
            // Ján's calendar begins in the past.
            "groups_plan + gid=13 uid=5 since=202503",
            "groups_month uid=5 month=202503: gid 12 -> 13",
            "atten uid=5 date=2025-03-03: ok 1 -> -1",
            "atten uid=5 date=2025-03-04: ok 1 -> -1",
            "atten uid=5 date=2025-03-05: ok 1 -> -1",
        }));
}

void TestWholeState::theSameExportAgainOnlyAsksForTheFund()
{
    beCalculated();
    synchronise(ordinaryExport());
    const DatabaseState state = m_db.dumpAll();
    const Trace trace = synchronise();
    QCOMPARE(trace.log, QStringList());
    QCOMPARE(trace.statements,
             Sent::begin() << Sent::fundChecks(10011, 1) << Sent::fundChecks(10021, 2)
                           << Sent::fundChecks(10031, 3)
                           // Jana and Ján have days to be calculated.
                           << Sent::movesOfToday(12341) << Sent::calculation(12341)
                           << Sent::movesOfToday(12351) << Sent::calculation(12351)
                           << Sent::fundChecks(12361, 6) << Sent::fundChecks(20012, 8)
                           << Sent::fundChecks(12371, 7));
    QCOMPARE(TestDatabase::difference(state, m_db.dumpAll()), QString());
}

void TestWholeState::aForcedRepetitionChangesNothing()
{
    beCalculated();
    synchronise(ordinaryExport());
    const DatabaseState state = m_db.dumpAll();
    force();
    const Trace trace = synchronise();
    QCOMPARE(trace.log, QStringList());
    const int thisMonth = monthNumber(firstOfMonth()).toInt();
    QCOMPARE(
        trace.statements,
        Sent::begin()
            << Sent::fundChecks(10011, 1) << Sent::balance(10011) << Sent::membership(10011, 1)
            << Sent::group(1, 1) << Sent::plannedGroup(11, 1, 201502) << Sent::recalculation(1)
            << Sent::fundChecks(10021, 2) << Sent::balance(10021) << Sent::membership(10021, 2)
            << Sent::group(2, 1) << Sent::plannedGroup(21, 2, 201609) << Sent::recalculation(2)
            << Sent::fundChecks(10031, 3) << Sent::balance(10031) << Sent::membership(10031, 1)
            << Sent::group(1, 1) << Sent::plannedGroup(11, 3, thisMonth) << Sent::recalculation(3)
            << Sent::movesOfToday(12341) << Sent::calculation(12341) << Sent::membership(12341, 1)
            << Sent::group(1, 3) << Sent::plannedGroup(13, 4, 202301) << Sent::recalculation(4)
            << Sent::movesOfToday(12351) << Sent::calculation(12351) << Sent::membership(12351, 1)
            << Sent::group(1, 3) << Sent::plannedGroup(13, 5, 202503) << Sent::recalculation(5)
            << Sent::fundChecks(12361, 6) << Sent::balance(12361) << Sent::recalculation(6)
            << Sent::fundChecks(20012, 8) << Sent::balance(20012) << Sent::fundChecks(12371, 7)
            << Sent::resetForce());
    QCOMPARE(TestDatabase::difference(state, m_db.dumpAll()), QString());
}

QVector<ExportRow> TestWholeState::newcomers(int firstNumber) const
{
    const ExportRow eva = ExportRow()
                              .with(&ExportRow::osobniCislo, firstNumber)
                              .with(&ExportRow::titul, "")
                              .with(&ExportRow::jmeno, "Eva")
                              .with(&ExportRow::prijmeni, "Malá")
                              .with(&ExportRow::telefon, "")
                              .with(&ExportRow::datumNastupu, today())
                              .with(&ExportRow::stredisko, 130)
                              .with(&ExportRow::kalendar, 3)
                              .with(&ExportRow::kalendarPlatnostOd, today().addDays(1))
                              .with(&ExportRow::evidencniStav, 1)
                              .with(&ExportRow::dovolenaZustatek, "25")
                              .with(&ExportRow::nadrizenyOsobniCislo, 1001);
    const ExportRow jozef = ExportRow()
                                .with(&ExportRow::osobniCislo, firstNumber + 1)
                                .with(&ExportRow::titul, "")
                                .with(&ExportRow::jmeno, "Jozef")
                                .with(&ExportRow::prijmeni, "Dlhý")
                                .with(&ExportRow::telefon, "0905111222")
                                .with(&ExportRow::datumNastupu, QDate(2026, 1, 1))
                                .with(&ExportRow::stredisko, 999)
                                .with(&ExportRow::kalendar, 1)
                                .with(&ExportRow::kalendarPlatnostOd, "")
                                .with(&ExportRow::typPracovnihoPomeru, 54)
                                .with(&ExportRow::dovolenaZustatek, "3");
    const ExportRow gone = ExportRow()
                               .with(&ExportRow::osobniCislo, firstNumber + 2)
                               .with(&ExportRow::stavPracovnihoPomeru, 4);
    const ExportRow anna = ExportRow()
                               .with(&ExportRow::osobniCislo, firstNumber + 3)
                               .with(&ExportRow::titul, "Mgr.")
                               .with(&ExportRow::jmeno, "Anna")
                               .with(&ExportRow::prijmeni, "")
                               .with(&ExportRow::titulZa, "PhD.")
                               .with(&ExportRow::telefon, "")
                               .with(&ExportRow::datumNastupu, "")
                               .with(&ExportRow::datumVystupu, today().addDays(1))
                               .with(&ExportRow::stredisko, 0)
                               .with(&ExportRow::kalendar, 0)
                               .with(&ExportRow::kalendarPlatnostOd, "")
                               .with(&ExportRow::typPracovnihoPomeru, 12)
                               .with(&ExportRow::dovolenaZustatek, "0");
    const ExportRow nameless = ExportRow()
                                   .with(&ExportRow::osobniCislo, firstNumber + 4)
                                   .with(&ExportRow::jmeno, "")
                                   .with(&ExportRow::prijmeni, "");
    return {eva, jozef, gone, anna, nameless};
}

void TestWholeState::newcomersAreTakenUp()
{
    m_worker->setMes({{1, "v skúšobnej dobe"}});
    StateChanges changes(m_db);
    const Trace trace = synchronise(newcomers(3001));
    QCOMPARE(trace.log,
             QStringList("W MHRWorker: Branch '999' NOT FOUND for employee: '3002.1 Dlhý Jozef (S: "
                         "999, K: 1 from ) N-V: 1 Jan 2026 - ; ES: 0, RS:  -  '' TPP: 54  DOV: 3 "
                         "NOC: 0'"));
    const QString tomorrow = isoDate(today().addDays(1));
    QCOMPARE(
        changes.lines(),
        sorted({
            "people + uid=9 pid=30011 pamId=3001.1 title= name=Eva surname=Malá title2= phone= "
            "begin="
                + isoDate(today())
                + " end=NULL created=now edited=0 editor=0 rsBegin=" + isoDate(today())
                + " rsEnd=NULL rsText=v skúšobnej dobe type=1 did=1 calendarID=3 bid=2 status=1 "
                  "lastCalc=0 calc=0 gid=NULL",
            "people + uid=10 pid=30021 pamId=3002.1 title= name=Jozef surname=Dlhý title2= "
            "phone=0905111222 begin=2026-01-01 end=NULL created=now edited=0 editor=0 "
            "rsBegin=NULL rsEnd=NULL rsText= type=4 did=1 calendarID=1 bid=NULL status=1 "
            "lastCalc=0 calc=0 gid=NULL",
            "people + uid=11 pid=30041 pamId=3004.1 title=Mgr. name=Anna surname= title2=PhD. "
            "phone= begin=2000-01-01 end="
                + tomorrow
                + " 23:59:59 created=now edited=0 editor=0 rsBegin=NULL rsEnd=NULL rsText= type=0 "
                  "did=1 calendarID=0 bid=NULL status=1 lastCalc=0 calc=0 gid=NULL",
            "vars name=exportPam.1.selPeople: value 10011,10021,10031,12341,12351,12361 -> "
            "10011,10021,10031,12341,12351,12361,30011,30021,30041",
            "people_pam + uid=9 id=1",
            "people_pam + uid=10 id=2",
            // Eva works in the shop and has Kováčová as supervisor; Horváth administers the shop.
            "admins_people + aid=1 uid=9 request=1",
            "admins_people + aid=2 uid=9 request=0",
            "groups_plan + gid=23 uid=9 since=" + monthNumber(today().addDays(1)),
            "brape + bid=2 uid=9 since=now",
            "people_term + tid=4 uid=9",
            "people_term + tid=5 uid=9",
            "term_sync + tid=4 type=I ref=people_term ref_col=uid ref_id=9 ref_col2=NULL "
            "ref_id2=NULL created=now flags=2",
            "term_sync + tid=5 type=I ref=people_term ref_col=uid ref_id=9 ref_col2=NULL "
            "ref_id2=NULL created=now flags=2",
            "term tid=4: syn 0 -> 2",
        }));
}

void TestWholeState::newcomersAreSettledInTheSecondCycle()
{
    // Their balance could not be corrected in the cycle that created them.
    m_worker->setMes({{1, "v skúšobnej dobe"}});
    const QVector<ExportRow> lines = newcomers(3011);
    synchronise(lines);
    StateChanges changes(m_db);
    const Trace trace = synchronise();
    Sent::PersonValues jozef;
    jozef.type = "4";
    jozef.bid = "NULL";
    Sent::PersonValues anna;
    anna.type = "0";
    anna.bid = "NULL";
    const int nextMonth = monthNumber(today().addDays(1)).toInt();
    QCOMPARE(trace.statements,
             Sent::begin() << Sent::fundChecks(30111, 9) << Sent::balance(30111)
                           << Sent::correction(9, 2500) << Sent::membership(30111, 2)
                           << Sent::group(2, 3) << Sent::plannedGroup(23, 9, nextMonth)
                           << Sent::recalculation(9)
                           // Jozef has no branch in the table, which is not what HR says.
                           << Sent::fundChecks(30121, 10) << Sent::updatePerson(lines[1], jozef)
                           << Sent::notifyTerminals(30121, 10) << Sent::balance(30121)
                           << Sent::correction(10, 300) << Sent::findUid(30121)
                           << Sent::recalculation(10) << Sent::movesOfToday(30131)
                           << Sent::calculation(30131)

                           // Anna has no first day for HR, and one in 2000 in the table.
                           << Sent::fundChecks(30141, 11) << Sent::updatePerson(lines[3], anna)
                           << Sent::notifyTerminals(30141, 11) << Sent::balance(30141));
    const QString move =
        "funds_move + type=3 day=" + isoDate(today()) + " month=" + monthNumber(today());
    QCOMPARE(changes.lines(),
             sorted({move + " value=2500 fid=2 uid=9", move + " value=300 fid=2 uid=10",
                     "people uid=10: edited 0 -> now", "people uid=11: edited 0 -> now"}));
}

void TestWholeState::newcomersAreSettledAfterTwoCycles()
{
    m_worker->setMes({{1, "v skúšobnej dobe"}});
    synchronise(newcomers(3021));
    synchronise();
    const DatabaseState state = m_db.dumpAll();
    const Trace trace = synchronise();
    QCOMPARE(trace.log.size(), 1); // Jozef's branch
    QCOMPARE(trace.statements,
             Sent::begin() << Sent::fundChecks(30211, 9) << Sent::fundChecks(30221, 10)
                           << Sent::movesOfToday(30231) << Sent::calculation(30231)
                           << Sent::fundChecks(30241, 11));
    QCOMPARE(TestDatabase::difference(state, m_db.dumpAll()), QString());
}

void TestWholeState::peopleJoinTheBranchTheyWaitedForOnceItExists()
{
    m_worker->setMes({{1, "v skúšobnej dobe"}});
    synchronise(newcomers(3031));
    synchronise();
    m_db.run("INSERT INTO branches (bid, number, name, mgid) VALUES (5, 999, 'Nová', 1)");
    m_db.run("UPDATE term SET bid = 5 WHERE tid = 6");
    m_db.run("INSERT INTO bradm (bid, aid) VALUES (5, 4)");
    StateChanges changes(m_db);
    const Trace trace = synchronise();
    QCOMPARE(trace.log, QStringList());
    QCOMPARE(trace.statements,
             Sent::begin() << Sent::fundChecks(30311, 9) << Sent::fundChecks(30321, 10)
                           << Sent::membership(30321, 5) << Sent::group(5, 1)
                           << Sent::plannedGroup(11, 10, 0) << Sent::planGroup(11, 10, 0)
                           << "UPDATE atten SET ok = -1 WHERE `lock` =0 AND `man`=0 AND `date` >= "
                              "0 AND uid =10"
                           << "UPDATE people set lastCalc = 0, calc = 0 WHERE lastCalc > 0 AND "
                              "uid=10"
                           << Sent::movesOfToday(30331) << Sent::calculation(30331)
                           << Sent::fundChecks(30341, 11) << Sent::joinBranch(5, "10")
                           << Sent::propagation(5, {"10"}, {6}, {4}));
    // The row itself gets its branch when the line changes next.
    QCOMPARE(changes.lines(),
             sorted({"groups_plan + gid=11 uid=10 since=0", "brape + bid=5 uid=10 since=now",
                     "people_term + tid=6 uid=10",
                     "term_sync + tid=6 type=I ref=people_term ref_col=uid ref_id=10 "
                     "ref_col2=NULL ref_id2=NULL created=now flags=2",
                     "term tid=6: syn 0 -> 2", "admins_people + aid=4 uid=10 request=0"}));
}

void TestWholeState::aDatabaseWithoutAnythingTakesPeopleOnly()
{
    m_db.resetEmpty();
    StateChanges changes(m_db);
    const int number = newPersonalNumber();
    const QString name = QString::number(number);
    const Trace trace = synchronise({newcomer(number).with(&ExportRow::nadrizenyOsobniCislo, 1001),
                                     newcomer(number).with(&ExportRow::stavPracovnihoPomeru, 4)});
    const QString person = name + ".1 Malá Eva (S: 120, K: 1 from " + shortDate(today().addDays(1))
        + ") N-V: " + shortDate(today().addDays(-10))
        + " - ; ES: 0, RS:  -  '' TPP: 11  DOV: 0 NOC: 1001";
    QCOMPARE(trace.log,
             QStringList({"W MHRWorker::dbAddPerson(" + name + ".1) - addPersonIntoPam() FAILED!",
                          "W MHRWorker - admin s osobnym cislom 1001 nebol najdeny!",
                          "W MHRWorker: Branch '120' NOT FOUND for employee: '" + person + "'"}));
    QCOMPARE(changes.lines(),
             sorted({"people + uid=1 pid=" + name + "1 pamId=" + name
                         + ".1 title= name=Eva surname=Malá title2= phone= begin="
                         + isoDate(today().addDays(-10))
                         + " end=NULL created=now edited=0 editor=0 rsBegin=NULL rsEnd=NULL "
                           "rsText= type=1 did=1 calendarID=1 bid=NULL status=1 lastCalc=0 "
                           "calc=0 gid=NULL",
                     "people_pam + uid=1 id=1"}));
}

QStringList TestWholeState::changesOfTwoCycles()
{
    beCalculated();
    StateChanges changes(m_db);
    synchronise(ordinaryExport() + newcomers(3041));
    force();
    synchronise();
    return changes.lines();
}

void TestWholeState::aNumberOfItsOwnInEveryRowChangesNothing()
{
    const QStringList usual = changesOfTwoCycles();
    QStringList tables;
    for (const QString &line : usual)
        tables += line.section(' ', 0, 0);
    tables.removeDuplicates();
    QCOMPARE(tables.join(' '),
             QString("admins_people atten brape funds_move groups_month groups_plan people "
                     "people_pam people_term term term_sync vars"));
    m_db.reset();
    newWorker();
    m_db.addOwnNumbers();
    QCOMPARE(changesOfTwoCycles().join('\n'), usual.join('\n'));
}

void TestWholeState::rowsWithoutANumberOfTheirOwnChangeNothing()
{
    const QStringList usual = changesOfTwoCycles();
    m_db.reset();
    newWorker();
    m_db.removeOwnNumbers();
    QCOMPARE(changesOfTwoCycles().join('\n'), usual.join('\n'));
}

void TestWholeState::aServerThatForcesPrimaryKeysTakesTablesAndSynchronisations()
{
    const QStringList usual = changesOfTwoCycles();
    m_db.run("SET GLOBAL innodb_force_primary_key = 1");
    const auto allow = qScopeGuard([this] { m_db.run("SET GLOBAL innodb_force_primary_key = 0"); });
    m_db.run("DROP TABLE term_sync, pzt");
    m_db.reset(); // loads the schema anew
    newWorker();
    QCOMPARE(changesOfTwoCycles().join('\n'), usual.join('\n'));
}

QTEST_GUILESS_MAIN(TestWholeState)
#include "tst_wholestate.moc"
