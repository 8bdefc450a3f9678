#include "mirovahrctl/pluginside/forceflag.h"

#include "cli/text.h"
#include "db/tepdbsettings.h"
#include "mirovahrctl/pluginside/pluginlog.h"
#include "worker/schedule.h"

ForceFlag::ForceFlag(const QSqlDatabase &db)
    : m_db(db)
{
}

std::optional<bool> ForceFlag::isSet()
{
    const PluginLog log;
    const bool on = TepDbSettings(m_db).variableGet(Schedule::kForceSyncKey, QVariant()).toBool();
    if (log.problems().isEmpty())
        return on;
    m_error = Text::tr("The force flag cannot be read: %1").arg(log.problems());
    return std::nullopt;
}

bool ForceFlag::set(bool on)
{
    const PluginLog log;
    if (TepDbSettings(m_db).variableSet(Schedule::kForceSyncKey, on ? 1 : 0))
        return true;
    m_error = Text::tr("The force flag cannot be written: %1").arg(log.problems());
    return false;
}
