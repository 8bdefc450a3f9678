#include "cli/text.h"
#include "mirovahrctl/checkconfig/configassessment.h"
#include "mirovahrctl/program/commandline.h"
#include "mirovahrctl/program/console.h"
#include "mirovahrctl/program/report.h"

#include <QFileInfo>

namespace {

constexpr char kDescription[] = QT_TRANSLATE_NOOP(
    "Text",
    "Reads the plugin's INI file exactly as the plugin does. Shows for each key what will be in "
    "force, and reports what is wrong. Needs no database, and changes nothing.");

QString verdict(ExitStatus status)
{
    return status == ExitStatus::Fine ? Text::tr("Nothing is wrong with the configuration.")
                                      : Text::tr("The configuration needs attention.");
}

ExitStatus check(const CommandLine &line, Report &report, Console &console)
{
    const QString path =
        line.argument(0).isEmpty() ? QString(Configuration::kPath) : line.argument(0);
    const QFileInfo info(path);
    if (info.exists() && !(info.isFile() && info.isReadable())) {
        return console.fail(ExitStatus::Usage, Text::tr("'%1' is not a readable file").arg(path));
    }
    ConfigAssessment check(path);
    report.begin(line.subcommand(), Text::tr("Configuration %1").arg(path));
    report.section(QStringLiteral("keys"), Text::tr("What is in force"));
    report.sentence(Text::tr("The plugin reads the file once, when the attendance server loads the "
                             "plugin. A change takes effect at the next start of the server."));
    report.table(check.keys());

    report.addSection(QStringLiteral("findings"), Text::tr("Findings"), check.findings());
    return report.conclude(verdict(report.findingsStatus()));
}

} // namespace

ExitStatus runCheckConfig(const QStringList &arguments, Console &console)
{
    CommandLine line("check-config", kDescription);
    line.addOptionalArgument(Text::tr("file"),
                             Text::tr("The INI file; /etc/yav/MirovaHR.ini when left out."));
    line.addReportOptions(CommandLine::Page::NotOffered);
    return Report::run(line, arguments, console,
                       [&](Report &report) { return check(line, report, console); });
}
