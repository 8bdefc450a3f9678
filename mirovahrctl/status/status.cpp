#include "cli/systemmessage.h"
#include "cli/text.h"
#include "mirovahrctl/gatestate/gatestatus.h"
#include "mirovahrctl/pluginside/interruptions.h"
#include "mirovahrctl/pluginside/logsource.h"
#include "mirovahrctl/pluginside/waitingrecords.h"
#include "mirovahrctl/program/commandline.h"
#include "mirovahrctl/program/console.h"
#include "mirovahrctl/program/report.h"
#include "mirovahrctl/report/moment.h"
#include "mirovahrctl/site/sitedatabase.h"
#include "mirovahrctl/status/metrics.h"
#include "mirovahrctl/status/nagios.h"
#include "mirovahrctl/status/statusassessment.h"
#include "mirovahrctl/status/statusdata.h"

#include <QDateTime>
#include <QSaveFile>

namespace {

constexpr char kDescription[] = QT_TRANSLATE_NOOP(
    "Text",
    "Shows what the attendance database knows of the plugin's work and, when the gate's "
    "status file is named, what the gate did last. The plugin leaves no trace of a "
    "synchronisation that changes nothing: without the gate, an old trace may only mean "
    "that nothing happened. Changes nothing.\n\n"
    "With --nagios the answer is one line for a monitoring system, and the exit status "
    "follows that convention: 0 OK, 1 WARNING, 2 CRITICAL (also: no database), 3 UNKNOWN "
    "(also: wrong usage).\n\n"
    "With --metrics the same is written for a system that collects samples, also when "
    "the database cannot be reached.");

constexpr double kSecondsPerHour = 3600.0;

class StatusRun {
public:
    StatusRun(const CommandLine &line, Report &report, Console &console)
        : m_line(line)
        , m_console(console)
        , m_report(report)
    {
    }

    ExitStatus run();

private:
    std::optional<ExitStatus> readOptions();
    std::optional<ExitStatus> readLimit(const char *option, std::optional<qint64> &limit);
    std::optional<ExitStatus> readSources();
    std::optional<ExitStatus> readGate();
    std::optional<ExitStatus> readLog();
    std::optional<ExitStatus> readDatabase();
    /// The reason of a failure, a sentence without its full stop; empty without any.
    QString writeMetrics(bool complete) const;
    ExitStatus answer();
    ExitStatus report();

    const CommandLine &m_line;
    Console &m_console;
    Report &m_report;
    AgeLimits m_limits;
    std::optional<GateStatus> m_gate;
    qint64 m_interruptions = 0; ///< in the log
    WaitingRecords m_waiting; ///< by the log
    std::optional<StatusData> m_data;
    StatusAssessment m_assessment;
};

void reportTime(Report &report, const char *id, const QString &label,
                const std::optional<qint64> &time)
{
    if (time) {
        report.fact(QString::fromLatin1(id), label,
                    Moment::text(QDateTime::fromSecsSinceEpoch(*time)));
    }
}

void reportDatabase(Report &report, const StatusData &data)
{
    report.section(QStringLiteral("database"), Text::tr("Database"));
    report.fact(QStringLiteral("forced"), Text::tr("Forced synchronisation pending"), data.forced);
    report.fact(QStringLiteral("activePeople"), Text::tr("Active people"), data.activePeople);
    reportTime(report, "created", Text::tr("Last person created"), data.created);
    reportTime(report, "edited", Text::tr("Last person changed by the plugin"), data.edited);
    report.fact(QStringLiteral("correctionsToday"), Text::tr("Vacation balances corrected today"),
                data.correctionsToday);
    report.fact(QStringLiteral("queued"), Text::tr("Entries in the terminal queue"), data.queued);
    reportTime(report, "oldestQueued", Text::tr("Oldest entry of the terminal queue"),
               data.oldestQueued);
}

void reportGate(Report &report, const GateStatus &gate)
{
    report.section(QStringLiteral("gate"), Text::tr("Gate"));
    report.fact(QStringLiteral("gateResult"), Text::tr("Last file"),
                gate.isRefused() ? Text::tr("refused") : Text::tr("admitted"));
    reportTime(report, "gateTime", Text::tr("Last run"), gate.time());
    reportTime(report, "admittedTime", Text::tr("Last admission"), gate.admittedTime());
    if (!gate.admittedFile().isEmpty())
        report.fact(QStringLiteral("admittedFile"), Text::tr("Admitted file"), gate.admittedFile());
    if (gate.admittedLines())
        report.fact(QStringLiteral("admittedLines"), Text::tr("Lines in the admitted file"),
                    *gate.admittedLines());
    if (gate.linesWithErrors())
        report.fact(QStringLiteral("linesWithErrors"),
                    Text::tr("Lines with errors in the last file"), *gate.linesWithErrors());
    if (gate.linesWithWarnings())
        report.fact(QStringLiteral("linesWithWarnings"),
                    Text::tr("Lines with warnings in the last file"), *gate.linesWithWarnings());
}

void reportLog(Report &report, qint64 waiting)
{
    report.section(QStringLiteral("log"), Text::tr("Log"));
    report.fact(QStringLiteral("waiting"),
                Text::tr("Records that wait for a branch or a calendar group"), waiting);
}

/// Answers the monitoring system although the subcommand has failed.
ExitStatus failForNagios(ExitStatus status, const QString &sentence, Console &console)
{
    const Nagios::Level level =
        status == ExitStatus::NoDatabase ? Nagios::Level::Critical : Nagios::Level::Unknown;
    console.print(Nagios::line(level, sentence));
    return Nagios::exitStatus(level);
}

ExitStatus StatusRun::run()
{
    if (const auto end = readOptions())
        return *end;
    const auto end = readSources();
    const QString error = writeMetrics(!end);
    if (end) {
        if (!error.isEmpty())
            m_console.warn(error);
        return *end;
    }
    return error.isEmpty() ? answer() : m_console.fail(ExitStatus::Usage, error);
}

std::optional<ExitStatus> StatusRun::readOptions()
{
    if (m_line.isSet("nagios") && m_line.isSet("json"))
        return m_console.fail(ExitStatus::Usage, Text::tr("Give --nagios or --json, not both"));
    if (const auto end = readLimit("warning", m_limits.warning))
        return end;
    return readLimit("critical", m_limits.critical);
}

std::optional<ExitStatus> StatusRun::readSources()
{
    if (const auto end = readGate())
        return end;
    if (const auto end = readLog())
        return end;
    if (const auto end = readDatabase())
        return end;
    m_assessment = StatusAssessment::of(*m_data, m_gate ? &*m_gate : nullptr, m_limits,
                                        QDateTime::currentSecsSinceEpoch());
    m_assessment.noteInterruptions(m_interruptions);
    return std::nullopt;
}

std::optional<ExitStatus> StatusRun::readLimit(const char *option, std::optional<qint64> &limit)
{
    if (!m_line.isSet(option))
        return std::nullopt;
    bool isNumber = false;
    const double hours = m_line.value(option).toDouble(&isNumber);
    if (!isNumber || !(hours > 0 && hours < 1e6)) {
        return m_console.fail(
            ExitStatus::Usage,
            Text::tr("--%1 takes a number of hours above 0").arg(QLatin1String(option)));
    }
    limit = qint64(hours * kSecondsPerHour);
    return std::nullopt;
}

std::optional<ExitStatus> StatusRun::readGate()
{
    if (!m_line.isSet("gate-status"))
        return std::nullopt;
    QString error;
    m_gate = GateStatus::read(m_line.value("gate-status"), error);
    if (m_gate)
        return std::nullopt;
    return m_console.fail(ExitStatus::Usage, error);
}

std::optional<ExitStatus> StatusRun::readLog()
{
    if (!m_line.isSet("log"))
        return std::nullopt;
    LogSource log(m_line.value("log"));
    const bool read = log.forEachLine([this](std::string_view line) {
        m_interruptions += Interruptions::isLoggedIn(line) ? 1 : 0;
        m_waiting.take(line);
        return true;
    });
    if (read)
        return std::nullopt;
    return m_console.fail(ExitStatus::Usage, log.errorString());
}

std::optional<ExitStatus> StatusRun::readDatabase()
{
    SiteDatabase site;
    if (const auto end = site.open(m_line, DatabaseAccess::ReadOnly, m_console))
        return end;
    QString error;
    m_data = StatusData::read(site.sql(), error);
    if (m_data)
        return std::nullopt;
    return m_console.fail(ExitStatus::NoDatabase, error);
}

QString StatusRun::writeMetrics(bool complete) const
{
    if (!m_line.isSet("metrics"))
        return {};
    // No personal data: unlike a page, the file is for everybody whom the umask lets read it.
    QSaveFile file(m_line.value("metrics"));
    const QByteArray text = Metrics::text({m_data ? &*m_data : nullptr, m_gate ? &*m_gate : nullptr,
                                           m_waiting.count(), complete ? &m_assessment : nullptr},
                                          complete);
    if (file.open(QIODevice::WriteOnly) && file.write(text) == text.size() && file.commit())
        return {};
    return Text::tr("'%1' cannot be written: %2")
        .arg(file.fileName(), systemMessage(file.errorString()));
}

ExitStatus StatusRun::answer()
{
    if (!m_line.isSet("nagios"))
        return report();
    m_console.print(Nagios::statusLine(*m_data, m_assessment, m_limits));
    return Nagios::exitStatus(Nagios::level(m_assessment));
}

ExitStatus StatusRun::report()
{
    m_report.begin(m_line.subcommand(), Text::tr("Status of the plugin"));
    reportDatabase(m_report, *m_data);
    if (m_gate)
        reportGate(m_report, *m_gate);
    if (const auto waiting = m_waiting.count())
        reportLog(m_report, *waiting);
    m_report.addSection(QStringLiteral("findings"), Text::tr("Findings"), m_assessment.findings);
    return m_report.conclude(m_assessment.findings.isEmpty()
                                 ? Text::tr("No findings.")
                                 : Text::tr("The plugin's work needs attention."));
}

void addOptions(CommandLine &line)
{
    line.addOption("gate-status", Text::tr("file"),
                   Text::tr("The status file that the gate writes."));
    line.addOption(
        "log", Text::tr("file"),
        Text::tr("The attendance server's log of today, - for standard input: how many records "
                 "wait, and whether a deadlock or a lost connection has interrupted statements."));
    line.addOption(
        "warning", Text::tr("hours"),
        Text::tr("Warn when the last admission of a file, or without --gate-status the last "
                 "trace of the plugin, was this many hours ago."));
    line.addOption("critical", Text::tr("hours"),
                   Text::tr("The same as an error, which --nagios reports as CRITICAL."));
    line.addFlag(
        "nagios",
        Text::tr("Print one line for a monitoring system, in the convention of its plugins."));
    line.addOption(
        "metrics", Text::tr("file"),
        Text::tr("Also write OpenMetrics text to this file, at one stroke, for a monitoring "
                 "system that collects it."));
    line.addReportOptions(CommandLine::Page::NotOffered);
    line.addDatabaseOptions();
}

} // namespace

ExitStatus runStatus(const QStringList &arguments, Console &console)
{
    CommandLine line("status", kDescription);
    addOptions(line);
    // Also a wrong command line must be answered in the monitoring system's form.
    if (arguments.contains(QLatin1String("--nagios"))) {
        console.setFailure([&console](ExitStatus status, const QString &sentence) {
            return failForNagios(status, sentence, console);
        });
    }
    return Report::run(line, arguments, console,
                       [&](Report &report) { return StatusRun(line, report, console).run(); });
}
