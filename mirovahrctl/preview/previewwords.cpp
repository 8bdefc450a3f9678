#include "mirovahrctl/preview/previewwords.h"

#include "db/tepdbcontract.h"
#include "mirovahrctl/preview/previewdiff.h"
#include "mirovahrctl/preview/previewnames.h"

#include <QRegularExpression>

#include <algorithm>
#include <iterator>

namespace {

struct KindWords {
    PreviewKind kind;
    const char *id;
    const char *heading;
};

constexpr KindWords kKinds[] = {
    {PreviewKind::NewPeople, "new-people", "New people"},
    {PreviewKind::ChangedPeople, "changed-people", "Changed people"},
    {PreviewKind::Recalculation, "recalculation", "Attendance to be calculated again"},
    {PreviewKind::Branches, "branches", "Members of branches"},
    {PreviewKind::Calendars, "calendars", "Calendar groups"},
    {PreviewKind::Balances, "balances", "Vacation balances"},
    {PreviewKind::Supervisors, "supervisors", "Supervisors and administrators"},
    {PreviewKind::Payroll, "payroll", "Payroll export"},
    {PreviewKind::Terminals, "terminals", "Terminals"},
    {PreviewKind::Settings, "settings", "Settings"},
    {PreviewKind::Other, "other", "Other tables"},
};

const KindWords &wordsOf(PreviewKind kind)
{
    return kKinds[static_cast<int>(kind)];
}

bool isOfCalculation(const QString &column)
{
    return column == QLatin1String("lastCalc") || column == QLatin1String("calc");
}

bool isEmptyCell(const QString &cell)
{
    return cell.isEmpty() || cell == QLatin1String("0");
}

/// Whether an update changes nothing but this column.
bool changesOnly(const PreviewChange &change, int column)
{
    for (int i = 0; i < change.table->columns.size(); ++i) {
        if (i != column && change.changes(i))
            return false;
    }
    return true;
}

QStringList entries(const QString &selection)
{
    return selection.split(QLatin1Char(','), Qt::SkipEmptyParts);
}

QStringList missingIn(const QStringList &others, const QStringList &list)
{
    QStringList missing;
    for (const QString &entry : list) {
        if (!others.contains(entry))
            missing += entry;
    }
    return missing;
}

} // namespace

PreviewWords::PreviewWords(PreviewNames &names, const PreviewMoments &moments)
    : m_names(names)
    , m_values(names, moments)
{
}

const QVector<PreviewKind> &PreviewWords::kinds()
{
    static const QVector<PreviewKind> all = [] {
        QVector<PreviewKind> kinds;
        for (const KindWords &words : kKinds)
            kinds += words.kind;
        return kinds;
    }();
    return all;
}

QString PreviewWords::idOf(PreviewKind kind)
{
    return QString::fromLatin1(wordsOf(kind).id);
}

QString PreviewWords::headingOf(PreviewKind kind)
{
    return QString::fromLatin1(wordsOf(kind).heading);
}

PreviewWords::Lines PreviewWords::describe(const PreviewChange &change) const
{
    struct Describer {
        const char *table;
        Lines (PreviewWords::*describe)(const PreviewChange &) const;
    };
    static constexpr Describer kDescribers[] = {
        {"people", &PreviewWords::describePerson},
        {"atten", &PreviewWords::describeAttendance},
        {"brape", &PreviewWords::describeBranchMember},
        {"groups_plan", &PreviewWords::describePlan},
        {"groups_month", &PreviewWords::describeMonth},
        {"funds_move", &PreviewWords::describeMove},
        {"admins_people", &PreviewWords::describeAdministrator},
        {"people_pam", &PreviewWords::describePayrollSettings},
        {"term", &PreviewWords::describeTerminal},
        {"people_term", &PreviewWords::describeTerminalPerson},
        {"term_sync", &PreviewWords::describeQueue},
        {"vars", &PreviewWords::describeSetting},
    };
    const auto *const end = std::end(kDescribers);
    const auto *const found =
        std::find_if(std::begin(kDescribers), end, [&change](const Describer &describer) {
            return change.table->name == QLatin1String(describer.table);
        });
    return found == end ? describePlainly(change) : (this->*found->describe)(change);
}

PreviewWords::Lines PreviewWords::describePerson(const PreviewChange &change) const
{
    if (change.isDelete())
        return describePlainly(change);
    const QString who = m_names.personOfUid(change.cell("uid"));
    Lines lines;
    if (change.isInsert())
        lines.append({PreviewKind::NewPeople, who, QStringLiteral("is created"), {}, {}});
    for (int i = 0; i < change.table->columns.size(); ++i) {
        const QString &name = change.table->columns.at(i).name;
        const TepDbContract::Column *const column =
            TepDbContract::findColumn(change.table->name, name);
        if (!change.changes(i) || (change.isInsert() && isEmptyCell(change.after.at(i))))
            continue;
        const PreviewKind kind = change.isInsert() ? PreviewKind::NewPeople
            : isOfCalculation(name)                ? PreviewKind::Recalculation
                                                   : PreviewKind::ChangedPeople;
        lines.append({kind, who, column == nullptr ? name : QString::fromLatin1(column->label),
                      m_values.before(change, i), m_values.after(change, i)});
    }
    return lines;
}

PreviewWords::Lines PreviewWords::describeAttendance(const PreviewChange &change) const
{
    return compare(PreviewKind::Recalculation, person(change),
                   QStringLiteral("attendance of ") + PreviewValues::time(change.cell("date")),
                   change, "ok");
}

PreviewWords::Lines PreviewWords::describeBranchMember(const PreviewChange &change) const
{
    const QString branch = m_names.branch(change.cell("bid"));
    const QString what = change.isInsert() ? QStringLiteral("joins the branch %1, since")
        : change.isDelete()                ? QStringLiteral("leaves the branch %1, since")
                                           : QStringLiteral("is in the branch %1 since");
    return compare(PreviewKind::Branches, person(change), what.arg(branch), change, "since");
}

PreviewWords::Lines PreviewWords::describePlan(const PreviewChange &change) const
{
    return compare(
        PreviewKind::Calendars, person(change),
        QStringLiteral("calendar group from %1 on").arg(PreviewValues::month(change.cell("since"))),
        change, "gid");
}

PreviewWords::Lines PreviewWords::describeMonth(const PreviewChange &change) const
{
    return compare(
        PreviewKind::Calendars, person(change),
        QStringLiteral("calendar group in %1").arg(PreviewValues::month(change.cell("month"))),
        change, "gid");
}

PreviewWords::Lines PreviewWords::describeMove(const PreviewChange &change) const
{
    const QString fund = m_names.fund(change.cell("fid"));
    const QString what = change.cell("type") == QLatin1String("3")
        ? QStringLiteral("%1 balance corrected on %2 by")
        : QStringLiteral("%1 balance moved on %2 by");
    return compare(PreviewKind::Balances, person(change),
                   what.arg(fund, PreviewValues::time(change.cell("day"))), change, "value");
}

PreviewWords::Lines PreviewWords::describeAdministrator(const PreviewChange &change) const
{
    const QString administrator = m_names.administrator(change.cell("aid"));
    if (change.isInsert() && change.cell("request") == QLatin1String("0")) {
        return {{PreviewKind::Supervisors,
                 person(change),
                 QStringLiteral("is shown to %1").arg(administrator),
                 {},
                 {}}};
    }
    return compare(PreviewKind::Supervisors, person(change),
                   QStringLiteral("requests go to %1").arg(administrator), change, "request");
}

PreviewWords::Lines PreviewWords::describePayrollSettings(const PreviewChange &change) const
{
    return compare(PreviewKind::Payroll, person(change),
                   QStringLiteral("settings of the payroll export"), change, "id");
}

PreviewWords::Lines PreviewWords::describeTerminal(const PreviewChange &change) const
{
    return compare(PreviewKind::Terminals, m_names.terminal(change.cell("tid")),
                   QStringLiteral("has to fetch"), change, "syn");
}

PreviewWords::Lines PreviewWords::describeTerminalPerson(const PreviewChange &change) const
{
    const QString terminal = m_names.terminal(change.cell("tid"));
    const QString what =
        change.isDelete() ? QStringLiteral("is forgotten by %1") : QStringLiteral("is known to %1");
    return {{PreviewKind::Terminals, person(change), what.arg(terminal), {}, {}}};
}

PreviewWords::Lines PreviewWords::describeQueue(const PreviewChange &change) const
{
    const QString id = change.cell("ref_id");
    const bool isPerson = change.cell("ref_col") == QLatin1String("uid");
    const QString what = isPerson
        ? m_names.personOfUid(id)
        : QStringLiteral("%1 %2 of %3").arg(change.cell("ref_col"), id, change.cell("ref"));
    const QString verb = change.isDelete() ? QStringLiteral("no longer gets the change: %1")
                                           : QStringLiteral("gets the change: %1");
    return {{PreviewKind::Terminals, m_names.terminal(change.cell("tid")), verb.arg(what), {}, {}}};
}

PreviewWords::Lines PreviewWords::describeSetting(const PreviewChange &change) const
{
    static const QRegularExpression selection(QStringLiteral("^exportPam\\..*\\.selPeople$"));
    const QString name = change.cell("name");
    if (selection.match(name).hasMatch())
        return describeSelection(change);
    return compare(PreviewKind::Settings, name, QStringLiteral("value"), change, "value");
}

PreviewWords::Lines PreviewWords::describeSelection(const PreviewChange &change) const
{
    const int column = change.table->indexOf(QStringLiteral("value"));
    const QStringList before = entries(change.before.value(column));
    const QStringList after = entries(change.after.value(column));
    const QString name = change.cell("name").section(QLatin1Char('.'), 0, 1);
    Lines lines;
    const QStringList added = missingIn(before, after);
    for (const QString &pid : added) {
        lines.append({PreviewKind::Payroll,
                      m_names.personOfPid(pid),
                      QStringLiteral("is selected for %1").arg(name),
                      {},
                      {}});
    }
    const QStringList gone = missingIn(after, before);
    for (const QString &pid : gone) {
        lines.append({PreviewKind::Payroll,
                      m_names.personOfPid(pid),
                      QStringLiteral("is no longer selected for %1").arg(name),
                      {},
                      {}});
    }
    return lines.isEmpty() ? describePlainly(change) : lines;
}

PreviewWords::Lines PreviewWords::describePlainly(const PreviewChange &change) const
{
    const QString verb = change.isInsert() ? QStringLiteral("new row: %1")
        : change.isDelete()                ? QStringLiteral("removed row: %1")
                                           : QStringLiteral("%1");
    QStringList key;
    for (const QString &column : change.table->key)
        key += column + QLatin1Char(' ') + change.row().at(change.table->indexOf(column));
    const QString who =
        (change.table->name + QLatin1Char(' ') + key.join(QStringLiteral(", "))).trimmed();
    Lines lines;
    for (int i = 0; i < change.table->columns.size(); ++i) {
        if (change.changes(i)) {
            lines.append({PreviewKind::Other, who, verb.arg(change.table->columns.at(i).name),
                          change.before.value(i), change.after.value(i)});
        }
    }
    return lines;
}

PreviewWords::Lines PreviewWords::compare(PreviewKind kind, const QString &who, const QString &what,
                                          const PreviewChange &change, const char *column) const
{
    const int index = change.table->indexOf(QString::fromLatin1(column));
    const bool isUpdate = !change.isInsert() && !change.isDelete();
    if (index < 0 || (isUpdate && !changesOnly(change, index)))
        return describePlainly(change);
    return {{kind, who, what, m_values.before(change, index), m_values.after(change, index)}};
}

QString PreviewWords::person(const PreviewChange &change) const
{
    return m_names.personOfUid(change.cell("uid"));
}
