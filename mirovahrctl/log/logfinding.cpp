#include "mirovahrctl/log/logfinding.h"

#include "mirovahrctl/log/loghistory.h"
#include "mirovahrctl/log/logtext.h"
#include "mirovahrctl/report/moment.h"
#include "mirovahrctl/report/rules/logrules.h"

namespace {

/// So many people are named.
constexpr int kMostNames = 10;

QString times(const LoggedProblem &problem)
{
    QString text =
        problem.count == 1 ? QStringLiteral("once") : QStringLiteral("%1 times").arg(problem.count);
    if (problem.first && problem.count == 1)
        return text + QStringLiteral(" at ") + Moment::text(*problem.first);
    if (problem.first && problem.last) {
        text += QStringLiteral(" from %1 to %2")
                    .arg(Moment::text(*problem.first), Moment::text(*problem.last));
    }
    return text;
}

QString peopleNames(const LoggedProblem &problem, const LogHistory &history)
{
    QStringList names;
    for (auto it = problem.people.cbegin(); it != problem.people.cend(); ++it)
        names << history.personName(it.key());
    names.sort();
    const int more = names.size() - kMostNames;
    if (more <= 0)
        return names.join(QStringLiteral(", "));
    return QStringLiteral("%1 people, among them %2")
        .arg(QString::number(names.size()), names.mid(0, kMostNames).join(QStringLiteral(", ")));
}

QString withThing(const QString &message, const LoggedProblem &problem)
{
    if (problem.thing.isEmpty())
        return message;
    return message + QStringLiteral(" It is about %1.").arg(QString::fromUtf8(problem.thing));
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
    QString message = withThing(QString::fromUtf8(problem.text->meaning), problem);
    message += QStringLiteral(" Logged %1: \"%2\".")
                   .arg(times(problem), QString::fromUtf8(problem.example));
    if (problem.people.size() > 1)
        message += QStringLiteral(" It concerns %1.").arg(peopleNames(problem, history));

    Finding finding =
        makeFinding(problem.isError ? LogRules::kLoggedError : LogRules::kLoggedWarning, message,
                    QString::fromUtf8(problem.text->advice));
    finding.severity = severityOf(problem);
    if (problem.people.size() == 1)
        finding.subject = history.personName(problem.people.cbegin().key());
    return finding;
}

QString LogFinding::briefly(const LoggedProblem &problem)
{
    const QString meaning = QString::fromUtf8(problem.text->meaning);
    const int end = meaning.indexOf(QStringLiteral(". "));
    return withThing(end < 0 ? meaning : meaning.left(end + 1), problem);
}

Finding LogFinding::ofMissingEnd(const LoggedSynchronisation &synchronisation)
{
    return makeFinding(LogRules::kNoEnd, nameOf(synchronisation) + QStringLiteral(" did not end."));
}

QString LogFinding::noTimes()
{
    return QStringLiteral("The plugin's lines have no times, which --since needs");
}

QString LogFinding::nameOf(const LoggedSynchronisation &synchronisation)
{
    QString name = QStringLiteral("Synchronisation #%1").arg(synchronisation.number);
    if (synchronisation.begin)
        name += QStringLiteral(" of ") + Moment::text(*synchronisation.begin);
    return name;
}
