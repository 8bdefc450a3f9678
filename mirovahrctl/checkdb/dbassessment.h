#pragma once

#include "mirovahrctl/report/finding.h"

#include <QSqlDatabase>
#include <QString>
#include <QVariant>
#include <QVector>

class QSqlError;
class ReportWriter;

/// What the rules of check-db share: the connection, queries, and the report.
///
/// When a query fails that must succeed, the check is void: unusable() then says why, and what the
/// rules report afterwards is worth nothing.
class DbAssessment {
public:
    DbAssessment(const QSqlDatabase &db, ReportWriter &writer);

    /// The connection that is checked.
    QSqlDatabase database() const { return m_db; }
    ReportWriter &writer() { return m_writer; }

    /// Every row of a query that must succeed.
    QVector<QVariantList> rows(const QString &sql);
    /// The first row of a query that must succeed; a row of invalid values when there is none.
    QVariantList row(const QString &sql);
    /// Runs a statement that may fail and reads all its results. The error is invalid when it
    /// succeeds.
    QSqlError attempt(const QString &sql);

    /// Begins a section of the report. \a id: its stable name for scripts.
    void begin(const char *id, const char *heading);
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
    /// Why the check could not be finished, a sentence without its full stop; empty when it could.
    QString unusable() const { return m_unusable; }
    void setUnusable(const QString &reason);

private:
    const QSqlDatabase m_db;
    ReportWriter &m_writer;
    int m_violations = 0;
    int m_serious = 0;
    bool m_hasFindings = false;
    bool m_partlySeen = false;
    QString m_unusable;
};
