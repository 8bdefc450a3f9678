#include "cli/databaseoptions.h"

#include "cli/numberoption.h"

#include <QCommandLineParser>
#include <QFile>

namespace {

QCommandLineOption valueOption(const char *name, const char *text, const char *valueName)
{
    return {QString::fromLatin1(name), QString::fromLatin1(text), QString::fromLatin1(valueName)};
}

QString readPassword(const QCommandLineParser &parser, const char *variable, QString &password)
{
    password = qEnvironmentVariable(variable);
    qunsetenv(variable);
    if (!parser.isSet(QStringLiteral("password-file"))) {
        return {};
    }
    QFile file(parser.value(QStringLiteral("password-file")));
    if (!file.open(QIODevice::ReadOnly)) {
        return QStringLiteral("The password file '%1' cannot be read: %2")
            .arg(file.fileName(), file.errorString());
    }
    QByteArray line = file.readLine();
    if (line.endsWith('\n')) {
        line.chop(1);
    }
    password = QString::fromUtf8(line);
    return {};
}

QString check(const DatabaseOptions &options)
{
    if (options.host.isEmpty() == options.socket.isEmpty()) {
        return QStringLiteral("Name the database server with either --host or --socket");
    }
    if (options.name.isEmpty()) {
        return QStringLiteral("Name the attendance database with --database");
    }
    if (options.user.isEmpty()) {
        return QStringLiteral("Name the database user with --user");
    }
    return {};
}

} // namespace

void addDatabaseOptions(QCommandLineParser &parser)
{
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

bool hasDatabaseOptions(const QCommandLineParser &parser)
{
    return parser.isSet(QStringLiteral("host")) || parser.isSet(QStringLiteral("socket"));
}

QString readDatabaseOptions(const QCommandLineParser &parser, const char *passwordVariable,
                            DatabaseOptions &options)
{
    uint port = 0;
    if (!readNumberOption(parser, QStringLiteral("port"), 65535, port)) {
        return QStringLiteral("The port is a number from 0 to 65535");
    }
    options.port = static_cast<int>(port);
    options.host = parser.value(QStringLiteral("host"));
    options.socket = parser.value(QStringLiteral("socket"));
    options.name = parser.value(QStringLiteral("database"));
    options.user = parser.value(QStringLiteral("user"));
    options.connectOptions = parser.value(QStringLiteral("connect-options"));
    const QString error = check(options);
    return error.isEmpty() ? readPassword(parser, passwordVariable, options.password) : error;
}
