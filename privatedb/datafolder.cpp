#include "privatedb/datafolder.h"

#include "cli/text.h"
#include "privatedb/lastlines.h"
#include "privatedb/mariadbprocess.h"
#include "privatedb/programs.h"
#include "privatedb/serverfolder.h"
#include "privatedb/serveroptions.h"

#include <QFile>

#include <csignal>
#include <filesystem>

namespace {

constexpr int kInstallTimeoutMs = 120000;

} // namespace

bool makeDataFolder(const ServerFolder &folder, QString &error)
{
    MariaDbProcess install(folder, BoundProcess::Group::OfItsOwn);
    install.setProcessChannelMode(QProcess::MergedChannels);
    // The installer would run programs that it finds below its working folder.
    install.setWorkingDirectory(folder.path());
    install.start(MariaDbPrograms::find(MariaDbPrograms::Program::InstallDb),
                  QStringList{QStringLiteral("--no-defaults"),
                              QStringLiteral("--auth-root-authentication-method=normal"),
                              QStringLiteral("--skip-test-db"),
                              // For machines that cannot resolve their own name.
                              QStringLiteral("--force"),
                              QStringLiteral("--datadir=%1").arg(folder.dataDir())}
                      + ServerOptions::forInstallation());
    if (install.waitForFinished(kInstallTimeoutMs) && install.exitStatus() == QProcess::NormalExit
        && install.exitCode() == 0)
        return true;
    if (install.state() != QProcess::NotRunning)
        ::kill(-static_cast<pid_t>(install.processId()), SIGKILL); // with the server in it
    error = Text::tr("The data folder of the private MariaDB server could not be made.\n%1")
                .arg(lastLines(QString::fromUtf8(install.readAll())));
    return false;
}

bool copyDataFolder(const QString &from, const QString &to, QString &error)
{
    std::error_code failure;
    std::filesystem::copy(QFile::encodeName(from).constData(), QFile::encodeName(to).constData(),
                          std::filesystem::copy_options::recursive, failure);
    if (failure)
        error = Text::tr("%1 could not be copied: %2")
                    .arg(from, QString::fromStdString(failure.message()));
    return !failure;
}
