#include "mirovahrctl/report/rules.h"

#include "cli/text.h"
#include "mirovahrctl/program/commandline.h"
#include "mirovahrctl/program/console.h"
#include "mirovahrctl/program/report.h"

namespace {

constexpr char kDescription[] = QT_TRANSLATE_NOOP(
    "Text",
    "Lists the rules that the other subcommands check, with the severity of their findings, "
    "grouped by subcommand. With an id, such as field-count, explains that rule: what a finding "
    "means, and what to do about it.");

QString severitiesOf(const Rule &rule)
{
    const QString usual = severityText(rule.severity);
    return rule.otherSeverity == rule.severity
        ? usual
        : Text::tr("%1 or %2").arg(usual, severityText(rule.otherSeverity));
}

QVariantList listedRow(const Rule &rule)
{
    return {QString::fromLatin1(rule.id), severitiesOf(rule), Text::tr(rule.meaning)};
}

QVariantList explainedRow(const RuleGroup &group, const Rule &rule)
{
    const QString advice = Text::tr(rule.advice);
    return {QString::fromLatin1(group.subcommand), severitiesOf(rule), Text::tr(rule.meaning),
            advice.isEmpty() ? QVariant() : QVariant(advice)};
}

/// Writes a section with the rules of one subcommand.
void listGroup(const RuleGroup &group, Report &report)
{
    const QString subcommand = QString::fromLatin1(group.subcommand);
    report.section(subcommand, subcommand);
    Table table{QStringLiteral("rules"),
                {{QStringLiteral("rule"), Text::tr("Rule")},
                 {QStringLiteral("severity"), Text::tr("Severity")},
                 {QStringLiteral("meaning"), Text::tr("Meaning")}},
                {}};
    for (const Rule *const rule : group.rules)
        table.rows.append(listedRow(*rule));
    report.table(table);
    QStringList others;
    for (const char *const other : group.others)
        others += QString::fromLatin1(other);
    if (!others.isEmpty()) {
        report.sentence(
            Text::tr("Also reports rules of %1.").arg(others.join(QStringLiteral(", "))));
    }
}

ExitStatus list(const CommandLine &line, Report &report)
{
    report.begin(line.subcommand(), Text::tr("Rules"));
    int count = 0;
    for (const RuleGroup &group : ruleGroups()) {
        listGroup(group, report);
        count += group.rules.size();
    }
    return report.conclude(ExitStatus::Fine, Text::tr("There are %Ln rule(s).", nullptr, count));
}

/// A row for each subcommand that has a rule of this id.
QVector<QVariantList> rowsOf(const QString &id)
{
    QVector<QVariantList> rows;
    for (const RuleGroup &group : ruleGroups()) {
        for (const Rule *const rule : group.rules) {
            if (id == QLatin1String(rule->id))
                rows.append(explainedRow(group, *rule));
        }
    }
    return rows;
}

ExitStatus explain(const CommandLine &line, const QVector<QVariantList> &rows, Report &report)
{
    const QString id = line.argument(0);
    report.begin(line.subcommand(), Text::tr("Rule %1").arg(id));
    report.section(QStringLiteral("rule"), Text::tr("What it means"));
    report.table({QStringLiteral("rule"),
                  {{QStringLiteral("subcommand"), Text::tr("Subcommand")},
                   {QStringLiteral("severity"), Text::tr("Severity")},
                   {QStringLiteral("meaning"), Text::tr("Meaning")},
                   {QStringLiteral("advice"), Text::tr("What to do")}},
                  rows});
    return report.conclude(ExitStatus::Fine,
                           Text::tr("%Ln subcommand(s) have this rule.", nullptr, rows.size()));
}

ExitStatus answer(const CommandLine &line, Report &report, Console &console)
{
    const QString id = line.argument(0);
    if (id.isEmpty())
        return list(line, report);
    const QVector<QVariantList> rows = rowsOf(id);
    if (!rows.isEmpty())
        return explain(line, rows, report);
    return console.fail(ExitStatus::Usage,
                        Text::tr("Unknown rule '%1'; mirovahrctl rules lists them").arg(id));
}

} // namespace

ExitStatus runRules(const QStringList &arguments, Console &console)
{
    CommandLine line("rules", kDescription);
    line.addOptionalArgument(Text::tr("id"), Text::tr("The rule to explain."));
    line.addReportOptions(CommandLine::Page::NotOffered);
    return Report::run(line, arguments, console,
                       [&](Report &report) { return answer(line, report, console); });
}
