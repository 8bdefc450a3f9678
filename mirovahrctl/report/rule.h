#pragma once

#include "mirovahrctl/report/severity.h"

#include <QtGlobal>

/// A rule of one subcommand. Two subcommands may have rules of the same id: each says what it means
/// there.
struct Rule {
    const char *id; ///< such as "field-count"; part of the JSON reports, so it stays
    Severity severity; ///< that of makeFinding()
    const char *meaning; ///< what a finding means, a sentence of one line, for Text::tr()
    /// What to do about it in general, whole sentences for Text::tr(); may be empty.
    const char *advice = "";
    /// For a rule whose findings matter more or less in some cases; otherwise the same.
    Severity otherSeverity = severity;
};
