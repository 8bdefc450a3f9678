// The other nodes of the cluster: the plugin works with each of them after a fail-over.

#include "cli/text.h"
#include "mirovahrctl/checkdb/clusternodes.h"
#include "mirovahrctl/checkdb/dbassessment.h"
#include "mirovahrctl/checkdb/dbrules.h"
#include "mirovahrctl/report/reportwriter.h"
#include "mirovahrctl/report/rules/checkdbrules.h"

namespace {

/// Compares a node with the one that the connection leads to.
class NodeCheck {
public:
    NodeCheck(DbAssessment &check, const AskedNode &own, const AskedNode &node)
        : m_check(check)
        , m_own(own)
        , m_node(node)
    {
    }

    void run()
    {
        if (!m_node.failure.isEmpty()) {
            report(CheckDbRules::kClusterNodeNotAsked,
                   Text::tr("The node %1 was not asked: %2").arg(m_node.address, m_node.failure));
            return;
        }
        checkState();
        checkMidnights();
        compare(CheckDbRules::kClusterNodeSqlMode, &AskedNode::sqlMode,
                Text::tr("The node %1 differs from this one in its SQL mode: '%2', not '%3'"));
        compare(CheckDbRules::kClusterNodeIncrement, &AskedNode::autoIncrementIncrement,
                Text::tr("The node %1 differs from this one in its auto_increment_increment: '%2', "
                         "not '%3'"));
        compare(CheckDbRules::kClusterNodeVersion, &AskedNode::version,
                Text::tr("The node %1 differs from this one in its version: '%2', not '%3'"));
    }

private:
    void report(const Rule &rule, const QString &message)
    {
        m_check.report(rule, m_node.address, message);
    }

    void checkState()
    {
        if (m_node.isSynced())
            return;
        Finding finding = makeFinding(CheckDbRules::kClusterNotSynced,
                                      Text::tr("The node %1 is not in step with the cluster "
                                               "(state %2).")
                                          .arg(m_node.address, m_node.state));
        finding.field = m_node.address;
        finding.severity = CheckDbRules::kClusterNotSynced.otherSeverity;
        m_check.report(finding);
    }

    /// By what the zones do: the same zone has different names in summer and in winter.
    void checkMidnights()
    {
        if (m_node.midnights == m_own.midnights)
            return;
        report(CheckDbRules::kClusterNodeTimeZone,
               Text::tr("The node %1 (time zone %2) and this one (%3) disagree about when days "
                        "begin. After a fail-over, days of attendance and vacation would be "
                        "missed or duplicated")
                   .arg(m_node.address, m_node.timeZone, m_own.timeZone));
    }

    /// \a message has places for the node's address, its value and that of this node.
    void compare(const Rule &rule, QString AskedNode::*value, const QString &message)
    {
        if (m_node.*value != m_own.*value)
            report(rule, message.arg(m_node.address, m_node.*value, m_own.*value));
    }

    DbAssessment &m_check;
    const AskedNode &m_own;
    const AskedNode &m_node;
};

} // namespace

void DbRules::checkNodes(DbAssessment &check, const AskedNode &own,
                         const QVector<AskedNode> &others, int unnamed)
{
    check.begin("nodes", Text::tr("Other nodes of the cluster"));
    for (const AskedNode &node : others)
        NodeCheck(check, own, node).run();
    if (unnamed > 0) {
        check.report(
            CheckDbRules::kClusterNodeNotAsked, {},
            Text::tr("The cluster has %Ln member(s) without an address, as an arbitrator is, "
                     "which was not asked",
                     nullptr, unnamed));
    }
    check.end(others.isEmpty() ? Text::tr("The cluster has no other nodes.")
                               : Text::tr("All of them have the time zone, SQL mode, "
                                          "auto_increment_increment and version of this one."));
}
