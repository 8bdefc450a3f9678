#pragma once

#include <QJsonObject>
#include <QSet>
#include <QString>
#include <QStringList>

/// The ids of the rules that are registered for one subcommand, in alphabetical order.
QStringList registeredRules(const QString &subcommand);

/// Whether the finding of a JSON report has a rule of the subcommand, and a severity of that rule.
bool isRegistered(const QString &subcommand, const QJsonObject &finding);

/// Which rules a test program has tripped with its fixtures, and which it has not.
struct RuleFixtures {
    QSet<QString> tripped;
    QSet<QString> passed;

    /// Those of all reports of a subcommand that record() has been given.
    static RuleFixtures ofReports(const QString &subcommand);
    /// Notes which of the subcommand's rules a JSON report has findings of, and which not.
    static void record(const QString &subcommand, const QStringList &reported);

    /// Those of a subcommand's rules that miss a fixture of either kind, without \a others.
    QStringList missing(const QString &subcommand, const QSet<QString> &others) const;
};
