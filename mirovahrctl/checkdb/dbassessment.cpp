#include "mirovahrctl/checkdb/dbassessment.h"

#include "mirovahrctl/report/reportwriter.h"

#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>

namespace {

QVariantList valuesOf(const QSqlQuery &query)
{
    QVariantList values;
    for (int i = 0; i < query.record().count(); ++i)
        values += query.value(i);
    return values;
}

} // namespace

DbAssessment::DbAssessment(const QSqlDatabase &db, ReportWriter &report)
    : m_db(db)
    , m_report(report)
{
}

QVector<QVariantList> DbAssessment::rows(const QString &sql)
{
    QVector<QVariantList> rows;
    QSqlQuery query(m_db);
    if (!query.exec(sql))
        setUnusable(query.lastError().text());
    while (query.next())
        rows += valuesOf(query);
    return rows;
}

QVariantList DbAssessment::row(const QString &sql)
{
    return rows(sql).value(0);
}

QSqlError DbAssessment::attempt(const QString &sql)
{
    QSqlQuery query(m_db);
    query.exec(sql);
    while (query.nextResult()) { }
    return query.lastError();
}

void DbAssessment::begin(const char *id, const char *heading)
{
    m_toldInSection = false;
    m_report.section(QString::fromLatin1(id), QString::fromLatin1(heading));
}

void DbAssessment::end(const QString &wellSentence)
{
    if (!m_toldInSection)
        m_report.sentence(wellSentence);
}

void DbAssessment::breach(const char *rule, const QString &message, const QString &advice,
                          const QString &field)
{
    ++m_breaches;
    tell(Severity::Error, rule, message, advice, field);
}

void DbAssessment::tell(Severity severity, const char *rule, const QString &message,
                        const QString &advice, const QString &field)
{
    if (severity != Severity::Note)
        ++m_serious;
    m_toldInSection = true;
    Finding finding;
    finding.severity = severity;
    finding.rule = QString::fromLatin1(rule);
    finding.message = message + QLatin1Char('.');
    finding.advice = advice;
    finding.field = field;
    m_report.finding(finding);
}

void DbAssessment::setUnusable(const QString &reason)
{
    if (m_unusable.isEmpty())
        m_unusable = reason;
}
