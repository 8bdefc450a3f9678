#pragma once

#include "mirovahrctl/report/finding.h"
#include "mirovahrctl/report/reportwriter.h"

#include <QStringList>

/// Keeps the findings and forgets the rest.
class FindingList : public ReportWriter {
public:
    void begin(const QString &, const QString &) override { }
    void answer(const QString &) override { }
    void section(const QString &, const QString &) override { }
    void sentence(const QString &) override { }
    void table(const Table &) override { }
    void card(const Card &) override { }
    void data(const Table &) override { }
    void finding(const Finding &finding) override { findings += finding; }
    void fact(const QString &, const QString &, const QVariant &) override { }
    void datum(const QString &, const QVariant &) override { }
    void end(ExitStatus, const QString &) override { }

    QString messages() const
    {
        QStringList messages;
        for (const Finding &finding : findings)
            messages += finding.message;
        return messages.join('\n');
    }

    /// The findings as "severity rule".
    QStringList rules() const
    {
        QStringList rules;
        for (const Finding &finding : findings)
            rules += severityWord(finding.severity) + ' ' + finding.rule;
        return rules;
    }

    QVector<Finding> findings;
};
