#include "mirovahrctl/drift/driftsearch.h"

#include "cli/text.h"
#include "db/groupsplanrepo.h"
#include "mirovahrctl/comparison/rowfields.h"
#include "mirovahrctl/drift/driftsql.h"
#include "mirovahrctl/export/personname.h"
#include "mirovahrctl/pluginside/pluginview.h"
#include "mirovahrctl/report/language.h"
#include "mirovahrctl/report/rules/driftrules.h"
#include "mirovahrctl/report/wording.h"
#include "worker/exportline.h"
#include "worker/recordcodes.h"
#include "worker/recorddates.h"
#include "worker/recorddecisions.h"
#include "worker/vacationbalance.h"

#include <QLocale>
#include <QStringList>

#include <limits>

namespace {

/// The field of the export behind each of the fields that the plugin compares with a row.
constexpr int kExportFields[] = {
    ExportLine::OsobniCislo,   ExportLine::PoradoveCisloPP, ExportLine::Titul,
    ExportLine::Jmeno,         ExportLine::Prijmeni,        ExportLine::TitulZa,
    ExportLine::Telefon,       ExportLine::DatumNastupu,    ExportLine::DatumVystupu,
    ExportLine::Kalendar,      ExportLine::Stredisko,       ExportLine::EvidencniStav,
    ExportLine::EvidencniStav, ExportLine::EvidencniStav,
};

QString shown(const QVariant &value)
{
    const QString text = value.toString();
    return text.isEmpty() ? Text::tr("nothing", "value of a field") : Wording::quoted(text);
}

QString joined(const QVector<quint32> &ids)
{
    QStringList texts;
    for (const quint32 id : ids)
        texts += QString::number(id);
    return texts.join(QStringLiteral(", "));
}

} // namespace

/// A person who is examined.
struct DriftSearch::Case {
    const DriftPerson &person;
    const MirovaRonRecord &record; ///< that of the person
    QString name;
    MirovaRonRecord known; ///< the row as the plugin reads it
    DriftRows::Person row;
    DriftSql::Person ids;
};

DriftSearch::DriftSearch(PluginView &view, const DriftRows &rows, Backslash backslash,
                         const QDate &since)
    : m_view(view)
    , m_rows(rows)
    , m_backslash(backslash)
    , m_since(since.isValid() ? RecordDates::midnight(since) : 0)
{
}

void DriftSearch::examine(const DriftPerson &person)
{
    const MirovaRonRecord &record = person.record;
    const quint32 pid = record.getPid();
    const bool isActive = RecordCodes::isActive(record, m_today);
    const auto row = m_rows.people.constFind(pid);
    const bool hasRow = row != m_rows.people.constEnd() && row->isActive;
    const auto known = m_view.worker().knownPerson(pid);
    const QString name = personName(SqlTexts::shown(record, m_backslash));
    if (known.has_value() != hasRow) {
        ++m_unclear;
    } else if (known) {
        const Case examined{person, record, name, *known, *row, {row->uid, pid}};
        examineRow(examined);
        if (!isActive)
            return;
        examineBalance(examined);
        examineSupervisor(examined);
        examinePayroll(examined);
        examinePlace(examined);
    } else if (isActive) {
        m_found += Drift{&DriftRules::kPersonMissing, name,
                         row == m_rows.people.constEnd()
                             ? Text::tr("The database does not have the person.")
                             : Text::tr("The person's row is not active."),
                         QString()};
    }
}

void DriftSearch::examineTerminals()
{
    for (const quint32 tid : m_rows.unmarkedTerminals) {
        m_found += Drift{&DriftRules::kTerminalNotMarked, Text::tr("terminal %1").arg(tid),
                         Text::tr("People are queued for terminal %1, which is not marked as "
                                  "having people to fetch.")
                             .arg(tid),
                         DriftSql::terminalMark(tid)};
    }
}

void DriftSearch::examineRow(const Case &person)
{
    const QString differences = describeDifferences(person);
    if (differences.isEmpty())
        examineType(person);
    else
        add(person, DriftRules::kPersonDiffers,
            Text::tr("In the database and by the export: %1.").arg(differences));
}

/// The fields that differ; empty when none does that the plugin could bring in step.
QString DriftSearch::describeDifferences(const Case &person) const
{
    static const QStringList names = ExportLine::fieldNames();
    const MirovaRonRecord updated = m_view.worker().updateRs(person.record, person.known);
    const QVector<RowField> fields = compareRowFields(updated, person.known, m_backslash);
    // Somebody whose cost centre has no branch is written without one.
    const bool hasBranch = m_view.worker().bidOfBranch(person.record.stredisko) != 0;
    QStringList differing;
    for (int i = 0; i < fields.size(); ++i) {
        const RowField &field = fields.at(i);
        const int exported = kExportFields[i];
        if (field.exported == field.held || person.person.doubtful.contains(names.at(exported))
            || (exported == ExportLine::Stredisko && !hasBranch))
            continue;
        differing +=
            Text::tr("%1 %2 and %3").arg(field.name, shown(field.held), shown(field.exported));
    }
    return differing.join(QStringLiteral(", "));
}

void DriftSearch::examineType(const Case &person)
{
    const uint type = RecordCodes::employmentTypeFromTPP(person.record.typPracovnihoPomeru);
    if (person.row.type == type)
        return;
    add(person, DriftRules::kEmploymentType,
        Text::tr("The employment type is %1, by the export it is %2.")
            .arg(person.row.type)
            .arg(type),
        DriftSql::employmentType(person.ids, person.row.type, type));
}

void DriftSearch::examineBalance(const Case &person)
{
    MHRWorker &worker = m_view.worker();
    qint32 value = 0;
    const qint64 balance = m_rows.balances.value(person.row.uid);
    if (worker.vacationFundId() == 0
        || !VacationBalance::correction(person.record.dovolenaZustatek, balance, value)
        || value == 0)
        return;
    // The plugin tries again by itself for as long as one of these keeps it from correcting.
    uint uid = 0;
    if (!worker.dbCheckFundMove(person.ids.pid) || !worker.dbCheckAttendance(person.ids.pid, uid))
        return;
    add(person, DriftRules::kBalanceDiffers,
        Text::tr("The balance is %1 days, by the export it is %2.")
            .arg(Language::number(double(balance) / 100, 2),
                 QLocale().toString(person.record.dovolenaZustatek, 'g', 12)));
}

void DriftSearch::examineSupervisor(const Case &person)
{
    using namespace RecordDecisions;
    if (supervisorStep(person.record, true, Differences()) != SupervisorStep::Assign)
        return;
    const quint32 number = person.record.nadrizenyOsobniCislo;
    const quint32 aid = administratorOf(number);
    const QVector<quint32> receivers = m_rows.requestReceivers.value(person.row.uid);
    if (aid == 0 || receivers.contains(aid))
        return;
    const QString sql = DriftSql::supervisor(person.ids, aid, receivers);
    if (receivers.isEmpty()) {
        add(person, DriftRules::kSupervisorMissing,
            Text::tr("Nobody receives the person's requests; the export names %1, administrator "
                     "%2.")
                .arg(number)
                .arg(aid),
            sql);
    } else {
        add(person, DriftRules::kSupervisorOther,
            Text::tr("The person's requests go to administrator %1; the export names %2, "
                     "administrator %3.")
                .arg(joined(receivers))
                .arg(number)
                .arg(aid),
            sql);
    }
}

void DriftSearch::examinePayroll(const Case &person)
{
    if (person.row.written < m_since)
        return;
    const QString pid = QString::number(person.ids.pid);
    if (!m_rows.payrollSelection.isEmpty() && !m_rows.selectedPids.contains(pid)) {
        add(person, DriftRules::kPayrollSelection,
            Text::tr("The person is not in %1.").arg(m_rows.payrollSelection),
            DriftSql::payrollSelection(person.ids, m_rows.payrollSelection));
    }
    const uint settings = RecordCodes::pamSettingsIdFromTPP(person.record.typPracovnihoPomeru);
    if (settings != 0 && !m_rows.payrollBindings.contains(person.row.uid)) {
        add(person, DriftRules::kPayrollBinding,
            Text::tr("The person is not bound to settings %1 of the payroll export.").arg(settings),
            DriftSql::payrollBinding(person.ids, settings));
    }
}

void DriftSearch::examinePlace(const Case &person)
{
    const quint32 number = person.record.stredisko;
    if (number == 0)
        return;
    const quint32 bid = m_view.worker().bidOfBranch(number);
    // The plugin takes 16 bits.
    if (bid == 0 || bid > std::numeric_limits<quint16>::max()) {
        ++m_waiting;
        return;
    }
    const auto since = m_rows.members.constFind({bid, person.row.uid});
    if (since == m_rows.members.constEnd()) {
        add(person, DriftRules::kNotMember,
            Text::tr("The person is not a member of branch %1, cost centre %2.")
                .arg(bid)
                .arg(number));
    } else {
        examineMember(person, bid, *since);
    }
    if (person.record.kalendar != 0)
        examineCalendar(person, bid);
}

void DriftSearch::examineMember(const Case &person, quint32 bid, qint64 since)
{
    if (since < m_since)
        return;
    const quint32 uid = person.row.uid;
    for (const quint32 tid : m_rows.terminals.value(bid)) {
        if (m_rows.peopleOfTerminals.contains({tid, uid}))
            continue;
        add(person, DriftRules::kTerminalMissing,
            Text::tr("The person is not on terminal %1 of branch %2.").arg(tid).arg(bid),
            DriftSql::terminal(uid, bid, tid));
    }
    for (const quint32 aid : m_rows.administrators.value(bid)) {
        if (m_rows.peopleOfAdministrators.contains({aid, uid}))
            continue;
        add(person, DriftRules::kAdministratorMissing,
            Text::tr("The person is not with administrator %1 of branch %2.").arg(aid).arg(bid),
            DriftSql::administrator(uid, bid, aid));
    }
}

void DriftSearch::examineCalendar(const Case &person, quint32 bid)
{
    const quint32 gid = groupOf(bid, person.record.kalendar);
    if (gid == 0) {
        ++m_waiting;
        return;
    }
    const uint month = GroupsPlanRepo::monthFromDate(person.record.kalendarPlatnostOd);
    if (m_rows.plan.value({person.row.uid, month}) != gid) {
        add(person, DriftRules::kGroupNotPlanned,
            Text::tr("Group %1 of calendar %2 is not planned from %3 on.")
                .arg(gid)
                .arg(person.record.kalendar)
                .arg(month));
    } else if (month != 0) { // without a month the plugin fills none
        examineMonths(person, month);
    }
}

void DriftSearch::examineMonths(const Case &person, uint firstMonth)
{
    QVector<DriftRows::Month> months;
    QStringList texts;
    for (const DriftRows::Month &month : m_rows.months.value(person.row.uid)) {
        if (month.month < firstMonth)
            continue;
        months += month;
        texts += Text::tr("%1 has group %2 instead of %3")
                     .arg(month.month)
                     .arg(month.gid)
                     .arg(month.plannedGid);
    }
    if (months.isEmpty())
        return;
    add(person, DriftRules::kMonthsDiffer,
        Text::tr("Month %1.").arg(texts.join(QStringLiteral(", "))),
        DriftSql::months(person.row.uid, months, person.record.kalendarPlatnostOd));
}

quint32 DriftSearch::administratorOf(quint32 personalNumber)
{
    auto known = m_administrators.find(personalNumber);
    if (known == m_administrators.end()) {
        known = m_administrators.insert(personalNumber,
                                        m_view.worker().dbGetAidByOsCis(personalNumber));
    }
    return *known;
}

quint32 DriftSearch::groupOf(quint32 bid, quint32 calendar)
{
    const DriftRows::Pair key(bid, calendar);
    auto known = m_groups.find(key);
    if (known == m_groups.end())
        known = m_groups.insert(key, m_view.worker().dbGetGroupIdByCalendar(bid, calendar));
    return *known;
}

void DriftSearch::add(const Case &person, const Rule &rule, const QString &message,
                      const QString &sql)
{
    m_found += Drift{&rule, person.name, message, sql};
}
