#include "cli/text.h"
#include "mirovahrctl/log/logfinding.h"
#include "mirovahrctl/log/logfollow.h"
#include "mirovahrctl/log/loghistorybuilder.h"
#include "mirovahrctl/log/logreport.h"
#include "mirovahrctl/pluginside/logsource.h"
#include "mirovahrctl/program/commandline.h"
#include "mirovahrctl/program/console.h"
#include "mirovahrctl/program/report.h"

#include <QRegularExpression>

#include <algorithm>

namespace {

constexpr char kDescription[] = QT_TRANSLATE_NOOP(
    "Text",
    "Shows what the log of the attendance server says of the plugin's work: for each "
    "synchronisation when it ran, how long, and what it did; then every warning and error "
    "with what it means, whom it concerns, what was lost and what to do; and what is missing. "
    "Whatever stands before the plugin's texts is allowed, and so are lines of others. Reads "
    "files, also those that gzip, xz or zstd has compressed, and without one standard input.\n\n"
    "With --follow it goes on while the log is written, also when the file is rotated: each "
    "synchronisation that is over, each warning and each error is one line. With --json each "
    "line is an object.");

/// So many synchronisations are shown without --last.
constexpr int kMostShown = 50;

/// A time is looked for in so many lines.
constexpr int kLinesWithTime = 1000;

constexpr int kSecondsPerMinute = 60;
constexpr int kSecondsPerHour = 60 * kSecondsPerMinute;
constexpr int kSecondsPerDay = 24 * kSecondsPerHour;

/// The time that "2026-11-22", "2026-11-22 18:00" or "12h" names; invalid for other texts.
QDateTime pointInTime(const QString &text, const QDateTime &now)
{
    static const QRegularExpression span(QStringLiteral("^(\\d{1,8})(min|h|d)$"));
    const QRegularExpressionMatch match = span.match(text);
    if (!match.hasMatch())
        return QDateTime::fromString(QString(text).replace(QLatin1Char(' '), QLatin1Char('T')),
                                     Qt::ISODate);
    const QString unit = match.captured(2);
    const int seconds = unit == QLatin1String("d") ? kSecondsPerDay
        : unit == QLatin1String("h")               ? kSecondsPerHour
                                                   : kSecondsPerMinute;
    return now.addSecs(-match.captured(1).toLongLong() * seconds);
}

class LogRun {
public:
    LogRun(const CommandLine &line, Report &report, Console &console)
        : m_line(line)
        , m_console(console)
        , m_report(report)
        , m_now(QDateTime::currentDateTime())
    {
    }

    ExitStatus run();

private:
    ExitStatus follow();
    std::optional<ExitStatus> readOptions();
    std::optional<ExitStatus> readLogs(LogHistoryBuilder &builder);
    QStringList paths() const;
    std::optional<QDateTime> firstTime(const QString &path) const;

    const CommandLine &m_line;
    Console &m_console;
    Report &m_report;
    const QDateTime m_now;
    std::optional<QDateTime> m_since;
    int m_last = 0; ///< 0: all
};

ExitStatus LogRun::run()
{
    if (const auto end = readOptions())
        return *end;
    if (m_line.isSet("follow"))
        return follow();
    LogHistoryBuilder builder(m_now);
    if (m_since)
        builder.setSince(*m_since);
    if (const auto end = readLogs(builder))
        return *end;
    LogHistory history = builder.finish();
    if (m_since && history.lacksTimes())
        return m_console.fail(ExitStatus::Usage, LogFinding::noTimes());
    if (m_last > 0)
        history.keepLast(m_last);
    m_report.begin(m_line.subcommand(), Text::tr("What the log says of the plugin's work"));
    LogReport report(history, m_last > 0 ? m_last : kMostShown, m_report);
    report.write();
    return m_report.conclude(report.verdict());
}

ExitStatus LogRun::follow()
{
    if (m_line.arguments().size() > 1)
        return m_console.fail(ExitStatus::Usage, Text::tr("--follow takes one log"));
    if (m_line.isSet("html"))
        return m_console.fail(ExitStatus::Usage, Text::tr("--follow writes no page"));
    LogFollowOptions options{paths().constFirst(), m_last, m_since};
    if (m_last > 0 && options.path == QLatin1String(LogSource::kStandardInput)) {
        return m_console.fail(ExitStatus::Usage,
                              Text::tr("--follow begins with what standard input gives; "
                                       "--last needs a file"));
    }
    if (m_last == 0 && !m_since)
        options.last = 1;
    return followLog(options, m_console);
}

std::optional<ExitStatus> LogRun::readOptions()
{
    if (m_line.isSet("since")) {
        const QDateTime since = pointInTime(m_line.value("since"), m_now);
        if (!since.isValid()) {
            return m_console.fail(ExitStatus::Usage,
                                  Text::tr("--since takes a time such as 2026-11-22, "
                                           "2026-11-22T18:00, 90min, 12h or 7d"));
        }
        m_since = since;
    }
    if (m_line.isSet("last")) {
        bool isNumber = false;
        m_last = m_line.value("last").toInt(&isNumber);
        if (!isNumber || m_last < 1)
            return m_console.fail(ExitStatus::Usage, Text::tr("--last takes a number above 0"));
    }
    return std::nullopt;
}

std::optional<ExitStatus> LogRun::readLogs(LogHistoryBuilder &builder)
{
    const QStringList all = paths();
    for (const QString &path : all) {
        LogSource source(path);
        const bool isRead = source.forEachLine([&builder](std::string_view line) {
            builder.take(line);
            return true;
        });
        if (!isRead)
            return m_console.fail(ExitStatus::Usage, source.errorString());
    }
    return std::nullopt;
}

/// The logs, the oldest one first when their lines have times: the shell names log.1 after log.
QStringList LogRun::paths() const
{
    QStringList paths = m_line.arguments();
    if (paths.isEmpty())
        return {QString::fromLatin1(LogSource::kStandardInput)};
    // Whoever looks into standard input takes what is there.
    if (paths.size() == 1 || paths.contains(QLatin1String(LogSource::kStandardInput)))
        return paths;
    QHash<QString, QDateTime> begins;
    for (const QString &path : qAsConst(paths)) {
        const auto begin = firstTime(path);
        if (!begin)
            return paths;
        begins.insert(path, *begin);
    }
    std::stable_sort(paths.begin(), paths.end(), [&begins](const QString &a, const QString &b) {
        return begins.value(a) < begins.value(b);
    });
    return paths;
}

std::optional<QDateTime> LogRun::firstTime(const QString &path) const
{
    LineTime times(m_now);
    std::optional<QDateTime> first;
    int lines = 0;
    LogSource(path).forEachLine([&](std::string_view line) {
        first = times.of(line);
        return !first && ++lines < kLinesWithTime;
    });
    return first;
}

} // namespace

ExitStatus runLog(const QStringList &arguments, Console &console)
{
    CommandLine line("log", kDescription);
    line.addRepeatedArgument(
        Text::tr("file"),
        Text::tr("The logs; - is standard input, which is read without one, too."));
    line.addOption(
        "since", Text::tr("time"),
        Text::tr("Leave out what was logged before: 2026-11-22, 2026-11-22T18:00, or so long ago "
                 "as 90min, 12h or 7d."));
    line.addOption("last", Text::tr("count"),
                   Text::tr("Leave out all but the last synchronisations."));
    line.addFlag(
        "follow",
        Text::tr("Go on while the log is written; begins with the last synchronisation, or with "
                 "what --since or --last says."));
    line.addReportOptions(CommandLine::Page::Offered);
    return Report::run(line, arguments, console,
                       [&](Report &report) { return LogRun(line, report, console).run(); });
}
