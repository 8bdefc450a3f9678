#pragma once

#include <QString>
#include <QStringList>

class QCommandLineParser;

/// The options that every program has: -h and --help, or the word "help" alone, and -v and
/// --version.
namespace StandardOptions {

/// Adds the options to a parser.
void addTo(QCommandLineParser &parser);

/// Whether a command line requests the help text. \a arguments are those that were parsed, the
/// program's name first.
bool wantsHelp(const QCommandLineParser &parser, const QStringList &arguments);

/// Whether a parsed command line requests the version.
bool wantsVersion(const QCommandLineParser &parser);

/// The answer to --version, such as "yavhost 1.5.3", without a line feed.
QString versionText(const QString &program);

} // namespace StandardOptions
