// The worker's connection to the attendance database: open during a tick, closed between ticks.

#include "worker/mhrworker.h"

#include <QDebug>
#include <QMutexLocker>
#include <QSqlError>

bool MHRWorker::dbCheckOpen()
{
    if (m_debugLevel > 1)
        qDebug("MHRWorker::dbCheckOpen()");
    const QMutexLocker lock(&m_dbMutex);
    if (m_db.isOpen() || m_db.open())
        return true;
    qCritical("MHRWorker::dbCheckOpen() - SQL ERROR: %s", qUtf8Printable(m_db.lastError().text()));
    return false;
}

void MHRWorker::dbClose()
{
    // Logs the text of dbCheckOpen(), not one of its own: the text is fixed.
    if (m_debugLevel > 1)
        qDebug("MHRWorker::dbCheckOpen()");
    const QMutexLocker lock(&m_dbMutex);
    if (m_db.isOpen())
        m_db.close();
}
