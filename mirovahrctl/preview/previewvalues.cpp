#include "mirovahrctl/preview/previewvalues.h"

#include "cli/text.h"
#include "db/tepdbcontract.h"
#include "mirovahrctl/preview/previewdiff.h"
#include "mirovahrctl/preview/previewnames.h"
#include "mirovahrctl/report/language.h"
#include "mirovahrctl/report/moment.h"

#include <QDateTime>
#include <QStringList>

namespace {

using TepDbContract::Shown;

struct Flag {
    uint bit;
    const char *name;
};

constexpr Flag kFlags[] = {{1, QT_TRANSLATE_NOOP("Text", "interval types")},
                           {2, QT_TRANSLATE_NOOP("Text", "people")},
                           {64, QT_TRANSLATE_NOOP("Text", "time zones")},
                           {256, QT_TRANSLATE_NOOP("Text", "colour groups")}};

Shown formOf(const QString &table, const QString &name)
{
    const TepDbContract::Column *const column = TepDbContract::findColumn(table, name);
    return column == nullptr ? Shown::Plain : column->shown;
}

QString yesOrNo(const QString &cell)
{
    return cell == QLatin1String("0") ? Text::tr("no") : Text::tr("yes");
}

QString dayAfter(const QString &seconds)
{
    if (seconds == QLatin1String("0"))
        return Text::tr("the beginning");
    const QDate day = QDateTime::fromSecsSinceEpoch(seconds.toLongLong()).date();
    return Moment::text(day.addDays(1));
}

QString hundredths(const QString &cell)
{
    constexpr int kOfDay = 100;
    const qint64 count = qRound64(cell.toDouble());
    const qint64 size = qAbs(count);
    const QString sign = count > 0 ? QStringLiteral("+")
        : count < 0                ? QStringLiteral("-")
                                   : QString();
    if (size % kOfDay == 0)
        return sign + Text::tr("%Ln day(s)", nullptr, Language::count(size / kOfDay));
    const int digits = size % 10 == 0 ? 1 : 2;
    return Text::tr("%1 days").arg(sign
                                   + Language::number(static_cast<double>(size) / kOfDay, digits));
}

QString flags(const QString &cell)
{
    uint bits = cell.toUInt();
    QStringList names;
    for (const Flag &flag : kFlags) {
        if ((bits & flag.bit) != 0)
            names += Text::tr(flag.name);
        bits &= ~flag.bit;
    }
    if (bits != 0)
        names += QString::number(bits);
    return names.isEmpty() ? Text::tr("nothing", "kinds of data")
                           : names.join(QStringLiteral(", "));
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
        return Text::tr("now");
    return read(change, column, change.after.at(column));
}

QString PreviewValues::time(const QString &seconds)
{
    const QDateTime moment = QDateTime::fromSecsSinceEpoch(seconds.toLongLong());
    const bool isDay = moment.time() == QTime(0, 0) || moment.time() == QTime(23, 59, 59);
    return isDay ? Moment::text(moment.date()) : Moment::text(moment);
}

QString PreviewValues::month(const QString &number)
{
    return number.size() == 6
        ? Text::tr("%1-%2", "a year and a month").arg(number.left(4), number.mid(4))
        : number;
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
        return cell == zero ? Text::tr("HR") : m_names.administrator(cell);
    case Shown::CalculationDue:
        return cell == zero ? Text::tr("due") : time(cell);
    case Shown::Hundredths:
        return hundredths(cell);
    case Shown::Flags:
        return flags(cell);
    case Shown::Calculated:
        return cell.startsWith(QLatin1Char('-')) ? Text::tr("to be calculated")
                                                 : Text::tr("calculated");
    case Shown::YesNo:
        break;
    }
    return yesOrNo(cell);
}
