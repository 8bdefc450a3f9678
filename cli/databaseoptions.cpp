#include "cli/databaseoptions.h"

#include "cli/connectionfile.h"
#include "cli/numberoption.h"
#include "cli/passwordfile.h"
#include "cli/text.h"

#include <QCommandLineParser>
#include <QFileInfo>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <iterator>

namespace {

QCommandLineOption valueOption(const char *name, const QString &text, const QString &valueName)
{
    return {QString::fromLatin1(name), text, valueName};
}

QString fileOptionText(const DatabaseSources &sources)
{
    if (sources.file.isEmpty())
        return Text::tr("A file with these options in its group [client].");
    return Text::tr("A file with these options in its group [client]. Default: %1, if it exists.")
        .arg(sources.file);
}

/// The connection file to read; empty for none.
QString fileToRead(const QCommandLineParser &parser, const DatabaseSources &sources)
{
    if (parser.isSet(QStringLiteral("defaults-file")))
        return parser.value(QStringLiteral("defaults-file"));
    return QFileInfo(sources.file).isReadable() ? sources.file : QString();
}

void readText(const QCommandLineParser &parser, const char *name, QString &value)
{
    const QString option = QString::fromLatin1(name);
    if (parser.isSet(option))
        value = parser.value(option);
}

/// Replaces the options of the file by those of the command line. Returns what is wrong with them.
QString readCommandLine(const QCommandLineParser &parser, DatabaseOptions &options)
{
    // Host and port, or a socket: those of the command line replace either of the file.
    if (parser.isSet(QStringLiteral("host")) || parser.isSet(QStringLiteral("socket"))) {
        options.host.clear();
        options.socket.clear();
        options.port = 0;
    }
    readText(parser, "host", options.host);
    readText(parser, "socket", options.socket);
    readText(parser, "database", options.name);
    readText(parser, "user", options.user);
    readText(parser, "connect-options", options.connectOptions);
    if (!readNumberOption(parser, QStringLiteral("port"), kLargestPort, options.port))
        return Text::tr("The port is a number from 0 to %1").arg(kLargestPort);
    if (!readNumberOption(parser, QStringLiteral("read-timeout"), kLongestReadTimeout,
                          options.readTimeout)) {
        return Text::tr("The read timeout is a number of seconds from 0 to %1")
            .arg(kLongestReadTimeout);
    }
    return {};
}

/// Which option is missing, a sentence without its full stop; empty when none is.
QString missing(const DatabaseOptions &options)
{
    if (options.host.isEmpty() && options.socket.isEmpty())
        return Text::tr("Name the database server with either --host or --socket");
    if (options.name.isEmpty())
        return Text::tr("Name the attendance database with --database");
    if (options.user.isEmpty())
        return Text::tr("Name the database user with --user");
    return {};
}

/// The error about a missing option, with the connection file if that was not read.
QString withUnreadFile(const QString &error, const QString &file, const DatabaseSources &sources)
{
    if (!file.isEmpty() || sources.file.isEmpty())
        return error;
    return QFileInfo::exists(sources.file)
        ? Text::tr("%1; the file '%2' cannot be read").arg(error, sources.file)
        : Text::tr("%1, or in the file %2").arg(error, sources.file);
}

/// The value of an environment variable, which is then gone. It is also overwritten: /proc shows
/// the environment with which a program was started.
QString takeVariable(const char *name)
{
    const QString value = qEnvironmentVariable(name);
    if (char *const bytes = std::getenv(name))
        explicit_bzero(bytes, std::strlen(bytes));
    qunsetenv(name);
    return value;
}

QString readPassword(const QCommandLineParser &parser, const char *variable,
                     const ConnectionFile &file, DatabaseOptions &options, QString &warning)
{
    options.password = takeVariable(variable);
    if (parser.isSet(QStringLiteral("password-file"))) {
        return readPasswordFile(parser.value(QStringLiteral("password-file")), options.password,
                                warning);
    }
    const QString fileUser = file.options().user;
    if (!options.password.isEmpty() || (!fileUser.isEmpty() && fileUser != options.user))
        return {};
    return file.readPassword(options.password, warning);
}

} // namespace

QString DatabaseOptions::server() const
{
    constexpr uint kUsualPort = 3306;
    return socket.isEmpty() ? QStringLiteral("%1:%2").arg(host).arg(port == 0 ? kUsualPort : port)
                            : socket;
}

void addDatabaseOptions(QCommandLineParser &parser, const DatabaseSources &sources)
{
    const auto add = [&parser](const char *name, const QString &text, const QString &valueName) {
        parser.addOption(valueOption(name, text, valueName));
    };
    add("host", Text::tr("The database server's host."), Text::tr("host"));
    add("port", Text::tr("The database server's port."), Text::tr("port"));
    add("socket", Text::tr("The database server's UNIX socket, instead of a host."),
        Text::tr("path"));
    add("database", Text::tr("The attendance database's name."), Text::tr("name"));
    add("user", Text::tr("The database user."), Text::tr("user"));
    add("password-file", Text::tr("A file whose first line is the password."), Text::tr("file"));
    add("connect-options", Text::tr("Options of Qt's MySQL driver, joined by ';'."),
        Text::tr("options"));
    parser.addOption(
        valueOption("read-timeout",
                    Text::tr("How long the server may be silent, 0 for any time. Default: %1.")
                        .arg(DatabaseOptions().readTimeout),
                    Text::tr("seconds")));
    parser.addOption(valueOption("defaults-file", fileOptionText(sources), Text::tr("file")));
}

bool hasDatabaseOptions(const QCommandLineParser &parser)
{
    const char *const names[] = {"host", "socket", "database", "user", "defaults-file"};
    return std::any_of(std::begin(names), std::end(names), [&parser](const char *name) {
        return parser.isSet(QString::fromLatin1(name));
    });
}

QString readDatabaseOptions(const QCommandLineParser &parser, const DatabaseSources &sources,
                            DatabaseOptions &options, QString &warning)
{
    ConnectionFile file;
    const QString path = fileToRead(parser, sources);
    QString error = path.isEmpty() ? QString() : file.read(path);
    if (!error.isEmpty())
        return error;
    options = file.options();
    error = readCommandLine(parser, options);
    if (!error.isEmpty())
        return error;
    if (!options.host.isEmpty() && !options.socket.isEmpty())
        return Text::tr("Name the database server with either --host or --socket, not both");
    error = missing(options);
    if (!error.isEmpty())
        return withUnreadFile(error, path, sources);
    return readPassword(parser, sources.passwordVariable, file, options, warning);
}
