// The vacation balance and the supervisor.

#include "cli/text.h"
#include "mirovahrctl/explain/phrases.h"
#include "mirovahrctl/explain/recordexplanation.h"
#include "mirovahrctl/report/language.h"
#include "mirovahrctl/report/rules/explainrules.h"
#include "worker/recordlog.h"
#include "worker/vacationbalance.h"

void RecordExplanation::explainBalance()
{
    section("balance", Text::tr("Is the vacation balance corrected?"));
    using RecordDecisions::BalanceStep;
    switch (m_differences.balance) {
    case BalanceStep::NoFund:
        m_outcome.balance = QStringLiteral("no-fund");
        say(Text::tr("No: there is no vacation fund."));
        break;
    case BalanceStep::CorrectedToday:
        m_outcome.balance = QStringLiteral("later");
        say(m_person.correctingLine() == 0
                ? Text::tr("Not today: today's correction exists already. The plugin tries "
                           "again tomorrow.")
                : Text::tr("Not today: line %1 has corrected it, and the plugin corrects a "
                           "balance once a day.")
                      .arg(m_person.correctingLine()));
        break;
    case BalanceStep::AttendanceOpen:
        m_outcome.balance = QStringLiteral("later");
        say(Text::tr("Not now: the person's attendance is being calculated, or has days that "
                     "are not calculated yet. The plugin tries again at the next "
                     "synchronisation that contains the person."));
        break;
    case BalanceStep::SameAsLast:
        m_outcome.balance = QStringLiteral("kept");
        say(Text::tr("No: the balance is that of the previous line."));
        break;
    case BalanceStep::Compare:
        explainCorrection();
        break;
    }
}

void RecordExplanation::explainCorrection()
{
    bool loaded = false;
    const int held = m_context.view.worker().loadFundStatusAndMove3(m_person.pid(), loaded);
    qint32 move = 0;
    const bool writable = VacationBalance::correction(m_record.dovolenaZustatek, held, move);
    if (!writable) {
        m_outcome.balance = QStringLiteral("impossible");
        m_context.report.add(
            ExplainRules::kBalanceNotWritten,
            Text::tr("The fund holds %1, and no valid correction leads from there to %2 "
                     "days. The balance stays, and the log says: %3")
                .arg(Phrases::days(held), Language::number(m_record.dovolenaZustatek, 2),
                     QString::asprintf(RecordLog::kMoveNotWritten, move, m_person.uid(),
                                       m_person.pid())));
    } else if (move == 0) {
        m_outcome.balance = QStringLiteral("equal");
        say(Text::tr("No: the fund holds %1, as the export says.").arg(Phrases::days(held)));
    } else {
        m_outcome.balance = QStringLiteral("corrected");
        m_person.correctBalance(m_line.number);
        say(Text::tr("Yes: the fund holds %1, and the correction of today is %2.")
                .arg(Phrases::days(held), Phrases::days(move)));
    }
}

void RecordExplanation::explainSupervisor()
{
    section("supervisor", Text::tr("Who receives the person's requests?"));
    using RecordDecisions::SupervisorStep;
    switch (RecordDecisions::supervisorStep(m_record, !m_person.known(), m_differences)) {
    case SupervisorStep::NotNamed:
        say(Text::tr("The line names no supervisor: nothing changes."));
        break;
    case SupervisorStep::OtherEmploymentType:
        say(Text::tr("The employment type %1 is not one for which the plugin sets a "
                     "supervisor: nothing changes.")
                .arg(m_record.typPracovnihoPomeru));
        break;
    case SupervisorStep::SameAsLast:
        say(Text::tr("The supervisor is that of the previous line: nothing changes."));
        break;
    case SupervisorStep::Assign:
        explainAdministrator(
            m_context.view.worker().dbGetAidByOsCis(m_record.nadrizenyOsobniCislo));
        break;
    }
}

void RecordExplanation::explainAdministrator(quint32 aid)
{
    if (aid == 0) {
        explainUnknownAdministrator();
        return;
    }
    const quint32 supervisor = m_record.nadrizenyOsobniCislo;
    if (!m_person.exists()) {
        m_context.report.add(
            ExplainRules::kPersonMissing,
            Text::tr(
                "The database has nobody with the pid %1 who could be given a supervisor. The log "
                "says: %2")
                .arg(QString::number(m_person.pid()),
                     QString::asprintf(RecordLog::kPersonNotFound, m_person.pid())));
    } else if (m_person.administrators() == QSet<quint32>{aid}) {
        m_outcome.supervisor = QStringLiteral("kept");
        say(Text::tr("Administrator %1, who has the personal number %2, as before.")
                .arg(aid)
                .arg(supervisor));
    } else if (m_mayNotAdd) {
        m_outcome.supervisor = QStringLiteral("uncertain");
        say(Text::tr("Administrator %1, who has the personal number %2, unless the plugin "
                     "handles the line within the same second as the earlier one.")
                .arg(aid)
                .arg(supervisor));
    } else {
        m_outcome.supervisor = QStringLiteral("set");
        m_person.setAdministrator(aid);
        say(Text::tr("Administrator %1, who has the personal number %2, and nobody else.")
                .arg(aid)
                .arg(supervisor));
    }
}

void RecordExplanation::explainUnknownAdministrator()
{
    m_outcome.supervisor = QStringLiteral("unknown");
    const quint32 supervisor = m_record.nadrizenyOsobniCislo;
    QString message = Text::tr("No administrator has the personal number %1 of the supervisor: "
                               "nothing changes.")
                          .arg(supervisor);
    if (!m_mayNotAdd) {
        message += QLatin1Char(' ')
            + Text::tr("The log says: %1")
                  .arg(QString::asprintf(RecordLog::kAdministratorNotFound, supervisor));
    }
    m_context.report.add(ExplainRules::kSupervisorUnknown, message);
}
