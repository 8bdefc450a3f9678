#pragma once

#include "mirovahrctl/preview/previewsubjects.h"
#include "mirovahrctl/preview/previewwords.h"

#include <QMap>
#include <QSet>
#include <QString>
#include <QVector>

class PluginConfiguration;
class PreviewWork;
class Report;

/// What of a preview is reported.
struct PreviewView {
    bool isSummary = false; ///< only the verdict, the findings and the totals
    QString person; ///< only what happens to the people whom it names; empty: to all
    QSet<quint32> uids; ///< of these people
};

/// Reports the results of a preview: the verdict, the findings and the totals, then a card for each
/// person.
class PreviewReport {
public:
    /// Takes the changes out of \a work.
    PreviewReport(PreviewWork &work, const PluginConfiguration &configuration,
                  const PreviewView &view, Report &report);

    void write();
    QString verdict() const;

private:
    void collect();
    void take(PreviewLine line);
    void writeWarnings();
    void warnOfConfiguration();
    void noteCopy();
    void writeTotals();
    void writeTotal(const QString &id, const QString &label, int count);
    void writeDifferences(PreviewKind kind);
    void writeBookkeeping();
    void writeLimits();
    int totalOf(PreviewKind kind) const;
    QVector<Card> cardsOf(PreviewKind kind) const;

    PreviewWork &m_work;
    const PluginConfiguration &m_configuration;
    const PreviewView m_view;
    Report &m_report;
    QMap<PreviewKind, PreviewWords::Lines> m_lines; ///< empty when no script reads the report
    QSet<QString> m_texts; ///< of all lines: there may be hundreds of thousands, most of them alike
    PreviewSubjects m_subjects;
    int m_changes = 0; ///< rows
    QMap<PreviewKind, int> m_rows; ///< rows with a line of that kind
};
