// Runs a command beside a private Galera cluster behind HAProxy, which goes away afterwards:
//
//   private-cluster [OPTION...] -- COMMAND [ARGUMENT...]
//
// OPTIONs are further ones of mariadbd for each node. The command finds the proxy's socket in
// MIROVAHR_CLUSTER_SOCKET, the password of the plugin's account in the file that
// MIROVAHR_CLUSTER_PASSWORD_FILE names, and the sockets of the nodes, for their administrator, in
// MIROVAHR_CLUSTER_NODES, separated by colons.

#include "privatedb/hostaccount.h"
#include "tests/cluster/attendancecluster.h"

#include <QCoreApplication>
#include <QProcess>
#include <QTemporaryDir>

#include <cstdio>

namespace {

int complain(const QString &text)
{
    std::fprintf(stderr, "private-cluster: %s\n", qPrintable(text));
    return 1;
}

/// Tells the command where the cluster is. What went wrong, empty when nothing did.
QString describe(AttendanceCluster &cluster, const QString &passwordFile)
{
    QStringList sockets;
    for (int number = 1; number <= cluster.nodes().size(); ++number)
        sockets += cluster.node(number).server().socketPath();
    qputenv("MIROVAHR_CLUSTER_SOCKET", cluster.proxy().socketPath().toLocal8Bit());
    qputenv("MIROVAHR_CLUSTER_NODES", sockets.join(':').toLocal8Bit());
    qputenv("MIROVAHR_CLUSTER_PASSWORD_FILE", passwordFile.toLocal8Bit());
    QString error;
    return HostAccount::writePasswordFile(passwordFile, error) ? QString() : error;
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments().mid(1);
    const int end = arguments.indexOf("--");
    const QStringList command = arguments.mid(end + 1);
    if (end < 0 || command.isEmpty())
        return complain("no command given");

    const QTemporaryDir folder;
    AttendanceCluster cluster(arguments.mid(0, end));
    if (!cluster.start(false))
        return complain(cluster.errorString());
    const QString error = describe(cluster, folder.filePath("password"));
    if (!error.isEmpty())
        return complain(error);
    return QProcess::execute(command.first(), command.mid(1));
}
