#include "tests/support/localzone.h"
#include "tests/worker/support/sampleexport.h"
#include "tests/worker/support/workertest.h"
#include "tests/worker/synchronisation/movableclock.h"

#include <QDateTime>
#include <QRegularExpression>
#include <QSqlQuery>
#include <QTest>

#include <ctime>

using namespace SampleExport;

namespace {

qint64 seconds(const QByteArray &moment)
{
    return MovableClock::seconds(moment);
}

QString number(const QByteArray &moment)
{
    return QString::number(seconds(moment));
}

ExportRow tomasWith(const QString &balance)
{
    return tomas().with(&ExportRow::dovolenaZustatek, balance);
}

/// Ján, uid 5, in branch 1, where calendar 3 has group 13.
MirovaRonRecord janOnCalendar3(const QDate &since)
{
    MirovaRonRecord record;
    record.osobniCislo = 1235;
    record.poradoveCisloPP = 1;
    record.prijmeni = QStringLiteral("Szabó");
    record.stredisko = 120;
    record.kalendar = 3;
    record.kalendarPlatnostOd = since;
    return record;
}

bool updatesPerson(const Trace &trace)
{
    return !trace.statements.filter(QRegularExpression("^UPDATE people SET pamId")).isEmpty();
}

} // namespace

/// What lands in the tables at the turns of time: of day, month and year, at the leap day and when
/// clocks change. The program and the server's connections live in Bratislava and share a clock,
/// which the test moves.
class TestClock : public WorkerTest {
    Q_OBJECT
private Q_SLOTS:
    void cleanup();

    void programAndServerShareTheClock_data();
    void programAndServerShareTheClock();

    void aDayIsWrittenFromItsMidnightToItsLastSecond_data();
    void aDayIsWrittenFromItsMidnightToItsLastSecond();
    void aStateBeginsToday_data();
    void aStateBeginsToday();
    void aStateRunsOnOverMidnight_data();
    void aStateRunsOnOverMidnight();
    void aPersonIsActiveUpToTheEndOfTheLastDay_data();
    void aPersonIsActiveUpToTheEndOfTheLastDay();
    void momentsAreThoseOfTheServer_data();
    void momentsAreThoseOfTheServer();

    void aCorrectionBelongsToTheLocalDay_data();
    void aCorrectionBelongsToTheLocalDay();
    void theNextCorrectionIsAllowedFromMidnightOn_data();
    void theNextCorrectionIsAllowedFromMidnightOn();
    void theBalanceTurnsWithTheMonth_data();
    void theBalanceTurnsWithTheMonth();
    void aCalculationIsRecentFor899Seconds_data();
    void aCalculationIsRecentFor899Seconds();
    void aCorrectionIsRecalculatedFromThePreviousMonth_data();
    void aCorrectionIsRecalculatedFromThePreviousMonth();

    void aCalendarIsPlannedFromItsMonthAndRecalculatedFromItsDay_data();
    void aCalendarIsPlannedFromItsMonthAndRecalculatedFromItsDay();
    void monthsOfAPlanAreThoseOfLocalDays();

    void programAndServerMayLiveInAnotherZone();
    void aServerInAnotherZoneCountsDaysOfItsOwn();
    void fromJanuary2038OnOnlyNewServersHaveMidnights();

private:
    /// Moves the program's clock and that of the server's connections.
    void standAt(const QByteArray &moment);
    void findFund()
    {
        observe([this] { m_worker->dbCheckDovolenkaFond(3); });
    }
    QStringList movesOfTomas();
    /// The rows of a test of `before` and `after`: the last second of a day and the next second.
    static void addMidnights();
};

void TestClock::cleanup()
{
    MovableClock::run();
    m_db.run("SET GLOBAL time_zone = 'SYSTEM'");
    m_db.run("SET GLOBAL init_connect = ''");
    WorkerTest::cleanup();
}

void TestClock::standAt(const QByteArray &moment)
{
    MovableClock::standAt(moment);
    m_db.run("SET GLOBAL init_connect = 'SET timestamp = " + number(moment) + "'");
    m_worker->dbClose(); // the next connection has it
}

/// "day month value", the oldest first.
QStringList TestClock::movesOfTomas()
{
    QStringList moves;
    const TableRows rows = m_db.rows("SELECT day, month, value FROM funds_move"
                                     " WHERE uid = 8 AND type = 3 AND fid = 2 ORDER BY day");
    for (const QStringList &row : rows)
        moves += row.join(' ');
    return moves;
}

void TestClock::addMidnights()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    const auto row = [](const char *name, const char *before, const char *after) {
        QTest::newRow(name) << QByteArray(before) << QByteArray(after);
    };
    row("any day", "2025-07-14T23:59:59+02:00", "2025-07-15T00:00:00+02:00");
    row("end of a month", "2025-04-30T23:59:59+02:00", "2025-05-01T00:00:00+02:00");
    row("end of a year", "2025-12-31T23:59:59+01:00", "2026-01-01T00:00:00+01:00");
    row("before a leap day", "2024-02-28T23:59:59+01:00", "2024-02-29T00:00:00+01:00");
    row("end of a leap day", "2024-02-29T23:59:59+01:00", "2024-03-01T00:00:00+01:00");
    row("end of February", "2025-02-28T23:59:59+01:00", "2025-03-01T00:00:00+01:00");
    row("before the short day", "2025-03-29T23:59:59+01:00", "2025-03-30T00:00:00+01:00");
    row("end of the short day", "2025-03-30T23:59:59+02:00", "2025-03-31T00:00:00+02:00");
    row("end of the month of the short day", "2025-03-31T23:59:59+02:00",
        "2025-04-01T00:00:00+02:00");
    row("before the long day", "2025-10-25T23:59:59+02:00", "2025-10-26T00:00:00+02:00");
    row("end of the long day", "2025-10-26T23:59:59+01:00", "2025-10-27T00:00:00+01:00");
    row("end of the month of the long day", "2025-10-31T23:59:59+01:00",
        "2025-11-01T00:00:00+01:00");
}

void TestClock::programAndServerShareTheClock_data()
{
    QTest::addColumn<QByteArray>("moment");
    QTest::addColumn<QString>("local");
    const auto row = [](const char *name, const char *moment, const char *local) {
        QTest::newRow(name) << QByteArray(moment) << QString(local);
    };
    row("winter", "2025-12-31T23:59:59+01:00", "2025-12-31 23:59:59");
    row("summer", "2025-07-01T00:00:00+02:00", "2025-07-01 00:00:00");
    row("02:30, still summer", "2025-10-26T02:30:00+02:00", "2025-10-26 02:30:00");
    row("02:30 again, now winter", "2025-10-26T02:30:00+01:00", "2025-10-26 02:30:00");
}

void TestClock::programAndServerShareTheClock()
{
    QFETCH(QByteArray, moment);
    QFETCH(QString, local);
    standAt(moment);
    QCOMPARE(QDateTime::currentSecsSinceEpoch(), seconds(moment));
    QCOMPARE(QDateTime::currentDateTime().toString("yyyy-MM-dd hh:mm:ss"), local);
    QSqlQuery query("SELECT UNIX_TIMESTAMP(), CAST(NOW() AS CHAR)", m_db.openPluginConnection());
    QVERIFY(query.next());
    QCOMPARE(query.value(0).toString(), number(moment));
    QCOMPARE(query.value(1).toString(), local);
}

// ---- People ------------------------------------------------------------------------------------

void TestClock::aDayIsWrittenFromItsMidnightToItsLastSecond_data()
{
    QTest::addColumn<QDate>("day");
    QTest::addColumn<qint64>("begin");
    QTest::addColumn<qint64>("end");
    QTest::addColumn<bool>("comesBack");
    const auto row = [](const char *name, const QDate &day, const char *begin, const char *end) {
        QTest::newRow(name) << day << seconds(begin) << seconds(end) << true;
    };
    row("end of a year", QDate(2024, 12, 31), "2024-12-31T00:00:00+01:00",
        "2024-12-31T23:59:59+01:00");
    row("begin of a year", QDate(2025, 1, 1), "2025-01-01T00:00:00+01:00",
        "2025-01-01T23:59:59+01:00");
    row("leap day", QDate(2024, 2, 29), "2024-02-29T00:00:00+01:00", "2024-02-29T23:59:59+01:00");
    row("end of February", QDate(2025, 2, 28), "2025-02-28T00:00:00+01:00",
        "2025-02-28T23:59:59+01:00");
    row("short day", QDate(2025, 3, 30), "2025-03-30T00:00:00+01:00", "2025-03-30T23:59:59+02:00");
    row("day after it", QDate(2025, 3, 31), "2025-03-31T00:00:00+02:00",
        "2025-03-31T23:59:59+02:00");
    row("long day", QDate(2025, 10, 26), "2025-10-26T00:00:00+02:00", "2025-10-26T23:59:59+01:00");
    row("day after that", QDate(2025, 10, 27), "2025-10-27T00:00:00+01:00",
        "2025-10-27T23:59:59+01:00");
    row("end of 32 signed bits", QDate(2038, 1, 19), "2038-01-19T00:00:00+01:00",
        "2038-01-19T23:59:59+01:00");
    row("short day of 2038", QDate(2038, 3, 28), "2038-03-28T00:00:00+01:00",
        "2038-03-28T23:59:59+02:00");
    row("long day of 2038", QDate(2038, 10, 31), "2038-10-31T00:00:00+02:00",
        "2038-10-31T23:59:59+01:00");
    row("leap day of 2040", QDate(2040, 2, 29), "2040-02-29T00:00:00+01:00",
        "2040-02-29T23:59:59+01:00");
    row("last day within 32 bits", QDate(2106, 2, 6), "2106-02-06T00:00:00+01:00",
        "2106-02-06T23:59:59+01:00");
    row("second day of 1970", QDate(1970, 1, 2), "1970-01-02T00:00:00+01:00",
        "1970-01-02T23:59:59+01:00");

    // A begin is kept within 32 bits, an end is not; what is read is. So these never agree with the
    // export, and a forced synchronisation writes them again.
    const auto beyond = [](const char *name, const QDate &day, qint64 begin, qint64 end) {
        QTest::newRow(name) << day << begin << end << false;
    };
    beyond("first day of 1970", QDate(1970, 1, 1), 0, 82799);
    beyond("last day of 1969", QDate(1969, 12, 31), 0, -3601);
    beyond("1 March 1959", QDate(1959, 3, 1), 0, -341974801);
    beyond("7 February 2106", QDate(2106, 2, 7), 4294940400, 4295026799);
    beyond("1 June 2150", QDate(2150, 6, 1), 4294967295, 5693407199);
}

void TestClock::aDayIsWrittenFromItsMidnightToItsLastSecond()
{
    QFETCH(QDate, day);
    QFETCH(qint64, begin);
    QFETCH(qint64, end);
    QFETCH(bool, comesBack);
    standAt("2025-07-14T12:00:00+02:00");
    const ExportRow row =
        tomas().with(&ExportRow::datumNastupu, day).with(&ExportRow::datumVystupu, day);
    QVERIFY(updatesPerson(synchronise({row})));
    const TableRows expected = {{QString::number(begin), QString::number(end)}};
    QCOMPARE(m_db.rows("SELECT begin, end FROM people WHERE uid = 8"), expected);

    force();
    QCOMPARE(updatesPerson(synchronise({row})), !comesBack);
    QCOMPARE(m_db.rows("SELECT begin, end FROM people WHERE uid = 8"), expected);
}

void TestClock::aStateBeginsToday_data()
{
    QTest::addColumn<QByteArray>("now");
    QTest::addColumn<qint64>("rsBegin");
    QTest::addColumn<qint64>("lastCalc");
    const auto row = [](const char *now, const char *rsBegin, const char *lastCalc) {
        QTest::newRow(now) << QByteArray(now) << seconds(rsBegin) << seconds(lastCalc);
    };
    row("2025-12-31T23:59:59+01:00", "2025-12-31T00:00:00+01:00", "2025-12-30T00:00:00+01:00");
    row("2026-01-01T00:00:00+01:00", "2026-01-01T00:00:00+01:00", "2025-12-31T00:00:00+01:00");
    row("2025-05-01T00:00:00+02:00", "2025-05-01T00:00:00+02:00", "2025-04-30T00:00:00+02:00");
    row("2024-02-29T12:00:00+01:00", "2024-02-29T00:00:00+01:00", "2024-02-28T00:00:00+01:00");
    row("2024-03-01T00:00:00+01:00", "2024-03-01T00:00:00+01:00", "2024-02-29T00:00:00+01:00");
    row("2025-03-30T01:59:59+01:00", "2025-03-30T00:00:00+01:00", "2025-03-29T00:00:00+01:00");
    row("2025-03-30T03:00:00+02:00", "2025-03-30T00:00:00+01:00", "2025-03-29T00:00:00+01:00");
    row("2025-03-31T00:00:00+02:00", "2025-03-31T00:00:00+02:00", "2025-03-30T00:00:00+01:00");
    row("2025-10-26T02:30:00+02:00", "2025-10-26T00:00:00+02:00", "2025-10-25T00:00:00+02:00");
    row("2025-10-26T02:30:00+01:00", "2025-10-26T00:00:00+02:00", "2025-10-25T00:00:00+02:00");
    row("2025-10-27T00:00:00+01:00", "2025-10-27T00:00:00+01:00", "2025-10-26T00:00:00+02:00");
}

void TestClock::aStateBeginsToday()
{
    QFETCH(QByteArray, now);
    QFETCH(qint64, rsBegin);
    QFETCH(qint64, lastCalc);
    standAt(now);
    m_worker->setMes({{21, "materská dovolenka"}});
    synchronise({tomas().with(&ExportRow::evidencniStav, 21)});
    QCOMPARE(m_db.rows("SELECT rsBegin, rsEnd, rsText, lastCalc, edited FROM people WHERE uid = 8"),
             TableRows({{QString::number(rsBegin), "NULL", "materská dovolenka",
                         QString::number(lastCalc), number(now)}}));
}

void TestClock::aStateRunsOnOverMidnight_data()
{
    addMidnights();
}

void TestClock::aStateRunsOnOverMidnight()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    const ExportRow onLeave = tomas().with(&ExportRow::evidencniStav, 21);
    m_worker->setMes({{21, "materská dovolenka"}});
    standAt(before);
    synchronise({onLeave});
    const QString begin = m_db.value("SELECT rsBegin FROM people WHERE uid = 8").toString();

    standAt(after);
    force();
    QVERIFY(!updatesPerson(synchronise({onLeave})));
    // The day after its first is its last.
    synchronise({tomas()});
    QCOMPARE(m_db.rows("SELECT rsBegin, rsEnd FROM people WHERE uid = 8"),
             TableRows({{begin, number(after)}}));
}

void TestClock::aPersonIsActiveUpToTheEndOfTheLastDay_data()
{
    addMidnights();
}

void TestClock::aPersonIsActiveUpToTheEndOfTheLastDay()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    const QDate lastDay = QDate::fromString(before.left(10), Qt::ISODate);
    const int number = newPersonalNumber();
    const uint pid = QString("%1%2").arg(number).arg(1).toUInt();
    const ExportRow leaver = newcomer(number).with(&ExportRow::datumVystupu, lastDay);

    standAt(after);
    synchronise({leaver});
    QCOMPARE(uidOf(pid), 0);
    standAt(before);
    newWorker();
    synchronise({leaver});
    QVERIFY(uidOf(pid) != 0);
    QCOMPARE(m_db.value(QString("SELECT end FROM people WHERE pid = %1").arg(pid)).toLongLong(),
             seconds(before));
}

void TestClock::momentsAreThoseOfTheServer_data()
{
    QTest::addColumn<QByteArray>("now");
    for (const char *now :
         {"2025-12-31T23:59:59+01:00", "2026-01-01T00:00:00+01:00", "2024-02-29T12:00:00+01:00",
          "2025-03-30T03:00:00+02:00", "2025-10-26T02:30:00+02:00", "2025-10-26T02:30:00+01:00"})
        QTest::newRow(now) << QByteArray(now);
}

void TestClock::momentsAreThoseOfTheServer()
{
    QFETCH(QByteArray, now);
    standAt(now);
    const int personalNumber = newPersonalNumber();
    synchronise({newcomer(personalNumber), tomas().with(&ExportRow::telefon, "0")});
    const int uid = uidOf(QString("%1%2").arg(personalNumber).arg(1).toUInt());
    const QString moment = number(now);
    QCOMPARE(m_db.value(QString("SELECT created FROM people WHERE uid = %1").arg(uid)).toString(),
             moment);
    QCOMPARE(m_db.value("SELECT edited FROM people WHERE uid = 8").toString(), moment);
    QCOMPARE(m_db.value(QString("SELECT since FROM brape WHERE uid = %1").arg(uid)).toString(),
             moment);
    QCOMPARE(m_db.rows("SELECT DISTINCT created FROM term_sync"), TableRows({{moment}}));
}

// ---- Vacation fund -----------------------------------------------------------------------------

void TestClock::aCorrectionBelongsToTheLocalDay_data()
{
    QTest::addColumn<QByteArray>("now");
    QTest::addColumn<QString>("move");
    const auto row = [](const char *now, const char *day, const char *month) {
        QTest::newRow(now) << QByteArray(now) << number(day) + ' ' + month + " 1250";
    };
    row("2025-12-31T23:59:59+01:00", "2025-12-31T00:00:00+01:00", "202512");
    row("2026-01-01T00:00:00+01:00", "2026-01-01T00:00:00+01:00", "202601");
    row("2025-04-30T23:59:59+02:00", "2025-04-30T00:00:00+02:00", "202504");
    row("2025-05-01T00:00:00+02:00", "2025-05-01T00:00:00+02:00", "202505");
    row("2024-02-29T12:00:00+01:00", "2024-02-29T00:00:00+01:00", "202402");
    row("2025-03-30T01:59:59+01:00", "2025-03-30T00:00:00+01:00", "202503");
    row("2025-03-30T03:00:00+02:00", "2025-03-30T00:00:00+01:00", "202503");
    row("2025-03-30T23:59:59+02:00", "2025-03-30T00:00:00+01:00", "202503");
    row("2025-10-26T02:30:00+02:00", "2025-10-26T00:00:00+02:00", "202510");
    row("2025-10-26T02:30:00+01:00", "2025-10-26T00:00:00+02:00", "202510");
    row("2025-10-26T23:59:59+01:00", "2025-10-26T00:00:00+02:00", "202510");
    row("2037-12-31T23:59:59+01:00", "2037-12-31T00:00:00+01:00", "203712");
}

void TestClock::aCorrectionBelongsToTheLocalDay()
{
    QFETCH(QByteArray, now);
    QFETCH(QString, move);
    standAt(now);
    synchronise({tomasWith("12.5")});
    QCOMPARE(movesOfTomas(), QStringList(move));
    // One a day.
    synchronise({tomasWith("13")});
    QCOMPARE(movesOfTomas(), QStringList(move));
}

void TestClock::theNextCorrectionIsAllowedFromMidnightOn_data()
{
    addMidnights();
}

void TestClock::theNextCorrectionIsAllowedFromMidnightOn()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    standAt(before);
    synchronise({tomasWith("12.5")});
    synchronise({tomasWith("13")});
    QCOMPARE(movesOfTomas().size(), 1);

    standAt(after);
    synchronise({tomasWith("13")});
    const QStringList moves = movesOfTomas();
    QCOMPARE(moves.size(), 2);
    QCOMPARE(moves.last(),
             number(after) + ' ' + QString(after.left(7)).remove('-') + QString(" 50"));
}

void TestClock::theBalanceTurnsWithTheMonth_data()
{
    QTest::addColumn<QByteArray>("day");
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    const auto row = [](const char *name, const char *day, const char *before, const char *after) {
        QTest::newRow(name) << QByteArray(day) << QByteArray(before) << QByteArray(after);
    };
    row("year", "2025-12-31T00:00:00+01:00", "2025-12-31T23:59:59+01:00",
        "2026-01-01T00:00:00+01:00");
    row("leap day", "2024-02-29T00:00:00+01:00", "2024-02-29T23:59:59+01:00",
        "2024-03-01T00:00:00+01:00");
    row("February", "2025-02-28T00:00:00+01:00", "2025-02-28T23:59:59+01:00",
        "2025-03-01T00:00:00+01:00");
    row("month of the short day", "2025-03-31T00:00:00+02:00", "2025-03-31T23:59:59+02:00",
        "2025-04-01T00:00:00+02:00");
    row("month of the long day", "2025-10-31T00:00:00+01:00", "2025-10-31T23:59:59+01:00",
        "2025-11-01T00:00:00+01:00");
    row("the short day is the last", "2024-03-31T00:00:00+01:00", "2024-03-31T23:59:59+02:00",
        "2024-04-01T00:00:00+02:00");
}

void TestClock::theBalanceTurnsWithTheMonth()
{
    QFETCH(QByteArray, day);
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    m_db.run(QString("INSERT INTO funds_move (type, day, month, value, fid, uid) VALUES "
                     "(1, %1, 202301, 2000, 2, 8), (2, %2, 0, -100, 2, 8), (3, %2, 0, 30, 2, 8)")
                 .arg(number("2023-01-01T00:00:00+01:00"))
                 .arg(number(day)));
    findFund();
    const auto balance = [this] {
        bool ok = false;
        int value = 0;
        observe([&] { value = m_worker->loadFundStatusAndMove3(20012, ok); });
        return ok ? value : -1;
    };
    standAt(before);
    QCOMPARE(balance(), 2000); // nothing of today
    standAt(after);
    QCOMPARE(balance(), 1930); // everything before the month
}

void TestClock::aCalculationIsRecentFor899Seconds_data()
{
    QTest::addColumn<QByteArray>("calculation");
    QTest::addColumn<QByteArray>("now");
    QTest::addColumn<bool>("allowed");
    const auto rows = [](const char *name, const char *calculation, const char *now898,
                         const char *now899, const char *now900) {
        QTest::addRow("%s, 898 seconds", name)
            << QByteArray(calculation) << QByteArray(now898) << false;
        QTest::addRow("%s, 899 seconds", name)
            << QByteArray(calculation) << QByteArray(now899) << false;
        QTest::addRow("%s, 900 seconds", name)
            << QByteArray(calculation) << QByteArray(now900) << true;
    };
    rows("any day", "2025-07-14T12:00:00+02:00", "2025-07-14T12:14:58+02:00",
         "2025-07-14T12:14:59+02:00", "2025-07-14T12:15:00+02:00");
    rows("over the year's end", "2025-12-31T23:50:00+01:00", "2026-01-01T00:04:58+01:00",
         "2026-01-01T00:04:59+01:00", "2026-01-01T00:05:00+01:00");
    rows("over the missing hour", "2025-03-30T01:50:00+01:00", "2025-03-30T03:04:58+02:00",
         "2025-03-30T03:04:59+02:00", "2025-03-30T03:05:00+02:00");
    rows("into the repeated hour", "2025-10-26T02:50:00+02:00", "2025-10-26T02:04:58+01:00",
         "2025-10-26T02:04:59+01:00", "2025-10-26T02:05:00+01:00");
}

void TestClock::aCalculationIsRecentFor899Seconds()
{
    QFETCH(QByteArray, calculation);
    QFETCH(QByteArray, now);
    QFETCH(bool, allowed);
    m_db.run("UPDATE people SET calc = " + number(calculation) + " WHERE uid = 8");
    standAt(now);
    synchronise({tomasWith("12.5")});
    QCOMPARE(movesOfTomas().size(), allowed ? 1 : 0);
}

void TestClock::aCorrectionIsRecalculatedFromThePreviousMonth_data()
{
    QTest::addColumn<QByteArray>("now");
    QTest::addColumn<qint64>("lastCalc");
    const auto row = [](const char *now, const char *lastCalc) {
        QTest::newRow(now) << QByteArray(now) << seconds(lastCalc);
    };
    // The day before the first of the previous month.
    row("2025-12-31T23:59:59+01:00", "2025-10-31T00:00:00+01:00");
    row("2026-01-01T00:00:00+01:00", "2025-11-30T00:00:00+01:00");
    row("2026-01-31T12:00:00+01:00", "2025-11-30T00:00:00+01:00");
    row("2024-02-29T12:00:00+01:00", "2023-12-31T00:00:00+01:00");
    row("2024-03-31T12:00:00+02:00", "2024-01-31T00:00:00+01:00");
    row("2025-03-31T12:00:00+02:00", "2025-01-31T00:00:00+01:00");
    row("2025-04-30T23:59:59+02:00", "2025-02-28T00:00:00+01:00");
    row("2025-05-01T00:00:00+02:00", "2025-03-31T00:00:00+02:00");
    row("2025-10-26T02:30:00+01:00", "2025-08-31T00:00:00+02:00");
    row("2025-12-01T00:00:00+01:00", "2025-10-31T00:00:00+01:00");
}

void TestClock::aCorrectionIsRecalculatedFromThePreviousMonth()
{
    QFETCH(QByteArray, now);
    QFETCH(qint64, lastCalc);
    const qint64 firstDay = seconds("2023-01-01T00:00:00+01:00");
    m_db.run("UPDATE people SET lastCalc = 4000000000, calc = 5 WHERE uid = 8");
    // A day before all of them and one after.
    m_db.run(QString("INSERT INTO atten (uid, `date`, ok) VALUES (8, %1, 1), (8, 3000000000, 1)")
                 .arg(firstDay));
    standAt(now);
    synchronise({tomasWith("12.5")});
    QCOMPARE(m_db.rows("SELECT lastCalc, calc FROM people WHERE uid = 8"),
             TableRows({{QString::number(lastCalc), "0"}}));
    QCOMPARE(m_db.rows("SELECT ok FROM atten WHERE uid = 8 ORDER BY `date`"),
             TableRows({{"1"}, {"-1"}}));
}

// ---- Calendar ----------------------------------------------------------------------------------

void TestClock::aCalendarIsPlannedFromItsMonthAndRecalculatedFromItsDay_data()
{
    QTest::addColumn<QDate>("since");
    QTest::addColumn<QByteArray>("now");
    QTest::addColumn<QString>("month");
    QTest::addColumn<qint64>("lastCalc");
    constexpr qint64 unchanged = 4000000000;
    const auto row = [](const char *name, const QDate &since, const char *now, const char *month,
                        qint64 lastCalc) {
        QTest::newRow(name) << since << QByteArray(now) << QString(month) << lastCalc;
    };
    row("leap day", QDate(2024, 2, 29), "2024-03-15T12:00:00+01:00", "202402",
        seconds("2024-02-28T00:00:00+01:00"));
    row("day after a leap day", QDate(2024, 3, 1), "2024-03-15T12:00:00+01:00", "202403",
        seconds("2024-02-29T00:00:00+01:00"));
    row("last day of the year, in the next", QDate(2025, 12, 31), "2026-01-01T00:00:00+01:00",
        "202512", seconds("2025-12-30T00:00:00+01:00"));
    row("last day of the year, today", QDate(2025, 12, 31), "2025-12-31T23:59:59+01:00", "202512",
        unchanged);
    row("first day of the year, today", QDate(2026, 1, 1), "2026-01-01T00:00:00+01:00", "202601",
        unchanged);
    row("first day of the year, tomorrow", QDate(2026, 1, 1), "2025-12-31T23:59:59+01:00", "202601",
        unchanged);
    row("short day, today", QDate(2025, 3, 30), "2025-03-30T23:59:59+02:00", "202503", unchanged);
    row("short day, yesterday", QDate(2025, 3, 30), "2025-03-31T00:00:00+02:00", "202503",
        seconds("2025-03-29T00:00:00+01:00"));
    row("day after the short one", QDate(2025, 3, 31), "2025-04-01T00:00:00+02:00", "202503",
        seconds("2025-03-30T00:00:00+01:00"));
    row("long day, today", QDate(2025, 10, 26), "2025-10-26T23:59:59+01:00", "202510", unchanged);
    row("long day, yesterday", QDate(2025, 10, 26), "2025-10-27T00:00:00+01:00", "202510",
        seconds("2025-10-25T00:00:00+02:00"));
    row("day after the long one", QDate(2025, 10, 27), "2025-10-28T00:00:00+01:00", "202510",
        seconds("2025-10-26T00:00:00+02:00"));
    row("before 1970", QDate(1969, 12, 31), "2025-07-14T12:00:00+02:00", "196912", -176400);
    row("after 2038", QDate(2040, 3, 1), "2025-07-14T12:00:00+02:00", "204003", unchanged);
}

void TestClock::aCalendarIsPlannedFromItsMonthAndRecalculatedFromItsDay()
{
    QFETCH(QDate, since);
    QFETCH(QByteArray, now);
    QFETCH(QString, month);
    QFETCH(qint64, lastCalc);
    m_db.run("UPDATE people SET lastCalc = 4000000000 WHERE uid = 5");
    standAt(now);
    bool placed = false;
    observe([&] {
        m_worker->dbLoadBranches();
        placed = m_worker->doSyncBranchAndCalendar(janOnCalendar3(since));
    });
    QVERIFY(placed);
    QCOMPARE(m_db.rows("SELECT since FROM groups_plan WHERE uid = 5 AND gid = 13"),
             TableRows({{month}}));
    QCOMPARE(m_db.value("SELECT lastCalc FROM people WHERE uid = 5").toLongLong(), lastCalc);
}

void TestClock::monthsOfAPlanAreThoseOfLocalDays()
{
    m_db.run("DELETE FROM atten WHERE uid = 5");
    for (const char *day :
         {"2024-01-31T00:00:00+01:00", "2024-02-29T00:00:00+01:00", "2025-03-31T00:00:00+02:00",
          "2025-10-31T00:00:00+01:00", "2025-12-31T00:00:00+01:00", "2026-01-01T00:00:00+01:00"}) {
        m_db.run("INSERT INTO atten (uid, `date`, ok) VALUES (5, " + number(day) + ", 1)");
    }
    m_db.run("DELETE FROM groups_month WHERE uid = 5");
    standAt("2026-01-15T12:00:00+01:00");
    observe([this] {
        m_worker->dbLoadBranches();
        m_worker->doSyncBranchAndCalendar(janOnCalendar3(QDate(2024, 2, 29)));
    });
    QCOMPARE(m_db.rows("SELECT gid, month FROM groups_month WHERE uid = 5 ORDER BY month"),
             TableRows({{"13", "202402"},
                        {"13", "202503"},
                        {"13", "202510"},
                        {"13", "202512"},
                        {"13", "202601"}}));
    QCOMPARE(m_db.rows("SELECT `date` FROM atten WHERE uid = 5 AND ok = 1"),
             TableRows({{number("2024-01-31T00:00:00+01:00")}}));
}

// ---- Zones -------------------------------------------------------------------------------------

void TestClock::programAndServerMayLiveInAnotherZone()
{
    const LocalZone newYork("America/New_York");
    m_db.run("SET GLOBAL time_zone = '-05:00'");
    standAt("2026-01-01T00:30:00-05:00");
    synchronise({tomasWith("12.5")
                     .with(&ExportRow::datumNastupu, QDate(2025, 12, 31))
                     .with(&ExportRow::datumVystupu, QDate(2026, 1, 1))});
    QCOMPARE(
        m_db.rows("SELECT begin, end FROM people WHERE uid = 8"),
        TableRows({{number("2025-12-31T00:00:00-05:00"), number("2026-01-01T23:59:59-05:00")}}));
    const QStringList moves = {number("2026-01-01T00:00:00-05:00") + " 202601 1250"};
    QCOMPARE(movesOfTomas(), moves);
    standAt("2026-01-01T23:59:59-05:00");
    synchronise({tomasWith("13")});
    QCOMPARE(movesOfTomas(), moves);
}

/// The server's zone has to be that of the program. This is what happens when it is not: dates of
/// people are right, but the fund's days are the program's where they are written and the server's
/// where they are looked up.
void TestClock::aServerInAnotherZoneCountsDaysOfItsOwn()
{
    m_db.run("SET GLOBAL time_zone = '+00:00'");
    const QString day = number("2025-07-01T00:00:00+02:00");
    standAt("2025-07-01T00:30:00+02:00");
    synchronise({tomasWith("12.5").with(&ExportRow::datumNastupu, QDate(2025, 7, 1))});
    QCOMPARE(m_db.value("SELECT begin FROM people WHERE uid = 8").toString(), day);
    QCOMPARE(movesOfTomas(), QStringList(day + " 202506 1250"));
    // Not found, so not the only one of the day, and replaced.
    synchronise({tomasWith("13")});
    QCOMPARE(movesOfTomas(), QStringList(day + " 202506 1300"));
    // On the server's 1 July it lies before today and counts; its place is taken all the same.
    standAt("2025-07-01T12:00:00+02:00");
    synchronise({tomasWith("14")});
    QCOMPARE(movesOfTomas(), QStringList(day + " 202506 100"));
}

/// MariaDB from 11.5 on has them until 2106. With an older one everything else still works. The
/// server keeps its own clock.
void TestClock::fromJanuary2038OnOnlyNewServersHaveMidnights()
{
    MovableClock::standAt("2040-03-01T12:00:00+01:00");
    const QString midnight = number("2040-03-01T00:00:00+01:00");
    const bool hasMidnights =
        !m_db.value(QStringLiteral("SELECT FROM_UNIXTIME(%1)").arg(midnight)).isNull();
    const Trace trace =
        synchronise({tomasWith("12.5").with(&ExportRow::datumNastupu, QDate(2040, 2, 29))});
    const QStringList failure{
        "C MHRWorker::writeFundMove3() - SQL ERROR [1048]: Column 'month' cannot "
        "be null QMYSQL: Unable to execute query\n SQL: INSERT INTO funds_move "
        "(type, day, month, value, fid, uid) VALUES(3, "
        "2214169200, monthFromTimestamp(2214169200), 1250, 2, 8) ON DUPLICATE "
        "KEY UPDATE value=VALUES(value)",
        "W MHRWorker::doSyncRecord() - funds_move type (type=3, valeu=1250) not "
        "writed for uid 8 (pid: 20012)"};
    QCOMPARE(trace.log, hasMidnights ? QStringList() : failure);
    QCOMPARE(m_db.value("SELECT begin FROM people WHERE uid = 8").toString(),
             number("2040-02-29T00:00:00+01:00"));
    QCOMPARE(movesOfTomas(), hasMidnights ? QStringList(midnight + " 204003 1250") : QStringList());
}

int main(int argc, char **argv)
{
    MovableClock::install(argv);
    qputenv("TZ", "Europe/Bratislava");
    qputenv("LC_ALL", "C.UTF-8");
    tzset();
    QCoreApplication application(argc, argv);
    TestClock test;
    QTEST_SET_MAIN_SOURCE_PATH
    return QTest::qExec(&test, argc, argv);
}
#include "tst_clock.moc"
