#include "mirovahrctl/report/exitstatus.h"

namespace {

struct Description {
    ExitStatus status;
    const char *word;
    const char *sentence;
};

/// In the order of their numbers.
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

} // namespace

QString exitStatusWord(ExitStatus status)
{
    return QString::fromLatin1(kDescriptions[static_cast<int>(status)].word);
}

QString exitStatusHelp()
{
    QMap<int, QString> sentences;
    for (const Description &description : kDescriptions) {
        sentences.insert(static_cast<int>(description.status),
                         QString::fromLatin1(description.sentence));
    }
    return CommonStatus::help(sentences);
}
