// What belongs to a branch: its people, terminals, administrators and sections.

#include "db/branchesrepository.h"

#include "db/placeholders.h"
#include "db/sqlstatement.h"

#include <QSqlQuery>

namespace {

const QLatin1String
    kAddPeople("INSERT INTO brape (bid, uid, since) SELECT %1 bid, uid, UNIX_TIMESTAMP() since"
               " FROM people WHERE uid IN(%2) ON DUPLICATE KEY UPDATE since=UNIX_TIMESTAMP()");
const QLatin1String kDelPeople("DELETE FROM brape WHERE bid = %1 AND uid IN(%2)");
const QLatin1String kAddTerms("UPDATE term SET bid = %1 WHERE tid IN(%2)");
const QLatin1String kDelTerms("UPDATE term SET bid = NULL WHERE tid IN(%1)");
const QLatin1String
    kAddAdmins("INSERT INTO bradm (bid, aid) SELECT %1 bid, aid FROM admins WHERE aid IN(%2)"
               " ON DUPLICATE KEY UPDATE bid=%1");
const QLatin1String kDelAdmins("DELETE FROM bradm WHERE bid = %1 AND aid IN(%2)");
const QLatin1String kAddSections(
    "INSERT INTO sec_branch (secid, bid) SELECT secid, %1 bid FROM sections WHERE secid IN(%2)"
    " ON DUPLICATE KEY UPDATE bid=%1");
const QLatin1String kDelTriplesOfSections("DELETE FROM bas WHERE bid = %1 AND secid IN(%2)");
const QLatin1String kDelSections("DELETE FROM sec_branch WHERE bid = %1 AND secid IN(%2)");

using Placeholders::filled;

} // namespace

bool BranchesRepository::addPeopleToBranch(ushort bid, const QString &uids)
{
    return changeMembers("BranchesRepository::addPeopleToBranch", filled(kAddPeople, bid, uids),
                         bid, uids, &BranchesRepository::sigAddedPeopleToBranch);
}

bool BranchesRepository::delPeopleFromBranch(ushort bid, const QString &uids)
{
    return changeMembers("BranchesRepository::delPeopleFromBranch", filled(kDelPeople, bid, uids),
                         bid, uids, &BranchesRepository::sigDeletedPeopleFromBranch);
}

bool BranchesRepository::addBranchToTerms(ushort bid, const QString &tids)
{
    return changeMembers("BranchesRepository::addBranchToTerms", filled(kAddTerms, bid, tids), bid,
                         tids, &BranchesRepository::sigAddedBranchToTerms);
}

bool BranchesRepository::delBranchFromTerms(ushort bid, const QString &tids)
{
    return changeMembers("BranchesRepository::delBranchFromTerms", filled(kDelTerms, tids), bid,
                         tids, &BranchesRepository::sigDeletedBranchFromTerms);
}

bool BranchesRepository::addAdminsToBranch(ushort bid, const QString &aids)
{
    return changeMembers("BranchesRepository::addAdminsToBranch", filled(kAddAdmins, bid, aids),
                         bid, aids, &BranchesRepository::sigAddedAdminsToBranch);
}

bool BranchesRepository::delAdminsFromBranch(ushort bid, const QString &aids)
{
    return changeMembers("BranchesRepository::delAdminsFromBranch", filled(kDelAdmins, bid, aids),
                         bid, aids, &BranchesRepository::sigDeletedAdminsFromBranch);
}

bool BranchesRepository::addSectionsToBranch(ushort bid, const QString &secids)
{
    return changeMembers("BranchesRepository::addSectionsToBranch",
                         filled(kAddSections, bid, secids), bid, secids,
                         &BranchesRepository::sigAddedSectionsToBranch);
}

bool BranchesRepository::delSectionsFromBranch(ushort bid, const QString &secids)
{
    if (!beginChange("BranchesRepository::delSectionsFromBranch", bid, secids))
        return false;
    // Sections leave the branch even when their triples could not be deleted. The behaviour is
    // fixed.
    executes(filled(kDelTriplesOfSections, bid, secids),
             "BranchesRepository::delSectionsFromBranch [bas]");
    return applyChange("BranchesRepository::delSectionsFromBranch [sec_branch]",
                       filled(kDelSections, bid, secids), bid, secids,
                       &BranchesRepository::sigDeletedSectionsFromBranch);
}

bool BranchesRepository::beginChange(const char *operation, ushort bid, const QString &ids) const
{
    logCall(operation, bid, ids);
    return bid != 0 && !ids.isEmpty();
}

bool BranchesRepository::applyChange(const char *operation, const QString &sql, ushort bid,
                                     const QString &ids, BranchSignal announce)
{
    const QSqlQuery query = SqlStatement::run(m_db, sql);
    if (failed(query, operation) || query.numRowsAffected() <= 0)
        return false;
    Q_EMIT(this->*announce)(bid, ids);
    return true;
}

bool BranchesRepository::changeMembers(const char *operation, const QString &sql, ushort bid,
                                       const QString &ids, BranchSignal announce)
{
    return beginChange(operation, bid, ids) && applyChange(operation, sql, bid, ids, announce);
}
