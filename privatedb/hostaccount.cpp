#include "privatedb/hostaccount.h"

#include <QFile>
#include <QSqlError>
#include <QSqlQuery>
#include <QStringList>

bool HostAccount::make(const QSqlDatabase &administrator, const QString &databaseName,
                       Rights rights, QString &error)
{
    const QString name = QLatin1String(kName);
    QStringList statements{
        QStringLiteral("CREATE DATABASE IF NOT EXISTS `%1` CHARACTER SET utf8mb4")
            .arg(databaseName),
        QStringLiteral("CREATE USER IF NOT EXISTS '%1'@'localhost' IDENTIFIED BY '%2'")
            .arg(name)
            .arg(QLatin1String(kPassword))};
    if (rights == Rights::All) {
        statements +=
            QStringLiteral("GRANT ALL ON `%1`.* TO '%2'@'localhost'").arg(databaseName).arg(name);
    }
    QSqlQuery query(administrator);
    for (const QString &statement : qAsConst(statements)) {
        if (!query.exec(statement)) {
            error = query.lastError().text();
            return false;
        }
    }
    return true;
}

bool HostAccount::writePasswordFile(const QString &path, QString &error)
{
    QFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.setPermissions(QFile::ReadOwner | QFile::WriteOwner)
        && file.write(kPassword) >= 0)
        return true;
    error = QStringLiteral("%1: %2").arg(path).arg(file.errorString());
    return false;
}
