// The supervisor: which administrator handles the requests of a person.

#include "worker/mhrworker.h"

#include "db/placeholders.h"
#include "worker/recordlog.h"
#include "worker/sqlreport.h"
#include "worker/transaction.h"

#include <QDebug>
#include <QSqlQuery>
#include <QVariant>

namespace {

const QLatin1String kSelectAid("SELECT aid FROM admins WHERE personalNumber = %1");

const QLatin1String kResetRequest("UPDATE admins_people SET request =0 WHERE uid=%1 AND aid != %2");

const QLatin1String kSetRequest("INSERT INTO admins_people (aid, uid, request) VALUES(%1, %2, 1) "
                                "ON DUPLICATE KEY UPDATE request=1");

} // namespace

void MHRWorker::processNadOsCis(const MirovaRonRecord &rec)
{
    if (m_debugLevel >= 1) {
        qDebug("MHRWorker::processNadOsCis(%s, NOC: %u)", qUtf8Printable(rec.getPamId()),
               rec.nadrizenyOsobniCislo);
    }
    if (rec.nadrizenyOsobniCislo == 0)
        return;

    const quint32 aid = dbGetAidByOsCis(rec.nadrizenyOsobniCislo);
    if (aid == 0) {
        qWarning(RecordLog::kAdministratorNotFound, rec.nadrizenyOsobniCislo);
        return;
    }
    const quint32 pid = rec.getPid();
    const quint32 uid = getUidByPid(pid);
    if (uid == 0) {
        qWarning(RecordLog::kPersonNotFound, pid);
        return;
    }

    Transaction transaction(m_db);
    if (dbResetAdminPeopleRequest(aid, uid) < 0 || dbSetAdminPeopleRequest(aid, uid) < 0) {
        transaction.rollback();
        qWarning("MHRWorker::processNadOsCis() - (Re)Set Admin People Request FAilED!");
        return;
    }
    transaction.commit();
}

unsigned int MHRWorker::dbGetAidByOsCis(unsigned int personalNumber)
{
    // Logs a personal number under the label "uid": the text is fixed.
    if (m_debugLevel >= 2)
        qDebug("MHRWorker::dbGetAidByOsCis(uid: %u)", personalNumber);
    QSqlQuery query(m_db);
    const bool done =
        SqlReport::execShowingStatement(query, Placeholders::filled(kSelectAid, personalNumber),
                                        "MHRWorker::dbGetAidByOsCis() - SQL ERROR");
    const uint aid = done ? SqlReport::nextNumber(query) : 0;
    if (m_debugLevel >= 1)
        qDebug("MHRWorker::dbGetAidByOsCis(uid: %u): %u", personalNumber, aid);
    return aid;
}

int MHRWorker::dbResetAdminPeopleRequest(unsigned int aid, unsigned int uid)
{
    if (m_debugLevel >= 2)
        qDebug("MHRWorker::dbResetAdminPeopleRequest(aid: %u, uid: %u)", aid, uid);
    const int affected = changeRequest(Placeholders::filled(kResetRequest, uid, aid),
                                       "MHRWorker::dbResetAdminPeopleRequest() - SQL ERROR",
                                       "MHRWorker::dbResetAdminPeopleRequest");
    if (m_debugLevel >= 1) {
        qDebug("MHRWorker::dbResetAdminPeopleRequest(aid: %u, uid: %u) - affected: %i", aid, uid,
               affected);
    }
    return affected;
}

int MHRWorker::dbSetAdminPeopleRequest(unsigned int aid, unsigned int uid)
{
    if (m_debugLevel >= 2)
        qDebug("MHRWorker::dbSetAdminPeopleRequest(aid: %u, uid: %u)", aid, uid);
    const int affected =
        changeRequest(Placeholders::filled(kSetRequest, aid, uid),
                      "MHRWorker::dbSetAdminPeopleRequest() - SQL ERROR", "MHRWorker");
    if (m_debugLevel >= 1) {
        qDebug("MHRWorker::dbSetAdminPeopleRequest(aid: %u, uid: %u) - affected: %i", aid, uid,
               affected);
    }
    return affected;
}

int MHRWorker::changeRequest(const QString &sql, const char *operation, const char *label)
{
    QSqlQuery query(m_db);
    if (!SqlReport::execShowingStatement(query, sql, operation))
        return -1;
    const int affected = query.numRowsAffected();
    if (m_debugLevel >= 2) {
        qDebug("%s - query '%s' - affected rows: %i", label, qUtf8Printable(query.lastQuery()),
               affected);
    }
    return affected;
}
