#include "tests/worker/operations/recordtext.h"

#include <QStringList>
#include <QTest>

char *toString(const MirovaRonRecord &record)
{
    const QStringList fields = {
        record.getString(true),
        record.getString(false),
        record.strediskoPopis,
        QString::number(record.stavPracovnihoPomeru),
        QString::number(record.dovolenaZustatek, 'g', 17),
    };
    return QTest::toString(fields.join(" | "));
}
