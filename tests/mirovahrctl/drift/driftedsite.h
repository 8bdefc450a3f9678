#pragma once

#include "tests/mirovahrctl/explain/explainedsite.h"
#include "tests/mirovahrctl/program/toolrun.h"
#include "tests/support/testdatabase.h"

#include <QString>
#include <QStringList>

/// A site for the tests of drift. The process must have no worker while drift runs: the tool uses a
/// worker of its own, whose connection has the same name.
class DriftedSite {
public:
    explicit DriftedSite(TestDatabase &database);

    /// To be called once the database has started.
    void unlockAccount() { m_site.unlockAccount(); }
    /// The content of the INI file besides the path of the export.
    void configure(const QByteArray &content) { m_site.configure(content); }
    /// The export to which the INI file refers.
    ExportFile &exportFile() { return m_site.exportFile(); }
    QString sqlPath() const { return m_site.filePath("drift.sql"); }
    QString filePath(const QString &name) const { return m_site.filePath(name); }

    /// drift of an export as JSON, with --sql; without \a exportPath of the one that it chooses.
    ToolRun drift(const QString &exportPath, const QStringList &more = {});
    /// drift as for a person who reads it, without --sql.
    ToolRun driftAsText(const QString &exportPath, const QStringList &more = {});
    /// Runs the statements of the last drift().
    bool mend();

    /// The findings as "rule: subject: message", in alphabetical order.
    static QStringList found(const ToolRun &run);

private:
    TestDatabase &m_database;
    ExplainedSite m_site;
};
