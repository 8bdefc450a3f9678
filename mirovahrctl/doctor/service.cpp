#include "mirovahrctl/doctor/service.h"

#include "cli/text.h"

#include <QDir>
#include <QFile>
#include <QHash>
#include <QProcess>
#include <QVector>

#include <algorithm>
#include <grp.h>
#include <pwd.h>
#include <sys/stat.h>

namespace {

constexpr int kGroupLimit = 1024;

/// The properties that `systemctl show` prints; none when it cannot be run.
QHash<QString, QString> properties()
{
    QProcess systemctl;
    systemctl.start(QStringLiteral("systemctl"),
                    {QStringLiteral("show"), QStringLiteral("yavhost.service"),
                     QStringLiteral("--property=LoadState,ActiveState,UnitFileState,User,"
                                    "ProtectSystem,ReadWritePaths,PrivateTmp,ProtectHome,BindPaths,"
                                    "BindReadOnlyPaths")});
    systemctl.closeWriteChannel();
    systemctl.waitForFinished();
    QHash<QString, QString> all;
    const QStringList lines =
        QString::fromUtf8(systemctl.readAllStandardOutput()).split(QLatin1Char('\n'));
    for (const QString &line : lines)
        all.insert(line.section(QLatin1Char('='), 0, 0), line.section(QLatin1Char('='), 1));
    return all;
}

bool isIn(gid_t group, const passwd &user)
{
    QVector<gid_t> groups(kGroupLimit);
    int count = groups.size();
    if (getgrouplist(user.pw_name, user.pw_gid, groups.data(), &count) < 0)
        return false;
    return std::find(groups.cbegin(), groups.cbegin() + count, group) != groups.cbegin() + count;
}

/// Whether a folder's mode grants these rights of S_IRWXO, as the kernel decides: the first class
/// that the user is in counts.
bool grants(const passwd &user, const struct stat &folder, mode_t rights)
{
    mode_t granted = folder.st_mode;
    if (folder.st_uid == user.pw_uid)
        granted >>= 6;
    else if (isIn(folder.st_gid, user))
        granted >>= 3;
    return (granted & rights) == rights;
}

/// Whether the user may write to a folder, and reach it.
bool mayWrite(const passwd &user, const QString &path)
{
    mode_t rights = S_IWOTH | S_IXOTH;
    QDir folder(path);
    do {
        struct stat status = {};
        if (stat(QFile::encodeName(folder.path()).constData(), &status) != 0
            || !grants(user, status, rights))
            return false;
        rights = S_IXOTH;
    } while (folder.cdUp());
    return true;
}

bool isBelow(const QString &folder, const QString &path)
{
    return (folder + QLatin1Char('/')).startsWith(QDir::cleanPath(path) + QLatin1Char('/'));
}

/// The first of the folders that the path is in; empty when it is in none.
QString folderOf(const QString &path, const QStringList &folders)
{
    const auto found = std::find_if(folders.cbegin(), folders.cend(),
                                    [&path](const QString &one) { return isBelow(path, one); });
    return found == folders.cend() ? QString() : *found;
}

} // namespace

std::optional<Service> Service::load()
{
    const QHash<QString, QString> all = properties();
    if (all.value(QStringLiteral("LoadState")) != QLatin1String("loaded"))
        return std::nullopt;
    Service service;
    service.activeState = all.value(QStringLiteral("ActiveState"));
    service.unitFileState = all.value(QStringLiteral("UnitFileState"));
    service.user = all.value(QStringLiteral("User"));
    service.isStrict = all.value(QStringLiteral("ProtectSystem")) == QLatin1String("strict");
    const QStringList paths =
        all.value(QStringLiteral("ReadWritePaths")).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (const QString &path : paths) {
        // A "-" says that the path may be missing.
        service.writablePaths += path.startsWith(QLatin1Char('-')) ? path.mid(1) : path;
    }
    service.hasOwnTmp = all.value(QStringLiteral("PrivateTmp")) == QLatin1String("yes");
    service.hidesHomes = all.value(QStringLiteral("ProtectHome")) == QLatin1String("yes");
    const QStringList bound = (all.value(QStringLiteral("BindPaths")) + QLatin1Char(' ')
                               + all.value(QStringLiteral("BindReadOnlyPaths")))
                                  .split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (const QString &one : bound)
        service.boundPaths += one.section(QLatin1Char(':'), 1, 1);
    return service;
}

bool Service::isWanted() const
{
    return activeState == QLatin1String("failed") || unitFileState == QLatin1String("enabled");
}

QString Service::whyNotSeeing(const QString &file) const
{
    static const QStringList temporary{QStringLiteral("/tmp"), QStringLiteral("/var/tmp")};
    static const QStringList homes{QStringLiteral("/home"), QStringLiteral("/root"),
                                   QStringLiteral("/run/user")};
    const QString path = QDir::cleanPath(file);
    if (!folderOf(path, boundPaths).isEmpty())
        return {};
    QString folder = hasOwnTmp ? folderOf(path, temporary) : QString();
    if (!folder.isEmpty()) {
        return Text::tr("yavhost.service has a %1 of its own (PrivateTmp) and does not see %2")
            .arg(folder, path);
    }
    folder = hidesHomes ? folderOf(path, homes) : QString();
    if (!folder.isEmpty()) {
        return Text::tr("yavhost.service sees nothing in %1 (ProtectHome), and so not %2")
            .arg(folder, path);
    }
    return {};
}

QString Service::whyNotWriting(const QString &folder) const
{
    const QString path = QDir::cleanPath(folder);
    if (isStrict && folderOf(path, writablePaths).isEmpty())
        return Text::tr("ReadWritePaths of yavhost.service does not name %1").arg(path);
    if (!QDir(path).exists())
        return Text::tr("There is no folder %1").arg(path);
    if (user.isEmpty() || user == QLatin1String("root"))
        return {};
    const passwd *const account = getpwnam(user.toLocal8Bit().constData());
    if (account == nullptr)
        return Text::tr("There is no user %1, as which yavhost.service would run").arg(user);
    if (!mayWrite(*account, path)) {
        return Text::tr("The user %1, as which yavhost.service runs, may not write to %2")
            .arg(user, path);
    }
    return {};
}
