#include "bench/plainplugin.h"

#include <QDebug>
#include <QSettings>

QString PlainPlugin::getVersion() const
{
    return QString();
}

bool PlainPlugin::start()
{
    const QSettings settings(QStringLiteral("/etc/yav/MirovaHR.ini"), QSettings::IniFormat);
    m_timer.setInterval(settings.value(QStringLiteral("timerInterval"), 60).toInt() * 1000);
    QSqlDatabase::cloneDatabase(m_database, QStringLiteral("YAV.plain"));
    m_timer.moveToThread(&m_thread);
    connect(&m_thread, &QThread::started, &m_timer, [this] {
        qDebug("MHRWorker::init()"); // what bench_start waits for
        m_timer.start();
    });
    m_thread.start(QThread::LowPriority);
    return true;
}

void PlainPlugin::stop() { }
void PlainPlugin::pause() { }
void PlainPlugin::resume() { }
