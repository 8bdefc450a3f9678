#include "mirovahrctl/report/jsonreport.h"

#include "mirovahrctl/report/finding.h"

#include <QIODevice>
#include <QJsonDocument>

namespace {

QByteArray compact(const QJsonObject &object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

/// The members of an object without its braces.
QByteArray members(const QJsonObject &object)
{
    const QByteArray text = compact(object);
    return text.mid(1, text.size() - 2);
}

void insertText(QJsonObject &object, const char *name, const QString &text)
{
    if (!text.isEmpty())
        object.insert(QLatin1String(name), text);
}

} // namespace

JsonReport::JsonReport(QIODevice &out)
    : m_out(out)
{
}

QJsonObject JsonReport::object(const Finding &finding)
{
    QJsonObject object{{QStringLiteral("severity"), severityWord(finding.severity)},
                       {QStringLiteral("rule"), finding.rule},
                       {QStringLiteral("message"), finding.message}};
    insertText(object, "advice", finding.advice);
    insertText(object, "field", finding.field);
    insertText(object, "subject", finding.subject);
    insertText(object, "likely", finding.likely);
    insertText(object, "lineText", finding.lineText);
    if (finding.line > 0)
        object.insert(QStringLiteral("line"), finding.line);
    if (finding.forHr)
        object.insert(QStringLiteral("forHr"), true);
    if (finding.dropped)
        object.insert(QStringLiteral("dropped"), true);
    return object;
}

QJsonObject JsonReport::object(const Table &table, const QVariantList &row)
{
    QJsonObject object;
    for (int i = 0; i < table.columns.size(); ++i)
        object.insert(table.columns.at(i).id, QJsonValue::fromVariant(row.at(i)));
    return object;
}

void JsonReport::begin(const QString &subcommand, const QString &title)
{
    m_state = State::Begun;
    m_out.write("{"
                + members({{QStringLiteral("mirovahrctl"), QStringLiteral(MIROVAHR_VERSION)},
                           {QStringLiteral("subcommand"), subcommand},
                           {QStringLiteral("title"), title}})
                + ",\n\"findings\":[");
}

void JsonReport::section(const QString &id, const QString &heading)
{
    endSection();
    m_section = {{QStringLiteral("id"), id}, {QStringLiteral("heading"), heading}};
}

void JsonReport::sentence(const QString &text)
{
    m_sentences.append(text);
}

void JsonReport::table(const Table &table)
{
    QJsonArray rows;
    for (const QVariantList &row : table.rows)
        rows.append(object(table, row));
    m_tables.insert(table.id, rows);
}

void JsonReport::data(const Table &table)
{
    this->table(table);
}

void JsonReport::finding(const Finding &finding)
{
    m_out.write((m_hasFindings ? ",\n" : "\n") + compact(object(finding)));
    m_hasFindings = true;
}

void JsonReport::fact(const QString &id, const QString &, const QVariant &value)
{
    m_facts.insert(id, QJsonValue::fromVariant(value));
}

void JsonReport::datum(const QString &id, const QVariant &value)
{
    fact(id, QString(), value);
}

void JsonReport::end(ExitStatus status, const QString &verdict)
{
    finish(status, "verdict", verdict);
}

void JsonReport::fail(const QString &subcommand, ExitStatus status, const QString &reason)
{
    if (m_state == State::Ended)
        return;
    if (m_state == State::New)
        begin(subcommand, QString());
    finish(status, "error", reason);
}

void JsonReport::finish(ExitStatus status, const char *lastMember, const QString &text)
{
    m_state = State::Ended;
    endSection();
    m_out.write("],\n"
                + members({{QStringLiteral("sections"), m_sections},
                           {QStringLiteral("facts"), m_facts},
                           {QStringLiteral("status"), static_cast<int>(status)},
                           {QStringLiteral("result"), exitStatusWord(status)},
                           {QLatin1String(lastMember), text}})
                + "}\n");
}

void JsonReport::endSection()
{
    if (m_section.isEmpty())
        return;
    m_section.insert(QStringLiteral("sentences"), m_sentences);
    m_section.insert(QStringLiteral("tables"), m_tables);
    m_sections.append(m_section);
    m_sentences = {};
    m_tables = {};
}
