#pragma once

#include <QSet>
#include <QString>
#include <QStringList>

/// The manual page of mirovahrctl, as it is delivered.
namespace Manual {

QString path();

/// The page's source, its escapes for hyphens undone.
QString text();

/// What the page says of one subcommand; empty when it says nothing.
QString about(const QString &subcommand);

/// The rules that the page names for one subcommand, in alphabetical order.
QStringList rules(const QString &subcommand);

/// Which rules a test program has tripped with its fixtures, and which it has not.
struct RuleFixtures {
    QSet<QString> tripped;
    QSet<QString> passed;

    /// Those of a subcommand's rules that miss a fixture of either kind, without \a others.
    QStringList missing(const QString &subcommand, const QSet<QString> &others) const;
};

} // namespace Manual
