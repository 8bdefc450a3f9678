// What the database holds of the person, and whether the plugin recognises the person there.

#include "mirovahrctl/explain/personexplanation.h"

#include "mirovahrctl/comparison/rowfields.h"
#include "mirovahrctl/explain/phrases.h"
#include "mirovahrctl/report/finding.h"
#include "mirovahrctl/report/rules/explainrules.h"

namespace {

/// Something else that the database holds of a person, and the query for it.
struct Holding {
    const char *name;
    const char *select;
};

constexpr Holding kHoldings[] = {
    {"Member of branches",
     "SELECT GROUP_CONCAT(CONCAT_WS(' ', bid, name) ORDER BY bid SEPARATOR ', ')"
     " FROM brape JOIN branches USING(bid) WHERE uid = %1"},
    {"Calendar groups and their first months",
     "SELECT GROUP_CONCAT(CONCAT(gid, ' from ', since) ORDER BY since SEPARATOR ', ')"
     " FROM groups_plan WHERE uid = %1"},
    {"Administrators who receive the requests",
     "SELECT GROUP_CONCAT(CONCAT(aid, IFNULL(CONCAT(' (personal number ', personalNumber, ')'),"
     " '')) ORDER BY aid SEPARATOR ', ')"
     " FROM admins_people JOIN admins USING(aid) WHERE request AND uid = %1"},
    {"Terminals",
     "SELECT GROUP_CONCAT(tid ORDER BY tid SEPARATOR ', ') FROM people_term WHERE uid = %1"},
    {"Settings of the payroll export",
     "SELECT GROUP_CONCAT(id ORDER BY id SEPARATOR ', ') FROM people_pam WHERE uid = %1"},
};

void reportRow(ExplainContext &context)
{
    const PersonRow &row = *context.person.row();
    context.report.sentence(
        QStringLiteral("The database has the person as uid %1: %2 %3, %4.")
            .arg(QString::number(row.uid), row.payrollId, row.name,
                 row.active ? QStringLiteral("active") : QStringLiteral("not active")));
    QString history = row.created == 0
        ? QStringLiteral("It is not known when the row was created.")
        : QStringLiteral("The row was created on %1.").arg(Phrases::day(row.created));
    if (row.edited != 0) {
        history += QStringLiteral(" %1 changed it last, on %2.")
                       .arg(row.editedByPlugin ? QStringLiteral("The plugin")
                                               : QStringLiteral("An administrator"),
                            Phrases::day(row.edited));
    }
    context.report.sentence(history);
}

void reportHoldings(ExplainContext &context)
{
    Table table{QStringLiteral("held"),
                {{QStringLiteral("what"), QStringLiteral("What")},
                 {QStringLiteral("value"), QStringLiteral("In the database")}},
                {}};
    for (const Holding &holding : kHoldings) {
        const QString value = context.view.sql().value(
            QString(QLatin1String(holding.select)).arg(context.person.uid()));
        table.rows.append(
            {QString::fromLatin1(holding.name), value.isNull() ? QVariant() : QVariant(value)});
    }
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
            QStringLiteral(
                "An active row with another pid has the payroll id %1. The plugin recognises it as "
                "this person, but writes by pid: it changes nobody, or somebody else.")
                .arg(known->getPamId()),
            QStringLiteral("Correct pid and pamId of that row."));
    } else if (seesRow && !known) {
        context.report.add(ExplainRules::kPayrollIdStrange,
                           QStringLiteral("The payroll id of the row belongs to another pid: the "
                                          "plugin does not recognise the person in it."),
                           QStringLiteral("Correct pamId of the row."));
    } else if (row && !row->active) {
        context.report.sentence(
            QStringLiteral("The plugin sees active people only, so it does not see this row."));
    }
}

} // namespace

void PersonExplanation::explainDatabase()
{
    m_context.report.section(QStringLiteral("database"), QStringLiteral("Database"));
    const bool hasRow = m_context.person.row().has_value();
    if (hasRow)
        reportRow(m_context);
    else
        m_context.report.sentence(
            QStringLiteral("The database has nobody with the pid %1.").arg(m_context.person.pid()));
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
                {{QStringLiteral("field"), QStringLiteral("Field")},
                 {QStringLiteral("database"), QStringLiteral("In the database")}},
                {}};
    const QVector<RowField> fields = compareRowFields(*known, *known, m_context.backslash);
    for (const RowField &field : fields)
        table.rows.append({field.name, field.held});
    m_context.report.table(table);
}
