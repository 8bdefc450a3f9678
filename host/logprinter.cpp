#include "host/logprinter.h"

#include <QLoggingCategory>
#include <QtGlobal>

#include <cstdio>

namespace {

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

// One call of the C library a message: it keeps the messages of two threads apart.
void print(QtMsgType type, const QMessageLogContext &, const QString &text)
{
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
    g_printDebug = printDebug;
    g_observer = observer;
    // Some systems ship a rule that turns debug messages off.
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=true\ndefault.info=true"));
    qInstallMessageHandler(print);
}

LogPrinter::~LogPrinter()
{
    qInstallMessageHandler(nullptr);
    g_observer = nullptr;
}
