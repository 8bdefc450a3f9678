#pragma once

#include "mirovahrctl/report/severity.h"

/// The severities of a rule's findings: always the same one, or another one in milder or worse
/// circumstances.
struct RuleSeverity {
    // NOLINTNEXTLINE(google-explicit-constructor): most rules have one severity
    constexpr RuleSeverity(Severity only)
        : RuleSeverity(only, only)
    {
    }
    constexpr RuleSeverity(Severity usualOne, Severity otherOne)
        : usual(usualOne)
        , other(otherOne)
    {
    }

    Severity usual; ///< that of makeFinding()
    Severity other; ///< the same when there is only one
};

/// A rule of one subcommand. Two subcommands may have rules of the same id: each says what it means
/// there.
struct Rule {
    const char *id; ///< such as "field-count"; part of the JSON reports, so it stays
    RuleSeverity severity;
    const char *meaning; ///< what a finding means, a sentence of one line
    const char *advice = ""; ///< what to do about it in general, whole sentences; may be empty
};
