#include "mirovahrctl/preview/previewselection.h"

#include "cli/text.h"
#include "mirovahrctl/preview/previewpeople.h"
#include "mirovahrctl/preview/previewschema.h"
#include "mirovahrctl/site/sqlsession.h"
#include "worker/recorddates.h"

#include <QDate>
#include <QRegularExpression>
#include <QVector>

#include <algorithm>
#include <iterator>

namespace {

struct Reduction {
    const char *table;
    /// The rows of the people of the export that are copied; none when empty. {people}: their uids.
    /// {moving}: of those who may get another calendar group. {day}: the first day that is
    /// calculated again when a person has moved or the balance was corrected.
    const char *rows;
    /// Columns of every unique key, separated by blanks: with another key, an insert could hit a
    /// row that is left out, or change one that is not compared. Empty: no such key is harmless.
    const char *identity;
    /// Of these, the ones that may change; all when empty. {today}: the day.
    const char *changing = "";
};

// All other tables are copied whole: they grow with the people, not with the years.
//
// Whose rows: the plugin finds a person by the pid of a record, and its statements on these tables
// name one uid each. A person who is created gets a new uid, for which there may be rows that
// somebody who was deleted has left behind: all of these are copied.
constexpr Reduction kReductions[] = {
    // A change of the calendar group makes the months of all days of the person and resets the open
    // days since any date. Of anybody else the plugin counts the open days that are to be
    // calculated, and resets those since the first day of the previous month.
    {"atten",
     "uid IN ({moving}) OR uid IN ({people}) AND `lock` = 0 AND (ok < 0 OR `date` >= {day})",
     "uid"},
    // Written for the months of a person whose calendar group changes, and not read.
    {"groups_month", "uid IN ({moving})", "uid"},
    // The balance is the sum of all moves of a person; the plugin writes the correction of today.
    {"funds_move", "uid IN ({people})", "uid day", "`day` >= {today}"},
    // The plugin adds to the queue, and does not read it.
    {"term_sync", "", ""},
};

/// Tables whose rows a reduced table may refer to: copied whole, and the plugin never changes what
/// identifies a row.
constexpr const char *kHarmlessParents[] = {"people", "groups", "funds"};

struct NumberColumns {
    const char *table;
    const char *columns; ///< separated by blanks
};

/// What the selection compares as numbers.
constexpr NumberColumns kNumbers[] = {
    {"people", "uid pid"},
    {"atten", "uid date ok lock"},
    {"groups_month", "uid"},
    {"funds_move", "uid day"},
    {"branches", "number mgid"},
    {"mastergroups", "mgid"},
    {"groups", "gid parent calendarID"},
    {"groups_plan", "gid uid since"},
};

constexpr char kPeople[] = "SELECT uid, pid FROM `people`";

constexpr char kGroups[] = "SELECT b.number, g.calendarID, g.gid FROM branches b JOIN mastergroups "
                           "mg ON mg.mgid = b.mgid JOIN `groups` g ON g.parent = mg.mgid WHERE "
                           "b.number IS NOT NULL AND g.calendarID IS NOT NULL";

constexpr char kPlans[] = "SELECT uid, since, gid FROM groups_plan";

const Reduction *reductionOf(const QString &table)
{
    const auto *const end = std::end(kReductions);
    const auto *const found =
        std::find_if(std::begin(kReductions), end, [&table](const Reduction &reduction) {
            return table == QLatin1String(reduction.table);
        });
    return found == end ? nullptr : found;
}

/// People whose rows one query reads: some ten thousand days for each of those who are moving.
constexpr int kPeopleOfPortion = 100;

QVector<quint32> inOrder(const QSet<quint32> &uids)
{
    QVector<quint32> sorted(uids.cbegin(), uids.cend());
    std::sort(sorted.begin(), sorted.end());
    return sorted;
}

QString listed(const QVector<quint32> &uids)
{
    QStringList texts;
    for (const quint32 uid : uids)
        texts += QString::number(uid);
    return texts.isEmpty() ? QStringLiteral("NULL") : texts.join(QLatin1Char(','));
}

/// The next value of a column that the server fills in.
quint64 nextValue(const QString &definition)
{
    static const QRegularExpression option(QStringLiteral("^\\) .*\\bAUTO_INCREMENT=(\\d+)"),
                                           QRegularExpression::MultilineOption);
    return option.match(definition).captured(1).toULongLong();
}

} // namespace

PreviewSelection::PreviewSelection(const PreviewSchema &schema, const PreviewPeople &people,
                                   Extent extent)
    : m_schema(schema)
    , m_people(people)
    , m_extent(extent)
{
    if (m_extent == Extent::All)
        return;
    doubtStatements();
    doubtPrograms();
    for (const PreviewTable &table : m_schema.tables)
        doubtTable(table);
}

void PreviewSelection::doubtStatements()
{
    if (m_people.harmfulLine != 0) {
        doubtAll(Text::tr("All rows of all tables were copied, because a text in line %1 of the "
                          "export changes the plugin's statements")
                     .arg(m_people.harmfulLine));
    }
    if (m_people.hasHarmfulState) {
        doubtAll(Text::tr("All rows of all tables were copied, because a relationship state of the "
                          "configuration changes the plugin's "
                          "statements"));
    }
}

void PreviewSelection::doubtPrograms()
{
    if (!m_schema.triggers.isEmpty()) {
        doubtAll(
            Text::tr(
                "All rows of all tables were copied, because the site has triggers, such as %1")
                .arg(m_schema.triggers.first().name));
    }
    for (const PreviewProgram &routine : m_schema.routines) {
        if (routine.runsTexts)
            doubtAll(Text::tr("All rows of all tables were copied, because the routine %1 runs "
                              "statements that it makes")
                         .arg(routine.name));
        for (const QString &table : routine.tables)
            doubt(table,
                  Text::tr("All rows of %1 were copied, because the routine %2 uses it")
                      .arg(table, routine.name));
    }
}

void PreviewSelection::doubtTable(const PreviewTable &table)
{
    doubtColumns(table);
    if (table.name == QLatin1String("people"))
        noteNextUid(table);
    if (reductionOf(table.name))
        doubtKeys(table);
    doubtReferences(table);
}

/// A missing or differently typed column is compared in another way than here.
void PreviewSelection::doubtColumns(const PreviewTable &table)
{
    for (const NumberColumns &numbers : kNumbers) {
        if (table.name != QLatin1String(numbers.table))
            continue;
        const QStringList names = QString::fromLatin1(numbers.columns).split(QLatin1Char(' '));
        for (const QString &name : names) {
            const int at = table.indexOf(name);
            if (at < 0 || table.columns.at(at).kind != PreviewColumn::Kind::Number)
                doubtAll(
                    Text::tr("All rows of all tables were copied, because %1.%2 is not a number")
                        .arg(table.name, name));
        }
    }
}

void PreviewSelection::noteNextUid(const PreviewTable &people)
{
    if (people.isCounted(QStringLiteral("uid")))
        m_nextUid = nextValue(people.definition);
    else
        doubtAll(Text::tr(
            "All rows of all tables were copied, because the server does not count people.uid"));
}

void PreviewSelection::doubtKeys(const PreviewTable &table)
{
    const QStringList identity =
        QString::fromLatin1(reductionOf(table.name)->identity).split(QLatin1Char(' '));
    const auto keys = table.uniqueKeys();
    for (const QStringList &key : keys) {
        const bool hasIdentity =
            std::all_of(identity.cbegin(), identity.cend(),
                        [&key](const QString &column) { return key.contains(column); });
        // A calculated day must not collide with another that is reset.
        const bool isOfPerson = hasIdentity && !key.contains(QStringLiteral("ok"));
        const bool isNumber = key.size() == 1 && table.isCounted(key.first());
        if (!isOfPerson && !isNumber) {
            doubt(table.name,
                  Text::tr("All rows of %1 were copied, because it has the unique key %2")
                      .arg(table.name, key.join(QStringLiteral(", "))));
        }
    }
}

void PreviewSelection::doubtReferences(const PreviewTable &table)
{
    for (const QString &parent : table.parents) {
        doubt(parent,
              Text::tr("All rows of %1 were copied, because %2 refers to it")
                  .arg(parent, table.name));
        const bool isHarmless = std::any_of(
            std::begin(kHarmlessParents), std::end(kHarmlessParents),
            [&parent](const char *harmless) { return parent == QLatin1String(harmless); });
        if (!isHarmless)
            doubt(table.name,
                  Text::tr("All rows of %1 were copied, because it refers to %2")
                      .arg(table.name, parent));
    }
}

void PreviewSelection::doubt(const QString &table, const QString &sentence)
{
    if (!reductionOf(table))
        return;
    m_whole += table;
    note(sentence);
}

void PreviewSelection::doubtAll(const QString &sentence)
{
    for (const Reduction &reduction : kReductions)
        m_whole += QString::fromLatin1(reduction.table);
    note(sentence);
}

void PreviewSelection::note(const QString &doubt)
{
    if (!m_doubts.contains(doubt))
        m_doubts += doubt;
}

void PreviewSelection::read(SqlSession &site)
{
    if (m_extent == Extent::All)
        return;
    readPeople(site);
    readMoving(site);
}

void PreviewSelection::readPeople(SqlSession &site)
{
    site.forEachRow(QLatin1String(kPeople), [this](const QStringList &row) {
        const quint32 uid = numberOf(row.at(0));
        const quint32 pid = numberOf(row.at(1));
        if (m_people.pids.contains(pid)) {
            m_uids += uid;
            m_uidsOfPid[pid] += uid;
        }
        return true;
    });
}

/// Finds the people whose lines name a calendar group that they are not planned for. The plugin
/// writes no other plans, and what is planned for one person depends on that person's lines only:
/// if the plan has the groups of all of them now, no line changes it.
void PreviewSelection::readMoving(SqlSession &site)
{
    QHash<QPair<quint32, quint32>, QSet<quint32>> groups;
    site.forEachRow(QLatin1String(kGroups), [&](const QStringList &row) {
        groups[{numberOf(row.at(0)), numberOf(row.at(1))}] += numberOf(row.at(2));
        return true;
    });
    QHash<QPair<quint32, quint32>, quint32> plans;
    site.forEachRow(QLatin1String(kPlans), [&](const QStringList &row) {
        plans.insert({numberOf(row.at(0)), numberOf(row.at(1))}, numberOf(row.at(2)));
        return true;
    });
    for (const PreviewPeople::Placement &line : m_people.placements) {
        const QSet<quint32> possible = groups.value({line.costCentre, line.calendar});
        const QVector<quint32> uids = m_uidsOfPid.value(line.pid);
        for (const quint32 uid : uids) {
            const auto planned = plans.constFind({uid, line.since});
            const bool isPlanned =
                planned != plans.constEnd() && possible == QSet<quint32>{*planned};
            if (!possible.isEmpty() && !isPlanned)
                m_movingUids += uid;
        }
    }
}

quint32 PreviewSelection::numberOf(const QString &cell)
{
    bool isNumber = false;
    const quint32 number = cell.toUInt(&isNumber);
    if (!isNumber && !cell.isNull())
        doubtAll(Text::tr("All rows of all tables were copied, because there are ids that are no "
                          "whole numbers of 32 bits"));
    return number;
}

bool PreviewSelection::isReduced(const QString &table) const
{
    return m_extent == Extent::Reached && reductionOf(table) && !m_whole.contains(table);
}

QStringList PreviewSelection::portionsOf(const PreviewTable &table) const
{
    if (!isReduced(table.name))
        return {QString()};
    const QString rows = QString::fromLatin1(reductionOf(table.name)->rows);
    if (rows.isEmpty())
        return {};
    QStringList portions{QStringLiteral("uid >= %1").arg(m_nextUid)};
    const QVector<quint32> uids = inOrder(m_uids);
    // Without a key each query would walk the table.
    const int count = table.isFoundBy(QStringLiteral("uid")) ? kPeopleOfPortion : uids.size();
    for (int first = 0; first < uids.size(); first += count)
        portions += rowsOfPeople(rows, uids.mid(first, count));
    return portions;
}

QString PreviewSelection::rowsOfPeople(QString condition, const QVector<quint32> &uids) const
{
    const qint64 firstDay =
        RecordDates::midnight(RecordDates::firstDayOfPreviousMonth(QDate::currentDate()));
    QVector<quint32> moving;
    std::copy_if(uids.cbegin(), uids.cend(), std::back_inserter(moving),
                 [this](quint32 uid) { return m_movingUids.contains(uid); });
    condition.replace(QLatin1String("{people}"), listed(uids));
    condition.replace(QLatin1String("{moving}"), listed(moving));
    return condition.replace(QLatin1String("{day}"), QString::number(firstDay));
}

QString PreviewSelection::changingRowsOf(const QString &table) const
{
    if (!isReduced(table))
        return QString();
    const qint64 today = RecordDates::midnight(QDate::currentDate());
    QString condition = QString::fromLatin1(reductionOf(table)->changing);
    return condition.replace(QLatin1String("{today}"), QString::number(today));
}
