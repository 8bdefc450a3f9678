#include "privatedb/boundprocess.h"

#include <csignal>

#include <sys/prctl.h>
#include <unistd.h>

BoundProcess::BoundProcess(int deathSignal, Group group, QObject *parent)
    : QProcess(parent)
    , m_deathSignal(deathSignal)
    , m_group(group)
    , m_parentPid(::getpid())
{
}

// Runs in the child between fork and exec: system calls only.
void BoundProcess::setupChildProcess()
{
    ::prctl(PR_SET_PDEATHSIG, m_deathSignal);
    if (::getppid() != m_parentPid) // the parent died before the bond was made
        ::_exit(1);
    if (m_group == Group::OfItsOwn)
        ::setpgid(0, 0);
}
