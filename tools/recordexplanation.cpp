// The order of the steps, and whether the person works.

#include "tools/recordexplanation.h"

#include "tools/explaincontext.h"
#include "tools/explaintext.h"
#include "worker/recordcodes.h"

namespace {

const QString kNone = QStringLiteral("none");

/// Whether the last day of the record is over.
bool isOver(const MirovaRonRecord &record, const QDate &today)
{
    return record.datumVystupu.isValid() && record.datumVystupu < today;
}

} // namespace

RecordExplanation::RecordExplanation(ExplainContext &context, const CheckedLine &line,
                                     const MirovaRonRecord *previous, bool numbered)
    : m_context(context)
    , m_line(line)
    , m_record(*line.record)
    , m_previous(previous)
    , m_numbered(numbered)
    , m_outcome{kNone, kNone, kNone, kNone, kNone, kNone}
{
}

RecordOutcome RecordExplanation::explain()
{
    explainState();
    explainRow();
    const bool isThere = m_context.known.has_value();
    if (isThere)
        explainBalance();
    if (hasUid() && (isThere || (m_active && m_outcome.person != QLatin1String("uncertain"))))
        explainSupervisor();
    if (hasUid() && m_active)
        explainPlace();
    if (isThere)
        explainRecalculation();
    return m_outcome;
}

void RecordExplanation::explainState()
{
    section("state", "Does the person work?");
    const QDate today = QDate::currentDate();
    m_active = RecordCodes::isActive(m_record, today);
    if (m_active) {
        say(QStringLiteral("Yes: the employment state %1 is below 4, and %2.")
                .arg(QString::number(m_record.stavPracovnihoPomeru),
                     m_record.datumVystupu.isValid()
                         ? QStringLiteral("the last day, %1, is not over")
                               .arg(ExplainText::day(m_record.datumVystupu))
                         : QStringLiteral("there is no last day")));
        return;
    }
    say(isOver(m_record, today)
            ? QStringLiteral("No: the last day, %1, is over.")
                  .arg(ExplainText::day(m_record.datumVystupu))
            : QStringLiteral("No: the employment state %1 means that it has ended, as every state "
                             "from 4 on.")
                  .arg(m_record.stavPracovnihoPomeru));
}

void RecordExplanation::section(const char *id, const char *heading)
{
    QString name = QString::fromLatin1(id);
    QString text = QString::fromLatin1(heading);
    if (m_numbered) {
        name += QStringLiteral("-line%1").arg(m_line.number);
        text = QStringLiteral("Line %1: %2").arg(QString::number(m_line.number), text);
    }
    m_context.report.section(name, text);
}

void RecordExplanation::say(const QString &sentence)
{
    m_context.report.sentence(sentence);
}

/// Whether the steps behind that of the row find somebody to write to.
bool RecordExplanation::hasUid() const
{
    return m_context.row || m_outcome.person == QLatin1String("created")
        || m_outcome.person == QLatin1String("merged");
}

bool RecordExplanation::isTypeOfSupervisors() const
{
    return RecordCodes::employmentTypeFromTPP(m_record.typPracovnihoPomeru) == 1;
}
