#pragma once

#include <QString>
#include <QStringList>

class QCommandLineParser;

/// The largest TCP port.
constexpr uint kLargestPort = 65535;

/// The longest read timeout in seconds, a day.
constexpr uint kLongestReadTimeout = 86400;

/// How to reach the attendance database.
struct DatabaseOptions {
    QString host; ///< empty when a socket is used
    uint port = 0; ///< 0: the server's usual port
    QString socket; ///< path of a UNIX socket; empty when a host is used
    QString name;
    QString user;
    QString password;
    QString connectOptions; ///< as QSqlDatabase::setConnectOptions takes them
    /// Seconds that the server may be silent before the connection counts as lost, unless the
    /// connect options say otherwise; 0 for any time. Far more than a statement takes on a healthy
    /// site.
    uint readTimeout = 120;

    /// The server as a user knows it: the path of the socket, or host:port.
    QString server() const;
};

/// Where a program finds its connection besides on its command line.
struct DatabaseSources {
    const char *passwordVariable; ///< environment variable that holds the password
    QString file; ///< the ConnectionFile that is read by default; empty for none
};

/// Adds the options that name the attendance database. There is none for the password itself:
/// every user of the machine can read a command line.
void addDatabaseOptions(QCommandLineParser &parser, const DatabaseSources &sources);

/// Whether the command line names a database. A program that can do without one checks this before
/// it reads the options: the connection file alone does not request one.
bool hasDatabaseOptions(const QCommandLineParser &parser);

/// Reads each option from the command line, or else from the connection file: the one that the
/// command line names, or else that of the sources if it exists.
///
/// The password is that of --password-file, or else of the environment variable, or else of the
/// connection file when the user is the file's, too. The variable is overwritten and removed, so
/// that nobody sees it and child processes do not inherit it.
///
/// Returns what is wrong, a sentence without its full stop; empty on success. \a warning is such a
/// sentence when every user of the machine can read the password.
QString readDatabaseOptions(const QCommandLineParser &parser, const DatabaseSources &sources,
                            DatabaseOptions &options, QString &warning);
