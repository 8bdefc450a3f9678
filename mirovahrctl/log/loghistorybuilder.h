#pragma once

#include "mirovahrctl/log/linetime.h"
#include "mirovahrctl/log/loghistory.h"
#include "mirovahrctl/log/logmatcher.h"

/// Builds the history of a log from its lines, in their order.
class LogHistoryBuilder {
public:
    /// \a now: the time by which times without a year are understood.
    explicit LogHistoryBuilder(const QDateTime &now);

    /// Leaves out what was logged before this time, and lines before the first one that has a time.
    void setSince(const QDateTime &since) { m_since = since; }

    void take(std::string_view line);

    /// The history of all lines so far.
    LogHistory finish();

private:
    bool isBeforeSince(std::string_view prefix);
    void noteUnknown(const LoggedText &message);
    void noteFirstTime(std::string_view prefix);
    void notePerson(const LoggedText &message);
    void notePersonOfStep(const LoggedText &message);
    QByteArray personOf(std::string_view record);
    void noteProblem(const LoggedText &message);
    LoggedProblems &currentProblems();

    void noteEvent(const LoggedText &message);
    void noteRun(Event event);
    void noteTick(const LoggedText &message);
    void noteBegin(const LoggedText &message);
    void noteEnd(const LoggedText &message);
    LoggedRun &runOf(const QVector<LoggedTick> &sofar, quint32 number);
    void count(const LoggedText &message, LoggedSynchronisation &current);
    void countPeopleWritten(const LoggedText &message, LoggedSynchronisation &current) const;

    LogMatcher m_matcher;
    LineTime m_times;
    LogHistory m_history;
    std::optional<QDateTime> m_since;
    bool m_isWithin = false; ///< the last synchronisation has not ended
    QByteArray m_person; ///< whom the lines are about; empty when that is not known
    QByteArray m_personOfStep; ///< whose supervisor is set; empty when no supervisor is
    QByteArray m_mentioned; ///< whom the current line names; empty for nobody
    bool m_correctionPending = false; ///< the last line is about a correction that is written
    QByteArray m_lastPrefix; ///< of the last line of the plugin
};
