#pragma once

#include "mirovahrctl/log/logtext.h"

/// The groups of logTextGroups(), each defined beside its kin.
namespace LogTextGroups {

LogTextGroup startAndStop();
LogTextGroup ticksCommandAndFile();
LogTextGroup people();
LogTextGroup payrollAndTerminals();
LogTextGroup vacationBalance();
LogTextGroup supervisor();
LogTextGroup branchCalendarRecalculation();
LogTextGroup settings();
LogTextGroup branchMembersTerminalsAdministrators();
LogTextGroup terminalQueue();
LogTextGroup forms();

} // namespace LogTextGroups
