// The first synchronisation of a database without people, each in a program of its own:
//
//   bench_load record EXPORT STATEMENTS    the plugin; writes down what it sends
//   bench_load plugin|qt|c EXPORT STATEMENTS

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

void record(const Site &site, const QString &path, const QString &file)
{
    MHRWorker worker;
    setUp(worker, site, path);
    const Statements statements = Statements::recorded(site, [&] { worker.checkSync(); });
    statements.save(file);
    std::printf("statements,%d\n", statements.count());
}

void loadByPlugin(const Site &site, const QString &path)
{
    MHRWorker worker;
    setUp(worker, site, path);
    const Stopwatch run("load", "plugin");
    worker.checkSync();
}

void loadByQt(const Site &site, const QString &path, const QString &file)
{
    const Statements statements = Statements::loaded(file);
    const Stopwatch run("load", "qt");
    readByQt(path);
    statements.sendByQt(site.host());
}

void loadByPlainClient(const Site &site, const QString &path, const QString &file)
{
    const Statements statements = Statements::loaded(file);
    const Stopwatch run("load", "c");
    plain_read_file(path.toLocal8Bit());
    statements.sendByPlainClient(site.plain());
}

} // namespace

int main(int argc, char *argv[])
{
    qInstallMessageHandler(discard);
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 4)
        giveUp(QStringLiteral("bench_load record|plugin|qt|c EXPORT STATEMENTS"));
    const Site site;
    const QString &who = arguments.at(1);
    if (who == QLatin1String("record"))
        record(site, arguments.at(2), arguments.at(3));
    else if (who == QLatin1String("plugin"))
        loadByPlugin(site, arguments.at(2));
    else if (who == QLatin1String("qt"))
        loadByQt(site, arguments.at(2), arguments.at(3));
    else
        loadByPlainClient(site, arguments.at(2), arguments.at(3));
    return 0;
}
