#include "privatedb/serveroptions.h"

#include "privatedb/serverfolder.h"

#include <unistd.h>

namespace {

/// Options that keep a throw-away server small and fast: it need not survive a crash of the
/// machine, so it never waits for the disk. None of them changes how SQL behaves, or what a killed
/// server recovers: the doublewrite buffer stays on, because a kill can cut the write of a page.
QStringList storage()
{
    return {QStringLiteral("--debug-no-sync"),
            QStringLiteral("--innodb-log-file-size=8M"),
            QStringLiteral("--innodb-buffer-pool-size=16M"),
            QStringLiteral("--innodb-flush-log-at-trx-commit=0"),
            QStringLiteral("--innodb-flush-method=nosync"),
            QStringLiteral("--innodb-file-per-table=0"),
            QStringLiteral("--innodb-use-native-aio=0"),
            QStringLiteral("--aria-pagecache-buffer-size=8M"),
            QStringLiteral("--key-buffer-size=1M")};
}

QStringList place(const ServerFolder &folder)
{
    return {QStringLiteral("--datadir=%1").arg(folder.dataDir()),
            // A server that starts removes all temporary tables there, even those of other servers.
            QStringLiteral("--tmpdir=%1").arg(folder.temporaryDir()),
            QStringLiteral("--socket=%1").arg(folder.socketPath()),
            QStringLiteral("--pid-file=%1").arg(folder.pidFile()),
            QStringLiteral("--log-error=%1").arg(folder.errorLogPath())};
}

/// Options that keep statements away from the machine, even the administrator's: routines that were
/// copied from a site run as such.
QStringList confinement(const ServerFolder &folder)
{
    return {QStringLiteral("--skip-networking"),
            QStringLiteral("--plugin-dir=%1").arg(folder.pluginDir()),
            QStringLiteral("--secure-file-priv=%1").arg(folder.temporaryDir()),
            QStringLiteral("--local-infile=0"),
            QStringLiteral("--skip-symbolic-links")}; // no table has files in another folder
}

/// mariadbd refuses to run as root without this option.
///
/// Two words, which mariadb-install-db passes on unread: for "--user=root" it would also make root
/// the owner of a plugin folder that belongs to the machine's server.
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
