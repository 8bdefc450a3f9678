#pragma once

#include "mirovahrctl/report/finding.h"

struct LogHistory;
struct LoggedProblem;
struct LoggedSynchronisation;

/// What a log says, as findings and in their words.
namespace LogFinding {

/// An error is one, a warning is a note when nothing has to be done.
Severity severityOf(const LoggedProblem &problem);

/// A problem with all that is known of it. \a history: where the people's names are.
Finding ofProblem(const LoggedProblem &problem, const LogHistory &history);

/// What a problem means, in a sentence or two.
QString briefly(const LoggedProblem &problem);

/// A synchronisation that has begun, did not end, and does not run any more.
Finding ofMissingEnd(const LoggedSynchronisation &synchronisation);

/// The same of one that may still run: it is the last one of the log.
Finding ofOpenEnd(const LoggedSynchronisation &synchronisation);

/// A synchronisation that began before the log does.
Finding ofMissingBegin(const LoggedSynchronisation &synchronisation);

/// Why nothing can be left out of a log as too old, a sentence without its full stop.
QString noTimes();

} // namespace LogFinding
