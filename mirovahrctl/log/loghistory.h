#pragma once

#include "mirovahrctl/log/logtext.h"

#include <QByteArray>
#include <QDateTime>
#include <QHash>
#include <QPair>
#include <QString>
#include <QVector>

#include <optional>

inline uint qHash(Role role, uint seed = 0)
{
    return ::qHash(static_cast<int>(role), seed);
}

/// What a text is about, such as the branch 150.
using LoggedThings = QVector<QPair<Role, QByteArray>>;

/// How often a text was logged as a warning or an error, of one thing and one error number.
struct LoggedProblem {
    const LogText *text = nullptr;
    bool isError = false;
    LoggedThings things; ///< that it is about besides people
    qint64 count = 0;
    qint64 interruptions = 0; ///< of these: see Interruptions
    std::optional<QDateTime> first;
    std::optional<QDateTime> last;
    QHash<QByteArray, qint64> people; ///< how often for whom: payroll ids or pids
    QByteArray example; ///< the first one as the plugin wrote it

    void add(const LoggedProblem &other);
};

/// Problems by their text and things.
using LoggedProblems = QHash<QPair<const LogText *, LoggedThings>, LoggedProblem>;

/// What the log says of one synchronisation. Counts are those of the log's lines: some of them are
/// logged from a debug level on.
struct LoggedSynchronisation {
    quint32 number = 0;
    bool forced = false;
    bool hasBegun = false; ///< false when the log begins within it
    bool hasEnded = false;
    bool isLast = false; ///< nothing of the plugin follows that shows that it is over
    std::optional<QDateTime> begin;
    std::optional<QDateTime> end;
    int debugLevel = 0; ///< at least that of the plugin
    std::optional<qint64> waiting; ///< people whose branch or calendar group is missing

    std::optional<qint64> usableLines;
    bool peopleNotLoaded = false;
    std::optional<quint32> fund; ///< 0 for none
    qint64 fundChecks = 0; ///< one a record where there is a fund
    qint64 linesRead = 0;
    qint64 linesSkipped = 0;
    qint64 created = 0; ///< also those who return
    qint64 updated = 0;
    qint64 joined = 0; ///< memberships of branches
    QVector<qint64> corrections; ///< of balances, in hundredths of a day
    qint64 supervisors = 0; ///< who got another one

    LoggedProblems problems; ///< while it ran
    LoggedProblems problemsAfter; ///< until the next one began

    /// Adds the counts of another one.
    void addCounts(const LoggedSynchronisation &other);
    qint64 correctionSum() const;
    qint64 largestCorrection() const; ///< either way

    /// The records that it handled; nothing when the log does not tell.
    std::optional<qint64> records() const;
    /// The seconds that it took; nothing when the log does not tell.
    std::optional<qint64> seconds() const;
};

/// A tick or the begin of a synchronisation, in Unix seconds.
struct LoggedTick {
    quint32 number = 0;
    qint64 time = 0;
};

/// The times from a start of the plugin to its end.
struct LoggedRun {
    QVector<LoggedTick> ticks; ///< from debug level 2 on
    QVector<LoggedTick> begins; ///< of synchronisations
    QVector<bool> forced; ///< of each of these
    bool hasStopped = false;
};

/// What a log says of the plugin's work.
struct LogHistory {
    qint64 lines = 0; ///< of the whole log
    qint64 pluginLines = 0;
    qint64 unknownLines = 0; ///< begin like those of the plugin and are none, or are cut
    QByteArray unknownExample;
    int debugLevel = 0; ///< the highest that a line shows
    bool hasPluginLines = false; ///< also if all of them are left out as too old
    bool hasTimes = false; ///< a line of the plugin has one
    std::optional<QDateTime> firstTime;
    std::optional<QDateTime> lastTime;
    std::optional<QDateTime> endTime; ///< of the log, whoever wrote its last line
    LoggedProblems problemsBefore; ///< before the first synchronisation
    QVector<LoggedSynchronisation> synchronisations;
    QVector<LoggedRun> runs;
    std::optional<QDateTime> from; ///< nothing before it matters, see keepLast()
    QHash<QByteArray, QByteArray> names; ///< of people, by payroll id and by pid

    /// Leaves only the last ones, and what was logged from then on.
    void keepLast(int count);
    /// Forgets what is over: all but the last synchronisation when that has not ended, and the
    /// names.
    void forgetPast();
    /// Nobody can tell which lines are too old.
    bool lacksTimes() const { return hasPluginLines && !hasTimes; }
    /// All problems, those of all synchronisations together.
    LoggedProblems problems() const;
    /// A person by the payroll id or the pid of a line, with the name if the log has it.
    QString personName(const QByteArray &id) const;
};
