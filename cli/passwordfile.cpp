#include "cli/passwordfile.h"

#include <QFile>

QString readPasswordFile(const QString &path, QString &password)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return QStringLiteral("The password file '%1' cannot be read: %2")
            .arg(path, file.errorString());
    }
    QByteArray line = file.readLine();
    if (line.endsWith('\n'))
        line.chop(1);
    password = QString::fromUtf8(line);
    return {};
}
