#include "mirovahrctl/preview/previewrun.h"

#include "cli/text.h"
#include "mirovahrctl/pluginside/forceflag.h"
#include "plugin/workersetup.h"
#include "worker/mhrworker.h"

#include <QDateTime>
#include <QFileInfo>
#include <QScopeGuard>

namespace {

/// The level at which the plugin also logs lines that it drops for their number of fields.
constexpr unsigned char kHighestDebugLevel = 3;

/// The plugin's progress, by its log: it reads all lines first, then handles them.
class RunProgress {
public:
    explicit RunProgress(const PreviewRun::Listener &listener)
        : m_listener(listener)
    {
    }

    void see(QtMsgType type, const QString &text)
    {
        if (type != QtDebugMsg)
            return;
        if (text.startsWith(QLatin1String("MHRWorker::parseLine(")))
            ++m_lines;
        else if (text.startsWith(QLatin1String("MHRWorker::doSyncRecord(")))
            m_listener(++m_records, m_lines);
    }

private:
    const PreviewRun::Listener &m_listener;
    qint64 m_lines = 0;
    qint64 m_records = 0;
};

} // namespace

PreviewRun::PreviewRun(const Configuration &configuration, const QString &exportFile)
    : m_configuration(configuration)
    , m_exportFile(exportFile)
{
    m_configuration.importFile = QFileInfo(exportFile).absoluteFilePath();
    m_configuration.deleteFile = false;
    // Without a command the plugin only warns, and the preview shows that.
    if (m_configuration.runsCommand(true))
        m_configuration.syncCommandRun = 0;
}

bool PreviewRun::run(const QSqlDatabase &copy, const PluginLog::Listener &log,
                     const Listener &progress)
{
    ForceFlag flag(copy);
    if (!flag.set(true)) {
        m_error = flag.errorString();
        return false;
    }
    RunProgress seen(progress);
    const PluginLog caught([&](QtMsgType type, const QString &text) {
        seen.see(type, text);
        if (!m_refusal)
            m_refusal = PreviewRefusal::ofLog(text, m_exportFile);
        log(type, text);
    });
    m_begin = QDateTime::currentSecsSinceEpoch();
    const bool done = synchronise(copy);
    m_end = QDateTime::currentSecsSinceEpoch();
    return done;
}

bool PreviewRun::synchronise(const QSqlDatabase &copy)
{
    const QStringList before = QSqlDatabase::connectionNames();
    const auto removeOwn = qScopeGuard([&before] {
        for (const QString &name : QSqlDatabase::connectionNames()) {
            if (!before.contains(name))
                QSqlDatabase::removeDatabase(name);
        }
    });
    MHRWorker worker;
    worker.setDebugLevel(kHighestDebugLevel);
    worker.setTepDb(copy);
    // A worker reuses a connection that an earlier one of this process has left, which may be to
    // any database.
    if (QSqlDatabase::connectionNames().size() == before.size()) {
        m_error = Text::tr("The plugin already has a connection to another database");
        return false;
    }
    configureWorker(worker, m_configuration);
    worker.init();
    worker.checkSync();
    return true;
}
