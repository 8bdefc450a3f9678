#include "db/tepdbcontract.h"
#include "privatedb/hostaccount.h"
#include "tests/cluster/clustercycle.h"
#include "tests/cluster/otherwriters.h"
#include "tests/mirovahrctl/drift/driftedsite.h"
#include "tests/mirovahrctl/drift/driftlosses.h"
#include "tests/worker/faults/expectations.h"
#include "tests/worker/support/middayzone.h"

#include <QFile>
#include <QTest>

#include <algorithm>

namespace {

using Remedy = OtherWriter::Remedy;
using Run = ClusterCycle::Run;

constexpr int kDeadlock = 1213;
constexpr char kDeadlockText[] =
    "Deadlock found when trying to get lock; try restarting transaction";

/// Neither changes nor ends what the database holds.
bool isReading(const QString &command)
{
    static const QRegularExpression reading(
        "^(CONNECT|USE|SET NAMES|QUIT|SELECT|PREPARE|RESET|CLOSE|BEGIN WORK)\\b");
    return command.contains(reading);
}

/// The statement without its values: equal for all that come from the same text in the plugin.
QString kindOf(const QString &statement)
{
    static const QRegularExpression value("'[^']*'|<\\w+>|-?\\b\\d+\\b|\\bNULL\\b");
    static const QRegularExpression list("\\?(,\\s*\\?)+");
    static const QRegularExpression rows("\\(\\?\\)(,\\s*\\(\\?\\))+");
    QString kind = statement.section(" << ", 0, 0);
    return kind.replace(value, "?").replace(list, "?").replace(rows, "(?)");
}

/// The statement, or procedure, writes a column of this table.
bool writes(const QString &statement, const QString &table, const QString &column)
{
    if (statement.startsWith("CALL "))
        return false;
    const QRegularExpression target(
        QStringLiteral("^(EXECUTE )?(INSERT INTO|UPDATE) `?%1`?[\\s(]").arg(table),
        QRegularExpression::CaseInsensitiveOption);
    return statement.contains(target)
        && statement.contains(QRegularExpression("\\b" + column + "\\b"));
}

bool fits(const QString &line, const QStringList &patterns)
{
    return std::any_of(patterns.begin(), patterns.end(), [&line](const QString &pattern) {
        return wildcard(pattern).match(line).hasMatch();
    });
}

/// What is to be done about a loss.
Remedy remedyOf(const Run &run)
{
    if (run.lost.isEmpty())
        return Remedy::None;
    if (run.differences.isEmpty())
        return Remedy::Force;
    return DriftLosses::rulesOf(run.differences).isEmpty() ? Remedy::Nothing : Remedy::Drift;
}

} // namespace

/// Somebody else writes the rows of the plugin's statement through another node, and is first: the
/// plugin's node takes the statement back, and answers with error 1213 unless it repeats the
/// statement by itself.
class TestClusterWriters : public QObject {
    Q_OBJECT

public:
    static void initMain() { settleProgram(); }

private Q_SLOTS:
    void initTestCase();
    void init();

    void everyStatementThatWritesHasAnotherWriter();
    void theStatementsWriteEveryColumnThatThePluginMayWrite();
    void aStatementThatLosesIsRepeatedByTheServer_data();
    void aStatementThatLosesIsRepeatedByTheServer();
    void preparedStatementsCallsAndTransactionsAreNotRepeated_data();
    void preparedStatementsCallsAndTransactionsAreNotRepeated();
    void withoutRetriesWhatAStatementWouldWriteIsLost_data();
    void withoutRetriesWhatAStatementWouldWriteIsLost();
    void aCommitThatLosesIsNotLogged();
    void theSameWriteByAnotherNodeIsLoggedAsAFailure_data();
    void theSameWriteByAnotherNodeIsLoggedAsAFailure();

private:
    static void addRows(const std::function<bool(const OtherWriter &)> &isMeant);
    static const OtherWriter &otherWriter();
    void setRetries(int retries);
    QStringList changesOf(const OtherWriter &writer);
    void change(const QStringList &statements);
    Run conflict(const OtherWriter &writer);
    void checkLoss(const OtherWriter &writer, const Run &run);
    void checkLog(const QString &statement, const Run &run);
    void checkDrift(const Run &run);
    void checkDigest(QString line);
    void prepareDrift();
    QStringList found();

    ClusterCycle m_cycle;
    DriftedSite m_site{m_cycle.db()};
    QStringList m_found; ///< by drift after an undisturbed cycle: the sample's own
};

void TestClusterWriters::initTestCase()
{
    m_cycle.start();
    prepareDrift();
    m_found = found();
}

void TestClusterWriters::init()
{
    m_cycle.restore();
    setRetries(5);
}

/// The tool connects to the socket of node 3, which has no password file yet.
void TestClusterWriters::prepareDrift()
{
    QString error;
    QVERIFY2(HostAccount::writePasswordFile(m_cycle.db().server().passwordFile(), error),
             qPrintable(error));
    m_cycle.db().run("RENAME USER mirovahrctl@127.0.0.1 TO mirovahrctl@localhost");
    m_site.unlockAccount();
    m_site.configure("[MES]\n22=\"rodičovská dovolenka\"\n");
}

/// The findings of drift with the export of the cycle.
QStringList TestClusterWriters::found()
{
    m_cycle.cycle().repeat();
    m_cycle.db().run("UPDATE vars SET value = '0' WHERE name = 'YAV.MHRWorker.forceSync'");
    QStringList found = DriftedSite::found(m_site.drift(m_cycle.cycle().exportPath()));
    for (QString &line : found)
        line = m_cycle.cycle().plain(line);
    return found;
}

void TestClusterWriters::everyStatementThatWritesHasAnotherWriter()
{
    QSet<QString> kinds;
    for (const OtherWriter &writer : otherWriters()) {
        const int number = m_cycle.numberOf(writer.statement);
        QVERIFY2(number > 0, qPrintable(writer.statement));
        kinds += kindOf(m_cycle.commands().at(number - 1).text);
    }
    kinds += "COMMIT"; // aCommitThatLosesIsNotLogged()
    for (const MySqlProxy::Command &command : m_cycle.commands())
        QVERIFY2(isReading(command.text) || kinds.contains(kindOf(command.text)),
                 qPrintable(command.text));
}

/// The account has no further rights, so the plugin has no statement that writes anything else.
void TestClusterWriters::theStatementsWriteEveryColumnThatThePluginMayWrite()
{
    using namespace TepDbContract;
    for (const Column &column : kColumns) {
        if ((column.rights & (I | U)) == 0)
            continue;
        const auto isWriter = [&column](const MySqlProxy::Command &command) {
            return writes(command.text, column.table, column.name);
        };
        QVERIFY2(std::any_of(m_cycle.commands().begin(), m_cycle.commands().end(), isWriter),
                 qPrintable(column.fullName()));
    }
}

void TestClusterWriters::addRows(const std::function<bool(const OtherWriter &)> &isMeant)
{
    QTest::addColumn<int>("index");
    for (int index = 0; index < otherWriters().size(); ++index) {
        if (isMeant(otherWriters().at(index)))
            QTest::newRow(otherWriters().at(index).name) << index;
    }
}

/// Of the row.
const OtherWriter &TestClusterWriters::otherWriter()
{
    QFETCH(int, index);
    return otherWriters().at(index);
}

void TestClusterWriters::setRetries(int retries)
{
    TestDatabase node;
    QVERIFY(node.attach(m_cycle.pluginsNode().server()));
    node.run(QStringLiteral("SET GLOBAL wsrep_retry_autocommit = %1").arg(retries));
}

QStringList TestClusterWriters::changesOf(const OtherWriter &writer)
{
    const QString pid = m_cycle.cycle().newPid();
    const QString uid = m_cycle.db().value("SELECT uid FROM people WHERE pid = " + pid).toString();
    QStringList changes = writer.changes;
    for (QString &statement : changes)
        statement.replace("<pid>", pid).replace("<uid>", uid);
    return changes;
}

/// In one transaction, through node 3.
void TestClusterWriters::change(const QStringList &statements)
{
    m_cycle.db().run("BEGIN");
    for (const QString &statement : statements)
        m_cycle.db().run(statement);
    m_cycle.db().run("COMMIT");
}

Run TestClusterWriters::conflict(const OtherWriter &writer)
{
    return m_cycle.conflict(m_cycle.numberOf(writer.statement), [&] { change(changesOf(writer)); });
}

void TestClusterWriters::aStatementThatLosesIsRepeatedByTheServer_data()
{
    addRows([](const OtherWriter &writer) { return writer.isRepeated; });
}

void TestClusterWriters::aStatementThatLosesIsRepeatedByTheServer()
{
    const Run run = conflict(otherWriter());
    QCOMPARE(run.problems.join('\n'), QString());
    QCOMPARE(run.lost.join('\n'), QString());
    QCOMPARE(run.differences.join('\n'), QString());
    QCOMPARE(m_cycle.cluster().inequalities().join('\n'), QString());
}

void TestClusterWriters::preparedStatementsCallsAndTransactionsAreNotRepeated_data()
{
    addRows([](const OtherWriter &writer) { return !writer.isRepeated; });
}

void TestClusterWriters::preparedStatementsCallsAndTransactionsAreNotRepeated()
{
    checkLoss(otherWriter(), conflict(otherWriter()));
}

void TestClusterWriters::withoutRetriesWhatAStatementWouldWriteIsLost_data()
{
    addRows([](const OtherWriter &writer) { return writer.isRepeated; });
}

void TestClusterWriters::withoutRetriesWhatAStatementWouldWriteIsLost()
{
    setRetries(0);
    checkLoss(otherWriter(), conflict(otherWriter()));
}

void TestClusterWriters::aCommitThatLosesIsNotLogged()
{
    const OtherWriter &supervisor =
        *std::find_if(otherWriters().begin(), otherWriters().end(), [](const OtherWriter &each) {
            return QLatin1String(each.name) == "the new supervisor";
        });
    ClusterCycle::Steps steps;
    steps.whileHeld = [&] {
        change(changesOf(supervisor));
        QVERIFY(m_cycle.pluginsNode().waitUntilCaughtUp());
    };
    const int number = m_cycle.numberOf("COMMIT");
    const Run run = m_cycle.disturb(number, Disturbance::Way::Forward, steps);
    QCOMPARE(run.commands.value(number - 1).error, kDeadlock);
    QCOMPARE(run.problems.join('\n'), QString());
    QCOMPARE(run.differences, supervisor.remaining);
    m_cycle.checkDifferences(run);
    checkDrift(run);
}

void TestClusterWriters::theSameWriteByAnotherNodeIsLoggedAsAFailure_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("line");
    QTest::addColumn<QStringList>("missing");
    QTest::newRow("the payroll binding")
        << "INSERT INTO people_pam *"
        << "W MHRWorker::doSyncRecord(<number>.1 * - dbAddPersonIntoPam(<pid>, 1) FAILED!"
        << QStringList();
    QTest::newRow("a balance")
        << "INSERT INTO funds_move *, 2, 1) *"
        << "W MHRWorker::doSyncRecord() - funds_move type (type=3, valeu=*) not writed for uid 1 *"
        << QStringList();
    // What follows when the plan gets the calendar did not follow.
    QTest::newRow("the plan of groups")
        << "INSERT INTO groups_plan * VALUES(23, 5, 202503) *"
        << "W MHRWorker: can't add record '*' into [groups_plan]!"
        << QStringList{"groups_month uid=5 *: gid 23 -> 12", "atten uid=5 *: ok -1 -> 1",
                       "people uid=5: lastCalc 2025-02-28 -> *"};
}

/// The server repeats the plugin's statement, which then changes no row.
void TestClusterWriters::theSameWriteByAnotherNodeIsLoggedAsAFailure()
{
    QFETCH(QString, command);
    QFETCH(QString, line);
    QFETCH(QStringList, missing);
    const Run run = m_cycle.conflict(m_cycle.numberOf(command), [this] {
        m_cycle.db().run(m_cycle.cycle().proxy().commands().last().text);
    });
    QCOMPARE(run.problems.size(), 1);
    QVERIFY2(fits(run.problems.first(), {line}), qPrintable(run.problems.first()));
    QCOMPARE(run.differences.isEmpty(), missing.isEmpty());
    for (const QString &difference : run.differences)
        QVERIFY2(fits(difference, missing), qPrintable(difference));
    checkDigest(run.problems.first());
    checkDrift(run);
}

/// What mirovahrctl makes of the line.
void TestClusterWriters::checkDigest(QString line)
{
    const QString pid = m_cycle.cycle().newPid();
    QFile file(m_site.filePath("log"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(line.mid(2).replace("<pid>", pid).replace("<number>", pid.chopped(1)).toUtf8());
    file.close();
    const ToolRun digest = runTool({"log", "--json", file.fileName()});
    const QVector<QJsonObject> findings = digest.findingsOf("logged-warning");
    QVERIFY2(findings.size() == 1, digest.report().constData());
    const QString message = findings.first().value("message").toString();
    QVERIFY2(message.contains("somebody else wrote the same first"), qPrintable(message));
}

/// The plugin's statement failed, the log says so, and what is missing can be brought home in the
/// way that the writer names.
void TestClusterWriters::checkLoss(const OtherWriter &writer, const Run &run)
{
    const int number = m_cycle.numberOf(writer.statement);
    QCOMPARE(run.commands.value(number - 1).error, kDeadlock);
    checkLog(m_cycle.commands().at(number - 1).text, run);
    m_cycle.checkDifferences(run);
    QVERIFY2(run.differences.size() == writer.remaining.size()
                 && std::all_of(run.differences.begin(), run.differences.end(),
                                [&](const QString &line) { return fits(line, writer.remaining); }),
             qPrintable(run.differences.join('\n')));
    QVERIFY2(remedyOf(run) == writer.remedy, qPrintable(run.lost.join('\n')));
    checkDrift(run);
}

void TestClusterWriters::checkLog(const QString &statement, const Run &run)
{
    const Reaction &reaction = reactionTo(statement);
    const QString log = run.problems.join('\n');
    QVERIFY2(run.problems.value(0).startsWith(reaction.own)
                 && run.problems.value(0).contains(kDeadlockText),
             qPrintable(log));
    for (const QString &line : run.problems)
        QVERIFY2(reaction.expects(line), qPrintable(log));
}

/// drift names what the forced synchronisation left, and its statements mend it.
void TestClusterWriters::checkDrift(const Run &run)
{
    QStringList lost = found();
    for (const QString &line : qAsConst(m_found))
        lost.removeOne(line);
    QSet<QString> rules;
    for (const QString &line : qAsConst(lost))
        rules += line.section(':', 0, 0);
    QStringList sorted = rules.values();
    sorted.sort();
    QCOMPARE(sorted, DriftLosses::rulesOf(run.differences));
    QVERIFY2(m_site.mend(), qPrintable(m_cycle.db().errorString()));
    QCOMPARE(DriftLosses::visible(m_cycle.differences()).join('\n'), QString());
    QCOMPARE(m_cycle.cluster().inequalities().join('\n'), QString());
}

QTEST_GUILESS_MAIN(TestClusterWriters)

#include "tst_clusterwriters.moc"
