#include "host/logprinter.h"

#include <QLoggingCategory>
#include <QtGlobal>

#include <cstdio>
#include <mutex>

namespace {

std::mutex g_mutex; // a message may be on its way in another thread at any time
bool g_printDebug = true;
LogPrinter::Observer g_observer;

bool isQuiet(QtMsgType type)
{
    return type == QtDebugMsg || type == QtInfoMsg;
}

const char *levelName(QtMsgType type)
{
    switch (type) {
    case QtDebugMsg:
        return "debug";
    case QtInfoMsg:
        return "info";
    case QtWarningMsg:
        return "warning";
    case QtCriticalMsg:
        return "critical";
    case QtFatalMsg:
        return "fatal";
    }
    Q_UNREACHABLE();
}

void print(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    const std::lock_guard<std::mutex> lock(g_mutex);
    if (!isQuiet(type) || g_printDebug) {
        std::FILE *stream = isQuiet(type) ? stdout : stderr;
        std::fprintf(stream, "%-8s  %s\n", levelName(type), text.toUtf8().constData());
        std::fflush(stream);
    }
    if (g_observer) {
        g_observer(text);
    }
}

} // namespace

LogPrinter::LogPrinter(bool printDebug, const Observer &observer)
{
    {
        const std::lock_guard<std::mutex> lock(g_mutex);
        g_printDebug = printDebug;
        g_observer = observer;
    }
    // Some systems ship a rule that turns debug messages off.
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=true\ndefault.info=true"));
    qInstallMessageHandler(print);
}

LogPrinter::~LogPrinter()
{
    qInstallMessageHandler(nullptr);
    const std::lock_guard<std::mutex> lock(g_mutex);
    g_observer = nullptr;
}
