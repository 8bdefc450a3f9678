#include "mirovahrctl/explain/explaindatabase.h"

#include "mirovahrctl/explain/explaincontext.h"
#include "mirovahrctl/explain/phrases.h"
#include "mirovahrctl/explain/rowfields.h"

namespace {

/// What else the database holds of a person: what it is, and a query for it.
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
    {"Administrators who get the requests",
     "SELECT GROUP_CONCAT(CONCAT(aid, IFNULL(CONCAT(' (personal number ', personalNumber, ')'),"
     " '')) ORDER BY aid SEPARATOR ', ')"
     " FROM admins_people JOIN admins USING(aid) WHERE request AND uid = %1"},
    {"Terminals",
     "SELECT GROUP_CONCAT(tid ORDER BY tid SEPARATOR ', ') FROM people_term WHERE uid = %1"},
    {"Settings of the payroll export",
     "SELECT GROUP_CONCAT(id ORDER BY id SEPARATOR ', ') FROM people_pam WHERE uid = %1"},
};

void tellRow(ExplainContext &context)
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

void tellHoldings(ExplainContext &context)
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

/// How the plugin finds the row again: by the payroll id of the active ones.
void tellRecognition(ExplainContext &context)
{
    const auto &row = context.person.row();
    const auto &known = context.person.known();
    const bool seesRow = row && row->active;
    if (known && !seesRow) {
        Phrases::tell(context.report, Severity::Warning, "payroll-id-strange",
                      QStringLiteral("An active row with another pid has the payroll id %1. "
                                     "The plugin takes it for this person, but writes by pid: "
                                     "it changes nobody, or somebody else.")
                          .arg(known->getPamId()),
                      QStringLiteral("Set pid and pamId of that row right."));
    } else if (seesRow && !known) {
        Phrases::tell(context.report, Severity::Warning, "payroll-id-strange",
                      QStringLiteral("The payroll id of the row makes another pid: the plugin "
                                     "does not recognise the person in it."),
                      QStringLiteral("Set pamId of the row right."));
    } else if (row && !row->active) {
        context.report.sentence(
            QStringLiteral("The plugin sees active people only: to it, nobody is there."));
    }
}

} // namespace

void explainDatabase(ExplainContext &context)
{
    context.report.section(QStringLiteral("database"), QStringLiteral("Database"));
    const bool hasRow = context.person.row().has_value();
    if (hasRow)
        tellRow(context);
    else
        context.report.sentence(
            QStringLiteral("The database has nobody with the pid %1.").arg(context.person.pid()));
    tellRecognition(context);
    if (hasRow)
        tellHoldings(context);
}

void explainRowOnly(ExplainContext &context)
{
    const auto &known = context.person.known();
    if (!known)
        return;
    Table table{QStringLiteral("fields"),
                {{QStringLiteral("field"), QStringLiteral("Field")},
                 {QStringLiteral("database"), QStringLiteral("In the database")}},
                {}};
    const QVector<RowField> fields = compareRowFields(*known, *known);
    for (const RowField &field : fields)
        table.rows.append({field.name, field.held});
    context.report.table(table);
}
