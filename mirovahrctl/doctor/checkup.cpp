#include "mirovahrctl/doctor/checkup.h"

#include "cli/text.h"
#include "mirovahrctl/program/console.h"
#include "mirovahrctl/subcommand.h"

#include <QBuffer>
#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

QString textOf(const QJsonObject &object, const char *name)
{
    return object.value(QLatin1String(name)).toString();
}

/// The finding of a JSON report.
Finding findingOf(const QJsonObject &object)
{
    Finding finding;
    const QString severity = textOf(object, "severity");
    for (const Severity one : {Severity::Note, Severity::Warning, Severity::Error}) {
        if (severity == severityWord(one))
            finding.severity = one;
    }
    finding.rule = textOf(object, "rule");
    finding.message = textOf(object, "message");
    finding.advice = textOf(object, "advice");
    finding.field = textOf(object, "field");
    finding.subject = textOf(object, "subject");
    finding.line = object.value(QLatin1String("line")).toVariant().toLongLong();
    finding.forHr = object.value(QLatin1String("forHr")).toBool();
    finding.dropped = object.value(QLatin1String("dropped")).toBool();
    return finding;
}

/// Warnings and errors, of each rule the first, in the order of the report.
QVector<Finding> firstOfEachRule(const QJsonArray &all)
{
    QVector<Finding> firsts;
    QHash<QString, int> counts;
    for (const QJsonValue &one : all) {
        const Finding finding = findingOf(one.toObject());
        if (finding.severity != Severity::Note && ++counts[finding.rule] == 1)
            firsts += finding;
    }
    for (Finding &finding : firsts) {
        if (const int more = counts.value(finding.rule) - 1; more > 0) {
            finding.message +=
                QLatin1Char(' ') + Text::tr("And %Ln more finding(s) of this rule.", nullptr, more);
        }
    }
    return firsts;
}

} // namespace

Checkup Checkup::run(const QStringList &command)
{
    QBuffer out;
    QBuffer err;
    out.open(QIODevice::WriteOnly);
    err.open(QIODevice::WriteOnly);
    Console console(out, err);

    Checkup checkup;
    checkup.command = command;
    checkup.status = runInThisLanguage(command + QStringList{QStringLiteral("--json")}, console);
    const QJsonObject report = QJsonDocument::fromJson(out.data()).object();
    checkup.verdict = textOf(report, "verdict");
    checkup.failed = checkup.verdict.isEmpty();
    if (checkup.failed) {
        // Qt reads no document beyond a size that the report of a very bad export may reach.
        checkup.verdict =
            report.isEmpty() ? Text::tr("Its report cannot be read here") : textOf(report, "error");
    }
    checkup.findings = firstOfEachRule(report.value(QLatin1String("findings")).toArray());
    return checkup;
}
