#include "mirovahrctl/log/logreport.h"

#include "mirovahrctl/log/logfinding.h"
#include "mirovahrctl/log/logtext.h"
#include "mirovahrctl/log/missingticks.h"
#include "mirovahrctl/log/synchronisationtable.h"
#include "mirovahrctl/pluginside/interruptions.h"
#include "mirovahrctl/report/finding.h"
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
    const QString count =
        Wording::counted(m_history.synchronisations.size(), QStringLiteral("synchronisation"),
                         QStringLiteral("synchronisations"));
    qint64 errors = 0;
    qint64 warnings = 0;
    for (const LoggedProblem &problem : m_problems)
        (problem.isError ? errors : warnings) += problem.count;
    return QStringLiteral("The log shows %1, %2 and %3.")
        .arg(count, Wording::counted(errors, QStringLiteral("error"), QStringLiteral("errors")),
             Wording::counted(warnings, QStringLiteral("warning"), QStringLiteral("warnings")));
}

void LogReport::writeSynchronisations()
{
    m_report.section(QStringLiteral("synchronisations"), QStringLiteral("Synchronisations"));
    const int count = m_history.synchronisations.size();
    if (count == 0) {
        m_report.sentence(QStringLiteral("The log shows none."));
        return;
    }
    if (count > m_most) {
        m_report.sentence(QStringLiteral("These are the last %1 of %2; --last shows more.")
                              .arg(m_most)
                              .arg(count));
    }
    const auto shown = m_history.synchronisations.mid(std::max(0, count - m_most));
    m_report.table(courseTable(shown));
    m_report.sentence(
        QStringLiteral("These are the changes. Created are also people who return; moved in are "
                       "new members of a branch; balances are those of the vacation."));
    m_report.table(changeTable(shown));
}

void LogReport::writeProblems()
{
    QVector<LoggedProblem> problems;
    for (const LoggedProblem &problem : m_problems)
        problems.append(problem);
    std::sort(problems.begin(), problems.end(), comesBefore);
    m_report.section(QStringLiteral("problems"), QStringLiteral("Warnings and errors"));
    if (problems.isEmpty())
        m_report.sentence(QStringLiteral("The plugin logged none."));
    for (const LoggedProblem &problem : qAsConst(problems))
        m_report.finding(LogFinding::ofProblem(problem, m_history));
}

void LogReport::writeMissing()
{
    m_report.section(QStringLiteral("missing"), QStringLiteral("What is missing"));
    if (!m_history.hasTimes) {
        m_report.sentence(QStringLiteral("The lines have no times: ticks that did not come cannot "
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
    QString message = QStringLiteral("The log shows no synchronisation.");
    if (m_history.pluginLines == 0)
        message = QStringLiteral("The log has no line of the plugin.");
    else if (m_history.debugLevel == 0)
        message = QStringLiteral("The log has no line of debug level 1 or above. At debug level 0 "
                                 "the plugin logs problems only: nobody can tell whether it "
                                 "synchronised.");
    m_report.add(LogRules::kNoSynchronisation, message);
}

void LogReport::writeMissingEnds()
{
    for (const LoggedSynchronisation &one : m_history.synchronisations) {
        if (!one.hasBegun) {
            m_report.add(LogRules::kNoBegin,
                         LogFinding::nameOf(one) + QStringLiteral(" began before the log does."));
            continue;
        }
        if (one.hasEnded)
            continue;
        if (!one.isLast) {
            m_report.finding(LogFinding::ofMissingEnd(one));
            continue;
        }
        Finding finding = makeFinding(LogRules::kNoEnd,
                                      LogFinding::nameOf(one)
                                          + QStringLiteral(" has not ended where the log does: it "
                                                           "may still be running."),
                                      QStringLiteral("Look again later."));
        finding.severity = LogRules::kNoEnd.otherSeverity;
        m_report.finding(finding);
    }
}

void LogReport::writeMissingTicks()
{
    const std::vector<MissingTick> missing = missingTicks(m_history);
    for (const MissingTick &one : missing) {
        const QString what =
            one.ofSynchronisation ? QStringLiteral("synchronisation") : QStringLiteral("tick");
        const QString message =
            QStringLiteral("No %1 came between %2 and %3, although one usually comes every %4 "
                           "seconds%5.")
                .arg(what, moment(one.last), moment(one.next), QString::number(one.period),
                     one.isOpen ? QStringLiteral("; the log ends then") : QString());
        m_report.add(one.ofSynchronisation ? LogRules::kNoSynchronisation : LogRules::kNoTick,
                     message);
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
    m_report.add(LogRules::kUnknownLine,
                 QStringLiteral("%1 like the plugin's and none that is known, the first of them "
                                "%2.")
                     .arg(Wording::counted(m_history.unknownLines, QStringLiteral("line begins"),
                                           QStringLiteral("lines begin")),
                          Wording::quoted(QString::fromUtf8(m_history.unknownExample))));
}

void LogReport::writeKnowledge()
{
    m_report.section(QStringLiteral("knowledge"), QStringLiteral("What this log can tell"));
    m_report.sentence(
        QStringLiteral("Its lines are those of debug level %1.").arg(m_history.debugLevel));
    if (m_history.debugLevel < 1) {
        m_report.sentence(QStringLiteral("From debug level 1 on it would tell when the plugin "
                                         "synchronised, and whom it created and updated."));
    }
    if (m_history.debugLevel < 2) {
        m_report.sentence(QStringLiteral(
            "From debug level 2 on it would tell how many people are read at a site without a "
            "vacation fund, when an export was missing, and when the plugin ticked."));
    }
    if (m_history.debugLevel < 3) {
        m_report.sentence(QStringLiteral(
            "From debug level 3 on it would tell which lines of the export were dropped, and whom "
            "an error concerns that names nobody."));
    }
}

void LogReport::writeFacts()
{
    const auto fact = [this](const char *id, const char *label, const QVariant &value) {
        m_report.fact(QString::fromLatin1(id), QString::fromLatin1(label), value);
    };
    m_report.section(QStringLiteral("summary"), QStringLiteral("Summary"));
    fact("lines", "Lines", m_history.lines);
    fact("pluginLines", "Lines of the plugin", m_history.pluginLines);
    if (m_history.firstTime)
        fact("from", "From", Moment::text(*m_history.firstTime));
    if (m_history.lastTime)
        fact("to", "To", Moment::text(*m_history.lastTime));
    fact("debugLevel", "Debug level", m_history.debugLevel);
    fact("synchronisations", "Synchronisations", m_history.synchronisations.size());
    LoggedSynchronisation sum;
    for (const LoggedSynchronisation &one : m_history.synchronisations)
        sum.addCounts(one);
    fact("created", "People created", sum.created);
    fact("updated", "People updated", sum.updated);
    fact("joined", "Memberships of branches", sum.joined);
    fact("corrected", "Vacation balances corrected", sum.corrections.size());
    fact("supervisors", "Supervisors set", sum.supervisors);
}
