#pragma once

#include "mirovahrctl/pluginside/pluginlog.h"
#include "mirovahrctl/preview/syncfailure.h"
#include "plugin/configuration.h"

#include <QSqlDatabase>
#include <QString>

#include <functional>

/// One forced synchronisation by the plugin's own worker, on a copy of the site's database.
class PreviewRun {
public:
    /// How many records of how many are through.
    using Listener = std::function<void(qint64 done, qint64 total)>;

    /// \a configuration as the plugin has it, but for the export, which is \a exportFile: it is not
    /// deleted, and no export command is run.
    PreviewRun(const Configuration &configuration, const QString &exportFile);

    /// \a copy: a connection as the attendance server would hand it over. \a log gets every line
    /// that the plugin logs at its highest debug level. False when it could not be done.
    bool run(const QSqlDatabase &copy, const PluginLog::Listener &log, const Listener &progress);
    QString errorText() const { return m_error; }
    /// Why there is nothing to see of the synchronisation, although it was run.
    std::optional<PreviewRefusal> refusal() const { return m_failure.refusal(); }

    /// When it began and when it was over, by the copy's clock: what lies between is "now".
    qint64 begin() const { return m_begin; }
    qint64 end() const { return m_end; }

private:
    bool synchronise(const QSqlDatabase &copy);

    Configuration m_configuration;
    qint64 m_begin = 0;
    qint64 m_end = 0;
    QString m_error;
    SyncFailure m_failure;
};
