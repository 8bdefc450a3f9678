#include "mirovahrctl/subcommand.h"

#include "cli/standardoptions.h"
#include "mirovahrctl/program/console.h"

#include <algorithm>

// The entry points of the subcommands, each defined in the folder of its name.

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

QString overview()
{
    QStringList lines{
        QStringLiteral("Usage: mirovahrctl SUBCOMMAND [OPTION...] [ARGUMENT...]"),
        QString(),
        QStringLiteral("The operator's tool for MirovaHR, the plugin that keeps an attendance "
                       "database in step"),
        QStringLiteral("with the export of an HR system."),
        QString(),
        QStringLiteral("Subcommands:"),
    };
    for (const Subcommand &subcommand : subcommands()) {
        lines << QStringLiteral("  %1 %2")
                     .arg(QLatin1String(subcommand.name), -14)
                     .arg(QLatin1String(subcommand.summary));
    }
    lines << QString()
          << QStringLiteral("  mirovahrctl help SUBCOMMAND   what it does and its options")
          << QStringLiteral("  mirovahrctl help              this overview")
          << QStringLiteral("  mirovahrctl --version         the version") << QString()
          << exitStatusHelp();
    return lines.join(QLatin1Char('\n'));
}

/// For whoever calls the program for the first time: the questions that it answers.
QString questions()
{
    return QStringLiteral(
        "mirovahrctl answers these questions:\n\n"
        "  Is everything set up as it should be?   mirovahrctl doctor\n"
        "  What is wrong with HR's file?           mirovahrctl check-file FILE\n"
        "  Why did this person not arrive?         mirovahrctl explain PERSON\n"
        "  What will this file change?             mirovahrctl preview FILE\n"
        "  What did last night do?                 mirovahrctl log --since 12h LOGFILE\n\n"
        "\"mirovahrctl help\" lists the other subcommands and says how to see their options.");
}

ExitStatus runSubcommand(const QString &name, const QStringList &arguments, Console &console)
{
    const auto &all = subcommands();
    const auto found =
        std::find_if(all.cbegin(), all.cend(), [&name](const Subcommand &subcommand) {
            return name == QLatin1String(subcommand.name);
        });
    if (found != all.cend())
        return found->run(arguments, console);
    if (name == kJson || arguments.contains(kJson))
        console.startJson();
    return console.fail(ExitStatus::Usage,
                        QStringLiteral("Unknown subcommand '%1'; --help lists them").arg(name));
}

ExitStatus runHelp(const QStringList &arguments, Console &console)
{
    if (arguments.isEmpty()) {
        console.print(overview());
        return ExitStatus::Fine;
    }
    if (arguments.size() > 1) {
        return console.fail(
            ExitStatus::Usage,
            QStringLiteral("Unexpected argument '%1' for help").arg(arguments.at(1)));
    }
    return runSubcommand(arguments.constFirst(), {QStringLiteral("--help")}, console);
}

} // namespace

const QVector<Subcommand> &subcommands()
{
    static const QVector<Subcommand> all{
        {"check-config", "Check the plugin's INI file, and show the settings in force",
         runCheckConfig},
        {"check-file", "Check an HR export for what the plugin would drop or misread",
         runCheckFile},
        {"diff", "Show what differs between two HR exports, as the plugin reads them", runDiff},
        {"check-db", "Check that the attendance database is what the plugin relies on", runCheckDb},
        {"explain", "Explain what the plugin makes of a person, step by step", runExplain},
        {"preview", "Show what a synchronisation would change, by running it on a copy",
         runPreview},
        {"drift", "Find what the database lacks although the plugin counts it as done", runDrift},
        {"gate", "Publish HR's file for the plugin, or hold it back", runGate},
        {"force", "Make the plugin synchronise everybody at its next tick", runForce},
        {"status", "Show what is known of the plugin's work, for people and monitoring", runStatus},
        {"log", "Show what the attendance server's log says of the plugin's work", runLog},
        {"doctor", "Run every check that can be run here, and name what to do first", runDoctor},
        {"rules", "List the rules behind the findings, or explain one", runRules},
    };
    return all;
}

ExitStatus runMirovahrctl(const QStringList &arguments, Console &console)
{
    const QString name = arguments.value(0);
    if (name == QLatin1String("--help") || name == QLatin1String("-h")) {
        console.print(overview());
        return ExitStatus::Fine;
    }
    if (name == QLatin1String("help"))
        return runHelp(arguments.mid(1), console);
    if (name == QLatin1String("--version") || name == QLatin1String("-v")) {
        console.print(StandardOptions::versionText(QStringLiteral("mirovahrctl")));
        return ExitStatus::Fine;
    }
    if (arguments.isEmpty()) {
        console.print(questions());
        return ExitStatus::Usage;
    }
    return runSubcommand(name, arguments.mid(1), console);
}
