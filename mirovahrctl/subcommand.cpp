#include "mirovahrctl/subcommand.h"

#include "cli/standardoptions.h"
#include "cli/text.h"
#include "mirovahrctl/overview.h"
#include "mirovahrctl/program/console.h"
#include "mirovahrctl/program/languageoption.h"

#include <algorithm>

// The entry points of the subcommands, each defined in the folder of its name.

/// Writes an export for a support case, with other names and numbers.
ExitStatus runAnonymise(const QStringList &arguments, Console &console);
/// Reports what the INI file puts in force, and what is wrong with it.
ExitStatus runCheckConfig(const QStringList &arguments, Console &console);
/// Reports whether the attendance database is what the plugin relies on.
ExitStatus runCheckDb(const QStringList &arguments, Console &console);
/// Reports which lines of an export the plugin would drop or misread.
ExitStatus runCheckFile(const QStringList &arguments, Console &console);
/// Reports what differs between two exports.
ExitStatus runDiff(const QStringList &arguments, Console &console);
/// Runs the checks that can be run here, and reports what to do first.
ExitStatus runDoctor(const QStringList &arguments, Console &console);
/// Reports what the database lacks although the plugin counts it as done.
ExitStatus runDrift(const QStringList &arguments, Console &console);
/// Reports what the plugin makes of one person, step by step.
ExitStatus runExplain(const QStringList &arguments, Console &console);
/// Sets or clears the flag that forces a synchronisation.
ExitStatus runForce(const QStringList &arguments, Console &console);
/// Publishes HR's file for the plugin, or refuses it.
ExitStatus runGate(const QStringList &arguments, Console &console);
/// Reports what the attendance server's log says of the plugin's work.
ExitStatus runLog(const QStringList &arguments, Console &console);
/// Reports what a synchronisation would change, by running it on a copy of the database.
ExitStatus runPreview(const QStringList &arguments, Console &console);
/// Lists the rules of the other subcommands.
ExitStatus runRules(const QStringList &arguments, Console &console);
/// Reports what the database and the gate know of the plugin's work.
ExitStatus runStatus(const QStringList &arguments, Console &console);

namespace {

const QLatin1String kJson("--json");

/// Null when there is none of this name.
const Subcommand *subcommandOf(const QString &name)
{
    const auto &all = subcommands();
    const auto found =
        std::find_if(all.cbegin(), all.cend(), [&name](const Subcommand &subcommand) {
            return name == QLatin1String(subcommand.name);
        });
    return found == all.cend() ? nullptr : &*found;
}

ExitStatus runSubcommand(const QString &name, const QStringList &arguments, Console &console)
{
    if (const Subcommand *const subcommand = subcommandOf(name))
        return subcommand->run(arguments, console);
    if (name == kJson || arguments.contains(kJson))
        console.startJson();
    return console.fail(ExitStatus::Usage,
                        Text::tr("Unknown subcommand '%1'; --help lists them").arg(name));
}

ExitStatus runHelp(const QStringList &arguments, Console &console)
{
    if (arguments.isEmpty()) {
        console.print(Overview::ofSubcommands());
        return ExitStatus::Fine;
    }
    if (arguments.size() > 1) {
        return console.fail(ExitStatus::Usage,
                            Text::tr("Unexpected argument '%1' for help").arg(arguments.at(1)));
    }
    return runSubcommand(arguments.constFirst(), {QStringLiteral("--help")}, console);
}

} // namespace

const QVector<Subcommand> &subcommands()
{
    static const QVector<Subcommand> all{
        {"check-config",
         QT_TRANSLATE_NOOP("Text", "Check the plugin's INI file, and show the settings in force"),
         runCheckConfig},
        {"check-file",
         QT_TRANSLATE_NOOP("Text", "Check an HR export for what the plugin would drop or misread"),
         runCheckFile},
        {"diff",
         QT_TRANSLATE_NOOP("Text",
                           "Show what differs between two HR exports, as the plugin reads them"),
         runDiff},
        {"check-db",
         QT_TRANSLATE_NOOP("Text",
                           "Check that the attendance database is what the plugin relies on"),
         runCheckDb},
        {"explain",
         QT_TRANSLATE_NOOP("Text", "Explain what the plugin makes of a person, step by step"),
         runExplain},
        {"preview",
         QT_TRANSLATE_NOOP("Text",
                           "Show what a synchronisation would change, by running it on a copy"),
         runPreview},
        {"drift",
         QT_TRANSLATE_NOOP("Text",
                           "Find what the database lacks although the plugin counts it as done"),
         runDrift},
        {"gate", QT_TRANSLATE_NOOP("Text", "Publish HR's file for the plugin, or hold it back"),
         runGate},
        {"force",
         QT_TRANSLATE_NOOP("Text", "Make the plugin synchronise everybody at its next tick"),
         runForce},
        {"status",
         QT_TRANSLATE_NOOP("Text",
                           "Show what is known of the plugin's work, for people and monitoring"),
         runStatus},
        {"log",
         QT_TRANSLATE_NOOP("Text",
                           "Show what the attendance server's log says of the plugin's work"),
         runLog},
        {"doctor",
         QT_TRANSLATE_NOOP("Text",
                           "Run every check that can be run here, and name what to do first"),
         runDoctor},
        {"anonymise",
         QT_TRANSLATE_NOOP("Text",
                           "Write an HR export for a support case, with other names and numbers"),
         runAnonymise},
        {"rules", QT_TRANSLATE_NOOP("Text", "List the rules behind the findings, or explain one"),
         runRules},
    };
    return all;
}

ExitStatus runMirovahrctl(const QStringList &arguments, Console &console)
{
    QStringList others = arguments;
    const QString error = LanguageOption::obey(others);
    // A subcommand refuses a language itself, in the form of its answers.
    if (error.isEmpty() || subcommandOf(others.value(0)) != nullptr)
        return runInThisLanguage(others, console);
    if (others.contains(kJson))
        console.startJson();
    return console.fail(ExitStatus::Usage, error);
}

ExitStatus runInThisLanguage(const QStringList &arguments, Console &console)
{
    const QString name = arguments.value(0);
    if (name == QLatin1String("--help") || name == QLatin1String("-h")) {
        console.print(Overview::ofSubcommands());
        return ExitStatus::Fine;
    }
    if (name == QLatin1String("help"))
        return runHelp(arguments.mid(1), console);
    if (name == QLatin1String("--version") || name == QLatin1String("-v")) {
        console.print(StandardOptions::versionText(QStringLiteral("mirovahrctl")));
        return ExitStatus::Fine;
    }
    if (arguments.isEmpty()) {
        console.print(Overview::ofQuestions());
        return ExitStatus::Usage;
    }
    return runSubcommand(name, arguments.mid(1), console);
}
