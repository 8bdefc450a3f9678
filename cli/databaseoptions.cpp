#include "cli/databaseoptions.h"

#include "cli/connectionfile.h"
#include "cli/numberoption.h"
#include "cli/passwordfile.h"

#include <QCommandLineParser>
#include <QFileInfo>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <iterator>

namespace {

QCommandLineOption valueOption(const char *name, const QString &text, const char *valueName)
{
    return {QString::fromLatin1(name), text, QString::fromLatin1(valueName)};
}

QString fileOptionText(const DatabaseSources &sources)
{
    QString text = QStringLiteral("A file with these options in its group [client].");
    if (!sources.file.isEmpty())
        text += QStringLiteral(" Default: %1, if it exists.").arg(sources.file);
    return text;
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
        return QStringLiteral("The port is a number from 0 to %1").arg(kLargestPort);
    if (!readNumberOption(parser, QStringLiteral("read-timeout"), kLongestReadTimeout,
                          options.readTimeout)) {
        return QStringLiteral("The read timeout is a number of seconds from 0 to %1")
            .arg(kLongestReadTimeout);
    }
    return {};
}

/// Which option is missing, a sentence without its full stop; empty when none is.
QString missing(const DatabaseOptions &options)
{
    if (options.host.isEmpty() && options.socket.isEmpty())
        return QStringLiteral("Name the database server with either --host or --socket");
    if (options.name.isEmpty())
        return QStringLiteral("Name the attendance database with --database");
    if (options.user.isEmpty())
        return QStringLiteral("Name the database user with --user");
    return {};
}

/// The end of an error about a missing option: the connection file that was not read.
QString unreadFile(const QString &file, const DatabaseSources &sources)
{
    if (!file.isEmpty() || sources.file.isEmpty())
        return {};
    return QFileInfo::exists(sources.file)
        ? QStringLiteral("; the file '%1' cannot be read").arg(sources.file)
        : QStringLiteral(", or in the file %1").arg(sources.file);
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
    const auto add = [&parser](const char *name, const char *text, const char *valueName) {
        parser.addOption(valueOption(name, QString::fromLatin1(text), valueName));
    };
    add("host", "The database server's host.", "host");
    add("port", "The database server's port.", "port");
    add("socket", "The database server's UNIX socket, instead of a host.", "path");
    add("database", "The attendance database's name.", "name");
    add("user", "The database user.", "user");
    add("password-file", "A file whose first line is the password.", "file");
    add("connect-options", "Options of Qt's MySQL driver, joined by ';'.", "options");
    parser.addOption(valueOption(
        "read-timeout",
        QStringLiteral("How long the server may be silent, 0 for any time. Default: %1.")
            .arg(DatabaseOptions().readTimeout),
        "seconds"));
    parser.addOption(valueOption("defaults-file", fileOptionText(sources), "file"));
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
        return QStringLiteral("Name the database server with either --host or --socket, not both");
    error = missing(options);
    if (!error.isEmpty())
        return error + unreadFile(path, sources);
    return readPassword(parser, sources.passwordVariable, file, options, warning);
}
