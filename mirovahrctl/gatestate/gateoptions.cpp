#include "mirovahrctl/gatestate/gateoptions.h"

#include "cli/text.h"
#include "mirovahrctl/gatestate/gatetexts.h"
#include "mirovahrctl/program/commandline.h"
#include "mirovahrctl/program/console.h"
#include "mirovahrctl/program/languageoption.h"
#include "mirovahrctl/program/outputfile.h"
#include "mirovahrctl/report/language.h"

#include <QBuffer>
#include <QFileInfo>
#include <QLocale>
#include <QProcess>

namespace {

constexpr auto kLargestNumber = double(GateLimit::kAny);

/// Reads numeric options, and keeps the first problem.
class NumberReader {
public:
    explicit NumberReader(const CommandLine &line)
        : m_line(line)
    {
    }

    void read(const char *option, qint64 &value)
    {
        if (!m_line.isSet(option))
            return;
        bool ok = false;
        value = m_line.value(option).toLongLong(&ok);
        if (!ok || value < 0 || double(value) > kLargestNumber)
            reject(Text::tr("--%1 takes a whole number from 0"), option);
    }

    void readPercent(const char *option, double &value)
    {
        if (!m_line.isSet(option))
            return;
        bool ok = false;
        value = m_line.value(option).toDouble(&ok);
        if (!ok || !(value >= 0 && value <= 100))
            reject(Text::tr("--%1 takes a percentage from 0 to 100"), option);
    }

    QString problem() const { return m_problem; }

private:
    void reject(const QString &text, const char *option)
    {
        if (m_problem.isEmpty())
            m_problem = text.arg(QLatin1String(option));
    }

    const CommandLine &m_line;
    QString m_problem;
};

QByteArray percentOption(const GateLimitOption &option)
{
    return QByteArray(option.name) + "-percent";
}

QString readNumbers(const CommandLine &line, GateOptions &options)
{
    NumberReader reader(line);
    for (const GateLimitOption &option : kGateLimitOptions) {
        GateLimit &limit = options.limits.*option.limit;
        reader.read(option.name, limit.count);
        reader.readPercent(percentOption(option).constData(), limit.percent);
    }
    reader.read("few", options.limits.few);
    reader.read("keep", options.copies);
    reader.read("settle", options.settleSeconds);
    return reader.problem();
}

QString readTexts(const CommandLine &line, GateOptions &options)
{
    if (!line.isSet("texts"))
        return {};
    const QString word = line.value("texts");
    options.texts = GateTexts::ofWord(word);
    if (GateTexts::words().contains(word))
        return {};
    return Text::tr("--texts takes one of: %1").arg(GateTexts::words().join(QStringLiteral(", ")));
}

QString pathProblem(const GateOptions &options)
{
    if (options.from.isEmpty())
        return Text::tr("Missing option --from; see --help");
    if (options.to.isEmpty())
        return Text::tr("Missing option --to; see --help");
    if (QFileInfo(options.to).fileName().isEmpty())
        return Text::tr("--to names no file");
    if (isSameFile(options.from, options.to))
        return Text::tr("--from and --to name the same file");
    if (isSameFile(options.rejects, options.from) || isSameFile(options.rejects, options.to))
        return Text::tr("--rejects would overwrite the export; name another file");
    return {};
}

/// The default of a limit's number, in a help text.
QString shownCount(qint64 count)
{
    return count == GateLimit::kAny ? Text::tr("any number") : Language::number(count);
}

void addLimits(CommandLine &line)
{
    const GateLimits defaults;
    for (const GateLimitOption &option : kGateLimitOptions) {
        const GateLimit &limit = defaults.*option.limit;
        line.addOption(option.name, Text::tr("number"),
                       Text::tr(option.refuses).arg(shownCount(limit.count)));
        line.addOption(percentOption(option).constData(), Text::tr("percent"),
                       Text::tr(option.percentage)
                           .arg(Language::number(limit.percent, QLocale::FloatingPointShortest)));
    }
    line.addOption("few", Text::tr("number"),
                   Text::tr("So many may always change, whatever percentage they are; default: %1.")
                       .arg(Language::number(defaults.few)));
}

/// The arguments of the gate among the words of a command; nothing when it runs no gate.
std::optional<QStringList> gateArguments(const QStringList &words)
{
    for (int i = 0; i < words.size(); ++i) {
        if (QFileInfo(words.at(i)).fileName() != QLatin1String("mirovahrctl"))
            continue;
        QStringList arguments = words.mid(i + 1);
        LanguageOption::moveBehindSubcommand(arguments);
        if (arguments.value(0) == QLatin1String("gate"))
            return arguments.mid(1);
    }
    return std::nullopt;
}

} // namespace

void GateOptions::addTo(CommandLine &line)
{
    line.addOption("from", Text::tr("file"), Text::tr("HR's file. It is only read."));
    line.addOption("to", Text::tr("file"),
                   Text::tr("The file that the plugin reads: importFile of its INI file."));
    line.addOption(
        "state", Text::tr("folder"),
        Text::tr("The folder of the gate's own files, created when it is missing; default: the "
                 "path of --to with .gate appended."));
    line.addOption(
        "rejects", Text::tr("file"),
        Text::tr("Where to write the lines with errors or warnings, to send to HR; default: "
                 "rejects.txt in the gate's folder."));
    addLimits(line);
    line.addOption("keep", Text::tr("number"),
                   Text::tr("How many dated copies of admitted files to keep; default: 30."));
    line.addOption(
        "settle", Text::tr("seconds"),
        Text::tr("Refuse a file that was written less than this many seconds ago; default: 0."));
    line.addOption(
        "texts", Text::tr("form"),
        Text::tr("How to write apostrophes, backslashes and placeholders in the texts for the "
                 "plugin's statements: escaped (default), no-backslash-escapes for a server with "
                 "that SQL mode, or as-is."));
    line.addFlag(
        "may-end-open",
        Text::tr("Accept a last line without a line feed, which otherwise counts as truncated."));
    line.addFlag(
        "accept",
        Text::tr("Admit the file this once, whatever is missing or has changed in it. An empty "
                 "file is refused even so."));
}

std::optional<ExitStatus> GateOptions::read(const CommandLine &line, Console &console)
{
    from = line.value("from");
    to = line.value("to");
    stateFolder = line.isSet("state") ? line.value("state") : to + QLatin1String(".gate");
    rejects =
        line.isSet("rejects") ? line.value("rejects") : stateFolder + QLatin1String("/rejects.txt");
    mayEndOpen = line.isSet("may-end-open");
    accept = line.isSet("accept");
    QString problem = readNumbers(line, *this);
    if (problem.isEmpty())
        problem = readTexts(line, *this);
    if (problem.isEmpty())
        problem = pathProblem(*this);
    if (problem.isEmpty())
        return std::nullopt;
    return console.fail(ExitStatus::Usage, problem);
}

std::optional<GateOptions> GateOptions::ofCommand(const QString &command)
{
    const auto arguments = gateArguments(QProcess::splitCommand(command));
    if (!arguments)
        return std::nullopt;
    QBuffer out;
    QBuffer err;
    out.open(QIODevice::WriteOnly);
    err.open(QIODevice::WriteOnly);
    Console silent(out, err);
    CommandLine line("gate", "");
    addTo(line);
    line.addReportOptions(CommandLine::Page::NotOffered);
    GateOptions options;
    if (line.parse(*arguments, silent) || options.read(line, silent))
        return std::nullopt;
    return options;
}

bool GateOptions::isRunBy(const QString &command)
{
    return gateArguments(QProcess::splitCommand(command)).has_value();
}

bool GateOptions::publishesTo(const QString &path) const
{
    return isSameFile(to, path);
}
