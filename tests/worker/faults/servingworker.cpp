#include "tests/worker/faults/servingworker.h"

#include "tests/support/patience.h"
#include "tests/worker/support/inthreadof.h"
#include "worker/mhrworker.h"

#include <QTimer>

#include <limits>

ServingWorker::ServingWorker(const QSqlDatabase &database, const QString &exportPath)
    : m_worker(new MHRWorker)
    , m_connectionName(QStringLiteral("YAV.%1.MirovaHR").arg(database.databaseName()))
{
    m_worker->setDebugLevel(2);
    m_worker->setSyncInterval(std::numeric_limits<unsigned int>::max());
    m_worker->setImportFile(exportPath);
    m_worker->setDeleteFileAfterImport(true);
    m_worker->setMes({{22, QStringLiteral("rodičovská dovolenka")}});
    m_worker->setTepDb(database);
    m_worker->moveToThread(&m_thread);
    QObject::connect(&m_thread, &QThread::started, m_worker, &MHRWorker::start);
    QObject::connect(&m_thread, &QThread::finished, m_worker, &MHRWorker::deleteLater);
    m_thread.start();
    runInThreadOf(m_worker, [this] { m_worker->findChild<QTimer *>()->setInterval(1); });
}

ServingWorker::~ServingWorker()
{
    m_thread.quit();
    if (!m_thread.wait(kPatienceMs))
        qFatal("The worker's thread does not end.");
    QSqlDatabase::removeDatabase(m_connectionName);
}
