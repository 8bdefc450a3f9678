#include "tools/personexplanation.h"

#include "tools/explaindatabase.h"
#include "tools/explaintext.h"
#include "tools/personname.h"
#include "tools/plaintext.h"

#include <algorithm>

namespace {

QString lineCount(qint64 count)
{
    return PlainText::counted(count, QStringLiteral("line"), QStringLiteral("lines"));
}

/// What the verdict says of each word for the person.
struct PersonVerdict {
    const char *person;
    const char *sentence;
};

constexpr PersonVerdict kVerdicts[] = {
    {"created", "A synchronisation creates %1."},
    {"merged", "A synchronisation brings the row of %1 up to date and makes it active."},
    {"updated", "A synchronisation writes the row of %1."},
    {"unchanged", "A synchronisation leaves the row of %1 alone."},
    {"never-created", "%1 has left and is not in the database: the plugin never creates the row."},
    {"uncertain", "A text in the line of %1 keeps the row from being written as it should."},
    {"test-mode", "Test mode is on: the plugin does not write the row of %1."},
};

} // namespace

PersonExplanation::PersonExplanation(const SoughtPerson &person, const ExplainedSource &source,
                                     const Configuration &configuration, PluginView &view,
                                     Report &report)
    : m_person(person)
    , m_source(source)
    , m_context{configuration,
                view,
                report,
                person.pid(),
                PersonRow::read(view.sql(), person.pid()),
                view.worker().knownPerson(person.pid())}
{
}

QString PersonExplanation::explain(const SoughtLines *lines)
{
    m_hasExport = lines != nullptr;
    explainConfiguration();
    if (lines)
        explainExport(*lines);
    else
        explainAbsentExport();
    explainDatabase(m_context);
    if (!m_isFound)
        explainAbsence();
    else
        explainRecords(lines->lines());
    explainMemory();
    writeFacts();
    return verdict();
}

void PersonExplanation::explainConfiguration()
{
    Report &report = m_context.report;
    const Configuration &configuration = m_context.configuration;
    report.section(QStringLiteral("configuration"), QStringLiteral("Configuration"));
    report.sentence(
        m_source.hasConfiguration
            ? QStringLiteral("The configuration is that of %1.").arg(m_source.configurationPath)
            : QStringLiteral("There is no file %1 here: what follows holds for a "
                             "plugin with its defaults.")
                  .arg(m_source.configurationPath));
    if (!configuration.enabled) {
        ExplainText::tell(report, Severity::Warning, "disabled",
                          QStringLiteral("The plugin is disabled: nobody arrives. What follows "
                                         "holds for when it is enabled."),
                          QStringLiteral("Set enabled to 1 and start the attendance server "
                                         "again."));
    }
    if (configuration.testMode) {
        ExplainText::tell(report, Severity::Warning, "test-mode",
                          QStringLiteral("Test mode is on: the rows of people are not written, "
                                         "only what hangs on them."),
                          QStringLiteral("Set testMode to 0 and start the attendance server "
                                         "again."));
    }
}

void PersonExplanation::explainAbsentExport()
{
    m_context.report.section(QStringLiteral("export"), QStringLiteral("Export"));
    m_context.report.sentence(
        QStringLiteral("There is no export %1%2. What follows is from the database only.")
            .arg(m_source.exportPath,
                 m_context.configuration.deleteFile
                     ? QStringLiteral(": the plugin removes it after it has read it")
                     : QString()));
}

void PersonExplanation::explainExport(const SoughtLines &lines)
{
    Report &report = m_context.report;
    report.section(QStringLiteral("export"), QStringLiteral("Export"));
    if (m_context.configuration.syncCommandRun >= 1
        && !m_context.configuration.syncCommand.isEmpty()) {
        report.sentence(QStringLiteral("The plugin runs its export command first, and may then "
                                       "find another file than this."));
    }
    m_isFound = !lines.lines().isEmpty();
    if (!m_isFound)
        explainNotFound(lines);
    for (const CheckedLine &line : lines.lines())
        explainLine(line);
    if (lines.more() > 0) {
        report.sentence(QStringLiteral("%1 more about the same person are not looked at here.")
                            .arg(lineCount(lines.more())));
    }
    explainOthers(lines);
}

void PersonExplanation::explainNotFound(const SoughtLines &lines)
{
    ExplainText::tell(m_context.report, Severity::Warning, "not-in-export",
                      QStringLiteral("None of the %1 of %2 is about %3.")
                          .arg(lineCount(lines.count()), m_source.exportPath, m_person.name()),
                      QStringLiteral("Ask HR why the export does not name the person."));
    if (lines.nameless() > 0) {
        m_context.report.sentence(
            QStringLiteral("%1 cannot be read so far as to say whom they are about, and the plugin "
                           "drops them: see check-file.")
                .arg(lineCount(lines.nameless())));
    }
}

void PersonExplanation::explainOthers(const SoughtLines &lines)
{
    if (lines.others().isEmpty())
        return;
    m_context.report.sentence(QStringLiteral("Personal number %1 also stands there as %2.")
                                  .arg(QString::number(m_person.personalNumber()),
                                       lines.others().join(QStringLiteral(", "))));
}

void PersonExplanation::explainLine(const CheckedLine &line)
{
    Report &report = m_context.report;
    report.sentence(line.record
                        ? QStringLiteral("Line %1 of %2 is about %3, pid %4.")
                              .arg(QString::number(line.number), m_source.exportPath,
                                   personName(*line.record), QString::number(line.record->getPid()))
                        : QStringLiteral("Line %1 of %2 is about the person, but the "
                                         "plugin drops it.")
                              .arg(QString::number(line.number), m_source.exportPath));
    for (const Finding &finding : line.findings)
        report.finding(finding);
}

void PersonExplanation::explainAbsence()
{
    if (!m_context.row) {
        ExplainText::tell(m_context.report, Severity::Warning, "not-in-database",
                          QStringLiteral("The person is not in the database either."),
                          QStringLiteral("Check the number, and whether HR's export has ever named "
                                         "the person."));
    } else if (m_hasExport) {
        m_context.report.sentence(QStringLiteral("The plugin leaves people alone whom the export "
                                                 "does not name: it never ends or removes them."));
    }
    explainRowOnly(m_context);
}

void PersonExplanation::explainRecords(const QVector<CheckedLine> &lines)
{
    const auto isRead = [](const CheckedLine &line) {
        return line.record.has_value();
    };
    const bool several = std::count_if(lines.cbegin(), lines.cend(), isRead) > 1;
    const MirovaRonRecord *previous = nullptr;
    for (const CheckedLine &line : lines) {
        if (!line.record)
            continue;
        if (previous && *line.record == *previous)
            explainRepetition(line);
        else
            m_outcome = RecordExplanation(m_context, line, previous, several).explain();
        previous = &*line.record;
    }
    if (!m_outcome)
        explainRowOnly(m_context);
}

void PersonExplanation::explainRepetition(const CheckedLine &line)
{
    m_context.report.section(QStringLiteral("repetition-line%1").arg(line.number),
                             QStringLiteral("Line %1: the same again").arg(line.number));
    m_context.report.sentence(
        QStringLiteral("The line is as the one before: unless the synchronisation is forced, the "
                       "plugin does nothing more."));
}

void PersonExplanation::explainMemory()
{
    Report &report = m_context.report;
    report.section(QStringLiteral("memory"), QStringLiteral("What only the running plugin knows"));
    report.sentence(QStringLiteral(
        "This is what a plugin does that sees the export for the first time since it was started. "
        "Later it leaves alone whose line is the same as at the synchronisation before, unless the "
        "synchronisation is forced, the record waits for its branch, or the balance could not be "
        "corrected."));
    report.sentence(QStringLiteral(
        "Which lines it has seen stands nowhere but in its memory. If it has seen this very line "
        "and something failed, nothing happens until the line changes; mirovahrctl force makes it "
        "take every line anew."));
    report.sentence(QStringLiteral("Whether a statement fails, for lack of rights or otherwise, is "
                                   "not tried out here: see preview and check-db."));
}

void PersonExplanation::writeFacts()
{
    Report &report = m_context.report;
    report.section(QStringLiteral("summary"), QStringLiteral("Summary"));
    report.fact(QStringLiteral("pid"), QStringLiteral("pid"), m_context.pid);
    if (m_context.row)
        report.fact(QStringLiteral("uid"), QStringLiteral("uid"), m_context.uid());
    if (!m_outcome)
        return;
    report.fact(QStringLiteral("person"), QStringLiteral("Person"), m_outcome->person);
    report.fact(QStringLiteral("balance"), QStringLiteral("Vacation balance"), m_outcome->balance);
    report.fact(QStringLiteral("supervisor"), QStringLiteral("Supervisor"), m_outcome->supervisor);
    report.fact(QStringLiteral("branch"), QStringLiteral("Branch"), m_outcome->branch);
    report.fact(QStringLiteral("calendar"), QStringLiteral("Calendar group"), m_outcome->calendar);
    report.fact(QStringLiteral("recalculation"), QStringLiteral("Recalculation from"),
                m_outcome->recalculation);
    report.fact(QStringLiteral("waits"), QStringLiteral("Waits afterwards"), m_outcome->waits);
}

QString PersonExplanation::verdict() const
{
    const QString name = m_person.name();
    if (!m_outcome)
        return verdictWithoutRecord();
    QString sentence;
    for (const PersonVerdict &candidate : kVerdicts) {
        if (m_outcome->person == QLatin1String(candidate.person))
            sentence = QString::fromLatin1(candidate.sentence).arg(name);
    }
    if (m_context.report.findingsStatus() == ExitStatus::Findings)
        sentence += QStringLiteral(" Not everything is as it should be.");
    return sentence;
}

QString PersonExplanation::verdictWithoutRecord() const
{
    const QString name = m_person.name();
    const QString where =
        m_context.row ? QStringLiteral("in the database") : QStringLiteral("not in the database");
    if (m_isFound)
        return QStringLiteral("The plugin drops the line of %1, who is %2.").arg(name, where);
    if (!m_hasExport)
        return QStringLiteral("There is no export; %1 is %2.").arg(name, where);
    return m_context.row
        ? QStringLiteral("%1 is in the database, but not in the export.").arg(name)
        : QStringLiteral("%1 is neither in the export nor in the database.").arg(name);
}
