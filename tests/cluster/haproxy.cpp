#include "tests/cluster/haproxy.h"

#include "tests/support/cluster/galeracluster.h"
#include "tests/support/patience.h"

#include <QFile>
#include <QLocalSocket>
#include <QStandardPaths>

#include <algorithm>
#include <csignal>

#include <unistd.h>

namespace {

bool write(const QString &path, const QString &content)
{
    const QByteArray bytes = content.toUtf8();
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

} // namespace

HaProxy::HaProxy(GaleraCluster &cluster)
    : m_cluster(cluster)
    , m_process(SIGKILL, BoundProcess::Group::OfItsOwn)
{
    m_process.setProcessChannelMode(QProcess::MergedChannels);
}

HaProxy::~HaProxy()
{
    stop();
}

bool HaProxy::start()
{
    stop();
    const QString program =
        QStandardPaths::findExecutable("haproxy", {"/usr/sbin", "/usr/local/sbin"});
    if (program.isEmpty())
        return fail("HAProxy is missing: install the package haproxy.");
    if (!writeConfiguration())
        return false;
    QFile::remove(socketPath());
    m_process.start(program, {"-db", "-f", configurationPath()});
    m_process.waitForStarted(-1);
    const bool listens =
        pollUntil([this] { return QFile::exists(socketPath()) || m_process.waitForFinished(0); });
    return (listens && m_process.state() == QProcess::Running)
        || fail("HAProxy does not start: " + m_process.readAll());
}

void HaProxy::stop()
{
    m_process.kill();
    m_process.waitForFinished(-1);
}

QString HaProxy::administer(const QString &command) const
{
    QLocalSocket socket;
    socket.connectToServer(administratorsSocketPath());
    socket.write(command.toUtf8() + '\n');
    QByteArray answer;
    while (socket.waitForReadyRead(kPatienceMs))
        answer += socket.readAll();
    return QString::fromUtf8(answer + socket.readAll());
}

bool HaProxy::waitForState(int number, const QString &state) const
{
    constexpr int kName = 1;
    constexpr int kState = 17;
    const QString name = QStringLiteral("node%1").arg(number);
    return pollUntil([&] {
        const QStringList lines = administer("show stat").split('\n');
        return std::any_of(lines.begin(), lines.end(), [&](const QString &line) {
            const QStringList fields = line.split(',');
            return fields.value(kName) == name && fields.value(kState) == state;
        });
    });
}

bool HaProxy::writeConfiguration()
{
    QMap<QString, QString> places = {{"127.0.0.1:3306", "unix@" + socketPath()},
                                     {"/run/haproxy/admin.sock", administratorsSocketPath()},
                                     {"/etc/haproxy/wsrep-check", checkPath()},
                                     // The program's own, whose folder nobody else may enter.
                                     {"user haproxy", QStringLiteral("uid %1").arg(geteuid())},
                                     {"group haproxy", QStringLiteral("gid %1").arg(getegid())}};
    for (int number = 1; number <= m_cluster.size(); ++number) {
        const ClusterNode &node = m_cluster.node(number);
        places.insert(QStringLiteral("192.0.2.%1:3306").arg(number),
                      QStringLiteral("%1:%2").arg(node.address()).arg(node.port()));
    }
    return writeCheck() && fill("haproxy.cfg", places, configurationPath());
}

bool HaProxy::writeCheck()
{
    const PrivateMariaDb &server = m_cluster.node(1).server();
    const QString account = QStringLiteral("[client]\nuser=%1\npassword=%2\n")
                                .arg(server.userName(), server.password());
    const QString accountPath = m_folder.filePath("wsrep-check.cnf");
    return write(accountPath, account)
        && fill("wsrep-check", {{"/etc/haproxy/wsrep-check.cnf", accountPath}}, checkPath())
        && QFile::setPermissions(checkPath(),
                                 QFile::ReadOwner | QFile::ExeOwner | QFile::WriteOwner);
}

/// Writes a file of packaging/cluster to \a path, with other places in it.
bool HaProxy::fill(const QString &sample, const QMap<QString, QString> &places, const QString &path)
{
    QFile file(QStringLiteral(MIROVAHR_CLUSTER_FILES "/") + sample);
    if (!file.open(QIODevice::ReadOnly))
        return fail(file.fileName() + ": " + file.errorString());
    QString text = QString::fromUtf8(file.readAll());
    for (auto place = places.cbegin(); place != places.cend(); ++place) {
        if (!text.contains(place.key()))
            return fail(sample + " has no " + place.key());
        text.replace(place.key(), place.value());
    }
    return write(path, text) || fail(path + " could not be written.");
}

bool HaProxy::fail(const QString &error)
{
    m_error = error;
    return false;
}
