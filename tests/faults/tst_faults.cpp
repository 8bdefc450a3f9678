#include "tests/faults/expectations.h"
#include "tests/faults/faultcycle.h"
#include "tests/faults/servingworker.h"
#include "tests/host/programrun.h"
#include "tests/support/logcapture.h"
#include "tests/sync/synctest.h"

#include <QScopeGuard>

#include <functional>

namespace {

using Commands = QVector<MySqlProxy::Command>;
using Way = Disturbance::Way;

const QString kNotOpen = "W MHRWorker::checkSync() - database not open!";

/// Warnings and errors.
QStringList problems(const QStringList &lines)
{
    return lines.filter(QRegularExpression("^[WCF] "));
}

/// The texts of those commands that the server carried out.
QStringList carriedOut(const Commands &commands)
{
    QStringList texts;
    for (const MySqlProxy::Command &command : commands) {
        if (command.carriedOut)
            texts += command.text;
    }
    return texts;
}

/// What \a texts have and \a others lack, a text that occurs twice counted twice.
QStringList without(QStringList texts, const QStringList &others)
{
    for (const QString &text : others)
        texts.removeOne(text);
    return texts;
}

/// The number that follows the last occurrence of a text.
int lastNumber(const QStringList &lines, const QString &text)
{
    const QString line = lines.filter(text).last();
    return line.mid(line.indexOf(text) + text.size()).section(QRegularExpression("\\D"), 0, 0).toInt();
}

QString report(const QStringList &lines)
{
    return lines.join('\n');
}

} // namespace

class TestFaults : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();

    void aServerErrorIsSurvived_data() { addRows(1, true); }
    void aServerErrorIsSurvived();
    void aLossBeforeTheStatementIsSurvived_data() { addRows(1, false); }
    void aLossBeforeTheStatementIsSurvived();
    void aLossBeforeTheAnswerIsSurvived_data() { addRows(1, false); }
    void aLossBeforeTheAnswerIsSurvived();

private:
    struct Run {
        QStringList problems; ///< of the disturbed cycle
        QStringList problemsOfRepetition;
        Commands commands; ///< of the disturbed cycle
        Commands allCommands;
        DatabaseState state; ///< after the repetition
    };

    void addRows(int step, bool answeredOnly);
    bool disturb(const Disturbance &disturbance, Run &run,
                 const std::function<void()> &whileHeld = {},
                 const std::function<void()> &whileBroken = {});
    bool waitForNextTick(const LogCapture &log);
    bool repeat(const LogCapture &log);
    void check(const Run &run);
    Commands plainCommands();

    FaultCycle m_cycle;
    Commands m_commands; ///< of the undisturbed cycle
    DatabaseState m_state; ///< after it
};

Commands TestFaults::plainCommands()
{
    Commands commands = m_cycle.proxy().commands();
    for (MySqlProxy::Command &command : commands)
        command.text = m_cycle.plain(command.text);
    return commands;
}

bool TestFaults::waitForNextTick(const LogCapture &log)
{
    const QString tick = "MHRWorker::checkSync(): #";
    return log.waitForText(tick + QString::number(lastNumber(log.lines(), tick) + 1));
}

/// Forces a synchronisation of the same export and waits until it is over.
bool TestFaults::repeat(const LogCapture &log)
{
    const QString stack = "D MHRWorker::doSync() - stack count: 4";
    const int before = log.count(stack);
    m_cycle.repeat();
    if (!log.waitForCount(stack, before + 1))
        return false;
    const QStringList lines = log.lines();
    const int number = lastNumber(lines.mid(0, lines.lastIndexOf(stack)), "BEGIN synchronization #");
    return log.waitForText(QString("END synchronization #%1 ").arg(number)) && waitForNextTick(log);
}

void TestFaults::initTestCase()
{
    QVERIFY2(m_cycle.start(), qPrintable(m_cycle.errorString()));
    // The first run finds the uids, which later ones know; the second is what later ones are
    // compared with.
    for (int i = 0; i < 2; ++i) {
        const LogCapture log;
        m_cycle.begin();
        m_cycle.proxy().restartCount();
        const ServingWorker worker(m_cycle.serverConnection(), m_cycle.exportPath());
        QVERIFY(log.waitForText("END synchronization #1 "));
        QVERIFY(waitForNextTick(log));
        m_commands = plainCommands();
        m_state = m_cycle.state();
        QVERIFY(repeat(log));
        QCOMPARE(report(problems(log.lines())), QString());
        QCOMPARE(report(StateChanges::between(m_state, m_cycle.state())), QString());
    }
    int length = 1;
    while (m_commands.at(length - 1).text != "QUIT")
        ++length;
    m_commands.resize(length);
    for (const auto &command : m_commands)
        qInfo("%s", qPrintable(command.text.left(150)));
}

void TestFaults::cleanup()
{
}

void TestFaults::addRows(int step, bool answeredOnly)
{
    QTest::addColumn<int>("number");
    for (int i = 0; i < m_commands.size(); i += step) {
        const MySqlProxy::Command &command = m_commands.at(i);
        if (command.hasAnswer || !answeredOnly)
            QTest::addRow("%d %s", i + 1, qPrintable(command.text.left(60))) << i + 1;
    }
}

bool TestFaults::disturb(const Disturbance &disturbance, Run &run,
                         const std::function<void()> &whileHeld,
                         const std::function<void()> &whileBroken)
{
    QFETCH(int, number);
    MySqlProxy &proxy = m_cycle.proxy();
    const LogCapture log;
    m_cycle.begin();
    proxy.disturb(number, disturbance);
    {
        const ServingWorker worker(m_cycle.serverConnection(), m_cycle.exportPath());
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
        if (whileBroken)
            whileBroken();
        // The second tick may be forced once more, when the flag could not be taken back.
        if (!log.waitForText("END synchronization #1 ") || !waitForNextTick(log)
            || !waitForNextTick(log)) {
            return false;
        }
        run.problems = problems(log.lines());
        run.commands = plainCommands();

        if (!repeat(log))
            return false;
        run.problemsOfRepetition = problems(log.lines()).mid(run.problems.size());
    }
    run.allCommands = plainCommands();
    run.state = m_cycle.state();
    for (QString &line : run.problems)
        line = m_cycle.plain(line);
    return true;
}

void TestFaults::check(const Run &run)
{
    QFETCH(int, number);
    const QString command = m_commands.at(number - 1).text;
    const Reaction reaction = reactionTo(command);
    QStringList unexplained;
    for (const QString &line : run.problems) {
        bool known = false;
        for (const Reaction &r : reactions()) {
            if (&r == &reaction) {}
            known = known || (!r.own.isEmpty() && line.startsWith(r.own));
            for (const QString &further : r.further)
                known = known || line.startsWith(further);
        }
        if (!known)
            unexplained += line;
    }
    const QStringList lines = StateChanges::between(m_state, run.state);
    if (!lines.isEmpty() || !unexplained.isEmpty() || !run.problemsOfRepetition.isEmpty()) {
        qInfo("FAULT %d %s", number, qPrintable(command.left(100)));
        for (auto &l : run.problems) qInfo("   log  %s", qPrintable(l.left(200)));
        for (auto &l : unexplained) qInfo("   UNEXPLAINED  %s", qPrintable(l.left(200)));
        for (auto &l : run.problemsOfRepetition) qInfo("   REP  %s", qPrintable(l.left(200)));
        for (auto &l : lines) qInfo("   state  %s", qPrintable(l));
        if (lines.size()) {
        for (auto &l : without(carriedOut(m_commands), carriedOut(run.commands))) qInfo("   lost  %s", qPrintable(l.left(100)));
        for (auto &l : without(carriedOut(run.allCommands), carriedOut(m_commands))) qInfo("   extra  %s", qPrintable(l.left(100)));
        }
    }
    if (!reaction.own.isEmpty())
        QVERIFY2(!run.problems.filter(reaction.own).isEmpty(), qPrintable(report(run.problems)));
}

void TestFaults::aServerErrorIsSurvived()
{
    QFETCH(int, number);
    Disturbance disturbance;
    disturbance.way = Way::Refuse;
    disturbance.errorNumber = 1030;
    disturbance.sqlState = "HY000";
    disturbance.errorText = "Got error 28 \"No space left on device\" from storage engine";
    // A commit that fails has rolled back.
    disturbance.rollsBack = m_commands.at(number - 1).text == "COMMIT";
    Run run;
    QVERIFY(disturb(disturbance, run));
    check(run);
}

void TestFaults::aLossBeforeTheStatementIsSurvived()
{
    Disturbance disturbance;
    disturbance.way = Way::CutBefore;
    Run run;
    QVERIFY(disturb(disturbance, run));
    check(run);
}

void TestFaults::aLossBeforeTheAnswerIsSurvived()
{
    Disturbance disturbance;
    disturbance.way = Way::CutAfter;
    Run run;
    QVERIFY(disturb(disturbance, run));
    check(run);
}

SYNC_TEST_MAIN(TestFaults)
#include "tst_faults.moc"
