#include "privatedb/serveroptions.h"

#include "privatedb/serverfolder.h"

#include <unistd.h>

namespace {

/// What keeps a throw-away server small and quick: it need not survive the machine, so it never
/// waits for the disk. None of it changes how SQL behaves, or what a killed server finds again.
QStringList storage()
{
    return {QStringLiteral("--debug-no-sync"),
            QStringLiteral("--innodb-log-file-size=8M"),
            QStringLiteral("--innodb-buffer-pool-size=16M"),
            QStringLiteral("--innodb-flush-log-at-trx-commit=0"),
            QStringLiteral("--innodb-flush-method=nosync"),
            QStringLiteral("--innodb-doublewrite=0"),
            QStringLiteral("--innodb-file-per-table=0"),
            QStringLiteral("--innodb-use-native-aio=0"),
            QStringLiteral("--aria-pagecache-buffer-size=8M"),
            QStringLiteral("--key-buffer-size=1M")};
}

QStringList place(const ServerFolder &folder)
{
    return {QStringLiteral("--datadir=%1").arg(folder.dataDir()),
            // A server that starts removes every temporary table there, whosever it is.
            QStringLiteral("--tmpdir=%1").arg(folder.temporaryDir()),
            QStringLiteral("--socket=%1").arg(folder.socketPath()),
            QStringLiteral("--pid-file=%1").arg(folder.pidFile()),
            QStringLiteral("--log-error=%1").arg(folder.errorLogPath())};
}

/// What keeps statements from the machine, also those of the administrator: a routine that was
/// copied from a site is run as such.
QStringList confinement(const ServerFolder &folder)
{
    return {QStringLiteral("--skip-networking"),
            QStringLiteral("--plugin-dir=%1").arg(folder.pluginDir()),
            QStringLiteral("--secure-file-priv=%1").arg(folder.temporaryDir()),
            QStringLiteral("--local-infile=0"),
            QStringLiteral("--skip-symbolic-links")}; // no table has files in another folder
}

/// mariadbd refuses to run as root unless it is told to.
///
/// In two words, which mariadb-install-db hands on unread: at "--user=root" it would also make root
/// the owner of a folder of plugins that belongs to the machine's server.
QStringList account()
{
    return ::geteuid() == 0 ? QStringList{QStringLiteral("--user"), QStringLiteral("root")}
                            : QStringList();
}

} // namespace

QStringList ServerOptions::forInstallation()
{
    return account() + storage();
}

QStringList ServerOptions::forService(const ServerFolder &folder)
{
    return QStringList{QStringLiteral("--no-defaults"), // must come first
                       QStringLiteral("--character-set-server=utf8mb4"),
                       QStringLiteral("--collation-server=utf8mb4_general_ci")}
    + place(folder) + confinement(folder) + account() + storage();
}
