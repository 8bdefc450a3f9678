// How a membership change of a branch reaches the branch's terminals and administrators.

#include "db/branchesrepository.h"

#include "db/placeholders.h"
#include "db/sqlstatement.h"
#include "db/termsyncrepository.h"

#include <QSqlQuery>
#include <QStringBuilder>
#include <QVariant>

namespace {

// The texts are fixed, doubled blanks included.
const QLatin1String kTermsOfBranch("SELECT tid FROM term WHERE status > 0 AND bid = %1");
const QLatin1String kAdminsOfBranch("SELECT aid FROM bradm WHERE bid = %1");
const QLatin1String kPeopleOfBranch("SELECT uid FROM brape WHERE bid = %1");
const QLatin1String
    kAdminsOfPerson("SELECT DISTINCT aid FROM bradm JOIN brape USING(bid) WHERE uid = %1");

const QLatin1String kAddPeopleToTerm("INSERT INTO people_term (tid, uid) VALUES %1"
                                     " ON DUPLICATE KEY UPDATE tid=VALUES(tid);");
const QLatin1String kDeletePeopleFromTerm("DELETE FROM people_term WHERE tid=%1  AND uid IN(%2);");
const QLatin1String kAddPeopleToAdmins("INSERT INTO admins_people (aid, uid) VALUES %1"
                                       " ON DUPLICATE KEY UPDATE uid=VALUES(uid);");
const QLatin1String
    kDeletePeopleFromAdmin("DELETE FROM admins_people WHERE aid=%1  AND uid IN(%2);");
const QLatin1String kDeletePersonFromAdmin("DELETE FROM admins_people WHERE aid=%1  AND uid=%2;");

constexpr QLatin1Char kInserted('I');
constexpr QLatin1Char kDeleted('D');

QString joined(const QStringList &ids)
{
    return ids.join(QLatin1Char(','));
}

QStringList splitIds(const QString &ids)
{
    return ids.split(QLatin1Char(','), Qt::SkipEmptyParts);
}

QStringList idTexts(const QVector<unsigned int> &ids)
{
    QStringList texts;
    for (unsigned int id : ids)
        texts += QString::number(id);
    return texts;
}

/// Administrator ids are 16 bits wide where an operation takes a single one.
ushort adminId(const QString &text)
{
    return ushort(text.toUInt());
}

QString tuple(unsigned int owner, unsigned int uid)
{
    return QLatin1Char('(') % QString::number(owner) % QLatin1String(", ") % QString::number(uid)
        % QLatin1Char(')');
}

/// One row "(owner, person)" for every owner and every person whose id is a positive number.
QString rowTuples(const QVector<unsigned int> &owners, const QStringList &uids)
{
    QStringList tuples;
    for (unsigned int owner : owners) {
        for (const QString &text : uids) {
            const unsigned int uid = text.toUInt();
            if (uid != 0)
                tuples += tuple(owner, uid);
        }
    }
    return joined(tuples);
}

/// Calls `operation` for every id, also after one of them failed. True when all succeeded.
template <typename Ids, typename Operation> bool forEveryId(const Ids &ids, Operation operation)
{
    bool ok = true;
    for (const auto &id : ids)
        ok = operation(id) && ok;
    return ok;
}

} // namespace

QVector<unsigned int> BranchesRepository::getTids4Branch(ushort bid) const
{
    logCall("BranchesRepository::getTids4Branch", bid);
    return selectIds(Placeholders::filled(kTermsOfBranch, bid),
                     "BranchesRepository::getTids4Branch");
}

QVector<unsigned int> BranchesRepository::getAids4Branch(ushort bid) const
{
    logCall("BranchesRepository::getAids4Branch", bid);
    return selectIds(Placeholders::filled(kAdminsOfBranch, bid),
                     "BranchesRepository::getAids4Branch");
}

QVector<unsigned int> BranchesRepository::getUids4Branch(ushort bid) const
{
    logCall("BranchesRepository::getUids4Branch", bid);
    return selectIds(Placeholders::filled(kPeopleOfBranch, bid),
                     "BranchesRepository::getUids4Branch");
}

QSet<unsigned int> BranchesRepository::getAids4Uid(unsigned int uid) const
{
    logCall("BranchesRepository::getAids4Uid", uid);
    // Logs the text of the branch lookup, not one of its own: the text is fixed.
    const QVector<unsigned int> aids =
        selectIds(Placeholders::filled(kAdminsOfPerson, uid), "BranchesRepository::getAids4Branch");
    return QSet<unsigned int>(aids.cbegin(), aids.cend());
}

bool BranchesRepository::addPeopleToTerm(unsigned int tid, const QStringList &uids)
{
    const QString tuples = rowTuples({tid}, uids);
    if (tuples.isEmpty())
        return true;
    if (!executes(Placeholders::filled(kAddPeopleToTerm, tuples),
                  "BranchesRepository::AddPeopleToTerm"))
        return false;
    // The queue gets the list as it came, with the texts that gave no tuple.
    m_termSync->addTermSyncPeople(tid, uids, kInserted);
    return true;
}

bool BranchesRepository::deletePeopleFromTerm(unsigned int tid, const QStringList &uids)
{
    logCall("BranchesRepository::deletePeopleFromTerm", tid, joined(uids));
    if (!executes(Placeholders::filled(kDeletePeopleFromTerm, tid, joined(uids)),
                  "BranchesRepository::deletePeopleFromTerm")) {
        return false;
    }
    m_termSync->addTermSyncPeople(tid, uids, kDeleted);
    return true;
}

bool BranchesRepository::addPeopleToAdmin(ushort aid, const QStringList &uids)
{
    return insertPeopleOfAdmins(rowTuples({aid}, uids));
}

bool BranchesRepository::deletePeopleFromAdmin(ushort aid, const QStringList &uids)
{
    logCall("BranchesRepository::deletePeopleFromAdmin", aid, joined(uids));
    return executes(Placeholders::filled(kDeletePeopleFromAdmin, aid, joined(uids)),
                    "BranchesRepository::deletePeopleFromAdmin");
}

bool BranchesRepository::deletePeopleFromAdmin(ushort aid, unsigned int uid)
{
    if (debugLevel != 0)
        qInfo("BranchesRepository::deletePeopleFromAdmin(aid: %u, uid: %u)", aid, uid);
    return executes(Placeholders::filled(kDeletePersonFromAdmin, aid, uid),
                    "BranchesRepository::deletePeopleFromAdmin");
}

bool BranchesRepository::AddPeopleToTerms(ushort bid, const QStringList &uids)
{
    return forEveryId(getTids4Branch(bid),
                      [&](unsigned int tid) { return addPeopleToTerm(tid, uids); });
}

bool BranchesRepository::AddPeopleToAdmins(ushort bid, const QStringList &uids)
{
    return insertPeopleOfAdmins(rowTuples(getAids4Branch(bid), uids));
}

bool BranchesRepository::deletePeopleFromTerms(ushort bid, const QStringList &uids)
{
    logCall("BranchesRepository::deletePeopleFromTerms", bid, joined(uids));
    return forEveryId(getTids4Branch(bid),
                      [&](unsigned int tid) { return deletePeopleFromTerm(tid, uids); });
}

bool BranchesRepository::deletePeopleFromAdmins(ushort bid, const QStringList &uids)
{
    logCall("BranchesRepository::deletePeopleFromAdmins", bid, joined(uids));
    // Administrators are compared by their whole ids; only the removal takes 16 bits.
    const QVector<unsigned int> aids = getAids4Branch(bid);
    return forEveryId(uids, [&](const QString &text) {
        const unsigned int uid = text.toUInt();
        const QSet<unsigned int> kept = getAids4Uid(uid);
        return forEveryId(aids, [&](unsigned int aid) {
            return kept.contains(aid) || deletePeopleFromAdmin(ushort(aid), uid);
        });
    });
}

bool BranchesRepository::slotAddedPeopleToBranch(ushort bid, const QString &uids)
{
    return propagatePeople("BranchesRepository::slotAddedPeopleToBranch", bid, uids,
                           &BranchesRepository::AddPeopleToTerms,
                           &BranchesRepository::AddPeopleToAdmins);
}

bool BranchesRepository::slotDeletedPeopleFromBranch(ushort bid, const QString &uids)
{
    return propagatePeople("BranchesRepository::slotDeletedPeopleFromBranch", bid, uids,
                           &BranchesRepository::deletePeopleFromTerms,
                           &BranchesRepository::deletePeopleFromAdmins);
}

bool BranchesRepository::slotAddedBranchToTerms(ushort bid, const QString &tids)
{
    logCall("BranchesRepository::slotAddedBranchToTerms", bid, tids);
    const QStringList people = idTexts(getUids4Branch(bid));
    return forEveryId(splitIds(tids),
                      [&](const QString &tid) { return addPeopleToTerm(tid.toUInt(), people); });
}

bool BranchesRepository::slotDeletedBranchFromTerms(ushort bid, const QString &tids)
{
    logCall("BranchesRepository::slotDeletedBranchFromTerms", bid, tids);
    const QStringList people = idTexts(getUids4Branch(bid));
    return forEveryId(splitIds(tids), [&](const QString &tid) {
        return deletePeopleFromTerm(tid.toUInt(), people);
    });
}

bool BranchesRepository::slotAddedAdminsToBranch(ushort bid, const QString &aids)
{
    logCall("BranchesRepository::slotAddedAdminsToBranch", bid, aids);
    const QStringList people = idTexts(getUids4Branch(bid));
    return forEveryId(splitIds(aids),
                      [&](const QString &aid) { return addPeopleToAdmin(adminId(aid), people); });
}

bool BranchesRepository::slotDeletedAdminsFromBranch(ushort bid, const QString &aids)
{
    logCall("BranchesRepository::slotDeletedAdminsFromBranch", bid, aids);
    const QStringList people = idTexts(getUids4Branch(bid));
    // Unlike deletePeopleFromAdmins(), people lose the administrator here even when they have the
    // same one through another branch. The behaviour is fixed.
    return forEveryId(splitIds(aids), [&](const QString &aid) {
        return deletePeopleFromAdmin(adminId(aid), people);
    });
}

QVector<unsigned int> BranchesRepository::selectIds(const QString &sql, const char *operation) const
{
    QVector<unsigned int> ids;
    QSqlQuery query = SqlStatement::run(m_db, sql);
    while (query.next())
        ids += query.value(0).toUInt();
    failed(query, operation);
    return ids;
}

bool BranchesRepository::insertPeopleOfAdmins(const QString &tuples)
{
    return tuples.isEmpty()
        || executes(Placeholders::filled(kAddPeopleToAdmins, tuples),
                    "BranchesRepository::AddPeopleToAdmins");
}

bool BranchesRepository::propagatePeople(const char *operation, ushort bid, const QString &uids,
                                         PeopleOperation toTerms, PeopleOperation toAdmins)
{
    logCall(operation, bid, uids);
    const QStringList people = splitIds(uids);
    if (bid == 0 || people.isEmpty())
        return false;
    // Removals are reported with the texts of additions, too: the texts are fixed. Administrators
    // follow even when the terminals failed.
    const bool termsFollowed = (this->*toTerms)(bid, people);
    if (!termsFollowed)
        qWarning("BranchesRepository::slotAddedPeopleToBranch() - AddPeopleToTerms() FAILED!");
    const bool adminsFollowed = (this->*toAdmins)(bid, people);
    if (!adminsFollowed)
        qWarning("BranchesRepository::slotAddedPeopleToBranch() - AddPeopleToAdmins() FAILED!");
    return termsFollowed && adminsFollowed;
}
