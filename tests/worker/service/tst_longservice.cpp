#include "plugin/interfaces/serverinterface.h"
#include "tests/plugin/hostapplication.h"
#include "tests/plugin/loadedplugin.h"
#include "tests/plugin/pluginini.h"
#include "tests/support/environmentnumber.h"
#include "tests/support/logcapture.h"
#include "tests/support/testdatabase.h"
#include "tests/worker/service/resources.h"
#include "tests/worker/support/sampleexport.h"

#include <QPluginLoader>
#include <QTest>

#include <cstdio>
#include <memory>

#include <unistd.h>

namespace {

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
// Their memory is not the plugin's: a sanitizer keeps what is freed, and looks for leaks itself.
constexpr bool kMemoryCounts = false;
#else
constexpr bool kMemoryCounts = true;
#endif

/// How much the heap may hold at the end of a test beyond what it held once everything had run.
constexpr qint64 kSlack = 48 * 1024;
/// The same of the memory that the program has from the machine.
constexpr qint64 kResidentSlack = 4 * 1024 * 1024;
/// Every start after the first leaves a settings store behind,
constexpr qint64 kStore = 64;
/// and for its sake the page that it lies on may stay.
constexpr qint64 kPage = 4096;

/// The administrator's and the host's. The plugin's is open during a tick only.
constexpr int kConnections = 2;

constexpr int kTicksPerSynchronisation = 5;

} // namespace

/// A server keeps the plugin for years. MIROVAHR_SERVICE multiplies what a quick run does.
class TestLongService : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    // First: to a loader with the usual hints the code stays in memory for good.
    void loadingStartingStoppingAndUnloadingLeavesNothing();
    void ticksLeaveNothing();
    void theTimerAtItsShortestLeavesNothing();
    void aStartLeavesATimerUntilThePluginIsUnloaded();
    void whatTheWorkerKeepsOfPeopleIsSmall();

private:
    /// A period beyond the test's end leaves the ticks to the test.
    void load(int secondsPerTick = 100000);
    void unload();
    ServerInterface &plugin() { return *qobject_cast<ServerInterface *>(m_loader->instance()); }
    void tick(int times);
    void synchronise(const QVector<ExportRow> &rows);
    void writeExport();
    void force();
    Resources settled();
    void holdsNoMoreThan(const Resources &before, int stores, const QString &what);
    void newLog();

    static HostApplication &host() { return *HostApplication::instance(); }

    const int m_scale = int(environmentNumber("MIROVAHR_SERVICE", 1));
    TestDatabase m_db;
    ExportFile m_file;
    std::unique_ptr<LogCapture> m_log;
    std::unique_ptr<QPluginLoader> m_loader;
    QSqlDatabase m_connection;
    int m_threads = 0; ///< Without the plugin.
    int m_version = 0; ///< Of the export.
    int m_ticks = 0;
    int m_synchronisations = 0;
};

void TestLongService::initTestCase()
{
    QVERIFY2(m_db.start(), qPrintable(m_db.errorString()));
    m_db.run("SET GLOBAL general_log = 0");
    m_connection = m_db.openPluginConnection();
    m_threads = Resources::now(m_db).threads;
}

void TestLongService::init()
{
    newLog();
    m_ticks = 0;
    m_synchronisations = 0;
}

void TestLongService::cleanup()
{
    if (m_loader)
        unload();
    m_log.reset();
}

void TestLongService::load(int secondsPerTick)
{
    PluginIni::write("importFile=" + m_file.path().toUtf8()
                     + "\ntimerInterval=" + QByteArray::number(secondsPerTick)
                     + "\nsyncInterval=" + QByteArray::number(kTicksPerSynchronisation)
                     + "\nsyncCommandRun=1\nsyncCommand=/bin/true\n[MES]\n21=na materskej\n");
    m_loader = std::make_unique<QPluginLoader>(LoadedPlugin::path());
    // A sanitizer names a stack only as long as its code is in memory, as the usual hints keep it.
    if (kMemoryCounts)
        m_loader->setLoadHints(QLibrary::LoadHints());
    QVERIFY2(m_loader->load(), qPrintable(m_loader->errorString()));
    plugin().setDebugLevel(1);
    plugin().setDatabase(m_connection);
}

void TestLongService::unload()
{
    QVERIFY(m_loader->unload());
    m_loader.reset();
}

/// As many ticks, with a new export for each that synchronises.
void TestLongService::tick(int times)
{
    for (int i = 0; i < times; ++i) {
        if (++m_ticks % kTicksPerSynchronisation == 0)
            writeExport();
        if (m_ticks % (3 * kTicksPerSynchronisation) == 0)
            force();
        host().tick();
    }
    m_synchronisations += m_log->lines().filter("D MHRWorker: END synchronization").size();
    m_log->clear();
    m_db.run("DELETE FROM term_sync");
}

/// Every person changes, and back again: names, branch, calendar, balance, supervisor, state. One
/// has no branch, the database refuses another, and one line is invalid.
void TestLongService::writeExport()
{
    using namespace SampleExport;
    const bool odd = ++m_version % 2 != 0;
    const QString phone = QString::number(m_version % 2);
    const QDate since(2025, odd ? 3 : 4, 1);
    m_file.write(QStringList{
        maria()
            .with(&ExportRow::telefon, phone)
            .with(&ExportRow::evidencniStav, odd ? 21 : 0)
            .text(),
        jana()
            .with(&ExportRow::kalendar, odd ? 2 : 3)
            .with(&ExportRow::kalendarPlatnostOd, since)
            .with(&ExportRow::dovolenaZustatek, odd ? "10" : "11.5")
            .text(),
        jan()
            .with(&ExportRow::stredisko, odd ? 120 : 130)
            .with(&ExportRow::nadrizenyOsobniCislo, odd ? 1001 : 1002)
            .text(),
        newcomer(7001).with(&ExportRow::datumVystupu, odd ? QDate() : QDate(2099, 12, 31)).text(),
        newcomer(7002).with(&ExportRow::stredisko, 999).text(),
        newcomer(7003).with(&ExportRow::jmeno, odd ? "D'Arc" : "d'Arc").text(),
        "no|record",
    });
}

void TestLongService::synchronise(const QVector<ExportRow> &rows)
{
    m_file.write(rows);
    force();
    host().tick();
    m_log->clear();
}

void TestLongService::force()
{
    m_db.run("UPDATE vars SET value = '1' WHERE name = 'YAV.MHRWorker.forceSync'");
}

/// Between two ticks. The machine and the server may notice the end of a thread or of a connection
/// with a delay.
Resources TestLongService::settled()
{
    const int threads = m_threads + (m_loader ? 1 : 0);
    const bool atRest = QTest::qWaitFor(
        [&] {
            const Resources resources = Resources::now(m_db);
            return resources.connections == kConnections && resources.threads == threads;
        },
        kPatienceMs);
    const Resources resources = Resources::now(m_db);
    if (!atRest)
        qFatal("Something is left: %s", qPrintable(resources.text()));
    return resources;
}

/// One that takes no more memory than an empty one.
void TestLongService::newLog()
{
    m_log.reset();
    m_log = std::make_unique<LogCapture>();
}

/// \a stores: how many settings stores were left behind.
void TestLongService::holdsNoMoreThan(const Resources &before, int stores, const QString &what)
{
    const Resources after = settled();
    std::printf("%s\n  before: %s\n  after:  %s\n", qPrintable(what), qPrintable(before.text()),
                qPrintable(after.text()));
    QCOMPARE(after.handles, before.handles);
    QCOMPARE(after.statements, before.statements);
    if (kMemoryCounts) {
        QVERIFY(after.heap - before.heap <= stores * kStore + kSlack);
        QVERIFY(after.resident - before.resident <= stores * kPage + kResidentSlack);
    }
}

void TestLongService::loadingStartingStoppingAndUnloadingLeavesNothing()
{
    const int rounds = 10 * m_scale;
    constexpr int kWarmUp = 3;
    int starts = 0;
    Resources before;
    for (int round = 0; round < kWarmUp + rounds; ++round) {
        if (round == kWarmUp) {
            before = settled();
            starts = 0;
            m_ticks = 0;
            m_synchronisations = 0;
        }
        load();
        QVERIFY(plugin().start());
        tick(10);
        plugin().stop();
        tick(5);
        QVERIFY(plugin().start());
        tick(10);
        plugin().pause();
        plugin().resume();
        tick(5);
        starts += 2;
        unload();
    }
    QVERIFY(m_synchronisations >= 6 * rounds);
    holdsNoMoreThan(before, starts,
                    QString("%1 times loaded, started, stopped, started, paused, "
                            "resumed and unloaded; %2 ticks, %3 synchronisations")
                        .arg(rounds)
                        .arg(m_ticks)
                        .arg(m_synchronisations));
}

void TestLongService::ticksLeaveNothing()
{
    load();
    QVERIFY(plugin().start());
    constexpr int kWarmUp = 100;
    tick(kWarmUp);
    const Resources before = settled();
    m_synchronisations = 0;
    const int blocks = 10 * m_scale;
    for (int block = 0; block < blocks; ++block)
        tick(50);
    QCOMPARE(m_synchronisations, 10 * blocks);
    holdsNoMoreThan(before, 0,
                    QString("%1 ticks, %2 synchronisations in one life")
                        .arg(50 * blocks)
                        .arg(m_synchronisations));
}

void TestLongService::theTimerAtItsShortestLeavesNothing()
{
    load(1);
    QVERIFY(plugin().start());
    const auto awaitSynchronisations = [this](int times) {
        for (int i = 0; i < times; ++i) {
            writeExport();
            force();
            if (!m_log->waitForText("D MHRWorker: END synchronization"))
                qFatal("The timer does not tick");
            m_log->clear();
        }
        host().activity(); // after the end of the tick
    };
    awaitSynchronisations(2);
    const Resources before = settled();
    const int ticks = 2 * m_scale;
    awaitSynchronisations(ticks);
    holdsNoMoreThan(before, 0, QString("%1 synchronisations by the timer, at 1 s").arg(ticks));
}

void TestLongService::aStartLeavesATimerUntilThePluginIsUnloaded()
{
    load();
    QVERIFY(plugin().start());
    tick(1);
    plugin().stop();
    const Resources before = settled();
    const int starts = 200 * m_scale;
    for (int i = 0; i < starts; ++i) {
        plugin().resume();
        plugin().pause();
    }
    QCOMPARE(host().activity().size(), 1 + starts);
    newLog();
    const Resources kept = settled();
    std::printf("  a start keeps %lld bytes until the plugin is unloaded\n",
                (kept.heap - before.heap) / starts);
    QVERIFY(kept.heap - before.heap <= starts * 4096);
    unload();
    load();
    QVERIFY(plugin().start());
    m_ticks = 0;
    tick(1);
    newLog();
    const Resources after = settled();
    std::printf("  and %lld bytes for good\n", (after.heap - before.heap) / starts);
    holdsNoMoreThan(before, starts, QString("%1 starts").arg(starts));
}

void TestLongService::whatTheWorkerKeepsOfPeopleIsSmall()
{
    load();
    QVERIFY(plugin().start());
    // Who has left is never created.
    const auto leavers = [](int first, int count) {
        QVector<ExportRow> rows;
        for (int i = 0; i < count; ++i)
            rows += ExportRow()
                        .with(&ExportRow::osobniCislo, first + i)
                        .with(&ExportRow::datumVystupu, QDate(2020, 1, 1));
        return rows;
    };
    const int people = 1000 * m_scale;
    synchronise(leavers(100000, 100));
    const Resources before = settled();
    synchronise(leavers(200000, people));
    const qint64 kept = settled().heap - before.heap;
    std::printf("  a person once seen keeps %lld bytes\n", kept / people);
    QVERIFY(kept <= people * 2048 + kSlack);
    // Seen again: nothing more.
    synchronise(leavers(200000, people));
    synchronise(leavers(200000, people));
    const Resources seen = settled();
    for (int i = 0; i < 3; ++i)
        synchronise(leavers(200000, people));
    holdsNoMoreThan(seen, 0, QString("%1 people seen three times more").arg(people));

    const int changes = 50 * m_scale;
    const Resources none = settled();
    for (int i = 0; i < changes; ++i) {
        synchronise({SampleExport::newcomer(7002)
                         .with(&ExportRow::stredisko, 999)
                         .with(&ExportRow::telefon, i)});
    }
    const Resources waiting = settled();
    std::printf("  each change of a person without a branch keeps %lld bytes\n",
                (waiting.heap - none.heap) / changes);
    QVERIFY(waiting.heap - none.heap <= changes * 2048 + kSlack);
}

int main(int argc, char *argv[])
{
    // What a thread keeps for its next allocation would count as in use.
    constexpr char kTunables[] = "GLIBC_TUNABLES";
    if (!qEnvironmentVariableIsSet(kTunables)) {
        qputenv(kTunables, "glibc.malloc.tcache_count=0");
        ::execv("/proc/self/exe", argv);
        qFatal("The program could not be started anew");
    }
    HostApplication application(argc, argv);
    TestLongService test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_longservice.moc"
