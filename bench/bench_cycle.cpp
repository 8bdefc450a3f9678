// What a serving worker costs: bench_cycle WHAT ROUNDS [EXPORT...]
//
//   idle                        ticks that do not synchronise
//   unchanged EXPORT WAITING    synchronisations that find nothing changed: without the vacation
//                               fund, then with the people of WAITING, whose branch is unknown,
//                               then with the fund; and what the worker holds
//   changed EXPORT OTHER        synchronisations that go from one to the other and back

#include "bench/heap.h"
#include "bench/plainreading.h"
#include "bench/site.h"
#include "bench/statements.h"
#include "bench/stopwatch.h"
#include "worker/mhrworker.h"

#include <QCoreApplication>
#include <QStringList>

#include <limits>

namespace {

void discard(QtMsgType, const QMessageLogContext &, const QString &) { }

class Bench {
public:
    explicit Bench(int rounds);

    void idle();
    void unchanged(const QString &path, const QString &waiting);
    void changed(const QString &path, const QString &other);

private:
    /// A worker that synchronises at every tick and knows the people of the export.
    void serve(const QString &path);
    void tick(const QString &path);
    Statements statementsOf(const QString &path);
    void compareUnchanged(const char *what, const QString &path);
    void tellMemory(const QString &path);

    const int m_rounds;
    Site m_site;
    MHRWorker m_worker;
    Heap m_before;
};

Bench::Bench(int rounds)
    : m_rounds(rounds)
{
    m_before = Heap::now();
    m_worker.setTepDb(m_site.host());
    m_worker.init();
    m_worker.setImportFile(QStringLiteral("/nonexistent"));
    m_worker.setSyncInterval(std::numeric_limits<unsigned int>::max());
    m_worker.checkSync(); // the first tick always synchronises
}

void Bench::idle()
{
    const Statements statements = statementsOf(QStringLiteral("/nonexistent"));
    for (int round = 0; round < m_rounds; ++round) {
        {
            const Stopwatch run("idle", "plugin");
            m_worker.checkSync();
        }
        {
            const Stopwatch run("idle", "qt");
            statements.sendByQt(m_site.host());
        }
        {
            const Stopwatch run("idle", "c");
            statements.sendByPlainClient(m_site.plain());
        }
    }
}

void Bench::serve(const QString &path)
{
    m_worker.setSyncInterval(1);
    // The first look at everybody writes much; in test mode less, and the worker knows as much.
    m_worker.setTestMode(true);
    tick(path);
    m_worker.setTestMode(false);
    tick(path);
}

void Bench::tick(const QString &path)
{
    m_worker.setImportFile(path);
    m_worker.checkSync();
}

Statements Bench::statementsOf(const QString &path)
{
    const Statements statements = Statements::recorded(m_site, [&] { tick(path); });
    std::printf("statements,%d\n", statements.count());
    return statements;
}

void Bench::compareUnchanged(const char *what, const QString &path)
{
    const Statements statements = statementsOf(path);
    for (int round = 0; round < m_rounds; ++round) {
        {
            const Stopwatch run(what, "plugin");
            tick(path);
        }
        {
            const Stopwatch run(what, "qt");
            readByQt(path);
            statements.sendByQt(m_site.host());
        }
        {
            const Stopwatch run(what, "c");
            plain_read_file(path.toLocal8Bit());
            statements.sendByPlainClient(m_site.plain());
        }
    }
}

void Bench::unchanged(const QString &path, const QString &waiting)
{
    serve(path);
    tellMemory(path);
    compareUnchanged("unchanged", path);
    tick(waiting);
    compareUnchanged("unchanged, waiting", waiting);
    tick(path);
    m_site.administer(QStringLiteral("INSERT INTO funds (iid, unit) VALUES (3, 2)"));
    m_site.administer(QStringLiteral(
        "INSERT INTO funds_move (type, day, month, value, fid, uid) SELECT 1, 1577833200, 202001, "
        "1250, LAST_INSERT_ID(), uid FROM people"));
    tick(path);
    compareUnchanged("unchanged, with funds", path);
}

void Bench::tellMemory(const QString &path)
{
    const Heap between = Heap::now();
    Heap::forgetPeak();
    tick(path);
    const Heap after = Heap::now();
    std::printf("memory,%lld,%lld,%lld,%lld\n", between.allocated - m_before.allocated,
                after.allocated - m_before.allocated, between.resident - m_before.resident,
                after.peak - m_before.resident);
}

void Bench::changed(const QString &path, const QString &other)
{
    serve(path);
    // What is written only once (new members of branches) is written now.
    tick(other);
    tick(path);
    const Statements there = statementsOf(other);
    const Statements back = statementsOf(path);
    for (int round = 0; round < m_rounds; ++round) {
        {
            const Stopwatch run("changed", "plugin");
            tick(other);
        }
        tick(path);
        {
            const Stopwatch run("changed", "qt");
            readByQt(other);
            there.sendByQt(m_site.host());
        }
        back.sendByQt(m_site.host());
        {
            const Stopwatch run("changed", "c");
            plain_read_file(other.toLocal8Bit());
            there.sendByPlainClient(m_site.plain());
        }
        back.sendByPlainClient(m_site.plain());
    }
}

} // namespace

int main(int argc, char *argv[])
{
    qInstallMessageHandler(discard);
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments().mid(1);
    Bench bench(arguments.value(1).toInt());
    if (arguments.value(0) == QLatin1String("idle"))
        bench.idle();
    else if (arguments.value(0) == QLatin1String("unchanged"))
        bench.unchanged(arguments.value(2), arguments.value(3));
    else if (arguments.value(0) == QLatin1String("changed"))
        bench.changed(arguments.value(2), arguments.value(3));
    else
        giveUp(QStringLiteral("bench_cycle idle|unchanged|changed ROUNDS [EXPORT...]"));
    return 0;
}
