#include "mirovahrctl/gatestate/gateoptions.h"

#include "mirovahrctl/program/commandline.h"
#include "mirovahrctl/program/console.h"

#include <QBuffer>
#include <QDir>
#include <QFileInfo>
#include <QProcess>

namespace {

constexpr double kLargestNumber = 1e9;

/// Reads options that are numbers, and keeps the first complaint.
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
            complain(option, QStringLiteral("a whole number from 0"));
    }

    void readPercent(const char *option, double &value)
    {
        if (!m_line.isSet(option))
            return;
        bool ok = false;
        value = m_line.value(option).toDouble(&ok);
        if (!ok || !(value >= 0 && value <= 100))
            complain(option, QStringLiteral("a percentage from 0 to 100"));
    }

    QString complaint() const { return m_complaint; }

private:
    void complain(const char *option, const QString &what)
    {
        if (m_complaint.isEmpty())
            m_complaint = QStringLiteral("--%1 takes %2").arg(QLatin1String(option), what);
    }

    const CommandLine &m_line;
    QString m_complaint;
};

QString readNumbers(const CommandLine &line, GateOptions &options)
{
    NumberReader reader(line);
    reader.read("max-lost-lines", options.limits.lostLines.count);
    reader.readPercent("max-lost-lines-percent", options.limits.lostLines.percent);
    reader.read("max-leaving", options.limits.leaving.count);
    reader.readPercent("max-leaving-percent", options.limits.leaving.percent);
    reader.read("max-moving", options.limits.moving.count);
    reader.readPercent("max-moving-percent", options.limits.moving.percent);
    reader.read("keep", options.copies);
    reader.read("settle", options.settleSeconds);
    return reader.complaint();
}

QString fullPath(const QString &path)
{
    return QDir::cleanPath(QFileInfo(path).absoluteFilePath());
}

bool isSame(const QString &a, const QString &b)
{
    // Two files that are not there would count as the same.
    return fullPath(a) == fullPath(b) || (QFileInfo::exists(a) && QFileInfo(a) == QFileInfo(b));
}

QString pathComplaint(const GateOptions &options)
{
    if (options.from.isEmpty())
        return QStringLiteral("--from is missing; --help explains");
    if (options.to.isEmpty())
        return QStringLiteral("--to is missing; --help explains");
    if (QFileInfo(options.to).fileName().isEmpty())
        return QStringLiteral("--to names no file");
    if (isSame(options.from, options.to))
        return QStringLiteral("--from and --to name the same file");
    if (isSame(options.rejects, options.from) || isSame(options.rejects, options.to))
        return QStringLiteral("--rejects would be written over the export; name another file");
    return {};
}

void addLimits(CommandLine &line)
{
    line.addOption("max-lost-lines", "number",
                   "Refuse a file with more lines fewer than this; 50 when left out.");
    line.addOption("max-lost-lines-percent", "percent", "The same in percent of the lines; 5.");
    line.addOption("max-leaving", "number", "Refuse a file in which more people leave; 50.");
    line.addOption("max-leaving-percent", "percent",
                   "The same in percent of the people who work; 5.");
    line.addOption("max-moving", "number",
                   "Refuse a file in which more people get another cost centre; 100.");
    line.addOption("max-moving-percent", "percent",
                   "The same in percent of the people who work; 10.");
}

/// The arguments of the gate in the words of a command line; nothing when they run no gate.
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
                   "Where the gate keeps its own files; the name of --to with .gate behind it when "
                   "left out. Made when it is missing.");
    line.addOption("rejects", "file",
                   "Where to write the lines that do not arrive as they should, to send to HR; "
                   "rejects.txt in the gate's folder when left out.");
    addLimits(line);
    line.addOption("keep", "number", "How many dated copies of admitted files to keep; 30.");
    line.addOption("settle", "seconds",
                   "Refuse a file that was written within so many seconds; 0.");
    line.addFlag("may-end-open",
                 "HR's file may end without a line feed: do not take that for a truncated file.");
    line.addFlag("accept",
                 "Admit the file this once, whatever is missing or has changed in it. An empty "
                 "file is refused all the same.");
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
    QString complaint = readNumbers(line, *this);
    if (complaint.isEmpty())
        complaint = pathComplaint(*this);
    if (complaint.isEmpty())
        return std::nullopt;
    return console.fail(ExitStatus::Usage, complaint);
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
    Console nobody(out, err, false);
    CommandLine line("gate", "");
    addTo(line);
    line.addReportOptions(CommandLine::Page::NotOffered);
    GateOptions options;
    if (line.parse(*arguments, nobody) || options.read(line, nobody))
        return std::nullopt;
    return options;
}

bool GateOptions::publishesTo(const QString &path) const
{
    return isSame(to, path);
}
