#include "mirovahrctl/gatestate/gatestatus.h"

#include <QDateTime>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

std::optional<qint64> moment(const QJsonValue &value)
{
    const QDateTime time = QDateTime::fromString(value.toString(), Qt::ISODate);
    return time.isValid() ? std::make_optional(time.toSecsSinceEpoch()) : std::nullopt;
}

std::optional<qint64> number(const QJsonValue &value)
{
    return value.isDouble() ? std::make_optional(qint64(value.toDouble())) : std::nullopt;
}

QStringList texts(const QJsonArray &values)
{
    QStringList texts;
    for (const QJsonValue &value : values) {
        if (value.isString())
            texts += value.toString();
    }
    return texts;
}

} // namespace

std::optional<GateStatus> GateStatus::read(const QString &path, QString &error)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        error = QStringLiteral("The gate's status file '%1' cannot be read: %2")
                    .arg(path, file.errorString());
        return std::nullopt;
    }
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll());
    if (!document.isObject()) {
        error = QStringLiteral("'%1' is no status file of the gate").arg(path);
        return std::nullopt;
    }
    const QJsonObject object = document.object();
    const QJsonObject admitted = object.value(QLatin1String("lastAdmitted")).toObject();
    GateStatus status;
    status.refused = object.value(QLatin1String("result")).toString() == QLatin1String("refused");
    status.time = moment(object.value(QLatin1String("time")));
    status.reasons = texts(object.value(QLatin1String("reasons")).toArray());
    status.admittedTime = moment(admitted.value(QLatin1String("time")));
    status.admittedFile = admitted.value(QLatin1String("file")).toString();
    status.admittedLines = number(admitted.value(QLatin1String("lines")));
    return status;
}
