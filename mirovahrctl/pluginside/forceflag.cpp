#include "mirovahrctl/pluginside/forceflag.h"

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
    m_error = log.problems();
    return m_error.isEmpty() ? std::make_optional(on) : std::nullopt;
}

bool ForceFlag::set(bool on)
{
    const PluginLog log;
    const bool done = TepDbSettings(m_db).variableSet(Schedule::kForceSyncKey, on ? 1 : 0);
    m_error = log.problems();
    return done;
}
