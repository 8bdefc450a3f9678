#include "tests/mirovahrctl/drift/driftedsite.h"

DriftedSite::DriftedSite(TestDatabase &database)
    : m_database(database)
    , m_site(database)
{
}

ToolRun DriftedSite::drift(const QString &exportPath, const QStringList &more)
{
    return driftAsText(exportPath, QStringList{"--json", "--sql", sqlPath()} + more);
}

ToolRun DriftedSite::driftAsText(const QString &exportPath, const QStringList &more)
{
    QStringList arguments{"drift", "--config", m_site.configurationPath()};
    if (!exportPath.isEmpty())
        arguments += exportPath;
    return runTool(arguments + m_site.connection() + more);
}

bool DriftedSite::mend()
{
    return m_database.server().load(sqlPath());
}

QStringList DriftedSite::found(const ToolRun &run)
{
    QStringList texts;
    const QJsonArray all = run.findings();
    for (const QJsonValue &finding : all) {
        texts += QStringList{finding["rule"].toString(), finding["subject"].toString(),
                             finding["message"].toString()}
                     .join(": ");
    }
    texts.sort();
    return texts;
}
