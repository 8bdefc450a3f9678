#include "cli/database.h"
#include "cli/databaseoptions.h"
#include "mirovahrctl/gatestate/gatestatus.h"
#include "mirovahrctl/program/commandline.h"
#include "mirovahrctl/program/console.h"
#include "mirovahrctl/program/report.h"
#include "mirovahrctl/report/moment.h"
#include "mirovahrctl/site/databaseaccess.h"
#include "mirovahrctl/site/sqlsession.h"
#include "mirovahrctl/status/nagios.h"
#include "mirovahrctl/status/statusassessment.h"
#include "mirovahrctl/status/statusdata.h"

#include <QDateTime>

namespace {

constexpr char kDescription[] =
    "Shows what the attendance database knows of the plugin's work and, when the gate's\n"
    "status file is named, what the gate did last. The plugin leaves no trace of a\n"
    "synchronisation that changes nothing: without the gate, an old trace may only mean\n"
    "that nothing happened. Changes nothing.\n\n"
    "With --nagios the answer is one line for a monitoring system, and the exit status\n"
    "follows that convention: 0 OK, 1 WARNING, 2 CRITICAL (also: no database), 3 UNKNOWN\n"
    "(also: wrong usage).";

constexpr double kSecondsPerHour = 3600.0;

class StatusRun {
public:
    StatusRun(const CommandLine &line, Console &console)
        : m_line(line)
        , m_console(console)
    {
    }

    ExitStatus run();

private:
    std::optional<ExitStatus> prepare();
    std::optional<ExitStatus> readLimit(const char *option, std::optional<qint64> &limit);
    std::optional<ExitStatus> readGate();
    ExitStatus answer(const StatusData &data);
    ExitStatus report(const StatusData &data, const StatusAssessment &assessment);
    ExitStatus fail(ExitStatus status, const QString &sentence);

    const CommandLine &m_line;
    Console &m_console;
    AgeLimits m_limits;
    std::optional<GateStatus> m_gate;
};

void reportTime(Report &report, const char *id, const char *label,
                const std::optional<qint64> &time)
{
    if (time) {
        report.fact(QString::fromLatin1(id), QString::fromLatin1(label),
                    Moment::text(QDateTime::fromSecsSinceEpoch(*time)));
    }
}

void reportDatabase(Report &report, const StatusData &data)
{
    report.section(QStringLiteral("database"), QStringLiteral("Database"));
    report.fact(QStringLiteral("forced"), QStringLiteral("Forced synchronisation pending"),
                data.forced);
    report.fact(QStringLiteral("activePeople"), QStringLiteral("Active people"), data.activePeople);
    reportTime(report, "created", "Last person created", data.created);
    reportTime(report, "edited", "Last person changed by the plugin", data.edited);
    report.fact(QStringLiteral("correctionsToday"),
                QStringLiteral("Vacation balances corrected today"), data.correctionsToday);
    report.fact(QStringLiteral("queued"), QStringLiteral("Entries in the terminal queue"),
                data.queued);
    reportTime(report, "oldestQueued", "Oldest entry of the terminal queue", data.oldestQueued);
}

void reportGate(Report &report, const GateStatus &gate)
{
    report.section(QStringLiteral("gate"), QStringLiteral("Gate"));
    report.fact(QStringLiteral("gateResult"), QStringLiteral("Last file"),
                gate.isRefused() ? QStringLiteral("refused") : QStringLiteral("admitted"));
    reportTime(report, "gateTime", "Last run", gate.time());
    reportTime(report, "admittedTime", "Last admission", gate.admittedTime());
    if (!gate.admittedFile().isEmpty())
        report.fact(QStringLiteral("admittedFile"), QStringLiteral("Admitted file"),
                    gate.admittedFile());
    if (gate.admittedLines())
        report.fact(QStringLiteral("admittedLines"), QStringLiteral("Lines in the admitted file"),
                    *gate.admittedLines());
}

/// The status to end with after the command line was parsed and its errors were printed.
ExitStatus usageEnd(ExitStatus end, bool forNagios, Console &console)
{
    if (!forNagios || end != ExitStatus::Usage || console.json() != nullptr)
        return end;
    console.print(
        Nagios::line(Nagios::Level::Unknown,
                     QStringLiteral("Invalid command line: see mirovahrctl status --help")));
    return Nagios::exitStatus(Nagios::Level::Unknown);
}

ExitStatus StatusRun::run()
{
    if (const auto end = prepare())
        return *end;
    DatabaseOptions options;
    if (const auto end = m_line.readDatabase(options, m_console))
        return usageEnd(*end, m_line.isSet("nagios"), m_console);
    QString error;
    const auto database = openDatabase(options, DatabaseAccess::ReadOnly, error);
    if (!database)
        return fail(ExitStatus::NoDatabase, error);
    SqlSession site(database->handle());
    const auto data = StatusData::read(site, error);
    return data ? answer(*data) : fail(ExitStatus::NoDatabase, error);
}

std::optional<ExitStatus> StatusRun::prepare()
{
    if (m_line.isSet("nagios") && m_line.isSet("json"))
        return fail(ExitStatus::Usage, QStringLiteral("Give --nagios or --json, not both"));
    if (const auto end = readLimit("warning", m_limits.warning))
        return end;
    if (const auto end = readLimit("critical", m_limits.critical))
        return end;
    return readGate();
}

std::optional<ExitStatus> StatusRun::readLimit(const char *option, std::optional<qint64> &limit)
{
    if (!m_line.isSet(option))
        return std::nullopt;
    bool isNumber = false;
    const double hours = m_line.value(option).toDouble(&isNumber);
    if (!isNumber || !(hours > 0 && hours < 1e6)) {
        return fail(
            ExitStatus::Usage,
            QStringLiteral("--%1 takes a number of hours above 0").arg(QLatin1String(option)));
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
    return fail(ExitStatus::Usage, error);
}

ExitStatus StatusRun::answer(const StatusData &data)
{
    const StatusAssessment assessment = StatusAssessment::of(
        data, m_gate ? &*m_gate : nullptr, m_limits, QDateTime::currentSecsSinceEpoch());
    if (!m_line.isSet("nagios"))
        return report(data, assessment);
    m_console.print(Nagios::statusLine(data, assessment, m_limits));
    return Nagios::exitStatus(Nagios::level(assessment));
}

ExitStatus StatusRun::report(const StatusData &data, const StatusAssessment &assessment)
{
    Report report(m_line, m_console);
    report.begin(m_line.subcommand(), QStringLiteral("Status of the plugin"));
    reportDatabase(report, data);
    if (m_gate)
        reportGate(report, *m_gate);
    if (!assessment.findings.isEmpty())
        report.section(QStringLiteral("findings"), QStringLiteral("Findings"));
    for (const Finding &finding : assessment.findings)
        report.finding(finding);
    return report.conclude(report.findingsStatus(),
                           assessment.findings.isEmpty()
                               ? QStringLiteral("No findings.")
                               : QStringLiteral("The plugin's work needs attention."));
}

ExitStatus StatusRun::fail(ExitStatus status, const QString &sentence)
{
    if (!m_line.isSet("nagios"))
        return m_console.fail(status, sentence);
    const Nagios::Level level =
        status == ExitStatus::NoDatabase ? Nagios::Level::Critical : Nagios::Level::Unknown;
    m_console.print(Nagios::line(level, sentence));
    return Nagios::exitStatus(level);
}

void addOptions(CommandLine &line)
{
    line.addOption("gate-status", "file", "The status file that the gate writes.");
    line.addOption("warning", "hours",
                   "Warn when the last admission of a file, or without --gate-status the last "
                   "trace of the plugin, was this many hours ago.");
    line.addOption("critical", "hours",
                   "The same as an error, which --nagios reports as CRITICAL.");
    line.addFlag("nagios",
                 "Print one line for a monitoring system, in the convention of its plugins.");
    line.addReportOptions(CommandLine::Page::NotOffered);
    line.addDatabaseOptions();
}

} // namespace

ExitStatus runStatus(const QStringList &arguments, Console &console)
{
    CommandLine line("status", kDescription);
    addOptions(line);
    if (const auto end = line.parse(arguments, console))
        return usageEnd(*end, arguments.contains(QLatin1String("--nagios")), console);
    return StatusRun(line, console).run();
}
