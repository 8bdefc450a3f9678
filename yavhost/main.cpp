#include "cli/database.h"
#include "yavhost/hostoptions.h"
#include "yavhost/hostoutput.h"
#include "yavhost/hostsession.h"
#include "yavhost/serverplugin.h"

#include <QCoreApplication>
#include <QMap>

#include <cstdio>

namespace {

int end(ExitStatus status, const QString &detail)
{
    printFailure(status, detail);
    return static_cast<int>(status);
}

void printMap(const QMap<QString, QString> &map)
{
    for (auto entry = map.cbegin(); entry != map.cend(); ++entry)
        std::printf("%s: %s\n", qUtf8Printable(entry.key()), qUtf8Printable(entry.value()));
}

int printVersionInfo(const QString &library)
{
    ServerPlugin plugin(library);
    if (!plugin.load())
        return end(ExitStatus::NoPlugin, plugin.errorString());
    printMap(plugin.metaData());
    printMap(plugin.versionInfo());
    return end(ExitStatus::Success, {});
}

int runPlugin(const HostOptions &options)
{
    if (!Database::isDriverAvailable())
        return end(ExitStatus::NoDatabase, Database::missingDriverText());
    HostSession session(options);
    const ExitStatus status = session.run();
    return end(status, session.detail());
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const ParsedCommandLine commandLine = parseCommandLine(QCoreApplication::arguments());
    if (!commandLine.answer.isEmpty()) {
        std::fputs(qUtf8Printable(commandLine.answer), stdout);
        return 0;
    }
    if (!commandLine.error.isEmpty())
        return end(ExitStatus::Usage, commandLine.error);
    if (commandLine.options.versionInfo)
        return printVersionInfo(commandLine.options.library);
    if (!commandLine.options.warning.isEmpty())
        printWarning(commandLine.options.warning);
    return runPlugin(commandLine.options);
}
