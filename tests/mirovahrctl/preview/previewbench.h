#pragma once

#include "mirovahrctl/preview/previewrefusal.h"
#include "mirovahrctl/preview/previewschema.h"
#include "mirovahrctl/preview/previewselection.h"
#include "mirovahrctl/preview/previewserver.h"
#include "mirovahrctl/preview/previewwords.h"
#include "mirovahrctl/report/finding.h"
#include "tests/support/exportfile.h"
#include "tests/support/testdatabase.h"

#include <QHash>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QVector>

#include <functional>
#include <optional>

/// A row that a preview shows as changed.
struct PreviewedRow {
    QString table;
    QHash<QString, QString> before; ///< cells by column; empty: the row is new
    QHash<QString, QString> after; ///< empty: the row is gone

    /// A cell of the new row, or of the old one when it is gone.
    QString cell(const char *column) const { return (after.isEmpty() ? before : after)[column]; }
    bool changes(const char *column) const { return before[column] != after[column]; }
};

/// What a test learns from a preview.
struct PreviewResult {
    std::optional<PreviewRefusal> refusal;
    PreviewSchema schema;
    QVector<PreviewLine> lines;
    QVector<Finding> warnings;
    QVector<PreviewedRow> rows;
    int changes = 0;
    QString sql;
    QByteArray log;
    QStringList doubts;

    /// Lines as "kind | who | what | before -> after".
    QStringList described() const;
    /// Their rules and messages.
    QStringList warned() const;
};

/// A site's database, a server that all previews copy it to, an export and an INI file.
class PreviewBench {
public:
    /// As TestDatabase::start(); also unlocks the account of mirovahrctl.
    bool start(const QStringList &serverOptions = {});

    TestDatabase &site() { return m_site; }
    ExportFile &exportFile() { return m_export; }
    void writeExport(const QVector<ExportRow> &lines) { m_export.write(lines); }
    /// Replaces the INI file. It names the export and keeps it.
    void writeIni(const QString &more = QString());
    QString iniPath() const { return m_dir.filePath("MirovaHR.ini"); }
    QString filePath(const QString &name) const { return m_dir.filePath(name); }

    /// The command line of `preview`, without the export: as the account `mirovahrctl`, or as
    /// another one with the same password, or as `root`, which has none.
    QStringList arguments(const QString &user = QStringLiteral("mirovahrctl")) const;

    /// A preview as one of these accounts. \a meanwhile is called between copying and
    /// synchronising.
    PreviewResult preview(
        const QString &user = QStringLiteral("mirovahrctl"),
        PreviewSelection::Extent extent = PreviewSelection::Extent::Reached,
        const std::function<void()> &meanwhile = [] {});
    /// The number of rows of a table that the last preview copied.
    int copiedRows(const char *table) const;

    /// One forced synchronisation of the site's database itself, in a process of its own. What that
    /// process printed when it failed, else empty.
    QString synchroniseSite();
    /// The log of the last synchroniseSite() at the highest debug level, in lines such as "W text".
    QStringList siteLog() const { return m_siteLog; }

private:
    TestDatabase m_site;
    ExportFile m_export;
    QTemporaryDir m_dir;
    PreviewServer m_server;
    QStringList m_siteLog;
};
