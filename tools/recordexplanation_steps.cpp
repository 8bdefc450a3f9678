// The vacation balance and the supervisor.

#include "tools/explaincontext.h"
#include "tools/explaintext.h"
#include "tools/recordexplanation.h"
#include "worker/vacationbalance.h"

namespace {

/// The administrators who handle the requests of a person.
constexpr char kSelectAdministrators[] =
    "SELECT aid FROM admins_people WHERE request AND uid = %1 ORDER BY aid";

} // namespace

void RecordExplanation::explainBalance()
{
    section("balance", "Is the vacation balance corrected?");
    MHRWorker &worker = m_context.view.worker();
    if (worker.vacationFundId() == 0) {
        m_outcome.balance = QStringLiteral("no-fund");
        say(QStringLiteral("No: there is no vacation fund."));
        return;
    }
    uint uid = 0;
    if (!worker.dbCheckFundMove(m_context.pid)) {
        m_outcome.balance = QStringLiteral("later");
        say(QStringLiteral("Not today: today's correction is there already. The plugin looks again "
                           "tomorrow."));
    } else if (!worker.dbCheckAttendance(m_context.pid, uid)) {
        m_outcome.balance = QStringLiteral("later");
        say(QStringLiteral("Not now: the person's attendance is just being calculated, or has days "
                           "that are still to be calculated. The plugin looks again at the next "
                           "synchronisation that brings the person."));
    } else {
        explainCorrection(uid);
    }
}

void RecordExplanation::explainCorrection(quint32 uid)
{
    bool loaded = false;
    const int held = m_context.view.worker().loadFundStatusAndMove3(m_context.pid, loaded);
    qint32 move = 0;
    const bool writable = VacationBalance::correction(m_record.dovolenaZustatek, held, move);
    if (!writable) {
        m_outcome.balance = QStringLiteral("impossible");
        ExplainText::tell(
            m_context.report, Severity::Warning, "balance-not-written",
            QStringLiteral("The fund holds %1, and no correction leads from there to %2 days. The "
                           "balance stays, and the log says: MHRWorker::doSyncRecord() - "
                           "funds_move type (type=3, valeu=%3) not writed for uid %4 (pid: %5)")
                .arg(ExplainText::days(held), QString::number(m_record.dovolenaZustatek, 'f', 2),
                     QString::number(move), QString::number(uid), QString::number(m_context.pid)),
            QStringLiteral("One of the two balances is wrong."));
    } else if (move == 0) {
        m_outcome.balance = QStringLiteral("equal");
        say(QStringLiteral("No: the fund holds %1, as the export says.")
                .arg(ExplainText::days(held)));
    } else {
        m_outcome.balance = QStringLiteral("corrected");
        say(QStringLiteral("Yes: the fund holds %1, and the correction of today is %2.")
                .arg(ExplainText::days(held), ExplainText::days(move)));
    }
}

void RecordExplanation::explainSupervisor()
{
    section("supervisor", "Who gets the person's requests?");
    const quint32 supervisor = m_record.nadrizenyOsobniCislo;
    const bool isNews =
        !m_context.known || isFirstLook() || supervisor != m_previous->nadrizenyOsobniCislo;
    if (supervisor == 0) {
        say(QStringLiteral("The line names no supervisor: nothing changes."));
    } else if (!isTypeOfSupervisors()) {
        say(QStringLiteral("The employment type %1 is not one for which the plugin sets a "
                           "supervisor: nothing changes.")
                .arg(m_record.typPracovnihoPomeru));
    } else if (!isNews) {
        say(QStringLiteral("The supervisor is that of the line before: nothing changes."));
    } else {
        explainAdministrator(m_context.view.worker().dbGetAidByOsCis(supervisor));
    }
}

void RecordExplanation::explainAdministrator(quint32 aid)
{
    const quint32 supervisor = m_record.nadrizenyOsobniCislo;
    if (aid == 0) {
        m_outcome.supervisor = QStringLiteral("unknown");
        // Without an administrator it does nothing but warn.
        const CaughtLog log;
        m_context.view.worker().processNadOsCis(m_record);
        ExplainText::tell(m_context.report, Severity::Warning, "supervisor-unknown",
                          QStringLiteral("No administrator has the personal number %1 of the "
                                         "supervisor: nothing changes. The log says: %2")
                              .arg(QString::number(supervisor), log.complaints()),
                          QStringLiteral("Give the supervisor an administrator's account with "
                                         "this personal number."));
        return;
    }
    const QVector<QStringList> now = m_context.view.sql().rows(
        QString(QLatin1String(kSelectAdministrators)).arg(m_context.uid()));
    const bool isKept = now.size() == 1 && now.first().first().toUInt() == aid;
    m_outcome.supervisor = isKept ? QStringLiteral("kept") : QStringLiteral("set");
    say(isKept ? QStringLiteral("Administrator %1, who has the personal number %2, as now.")
                     .arg(aid)
                     .arg(supervisor)
               : QStringLiteral("Administrator %1, who has the personal number %2, and nobody "
                                "else.")
                     .arg(aid)
                     .arg(supervisor));
}
