#include "mirovahrctl/gatestate/gatestatus.h"
#include "tests/mirovahrctl/gate/gatesite.h"
#include "tests/mirovahrctl/program/faultyrun.h"

#include <QRegularExpression>
#include <QTest>

#include <csignal>
#include <memory>

namespace {

using FaultyRun::Fault;

constexpr int kKilled = 128 + SIGKILL;

/// The state of a site before the run that has a fault.
struct Scenario {
    const char *name;
    bool hasBaseline; ///< a file was admitted before
    bool isUnread; ///< and it still lies where the plugin reads
    bool isUnchanged; ///< and HR delivers the same
    bool isRefused; ///< HR delivers an empty file
};

constexpr Scenario kScenarios[] = {
    {"the first file", false, false, false, false},
    {"a new file", true, false, false, false},
    {"a new file, the last one unread", true, true, false, false},
    {"the same file, the last one unread", true, true, true, false},
    {"a refused file, the last one unread", true, true, false, true},
};

/// Some buffers long, so that there are several calls for reading and writing, with few lines.
QVector<ExportRow> longPeople(int count)
{
    QVector<ExportRow> people = GatePeople::some(count);
    for (ExportRow &person : people)
        person.with(&ExportRow::strediskoPopis, QString(1000, 'x'));
    return people;
}

QByteArray lastFile()
{
    return GatePeople::file(longPeople(40));
}

QByteArray newFile(const Scenario &scenario)
{
    if (scenario.isRefused)
        return QByteArray();
    return scenario.isUnchanged ? lastFile() : "broken\n" + GatePeople::file(longPeople(35));
}

std::unique_ptr<GateSite> prepare(const Scenario &scenario)
{
    auto site = std::make_unique<GateSite>();
    if (scenario.hasBaseline) {
        site->admit(lastFile());
        // As if that had happened long ago.
        QFile::rename(site->inState(site->copies()[0]),
                      site->inState("admitted-20250101T000000Z.data"));
    }
    if (scenario.isUnread)
        writeFile(site->target(), lastFile());
    site->deliver(newFile(scenario));
    return site;
}

QStringList arguments(const GateSite &site)
{
    return site.arguments({"--accept", "--keep", "1"});
}

void runFaulty(ProgramRun &run, const GateSite &site, const Fault &fault)
{
    FaultyRun::prepare(run, site.folder(), fault);
    if (!run.run(MIROVAHRCTL, arguments(site)))
        qFatal("The program does not end: %s", run.report().constData());
}

/// The calls of a run without a fault.
QStringList callsOf(const Scenario &scenario, const char *counted)
{
    const auto site = prepare(scenario);
    const QString trace = site->folder() + ".trace";
    ProgramRun run;
    run.setVariable("FAULTY_TRACE", trace);
    runFaulty(run, *site, {counted});
    if (run.status() != (scenario.isRefused ? 5 : 0))
        qFatal("A run without a fault: %s", run.report().constData());
    QString calls = QString::fromUtf8(contentOf(trace));
    QFile::remove(trace);
    static const QRegularExpression random("\\.gate-[0-9a-f]{16}");
    calls.replace(site->folder() + '/', QString()).replace(random, ".gate-new");
    return calls.split('\n', Qt::SkipEmptyParts);
}

} // namespace

/// Each of the gate's calls that work with files fails, or the gate is killed in it.
class TestGateFaults : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aGateThatIsKilledLeavesAWholeFile_data() { addScenarios({0, 1, 2, 3, 4}); }
    void aGateThatIsKilledLeavesAWholeFile();
    void aFailedCallIsReported_data() { addScenarios({0, 2, 3}); }
    void aFailedCallIsReported();
    void aFullDiskIsReported_data() { addScenarios({0, 2}); }
    void aFullDiskIsReported();
    void theFileIsOnTheDiskBeforeItIsSeen();
    void aFileThatIsWrittenMeanwhileIsRefused();

private:
    static void addScenarios(const QVector<int> &numbers);
    void failAtEveryCall(const Scenario &scenario, Fault fault);
    void compareError(const ProgramRun &run, const GateSite &site, const Scenario &scenario,
                      const QString &call);
    void comparePublished(const GateSite &site, const Scenario &scenario);
    void compareStatus(const GateSite &site, const Scenario &scenario);
    void compareNextRun(GateSite &site, const Scenario &scenario);
};

void TestGateFaults::addScenarios(const QVector<int> &numbers)
{
    QTest::addColumn<int>("number");
    for (const int number : numbers)
        QTest::newRow(kScenarios[number].name) << number;
}

/// Whole, the old or the new one.
void TestGateFaults::comparePublished(const GateSite &site, const Scenario &scenario)
{
    if (!site.isPublished()) {
        QVERIFY(!scenario.isUnread);
        return;
    }
    const QByteArray published = site.published();
    const bool isOld = scenario.isUnread && published == lastFile();
    QVERIFY(isOld || (!scenario.isRefused && published == newFile(scenario)));
}

void TestGateFaults::compareStatus(const GateSite &site, const Scenario &scenario)
{
    if (!scenario.hasBaseline && !QFile::exists(site.inState("status.json")))
        return;
    QString error;
    const auto status = GateStatus::read(site.inState("status.json"), error);
    QVERIFY2(status, qPrintable(error));
    QVERIFY(status->time());
}

/// Nothing is left of the run with the fault, and the new file is published, without --accept if
/// that run had already admitted it.
void TestGateFaults::compareNextRun(GateSite &site, const Scenario &scenario)
{
    const ToolRun run = runTool(arguments(site));
    COMPARE_EXIT(run, scenario.isRefused ? ExitStatus::GuardTripped : ExitStatus::Fine);
    QStringList names{"admitted.data", "lock", "rejects.txt", "status.json"};
    names << site.copies();
    names.sort();
    QCOMPARE(site.names(site.state()), names);
    QCOMPARE(site.names(QFileInfo(site.target()).path()), QStringList("ron.data"));
    QCOMPARE(site.copies().size(), 1);
    const QByteArray expected = scenario.isRefused ? lastFile() : newFile(scenario);
    QCOMPARE(site.published(), expected);
    QCOMPARE(contentOf(site.inState("admitted.data")), expected);
    QCOMPARE(contentOf(site.inState(site.copies()[0])), expected);
    QCOMPARE(site.status()["result"].toString(),
             QString(scenario.isRefused ? "refused" : "admitted"));
}

void TestGateFaults::aGateThatIsKilledLeavesAWholeFile()
{
    QFETCH(int, number);
    const Scenario &scenario = kScenarios[number];
    // What reading leaves behind is what the call before it has left.
    const QStringList calls = callsOf(scenario, "changes");
    for (int call = 1; call <= calls.size(); ++call) {
        const auto site = prepare(scenario);
        ProgramRun run;
        runFaulty(run, *site, {"changes", call});
        COMPARE_STATUS(run, kKilled);
        comparePublished(*site, scenario);
        compareStatus(*site, scenario);
        compareNextRun(*site, scenario);
        if (QTest::currentTestFailed())
            QFAIL(qPrintable("killed in: " + calls[call - 1]));
    }
    QVERIFY(calls.size() > 10);
}

void TestGateFaults::failAtEveryCall(const Scenario &scenario, Fault fault)
{
    const QStringList calls = callsOf(scenario, fault.counted);
    for (const QString &call : calls) {
        ++fault.call;
        const auto site = prepare(scenario);
        ProgramRun run;
        runFaulty(run, *site, fault);
        comparePublished(*site, scenario);
        compareStatus(*site, scenario);
        compareError(run, *site, scenario, call);
        compareNextRun(*site, scenario);
        if (QTest::currentTestFailed())
            QFAIL(qPrintable("failed: " + call));
    }
    QVERIFY(calls.size() > 10);
}

/// Checks that the program reported its failure, and whether it published nevertheless.
void TestGateFaults::compareError(const ProgramRun &run, const GateSite &site,
                                  const Scenario &scenario, const QString &call)
{
    // A call that only looks for the end of a file that was read may fail without a loss.
    if (call.startsWith("read ") && run.status() == (scenario.isRefused ? 5 : 0)) {
        QVERIFY(scenario.isRefused || site.published() == newFile(scenario));
        return;
    }
    COMPARE_STATUS(run, 2);
    QVERIFY2(run.errors().startsWith("mirovahrctl: gate: "), run.report().constData());
    if (scenario.isUnchanged)
        return;
    const bool isNew = site.isPublished() && site.published() == newFile(scenario);
    QCOMPARE(run.errors().section(". ", -1).trimmed(),
             QString(isNew ? "The file was published nevertheless." : "Nothing was published."));
}

void TestGateFaults::aFailedCallIsReported()
{
    QFETCH(int, number);
    failAtEveryCall(kScenarios[number], {"all", 0, EIO, false});
}

void TestGateFaults::aFullDiskIsReported()
{
    QFETCH(int, number);
    failAtEveryCall(kScenarios[number], {"space", 0, ENOSPC, true});
}

void TestGateFaults::theFileIsOnTheDiskBeforeItIsSeen()
{
    QStringList calls = callsOf(kScenarios[2], "changes");
    calls.removeAll("fchown plugin/.ron.data.gate-new"); // by root only
    calls.removeAll("fchown state/.admitted.data.gate-new");
    const QStringList published = calls.filter(" plugin");
    QVERIFY(published.count("write plugin/.ron.data.gate-new") > 1);
    QStringList steps = published;
    steps.removeDuplicates();
    QCOMPARE(steps,
             QStringList({"create plugin/.ron.data.gate-new", "write plugin/.ron.data.gate-new",
                          "fchmod plugin/.ron.data.gate-new", "fsync plugin/.ron.data.gate-new",
                          "rename plugin/ron.data", "fsync plugin"}));
    QCOMPARE(published.size() - published.count("write plugin/.ron.data.gate-new"),
             steps.size() - 1);
    // The baseline is on the disk before, and the status is written afterwards.
    const int renamed = calls.indexOf("rename plugin/ron.data");
    const int last = calls.indexOf("rename state/admitted.data");
    QVERIFY(calls.indexOf("fsync state/.admitted.data.gate-new") < last);
    QCOMPARE(calls.value(last + 1), QString("fsync state"));
    QCOMPARE(renamed, last + 2);
    QVERIFY(calls.indexOf("create state/.status.json.gate-new") > renamed);
}

void TestGateFaults::aFileThatIsWrittenMeanwhileIsRefused()
{
    const auto site = prepare(kScenarios[1]);
    ProgramRun run;
    run.setVariable("FAULTY_APPEND", site->hrFile());
    runFaulty(run, *site, {});
    COMPARE_STATUS(run, 5);
    QVERIFY2(run.output().contains("error: The file changed while it was being read. "
                                   "[changed-meanwhile]\n"),
             run.report().constData());
    QVERIFY(!site->isPublished());
    QCOMPARE(site->status()["reasons"].toVariant().toStringList(),
             QStringList("The file changed while it was being read"));
    QCOMPARE(contentOf(site->inState("admitted.data")), lastFile());
}

QTEST_GUILESS_MAIN(TestGateFaults)
#include "tst_gatefaults.moc"
