// Where the export comes from: its file, and the command that writes it.

#include "mirovahrctl/checkconfig/configassessment.h"

#include "cli/text.h"
#include "mirovahrctl/gatestate/gateoptions.h"
#include "mirovahrctl/report/rules/checkconfigrules.h"
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
        add(CheckConfigRules::kImportFileRelative, key,
            Text::tr("The path is relative: what it names depends on the folder in which the "
                     "attendance server was started."));
        return;
    }
    if (info.exists() && !info.isFile()) {
        add(CheckConfigRules::kImportFileNoFile, key,
            Text::tr("%1 is not a regular file: the plugin never reads it.").arg(path));
    } else if (info.exists() && info.permission(QFileDevice::WriteOther)) {
        add(CheckConfigRules::kImportFileWorldWritable, key,
            Text::tr("Every user of the machine can change %1. Its texts enter SQL "
                     "statements unescaped.")
                .arg(path));
    }
    checkImportFolder(path);
}

void ConfigAssessment::checkImportFolder(const QString &path)
{
    const QString key = QStringLiteral("importFile");
    const QString folder = QFileInfo(path).absolutePath();
    if (!QFileInfo(folder).isDir()) {
        add(CheckConfigRules::kImportFolderMissing, key,
            Text::tr("The folder %1 does not exist, so there is never an export.").arg(folder));
        return;
    }
    const QString open = openFolder(path);
    if (!open.isEmpty()) {
        add(CheckConfigRules::kImportFolderWorldWritable, key,
            Text::tr("The export is read from %1, and every user of the machine can put an "
                     "export of their own there: %2 is writable for everybody. Its texts "
                     "enter SQL statements unescaped.")
                .arg(path, open));
    }
}

void ConfigAssessment::checkSyncCommand()
{
    checkSyncCommandRun();
    const QString key = QStringLiteral("syncCommand");
    if (m_config.syncCommand.isEmpty()) {
        if (m_config.syncCommandRun != 0) {
            add(CheckConfigRules::kSyncCommandMissing, key,
                Text::tr("syncCommandRun demands a command, but there is none: the plugin "
                         "logs a warning each time."));
        }
        return;
    }
    if (m_config.syncCommandRun == 0) {
        add(CheckConfigRules::kSyncCommandNeverRuns, key,
            Text::tr("The command is never run, because syncCommandRun is 0."));
    }
    const QString program = QProcess::splitCommand(m_config.syncCommand).value(0);
    if (!isExecutable(program)) {
        add(CheckConfigRules::kSyncCommandNotFound, key,
            Text::tr("There is no executable program '%1'.").arg(program));
    }
}

void ConfigAssessment::checkSyncCommandRun()
{
    const QString key = QStringLiteral("syncCommandRun");
    const quint32 configured = m_settings->value(key, 0).toUInt();
    if (configured == m_config.syncCommandRun)
        return;
    add(CheckConfigRules::kSyncCommandRunWraps, key,
        Text::tr("Only the low 8 bits of %1 are kept: it counts as %2.")
            .arg(configured)
            .arg(m_config.syncCommandRun));
}

void ConfigAssessment::checkGate()
{
    const QString key = QStringLiteral("syncCommand");
    if (!GateOptions::isRunBy(m_config.syncCommand)) {
        add(CheckConfigRules::kNoGate, key,
            Text::tr("syncCommand runs no gate. Unless another program runs one, what HR "
                     "exports reaches the database unexamined."));
        return;
    }
    const auto gate = GateOptions::ofCommand(m_config.syncCommand);
    const QString path = ImportFile::path(m_config.importFile);
    if (!gate) {
        add(CheckConfigRules::kGateOptions, key,
            Text::tr("The gate does not understand its options, so it publishes nothing."));
        return;
    }
    if (!gate->publishesTo(path)) {
        add(CheckConfigRules::kGateElsewhere, key,
            Text::tr("The gate publishes to %1, but the plugin reads %2.").arg(gate->to, path));
    } else if (!gate->texts) {
        add(CheckConfigRules::kGateTexts, key,
            Text::tr("The gate publishes texts as HR wrote them: they enter SQL statements "
                     "unescaped."));
    }
    if (gate->accept) {
        add(CheckConfigRules::kGateAccepts, key,
            Text::tr("With --accept the gate admits a file whatever is missing or has "
                     "changed in it."));
    }
}
