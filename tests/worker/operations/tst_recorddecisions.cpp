#include "tests/worker/operations/samplerecord.h"
#include "worker/recorddecisions.h"

#include <QTest>

using namespace RecordDecisions;

namespace {

/// A fund whose balance may be corrected.
FundState writableFund()
{
    FundState fund;
    fund.exists = true;
    fund.moveAllowed = true;
    fund.attendanceAllows = true;
    return fund;
}

using Change = void (*)(MirovaRonRecord &record);

} // namespace

Q_DECLARE_METATYPE(Change)
Q_DECLARE_METATYPE(RecordDecisions::BalanceStep)

/// What is decided about one record, without a database.
class TestRecordDecisions : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everythingOfAPersonNotSeenBeforeCountsAsChanged();
    void anEqualRecordIsNotChanged();
    void aChangedFieldIsFound_data();
    void aChangedFieldIsFound();
    void theBalanceIsComparedOnlyWhenItMayBeCorrected_data();
    void theBalanceIsComparedOnlyWhenItMayBeCorrected();
    void anUnchangedBalanceIsComparedWhenForcedOrAfterAFailure_data();
    void anUnchangedBalanceIsComparedWhenForcedOrAfterAFailure();
    void aBalanceThatIsComparedCountsAsAChange();
    void onlyAnActivePersonIsCreated();
    void aRowIsWrittenForAFieldOrAChangedCode();
    void onlyCalendarAndCostCentreMoveAPerson_data();
    void onlyCalendarAndCostCentreMoveAPerson();
    void aPersonWithoutNumbersOrNamesMovesNowhere();
    void adoptingTakesPlaceAndBalanceOnly();
    void whoGetsASupervisor();
    void aRecordWithoutCostCentreIsNotPlaced();
    void anUnchangedRecordIsPlacedWhileItWaits();
};

void TestRecordDecisions::everythingOfAPersonNotSeenBeforeCountsAsChanged()
{
    const Differences found = differences(fullRecord(), nullptr, FundState(), false);
    QVERIFY(found.changed);
    QVERIFY(found.registerState);
    QVERIFY(found.employmentType);
    QVERIFY(found.supervisor);
}

void TestRecordDecisions::anEqualRecordIsNotChanged()
{
    const MirovaRonRecord last = fullRecord();
    const Differences found = differences(fullRecord(), &last, FundState(), true);
    QVERIFY(!found.changed);
    QVERIFY(!found.registerState);
    QVERIFY(!found.employmentType);
    QVERIFY(!found.supervisor);
}

void TestRecordDecisions::aChangedFieldIsFound_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<bool>("registerState");
    QTest::addColumn<bool>("employmentType");
    QTest::addColumn<bool>("supervisor");
    QTest::newRow("phone") << Change([](MirovaRonRecord &r) { r.telefon += '1'; }) << false << false
                           << false;
    QTest::newRow("register state")
        << Change([](MirovaRonRecord &r) { ++r.evidencniStav; }) << true << false << false;
    QTest::newRow("employment type")
        << Change([](MirovaRonRecord &r) { ++r.typPracovnihoPomeru; }) << false << true << false;
    QTest::newRow("supervisor") << Change([](MirovaRonRecord &r) { ++r.nadrizenyOsobniCislo; })
                                << false << false << true;
}

void TestRecordDecisions::aChangedFieldIsFound()
{
    QFETCH(Change, change);
    MirovaRonRecord record = fullRecord();
    change(record);
    const MirovaRonRecord last = fullRecord();
    const Differences found = differences(record, &last, FundState(), false);
    QVERIFY(found.changed);
    QTEST(found.registerState, "registerState");
    QTEST(found.employmentType, "employmentType");
    QTEST(found.supervisor, "supervisor");
}

void TestRecordDecisions::theBalanceIsComparedOnlyWhenItMayBeCorrected_data()
{
    QTest::addColumn<bool>("exists");
    QTest::addColumn<bool>("moveAllowed");
    QTest::addColumn<bool>("attendanceAllows");
    QTest::addColumn<BalanceStep>("step");
    QTest::newRow("no fund") << false << true << true << BalanceStep::NoFund;
    QTest::newRow("corrected") << true << false << true << BalanceStep::CorrectedToday;
    QTest::newRow("attendance") << true << true << false << BalanceStep::AttendanceOpen;
    QTest::newRow("neither") << true << false << false << BalanceStep::CorrectedToday;
    QTest::newRow("allowed") << true << true << true << BalanceStep::Compare;
}

void TestRecordDecisions::theBalanceIsComparedOnlyWhenItMayBeCorrected()
{
    QFETCH(bool, exists);
    QFETCH(bool, moveAllowed);
    QFETCH(bool, attendanceAllows);
    FundState fund;
    fund.exists = exists;
    fund.moveAllowed = moveAllowed;
    fund.attendanceAllows = attendanceAllows;
    MirovaRonRecord last = fullRecord();
    last.dovolenaZustatek += 1;
    QTEST(differences(fullRecord(), nullptr, fund, false).balance, "step");
    QTEST(differences(fullRecord(), &last, fund, false).balance, "step");
}

void TestRecordDecisions::anUnchangedBalanceIsComparedWhenForcedOrAfterAFailure_data()
{
    QTest::addColumn<bool>("forced");
    QTest::addColumn<bool>("retry");
    QTest::addColumn<BalanceStep>("step");
    QTest::newRow("neither") << false << false << BalanceStep::SameAsLast;
    QTest::newRow("forced") << true << false << BalanceStep::Compare;
    QTest::newRow("failed before") << false << true << BalanceStep::Compare;
}

void TestRecordDecisions::anUnchangedBalanceIsComparedWhenForcedOrAfterAFailure()
{
    QFETCH(bool, forced);
    QFETCH(bool, retry);
    FundState fund = writableFund();
    fund.retry = retry;
    const MirovaRonRecord last = fullRecord();
    QTEST(differences(fullRecord(), &last, fund, forced).balance, "step");
}

void TestRecordDecisions::aBalanceThatIsComparedCountsAsAChange()
{
    const MirovaRonRecord last = fullRecord();
    QVERIFY(differences(fullRecord(), &last, writableFund(), true).changed);
    QVERIFY(!differences(fullRecord(), &last, writableFund(), false).changed);
}

void TestRecordDecisions::onlyAnActivePersonIsCreated()
{
    QCOMPARE(personStep(false, true), PersonStep::Create);
    QCOMPARE(personStep(false, false), PersonStep::LeaveOut);
    QCOMPARE(personStep(true, true), PersonStep::Update);
    QCOMPARE(personStep(true, false), PersonStep::Update);
}

void TestRecordDecisions::aRowIsWrittenForAFieldOrAChangedCode()
{
    const MirovaRonRecord known = fullRecord();
    QCOMPARE(rowStep(fullRecord(), known, Differences()), RowStep::Keep);

    Differences codes;
    codes.registerState = true;
    QCOMPARE(rowStep(fullRecord(), known, codes), RowStep::WriteCodes);
    codes = Differences();
    codes.employmentType = true;
    QCOMPARE(rowStep(fullRecord(), known, codes), RowStep::WriteCodes);

    MirovaRonRecord renamed = known;
    renamed.prijmeni += 'x';
    QCOMPARE(rowStep(renamed, known, Differences()), RowStep::WriteFields);

    // What no row holds does not count.
    MirovaRonRecord elsewhere = known;
    elsewhere.strediskoPopis += 'x';
    elsewhere.kalendarPlatnostOd = elsewhere.kalendarPlatnostOd.addDays(1);
    elsewhere.dovolenaZustatek += 1;
    QCOMPARE(rowStep(elsewhere, known, Differences()), RowStep::Keep);
}

void TestRecordDecisions::onlyCalendarAndCostCentreMoveAPerson_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<bool>("moves");
    QTest::newRow("nothing") << Change([](MirovaRonRecord &) {}) << false;
    QTest::newRow("phone") << Change([](MirovaRonRecord &r) { r.telefon += '1'; }) << false;
    QTest::newRow("calendar") << Change([](MirovaRonRecord &r) { ++r.kalendar; }) << true;
    QTest::newRow("its start") << Change([](MirovaRonRecord &r) {
        r.kalendarPlatnostOd = r.kalendarPlatnostOd.addDays(1);
    }) << true;
    QTest::newRow("cost centre") << Change([](MirovaRonRecord &r) { ++r.stredisko; }) << true;
}

void TestRecordDecisions::onlyCalendarAndCostCentreMoveAPerson()
{
    QFETCH(Change, change);
    MirovaRonRecord record = fullRecord();
    change(record);
    QTEST(movesElsewhere(record, fullRecord()), "moves");
}

void TestRecordDecisions::aPersonWithoutNumbersOrNamesMovesNowhere()
{
    MirovaRonRecord record = fullRecord();
    ++record.stredisko;
    const auto movesFrom = [&record](Change change) {
        MirovaRonRecord known = fullRecord();
        change(known);
        return movesElsewhere(record, known);
    };
    QVERIFY(!movesFrom([](MirovaRonRecord &r) { r.osobniCislo = 0; }));
    QVERIFY(!movesFrom([](MirovaRonRecord &r) { r.poradoveCisloPP = 0; }));
    QVERIFY(!movesFrom([](MirovaRonRecord &r) { r.jmeno = r.prijmeni = QString(); }));
    QVERIFY(movesFrom([](MirovaRonRecord &r) { r.jmeno.clear(); }));
    QVERIFY(movesFrom([](MirovaRonRecord &r) { r.prijmeni.clear(); }));
}

void TestRecordDecisions::adoptingTakesPlaceAndBalanceOnly()
{
    MirovaRonRecord known;
    adopt(fullRecord(), known);
    MirovaRonRecord expected;
    expected.kalendar = fullRecord().kalendar;
    expected.kalendarPlatnostOd = fullRecord().kalendarPlatnostOd;
    expected.stredisko = fullRecord().stredisko;
    expected.strediskoPopis = fullRecord().strediskoPopis;
    expected.dovolenaZustatek = fullRecord().dovolenaZustatek;
    QVERIFY(known == expected);
}

void TestRecordDecisions::whoGetsASupervisor()
{
    MirovaRonRecord record = fullRecord();
    record.typPracovnihoPomeru = 11;
    Differences changed;
    changed.supervisor = true;
    QCOMPARE(supervisorStep(record, false, changed), SupervisorStep::Assign);
    QCOMPARE(supervisorStep(record, true, Differences()), SupervisorStep::Assign);
    QCOMPARE(supervisorStep(record, false, Differences()), SupervisorStep::SameAsLast);

    record.nadrizenyOsobniCislo = 0;
    QCOMPARE(supervisorStep(record, true, Differences()), SupervisorStep::NotNamed);
    QCOMPARE(supervisorStep(record, false, changed), SupervisorStep::NotNamed);

    for (const quint16 code : {quint16(51), quint16(65535)}) {
        MirovaRonRecord other = fullRecord();
        other.typPracovnihoPomeru = code;
        QCOMPARE(supervisorStep(other, true, changed), SupervisorStep::OtherEmploymentType);
    }
}

void TestRecordDecisions::aRecordWithoutCostCentreIsNotPlaced()
{
    MirovaRonRecord record = fullRecord();
    QVERIFY(isPlaced(record, true, false));
    record.stredisko = 0;
    QVERIFY(!isPlaced(record, true, true));
}

void TestRecordDecisions::anUnchangedRecordIsPlacedWhileItWaits()
{
    QVERIFY(isPlaced(fullRecord(), false, true));
    QVERIFY(!isPlaced(fullRecord(), false, false));
}

QTEST_GUILESS_MAIN(TestRecordDecisions)
#include "tst_recorddecisions.moc"
