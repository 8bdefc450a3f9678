#include "mirovahrctl/preview/previewwords.h"

#include "cli/text.h"
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
    {PreviewKind::NewPeople, "new-people", QT_TRANSLATE_NOOP("Text", "New people")},
    {PreviewKind::ChangedPeople, "changed-people", QT_TRANSLATE_NOOP("Text", "Changed people")},
    {PreviewKind::Recalculation, "recalculation",
     QT_TRANSLATE_NOOP("Text", "Attendance to be calculated again")},
    {PreviewKind::Branches, "branches", QT_TRANSLATE_NOOP("Text", "Members of branches")},
    {PreviewKind::Calendars, "calendars", QT_TRANSLATE_NOOP("Text", "Calendar groups")},
    {PreviewKind::Balances, "balances", QT_TRANSLATE_NOOP("Text", "Vacation balances")},
    {PreviewKind::Supervisors, "supervisors",
     QT_TRANSLATE_NOOP("Text", "Supervisors and administrators")},
    {PreviewKind::Payroll, "payroll", QT_TRANSLATE_NOOP("Text", "Payroll export")},
    {PreviewKind::Terminals, "terminals", QT_TRANSLATE_NOOP("Text", "Terminals")},
    {PreviewKind::Settings, "settings", QT_TRANSLATE_NOOP("Text", "Settings")},
    {PreviewKind::Other, "other", QT_TRANSLATE_NOOP("Text", "Other tables")},
};

const KindWords &wordsOf(PreviewKind kind)
{
    return kKinds[static_cast<int>(kind)];
}

bool isOfCalculation(const QString &column)
{
    return column == QLatin1String("lastCalc") || column == QLatin1String("calc");
}

/// Columns of people that HR would not recognise.
bool isBookkeeping(const QString &column)
{
    static const QStringList names = TepDbContract::names("uid pid created edited editor calc");
    return names.contains(column);
}

/// Columns of people that PreviewNames::personOfUid() is made of.
bool isOfName(const QString &column)
{
    static const QStringList names = TepDbContract::names("pamId name surname");
    return names.contains(column);
}

PreviewLine::Row rowOf(const PreviewChange &change)
{
    if (change.isInsert())
        return PreviewLine::Row::Added;
    return change.isDelete() ? PreviewLine::Row::Removed : PreviewLine::Row::Changed;
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

/// What a row of admins_people that comes, goes or changes means; with a place for the
/// administrator.
QString requestWords(PreviewLine::Row row, bool hasRequests)
{
    if (row == PreviewLine::Row::Removed) {
        return hasRequests ? Text::tr("is no longer shown to %1, who got the requests")
                           : Text::tr("is no longer shown to %1");
    }
    if (hasRequests)
        return Text::tr("requests go to %1");
    return row == PreviewLine::Row::Added ? Text::tr("is shown to %1")
                                          : Text::tr("requests no longer go to %1");
}

/// The words for a move of a balance, with a place for the day.
struct MoveWords {
    QString what; ///< with %3 for the fund
    QString sentence; ///< with %2 for the days as well
};

MoveWords moveWords(bool isVacation, bool isCorrection)
{
    if (isVacation && isCorrection)
        return {Text::tr("vacation balance corrected on %1 by"),
                Text::tr("vacation balance corrected on %1 by %2")};
    if (isVacation)
        return {Text::tr("vacation balance moved on %1 by"),
                Text::tr("vacation balance moved on %1 by %2")};
    if (isCorrection)
        return {Text::tr("fund %3 balance corrected on %1 by"),
                Text::tr("fund %3 balance corrected on %1 by %2")};
    return {Text::tr("fund %3 balance moved on %1 by"),
            Text::tr("fund %3 balance moved on %1 by %2")};
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

QString PreviewLine::text() const
{
    return QString(what).replace(QLatin1String("%1"), thing);
}

PreviewWords::PreviewWords(PreviewNames &names, const PreviewMoments &moments)
    : m_names(names)
    , m_moments(moments)
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
    return Text::tr(wordsOf(kind).heading);
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
    Lines lines;
    if (change.isInsert())
        lines += lineAbout(PreviewKind::NewPeople, change, Text::tr("is created"));
    for (int i = 0; i < change.table->columns.size(); ++i) {
        if (change.changes(i) && !(change.isInsert() && isEmptyCell(change.after.at(i))))
            lines += describePersonColumn(change, i);
    }
    return lines;
}

PreviewLine PreviewWords::describePersonColumn(const PreviewChange &change, int column) const
{
    const QString &name = change.table->columns.at(column).name;
    const TepDbContract::Column *const known = TepDbContract::findColumn(change.table->name, name);
    const PreviewKind kind = change.isInsert() ? PreviewKind::NewPeople
        : isOfCalculation(name)                ? PreviewKind::Recalculation
                                               : PreviewKind::ChangedPeople;
    PreviewLine line = lineAbout(kind, change, known == nullptr ? name : Text::tr(known->label));
    line.isName = isOfName(name);
    line.isYes = known != nullptr && known->shown == TepDbContract::Shown::YesNo
        && change.after.at(column) != QLatin1String("0");
    line.isBookkeeping = isBookkeeping(name);
    line.before = m_values.before(change, column);
    line.after = m_values.after(change, column);
    return line;
}

PreviewWords::Lines PreviewWords::describeAttendance(const PreviewChange &change) const
{
    return compare(lineAbout(PreviewKind::Recalculation, change, Text::tr("attendance of %1"),
                             PreviewValues::time(change.cell("date"))),
                   change, "ok");
}

PreviewWords::Lines PreviewWords::describeBranchMember(const PreviewChange &change) const
{
    const int since = change.table->indexOf(QStringLiteral("since"));
    const bool isAsUsual = change.isInsert() && since >= 0 && m_moments.isNow(change, since);
    const QString branch = m_names.branch(change.cell("bid"));
    if (isAsUsual)
        return {lineAbout(PreviewKind::Branches, change, Text::tr("joins the branch %1"), branch)};
    PreviewLine line =
        lineAbout(PreviewKind::Branches, change, Text::tr("is in the branch %1 since"), branch);
    if (change.isInsert()) {
        line.what = Text::tr("joins the branch %1, since");
        line.sentence = Text::tr("joins the branch %1, since %2");
    } else if (change.isDelete()) {
        line.what = Text::tr("leaves the branch %1, in it since");
        line.sentence = Text::tr("leaves the branch %1, in it since %2");
    }
    return compare(line, change, "since");
}

PreviewWords::Lines PreviewWords::describePlan(const PreviewChange &change) const
{
    const QString since = change.cell("since");
    const PreviewLine line = since == QLatin1String("0")
        ? lineAbout(PreviewKind::Calendars, change,
                    Text::tr("calendar group from the beginning on"))
        : lineAbout(PreviewKind::Calendars, change, Text::tr("calendar group from %1 on"),
                    PreviewValues::month(since));
    return compare(line, change, "gid");
}

PreviewWords::Lines PreviewWords::describeMonth(const PreviewChange &change) const
{
    return compare(lineAbout(PreviewKind::Calendars, change, Text::tr("calendar group in %1"),
                             PreviewValues::month(change.cell("month"))),
                   change, "gid");
}

PreviewWords::Lines PreviewWords::describeMove(const PreviewChange &change) const
{
    const QString fund = change.cell("fid");
    const MoveWords words =
        moveWords(m_names.isVacation(fund), change.cell("type") == QLatin1String("3"));
    const QString day = PreviewValues::time(change.cell("day"));
    PreviewLine line = lineAbout(PreviewKind::Balances, change, words.what, day);
    line.what.replace(QLatin1String("%3"), fund);
    if (line.row != PreviewLine::Row::Changed)
        line.sentence = QString(words.sentence).replace(QLatin1String("%3"), fund);
    return compare(line, change, "value");
}

PreviewWords::Lines PreviewWords::describeAdministrator(const PreviewChange &change) const
{
    const QString administrator = m_names.administrator(change.cell("aid"));
    const bool hasRequests = change.cell("request") != QLatin1String("0");
    const PreviewLine line = lineAbout(PreviewKind::Supervisors, change,
                                       requestWords(rowOf(change), hasRequests), administrator);
    Lines lines = compare(line, change, "request");
    if (lines.constFirst().kind == PreviewKind::Supervisors) {
        // The words say it.
        lines.first().before.clear();
        lines.first().after.clear();
    }
    return lines;
}

PreviewWords::Lines PreviewWords::describePayrollSettings(const PreviewChange &change) const
{
    return compare(
        lineAbout(PreviewKind::Payroll, change, Text::tr("settings of the payroll export")), change,
        "id");
}

PreviewWords::Lines PreviewWords::describeTerminal(const PreviewChange &change) const
{
    PreviewLine line = lineAbout(PreviewKind::Terminals, change, Text::tr("has to fetch"));
    line.isBookkeeping = true;
    line.who = m_names.terminal(change.cell("tid"));
    return compare(line, change, "syn");
}

PreviewWords::Lines PreviewWords::describeTerminalPerson(const PreviewChange &change) const
{
    const QString what =
        change.isDelete() ? Text::tr("is forgotten by %1") : Text::tr("is known to %1");
    return {lineAbout(PreviewKind::Terminals, change, what, m_names.terminal(change.cell("tid")))};
}

PreviewWords::Lines PreviewWords::describeQueue(const PreviewChange &change) const
{
    const QString id = change.cell("ref_id");
    PreviewLine line;
    line.kind = PreviewKind::Terminals;
    line.row = rowOf(change);
    line.isBookkeeping = true;
    line.what =
        change.isDelete() ? Text::tr("is no longer queued for %1") : Text::tr("is queued for %1");
    line.thing = m_names.terminal(change.cell("tid"));
    if (change.cell("ref_col") == QLatin1String("uid")) {
        line.uid = id.toUInt();
        line.who = m_names.personOfUid(id);
    } else {
        line.who = Text::tr("%1 %2 of %3").arg(change.cell("ref_col"), id, change.cell("ref"));
    }
    return {line};
}

PreviewWords::Lines PreviewWords::describeSetting(const PreviewChange &change) const
{
    static const QRegularExpression selection(QStringLiteral("^exportPam\\..*\\.selPeople$"));
    if (selection.match(change.cell("name")).hasMatch())
        return describeSelection(change);
    PreviewLine line = lineAbout(PreviewKind::Settings, change, Text::tr("value", "of a setting"));
    line.who = change.cell("name");
    return compare(line, change, "value");
}

PreviewWords::Lines PreviewWords::describeSelection(const PreviewChange &change) const
{
    const int column = change.table->indexOf(QStringLiteral("value"));
    const QStringList before = entries(change.before.value(column));
    const QStringList after = entries(change.after.value(column));
    const QString name = change.cell("name").section(QLatin1Char('.'), 0, 1);
    Lines lines;
    const QStringList added = missingIn(before, after);
    for (const QString &pid : added)
        lines += lineAboutPid(pid, Text::tr("is selected for %1"), name);
    const QStringList gone = missingIn(after, before);
    for (const QString &pid : gone)
        lines += lineAboutPid(pid, Text::tr("is no longer selected for %1"), name);
    return lines.isEmpty() ? describePlainly(change) : lines;
}

PreviewWords::Lines PreviewWords::describePlainly(const PreviewChange &change) const
{
    const QString what = change.isInsert() ? Text::tr("new row: %1")
        : change.isDelete()                ? Text::tr("removed row: %1")
                                           : QStringLiteral("%1");
    QStringList key;
    for (const QString &column : change.table->key)
        key += column + QLatin1Char(' ') + change.row().at(change.table->indexOf(column));
    PreviewLine line;
    line.row = rowOf(change);
    line.what = what;
    line.who = (change.table->name + QLatin1Char(' ') + key.join(QStringLiteral(", "))).trimmed();
    Lines lines;
    for (int i = 0; i < change.table->columns.size(); ++i) {
        if (!change.changes(i))
            continue;
        line.thing = change.table->columns.at(i).name;
        line.before = change.before.value(i);
        line.after = change.after.value(i);
        lines += line;
    }
    return lines;
}

PreviewLine PreviewWords::lineAbout(PreviewKind kind, const PreviewChange &change,
                                    const QString &what, const QString &thing) const
{
    const QString uid = change.cell("uid");
    PreviewLine line;
    line.kind = kind;
    line.row = rowOf(change);
    line.uid = uid.toUInt();
    line.who = m_names.personOfUid(uid);
    line.what = what;
    line.thing = thing;
    return line;
}

PreviewLine PreviewWords::lineAboutPid(const QString &pid, const QString &what,
                                       const QString &thing) const
{
    PreviewLine line;
    line.kind = PreviewKind::Payroll;
    line.uid = m_names.uidOfPid(pid);
    line.who = m_names.personOfPid(pid);
    line.what = what;
    line.thing = thing;
    return line;
}

PreviewWords::Lines PreviewWords::compare(PreviewLine line, const PreviewChange &change,
                                          const char *column) const
{
    const int index = change.table->indexOf(QString::fromLatin1(column));
    const bool isUpdate = !change.isInsert() && !change.isDelete();
    if (index < 0 || (isUpdate && !changesOnly(change, index)))
        return describePlainly(change);
    line.before = m_values.before(change, index);
    line.after = m_values.after(change, index);
    return {line};
}
