// Branch, calendar group, and the recalculation of attendance.

#include "db/branchesrepository.h"
#include "db/groupsplanrepo.h"
#include "tools/explaincontext.h"
#include "tools/explaintext.h"
#include "tools/recordexplanation.h"
#include "worker/recordcomparison.h"
#include "worker/recorddates.h"

namespace {

constexpr char kSelectBranchName[] = "SELECT name FROM branches WHERE bid = %1";

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
    section("place", "Which branch and calendar?");
    if (m_record.stredisko == 0) {
        say(QStringLiteral("The line names no cost centre: neither branch nor calendar is set."));
        return;
    }
    const quint32 bid = m_context.view.worker().bidOfBranch(m_record.stredisko);
    if (bid == 0) {
        m_outcome.branch = QStringLiteral("unknown");
        ExplainText::tell(m_context.report, Severity::Warning, "branch-unknown",
                          QStringLiteral("No branch has the number %1 of the cost centre. The log "
                                         "says: %2")
                              .arg(QString::number(m_record.stredisko), placingLog()),
                          QStringLiteral("Give the branch this number, or have HR put the person "
                                         "elsewhere."));
    } else {
        explainBranch(bid);
        explainCalendar(bid);
    }
    explainWaiting();
}

void RecordExplanation::explainBranch(quint32 bid)
{
    const QString name =
        m_context.view.sql().value(QString(QLatin1String(kSelectBranchName)).arg(bid));
    say(QStringLiteral("The cost centre %1 is branch %2, %3.")
            .arg(QString::number(m_record.stredisko), QString::number(bid), name));
    if (m_context.view.worker().dbCheckPersonInBranch(m_context.pid, bid)) {
        m_outcome.branch = QStringLiteral("member");
        say(QStringLiteral("The person is a member already."));
        return;
    }
    explainNewMember(bid);
}

void RecordExplanation::explainNewMember(quint32 bid)
{
    m_outcome.branch = QStringLiteral("joins");
    BranchesRepository branches(nullptr, false, false);
    branches.setDB(m_context.view.database());
    const auto number = static_cast<ushort>(bid);
    say(QStringLiteral("The person joins it at the end of the synchronisation, and stays in every "
                       "other branch."));
    say(ExplainText::list(
            QStringLiteral("With it comes terminal"), QStringLiteral("With it come the terminals"),
            texts(branches.getTids4Branch(number)), QStringLiteral("No terminal comes with it"))
        + QLatin1Char('.'));
    say(ExplainText::list(
            QStringLiteral("It has the administrator"), QStringLiteral("It has the administrators"),
            texts(branches.getAids4Branch(number)), QStringLiteral("It has no administrators"))
        + QLatin1Char('.'));
}

void RecordExplanation::explainCalendar(quint32 bid)
{
    if (m_record.kalendar == 0) {
        say(QStringLiteral("The line names no calendar."));
        return;
    }
    const quint32 gid = m_context.view.worker().dbGetGroupIdByCalendar(bid, m_record.kalendar);
    if (gid == 0) {
        m_outcome.calendar = QStringLiteral("unknown");
        ExplainText::tell(m_context.report, Severity::Warning, "calendar-unknown",
                          QStringLiteral("The branch's master group has no group for the calendar "
                                         "%1. The log says: %2")
                              .arg(QString::number(m_record.kalendar), placingLog()),
                          QStringLiteral("Make a group for this calendar in the master group of "
                                         "the branch, or have HR correct the calendar."));
        return;
    }
    explainPlan(gid);
}

void RecordExplanation::explainPlan(quint32 gid)
{
    const QDate since = m_record.kalendarPlatnostOd;
    const uint month = GroupsPlanRepo::monthFromDate(since);
    say(QStringLiteral("The calendar %1 is group %2 there.").arg(m_record.kalendar).arg(gid));
    if (m_context.uid() != 0
        && m_context.view.worker().dbCheckGroupsPlan(gid, m_context.uid(), month)) {
        m_outcome.calendar = QStringLiteral("kept");
        say(QStringLiteral("It is planned from month %1 on already.").arg(month));
        return;
    }
    m_outcome.calendar = QStringLiteral("planned");
    say(QStringLiteral("It is planned from month %1 on.").arg(month));
    if (since < QDate::currentDate()) {
        say(since.isValid()
                ? QStringLiteral("Attendance is calculated again from %1 on.")
                      .arg(ExplainText::day(since))
                : QStringLiteral("All attendance is calculated again, because the start of the "
                                 "calendar is no date."));
    }
}

void RecordExplanation::explainWaiting()
{
    const bool placed = m_outcome.branch == QLatin1String("joins")
        || m_outcome.calendar == QLatin1String("planned")
        || m_outcome.calendar == QLatin1String("kept");
    m_outcome.waits = !placed;
    if (placed)
        return;
    say(m_outcome.branch == QLatin1String("member") && m_record.kalendar == 0
            ? QStringLiteral("There is nothing to be done; the plugin counts the record among the "
                             "waiting ones all the same.")
            : QStringLiteral("The record waits: it is tried again as long as this very line "
                             "arrives."));
}

void RecordExplanation::explainRecalculation()
{
    section("recalculation", "Is attendance calculated again?");
    const bool moves = RecordComparison::isComplete(*m_context.known)
        && RecordComparison::movesElsewhere(m_record, *m_context.known);
    const bool corrected = m_outcome.balance == QLatin1String("corrected");
    if (!moves && !corrected) {
        say(QStringLiteral("Not for the place or the balance."));
        return;
    }
    const QDate from = RecordDates::firstDayOfPreviousMonth(QDate::currentDate());
    m_outcome.recalculation = ExplainText::day(from);
    say(QStringLiteral("Yes, from %1 on, because %2.")
            .arg(m_outcome.recalculation,
                 moves ? QStringLiteral("calendar, its start or the cost centre are not those that "
                                        "the plugin knows (of the start it knows nothing at first)")
                       : QStringLiteral("the balance is corrected")));
}

QString RecordExplanation::placingLog()
{
    const CaughtLog log;
    m_context.view.worker().doSyncBranchAndCalendar(m_record);
    return log.complaints();
}
