#include "mirovahrctl/report/exitstatus.h"

#include "cli/text.h"

namespace {

struct Description {
    ExitStatus status;
    const char *word;
    const char *sentence;
};

/// In the order of their numbers.
constexpr Description kDescriptions[] = {
    {ExitStatus::Fine, "fine", QT_TRANSLATE_NOOP("Text", "No findings")},
    {ExitStatus::Findings, "findings",
     QT_TRANSLATE_NOOP("Text", "There are findings that need attention")},
    {ExitStatus::Usage, "usage",
     QT_TRANSLATE_NOOP(
         "Text", "The command line, a file that it names, or the configuration cannot be used")},
    {ExitStatus::NoDatabase, "no-database",
     QT_TRANSLATE_NOOP("Text", "The database cannot be reached or used")},
    {ExitStatus::ContractBroken, "contract-broken",
     QT_TRANSLATE_NOOP("Text", "The database violates what the plugin relies on")},
    {ExitStatus::GuardTripped, "guard-tripped",
     QT_TRANSLATE_NOOP("Text", "A safeguard refused the request; nothing was changed")},
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
        sentences.insert(static_cast<int>(description.status), Text::tr(description.sentence));
    }
    return CommonStatus::help(sentences);
}
