#include "privatedb/commandrun.h"
#include "privatedb/privatemariadb.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <cstdio>

namespace {

constexpr int kUsageError = 2;
constexpr int kServerFailed = 125;

int reportFailure(const PrivateMariaDb &server)
{
    std::fprintf(stderr, "private-mariadb: %s\n", qPrintable(server.errorString()));
    return kServerFailed;
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("private-mariadb"));

    const QCommandLineOption load(
        QStringLiteral("load"),
        QStringLiteral("Load a file of SQL statements first; may be repeated."),
        QStringLiteral("file"));
    const QCommandLineOption database(QStringLiteral("database"),
                                      QStringLiteral("Name of the database (tepdb)."),
                                      QStringLiteral("name"), QStringLiteral("tepdb"));
    const QCommandLineOption keep(
        QStringLiteral("keep"),
        QStringLiteral("Leave the server's folder behind and print its name."));
    const QCommandLineOption noRights(
        QStringLiteral("no-rights"),
        QStringLiteral("Give the account no rights but those that the loaded files grant."));
    const QCommandLineOption option(
        QStringLiteral("option"),
        QStringLiteral("A further option of mariadbd, without its dashes; may be repeated."),
        QStringLiteral("name[=value]"));

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Runs a command beside a MariaDB server of its own, which is gone afterwards.\n\n"
        "The command finds the server in the environment: MIROVAHR_DB_SOCKET, MIROVAHR_DB_NAME,\n"
        "MIROVAHR_DB_USER and MIROVAHR_DB_PASSWORD_FILE (a file that holds the password).\n"
        "The administrator of the server is root, without a password.\n\n"
        "The exit status is the command's; 125 when the server could not be set up, 127 when the\n"
        "command could not be started."));
    parser.addHelpOption();
    parser.addOptions({load, database, keep, noRights, option});
    parser.addPositionalArgument(QStringLiteral("command"), QStringLiteral("What to run."),
                                 QStringLiteral("-- command [argument...]"));
    parser.setOptionsAfterPositionalArgumentsMode(QCommandLineParser::ParseAsPositionalArguments);
    parser.process(app);
    const QStringList command = parser.positionalArguments();
    if (command.isEmpty()) {
        std::fprintf(stderr, "private-mariadb: no command given; see --help\n");
        return kUsageError;
    }

    QStringList serverOptions;
    for (const QString &value : parser.values(option))
        serverOptions += QStringLiteral("--") + value;

    CommandRun run; // before the server starts: a signal must not leave it behind
    PrivateMariaDb server;
    server.setDatabaseName(parser.value(database));
    server.setServerOptions(serverOptions);
    server.setKeepFiles(parser.isSet(keep));
    if (parser.isSet(noRights))
        server.setHostRights(PrivateMariaDb::HostRights::None);
    if (!server.start() || (!run.interrupted() && !server.load(parser.values(load))))
        return reportFailure(server);
    if (parser.isSet(keep))
        std::fprintf(stderr, "private-mariadb: %s\n", qPrintable(server.folder()));
    const int status = run.interrupted() ? run.interruptedStatus() : run.run(command, server);
    return server.stop() ? status : reportFailure(server);
}
