#pragma once

#include <QLatin1String>

/// Statements of the terminal queue that the worker sends as well as the repository: the two report
/// a failure in different words.
namespace TermSyncStatements {

/// Queues a change of a person for every active terminal that holds the person: type (%1), ref (%2)
/// and uid (%3).
inline const QLatin1String kQueuePerson(
    "INSERT INTO `term_sync` (tid, type, ref, ref_col, ref_id, created, flags)"
    " SELECT `tid` tid, '%1' type, '%2' ref, 'uid' ref_col, %3 ref_id, UNIX_TIMESTAMP() created,"
    " 2 flags FROM people_term JOIN term USING(tid)"
    " WHERE status = 1 AND uid = %3 AND (flags & 2);");

/// Marks those terminals (`term.syn`): uid (%1).
inline const QLatin1String kMarkTermsOfPerson("CALL updateTermsSync(%1, 2);");

} // namespace TermSyncStatements
