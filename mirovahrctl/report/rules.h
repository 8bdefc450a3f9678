#pragma once

#include "mirovahrctl/report/rule.h"

#include <QVector>

/// The rules of one subcommand.
struct RuleGroup {
    const char *subcommand; ///< as on the command line
    QVector<const Rule *> rules;
    QVector<const char *> others = {}; ///< subcommands whose rules this one reports as well
};

/// All rules, in the order of the subcommands in the overview.
const QVector<RuleGroup> &ruleGroups();
