#pragma once

#include "mirovahrctl/preview/previewdiff.h"
#include "mirovahrctl/preview/previewnames.h"
#include "mirovahrctl/preview/previewrefusal.h"
#include "mirovahrctl/preview/previewschema.h"
#include "mirovahrctl/report/finding.h"
#include "plugin/configuration.h"

#include <QString>
#include <QVector>

#include <memory>
#include <optional>

class Console;
class PreviewServer;
class QIODevice;
class SqlSession;

/// Copies the site's database, lets the plugin synchronise the copy, and finds the changes.
class PreviewWork {
public:
    /// \a server holds the copy and must live longer than this object.
    PreviewWork(Console &console, PreviewServer &server);
    ~PreviewWork();
    PreviewWork(const PreviewWork &) = delete;
    PreviewWork &operator=(const PreviewWork &) = delete;

    /// Copies the site's database as it is at one moment.
    std::optional<PreviewRefusal> copy(SqlSession &site);
    /// Synchronises the copy. The plugin's whole log goes into \a log, one line a message.
    std::optional<PreviewRefusal> synchronise(const Configuration &configuration,
                                              const QString &exportFile, QIODevice *log);

    const PreviewSchema &schema() const { return m_schema; }
    /// The version of the copy's server.
    const QString &copyVersion() const { return m_copyVersion; }
    const QVector<PreviewChange> &changes() const { return m_changes; }
    /// The warnings and errors that the plugin logged.
    const QVector<Finding> &warnings() const { return m_warnings; }
    const PreviewMoments &moments() const { return *m_moments; }
    PreviewNames &names() { return *m_names; }

private:
    std::optional<PreviewRefusal> copyFrom(SqlSession &site);
    std::optional<PreviewRefusal> startServer();
    std::optional<PreviewRefusal> compare();
    void take(QtMsgType type, const QString &text, QIODevice *log);

    Console &m_console;
    PreviewServer &m_server;
    PreviewSchema m_schema;
    QString m_copyVersion;
    QVector<PreviewChange> m_changes;
    QVector<Finding> m_warnings;
    std::unique_ptr<PreviewMoments> m_moments;
    std::unique_ptr<PreviewNames> m_names;
};
