#pragma once

#include <QStringList>

/// The option --language, which every command line may have, at any place.
namespace LanguageOption {

/// Uses the language that the command line requests: that of the option, or else of the locale. A
/// report in JSON is for scripts, so everything is English beside it. Removes the option from \a
/// arguments. Returns what is wrong with it, a sentence without its full stop; empty on success.
QString obey(QStringList &arguments);

} // namespace LanguageOption
