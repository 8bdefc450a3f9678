#include "plugin/configuration.h"

#include "worker/schedule.h"

#include <QSettings>

namespace {

const QLatin1String kMessageGroup("MES");

QHash<unsigned short, QString> readMessages(QSettings &settings)
{
    QHash<unsigned short, QString> messages;
    const QStringList keys = Configuration::messageKeys(settings);
    settings.beginGroup(kMessageGroup);
    for (const QString &key : keys) {
        messages[Configuration::messageCode(key)] =
            QString::fromUtf8(settings.value(key).toByteArray());
    }
    settings.endGroup();
    return messages;
}

} // namespace

bool Configuration::runsCommand(bool forced) const
{
    return Schedule::isCommandDue(syncCommandRun, forced) && !syncCommand.isEmpty();
}

std::unique_ptr<QSettings> Configuration::open(const QString &path)
{
    auto settings = std::make_unique<QSettings>(path, QSettings::IniFormat);
    settings->setIniCodec("UTF-8");
    return settings;
}

Configuration Configuration::read(QSettings &settings)
{
    const auto number = [&settings](const char *key, unsigned int fallback) {
        return settings.value(QLatin1String(key), fallback).toUInt();
    };
    const auto flag = [&settings](const char *key, bool fallback) {
        return settings.value(QLatin1String(key), fallback).toBool();
    };
    const auto text = [&settings](const char *key) {
        return settings.value(QLatin1String(key)).toString();
    };

    Configuration config;
    config.enabled = flag("enabled", config.enabled);
    // In 32 bits: a period above 4294967 s wraps around. The behaviour is fixed.
    config.tickMilliseconds = number("timerInterval", 60) * 1000U;
    config.syncInterval = number("syncInterval", config.syncInterval);
    config.testMode = flag("testMode", config.testMode);
    config.importFile = text("importFile");
    config.deleteFile = flag("deleteFile", config.deleteFile);
    config.syncCommand = text("syncCommand");
    // In 8 bits: 257 means 1.
    config.syncCommandRun = static_cast<unsigned char>(number("syncCommandRun", 0));
    config.departmentId = number("departmentId", config.departmentId);
    config.messages = readMessages(settings);
    return config;
}

QStringList Configuration::messageKeys(QSettings &settings)
{
    settings.beginGroup(kMessageGroup);
    const QStringList keys = settings.allKeys();
    settings.endGroup();
    return keys;
}

unsigned short Configuration::messageCode(const QString &key)
{
    return static_cast<unsigned short>(key.toUInt(nullptr, 10));
}
