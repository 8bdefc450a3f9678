#include "host/hostoptions.h"

#include "host/exitstatus.h"

#include <QCommandLineParser>
#include <QFile>

namespace {

constexpr char kPasswordVariable[] = "YAVHOST_PASSWORD";

QString description()
{
    return QStringLiteral(
               "Runs a plugin of the attendance server: loads it, hands it a connection to the "
               "attendance\n"
               "database, starts it and keeps it until a signal comes.\n"
               "\n"
               "The password is read from --password-file or from the environment variable %1.\n"
               "The plugin makes a connection of its own out of this one, with the same connect "
               "options;\n"
               "leave CLIENT_FOUND_ROWS off and multiple statements allowed, as the driver has "
               "them.\n"
               "\n"
               "Signals: SIGINT and SIGTERM stop and unload the plugin, SIGUSR1 pauses it, SIGUSR2 "
               "resumes "
               "it.\n"
               "\n"
               "%2")
        .arg(QLatin1String(kPasswordVariable))
        .arg(exitStatusHelp());
}

QCommandLineOption valueOption(const char *name, const char *text, const char *valueName)
{
    return {QString::fromLatin1(name), QString::fromLatin1(text), QString::fromLatin1(valueName)};
}

void describe(QCommandLineParser &parser)
{
    parser.setApplicationDescription(description());
    parser.addOption({{QStringLiteral("h"), QStringLiteral("help")},
                      QStringLiteral("Print this help, and end.")});
    parser.addPositionalArgument(QStringLiteral("library"),
                                 QStringLiteral("The plugin, libmirovahr.so."));
    parser.addOption({QStringLiteral("version-info"),
                      QStringLiteral("Print what the plugin says of itself, and end.")});
    parser.addOption(
        {QStringLiteral("once"),
         QStringLiteral(
             "End after the first synchronisation. The plugin's first tick starts it.")});
    parser.addOption(
        valueOption("debug-level", "0 none, 1 normal (default), 2 and more verbose.", "level"));
    parser.addOption(valueOption("host", "The database server's host.", "host"));
    parser.addOption(valueOption("port", "The database server's port.", "port"));
    parser.addOption(
        valueOption("socket", "The database server's UNIX socket, instead of a host.", "path"));
    parser.addOption(valueOption("database", "The attendance database's name.", "name"));
    parser.addOption(valueOption("user", "The database user.", "user"));
    parser.addOption(
        valueOption("password-file", "A file whose first line is the password.", "file"));
    parser.addOption(
        valueOption("connect-options", "Options of Qt's MySQL driver, joined by ';'.", "options"));
}

// Reads a number from 0 to max; an absent option leaves value as it is. False: not such a number.
bool readNumber(const QCommandLineParser &parser, const QString &name, uint max, uint &value)
{
    if (!parser.isSet(name)) {
        return true;
    }
    bool ok = false;
    value = parser.value(name).toUInt(&ok);
    return ok && value <= max;
}

QString readNumbers(const QCommandLineParser &parser, HostOptions &options)
{
    uint level = options.debugLevel;
    if (!readNumber(parser, QStringLiteral("debug-level"), 255, level)) {
        return QStringLiteral("The debug level is a number from 0 to 255");
    }
    uint port = 0;
    if (!readNumber(parser, QStringLiteral("port"), 65535, port)) {
        return QStringLiteral("The port is a number from 0 to 65535");
    }
    options.debugLevel = static_cast<unsigned char>(level);
    options.database.port = static_cast<int>(port);
    return {};
}

QString readPassword(const QCommandLineParser &parser, QString &password)
{
    password = qEnvironmentVariable(kPasswordVariable);
    qunsetenv(kPasswordVariable);
    if (!parser.isSet(QStringLiteral("password-file"))) {
        return {};
    }
    QFile file(parser.value(QStringLiteral("password-file")));
    if (!file.open(QIODevice::ReadOnly)) {
        return QStringLiteral("The password file '%1' cannot be read: %2")
            .arg(file.fileName())
            .arg(file.errorString());
    }
    QByteArray line = file.readLine();
    if (line.endsWith('\n')) {
        line.chop(1);
    }
    password = QString::fromUtf8(line);
    return {};
}

QString checkDatabase(const DatabaseOptions &database)
{
    if (database.host.isEmpty() == database.socket.isEmpty()) {
        return QStringLiteral("Name the database server with either --host or --socket");
    }
    if (database.name.isEmpty()) {
        return QStringLiteral("Name the attendance database with --database");
    }
    if (database.user.isEmpty()) {
        return QStringLiteral("Name the database user with --user");
    }
    return {};
}

QString readDatabase(const QCommandLineParser &parser, DatabaseOptions &database)
{
    database.host = parser.value(QStringLiteral("host"));
    database.socket = parser.value(QStringLiteral("socket"));
    database.name = parser.value(QStringLiteral("database"));
    database.user = parser.value(QStringLiteral("user"));
    database.connectOptions = parser.value(QStringLiteral("connect-options"));
    const QString error = checkDatabase(database);
    return error.isEmpty() ? readPassword(parser, database.password) : error;
}

QString readOptions(const QCommandLineParser &parser, HostOptions &options)
{
    if (parser.positionalArguments().size() != 1) {
        return QStringLiteral("Name one library");
    }
    options.library = parser.positionalArguments().constFirst();
    options.versionInfo = parser.isSet(QStringLiteral("version-info"));
    options.once = parser.isSet(QStringLiteral("once"));
    QString error = readNumbers(parser, options);
    if (!error.isEmpty() || options.versionInfo) {
        return error;
    }
    return readDatabase(parser, options.database);
}

} // namespace

ParsedCommandLine parseCommandLine(const QStringList &arguments)
{
    QCommandLineParser parser;
    describe(parser);
    ParsedCommandLine result;
    if (!parser.parse(arguments)) {
        result.error = parser.errorText();
    } else if (parser.isSet(QStringLiteral("help"))) {
        result.help = parser.helpText();
    } else {
        result.error = readOptions(parser, result.options);
    }
    return result;
}
