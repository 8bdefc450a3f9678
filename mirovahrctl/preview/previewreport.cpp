#include "mirovahrctl/preview/previewreport.h"

#include "mirovahrctl/pluginside/pluginconfiguration.h"
#include "mirovahrctl/preview/previewwork.h"
#include "mirovahrctl/program/report.h"
#include "mirovahrctl/report/finding.h"
#include "mirovahrctl/report/rules/previewrules.h"
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
        const PreviewWords::Lines lines = words.describe(change);
        for (const PreviewLine &line : lines) {
            m_lines[line.kind] += line;
            seen.insert(line.kind);
        }
        for (const PreviewKind kind : seen)
            ++m_rows[kind];
    }
    m_changes = m_work.changes().size();
    m_work.forgetChanges();
}

void PreviewReport::writeDifferences()
{
    for (const PreviewKind kind : PreviewWords::kinds()) {
        if (!m_lines.contains(kind))
            continue;
        m_report.section(PreviewWords::idOf(kind), PreviewWords::headingOf(kind));
        const Table table = tableOf(m_lines.take(kind)); // there may be hundreds of thousands
        m_report.table(table);
    }
}

void PreviewReport::writeWarnings()
{
    m_report.section(QStringLiteral("warnings"), QStringLiteral("Findings"));
    warnOfConfiguration();
    for (const Finding &warning : m_work.warnings())
        m_report.finding(warning);
    noteCopy();
    m_report.sentence(
        QStringLiteral("The plugin's warnings above are those of its log. check-file reports lines "
                       "that it drops silently; check-db reports rights that its account lacks."));
}

void PreviewReport::warnOfConfiguration()
{
    if (!m_configuration.values().enabled) {
        m_report.add(
            PreviewRules::kDisabled,
            QStringLiteral(
                "The plugin is disabled in the configuration: it would not synchronise at all."));
    }
    if (m_configuration.values().testMode) {
        m_report.add(PreviewRules::kTestMode,
                     QStringLiteral("Test mode is on: people are only logged, not written."));
    }
}

void PreviewReport::noteCopy()
{
    const PreviewSchema &schema = m_work.schema();
    if (!schema.tablesWithHiddenTriggers.isEmpty()) {
        m_report.add(
            PreviewRules::kTriggersHidden,
            QStringLiteral("This account is not allowed to see the triggers of these tables: %1. "
                           "The preview lacks whatever triggers do there.")
                .arg(schema.tablesWithHiddenTriggers.join(QStringLiteral(", "))));
    }
    if (!schema.tablesOutsideSnapshot.isEmpty()) {
        m_report.add(
            PreviewRules::kNoSnapshot,
            QStringLiteral("The engine of these tables does not support snapshots; they were "
                           "copied one after the other: %1.")
                .arg(schema.tablesOutsideSnapshot.join(QStringLiteral(", "))));
    }
    if (!schema.namedViews.isEmpty()) {
        m_report.add(
            PreviewRules::kViewNotCopied,
            QStringLiteral("Routines or triggers seem to use views, which are not copied: %1.")
                .arg(schema.namedViews.join(QStringLiteral(", "))));
    }
    for (const QString &doubt : m_work.doubts()) {
        m_report.finding(makeFinding(PreviewRules::kWholeTables, doubt + QLatin1Char('.')));
    }
    if (release(schema.serverVersion) != release(m_work.copyVersion())) {
        m_report.add(PreviewRules::kOtherServer,
                     QStringLiteral("The site's server is version %1, the copy was on version %2.")
                         .arg(schema.serverVersion, m_work.copyVersion()));
    }
}

void PreviewReport::writeLimits()
{
    m_report.section(QStringLiteral("limits"), QStringLiteral("What is left out"));
    m_report.sentence(m_configuration.origin());
    m_report.sentence(QStringLiteral(
        "This is the forced synchronisation of a plugin that was just started. The memory of a "
        "running plugin is not known here: the last record of each person, who waits for a branch, "
        "whose balance is still to be corrected, the uids that it has looked up. An ordinary "
        "synchronisation skips people whose line has not changed."));
    m_report.sentence(
        QStringLiteral(
            "It is valid for today, %1, and for the database as it was when it was copied. It "
            "lacks what others write in the meantime, and shows moments of writing as \"now\".")
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
    m_report.fact(QStringLiteral("rows"), QStringLiteral("Rows that would change"), m_changes);
    for (const PreviewKind kind : PreviewWords::kinds())
        m_report.fact(PreviewWords::idOf(kind), PreviewWords::headingOf(kind), m_rows.value(kind));
    m_report.fact(QStringLiteral("pluginWarnings"), QStringLiteral("The plugin's warnings"),
                  m_work.warnings().size());
}

QString PreviewReport::verdict() const
{
    const int warnings = m_work.warnings().size();
    QString text = m_changes == 0
        ? QStringLiteral("A synchronisation would change nothing.")
        : QStringLiteral("A synchronisation would change %1.").arg(rows(m_changes));
    if (warnings > 0) {
        text +=
            QStringLiteral(" The plugin would warn %1.")
                .arg(Wording::counted(warnings, QStringLiteral("time"), QStringLiteral("times")));
    }
    return text;
}
