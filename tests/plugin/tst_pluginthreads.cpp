#include "plugin/interfaces/serverinterface.h"
#include "tests/plugin/pluginini.h"
#include "tests/plugin/plugintest.h"
#include "tests/worker/support/commandgate.h"

#include <QFile>
#include <QPluginLoader>
#include <QTest>
#include <QThread>

#include <thread>

namespace {

bool isInMemory(const QString &library)
{
    QFile maps("/proc/self/maps");
    return maps.open(QIODevice::ReadOnly) && maps.readAll().contains(library.toUtf8());
}

} // namespace

/// This program is a host without an event loop.
class TestPluginThreads : public PluginTest {
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    // First: to a loader with the usual hints the code stays in memory for good.
    void thePluginCanBeUnloadedAndLoadedAgain();
    void theTimerTicksAndEverythingRunsInTheWorkersThread();
    void stopRightAfterStartGivesNoTick();
    void aPauseRightAfterAResumeGivesNoTick();
    void aSecondStartAddsATimerAndStopEndsTheNewest();
    void afterAResumeMembersOfABranchPropagateWithinTheSynchronisation();
    void theHostDoesNotWaitForARunningSynchronisation();
    void destroyingThePluginDuringASynchronisationLosesNothing();
    void destroyingAStoppedPluginWaitsForTheRunningCommand();
    void theEndOfTheThreadDeletesTheWorkerInItsThread();
    void thePluginCanBeDrivenFromAnyThread();

private:
    QByteArray iniWithFile(const QByteArray &lines = {}) const;
    void writePeople(int count);
    int writtenPeople();
};

QByteArray TestPluginThreads::iniWithFile(const QByteArray &lines) const
{
    return "importFile=" + m_file->path().toUtf8() + '\n' + lines + '\n';
}

/// To the export file: pids 70011, 70021, ...
void TestPluginThreads::writePeople(int count)
{
    QVector<ExportRow> lines;
    for (int number = 1; number <= count; ++number)
        lines += ExportRow().with(&ExportRow::osobniCislo, 7000 + number);
    m_file->write(lines);
}

int TestPluginThreads::writtenPeople()
{
    return m_db.value("SELECT COUNT(*) FROM people WHERE pid BETWEEN 70011 AND 79991").toInt();
}

void TestPluginThreads::cleanup()
{
    m_plugin.reset();
    // Qt's own warnings begin with the name of a class of Qt.
    QCOMPARE(m_log->lines().filter(QRegularExpression("^[WC] Q")), QStringList());
    PluginTest::cleanup();
}

void TestPluginThreads::theTimerTicksAndEverythingRunsInTheWorkersThread()
{
    writePeople(1);
    start(iniWithFile("timerInterval=1"), 3);
    QVERIFY(m_log->waitForLine("D MHRWorker::checkSync(): #2"));
    m_plugin.reset();
    QCOMPARE(writtenPeople(), 1);

    QStringList byTheHost;
    QSet<Qt::HANDLE> others;
    const QVector<LogMessage> messages = m_log->messages();
    for (const LogMessage &message : messages) {
        QCOMPARE(message.category, QString("default"));
        if (message.threadId == QThread::currentThreadId())
            byTheHost += message.text;
        else
            others += message.threadId;
    }
    QCOMPARE(
        byTheHost,
        QStringList({"Start MirovaHR..", "MirovaHR::init()",
                     "MHRWorker::setTepDb(YAV.tepdb.MirovaHR)", "MHRWorker::setMes() count: 0)"}));
    QCOMPARE(others.size(), 1);
}

void TestPluginThreads::stopRightAfterStartGivesNoTick()
{
    load(iniWithFile("timerInterval=1"));
    ServerInterface &plugin = *m_plugin->server();
    QVERIFY(plugin.start());
    plugin.stop();
    QCOMPARE(host().activity(), QVector<bool>{false});
    QVERIFY(plugin.start());
    plugin.stop();
    QCOMPARE(host().activity(), QVector<bool>({false, false}));
}

void TestPluginThreads::aPauseRightAfterAResumeGivesNoTick()
{
    ServerInterface &plugin = *start(iniWithFile("timerInterval=1")).server();
    plugin.pause();
    plugin.resume();
    plugin.pause();
    QCOMPARE(host().activity(), QVector<bool>({false, false}));
}

void TestPluginThreads::aSecondStartAddsATimerAndStopEndsTheNewest()
{
    ServerInterface &plugin = *start(iniWithFile("timerInterval=1")).server();
    QVERIFY(plugin.start());
    QCOMPARE(host().activity(), QVector<bool>({true, true}));
    plugin.stop();
    QCOMPARE(host().activity(), QVector<bool>({true, false}));
    // The one that is left ticks.
    QVERIFY(m_log->waitForLine("D MHRWorker::checkSync(): #1"));
}

void TestPluginThreads::afterAResumeMembersOfABranchPropagateWithinTheSynchronisation()
{
    ServerInterface &plugin = *start(iniWithFile()).server();
    plugin.pause();
    plugin.resume();
    writePeople(1);
    host().tick();

    const QStringList lines = m_log->lines();
    const int end = lines.indexOf("D MHRWorker: END synchronization #1 (waiting records: 0)");
    const int terminals = lines.indexOf("I BranchesRepository::getTids4Branch(1)");
    QVERIFY(terminals >= 0);
    QVERIFY(terminals < end);
    QCOMPARE(lines.mid(end + 1), QStringList("D MHRWorker::dbCheckOpen()"));
    QCOMPARE(m_log->threadsOf("BranchesRepository::getTids4Branch(1)"),
             m_log->threadsOf("MHRWorker: END synchronization #1 (waiting records: 0)"));
    QCOMPARE(m_db.value("SELECT COUNT(*) FROM people_term JOIN people USING(uid)"
                        " WHERE pid = 70011 AND tid = 1")
                 .toInt(),
             1);
}

void TestPluginThreads::theHostDoesNotWaitForARunningSynchronisation()
{
    CommandGate gate;
    ServerInterface &plugin =
        *start(iniWithFile("syncCommandRun=2\nsyncCommand=" + gate.command().toUtf8())).server();
    QMetaObject::invokeMethod(host().worker(), "checkSync", Qt::QueuedConnection);
    gate.waitForCommand();
    plugin.pause();
    plugin.resume();
    plugin.stop();
    QVERIFY(!m_log->contains("D MHRWorker: END synchronization #1 (waiting records: 0)"));
    gate.open();
    QCOMPARE(host().activity(), QVector<bool>({false, false}));
}

void TestPluginThreads::destroyingThePluginDuringASynchronisationLosesNothing()
{
    CommandGate gate;
    writePeople(50);
    start(iniWithFile("syncCommandRun=2\nsyncCommand=" + gate.command().toUtf8()));
    QMetaObject::invokeMethod(host().worker(), "checkSync", Qt::QueuedConnection);
    gate.waitForCommand();
    // The synchronisation has everything still before it.
    gate.open();
    m_plugin.reset();
    QVERIFY(m_log->contains("D MHRWorker: END synchronization #1 (waiting records: 0)"));
    QCOMPARE(writtenPeople(), 50);
    QCOMPARE(m_db.value("SELECT COUNT(*) FROM brape JOIN people USING(uid)"
                        " WHERE pid BETWEEN 70011 AND 79991")
                 .toInt(),
             50);
}

void TestPluginThreads::destroyingAStoppedPluginWaitsForTheRunningCommand()
{
    CommandGate gate;
    writePeople(5);
    start(iniWithFile("syncCommandRun=2\nsyncCommand=" + gate.command().toUtf8()));
    QMetaObject::invokeMethod(host().worker(), "checkSync", Qt::QueuedConnection);
    gate.waitForCommand();
    m_plugin->server()->stop();
    // The command ends at any time during the destruction.
    std::thread command([&gate] { gate.open(); });
    m_plugin.reset();
    QVERIFY(m_log->contains("D MHRWorker: END synchronization #1 (waiting records: 0)"));
    QCOMPARE(writtenPeople(), 5);
    command.join();
}

void TestPluginThreads::theEndOfTheThreadDeletesTheWorkerInItsThread()
{
    start(iniWithFile());
    host().runInWorkersThread([] {
        qDebug("alive");
        QObject::connect(host().worker(), &QObject::destroyed, [] { qDebug("deleted"); });
    });
    m_plugin.reset();
    QCOMPARE(m_log->count("D deleted"), 1);
    QCOMPARE(m_log->threadsOf("deleted"), m_log->threadsOf("alive"));
    QVERIFY(!m_log->threadsOf("deleted").contains(QThread::currentThreadId()));
}

void TestPluginThreads::thePluginCanBeDrivenFromAnyThread()
{
    writePeople(1);
    const QByteArray ini = iniWithFile("timerInterval=1");
    std::thread([this, &ini] {
        start(ini);
        m_log->waitForLine("D MHRWorker: END synchronization #1 (waiting records: 0)");
        m_plugin->server()->stop();
        m_plugin.reset();
        QSqlDatabase::removeDatabase("YAV.tepdb.MirovaHR");
    }).join();
    QCOMPARE(writtenPeople(), 1);
}

void TestPluginThreads::thePluginCanBeUnloadedAndLoadedAgain()
{
    PluginIni::write(iniWithFile());
    for (int round = 1; round <= 3; ++round) {
        writePeople(round);
        QPluginLoader loader(LoadedPlugin::path());
        loader.setLoadHints(QLibrary::LoadHints());
        auto *const plugin = qobject_cast<ServerInterface *>(loader.instance());
        QVERIFY(plugin != nullptr);
        plugin->setDebugLevel(1);
        plugin->setDatabase(m_db.pluginConnection());
        QVERIFY(plugin->start());
        host().tick();
        QVERIFY(loader.unload());
        QVERIFY(!isInMemory("libmirovahr.so"));

        QCOMPARE(m_log->count("D MHRWorker: END synchronization #1 (waiting records: 0)"), round);
        QCOMPARE(writtenPeople(), round);
    }
}

int main(int argc, char *argv[])
{
    HostApplication application(argc, argv);
    TestPluginThreads test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_pluginthreads.moc"
