#include "tests/support/logcapture.h"

#include <QThread>

#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>

namespace {

// Guards the pointer and the messages of every capture: a thread may still log while its capture
// is destroyed.
std::mutex g_mutex;
std::condition_variable g_arrival;
LogCapture *g_current = nullptr;

QChar levelLetter(QtMsgType type)
{
    switch (type) {
    case QtDebugMsg:
        return QLatin1Char('D');
    case QtInfoMsg:
        return QLatin1Char('I');
    case QtWarningMsg:
        return QLatin1Char('W');
    case QtCriticalMsg:
        return QLatin1Char('C');
    case QtFatalMsg:
        break;
    }
    return QLatin1Char('F');
}

QString lineOf(const LogMessage &message)
{
    return levelLetter(message.type) + QLatin1Char(' ') + message.text;
}

int countWhere(const QVector<LogMessage> &messages,
               const std::function<bool(const QString &)> &fits)
{
    return int(std::count_if(messages.begin(), messages.end(),
                             [&fits](const LogMessage &message) { return fits(lineOf(message)); }));
}

bool waitUntil(int timeoutMs, const std::function<bool()> &fulfilled)
{
    std::unique_lock<std::mutex> lock(g_mutex);
    return g_arrival.wait_for(lock, std::chrono::milliseconds(timeoutMs), fulfilled);
}

} // namespace

QStringList linesAt(int debugLevel, const QVector<LogLine> &lines)
{
    QStringList texts;
    for (const LogLine &line : lines) {
        if (debugLevel >= line.level)
            texts += line.text;
    }
    return texts;
}

LogCapture::LogCapture()
{
    const std::lock_guard<std::mutex> lock(g_mutex);
    m_outer = g_current;
    g_current = this;
    m_outerHandler = qInstallMessageHandler(handle);
}

LogCapture::~LogCapture()
{
    const std::lock_guard<std::mutex> lock(g_mutex);
    qInstallMessageHandler(m_outerHandler);
    g_current = m_outer;
}

QStringList LogCapture::lines() const
{
    const std::lock_guard<std::mutex> lock(g_mutex);
    QStringList lines;
    for (const LogMessage &message : m_messages)
        lines += lineOf(message);
    return lines;
}

QVector<LogMessage> LogCapture::messages() const
{
    const std::lock_guard<std::mutex> lock(g_mutex);
    // A deep copy: an implicitly shared vector would be read while this one grows.
    return QVector<LogMessage>(m_messages.begin(), m_messages.end());
}

QSet<Qt::HANDLE> LogCapture::threadsOf(const QString &text) const
{
    const std::lock_guard<std::mutex> lock(g_mutex);
    QSet<Qt::HANDLE> threads;
    for (const LogMessage &message : m_messages) {
        if (message.text == text)
            threads += message.threadId;
    }
    return threads;
}

int LogCapture::count(const QString &line) const
{
    return lines().count(line);
}

void LogCapture::clear()
{
    const std::lock_guard<std::mutex> lock(g_mutex);
    m_messages.clear();
}

bool LogCapture::waitForLine(const QString &line, int timeoutMs) const
{
    return waitForCount(line, 1, timeoutMs);
}

bool LogCapture::waitForCount(const QString &line, int times, int timeoutMs) const
{
    return waitUntil(timeoutMs, [&] {
        return countWhere(m_messages, [&](const QString &other) { return other == line; }) >= times;
    });
}

bool LogCapture::waitForText(const QString &part, int timeoutMs) const
{
    return waitUntil(timeoutMs, [&] {
        return countWhere(m_messages, [&](const QString &other) { return other.contains(part); })
            > 0;
    });
}

void LogCapture::handle(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    const std::lock_guard<std::mutex> lock(g_mutex);
    if (g_current == nullptr) // a thread that had fetched the handler before it was replaced
        return;
    g_current->m_messages.append(
        {type, QString::fromUtf8(context.category), text, QThread::currentThreadId()});
    g_arrival.notify_all();
}
