#include "mirovahrctl/explain/personid.h"
#include "tests/mirovahrctl/explain/explainedsite.h"
#include "tests/mirovahrctl/program/rulefixtures.h"
#include "tests/worker/support/middayzone.h"
#include "tests/worker/support/sampleexport.h"
#include "worker/mirovaronrecord.h"
#include "worker/recorddates.h"

#include <QDir>
#include <QTest>

namespace {

QString dayFromToday(int days)
{
    return QDate::currentDate().addDays(days).toString(Qt::ISODate);
}

QString previousMonth()
{
    return RecordDates::firstDayOfPreviousMonth(QDate::currentDate()).toString(Qt::ISODate);
}

QStringList differingFields(const ToolRun &run, const QString &section)
{
    QStringList fields;
    for (const QStringList &row :
         ExplainedSite::table(run, section, "fields", {"field", "differs"})) {
        if (row.last() == "true")
            fields += row.first();
    }
    return fields;
}

} // namespace

/// The explanation of one person, sentence by sentence.
class TestExplain : public QObject {
    Q_OBJECT

public:
    static void initMain() { settleProgram(); }

private Q_SLOTS:
    void initTestCase();
    void init();

    void payrollIdsAndPidsAreParsed_data();
    void payrollIdsAndPidsAreParsed();
    void somebodyElseWithTheSamePidIsThePersonToThePlugin();

    void aPersonWhoArrivesIsFine();
    void theTextForPeopleIsPlain();
    void theAnswerComesFirst_data();
    void theAnswerComesFirst();
    void theSectionsComeInTheOrderOfTheDecisions_data();
    void theSectionsComeInTheOrderOfTheDecisions();

    void sentences_data();
    void sentences();
    void testModeIsReportedWhereItApplies_data();
    void testModeIsReportedWhereItApplies();
    void findings_data();
    void findings();
    void aTextThatBreaksTheStatementMayBeInAnyField_data();
    void aTextThatBreaksTheStatementMayBeInAnyField();
    void verdicts_data();
    void verdicts();
    void verdictsWithoutARecord_data();
    void verdictsWithoutARecord();

    void aDroppedLineIsReportedWithItsRule_data();
    void aDroppedLineIsReportedWithItsRule();
    void linesThatNameNobodyAreCounted();
    void otherRelationshipsAreNamed();
    void severalLinesAreExplainedOneByOne();
    void onlyTheFirstLinesOfOnePersonAreExplained();
    void aLeaverWhoIsNotInTheExportAnyMoreIsFine_data();
    void aLeaverWhoIsNotInTheExportAnyMoreIsFine();
    void aForcedSynchronisationHandlesEqualLinesAgain();
    void textsLongerThanTheirColumnsAreReported();

    void withoutAnExportTheDatabaseIsReported_data();
    void withoutAnExportTheDatabaseIsReported();
    void theExportMayBeNamed();
    void whatTheDatabaseHolds();
    void theFieldsAreComparedOneByOne();
    void textsAreShownAsHrMeantThem();
    void theServerSaysWhatABackslashIs();
    void numbersAndFlagsKeepTheirTypeInJson();
    void theConfigurationIsThatOfTheFile();
    void withoutAConfigurationThePluginHasItsDefaults();

    void nothingIsWritten_data();
    void nothingIsWritten();

    void whatMakesNoSenseIsWrongUsage_data();
    void whatMakesNoSenseIsWrongUsage();
    void aDatabaseIsNeeded();
    void thePageIsNotWrittenOverTheExport();
    void aServerThatIsNotThereIsNoDatabase();
    void aServerInAnotherTimeZoneIsRefused();
    void aDatabaseWithoutATableBreaksTheContract_data();
    void aDatabaseWithoutATableBreaksTheContract();
    void anAccountThatMayNotReadTheRowLearnsNothingOfThePerson();
    void everyRuleHasItsFixtures();

private:
    ToolRun explain(const ExportRow &line, const QStringList &more = {});
    ToolRun explainAsText(const QString &person, const QStringList &more = {});
    void run(const QStringList &changes);

    TestDatabase m_db;
    ExplainedSite m_site{m_db};
};

void TestExplain::initTestCase()
{
    QVERIFY2(m_db.start(), qPrintable(m_db.errorString()));
    m_site.unlockAccount();
}

void TestExplain::init()
{
    m_db.reset();
    m_site.exportFile().remove();
    m_site.configure({});
}

ToolRun TestExplain::explain(const ExportRow &line, const QStringList &more)
{
    m_site.exportFile().write({line.text()});
    return m_site.explain(line.osobniCislo + "." + line.poradoveCisloPP, more);
}

ToolRun TestExplain::explainAsText(const QString &person, const QStringList &more)
{
    return runTool(QStringList{"explain", person, "--config", m_site.configurationPath()}
                   + m_site.connection() + more);
}

void TestExplain::run(const QStringList &changes)
{
    for (const QString &change : changes)
        m_db.run(change);
}

void TestExplain::payrollIdsAndPidsAreParsed_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("name"); // empty: nobody
    QTest::addColumn<quint32>("pid");
    QTest::newRow("a payroll id") << "1234.1"
                                  << "1234.1" << 12341u;
    QTest::newRow("a pid") << "pid 12341"
                           << "pid 12341" << 12341u;
    QTest::newRow("the largest pid") << "pid 4294967295"
                                     << "pid 4294967295" << 4294967295u;
    QTest::newRow("too large for a pid") << "4294967295.1"
                                         << "4294967295.1" << 0u;
    QTest::newRow("leading zeros") << "01234.01"
                                   << "1234.1" << 12341u;
    QTest::newRow("nothing") << ""
                             << "" << 0u;
    QTest::newRow("a number alone") << "1234"
                                    << "" << 0u;
    QTest::newRow("zero") << "pid 0"
                          << "" << 0u;
    QTest::newRow("no number") << "Jana"
                               << "" << 0u;
    QTest::newRow("above 32 bits") << "4294967296.1"
                                   << "" << 0u;
    QTest::newRow("no relationship") << "1234."
                                     << "" << 0u;
    QTest::newRow("relationship zero") << "1234.0"
                                       << "" << 0u;
    QTest::newRow("no personal number") << ".1"
                                        << "" << 0u;
    QTest::newRow("two dots") << "1234.1.1"
                              << "" << 0u;
}

void TestExplain::payrollIdsAndPidsAreParsed()
{
    QFETCH(QString, text);
    QFETCH(QString, name);
    QFETCH(quint32, pid);
    const auto person = PersonId::parse(text);
    QCOMPARE(person.has_value(), !name.isEmpty());
    if (!person)
        return;
    QCOMPARE(person->name(), name);
    QCOMPARE(person->pid(), pid);
}

void TestExplain::somebodyElseWithTheSamePidIsThePersonToThePlugin()
{
    MirovaRonRecord record;
    record.osobniCislo = 123;
    record.poradoveCisloPP = 41;
    QVERIFY(PersonId::parse("1234.1")->matches(record));
    QVERIFY(PersonId::parse("pid 12341")->matches(record));
    QVERIFY(!PersonId::parse("1234.2")->matches(record));
    // Numbers that do not fit make the pid 0.
    record.osobniCislo = 4294967295u;
    QVERIFY(PersonId::parse("4294967294.41")->matches(record));
    QVERIFY(!PersonId::parse("1234.1")->matches(record));
}

void TestExplain::aPersonWhoArrivesIsFine()
{
    const ToolRun run = explain(SampleExport::jana());
    COMPARE_EXIT(run, ExitStatus::Fine);
    QCOMPARE(run.rules(), QStringList());
    QCOMPARE(ExplainedSite::facts(run),
             QJsonObject({{"exportSource", "importFile"},
                          {"pid", 12341},
                          {"uid", 4},
                          {"person", "updated"},
                          {"payroll", "none"},
                          {"payrollSettings", "none"},
                          {"balance", "equal"},
                          {"supervisor", "none"},
                          {"branch", "member"},
                          {"calendar", "kept"},
                          {"recalculation", previousMonth()},
                          {"recalculationCauses", "moved"},
                          {"recalculatedDays", 0},
                          {"lastCalculation", "kept"},
                          {"waits", false}}));
    // By pid the same.
    QCOMPARE(ExplainedSite::facts(m_site.explain("12341")), ExplainedSite::facts(run));
}

void TestExplain::theTextForPeopleIsPlain()
{
    m_site.exportFile().write({SampleExport::newcomer(3301)
                                   .with(&ExportRow::stredisko, 999)
                                   .with(&ExportRow::datumNastupu, QDate(2026, 1, 1))
                                   .with(&ExportRow::kalendarPlatnostOd, QDate(2026, 1, 1))
                                   .text()});
    const ToolRun run = explainAsText("3301.1");
    COMPARE_EXIT(run, ExitStatus::Findings);
    const QString file = m_site.exportFile().path();
    QVERIFY2(run.out.startsWith("What happens to 3301.1\n======================\n\n"
                                "A synchronisation creates 3301.1. There are findings.\n\n"
                                "In short\n--------\n"
                                "3301.1 has not arrived in the attendance database.\n"
                                "Administrator: Give the branch this number, or ask HR to correct "
                                "the cost centre.\n\n"
                                "Configuration\n-------------\n"
                                "The configuration is that of "
                                + m_site.configurationPath()
                                + ".\n\n"
                                  "Export\n------\n"
                                  "Line 1 of "
                                + file
                                + " is about 3301.1 Eva Malá, pid 33011.\n\n"
                                  "Database\n--------\n"
                                  "The database has nobody with the pid 33011.\n\n"
                                  "Does the person work?\n---------------------\n"
                                  "Yes: the employment state 1 is below 4, and there is no last "
                                  "day.\n\n"
                                  "Is the person created or updated?\n"
                                  "---------------------------------\n"
                                  "The person is created.\n"),
             run.report().constData());
    QVERIFY2(run.out.contains(
                 "Which branch and calendar?\n--------------------------\n"
                 "warning: No branch has the number 999 of the cost centre. The log says: "
                 "MHRWorker: Branch '999' NOT FOUND for employee: '3301.1 Malá Eva (S: 999, "),
             run.report().constData());
    QVERIFY2(run.out.endsWith("Person: created\nPayroll selection: joins\n"
                              "Payroll settings: set\nVacation balance: none\nSupervisor: none\n"
                              "Branch: unknown\nCalendar group: none\nRecalculation from: none\n"
                              "Recalculation because of: none\nDays of attendance to mark: 0\n"
                              "Last calculation is set: kept\nWaits afterwards: yes\n"),
             run.report().constData());
}

void TestExplain::theAnswerComesFirst_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("person");
    QTest::addColumn<QString>("arrival");
    QTest::addColumn<QString>("difference");
    QTest::addColumn<QString>("duty");
    const QString arrived =
        "1234.1 has arrived: the attendance database has the person as Jana Nováková, active.";
    const QString none = "Nobody has to do anything";
    using SampleExport::jana;
    QTest::newRow("as HR says") << jana().text() << "1234.1" << arrived
                                << "Nothing was found that is different from HR's line." << none;
    QTest::newRow("another surname and supervisor")
        << jana()
               .with(&ExportRow::prijmeni, "Malá")
               .with(&ExportRow::nadrizenyOsobniCislo, 1002)
               .text()
        << "1234.1" << arrived
        << "Different from HR's line: Surname (HR: Malá, here: Nováková); who receives the "
           "requests."
        << none;
    QTest::newRow("an unknown branch")
        << jana().with(&ExportRow::stredisko, 999).text() << "1234.1" << arrived << "the branch"
        << "Administrator: Give the branch this number";
    QTest::newRow("a field that HR must mend") << QString(jana().text()).replace("17.5", "17,5")
                                               << "1234.1" << arrived << "the vacation balance"
                                               << "HR: Write the balance with a decimal point";
    QTest::newRow("a broken line")
        << jana().text() + "|"
        << "1234.1" << arrived << "HR's line is broken, so nothing of it is compared."
        << "HR: There must be no | after the last field.";
    QTest::newRow("new") << SampleExport::newcomer(3301).text() << "3301.1"
                         << "3301.1 has not arrived in the attendance database." << none << none;
    QTest::newRow("not in the export") << SampleExport::maria().text() << "1234.1" << arrived
                                       << "HR's export has no line of the person."
                                       << "";
    QTest::newRow("not active")
        << SampleExport::newcomer(1237).text() << "1237.1"
        << "1237.1 is in the attendance database as Štefan Žiak, but not active."
        << ""
        << "";
}

void TestExplain::theAnswerComesFirst()
{
    QFETCH(QString, line);
    QFETCH(QString, person);
    QFETCH(QString, arrival);
    QFETCH(QString, difference);
    QFETCH(QString, duty);
    m_site.exportFile().write(QStringList{line});
    const ToolRun run = m_site.explain(person);
    QCOMPARE(ExplainedSite::sections(run).value(0), QString("answer"));
    const QStringList answer = ExplainedSite::sentences(run, "answer");
    QCOMPARE(answer.value(0), arrival);
    QVERIFY2(answer.value(1).contains(difference), run.report().constData());
    QVERIFY2(answer.last().contains(duty), run.report().constData());
}

void TestExplain::theSectionsComeInTheOrderOfTheDecisions_data()
{
    QTest::addColumn<ExportRow>("line");
    QTest::addColumn<QByteArray>("configuration");
    QTest::addColumn<QStringList>("sections");
    const QStringList before{"answer", "configuration", "export", "database"};
    const QStringList after{"memory", "summary"};
    const auto add = [&](const char *name, const ExportRow &line, const QStringList &steps,
                         const QByteArray &configuration = {}) {
        QTest::newRow(name) << line << configuration << before + steps + after;
    };
    ExportRow left = SampleExport::jana();
    left.stavPracovnihoPomeru = "4";
    add("known", SampleExport::jana(),
        {"state", "row", "balance", "supervisor", "place", "recalculation"});
    add("known and left", left, {"state", "row", "balance", "supervisor", "recalculation"});
    add("new", SampleExport::newcomer(3302), {"state", "row", "supervisor", "place"});
    add("new in test mode", SampleExport::newcomer(3302), {"state", "row", "supervisor", "place"},
        "testMode=1\n");
    add("new with a calendar that has begun",
        SampleExport::newcomer(3302).with(&ExportRow::kalendarPlatnostOd, QDate(2026, 1, 1)),
        {"state", "row", "supervisor", "place", "recalculation"});
    add("not active in test mode", SampleExport::newcomer(1237),
        {"state", "row", "supervisor", "place"}, "testMode=1\n");
    add("new with a text that breaks the statement",
        SampleExport::newcomer(3302).with(&ExportRow::jmeno, "E'va"), {"state", "row", "place"});
    add("not active, with a text that breaks the statement",
        SampleExport::newcomer(1237).with(&ExportRow::jmeno, "E'va"), {"state", "row", "place"});
    add("new and left", left.with(&ExportRow::osobniCislo, 3303), {"state", "row"});
    add("dropped", SampleExport::newcomer(3302).with(&ExportRow::titul, "a|b"), {});
}

void TestExplain::theSectionsComeInTheOrderOfTheDecisions()
{
    QFETCH(ExportRow, line);
    QFETCH(QByteArray, configuration);
    QFETCH(QStringList, sections);
    m_site.configure(configuration);
    QCOMPARE(ExplainedSite::sections(explain(line)), sections);
}

void TestExplain::sentences_data()
{
    QTest::addColumn<ExportRow>("line");
    QTest::addColumn<QStringList>("changes");
    QTest::addColumn<QString>("section");
    QTest::addColumn<QStringList>("sentences");

    using R = ExportRow;
    using namespace SampleExport;
    const auto add = [](const char *name, const ExportRow &line, const QString &section,
                        const QStringList &sentences, const QStringList &changes = {}) {
        QTest::newRow(name) << line << changes << section << sentences;
    };

    add("works without a last day", jana(), "state",
        {"Yes: the employment state 1 is below 4, and there is no last day."});
    add("works until today", jana().with(&R::datumVystupu, QDate::currentDate()), "state",
        {"Yes: the employment state 1 is below 4, and the last day, " + dayFromToday(0)
         + ", is not over."});
    add("left yesterday", jana().with(&R::datumVystupu, QDate::currentDate().addDays(-1)), "state",
        {"No: the last day, " + dayFromToday(-1) + ", is over."});
    add("left by the state", jana().with(&R::stavPracovnihoPomeru, 4), "state",
        {"No: the employment state 4 means that it has ended, as every state from 4 on."});

    const QString notARs = "The register state 0 is not among the relationship states of the "
                           "configuration: a current one ends.";
    const QString isARs =
        "The register state 21 is a relationship state of the configuration: \"materská\".";
    const QString nothingDiffers = "No field differs from the row.";
    const QString differing = "These fields differ from the row: %1.";
    const QString updated = "The row is updated.";
    const QString writtenAllTheSame =
        "The row is written all the same: the plugin does not know yet which codes of employment "
        "type and register state it was last written with.";
    const QString breaks =
        "But a text of the line, reported above, breaks the statement: it fails or writes "
        "something else.";
    const QString terminal = "The change is queued for terminal 1.";
    add("nothing differs", jana(), "row", {notARs, nothingDiffers, writtenAllTheSame, terminal});
    add("two fields differ", jana().with(&R::prijmeni, "Malá").with(&R::telefon, "7"), "row",
        {notARs, differing.arg("Surname, Telephone"), updated, terminal});
    const QString inWriting =
        "The plugin compares a text in the form that the statement needs, with apostrophes and "
        "backslashes doubled. Only that makes the difference here, and the same text is written "
        "again: %1.";
    add("a text differs in writing only",
        jana().with(&R::prijmeni, "O''Hara").with(&R::telefon, "7"), "row",
        {notARs, differing.arg("Surname, Telephone"), inWriting.arg("Surname"), updated, terminal},
        {"UPDATE people SET surname = 'O''Hara' WHERE uid = 4"});
    add("a text differs, however it is written", jana().with(&R::prijmeni, "O''Hara"), "row",
        {notARs, differing.arg("Surname"), updated, terminal});
    add("the branch differs", jana().with(&R::stredisko, 130), "row",
        {notARs, differing.arg("Cost centre"), updated, terminal});
    add("left", jana().with(&R::datumVystupu, QDate(2025, 1, 31)), "row",
        {notARs, differing.arg("Employed until"), updated,
         "It stays active: the plugin never deactivates people, it only writes their last day.",
         terminal});
    add("a relationship state", jana().with(&R::evidencniStav, 21), "row",
        {isARs, differing.arg("Relationship state from, Relationship state"), updated,
         "Attendance is calculated again from " + dayFromToday(0)
             + " on, where the relationship state begins.",
         terminal},
        {"UPDATE people SET lastCalc = UNIX_TIMESTAMP() WHERE uid = 4"});
    add("a relationship state after the last calculation", jana().with(&R::evidencniStav, 21),
        "row",
        {isARs, differing.arg("Relationship state from, Relationship state"), updated,
         "The last calculation is set to the day before " + dayFromToday(0)
             + ", where the relationship state begins.",
         terminal});
    add("no terminal", tomas(), "row",
        {notARs, nothingDiffers, writtenAllTheSame,
         "No active terminal that handles people holds this person, so nothing is queued."});
    add("two terminals", jana(), "row",
        {notARs, nothingDiffers, writtenAllTheSame,
         "The change is queued for the terminals 1 and 7."},
        {"INSERT INTO people_term (tid, uid) VALUES (7, 4), (2, 4), (5, 4)"});
    add("a text that breaks the statement", jana().with(&R::prijmeni, "O'Hara"), "row",
        {notARs, differing.arg("Surname"), updated, terminal, breaks});

    const QString created = "The person is created.";
    const auto ifItFails = [](const QString &person) {
        return "If this fails, the log says why behind \"MHRWorker::dbAddPerson(" + person
            + ") - SQL ERROR:\", and the plugin does not try again until the line changes or a "
              "synchronisation is forced.";
    };
    const QString selection = "The person joins the selection of the payroll export 1.";
    const QString settings = "The employment type 11 means the settings 1 of the payroll export.";
    const QString later =
        "The vacation balance of a new person is corrected by a later synchronisation.";
    add("new", newcomer(3311), "row", {created, ifItFails("3311.1"), selection, settings, later});
    add("new without settings", newcomer(3312).with(&R::typPracovnihoPomeru, 99), "row",
        {created, ifItFails("3312.1"), selection,
         "The employment type 99 has no settings of the payroll export.", later});
    add("new with a text that breaks the statement", newcomer(3315).with(&R::jmeno, "E'va"), "row",
        {created, ifItFails("3315.1"), selection, settings, later, breaks,
         "The following steps find no row to write to, and warn."});
    add("comes back", newcomer(1237), "row",
        {"The line is merged into the row with the uid 7, which becomes active. Relationship "
         "state, calendar and branch of the row stay unchanged, the department becomes 1.",
         ifItFails("1237.1"), selection, settings, later});

    add("the balance is right", jana(), "balance",
        {"No: the fund holds 17.50 days, as the export says."});
    add("the balance is corrected", jana().with(&R::dovolenaZustatek, "17.259"), "balance",
        {"Yes: the fund holds 17.50 days, and the correction of today is -0.25 days."});
    add("no fund", jana(), "balance", {"No: there is no vacation fund."},
        {"DELETE FROM funds WHERE iid = 3"});
    add("corrected today", jana(), "balance",
        {"Not today: today's correction exists already. The plugin tries again tomorrow."},
        {"INSERT INTO funds_move (type, day, month, value, fid, uid) VALUES"
         " (3, midnightFromTs(UNIX_TIMESTAMP()), 202503, 5, 2, 4)"});
    const QString notNow =
        "Not now: the person's attendance is being calculated, or has days that are not calculated "
        "yet. The plugin tries again at the next synchronisation that contains the person.";
    add("days to calculate", jana(), "balance", {notNow},
        {"UPDATE atten SET ok = -1 WHERE uid = 4 AND man = 1"});
    add("being calculated", jana(), "balance", {notNow},
        {"UPDATE people SET calc = UNIX_TIMESTAMP() WHERE uid = 4"});

    add("no supervisor", jana(), "supervisor", {"The line names no supervisor: nothing changes."});
    add("a type without supervisors",
        jana().with(&R::nadrizenyOsobniCislo, 1002).with(&R::typPracovnihoPomeru, 51), "supervisor",
        {"The employment type 51 is not one for which the plugin sets a supervisor: nothing "
         "changes."});
    add("the supervisor of now", jana().with(&R::nadrizenyOsobniCislo, 1001), "supervisor",
        {"Administrator 1, who has the personal number 1001, as before."});
    add("another supervisor", jana().with(&R::nadrizenyOsobniCislo, 1002), "supervisor",
        {"Administrator 2, who has the personal number 1002, and nobody else."});
    add("the supervisor of now and another one", jana().with(&R::nadrizenyOsobniCislo, 1001),
        "supervisor", {"Administrator 1, who has the personal number 1001, and nobody else."},
        {"UPDATE admins_people SET request = 1 WHERE uid = 4"});

    const QString branch = "The cost centre 120 is branch 1, Sklad.";
    const QString member = "The person is already a member.";
    const QString joins =
        "The person joins it at the end of the synchronisation, and stays in every other branch.";
    const QString group = "The calendar 3 is group 13 there.";
    const QString noCalendar = "The line names no calendar.";
    add("no cost centre", tomas(), "place",
        {"The line names no cost centre: neither branch nor calendar is set."});
    add("as now", jana(), "place",
        {branch, member, group, "It is already planned from month 202301 on."});
    add("another branch",
        jana().with(&R::stredisko, 130).with(&R::kalendarPlatnostOd, QDate(2025, 2, 10)), "place",
        {"The cost centre 130 is branch 2, Predajňa.", joins, "This adds the terminals 4 and 5.",
         "It has the administrator 2.", "The calendar 3 is group 23 there.",
         "It is planned from month 202502 on.",
         "Attendance is calculated again from 2025-02-10 on."});
    add("a calendar from tomorrow on",
        jana().with(&R::kalendar, 1).with(&R::kalendarPlatnostOd, QDate::currentDate().addDays(1)),
        "place",
        {branch, member, "The calendar 1 is group 11 there.",
         "It is planned from month " + QDate::currentDate().addDays(1).toString("yyyyMM")
             + " on."});
    add("a calendar without a first day", jana().with(&R::kalendarPlatnostOd, ""), "place",
        {branch, member, group, "It is planned from month 0 on.",
         "All attendance is calculated again, because the start of the calendar is no date."});
    add("a branch without terminals and administrators", newcomer(3313).with(&R::kalendar, 0),
        "place",
        {branch, joins, "This adds no terminals.", "It has no administrators.", noCalendar},
        {"DELETE FROM term", "DELETE FROM bradm"});
    add("a member without a calendar", jana().with(&R::kalendar, 0), "place",
        {branch, member, noCalendar,
         "Nothing needs to be done, but the plugin counts the record as waiting all the same."});
    const QString waits =
        "The record waits: the plugin tries it again as long as exactly this line arrives.";
    add("an unknown branch", jana().with(&R::stredisko, 999), "place", {waits});
    add("an unknown calendar", jana().with(&R::kalendar, 77), "place", {branch, member, waits});

    const QString moved = "calendar, its start or the cost centre differ from what the plugin "
                          "remembers (it does not know the start at first)";
    const QString planned = "the calendar group is planned from a day on that is over";
    add("a recalculation for the place", jana(), "recalculation",
        {"Yes, from " + previousMonth() + " on, because " + moved + "."});
    add("a recalculation for the balance", tomas().with(&R::dovolenaZustatek, "1"), "recalculation",
        {"Yes, from " + previousMonth() + " on, because the balance is corrected."});
    add("no recalculation", tomas(), "recalculation", {"No."});
    add("a recalculation for the calendar of somebody new",
        newcomer(3317).with(&R::kalendarPlatnostOd, QDate(2026, 1, 1)), "recalculation",
        {"Yes, from 2026-01-01 on, because " + planned + "."});
    add("a recalculation of everything", tomas().with(&R::stredisko, 120).with(&R::kalendar, 1),
        "recalculation", {"Yes, all of it, because " + planned + "; " + moved + "."});

    const QString row = "The database has the person as uid 4: 1234.1 Jana Nováková, active.";
    add("who is active", jana(), "database", {row, "The row was created on 2019-03-25."});
    add("who was changed by the plugin", jana(), "database",
        {row, "The row was created on 2019-03-25. The plugin changed it last, on 2024-05-06."},
        {"UPDATE people SET edited = UNIX_TIMESTAMP('2024-05-06'), editor = 0 WHERE uid = 4"});
    add("who was changed by an administrator", jana(), "database",
        {row,
         "It is not known when the row was created. An administrator changed it last, on "
         "2024-05-06."},
        {"UPDATE people SET created = 0, edited = UNIX_TIMESTAMP('2024-05-06'), editor = 3 WHERE"
         " uid = 4"});
    add("who is not active", newcomer(1237), "database",
        {"The database has the person as uid 7: 1237.1 Štefan Žiak, not active.",
         "The row was created on 2017-04-24.",
         "The plugin sees active people only, so it does not see this row."});
    add("who is not there", newcomer(3314), "database",
        {"The database has nobody with the pid 33141."});
    add("what only the plugin knows", jana(), "memory",
        {"This is what a plugin does with its first export after it was started. Later it skips "
         "people whose line has not changed since the previous synchronisation, unless the "
         "synchronisation is forced, the record waits for its branch, or the balance could not be "
         "corrected.",
         "Only its memory knows which lines it has seen. If it has seen this very line and a step "
         "failed, nothing happens until the line changes; mirovahrctl force makes it handle every "
         "line again.",
         "Statements that fail, for lack of rights or otherwise, are not predicted here: see "
         "preview and check-db."});
}

void TestExplain::sentences()
{
    QFETCH(ExportRow, line);
    QFETCH(QStringList, changes);
    QFETCH(QString, section);
    QFETCH(QStringList, sentences);
    m_site.configure("[MES]\n21=\"materská\"\n");
    run(changes);
    const ToolRun run = explain(line);
    QCOMPARE(ExplainedSite::sentences(run, section).join('\n'), sentences.join('\n'));
}

void TestExplain::testModeIsReportedWhereItApplies_data()
{
    QTest::addColumn<ExportRow>("line");
    QTest::addColumn<QString>("last");
    QTest::newRow("known")
        << SampleExport::jana()
        << "In test mode nothing is written here. At debug level 1 and above the log says: "
           "MHRWorker::dbUpdatePerson(1234.1) - Testing mode is active, person not really update!";
    QTest::newRow("not active")
        << SampleExport::newcomer(1237)
        << "In test mode nothing is written here. At debug level 1 and above the log says: "
           "MHRWorker::dbAddPerson(1237.1) - Testing mode is active, person not really add!";
    QTest::newRow("new") << SampleExport::newcomer(3316)
                         << "The following steps find no row to write to, and warn.";
}

void TestExplain::testModeIsReportedWhereItApplies()
{
    QFETCH(ExportRow, line);
    QFETCH(QString, last);
    m_site.configure("testMode=1\n");
    QCOMPARE(ExplainedSite::sentences(explain(line), "row").last(), last);
}

void TestExplain::findings_data()
{
    QTest::addColumn<ExportRow>("line");
    QTest::addColumn<QStringList>("changes");
    QTest::addColumn<QByteArray>("configuration");
    QTest::addColumn<QString>("severity");
    QTest::addColumn<QString>("rule");
    QTest::addColumn<QString>("message");

    using R = ExportRow;
    using namespace SampleExport;
    const auto add = [](const char *rule, const ExportRow &line, const QString &message,
                        const QStringList &changes = {}, const QByteArray &configuration = {},
                        const char *severity = "warning", const char *name = "") {
        QTest::newRow(*name == 0 ? rule : name)
            << line << changes << configuration << QString(severity) << QString(rule) << message;
    };
    add("disabled", jana(),
        "The plugin is disabled: nobody is synchronised. What follows applies once it is enabled.",
        {}, "enabled=0\n");
    add("test-mode", jana(),
        "Test mode is on: rows of people are not written, only what depends on them.", {},
        "testMode=1\n");
    add("left-already", newcomer(3401).with(&R::stavPracovnihoPomeru, 4),
        "The person has left and has no row. The plugin never creates rows for leavers.", {}, {},
        "note");
    add("branch-id-large", newcomer(3404).with(&R::stredisko, 150),
        "The id of the branch is above 65535: the person joins branch 1 instead.",
        {"ALTER TABLE branches MODIFY bid INT UNSIGNED NOT NULL",
         "INSERT INTO branches (bid, number, name, mgid) VALUES (65537, 150, 'x', 1)"});
    add("branch-id-large", newcomer(3405).with(&R::stredisko, 150),
        "The id of the branch is above 65535: the person joins no branch.",
        {"ALTER TABLE branches MODIFY bid INT UNSIGNED NOT NULL",
         "INSERT INTO branches (bid, number, name, mgid) VALUES (65536, 150, 'x', 1)"},
        {}, "warning", "a branch without a number of 16 bits");
    add("calculation-forward", jana().with(&R::evidencniStav, 21),
        "The last calculation moves forward from 2025-03-31 to ", {}, "[MES]\n21=x\n", "note");
    add("no-payroll-export", newcomer(3402),
        "The person joins no payroll export, because there are 2 instead of one. The log says: "
        "MHRWorker::dbAddPerson(3402.1) - addPersonIntoPam() FAILED!",
        {"INSERT INTO vars (name, value) VALUES ('exportPam.2.active', '0')"});
    add("payroll-settings-kept", newcomer(1237),
        "The person has these settings already, which the plugin treats as a failure. The log "
        "says: MHRWorker::doSyncRecord(1237.1 Malá Eva (S: 120, ",
        {"INSERT INTO people_pam (uid, id) VALUES (7, 1)"}, {}, "note");
    add("balance-not-written", jana().with(&R::dovolenaZustatek, "21474836"),
        "The fund holds -17.50 days, and no valid correction leads from there to 21474836.00 days. "
        "The balance stays, and the log says: MHRWorker::doSyncRecord() - funds_move type (type=3, "
        "valeu=2147483647) not writed for uid 4 (pid: 12341)",
        {"UPDATE funds_move SET value = -value WHERE uid = 4"});
    add("supervisor-unknown", jana().with(&R::nadrizenyOsobniCislo, 4711),
        "No administrator has the personal number 4711 of the supervisor: nothing changes. The "
        "log says: MHRWorker - admin s osobnym cislom 4711 nebol najdeny!");
    add("branch-unknown", jana().with(&R::stredisko, 999),
        "No branch has the number 999 of the cost centre. The log says: MHRWorker: Branch '999' "
        "NOT FOUND for employee: '1234.1 Nováková Jana (S: 999, ");
    add("calendar-unknown", jana().with(&R::kalendar, 77),
        "The branch's master group has no group for the calendar 77. The log says: MHRWorker: "
        "Group ID NOT found for Branch 120 and calendar 77 [employee: '1234.1 Nováková Jana (S: "
        "120, ");
    add("payroll-id-strange", jana(),
        "The payroll id of the row belongs to another pid: the plugin does not recognise the "
        "person in it.",
        {"UPDATE people SET pamId = '77.7' WHERE uid = 4"});
    add("payroll-id-strange", newcomer(3403),
        "An active row with another pid has the payroll id 3403.1. The plugin recognises it as "
        "this person, but writes by pid: it changes nobody, or somebody else.",
        {"UPDATE people SET pamId = '3403.1' WHERE uid = 4"}, {}, "warning",
        "another row with the payroll id");
    add("rows-left-behind", newcomer(3406),
        "The person gets the uid 4000000 or a later one. Under those uids there are rows of atten, "
        "brape, which somebody who was deleted has left behind",
        {"ALTER TABLE people AUTO_INCREMENT = 4000000",
         "INSERT INTO atten (uid, `date`) VALUES (4000000, 1754949600)",
         "INSERT INTO brape (uid, bid) VALUES (4000001, 1)",
         "INSERT INTO groups_plan (uid, since, gid) VALUES (3999999, 202504, 2)"});
    add("quote-in-text", jana().with(&R::prijmeni, "O'Hara"), "The text \"O'Hara\" contains an", {},
        {}, "error");
}

void TestExplain::findings()
{
    QFETCH(ExportRow, line);
    QFETCH(QStringList, changes);
    QFETCH(QByteArray, configuration);
    QFETCH(QString, severity);
    QFETCH(QString, rule);
    QFETCH(QString, message);
    m_site.configure(configuration);
    run(changes);
    const ToolRun run = explain(line);
    COMPARE_EXIT(run, severity == "note" ? ExitStatus::Fine : ExitStatus::Findings);
    const QVector<QJsonObject> found = run.findingsOf(rule);
    QCOMPARE(found.size(), 1);
    QCOMPARE(found.first().value("severity").toString(), severity);
    QVERIFY2(found.first().value("message").toString().startsWith(message),
             run.report().constData());
    QVERIFY(!found.first().value("advice").toString().isEmpty());
}

void TestExplain::aTextThatBreaksTheStatementMayBeInAnyField_data()
{
    QTest::addColumn<ExportRow>("line");
    QTest::addColumn<QString>("person");
    using R = ExportRow;
    const R newcomer = SampleExport::newcomer(3506);
    QTest::newRow("title") << R(newcomer).with(&R::titul, "'") << "uncertain";
    QTest::newRow("first name") << R(newcomer).with(&R::jmeno, "E'va") << "uncertain";
    QTest::newRow("surname") << R(newcomer).with(&R::prijmeni, "O'Hara") << "uncertain";
    QTest::newRow("title after") << R(newcomer).with(&R::titulZa, "'") << "uncertain";
    QTest::newRow("telephone") << R(newcomer).with(&R::telefon, "'") << "uncertain";
    QTest::newRow("description, which is not written")
        << R(newcomer).with(&R::strediskoPopis, "'") << "created";
}

void TestExplain::aTextThatBreaksTheStatementMayBeInAnyField()
{
    QFETCH(ExportRow, line);
    QFETCH(QString, person);
    QCOMPARE(ExplainedSite::facts(explain(line)).value("person").toString(), person);
}

void TestExplain::verdicts_data()
{
    QTest::addColumn<ExportRow>("line");
    QTest::addColumn<QByteArray>("configuration");
    QTest::addColumn<QString>("person");
    QTest::addColumn<QString>("verdict");

    using R = ExportRow;
    using namespace SampleExport;
    const auto add = [](const ExportRow &line, const char *person, const QString &verdict,
                        const QByteArray &configuration = {}) {
        QTest::newRow(person) << line << configuration << QString(person) << verdict;
    };
    add(newcomer(3501), "created", "A synchronisation creates 3501.1.");
    add(newcomer(1237), "merged",
        "A synchronisation brings the row of 1237.1 up to date and makes it active.");
    add(jana(), "updated", "A synchronisation writes the row of 1234.1.");
    add(newcomer(3502).with(&R::stavPracovnihoPomeru, 4), "never-created",
        "3502.1 has left and is not in the database: the plugin never creates a row for leavers.");
    add(newcomer(1237).with(&R::stavPracovnihoPomeru, 4), "unchanged",
        "A synchronisation leaves the row of 1237.1 alone.");
    add(newcomer(3503).with(&R::jmeno, "\\"), "uncertain",
        "A text in the line of 3503.1 prevents the row from being written correctly. There are "
        "findings.");
    add(newcomer(3504), "test-mode",
        "Test mode is on: the plugin does not write the row of 3504.1. There are findings.",
        "testMode=1\n");
}

void TestExplain::verdicts()
{
    QFETCH(ExportRow, line);
    QFETCH(QByteArray, configuration);
    QFETCH(QString, person);
    QFETCH(QString, verdict);
    m_site.configure(configuration);
    const ToolRun run = explain(line);
    QCOMPARE(ExplainedSite::facts(run).value("person").toString(), person);
    QCOMPARE(ExplainedSite::verdict(run), verdict);
}

void TestExplain::verdictsWithoutARecord_data()
{
    QTest::addColumn<QStringList>("lines"); // empty: no export
    QTest::addColumn<QString>("person");
    QTest::addColumn<QString>("verdict");

    const QString maria = SampleExport::maria().text();
    QTest::newRow("a dropped line")
        << QStringList("1234|1") << "1234.1"
        << "The plugin drops the line of 1234.1, who is in the database.";
    QTest::newRow("a dropped line of somebody new")
        << QStringList("77|1") << "77.1"
        << "The plugin drops the line of 77.1, who is not in the database.";
    QTest::newRow("only in the database") << QStringList(maria) << "1234.1"
                                          << "1234.1 is in the database, but not in the export.";
    QTest::newRow("only in the database, not active")
        << QStringList(maria) << "1237.1"
        << "1237.1 is in the database, but not in the export.";
    QTest::newRow("nowhere") << QStringList(maria) << "77.1"
                             << "77.1 is neither in the export nor in the database.";
    QTest::newRow("no export") << QStringList() << "1234.1"
                               << "There is no export; 1234.1 is in the database.";
    QTest::newRow("no export, and nobody in the database")
        << QStringList() << "77.1"
        << "There is no export; 77.1 is not in the database.";
}

void TestExplain::verdictsWithoutARecord()
{
    QFETCH(QStringList, lines);
    QFETCH(QString, person);
    if (!lines.isEmpty())
        m_site.exportFile().write(lines);
    const ToolRun run = m_site.explain(person);
    QVERIFY(!ExplainedSite::facts(run).contains("person"));
    QTEST(ExplainedSite::verdict(run), "verdict");
}

void TestExplain::aDroppedLineIsReportedWithItsRule_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("rule");
    QTest::newRow("the number of fields") << SampleExport::jana().text() + "|"
                                          << "field-count";
    QTest::newRow("no name")
        << SampleExport::jana().with(&ExportRow::jmeno, "").with(&ExportRow::prijmeni, "").text()
        << "no-name";
    QTest::newRow("cut off") << "1234|1"
                             << "field-count";
}

void TestExplain::aDroppedLineIsReportedWithItsRule()
{
    QFETCH(QString, text);
    QFETCH(QString, rule);
    m_site.exportFile().write({SampleExport::maria().text(), text});
    const ToolRun run = m_site.explain("1234.1");
    COMPARE_EXIT(run, ExitStatus::Findings);
    QCOMPARE(run.rules(), QStringList(rule));
    QCOMPARE(run.findingsOf(rule).first().value("line").toInt(), 2);
    QCOMPARE(run.findingsOf(rule).first().value("dropped").toBool(), true);
    QCOMPARE(ExplainedSite::facts(run),
             QJsonObject({{"exportSource", "importFile"}, {"pid", 12341}, {"uid", 4}}));
    QCOMPARE(m_site.explain("12341").rules(), QStringList(rule));
}

void TestExplain::linesThatNameNobodyAreCounted()
{
    m_site.exportFile().write(
        {SampleExport::maria().text(), "broken", "0|1|x", QString(70000, 'x'), ""});
    const ToolRun run = m_site.explain("1234.1");
    COMPARE_EXIT(run, ExitStatus::Findings);
    QCOMPARE(run.rules(), QStringList("not-in-export"));
    QCOMPARE(
        ExplainedSite::messages(run),
        QStringList("None of the 5 lines of " + m_site.exportFile().path() + " is about 1234.1."));
    QCOMPARE(ExplainedSite::sentences(run, "export"),
             QStringList("3 lines are too broken to tell whom they are about, and the plugin drops "
                         "them: see check-file."));
    QCOMPARE(ExplainedSite::sentences(run, "database").last(),
             QString("The plugin leaves people alone who are missing from the export: it never "
                     "ends or removes them."));
}

void TestExplain::otherRelationshipsAreNamed()
{
    ExportRow second = SampleExport::jana();
    second.poradoveCisloPP = "2";
    m_site.exportFile().write(
        {SampleExport::jana().text(), SampleExport::maria().text(), second.text()});
    const ToolRun run = m_site.explain("1234.3");
    COMPARE_EXIT(run, ExitStatus::Findings);
    QCOMPARE(ExplainedSite::sentences(run, "export"),
             QStringList("Personal number 1234 also appears as 1234.1 (line 1), 1234.2 (line 3)."));
    QCOMPARE(run.findingsOf("not-in-database").size(), 1);
    QCOMPARE(ExplainedSite::sentences(m_site.explain("1235.1"), "export"), QStringList());
}

void TestExplain::severalLinesAreExplainedOneByOne()
{
    const ExportRow jana = SampleExport::jana();
    ExportRow other = jana;
    other.osobniCislo = "123";
    other.poradoveCisloPP = "41";
    m_site.exportFile().write(
        {jana.text(), "1234|1", jana.text(), SampleExport::maria().text(), other.text()});
    const ToolRun run = m_site.explain("1234.1");
    COMPARE_EXIT(run, ExitStatus::Findings);
    const QString file = m_site.exportFile().path();
    QCOMPARE(ExplainedSite::sentences(run, "export"),
             QStringList({"Line 1 of " + file + " is about 1234.1 Jana Nováková, pid 12341.",
                          "Line 2 of " + file + " is about the person, but the plugin drops it.",
                          "Line 3 of " + file + " is about 1234.1 Jana Nováková, pid 12341.",
                          "Line 5 of " + file + " is about 123.41 Jana Nováková, pid 12341."}));
    QCOMPARE(run.rules(), QStringList({"duplicate-relationship", "field-count", "pid-clash"}));
    QCOMPARE(ExplainedSite::sections(run).mid(4),
             QStringList({"state-line1", "row-line1", "balance-line1", "supervisor-line1",
                          "place-line1", "recalculation-line1", "repetition-line3", "state-line5",
                          "row-line5", "balance-line5", "supervisor-line5", "place-line5",
                          "recalculation-line5", "memory", "summary"}));
    QCOMPARE(
        ExplainedSite::sentences(run, "repetition-line3"),
        QStringList("The line equals the previous one, so the plugin leaves the person alone."));
    QCOMPARE(ExplainedSite::sentences(run, "row-line5").at(1),
             QString("The plugin compares with the row as it was before the earlier lines changed "
                     "it."));
    QCOMPARE(differingFields(run, "row-line5"),
             QStringList({"Personal number", "Relationship number"}));
}

void TestExplain::onlyTheFirstLinesOfOnePersonAreExplained()
{
    m_site.exportFile().write(QVector<ExportRow>(102, SampleExport::jana()));
    const ToolRun run = m_site.explain("1234.1");
    QCOMPARE(ExplainedSite::table(run, "summary", "lines", {"line"}).size(), 100);
    QCOMPARE(run.findingsOf("lines-not-explained").first().value("message").toString(),
             QString("2 lines more about the same person are not explained: the facts are those of "
                     "the first 100 lines."));
}

void TestExplain::aLeaverWhoIsNotInTheExportAnyMoreIsFine_data()
{
    QTest::addColumn<QString>("person");
    QTest::addColumn<QString>("severity");
    QTest::newRow("works") << "1234.1"
                           << "warning";
    QTest::newRow("not active") << "1237.1"
                                << "note";
    QTest::newRow("with a last day that is over") << "1235.1"
                                                  << "note";
}

void TestExplain::aLeaverWhoIsNotInTheExportAnyMoreIsFine()
{
    QFETCH(QString, person);
    QFETCH(QString, severity);
    m_db.run("UPDATE people SET `end` = UNIX_TIMESTAMP('2025-02-01') WHERE uid = 5");
    m_site.exportFile().write({SampleExport::maria().text()});
    const ToolRun run = m_site.explain(person);
    COMPARE_EXIT(run, severity == "note" ? ExitStatus::Fine : ExitStatus::Findings);
    QCOMPARE(run.findingsOf("not-in-export").first().value("severity").toString(), severity);
    QVERIFY(ExplainedSite::facts(run).contains("uid"));
}

void TestExplain::aForcedSynchronisationHandlesEqualLinesAgain()
{
    m_site.exportFile().write(QVector<ExportRow>(2, SampleExport::tomas()));
    QCOMPARE(ExplainedSite::table(m_site.explain("2001.2"), "summary", "lines", {"balance"}),
             TableRows({{"equal"}, {"none"}}));
    m_db.run("REPLACE INTO vars VALUES ('YAV.MHRWorker.forceSync', '1')");
    const ToolRun run = m_site.explain("2001.2");
    QCOMPARE(ExplainedSite::table(run, "summary", "lines", {"balance"}),
             TableRows({{"equal"}, {"equal"}}));
    m_db.run("DELETE FROM funds");
    QCOMPARE(ExplainedSite::table(m_site.explain("2001.2"), "summary", "lines", {"balance"}),
             TableRows({{"no-fund"}, {"no-fund"}}));
    QCOMPARE(ExplainedSite::sentences(run, "export").last(),
             QString("The next synchronisation is a forced one: the plugin handles every line, "
                     "changed or not."));
}

void TestExplain::textsLongerThanTheirColumnsAreReported()
{
    m_db.run("ALTER TABLE people MODIFY surname VARCHAR(9) NOT NULL DEFAULT ''");
    const ToolRun fits = explain(SampleExport::jana());
    COMPARE_EXIT(fits, ExitStatus::Fine);
    const ToolRun run = explain(SampleExport::jana().with(&ExportRow::prijmeni, "Nováková-M"));
    QCOMPARE(run.rules(), QStringList("text-too-long"));
    QCOMPARE(ExplainedSite::facts(run).value("person").toString(), QString("uncertain"));
}

void TestExplain::withoutAnExportTheDatabaseIsReported_data()
{
    QTest::addColumn<QByteArray>("configuration");
    QTest::addColumn<QString>("person");
    QTest::addColumn<QString>("why");
    QTest::addColumn<QStringList>("rules");
    QTest::newRow("removed") << QByteArray() << "1234.1"
                             << ": the plugin removes it after it has read it" << QStringList();
    QTest::newRow("never there") << QByteArray("deleteFile=0\n") << "1234.1"
                                 << "" << QStringList();
    QTest::newRow("nowhere") << QByteArray() << "77.1"
                             << ": the plugin removes it after it has read it"
                             << QStringList("not-in-database");
}

void TestExplain::withoutAnExportTheDatabaseIsReported()
{
    QFETCH(QByteArray, configuration);
    QFETCH(QString, person);
    QFETCH(QString, why);
    QFETCH(QStringList, rules);
    m_site.configure(configuration);
    const ToolRun run = m_site.explain(person);
    COMPARE_EXIT(run, rules.isEmpty() ? ExitStatus::Fine : ExitStatus::Findings);
    QCOMPARE(ExplainedSite::sentences(run, "export"),
             QStringList({"There is no export " + m_site.exportFile().path() + why + ".",
                          "What follows uses the database only."}));
    QCOMPARE(run.rules(), rules);
    QCOMPARE(ExplainedSite::facts(run).value("exportSource").toString(), QString("none"));
    QCOMPARE(ExplainedSite::facts(run).contains("uid"), rules.isEmpty());
    const TableRows fields = ExplainedSite::table(run, "database", "fields", {"field", "database"});
    QCOMPARE(fields.size(), rules.isEmpty() ? 14 : 0);
    if (!fields.isEmpty())
        QCOMPARE(fields.at(4), QStringList({"Surname", "Nováková"}));
}

void TestExplain::theExportMayBeNamed()
{
    ExportFile other;
    other.write({SampleExport::jana().text()});
    m_site.exportFile().write({SampleExport::maria().text()});
    const ToolRun run = m_site.explain("1234.1", {other.path()});
    COMPARE_EXIT(run, ExitStatus::Fine);
    QCOMPARE(ExplainedSite::facts(run).value("exportSource").toString(), QString("named"));
    QCOMPARE(ExplainedSite::facts(run).value("person").toString(), QString("updated"));
    QVERIFY(other.exists());
}

void TestExplain::whatTheDatabaseHolds()
{
    m_db.run("INSERT INTO brape (bid, uid, since) VALUES (2, 4, 0)");
    const ToolRun run = explain(SampleExport::jana());
    QCOMPARE(
        ExplainedSite::table(run, "database", "held", {"what", "value"}),
        TableRows({{"Member of branches", "1 Sklad, 2 Predajňa"},
                   {"Calendar groups and their first months", "11 from 201904, 13 from 202301"},
                   {"Administrators who receive the requests", "1 (personal number 1001)"},
                   {"Terminals", "1, 3"},
                   {"Settings of the payroll export", "1"}}));
    const ToolRun nothing = explain(SampleExport::newcomer(1237));
    QCOMPARE(ExplainedSite::table(nothing, "database", "held", {"value"}),
             TableRows(5, QStringList("")));
}

void TestExplain::theFieldsAreComparedOneByOne()
{
    ExportRow line = SampleExport::jana();
    line.titul = "Mgr.";
    line.datumVystupu = "2031-05-31 00:00:00.000";
    line.stredisko = "130";
    const ToolRun run = explain(line);
    QCOMPARE(ExplainedSite::table(run, "row", "fields", {"field", "export", "database", "differs"}),
             TableRows({{"Personal number", "1234", "1234", "false"},
                        {"Relationship number", "1", "1", "false"},
                        {"Title", "Mgr.", "Ing.", "true"},
                        {"First name", "Jana", "Jana", "false"},
                        {"Surname", "Nováková", "Nováková", "false"},
                        {"Title after the name", "", "", "false"},
                        {"Telephone", "555123456", "555123456", "false"},
                        {"Employed from", "2019-04-01", "2019-04-01", "false"},
                        {"Employed until", "2031-05-31", "", "true"},
                        {"HR's calendar", "3", "3", "false"},
                        {"Cost centre", "130", "120", "true"},
                        {"Relationship state from", "", "", "false"},
                        {"Relationship state until", "", "", "false"},
                        {"Relationship state", "", "", "false"}}));
}

void TestExplain::textsAreShownAsHrMeantThem()
{
    m_db.run("UPDATE people SET surname = 'O''Hara', title = '100%1\\\\' WHERE uid = 4");
    const ToolRun run = explain(SampleExport::jana()
                                    .with(&ExportRow::prijmeni, "O''Hara")
                                    .with(&ExportRow::titul, "100%' '1\\\\"));
    COMPARE_EXIT(run, ExitStatus::Fine);
    const TableRows fields =
        ExplainedSite::table(run, "row", "fields", {"field", "export", "database", "differs"});
    QCOMPARE(fields.value(2), QStringList({"Title", "100%1\\", "100%1\\", "true"}));
    QCOMPARE(fields.value(4), QStringList({"Surname", "O'Hara", "O'Hara", "true"}));
    QVERIFY2(ExplainedSite::sentences(run, "export")
                 .last()
                 .endsWith(" is about 1234.1 Jana O'Hara, pid 12341."),
             run.report().constData());
}

void TestExplain::theServerSaysWhatABackslashIs()
{
    const QString mode = m_db.value("SELECT @@GLOBAL.sql_mode").toString();
    m_db.run("SET GLOBAL sql_mode = '" + mode + ",NO_BACKSLASH_ESCAPES'");
    const ToolRun run = explain(SampleExport::jana().with(&ExportRow::prijmeni, "A\\B"));
    m_db.run("SET GLOBAL sql_mode = '" + mode + "'");
    COMPARE_EXIT(run, ExitStatus::Fine);
    QCOMPARE(ExplainedSite::facts(run).value("person").toString(), QString("updated"));
}

void TestExplain::numbersAndFlagsKeepTheirTypeInJson()
{
    const ToolRun run = explain(SampleExport::jana().with(&ExportRow::stredisko, 130));
    const int section = ExplainedSite::sections(run).indexOf("row");
    const QJsonValue row = run.json()["sections"].toArray().at(section);
    const QJsonArray fields = row["tables"]["fields"].toArray();
    QCOMPARE(
        fields.at(10).toObject(),
        QJsonObject(
            {{"field", "Cost centre"}, {"export", 130}, {"database", 120}, {"differs", true}}));
    QCOMPARE(fields.at(3)["export"], QJsonValue("Jana"));
    QCOMPARE(fields.at(3)["differs"], QJsonValue(false));
}

void TestExplain::theConfigurationIsThatOfTheFile()
{
    m_site.configure("syncCommandRun=1\nsyncCommand=\"/bin/true\"\n");
    const ToolRun run = explain(SampleExport::jana());
    COMPARE_EXIT(run, ExitStatus::Fine);
    QCOMPARE(ExplainedSite::sentences(run, "configuration"),
             QStringList("The configuration is that of " + m_site.configurationPath() + "."));
    QCOMPARE(ExplainedSite::sentences(run, "export").first(),
             QString("A forced synchronisation runs the export command first, and may then find "
                     "another file than this."));

    m_site.configure("syncCommandRun=2\nsyncCommand=\"/bin/true\"\n");
    QCOMPARE(ExplainedSite::sentences(explain(SampleExport::jana()), "export").first(),
             QString("The plugin runs its export command first, and may then find another file "
                     "than this."));
}

void TestExplain::withoutAConfigurationThePluginHasItsDefaults()
{
    const ToolRun run = runTool(QStringList{"explain", "1234.1", "--json"} + m_site.connection());
    COMPARE_EXIT(run, ExitStatus::Fine);
    QCOMPARE(
        ExplainedSite::sentences(run, "configuration"),
        QStringList("There is no file /etc/yav/MirovaHR.ini here: this holds for a plugin with "
                    "its defaults."));
    QCOMPARE(ExplainedSite::facts(run).value("exportSource").toString(), QString("none"));
    QCOMPARE(ExplainedSite::sentences(run, "export").first(),
             QString("There is no export /tmp/ron.data: the plugin removes it after it has read "
                     "it."));
}

void TestExplain::nothingIsWritten_data()
{
    QTest::addColumn<ExportRow>("line");
    QTest::newRow("as it is") << SampleExport::jana();
    QTest::newRow("everything different") << SampleExport::jana()
                                                 .with(&ExportRow::prijmeni, "Malá")
                                                 .with(&ExportRow::stredisko, 130)
                                                 .with(&ExportRow::dovolenaZustatek, "1")
                                                 .with(&ExportRow::nadrizenyOsobniCislo, 1002)
                                                 .with(&ExportRow::evidencniStav, 21);
    QTest::newRow("an unknown branch and supervisor")
        << SampleExport::jana()
               .with(&ExportRow::stredisko, 999)
               .with(&ExportRow::nadrizenyOsobniCislo, 4711);
    QTest::newRow("an unknown calendar in a new branch")
        << SampleExport::jana().with(&ExportRow::stredisko, 130).with(&ExportRow::kalendar, 77);
    QTest::newRow("new") << SampleExport::newcomer(3601);
    QTest::newRow("dropped") << SampleExport::jana().with(&ExportRow::osobniCislo, "0");
}

void TestExplain::nothingIsWritten()
{
    QFETCH(ExportRow, line);
    const DatabaseState before = m_db.dumpAll();
    m_db.clearStatements();
    m_site.exportFile().write({line.text()});
    const QStringList connections = QSqlDatabase::connectionNames();
    m_site.explain("12341");
    m_site.explain(line.osobniCislo + "." + line.poradoveCisloPP);
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
    QVERIFY(m_site.exportFile().exists());
}

void TestExplain::whatMakesNoSenseIsWrongUsage_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("error");
    QTest::newRow("nobody") << QStringList{} << "Missing argument PERSON; see --help.";
    QTest::newRow("no person")
        << QStringList{"4294967296"}
        << "'4294967296' is neither a payroll id such as 1234.1, nor a number, nor a name.";
    QTest::newRow("an empty name")
        << QStringList{" "}
        << "' ' is neither a payroll id such as 1234.1, nor a number, nor a name.";
    QTest::newRow("a file and a gate")
        << QStringList{"1234.1", "/etc/hostname", "--gate-folder", "/tmp"}
        << "Name either FILE or --gate-folder.";
    QTest::newRow("no such gate") << QStringList{
        "1234.1", "--gate-folder",
        "/nowhere"} << "'/nowhere' cannot be opened as a folder: No such file or directory.";
    QTest::newRow("no such export")
        << QStringList{"1234.1", "/nowhere/file"} << "There is no file '/nowhere/file'.";
    QTest::newRow("no such configuration")
        << QStringList{"1234.1", "--config", "/nowhere/ini"} << "There is no file '/nowhere/ini'.";
    QTest::newRow("too many") << QStringList{"1234.1", "a", "b"} << "Unexpected argument 'b'.";
    QTest::newRow("a page that cannot be written")
        << QStringList{"1234.1", "--html", "/nowhere/page.html"}
        << "'/nowhere/page.html' cannot be written: No such file or directory.";
}

void TestExplain::whatMakesNoSenseIsWrongUsage()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, error);
    const ToolRun run = runTool(QStringList("explain") + arguments + m_site.connection());
    COMPARE_EXIT(run, ExitStatus::Usage);
    QCOMPARE(QString(run.err).remove("explain: "), "mirovahrctl: " + error + '\n');
    QCOMPARE(run.out, QString());
}

void TestExplain::aDatabaseIsNeeded()
{
    const ToolRun run = runTool({"explain", "1234.1"});
    COMPARE_EXIT(run, ExitStatus::Usage);
    QVERIFY2(run.err.startsWith("mirovahrctl: explain: "), run.report().constData());
}

void TestExplain::thePageIsNotWrittenOverTheExport()
{
    const ToolRun run = explain(SampleExport::jana(), {"--html", m_site.exportFile().path()});
    COMPARE_EXIT(run, ExitStatus::Usage);
    QCOMPARE(
        run.err,
        QString(
            "mirovahrctl: explain: The result would overwrite the export; name another file.\n"));
}

void TestExplain::aServerThatIsNotThereIsNoDatabase()
{
    const ToolRun run = runTool({"explain", "1234.1", "--socket", "/nowhere/socket", "--database",
                                 "tepdb", "--user", "mirovahrctl"});
    COMPARE_EXIT(run, ExitStatus::NoDatabase);
    QVERIFY2(run.err.startsWith("mirovahrctl: explain: The database cannot be opened: "),
             run.report().constData());
}

void TestExplain::aServerInAnotherTimeZoneIsRefused()
{
    m_db.run("SET GLOBAL time_zone = '-11:30'");
    const ToolRun run = explain(SampleExport::jana());
    m_db.run("SET GLOBAL time_zone = DEFAULT");
    COMPARE_EXIT(run, ExitStatus::Usage);
    QCOMPARE(
        run.err,
        QString("mirovahrctl: explain: The site's server (time zone -11:30) and this program "
                "disagree about when days begin. Run this program with the TZ of the attendance "
                "server.\n"));
}

void TestExplain::aDatabaseWithoutATableBreaksTheContract_data()
{
    QTest::addColumn<QString>("table");
    for (const char *table : {"people", "branches", "funds", "funds_move", "atten", "brape",
                              "groups_plan", "admins", "term", "people_pam"})
        QTest::newRow(table) << QString(table);
}

void TestExplain::aDatabaseWithoutATableBreaksTheContract()
{
    QFETCH(QString, table);
    m_db.hideTable(table);
    const ToolRun run = explain(SampleExport::jana().with(&ExportRow::nadrizenyOsobniCislo, 1001));
    COMPARE_EXIT(run, ExitStatus::ContractBroken);
    QVERIFY2(run.err.startsWith("mirovahrctl: explain: The database "), run.report().constData());
    QVERIFY2(run.failure().startsWith("The database "), run.report().constData());
    QCOMPARE(ExplainedSite::sections(run), QStringList());
    QCOMPARE(explainAsText("1234.1").out, QString());
}

/// The plugin itself does not read all of the row.
void TestExplain::anAccountThatMayNotReadTheRowLearnsNothingOfThePerson()
{
    m_site.exportFile().write({SampleExport::jana().text()});
    const ToolRun run = explainAsText("1234.1", {"--user", "yav"});
    COMPARE_EXIT(run, ExitStatus::ContractBroken);
    QVERIFY2(run.err.contains("SELECT command denied to user 'yav'"), run.report().constData());
    QCOMPARE(run.out, QString());
}

void TestExplain::everyRuleHasItsFixtures()
{
    // See TestExplainExport, TestExplainPeople and TestExplainWorker.
    const QSet<QString> others{"gate-refused", "nobody-found", "person-ambiguous",
                               "state-breaks-statement"};
    QCOMPARE(RuleFixtures::ofReports("explain").missing("explain", others), QStringList());
}

QTEST_GUILESS_MAIN(TestExplain)
#include "tst_explain.moc"
