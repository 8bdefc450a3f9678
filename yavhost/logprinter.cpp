#include "yavhost/logprinter.h"

#include <QLoggingCategory>
#include <QtGlobal>

#include <cstdio>
#include <mutex>

namespace {

std::mutex g_mutex; // a message may be on its way in another thread at any time
bool g_printDebug = true;
LogPrinter::Observer g_observer;
QLoggingCategory::CategoryFilter g_outerFilter = nullptr;

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

/// Prints the message if its level is to be printed. Returns the observer to call.
LogPrinter::Observer print(QtMsgType type, const QString &text)
{
    const std::lock_guard<std::mutex> lock(g_mutex);
    if (!isQuiet(type) || g_printDebug) {
        std::FILE *stream = isQuiet(type) ? stdout : stderr;
        std::fprintf(stream, "%-8s  %s\n", levelName(type), text.toUtf8().constData());
        std::fflush(stream);
    }
    return g_observer;
}

void handle(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    const LogPrinter::Observer observer = print(type, text);
    if (observer)
        observer(text);
}

/// The plugin's log must be complete: rules of the system or of the environment (QT_LOGGING_RULES)
/// do not apply.
void letThrough(QLoggingCategory *category)
{
    if (g_outerFilter != nullptr)
        g_outerFilter(category);
    if (qstrcmp(category->categoryName(), "default") == 0) {
        for (const QtMsgType type : {QtDebugMsg, QtInfoMsg, QtWarningMsg, QtCriticalMsg})
            category->setEnabled(type, true);
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
    g_outerFilter = QLoggingCategory::installFilter(letThrough);
    qInstallMessageHandler(handle);
}

LogPrinter::~LogPrinter()
{
    qInstallMessageHandler(nullptr);
    QLoggingCategory::installFilter(g_outerFilter);
    const std::lock_guard<std::mutex> lock(g_mutex);
    g_observer = nullptr;
}
