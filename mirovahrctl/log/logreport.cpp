#include "mirovahrctl/log/logreport.h"

#include "cli/text.h"
#include "mirovahrctl/log/logfinding.h"
#include "mirovahrctl/log/logtext.h"
#include "mirovahrctl/log/missingticks.h"
#include "mirovahrctl/log/synchronisationtable.h"
#include "mirovahrctl/pluginside/interruptions.h"
#include "mirovahrctl/report/finding.h"
#include "mirovahrctl/report/language.h"
#include "mirovahrctl/report/moment.h"
#include "mirovahrctl/report/reportwriter.h"
#include "mirovahrctl/report/rules/logrules.h"
#include "mirovahrctl/report/wording.h"

#include <algorithm>

namespace {

QString moment(qint64 seconds)
{
    return Moment::text(QDateTime::fromSecsSinceEpoch(seconds));
}

QString missingTickText(const MissingTick &tick)
{
    const int period = Language::count(tick.period);
    QString text;
    if (tick.ofSynchronisation) {
        text = tick.isOpen
            ? Text::tr("No synchronisation came between %1 and %2, although one usually comes "
                       "every %Ln second(s); the log ends then.",
                       nullptr, period)
            : Text::tr("No synchronisation came between %1 and %2, although one usually comes "
                       "every %Ln second(s).",
                       nullptr, period);
    } else {
        text = tick.isOpen
            ? Text::tr("No tick came between %1 and %2, although one usually comes every %Ln "
                       "second(s); the log ends then.",
                       nullptr, period)
            : Text::tr("No tick came between %1 and %2, although one usually comes every %Ln "
                       "second(s).",
                       nullptr, period);
    }
    return text.arg(moment(tick.last), moment(tick.next));
}

/// The serious ones first, of these the frequent ones.
bool comesBefore(const LoggedProblem &a, const LoggedProblem &b)
{
    return std::make_tuple(-int(LogFinding::severityOf(a)), -a.count, a.example)
        < std::make_tuple(-int(LogFinding::severityOf(b)), -b.count, b.example);
}

} // namespace

LogReport::LogReport(const LogHistory &history, int most, ReportWriter &report)
    : m_history(history)
    , m_problems(history.problems())
    , m_most(most)
    , m_report(report)
{
}

void LogReport::write()
{
    writeSynchronisations();
    writeProblems();
    writeMissing();
    writeKnowledge();
    writeFacts();
}

QString LogReport::verdict() const
{
    qint64 errors = 0;
    qint64 warnings = 0;
    for (const LoggedProblem &problem : m_problems)
        (problem.isError ? errors : warnings) += problem.count;
    const int synchronisations = m_history.synchronisations.size();
    return Text::tr("The log shows %1, %2 and %3.")
        .arg(Text::tr("%Ln synchronisation(s)", nullptr, synchronisations),
             Text::tr("%Ln error(s)", nullptr, Language::count(errors)),
             Text::tr("%Ln warning(s)", nullptr, Language::count(warnings)));
}

void LogReport::writeSynchronisations()
{
    m_report.section(QStringLiteral("synchronisations"), Text::tr("Synchronisations"));
    const int count = m_history.synchronisations.size();
    if (count == 0) {
        m_report.sentence(Text::tr("The log shows none."));
        return;
    }
    if (count > m_most) {
        m_report.sentence(Text::tr("These are the last %1 of %2; --last shows more.")
                              .arg(Language::number(m_most), Language::number(count)));
    }
    const auto shown = m_history.synchronisations.mid(std::max(0, count - m_most));
    m_report.table(courseTable(shown));
    m_report.sentence(
        Text::tr("These are the changes. Created are also people who return; moved in are "
                 "new members of a branch; balances are those of the vacation."));
    m_report.table(changeTable(shown));
}

void LogReport::writeProblems()
{
    QVector<LoggedProblem> problems;
    for (const LoggedProblem &problem : m_problems)
        problems.append(problem);
    std::sort(problems.begin(), problems.end(), comesBefore);
    m_report.section(QStringLiteral("problems"), Text::tr("Warnings and errors"));
    if (problems.isEmpty())
        m_report.sentence(Text::tr("The plugin logged none."));
    for (const LoggedProblem &problem : qAsConst(problems))
        m_report.finding(LogFinding::ofProblem(problem, m_history));
}

void LogReport::writeMissing()
{
    m_report.section(QStringLiteral("missing"), Text::tr("What is missing"));
    if (!m_history.hasTimes) {
        m_report.sentence(Text::tr("The lines have no times: ticks that did not come cannot "
                                   "be noticed."));
    }
    writeNoSynchronisation();
    writeMissingEnds();
    writeMissingTicks();
    writeInterruptions();
    writeUnknownLines();
}

void LogReport::writeNoSynchronisation()
{
    if (!m_history.synchronisations.isEmpty())
        return;
    QString message = Text::tr("The log shows no synchronisation.");
    if (m_history.pluginLines == 0)
        message = Text::tr("The log has no line of the plugin.");
    else if (m_history.debugLevel == 0)
        message = Text::tr("The log has no line of debug level 1 or above. At debug level 0 "
                           "the plugin logs problems only: nobody can tell whether it "
                           "synchronised.");
    m_report.add(LogRules::kNoSynchronisation, message);
}

void LogReport::writeMissingEnds()
{
    for (const LoggedSynchronisation &one : m_history.synchronisations) {
        if (!one.hasBegun) {
            m_report.finding(LogFinding::ofMissingBegin(one));
            continue;
        }
        if (one.hasEnded)
            continue;
        m_report.finding(one.isLast ? LogFinding::ofOpenEnd(one) : LogFinding::ofMissingEnd(one));
    }
}

void LogReport::writeMissingTicks()
{
    const std::vector<MissingTick> missing = missingTicks(m_history);
    for (const MissingTick &one : missing) {
        m_report.add(one.ofSynchronisation ? LogRules::kNoSynchronisation : LogRules::kNoTick,
                     missingTickText(one));
    }
}

void LogReport::writeInterruptions()
{
    qint64 count = 0;
    for (const LoggedProblem &problem : m_problems)
        count += problem.interruptions;
    if (count > 0)
        m_report.add(LogRules::kInterrupted, Interruptions::sentence(count));
}

void LogReport::writeUnknownLines()
{
    if (m_history.unknownLines == 0)
        return;
    m_report.add(
        LogRules::kUnknownLine,
        Text::tr("%Ln line(s) begin like the plugin's and none that is known, the first of "
                 "them %1.",
                 nullptr, Language::count(m_history.unknownLines))
            .arg(Wording::quoted(QString::fromUtf8(m_history.unknownExample))));
}

void LogReport::writeKnowledge()
{
    m_report.section(QStringLiteral("knowledge"), Text::tr("What this log can tell"));
    m_report.sentence(Text::tr("Its lines are those of debug level %1.").arg(m_history.debugLevel));
    if (m_history.debugLevel < 1) {
        m_report.sentence(Text::tr("From debug level 1 on it would tell when the plugin "
                                   "synchronised, and whom it created and updated."));
    }
    if (m_history.debugLevel < 2) {
        m_report.sentence(Text::tr(
            "From debug level 2 on it would tell how many people are read at a site without a "
            "vacation fund, when an export was missing, and when the plugin ticked."));
    }
    if (m_history.debugLevel < 3) {
        m_report.sentence(Text::tr(
            "From debug level 3 on it would tell which lines of the export were dropped, and whom "
            "an error concerns that names nobody."));
    }
}

void LogReport::writeFacts()
{
    const auto fact = [this](const char *id, const QString &label, const QVariant &value) {
        m_report.fact(QString::fromLatin1(id), label, value);
    };
    m_report.section(QStringLiteral("summary"), Text::tr("Summary"));
    fact("lines", Text::tr("Lines"), m_history.lines);
    fact("pluginLines", Text::tr("Lines of the plugin"), m_history.pluginLines);
    if (m_history.firstTime)
        fact("from", Text::tr("From"), Moment::text(*m_history.firstTime));
    if (m_history.lastTime)
        fact("to", Text::tr("To"), Moment::text(*m_history.lastTime));
    fact("debugLevel", Text::tr("Debug level"), m_history.debugLevel);
    fact("synchronisations", Text::tr("Synchronisations"), m_history.synchronisations.size());
    LoggedSynchronisation sum;
    for (const LoggedSynchronisation &one : m_history.synchronisations)
        sum.addCounts(one);
    fact("created", Text::tr("People created"), sum.created);
    fact("updated", Text::tr("People updated"), sum.updated);
    fact("joined", Text::tr("Memberships of branches"), sum.joined);
    fact("corrected", Text::tr("Vacation balances corrected"), sum.corrections.size());
    fact("supervisors", Text::tr("Supervisors set"), sum.supervisors);
}
