// The connection as its options and the driver establish it.

#include "cli/text.h"
#include "mirovahrctl/checkdb/dbassessment.h"
#include "mirovahrctl/checkdb/dbrules.h"
#include "mirovahrctl/report/reportwriter.h"
#include "mirovahrctl/report/rules/checkdbrules.h"

#include <QStringList>

namespace {

constexpr char kSelectConnection[] = "SELECT CURRENT_USER(), @@character_set_client,"
                                     " @@character_set_connection, @@character_set_results";
constexpr char kTwoStatements[] = "SELECT 1; SELECT 2";

bool isUnicode(const QString &charset)
{
    return charset.startsWith(QLatin1String("utf8"));
}

void checkCharset(DbAssessment &check, const QStringList &row)
{
    if (isUnicode(row.value(1)) && isUnicode(row.value(2)) && isUnicode(row.value(3)))
        return;
    check.report(CheckDbRules::kConnectionCharset, {},
                 Text::tr("The connection's character set is not UTF-8 (client %1, connection %2, "
                          "results %3): accented letters are stored wrongly")
                     .arg(row.value(1), row.value(2), row.value(3)));
}

void checkSeveralStatements(DbAssessment &check)
{
    const bool allowed = !check.attempt(QLatin1String(kTwoStatements)).failed();
    check.writer().fact(QStringLiteral("severalStatements"),
                        Text::tr("Several statements in one text allowed"), allowed);
    if (allowed)
        return;
    check.report(
        CheckDbRules::kSeveralStatements, {},
        Text::tr("The connection refuses several statements in one text. The plugin does not "
                 "need them, but where the attendance server uses the same classes, a "
                 "changed time zone does not reach the terminals"));
}

/// Whether the options make the driver report the rows that an update matched instead of those that
/// it changed.
bool countsFoundRows(const QString &connectOptions)
{
    const QStringList options = connectOptions.split(QLatin1Char(';'));
    for (const QString &option : options) {
        const QString name = option.section(QLatin1Char('='), 0, 0).trimmed();
        const QString value = option.section(QLatin1Char('='), 1).trimmed().toUpper();
        if (name == QLatin1String("CLIENT_FOUND_ROWS"))
            return value.isEmpty() || value == QLatin1String("1") || value == QLatin1String("TRUE");
    }
    return false;
}

void checkAffectedRows(DbAssessment &check, const QString &connectOptions)
{
    if (!countsFoundRows(connectOptions))
        return;
    check.reportViolation(
        CheckDbRules::kFoundRows, {},
        Text::tr("The connect options contain CLIENT_FOUND_ROWS: the plugin then counts rows "
                 "that it left unchanged as changed"));
}

/// Whether the option limits a wait. Qt's driver takes the last of several; 0 is no limit.
bool isLimited(const QString &connectOptions, const QString &limit)
{
    bool limited = false;
    const QStringList options = connectOptions.split(QLatin1Char(';'));
    for (const QString &option : options) {
        if (option.section(QLatin1Char('='), 0, 0).trimmed() == limit)
            limited = option.section(QLatin1Char('='), 1).trimmed().toInt() > 0;
    }
    return limited;
}

void checkTimeouts(DbAssessment &check, const QString &connectOptions)
{
    QStringList missing;
    for (const QString &limit :
         {QStringLiteral("MYSQL_OPT_CONNECT_TIMEOUT"), QStringLiteral("MYSQL_OPT_READ_TIMEOUT"),
          QStringLiteral("MYSQL_OPT_WRITE_TIMEOUT")}) {
        if (!isLimited(connectOptions, limit))
            missing += limit;
    }
    if (missing.isEmpty())
        return;
    check.report(
        CheckDbRules::kNoTimeout, {},
        Text::tr("The connect options that this check was given lack %1. When the attendance "
                 "server connects like this, a database server that neither answers nor "
                 "closes the connection freezes the plugin's tick, and the attendance server "
                 "when it unloads the plugin")
            .arg(missing.join(QStringLiteral(", "))));
}

} // namespace

void DbRules::checkConnection(DbAssessment &check, Account account, const QString &connectOptions)
{
    const QStringList row = check.sql().row(QLatin1String(kSelectConnection));
    check.begin("connection", Text::tr("Connection"));
    check.writer().fact(QStringLiteral("account"), Text::tr("Account"), row.value(0));
    check.writer().fact(QStringLiteral("charset"), Text::tr("Character set"), row.value(1));
    checkCharset(check, row);
    checkSeveralStatements(check);
    checkAffectedRows(check, connectOptions);
    if (account == Account::OfThePlugin)
        checkTimeouts(check, connectOptions);
    check.end(Text::tr("The connection works as the plugin requires."));
}
