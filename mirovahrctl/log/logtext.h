#pragma once

#include <QVector>
#include <QtGlobal>

#include <array>

/// What a text of the plugin becomes in a line of the log.
enum class Form {
    Whole, ///< the text itself
    MessageFollows, ///< a blank and the reason follow
    SqlError, ///< " [number]: reason" follows, and sometimes the statement in a second line
    PlanOperation, ///< "(plan)" follows, or " - ERROR[number]: reason"
    BranchOperation, ///< "(id)" or "(id, 'ids')" follows, or " - ERROR: reason"
    TripleOperation, ///< "(triples)" follows, or "() - … failed, SQL ERROR: reason"
    Statement, ///< the class stands before it in place of the first "%s"
    StatementName, ///< stands before a text of the form Statement in place of its first "%s"
    Part, ///< is no line: what the other forms add
};

/// What a value in a text is. The values of a form come after those of the text.
enum class Role {
    None,
    Person, ///< a record as MirovaRonRecord::getString() writes it
    PayrollId,
    Pid,
    Branch, ///< the number of a branch, HR's cost centre
    Calendar,
    Supervisor, ///< a personal number
    File,
    Command,
    Code, ///< how a command ended
    ErrorNumber, ///< the database's, which the form has
};

/// What a text says about the course of a synchronisation.
enum class Event {
    None,
    Loaded, ///< by a new process
    Started,
    Stopped,
    Tick,
    Begin,
    End,
    LineRead,
    LineSkipped,
    PeopleNotLoaded,
    RecordsCounted,
    RecordBegun, ///< the texts that follow are about this person
    RecordsOver,
    Create,
    NotCreated,
    Update,
    NotUpdated,
    FundFound,
    FundChecked,
    Correct,
    CorrectionFailed,
    NotCorrected,
    SupervisorBegun, ///< the steps that follow are about this person
    SupervisorStep,
    SupervisorSet,
    Joined,
};

/// A text that the plugin logs. Meaning and advice of a warning and of an error are for Text::tr();
/// those of the others stand in docs/operations.md only.
struct LogText {
    const char *text; ///< with printf()'s placeholders "%u", "%i" and "%s"
    /// As docs/operations.md has it: "warning", "debug 2" for one that appears from debug level 2
    /// on, "info 1, critical" for one that comes at two levels.
    const char *level;
    Form form;
    const char *meaning; ///< what it means and what is lost, whole sentences
    const char *advice = ""; ///< what to do, whole sentences; empty when nothing is to be done
    std::array<Role, 3> roles = {}; ///< of the text's own values
    Event event = Event::None;
};

/// The texts under one heading of docs/operations.md.
struct LogTextGroup {
    const char *heading;
    QVector<LogText> texts;
};

/// All of them, in the order of the document.
const QVector<LogTextGroup> &logTextGroups();
