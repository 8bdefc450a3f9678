// The configuration: the columns can hold the values of the plugin's INI file.

#include "cli/text.h"
#include "db/tepdbcontract.h"
#include "mirovahrctl/checkdb/dbassessment.h"
#include "mirovahrctl/checkdb/dbrules.h"
#include "mirovahrctl/pluginside/pluginconfiguration.h"
#include "mirovahrctl/report/reportwriter.h"
#include "mirovahrctl/report/rules/checkdbrules.h"
#include "mirovahrctl/report/wording.h"
#include "mirovahrctl/site/columnrange.h"
#include "mirovahrctl/site/dbschema.h"

#include <QMap>

namespace {

constexpr const TepDbContract::Column &kDepartment = TepDbContract::columnOfKey("departmentId");
constexpr const TepDbContract::Column &kStateText = TepDbContract::columnOfKey("MES");

/// Whether a text survives the character set %2.
constexpr char kSelectIsKept[] = "SELECT CONVERT(%1 USING utf8mb4) COLLATE utf8mb4_bin"
                                 " = CONVERT(CONVERT(%1 USING %2) USING utf8mb4)";

void checkDepartment(DbAssessment &check, const DbColumn &column, uint department)
{
    const QString field = kDepartment.fullName();
    const auto held = ColumnRange::of(column);
    if (department == 0 && !column.nullable) {
        check.reportViolation(
            CheckDbRules::kColumnNotNull, field,
            Text::tr("The column %1 does not allow NULL, which the plugin writes because "
                     "departmentId is 0 in the configuration")
                .arg(field));
    } else if (department != 0 && held && !held->holds({double(department), double(department)})) {
        check.reportViolation(
            CheckDbRules::kDepartmentTooLarge, field,
            Text::tr("The column %1 is %2 and cannot hold the department of the "
                     "configuration, %3: nobody is created or updated, or everybody gets "
                     "another department where no strict SQL mode is on")
                .arg(field, column.fullType, QString::number(department)));
    }
}

/// MySQL and MariaDB give the length of a TEXT in bytes, that of a CHAR in characters.
bool isTooLong(const QString &text, const DbColumn &column)
{
    const bool inBytes = column.type.endsWith(QLatin1String("text"))
        && column.charset.startsWith(QLatin1String("utf8"));
    return (inBytes ? text.toUtf8().size() : text.toUcs4().size()) > column.length;
}

bool isKept(DbAssessment &check, const QString &text, const QString &charset)
{
    if (charset.isEmpty() || charset.startsWith(QLatin1String("utf8")))
        return true;
    const QString sql = QString::fromLatin1(kSelectIsKept).arg(SqlSession::literal(text), charset);
    return check.sql().value(sql).toInt() != 0;
}

void checkStateText(DbAssessment &check, const DbColumn &column, ushort code, const QString &text)
{
    const QString field = kStateText.fullName();
    if (isTooLong(text, column)) {
        check.reportViolation(
            CheckDbRules::kStateTextTooLong, field,
            Text::tr("The column %1 is %2; the text of register state %3 in the configuration is "
                     "longer, %4: people in this state are refused, or their text is cut where no "
                     "strict SQL mode is on")
                .arg(field, column.fullType, QString::number(code), Wording::quoted(text)));
    } else if (!isKept(check, text, column.charset)) {
        check.reportViolation(
            CheckDbRules::kStateTextLetters, field,
            Text::tr(
                "The column %1 has the character set %2, which lacks letters of the text of "
                "register state %3 in the configuration, %4: people in this state are refused, "
                "or get question marks where no strict SQL mode is on")
                .arg(field, column.charset, QString::number(code), Wording::quoted(text)));
    }
}

} // namespace

void DbRules::checkConfiguration(DbAssessment &check, const DbSchema &schema,
                                 const PluginConfiguration &configuration)
{
    check.begin("configuration", Text::tr("Configuration"));
    check.writer().sentence(configuration.origin());
    const DbColumn *const department = schema.column(kDepartment);
    if (department != nullptr)
        checkDepartment(check, *department, configuration.values().departmentId);
    const DbColumn *const text = schema.column(kStateText);
    const auto &messages = configuration.values().messages;
    QMap<ushort, QString> states;
    for (auto it = messages.cbegin(); it != messages.cend(); ++it)
        states.insert(it.key(), it.value());
    for (auto it = states.cbegin(); text != nullptr && it != states.cend(); ++it)
        checkStateText(check, *text, it.key(), it.value());
    check.end(Text::tr("The columns can hold its department and its relationship states."));
}
