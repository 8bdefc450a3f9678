#pragma once

#include <QString>
#include <QStringList>

class QCommandLineParser;

/// What every program answers about itself: -h and --help, or the word "help" alone, and -v and
/// --version.
namespace StandardOptions {

void addTo(QCommandLineParser &parser);

/// Whether a command line asks for the help text. \a arguments are those that were parsed, the
/// program's name first.
bool wantsHelp(const QCommandLineParser &parser, const QStringList &arguments);

/// Whether a command line that was parsed asks for the version.
bool wantsVersion(const QCommandLineParser &parser);

/// The answer to --version, such as "yavhost 1.5.3", without a line feed.
QString versionText(const QString &program);

} // namespace StandardOptions
