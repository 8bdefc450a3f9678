#include "tests/plugin/hostapplication.h"

#include "tests/worker/support/inthreadof.h"

#include <QEvent>
#include <QTimer>

HostApplication *HostApplication::instance()
{
    return static_cast<HostApplication *>(QCoreApplication::instance());
}

bool HostApplication::notify(QObject *receiver, QEvent *event)
{
    if (event->type() == QEvent::ThreadChange && receiver->inherits("MHRWorker")) {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_worker = receiver;
    }
    return QCoreApplication::notify(receiver, event);
}

QObject *HostApplication::worker() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_worker;
}

void HostApplication::forgetWorker()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_worker = nullptr;
}

void HostApplication::runInWorkersThread(const std::function<void()> &task) const
{
    QObject *const target = worker();
    if (target == nullptr)
        qFatal("There is no worker");
    runInThreadOf(target, task);
}

void HostApplication::tick() const
{
    runInWorkersThread(
        [this] { QMetaObject::invokeMethod(worker(), "checkSync", Qt::DirectConnection); });
}

QVector<int> HostApplication::periods() const
{
    QVector<int> periods;
    runInWorkersThread([this, &periods] {
        for (const QTimer *timer : worker()->findChildren<QTimer *>())
            periods += timer->interval();
    });
    return periods;
}

QVector<bool> HostApplication::activity() const
{
    QVector<bool> activity;
    runInWorkersThread([this, &activity] {
        for (const QTimer *timer : worker()->findChildren<QTimer *>())
            activity += timer->isActive();
    });
    return activity;
}
