// What the database holds of the person, and whether the plugin recognises the person there.

#include "mirovahrctl/explain/personexplanation.h"

#include "cli/text.h"
#include "mirovahrctl/comparison/rowfields.h"
#include "mirovahrctl/explain/phrases.h"
#include "mirovahrctl/report/finding.h"
#include "mirovahrctl/report/rules/explainrules.h"

namespace {

/// Something else that the database holds of a person.
struct Holding {
    const char *name;
    /// The query for it: rows of an id, or of an id and what belongs to it.
    const char *select;
    const char *both = nullptr; ///< the text for an id and what belongs to it
};

constexpr Holding kHoldings[] = {
    {QT_TRANSLATE_NOOP("Text", "Member of branches"),
     "SELECT bid, name FROM brape JOIN branches USING(bid) WHERE uid = %1 ORDER BY bid", "%1 %2"},
    {QT_TRANSLATE_NOOP("Text", "Calendar groups and their first months"),
     "SELECT gid, since FROM groups_plan WHERE uid = %1 ORDER BY since",
     QT_TRANSLATE_NOOP("Text", "%1 from %2")},
    {QT_TRANSLATE_NOOP("Text", "Administrators who receive the requests"),
     "SELECT aid, personalNumber FROM admins_people JOIN admins USING(aid) WHERE request AND uid = "
     "%1 ORDER BY aid",
     QT_TRANSLATE_NOOP("Text", "%1 (personal number %2)")},
    {QT_TRANSLATE_NOOP("Text", "Terminals"),
     "SELECT tid FROM people_term WHERE uid = %1 ORDER BY tid"},
    {QT_TRANSLATE_NOOP("Text", "Settings of the payroll export"),
     "SELECT id FROM people_pam WHERE uid = %1 ORDER BY id"},
};

/// "1 Praha, 4 Brno"; nothing when there is none.
QVariant held(const Holding &holding, ExplainContext &context)
{
    const auto rows =
        context.view.sql().rows(QString(QLatin1String(holding.select)).arg(context.person.uid()));
    QStringList texts;
    for (const QStringList &row : rows) {
        texts += row.size() == 1 || row.last().isNull()
            ? row.first()
            : Text::tr(holding.both).arg(row.first(), row.last());
    }
    return texts.isEmpty() ? QVariant() : QVariant(texts.join(QStringLiteral(", ")));
}

void reportRow(ExplainContext &context)
{
    const PersonRow &row = *context.person.row();
    context.report.sentence(
        (row.active ? Text::tr("The database has the person as uid %1: %2 %3, active.")
                    : Text::tr("The database has the person as uid %1: %2 %3, not active."))
            .arg(QString::number(row.uid), row.payrollId, row.name));
    QString history = row.created == 0
        ? Text::tr("It is not known when the row was created.")
        : Text::tr("The row was created on %1.").arg(Phrases::day(row.created));
    if (row.edited != 0) {
        history += QLatin1Char(' ')
            + (row.editedByPlugin ? Text::tr("The plugin changed it last, on %1.")
                                  : Text::tr("An administrator changed it last, on %1."))
                  .arg(Phrases::day(row.edited));
    }
    context.report.sentence(history);
}

void reportHoldings(ExplainContext &context)
{
    Table table{QStringLiteral("held"),
                {{QStringLiteral("what"), Text::tr("What")},
                 {QStringLiteral("value"), Text::tr("In the database")}},
                {}};
    for (const Holding &holding : kHoldings)
        table.rows.append({Text::tr(holding.name), held(holding, context)});
    context.report.table(table);
}

/// The plugin looks a person up by the payroll id of the active rows.
void reportRecognition(ExplainContext &context)
{
    const auto &row = context.person.row();
    const auto &known = context.person.known();
    const bool seesRow = row && row->active;
    if (known && !seesRow) {
        context.report.add(
            ExplainRules::kPayrollIdStrange,
            Text::tr(
                "An active row with another pid has the payroll id %1. The plugin recognises it as "
                "this person, but writes by pid: it changes nobody, or somebody else.")
                .arg(known->getPamId()),
            Text::tr("Correct pid and pamId of that row."));
    } else if (seesRow && !known) {
        context.report.add(ExplainRules::kPayrollIdStrange,
                           Text::tr("The payroll id of the row belongs to another pid: the "
                                    "plugin does not recognise the person in it."),
                           Text::tr("Correct pamId of the row."));
    } else if (row && !row->active) {
        context.report.sentence(
            Text::tr("The plugin sees active people only, so it does not see this row."));
    }
}

} // namespace

void PersonExplanation::explainDatabase()
{
    m_context.report.section(QStringLiteral("database"), Text::tr("Database"));
    const bool hasRow = m_context.person.row().has_value();
    if (hasRow)
        reportRow(m_context);
    else
        m_context.report.sentence(
            Text::tr("The database has nobody with the pid %1.").arg(m_context.person.pid()));
    reportRecognition(m_context);
    if (hasRow)
        reportHoldings(m_context);
}

void PersonExplanation::explainRowOnly()
{
    const auto &known = m_context.person.known();
    if (!known)
        return;
    Table table{QStringLiteral("fields"),
                {{QStringLiteral("field"), Text::tr("Field")},
                 {QStringLiteral("database"), Text::tr("In the database")}},
                {}};
    const QVector<RowField> fields = compareRowFields(*known, *known, m_context.backslash);
    for (const RowField &field : fields)
        table.rows.append({field.name, field.held});
    m_context.report.table(table);
}
