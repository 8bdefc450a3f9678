#include "mirovahrctl/report/exitstatus.h"

#include <QStringList>

namespace {

struct Description {
    ExitStatus status;
    const char *word;
    const char *sentence;
};

constexpr Description kDescriptions[] = {
    {ExitStatus::Fine, "fine", "Nothing to object to"},
    {ExitStatus::Findings, "findings", "There are findings: somebody should look at them"},
    {ExitStatus::Usage, "usage",
     "The command line, a file that it names or the configuration is of no use"},
    {ExitStatus::NoDatabase, "no-database", "The database cannot be reached or used"},
    {ExitStatus::ContractBroken, "contract-broken",
     "The database is not what the plugin relies on"},
    {ExitStatus::GuardTripped, "guard-tripped",
     "A guard refused what was asked for; nothing was changed"},
};

const Description &descriptionOf(ExitStatus status)
{
    return kDescriptions[static_cast<int>(status)];
}

} // namespace

QString exitStatusSentence(ExitStatus status)
{
    return QString::fromLatin1(descriptionOf(status).sentence);
}

QString exitStatusWord(ExitStatus status)
{
    return QString::fromLatin1(descriptionOf(status).word);
}

QString exitStatusHelp()
{
    QStringList lines{QStringLiteral("Exit status:")};
    for (const Description &description : kDescriptions) {
        lines << QStringLiteral("  %1  %2")
                     .arg(static_cast<int>(description.status))
                     .arg(QString::fromLatin1(description.sentence));
    }
    return lines.join(QLatin1Char('\n'));
}
