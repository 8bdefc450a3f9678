#include "mirovahrctl/gate/gaterun.h"
#include "mirovahrctl/gatestate/gateoptions.h"
#include "mirovahrctl/program/commandline.h"

namespace {

constexpr char kDescription[] =
    "Takes HR's file, checks it as check-file does, compares it with the last admitted one,\n"
    "and puts it at one stroke where the plugin reads it. Refuses a file that is empty,\n"
    "truncated or being written, or in which more lines are gone, more people leave or more\n"
    "people get another cost centre than the limits let pass: a number and a percentage\n"
    "each, and the file is refused when either is exceeded. Then nothing is published.\n\n"
    "Made to be the syncCommand of the plugin's INI file. Run it by the attendance server's\n"
    "user. The first file has nothing to be compared with and is refused, too: admit it with\n"
    "--accept.";

} // namespace

ExitStatus runGate(const QStringList &arguments, Console &console)
{
    CommandLine line("gate", kDescription);
    GateOptions::addTo(line);
    line.addReportOptions(CommandLine::Page::NotOffered);
    if (const auto end = line.parse(arguments, console))
        return *end;
    GateOptions options;
    if (const auto end = options.read(line, console))
        return *end;
    return GateRun(line, options, console).run();
}
