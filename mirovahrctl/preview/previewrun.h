#pragma once

#include "mirovahrctl/pluginside/pluginlog.h"
#include "mirovahrctl/preview/previewrefusal.h"
#include "plugin/configuration.h"

#include <QSqlDatabase>
#include <QString>

#include <functional>

/// One forced synchronisation by the plugin's own worker, on a copy of the site's database.
class PreviewRun {
public:
    /// Called with the number of records that are synchronised, of how many.
    using Listener = std::function<void(qint64 done, qint64 total)>;

    /// \a configuration as the plugin has it, but for the export, which is \a exportFile: it is not
    /// deleted, and no export command is run.
    PreviewRun(const Configuration &configuration, const QString &exportFile);

    /// \a copy: a connection as the attendance server would pass it. \a log gets every line that
    /// the plugin logs at its highest debug level. False when it could not be run; errorString()
    /// then says why.
    bool run(const QSqlDatabase &copy, const PluginLog::Listener &log, const Listener &progress);
    QString errorString() const { return m_error; }
    /// Why there is nothing to preview although the synchronisation was run; nothing if there is.
    std::optional<PreviewRefusal> refusal() const { return m_refusal; }

    /// Unix times at which it began and ended, by the copy's clock: anything in between is "now".
    qint64 begin() const { return m_begin; }
    qint64 end() const { return m_end; }

private:
    bool synchronise(const QSqlDatabase &copy);

    Configuration m_configuration;
    const QString m_exportFile;
    qint64 m_begin = 0;
    qint64 m_end = 0;
    QString m_error;
    std::optional<PreviewRefusal> m_refusal;
};
