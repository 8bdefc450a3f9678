#include "mirovahrctl/log/livereport.h"

#include "cli/text.h"
#include "mirovahrctl/log/logfinding.h"
#include "mirovahrctl/log/synchronisationtable.h"
#include "mirovahrctl/program/console.h"
#include "mirovahrctl/report/jsonreport.h"
#include "mirovahrctl/report/moment.h"
#include "mirovahrctl/report/rules/logrules.h"
#include "mirovahrctl/report/wording.h"

#include <QJsonDocument>

namespace {

QString momentText(const std::optional<QDateTime> &time)
{
    return time ? Moment::text(*time) : QString();
}

/// "Seconds: 61" for a cell of a table of one row; empty for an empty one.
QString part(const Table &table, int column)
{
    const QVariant cell = table.rows.first().at(column);
    return cell.isValid()
        ? QStringLiteral("%1: %2").arg(table.columns.at(column).heading, Wording::plain(cell))
        : QString();
}

/// All of how it went, and of the changes those that there are.
QStringList parts(const Table &course, const Table &changes)
{
    // The number and the begin come first, and are in the line already.
    constexpr int kFirst = 2;
    QStringList parts;
    for (int i = kFirst; i < course.columns.size(); ++i)
        parts << part(course, i);
    for (int i = kFirst; i < changes.columns.size() && !changes.rows.isEmpty(); ++i) {
        if (changes.rows.first().at(i).toDouble() != 0)
            parts << part(changes, i);
    }
    parts.removeAll(QString());
    return parts;
}

QJsonObject object(const Table &course, const Table &changes)
{
    QJsonObject object = JsonReport::object(course, course.rows.first());
    if (changes.rows.isEmpty())
        return object;
    const QJsonObject more = JsonReport::object(changes, changes.rows.first());
    for (auto it = more.begin(); it != more.end(); ++it)
        object.insert(it.key(), it.value());
    return object;
}

} // namespace

LiveReport::LiveReport(Console &console)
    : m_console(console)
    , m_isJson(console.json() != nullptr)
{
}

void LiveReport::synchronisationOver(const LoggedSynchronisation &synchronisation)
{
    if (!synchronisation.hasEnded) {
        const Finding finding = LogFinding::ofMissingEnd(synchronisation);
        show(finding, finding.message, QString());
        return;
    }
    const Table course = courseTable({synchronisation});
    const Table changes = changeTable({synchronisation});
    if (m_isJson) {
        printObject(QStringLiteral("synchronisation"), object(course, changes));
        return;
    }
    printLine(momentText(synchronisation.end),
              Text::tr("Synchronisation #%1. %2")
                  .arg(QString::number(synchronisation.number),
                       parts(course, changes).join(QStringLiteral("; "))));
}

void LiveReport::problemLogged(const LoggedProblem &problem, const LogHistory &history)
{
    QString text = LogFinding::briefly(problem);
    // Why a statement failed stands in the line only.
    if (problem.isError)
        text = Text::tr("%1 \"%2\"").arg(text, QString::fromUtf8(problem.example));
    show(LogFinding::ofProblem(problem, history), text, momentText(problem.first));
}

void LiveReport::unknownLogged(const LoggedText &message)
{
    const QString line = QString::fromUtf8(message.text.data(), int(message.text.size()));
    const Finding finding =
        makeFinding(LogRules::kUnknownLine,
                    Text::tr("This line begins like the plugin's and is none that is known: "
                             "%1.")
                        .arg(Wording::quoted(line)));
    show(finding, finding.message, QString());
}

ExitStatus LiveReport::status() const
{
    return m_hasSeriousFindings ? ExitStatus::Findings : ExitStatus::Fine;
}

void LiveReport::show(const Finding &finding, const QString &text, const QString &time)
{
    m_hasSeriousFindings = m_hasSeriousFindings || finding.severity != Severity::Note;
    if (m_isJson) {
        QJsonObject object = JsonReport::object(finding);
        if (!time.isEmpty())
            object.insert(QStringLiteral("time"), time);
        printObject(QStringLiteral("finding"), object);
        return;
    }
    const QString subject =
        finding.subject.isEmpty() ? QString() : finding.subject + QStringLiteral(": ");
    printLine(time, severityText(finding.severity) + QStringLiteral(": ") + subject + text);
}

void LiveReport::printObject(const QString &kind, const QJsonObject &object)
{
    const QJsonObject line{{kind, object}};
    print(QString::fromUtf8(QJsonDocument(line).toJson(QJsonDocument::Compact)));
}

void LiveReport::printLine(const QString &time, const QString &text)
{
    print(Wording::visible(time.isEmpty() ? text : time + QLatin1Char(' ') + text));
}

void LiveReport::print(const QString &line)
{
    m_isClosed = m_isClosed || !m_console.printNow(line);
}
