#include "tests/mirovahrctl/drift/driftlosses.h"

#include <QRegularExpression>
#include <QSet>

#include <algorithm>

namespace {

/// A difference from the undisturbed state, and the rule that names it.
struct Named {
    const char *line;
    const char *rule;
};

constexpr Named kNamed[] = {
    {"^vars name=exportPam\\.1\\.selPeople: ", "payroll-selection"},
    {"^people_pam - ", "payroll-binding"},
    {"^admins_people - aid=2 uid=<uid> request=1$", "supervisor-missing"},
    {"^admins_people - aid=2 uid=4 request=1$", "supervisor-other"},
    {"^groups_month ", "months-differ"},
    {"^people_term - ", "terminal-missing"},
    {"^term tid=\\d: syn 2 -> 0$", "terminal-not-marked"},
    {"^admins_people - .* request=0$", "administrator-missing"},
};

/// What the database does not say afterwards: when a row was written, what terminals had to fetch,
/// which days had to be calculated again. A balance is corrected when those are calculated. Of a
/// member who joined twice there are more rows, not fewer.
constexpr const char *kNotVisible[] = {
    "^term_sync ",
    "^people uid=\\S+: edited ",
    "^people uid=5: lastCalc ",
    "^atten uid=5 ",
    "^funds_move - type=3 .* uid=4$",
    "^brape .* since ",
    "^people_term \\+ ",
    "^admins_people \\+ ",
    // It belongs to the request that another one has.
    "^admins_people aid=1 uid=4: request 0 -> 1$",
};

bool fits(const QString &line, const char *expression)
{
    return line.contains(QRegularExpression(expression));
}

/// A terminal for which nothing was queued need not be marked.
bool isMarkOfNothing(const QString &line, const QStringList &all)
{
    static const QRegularExpression mark("^term (tid=\\d): syn 2 -> 0$");
    const QRegularExpressionMatch match = mark.match(line);
    return match.hasMatch() && !all.filter("term_sync - " + match.captured(1) + " ").isEmpty();
}

QStringList sorted(const QSet<QString> &texts)
{
    QStringList list = texts.values();
    list.sort();
    return list;
}

} // namespace

QStringList DriftLosses::rules()
{
    QSet<QString> rules;
    for (const Named &named : kNamed)
        rules += named.rule;
    return sorted(rules);
}

QStringList DriftLosses::rulesOf(const QStringList &differences)
{
    QSet<QString> rules;
    for (const QString &line : differences) {
        for (const Named &named : kNamed) {
            if (fits(line, named.line) && !isMarkOfNothing(line, differences))
                rules += named.rule;
        }
    }
    return sorted(rules);
}

QStringList DriftLosses::visible(const QStringList &differences)
{
    QStringList visible;
    for (const QString &line : differences) {
        const bool isHidden =
            std::any_of(std::begin(kNotVisible), std::end(kNotVisible),
                        [&line](const char *expression) { return fits(line, expression); });
        if (!isHidden && !isMarkOfNothing(line, differences))
            visible += line;
    }
    return visible;
}
