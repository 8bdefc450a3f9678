#pragma once

#include "mirovahrctl/report/exitstatus.h"
#include "mirovahrctl/report/finding.h"

#include <QString>
#include <QStringList>
#include <QVector>

/// What another subcommand answered.
struct Checkup {
    QStringList command; ///< the subcommand and its arguments, to run it by hand
    ExitStatus status = ExitStatus::Usage;
    QString verdict; ///< in one sentence; or why it failed
    bool failed = false;
    /// Its warnings and errors, one of each rule, the first. Those of a rule with several say so.
    QVector<Finding> findings;

    /// Runs a subcommand in this process.
    static Checkup run(const QStringList &command);
};
