#include "plugin/mirovahr.h"

#include "worker/mhrworker.h"

#include <QDebug>
#include <QSettings>

bool MirovaHR::init()
{
    if (m_debugLevel != 0)
        qDebug("MirovaHR::init()");

    m_enabled = m_settings->value(QStringLiteral("enabled"), true).toBool();
    if (!m_enabled) {
        qWarning("MirovaHR is DISABLED");
        return false;
    }

    createWorker();
    configureWorker();

    connect(&m_thread, &QThread::started, m_worker, &MHRWorker::start);
    connect(&m_thread, &QThread::finished, m_worker, &MHRWorker::deleteLater);
    m_thread.start(QThread::LowPriority);
    return true;
}

void MirovaHR::createWorker()
{
    m_worker = new MHRWorker(nullptr);
    m_worker->moveToThread(&m_thread);
    m_worker->setDebugLevel(m_debugLevel);
    m_worker->setTepDb(m_database);
}

void MirovaHR::configureWorker()
{
    const auto number = [this](const char *key, uint fallback) {
        return m_settings->value(QLatin1String(key), fallback).toUInt();
    };
    const auto flag = [this](const char *key, bool fallback) {
        return m_settings->value(QLatin1String(key), fallback).toBool();
    };
    const auto text = [this](const char *key) {
        return m_settings->value(QLatin1String(key)).toString();
    };

    // Seconds to milliseconds in 32 bits: a period above 4294967 s wraps, and always has.
    m_worker->setInterval(number("timerInterval", 60) * 1000U);
    m_worker->setSyncInterval(number("syncInterval", 60));
    m_worker->setTestMode(flag("testMode", false));
    m_worker->setImportFile(text("importFile"));
    m_worker->setDeleteFileAfterImport(flag("deleteFile", true));
    m_worker->setSyncCommand(text("syncCommand"));
    // The condition is kept in 8 bits: 257 means 1.
    m_worker->setSyncCommandRunCondition(static_cast<unsigned char>(number("syncCommandRun", 0)));
    m_worker->setDepartmentId(number("departmentId", 1));
    m_worker->setMes(readMessageTable());
}

QHash<unsigned short, QString> MirovaHR::readMessageTable()
{
    QHash<unsigned short, QString> table;
    m_settings->beginGroup(QStringLiteral("MES"));
    const QStringList keys = m_settings->allKeys();
    for (const QString &key : keys) {
        const auto code = static_cast<unsigned short>(key.toUInt(nullptr, 10));
        table[code] = QString::fromUtf8(m_settings->value(key).toByteArray());
    }
    m_settings->endGroup();
    return table;
}
