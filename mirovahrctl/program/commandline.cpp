#include "mirovahrctl/program/commandline.h"

#include "cli/databaseoptions.h"
#include "cli/standardoptions.h"
#include "cli/text.h"
#include "mirovahrctl/program/console.h"
#include "mirovahrctl/program/languageoption.h"
#include "mirovahrctl/report/language.h"
#include "mirovahrctl/report/textlayout.h"

namespace {

DatabaseSources databaseSources()
{
    return {CommandLine::kPasswordVariable, QStringLiteral("/etc/yav/mirovahrctl.ini")};
}

QString ascii(const char *text)
{
    return QString::fromLatin1(text);
}

QString wrapped(const QString &text)
{
    QStringList lines;
    const QStringList paragraphs = text.split(QLatin1Char('\n'));
    for (const QString &paragraph : paragraphs)
        lines += TextLayout::wrapped(paragraph, TextLayout::kHelpWidth);
    return lines.join(QLatin1Char('\n'));
}

} // namespace

CommandLine::CommandLine(const char *subcommand, const char *description)
    : m_subcommand(ascii(subcommand))
    , m_description(Text::tr(description))
{
    StandardOptions::addTo(m_parser);
    // For the help text and to refuse it: one that is known, LanguageOption has taken out.
    m_parser.addOption({QStringLiteral("language"),
                        Text::tr("The language of everything for people: %1. Default: that of the "
                                 "locale; beside --json always en.")
                            .arg(Language::codes().join(QStringLiteral(", "))),
                        Text::tr("language")});
}

void CommandLine::addArgument(const QString &name, const QString &description)
{
    m_required << name.toUpper();
    m_parser.addPositionalArgument(m_required.constLast(), description);
}

void CommandLine::addOptionalArgument(const QString &name, const QString &description)
{
    m_optional << name.toUpper();
    m_parser.addPositionalArgument(m_optional.constLast(), description);
}

void CommandLine::addRepeatedArgument(const QString &name, const QString &description)
{
    m_repeated = name.toUpper();
    m_parser.addPositionalArgument(m_repeated, description);
}

void CommandLine::addFlag(const char *option, const QString &description)
{
    m_parser.addOption({ascii(option), description});
}

void CommandLine::addOption(const char *option, const QString &valueName,
                            const QString &description)
{
    m_parser.addOption({ascii(option), description, valueName});
}

void CommandLine::addReportOptions(Page page)
{
    addFlag("json", Text::tr("Write the report as JSON, for scripts."));
    m_offersPage = page == Page::Offered;
    if (m_offersPage) {
        addOption("html", Text::tr("file"),
                  Text::tr("Also write the report as a self-contained web page, for "
                           "somebody without a terminal."));
    }
}

void CommandLine::addDatabaseOptions()
{
    m_description += QStringLiteral("\n\n")
        + Text::tr("The database password is read from --password-file, from the environment "
                   "variable %1 or from --defaults-file.")
              .arg(QLatin1String(kPasswordVariable));
    ::addDatabaseOptions(m_parser, databaseSources());
}

std::optional<ExitStatus> CommandLine::parse(const QStringList &arguments, Console &console)
{
    console.setSubcommand(m_subcommand);
    // The parser takes the first argument for the program's name.
    const bool understood = m_parser.parse(QStringList(m_subcommand) + arguments);
    if (understood ? isSet("json") : arguments.contains(QLatin1String("--json")))
        console.startJson();
    if (understood && m_parser.isSet(QStringLiteral("help"))) {
        console.print(helpText());
        return ExitStatus::Fine;
    }
    if (understood && StandardOptions::wantsVersion(m_parser)) {
        console.print(StandardOptions::versionText(QStringLiteral("mirovahrctl")));
        return ExitStatus::Fine;
    }
    QString error = understood ? languageError() : m_parser.errorText();
    if (error.isEmpty())
        error = argumentError();
    if (error.isEmpty())
        return std::nullopt;
    return console.fail(ExitStatus::Usage, error);
}

bool CommandLine::isSet(const char *option) const
{
    return m_parser.isSet(ascii(option));
}

QString CommandLine::value(const char *option) const
{
    return m_parser.value(ascii(option));
}

QString CommandLine::argument(int position) const
{
    return m_parser.positionalArguments().value(position);
}

QStringList CommandLine::arguments() const
{
    return m_parser.positionalArguments();
}

QString CommandLine::pagePath() const
{
    return m_offersPage ? value("html") : QString();
}

bool CommandLine::namesDatabase() const
{
    return hasDatabaseOptions(m_parser);
}

std::optional<ExitStatus> CommandLine::readDatabase(DatabaseOptions &options,
                                                    Console &console) const
{
    QString warning;
    const QString error = readDatabaseOptions(m_parser, databaseSources(), options, warning);
    if (!warning.isEmpty())
        console.warn(warning);
    if (error.isEmpty())
        return std::nullopt;
    return console.fail(ExitStatus::Usage, error);
}

QString CommandLine::usage() const
{
    QString usage = Text::tr("Usage: mirovahrctl %1 [OPTION...]").arg(m_subcommand);
    for (const QString &name : m_required)
        usage += QLatin1Char(' ') + name;
    for (const QString &name : m_optional)
        usage += QStringLiteral(" [%1]").arg(name);
    if (!m_repeated.isEmpty())
        usage += QStringLiteral(" [%1...]").arg(m_repeated);
    return usage;
}

QString CommandLine::helpText() const
{
    // The parser's own first line knows the program only, not the subcommand.
    const QString parserText = m_parser.helpText();
    const QString options = parserText.mid(parserText.indexOf(QLatin1Char('\n')) + 1);
    return QStringList{usage(), QString(), wrapped(m_description), options, exitStatusHelp()}.join(
        QLatin1Char('\n'));
}

QString CommandLine::languageError() const
{
    return isSet("language") ? LanguageOption::problem(value("language")) : QString();
}

QString CommandLine::argumentError() const
{
    const int count = m_parser.positionalArguments().size();
    if (count < m_required.size())
        return Text::tr("Missing argument %1; see --help").arg(m_required.at(count));
    if (m_repeated.isEmpty() && count > m_required.size() + m_optional.size()) {
        return Text::tr("Unexpected argument '%1'")
            .arg(argument(m_required.size() + m_optional.size()));
    }
    return {};
}
