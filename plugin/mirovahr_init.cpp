#include "plugin/mirovahr.h"

#include "plugin/configuration.h"
#include "plugin/workersetup.h"
#include "worker/mhrworker.h"

#include <QDebug>

bool MirovaHR::init()
{
    if (m_debugLevel != 0)
        qDebug("MirovaHR::init()");

    const Configuration config = Configuration::read(*m_settings);
    m_enabled = config.enabled;
    if (!m_enabled) {
        qWarning("MirovaHR is DISABLED");
        return false;
    }

    createWorker(config);
    connect(&m_thread, &QThread::started, m_worker, &MHRWorker::start);
    connect(&m_thread, &QThread::finished, m_worker, &MHRWorker::deleteLater);
    m_thread.start(QThread::LowPriority);
    return true;
}

void MirovaHR::createWorker(const Configuration &config)
{
    m_worker = new MHRWorker(nullptr);
    m_worker->moveToThread(&m_thread);
    m_worker->setDebugLevel(m_debugLevel);
    m_worker->setTepDb(m_database);
    configureWorker(*m_worker, config);
}
