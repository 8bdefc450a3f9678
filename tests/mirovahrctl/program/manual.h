#pragma once

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

} // namespace Manual
