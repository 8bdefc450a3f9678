#pragma once

#include <QStringList>

/// The option --language, which every command line may have, at any place.
namespace LanguageOption {

/// Uses the language that the command line requests: that of the option, or else of the locale. A
/// report in JSON is for scripts, so everything is English beside it. Removes the option from \a
/// arguments.
///
/// Returns what is wrong with it, as problem() does. The option then stands behind the subcommand,
/// which refuses it as any other: CommandLine::parse().
QString obey(QStringList &arguments);

/// Moves the option behind the first of the other arguments, the subcommand.
void moveBehindSubcommand(QStringList &arguments);

/// Why a text is no language, a sentence without its full stop; empty when it is one.
QString problem(const QString &language);

} // namespace LanguageOption
