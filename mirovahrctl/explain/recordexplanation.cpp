// The order of the steps, and whether the person works.

#include "mirovahrctl/explain/recordexplanation.h"

#include "cli/text.h"
#include "mirovahrctl/report/finding.h"
#include "mirovahrctl/report/moment.h"
#include "worker/recordcodes.h"

namespace {

/// What the plugin does not do where a new person has a row already.
struct Step {
    const char *table;
    QString RecordOutcome::*word;
};

constexpr Step kSteps[] = {
    {"admins_people", &RecordOutcome::supervisor},
    {"brape", &RecordOutcome::branch},
    {"groups_plan", &RecordOutcome::calendar},
    {"people_pam", &RecordOutcome::payrollSettings},
};

/// Whether the last day of the record is over.
bool isOver(const MirovaRonRecord &record, const QDate &today)
{
    return record.datumVystupu.isValid() && record.datumVystupu < today;
}

} // namespace

RecordExplanation::RecordExplanation(ExplainContext &context, const CheckedLine &line,
                                     bool numbered)
    : m_context(context)
    , m_person(context.person)
    , m_line(line)
    , m_record(*line.record)
    , m_numbered(numbered)
    , m_differences(m_person.compare(m_record))
    , m_active(RecordCodes::isActive(m_record, QDate::currentDate()))
{
}

RecordOutcome RecordExplanation::explain()
{
    if (isHandled())
        explainSteps();
    else
        explainRepetition();
    doubtOutcome();
    m_outcome.waits = m_person.waits(m_record);
    m_person.remember(m_record);
    return m_outcome;
}

void RecordExplanation::explainSteps()
{
    explainState();
    explainRow();
    const bool isKnown = m_person.known().has_value();
    if (isKnown)
        explainBalance();
    if (isKnown || isPerson("created") || isPerson("merged") || isPerson("test-mode"))
        explainSupervisor();
    if (m_active)
        explainPlace();
    if (isKnown || m_outcome.recalculation.from)
        explainRecalculation();
}

void RecordExplanation::explainRepetition()
{
    section("repetition", Text::tr("The same again"));
    say(Text::tr("The line equals the previous one, so the plugin leaves the person alone."));
    m_outcome.person =
        m_person.exists() ? QStringLiteral("unchanged") : QStringLiteral("never-created");
    if (m_active && m_person.waits(m_record))
        explainPlace();
}

void RecordExplanation::doubtOutcome()
{
    const RowsLeftBehind &rows = m_person.leftBehind();
    for (const Step &step : kSteps) {
        if (rows.areIn(step.table) && m_outcome.*step.word != QLatin1String("none"))
            m_outcome.*step.word = QStringLiteral("uncertain");
    }
    m_outcome.recalculation.isUncertain = rows.areIn("groups_plan");
}

void RecordExplanation::explainState()
{
    section("state", Text::tr("Does the person work?"));
    const QDate today = QDate::currentDate();
    if (m_active) {
        const QString state = QString::number(m_record.stavPracovnihoPomeru);
        say(m_record.datumVystupu.isValid()
                ? Text::tr("Yes: the employment state %1 is below 4, and the last day, %2, is not "
                           "over.")
                      .arg(state, Moment::text(m_record.datumVystupu))
                : Text::tr("Yes: the employment state %1 is below 4, and there is no last day.")
                      .arg(state));
        return;
    }
    say(isOver(m_record, today)
            ? Text::tr("No: the last day, %1, is over.").arg(Moment::text(m_record.datumVystupu))
            : Text::tr("No: the employment state %1 means that it has ended, as every state "
                       "from 4 on.")
                  .arg(m_record.stavPracovnihoPomeru));
}

void RecordExplanation::section(const char *id, const QString &heading)
{
    QString name = QString::fromLatin1(id);
    QString text = heading;
    if (m_numbered) {
        name += QStringLiteral("-line%1").arg(m_line.number);
        text = Text::tr("Line %1: %2").arg(QString::number(m_line.number), heading);
    }
    m_context.report.section(name, text);
}

void RecordExplanation::say(const QString &sentence)
{
    m_context.report.sentence(sentence);
}
