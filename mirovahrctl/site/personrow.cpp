#include "mirovahrctl/site/personrow.h"

#include "mirovahrctl/site/sqlsession.h"

#include <QDateTime>

namespace {

constexpr char kSelectRow[] = "SELECT uid, pamId, CONCAT_WS(' ', name, surname), status, created,"
                              " edited, editor, `end`, lastCalc, calc FROM people WHERE pid = %1";

} // namespace

std::optional<PersonRow> PersonRow::read(SqlSession &sql, quint32 pid)
{
    const QStringList columns = sql.row(QString(QLatin1String(kSelectRow)).arg(pid));
    if (columns.isEmpty())
        return std::nullopt;
    PersonRow row;
    row.uid = columns.at(0).toUInt();
    row.payrollId = columns.at(1);
    row.name = columns.at(2).simplified();
    row.active = columns.at(3).toInt() != 0;
    row.created = columns.at(4).toLongLong();
    row.edited = columns.at(5).toLongLong();
    row.editedByPlugin = columns.at(6) == QLatin1String("0");
    // 0 is no last day to the plugin either.
    if (columns.at(7).toLongLong() != 0)
        row.end = columns.at(7).toLongLong();
    row.lastCalc = columns.at(8).toLongLong();
    row.calc = columns.at(9).toLongLong();
    return row;
}

bool PersonRow::isOver() const
{
    return end && *end < QDateTime::currentSecsSinceEpoch();
}
