// Where the export comes from: its file, and the command that writes it.

#include "mirovahrctl/checkconfig/configassessment.h"

#include "worker/importfile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QSettings>
#include <QStandardPaths>

#include <sys/stat.h>

namespace {

bool isExecutable(const QString &program)
{
    return !QStandardPaths::findExecutable(program).isEmpty();
}

/// Whether any user of the machine can replace a file in this folder. In a folder with the sticky
/// bit only a file that does not exist yet.
bool isOpenToAll(const QString &folder, bool holdsTheFile)
{
    struct stat status = {};
    if (stat(QFile::encodeName(folder).constData(), &status) != 0 || !(status.st_mode & S_IWOTH))
        return false;
    return holdsTheFile || !(status.st_mode & S_ISVTX);
}

/// The first folder on the path to the file that is writable for everybody; empty for none.
QString openFolder(const QString &file)
{
    QDir folder = QFileInfo(file).absoluteDir();
    for (bool holdsTheFile = true;; holdsTheFile = false) {
        if (isOpenToAll(folder.path(), holdsTheFile))
            return folder.path();
        if (!folder.cdUp())
            return {};
    }
}

} // namespace

void ConfigAssessment::checkImportFile()
{
    const QString key = QStringLiteral("importFile");
    const QString path = ImportFile::path(m_config.importFile);
    const QFileInfo info(path);
    if (info.isRelative()) {
        add(Severity::Warning, "import-file-relative", key,
            QStringLiteral("The path is relative: what it names depends on the folder in which the "
                           "attendance server was started."),
            QStringLiteral("Write a path that begins with /."));
        return;
    }
    if (info.exists() && !info.isFile()) {
        add(Severity::Error, "import-file-no-file", key,
            QStringLiteral("%1 is not a regular file: the plugin never reads it.").arg(path),
            QStringLiteral("Write the path of the export file itself."));
    } else if (info.exists() && info.permission(QFileDevice::WriteOther)) {
        add(Severity::Error, "import-file-world-writable", key,
            QStringLiteral("Every user of the machine can change %1. Its texts enter SQL "
                           "statements unescaped.")
                .arg(path),
            QStringLiteral("Let only HR's transfer write to it."));
    }
    checkImportFolder(path);
}

void ConfigAssessment::checkImportFolder(const QString &path)
{
    const QString key = QStringLiteral("importFile");
    const QString folder = QFileInfo(path).absolutePath();
    if (!QFileInfo(folder).isDir()) {
        add(Severity::Warning, "import-folder-missing", key,
            QStringLiteral("The folder %1 does not exist, so there is never an export.")
                .arg(folder),
            QStringLiteral("Create the folder, or correct the path."));
        return;
    }
    const QString open = openFolder(path);
    if (!open.isEmpty()) {
        add(Severity::Error, "import-folder-world-writable", key,
            QStringLiteral("The export is read from %1, and every user of the machine can put an "
                           "export of their own there: %2 is writable for everybody. Its texts "
                           "enter SQL statements unescaped.")
                .arg(path, open),
            QStringLiteral("Use a folder that only HR's transfer and the attendance server can "
                           "write to, such as /var/lib/yav/hr."));
    }
}

void ConfigAssessment::checkSyncCommand()
{
    checkSyncCommandRun();
    const QString key = QStringLiteral("syncCommand");
    if (m_config.syncCommand.isEmpty()) {
        if (m_config.syncCommandRun != 0) {
            add(Severity::Warning, "sync-command-missing", key,
                QStringLiteral("syncCommandRun demands a command, but there is none: the plugin "
                               "logs a warning each time."),
                QStringLiteral("Write the command, or syncCommandRun=0."));
        }
        return;
    }
    if (m_config.syncCommandRun == 0) {
        add(Severity::Warning, "sync-command-never-runs", key,
            QStringLiteral("The command is never run, because syncCommandRun is 0."),
            QStringLiteral("Write syncCommandRun=1 for a forced synchronisation, 2 for every "
                           "one."));
    }
    const QString program = QProcess::splitCommand(m_config.syncCommand).value(0);
    if (!isExecutable(program)) {
        add(Severity::Error, "sync-command-not-found", key,
            QStringLiteral("There is no executable program '%1'.").arg(program),
            QStringLiteral("Write the program with its full path. No shell reads the line."));
    }
}

void ConfigAssessment::checkSyncCommandRun()
{
    const QString key = QStringLiteral("syncCommandRun");
    const quint32 configured = m_settings->value(key, 0).toUInt();
    if (configured == m_config.syncCommandRun)
        return;
    add(Severity::Error, "sync-command-run-wraps", key,
        QStringLiteral("Only the low 8 bits of %1 are kept: it counts as %2.")
            .arg(configured)
            .arg(m_config.syncCommandRun),
        QStringLiteral("Write 0 for never, 1 for a forced synchronisation, 2 for every one."));
}
