#include "tools/personname.h"

#include "worker/mirovaronrecord.h"

QString personName(const MirovaRonRecord &record)
{
    return QStringLiteral("%1 %2 %3")
        .arg(record.getPamId(), record.jmeno, record.prijmeni)
        .simplified();
}
