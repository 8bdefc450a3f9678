#include "cli/text.h"
#include "mirovahrctl/doctor/checkup.h"
#include "mirovahrctl/doctor/service.h"
#include "mirovahrctl/gatestate/gateoptions.h"
#include "mirovahrctl/gatestate/gatestatus.h"
#include "mirovahrctl/gatestate/siteexport.h"
#include "mirovahrctl/pluginside/pluginconfiguration.h"
#include "mirovahrctl/program/commandline.h"
#include "mirovahrctl/program/console.h"
#include "mirovahrctl/program/report.h"
#include "mirovahrctl/report/rules/doctorrules.h"
#include "mirovahrctl/report/wording.h"
#include "worker/importfile.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace {

constexpr char kDescription[] = QT_TRANSLATE_NOOP(
    "Text",
    "Runs what can be checked here, and ends with the one most important thing to do: the "
    "configuration, yavhost.service where it is installed, the database with the time zones of "
    "this process and the server, the export that lies there, the plugin's and the gate's last "
    "work, and what the database lacks of the file that the gate admitted last. Shows of each rule "
    "one finding. Changes nothing.");

/// Options that are of doctor only; all others that are set belong to the database.
const QStringList kOwnOptions{QStringLiteral("config"), QStringLiteral("plugin-account"),
                              QStringLiteral("since"), QStringLiteral("json"),
                              QStringLiteral("html")};

class DoctorRun {
public:
    DoctorRun(const CommandLine &line, Report &report, Console &console)
        : m_line(line)
        , m_console(console)
        , m_report(report)
        , m_password(qgetenv(CommandLine::kPasswordVariable))
    {
    }

    ExitStatus run();

private:
    void checkConfiguration();
    void checkService();
    void checkService(const Service &service);
    bool checkSight(const Service &service, const QString &path);
    void checkDatabase();
    void checkExport();
    void checkStatus();
    void checkDrift();

    void check(const char *id, const QString &heading, const QStringList &command);
    void add(const Finding &finding);
    /// A check that may connect: the command gets the database options.
    void checkWithDatabase(const char *id, const QString &heading, const QStringList &command);
    QString importFile() const;
    QString verdict() const;

    const CommandLine &m_line;
    Console &m_console;
    Report &m_report;
    const QByteArray m_password; ///< of the environment, where the first check overwrites it
    PluginConfiguration m_configuration;
    std::optional<GateOptions> m_gate; ///< of the gate that the plugin runs
    QVector<Finding> m_findings; ///< of all checks
};

ExitStatus DoctorRun::run()
{
    if (const auto end = m_configuration.read(m_line, m_console))
        return *end;
    m_gate = GateOptions::ofCommand(m_configuration.values().syncCommand);
    m_report.begin(m_line.subcommand(), Text::tr("What needs attention here"));
    checkConfiguration();
    checkDatabase();
    checkExport();
    checkService();
    checkStatus();
    checkDrift();
    return m_report.conclude(verdict());
}

void DoctorRun::checkConfiguration()
{
    QStringList command{QStringLiteral("check-config")};
    if (m_line.isSet("config"))
        command += m_line.value("config");
    check("configuration", Text::tr("Configuration"), command);
}

void DoctorRun::checkService()
{
    const auto service = Service::load();
    if (!service)
        return;
    m_report.section(QStringLiteral("service"), Text::tr("Service"));
    m_report.sentence(Text::tr("yavhost.service is %1 and %2.")
                          .arg(service->unitFileState, service->activeState));
    checkService(*service);
}

void DoctorRun::checkService(const Service &service)
{
    if (service.isWanted() && !service.runs()) {
        add(makeFinding(
            DoctorRules::kServiceNotRunning,
            Text::tr("yavhost.service does not run; its state is %1.").arg(service.activeState)));
    }
    // The plugin removes the export there, and the gate publishes it.
    QStringList folders{QFileInfo(importFile()).absolutePath()};
    if (m_gate) {
        folders += m_gate->stateFolder;
        checkSight(service, m_gate->from);
    }
    for (const QString &folder : qAsConst(folders)) {
        if (!checkSight(service, folder))
            continue;
        const QString reason = service.whyNotWriting(folder);
        if (!reason.isEmpty())
            add(makeFinding(DoctorRules::kServiceCannotWrite, Wording::sentence(reason)));
    }
}

/// Whether the service finds under the path what everybody does; reports it when not.
bool DoctorRun::checkSight(const Service &service, const QString &path)
{
    const QString reason = service.whyNotSeeing(path);
    if (!reason.isEmpty())
        add(makeFinding(DoctorRules::kServiceCannotSee, Wording::sentence(reason)));
    return reason.isEmpty();
}

void DoctorRun::checkDatabase()
{
    QStringList command{QStringLiteral("check-db")};
    if (!m_line.isSet("plugin-account"))
        command += QStringLiteral("--other-account");
    if (m_configuration.exists())
        command << QStringLiteral("--config") << m_configuration.path();
    checkWithDatabase("database", Text::tr("Database"), command);
}

void DoctorRun::checkExport()
{
    QStringList files{importFile()};
    if (m_gate)
        files += m_gate->from;
    const auto file = std::find_if(files.cbegin(), files.cend(),
                                   [](const QString &path) { return QFileInfo(path).isFile(); });
    if (file != files.cend()) {
        checkWithDatabase("export", Text::tr("Export"), {QStringLiteral("check-file"), *file});
        return;
    }
    m_report.section(QStringLiteral("export"), Text::tr("Export"));
    m_report.sentence(
        Text::tr("No export lies here now: %1.").arg(files.join(QStringLiteral(", "))));
}

void DoctorRun::checkStatus()
{
    QStringList command{QStringLiteral("status")};
    if (m_gate) {
        command << QStringLiteral("--gate-status")
                << QDir(m_gate->stateFolder).filePath(GateStatus::fileName());
    }
    checkWithDatabase("status", Text::tr("The last work"), command);
}

/// Only the gate keeps what was synchronised last.
void DoctorRun::checkDrift()
{
    const Configuration &configuration = m_configuration.values();
    SiteExport admitted;
    if (!admitted.open({}, {}, configuration, SiteExport::Preference::Admitted)
        || admitted.source() != SiteExport::Source::Gate)
        return;
    const QString heading = Text::tr("What the database lacks");
    if (configuration.deleteFile && QFileInfo::exists(importFile())) {
        m_report.section(QStringLiteral("drift"), heading);
        m_report.sentence(Text::tr("The plugin has not read the export %1 yet: run drift when it "
                                   "has synchronised.")
                              .arg(importFile()));
        return;
    }
    QStringList command{QStringLiteral("drift"), QStringLiteral("--config"),
                        m_configuration.path()};
    if (m_line.isSet("since"))
        command << QStringLiteral("--since") << m_line.value("since");
    checkWithDatabase("drift", heading, command);
}

void DoctorRun::checkWithDatabase(const char *id, const QString &heading,
                                  const QStringList &command)
{
    QStringList whole = command;
    const QStringList set = m_line.parser().optionNames();
    for (const QString &option : set) {
        if (!kOwnOptions.contains(option))
            whole << QStringLiteral("--") + option << m_line.parser().value(option);
    }
    if (!m_password.isEmpty() && !qEnvironmentVariableIsSet(CommandLine::kPasswordVariable))
        qputenv(CommandLine::kPasswordVariable, m_password);
    check(id, heading, whole);
    qunsetenv(CommandLine::kPasswordVariable);
}

void DoctorRun::check(const char *id, const QString &heading, const QStringList &command)
{
    const Checkup checkup = Checkup::run(command);
    m_report.section(QString::fromLatin1(id), heading);
    m_report.sentence(
        QStringLiteral("mirovahrctl %1").arg(Wording::visible(command.join(QLatin1Char(' ')))));
    if (checkup.failed) {
        add(makeFinding(DoctorRules::kCheckFailed,
                        QStringLiteral("%1: %2").arg(command.first(), checkup.verdict)));
        return;
    }
    m_report.sentence(checkup.verdict);
    for (const Finding &finding : checkup.findings)
        add(finding);
}

void DoctorRun::add(const Finding &finding)
{
    m_findings += finding;
    m_report.finding(finding);
}

QString DoctorRun::importFile() const
{
    return ImportFile::path(m_configuration.values().importFile);
}

QString DoctorRun::verdict() const
{
    // The checks come in the order in which one failure explains the next.
    const auto worst = std::max_element(
        m_findings.cbegin(), m_findings.cend(),
        [](const Finding &a, const Finding &b) { return a.severity < b.severity; });
    if (worst == m_findings.cend())
        return Text::tr("Nothing needs to be done.");
    const QString what = worst->advice.isEmpty()
        ? Text::tr("mirovahrctl rules %1 explains it.").arg(worst->rule)
        : worst->advice;
    return Text::tr("Do this first: %1 %2").arg(worst->message, what);
}

} // namespace

ExitStatus runDoctor(const QStringList &arguments, Console &console)
{
    CommandLine line("doctor", kDescription);
    PluginConfiguration::addTo(line);
    line.addFlag("plugin-account", Text::tr("The account is the plugin's: check its rights, too."));
    line.addOption(
        "since", Text::tr("day"),
        Text::tr("Leave out what is done once for each person or member, and would have been done "
                 "before this day: payroll export, terminals and administrators."));
    line.addReportOptions(CommandLine::Page::Offered);
    line.addDatabaseOptions();
    return Report::run(line, arguments, console,
                       [&](Report &report) { return DoctorRun(line, report, console).run(); });
}
