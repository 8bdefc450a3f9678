#include "db/termsyncrepository.h"

#include "db/placeholders.h"
#include "db/sqlstatement.h"
#include "db/termsyncstatements.h"

#include <QSqlQuery>
#include <QVariant>

namespace {

// The kinds of data that a terminal fetches, as bits of `term.flags` and `term.syn`.
constexpr unsigned short kInters = 1;
constexpr unsigned short kPeople = 2;
constexpr unsigned short kColorGroups = 256;

const QLatin1String
    kQueuePersonForTerm("INSERT INTO `term_sync` (tid, type, ref, ref_col, ref_id, created, flags)"
                        " VALUES(%1, '%2', '%3', 'uid', %4, UNIX_TIMESTAMP(), 2)");
const QLatin1String kQueuePeopleForTerm(
    "INSERT INTO `term_sync` (tid, type, ref, ref_col, ref_id, created, flags)"
    " SELECT %1 tid, '%2' type, 'people_term' ref, 'uid' ref_col, `uid` ref_id,"
    " UNIX_TIMESTAMP() created, 2 flags FROM people WHERE status = 1 AND uid IN(%3);");
const QLatin1String kQueueInter(
    "INSERT INTO `term_sync` (tid, type, ref, ref_col, ref_id, created, flags)"
    " SELECT `tid` tid, '%1' type, '%2' ref, 'iid' ref_col, %3 ref_id, UNIX_TIMESTAMP() created,"
    " 1 flags FROM inters_term JOIN term USING(tid)"
    " WHERE status = 1 AND iid = %3 AND (flags & 1);");
const QLatin1String
    kQueueInterForTerm("INSERT INTO `term_sync` (tid, type, ref, ref_col, ref_id, created, flags)"
                       " VALUES(%1, '%2', '%3', 'iid', %4, UNIX_TIMESTAMP(), 1)");
const QLatin1String
    kQueueIntersForTerm("INSERT INTO `term_sync` (tid, type, ref, ref_col, ref_id, created, flags)"
                        " SELECT %1 tid, '%2' type, 'inters_term' ref, 'iid' ref_col, `iid` ref_id,"
                        " UNIX_TIMESTAMP() created, 1 flags FROM inters WHERE iid IN(%3);");
const QLatin1String kQueueTimezone(
    "INSERT INTO `term_sync` (tid, type, ref, ref_col, ref_id, created, flags)"
    " SELECT `tid` tid, '%1' type, '%2' ref, 'zid' ref_col, %3 ref_id, UNIX_TIMESTAMP() created,"
    " 64 flags FROM pzt JOIN term t USING(tid)"
    " WHERE zid = %3 AND t.status = 1 AND (t.flags & 64) GROUP BY t.tid;");
const QLatin1String kQueueZoneAssignment(
    "INSERT INTO `term_sync` (tid, type, ref, ref_col, ref_id, ref_col2, ref_id2, created, flags)"
    " VALUES(%1, '%2', '%3', 'zid', %4, 'uid', %5, UNIX_TIMESTAMP(), 64)");
const QLatin1String
    kQueueColorGroup("INSERT INTO `term_sync` (tid, type, ref, ref_col, ref_id, created, flags)"
                     " VALUES(%1, 'U', 'people_term', 'uid', %2, UNIX_TIMESTAMP(), 256)");
const QLatin1String kQueueColorGroupsOfPeople(
    "INSERT INTO `term_sync` (tid, type, ref, ref_col, ref_id, created, flags)"
    " SELECT %1 tid, 'U' type, 'people_term' ref, 'uid' ref_col, `uid` ref_id,"
    " UNIX_TIMESTAMP() created, 256 flags FROM people WHERE status = 1 AND uid IN(%2);");
const QLatin1String
    kQueueColorGroups("INSERT INTO `term_sync` (tid, type, ref, ref_col, ref_id, created, flags)"
                      " SELECT tid, 'U' type, 'vars' ref, 'colorGroups' ref_col, 0 ref_id,"
                      " UNIX_TIMESTAMP() created, 256 flags FROM term t"
                      " WHERE t.status = 1 AND (t.flags & 256);");

const QLatin1String kMarkTerm("Update `term` SET syn = syn | %1 WHERE status = 1 AND tid = %2");
const QLatin1String
    kSelectTermsOfInter("SELECT it.tid FROM inters_term it JOIN term t ON it.tid = t.tid"
                        " WHERE t.status = 1 AND iid = %1 AND (t.flags & 1)");
const QLatin1String
    kMarkTermsForInters("UPDATE `term` SET `syn` = (`syn` | 1 ) WHERE `tid` IN (%1)");
// Takes every terminal with a status above 0, though only those with status 1 get queue rows. The
// behaviour is fixed: do not align the two.
const QLatin1String kMarkTermsOfTimezone(
    "DROP TEMPORARY TABLE IF EXISTS tmptbl_updateTermsSyncTZ;"
    "CREATE TEMPORARY TABLE tmptbl_updateTermsSyncTZ AS (SELECT DISTINCT t.tid"
    " FROM pzt JOIN term t USING(tid) WHERE zid = %1 AND (t.status > 0) AND (t.flags & 64));"
    "UPDATE `term` SET `syn` = (`syn` | 64 )"
    " WHERE `tid` IN (SELECT tid FROM tmptbl_updateTermsSyncTZ);"
    "DROP TEMPORARY TABLE IF EXISTS tmptbl_updateTermsSyncTZ;");
const QLatin1String
    kMarkTermForTimezones("UPDATE `term` SET `syn` = (`syn` | 64 ) WHERE `tid` = %1");
const QLatin1String kMarkTermsForColorGroups(
    "Update `term` SET syn = syn | 256 WHERE status = 1 AND (flags & 256);");

QString idList(const QStringList &ids)
{
    return ids.join(QStringLiteral(", "));
}

bool hasFailed(const QSqlQuery &query, const char *message)
{
    return SqlStatement::failed(query, message, SqlStatement::Encoding::Local8Bit);
}

} // namespace

TermSyncRepository::TermSyncRepository(QObject *parent)
    : QObject(parent)
{
}

void TermSyncRepository::setDB(const QSqlDatabase &db)
{
    m_db = db;
}

void TermSyncRepository::addTermSyncPerson(unsigned int uid, QChar type, const QString &ref)
{
    if (!succeeds(Placeholders::filled(TermSyncStatements::kQueuePerson, type, ref, uid),
                  "TermSyncRepository::addTermSyncPerson() ERROR:")) {
        return;
    }
    hasFailed(SqlStatement::runAll(
                  m_db, Placeholders::filled(TermSyncStatements::kMarkTermsOfPerson, uid)),
              "TermSyncRepository::addTermSyncPerson() - updateTermsSync() FAILED! ERROR:");
}

void TermSyncRepository::addTermSyncPerson(unsigned int tid, unsigned int uid, QChar type,
                                           const QString &ref)
{
    queueForTerm(tid, kPeople, Placeholders::filled(kQueuePersonForTerm, tid, type, ref, uid),
                 "TermSyncRepository::addTermSyncPerson() ERROR:");
}

void TermSyncRepository::addTermSyncPeople(unsigned int tid, const QStringList &uids, QChar type)
{
    queueForTerm(tid, kPeople, Placeholders::filled(kQueuePeopleForTerm, tid, type, idList(uids)),
                 "TermSyncRepository::addTermSyncPeople() ERROR:");
}

void TermSyncRepository::addTermSyncInter(unsigned int iid, QChar type, const QString &ref)
{
    if (!succeeds(Placeholders::filled(kQueueInter, type, ref, iid),
                  "TermSyncRepository::addTermSyncInter() ERROR:")) {
        return;
    }
    const QStringList tids = termsWithInter(iid);
    if (tids.isEmpty())
        return;
    succeeds(Placeholders::filled(kMarkTermsForInters, tids.join(QLatin1Char(','))),
             "TermSyncRepository::addTermSyncInter() - updateTermsSync() FAILED! ERROR:");
}

void TermSyncRepository::addTermSyncInter(unsigned int tid, unsigned int iid, QChar type,
                                          const QString &ref)
{
    queueForTerm(tid, kInters, Placeholders::filled(kQueueInterForTerm, tid, type, ref, iid),
                 "TermSyncRepository::addTermSyncInter() ERROR:");
}

void TermSyncRepository::addTermSyncInters(unsigned int tid, const QStringList &iids, QChar type)
{
    // Logs the text of the people operation, not one of its own: the text is fixed.
    queueForTerm(tid, kInters, Placeholders::filled(kQueueIntersForTerm, tid, type, idList(iids)),
                 "TermSyncRepository::addTermSyncPeople() ERROR:");
}

void TermSyncRepository::addTermSyncTimezone(unsigned int zid, QChar type, const QString &ref)
{
    if (!succeeds(Placeholders::filled(kQueueTimezone, type, ref, zid),
                  "TermSyncRepository::addTermSyncTimezone() ERROR:")) {
        return;
    }
    hasFailed(SqlStatement::runAll(m_db, Placeholders::filled(kMarkTermsOfTimezone, zid)),
              "TermSyncRepository::addTermSyncTimezone() - update terminals FAILED! ERROR:");
}

void TermSyncRepository::addTermSyncPZT(unsigned int uid, unsigned int zid, unsigned int tid,
                                        QChar type, const QString &ref)
{
    if (!succeeds(Placeholders::filled(kQueueZoneAssignment, tid, type, ref, zid, uid),
                  "TermSyncRepository::addTermSyncPZT() ERROR:")) {
        return;
    }
    if (type == QLatin1Char('I'))
        addTermSyncTimezone(zid, QLatin1Char('I'), QStringLiteral("zones"));
    succeeds(Placeholders::filled(kMarkTermForTimezones, tid),
             "TermSyncRepository::addTermSyncPZT() - update terminals FAILED! ERROR:");
}

void TermSyncRepository::addColorGroup(unsigned int tid, unsigned int uid)
{
    queueForTerm(tid, kColorGroups, Placeholders::filled(kQueueColorGroup, tid, uid),
                 "TermSyncRepository::addColorGroup() ERROR:");
}

void TermSyncRepository::addColorGroup(unsigned int tid, const QStringList &uids)
{
    queueForTerm(tid, kColorGroups,
                 Placeholders::filled(kQueueColorGroupsOfPeople, tid, idList(uids)),
                 "TermSyncRepository::addColorGroup() - INSERT INTO `term_sync` FAILED! ERROR:");
}

void TermSyncRepository::addColorGroupsToTermSync()
{
    succeeds(kQueueColorGroups,
             "TermSyncRepository::addColorGroupsToTermSync()"
             " - INSERT INTO `term_sync` FAILED! ERROR:");
    // Unlike the others, this one marks the terminals even when nothing could be queued. The
    // behaviour is fixed.
    succeeds(kMarkTermsForColorGroups,
             "TermSyncRepository::addColorGroupsToTermSync() - Update `term` FAILED! ERROR:");
}

bool TermSyncRepository::setTermSyn(unsigned int tid, unsigned short bits)
{
    const QSqlQuery query = SqlStatement::run(m_db, Placeholders::filled(kMarkTerm, bits, tid));
    return !hasFailed(query, "TermSyncRepository::setTermSyn() ERROR:")
        && query.numRowsAffected() > 0;
}

bool TermSyncRepository::succeeds(const QString &sql, const char *message) const
{
    return !hasFailed(SqlStatement::run(m_db, sql), message);
}

void TermSyncRepository::queueForTerm(unsigned int tid, unsigned short bits, const QString &sql,
                                      const char *message)
{
    if (succeeds(sql, message))
        setTermSyn(tid, bits);
}

QStringList TermSyncRepository::termsWithInter(unsigned int iid) const
{
    QStringList tids;
    QSqlQuery query = SqlStatement::run(m_db, Placeholders::filled(kSelectTermsOfInter, iid));
    while (query.next())
        tids += query.value(0).toString();
    return tids;
}
