#pragma once

#include "mirovahrctl/site/backslash.h"

#include <QString>
#include <QStringList>

#include <optional>

/// The words for how the gate writes the texts of a file: on its command line and in its status
/// file.
namespace GateTexts {

/// All of them: "escaped", "no-backslash-escapes", "as-is".
QStringList words();

/// \a texts: see SqlTexts::Route::gate.
QString word(const std::optional<Backslash> &texts);

/// What the word stands for; the same as "as-is" for any other word.
std::optional<Backslash> ofWord(const QString &word);

} // namespace GateTexts
