// One tick: whether to synchronise, and the course of a synchronisation.

#include "worker/mhrworker.h"

#include "db/tepdbsettings.h"
#include "worker/schedule.h"

#include <QDebug>
#include <QVariant>

void MHRWorker::checkSync()
{
    ++m_tickCounter;
    if (m_debugLevel > 1)
        qDebug("MHRWorker::checkSync(): #%u", m_tickCounter);

    if (m_syncInProgress) {
        qWarning("MHRWorker::checkSync() - synchronization is in progress, this iteration was "
                 "skipped!");
        return;
    }
    if (!dbCheckOpen()) {
        qWarning("MHRWorker::checkSync() - database not open!");
        return;
    }

    m_syncInProgress = true;
    m_force = m_settings->variableGet(Schedule::kForceSyncKey, QVariant()).toBool();
    if (isSyncDue())
        synchronise();
    dbClose();
    m_syncInProgress = false;
}

bool MHRWorker::isSyncDue() const
{
    return m_force || m_tickCounter == 1
        || m_tickCounter % Schedule::ticksPerSynchronisation(m_syncInterval) == 0;
}

void MHRWorker::synchronise()
{
    ++m_syncCounter;
    if (m_debugLevel != 0) {
        qDebug("MHRWorker: BEGIN synchronization #%u (force: %s)", m_syncCounter,
               m_force ? "YES" : "NO");
    }

    if (Schedule::isCommandDue(m_syncCommandRun, m_force))
        runCommand();
    loadAndParseData();
    reconcileRecords();

    if (m_debugLevel != 0) {
        qDebug("MHRWorker: END synchronization #%u (waiting records: %i)", m_syncCounter,
               m_waiting.size());
    }
    if (m_force)
        m_settings->variableSet(Schedule::kForceSyncKey, QVariant(0));
}

void MHRWorker::reconcileRecords()
{
    if (m_records.isEmpty())
        return;
    if (dbLoadPeople()) {
        doSync();
        m_people.clear(); // reloaded by the next cycle, which may be hours away
        return;
    }
    qCritical("MHRWorker: load people from TEPDB failed - synchronization terminated!");
    m_records.clear();
    m_changedPids.clear();
}

void MHRWorker::runCommand()
{
    if (m_debugLevel >= 2)
        qDebug("MHRWorker::runCommand(): '%s'", qPrintable(m_syncCommand));
    if (m_syncCommand.isEmpty()) {
        qWarning("MHRWorker::runCommand() - NO command, aborted!");
        return;
    }

    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    // Deprecated, but the INI key holds one command line, quoted for the rules by which this form
    // splits it.
    const int exitCode = QProcess::execute(m_syncCommand);
    QT_WARNING_POP
    if (exitCode != 0) {
        qWarning("MHRWorker::runCommand() - command: '%s' exit with code: %i",
                 qPrintable(m_syncCommand), exitCode);
    }
}

void MHRWorker::isqlProcessErrorOccurred(QProcess::ProcessError error)
{
    const auto name = [error] {
        switch (error) {
        case QProcess::FailedToStart:
            return "Failed to start";
        case QProcess::Crashed:
            return "Crashed";
        case QProcess::Timedout:
            return "Timedout";
        case QProcess::ReadError:
            return "Read Error";
        case QProcess::WriteError:
            return "Write Error";
        default:
            return "Unknown Error";
        }
    };
    qCritical("MHRWorker: isql process %s", name());
}
