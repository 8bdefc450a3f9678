#include "mirovahrctl/log/logfollow.h"

#include "cli/text.h"
#include "cli/unixsignals.h"
#include "mirovahrctl/log/growingfile.h"
#include "mirovahrctl/log/inputstream.h"
#include "mirovahrctl/log/livereport.h"
#include "mirovahrctl/log/logfinding.h"
#include "mirovahrctl/pluginside/linecutter.h"
#include "mirovahrctl/pluginside/logsource.h"
#include "mirovahrctl/program/console.h"

#include <QEventLoop>

#include <csignal>

#include <unistd.h>

namespace {

constexpr char kBegin[] = "MHRWorker: BEGIN synchronization #";

class LogFollow {
public:
    LogFollow(const LogFollowOptions &options, Console &console)
        : m_options(options)
        , m_console(console)
        , m_signals({SIGINT, SIGTERM})
        , m_report(console)
        , m_builder(QDateTime::currentDateTime(), &m_report)
        , m_lines([this](std::string_view line) {
            m_builder.take(line);
            return !m_report.isClosed();
        })
    {
        if (options.since)
            m_builder.setSince(*options.since);
        QObject::connect(&m_signals, &UnixSignals::received, &m_loop, &QEventLoop::quit);
    }

    ExitStatus run()
    {
        if (m_options.path == QLatin1String(LogSource::kStandardInput))
            followStandardInput();
        else
            followFile();
        return m_failure.isEmpty() ? m_report.status()
                                   : m_console.fail(ExitStatus::Usage, m_failure);
    }

private:
    void followStandardInput();
    void followFile();
    void take(const QByteArray &block);
    bool goesOn() const;
    void wait();
    void end(const QString &failure = QString());

    const LogFollowOptions m_options;
    Console &m_console;
    UnixSignals m_signals;
    QEventLoop m_loop;
    LiveReport m_report;
    LogHistoryBuilder m_builder;
    LineCutter m_lines;
    bool m_hasBegun = false;
    bool m_hasEnded = false;
    QString m_failure; ///< why it cannot be followed; empty while it can
};

void LogFollow::followStandardInput()
{
    InputStream input(STDIN_FILENO);
    QObject::connect(&input, &InputStream::read, &m_loop,
                     [this](const QByteArray &block) { take(block); });
    QObject::connect(&input, &InputStream::ended, &m_loop, [this] {
        m_lines.finish();
        end();
    });
    QObject::connect(&input, &InputStream::failed, &m_loop, [this](const QString &reason) {
        end(Text::tr("Standard input cannot be read: %1").arg(reason));
    });
    wait();
}

void LogFollow::followFile()
{
    GrowingFile file(m_options.path);
    QObject::connect(&file, &GrowingFile::read, &m_loop,
                     [this](const QByteArray &block) { take(block); });
    QObject::connect(&file, &GrowingFile::begunAnew, &m_loop, [this] { m_lines.finish(); });
    QObject::connect(&file, &GrowingFile::waiting, &m_loop,
                     [this](const QString &reason) { m_console.warn(reason); });
    if (!file.open()) {
        end(file.errorString());
        return;
    }
    if (m_options.last > 0)
        file.skipToLast(kBegin, m_options.last);
    file.readOn();
    wait();
}

void LogFollow::take(const QByteArray &block)
{
    if (!goesOn())
        return;
    if (!m_hasBegun && !LogSource::unpacker(block).isEmpty()) {
        end(Text::tr("A compressed log does not grow; read it without --follow"));
        return;
    }
    m_hasBegun = true;
    m_builder.setNow(QDateTime::currentDateTime());
    if (!m_lines.take({block.constData(), size_t(block.size())}))
        end();
    if (m_options.since && m_builder.soFar().lacksTimes())
        end(LogFinding::noTimes());
    m_builder.forgetPast();
}

/// A signal may have come while the file was read.
bool LogFollow::goesOn() const
{
    return !m_hasEnded && m_signals.last() == 0;
}

void LogFollow::wait()
{
    if (goesOn())
        m_loop.exec();
}

void LogFollow::end(const QString &failure)
{
    m_hasEnded = true;
    m_failure = failure;
    m_loop.quit();
}

} // namespace

ExitStatus followLog(const LogFollowOptions &options, Console &console)
{
    return LogFollow(options, console).run();
}
