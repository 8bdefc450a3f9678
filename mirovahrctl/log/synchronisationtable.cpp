#include "mirovahrctl/log/synchronisationtable.h"

#include "cli/text.h"
#include "mirovahrctl/log/loghistory.h"
#include "mirovahrctl/report/moment.h"

#include <cstdlib>

namespace {

constexpr double kHundredths = 100;

QVariant cell(const std::optional<qint64> &value)
{
    return value ? QVariant(*value) : QVariant();
}

QVariant cell(const std::optional<QDateTime> &time)
{
    return time ? QVariant(Moment::text(*time)) : QVariant();
}

double days(qint64 hundredths)
{
    return double(hundredths) / kHundredths;
}

qint64 problemsOf(const LoggedSynchronisation &synchronisation)
{
    qint64 count = 0;
    for (const LoggedProblem &problem : synchronisation.problems)
        count += problem.count;
    return count;
}

QVariantList courseRow(const LoggedSynchronisation &one)
{
    return {one.number,          cell(one.begin),
            cell(one.seconds()), one.hasBegun ? QVariant(one.forced) : QVariant(),
            cell(one.records()), cell(one.waiting),
            problemsOf(one)};
}

QVariantList changeRow(const LoggedSynchronisation &one)
{
    return {one.number,
            cell(one.begin),
            one.created,
            one.updated,
            one.joined,
            one.corrections.size(),
            days(one.correctionSum()),
            days(one.largestCorrection()),
            one.supervisors};
}

} // namespace

Table courseTable(const QVector<LoggedSynchronisation> &synchronisations)
{
    Table table{QStringLiteral("synchronisations"),
                {{QStringLiteral("number"), QStringLiteral("#")},
                 {QStringLiteral("begin"), Text::tr("Begin")},
                 {QStringLiteral("seconds"), Text::tr("Seconds")},
                 {QStringLiteral("forced"), Text::tr("Forced")},
                 {QStringLiteral("records"), Text::tr("People read")},
                 {QStringLiteral("waiting"), Text::tr("Waiting")},
                 {QStringLiteral("problems"), Text::tr("Problems")}},
                {}};
    for (const LoggedSynchronisation &one : synchronisations)
        table.rows.append(courseRow(one));
    return table;
}

Table changeTable(const QVector<LoggedSynchronisation> &synchronisations)
{
    Table table{QStringLiteral("changes"),
                {{QStringLiteral("number"), QStringLiteral("#")},
                 {QStringLiteral("begin"), Text::tr("Begin")},
                 {QStringLiteral("created"), Text::tr("Created")},
                 {QStringLiteral("updated"), Text::tr("Updated")},
                 {QStringLiteral("joined"), Text::tr("Moved in")},
                 {QStringLiteral("corrected"), Text::tr("Balances")},
                 {QStringLiteral("days"), Text::tr("by days")},
                 {QStringLiteral("largest"), Text::tr("at most")},
                 {QStringLiteral("supervisors"), Text::tr("Supervisors")}},
                {}};
    for (const LoggedSynchronisation &one : synchronisations) {
        if (one.hasBegun)
            table.rows.append(changeRow(one));
    }
    return table;
}
