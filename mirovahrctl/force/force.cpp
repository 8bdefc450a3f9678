#include "cli/text.h"
#include "mirovahrctl/pluginside/forceflag.h"
#include "mirovahrctl/pluginside/pluginconfiguration.h"
#include "mirovahrctl/program/commandline.h"
#include "mirovahrctl/program/console.h"
#include "mirovahrctl/program/report.h"
#include "mirovahrctl/report/finding.h"
#include "mirovahrctl/report/rules/forcerules.h"
#include "mirovahrctl/site/sitedatabase.h"
#include "worker/importfile.h"
#include "worker/schedule.h"

#include <QFileInfo>

namespace {

constexpr char kDescription[] = QT_TRANSLATE_NOOP(
    "Text",
    "Sets the flag in the attendance database that makes the plugin synchronise at its next tick, "
    "and write every person of the export, whether the line has changed or not. The plugin clears "
    "the flag afterwards. Needs an account that may write to the table vars, such as the "
    "plugin's.");

class ForceRun {
public:
    ForceRun(const CommandLine &line, Report &report, Console &console)
        : m_line(line)
        , m_console(console)
        , m_report(report)
        , m_on(!line.isSet("clear"))
    {
    }

    ExitStatus run();

private:
    void reportFlag(bool wasSet, bool isSet);
    void reportPlugin();
    void reportExport();
    ExitStatus fail(const ForceFlag &flag);
    QString verdict(bool isSet) const;

    const CommandLine &m_line;
    Console &m_console;
    Report &m_report;
    const bool m_on;
    PluginConfiguration m_configuration; ///< read when the flag is to be set
};

ExitStatus ForceRun::run()
{
    if (m_on) {
        if (const auto end = m_configuration.read(m_line, m_console))
            return *end;
    }
    SiteDatabase site;
    if (const auto end = site.open(m_line, DatabaseAccess::ReadWrite, m_console))
        return *end;
    ForceFlag flag(site.sql().database());
    const auto before = flag.isSet();
    if (!before)
        return fail(flag);
    if (!flag.set(m_on))
        return fail(flag);
    const auto after = flag.isSet();
    if (!after)
        return fail(flag);
    m_report.begin(m_line.subcommand(), Text::tr("Forced synchronisation"));
    m_report.section(QStringLiteral("flag"), Text::tr("Flag"));
    reportFlag(*before, *after);
    if (m_on && *after)
        reportPlugin();
    return m_report.conclude(verdict(*after));
}

void ForceRun::reportFlag(bool wasSet, bool isSet)
{
    m_report.fact(QStringLiteral("before"), Text::tr("Set before"), wasSet);
    m_report.fact(QStringLiteral("now"), Text::tr("Set now"), isSet);
    if (m_on && wasSet) {
        m_report.sentence(Text::tr("The flag was already set: the plugin has not acted on it "
                                   "yet, or is synchronising now."));
    }
    if (m_on != isSet) {
        m_report.add(
            ForceRules::kChangedMeanwhile,
            m_on ? Text::tr("The flag was set and is cleared again: a synchronisation that "
                            "was already running has just ended and cleared it.")
                 : Text::tr(
                     "The flag was cleared and is set again: somebody else has just set it."));
    }
}

void ForceRun::reportPlugin()
{
    const Configuration &config = m_configuration.values();
    m_report.section(QStringLiteral("plugin"), Text::tr("Plugin"));
    m_report.sentence(m_configuration.origin());
    const int seconds =
        Schedule::timerInterval(Schedule::tickPeriod(config.tickMilliseconds)) / 1000;
    m_report.fact(QStringLiteral("tickSeconds"), Text::tr("Seconds between ticks"), seconds);
    m_report.sentence(Text::tr("The plugin sees the flag at its next tick, within %Ln second(s) "
                               "when it is not busy.",
                               nullptr, seconds));
    if (!config.enabled) {
        m_report.add(ForceRules::kDisabled,
                     Text::tr("The configuration disables the plugin: it does not tick."));
    }
    if (config.testMode) {
        m_report.add(ForceRules::kTestMode,
                     Text::tr("Test mode is on: people are only logged, not written."));
    }
    if (m_configuration.exists())
        reportExport();
}

void ForceRun::reportExport()
{
    const Configuration &config = m_configuration.values();
    const QString path = ImportFile::path(config.importFile);
    if (config.runsCommand(true)) {
        m_report.sentence(Text::tr("The plugin runs the export command first."));
    } else if (!QFileInfo(path).isFile()) {
        m_report.add(ForceRules::kNoExport,
                     Text::tr("There is no export %1 now. Unless HR delivers one before that tick, "
                              "nothing is synchronised, and the flag is cleared even so.")
                         .arg(path));
    }
}

ExitStatus ForceRun::fail(const ForceFlag &flag)
{
    return m_console.fail(ExitStatus::NoDatabase, flag.errorString());
}

QString ForceRun::verdict(bool isSet) const
{
    return isSet ? Text::tr("A forced synchronisation is pending.")
                 : Text::tr("No forced synchronisation is pending.");
}

} // namespace

ExitStatus runForce(const QStringList &arguments, Console &console)
{
    CommandLine line("force", kDescription);
    line.addFlag("clear", Text::tr("Clear the flag instead."));
    PluginConfiguration::addTo(line);
    line.addReportOptions(CommandLine::Page::NotOffered);
    line.addDatabaseOptions();
    return Report::run(line, arguments, console,
                       [&](Report &report) { return ForceRun(line, report, console).run(); });
}
