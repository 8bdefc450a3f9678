#include "tests/mirovahrctl/explain/explainedsite.h"
#include "tests/mirovahrctl/explain/observedperson.h"
#include "tests/worker/support/sampleexport.h"
#include "tests/worker/support/workertest.h"

#include <QJsonObject>
#include <QRegularExpression>
#include <QSqlDatabase>
#include <QTest>

/// explain, compared with what the worker then does with the same export and database.
class TestExplainWorker : public WorkerTest {
    Q_OBJECT

private Q_SLOTS:
    void whatIsExplainedHappens_data();
    void whatIsExplainedHappens();
    void attendanceThatADeletedPersonLeftBehindMayBeMarked();
    void whatDependsOnRowsLeftBehindIsUncertain_data();
    void whatDependsOnRowsLeftBehindIsUncertain();
    void aDroppedLineDoesNothing();
    void aSecondLineIsWrittenWhenSomethingDiffers_data();
    void aSecondLineIsWrittenWhenSomethingDiffers();
    void severalLinesAreHandledInTurn_data();
    void severalLinesAreHandledInTurn();

private:
    ToolRun explain(const QVector<ExportRow> &lines, const QByteArray &configuration = {});
    /// The uid of the next new person.
    QString nextUid();
    static void compareWarnings(const ToolRun &run, const QStringList &log);
    Trace synchroniseAs(const QByteArray &configuration);
    void configureAs(const QByteArray &configuration);

    ExplainedSite m_site{m_db};
};

/// Runs explain before the worker is there: one process has one connection of the plugin.
ToolRun TestExplainWorker::explain(const QVector<ExportRow> &lines, const QByteArray &configuration)
{
    m_worker.reset();
    QSqlDatabase::removeDatabase("YAV." + m_db.server().databaseName() + ".MirovaHR");
    m_site.unlockAccount();
    m_site.configure(configuration);
    m_site.exportFile().write(lines);
    const QString person = lines.last().osobniCislo + "." + lines.last().poradoveCisloPP;
    const ToolRun run = m_site.explain(person);
    newWorker(3);
    m_export->write(lines);
    return run;
}

Trace TestExplainWorker::synchroniseAs(const QByteArray &configuration)
{
    {
        const LogCapture log;
        configureAs(configuration);
    }
    return synchronise();
}

void TestExplainWorker::configureAs(const QByteArray &configuration)
{
    m_worker->setTestMode(configuration.contains("testMode=1"));
    if (configuration.contains("[MES]"))
        m_worker->setMes({{21, "materská dovolenka"}});
}

/// explain has predicted every warning of the log, and no other.
void TestExplainWorker::compareWarnings(const ToolRun &run, const QStringList &log)
{
    const QString messages = ExplainedSite::messages(run).join('\n');
    const QStringList warnings =
        log.filter(QRegularExpression("^W (?!.*Testing mode)")).replaceInStrings("W ", "");
    for (const QString &warning : warnings)
        QVERIFY2(messages.contains(warning), qPrintable(warning + "\n" + messages));
    QCOMPARE(messages.count("log says: "), warnings.size());
}

void TestExplainWorker::whatIsExplainedHappens_data()
{
    QTest::addColumn<ExportRow>("line");
    QTest::addColumn<QStringList>("changes"); // of the database, before
    QTest::addColumn<QByteArray>("configuration");
    QTest::addColumn<QString>("words"); // person balance supervisor branch calendar waits

    const QString next = QDate::currentDate().addDays(400).toString("yyyy-MM-dd 00:00:00.000");
    const auto add = [](const char *name, const ExportRow &line, const char *words,
                        const QStringList &changes = {}, const QByteArray &configuration = {}) {
        QTest::newRow(name) << line << changes << configuration << QString(words);
    };
    using namespace SampleExport;
    using R = ExportRow;

    add("everything as it is", jana(), "updated equal none member kept no");
    add("another surname", jana().with(&R::prijmeni, "Malá"), "updated equal none member kept no");
    add("another balance", jana().with(&R::dovolenaZustatek, "18"),
        "updated corrected none member kept no");
    add("another balance, corrected today", jana().with(&R::dovolenaZustatek, "18"),
        "updated later none member kept no",
        {"INSERT INTO funds_move (type, day, month, value, fid, uid) VALUES"
         " (3, midnightFromTs(UNIX_TIMESTAMP()), 202503, 5, 2, 4)"});
    add("attendance that is to be calculated", jana().with(&R::dovolenaZustatek, "18"),
        "updated later none member kept no",
        {"UPDATE atten SET ok = -1 WHERE uid = 4 AND man = 1"});
    add("a balance out of reach", jana().with(&R::dovolenaZustatek, "30000000"),
        "updated impossible none member kept no");
    add("no vacation fund", jana(), "updated no-fund none member kept no",
        {"DELETE FROM funds WHERE iid = 3"});
    add("no calendar, no cost centre", tomas(), "updated equal none none none no");
    add("another branch", jana().with(&R::stredisko, 130), "updated equal none joins planned no");
    add("another branch without this calendar", jan().with(&R::stredisko, 130),
        "updated equal none joins unknown no");
    add("an unknown branch", jana().with(&R::stredisko, 999),
        "updated equal none unknown none yes");
    add("an unknown calendar in the old branch", jana().with(&R::kalendar, 77),
        "updated equal none member unknown yes");
    add("a member without a calendar", jana().with(&R::kalendar, 0),
        "updated equal none member none yes");
    add("another calendar from a day to come",
        jana().with(&R::kalendar, 1).with(&R::kalendarPlatnostOd, next),
        "updated equal none member planned no");
    add("the supervisor of now", jan().with(&R::nadrizenyOsobniCislo, 1001),
        "updated equal kept member kept no");
    add("another supervisor", jan().with(&R::nadrizenyOsobniCislo, 1002),
        "updated equal set member kept no");
    add("an unknown supervisor", jan().with(&R::nadrizenyOsobniCislo, 4711),
        "updated equal unknown member kept no");
    add("a supervisor of somebody without the type",
        jan().with(&R::nadrizenyOsobniCislo, 1002).with(&R::typPracovnihoPomeru, 51),
        "updated equal none member kept no");
    add("who has left by the state", jana().with(&R::stavPracovnihoPomeru, 4),
        "updated equal none none none no");
    add("who has left by the day", jana().with(&R::datumVystupu, QDate(2025, 1, 31)),
        "updated equal none none none no");
    add("a relationship state", jana().with(&R::evidencniStav, 21),
        "updated equal none member kept no", {}, "[MES]\n21=\"materská dovolenka\"\n");
    add("a text that breaks the statement", jana().with(&R::prijmeni, "O'Hara"),
        "uncertain equal none member kept no");
    add("a text that is written for the statement", jana().with(&R::prijmeni, "O''Hara"),
        "updated equal none member kept no",
        {"UPDATE people SET surname = 'O''Hara' WHERE uid = 4"});
    add("test mode", jana().with(&R::prijmeni, "Malá"), "test-mode equal none member kept no", {},
        "testMode=1\n");

    add("somebody new", newcomer(3101), "created none none joins planned no");
    add("somebody new with a supervisor", newcomer(3102).with(&R::nadrizenyOsobniCislo, 1002),
        "created none set joins planned no");
    add("somebody new in an unknown branch", newcomer(3103).with(&R::stredisko, 999),
        "created none none unknown none yes");
    add("somebody new without one payroll export", newcomer(3104),
        "created none none joins planned no",
        {"INSERT INTO vars (name, value) VALUES ('exportPam.2.active', '1')"});
    add("somebody new without settings of the payroll export",
        newcomer(3105).with(&R::typPracovnihoPomeru, 99), "created none none joins planned no");
    add("somebody new who has left already", newcomer(3106).with(&R::stavPracovnihoPomeru, 5),
        "never-created none none none none no");
    add("somebody who comes back",
        newcomer(1237).with(&R::jmeno, "Štefan").with(&R::prijmeni, "Žiak"),
        "merged none none joins planned no");
    add("somebody who comes back in test mode", newcomer(1237),
        "test-mode none none joins planned no", {}, "testMode=1\n");
    add("somebody who comes back with a text that breaks the statement",
        newcomer(1237).with(&R::jmeno, "E'va").with(&R::nadrizenyOsobniCislo, 1002),
        "uncertain none none joins planned no");
    add("somebody new with a text that is written for the statement",
        newcomer(3111).with(&R::jmeno, "E''va\\\\").with(&R::nadrizenyOsobniCislo, 1002),
        "created none set joins planned no");
    add("somebody who comes back with a text that is written for the statement",
        newcomer(1237).with(&R::jmeno, "100%' '1"), "merged none none joins planned no");
    add("somebody new in test mode", newcomer(3107).with(&R::nadrizenyOsobniCislo, 1002),
        "test-mode none none none none no", {}, "testMode=1\n");
    add("somebody new in an unknown branch in test mode", newcomer(3108).with(&R::stredisko, 999),
        "test-mode none none unknown none yes", {}, "testMode=1\n");
    add("somebody new with a text that breaks the statement",
        newcomer(3109).with(&R::jmeno, "E'va").with(&R::nadrizenyOsobniCislo, 1002),
        "uncertain none none none none no");
    add("somebody whose payroll id stands in the row of another pid",
        newcomer(3110).with(&R::nadrizenyOsobniCislo, 1002), "missed later none none none no",
        {"UPDATE people SET pamId = '3110.1' WHERE uid = 4"});
    add("somebody who has left already and is not active",
        newcomer(1237).with(&R::stavPracovnihoPomeru, 5), "unchanged none none none none no");
    add("a relationship state whose text breaks the statement", jana().with(&R::evidencniStav, 1),
        "uncertain equal none member kept no", {"UPDATE people SET rsText = 'O''x' WHERE uid = 4"});
    add("somebody who comes back under another name of the row",
        newcomer(1236).with(&R::stredisko, 130), "merged none none member planned no",
        {"UPDATE people SET pamId = 'x' WHERE uid = 6"});
}

void TestExplainWorker::whatIsExplainedHappens()
{
    QFETCH(ExportRow, line);
    QFETCH(QStringList, changes);
    QFETCH(QByteArray, configuration);
    QFETCH(QString, words);
    for (const QString &change : changes)
        m_db.run(change);
    const ToolRun run = explain({line}, configuration);

    ObservedPerson observed(m_db, (line.osobniCislo + line.poradoveCisloPP).toUInt());
    const Trace trace = synchroniseAs(configuration);
    observed.see(ObservedPerson::parts(trace.log).last(), false);
    observed.finish(trace.statements);
    QJsonObject happened = observed.facts();
    happened.insert("waits", trace.log.filter("(waiting records: 0)").isEmpty());
    QJsonObject explained = ExplainedSite::facts(run);
    for (const char *fact : {"pid", "uid", "exportSource", "recalculationCauses"})
        explained.remove(fact);
    for (const char *fact : {"payroll", "payrollSettings"}) {
        if (explained.value(fact) == "uncertain")
            explained.insert(fact, happened.value(fact));
    }
    QCOMPARE(explained, happened);

    QStringList facts;
    for (const char *fact : {"person", "balance", "supervisor", "branch", "calendar"})
        facts += explained.value(fact).toString();
    facts += explained.value("waits").toBool() ? "yes" : "no";
    QCOMPARE(facts.join(' '), words);

    compareWarnings(run, trace.log);
}

QString TestExplainWorker::nextUid()
{
    return m_db
        .value("SELECT AUTO_INCREMENT FROM information_schema.TABLES WHERE TABLE_SCHEMA ="
               " DATABASE() AND TABLE_NAME = 'people'")
        .toString();
}

void TestExplainWorker::attendanceThatADeletedPersonLeftBehindMayBeMarked()
{
    const ExportRow line = SampleExport::newcomer(3112).with(&ExportRow::kalendarPlatnostOd,
                                                             "2025-04-01 00:00:00.000");
    QCOMPARE(ExplainedSite::facts(explain({line})).value("recalculatedDays"), QJsonValue(0));
    m_db.run("INSERT INTO atten (uid, `date`, ok) VALUES (" + nextUid() + ", 1754949600, 1)");
    const ToolRun run = explain({line});
    QCOMPARE(ExplainedSite::facts(run).value("recalculatedDays"), QJsonValue("uncertain"));
    QCOMPARE(run.findingsOf("rows-left-behind").size(), 1);
    synchronise();
    QCOMPARE(m_db.value("SELECT ok FROM people JOIN atten USING (uid) WHERE pid = 31121").toInt(),
             -1);
}

void TestExplainWorker::whatDependsOnRowsLeftBehindIsUncertain_data()
{
    QTest::addColumn<QString>("row"); // that lies under the next uid
    QTest::addColumn<QStringList>("facts"); // that depend on it
    QTest::newRow("calendar group") << "groups_plan (uid, since, gid) VALUES (%1, 202504, 2)"
                                    << QStringList{"calendar", "recalculation"};
    QTest::newRow("administrator")
        << "admins_people (uid, aid, request) VALUES (%1, 2, 1)" << QStringList{"supervisor"};
    QTest::newRow("branch") << "brape (uid, bid) VALUES (%1, 1)" << QStringList{"branch"};
    QTest::newRow("payroll export")
        << "people_pam (uid, id) VALUES (%1, 1)" << QStringList{"payrollSettings"};
}

void TestExplainWorker::whatDependsOnRowsLeftBehindIsUncertain()
{
    QFETCH(QString, row);
    QFETCH(QStringList, facts);
    m_db.run("INSERT INTO " + row.arg(nextUid()));
    const ToolRun run =
        explain({SampleExport::newcomer(3112)
                     .with(&ExportRow::nadrizenyOsobniCislo, 1002)
                     .with(&ExportRow::kalendarPlatnostOd, "2025-04-01 00:00:00.000")});
    QStringList uncertain;
    const QJsonObject all = ExplainedSite::facts(run);
    for (auto fact = all.begin(); fact != all.end(); ++fact) {
        if (fact.value() == QJsonValue("uncertain"))
            uncertain += fact.key();
    }
    uncertain.sort();
    facts.sort();
    QCOMPARE(uncertain, facts);
}

void TestExplainWorker::aDroppedLineDoesNothing()
{
    const ExportRow line =
        SampleExport::jana().with(&ExportRow::jmeno, "").with(&ExportRow::prijmeni, "");
    const ToolRun run = explain({line});
    QCOMPARE(ExplainedSite::facts(run),
             QJsonObject({{"exportSource", "importFile"}, {"pid", 12341}, {"uid", 4}}));
    const DatabaseState before = m_db.dumpAll();
    synchronise();
    QCOMPARE(TestDatabase::difference(before, m_db.dumpAll()), QString());
}

void TestExplainWorker::aSecondLineIsWrittenWhenSomethingDiffers_data()
{
    QTest::addColumn<ExportRow>("first");
    QTest::addColumn<ExportRow>("second");
    QTest::addColumn<QString>("person");
    QTest::addColumn<int>("writes");

    using R = ExportRow;
    const ExportRow jana = SampleExport::jana();
    const auto with = [&](QString R::*field, const QString &value) {
        ExportRow line = jana;
        line.*field = value;
        return line;
    };
    QTest::newRow("the same") << jana << jana << "unchanged" << 1;
    QTest::newRow("a field of the row") << jana << with(&R::telefon, "7") << "updated" << 2;
    QTest::newRow("back to the row") << with(&R::telefon, "7") << jana << "unchanged" << 1;
    QTest::newRow("the register state") << jana << with(&R::evidencniStav, "1") << "updated" << 2;
    QTest::newRow("the employment type")
        << jana << with(&R::typPracovnihoPomeru, "65") << "updated" << 2;
    QTest::newRow("what the row does not hold")
        << jana << with(&R::strediskoPopis, "x") << "unchanged" << 1;
    QTest::newRow("somebody else with the same pid")
        << jana << ExportRow(jana).with(&R::osobniCislo, 123).with(&R::poradoveCisloPP, 41)
        << "updated" << 2;
    const ExportRow eva = SampleExport::newcomer(3201);
    ExportRow left = eva;
    left.stavPracovnihoPomeru = "5";
    QTest::newRow("new and again") << eva << ExportRow(eva).with(&R::telefon, "7") << "merged" << 2;
    QTest::newRow("left and then new") << left << eva << "created" << 1;
    QTest::newRow("new and then left") << eva << left << "unchanged" << 1;
}

void TestExplainWorker::aSecondLineIsWrittenWhenSomethingDiffers()
{
    QFETCH(ExportRow, first);
    QFETCH(ExportRow, second);
    QFETCH(QString, person);
    QFETCH(int, writes);
    const ToolRun run = explain({first, second});
    QCOMPARE(ExplainedSite::table(run, "summary", "lines", {"person"}).last(), QStringList(person));
    const QStringList log = synchronise().log;
    compareWarnings(run, log);
    QCOMPARE(log.filter(QRegularExpression("^D MHRWorker::db(Add|Update)Person\\(")).size(),
             writes);
}

void TestExplainWorker::severalLinesAreHandledInTurn_data()
{
    QTest::addColumn<QVector<ExportRow>>("lines");
    QTest::addColumn<QStringList>("changes"); // of the database, before
    QTest::addColumn<QString>("fact");
    QTest::addColumn<QString>("words"); // of the lines
    QTest::addColumn<QString>("whole");

    using R = ExportRow;
    const auto add = [](const char *name, const QVector<ExportRow> &lines, const char *fact,
                        const char *words, const char *whole, const QStringList &changes = {}) {
        QTest::newRow(name) << lines << changes << QString(fact) << QString(words)
                            << QString(whole);
    };
    const auto jana = [](const char *balance) {
        return SampleExport::jana().with(&R::dovolenaZustatek, balance);
    };
    add("the first balance wins", {jana("18"), jana("19")}, "balance", "corrected later",
        "corrected");
    add("a balance after one that is right", {jana("17.5"), jana("19")}, "balance",
        "equal corrected", "corrected");
    add("a balance that is not looked at again",
        {jana("17.5"), jana("17.5").with(&R::telefon, "7")}, "balance", "equal kept", "equal");
    add("a balance that the recalculation of the first line keeps from being corrected",
        {jana("17.5"), jana("19")}, "balance", "equal later", "later",
        {"INSERT INTO atten (uid, `date`, ok) VALUES (4, UNIX_TIMESTAMP(CURDATE()), 1)"});
    add("a balance that the recalculation of the first line lets be corrected",
        {jana("19"), jana("19")}, "balance", "later corrected", "corrected",
        {"UPDATE people SET calc = UNIX_TIMESTAMP(), lastCalc = UNIX_TIMESTAMP() WHERE uid = 4"});

    const ExportRow eva = SampleExport::newcomer(3202);
    ExportRow left = eva;
    left.stavPracovnihoPomeru = "5";
    const ExportRow again = ExportRow(eva).with(&R::telefon, "7");
    add("new, left, and here again", {eva, left, again}, "person", "created unchanged merged",
        "created");
    add("left and then new", {left, eva}, "person", "never-created created", "created");
    // Before the first line there is nobody whose attendance could be calculated.
    add("new and the same again", {eva, eva, eva}, "person", "created merged unchanged", "created");
    add("new and the same again without a vacation fund", {eva, eva}, "person", "created unchanged",
        "created", {"DELETE FROM funds WHERE iid = 3"});

    const auto jan = [](int supervisor) {
        return SampleExport::jan().with(&R::nadrizenyOsobniCislo, supervisor);
    };
    add("two supervisors", {jan(1002), jan(1003)}, "supervisor", "set set", "set");
    add("another supervisor and back", {jan(1002), jan(1001)}, "supervisor", "set set", "kept");
    add("another calendar and back",
        {SampleExport::jana().with(&R::kalendar, 1), SampleExport::jana()}, "calendar",
        "planned planned", "kept");
    const ExportRow moved = SampleExport::jana().with(&R::kalendar, 1);
    add("another calendar and something that the row does not hold",
        {moved, ExportRow(moved).with(&R::strediskoPopis, "x")}, "person", "updated unchanged",
        "updated");
    add("an unknown branch twice",
        {SampleExport::jana().with(&R::stredisko, 999),
         SampleExport::jana().with(&R::stredisko, 999)},
        "branch", "unknown unknown", "unknown");
}

void TestExplainWorker::severalLinesAreHandledInTurn()
{
    QFETCH(QVector<ExportRow>, lines);
    QFETCH(QStringList, changes);
    QFETCH(QString, fact);
    QFETCH(QString, words);
    QFETCH(QString, whole);
    for (const QString &change : changes)
        m_db.run(change);
    const ToolRun run = explain(lines);
    QStringList explained;
    for (const QStringList &line : ExplainedSite::table(run, "summary", "lines", {fact}))
        explained += line.first();
    QCOMPARE(explained.join(' '), words);
    QCOMPARE(ExplainedSite::facts(run).value(fact).toString(), whole);

    ObservedPerson observed(m_db, (lines[0].osobniCislo + lines[0].poradoveCisloPP).toUInt());
    const Trace trace = synchronise();
    const QVector<QStringList> parts = ObservedPerson::parts(trace.log);
    QCOMPARE(parts.size(), lines.size() + 1);
    QStringList happened;
    for (int i = 0; i < lines.size(); ++i) {
        observed.see(parts.at(i + 1), i > 0 && lines.at(i).text() == lines.at(i - 1).text());
        happened += observed.records().last().value(fact).toString();
    }
    observed.finish(trace.statements);
    QCOMPARE(happened.join(' '), words);
    QCOMPARE(observed.facts().value(fact).toString(), whole);
    compareWarnings(run, trace.log);
}

QTEST_GUILESS_MAIN(TestExplainWorker)
#include "tst_explainworker.moc"
