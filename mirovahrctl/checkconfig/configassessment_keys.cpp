// The table of keys: what each puts in force.

#include "mirovahrctl/checkconfig/configassessment.h"

#include "cli/text.h"
#include "mirovahrctl/report/language.h"
#include "mirovahrctl/report/wording.h"
#include "worker/importfile.h"
#include "worker/schedule.h"

#include <QSettings>

namespace {

/// Enough for all milliseconds of a tick.
constexpr int kDigits = 10;

QString duration(quint64 milliseconds)
{
    const quint64 seconds = milliseconds / 1000;
    QString text = QStringLiteral("%L1 s").arg(double(milliseconds) / 1000.0, 0, 'g', kDigits);
    if (seconds >= 3600)
        text += QStringLiteral(" (%L1 h %2 min)").arg(seconds / 3600).arg(seconds % 3600 / 60);
    return text;
}

int tick(const Configuration &config)
{
    return Schedule::timerInterval(Schedule::tickPeriod(config.tickMilliseconds));
}

QString synchronisations(const Configuration &config)
{
    const quint32 ticks = Schedule::ticksPerSynchronisation(config.syncInterval);
    return Text::tr("a synchronisation at the first tick, then every %Ln tick(s), which is %1",
                    nullptr, Language::count(ticks))
        .arg(duration(quint64(ticks) * quint64(tick(config))));
}

QString commandRun(unsigned char condition)
{
    switch (condition) {
    case 0:
        return Text::tr("the command is never run");
    case 1:
        return Text::tr("the command is run before a forced synchronisation only");
    default:
        return Text::tr("the command is run before every synchronisation");
    }
}

QVariant written(const QSettings &settings, const QString &key)
{
    if (!settings.contains(key))
        return {};
    // A list when the text has unquoted commas.
    return settings.value(key).toStringList().join(QLatin1Char(','));
}

class Rows {
public:
    Rows(QSettings &settings, const Configuration &config)
        : m_settings(settings)
        , m_config(config)
    {
    }

    QVector<QVariantList> take()
    {
        addOperation();
        addImport();
        addMessages();
        return m_rows;
    }

private:
    void addOperation()
    {
        add("enabled",
            m_config.enabled ? Text::tr("the plugin works") : Text::tr("the plugin does nothing"));
        add("timerInterval", Text::tr("a tick every %1").arg(duration(quint64(tick(m_config)))));
        add("syncInterval", synchronisations(m_config));
        add("testMode",
            m_config.testMode ? Text::tr("people are only logged, not written")
                              : Text::tr("people are written"));
        add("departmentId",
            m_config.departmentId == 0
                ? Text::tr("people have no department")
                : Text::tr("people are in department %1").arg(m_config.departmentId));
    }

    void addImport()
    {
        add("importFile",
            Text::tr("the export is read from %1").arg(ImportFile::path(m_config.importFile)));
        add("deleteFile",
            m_config.deleteFile ? Text::tr("the export is removed after it was read")
                                : Text::tr("the export stays and is read again"));
        add("syncCommand",
            m_config.syncCommand.isEmpty() ? Text::tr("no command") : m_config.syncCommand);
        add("syncCommandRun", commandRun(m_config.syncCommandRun));
    }

    void addMessages()
    {
        const QStringList keys = Configuration::messageKeys(m_settings);
        for (const QString &key : keys) {
            const unsigned short code = Configuration::messageCode(key);
            add(QStringLiteral("MES/") + key,
                Text::tr("register state %1 is %2")
                    .arg(QString::number(code), Wording::quoted(m_config.messages.value(code))));
        }
    }

    void add(const char *key, const QString &inForce) { add(QString::fromLatin1(key), inForce); }

    void add(const QString &key, const QString &inForce)
    {
        m_rows.append({key, written(m_settings, key), inForce});
    }

    QSettings &m_settings;
    const Configuration &m_config;
    QVector<QVariantList> m_rows;
};

} // namespace

Table ConfigAssessment::keys() const
{
    return {QStringLiteral("keys"),
            {{QStringLiteral("key"), Text::tr("Key")},
             {QStringLiteral("written"), Text::tr("In the file")},
             {QStringLiteral("inForce"), Text::tr("In force")}},
            Rows(*m_settings, m_config).take()};
}
