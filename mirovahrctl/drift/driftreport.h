#pragma once

#include "mirovahrctl/drift/driftsearch.h"

#include <QString>
#include <QVector>

class PluginConfiguration;
class Report;
class SiteExport;

/// Reports what drift has found, by the way in which it can be mended.
class DriftReport {
public:
    /// \a found must live longer than this object.
    DriftReport(const QVector<Drift> &found, Report &report);

    /// Writes the differences.
    void writeDifferences();
    /// Writes what limits them. \a waiting, \a leftOut: so many people; \a isForced: a forced
    /// synchronisation is pending.
    void writeLimits(const PluginConfiguration &configuration, const SiteExport &source,
                     int waiting, int leftOut, bool isForced);
    QString verdict() const;
    /// The statements, each after a comment that names the person.
    QString statements() const;

private:
    int countOf(int remedy) const;
    void writeLeftOut(int leftOut);
    void writePending(const PluginConfiguration &configuration, const SiteExport &source,
                      bool isForced);

    const QVector<Drift> &m_found;
    Report &m_report;
};
