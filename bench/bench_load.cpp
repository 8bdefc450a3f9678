// The first synchronisation of a database without people, each in a program of its own:
//
//   bench_load record WHAT EXPORT STATEMENTS    the plugin; writes down what it sends
//   bench_load plugin|qt|c WHAT EXPORT STATEMENTS
//
// WHAT is the name under which the runs are printed.

#include "bench/plainreading.h"
#include "bench/site.h"
#include "bench/statements.h"
#include "bench/stopwatch.h"
#include "worker/mhrworker.h"

#include <QCoreApplication>
#include <QStringList>

namespace {

void discard(QtMsgType, const QMessageLogContext &, const QString &) { }

void setUp(MHRWorker &worker, const Site &site, const QString &path)
{
    worker.setTepDb(site.host());
    worker.init();
    worker.setImportFile(path);
}

void record(const Site &site, const char *what, const QString &path, const QString &file)
{
    MHRWorker worker;
    setUp(worker, site, path);
    const Statements statements = Statements::recorded(site, [&] { worker.checkSync(); });
    statements.save(file);
    std::printf("statements,%s,%d\n", what, statements.count());
}

void loadByPlugin(const Site &site, const char *what, const QString &path)
{
    MHRWorker worker;
    setUp(worker, site, path);
    const Stopwatch run(what, "plugin");
    worker.checkSync();
}

void loadByQt(const Site &site, const char *what, const QString &path, const QString &file)
{
    const Statements statements = Statements::loaded(file);
    const Stopwatch run(what, "qt");
    readByQt(path);
    statements.sendByQt(site.host());
}

void loadByPlainClient(const Site &site, const char *what, const QString &path, const QString &file)
{
    const Statements statements = Statements::loaded(file);
    const Stopwatch run(what, "c");
    plain_read_file(path.toLocal8Bit());
    statements.sendByPlainClient(site.plain());
}

} // namespace

int main(int argc, char *argv[])
{
    qInstallMessageHandler(discard);
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (argc != 5)
        giveUp(QStringLiteral("bench_load record|plugin|qt|c WHAT EXPORT STATEMENTS"));
    const Site site;
    const QString &who = arguments.at(1);
    if (who == QLatin1String("record"))
        record(site, argv[2], arguments.at(3), arguments.at(4));
    else if (who == QLatin1String("plugin"))
        loadByPlugin(site, argv[2], arguments.at(3));
    else if (who == QLatin1String("qt"))
        loadByQt(site, argv[2], arguments.at(3), arguments.at(4));
    else
        loadByPlainClient(site, argv[2], arguments.at(3), arguments.at(4));
    return 0;
}
