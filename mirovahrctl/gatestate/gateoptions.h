#pragma once

#include "mirovahrctl/report/exitstatus.h"

#include <QString>
#include <QtGlobal>

#include <optional>

class CommandLine;
class Console;

/// How much of something may change from one file to the next.
struct GateLimit {
    qint64 count = 0;
    double percent = 0;

    /// True when it is more than the count, or more than the percentage of \a whole.
    bool isExceeded(qint64 changed, qint64 whole) const
    {
        return changed > count || double(changed) * 100 > percent * double(whole);
    }
};

/// What the gate lets pass. The defaults suit a few hundred to a few thousand people.
struct GateLimits {
    GateLimit lostLines{50, 5}; ///< of the lines that the plugin reads as people
    GateLimit leaving{50, 5}; ///< of the people who work
    GateLimit moving{100, 10}; ///< of the people who work
};

/// What the command line of the gate asks for.
struct GateOptions {
    QString from; ///< HR's file
    QString to; ///< the file that the plugin reads
    QString stateFolder;
    QString rejects;
    GateLimits limits;
    qint64 copies = 30; ///< dated copies that are kept
    qint64 settleSeconds = 0; ///< how old HR's file must at least be
    bool mayEndOpen = false; ///< a missing final line feed is no sign of a truncated file
    bool accept = false; ///< whatever has changed is meant so, this once

    static void addTo(CommandLine &line);

    /// Reads them from a command line that was parsed. Has a status when the subcommand must end
    /// with it: they make no sense, which was said on the console.
    std::optional<ExitStatus> read(const CommandLine &line, Console &console);

    /// The options of the gate that a command line such as `syncCommand` runs, also by way of
    /// another program such as sudo. Nothing when it runs no gate, or one that refuses its options.
    static std::optional<GateOptions> ofCommand(const QString &command);

    /// Whether the gate publishes to this path.
    bool publishesTo(const QString &path) const;
};
