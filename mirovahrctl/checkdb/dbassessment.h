#pragma once

#include "mirovahrctl/report/finding.h"

#include <QSqlDatabase>
#include <QString>
#include <QVariant>
#include <QVector>

class QSqlError;
class ReportWriter;

/// What the rules of check-db have in common: the connection, how they ask and how they tell.
///
/// A query that must succeed and does not ends the check: unusable() then says why, and whatever
/// the rules said after it is worth nothing.
class DbAssessment {
public:
    DbAssessment(const QSqlDatabase &db, ReportWriter &report);

    QSqlDatabase database() const { return m_db; }
    ReportWriter &report() { return m_report; }

    /// Every row of a query that must succeed.
    QVector<QVariantList> rows(const QString &sql);
    /// The first row of a query that must succeed; a row of invalid values when there is none.
    QVariantList row(const QString &sql);
    /// Runs a statement that may fail and reads all its results. The error is invalid when it
    /// succeeds.
    QSqlError attempt(const QString &sql);

    /// Begins a section of the report.
    void begin(const char *id, const char *heading);
    /// Ends it: with this sentence, when nothing was told in it.
    void end(const QString &wellSentence);

    /// The plugin relies on something that is not so. \a message: sentences, the last one without
    /// its full stop.
    void breach(const char *rule, const QString &message, const QString &advice,
                const QString &field = QString());
    void tell(Severity severity, const char *rule, const QString &message, const QString &advice,
              const QString &field = QString());

    /// The account does not see everything that decides whether the plugin can work.
    void setPartlySeen() { m_partlySeen = true; }
    bool isPartlySeen() const { return m_partlySeen; }

    bool isContractBroken() const { return m_breaches > 0; }
    int breachCount() const { return m_breaches; }
    /// How many warnings and errors there were.
    int seriousCount() const { return m_serious; }
    /// Why the check could not be finished, a sentence without its full stop; empty when it could.
    QString unusable() const { return m_unusable; }
    void setUnusable(const QString &reason);

private:
    const QSqlDatabase m_db;
    ReportWriter &m_report;
    int m_breaches = 0;
    int m_serious = 0;
    bool m_toldInSection = false;
    bool m_partlySeen = false;
    QString m_unusable;
};
