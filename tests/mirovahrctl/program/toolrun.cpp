#include "tests/mirovahrctl/program/toolrun.h"

#include "mirovahrctl/program/console.h"
#include "mirovahrctl/subcommand.h"
#include "tests/mirovahrctl/program/rulefixtures.h"
#include "tests/mirovahrctl/program/translatedtexts.h"

#include <QBuffer>
#include <QFile>
#include <QJsonDocument>
#include <QSet>

#include <algorithm>

namespace {

/// So wide that no text is broken.
constexpr int kWide = 10000;

/// Ends the test program when a finding is not one of the rules that `mirovahrctl rules` lists.
void requireRegisteredRules(const QString &subcommand, const ToolRun &run)
{
    const QJsonArray findings = run.findings();
    for (const QJsonValue &finding : findings) {
        if (!isRegistered(subcommand, finding.toObject()))
            qFatal("A finding that is not registered: %s", run.report().constData());
    }
}

QString contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// Ends the test program when an output has an English phrase that nobody has marked for
/// translation.
void requireTranslatedTexts(const QStringList &arguments, const ToolRun &run,
                            const TranslatedTexts &texts)
{
    QStringList outputs{run.out, run.err};
    for (const char *const option : {"--html", "--rejects"}) {
        if (arguments.contains(option))
            outputs << contentOf(arguments.value(arguments.indexOf(option) + 1));
    }
    for (const QString &output : qAsConst(outputs)) {
        const QStringList missing = texts.missingIn(output);
        if (!missing.isEmpty())
            qFatal("Texts that are not translated: %s\n%s", qPrintable(missing.join("; ")),
                   run.report().constData());
    }
}

} // namespace

QJsonObject ToolRun::json() const
{
    return QJsonDocument::fromJson(out.toUtf8()).object();
}

QJsonArray ToolRun::findings() const
{
    return json().value("findings").toArray();
}

QVector<QJsonObject> ToolRun::findingsOf(const QString &rule) const
{
    QVector<QJsonObject> found;
    const QJsonArray all = findings();
    for (const QJsonValue &finding : all) {
        if (finding.toObject().value("rule").toString() == rule)
            found << finding.toObject();
    }
    return found;
}

QStringList ToolRun::rules() const
{
    QSet<QString> rules;
    const QJsonArray all = findings();
    for (const QJsonValue &finding : all)
        rules << finding.toObject().value("rule").toString();
    QStringList sorted = rules.values();
    sorted.sort();
    return sorted;
}

QByteArray ToolRun::report() const
{
    return QStringLiteral("status %1\n%2\n%3")
        .arg(QString::number(static_cast<int>(status)), out, err)
        .toUtf8();
}

ToolRun runTool(const QStringList &arguments, bool interactive)
{
    QBuffer out;
    QBuffer err;
    out.open(QIODevice::WriteOnly);
    err.open(QIODevice::WriteOnly);
    Terminal terminal;
    terminal.columns = kWide;
    terminal.showsProgress = interactive;
    Console console(out, err, terminal);
    const TranslatedTexts texts;
    const ExitStatus status = runMirovahrctl(arguments, console);
    const ToolRun run{status, QString::fromUtf8(out.data()), QString::fromUtf8(err.data())};
    requireRegisteredRules(arguments.value(0), run);
    requireTranslatedTexts(arguments, run, texts);
    if (!run.json().isEmpty())
        RuleFixtures::record(arguments.value(0), run.rules());
    return run;
}
