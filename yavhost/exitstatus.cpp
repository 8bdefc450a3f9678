#include "yavhost/exitstatus.h"

namespace {

constexpr ExitStatus kAll[] = {ExitStatus::Success,    ExitStatus::NoPlugin,   ExitStatus::Usage,
                               ExitStatus::NoDatabase, ExitStatus::NotStarted, ExitStatus::Disabled,
                               ExitStatus::NoPeople,   ExitStatus::Interrupted};

} // namespace

QString exitStatusSentence(ExitStatus status)
{
    switch (status) {
    case ExitStatus::Success:
        return QStringLiteral("Everything went well");
    case ExitStatus::NoPlugin:
        return QStringLiteral("The library is not a plugin of the attendance server");
    case ExitStatus::Usage:
        return QStringLiteral("The command line is not understood");
    case ExitStatus::NoDatabase:
        return QStringLiteral("The attendance database could not be opened");
    case ExitStatus::NotStarted:
        return QStringLiteral("The plugin could not start");
    case ExitStatus::Disabled:
        return QStringLiteral("The plugin is disabled by its INI file");
    case ExitStatus::NoPeople:
        return QStringLiteral("The people could not be loaded from the attendance database");
    case ExitStatus::Interrupted:
        return QStringLiteral("A signal came before the first synchronisation was over");
    }
    Q_UNREACHABLE();
}

QString exitStatusHelp()
{
    QMap<int, QString> sentences;
    for (const ExitStatus status : kAll)
        sentences.insert(static_cast<int>(status), exitStatusSentence(status));
    return CommonStatus::help(sentences);
}
