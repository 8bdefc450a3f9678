// The table of keys: what each puts in force.

#include "mirovahrctl/checkconfig/configassessment.h"

#include "mirovahrctl/report/wording.h"
#include "worker/importfile.h"
#include "worker/schedule.h"

#include <QSettings>

namespace {

QString duration(quint64 milliseconds)
{
    const quint64 seconds = milliseconds / 1000;
    QString text = QStringLiteral("%1 s").arg(double(milliseconds) / 1000.0);
    if (seconds >= 3600)
        text += QStringLiteral(" (%1 h %2 min)").arg(seconds / 3600).arg(seconds % 3600 / 60);
    return text;
}

int tick(const Configuration &config)
{
    return Schedule::timerInterval(Schedule::tickPeriod(config.tickMilliseconds));
}

QString synchronisations(const Configuration &config)
{
    const quint32 ticks = Schedule::ticksPerSynchronisation(config.syncInterval);
    return QStringLiteral("a synchronisation at the first tick, then every %1, which is %2")
        .arg(Wording::counted(ticks, QStringLiteral("tick"), QStringLiteral("ticks")),
             duration(quint64(ticks) * quint64(tick(config))));
}

QString commandRun(unsigned char condition)
{
    switch (condition) {
    case 0:
        return QStringLiteral("the command is never run");
    case 1:
        return QStringLiteral("the command is run before a forced synchronisation only");
    default:
        return QStringLiteral("the command is run before every synchronisation");
    }
}

QString yesOrNo(bool flag, const char *yes, const char *no)
{
    return QString::fromLatin1(flag ? yes : no);
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
        add("enabled", yesOrNo(m_config.enabled, "the plugin works", "the plugin does nothing"));
        add("timerInterval",
            QStringLiteral("a tick every %1").arg(duration(quint64(tick(m_config)))));
        add("syncInterval", synchronisations(m_config));
        add("testMode",
            yesOrNo(m_config.testMode, "people are only logged, not written",
                    "people are written"));
        add("departmentId",
            m_config.departmentId == 0
                ? QStringLiteral("people have no department")
                : QStringLiteral("people are in department %1").arg(m_config.departmentId));
    }

    void addImport()
    {
        add("importFile",
            QStringLiteral("the export is read from %1")
                .arg(ImportFile::path(m_config.importFile)));
        add("deleteFile",
            yesOrNo(m_config.deleteFile, "the export is removed after it was read",
                    "the export stays and is read again"));
        add("syncCommand",
            m_config.syncCommand.isEmpty() ? QStringLiteral("no command") : m_config.syncCommand);
        add("syncCommandRun", commandRun(m_config.syncCommandRun));
    }

    void addMessages()
    {
        const QStringList keys = Configuration::messageKeys(m_settings);
        for (const QString &key : keys) {
            const unsigned short code = Configuration::messageCode(key);
            add(QStringLiteral("MES/") + key,
                QStringLiteral("register state %1 is %2")
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
            {{QStringLiteral("key"), QStringLiteral("Key")},
             {QStringLiteral("written"), QStringLiteral("In the file")},
             {QStringLiteral("inForce"), QStringLiteral("In force")}},
            Rows(*m_settings, m_config).take()};
}
