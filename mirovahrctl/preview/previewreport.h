#pragma once

#include "mirovahrctl/preview/previewwords.h"
#include "mirovahrctl/report/exitstatus.h"
#include "mirovahrctl/report/finding.h"

#include <QMap>
#include <QString>
#include <QStringList>
#include <QVector>

class PreviewWork;
class Report;
class PluginConfiguration;

/// Reports the results of a preview.
class PreviewReport {
public:
    PreviewReport(PreviewWork &work, const PluginConfiguration &configuration, Report &report);

    /// Writes everything but the verdict. Then the work has forgotten its changes.
    void write();
    QString verdict() const;

private:
    void collect();
    void writeDifferences();
    void writeWarnings();
    void writeLimits();
    void writeSummary();
    void warnOfConfiguration();
    void noteCopy();

    PreviewWork &m_work;
    const PluginConfiguration &m_configuration;
    Report &m_report;
    QMap<PreviewKind, QVector<PreviewLine>> m_lines;
    int m_changes = 0;
    QMap<PreviewKind, int> m_rows; ///< rows with a line of that kind
};
