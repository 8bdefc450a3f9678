#include "mirovahrctl/checkdb/dbassessment.h"

#include "mirovahrctl/report/reportwriter.h"

DbAssessment::DbAssessment(const QSqlDatabase &db, ReportWriter &writer)
    : m_sql(db)
    , m_writer(writer)
{
}

SqlSession DbAssessment::attempt(const QString &sql) const
{
    SqlSession session(m_sql.database());
    session.run(sql);
    return session;
}

void DbAssessment::begin(const char *id, const QString &heading)
{
    m_hasFindings = false;
    m_writer.section(QString::fromLatin1(id), heading);
}

void DbAssessment::end(const QString &sentenceWithoutFindings)
{
    if (!m_hasFindings && !m_sql.failed())
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
    if (m_sql.failed())
        return;
    if (finding.severity != Severity::Note)
        ++m_serious;
    m_hasFindings = true;
    m_writer.finding(finding);
}
