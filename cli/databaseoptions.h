#pragma once

#include <QString>

class QCommandLineParser;

/// How to reach the attendance database.
struct DatabaseOptions {
    QString host; ///< empty when a socket is used
    int port = 0; ///< 0: the server's usual port
    QString socket; ///< path of a UNIX socket; empty when a host is used
    QString name;
    QString user;
    QString password;
    QString connectOptions; ///< as QSqlDatabase::setConnectOptions takes them
};

/// Adds the options that name the attendance database. There is none for the password itself:
/// every user of the machine can read a command line.
void addDatabaseOptions(QCommandLineParser &parser);

/// Whether the command line names a server. A program that can do without a database asks this
/// before it reads the options.
bool hasDatabaseOptions(const QCommandLineParser &parser);

/// Reads the options, and the password from the file that they name or else from the environment
/// variable. The variable is then removed, so that child processes do not inherit it. Returns what
/// does not make sense, a sentence without its full stop; empty when all is well.
QString readDatabaseOptions(const QCommandLineParser &parser, const char *passwordVariable,
                            DatabaseOptions &options);
