#include "mirovahrctl/explain/phrases.h"

#include <QDateTime>
#include <QStringList>

namespace Phrases {

QString day(const QDate &date)
{
    return date.isValid() ? date.toString(Qt::ISODate) : QStringLiteral("none");
}

QString day(qint64 time)
{
    return day(QDateTime::fromSecsSinceEpoch(time).date());
}

QString list(const QString &one, const QString &many, const QStringList &ids, const QString &none)
{
    if (ids.isEmpty())
        return none;
    if (ids.size() == 1)
        return one + QLatin1Char(' ') + ids.first();
    const QStringList first = ids.mid(0, ids.size() - 1);
    return QStringLiteral("%1 %2 and %3").arg(many, first.join(QStringLiteral(", ")), ids.last());
}

QString days(qint64 hundredths)
{
    return QStringLiteral("%1 days").arg(double(hundredths) / 100, 0, 'f', 2);
}

} // namespace Phrases
