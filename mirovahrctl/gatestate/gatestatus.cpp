#include "mirovahrctl/gatestate/gatestatus.h"

#include "cli/systemmessage.h"
#include "cli/text.h"
#include "mirovahrctl/gatestate/gatefile.h"
#include "mirovahrctl/gatestate/gatefolder.h"
#include "mirovahrctl/gatestate/gatetexts.h"
#include "mirovahrctl/report/moment.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

namespace {

const QLatin1String kResult("result");
const QLatin1String kTime("time");
const QLatin1String kReasons("reasons");
const QLatin1String kOverridden("overridden");
const QLatin1String kLastAdmitted("lastAdmitted");
const QLatin1String kFile("file");
const QLatin1String kLines("lines");
const QLatin1String kDelivered("delivered");
const QLatin1String kTexts("texts");
const QLatin1String kLinesWithErrors("linesWithErrors");
const QLatin1String kLinesWithWarnings("linesWithWarnings");

constexpr char kAdmitted[] = "admitted";
constexpr char kRefused[] = "refused";

/// For everybody who may enter the folder: the file names no person.
constexpr mode_t kPermissions = 0644;

QString now()
{
    return Moment::fileText(QDateTime::currentDateTime());
}

/// In whatever zone it was written.
QDateTime readMoment(const QJsonValue &value)
{
    return QDateTime::fromString(value.toString(), Qt::ISODateWithMs);
}

std::optional<qint64> readTime(const QJsonValue &value)
{
    const QDateTime time = readMoment(value);
    return time.isValid() ? std::make_optional(time.toSecsSinceEpoch()) : std::nullopt;
}

std::optional<qint64> readNumber(const QJsonValue &value)
{
    return value.isDouble() ? std::make_optional(qint64(value.toDouble())) : std::nullopt;
}

QStringList readTexts(const QJsonArray &values)
{
    QStringList texts;
    for (const QJsonValue &value : values) {
        if (value.isString())
            texts += value.toString();
    }
    return texts;
}

/// The object with the members of another one.
QJsonObject with(QJsonObject object, const QJsonObject &members)
{
    for (auto member = members.begin(); member != members.end(); ++member)
        object.insert(member.key(), member.value());
    return object;
}

/// Readers join the reasons to one sentence.
QJsonArray withoutFullStops(const QStringList &sentences)
{
    QJsonArray array;
    for (const QString &sentence : sentences)
        array << (sentence.endsWith(QLatin1Char('.')) ? sentence.chopped(1) : sentence);
    return array;
}

} // namespace

QString GateStatus::fileName()
{
    return QStringLiteral("status.json");
}

std::optional<GateStatus> GateStatus::read(const QString &path, QString &error)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        error = Text::tr("The gate's status file '%1' cannot be read: %2")
                    .arg(path, systemMessage(file.errorString()));
        return std::nullopt;
    }
    const auto status = parse(file.readAll());
    if (!status)
        error = Text::tr("'%1' is not a status file of the gate").arg(path);
    return status;
}

std::optional<GateStatus> GateStatus::parse(const QByteArray &text)
{
    const QJsonDocument document = QJsonDocument::fromJson(text);
    if (!document.isObject())
        return std::nullopt;
    GateStatus status;
    status.m_document = document.object();
    return status;
}

bool GateStatus::isRefused() const
{
    return m_document.value(kResult).toString() == QLatin1String(kRefused);
}

std::optional<qint64> GateStatus::time() const
{
    return readTime(m_document.value(kTime));
}

QStringList GateStatus::reasons() const
{
    return readTexts(m_document.value(kReasons).toArray());
}

std::optional<qint64> GateStatus::admittedTime() const
{
    return readTime(lastAdmitted().value(kTime));
}

QString GateStatus::admittedFile() const
{
    return lastAdmitted().value(kFile).toString();
}

std::optional<qint64> GateStatus::admittedLines() const
{
    return readNumber(lastAdmitted().value(kLines));
}

std::optional<Backslash> GateStatus::admittedTexts() const
{
    return GateTexts::ofWord(lastAdmitted().value(kTexts).toString());
}

std::optional<qint64> GateStatus::linesWithErrors() const
{
    return readNumber(m_document.value(kLinesWithErrors));
}

std::optional<qint64> GateStatus::linesWithWarnings() const
{
    return readNumber(m_document.value(kLinesWithWarnings));
}

bool GateStatus::load(GateFolder &folder)
{
    const auto content = folder.contentOf(fileName());
    if (content)
        *this = parse(*content).value_or(GateStatus());
    return content.has_value();
}

void GateStatus::setLines(qint64 withErrors, qint64 withWarnings)
{
    m_lines = {{kLinesWithErrors, withErrors}, {kLinesWithWarnings, withWarnings}};
}

void GateStatus::refuse(const QStringList &reasons)
{
    finish(kRefused, reasons, {}, lastAdmitted());
}

void GateStatus::admit(const Admission &admission)
{
    finish(kAdmitted, {}, admission.overridden,
           with({{kTime, now()},
                 {kFile, admission.file},
                 {kLines, admission.lines},
                 {kDelivered, Moment::exactText(admission.delivered)},
                 {kOverridden, withoutFullStops(admission.overridden)},
                 {kTexts, GateTexts::word(admission.texts)}},
                m_lines));
}

void GateStatus::admitAgain(const Admission &admission)
{
    QJsonObject last = lastAdmitted();
    if (readMoment(last.value(kDelivered)) != admission.delivered) {
        admit(admission);
        return;
    }
    last.insert(kTexts, GateTexts::word(admission.texts));
    finish(kAdmitted, {}, {}, last);
}

bool GateStatus::write(GateFolder &folder, QString &error) const
{
    GateFile file(folder, fileName(), kPermissions);
    if (file.create()) {
        file.device().write(QJsonDocument(m_document).toJson());
        if (file.finish() && file.putInPlace())
            return true;
    }
    error = file.errorString();
    return false;
}

QJsonObject GateStatus::lastAdmitted() const
{
    return m_document.value(kLastAdmitted).toObject();
}

void GateStatus::finish(const char *result, const QStringList &reasons,
                        const QStringList &overridden, const QJsonObject &lastAdmitted)
{
    m_document = with({{kResult, QLatin1String(result)},
                       {kTime, now()},
                       {kReasons, withoutFullStops(reasons)},
                       {kOverridden, withoutFullStops(overridden)}},
                      m_lines);
    if (!lastAdmitted.isEmpty())
        m_document.insert(kLastAdmitted, lastAdmitted);
}
