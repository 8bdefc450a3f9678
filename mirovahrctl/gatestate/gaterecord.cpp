#include "mirovahrctl/gatestate/gaterecord.h"

#include "mirovahrctl/gatestate/gatefile.h"
#include "mirovahrctl/gatestate/gatefolder.h"
#include "mirovahrctl/report/moment.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace {

const QLatin1String kLastAdmitted("lastAdmitted");
const QLatin1String kDelivered("delivered");
const QLatin1String kOverridden("overridden");

/// For everybody who may enter the folder: there is nobody's name in it.
constexpr mode_t kPermissions = 0644;

QString now()
{
    return Moment::text(QDateTime::currentDateTime());
}

/// In whatever zone it was written.
QDateTime readMoment(const QJsonValue &value)
{
    return QDateTime::fromString(value.toString(), Qt::ISODateWithMs);
}

/// Others join the reasons to one sentence.
QJsonArray withoutFullStops(const QStringList &sentences)
{
    QJsonArray array;
    for (const QString &sentence : sentences)
        array << (sentence.endsWith(QLatin1Char('.')) ? sentence.chopped(1) : sentence);
    return array;
}

} // namespace

QString GateRecord::fileName()
{
    return QStringLiteral("status.json");
}

bool GateRecord::readLast(GateFolder &folder)
{
    const auto content = folder.contentOf(fileName());
    if (content)
        m_lastAdmitted = QJsonDocument::fromJson(*content).object().value(kLastAdmitted).toObject();
    return content.has_value();
}

void GateRecord::refuse(const QStringList &reasons)
{
    finish("refused", reasons, {});
}

void GateRecord::admitAgain(const Admission &admission)
{
    if (readMoment(m_lastAdmitted.value(kDelivered)) == admission.delivered)
        finish("admitted", {}, {});
    else
        admit(admission);
}

void GateRecord::admit(const Admission &admission)
{
    m_lastAdmitted = {
        {QStringLiteral("time"), now()},
        {QStringLiteral("file"), admission.file},
        {QStringLiteral("lines"), admission.lines},
        {kDelivered, Moment::exactText(admission.delivered)},
        {kOverridden, withoutFullStops(admission.overridden)},
    };
    finish("admitted", {}, admission.overridden);
}

void GateRecord::finish(const char *result, const QStringList &reasons,
                        const QStringList &overridden)
{
    m_record = {
        {QStringLiteral("result"), QLatin1String(result)},
        {QStringLiteral("time"), now()},
        {QStringLiteral("reasons"), withoutFullStops(reasons)},
        {kOverridden, withoutFullStops(overridden)},
    };
    if (!m_lastAdmitted.isEmpty())
        m_record.insert(kLastAdmitted, m_lastAdmitted);
}

bool GateRecord::write(GateFolder &folder, QString &error) const
{
    GateFile file(folder, fileName(), kPermissions);
    if (file.create()) {
        file.device().write(QJsonDocument(m_record).toJson());
        if (file.finish() && file.putInPlace())
            return true;
    }
    error = file.errorString();
    return false;
}
