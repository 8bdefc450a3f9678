#include "tests/mirovahrctl/explain/explainedsite.h"

#include <QFile>

namespace {

QJsonObject sectionOf(const ToolRun &run, const QString &id)
{
    const QJsonArray all = run.json().value("sections").toArray();
    for (const QJsonValue &section : all) {
        if (section.toObject().value("id").toString() == id)
            return section.toObject();
    }
    return {};
}

} // namespace

ExplainedSite::ExplainedSite(TestDatabase &database)
    : m_database(database)
{
    configure({});
}

void ExplainedSite::unlockAccount()
{
    m_database.run(
        QStringLiteral("ALTER USER mirovahrctl@localhost IDENTIFIED BY '%1' ACCOUNT UNLOCK")
            .arg(m_database.server().password()));
}

void ExplainedSite::configure(const QByteArray &content)
{
    QFile file(configurationPath());
    const QByteArray text = "importFile=" + m_export.path().toUtf8() + '\n' + content;
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
        qFatal("%s cannot be written", qPrintable(file.fileName()));
}

QStringList ExplainedSite::connection()
{
    return {"--socket",        m_database.server().socketPath(),
            "--database",      m_database.server().databaseName(),
            "--user",          "mirovahrctl",
            "--password-file", m_database.server().passwordFile()};
}

ToolRun ExplainedSite::explain(const QString &person, const QStringList &more)
{
    return runTool(QStringList{"explain", person, "--json", "--config", configurationPath()}
                   + connection() + more);
}

QStringList ExplainedSite::sentences(const ToolRun &run, const QString &section)
{
    QStringList texts;
    const QJsonArray all = sectionOf(run, section).value("sentences").toArray();
    for (const QJsonValue &text : all)
        texts += text.toString();
    return texts;
}

QStringList ExplainedSite::sections(const ToolRun &run)
{
    QStringList ids;
    const QJsonArray all = run.json().value("sections").toArray();
    for (const QJsonValue &section : all)
        ids += section.toObject().value("id").toString();
    return ids;
}

TableRows ExplainedSite::table(const ToolRun &run, const QString &section, const QString &id,
                               const QStringList &columns)
{
    TableRows rows;
    const QJsonArray all = sectionOf(run, section).value("tables").toObject().value(id).toArray();
    for (const QJsonValue &row : all) {
        QStringList cells;
        for (const QString &column : columns)
            cells += row.toObject().value(column).toVariant().toString();
        rows += cells;
    }
    return rows;
}

QJsonObject ExplainedSite::facts(const ToolRun &run)
{
    return run.json().value("facts").toObject();
}

QString ExplainedSite::verdict(const ToolRun &run)
{
    return run.json().value("verdict").toString();
}

QStringList ExplainedSite::messages(const ToolRun &run)
{
    QStringList texts;
    const QJsonArray all = run.findings();
    for (const QJsonValue &finding : all)
        texts += finding.toObject().value("message").toString();
    return texts;
}
