#include "mirovahrctl/log/logfinding.h"

#include "cli/text.h"
#include "mirovahrctl/log/loghistory.h"
#include "mirovahrctl/log/logtext.h"
#include "mirovahrctl/report/language.h"
#include "mirovahrctl/report/moment.h"
#include "mirovahrctl/report/rules/logrules.h"

namespace {

/// So many people are named.
constexpr int kMostNames = 10;

QString occurrences(const LoggedProblem &problem)
{
    const QString example = QString::fromUtf8(problem.example);
    if (problem.count == 1) {
        return problem.first
            ? Text::tr("Logged once at %1: \"%2\".").arg(Moment::text(*problem.first), example)
            : Text::tr("Logged once: \"%1\".").arg(example);
    }
    const int count = Language::count(problem.count);
    if (!problem.first || !problem.last)
        return Text::tr("Logged %Ln time(s): \"%1\".", nullptr, count).arg(example);
    return Text::tr("Logged %Ln time(s) from %1 to %2: \"%3\".", nullptr, count)
        .arg(Moment::text(*problem.first), Moment::text(*problem.last), example);
}

QString concernedPeople(const LoggedProblem &problem, const LogHistory &history)
{
    QStringList names;
    for (auto it = problem.people.cbegin(); it != problem.people.cend(); ++it)
        names << history.personName(it.key());
    names.sort();
    if (names.size() <= kMostNames)
        return Text::tr("It concerns %1.").arg(names.join(QStringLiteral(", ")));
    return Text::tr("It concerns %Ln person(s), among them %1.", nullptr, names.size())
        .arg(names.mid(0, kMostNames).join(QStringLiteral(", ")));
}

QString thingText(Role role)
{
    switch (role) {
    case Role::Branch:
        return Text::tr("branch %1");
    case Role::Calendar:
        return Text::tr("calendar %1");
    case Role::Supervisor:
        return Text::tr("supervisor %1");
    case Role::File:
        return Text::tr("file %1");
    case Role::Command:
        return Text::tr("command %1");
    case Role::Code:
        return Text::tr("code %1");
    default:
        return Text::tr("error %1");
    }
}

QString withThings(const QString &message, const LoggedProblem &problem)
{
    if (problem.things.isEmpty())
        return message;
    QStringList things;
    for (const auto &[role, value] : problem.things)
        things << thingText(role).arg(QString::fromUtf8(value));
    return message + QLatin1Char(' ')
        + Text::tr("It is about %1.").arg(things.join(QStringLiteral(", ")));
}

QString adviceOf(const LogText &text)
{
    return *text.advice == '\0' ? QStringLiteral("") : Text::tr(text.advice);
}

/// "#7 of 2026-11-22T03:00:00+01:00".
QString numberOf(const LoggedSynchronisation &synchronisation)
{
    const QString number = QStringLiteral("#%1").arg(synchronisation.number);
    return synchronisation.begin ? Text::tr("%1 of %2", "a synchronisation")
                                       .arg(number, Moment::text(*synchronisation.begin))
                                 : number;
}

} // namespace

Severity LogFinding::severityOf(const LoggedProblem &problem)
{
    if (problem.isError)
        return LogRules::kLoggedError.severity;
    const bool needsAction = *problem.text->advice != '\0';
    return needsAction ? LogRules::kLoggedWarning.severity : LogRules::kLoggedWarning.otherSeverity;
}

Finding LogFinding::ofProblem(const LoggedProblem &problem, const LogHistory &history)
{
    QStringList sentences{withThings(Text::tr(problem.text->meaning), problem),
                          occurrences(problem)};
    if (problem.people.size() > 1)
        sentences << concernedPeople(problem, history);

    Finding finding =
        makeFinding(problem.isError ? LogRules::kLoggedError : LogRules::kLoggedWarning,
                    sentences.join(QLatin1Char(' ')), adviceOf(*problem.text));
    finding.severity = severityOf(problem);
    if (problem.people.size() == 1)
        finding.subject = history.personName(problem.people.cbegin().key());
    return finding;
}

QString LogFinding::briefly(const LoggedProblem &problem)
{
    const QString meaning = Text::tr(problem.text->meaning);
    const int end = meaning.indexOf(QStringLiteral(". "));
    return withThings(end < 0 ? meaning : meaning.left(end + 1), problem);
}

Finding LogFinding::ofMissingEnd(const LoggedSynchronisation &synchronisation)
{
    return makeFinding(LogRules::kNoEnd,
                       Text::tr("Synchronisation %1 did not end.").arg(numberOf(synchronisation)));
}

QString LogFinding::noTimes()
{
    return Text::tr("The plugin's lines have no times, which --since needs");
}

Finding LogFinding::ofOpenEnd(const LoggedSynchronisation &synchronisation)
{
    const QString message = Text::tr("Synchronisation %1 has not ended where the log does: it may "
                                     "still be running.");
    Finding finding = makeFinding(LogRules::kNoEnd, message.arg(numberOf(synchronisation)),
                                  Text::tr("Look again later."));
    finding.severity = LogRules::kNoEnd.otherSeverity;
    return finding;
}

Finding LogFinding::ofMissingBegin(const LoggedSynchronisation &synchronisation)
{
    return makeFinding(
        LogRules::kNoBegin,
        Text::tr("Synchronisation %1 began before the log does.").arg(numberOf(synchronisation)));
}
