#include "mirovahrctl/report/rules.h"
#include "mirovahrctl/subcommand.h"
#include "tests/mirovahrctl/program/rulefixtures.h"
#include "tests/mirovahrctl/program/toolrun.h"

#include <QTest>

/// The registry of rules, and the subcommand that shows it.
class TestRules : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyGroupBelongsToASubcommand();
    void noSubcommandHasTwoRulesOfOneId();
    void everyRuleHasAMeaningOfOneLine();
    void everySeriousRuleSaysWhatToDo();
    void allRulesAreListedBySubcommand();
    void aRuleOfTwoSeveritiesNamesBoth();
    void aRuleIsExplainedForEachSubcommandThatHasIt();
    void aRuleThatNeedsNoActionHasNoAdvice();
    void anUnknownRuleIsAUsageError();
};

/// The rows of a table in the section of a JSON report.
static QJsonArray rowsOf(const ToolRun &run, const QString &section, const QString &table)
{
    const QJsonArray sections = run.json().value("sections").toArray();
    for (const QJsonValue &candidate : sections) {
        if (candidate.toObject().value("id").toString() == section)
            return candidate.toObject()["tables"].toObject()[table].toArray();
    }
    return {};
}

void TestRules::everyGroupBelongsToASubcommand()
{
    QStringList names;
    for (const Subcommand &subcommand : subcommands())
        names << subcommand.name;
    for (const RuleGroup &group : ruleGroups()) {
        QVERIFY2(names.contains(group.subcommand), group.subcommand);
        QVERIFY2(!group.rules.isEmpty(), group.subcommand);
    }
}

void TestRules::noSubcommandHasTwoRulesOfOneId()
{
    for (const RuleGroup &group : ruleGroups()) {
        QStringList ids = registeredRules(group.subcommand);
        QCOMPARE(ids.removeDuplicates(), 0);
    }
}

void TestRules::everyRuleHasAMeaningOfOneLine()
{
    for (const RuleGroup &group : ruleGroups()) {
        for (const Rule *const rule : group.rules) {
            const QString meaning(rule->meaning);
            QVERIFY2(meaning.endsWith('.') && meaning.size() <= 100, rule->id);
        }
    }
}

void TestRules::everySeriousRuleSaysWhatToDo()
{
    for (const RuleGroup &group : ruleGroups()) {
        for (const Rule *const rule : group.rules) {
            const QString advice = QString::fromUtf8(rule->advice);
            QVERIFY2(rule->severity == Severity::Note || advice.endsWith('.'), rule->id);
        }
    }
}

void TestRules::allRulesAreListedBySubcommand()
{
    const ToolRun run = runTool({"rules", "--json"});
    COMPARE_EXIT(run, ExitStatus::Fine);
    for (const RuleGroup &group : ruleGroups()) {
        QStringList listed;
        for (const QJsonValue &row : rowsOf(run, group.subcommand, "rules"))
            listed << row.toObject()["rule"].toString();
        listed.sort();
        QCOMPARE(listed, registeredRules(group.subcommand));
    }
}

void TestRules::aRuleOfTwoSeveritiesNamesBoth()
{
    const QJsonObject row =
        rowsOf(runTool({"rules", "too-old", "--json"}), "rule", "rule")[0].toObject();
    QCOMPARE(row["severity"].toString(), QString("warning or error"));
}

void TestRules::aRuleIsExplainedForEachSubcommandThatHasIt()
{
    const ToolRun run = runTool({"rules", "changed-meanwhile", "--json"});
    COMPARE_EXIT(run, ExitStatus::Fine);
    const QJsonArray rows = rowsOf(run, "rule", "rule");
    QCOMPARE(rows.size(), 2);
    QCOMPARE(rows[0].toObject()["subcommand"].toString(), QString("gate"));
    QCOMPARE(rows[0].toObject()["severity"].toString(), QString("error"));
    QCOMPARE(rows[0].toObject()["meaning"].toString(),
             QString("The file changed while it was being read."));
    QCOMPARE(rows[1].toObject()["subcommand"].toString(), QString("force"));
    QCOMPARE(rows[1].toObject()["severity"].toString(), QString("warning"));
    QCOMPARE(rows[1].toObject()["advice"].toString(), QString("Try again."));
}

void TestRules::aRuleThatNeedsNoActionHasNoAdvice()
{
    const QJsonArray rows = rowsOf(runTool({"rules", "no-department", "--json"}), "rule", "rule");
    QCOMPARE(rows.size(), 1);
    QVERIFY(rows[0].toObject()["advice"].isNull());
}

void TestRules::anUnknownRuleIsAUsageError()
{
    const ToolRun run = runTool({"rules", "no-such-rule"});
    COMPARE_EXIT(run, ExitStatus::Usage);
    QVERIFY2(run.err.contains("no-such-rule"), run.report().constData());
    QCOMPARE(run.out, QString());
}

QTEST_GUILESS_MAIN(TestRules)
#include "tst_rules.moc"
