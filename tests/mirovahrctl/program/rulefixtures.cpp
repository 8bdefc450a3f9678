#include "tests/mirovahrctl/program/rulefixtures.h"

#include "mirovahrctl/report/rules.h"

#include <QHash>

#include <algorithm>

namespace {

/// By subcommand, of this process.
QHash<QString, RuleFixtures> &recorded()
{
    static QHash<QString, RuleFixtures> fixtures;
    return fixtures;
}

/// The rules of a subcommand; none when it has no group.
RuleGroup groupOf(const QString &subcommand)
{
    const auto &all = ruleGroups();
    const auto found = std::find_if(all.cbegin(), all.cend(), [&](const RuleGroup &group) {
        return subcommand == QLatin1String(group.subcommand);
    });
    return found == all.cend() ? RuleGroup() : *found;
}

bool has(const RuleGroup &group, const QString &id, const QString &severity)
{
    return std::any_of(group.rules.cbegin(), group.rules.cend(), [&](const Rule *rule) {
        return id == QLatin1String(rule->id)
            && (severity == severityWord(rule->severity)
                || severity == severityWord(rule->otherSeverity));
    });
}

} // namespace

QStringList registeredRules(const QString &subcommand)
{
    QStringList ids;
    const RuleGroup group = groupOf(subcommand);
    for (const Rule *const rule : group.rules)
        ids << rule->id;
    ids.sort();
    return ids;
}

bool isRegistered(const QString &subcommand, const QJsonObject &finding)
{
    const QString id = finding.value("rule").toString();
    const QString severity = finding.value("severity").toString();
    const RuleGroup group = groupOf(subcommand);
    return has(group, id, severity)
        || std::any_of(group.others.cbegin(), group.others.cend(),
                       [&](const char *other) { return has(groupOf(other), id, severity); });
}

RuleFixtures RuleFixtures::ofReports(const QString &subcommand)
{
    return recorded().value(subcommand);
}

void RuleFixtures::record(const QString &subcommand, const QStringList &reported)
{
    RuleFixtures &fixtures = recorded()[subcommand];
    const QStringList all = registeredRules(subcommand);
    for (const QString &rule : all)
        (reported.contains(rule) ? fixtures.tripped : fixtures.passed) << rule;
}

QStringList RuleFixtures::missing(const QString &subcommand, const QSet<QString> &others) const
{
    const QStringList all = registeredRules(subcommand);
    if (all.isEmpty())
        return {"the rules of " + subcommand};
    QStringList missing;
    for (const QString &rule : all) {
        if (!others.contains(rule) && !(tripped.contains(rule) && passed.contains(rule)))
            missing += rule;
    }
    return missing;
}
