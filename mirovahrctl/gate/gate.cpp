#include "mirovahrctl/gate/gaterun.h"
#include "mirovahrctl/gatestate/gateoptions.h"
#include "mirovahrctl/program/commandline.h"
#include "mirovahrctl/program/report.h"

namespace {

constexpr char kDescription[] = QT_TRANSLATE_NOOP(
    "Text",
    "Takes HR's file, checks it as check-file does, compares it with the last admitted one, and "
    "publishes it in one step where the plugin reads it. Refuses a file that is empty, truncated "
    "or being written, or in which more differs than the limits allow: people who leave, move, "
    "return or are new, values that change, are emptied or misread, balances and supervisors that "
    "no life of a firm explains. Each limit is a number and a percentage; exceeding either is "
    "enough. Of a refused file nothing is published.\n\nIntended as the syncCommand of the "
    "plugin's INI file. Run it as the attendance server's user. The first file has no other to "
    "compare with and is refused, too: admit it with --accept.");

} // namespace

ExitStatus runGate(const QStringList &arguments, Console &console)
{
    CommandLine line("gate", kDescription);
    GateOptions::addTo(line);
    line.addReportOptions(CommandLine::Page::NotOffered);
    return Report::run(line, arguments, console, [&](Report &report) {
        GateOptions options;
        if (const auto end = options.read(line, console))
            return *end;
        return GateRun(line, options, report, console).run();
    });
}
