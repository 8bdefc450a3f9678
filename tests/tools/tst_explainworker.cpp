#include "tests/sync/sampleexport.h"
#include "tests/sync/synctest.h"
#include "tests/tools/explainedsite.h"
#include "worker/recorddates.h"

#include <QJsonObject>
#include <QRegularExpression>
#include <QSqlDatabase>

namespace {

/// What happens to one person in a synchronisation, as the facts of explain have it.
class ObservedPerson {
public:
    ObservedPerson(TestDatabase &database, const ExportRow &line)
        : m_db(database)
        , m_line(line)
        , m_payrollId(line.osobniCislo + "." + line.poradoveCisloPP)
        , m_pid(line.osobniCislo + line.poradoveCisloPP)
        , m_before(look())
    {
    }

    /// What has happened since the construction.
    QJsonObject facts(const Trace &trace);

private:
    /// What the database says of the person.
    struct State {
        bool exists = false;
        bool isKnown = false; ///< to the plugin
        bool corrected = false;
        QString administrators;
        QString branches;
        QString plan;
    };

    State look();
    QString person(const QStringList &log) const;
    QString balance(const QStringList &log) const;
    QString supervisor(const QStringList &log) const;
    QString branch(const QStringList &log) const;
    QString calendar(const QStringList &log) const;
    QString recalculation(const QStringList &statements) const;

    QString text(const QString &select)
    {
        return m_db.value(select.arg("(SELECT uid FROM people WHERE pid = " + m_pid + ")"))
            .toString();
    }
    static bool has(const QStringList &log, const QString &part)
    {
        return !log.filter(part).isEmpty();
    }

    TestDatabase &m_db;
    const ExportRow m_line;
    const QString m_payrollId;
    const QString m_pid;
    const State m_before;
    State m_after;
};

ObservedPerson::State ObservedPerson::look()
{
    State state;
    state.exists = !text("SELECT %1").isEmpty() && text("SELECT %1") != "0";
    state.isKnown =
        m_db.value("SELECT COUNT(*) FROM people WHERE status AND pamId = '" + m_payrollId + "'")
            .toInt()
        != 0;
    state.corrected = text("SELECT COUNT(*) FROM funds_move WHERE type = 3 AND fid = 2 AND day = "
                           "midnightFromTs(UNIX_TIMESTAMP()) AND uid = %1")
        != "0";
    state.administrators = text("SELECT GROUP_CONCAT(aid ORDER BY aid) FROM admins_people WHERE "
                                "request AND uid = %1");
    state.branches = text("SELECT GROUP_CONCAT(bid ORDER BY bid) FROM brape WHERE uid = %1");
    state.plan = text("SELECT GROUP_CONCAT(gid, ' ', since ORDER BY since) FROM groups_plan WHERE "
                      "uid = %1");
    return state;
}

QJsonObject ObservedPerson::facts(const Trace &trace)
{
    m_after = look();
    const bool waits = !has(trace.log, "END synchronization #1 (waiting records: 0)");
    return {{"person", person(trace.log)},
            {"balance", balance(trace.log)},
            {"supervisor", supervisor(trace.log)},
            {"branch", branch(trace.log)},
            {"calendar", calendar(trace.log)},
            {"recalculation", recalculation(trace.statements)},
            {"waits", waits}};
}

QString ObservedPerson::person(const QStringList &log) const
{
    if (has(log, "Testing mode is active, person not really"))
        return "test-mode";
    if (has(log, "- SQL ERROR: "))
        return "uncertain";
    if (has(log, "MHRWorker::dbAddPerson(" + m_payrollId + ")"))
        return m_before.exists ? "merged" : m_after.exists ? "created" : "lost";
    if (has(log, "MHRWorker::dbUpdatePerson(" + m_payrollId + ")"))
        return "updated";
    return m_after.exists ? "unchanged" : "never-created";
}

QString ObservedPerson::balance(const QStringList &log) const
{
    if (has(log, "checkDovolenkaFond(): fid=0") && m_before.isKnown)
        return "no-fund";
    if (has(log, " not writed for uid "))
        return "impossible";
    if (!m_before.corrected && m_after.corrected)
        return "corrected";
    if (has(log, "MHRWorker::loadFundStatusAndMove3(pid: "))
        return "equal";
    return m_before.isKnown ? "later" : "none";
}

QString ObservedPerson::supervisor(const QStringList &log) const
{
    if (has(log, "MHRWorker - admin s osobnym cislom "))
        return "unknown";
    if (m_before.administrators != m_after.administrators)
        return has(log, "MHRWorker::processNadOsCis(") ? "set" : "none";
    return has(log, "MHRWorker::dbSetAdminPeopleRequest(") ? "kept" : "none";
}

QString ObservedPerson::branch(const QStringList &log) const
{
    if (has(log, "W MHRWorker: Branch '"))
        return "unknown";
    if (m_before.branches != m_after.branches)
        return "joins";
    return has(log, "MHRWorker::dbCheckPersonInBranch(") ? "member" : "none";
}

QString ObservedPerson::calendar(const QStringList &log) const
{
    if (has(log, "W MHRWorker: Group ID NOT found"))
        return "unknown";
    if (m_before.plan != m_after.plan)
        return "planned";
    return has(log, "MHRWorker::dbCheckGroupsPlan(") ? "kept" : "none";
}

QString ObservedPerson::recalculation(const QStringList &statements) const
{
    const QDate day = RecordDates::firstDayOfPreviousMonth(QDate::currentDate());
    const QString reset = QStringLiteral("`date` >= %1 AND uid =").arg(RecordDates::midnight(day));
    return has(statements, reset) ? day.toString(Qt::ISODate) : "none";
}

} // namespace

/// explain, held against what the worker then does with the same export and database.
class TestExplainWorker : public SyncTest {
    Q_OBJECT

private Q_SLOTS:
    void whatIsExplainedHappens_data();
    void whatIsExplainedHappens();
    void aDroppedLineDoesNothing();
    void aSecondLineIsWrittenWhenSomethingDiffers_data();
    void aSecondLineIsWrittenWhenSomethingDiffers();

private:
    ToolRun explain(const QVector<ExportRow> &lines, const QByteArray &configuration = {});
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
    m_export.write(lines);
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

/// Every warning of the log was told, and no other.
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

    ObservedPerson observed(m_db, line);
    const Trace trace = synchroniseAs(configuration);
    QJsonObject explained = ExplainedSite::facts(run);
    explained.remove("pid");
    explained.remove("uid");
    QCOMPARE(explained, observed.facts(trace));

    QStringList told;
    for (const char *fact : {"person", "balance", "supervisor", "branch", "calendar"})
        told += explained.value(fact).toString();
    told += explained.value("waits").toBool() ? "yes" : "no";
    QCOMPARE(told.join(' '), words);

    compareWarnings(run, trace.log);
}

void TestExplainWorker::aDroppedLineDoesNothing()
{
    const ExportRow line =
        SampleExport::jana().with(&ExportRow::jmeno, "").with(&ExportRow::prijmeni, "");
    const ToolRun run = explain({line});
    QCOMPARE(ExplainedSite::facts(run), QJsonObject({{"pid", 12341}, {"uid", 4}}));
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
    QTest::newRow("the same") << jana << jana << "updated" << 1;
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
    QTest::newRow("new and then left") << eva << left << "never-created" << 1;
}

void TestExplainWorker::aSecondLineIsWrittenWhenSomethingDiffers()
{
    QFETCH(ExportRow, first);
    QFETCH(ExportRow, second);
    QFETCH(QString, person);
    QFETCH(int, writes);
    const ToolRun run = explain({first, second});
    QCOMPARE(ExplainedSite::facts(run).value("person").toString(), person);
    const QStringList log = synchronise().log;
    compareWarnings(run, log);
    QCOMPARE(log.filter(QRegularExpression("^D MHRWorker::db(Add|Update)Person\\(")).size(),
             writes);
}

SYNC_TEST_MAIN(TestExplainWorker)
#include "tst_explainworker.moc"
