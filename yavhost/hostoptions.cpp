#include "yavhost/hostoptions.h"

#include "cli/numberoption.h"
#include "cli/standardoptions.h"
#include "yavhost/exitstatus.h"

#include <QCommandLineParser>

namespace {

constexpr char kPasswordVariable[] = "YAVHOST_PASSWORD";

/// No default file: that of mirovahrctl names an account that only reads.
DatabaseSources databaseSources()
{
    return {kPasswordVariable, QString()};
}

QString description()
{
    return QStringLiteral(
               "Runs a plugin of the attendance server: loads it, passes it a connection to the "
               "attendance\n"
               "database, starts it and keeps it until a signal comes.\n"
               "\n"
               "The password is read from --password-file, from the environment variable %1\n"
               "or from --defaults-file.\n"
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

void describe(QCommandLineParser &parser)
{
    parser.setApplicationDescription(description());
    StandardOptions::addTo(parser);
    parser.addPositionalArgument(QStringLiteral("library"),
                                 QStringLiteral("The plugin, libmirovahr.so."));
    parser.addOption({QStringLiteral("version-info"),
                      QStringLiteral("Print the plugin's version information, and end.")});
    parser.addOption(
        {QStringLiteral("once"),
         QStringLiteral(
             "End after the first synchronisation. The plugin's first tick starts it.")});
    parser.addOption({QStringLiteral("debug-level"),
                      QStringLiteral("0 none, 1 normal (default), 2 and more verbose."),
                      QStringLiteral("level")});
    addDatabaseOptions(parser, databaseSources());
}

QString readOptions(const QCommandLineParser &parser, HostOptions &options)
{
    if (parser.positionalArguments().size() != 1)
        return QStringLiteral("Name one library");
    options.library = parser.positionalArguments().constFirst();
    options.versionInfo = parser.isSet(QStringLiteral("version-info"));
    options.once = parser.isSet(QStringLiteral("once"));
    uint level = options.debugLevel;
    if (!readNumberOption(parser, QStringLiteral("debug-level"), 255, level))
        return QStringLiteral("The debug level is a number from 0 to 255");
    options.debugLevel = static_cast<unsigned char>(level);
    if (options.versionInfo) {
        return {};
    }
    return readDatabaseOptions(parser, databaseSources(), options.database, options.warning);
}

} // namespace

ParsedCommandLine parseCommandLine(const QStringList &arguments)
{
    QCommandLineParser parser;
    describe(parser);
    ParsedCommandLine result;
    if (!parser.parse(arguments)) {
        result.error = parser.errorText();
    } else if (StandardOptions::wantsHelp(parser, arguments)) {
        result.answer = parser.helpText();
    } else if (StandardOptions::wantsVersion(parser)) {
        result.answer = StandardOptions::versionText(QStringLiteral("yavhost")) + QLatin1Char('\n');
    } else {
        result.error = readOptions(parser, result.options);
    }
    return result;
}
