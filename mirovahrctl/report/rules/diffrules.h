#pragma once

#include "mirovahrctl/report/rule.h"

/// The rules of diff.
namespace DiffRules {

inline constexpr Rule kMisread{
    "values-misread", Severity::Warning,
    QT_TRANSLATE_NOOP("Text", "Values of the newer export are misread that were not before."),
    QT_TRANSLATE_NOOP("Text", "check-file names the lines and what is wrong with each.")};

inline constexpr Rule kBalancesMultiplied{
    "balances-multiplied", Severity::Warning,
    QT_TRANSLATE_NOOP(
        "Text", "Many balances are the same multiple, or the same fraction, of what they were."),
    QT_TRANSLATE_NOOP(
        "Text",
        "Ask HR whether they are hours instead of days, or have lost their decimal points.")};

/// All of them, in the order of `mirovahrctl rules`.
inline constexpr const Rule *kAll[] = {
    &kMisread,
    &kBalancesMultiplied,
};

} // namespace DiffRules
