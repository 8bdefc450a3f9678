#pragma once

#include "tests/mirovahrctl/program/toolrun.h"
#include "tests/support/exportfile.h"

#include <QByteArray>
#include <QDir>
#include <QJsonObject>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QVector>

/// Temporary folders: one in which HR delivers, one for the gate's files, and one in which the
/// plugin reads.
class GateSite {
public:
    GateSite();

    QString folder() const { return m_folder.path(); }
    QString hrFile() const { return path("hr/export.txt"); }
    QString target() const { return path("plugin/ron.data"); }
    QString state() const { return path("state"); }
    QString inState(const QString &name) const { return state() + '/' + name; }

    /// What HR delivers.
    void deliver(const QVector<ExportRow> &people);
    void deliver(const QByteArray &content);

    /// `gate` with the paths of this site, and what else a run needs.
    QStringList arguments(const QStringList &more = {}) const;
    /// One run with --json, in the test's process.
    ToolRun run(const QStringList &more = {}) const;
    /// Delivers, admits by --accept and removes the published file, as the plugin does.
    void admit(const QVector<ExportRow> &people);
    void admit(const QByteArray &content);

    bool isPublished() const;
    /// The published file; nothing when there is none.
    QByteArray published() const;
    void takePublished();
    /// The status file.
    QJsonObject status() const;
    /// The dated copies, in their order.
    QStringList copies() const;
    /// The names of everything in one of the folders.
    QStringList names(const QString &folder) const;

private:
    QString path(const char *name) const { return m_folder.filePath(name); }

    QTemporaryDir m_folder;
};

namespace GatePeople {

/// People with the personal numbers 1000 and up, all alike.
QVector<ExportRow> some(int count);

/// What HR writes.
QByteArray file(const QVector<ExportRow> &people);

} // namespace GatePeople

QByteArray contentOf(const QString &path);
void writeFile(const QString &path, const QByteArray &content);
