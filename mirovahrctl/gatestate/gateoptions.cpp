#include "mirovahrctl/gatestate/gateoptions.h"

#include "mirovahrctl/gatestate/gatetexts.h"
#include "mirovahrctl/program/commandline.h"
#include "mirovahrctl/program/console.h"
#include "mirovahrctl/program/outputfile.h"

#include <QBuffer>
#include <QFileInfo>
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
            reject(option, QStringLiteral("a whole number from 0"));
    }

    void readPercent(const char *option, double &value)
    {
        if (!m_line.isSet(option))
            return;
        bool ok = false;
        value = m_line.value(option).toDouble(&ok);
        if (!ok || !(value >= 0 && value <= 100))
            reject(option, QStringLiteral("a percentage from 0 to 100"));
    }

    QString problem() const { return m_problem; }

private:
    void reject(const char *option, const QString &what)
    {
        if (m_problem.isEmpty())
            m_problem = QStringLiteral("--%1 takes %2").arg(QLatin1String(option), what);
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
    return QStringLiteral("--texts takes one of: %1")
        .arg(GateTexts::words().join(QStringLiteral(", ")));
}

QString pathProblem(const GateOptions &options)
{
    if (options.from.isEmpty())
        return QStringLiteral("Missing option --from; see --help");
    if (options.to.isEmpty())
        return QStringLiteral("Missing option --to; see --help");
    if (QFileInfo(options.to).fileName().isEmpty())
        return QStringLiteral("--to names no file");
    if (isSameFile(options.from, options.to))
        return QStringLiteral("--from and --to name the same file");
    if (isSameFile(options.rejects, options.from) || isSameFile(options.rejects, options.to))
        return QStringLiteral("--rejects would overwrite the export; name another file");
    return {};
}

/// The default of a limit's number, in a help text.
QString shownCount(qint64 count)
{
    return count == GateLimit::kAny ? QStringLiteral("any number") : QString::number(count);
}

void addLimits(CommandLine &line)
{
    const auto add = [&line](const QByteArray &name, const char *value, const QString &text) {
        line.addOption(name.constData(), value, text.toUtf8().constData());
    };
    const GateLimits defaults;
    for (const GateLimitOption &option : kGateLimitOptions) {
        const GateLimit &limit = defaults.*option.limit;
        add(option.name, "number",
            QStringLiteral("Refuse a file that %1; default: %2.")
                .arg(QLatin1String(option.refuses), shownCount(limit.count)));
        add(percentOption(option), "percent",
            QStringLiteral("The same in percent of the %1; default: %2.")
                .arg(QLatin1String(option.whole), QString::number(limit.percent)));
    }
    add("few", "number",
        QStringLiteral("So many may always change, whatever percentage they are; default: %1.")
            .arg(defaults.few));
}

/// The arguments of the gate among the words of a command; nothing when it runs no gate.
std::optional<QStringList> gateArguments(const QStringList &words)
{
    for (int i = 0; i + 1 < words.size(); ++i) {
        if (QFileInfo(words.at(i)).fileName() == QLatin1String("mirovahrctl")
            && words.at(i + 1) == QLatin1String("gate"))
            return words.mid(i + 2);
    }
    return std::nullopt;
}

} // namespace

void GateOptions::addTo(CommandLine &line)
{
    line.addOption("from", "file", "HR's file. It is only read.");
    line.addOption("to", "file", "The file that the plugin reads: importFile of its INI file.");
    line.addOption("state", "folder",
                   "The folder of the gate's own files, created when it is missing; default: the "
                   "path of --to with .gate appended.");
    line.addOption("rejects", "file",
                   "Where to write the lines with errors or warnings, to send to HR; default: "
                   "rejects.txt in the gate's folder.");
    addLimits(line);
    line.addOption("keep", "number",
                   "How many dated copies of admitted files to keep; default: 30.");
    line.addOption("settle", "seconds",
                   "Refuse a file that was written less than this many seconds ago; default: 0.");
    line.addOption("texts", "form",
                   "How to write apostrophes, backslashes and placeholders in the texts for the "
                   "plugin's statements: escaped (default), no-backslash-escapes for a server with "
                   "that SQL mode, or as-is.");
    line.addFlag("may-end-open",
                 "Accept a last line without a line feed, which otherwise counts as truncated.");
    line.addFlag("accept",
                 "Admit the file this once, whatever is missing or has changed in it. An empty "
                 "file is refused even so.");
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
    Console silent(out, err, false);
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
