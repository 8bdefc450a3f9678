#include "mirovahrctl/pluginside/interruptions.h"

#include "cli/text.h"
#include "mirovahrctl/report/language.h"

#include <algorithm>
#include <iterator>

namespace {

constexpr std::string_view kMessages[] = {"Deadlock found", "Lock wait timeout exceeded",
                                          "gone away", "Lost connection",
                                          "WSREP has not yet prepared node"};

/// What the texts of the plugin's operations begin with, and the word of every error.
constexpr std::string_view kClasses[] = {
    "MHRWorker::",          "BranchesRepository::", "GroupsPlanRepo::",
    "TermSyncRepository::", "TepDbSettings::",      "variableSet ERROR"};
constexpr std::string_view kError = "ERROR";

template <std::size_t count>
bool hasOneOf(std::string_view text, const std::string_view (&parts)[count])
{
    return std::any_of(std::begin(parts), std::end(parts), [text](std::string_view part) {
        return text.find(part) != std::string_view::npos;
    });
}

} // namespace

bool Interruptions::isIn(std::string_view text)
{
    return hasOneOf(text, kMessages);
}

bool Interruptions::isLoggedIn(std::string_view line)
{
    return isIn(line) && line.find(kError) != std::string_view::npos && hasOneOf(line, kClasses);
}

QString Interruptions::sentence(qint64 count)
{
    return Text::tr("%Ln statement(s) failed through a deadlock, the timeout of a lock, a lost "
                    "connection or a cluster node that was not ready.",
                    nullptr, Language::count(count));
}
