#include "bench/plainreading.h"

#include "bench/site.h"

#include <QFile>
#include <QStringList>

void readByQt(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        giveUp(file.errorString());
    qint64 fields = 0;
    while (!file.atEnd())
        fields += QString::fromUtf8(file.readLine()).split(QLatin1Char('|')).size();
    if (fields == 0)
        giveUp(path + QLatin1String(" is empty"));
}
