#include "mirovahrctl/pluginside/pluginconfiguration.h"

#include "cli/text.h"
#include "mirovahrctl/program/commandline.h"
#include "mirovahrctl/program/console.h"

#include <QFileInfo>
#include <QSettings>

void PluginConfiguration::addTo(CommandLine &line)
{
    line.addOption("config", Text::tr("file"),
                   Text::tr("The plugin's INI file; /etc/yav/MirovaHR.ini by default."));
}

std::optional<ExitStatus> PluginConfiguration::read(const CommandLine &line, Console &console)
{
    const bool isNamed = line.isSet("config");
    m_path = isNamed ? line.value("config") : QString(Configuration::kPath);
    const QFileInfo info(m_path);
    m_exists = info.isFile();
    if (isNamed && !m_exists)
        return console.fail(ExitStatus::Usage, Text::tr("There is no file '%1'").arg(m_path));
    if (m_exists && !info.isReadable())
        return console.fail(ExitStatus::Usage, Text::tr("'%1' cannot be read").arg(m_path));
    m_values = Configuration::read(*Configuration::open(m_path));
    return std::nullopt;
}

QString PluginConfiguration::origin() const
{
    return m_exists ? Text::tr("The configuration is that of %1.").arg(m_path)
                    : Text::tr("There is no file %1 here: this holds for a plugin with its "
                               "defaults.")
                          .arg(m_path);
}
