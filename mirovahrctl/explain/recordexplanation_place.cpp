// Branch, calendar group, and the recalculation of attendance.

#include "cli/text.h"
#include "db/branchesrepository.h"
#include "db/groupsplanrepo.h"
#include "mirovahrctl/explain/phrases.h"
#include "mirovahrctl/explain/recordexplanation.h"
#include "mirovahrctl/report/moment.h"
#include "mirovahrctl/report/rules/explainrules.h"
#include "worker/recorddates.h"
#include "worker/recorddecisions.h"
#include "worker/recordlog.h"

namespace {

constexpr char kSelectBranchName[] = "SELECT name FROM branches WHERE bid = %1";

/// Why attendance is calculated again: a clause.
struct Reason {
    const char *cause;
    const char *text;
};

constexpr Reason kReasons[] = {
    {"state", QT_TRANSLATE_NOOP("Text", "the relationship state begins")},
    {"calendar",
     QT_TRANSLATE_NOOP("Text", "the calendar group is planned from a day on that is over")},
    {"moved",
     QT_TRANSLATE_NOOP("Text",
                       "calendar, its start or the cost centre differ from what the plugin "
                       "remembers (it does not know the start at first)")},
    {"balance", QT_TRANSLATE_NOOP("Text", "the balance is corrected")},
};

QString reasonOf(const QString &cause)
{
    for (const Reason &reason : kReasons) {
        if (cause == QLatin1String(reason.cause))
            return Text::tr(reason.text);
    }
    Q_UNREACHABLE();
}

QStringList texts(const QVector<unsigned int> &ids)
{
    QStringList texts;
    for (const unsigned int id : ids)
        texts += QString::number(id);
    return texts;
}

} // namespace

void RecordExplanation::explainPlace()
{
    section("place", Text::tr("Which branch and calendar?"));
    if (m_record.stredisko == 0) {
        say(Text::tr("The line names no cost centre: neither branch nor calendar is set."));
        return;
    }
    const quint32 bid = m_context.view.worker().bidOfBranch(m_record.stredisko);
    if (bid == 0) {
        m_outcome.branch = QStringLiteral("unknown");
        m_context.report.add(
            ExplainRules::kBranchUnknown,
            Text::tr("No branch has the number %1 of the cost centre. The log says: %2")
                .arg(QString::number(m_record.stredisko),
                     QString::asprintf(RecordLog::kBranchNotFound, m_record.stredisko,
                                       qUtf8Printable(m_record.getString(false)))));
        explainWaiting(false);
        return;
    }
    const bool isQueued = explainBranch(bid);
    const bool hasGroup = explainCalendar(bid);
    explainWaiting(isQueued || hasGroup);
}

bool RecordExplanation::explainBranch(quint32 bid)
{
    const QString name =
        m_context.view.sql().value(QString(QLatin1String(kSelectBranchName)).arg(bid));
    say(Text::tr("The cost centre %1 is branch %2, %3.")
            .arg(QString::number(m_record.stredisko), QString::number(bid), name));
    if (m_context.view.worker().dbCheckPersonInBranch(m_person.pid(), bid)) {
        m_outcome.branch = QStringLiteral("member");
        say(Text::tr("The person is already a member."));
        return false;
    }
    // Without a row the plugin puts nobody on the list, but does not notice.
    if (m_person.exists())
        explainNewMember(bid);
    return true;
}

void RecordExplanation::explainNewMember(quint32 bid)
{
    // The plugin keeps 16 bits of a branch id when it adds members.
    const auto number = static_cast<ushort>(bid);
    if (number != bid) {
        m_context.report.add(
            ExplainRules::kBranchIdLarge,
            number == 0
                ? Text::tr("The id of the branch is above 65535: the person joins no branch.")
                : Text::tr("The id of the branch is above 65535: the person joins branch %1 "
                           "instead.")
                      .arg(number));
    }
    if (number == 0)
        return;
    m_outcome.branch = QStringLiteral("joins");
    BranchesRepository branches(nullptr, false, false);
    branches.setDB(m_context.view.database());
    say(Text::tr("The person joins it at the end of the synchronisation, and stays in every "
                 "other branch."));
    say(Phrases::list(texts(branches.getTids4Branch(number)), Text::tr("This adds no terminals."),
                      Text::tr("This adds the terminal %1."),
                      Text::tr("This adds the terminals %1.")));
    say(Phrases::list(texts(branches.getAids4Branch(number)), Text::tr("It has no administrators."),
                      Text::tr("It has the administrator %1."),
                      Text::tr("It has the administrators %1.")));
}

bool RecordExplanation::explainCalendar(quint32 bid)
{
    if (m_record.kalendar == 0) {
        say(Text::tr("The line names no calendar."));
        return false;
    }
    const quint32 gid = m_context.view.worker().dbGetGroupIdByCalendar(bid, m_record.kalendar);
    if (gid == 0) {
        m_outcome.calendar = QStringLiteral("unknown");
        m_context.report.add(
            ExplainRules::kCalendarUnknown,
            Text::tr("The branch's master group has no group for the calendar %1. The log "
                     "says: %2")
                .arg(QString::number(m_record.kalendar),
                     QString::asprintf(RecordLog::kGroupNotFound, m_record.stredisko,
                                       m_record.kalendar,
                                       qUtf8Printable(m_record.getString(false)))));
        return false;
    }
    say(Text::tr("The calendar %1 is group %2 there.").arg(m_record.kalendar).arg(gid));
    if (m_person.exists()) {
        explainPlan(gid);
        return true;
    }
    m_context.report.add(
        ExplainRules::kPersonMissing,
        Text::tr("The database has nobody with the pid %1 for whom the group could be "
                 "planned. The log says: %2")
            .arg(QString::number(m_person.pid()),
                 QString::asprintf(RecordLog::kPlanNotAdded,
                                   qUtf8Printable(m_record.getString(false)))));
    return false;
}

void RecordExplanation::explainPlan(quint32 gid)
{
    const QDate since = m_record.kalendarPlatnostOd;
    const uint month = GroupsPlanRepo::monthFromDate(since);
    if (m_person.isPlanned(gid, month)) {
        m_outcome.calendar = QStringLiteral("kept");
        say(Text::tr("It is already planned from month %1 on.").arg(month));
        return;
    }
    m_outcome.calendar = QStringLiteral("planned");
    m_person.plan(gid, month);
    say(Text::tr("It is planned from month %1 on.").arg(month));
    if (since >= QDate::currentDate())
        return;
    m_person.recalculate(since);
    m_outcome.recalculation.add(since, QStringLiteral("calendar"));
    say(since.isValid()
            ? Text::tr("Attendance is calculated again from %1 on.").arg(Moment::text(since))
            : Text::tr("All attendance is calculated again, because the start of "
                       "the calendar is no date."));
}

void RecordExplanation::explainWaiting(bool isPlaced)
{
    m_person.setWaiting(m_record, !isPlaced);
    if (isPlaced)
        return;
    say(m_outcome.branch == QLatin1String("member") && m_record.kalendar == 0
            ? Text::tr("Nothing needs to be done, but the plugin counts the record as "
                       "waiting all the same.")
            : Text::tr("The record waits: the plugin tries it again as long as exactly this "
                       "line arrives."));
}

/// Sums up what the steps before have added.
void RecordExplanation::explainRecalculation()
{
    section("recalculation", Text::tr("Is attendance calculated again?"));
    const auto &known = m_person.known();
    const bool moves = known && RecordDecisions::movesElsewhere(m_record, *known);
    const bool isCorrected = m_outcome.balance == QLatin1String("corrected");
    if (moves || isCorrected) {
        m_person.adopt(m_record);
        requestRecalculation(moves, isCorrected);
    }
    const Recalculation &recalculation = m_outcome.recalculation;
    if (!recalculation.from) {
        say(Text::tr("No."));
        return;
    }
    QStringList reasons;
    for (const QString &cause : recalculation.causes)
        reasons += reasonOf(cause);
    const QString reason = reasons.join(QStringLiteral("; "));
    say(recalculation.from->isValid() ? Text::tr("Yes, from %1 on, because %2.")
                                            .arg(Moment::text(*recalculation.from), reason)
                                      : Text::tr("Yes, all of it, because %1.").arg(reason));
}

void RecordExplanation::requestRecalculation(bool moves, bool isCorrected)
{
    if (!m_person.exists()) {
        m_context.report.add(
            ExplainRules::kPersonMissing,
            Text::tr("The database has nobody with the pid %1 whose attendance could be "
                     "calculated again. The log says: %2")
                .arg(QString::number(m_person.pid()),
                     QString::asprintf(RecordLog::kRecalculationLost, m_person.pid(),
                                       qUtf8Printable(m_record.getString(false)))));
        return;
    }
    const QDate from = RecordDates::firstDayOfPreviousMonth(QDate::currentDate());
    m_person.recalculate(from);
    if (moves)
        m_outcome.recalculation.add(from, QStringLiteral("moved"));
    if (isCorrected)
        m_outcome.recalculation.add(from, QStringLiteral("balance"));
}
