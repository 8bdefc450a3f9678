#pragma once

#include <QString>

#include <optional>

class SqlSession;

/// What the attendance database knows of the plugin's work at one moment. Times are Unix times by
/// the server's clock; nothing means never.
struct StatusData {
    qint64 now = 0;
    bool forced = false; ///< a forced synchronisation is pending
    qint64 activePeople = 0;
    std::optional<qint64> created; ///< the newest person
    std::optional<qint64> edited; ///< the last change of a person by the plugin
    qint64 queued = 0; ///< entries of the terminal queue
    std::optional<qint64> oldestQueued;
    qint64 correctionsToday = 0; ///< of vacation balances

    /// The latest trace of the plugin in the database; nothing when there is none.
    std::optional<qint64> lastTrace() const;

    /// Reads all of it. Nothing when that fails; `error` then says why, a sentence without its full
    /// stop.
    static std::optional<StatusData> read(SqlSession &site, QString &error);
};
