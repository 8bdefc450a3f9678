#include "mirovahrctl/report/exitstatus.h"

namespace {

struct Description {
    ExitStatus status;
    const char *word;
    const char *sentence;
};

/// In the order of their numbers.
constexpr Description kDescriptions[] = {
    {ExitStatus::Fine, "fine", "No findings"},
    {ExitStatus::Findings, "findings", "There are findings that need attention"},
    {ExitStatus::Usage, "usage",
     "The command line, a file that it names, or the configuration cannot be used"},
    {ExitStatus::NoDatabase, "no-database", "The database cannot be reached or used"},
    {ExitStatus::ContractBroken, "contract-broken",
     "The database violates what the plugin relies on"},
    {ExitStatus::GuardTripped, "guard-tripped",
     "A safeguard refused the request; nothing was changed"},
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
