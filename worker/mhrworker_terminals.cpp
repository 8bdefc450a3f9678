// The attendance terminals: queueing the change of a person.

#include "worker/mhrworker.h"

#include "db/placeholders.h"
#include "db/sqlstatement.h"
#include "db/termsyncstatements.h"
#include "worker/sqlreport.h"

#include <QDebug>
#include <QSqlQuery>

namespace {

const QLatin1String kSelectUidForTerminals("SELECT uid FROM people WHERE pid=%1 LIMIT 1");

} // namespace

void MHRWorker::addTermSyncPerson(unsigned int pid, QChar type, const QString &ref)
{
    if (m_debugLevel >= 2) {
        qDebug("MHRWorker::addTermSyncPerson(%u, %s, %s)", pid, qUtf8Printable(QString(type)),
               qUtf8Printable(ref));
    }
    const quint32 uid =
        SqlReport::findNumber(m_db, Placeholders::filled(kSelectUidForTerminals, pid));
    if (uid == 0) {
        qWarning("MHRWorker::addTermSyncPerson(%u) - uid NOT selected from DB!", pid);
        return;
    }

    const QSqlQuery queued = SqlStatement::run(
        m_db, Placeholders::filled(TermSyncStatements::kQueuePerson, type, ref, uid));
    if (SqlStatement::failed(queued, "MHRWorker::addTermSyncPerson() ERROR:"))
        return;
    const QSqlQuery marked = SqlStatement::runAll(
        m_db, Placeholders::filled(TermSyncStatements::kMarkTermsOfPerson, uid));
    SqlStatement::failed(marked, "MHRWorker::addTermSyncPerson() - updateTermsSync() ERROR:");
}
