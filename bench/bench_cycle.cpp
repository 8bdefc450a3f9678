// What a serving worker costs:
//
//   bench_cycle idle ROUNDS SECONDS
//       ticks that do not synchronise
//   bench_cycle serve ROUNDS SECONDS EXPORT WAITING CHANGED
//       synchronisations that find nothing changed, without the vacation fund and with it, and with
//       the people of WAITING, whose branch is unknown; those that go from EXPORT to CHANGED; and
//       what the worker holds
//
// Each comparison makes at most ROUNDS rounds and begins none after SECONDS.

#include "bench/heap.h"
#include "bench/plainreading.h"
#include "bench/rounds.h"
#include "bench/site.h"
#include "bench/statements.h"
#include "bench/stopwatch.h"
#include "worker/mhrworker.h"

#include <QCoreApplication>
#include <QFile>
#include <QStringList>

#include <limits>

namespace {

const QLatin1String kNoExport("/nonexistent");

void discard(QtMsgType, const QMessageLogContext &, const QString &) { }

class Bench {
public:
    Bench(int rounds, int seconds);

    void idle();
    void serve(const QString &path, const QString &waiting, const QString &changed);

private:
    void learnPeople(const QString &path);
    void tellMemory(const QString &path);
    void makeFund();
    void compareUnchanged(const char *what, const QString &path);
    void compareChanged(const QString &path, const QString &changed);

    /// Ticks once, with this export.
    void tick(const QString &path);
    /// What a tick with this export sends.
    Statements statementsOf(const char *what, const QString &path);

    // The three that are compared. Without an export nothing is read.
    void measurePlugin(const char *what, const QString &path);
    void measureQt(const char *what, const QString &path, const Statements &statements);
    void measureC(const char *what, const QString &path, const Statements &statements);

    Rounds rounds() const { return Rounds(m_rounds, m_seconds); }

    const int m_rounds;
    const int m_seconds;
    Site m_site;
    MHRWorker m_worker;
    Heap m_before;
};

Bench::Bench(int rounds, int seconds)
    : m_rounds(rounds)
    , m_seconds(seconds)
{
    m_worker.setTepDb(m_site.host());
    m_worker.init();
    m_worker.setSyncInterval(std::numeric_limits<unsigned int>::max());
    tick(kNoExport); // the first tick always synchronises
    m_before = Heap::now();
}

void Bench::idle()
{
    const Statements statements = statementsOf("idle", kNoExport);
    for (Rounds some = rounds(); some.next();) {
        measurePlugin("idle", kNoExport);
        measureQt("idle", QString(), statements);
        measureC("idle", QString(), statements);
    }
}

void Bench::serve(const QString &path, const QString &waiting, const QString &changed)
{
    learnPeople(path);
    tellMemory(path);
    compareUnchanged("unchanged", path);
    tick(waiting);
    compareUnchanged("waiting", waiting);
    tick(path);
    compareChanged(path, changed);
    makeFund();
    tick(path);
    compareUnchanged("funds", path);
}

void Bench::learnPeople(const QString &path)
{
    m_worker.setSyncInterval(1);
    // The first look at everybody writes much; in test mode less, and the worker knows as much.
    m_worker.setTestMode(true);
    tick(path);
    m_worker.setTestMode(false);
    tick(path);
}

void Bench::tellMemory(const QString &path)
{
    const Heap between = Heap::now();
    Heap::forgetPeak();
    tick(path);
    std::printf("memory,%lld,%lld,%lld\n", between.allocated - m_before.allocated,
                between.resident - m_before.resident, Heap::now().peak - m_before.resident);
}

void Bench::makeFund()
{
    m_site.administer(QStringLiteral("INSERT INTO funds (iid, unit) VALUES (3, 2)"));
    m_site.administer(QStringLiteral(
        "INSERT INTO funds_move (type, day, month, value, fid, uid) SELECT 1, 1577833200, 202001, "
        "1250, LAST_INSERT_ID(), uid FROM people"));
}

void Bench::compareUnchanged(const char *what, const QString &path)
{
    const Statements statements = statementsOf(what, path);
    for (Rounds some = rounds(); some.next();) {
        measurePlugin(what, path);
        measureQt(what, path, statements);
        measureC(what, path, statements);
    }
}

void Bench::compareChanged(const QString &path, const QString &changed)
{
    // What is written only once (new members of branches) is written now.
    tick(changed);
    tick(path);
    const Statements there = statementsOf("changed", changed);
    const Statements back = statementsOf("changed back", path);
    for (Rounds some = rounds(); some.next();) {
        measurePlugin("changed", changed);
        tick(path);
        measureQt("changed", changed, there);
        back.sendByQt(m_site.host());
        measureC("changed", changed, there);
        back.sendByQt(m_site.host());
    }
}

void Bench::tick(const QString &path)
{
    m_worker.setImportFile(path);
    m_worker.checkSync();
}

Statements Bench::statementsOf(const char *what, const QString &path)
{
    const Statements statements = Statements::recorded(m_site, [&] { tick(path); });
    std::printf("statements,%s,%d\n", what, statements.count());
    return statements;
}

void Bench::measurePlugin(const char *what, const QString &path)
{
    const Stopwatch run(what, "plugin");
    tick(path);
}

void Bench::measureQt(const char *what, const QString &path, const Statements &statements)
{
    const Stopwatch run(what, "qt");
    if (!path.isEmpty())
        readByQt(path);
    statements.sendByQt(m_site.host());
}

void Bench::measureC(const char *what, const QString &path, const Statements &statements)
{
    const QByteArray file = QFile::encodeName(path);
    const Stopwatch run(what, "c");
    if (!file.isEmpty())
        plain_read_file(file);
    statements.sendByPlainClient(m_site.plain());
}

} // namespace

int main(int argc, char *argv[])
{
    qInstallMessageHandler(discard);
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const QString what = arguments.value(1);
    Bench bench(arguments.value(2).toInt(), arguments.value(3).toInt());
    if (what == QLatin1String("idle") && argc == 4)
        bench.idle();
    else if (what == QLatin1String("serve") && argc == 7)
        bench.serve(arguments.at(4), arguments.at(5), arguments.at(6));
    else
        giveUp(QStringLiteral("bench_cycle idle|serve ROUNDS SECONDS [EXPORT WAITING CHANGED]"));
    return 0;
}
