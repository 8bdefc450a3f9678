#include "privatedb/mariadbprocess.h"

#include "privatedb/environment.h"
#include "privatedb/serverfolder.h"

#include <csignal>

#include <sys/resource.h>

namespace {

/// Variables that lead to the service manager and to the service that this program may belong to.
constexpr const char *kServiceVariables[] = {"NOTIFY_SOCKET",  "LISTEN_FDS",   "LISTEN_PID",
                                             "LISTEN_FDNAMES", "WATCHDOG_PID", "WATCHDOG_USEC"};

} // namespace

MariaDbProcess::MariaDbProcess(const ServerFolder &folder, Group group, QObject *parent)
    : BoundProcess(SIGKILL, group, parent)
    , m_folder(folder)
{
    QProcessEnvironment environment = environmentWithoutServers();
    for (const char *const name : kServiceVariables)
        environment.remove(QLatin1String(name));
    environment.insert(QStringLiteral("TMPDIR"), folder.temporaryDir());
    setProcessEnvironment(environment);
}

// Runs in the child between fork and exec: system calls only.
void MariaDbProcess::setupChildProcess()
{
    BoundProcess::setupChildProcess();
    const rlimit none = {0, 0};
    ::setrlimit(RLIMIT_CORE, &none);
    m_folder.belongToThisProcess();
}
