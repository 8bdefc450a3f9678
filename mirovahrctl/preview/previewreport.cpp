#include "mirovahrctl/preview/previewreport.h"

#include "mirovahrctl/pluginside/pluginconfiguration.h"
#include "mirovahrctl/preview/previewwork.h"
#include "mirovahrctl/program/report.h"
#include "mirovahrctl/report/wording.h"

#include <QDate>
#include <QRegularExpression>

#include <set>

namespace {

Table tableOf(const QVector<PreviewLine> &lines)
{
    Table table{QStringLiteral("differences"),
                {{QStringLiteral("who"), QStringLiteral("Who")},
                 {QStringLiteral("what"), QStringLiteral("What")},
                 {QStringLiteral("before"), QStringLiteral("Now")},
                 {QStringLiteral("after"), QStringLiteral("Afterwards")}},
                {}};
    for (const PreviewLine &line : lines)
        table.rows.append({line.who, line.what, line.before, line.after});
    return table;
}

/// A server's version without the mark that it writes a log.
QString release(const QString &version)
{
    QString text = version;
    return text.remove(QRegularExpression(QStringLiteral("-log$")));
}

QString rows(int count)
{
    return Wording::counted(count, QStringLiteral("row"), QStringLiteral("rows"));
}

} // namespace

PreviewReport::PreviewReport(PreviewWork &work, const PluginConfiguration &configuration,
                             Report &report)
    : m_work(work)
    , m_configuration(configuration)
    , m_report(report)
{
}

void PreviewReport::write()
{
    collect();
    writeDifferences();
    writeWarnings();
    writeLimits();
    writeSummary();
}

void PreviewReport::collect()
{
    const PreviewWords words(m_work.names(), m_work.moments());
    for (const PreviewChange &change : m_work.changes()) {
        std::set<PreviewKind> seen;
        const PreviewWords::Lines lines = words.tell(change);
        for (const PreviewLine &line : lines) {
            m_lines[line.kind] += line;
            seen.insert(line.kind);
        }
        for (const PreviewKind kind : seen)
            ++m_rows[kind];
    }
}

void PreviewReport::writeDifferences()
{
    for (const PreviewKind kind : PreviewWords::kinds()) {
        if (!m_lines.contains(kind))
            continue;
        m_report.section(PreviewWords::idOf(kind), PreviewWords::headingOf(kind));
        m_report.table(tableOf(m_lines.value(kind)));
    }
}

void PreviewReport::writeWarnings()
{
    m_report.section(QStringLiteral("warnings"), QStringLiteral("What to look at"));
    warnOfConfiguration();
    for (const Finding &warning : m_work.warnings())
        m_report.finding(warning);
    noteCopy();
    m_report.sentence(QStringLiteral(
        "The plugin's warnings are those of its log. Lines that it drops without a word are told "
        "of by check-file, rights that its account lacks by check-db."));
}

void PreviewReport::warnOfConfiguration()
{
    if (!m_configuration.values().enabled) {
        tell(Severity::Warning, "disabled",
             QStringLiteral("The configuration says that the plugin is disabled: it would not "
                            "synchronise at all."),
             QStringLiteral("Set enabled to 1 and start the attendance server again."));
    }
    if (m_configuration.values().testMode) {
        tell(Severity::Warning, "test-mode",
             QStringLiteral("Test mode is on: people are only logged, not written."),
             QStringLiteral("Set testMode to 0 and start the attendance server again."));
    }
}

void PreviewReport::noteCopy()
{
    const PreviewSchema &schema = m_work.schema();
    if (!schema.tablesWithHiddenTriggers.isEmpty()) {
        tell(Severity::Note, "triggers-hidden",
             QStringLiteral("This account must not see whether these tables have triggers: %1. "
                            "What triggers do there is not in the preview.")
                 .arg(schema.tablesWithHiddenTriggers.join(QStringLiteral(", "))),
             QStringLiteral("Preview once with an account that has TRIGGER on the database."));
    }
    if (!schema.tablesOutsideSnapshot.isEmpty()) {
        tell(Severity::Note, "no-snapshot",
             QStringLiteral("The engine of these tables knows no snapshot; they were copied one "
                            "after the other: %1.")
                 .arg(schema.tablesOutsideSnapshot.join(QStringLiteral(", "))),
             QStringLiteral("Preview while nobody works with the attendance server."));
    }
    if (!schema.namedViews.isEmpty()) {
        tell(Severity::Note, "view-not-copied",
             QStringLiteral("Routines or triggers seem to use what is no table and is not copied: "
                            "%1.")
                 .arg(schema.namedViews.join(QStringLiteral(", "))),
             QStringLiteral("Look whether the plugin complains above."));
    }
    if (release(schema.serverVersion) != release(m_work.copyVersion())) {
        tell(Severity::Note, "other-server",
             QStringLiteral("The site's server is version %1, the copy was on version %2.")
                 .arg(schema.serverVersion, m_work.copyVersion()),
             QString());
    }
}

void PreviewReport::writeLimits()
{
    m_report.section(QStringLiteral("limits"), QStringLiteral("What is left out"));
    m_report.sentence(m_configuration.origin());
    m_report.sentence(QStringLiteral(
        "This is the forced synchronisation of a plugin that was just started. What a running one "
        "remembers is not known here: the last record of each person, who waits for a branch, "
        "whose balance is still to be corrected, the uids that it has looked up. Without force it "
        "leaves alone whose line is as it was."));
    m_report.sentence(
        QStringLiteral("It holds for today, %1, and for the database as it was when it was copied. "
                       "What others write in the meantime is not in it, and moments of writing "
                       "are shown as \"now\".")
            .arg(QDate::currentDate().toString(Qt::ISODate)));
    if (m_configuration.values().runsCommand(true)) {
        m_report.sentence(
            QStringLiteral("The plugin would run its export command first. It was not run: this is "
                           "the preview of the file as it is."));
    }
    if (m_configuration.values().deleteFile) {
        m_report.sentence(QStringLiteral("The plugin would remove the export after reading it. It "
                                         "was not removed."));
    }
}

void PreviewReport::writeSummary()
{
    m_report.section(QStringLiteral("summary"), QStringLiteral("Summary"));
    m_report.fact(QStringLiteral("rows"), QStringLiteral("Rows that would change"),
                  m_work.changes().size());
    for (const PreviewKind kind : PreviewWords::kinds())
        m_report.fact(PreviewWords::idOf(kind), PreviewWords::headingOf(kind), m_rows.value(kind));
    m_report.fact(QStringLiteral("pluginWarnings"), QStringLiteral("Warnings of the plugin"),
                  m_work.warnings().size());
}

QString PreviewReport::verdict() const
{
    const int changes = m_work.changes().size();
    const int warnings = m_work.warnings().size();
    QString text = changes == 0
        ? QStringLiteral("A synchronisation would change nothing.")
        : QStringLiteral("A synchronisation would change %1.").arg(rows(changes));
    if (warnings > 0) {
        text +=
            QStringLiteral(" The plugin would complain %1.")
                .arg(Wording::counted(warnings, QStringLiteral("time"), QStringLiteral("times")));
    }
    return text;
}

void PreviewReport::tell(Severity severity, const char *rule, const QString &message,
                         const QString &advice)
{
    Finding finding;
    finding.severity = severity;
    finding.rule = QString::fromLatin1(rule);
    finding.message = message;
    finding.advice = advice;
    m_report.finding(finding);
}
