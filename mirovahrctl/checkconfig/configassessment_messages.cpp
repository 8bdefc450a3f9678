// The relationship states: group MES.

#include "mirovahrctl/checkconfig/configassessment.h"

#include "cli/text.h"
#include "db/tepdbcontract.h"
#include "mirovahrctl/export/sqlhazards.h"
#include "mirovahrctl/report/rules/checkconfigrules.h"

#include <QSettings>

namespace {

QString settingsKey(const QString &key)
{
    return QStringLiteral("MES/") + key;
}

} // namespace

void ConfigAssessment::checkMessages()
{
    const QStringList keys = Configuration::messageKeys(*m_settings);
    if (keys.isEmpty()) {
        add(CheckConfigRules::kNoMessages, QStringLiteral("MES"),
            Text::tr("The group defines no relationship state: nobody gets one."));
    }
    for (const QString &key : keys) {
        checkMessageKey(key);
        checkText(settingsKey(key));
        checkMessageText(key);
    }
    checkMessageCollisions(keys);
}

void ConfigAssessment::checkMessageKey(const QString &key)
{
    bool isNumber = false;
    const uint number = key.toUInt(&isNumber, 10);
    const unsigned short code = Configuration::messageCode(key);
    if (!isNumber) {
        add(CheckConfigRules::kMesKeyNoNumber, settingsKey(key),
            Text::tr("The key is not a register state code; it counts as code 0."));
    } else if (number != code) {
        add(CheckConfigRules::kMesKeyWraps, settingsKey(key),
            Text::tr("Only the low 16 bits of the code are kept: it counts as code %1.").arg(code));
    }
}

void ConfigAssessment::checkMessageText(const QString &key)
{
    const QString text = m_settings->value(settingsKey(key)).toString();
    constexpr const TepDbContract::Column &kColumn = TepDbContract::columnOfKey("MES");
    if (text.toUcs4().size() > kColumn.written.room) {
        add(CheckConfigRules::kMesTextTooLong, settingsKey(key),
            Text::tr("The text is longer than the %Ln character(s) that %1 has in "
                     "reference-db/schema.sql: a column of that length refuses people in this "
                     "state, or cuts the text.",
                     nullptr, kColumn.written.room)
                .arg(kColumn.fullName()));
    }
    if (SqlHazards::breaksStatement(text)) {
        add(CheckConfigRules::kMesTextBreaksSql, settingsKey(key),
            Text::tr("The text contains an apostrophe, a backslash, a percent sign followed "
                     "by a digit, or a character above U+FFFF. It enters the SQL statement "
                     "unescaped: nobody in this state can be written."));
    }
}

void ConfigAssessment::checkMessageCollisions(const QStringList &keys)
{
    QHash<unsigned short, QString> inForce;
    for (const QString &key : keys)
        inForce.insert(Configuration::messageCode(key), key);
    for (const QString &key : keys) {
        const unsigned short code = Configuration::messageCode(key);
        const QString winner = inForce.value(code);
        if (key == winner)
            continue;
        add(CheckConfigRules::kMesKeysCollide, settingsKey(key),
            Text::tr("%1 and %2 are the same code %3; the text of %2 is in force.")
                .arg(settingsKey(key), settingsKey(winner), QString::number(code)));
    }
}
