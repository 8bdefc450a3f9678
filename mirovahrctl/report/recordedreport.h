#pragma once

#include "mirovahrctl/report/finding.h"
#include "mirovahrctl/report/reportwriter.h"

#include <QVector>

#include <functional>
#include <vector>

/// Keeps a report in memory, for one whose beginning depends on its end.
class RecordedReport : public ReportWriter {
public:
    void begin(const QString &subcommand, const QString &title) override;
    void answer(const QString &verdict) override;
    void section(const QString &id, const QString &heading) override;
    void sentence(const QString &text) override;
    void table(const Table &table) override;
    void card(const Card &card) override;
    void data(const Table &table) override;
    void finding(const Finding &finding) override;
    void fact(const QString &id, const QString &label, const QVariant &value) override;
    void datum(const QString &id, const QVariant &value) override;
    void end(ExitStatus status, const QString &verdict) override;

    /// All findings so far.
    const QVector<Finding> &findings() const { return m_findings; }
    /// Writes everything to another report, in the same order.
    void replay(ReportWriter &report) const;

private:
    std::vector<std::function<void(ReportWriter &)>> m_calls;
    QVector<Finding> m_findings;
};
