#include "cli/standardoptions.h"

#include "cli/text.h"

#include <QCommandLineParser>

namespace StandardOptions {

void addTo(QCommandLineParser &parser)
{
    parser.addOption(
        {{QStringLiteral("h"), QStringLiteral("help")}, Text::tr("Print this help and exit.")});
    parser.addOption({{QStringLiteral("v"), QStringLiteral("version")},
                      Text::tr("Print the version and exit.")});
}

bool wantsHelp(const QCommandLineParser &parser, const QStringList &arguments)
{
    return parser.isSet(QStringLiteral("help"))
        || arguments.mid(1) == QStringList(QStringLiteral("help"));
}

bool wantsVersion(const QCommandLineParser &parser)
{
    return parser.isSet(QStringLiteral("version"));
}

QString versionText(const QString &program)
{
    return program + QStringLiteral(" " MIROVAHR_VERSION);
}

} // namespace StandardOptions
