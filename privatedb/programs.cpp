#include "privatedb/programs.h"

#include "cli/text.h"

#include <QStandardPaths>

namespace {

constexpr char kServerPackage[] = "mariadb-server-core";
constexpr char kClientPackage[] = "mariadb-client-core";

struct Description {
    QLatin1String name;
    QLatin1String package;
};

Description describe(MariaDbPrograms::Program program)
{
    switch (program) {
    case MariaDbPrograms::Program::Server:
        return {QLatin1String("mariadbd"), QLatin1String(kServerPackage)};
    case MariaDbPrograms::Program::InstallDb:
        return {QLatin1String("mariadb-install-db"), QLatin1String(kServerPackage)};
    case MariaDbPrograms::Program::Client:
        break;
    }
    return {QLatin1String("mariadb"), QLatin1String(kClientPackage)};
}

} // namespace

QString MariaDbPrograms::find(Program program)
{
    const QString name = describe(program).name;
    const QString found = QStandardPaths::findExecutable(name);
    if (!found.isEmpty())
        return found;
    // An ordinary user's PATH often lacks the folder that holds servers.
    return QStandardPaths::findExecutable(
        name, {QStringLiteral("/usr/sbin"), QStringLiteral("/usr/local/sbin")});
}

QString MariaDbPrograms::missing(Program program)
{
    const Description description = describe(program);
    return Text::tr("The program %1 is missing: install the package %2.")
        .arg(description.name)
        .arg(description.package);
}
