#pragma once

#include "plugin/interfaces/serverinterface.h"

#include <QObject>
#include <QThread>
#include <QTimer>

/// The simplest plugin that starts like the measured one: an INI file, a connection of its own, a
/// thread and a timer in it.
class PlainPlugin : public QObject, public ServerInterface {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "com.vantor-la.yav.ServerInterface")
    Q_INTERFACES(ServerInterface)

public:
    QString getVersion() const override;
    bool start() override;
    void stop() override;
    void pause() override;
    void resume() override;

private:
    QThread m_thread;
    QTimer m_timer;
};
