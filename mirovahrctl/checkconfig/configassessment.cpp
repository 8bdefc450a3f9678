#include "mirovahrctl/checkconfig/configassessment.h"

#include "cli/text.h"
#include "db/tepdbcontract.h"
#include "mirovahrctl/report/language.h"
#include "mirovahrctl/report/rules/checkconfigrules.h"
#include "mirovahrctl/report/wording.h"
#include "worker/schedule.h"

#include <QFileInfo>
#include <QSettings>

#include <algorithm>
#include <limits>

namespace {

const QLatin1String kFlags[] = {QLatin1String("enabled"), QLatin1String("testMode"),
                                QLatin1String("deleteFile")};
const QLatin1String kNumbers[] = {QLatin1String("timerInterval"), QLatin1String("syncInterval"),
                                  QLatin1String("syncCommandRun"), QLatin1String("departmentId")};
const QLatin1String kTexts[] = {QLatin1String("importFile"), QLatin1String("syncCommand")};

/// What the narrowest integer type holds.
constexpr uint kLargestEverywhere = 127;

QStringList knownKeys()
{
    QStringList keys;
    std::copy(std::begin(kFlags), std::end(kFlags), std::back_inserter(keys));
    std::copy(std::begin(kNumbers), std::end(kNumbers), std::back_inserter(keys));
    std::copy(std::begin(kTexts), std::end(kTexts), std::back_inserter(keys));
    return keys;
}

/// The known key that was probably meant: the same letters in another case, or the same key in
/// another group.
QString meantKey(const QString &key)
{
    const QString name = key.section(QLatin1Char('/'), -1);
    const QStringList known = knownKeys();
    const auto found =
        std::find_if(known.cbegin(), known.cend(), [&name](const QString &candidate) {
            return candidate.compare(name, Qt::CaseInsensitive) == 0;
        });
    return found == known.cend() ? QString() : *found;
}

QString unknownKeyAdvice(const QString &key)
{
    if (key.section(QLatin1Char('/'), -1).startsWith(QLatin1Char('#')))
        return Text::tr("Begin comments with a semicolon, not with #.");
    const QString meant = meantKey(key);
    if (meant.isEmpty()) {
        return Text::tr("Remove the line, or see the sample MirovaHR.ini for the known keys.");
    }
    return Text::tr("Perhaps %1 is meant: keys are case-sensitive, and this one belongs "
                    "before the first group.")
        .arg(meant);
}

bool isPlainFlag(const QString &text)
{
    static const QStringList plain{QStringLiteral("true"), QStringLiteral("false"),
                                   QStringLiteral("0"),    QStringLiteral("1"),
                                   QStringLiteral("yes"),  QStringLiteral("on")};
    return plain.contains(text, Qt::CaseInsensitive);
}

} // namespace

ConfigAssessment::ConfigAssessment(const QString &path)
    : m_path(path)
    , m_lines(readIniLines(path))
    , m_settings(Configuration::open(path))
    , m_config(Configuration::read(*m_settings))
{
}

ConfigAssessment::~ConfigAssessment() = default;

QVector<Finding> ConfigAssessment::findings()
{
    m_findings.clear();
    checkFile();
    checkKeys();
    for (const QLatin1String key : kFlags)
        checkFlag(key);
    for (const QLatin1String key : kNumbers)
        checkNumber(key);
    for (const QLatin1String key : kTexts)
        checkText(key);
    checkOperation();
    checkPeriods();
    checkImportFile();
    checkSyncCommand();
    checkGate();
    checkMessages();
    std::stable_sort(m_findings.begin(), m_findings.end(),
                     [](const Finding &a, const Finding &b) { return a.line < b.line; });
    return m_findings;
}

void ConfigAssessment::checkFile()
{
    if (!QFileInfo::exists(m_path)) {
        add(CheckConfigRules::kFileMissing, {},
            Text::tr("The file does not exist: every key has its default."));
        return;
    }
    if (m_settings->status() == QSettings::FormatError) {
        add(CheckConfigRules::kFileFormat, {},
            Text::tr("The file has lines that are neither key=value, nor [group], nor a "
                     "comment; they are ignored."));
    }
    if (QFileInfo(m_path).permission(QFileDevice::WriteOther)) {
        add(CheckConfigRules::kFileWorldWritable, {},
            Text::tr("Every user of the machine can change this file, and with syncCommand "
                     "run programs as the attendance server."),
            Text::tr("Remove the permission: chmod o-w '%1'.").arg(m_path));
    }
}

void ConfigAssessment::checkKeys()
{
    QStringList seen;
    for (const IniLine &line : m_lines) {
        checkLine(line);
        if (seen.contains(line.key)) {
            add(CheckConfigRules::kKeyTwice, line.key,
                Text::tr("The key occurs more than once; the last line counts."));
        }
        seen << line.key;
    }
}

void ConfigAssessment::checkLine(const IniLine &line)
{
    if (!line.key.startsWith(QLatin1String("MES/")) && !knownKeys().contains(line.key)) {
        add(CheckConfigRules::kUnknownKey, line.key,
            Text::tr("The plugin does not know this key; the line has no effect."),
            unknownKeyAdvice(line.key));
    }
    if (hasUnquoted(line.value, QLatin1Char(';'))) {
        add(CheckConfigRules::kUnquotedSemicolon, line.key,
            Text::tr("The value ends at the semicolon; the rest of the line is a comment."));
    }
}

void ConfigAssessment::checkFlag(const QString &key)
{
    if (!m_settings->contains(key))
        return;
    const QString text = written(key);
    if (isPlainFlag(text))
        return;
    if (m_settings->value(key).toBool()) {
        add(CheckConfigRules::kFlagReadsAsTrue, key,
            Text::tr("%1 is read as true, like everything except 0, false and an empty value.")
                .arg(Wording::quoted(text)));
    } else {
        add(CheckConfigRules::kFlagEmpty, key, Text::tr("An empty value is read as false."));
    }
}

void ConfigAssessment::checkNumber(const QString &key)
{
    if (!m_settings->contains(key))
        return;
    const QVariant value = m_settings->value(key);
    bool isNumber = false;
    const quint64 number = value.toULongLong(&isNumber);
    if (!isNumber) {
        add(CheckConfigRules::kNumberReadsAs0, key,
            Text::tr("%1 is not a whole number and is read as 0.")
                .arg(Wording::quoted(written(key))));
    } else if (number > std::numeric_limits<quint32>::max()) {
        add(CheckConfigRules::kNumberWraps, key,
            Text::tr("%1 is too large and is read as %2.").arg(number).arg(value.toUInt()),
            Text::tr("Write a number up to %1.").arg(std::numeric_limits<quint32>::max()));
    }
}

void ConfigAssessment::checkText(const QString &key)
{
    if (!isList(key))
        return;
    add(CheckConfigRules::kUnquotedComma, key,
        Text::tr("The text has a comma outside quotation marks and is read as empty."));
}

void ConfigAssessment::checkOperation()
{
    const QString enabled = QStringLiteral("enabled");
    if (!m_config.enabled) {
        add(CheckConfigRules::kDisabled, enabled,
            Text::tr("The plugin is switched off: it does nothing at all."));
    }
    if (m_config.testMode) {
        add(CheckConfigRules::kTestMode, QStringLiteral("testMode"),
            Text::tr("Test mode is on: people are neither created nor updated. Branches, "
                     "calendars, balances, supervisors and terminals are still written."));
    }
    if (m_config.departmentId == 0) {
        add(CheckConfigRules::kNoDepartment, QStringLiteral("departmentId"),
            Text::tr("New and updated people belong to no department."));
    } else if (m_config.departmentId > kLargestEverywhere) {
        add(CheckConfigRules::kDepartmentIdLarge, QStringLiteral("departmentId"),
            Text::tr("Whether the database holds the department %1 depends on the type of "
                     "%2 there: check-db --config reports it.")
                .arg(QString::number(m_config.departmentId),
                     TepDbContract::columnOfKey("departmentId").fullName()));
    }
}

void ConfigAssessment::checkPeriods()
{
    const QString key = QStringLiteral("timerInterval");
    const quint32 seconds = m_settings->value(key, 60).toUInt();
    const quint32 tick = Schedule::tickPeriod(m_config.tickMilliseconds);
    if (quint64(seconds) * 1000 != m_config.tickMilliseconds) {
        add(CheckConfigRules::kTickOverflows, key,
            Text::tr("%1 seconds exceed 32 bits of milliseconds: the plugin ticks every %2 ms.")
                .arg(Language::number(seconds), Language::number(tick)));
    } else if (tick != m_config.tickMilliseconds) {
        add(CheckConfigRules::kTickTooShort, key,
            Text::tr("The plugin ticks every second: the period is never shorter."));
    } else if (quint32(Schedule::timerInterval(tick)) != tick) {
        add(CheckConfigRules::kTickTooLong, key,
            Text::tr("The period exceeds the limit of a timer: the plugin ticks every %1 ms.")
                .arg(Language::number(Schedule::timerInterval(tick))));
    }
    if (Schedule::ticksPerSynchronisation(m_config.syncInterval) != m_config.syncInterval) {
        add(CheckConfigRules::kSyncIntervalZero, QStringLiteral("syncInterval"),
            Text::tr("0 counts as 1: every tick synchronises."));
    }
}

QString ConfigAssessment::written(const QString &key) const
{
    // A list when the text has unquoted commas.
    return m_settings->value(key).toStringList().join(QLatin1Char(','));
}

bool ConfigAssessment::isList(const QString &key) const
{
    return m_settings->value(key).type() == QVariant::StringList;
}

qint64 ConfigAssessment::lineOf(const QString &key) const
{
    // The last one is in force.
    const auto found = std::find_if(m_lines.crbegin(), m_lines.crend(),
                                    [&key](const IniLine &line) { return line.key == key; });
    return found == m_lines.crend() ? 0 : found->number;
}

void ConfigAssessment::add(const Rule &rule, const QString &key, const QString &message,
                           const QString &advice)
{
    Finding finding = makeFinding(rule, message, advice);
    finding.line = lineOf(key);
    finding.field = key;
    m_findings.append(finding);
}
