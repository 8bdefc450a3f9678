#include "privatedb/mariadbprocess.h"

#include "privatedb/serverfolder.h"

#include <QProcessEnvironment>

#include <csignal>

MariaDbProcess::MariaDbProcess(const ServerFolder &folder, Group group, QObject *parent)
    : BoundProcess(SIGKILL, group, parent)
    , m_folder(folder)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("TMPDIR"), folder.temporaryDir());
    setProcessEnvironment(environment);
}

// Runs in the child between fork and exec: system calls only.
void MariaDbProcess::setupChildProcess()
{
    BoundProcess::setupChildProcess();
    m_folder.belongToThisProcess();
}
