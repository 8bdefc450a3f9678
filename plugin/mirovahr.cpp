#include "plugin/mirovahr.h"

#include "plugin/configuration.h"
#include "worker/mhrworker.h"

#include <QDebug>
#include <QFileInfo>
#include <QSettings>

MirovaHR::MirovaHR(QObject *parent)
    : QObject(parent)
{
    const QString path = Configuration::kPath;
    if (!QFileInfo(path).isFile())
        qWarning() << "MirovaHR: INI file not found on:" << path;

    m_settings = Configuration::open(path).release();
}

MirovaHR::~MirovaHR()
{
    delete m_settings;
    m_thread.quit();
    m_thread.wait();
}

QString MirovaHR::getVersion() const
{
    return QStringLiteral("1.5.3");
}

bool MirovaHR::start()
{
    if (m_debugLevel != 0)
        qDebug("Start MirovaHR..");
    if (!m_enabled)
        return true;

    if (m_initialized)
        m_worker->start();
    else
        m_initialized = init();

    if (!m_enabled || m_initialized)
        return true;
    qWarning("MirovaHR not start properly - init failed!");
    return false;
}

void MirovaHR::stop()
{
    if (m_debugLevel != 0)
        qDebug("Stop MirovaHR..");
    if (m_enabled && m_worker)
        m_worker->stop();
}

void MirovaHR::pause()
{
    if (m_debugLevel != 0)
        qDebug("Pause MirovaHR..");
    if (m_enabled && m_worker)
        m_worker->stop();
}

void MirovaHR::resume()
{
    if (m_debugLevel != 0)
        qDebug("Resume MirovaHR..");
    if (m_enabled && m_worker)
        m_worker->start();
}
