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

DbAssessment::DbAssessment(const QSqlDatabase &db, ReportWriter &writer)
    : m_db(db)
    , m_writer(writer)
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
    m_hasFindings = false;
    m_writer.section(QString::fromLatin1(id), QString::fromLatin1(heading));
}

void DbAssessment::end(const QString &sentenceWithoutFindings)
{
    if (!m_hasFindings)
        m_writer.sentence(sentenceWithoutFindings);
}

void DbAssessment::reportViolation(const Rule &rule, const QString &field, const QString &message,
                                   const QString &advice)
{
    ++m_violations;
    report(rule, field, message, advice);
}

void DbAssessment::report(const Rule &rule, const QString &field, const QString &message,
                          const QString &advice)
{
    Finding finding = makeFinding(rule, message + QLatin1Char('.'), advice);
    finding.field = field;
    report(finding);
}

void DbAssessment::report(const Finding &finding)
{
    if (finding.severity != Severity::Note)
        ++m_serious;
    m_hasFindings = true;
    m_writer.finding(finding);
}

void DbAssessment::setUnusable(const QString &reason)
{
    if (m_unusable.isEmpty())
        m_unusable = reason;
}
