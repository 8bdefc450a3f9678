#include "privatedb/environment.h"

QProcessEnvironment environmentWithoutServers()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    const QStringList names = environment.keys();
    for (const QString &name : names) {
        if (name.startsWith(QLatin1String("MYSQL")) || name.startsWith(QLatin1String("MARIADB")))
            environment.remove(name);
    }
    return environment;
}
