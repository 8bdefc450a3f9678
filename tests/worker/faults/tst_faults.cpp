#include "tests/support/logcapture.h"
#include "tests/support/patience.h"
#include "tests/support/programrun.h"
#include "tests/worker/faults/expectations.h"
#include "tests/worker/faults/faultcycle.h"
#include "tests/worker/faults/runs.h"
#include "tests/worker/faults/servingprocess.h"
#include "tests/worker/faults/servingworker.h"
#include "tests/worker/support/middayzone.h"

#include <QScopeGuard>
#include <QSet>
#include <QSqlQuery>
#include <QTest>

#include <chrono>
#include <csignal>
#include <functional>
#include <future>

namespace {

using Way = Disturbance::Way;

constexpr int kLockWaitTimeout = 1205;
constexpr int kDeadlock = 1213;
constexpr char kDeadlockText[] =
    "Deadlock found when trying to get lock; try restarting transaction";

constexpr char kStillConnected[] = "A client of the previous run is still connected.";

Disturbance refusal(int number, const char *sqlState, const char *text)
{
    Disturbance disturbance;
    disturbance.way = Way::Refuse;
    disturbance.errorNumber = number;
    disturbance.sqlState = sqlState;
    disturbance.errorText = text;
    return disturbance;
}

Disturbance of(Way way)
{
    Disturbance disturbance;
    disturbance.way = way;
    return disturbance;
}

/// Locks a row of admins_people, or the gap where it would be.
QString selectForUpdate(const QStringList &key)
{
    return "SELECT 1 FROM admins_people WHERE aid = " + key.at(0) + " AND uid = " + key.at(1)
        + " FOR UPDATE";
}

/// Waits for it.
bool isReady(const std::future<void> &future)
{
    return future.wait_for(std::chrono::milliseconds(kPatienceMs)) == std::future_status::ready;
}

} // namespace

/// Each row injects one fault into one command of a synchronisation. The worker must log the
/// failure, go on and tick; then, with the cause removed, one forced synchronisation of the same
/// export must bring the database to the state of an undisturbed run, except for differences().
///
/// Unless the environment variable MIROVAHR_FAULTS is "all", some of the faults are injected into
/// some of the commands only.
class TestFaults : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void cleanupTestCase();

    void aServerErrorIsSurvived_data() { addRows(m_commands, 1, answered); }
    void aServerErrorIsSurvived();
    void aLossBeforeTheCommandIsSurvived_data() { addRows(m_commands, 9, any); }
    void aLossBeforeTheCommandIsSurvived();
    void aLossBeforeTheAnswerIsSurvived_data() { addRows(m_commands, 9, any); }
    void aLossBeforeTheAnswerIsSurvived();
    void aServerThatStopsAndComesBackIsSurvived_data() { addRows(m_commands, 37, any); }
    void aServerThatStopsAndComesBackIsSurvived();
    void aServerThatFallsSilentIsSurvived_data() { addRows(m_commands, 37, any); }
    void aServerThatFallsSilentIsSurvived();
    void aWorkerIsUnloadedWhileItsServerIsSilent();
    void aLockTimeoutIsSurvived_data() { addRows(m_commands, 9, needsTables); }
    void aLockTimeoutIsSurvived();
    void aDeadlockIsSurvived_data() { addRows(m_commands, 13, needsTables); }
    void aDeadlockIsSurvived();
    void aDeadlockWithAnotherConnectionIsSurvived_data() { addRows(m_commands, 1, setsSupervisor); }
    void aDeadlockWithAnotherConnectionIsSurvived();
    void anotherProcessTakesOverFromOneThatWasKilled_data() { addRows(m_processCommands, 16, any); }
    void anotherProcessTakesOverFromOneThatWasKilled();

    void everyDifferenceThatIsAllowedOccurs();

private:
    using Condition = bool (*)(const MySqlProxy::Command &);

    /// What happened in a disturbed cycle and in the repetition that followed.
    struct Run {
        Commands commands; ///< until the repetition
        QStringList problems; ///< until the repetition
        QStringList problemsOfRepetition;
        QStringList differences; ///< from the undisturbed state, after the repetition
    };

    static bool any(const MySqlProxy::Command &) { return true; }
    static bool answered(const MySqlProxy::Command &command) { return command.hasAnswer; }
    static bool needsTables(const MySqlProxy::Command &command);
    static bool setsSupervisor(const MySqlProxy::Command &command);

    void addRows(const Commands &commands, int quickStep, Condition condition);
    void learnCycle();
    void learnCycleOfProcess();
    Commands plainCommands() const;
    void startProcess(ProgramRun &process);

    Run disturb(const Disturbance &disturbance, const std::function<void()> &whileHeld = {},
                const std::function<void(const LogCapture &)> &afterwards = {});
    bool passFault(const LogCapture &log, const std::function<void()> &whileHeld,
                   const std::function<void(const LogCapture &)> &afterwards);
    bool repeat(const LogCapture &log);
    QStringList keyOfHeldInsert() const;
    void lockAgainstHeldCommand();
    void meetInDeadlock(const QStringList &key, std::promise<void> &kept);

    void checkLogOfRefusal(const Run &run, const QString &errorText) const;
    void checkLogOfLoss(const Run &run) const;
    void checkOwnLine(const Run &run, const QString &errorText) const;
    void checkState(const Run &run, const Commands &undisturbed, const QStringList &more = {});

    FaultCycle m_cycle;
    Commands m_commands; ///< of the undisturbed cycle
    Commands m_processCommands; ///< of the undisturbed cycle in a new process
    DatabaseState m_state; ///< after it
    QSet<int> m_differencesSeen;
    QMap<QString, int> m_tried;
    QMap<QString, int> m_survived;
};

/// Preparing a statement takes no lock.
bool TestFaults::needsTables(const MySqlProxy::Command &command)
{
    static const QRegularExpression begin("^(SELECT|INSERT|UPDATE|Update|CALL|EXECUTE) ");
    return command.text.contains(begin);
}

bool TestFaults::setsSupervisor(const MySqlProxy::Command &command)
{
    return command.text.startsWith("INSERT INTO admins_people (aid, uid, request) ");
}

void TestFaults::addRows(const Commands &commands, int quickStep, Condition condition)
{
    const bool all = qgetenv("MIROVAHR_FAULTS") == "all";
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("command");
    int number = 0;
    int fitting = 0;
    for (const MySqlProxy::Command &command : commands) {
        ++number;
        if (condition(command) && (fitting++ % quickStep == 0 || all)) {
            QTest::addRow("%d %s", number, qPrintable(command.text.left(70)))
                << number << command.text;
        }
    }
}

Commands TestFaults::plainCommands() const
{
    Commands commands = m_cycle.proxy().commands();
    for (MySqlProxy::Command &command : commands)
        command.text = m_cycle.plain(command.text);
    return commands;
}

// The undisturbed cycle ---------------------------------------------------------------------------

void TestFaults::initTestCase()
{
    QVERIFY2(m_cycle.start(), qPrintable(m_cycle.errorString()));
    // The first run looks up the uids, which the program then knows.
    learnCycle();
    learnCycle();
    learnCycleOfProcess();
}

void TestFaults::learnCycle()
{
    const LogCapture log;
    QVERIFY2(m_cycle.begin(), kStillConnected);
    m_cycle.proxy().restartCount();
    const ServingWorker worker(m_cycle.serverConnection(), m_cycle.exportPath());
    // The proxy has the end of the first tick before it has the second tick.
    QVERIFY(log.waitForText(kTick + '3'));
    m_commands = firstTick(plainCommands());
    m_state = m_cycle.state();
    QVERIFY(repeat(log));
    QCOMPARE(problems(log.lines()), QStringList());
    // A repetition alone changes nothing.
    QCOMPARE(StateChanges::between(m_state, m_cycle.state()), QStringList());
}

void TestFaults::learnCycleOfProcess()
{
    QVERIFY2(m_cycle.begin(), kStillConnected);
    m_cycle.proxy().restartCount();
    ProgramRun process;
    startProcess(process);
    QVERIFY2(process.waitForText(kTick + '3'), process.report().constData());
    m_processCommands = firstTick(plainCommands());
}

void TestFaults::startProcess(ProgramRun &process)
{
    process.start(QCoreApplication::applicationFilePath(),
                  ServingProcess::arguments(m_cycle.serverConnection(),
                                            m_cycle.db().server().passwordFile(),
                                            m_cycle.exportPath()));
}

// Counting ----------------------------------------------------------------------------------------

void TestFaults::init()
{
    if (QTest::currentDataTag() != nullptr)
        ++m_tried[QTest::currentTestFunction()];
}

void TestFaults::cleanup()
{
    if (QTest::currentDataTag() != nullptr && !QTest::currentTestFailed())
        ++m_survived[QTest::currentTestFunction()];
}

void TestFaults::cleanupTestCase()
{
    for (auto it = m_tried.cbegin(); it != m_tried.cend(); ++it) {
        qInfo("%s: %d tried, %d survived", qPrintable(it.key()), it.value(),
              m_survived.value(it.key()));
    }
}

// A disturbed cycle -------------------------------------------------------------------------------

/// Calls \a whileHeld while the proxy holds the command of the row, and \a afterwards when the
/// command is over and, if it was forwarded, the proxy holds the connection.
TestFaults::Run TestFaults::disturb(const Disturbance &disturbance,
                                    const std::function<void()> &whileHeld,
                                    const std::function<void(const LogCapture &)> &afterwards)
{
    Run run;
    const auto go = [&] {
        QFETCH(int, number);
        const LogCapture log;
        QVERIFY2(m_cycle.begin(), kStillConnected);
        m_cycle.proxy().disturb(number, disturbance);
        const ServingWorker worker(disturbance.way == Way::Hush ? m_cycle.impatientConnection()
                                                                : m_cycle.serverConnection(),
                                   m_cycle.exportPath());
        QVERIFY(passFault(log, whileHeld, afterwards));
        run.commands = plainCommands();
        run.problems = problems(log.lines());
        QVERIFY(repeat(log));
        run.problemsOfRepetition = problems(log.lines()).mid(run.problems.size());
    };
    go();
    for (QString &line : run.problems)
        line = m_cycle.plain(line);
    run.differences = StateChanges::between(m_state, m_cycle.state());
    return run;
}

bool TestFaults::passFault(const LogCapture &log, const std::function<void()> &whileHeld,
                           const std::function<void(const LogCapture &)> &afterwards)
{
    MySqlProxy &proxy = m_cycle.proxy();
    const auto freeWorker = qScopeGuard([&proxy] {
        proxy.release();
        proxy.resume();
    });
    if (!proxy.waitForArrival())
        return false;
    if (whileHeld)
        whileHeld();
    proxy.release();
    if (!proxy.waitForEnd())
        return false;
    if (afterwards)
        afterwards(log);
    proxy.resume();
    // A flag that could not be reset forces the second tick, too.
    return log.waitForText("END synchronization #1 ") && waitForNextTick(log)
        && waitForNextTick(log);
}

/// Forces a synchronisation of the same export and waits until it is over.
bool TestFaults::repeat(const LogCapture &log)
{
    const QString begun = "D MHRWorker::doSync() - stack count: 4";
    const int before = log.count(begun);
    m_cycle.repeat();
    if (!log.waitForCount(begun, before + 1))
        return false;
    const QStringList lines = log.lines();
    const int number =
        lastNumber(lines.mid(0, lines.lastIndexOf(begun)), "BEGIN synchronization #");
    return log.waitForText(QString("END synchronization #%1 ").arg(number)) && waitForNextTick(log);
}

// Checks ------------------------------------------------------------------------------------------

/// One command failed: the log reports nothing else.
void TestFaults::checkLogOfRefusal(const Run &run, const QString &errorText) const
{
    QFETCH(QString, command);
    const Reaction &reaction = reactionTo(command);
    for (const QString &line : run.problems)
        QVERIFY2(reaction.expects(line), qPrintable(line));
    checkOwnLine(run, errorText);
}

/// Without its connection, every later command of the cycle may fail.
void TestFaults::checkLogOfLoss(const Run &run) const
{
    for (const QString &line : run.problems) {
        const bool expected =
            std::any_of(reactions().begin(), reactions().end(),
                        [&line](const Reaction &reaction) { return reaction.expects(line); });
        QVERIFY2(expected, qPrintable(line));
    }
    checkOwnLine(run, {});
}

void TestFaults::checkOwnLine(const Run &run, const QString &errorText) const
{
    QFETCH(QString, command);
    const QString own = reactionTo(command).own;
    if (own.isEmpty())
        return;
    const QStringList lines = run.problems.filter(QRegularExpression(
        QRegularExpression::anchoredPattern(QRegularExpression::escape(own) + "(.|\n)*")));
    QVERIFY2(!lines.isEmpty(), qPrintable(run.problems.join('\n')));
    // A warning does not contain the server's error.
    if (own.startsWith('C'))
        QVERIFY2(lines.first().contains(errorText), qPrintable(lines.first()));
}

void TestFaults::checkState(const Run &run, const Commands &undisturbed, const QStringList &more)
{
    QFETCH(int, number);
    QTEST(run.commands.value(number - 1).text, "command");
    QCOMPARE(run.problemsOfRepetition, QStringList());
    const QStringList notCarriedOut =
        without(carriedOut(undisturbed), carriedOut(run.commands)) + more;
    for (const QString &line : run.differences) {
        const auto explanation = std::find_if(
            differences().begin(), differences().end(),
            [&](const Difference &difference) { return difference.explains(line, notCarriedOut); });
        QVERIFY2(explanation != differences().end(), qPrintable(line));
        m_differencesSeen += int(explanation - differences().begin());
    }
    // The supervisor's transaction is all or nothing.
    QCOMPARE(run.differences.contains("admins_people aid=1 uid=4: request 0 -> 1"),
             run.differences.contains("admins_people - aid=2 uid=4 request=1"));
}

// Faults of the server and of the connection ------------------------------------------------------

void TestFaults::aServerErrorIsSurvived()
{
    QFETCH(QString, command);
    Disturbance disturbance = refusal(1030, "HY000", "Got error 28 from storage engine");
    // A server that cannot commit rolls back.
    disturbance.rollsBack = command == "COMMIT";
    const Run run = disturb(disturbance);
    checkLogOfRefusal(run, disturbance.errorText);
    checkState(run, m_commands);
}

void TestFaults::aLossBeforeTheCommandIsSurvived()
{
    const Run run = disturb(of(Way::CutBefore));
    checkLogOfLoss(run);
    checkState(run, m_commands);
}

void TestFaults::aLossBeforeTheAnswerIsSurvived()
{
    const Run run = disturb(of(Way::CutAfter));
    checkLogOfLoss(run);
    checkState(run, m_commands);
}

void TestFaults::aServerThatStopsAndComesBackIsSurvived()
{
    QFETCH(int, number);
    const auto stop = [&] {
        m_cycle.proxy().disappear();
        if (number % 2 == 0)
            m_cycle.db().stopServer();
        else
            m_cycle.db().killServer();
    };
    const auto comeBack = [&](const LogCapture &log) {
        QVERIFY(log.waitForText("checkSync() - database not open!"));
        m_cycle.db().startServer();
        m_cycle.proxy().appear();
    };
    const Run run = disturb(of(Way::CutBefore), stop, comeBack);
    checkLogOfLoss(run);
    checkState(run, m_commands);
}

void TestFaults::aServerThatFallsSilentIsSurvived()
{
    const Run run = disturb(of(Way::Hush));
    checkLogOfLoss(run);
    checkState(run, m_commands);
}

void TestFaults::aWorkerIsUnloadedWhileItsServerIsSilent()
{
    const auto loading = std::find_if(m_commands.cbegin(), m_commands.cend(),
                                      [](const MySqlProxy::Command &command) {
                                          return command.text.startsWith("SELECT p.pid, ");
                                      });
    QVERIFY(loading != m_commands.cend());
    const LogCapture log;
    QVERIFY2(m_cycle.begin(), kStillConnected);
    m_cycle.proxy().disturb(int(loading - m_commands.cbegin()) + 1, of(Way::Hush));
    {
        const ServingWorker worker(m_cycle.impatientConnection(), m_cycle.exportPath());
        QVERIFY(m_cycle.proxy().waitForArrival());
        m_cycle.proxy().release();
        QVERIFY(m_cycle.proxy().waitForEnd());
    }
    // The worker is gone, and has ended its tick before.
    const QStringList lines = log.lines();
    QCOMPARE(lines.filter("MHRWorker::dbLoadPeople() - SQL ERROR [2013]").size(), 1);
    QCOMPARE(lines.filter("END synchronization #1 ").size(), 1);
}

// Locks -------------------------------------------------------------------------------------------

/// Administrator and person of the row that the command at the proxy wants to insert.
QStringList TestFaults::keyOfHeldInsert() const
{
    static const QRegularExpression key("VALUES\\((\\d+), (\\d+), 1\\)");
    return key.match(m_cycle.proxy().commands().last().text).capturedTexts().mid(1);
}

/// Locks what the held command needs, in the administrator's connection. In the supervisor's
/// transaction, which holds the table by then, that is the gap for the new row.
void TestFaults::lockAgainstHeldCommand()
{
    const MySqlProxy::Command held = m_cycle.proxy().commands().last();
    if (setsSupervisor(held)) {
        const QStringList key = keyOfHeldInsert();
        m_cycle.db().run("BEGIN");
        m_cycle.db().run("SELECT 1 FROM admins_people WHERE aid = " + key.at(0)
                         + " AND uid = " + key.at(1) + " FOR UPDATE");
        return;
    }
    QStringList locks;
    const TableRows tables = m_cycle.db().rows("SHOW TABLES");
    for (const QStringList &table : tables)
        locks += '`' + table.first() + "` WRITE";
    m_cycle.db().run("LOCK TABLES " + locks.join(", "));
}

void TestFaults::aLockTimeoutIsSurvived()
{
    QFETCH(int, number);
    // New connections do not wait for locks.
    m_cycle.db().run("SET GLOBAL lock_wait_timeout = 0, GLOBAL innodb_lock_wait_timeout = 0");
    const auto unlock = [this](const LogCapture &) {
        m_cycle.db().run("ROLLBACK");
        m_cycle.db().run("UNLOCK TABLES");
        m_cycle.db().run("SET GLOBAL lock_wait_timeout = 60, GLOBAL innodb_lock_wait_timeout = 50");
    };
    const Run run = disturb(
        of(Way::Forward), [this] { lockAgainstHeldCommand(); }, unlock);
    QCOMPARE(run.commands.value(number - 1).error, kLockWaitTimeout);
    checkLogOfRefusal(run, "Lock wait timeout exceeded; try restarting transaction");
    checkState(run, m_commands);
}

void TestFaults::aDeadlockIsSurvived()
{
    Disturbance disturbance = refusal(kDeadlock, "40001", kDeadlockText);
    disturbance.rollsBack = true;
    const Run run = disturb(disturbance);
    checkLogOfRefusal(run, disturbance.errorText);
    checkState(run, m_commands);
}

/// Locks the row of this key, fulfils \a kept, and inserts another row of the same person. The
/// transaction has changed many rows, so that the server chooses the other one as the victim.
void TestFaults::meetInDeadlock(const QStringList &key, std::promise<void> &kept)
{
    const QString name = "other";
    {
        QSqlDatabase database =
            m_cycle.db().server().addConnection(name, PrivateMariaDb::Account::Administrator);
        database.setDatabaseName(m_cycle.db().server().databaseName());
        database.open();
        QSqlQuery query(database);
        query.exec("BEGIN");
        query.exec("INSERT INTO beginning.weight SELECT seq FROM seq_1_to_1000");
        query.exec(selectForUpdate(key));
        kept.set_value();
        query.exec("INSERT INTO admins_people (aid, uid) VALUES (9, " + key.at(1) + ")");
        query.exec("ROLLBACK");
    }
    QSqlDatabase::removeDatabase(name);
}

void TestFaults::aDeadlockWithAnotherConnectionIsSurvived()
{
    QFETCH(int, number);
    std::promise<void> kept;
    std::future<void> other;
    const auto begin = [&] {
        other = std::async(std::launch::async,
                           [&, key = keyOfHeldInsert()] { meetInDeadlock(key, kept); });
        QVERIFY(isReady(kept.get_future()));
    };
    const auto end = [&](const LogCapture &) {
        QVERIFY(isReady(other));
    };
    const Run run = disturb(of(Way::Forward), begin, end);
    QCOMPARE(run.commands.value(number - 1).error, kDeadlock);
    checkLogOfRefusal(run, kDeadlockText);
    checkState(run, m_commands);
}

// Death of the process ----------------------------------------------------------------------------

void TestFaults::anotherProcessTakesOverFromOneThatWasKilled()
{
    QFETCH(int, number);
    Run run;
    QVERIFY2(m_cycle.begin(), kStillConnected);
    m_cycle.proxy().disturb(number, of(Way::CutBefore));
    ProgramRun killed;
    startProcess(killed);
    QVERIFY2(m_cycle.proxy().waitForArrival(), killed.report().constData());
    killed.sendSignal(SIGKILL);
    QVERIFY(killed.waitForEnd());
    m_cycle.proxy().release();
    QVERIFY(m_cycle.proxy().waitForEnd());
    run.commands = plainCommands();

    m_cycle.repeat();
    ProgramRun next;
    startProcess(next);
    QVERIFY2(next.waitForText(kTick + '2'), next.report().constData());
    run.problemsOfRepetition = problems(next.output().split('\n'));
    run.differences = StateChanges::between(m_state, m_cycle.state());
    checkState(run, m_processCommands, {newProcess()});
}

void TestFaults::everyDifferenceThatIsAllowedOccurs()
{
    for (int i = 0; i < differences().size(); ++i)
        QVERIFY2(m_differencesSeen.contains(i), qPrintable(differences().at(i).line));
}

int main(int argc, char **argv)
{
    if (ServingProcess::isMeant(argc, argv))
        return ServingProcess::run(argc, argv);
    settleProgram();
    const QCoreApplication application(argc, argv);
    TestFaults test;
    QTEST_SET_MAIN_SOURCE_PATH
    return QTest::qExec(&test, argc, argv);
}

#include "tst_faults.moc"
