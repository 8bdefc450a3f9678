// From loading a library to its first tick armed, in a program of its own:
//
//   bench_start plugin|qt LIBRARY    a plugin of the attendance server
//   bench_start c LIBRARY            a bare library in C (barelibrary.c)

#include "bench/site.h"
#include "bench/stopwatch.h"
#include "plugin/interfaces/serverinterface.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QPluginLoader>
#include <QSemaphore>
#include <QStringList>
#include <QThread>
#include <QTimer>

#include <dlfcn.h>
#include <unistd.h>

namespace {

QSemaphore armed;

/// A worker that says this, in a thread of its own, goes on to arm its timer and then returns to
/// its event loop.
void watchForTimer(QtMsgType, const QMessageLogContext &, const QString &text)
{
    if (text == QLatin1String("MHRWorker::init()")
        && QThread::currentThread() != QCoreApplication::instance()->thread())
        QTimer::singleShot(0, QAbstractEventDispatcher::instance(), [] { armed.release(); });
}

void startPlugin(const char *who, const QString &library)
{
    const Site site;
    qInstallMessageHandler(watchForTimer);
    const Stopwatch run("start", who);
    QPluginLoader loader(library);
    auto *plugin = qobject_cast<ServerInterface *>(loader.instance());
    if (!plugin)
        giveUp(loader.errorString());
    plugin->setDebugLevel(1);
    plugin->setDatabase(site.host());
    plugin->start();
    armed.acquire();
}

void startBareLibrary(const char *library)
{
    const Stopwatch run("start", "c");
    void *handle = dlopen(library, RTLD_NOW);
    if (!handle)
        giveUp(QString::fromLocal8Bit(dlerror()));
    const auto start = reinterpret_cast<int (*)()>(dlsym(handle, "bare_start"));
    if (!start || start() != 0)
        giveUp(QStringLiteral("The bare library does not start."));
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    if (argc != 3)
        giveUp(QStringLiteral("bench_start plugin|qt|c LIBRARY"));
    if (qstrcmp(argv[1], "c") == 0)
        startBareLibrary(argv[2]);
    else
        startPlugin(argv[1], QString::fromLocal8Bit(argv[2]));
    // Whatever still runs ends with the program.
    std::fflush(stdout);
    _exit(0);
}
