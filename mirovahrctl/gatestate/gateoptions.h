#pragma once

#include "mirovahrctl/gatestate/gatelimits.h"
#include "mirovahrctl/report/exitstatus.h"
#include "mirovahrctl/site/backslash.h"

#include <QString>
#include <QtGlobal>

#include <optional>

class CommandLine;
class Console;

/// The options of the gate's command line.
struct GateOptions {
    QString from; ///< HR's file
    QString to; ///< the file that the plugin reads
    QString stateFolder;
    QString rejects;
    GateLimits limits;
    qint64 copies = 30; ///< dated copies to keep
    qint64 settleSeconds = 0; ///< minimum age of HR's file
    bool mayEndOpen = false; ///< a last line without a line feed does not count as truncated
    /// How the texts are written in the file that the plugin reads; nothing: as they are.
    std::optional<Backslash> texts = Backslash::Escapes;
    bool accept = false; ///< admit the file this once, whatever has changed

    /// Adds the options to a command line.
    static void addTo(CommandLine &line);

    /// Reads them from a parsed command line. Has a status when the subcommand must end with it:
    /// they are invalid and the error was printed.
    std::optional<ExitStatus> read(const CommandLine &line, Console &console);

    /// The options of the gate that a command such as `syncCommand` runs, directly or through
    /// another program such as sudo. Nothing when it runs no gate, or the options are invalid.
    static std::optional<GateOptions> ofCommand(const QString &command);

    /// Whether a command runs a gate, be its options valid or not.
    static bool isRunBy(const QString &command);

    /// Whether the gate publishes to this path.
    bool publishesTo(const QString &path) const;
};
