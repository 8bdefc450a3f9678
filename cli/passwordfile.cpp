#include "cli/passwordfile.h"

#include "cli/systemmessage.h"
#include "cli/text.h"

#include <QFile>
#include <QFileInfo>

QString readPasswordFile(const QString &path, QString &password, QString &warning)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return Text::tr("The password file '%1' cannot be read: %2")
            .arg(path, systemMessage(file.errorString()));
    }
    QByteArray line = file.readLine();
    if (line.endsWith('\n'))
        line.chop(1);
    password = QString::fromUtf8(line);
    if (isReadableForAll(path)) {
        warning = Text::tr("Every user of the machine can read the password file '%1'. "
                           "Remove the permission (chmod o-r)")
                      .arg(path);
    }
    return {};
}

bool isReadableForAll(const QString &path)
{
    const QFileInfo info(path);
    return info.isFile() && info.permission(QFileDevice::ReadOther);
}
