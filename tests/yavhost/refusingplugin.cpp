#include "plugin/interfaces/serverinterface.h"

#include <QObject>

class RefusingPlugin : public QObject, public ServerInterface {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "com.vantor-la.yav.ServerInterface")
    Q_INTERFACES(ServerInterface)

public:
    QString getVersion() const override { return QStringLiteral("0"); }
    bool start() override { return false; }
    void stop() override { }
    void pause() override { }
    void resume() override { }
};

#include "refusingplugin.moc"
