#pragma once

#include "mirovahrctl/report/finding.h"
#include "mirovahrctl/site/sqlsession.h"

#include <QString>

class ReportWriter;

/// What the rules of check-db share: the connection, queries, and the report.
///
/// When a query of sql() fails, the check is void: no finding is reported any more.
class DbAssessment {
public:
    DbAssessment(const QSqlDatabase &db, ReportWriter &writer);

    ReportWriter &writer() { return m_writer; }

    /// The connection that is checked, for queries that must succeed.
    SqlSession &sql() { return m_sql; }
    /// Runs a statement that may fail; the session then says why.
    SqlSession attempt(const QString &sql) const;

    /// Begins a section of the report. \a id: its stable name for scripts.
    void begin(const char *id, const QString &heading);
    /// Ends it, with this sentence if it has no findings.
    void end(const QString &sentenceWithoutFindings);

    /// Reports an error that keeps the plugin from working properly: a requirement is not met.
    /// \a message: sentences, the last one without its full stop.
    /// \a field: the table, column or routine; empty for none. \a advice as for makeFinding().
    void reportViolation(const Rule &rule, const QString &field, const QString &message,
                         const QString &advice = QString());
    /// Reports a finding that violates no requirement. Parameters as above.
    void report(const Rule &rule, const QString &field, const QString &message,
                const QString &advice = QString());
    /// As above, for a finding that is not of its rule's usual severity.
    void report(const Finding &finding);

    /// The account cannot see everything that decides whether the plugin can work.
    void setPartlySeen() { m_partlySeen = true; }
    bool isPartlySeen() const { return m_partlySeen; }

    /// Whether a requirement is violated.
    bool isContractBroken() const { return m_violations > 0; }
    int violationCount() const { return m_violations; }
    /// How many warnings and errors there were.
    int seriousCount() const { return m_serious; }

private:
    SqlSession m_sql;
    ReportWriter &m_writer;
    int m_violations = 0;
    int m_serious = 0;
    bool m_hasFindings = false;
    bool m_partlySeen = false;
};
