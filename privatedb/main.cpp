#include "cli/exitstatus.h"
#include "cli/standardoptions.h"
#include "privatedb/commandrun.h"
#include "privatedb/privatemariadb.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <cstdio>

namespace {

constexpr int kServerFailed = 125;

/// The options besides those that every program has.
struct Options {
    const QCommandLineOption load{
        QStringLiteral("load"),
        QStringLiteral("Load a file of SQL statements first; may be repeated."),
        QStringLiteral("file")};
    const QCommandLineOption database{QStringLiteral("database"),
                                      QStringLiteral("Name of the database (tepdb)."),
                                      QStringLiteral("name"), QStringLiteral("tepdb")};
    const QCommandLineOption keep{
        QStringLiteral("keep"),
        QStringLiteral("Leave the server's folder behind and print its name.")};
    const QCommandLineOption noRights{
        QStringLiteral("no-rights"),
        QStringLiteral("Give the account no rights but those that the loaded files grant.")};
    const QCommandLineOption option{
        QStringLiteral("option"),
        QStringLiteral("A further option of mariadbd, without its dashes; may be repeated."),
        QStringLiteral("name[=value]")};
};

void describe(QCommandLineParser &parser, const Options &options)
{
    parser.setApplicationDescription(QStringLiteral(
        "Runs a command with a private MariaDB server, which is removed afterwards.\n\n"
        "The command finds the server in the environment: MIROVAHR_DB_SOCKET, MIROVAHR_DB_NAME,\n"
        "MIROVAHR_DB_USER and MIROVAHR_DB_PASSWORD_FILE (a file that holds the password).\n"
        "The administrator of the server is root, without a password.\n\n"
        "The exit status is the command's; 2 when the command line is not understood, 125 when\n"
        "the server could not be set up, 127 when the command could not be started."));
    StandardOptions::addTo(parser);
    parser.addOptions(
        {options.load, options.database, options.keep, options.noRights, options.option});
    parser.addPositionalArgument(QStringLiteral("command"), QStringLiteral("What to run."),
                                 QStringLiteral("-- command [argument...]"));
    parser.setOptionsAfterPositionalArgumentsMode(QCommandLineParser::ParseAsPositionalArguments);
}

int answer(const QString &text)
{
    std::fputs(qPrintable(text), stdout);
    return CommonStatus::kSuccess;
}

int complain(int status, const QString &text)
{
    std::fprintf(stderr, "private-mariadb: %s\n", qPrintable(text));
    return status;
}

void configure(PrivateMariaDb &server, const QCommandLineParser &parser, const Options &options)
{
    QStringList serverOptions;
    for (const QString &value : parser.values(options.option))
        serverOptions += QStringLiteral("--") + value;
    server.setServerOptions(serverOptions);
    server.setDatabaseName(parser.value(options.database));
    server.setKeepFiles(parser.isSet(options.keep));
    if (parser.isSet(options.noRights))
        server.setHostRights(PrivateMariaDb::HostRights::None);
}

int runBesideServer(const QCommandLineParser &parser, const Options &options)
{
    CommandRun run; // before the server starts: a signal must not leave it behind
    PrivateMariaDb server;
    configure(server, parser, options);
    if (!server.start() || (!run.interrupted() && !server.load(parser.values(options.load))))
        return complain(kServerFailed, server.errorString());
    if (parser.isSet(options.keep))
        std::fprintf(stderr, "private-mariadb: %s\n", qPrintable(server.folder()));
    const int status =
        run.interrupted() ? run.interruptedStatus() : run.run(parser.positionalArguments(), server);
    return server.end() ? status : complain(kServerFailed, server.errorString());
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("private-mariadb"));

    const Options options;
    QCommandLineParser parser;
    describe(parser, options);
    const QStringList arguments = QCoreApplication::arguments();
    if (!parser.parse(arguments))
        return complain(CommonStatus::kUsage, parser.errorText());
    if (StandardOptions::wantsHelp(parser, arguments))
        return answer(parser.helpText());
    if (StandardOptions::wantsVersion(parser)) {
        return answer(StandardOptions::versionText(QCoreApplication::applicationName())
                      + QLatin1Char('\n'));
    }
    if (parser.positionalArguments().isEmpty())
        return complain(CommonStatus::kUsage, QStringLiteral("no command given; see --help"));
    return runBesideServer(parser, options);
}
