#include "mirovahrctl/preview/previewreport.h"

#include "cli/text.h"
#include "mirovahrctl/pluginside/pluginconfiguration.h"
#include "mirovahrctl/preview/previewcard.h"
#include "mirovahrctl/preview/previewwork.h"
#include "mirovahrctl/program/report.h"
#include "mirovahrctl/report/finding.h"
#include "mirovahrctl/report/moment.h"
#include "mirovahrctl/report/reportwriter.h"
#include "mirovahrctl/report/rules/previewrules.h"

#include <QDate>
#include <QRegularExpression>

#include <set>

namespace {

QString people(int count)
{
    return Text::tr("%Ln person(s)", nullptr, count);
}

Table tableOf(const QVector<PreviewLine> &lines)
{
    Table table{QStringLiteral("differences"),
                {{QStringLiteral("who"), Text::tr("Who")},
                 {QStringLiteral("what"), Text::tr("What")},
                 {QStringLiteral("before"), Text::tr("Now")},
                 {QStringLiteral("after"), Text::tr("Afterwards")},
                 {QStringLiteral("bookkeeping"), Text::tr("Bookkeeping")}},
                {}};
    for (const PreviewLine &line : lines)
        table.rows.append({line.who, line.text(), line.before, line.after, line.isBookkeeping});
    return table;
}

Table tableOf(const QVector<Card> &cards)
{
    Table table{QStringLiteral("people"), {{QStringLiteral("who"), Text::tr("Who")}}, {}};
    for (const Card &card : cards)
        table.rows.append({card.who});
    return table;
}

/// People as the object of what a synchronisation does.
QString peopleAsObject(int count)
{
    return Text::tr("%Ln person(s)", "whom a synchronisation would create or change", count);
}

QString verdictOn(int created, int changed, int rows)
{
    if (created > 0 && changed > 0) {
        return Text::tr("A synchronisation would create %1 and change %2.")
            .arg(peopleAsObject(created), peopleAsObject(changed));
    }
    if (created > 0)
        return Text::tr("A synchronisation would create %1.").arg(peopleAsObject(created));
    if (changed > 0)
        return Text::tr("A synchronisation would change %1.").arg(peopleAsObject(changed));
    return rows == 0 ? Text::tr("A synchronisation would change nothing.")
                     : Text::tr("A synchronisation would change nobody, only %Ln row(s) besides.",
                                nullptr, rows);
}

/// One card in the place of those that have only details.
Card allInOne(const QVector<Card> &cards)
{
    Card all;
    all.who = people(cards.size());
    for (const Card &card : cards) {
        all.details +=
            QStringLiteral("%1: %2").arg(card.who, card.details.join(QStringLiteral(", ")));
    }
    return all;
}

/// A server's version without the mark that it writes a log.
QString release(const QString &version)
{
    QString text = version;
    return text.remove(QRegularExpression(QStringLiteral("-log$")));
}

} // namespace

PreviewReport::PreviewReport(PreviewWork &work, const PluginConfiguration &configuration,
                             const PreviewView &view, Report &report)
    : m_work(work)
    , m_configuration(configuration)
    , m_view(view)
    , m_report(report)
{
    collect();
}

void PreviewReport::write()
{
    m_report.answer(verdict());
    writeTotals();
    writeWarnings();
    if (m_view.isSummary)
        return;
    for (const PreviewKind kind : PreviewWords::kinds())
        writeDifferences(kind);
    writeBookkeeping();
    writeLimits();
}

void PreviewReport::collect()
{
    const PreviewWords words(m_work.names(), m_work.moments());
    for (const PreviewChange &change : m_work.changes()) {
        std::set<PreviewKind> seen;
        const PreviewWords::Lines lines = words.describe(change);
        for (const PreviewLine &line : lines) {
            if (!m_view.person.isEmpty() && !m_view.uids.contains(line.uid))
                continue;
            take(line);
            seen.insert(line.kind);
        }
        for (const PreviewKind kind : seen)
            ++m_rows[kind];
        m_changes += seen.empty() ? 0 : 1;
    }
    m_work.forgetChanges();
}

void PreviewReport::take(PreviewLine line)
{
    for (QString *const text :
         {&line.what, &line.thing, &line.before, &line.after, &line.sentence}) {
        if (!text->isEmpty())
            *text = *m_texts.insert(*text);
    }
    if (m_report.isForScripts())
        m_lines[line.kind] += line;
    m_subjects.add(line);
}

void PreviewReport::writeWarnings()
{
    m_report.section(QStringLiteral("warnings"), Text::tr("Findings"));
    warnOfConfiguration();
    for (const Finding &warning : m_work.warnings())
        m_report.finding(warning);
    noteCopy();
}

void PreviewReport::warnOfConfiguration()
{
    if (!m_configuration.values().enabled) {
        m_report.add(
            PreviewRules::kDisabled,
            Text::tr(
                "The plugin is disabled in the configuration: it would not synchronise at all."));
    }
    if (m_configuration.values().testMode) {
        m_report.add(PreviewRules::kTestMode,
                     Text::tr("Test mode is on: people are only logged, not written."));
    }
}

void PreviewReport::noteCopy()
{
    const PreviewSchema &schema = m_work.schema();
    if (!schema.tablesWithHiddenTriggers.isEmpty()) {
        m_report.add(
            PreviewRules::kTriggersHidden,
            Text::tr("This account is not allowed to see the triggers of these tables: %1. "
                     "The preview lacks whatever triggers do there.")
                .arg(schema.tablesWithHiddenTriggers.join(QStringLiteral(", "))));
    }
    if (!schema.tablesOutsideSnapshot.isEmpty()) {
        m_report.add(PreviewRules::kNoSnapshot,
                     Text::tr("The engine of these tables does not support snapshots; they were "
                              "copied one after the other: %1.")
                         .arg(schema.tablesOutsideSnapshot.join(QStringLiteral(", "))));
    }
    if (!schema.namedViews.isEmpty()) {
        m_report.add(PreviewRules::kViewNotCopied,
                     Text::tr("Routines or triggers seem to use views, which are not copied: %1.")
                         .arg(schema.namedViews.join(QStringLiteral(", "))));
    }
    for (const QString &doubt : m_work.doubts()) {
        m_report.finding(makeFinding(PreviewRules::kWholeTables, doubt + QLatin1Char('.')));
    }
    if (release(schema.serverVersion) != release(m_work.copyVersion())) {
        m_report.add(PreviewRules::kOtherServer,
                     Text::tr("The site's server is version %1, the copy was on version %2.")
                         .arg(schema.serverVersion, m_work.copyVersion()));
    }
}

void PreviewReport::writeTotals()
{
    for (const PreviewKind kind : PreviewWords::kinds())
        writeTotal(PreviewWords::idOf(kind), PreviewWords::headingOf(kind), totalOf(kind));
    writeTotal(QStringLiteral("bookkeeping-people"), Text::tr("People with bookkeeping only"),
               m_subjects.count(PreviewSubjects::Group::Bookkeeping));
    writeTotal(QStringLiteral("rows"), Text::tr("Rows that would change"), m_changes);
    writeTotal(QStringLiteral("pluginWarnings"), Text::tr("The plugin's warnings"),
               m_work.warnings().size());
}

void PreviewReport::writeTotal(const QString &id, const QString &label, int count)
{
    if (count == 0)
        m_report.datum(id, count);
    else
        m_report.fact(id, label, count);
}

/// People in whom something changes are more than the rows of people that change: a balance is in
/// another table. Of a new person there is one row.
int PreviewReport::totalOf(PreviewKind kind) const
{
    return kind == PreviewKind::ChangedPeople ? m_subjects.count(PreviewSubjects::Group::Changed)
                                              : m_rows.value(kind);
}

void PreviewReport::writeDifferences(PreviewKind kind)
{
    const QVector<Card> cards = cardsOf(kind);
    if (cards.isEmpty() && !m_rows.contains(kind))
        return;
    m_report.section(PreviewWords::idOf(kind), PreviewWords::headingOf(kind));
    m_report.data(tableOf(m_lines.take(kind)));
    for (const Card &card : cards)
        m_report.card(card);
}

QVector<Card> PreviewReport::cardsOf(PreviewKind kind) const
{
    if (kind == PreviewKind::NewPeople)
        return gathered(m_subjects.cards(PreviewSubjects::Group::New));
    if (kind == PreviewKind::ChangedPeople)
        return gathered(m_subjects.cards(PreviewSubjects::Group::Changed));
    return m_subjects.thingCards(kind);
}

void PreviewReport::writeBookkeeping()
{
    const QVector<Card> cards = m_subjects.cards(PreviewSubjects::Group::Bookkeeping);
    if (cards.isEmpty())
        return;
    m_report.section(QStringLiteral("bookkeeping-people"),
                     Text::tr("People with bookkeeping only"));
    m_report.data(tableOf(cards));
    m_report.card(allInOne(cards));
}

void PreviewReport::writeLimits()
{
    m_report.section(QStringLiteral("limits"), Text::tr("What is left out"));
    m_report.sentence(
        Text::tr(
            "%1 This is the forced synchronisation of a plugin that was just started: an ordinary "
            "one skips people whose line has not changed, and a running plugin remembers more than "
            "the database holds. It is valid for today, %2, and for the database as it was when it "
            "was copied; moments of writing are shown as \"now\". The plugin's warnings are those "
            "of its log: check-file reports lines that it drops silently, check-db rights that its "
            "account lacks.")
            .arg(m_configuration.origin(), Moment::text(QDate::currentDate())));
    if (m_configuration.values().runsCommand(true)) {
        m_report.sentence(
            Text::tr("The plugin would run its export command first. It was not run: this is "
                     "the preview of the file as it is."));
    }
    if (m_configuration.values().deleteFile) {
        m_report.sentence(Text::tr("The plugin would remove the export after reading it. It "
                                   "was not removed."));
    }
}

QString PreviewReport::verdict() const
{
    const int created = m_subjects.count(PreviewSubjects::Group::New);
    const int changed = m_subjects.count(PreviewSubjects::Group::Changed);
    QString text = verdictOn(created, changed, m_changes);
    const int warnings = m_work.warnings().size();
    if (warnings > 0) {
        text +=
            QLatin1Char(' ') + Text::tr("The plugin would warn %Ln time(s).", nullptr, warnings);
    }
    return text;
}
