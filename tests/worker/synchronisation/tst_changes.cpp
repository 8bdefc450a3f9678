#include "tests/worker/support/sampleexport.h"
#include "tests/worker/support/workertest.h"
#include "tests/worker/synchronisation/sent.h"

#include <QTest>
#include <optional>

using namespace SampleExport;

namespace {

QDate today()
{
    return QDate::currentDate();
}

QString midnightText(const QDate &date)
{
    return QString::number(localMidnight(date));
}

/// What only the row of Tomáš has: employment type 4, no branch.
Sent::PersonValues ofTomas(const QString &type = "4", const QString &bid = "NULL")
{
    Sent::PersonValues values;
    values.type = type;
    values.bid = bid;
    return values;
}

Sent::PersonValues ofTomas(const QDate &rsBegin, const QDate &rsEnd, const QString &rsText)
{
    Sent::PersonValues values = ofTomas();
    values.rsBegin = midnightText(rsBegin);
    if (rsEnd.isValid())
        values.rsEnd = midnightText(rsEnd);
    values.rsText = rsText;
    return values;
}

} // namespace

/// What the driver considers a change of a known person, and what it remembers.
class TestChanges : public WorkerTest {
    Q_OBJECT
private Q_SLOTS:
    void aPersonSeenForTheFirstTimeIsWritten();
    void anUnchangedLineOnlyAsksWhetherTheBalanceCouldBeCorrected();
    void aChangedLineIsWrittenWhenTheRowHoldsTheField_data();
    void aChangedLineIsWrittenWhenTheRowHoldsTheField();
    void aChangedLineIsNotWrittenWhenTheRowLacksTheField_data();
    void aChangedLineIsNotWrittenWhenTheRowLacksTheField();
    void aChangedCodeIsWritten_data();
    void aChangedCodeIsWritten();

    void anAlteredRowIsLeftAloneWhileTheLineStays();
    void aForcedCycleRestoresAnAlteredRow_data();
    void aForcedCycleRestoresAnAlteredRow();
    void aForcedCycleIgnoresColumnsThatItDoesNotCompare_data();
    void aForcedCycleIgnoresColumnsThatItDoesNotCompare();
    void aForcedCycleTakesEveryRecordThroughTheDatabase();
    void aForcedCycleTakesAnUnchangedLineThroughTheDatabaseAlsoWithoutAFund();

    void aConfiguredStateBeginsToday();
    void aConfiguredStateSeenForTheFirstTimeIsRecalculated();
    void aConfiguredStateThatLastsIsNotWrittenAgain();
    void aStateThatIsLeftEndsToday();
    void aForcedCycleRestoresTheRelationshipState_data();
    void aForcedCycleRestoresTheRelationshipState();

    void aLeavingPersonIsWrittenButNotPlaced();
    void aPersonWhoHasLeftIsRememberedWithoutAChange();
    void aFailedUpdateIsNotRepeatedForTheSameLine();
    void aFailedUpdateIsRepeatedWhenForced();
    void aNewSupervisorIsAssigned();
    void theSupervisorOfAnotherEmploymentTypeIsLeftAlone_data();
    void theSupervisorOfAnotherEmploymentTypeIsLeftAlone();

    void theSameLineTwiceIsReconciledOnce();
    void twoLinesOfOnePersonAreBothWrittenInEveryCycle();
    void aSecondLineSeesWhatTheFirstOneMoved();
    void aSecondLineSeesTheOldNameOfTheFirstOne();
    void aMovedPersonIsKnownInTheNewPlace();
    void anUnmovedPersonIsKnownAsTheRowShows();
    void aNewWorkerKnowsNoPeople();
    void stopAndStartKeepWhatTheWorkerKnows();

private:
    /// Reconciles one line; the person (pid) as the worker then knows it for later lines.
    std::optional<MirovaRonRecord> knownAfter(const ExportRow &line, uint pid);
};

std::optional<MirovaRonRecord> TestChanges::knownAfter(const ExportRow &line, uint pid)
{
    m_export->write({line});
    std::optional<MirovaRonRecord> known;
    observe([&] {
        m_worker->loadAndParseData();
        m_worker->dbLoadPeople();
        m_worker->doSync();
        known = m_worker->knownPerson(pid);
    });
    return known;
}

void TestChanges::aPersonSeenForTheFirstTimeIsWritten()
{
    const Trace trace = synchronise({tomas()});
    QCOMPARE(trace.statements,
             Sent::begin() << Sent::fundChecks(20012, 8) << Sent::updatePerson(tomas(), ofTomas())
                           << Sent::notifyTerminals(20012, 8) << Sent::balance(20012));
}

void TestChanges::anUnchangedLineOnlyAsksWhetherTheBalanceCouldBeCorrected()
{
    synchronise({tomas(), jana()});
    const DatabaseState state = m_db.dumpAll();
    const Trace trace = synchronise();
    QCOMPARE(trace.statements,
             Sent::begin() << Sent::fundChecks(20012, 8) << Sent::fundChecks(12341, 4));
    QCOMPARE(TestDatabase::difference(state, m_db.dumpAll()), QString());
}

void TestChanges::aChangedLineIsWrittenWhenTheRowHoldsTheField_data()
{
    QTest::addColumn<ExportRow>("line");
    QTest::addColumn<QString>("bid");
    QTest::newRow("title") << tomas().with(&ExportRow::titul, "Bc.") << "NULL";
    QTest::newRow("first name") << tomas().with(&ExportRow::jmeno, "Tomas") << "NULL";
    QTest::newRow("surname") << tomas().with(&ExportRow::prijmeni, "Balaz") << "NULL";
    QTest::newRow("title after") << tomas().with(&ExportRow::titulZa, "PhD.") << "NULL";
    QTest::newRow("phone") << tomas().with(&ExportRow::telefon, "0905") << "NULL";
    QTest::newRow("begin") << tomas().with(&ExportRow::datumNastupu, QDate(2024, 7, 2)) << "NULL";
    QTest::newRow("end") << tomas().with(&ExportRow::datumVystupu, today()) << "NULL";
    QTest::newRow("calendar") << tomas().with(&ExportRow::kalendar, 2) << "NULL";
    QTest::newRow("branch") << tomas().with(&ExportRow::stredisko, 140) << "3";
    QTest::newRow("several") << tomas()
                                    .with(&ExportRow::prijmeni, "Malý")
                                    .with(&ExportRow::strediskoPopis, "Sklad")
                                    .with(&ExportRow::telefon, "1")
                             << "NULL";
}

void TestChanges::aChangedLineIsWrittenWhenTheRowHoldsTheField()
{
    QFETCH(ExportRow, line);
    QFETCH(QString, bid);
    synchronise({tomas()});
    QCOMPARE(synchronise({line}).statements.filter("UPDATE people SET pamId"),
             QStringList(Sent::updatePerson(line, ofTomas("4", bid))));
    QCOMPARE(synchronise({line}).statements.filter("UPDATE people SET pamId"), QStringList());
}

void TestChanges::aChangedLineIsNotWrittenWhenTheRowLacksTheField_data()
{
    QTest::addColumn<ExportRow>("line");
    QTest::newRow("description") << tomas().with(&ExportRow::strediskoPopis, "Sklad");
    QTest::newRow("start of the calendar")
        << tomas().with(&ExportRow::kalendarPlatnostOd, QDate(2024, 8, 1));
    QTest::newRow("employment state") << tomas().with(&ExportRow::stavPracovnihoPomeru, 2);
    QTest::newRow("balance") << tomas().with(&ExportRow::dovolenaZustatek, "1.5");
    QTest::newRow("supervisor") << tomas().with(&ExportRow::nadrizenyOsobniCislo, 1001);
}

void TestChanges::aChangedLineIsNotWrittenWhenTheRowLacksTheField()
{
    QFETCH(ExportRow, line);
    synchronise({tomas()});
    QCOMPARE(synchronise({line}).statements.filter("UPDATE people SET pamId"), QStringList());
}

void TestChanges::aChangedCodeIsWritten_data()
{
    QTest::addColumn<ExportRow>("line");
    QTest::addColumn<QString>("type");
    QTest::newRow("register state") << tomas().with(&ExportRow::evidencniStav, 2) << "4";
    QTest::newRow("employment type") << tomas().with(&ExportRow::typPracovnihoPomeru, 11) << "1";
    QTest::newRow("employment type with the same meaning")
        << tomas().with(&ExportRow::typPracovnihoPomeru, 53) << "4";
    QTest::newRow("employment type without a meaning")
        << tomas().with(&ExportRow::typPracovnihoPomeru, 12) << "0";
}

void TestChanges::aChangedCodeIsWritten()
{
    QFETCH(ExportRow, line);
    QFETCH(QString, type);
    synchronise({tomas()});
    // Edited in another second: otherwise the row would not change, and no terminal be notified.
    m_db.run("UPDATE people SET edited = 0");
    QCOMPARE(synchronise({line}).statements,
             Sent::begin() << Sent::fundChecks(20012, 8) << Sent::updatePerson(line, ofTomas(type))
                           << Sent::notifyTerminals(20012, 8));
}

void TestChanges::anAlteredRowIsLeftAloneWhileTheLineStays()
{
    synchronise({tomas()});
    m_db.run("UPDATE people SET surname = 'Iný', phone = '1' WHERE uid = 8");
    QCOMPARE(synchronise().statements, Sent::begin() << Sent::fundChecks(20012, 8));
}

void TestChanges::aForcedCycleRestoresAnAlteredRow_data()
{
    QTest::addColumn<QString>("alteration");
    QTest::newRow("the two numbers") << "pamId = '200.12'";
    QTest::newRow("title") << "title = 'Bc.'";
    QTest::newRow("first name") << "name = 'Tomas'";
    QTest::newRow("surname") << "surname = ''";
    QTest::newRow("title after") << "title2 = 'PhD.'";
    QTest::newRow("phone") << "phone = '0905'";
    QTest::newRow("begin") << "begin = UNIX_TIMESTAMP('2024-07-02')";
    QTest::newRow("end") << "end = UNIX_TIMESTAMP('2030-01-01 23:59:59')";
    QTest::newRow("calendar") << "calendarID = 1";
    QTest::newRow("branch") << "bid = 3";
    QTest::newRow("period of the state") << "rsBegin = UNIX_TIMESTAMP('2025-01-01')";
}

void TestChanges::aForcedCycleRestoresAnAlteredRow()
{
    QFETCH(QString, alteration);
    synchronise({tomas()});
    m_db.run("UPDATE people SET " + alteration + " WHERE uid = 8");
    force();
    QCOMPARE(synchronise().statements.filter("UPDATE people SET pamId").size(), 1);
}

void TestChanges::aForcedCycleIgnoresColumnsThatItDoesNotCompare_data()
{
    QTest::addColumn<QString>("alteration");
    QTest::newRow("type") << "type = 9";
    QTest::newRow("department") << "did = 9";
    QTest::newRow("edited") << "edited = 9, editor = 9, created = 9";
    QTest::newRow("calculation") << "lastCalc = 9, calc = 9, gid = 9";
    QTest::newRow("status") << "status = 2";
    QTest::newRow("state text of an unconfigured state") << "rsText = 'x'";
}

void TestChanges::aForcedCycleIgnoresColumnsThatItDoesNotCompare()
{
    QFETCH(QString, alteration);
    synchronise({tomas()});
    m_db.run("UPDATE people SET " + alteration + " WHERE uid = 8");
    force();
    QCOMPARE(synchronise().statements,
             Sent::begin() << Sent::fundChecks(20012, 8) << Sent::balance(20012)
                           << Sent::resetForce());
}

void TestChanges::aForcedCycleTakesEveryRecordThroughTheDatabase()
{
    synchronise({jana(), jan()});
    force();
    QCOMPARE(synchronise().statements,
             Sent::begin() << Sent::fundChecks(12341, 4) << Sent::balance(12341)
                           << Sent::membership(12341, 1) << Sent::group(1, 3)
                           << Sent::plannedGroup(13, 4, 202301) << Sent::recalculation(4)
                           << Sent::fundChecks(12351, 5) << Sent::balance(12351)
                           << Sent::membership(12351, 1) << Sent::group(1, 2)
                           << Sent::plannedGroup(12, 5, 202006) << Sent::recalculation(5)
                           << Sent::resetForce());
    QCOMPARE(synchronise().statements,
             Sent::begin() << Sent::fundChecks(12341, 4) << Sent::fundChecks(12351, 5));
}

void TestChanges::aForcedCycleTakesAnUnchangedLineThroughTheDatabaseAlsoWithoutAFund()
{
    // A balance that may be corrected would make the line count as changed.
    m_db.run("DELETE FROM funds");
    synchronise({jana()});
    m_db.run("UPDATE people SET surname = 'Iná' WHERE uid = 4");
    force();
    QCOMPARE(synchronise().statements,
             Sent::begin() << Sent::updatePerson(jana()) << Sent::notifyTerminals(12341, 4)
                           << Sent::membership(12341, 1) << Sent::group(1, 3)
                           << Sent::plannedGroup(13, 4, 202301) << Sent::recalculation(4)
                           << Sent::resetForce());
    QCOMPARE(synchronise().statements, Sent::begin());
}

void TestChanges::aConfiguredStateBeginsToday()
{
    m_worker->setMes({{21, "na materskej"}});
    synchronise({tomas()});
    const ExportRow line = tomas().with(&ExportRow::evidencniStav, 21);
    QCOMPARE(synchronise({line}).statements.filter("UPDATE people SET pamId"),
             QStringList(Sent::updatePersonAndLastCalc(
                 line, ofTomas(today(), QDate(), "na materskej"), today().addDays(-1))));
}

void TestChanges::aConfiguredStateSeenForTheFirstTimeIsRecalculated()
{
    m_worker->setMes({{0, "v práci"}});
    const QDate begin = today().addDays(-30);
    m_db.run(QString("UPDATE people SET rsBegin = %1, rsText = 'v práci' WHERE uid = 8")
                 .arg(localMidnight(begin)));
    QCOMPARE(synchronise({tomas()}).statements.filter("UPDATE people SET pamId"),
             QStringList(Sent::updatePersonAndLastCalc(tomas(), ofTomas(begin, QDate(), "v práci"),
                                                       begin.addDays(-1))));
}

void TestChanges::aConfiguredStateThatLastsIsNotWrittenAgain()
{
    m_worker->setMes({{0, "v práci"}});
    synchronise({tomas()});
    m_db.run(QString("UPDATE people SET rsBegin = %1 WHERE uid = 8")
                 .arg(localMidnight(today().addDays(-30))));
    force();
    QCOMPARE(synchronise().statements.filter("UPDATE people SET pamId"), QStringList());
}

void TestChanges::aStateThatIsLeftEndsToday()
{
    m_worker->setMes({{21, "na materskej"}});
    const QDate begin = today().addDays(-30);
    m_db.run(QString("UPDATE people SET rsBegin = %1, rsText = 'na materskej' WHERE uid = 8")
                 .arg(localMidnight(begin)));
    synchronise({tomas().with(&ExportRow::evidencniStav, 21)});
    QCOMPARE(synchronise({tomas()}).statements.filter("UPDATE people SET pamId"),
             QStringList(Sent::updatePersonAndLastCalc(
                 tomas(), ofTomas(begin, today(), "na materskej"), today().addDays(-31))));
}

void TestChanges::aForcedCycleRestoresTheRelationshipState_data()
{
    QTest::addColumn<QString>("alteration");
    QTest::newRow("a period that lies ahead")
        << QString("rsBegin = %1").arg(localMidnight(today().addDays(1)));
    QTest::newRow("a period that is over")
        << QString("rsEnd = %1").arg(localMidnight(today().addDays(-1)));
    QTest::newRow("another text") << "rsText = 'iný'";
}

void TestChanges::aForcedCycleRestoresTheRelationshipState()
{
    QFETCH(QString, alteration);
    m_worker->setMes({{0, "v práci"}});
    synchronise({tomas()});
    m_db.run("UPDATE people SET " + alteration + " WHERE uid = 8");
    force();
    QCOMPARE(synchronise().statements.filter("UPDATE people SET pamId"),
             QStringList(Sent::updatePerson(tomas(), ofTomas(today(), QDate(), "v práci"))));
}

void TestChanges::aLeavingPersonIsWrittenButNotPlaced()
{
    synchronise({jana()});
    const ExportRow line = jana().with(&ExportRow::datumVystupu, today().addDays(-1));
    QCOMPARE(synchronise({line}).statements,
             Sent::begin() << Sent::fundChecks(12341, 4) << Sent::updatePerson(line)
                           << Sent::notifyTerminals(12341, 4) << Sent::recalculation(4));
}

void TestChanges::aPersonWhoHasLeftIsRememberedWithoutAChange()
{
    const ExportRow line = jana().with(&ExportRow::stavPracovnihoPomeru, 4);
    synchronise({line});
    for (int cycle = 0; cycle < 2; ++cycle)
        QCOMPARE(synchronise().statements, Sent::begin() << Sent::fundChecks(12341, 4));
}

void TestChanges::aFailedUpdateIsNotRepeatedForTheSameLine()
{
    m_db.refuse("UPDATE", "people");
    const Trace trace = synchronise({tomas()});
    QCOMPARE(trace.log,
             QStringList("C MHRWorker::dbUpdatePerson(2001.2) - SQL ERROR: refused by "
                         "the test QMYSQL: Unable to execute query"));
    QCOMPARE(trace.statements,
             Sent::begin() << Sent::fundChecks(20012, 8) << Sent::updatePerson(tomas(), ofTomas())
                           << Sent::balance(20012));
    m_db.allow("UPDATE", "people");
    QCOMPARE(synchronise().statements, Sent::begin() << Sent::fundChecks(20012, 8));
}

void TestChanges::aFailedUpdateIsRepeatedWhenForced()
{
    const ExportRow line = tomas().with(&ExportRow::prijmeni, "Malý");
    m_db.refuse("UPDATE", "people");
    synchronise({line});
    m_db.allow("UPDATE", "people");
    force();
    QCOMPARE(synchronise().statements.filter("UPDATE people SET pamId"),
             QStringList(Sent::updatePerson(line, ofTomas())));
}

void TestChanges::aNewSupervisorIsAssigned()
{
    newWorker(1);
    const auto assigned = [this](int personalNumber) {
        return synchronise({jana().with(&ExportRow::nadrizenyOsobniCislo, personalNumber)})
            .log.filter("processNadOsCis");
    };
    const auto expected = [](int personalNumber) {
        return QStringList(
            QString("D MHRWorker::processNadOsCis(1234.1, NOC: %1)").arg(personalNumber));
    };
    QCOMPARE(assigned(1001), expected(1001)); // seen for the first time
    QCOMPARE(assigned(1001), QStringList()); // unchanged
    QCOMPARE(assigned(1002), expected(1002)); // another one
    QCOMPARE(assigned(0), QStringList()); // none: the old one stays in the database
    QCOMPARE(m_db.rows("SELECT aid FROM admins_people WHERE uid = 4 AND request = 1"),
             TableRows({{"2"}}));
    QCOMPARE(assigned(1002), expected(1002)); // differs from none
}

void TestChanges::theSupervisorOfAnotherEmploymentTypeIsLeftAlone_data()
{
    QTest::addColumn<int>("employmentType");
    QTest::newRow("51") << 51;
    QTest::newRow("53") << 53;
    QTest::newRow("54") << 54;
    QTest::newRow("12, which has no meaning") << 12;
    QTest::newRow("0, which has no meaning") << 0;
}

void TestChanges::theSupervisorOfAnotherEmploymentTypeIsLeftAlone()
{
    QFETCH(int, employmentType);
    const ExportRow line = jana().with(&ExportRow::typPracovnihoPomeru, employmentType);
    synchronise({line});
    const ExportRow supervised = ExportRow(line).with(&ExportRow::nadrizenyOsobniCislo, 1002);
    QCOMPARE(synchronise({supervised}).statements.filter("admins"), QStringList());
    // Nor is it made up for when the type becomes another one.
    const ExportRow employed = ExportRow(supervised).with(&ExportRow::typPracovnihoPomeru, 11);
    QCOMPARE(synchronise({employed}).statements.filter("admins"), QStringList());
}

void TestChanges::theSameLineTwiceIsReconciledOnce()
{
    QCOMPARE(synchronise({tomas(), tomas()}).statements,
             Sent::begin() << Sent::fundChecks(20012, 8) << Sent::updatePerson(tomas(), ofTomas())
                           << Sent::notifyTerminals(20012, 8) << Sent::balance(20012)
                           << Sent::fundChecks(20012, 8));
}

void TestChanges::twoLinesOfOnePersonAreBothWrittenInEveryCycle()
{
    const ExportRow a = tomas().with(&ExportRow::telefon, "1");
    const ExportRow b = tomas().with(&ExportRow::telefon, "2");
    const QStringList both = {Sent::updatePerson(a, ofTomas()), Sent::updatePerson(b, ofTomas())};
    QCOMPARE(synchronise({a, b}).statements.filter("UPDATE people SET pamId"), both);
    // The row, as loaded before the first, agrees with the second.
    QCOMPARE(synchronise().statements.filter("UPDATE people SET pamId"), both.mid(0, 1));
    QCOMPARE(m_db.value("SELECT phone FROM people WHERE uid = 8").toString(), QString("1"));
}

void TestChanges::aSecondLineSeesWhatTheFirstOneMoved()
{
    const ExportRow first = jana().with(&ExportRow::stredisko, 140).with(&ExportRow::kalendar, 2);
    const ExportRow second = ExportRow(first).with(&ExportRow::strediskoPopis, "Iné");
    const Trace trace = synchronise({first, second});
    // The row agrees, and what there is to be recalculated was asked for with the first line.
    QCOMPARE(trace.statements.mid(trace.statements.lastIndexOf(Sent::movesOfToday(12341))),
             QStringList() << Sent::movesOfToday(12341) << Sent::calculation(12341)
                           << Sent::membership(12341, 3) << Sent::group(3, 2)
                           << Sent::plannedGroup(12, 4, 202301) << Sent::joinBranch(3, "4,4")
                           << Sent::propagation(3, {"4", "4"}, {7}, {3, 4}));
}

void TestChanges::aSecondLineSeesTheOldNameOfTheFirstOne()
{
    const ExportRow first = jana().with(&ExportRow::prijmeni, "Malá");
    const ExportRow second = ExportRow(first).with(&ExportRow::strediskoPopis, "Iné");
    QCOMPARE(synchronise({first, second}).statements.filter("UPDATE people SET pamId"),
             QStringList({Sent::updatePerson(first), Sent::updatePerson(second)}));
}

void TestChanges::aMovedPersonIsKnownInTheNewPlace()
{
    const ExportRow line = jana()
                               .with(&ExportRow::stredisko, 140)
                               .with(&ExportRow::strediskoPopis, "Administratíva")
                               .with(&ExportRow::kalendar, 2)
                               .with(&ExportRow::dovolenaZustatek, "3.5");
    const std::optional<MirovaRonRecord> known = knownAfter(line, 12341);
    QVERIFY(known);
    QCOMPARE(known->stredisko, 140U);
    QCOMPARE(known->strediskoPopis, QString("Administratíva"));
    QCOMPARE(known->kalendar, 2U);
    QCOMPARE(known->kalendarPlatnostOd, QDate(2023, 1, 1));
    QCOMPARE(known->dovolenaZustatek, 3.5);
}

void TestChanges::anUnmovedPersonIsKnownAsTheRowShows()
{
    m_db.run("INSERT INTO funds_move (type, day, month, value, fid, uid) "
             "VALUES (1, UNIX_TIMESTAMP('2025-01-01'), 202501, 350, 2, 8)");
    const ExportRow line =
        tomas().with(&ExportRow::strediskoPopis, "Sklad").with(&ExportRow::dovolenaZustatek, "3.5");
    const std::optional<MirovaRonRecord> known = knownAfter(line, 20012);
    QVERIFY(known);
    QCOMPARE(known->strediskoPopis, QString());
    QCOMPARE(known->dovolenaZustatek, 0.0);
}

void TestChanges::aNewWorkerKnowsNoPeople()
{
    synchronise({tomas()});
    newWorker();
    QCOMPARE(synchronise().statements.filter("UPDATE people SET pamId"),
             QStringList(Sent::updatePerson(tomas(), ofTomas())));
}

void TestChanges::stopAndStartKeepWhatTheWorkerKnows()
{
    synchronise({tomas()});
    m_worker->stop();
    m_worker->start();
    QCOMPARE(synchronise().statements, Sent::begin() << Sent::fundChecks(20012, 8));
}

QTEST_GUILESS_MAIN(TestChanges)
#include "tst_changes.moc"
