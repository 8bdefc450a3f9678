#pragma once

#include <QString>

/// How much a finding matters. Notes alone leave the exit status at "fine".
enum class Severity {
    Note, ///< good to know; nothing is lost
    Warning, ///< works, but probably not as intended
    Error, ///< fails: a line is dropped, a person not written, a key without effect
};

/// "note", "warning" or "error": a stable word for scripts.
QString severityWord(Severity severity);

/// The same for people.
QString severityText(Severity severity);
