#include "tests/worker/support/sampleexport.h"
#include "tests/worker/support/workertest.h"
#include "tests/worker/synchronisation/sent.h"

#include <QTest>

using namespace SampleExport;

namespace {

QDate today()
{
    return QDate::currentDate();
}

uint pidOf(const ExportRow &line)
{
    return (line.osobniCislo + line.poradoveCisloPP).toUInt();
}

/// Both checks of a person who is not in the table: the second stops without a uid.
QStringList fundChecksOfNobody(uint pid)
{
    return {Sent::movesOfToday(pid), Sent::calculation(pid)};
}

int tomorrowsMonth()
{
    const QDate tomorrow = today().addDays(1);
    return tomorrow.year() * 100 + tomorrow.month();
}

/// How the log shows a newcomer.
QString described(const QString &payrollId)
{
    return payrollId + " Malá Eva (S: 120, K: 1 from " + shortDate(today().addDays(1)) + ") N-V: "
        + shortDate(today().addDays(-10)) + " - ; ES: 0, RS:  -  '' TPP: 11  DOV: 0 " + "NOC: 0";
}

} // namespace

/// What the driver does with people that the database does not know.
class TestCreation : public WorkerTest {
    Q_OBJECT
private Q_SLOTS:
    void aNewcomerIsCreatedRegisteredAndPlaced();
    void theCycleAfterTheCreationSettlesTheBalance();
    void theRelationshipStateOfANewcomerBeginsToday();
    void thePayrollSettingsFollowTheEmploymentType_data();
    void thePayrollSettingsFollowTheEmploymentType();
    void aFailedPayrollRegistrationIsReported_data() { addDebugLevels(); }
    void aFailedPayrollRegistrationIsReported();
    void theSupervisorOfANewcomerIsAssigned();
    void theSupervisorIsAssignedAlsoWhenThePayrollRegistrationFailed();
    void whetherANewcomerGetsASupervisorDependsOnTheEmploymentType_data();
    void whetherANewcomerGetsASupervisorDependsOnTheEmploymentType();
    void noSupervisorOfANewcomerIsProcessedWhenTheLineNamesNone();

    void aPersonWhoHasLeftIsNotCreated_data();
    void aPersonWhoHasLeftIsNotCreated();
    void aPersonWhoHasNotLeftIsCreated_data();
    void aPersonWhoHasNotLeftIsCreated();
    void aPersonWhoHasLeftIsRemembered();
    void forceDoesNotCreateAPersonWhoHasLeft();

    void aFailedCreationStillAsksForThePlace();
    void aFailedCreationIsNotRepeatedForTheSameLine();
    void aFailedCreationIsRepeatedForAChangedLine();
    void aFailedCreationIsRepeatedWhenForced();
    void anInactiveRowOfTheSamePidIsTakenUpAgain();
};

void TestCreation::aNewcomerIsCreatedRegisteredAndPlaced()
{
    const ExportRow line = newcomer(newPersonalNumber());
    const uint pid = pidOf(line);
    const Trace trace = synchronise({line});
    QCOMPARE(trace.log, QStringList());
    QCOMPARE(trace.statements,
             Sent::begin() << fundChecksOfNobody(pid) << Sent::insertPerson(line)
                           << Sent::payrollSelection(pid) << Sent::payrollBinding(pid, 9, 1)
                           << Sent::findUid(pid) << Sent::membership(pid, 1) << Sent::group(1, 1)
                           << Sent::plannedGroup(11, 9, tomorrowsMonth())
                           << Sent::planGroup(11, 9, tomorrowsMonth())
                           << Sent::updateMonths(9, tomorrowsMonth()) << Sent::joinBranch(1, "9")
                           << Sent::propagation(1, {"9"}, {1, 2}, {1, 4}));
}

void TestCreation::theCycleAfterTheCreationSettlesTheBalance()
{
    ExportRow line = newcomer(newPersonalNumber()).with(&ExportRow::dovolenaZustatek, "20");
    const uint pid = pidOf(line);
    synchronise({line});
    // The person exists now, so that the checks can be repeated.
    QCOMPARE(synchronise().statements,
             Sent::begin() << Sent::fundChecks(pid, 9) << Sent::balance(pid)
                           << Sent::correction(9, 2000) << Sent::membership(pid, 1)
                           << Sent::group(1, 1) << Sent::plannedGroup(11, 9, tomorrowsMonth())
                           << Sent::recalculation(9));
    QCOMPARE(synchronise().statements, Sent::begin() << Sent::fundChecks(pid, 9));
}

void TestCreation::theRelationshipStateOfANewcomerBeginsToday()
{
    m_worker->setMes({{1, "v skúške"}});
    const ExportRow line = newcomer(newPersonalNumber()).with(&ExportRow::evidencniStav, 1);
    Sent::PersonValues values;
    values.rsBegin = QString::number(localMidnight(today()));
    values.rsText = "v skúške";
    QVERIFY(synchronise({line}).statements.contains(Sent::insertPerson(line, values)));
}

void TestCreation::thePayrollSettingsFollowTheEmploymentType_data()
{
    QTest::addColumn<int>("employmentType");
    QTest::addColumn<QString>("type");
    QTest::addColumn<int>("payrollId");
    QTest::newRow("11") << 11 << "1" << 1;
    QTest::newRow("65") << 65 << "1" << 1;
    QTest::newRow("51") << 51 << "4" << 2;
    QTest::newRow("54") << 54 << "4" << 2;
    QTest::newRow("12 is not registered") << 12 << "0" << 0;
}

void TestCreation::thePayrollSettingsFollowTheEmploymentType()
{
    QFETCH(int, employmentType);
    QFETCH(QString, type);
    QFETCH(int, payrollId);
    const ExportRow line =
        newcomer(newPersonalNumber()).with(&ExportRow::typPracovnihoPomeru, employmentType);
    Sent::PersonValues values;
    values.type = type;
    const Trace trace = synchronise({line});
    QVERIFY(trace.statements.contains(Sent::insertPerson(line, values)));
    QStringList binding = Sent::payrollBinding(pidOf(line), 9, payrollId);
    QCOMPARE(trace.statements.filter("people_pam"),
             payrollId != 0 ? QStringList(binding.last()) : QStringList());
    QCOMPARE(trace.statements.contains(binding.first()), payrollId != 0);
}

void TestCreation::aFailedPayrollRegistrationIsReported()
{
    QFETCH(int, debugLevel);
    m_db.refuse("INSERT", "people_pam");
    newWorker(debugLevel);
    const ExportRow line = newcomer(newPersonalNumber());
    const QString pid = QString::number(pidOf(line));
    const QString ids = "pid: " + pid + ", pamSettingsID: 1";
    QCOMPARE(synchronise({line}).log.filter("PersonIntoPam("),
             linesAt(debugLevel,
                     {{2, "D MHRWorker::addPersonIntoPam(" + pid + ")"},
                      {1, "D MHRWorker::dbAddPersonIntoPam(" + ids + ")"},
                      {0,
                       "C MHRWorker::dbAddPersonIntoPam(" + ids
                           + ") - SQL ERROR: refused by the test QMYSQL: Unable to execute query"},
                      {0,
                       "W MHRWorker::doSyncRecord(" + described(line.osobniCislo + ".1")
                           + ") - dbAddPersonIntoPam(" + pid + ", 1) FAILED!"}}));
}

void TestCreation::theSupervisorOfANewcomerIsAssigned()
{
    const ExportRow line =
        newcomer(newPersonalNumber()).with(&ExportRow::nadrizenyOsobniCislo, 1002);
    const uint pid = pidOf(line);
    const QStringList statements = synchronise({line}).statements;
    const int from = statements.indexOf(Sent::payrollBinding(pid, 9, 1).last()) + 1;
    QCOMPARE(statements.mid(from, 7),
             QStringList(Sent::findAdmin(1002))
                 << Sent::findUid(pid) << Sent::supervisor(2, 9) << Sent::membership(pid, 1));
}

void TestCreation::theSupervisorIsAssignedAlsoWhenThePayrollRegistrationFailed()
{
    m_db.refuse("INSERT", "people_pam");
    const ExportRow line =
        newcomer(newPersonalNumber()).with(&ExportRow::nadrizenyOsobniCislo, 1002);
    const uint pid = pidOf(line);
    const QStringList statements = synchronise({line}).statements;
    const int from = statements.indexOf(Sent::payrollBinding(pid, 9, 1).last()) + 1;
    QVERIFY(from > 0);
    QCOMPARE(statements.mid(from, 6),
             QStringList(Sent::findAdmin(1002)) << Sent::findUid(pid) << Sent::supervisor(2, 9));
}

void TestCreation::whetherANewcomerGetsASupervisorDependsOnTheEmploymentType_data()
{
    QTest::addColumn<int>("employmentType");
    QTest::addColumn<bool>("assigned");
    QTest::newRow("11") << 11 << true;
    QTest::newRow("65") << 65 << true;
    QTest::newRow("51") << 51 << false;
    QTest::newRow("53") << 53 << false;
    QTest::newRow("54") << 54 << false;
    QTest::newRow("12, which has no meaning") << 12 << false;
    QTest::newRow("0, which has no meaning") << 0 << false;
}

void TestCreation::whetherANewcomerGetsASupervisorDependsOnTheEmploymentType()
{
    QFETCH(int, employmentType);
    QFETCH(bool, assigned);
    const ExportRow line = newcomer(newPersonalNumber())
                               .with(&ExportRow::typPracovnihoPomeru, employmentType)
                               .with(&ExportRow::nadrizenyOsobniCislo, 1002);
    QCOMPARE(synchronise({line}).statements.filter("FROM admins "),
             assigned ? QStringList(Sent::findAdmin(1002)) : QStringList());
    QVERIFY(uidOf(pidOf(line)) != 0);
}

void TestCreation::noSupervisorOfANewcomerIsProcessedWhenTheLineNamesNone()
{
    newWorker(1);
    const ExportRow line = newcomer(newPersonalNumber());
    QCOMPARE(synchronise({line}).log.filter("processNadOsCis"), QStringList());
    QVERIFY(uidOf(pidOf(line)) != 0);
}

void TestCreation::aPersonWhoHasLeftIsNotCreated_data()
{
    QTest::addColumn<ExportRow>("change");
    QTest::newRow("state 4") << ExportRow().with(&ExportRow::stavPracovnihoPomeru, 4);
    QTest::newRow("state 9, no leaving date")
        << ExportRow().with(&ExportRow::stavPracovnihoPomeru, 9);
    QTest::newRow("left yesterday")
        << ExportRow().with(&ExportRow::datumVystupu, today().addDays(-1));
    QTest::newRow("state 4, leaves tomorrow")
        << ExportRow()
               .with(&ExportRow::stavPracovnihoPomeru, 4)
               .with(&ExportRow::datumVystupu, today().addDays(1));
}

void TestCreation::aPersonWhoHasLeftIsNotCreated()
{
    QFETCH(ExportRow, change);
    const ExportRow line = newcomer(newPersonalNumber())
                               .with(&ExportRow::stavPracovnihoPomeru, change.stavPracovnihoPomeru)
                               .with(&ExportRow::datumVystupu, change.datumVystupu);
    const DatabaseState before = m_db.dumpAll();
    for (int cycle = 0; cycle < 2; ++cycle) {
        const Trace trace = synchronise({line});
        QCOMPARE(trace.log, QStringList());
        QCOMPARE(trace.statements, Sent::begin() << fundChecksOfNobody(pidOf(line)));
    }
    QCOMPARE(TestDatabase::difference(before, m_db.dumpAll()), QString());
}

void TestCreation::aPersonWhoHasNotLeftIsCreated_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<QDate>("end");
    QTest::newRow("state 0") << 0 << QDate();
    QTest::newRow("state 3") << 3 << QDate();
    QTest::newRow("leaves today") << 1 << today();
    QTest::newRow("leaves tomorrow") << 3 << today().addDays(1);
}

void TestCreation::aPersonWhoHasNotLeftIsCreated()
{
    QFETCH(int, state);
    QFETCH(QDate, end);
    const ExportRow line = newcomer(newPersonalNumber())
                               .with(&ExportRow::stavPracovnihoPomeru, state)
                               .with(&ExportRow::datumVystupu, end);
    QVERIFY(synchronise({line}).statements.contains(Sent::insertPerson(line)));
    QCOMPARE(uidOf(pidOf(line)), 9);
}

void TestCreation::aPersonWhoHasLeftIsRemembered()
{
    m_db.run("DELETE FROM funds");
    const ExportRow line = newcomer(newPersonalNumber()).with(&ExportRow::stavPracovnihoPomeru, 4);
    synchronise({line});
    // The row now comes from elsewhere. Seen for the first time, it would be written.
    m_db.run(QString("INSERT INTO people (pid, pamId, name) VALUES (%1, '%2.1', 'Eva')")
                 .arg(pidOf(line))
                 .arg(line.osobniCislo));
    QCOMPARE(synchronise().statements, Sent::begin());
}

void TestCreation::forceDoesNotCreateAPersonWhoHasLeft()
{
    const ExportRow line = newcomer(newPersonalNumber()).with(&ExportRow::stavPracovnihoPomeru, 4);
    synchronise({line});
    force();
    QCOMPARE(synchronise().statements,
             Sent::begin() << fundChecksOfNobody(pidOf(line)) << Sent::resetForce());
}

void TestCreation::aFailedCreationStillAsksForThePlace()
{
    m_db.refuse("INSERT", "people");
    const ExportRow line =
        newcomer(newPersonalNumber()).with(&ExportRow::nadrizenyOsobniCislo, 1002);
    const uint pid = pidOf(line);
    const Trace trace = synchronise({line});
    QCOMPARE(trace.log,
             QStringList({"C MHRWorker::dbAddPerson(" + line.osobniCislo
                              + ".1) - SQL ERROR: refused by the test QMYSQL: Unable to execute "
                                "query",
                          "W MHRWorker: can't add record '"
                              + described(line.osobniCislo + ".1").replace("NOC: 0", "NOC: 1002")
                              + "' into [groups_plan]!"}));
    // Without a uid: the branch gets "0", which is no person.
    QCOMPARE(trace.statements,
             Sent::begin() << fundChecksOfNobody(pid) << Sent::insertPerson(line)
                           << Sent::findUid(pid) << Sent::membership(pid, 1) << Sent::group(1, 1)
                           << Sent::plannedGroup(11, 0, tomorrowsMonth())
                           << Sent::joinBranch(1, "0"));
}

void TestCreation::aFailedCreationIsNotRepeatedForTheSameLine()
{
    m_db.refuse("INSERT", "people");
    const ExportRow line = newcomer(newPersonalNumber());
    synchronise({line});
    m_db.allow("INSERT", "people");
    QCOMPARE(synchronise().statements, Sent::begin() << fundChecksOfNobody(pidOf(line)));
}

void TestCreation::aFailedCreationIsRepeatedForAChangedLine()
{
    m_db.refuse("INSERT", "people");
    ExportRow line = newcomer(newPersonalNumber());
    synchronise({line});
    m_db.allow("INSERT", "people");
    line.with(&ExportRow::strediskoPopis, "Hlavný sklad");
    QVERIFY(synchronise({line}).statements.contains(Sent::insertPerson(line)));
    QVERIFY(uidOf(pidOf(line)) != 0);
}

void TestCreation::aFailedCreationIsRepeatedWhenForced()
{
    m_db.refuse("INSERT", "people");
    const ExportRow line = newcomer(newPersonalNumber());
    synchronise({line});
    m_db.allow("INSERT", "people");
    force();
    QVERIFY(synchronise().statements.contains(Sent::insertPerson(line)));
    QVERIFY(uidOf(pidOf(line)) != 0);
}

void TestCreation::anInactiveRowOfTheSamePidIsTakenUpAgain()
{
    // Štefan Žiak, uid 7, is in the table with status 0, so he is not among the loaded people.
    const ExportRow line = newcomer(1237);
    const QStringList statements = synchronise({line}).statements;
    QVERIFY(statements.contains(Sent::insertPerson(line)));
    QVERIFY(statements.contains(Sent::joinBranch(1, "7")));
    QCOMPARE(m_db.rows("SELECT surname, status, edited > 0, calendarID FROM people WHERE uid = 7"),
             TableRows({{"Malá", "1", "1", "1"}}));
}

QTEST_GUILESS_MAIN(TestCreation)
#include "tst_creation.moc"
