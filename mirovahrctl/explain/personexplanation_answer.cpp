// The verdict and the answer: did the person arrive, what is different from HR, who must do what.

#include "mirovahrctl/explain/personexplanation.h"

#include "cli/text.h"

#include <algorithm>

namespace {

bool isSerious(const QVector<Finding> &findings)
{
    return std::any_of(findings.cbegin(), findings.cend(),
                       [](const Finding &finding) { return finding.severity != Severity::Note; });
}

/// The verdict for each outcome of the person.
struct PersonVerdict {
    const char *person;
    const char *sentence;
};

constexpr PersonVerdict kVerdicts[] = {
    {"created", QT_TRANSLATE_NOOP("Text", "A synchronisation creates %1.")},
    {"merged",
     QT_TRANSLATE_NOOP("Text",
                       "A synchronisation brings the row of %1 up to date and makes it active.")},
    {"updated", QT_TRANSLATE_NOOP("Text", "A synchronisation writes the row of %1.")},
    {"unchanged", QT_TRANSLATE_NOOP("Text", "A synchronisation leaves the row of %1 alone.")},
    {"never-created",
     QT_TRANSLATE_NOOP(
         "Text",
         "%1 has left and is not in the database: the plugin never creates a row for leavers.")},
    {"uncertain",
     QT_TRANSLATE_NOOP("Text",
                       "A text in the line of %1 prevents the row from being written correctly.")},
    {"missed",
     QT_TRANSLATE_NOOP("Text", "The plugin recognises somebody as %1, but finds no row to write.")},
    {"test-mode",
     QT_TRANSLATE_NOOP("Text", "Test mode is on: the plugin does not write the row of %1.")},
};

/// A difference that is not in the person's row.
struct OtherDifference {
    QString RecordOutcome::*fact;
    const char *word; ///< of the fact
    const char *text;
};

constexpr OtherDifference kOthers[] = {
    {&RecordOutcome::payroll, "joins",
     QT_TRANSLATE_NOOP("Text", "the selection for the payroll export")},
    {&RecordOutcome::payrollSettings, "set",
     QT_TRANSLATE_NOOP("Text", "the settings of the payroll export")},
    {&RecordOutcome::balance, "corrected", QT_TRANSLATE_NOOP("Text", "the vacation balance")},
    {&RecordOutcome::balance, "impossible", QT_TRANSLATE_NOOP("Text", "the vacation balance")},
    {&RecordOutcome::supervisor, "set", QT_TRANSLATE_NOOP("Text", "who receives the requests")},
    {&RecordOutcome::supervisor, "unknown", QT_TRANSLATE_NOOP("Text", "who receives the requests")},
    {&RecordOutcome::branch, "joins", QT_TRANSLATE_NOOP("Text", "the branch")},
    {&RecordOutcome::branch, "unknown", QT_TRANSLATE_NOOP("Text", "the branch")},
    {&RecordOutcome::calendar, "planned", QT_TRANSLATE_NOOP("Text", "the calendar group")},
    {&RecordOutcome::calendar, "unknown", QT_TRANSLATE_NOOP("Text", "the calendar group")},
};

QString dutyOf(const Finding &finding)
{
    if (finding.advice.isEmpty())
        return Text::tr("Administrator: see the finding %1.").arg(finding.rule);
    return (finding.forHr ? Text::tr("HR: %1") : Text::tr("Administrator: %1")).arg(finding.advice);
}

} // namespace

void PersonExplanation::writeAnswer(ReportWriter &report) const
{
    report.answer(verdict());
    report.section(QStringLiteral("answer"), Text::tr("In short"));
    report.sentence(arrival());
    const QString different = differences();
    if (!different.isEmpty())
        report.sentence(different);
    const QStringList all = duties();
    for (const QString &duty : all)
        report.sentence(duty);
}

QString PersonExplanation::arrival() const
{
    const auto &row = m_context.person.row();
    if (!row)
        return Text::tr("%1 has not arrived in the attendance database.").arg(m_person.name());
    return row->active
        ? Text::tr("%1 has arrived: the attendance database has the person as %2, active.")
              .arg(m_person.name(), row->name)
        : Text::tr("%1 is in the attendance database as %2, but not active.")
              .arg(m_person.name(), row->name);
}

QString PersonExplanation::differences() const
{
    if (!m_hasExport)
        return Text::tr("Without an export nobody knows what is different from HR.");
    if (!m_isFound)
        return Text::tr("HR's export has no line of the person.");
    if (!m_outcome)
        return Text::tr("HR's line is broken, so nothing of it is compared.");
    if (!m_context.person.row())
        return QString(); // all of it
    QStringList found = m_outcome->differences;
    for (const OtherDifference &other : kOthers) {
        if ((*m_outcome).*other.fact == QLatin1String(other.word))
            found += Text::tr(other.text);
    }
    return found.isEmpty()
        ? Text::tr("Nothing was found that is different from HR's line.")
        : Text::tr("Different from HR's line: %1.").arg(found.join(QStringLiteral("; ")));
}

/// What the findings ask for, each once, HR's part first.
QStringList PersonExplanation::duties() const
{
    QStringList all;
    for (const bool isForHr : {true, false}) {
        for (const Finding &finding : m_details.findings()) {
            if (finding.forHr == isForHr && finding.severity != Severity::Note
                && !all.contains(dutyOf(finding)))
                all += dutyOf(finding);
        }
    }
    if (!all.isEmpty())
        return all;
    const bool isPending = m_outcome
        && (m_outcome->person == QLatin1String("created")
            || m_outcome->person == QLatin1String("merged")
            || m_outcome->person == QLatin1String("updated"));
    return {isPending ? Text::tr("Nobody has to do anything: the next synchronisation writes "
                                 "the person, or mirovahrctl force if the plugin has seen "
                                 "this very line before.")
                      : Text::tr("Nobody has to do anything.")};
}

QString PersonExplanation::verdict() const
{
    const QString name = m_person.name();
    if (!m_outcome)
        return verdictWithoutRecord();
    QString sentence;
    for (const PersonVerdict &candidate : kVerdicts) {
        if (m_outcome->person == QLatin1String(candidate.person))
            sentence = Text::tr(candidate.sentence).arg(name);
    }
    if (isSerious(m_details.findings()))
        sentence += QLatin1Char(' ') + Text::tr("There are findings.");
    return sentence;
}

QString PersonExplanation::verdictWithoutRecord() const
{
    const QString name = m_person.name();
    const bool hasRow = m_context.person.row().has_value();
    if (m_isFound) {
        return hasRow
            ? Text::tr("The plugin drops the line of %1, who is in the database.").arg(name)
            : Text::tr("The plugin drops the line of %1, who is not in the database.").arg(name);
    }
    if (!m_hasExport) {
        return hasRow ? Text::tr("There is no export; %1 is in the database.").arg(name)
                      : Text::tr("There is no export; %1 is not in the database.").arg(name);
    }
    return hasRow ? Text::tr("%1 is in the database, but not in the export.").arg(name)
                  : Text::tr("%1 is neither in the export nor in the database.").arg(name);
}
