#include "tests/support/localzone.h"
#include "tests/worker/operations/recordtext.h"
#include "tests/worker/operations/samplerecord.h"
#include "worker/mhrworker.h"
#include "worker/mirovaronrecord.h"
#include "worker/recordcodes.h"
#include "worker/recorddates.h"
#include "worker/relationshipstate.h"
#include "worker/vacationbalance.h"

#include <QCoreApplication>
#include <QTest>
#include <QTranslator>

#include <functional>
#include <limits>

namespace {

constexpr uint kCodes = 65536;

/// The texts that the register states have without any configuration.
const QMap<ushort, QString> kBuiltInTexts = {
    {0, "aktívny právny vzťah"},           {1, "v skúšobnej dobe"},    {2, "vo výpovednej dobe"},
    {3, "skončený právny vzťah"},          {21, "materská dovolenka"}, {22, "rodičovská dovolenka"},
    {24, "rodičovská dovolenka (nad 3r)"}, {53, "výkon trestu"},       {71, "neplatené voľno"},
    {560, "dlhodobé platené voľno"},
};

/// Puts everything that the worker has to translate into angle brackets.
class BracketTranslator : public QTranslator {
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *text, const char *disambiguation,
                      int) const override
    {
        if (qstrcmp(context, "MHRWorker") != 0 || qstrlen(disambiguation) != 0)
            return QString();
        return '<' + QString::fromUtf8(text) + '>';
    }
};

/// A record with a register state, whose relationship state is not yet derived from it.
MirovaRonRecord recordWith(ushort es)
{
    MirovaRonRecord r = fullRecord();
    r.evidencniStav = es;
    r.rsFrom = QDate(1999, 9, 9);
    r.rsTo = QDate(1999, 10, 10);
    r.rsText = "to be replaced";
    return r;
}

MirovaRonRecord withState(MirovaRonRecord r, const QDate &from, const QDate &to,
                          const QString &text)
{
    r.rsFrom = from;
    r.rsTo = to;
    r.rsText = text;
    return r;
}

/// Runs `action` with a date of today that is the same before and after it.
void onOneDay(const std::function<void(const QDate &)> &action)
{
    QDate today;
    do {
        today = QDate::currentDate();
        action(today);
    } while (today != QDate::currentDate());
}

} // namespace

class TestRecordCodes : public QObject {
    Q_OBJECT
public:
    static void initMain() { qputenv("TZ", "Europe/Bratislava"); }

private Q_SLOTS:
    void aBeginIsTheLocalMidnight_data();
    void aBeginIsTheLocalMidnight();
    void anEndIsTheLocalMidnightOrTheDaysLastSecond_data();
    void anEndIsTheLocalMidnightOrTheDaysLastSecond();
    void aTimestampIsReadAsItsLocalDay_data();
    void aTimestampIsReadAsItsLocalDay();
    void everyDayComesBackFromTheDatabase_data();
    void everyDayComesBackFromTheDatabase();
    void aMissingBeginComesBackAsTheYear2000();
    void theMidnightOfADateIsSigned();

    void employmentTypesOfAllCodes();
    void payrollSettingsOfAllCodes();
    void stateTextsOfAllCodes();
    void aConfiguredTextReplacesTheBuiltInOne();
    void theTextOfARecordIsThatOfItsRegisterState();
    void builtInTextsAreTranslated();
    void onlyConfiguredCodesAreRelationshipStates();

    void aConfiguredStateGoesOnOrStartsToday_data();
    void aConfiguredStateGoesOnOrStartsToday();
    void anyOtherStateClosesTheRunningPeriod_data();
    void anyOtherStateClosesTheRunningPeriod();
    void theStateOfAPersonOverManyDays();
    void theWorkerDerivesTheStateOfToday();
    void theWorkerDistinguishesConfiguredStates();
    void theWorkerLeavesTheGivenRecordAlone();

    void aPersonIsActiveBelowState4UntilTheLastDay_data();
    void aPersonIsActiveBelowState4UntilTheLastDay();
    void recalculationBeginsWithThePreviousMonth_data();
    void recalculationBeginsWithThePreviousMonth();
    void aVacationMoveReachesTheTruncatedBalance_data();
    void aVacationMoveReachesTheTruncatedBalance();
    void aVacationMoveThatDoesNotFitIsRefused_data();
    void aVacationMoveThatDoesNotFitIsRefused();
};

// ---- Dates ------------------------------------------------------------------------------------

void TestRecordCodes::aBeginIsTheLocalMidnight_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<QDate>("date");
    QTest::addColumn<QString>("text");
    const QByteArray utc = "UTC";
    const QByteArray bratislava = "Europe/Bratislava";
    const QByteArray saoPaulo = "America/Sao_Paulo";
    QTest::newRow("UTC") << utc << QDate(2019, 4, 1) << "1554076800";
    QTest::newRow("summer time") << bratislava << QDate(2019, 4, 1) << "1554069600";
    QTest::newRow("winter time") << bratislava << QDate(2019, 12, 1) << "1575154800";
    QTest::newRow("day of the change to summer")
        << bratislava << QDate(2019, 3, 31) << "1553986800";
    QTest::newRow("day of the change to winter")
        << bratislava << QDate(2019, 10, 27) << "1572127200";
    QTest::newRow("half-hour zone")
        << QByteArray("Asia/Kolkata") << QDate(2019, 4, 1) << "1554057000";
    QTest::newRow("a day that begins at 1 o'clock")
        << saoPaulo << QDate(2018, 11, 4) << "1541300400";
    QTest::newRow("invalid, UTC") << utc << QDate() << "946684800";
    QTest::newRow("invalid, Bratislava") << bratislava << QDate() << "946681200";
    QTest::newRow("invalid, Sao Paulo") << saoPaulo << QDate() << "946692000";
    QTest::newRow("first day of Unix time") << utc << QDate(1970, 1, 1) << "0";
    QTest::newRow("an hour before Unix time") << bratislava << QDate(1970, 1, 1) << "0";
    QTest::newRow("long before Unix time") << utc << QDate(1900, 1, 1) << "0";
    QTest::newRow("last day of 32 bits") << utc << QDate(2106, 2, 7) << "4294944000";
    QTest::newRow("beyond 32 bits") << utc << QDate(2106, 2, 8) << "4294967295";
    QTest::newRow("end of all dates") << bratislava << QDate(9999, 12, 31) << "4294967295";
}

void TestRecordCodes::aBeginIsTheLocalMidnight()
{
    QFETCH(QByteArray, zone);
    QFETCH(QDate, date);
    QFETCH(QString, text);
    const LocalZone local(zone);
    QCOMPARE(RecordDates::personBeginForSql(date), text);
    QCOMPARE(MHRWorker().personBeginForSql(date), text);
}

void TestRecordCodes::anEndIsTheLocalMidnightOrTheDaysLastSecond_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<QDate>("date");
    QTest::addColumn<QString>("start");
    QTest::addColumn<QString>("end");
    const QByteArray utc = "UTC";
    const QByteArray bratislava = "Europe/Bratislava";
    const QByteArray saoPaulo = "America/Sao_Paulo";
    QTest::newRow("invalid") << bratislava << QDate() << "NULL"
                             << "NULL";
    QTest::newRow("UTC") << utc << QDate(2019, 3, 31) << "1553990400"
                         << "1554076799";
    QTest::newRow("31 March, an hour short") << bratislava << QDate(2019, 3, 31) << "1553986800"
                                             << "1554069599";
    QTest::newRow("27 October, an hour longer") << bratislava << QDate(2019, 10, 27) << "1572127200"
                                                << "1572217199";
    QTest::newRow("ordinary day") << bratislava << QDate(2020, 3, 31) << "1585605600"
                                  << "1585691999";
    QTest::newRow("half-hour zone")
        << QByteArray("Asia/Kolkata") << QDate(2019, 3, 31) << "1553970600"
        << "1554056999";
    QTest::newRow("before a day without midnight") << saoPaulo << QDate(2018, 11, 3) << "1541214000"
                                                   << "1541300399";
    QTest::newRow("a day without midnight") << saoPaulo << QDate(2018, 11, 4) << "1541300400"
                                            << "1541383199";
    // Daylight saving time holds whatever the year.
    QTest::newRow("a summer before Unix time") << bratislava << QDate(1947, 7, 1) << "-710215200"
                                               << "-710128801";
    QTest::newRow("28 March 2038, an hour short")
        << bratislava << QDate(2038, 3, 28) << "2153343600"
        << "2153426399";
    QTest::newRow("29 March 2038") << bratislava << QDate(2038, 3, 29) << "2153426400"
                                   << "2153512799";
    QTest::newRow("31 October 2038, an hour longer")
        << bratislava << QDate(2038, 10, 31) << "2172088800"
        << "2172178799";
    QTest::newRow("a day without midnight after 2037")
        << QByteArray("America/Santiago") << QDate(2040, 9, 2) << "2230171200"
        << "2230253999";
    QTest::newRow("before Unix time") << utc << QDate(1969, 12, 31) << "-86400"
                                      << "-1";
    QTest::newRow("long before Unix time") << utc << QDate(1900, 1, 1) << "-2208988800"
                                           << "-2208902401";
    QTest::newRow("beyond 32 bits") << utc << QDate(2106, 2, 8) << "4295030400"
                                    << "4295116799";
    QTest::newRow("end of all dates") << utc << QDate(9999, 12, 31) << "253402214400"
                                      << "253402300799";
}

void TestRecordCodes::anEndIsTheLocalMidnightOrTheDaysLastSecond()
{
    QFETCH(QByteArray, zone);
    QFETCH(QDate, date);
    QFETCH(QString, start);
    QFETCH(QString, end);
    const LocalZone local(zone);
    QCOMPARE(RecordDates::personEndForSql(date, false), start);
    QCOMPARE(RecordDates::personEndForSql(date, true), end);
    const MHRWorker worker;
    QCOMPARE(worker.personEndForSql(date, false), start);
    QCOMPARE(worker.personEndForSql(date, true), end);
}

void TestRecordCodes::aTimestampIsReadAsItsLocalDay_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<uint>("timestamp");
    QTest::addColumn<QDate>("begin");
    QTest::addColumn<QDate>("end");
    const QByteArray utc = "UTC";
    const QByteArray bratislava = "Europe/Bratislava";
    QTest::newRow("0, UTC") << utc << 0U << QDate(2000, 1, 1) << QDate();
    QTest::newRow("0, Bratislava") << bratislava << 0U << QDate(2000, 1, 1) << QDate();
    QTest::newRow("1") << utc << 1U << QDate(1970, 1, 1) << QDate(1970, 1, 1);
    QTest::newRow("last second of a day")
        << bratislava << 1554069599U << QDate(2019, 3, 31) << QDate(2019, 3, 31);
    QTest::newRow("first second of the next")
        << bratislava << 1554069600U << QDate(2019, 4, 1) << QDate(2019, 4, 1);
    QTest::newRow("the same after 2037")
        << bratislava << 2172088800U << QDate(2038, 10, 31) << QDate(2038, 10, 31);
    QTest::newRow("the second before")
        << bratislava << 2172088799U << QDate(2038, 10, 30) << QDate(2038, 10, 30);
    QTest::newRow("the same second, UTC")
        << utc << 1554069600U << QDate(2019, 3, 31) << QDate(2019, 3, 31);
    QTest::newRow("largest") << utc << 4294967295U << QDate(2106, 2, 7) << QDate(2106, 2, 7);
}

void TestRecordCodes::aTimestampIsReadAsItsLocalDay()
{
    QFETCH(QByteArray, zone);
    QFETCH(uint, timestamp);
    QFETCH(QDate, begin);
    QFETCH(QDate, end);
    const LocalZone local(zone);
    QCOMPARE(RecordDates::datNastFromTimestamp(timestamp), begin);
    QCOMPARE(RecordDates::datVystFromTimestamp(timestamp), end);
    const MHRWorker worker;
    QCOMPARE(worker.datNastFromTimestamp(timestamp), begin);
    QCOMPARE(worker.datVystFromTimestamp(timestamp), end);
}

void TestRecordCodes::everyDayComesBackFromTheDatabase_data()
{
    QTest::addColumn<QByteArray>("zone");
    for (const char *zone : {"UTC", "Europe/Bratislava", "America/New_York", "America/Sao_Paulo",
                             "America/Santiago", "Asia/Kolkata"})
        QTest::newRow(zone) << QByteArray(zone);
}

void TestRecordCodes::everyDayComesBackFromTheDatabase()
{
    QFETCH(QByteArray, zone);
    const LocalZone local(zone);
    const QDate last(2105, 12, 31);
    for (QDate date(1970, 1, 2); date <= last; date = date.addDays(1)) {
        const uint begin = RecordDates::personBeginForSql(date).toUInt();
        QCOMPARE(RecordDates::datNastFromTimestamp(begin), date);
        const uint start = RecordDates::personEndForSql(date, false).toUInt();
        QCOMPARE(RecordDates::datVystFromTimestamp(start), date);
        const uint end = RecordDates::personEndForSql(date, true).toUInt();
        QCOMPARE(RecordDates::datVystFromTimestamp(end), date);
        QCOMPARE(RecordDates::datVystFromTimestamp(end + 1), date.addDays(1));
    }
}

void TestRecordCodes::aMissingBeginComesBackAsTheYear2000()
{
    const uint begin = RecordDates::personBeginForSql(QDate()).toUInt();
    QCOMPARE(RecordDates::datNastFromTimestamp(begin), QDate(2000, 1, 1));
}

void TestRecordCodes::theMidnightOfADateIsSigned()
{
    const LocalZone utc("UTC");
    QCOMPARE(RecordDates::midnight(QDate(1969, 12, 31)), qint64(-86400));
    QCOMPARE(RecordDates::midnight(QDate(9999, 12, 31)), qint64(253402214400));
    QCOMPARE(RecordDates::midnight32(QDate(1969, 12, 31)), 0U);
    QCOMPARE(RecordDates::midnight32(QDate(9999, 12, 31)), 4294967295U);
    const LocalZone bratislava("Europe/Bratislava");
    QCOMPARE(RecordDates::midnight(QDate(1970, 1, 1)), qint64(-3600));
    QCOMPARE(RecordDates::midnight(QDate()), qint64(0));
    QCOMPARE(RecordDates::midnight32(QDate()), 0U);
}

// ---- Codes ------------------------------------------------------------------------------------

void TestRecordCodes::employmentTypesOfAllCodes()
{
    const QMap<uint, ushort> known = {{11, 1}, {65, 1}, {51, 4}, {53, 4}, {54, 4}};
    const MHRWorker worker;
    for (uint code = 0; code < kCodes; ++code) {
        QCOMPARE(RecordCodes::employmentTypeFromTPP(ushort(code)), known.value(code, 0));
        QCOMPARE(worker.employmentTypeFromTPP(ushort(code)), known.value(code, 0));
    }
}

void TestRecordCodes::payrollSettingsOfAllCodes()
{
    const QMap<uint, ushort> known = {{11, 1}, {65, 1}, {51, 2}, {53, 2}, {54, 2}};
    const MHRWorker worker;
    for (uint code = 0; code < kCodes; ++code) {
        QCOMPARE(RecordCodes::pamSettingsIdFromTPP(ushort(code)), known.value(code, 0));
        QCOMPARE(worker.pamSettingsIdFromTPP(ushort(code)), known.value(code, 0));
    }
}

void TestRecordCodes::stateTextsOfAllCodes()
{
    const MHRWorker worker;
    for (uint code = 0; code < kCodes; ++code) {
        QCOMPARE(QString::fromUtf8(RelationshipState::builtInText(ushort(code))),
                 kBuiltInTexts.value(ushort(code)));
        QCOMPARE(worker.es2rsText(ushort(code)), kBuiltInTexts.value(ushort(code)));
    }
}

void TestRecordCodes::aConfiguredTextReplacesTheBuiltInOne()
{
    MHRWorker worker;
    worker.setMes({{21, "na materskej"}, {22, ""}, {65535, "iné"}});
    for (uint code = 0; code < kCodes; ++code) {
        QString expected = kBuiltInTexts.value(ushort(code));
        if (code == 21)
            expected = "na materskej";
        else if (code == 22)
            expected = "";
        else if (code == 65535)
            expected = "iné";
        QCOMPARE(worker.es2rsText(ushort(code)), expected);
    }
}

void TestRecordCodes::theTextOfARecordIsThatOfItsRegisterState()
{
    MHRWorker worker;
    worker.setMes({{22, "na rodičovskej"}});
    QCOMPARE(worker.es2rsText(recordWith(21)), QString("materská dovolenka"));
    QCOMPARE(worker.es2rsText(recordWith(22)), QString("na rodičovskej"));
    QCOMPARE(worker.es2rsText(recordWith(23)), QString());
}

void TestRecordCodes::builtInTextsAreTranslated()
{
    MHRWorker worker;
    worker.setMes({{22, "na rodičovskej"}});
    BracketTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    QCOMPARE(worker.es2rsText(21), QString("<materská dovolenka>"));
    QCOMPARE(worker.es2rsText(22), QString("na rodičovskej"));
    QCOMPARE(worker.es2rsText(23), QString());
    QVERIFY(QCoreApplication::removeTranslator(&translator));
    QCOMPARE(worker.es2rsText(21), QString("materská dovolenka"));
}

void TestRecordCodes::onlyConfiguredCodesAreRelationshipStates()
{
    MHRWorker worker;
    for (uint code = 0; code < kCodes; ++code)
        QVERIFY(!worker.isRS(ushort(code)));
    worker.setMes({{0, "aktívny"}, {21, ""}, {999, "iné"}});
    for (uint code = 0; code < kCodes; ++code)
        QCOMPARE(worker.isRS(ushort(code)), code == 0 || code == 21 || code == 999);
}

// ---- Relationship state -----------------------------------------------------------------------

namespace {

const QDate kToday(2024, 3, 15);
const QDate kYesterday(2024, 3, 14);
const QDate kTomorrow(2024, 3, 16);
const QDate kLongAgo(2023, 1, 1);
const QDate kFarAway(2025, 1, 1);

void addStateColumns()
{
    QTest::addColumn<QDate>("lastFrom");
    QTest::addColumn<QDate>("lastTo");
    QTest::addColumn<QDate>("from");
    QTest::addColumn<QDate>("to");
}

} // namespace

void TestRecordCodes::aConfiguredStateGoesOnOrStartsToday_data()
{
    addStateColumns();
    QTest::newRow("first state") << QDate() << QDate() << kToday << QDate();
    QTest::newRow("open since yesterday") << kYesterday << QDate() << kYesterday << QDate();
    QTest::newRow("open since long ago") << kLongAgo << QDate() << kLongAgo << QDate();
    QTest::newRow("open since today") << kToday << QDate() << kToday << QDate();
    QTest::newRow("open from tomorrow on") << kTomorrow << QDate() << kToday << QDate();
    QTest::newRow("runs until tomorrow") << kLongAgo << kTomorrow << kLongAgo << kTomorrow;
    QTest::newRow("ends today") << kLongAgo << kToday << kToday << QDate();
    QTest::newRow("ended yesterday") << kLongAgo << kYesterday << kToday << QDate();
    QTest::newRow("from today until tomorrow") << kToday << kTomorrow << kToday << kTomorrow;
    QTest::newRow("in the future") << kTomorrow << kFarAway << kToday << kFarAway;
    QTest::newRow("only an end, in the future") << QDate() << kFarAway << kToday << kFarAway;
    QTest::newRow("only an end, in the past") << QDate() << kLongAgo << kToday << QDate();
    QTest::newRow("ended before it began") << kYesterday << kLongAgo << kToday << QDate();
}

void TestRecordCodes::aConfiguredStateGoesOnOrStartsToday()
{
    QFETCH(QDate, lastFrom);
    QFETCH(QDate, lastTo);
    QFETCH(QDate, from);
    QFETCH(QDate, to);
    const MirovaRonRecord last = withState({}, lastFrom, lastTo, "old text");
    MirovaRonRecord record = recordWith(21);
    RelationshipState::carryOn(record, last, "new text", kToday);
    QCOMPARE(record, withState(recordWith(21), from, to, "new text"));
}

void TestRecordCodes::anyOtherStateClosesTheRunningPeriod_data()
{
    addStateColumns();
    QTest::newRow("never a state") << QDate() << QDate() << QDate() << QDate();
    QTest::newRow("only an end") << QDate() << kFarAway << QDate() << QDate();
    QTest::newRow("open since yesterday") << kYesterday << QDate() << kYesterday << kToday;
    QTest::newRow("open since today") << kToday << QDate() << kToday << kToday;
    QTest::newRow("open from tomorrow on") << kTomorrow << QDate() << kTomorrow << kToday;
    QTest::newRow("ended yesterday") << kLongAgo << kYesterday << kLongAgo << kYesterday;
    QTest::newRow("ended today") << kLongAgo << kToday << kLongAgo << kToday;
    QTest::newRow("ends in the future") << kLongAgo << kFarAway << kLongAgo << kFarAway;
    QTest::newRow("ended on its first day") << kLongAgo << kLongAgo << kLongAgo << kLongAgo;
    QTest::newRow("ended before it began") << kYesterday << kLongAgo << kYesterday << kToday;
}

void TestRecordCodes::anyOtherStateClosesTheRunningPeriod()
{
    QFETCH(QDate, lastFrom);
    QFETCH(QDate, lastTo);
    QFETCH(QDate, from);
    QFETCH(QDate, to);
    const MirovaRonRecord last = withState({}, lastFrom, lastTo, "old text");
    MirovaRonRecord record = recordWith(21);
    RelationshipState::close(record, last, kToday);
    QCOMPARE(record, withState(recordWith(21), from, to, "old text"));
}

void TestRecordCodes::theStateOfAPersonOverManyDays()
{
    // A state of 0 stands for one that is not configured. Each day goes on from the day before.
    struct Day {
        QDate today;
        ushort es;
        QDate from;
        QDate to;
        QString text;
    };
    const QDate first(2024, 2, 28);
    const QVector<Day> days = {
        {first, 21, first, QDate(), "materská"},
        {first, 21, first, QDate(), "materská"},
        {QDate(2024, 2, 29), 21, first, QDate(), "materská"},
        {QDate(2024, 3, 1), 22, first, QDate(), "rodičovská"},
        {QDate(2024, 3, 2), 0, first, QDate(2024, 3, 2), "rodičovská"},
        {QDate(2024, 3, 2), 0, first, QDate(2024, 3, 2), "rodičovská"},
        {QDate(2024, 3, 3), 0, first, QDate(2024, 3, 2), "rodičovská"},
        {QDate(2024, 3, 10), 21, QDate(2024, 3, 10), QDate(), "materská"},
        {QDate(2024, 3, 11), 21, QDate(2024, 3, 10), QDate(), "materská"},
        {QDate(2024, 3, 12), 0, QDate(2024, 3, 10), QDate(2024, 3, 12), "materská"},
        {QDate(2024, 3, 12), 21, QDate(2024, 3, 12), QDate(), "materská"},
    };
    const QMap<ushort, QString> configured = {{21, "materská"}, {22, "rodičovská"}};

    MirovaRonRecord last;
    for (const Day &day : days) {
        MirovaRonRecord record = recordWith(day.es);
        if (configured.contains(day.es))
            RelationshipState::carryOn(record, last, configured.value(day.es), day.today);
        else
            RelationshipState::close(record, last, day.today);
        QCOMPARE(record, withState(recordWith(day.es), day.from, day.to, day.text));
        last = record;
    }
}

void TestRecordCodes::theWorkerDerivesTheStateOfToday()
{
    MHRWorker worker;
    worker.setMes({{21, "na materskej"}});
    onOneDay([&worker](const QDate &today) {
        const QDate yesterday = today.addDays(-1);
        const QDate tomorrow = today.addDays(1);

        MirovaRonRecord record = recordWith(21);
        worker.updateRs(record, MirovaRonRecord());
        QCOMPARE(record, withState(recordWith(21), today, QDate(), "na materskej"));

        record = recordWith(21);
        worker.updateRs(record, withState({}, yesterday, tomorrow, "before"));
        QCOMPARE(record, withState(recordWith(21), yesterday, tomorrow, "na materskej"));

        record = recordWith(22);
        worker.updateRs(record, withState({}, yesterday, QDate(), "before"));
        QCOMPARE(record, withState(recordWith(22), yesterday, today, "before"));
    });
}

void TestRecordCodes::theWorkerDistinguishesConfiguredStates()
{
    // 21 has a text of its own in the program, 30 has none: only what is configured counts.
    MHRWorker worker;
    worker.setMes({{30, "iný stav"}, {40, ""}});
    onOneDay([&worker](const QDate &today) {
        const MirovaRonRecord never;
        QCOMPARE(worker.updateRs(recordWith(21), never),
                 withState(recordWith(21), QDate(), QDate(), ""));
        QCOMPARE(worker.updateRs(recordWith(30), never),
                 withState(recordWith(30), today, QDate(), "iný stav"));
        QCOMPARE(worker.updateRs(recordWith(40), never),
                 withState(recordWith(40), today, QDate(), ""));
    });
}

void TestRecordCodes::theWorkerLeavesTheGivenRecordAlone()
{
    MHRWorker worker;
    worker.setMes({{21, "na materskej"}});
    onOneDay([&worker](const QDate &today) {
        const MirovaRonRecord record = recordWith(21);
        QCOMPARE(worker.updateRs(record, MirovaRonRecord()),
                 withState(recordWith(21), today, QDate(), "na materskej"));
        QCOMPARE(record, recordWith(21));
    });
}

// ---- What the driver decides by ---------------------------------------------------------------

void TestRecordCodes::aPersonIsActiveBelowState4UntilTheLastDay_data()
{
    QTest::addColumn<ushort>("state");
    QTest::addColumn<QDate>("lastDay");
    QTest::addColumn<bool>("active");
    QTest::newRow("state 0, open") << ushort(0) << QDate() << true;
    QTest::newRow("state 3, open") << ushort(3) << QDate() << true;
    QTest::newRow("state 4, open") << ushort(4) << QDate() << false;
    QTest::newRow("largest state, open") << ushort(65535) << QDate() << false;
    QTest::newRow("leaves tomorrow") << ushort(1) << kTomorrow << true;
    QTest::newRow("leaves today") << ushort(1) << kToday << true;
    QTest::newRow("left yesterday") << ushort(1) << kYesterday << false;
    QTest::newRow("state 4, leaves tomorrow") << ushort(4) << kTomorrow << false;
}

void TestRecordCodes::aPersonIsActiveBelowState4UntilTheLastDay()
{
    QFETCH(ushort, state);
    QFETCH(QDate, lastDay);
    MirovaRonRecord record;
    record.stavPracovnihoPomeru = state;
    record.datumVystupu = lastDay;
    QTEST(RecordCodes::isActive(record, kToday), "active");
}

void TestRecordCodes::recalculationBeginsWithThePreviousMonth_data()
{
    QTest::addColumn<QDate>("today");
    QTest::addColumn<QDate>("begin");
    QTest::newRow("middle of a month") << QDate(2024, 3, 15) << QDate(2024, 2, 1);
    QTest::newRow("first day") << QDate(2024, 3, 1) << QDate(2024, 2, 1);
    QTest::newRow("31 March") << QDate(2024, 3, 31) << QDate(2024, 2, 1);
    QTest::newRow("31 May") << QDate(2024, 5, 31) << QDate(2024, 4, 1);
    QTest::newRow("January") << QDate(2024, 1, 31) << QDate(2023, 12, 1);
}

void TestRecordCodes::recalculationBeginsWithThePreviousMonth()
{
    QFETCH(QDate, today);
    QTEST(RecordDates::firstDayOfPreviousMonth(today), "begin");
}

void TestRecordCodes::aVacationMoveReachesTheTruncatedBalance_data()
{
    QTest::addColumn<double>("days");
    QTest::addColumn<qint64>("current");
    QTest::addColumn<qint32>("value");
    const qint64 none = 0;
    QTest::newRow("12.5 days") << 12.5 << none << 1250;
    QTest::newRow("12.345 days") << 12.345 << none << 1234;
    QTest::newRow("12.349 days") << 12.349 << none << 1234;
    QTest::newRow("1.15 days: the product is below 115") << 1.15 << none << 114;
    QTest::newRow("-0.5 days") << -0.5 << none << -50;
    QTest::newRow("-1.999 days") << -1.999 << none << -199;
    QTest::newRow("less than a hundredth") << 0.0099 << none << 0;
    QTest::newRow("minus less than a hundredth") << -0.0099 << none << 0;
    QTest::newRow("nothing to correct") << 12.5 << qint64(1250) << 0;
    QTest::newRow("down") << 12.5 << qint64(2000) << -750;
    QTest::newRow("up from below 0") << 12.5 << qint64(-250) << 1500;
    QTest::newRow("largest") << 21474836.47 << none << 2147483647;
    QTest::newRow("smallest") << -21474836.48 << none << std::numeric_limits<qint32>::min();
    QTest::newRow("balance beyond 32 bits, move within")
        << 21474836.0 << qint64(4294967200) << -2147483600;
}

void TestRecordCodes::aVacationMoveReachesTheTruncatedBalance()
{
    QFETCH(double, days);
    QFETCH(qint64, current);
    qint32 value = -1;
    QVERIFY(VacationBalance::correction(days, current, value));
    QTEST(value, "value");
}

void TestRecordCodes::aVacationMoveThatDoesNotFitIsRefused_data()
{
    QTest::addColumn<double>("days");
    QTest::addColumn<qint64>("current");
    QTest::addColumn<qint32>("value");
    using Days = std::numeric_limits<double>;
    constexpr qint32 kMin = std::numeric_limits<qint32>::min();
    constexpr qint32 kMax = std::numeric_limits<qint32>::max();
    const qint64 none = 0;
    QTest::newRow("not a number") << Days::quiet_NaN() << none << 0;
    QTest::newRow("not a number, with a balance") << Days::quiet_NaN() << qint64(100) << 0;
    QTest::newRow("infinite") << Days::infinity() << none << kMax;
    QTest::newRow("minus infinite") << -Days::infinity() << none << kMin;
    QTest::newRow("largest double") << Days::max() << none << kMax;
    QTest::newRow("one hundredth too many") << 21474836.48 << none << kMax;
    QTest::newRow("two hundredths too few") << -21474836.50 << none << kMin;
    QTest::newRow("target fits, move does not: up") << 21474836.0 << qint64(-1000) << kMax;
    QTest::newRow("target fits, move does not: down") << -21474836.0 << qint64(1000) << kMin;
    QTest::newRow("move far too large") << 1.0 << std::numeric_limits<qint64>::min() / 2 << kMax;
}

void TestRecordCodes::aVacationMoveThatDoesNotFitIsRefused()
{
    QFETCH(double, days);
    QFETCH(qint64, current);
    qint32 value = -1;
    QVERIFY(!VacationBalance::correction(days, current, value));
    QTEST(value, "value");
}

QTEST_GUILESS_MAIN(TestRecordCodes)
#include "tst_recordcodes.moc"
