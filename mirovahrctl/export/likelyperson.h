#pragma once

#include <QString>

/// Whom a line of an export is most likely about that cannot be read: "1246.1 Eva Malá", "Eva Malá,
/// personal number 1246", or as much of it as its fields show; empty when they show nothing. Pure
/// functions.
namespace LikelyPerson {

/// The fields are believed that look like what they should be: numbers of digits, names of letters.
/// \a line: its text, whatever separates its fields.
QString of(const QString &line);

} // namespace LikelyPerson
