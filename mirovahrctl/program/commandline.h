#pragma once

#include "mirovahrctl/report/exitstatus.h"

#include <QCommandLineParser>
#include <QString>
#include <QStringList>

#include <optional>

class Console;
struct DatabaseOptions;

/// The command line of one subcommand. All subcommands use it, so that their options and help texts
/// are consistent:
///
///     CommandLine line("check-file", kDescription);
///     line.addFlag("clear", Text::tr("Clear the flag instead."));
///     line.addReportOptions(CommandLine::Page::Offered);
///     return Report::run(line, arguments, console, [&](Report &report) { ... });
class CommandLine {
public:
    enum class Page { Offered, NotOffered };

    /// The environment variable that may hold the database password. Whoever reads it overwrites
    /// and removes it.
    static inline constexpr char kPasswordVariable[] = "MIROVAHRCTL_PASSWORD";

    /// \a description says in a few sentences what the subcommand does, for Text::tr().
    CommandLine(const char *subcommand, const char *description);

    /// A required argument. Arguments come in the order in which they are added.
    void addArgument(const QString &name, const QString &description);
    /// An optional argument, after all required ones.
    void addOptionalArgument(const QString &name, const QString &description);
    /// An argument that may be missing and may be given several times, after all others.
    void addRepeatedArgument(const QString &name, const QString &description);
    /// An option without a value.
    void addFlag(const char *option, const QString &description);
    /// An option with a value.
    void addOption(const char *option, const QString &valueName, const QString &description);

    /// --json and, where a page is offered, --html.
    void addReportOptions(Page page);
    /// The options that name the attendance database, and where else the program finds it.
    void addDatabaseOptions();

    /// Parses the arguments. Has a status when the subcommand must end with it: the help or the
    /// version was requested and printed, or the arguments are invalid and the error was printed.
    std::optional<ExitStatus> parse(const QStringList &arguments, Console &console);

    /// The name of the subcommand.
    QString subcommand() const { return m_subcommand; }
    /// Whether the option was given.
    bool isSet(const char *option) const;
    /// The value of an option; empty when the option was not given.
    QString value(const char *option) const;
    /// An argument by its position; empty when it was not given.
    QString argument(int position) const;
    /// All arguments.
    QStringList arguments() const;
    /// The parser itself, for what this class does not offer.
    const QCommandLineParser &parser() const { return m_parser; }

    /// The file of --html; empty when it was not given or is not offered.
    QString pagePath() const;
    /// Whether the command line names a database.
    bool namesDatabase() const;
    /// Reads the database options. Has a status when the subcommand must end with it: they are
    /// invalid and the error was printed.
    std::optional<ExitStatus> readDatabase(DatabaseOptions &options, Console &console) const;

private:
    QString helpText() const;
    QString usage() const;
    QString languageError() const;
    QString argumentError() const;

    QString m_subcommand;
    QString m_description;
    QStringList m_required;
    QStringList m_optional;
    QString m_repeated; ///< empty when there is none
    bool m_offersPage = false;
    QCommandLineParser m_parser;
};
