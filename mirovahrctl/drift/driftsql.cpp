#include "mirovahrctl/drift/driftsql.h"

#include "mirovahrctl/site/sqlsession.h"
#include "worker/recorddates.h"

#include <QIODevice>
#include <QStringList>

namespace {

constexpr char kBegin[] =
    "-- Each statement changes something only where the database is as drift found it: run drift\n"
    "-- again afterwards.\n"
    "SET NAMES utf8mb4;\n"
    "START TRANSACTION;\n";

constexpr char kEnd[] = "COMMIT;\n";

constexpr char kType[] = "UPDATE people SET type = %4 WHERE uid = %1 AND pid = %2 AND type = %3;\n";

// Uid (%1), pid (%2), aid (%3), the aids that were found (%4). The rows are locked when they are
// compared, so that nobody chooses another administrator before they are written.
constexpr char kSupervisor[] =
    "SELECT IFNULL(GROUP_CONCAT(aid ORDER BY aid), '') = '%4' AND EXISTS (SELECT 1 FROM people "
    "WHERE uid = %1 AND pid = %2) INTO @as_found FROM admins_people WHERE uid = %1 AND request "
    "FOR UPDATE;\n"
    "UPDATE admins_people SET request = 0 WHERE @as_found AND uid = %1 AND aid <> %3;\n"
    "INSERT INTO admins_people (aid, uid, request) SELECT %3, %1, 1 FROM DUAL WHERE @as_found "
    "ON DUPLICATE KEY UPDATE request = 1;\n";

constexpr char kBinding[] =
    "INSERT INTO people_pam (uid, id) SELECT uid, %3 FROM people WHERE uid = %1 AND pid = %2 AND "
    "status AND NOT EXISTS (SELECT 1 FROM people_pam WHERE uid = %1);\n";

constexpr char kSelection[] =
    "INSERT INTO vars (name, value) SELECT %3, '' FROM DUAL WHERE NOT EXISTS (SELECT 1 FROM vars "
    "WHERE name = %3);\n"
    "UPDATE vars SET value = CONCAT_WS(',', NULLIF(value, ''), '%2') WHERE name = %3 AND NOT "
    "FIND_IN_SET('%2', value) AND EXISTS (SELECT 1 FROM people WHERE uid = %1 AND pid = %2 AND "
    "status);\n";

// As the plugin adds a member: the row, and what the terminal has to fetch.
constexpr char kTerminal[] =
    "INSERT INTO people_term (tid, uid) SELECT t.tid, b.uid FROM term t JOIN brape b USING (bid) "
    "WHERE t.tid = %3 AND t.bid = %2 AND t.status > 0 AND b.uid = %1 AND NOT EXISTS (SELECT 1 "
    "FROM people_term WHERE tid = %3 AND uid = %1);\n"
    "SET @added = ROW_COUNT();\n"
    "INSERT INTO term_sync (tid, type, ref, ref_col, ref_id, created, flags) SELECT %3, 'I', "
    "'people_term', 'uid', uid, UNIX_TIMESTAMP(), 2 FROM people WHERE @added AND status = 1 AND "
    "uid = %1;\n"
    "UPDATE term SET syn = syn | 2 WHERE @added AND status = 1 AND tid = %3;\n";

constexpr char kAdministrator[] =
    "INSERT INTO admins_people (aid, uid) SELECT a.aid, b.uid FROM bradm a JOIN brape b USING "
    "(bid) WHERE a.aid = %3 AND a.bid = %2 AND b.uid = %1 AND NOT EXISTS (SELECT 1 FROM "
    "admins_people WHERE aid = %3 AND uid = %1);\n";

constexpr char kNothingChanged[] = "SET @changed = 0;\n";
constexpr char kMonth[] = "UPDATE groups_month SET gid = %4 WHERE uid = %1 AND month = %2 AND gid "
                          "= %3;\n"
                          "SET @changed = @changed + ROW_COUNT();\n";
// First second of the day (%2), and of the day before (%3).
constexpr char kRecalculation[] =
    "UPDATE atten SET ok = -1 WHERE @changed AND `lock` = 0 AND man = 0 AND `date` >= %2 AND uid "
    "= %1;\n"
    "UPDATE people SET lastCalc = %3, calc = 0 WHERE @changed AND lastCalc > %3 AND uid = %1;\n";

constexpr char kMark[] =
    "UPDATE term SET syn = syn | 2 WHERE tid = %1 AND status = 1 AND EXISTS (SELECT 1 FROM "
    "term_sync WHERE tid = %1 AND flags & 2);\n";

QString text(const char *statement)
{
    return QString::fromLatin1(statement);
}

} // namespace

QString DriftSql::employmentType(Person person, uint found, uint type)
{
    return text(kType).arg(person.uid).arg(person.pid).arg(found).arg(type);
}

QString DriftSql::supervisor(Person person, quint32 aid, const QVector<quint32> &found)
{
    QStringList aids;
    for (const quint32 one : found)
        aids += QString::number(one);
    return text(kSupervisor)
        .arg(person.uid)
        .arg(person.pid)
        .arg(aid)
        .arg(aids.join(QLatin1Char(',')));
}

QString DriftSql::payrollBinding(Person person, uint settings)
{
    return text(kBinding).arg(person.uid).arg(person.pid).arg(settings);
}

QString DriftSql::payrollSelection(Person person, const QString &key)
{
    return text(kSelection).arg(person.uid).arg(person.pid).arg(SqlSession::literal(key));
}

QString DriftSql::terminal(quint32 uid, quint32 bid, quint32 tid)
{
    return text(kTerminal).arg(uid).arg(bid).arg(tid);
}

QString DriftSql::administrator(quint32 uid, quint32 bid, quint32 aid)
{
    return text(kAdministrator).arg(uid).arg(bid).arg(aid);
}

QString DriftSql::months(quint32 uid, const QVector<DriftRows::Month> &months, const QDate &since)
{
    QString statements = text(kNothingChanged);
    for (const DriftRows::Month &month : months)
        statements += text(kMonth).arg(uid).arg(month.month).arg(month.gid).arg(month.plannedGid);
    if (since < QDate::currentDate()) {
        statements += text(kRecalculation)
                          .arg(uid)
                          .arg(RecordDates::midnight(since))
                          .arg(RecordDates::midnight(since.addDays(-1)));
    }
    return statements;
}

QString DriftSql::terminalMark(quint32 tid)
{
    return text(kMark).arg(tid);
}

void DriftSql::write(const QString &about, const QString &statements, QIODevice &out)
{
    out.write(
        (QStringLiteral("-- %1\n").arg(about) + text(kBegin) + statements + text(kEnd)).toUtf8());
}
