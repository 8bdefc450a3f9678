#include "mirovahrctl/preview/previewvalues.h"

#include "db/tepdbcontract.h"
#include "mirovahrctl/preview/previewdiff.h"
#include "mirovahrctl/preview/previewnames.h"
#include "mirovahrctl/report/moment.h"

#include <QDateTime>
#include <QStringList>

namespace {

using TepDbContract::Shown;

constexpr char kDay[] = "yyyy-MM-dd";

struct Flag {
    uint bit;
    const char *name;
};

constexpr Flag kFlags[] = {
    {1, "interval types"}, {2, "people"}, {64, "time zones"}, {256, "colour groups"}};

Shown formOf(const QString &table, const QString &name)
{
    const TepDbContract::Column *const column = TepDbContract::findColumn(table, name);
    return column == nullptr ? Shown::Plain : column->shown;
}

QString yesOrNo(const QString &cell)
{
    return cell == QLatin1String("0") ? QStringLiteral("no") : QStringLiteral("yes");
}

QString dayAfter(const QString &seconds)
{
    if (seconds == QLatin1String("0"))
        return QStringLiteral("the beginning");
    const QDate day = QDateTime::fromSecsSinceEpoch(seconds.toLongLong()).date();
    return day.addDays(1).toString(QLatin1String(kDay));
}

QString hundredths(const QString &cell)
{
    const double days = cell.toDouble() / 100;
    return QStringLiteral("%1%2 %3").arg(
        days > 0 ? QStringLiteral("+") : QString(), QString::number(days, 'g', 12),
        qAbs(days) == 1 ? QStringLiteral("day") : QStringLiteral("days"));
}

QString flags(const QString &cell)
{
    uint bits = cell.toUInt();
    QStringList names;
    for (const Flag &flag : kFlags) {
        if ((bits & flag.bit) != 0)
            names += QString::fromLatin1(flag.name);
        bits &= ~flag.bit;
    }
    if (bits != 0)
        names += QString::number(bits);
    return names.isEmpty() ? QStringLiteral("nothing") : names.join(QStringLiteral(", "));
}

} // namespace

PreviewValues::PreviewValues(PreviewNames &names, const PreviewMoments &moments)
    : m_names(names)
    , m_moments(moments)
{
}

QString PreviewValues::before(const PreviewChange &change, int column) const
{
    return change.isInsert() ? QString() : read(change, column, change.before.at(column));
}

QString PreviewValues::after(const PreviewChange &change, int column) const
{
    if (change.isDelete())
        return QString();
    if (m_moments.isNow(change, column))
        return QStringLiteral("now");
    return read(change, column, change.after.at(column));
}

QString PreviewValues::time(const QString &seconds)
{
    const QDateTime moment = QDateTime::fromSecsSinceEpoch(seconds.toLongLong());
    const bool isDay = moment.time() == QTime(0, 0) || moment.time() == QTime(23, 59, 59);
    return isDay ? moment.toString(QLatin1String(kDay)) : Moment::text(moment);
}

QString PreviewValues::month(const QString &number)
{
    if (number == QLatin1String("0"))
        return QStringLiteral("the beginning");
    return number.size() == 6 ? number.left(4) + QLatin1Char('-') + number.mid(4) : number;
}

QString PreviewValues::read(const PreviewChange &change, int column, const QString &cell) const
{
    if (cell.isNull())
        return QString();
    const QString zero = QStringLiteral("0");
    switch (formOf(change.table->name, change.table->columns.at(column).name)) {
    case Shown::Plain:
        return cell;
    case Shown::Day:
        return cell == zero ? QString() : time(cell);
    case Shown::DayAfter:
        return dayAfter(cell);
    case Shown::Branch:
        return m_names.branch(cell);
    case Shown::CalendarGroup:
        return m_names.calendarGroup(cell);
    case Shown::Editor:
        return cell == zero ? QStringLiteral("HR") : m_names.administrator(cell);
    case Shown::CalculationDue:
        return cell == zero ? QStringLiteral("due") : time(cell);
    case Shown::Hundredths:
        return hundredths(cell);
    case Shown::Flags:
        return flags(cell);
    case Shown::Calculated:
        return cell.startsWith(QLatin1Char('-')) ? QStringLiteral("to be calculated")
                                                 : QStringLiteral("calculated");
    case Shown::YesNo:
        break;
    }
    return yesOrNo(cell);
}
