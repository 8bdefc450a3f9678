#pragma once

#include "mirovahrctl/log/linetime.h"
#include "mirovahrctl/log/loghistory.h"
#include "mirovahrctl/log/logmatcher.h"

#include <string>

/// Learns what a line shows while the log is read.
class LogListener {
public:
    LogListener() = default;
    virtual ~LogListener() = default;
    LogListener(const LogListener &) = delete;
    LogListener &operator=(const LogListener &) = delete;

    /// A synchronisation has ended, or something else shows that it never will.
    virtual void synchronisationOver(const LoggedSynchronisation &synchronisation) = 0;
    /// A warning or an error: \a problem is that of this line alone. \a history has the names.
    virtual void problemLogged(const LoggedProblem &problem, const LogHistory &history) = 0;
    /// A line begins like those of the plugin, and is none that is known.
    virtual void unknownLogged(const LoggedText &message) = 0;
};

/// Builds the history of a log from its lines, in their order.
class LogHistoryBuilder {
public:
    /// \a now: the time by which times without a year are understood. \a listener may be null.
    explicit LogHistoryBuilder(const QDateTime &now, LogListener *listener = nullptr);

    /// The same from now on, for a log that takes long.
    void setNow(const QDateTime &now) { m_times.setNow(now); }

    /// Leaves out what was logged before this time, and lines before the first one that has a time.
    void setSince(const QDateTime &since) { m_since = since; }

    void take(std::string_view line);

    /// The history of all lines so far.
    LogHistory finish();

    const LogHistory &soFar() const { return m_history; }
    /// As LogHistory::forgetPast(), for a log without an end.
    void forgetPast() { m_history.forgetPast(); }

private:
    bool isBeforeSince(std::string_view prefix);
    void noteUnknown(const LoggedText &message);
    void noteFirstTime(std::string_view prefix);
    void notePerson(const LoggedText &message);
    void notePersonOfStep(const LoggedText &message);
    QByteArray personOf(std::string_view record);
    void noteProblem(const LoggedText &message);
    QByteArray concernedPerson() const;
    LoggedProblems &currentProblems();

    void noteEvent(const LoggedText &message);
    void noteRun(Event event);
    void noteTick(const LoggedText &message);
    void noteBegin(const LoggedText &message);
    void noteEnd(const LoggedText &message);
    void breakOff();
    LoggedRun &runOf(const QVector<LoggedTick> &sofar, quint32 number);
    void count(const LoggedText &message, LoggedSynchronisation &current);
    void countPeopleWritten(const LoggedText &message, LoggedSynchronisation &current) const;

    LogListener *const m_listener;
    LineTime m_times;
    LogHistory m_history;
    std::optional<QDateTime> m_since;
    bool m_isWithin = false; ///< the last synchronisation has not ended
    QByteArray m_person; ///< whom the lines are about; empty when that is not known
    QByteArray m_personOfStep; ///< whose supervisor is set; empty when no supervisor is
    QByteArray m_mentioned; ///< whom the current line names; empty for nobody
    bool m_correctionPending = false; ///< the last line is about a correction that is written
    QByteArray m_lastPrefix; ///< of the last line of the plugin
    std::string m_lastLine; ///< the beginning of the last line, whoever wrote it
};
