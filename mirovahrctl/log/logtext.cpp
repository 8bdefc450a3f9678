#include "mirovahrctl/log/logtext.h"

#include "mirovahrctl/log/logtextgroups.h"

const QVector<LogTextGroup> &logTextGroups()
{
    using namespace LogTextGroups;
    static const QVector<LogTextGroup> groups{
        startAndStop(),
        ticksCommandAndFile(),
        people(),
        payrollAndTerminals(),
        vacationBalance(),
        supervisor(),
        branchCalendarRecalculation(),
        settings(),
        branchMembersTerminalsAdministrators(),
        terminalQueue(),
        forms(),
    };
    return groups;
}
