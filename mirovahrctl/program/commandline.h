#pragma once

#include "mirovahrctl/report/exitstatus.h"

#include <QCommandLineParser>
#include <QString>
#include <QStringList>

#include <optional>

class Console;
struct DatabaseOptions;

/// The command line of one subcommand. All subcommands use it, so that their options and help texts
/// look alike:
///
///     CommandLine line("check-file", "Tells what ...");
///     line.addArgument("file", "The export.");
///     line.addReportOptions(CommandLine::Page::Offered);
///     if (const auto end = line.parse(arguments, console))
///         return *end;
class CommandLine {
public:
    enum class Page { Offered, NotOffered };

    /// \a description says in a few sentences what the subcommand does; lines of at most 80
    /// characters.
    CommandLine(const char *subcommand, const char *description);

    /// An argument that must be given. They stand in the order in which they are added.
    void addArgument(const char *name, const char *description);
    /// An argument that may be left out, after all that must be given.
    void addOptionalArgument(const char *name, const char *description);
    void addFlag(const char *name, const char *description);
    void addOption(const char *name, const char *valueName, const char *description);
    /// --json, and --html where the page for HR is offered.
    void addReportOptions(Page page);
    /// The options that name the attendance database, and where else the program finds it.
    void addDatabaseOptions();

    /// Reads the arguments. Has a status when the subcommand must end with it: the help or the
    /// version was asked for and printed, or the arguments make no sense, which was said on the
    /// console.
    std::optional<ExitStatus> parse(const QStringList &arguments, Console &console);

    /// The name of the subcommand.
    QString subcommand() const { return m_subcommand; }
    bool isSet(const char *option) const;
    /// The value of an option; empty when it was not given.
    QString value(const char *option) const;
    /// An argument by its position; empty when it was not given.
    QString argument(int position) const;
    /// The parser, for what has no function here.
    const QCommandLineParser &parser() const { return m_parser; }

    /// The file of --html; empty when it was not given or is not offered.
    QString pagePath() const;
    /// Whether the command line asks for a database.
    bool namesDatabase() const;
    /// Reads the database options. Has a status when the subcommand must end with it.
    std::optional<ExitStatus> readDatabase(DatabaseOptions &options, Console &console) const;

private:
    QString helpText() const;
    QString usage() const;
    QString argumentError() const;

    QString m_subcommand;
    QString m_description;
    QStringList m_required;
    QStringList m_optional;
    bool m_offersPage = false;
    QCommandLineParser m_parser;
};
