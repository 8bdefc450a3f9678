#pragma once

#include "mirovahrctl/preview/previewdiff.h"
#include "mirovahrctl/preview/previewnames.h"
#include "mirovahrctl/preview/previewpeople.h"
#include "mirovahrctl/preview/previewrefusal.h"
#include "mirovahrctl/preview/previewschema.h"
#include "mirovahrctl/preview/previewselection.h"
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
    /// \a server holds the copy and must live longer than this object, as must \a configuration.
    PreviewWork(Console &console, PreviewServer &server, const Configuration &configuration,
                const QString &exportFile,
                PreviewSelection::Extent extent = PreviewSelection::Extent::Reached);
    ~PreviewWork();
    PreviewWork(const PreviewWork &) = delete;
    PreviewWork &operator=(const PreviewWork &) = delete;

    /// Copies what the synchronisation with the export reaches of the site's database, as it is at
    /// one moment.
    std::optional<PreviewRefusal> copy(SqlSession &site);
    /// Synchronises the copy. The plugin's whole log goes into \a log, one line a message.
    std::optional<PreviewRefusal> synchronise(QIODevice *log);

    const PreviewSchema &schema() const { return m_schema; }
    /// The version of the copy's server.
    const QString &copyVersion() const { return m_copyVersion; }
    const QVector<PreviewChange> &changes() const { return m_changes; }
    /// Frees the memory of the changes, which may be hundreds of thousands.
    void forgetChanges() { m_changes = {}; }
    /// The warnings and errors that the plugin logged.
    const QVector<Finding> &warnings() const { return m_warnings; }
    /// Why more is copied than the synchronisation seems to reach; see PreviewSelection.
    const QStringList &doubts() const { return m_doubts; }
    const PreviewMoments &moments() const { return *m_moments; }
    PreviewNames &names() { return *m_names; }

private:
    std::optional<PreviewRefusal> copyFrom(SqlSession &site);
    std::optional<PreviewRefusal> startServer();
    std::optional<PreviewRefusal> compare();
    void take(QtMsgType type, const QString &text, QIODevice *log);

    Console &m_console;
    PreviewServer &m_server;
    const Configuration &m_configuration;
    const QString m_exportFile;
    const PreviewSelection::Extent m_extent;
    PreviewPeople m_people;
    PreviewSchema m_schema;
    QStringList m_doubts;
    QString m_copyVersion;
    QVector<PreviewChange> m_changes;
    QVector<Finding> m_warnings;
    std::unique_ptr<PreviewMoments> m_moments;
    std::unique_ptr<PreviewNames> m_names;
};
