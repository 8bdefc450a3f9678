#include "tests/cluster/attendancecluster.h"

#include "tests/support/testdatabase.h"

#include <QFile>
#include <QRegularExpression>

#include <algorithm>

namespace {

QString referenceFile(const char *name)
{
    return QStringLiteral(MIROVAHR_REFERENCE_DB_DIR "/%1").arg(name);
}

/// The options of packaging/cluster/galera.cnf but for those of the place, which the private nodes
/// have of their own: addresses, names, the library, how state is transferred.
QStringList settings()
{
    static const QRegularExpression setting("^(\\w+)\\s*=\\s*(.+)$",
                                            QRegularExpression::MultilineOption);
    static const QRegularExpression ofThePlace("address|name|wsrep_provider|wsrep_sst");
    QFile file(QStringLiteral(MIROVAHR_CLUSTER_FILES "/galera.cnf"));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s", qPrintable(file.errorString()));
    QStringList options;
    auto matches = setting.globalMatch(QString::fromUtf8(file.readAll()));
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        if (!match.captured(1).contains(ofThePlace))
            options += "--" + match.captured(1) + '=' + match.captured(2);
    }
    return options;
}

} // namespace

AttendanceCluster::AttendanceCluster(const QStringList &options)
    : m_proxy(m_nodes)
{
    for (int number = 1; number <= m_nodes.size(); ++number)
        node(number).setOptions(settings() + options);
}

bool AttendanceCluster::start(bool withSample)
{
    QStringList files = {referenceFile("schema.sql"), referenceFile("routines.sql")};
    if (withSample)
        files += referenceFile("sample.sql");
    files += referenceFile("grants.sql");
    if (!m_nodes.start(files))
        return fail(m_nodes.errorString());
    return m_proxy.start() || fail(m_proxy.errorString());
}

bool AttendanceCluster::restore()
{
    m_proxy.stop();
    for (int number = 1; number <= m_nodes.size(); ++number) {
        ClusterNode &node = m_nodes.node(number);
        if (!node.server().isRunning() && !node.start())
            return fail(node.errorString());
    }
    if (!m_nodes.waitUntilSettled())
        return fail(m_nodes.errorString());
    return m_proxy.start() || fail(m_proxy.errorString());
}

QStringList AttendanceCluster::inequalities()
{
    if (!m_nodes.waitUntilSettled())
        return {m_nodes.errorString()};
    QMap<QString, QStringList> checksums;
    for (int number = 1; number <= m_nodes.size(); ++number) {
        TestDatabase database;
        if (!database.attach(node(number).server()))
            return {"A node cannot be reached."};
        const TableRows tables = database.rows("SHOW TABLES");
        for (const QStringList &table : tables) {
            const QString checksum =
                database.rows("CHECKSUM TABLE `" + table.first() + '`').value(0).value(1);
            checksums[table.first()] += checksum;
        }
    }
    QStringList lines;
    for (auto table = checksums.cbegin(); table != checksums.cend(); ++table) {
        if (table->count(table->first()) != m_nodes.size())
            lines += table.key() + ": " + table->join(' ');
    }
    return lines;
}

bool AttendanceCluster::fail(const QString &error)
{
    m_error = error;
    return false;
}
