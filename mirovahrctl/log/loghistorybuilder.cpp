#include "mirovahrctl/log/loghistorybuilder.h"

#include "mirovahrctl/pluginside/interruptions.h"

#include <QSet>

#include <algorithm>
#include <cstdlib>

namespace {

/// How a record's text goes on behind the name, see MirovaRonRecord::getString().
constexpr std::string_view kBehindName = " (S: ";

/// No person's name is longer; a line may hold any bytes.
constexpr size_t kLongestName = 200;

/// It takes longer to make than a short log to read, and never changes.
const LogMatcher &matcher()
{
    static const LogMatcher matcher;
    return matcher;
}

QByteArray bytes(std::string_view text)
{
    return {text.data(), int(text.size())};
}

qint64 number(std::string_view text)
{
    return bytes(text).toLongLong();
}

/// "12341" of "1234.1", a person's pid.
QByteArray pidOf(QByteArray payrollId)
{
    return payrollId.replace('.', QByteArray());
}

/// The people of a list of uids, each once. 0 names nobody.
qint64 countPeople(std::string_view uids)
{
    QSet<QByteArray> people;
    const QList<QByteArray> all = bytes(uids).split(',');
    for (const QByteArray &uid : all) {
        if (uid.toUInt() != 0)
            people.insert(uid);
    }
    return people.size();
}

/// Takes one off; the line that it was counted by may be missing in the log.
void takeBack(qint64 &count)
{
    count = std::max(qint64(0), count - 1);
}

bool isThing(Role role)
{
    switch (role) {
    case Role::Branch:
    case Role::Calendar:
    case Role::Supervisor:
    case Role::File:
    case Role::Command:
    case Role::Code:
        return true;
    default:
        return false;
    }
}

/// What a problem is about besides people: of each thing it is a problem of its own.
LoggedThings thingsOf(const LoggedText &message)
{
    const LogText &text = message.pattern->text();
    LoggedThings things;
    for (size_t i = 0; i < text.roles.size(); ++i) {
        if (isThing(text.roles[i]))
            things.append({text.roles[i], bytes(message.values[i])});
    }
    if (text.form == Form::SqlError || text.form == Form::PlanOperation) {
        const auto number = size_t(message.pattern->ownValues());
        things.append({Role::ErrorNumber, bytes(message.values[number])});
    }
    return things;
}

} // namespace

LogHistoryBuilder::LogHistoryBuilder(const QDateTime &now, LogListener *listener)
    : m_listener(listener)
    , m_times(now)
{
    m_history.runs.append(LoggedRun());
}

void LogHistoryBuilder::take(std::string_view line)
{
    ++m_history.lines;
    m_lastLine.assign(line.substr(0, LineTime::kLongestPrefix));
    LoggedText message;
    const LogMatcher::Outcome outcome = matcher().find(line, message);
    if (outcome == LogMatcher::Outcome::Foreign)
        return;
    m_history.hasPluginLines = true;
    if (m_since && isBeforeSince(message.prefix))
        return;
    if (outcome == LogMatcher::Outcome::Unknown) {
        noteUnknown(message);
        return;
    }
    ++m_history.pluginLines;
    m_lastPrefix = bytes(message.prefix.substr(0, LineTime::kLongestPrefix));
    if (!m_history.firstTime)
        noteFirstTime(message.prefix);
    m_history.debugLevel = std::max(m_history.debugLevel, message.pattern->debugLevel());
    notePerson(message);
    notePersonOfStep(message);
    noteEvent(message);
    if (message.pattern->isProblem())
        noteProblem(message);
}

LogHistory LogHistoryBuilder::finish()
{
    const auto length = size_t(m_lastPrefix.size());
    m_history.lastTime = m_times.of({m_lastPrefix.constData(), length});
    // No further than the plugin's lines have theirs: the texts of others may name any time.
    const auto lastOfAll = m_times.of(std::string_view(m_lastLine).substr(0, length));
    m_history.endTime = std::max(m_history.lastTime, lastOfAll);
    if (m_isWithin)
        m_history.synchronisations.last().isLast = true;
    return m_history;
}

bool LogHistoryBuilder::isBeforeSince(std::string_view prefix)
{
    const auto time = m_times.of(prefix);
    m_history.hasTimes = m_history.hasTimes || time;
    if (!time || *time < *m_since)
        return true;
    m_since.reset();
    return false;
}

void LogHistoryBuilder::noteUnknown(const LoggedText &message)
{
    if (m_history.unknownLines++ == 0)
        m_history.unknownExample = bytes(message.text);
    if (m_listener != nullptr)
        m_listener->unknownLogged(message);
}

void LogHistoryBuilder::noteFirstTime(std::string_view prefix)
{
    m_history.firstTime = m_times.of(prefix);
    m_history.hasTimes = m_history.hasTimes || m_history.firstTime;
}

void LogHistoryBuilder::notePerson(const LoggedText &message)
{
    m_mentioned.clear();
    const LogText &text = message.pattern->text();
    for (size_t i = 0; i < text.roles.size(); ++i) {
        const std::string_view value = message.values[i];
        if (value.empty())
            continue;
        switch (text.roles[i]) {
        case Role::Person:
            m_mentioned = personOf(value);
            break;
        case Role::PayrollId:
        case Role::Pid:
            m_mentioned = bytes(value);
            break;
        default:
            continue;
        }
    }
}

void LogHistoryBuilder::notePersonOfStep(const LoggedText &message)
{
    switch (message.pattern->text().event) {
    case Event::SupervisorBegun:
        m_personOfStep = m_mentioned;
        break;
    case Event::SupervisorStep:
    case Event::SupervisorSet:
        break;
    default:
        m_personOfStep.clear();
    }
}

QByteArray LogHistoryBuilder::personOf(std::string_view record)
{
    const std::string_view name =
        record.substr(0, std::min(record.find(kBehindName), kLongestName));
    const QByteArray payrollId = bytes(name.substr(0, name.find(' ')));
    QByteArray &known = m_history.names[payrollId];
    if (known.isEmpty()) {
        known = bytes(name);
        m_history.names.insert(pidOf(payrollId), bytes(name));
    }
    return payrollId;
}

void LogHistoryBuilder::noteProblem(const LoggedText &message)
{
    LoggedProblem problem;
    problem.text = &message.pattern->text();
    problem.isError = message.pattern->level() == LogPattern::Level::Critical;
    problem.things = thingsOf(message);
    problem.count = 1;
    problem.interruptions = problem.isError && Interruptions::isIn(message.text) ? 1 : 0;
    problem.first = m_times.of(message.prefix);
    problem.last = problem.first;
    problem.example = bytes(message.text);
    const QByteArray person = concernedPerson();
    if (!person.isEmpty())
        problem.people.insert(person, 1);
    currentProblems()[{problem.text, problem.things}].add(problem);
    if (m_listener != nullptr)
        m_listener->problemLogged(problem, m_history);
}

QByteArray LogHistoryBuilder::concernedPerson() const
{
    if (!m_mentioned.isEmpty())
        return m_mentioned;
    return m_personOfStep.isEmpty() ? m_person : m_personOfStep;
}

LoggedProblems &LogHistoryBuilder::currentProblems()
{
    if (m_history.synchronisations.isEmpty())
        return m_history.problemsBefore;
    return m_isWithin ? m_history.synchronisations.last().problems
                      : m_history.synchronisations.last().problemsAfter;
}

void LogHistoryBuilder::noteEvent(const LoggedText &message)
{
    const Event event = message.pattern->text().event;
    switch (event) {
    case Event::None:
        break;
    case Event::Loaded:
    case Event::Started:
    case Event::Stopped:
        noteRun(event);
        break;
    case Event::Tick:
        noteTick(message);
        break;
    case Event::Begin:
        noteBegin(message);
        break;
    case Event::End:
        noteEnd(message);
        break;
    case Event::RecordBegun:
        m_person = m_mentioned;
        break;
    case Event::RecordsOver:
        m_person.clear();
        break;
    default:
        if (m_isWithin)
            count(message, m_history.synchronisations.last());
    }
    if (m_isWithin) {
        LoggedSynchronisation &current = m_history.synchronisations.last();
        current.debugLevel = std::max(current.debugLevel, message.pattern->debugLevel());
    }
    m_correctionPending =
        event == Event::Correct || (event == Event::CorrectionFailed && m_correctionPending);
}

void LogHistoryBuilder::noteRun(Event event)
{
    if (event == Event::Stopped) {
        m_history.runs.last().hasStopped = true;
        return;
    }
    // Only a new process breaks a synchronisation off: stop and start leave it alone.
    if (event == Event::Loaded)
        breakOff();
    m_history.runs.append(LoggedRun());
}

void LogHistoryBuilder::noteTick(const LoggedText &message)
{
    const auto time = m_times.of(message.prefix);
    if (!time)
        return;
    const auto tick = quint32(number(message.values[0]));
    LoggedRun &run = runOf(m_history.runs.last().ticks, tick);
    run.ticks.append({tick, time->toSecsSinceEpoch()});
}

void LogHistoryBuilder::noteBegin(const LoggedText &message)
{
    breakOff();
    LoggedSynchronisation begun;
    begun.number = quint32(number(message.values[0]));
    begun.forced = message.values[1] == "YES";
    begun.hasBegun = true;
    begun.begin = m_times.of(message.prefix);
    if (begun.begin) {
        LoggedRun &run = runOf(m_history.runs.last().begins, begun.number);
        run.begins.append({begun.number, begun.begin->toSecsSinceEpoch()});
        run.forced.append(begun.forced);
    }
    m_history.synchronisations.append(begun);
    m_isWithin = true;
    m_person.clear();
}

LoggedRun &LogHistoryBuilder::runOf(const QVector<LoggedTick> &sofar, quint32 number)
{
    // The plugin counts from 1 after every start, which is logged at debug level 1 only once.
    if (!sofar.isEmpty() && number <= sofar.last().number)
        m_history.runs.append(LoggedRun());
    return m_history.runs.last();
}

void LogHistoryBuilder::noteEnd(const LoggedText &message)
{
    const auto ended = quint32(number(message.values[0]));
    QVector<LoggedSynchronisation> &all = m_history.synchronisations;
    const bool hasBegun = m_isWithin && all.constLast().number == ended;
    if (!hasBegun)
        breakOff();
    LoggedSynchronisation current = hasBegun ? all.takeLast() : LoggedSynchronisation();
    current.number = ended;
    current.hasEnded = true;
    current.end = m_times.of(message.prefix);
    if (!message.values[1].empty())
        current.waiting = number(message.values[1]);
    all.append(current);
    m_isWithin = false;
    m_person.clear();
    if (m_listener != nullptr)
        m_listener->synchronisationOver(current);
}

void LogHistoryBuilder::breakOff()
{
    if (m_isWithin && m_listener != nullptr)
        m_listener->synchronisationOver(m_history.synchronisations.constLast());
    m_isWithin = false;
}

void LogHistoryBuilder::count(const LoggedText &message, LoggedSynchronisation &current)
{
    switch (message.pattern->text().event) {
    case Event::LineRead:
        ++current.linesRead;
        break;
    case Event::LineSkipped:
        ++current.linesSkipped;
        break;
    case Event::PeopleNotLoaded:
        current.peopleNotLoaded = true;
        break;
    case Event::RecordsCounted:
        current.usableLines = number(message.values[0]);
        break;
    case Event::FundFound:
        current.fund = quint32(number(message.values[0]));
        break;
    case Event::FundChecked:
        ++current.fundChecks;
        break;
    case Event::SupervisorSet:
        current.supervisors += number(message.values[2]) > 0 ? 1 : 0;
        break;
    case Event::Joined:
        current.joined += countPeople(message.values[1]);
        break;
    default:
        countPeopleWritten(message, current);
    }
}

void LogHistoryBuilder::countPeopleWritten(const LoggedText &message,
                                           LoggedSynchronisation &current) const
{
    // A person who could not be written, or would not be in test mode, was counted by the line
    // before.
    switch (message.pattern->text().event) {
    case Event::Create:
        ++current.created;
        break;
    case Event::NotCreated:
        takeBack(current.created);
        break;
    case Event::Update:
        ++current.updated;
        break;
    case Event::NotUpdated:
        takeBack(current.updated);
        break;
    case Event::Correct:
        current.corrections.append(number(message.values[1]));
        break;
    case Event::NotCorrected:
        // It also comes for a balance out of range, where nothing was to be written.
        if (m_correctionPending && !current.corrections.isEmpty())
            current.corrections.removeLast();
        break;
    default:
        break;
    }
}
