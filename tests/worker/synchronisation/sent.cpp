#include "tests/worker/synchronisation/sent.h"

#include "tests/worker/support/middayzone.h"

namespace {

QDate dateOf(const QString &field)
{
    return QDate::fromString(field.left(10), Qt::ISODate);
}

QString lastSecondOf(const QDate &date)
{
    return date.isValid() ? QString::number(localSeconds(date, QTime(23, 59, 59)))
                          : QStringLiteral("NULL");
}

QString pidOf(const ExportRow &line)
{
    return line.osobniCislo + line.poradoveCisloPP;
}

QString payrollIdOf(const ExportRow &line)
{
    return line.osobniCislo + '.' + line.poradoveCisloPP;
}

QString begin(const ExportRow &line)
{
    const QDate date = dateOf(line.datumNastupu);
    return QString::number(localMidnight(date.isValid() ? date : QDate(2000, 1, 1)));
}

QString update(const ExportRow &line, const Sent::PersonValues &values, const QString &lastCalc,
               const QString &end)
{
    return QString("UPDATE people SET pamId=" + payrollIdOf(line) + ", title='" + line.titul
                   + "', name='" + line.jmeno + "', surname='" + line.prijmeni + "', title2='"
                   + line.titulZa + "', phone='" + line.telefon + "', begin=" + begin(line)
                   + ", end=" + lastSecondOf(dateOf(line.datumVystupu))
                   + ", edited=UNIX_TIMESTAMP(), editor=0, rsBegin=" + values.rsBegin
                   + ", rsEnd=" + values.rsEnd + ", rsText='" + values.rsText + "', " + lastCalc
                   + "type=" + values.type + ", did=1, calendarID=" + line.kalendar
                   + ", bid=" + values.bid + end + "WHERE pid=" + pidOf(line));
}

QString tuples(const QVector<int> &owners, const QStringList &uids)
{
    QStringList texts;
    for (const int owner : owners) {
        for (const QString &uid : uids)
            texts += QString("(%1, %2)").arg(owner).arg(uid);
    }
    return texts.join(',');
}

QDate firstOfThisMonth()
{
    const QDate today = QDate::currentDate();
    return QDate(today.year(), today.month(), 1);
}

} // namespace

QString Sent::readForce()
{
    return "SELECT value FROM vars WHERE name='YAV.MHRWorker.forceSync' LIMIT 1";
}

QString Sent::people()
{
    return "SELECT p.pid, p.pamId, p.title, p.name, p.surname, p.title2, p.phone, p.begin, p.end, "
           "p.rsBegin, p.rsEnd, p.rsText, p.calendarID, b.number FROM people p LEFT JOIN branches "
           "b USING(bid) WHERE p.status";
}

QString Sent::branches()
{
    return "SELECT bid, number FROM branches WHERE number IS NOT NULL";
}

QString Sent::fund()
{
    return "SELECT fid FROM funds WHERE iid = 3 AND unit=2";
}

QStringList Sent::begin()
{
    return {readForce(), people(), branches(), fund()};
}

QStringList Sent::resetForce()
{
    return {"PREPARE: INSERT INTO vars (name, value) VALUES(?, ?) ON DUPLICATE KEY UPDATE "
            "value=VALUES(value)",
            "EXECUTE: INSERT INTO vars (name, value) VALUES('YAV.MHRWorker.forceSync', 0) ON "
            "DUPLICATE KEY UPDATE value=VALUES(value)"};
}

QString Sent::movesOfToday(uint pid)
{
    return QString("SELECT COUNT(*) FROM funds_move WHERE type=3 AND day = "
                   "midnightFromTs(UNIX_TIMESTAMP()) AND fid = 2 AND uid=(SELECT uid FROM people "
                   "WHERE pid = %1)")
        .arg(pid);
}

QString Sent::calculation(uint pid)
{
    return QString("SELECT p.uid, calc, (SELECT COUNT(*) FROM atten a WHERE a.uid = p.uid AND "
                   "!a.lock AND a.ok = -1) uncalc FROM people p WHERE pid = %1")
        .arg(pid);
}

QString Sent::openDays(int uid)
{
    return QString("SELECT COUNT(*) FROM atten WHERE uid = %1 AND `lock`=0 AND ok < 0 AND date >= "
                   "midnightFromTs(UNIX_TIMESTAMP())")
        .arg(uid);
}

QStringList Sent::fundChecks(uint pid, int uid)
{
    return {movesOfToday(pid), calculation(pid), openDays(uid)};
}

QString Sent::insertPerson(const ExportRow &line, const PersonValues &values)
{
    return "INSERT INTO people (pid, pamId, title, name, surname, title2, phone, begin, end, "
           "created, rsBegin, rsEnd, rsText, type, did, calendarID, bid) VALUES('"
        + pidOf(line) + "', '" + payrollIdOf(line) + "', '" + line.titul + "', '" + line.jmeno
        + "', '" + line.prijmeni + "', '" + line.titulZa + "', '" + line.telefon + "', "
        + ::begin(line) + ", " + lastSecondOf(dateOf(line.datumVystupu)) + ", UNIX_TIMESTAMP(), "
        + values.rsBegin + ", " + values.rsEnd + ", '" + values.rsText + "', " + values.type
        + ", 1, " + line.kalendar + ", " + values.bid
        + ") ON DUPLICATE KEY UPDATE pamId=VALUES(pamId), title=VALUES(title), name=VALUES(name), "
          "surname=VALUES(surname), title2=VALUES(title2), phone=VALUES(phone), "
          "begin=VALUES(begin), end=VALUES(end), edited=VALUES(created), status=1, "
          "type=VALUES(type), did=1";
}

QStringList Sent::payrollSelection(uint pid)
{
    return {"SELECT name, value FROM vars WHERE name LIKE 'exportPam.%.active%'",
            "SELECT value FROM vars WHERE name='exportPam.1.selPeople' LIMIT 1",
            "PREPARE: INSERT INTO vars (name, value) VALUES(?, ?) ON DUPLICATE KEY UPDATE "
            "value=VALUES(value)",
            QString("EXECUTE: INSERT INTO vars (name, value) VALUES('exportPam.1.selPeople', "
                    "'10011,10021,10031,12341,12351,12361,%1') ON DUPLICATE KEY UPDATE "
                    "value=VALUES(value)")
                .arg(pid)};
}

QStringList Sent::payrollBinding(uint pid, int uid, int payrollId)
{
    return {QString("SELECT uid FROM people WHERE pid=%1").arg(pid),
            QString("INSERT INTO people_pam (uid, id) VALUES(%1, %2) ON DUPLICATE KEY UPDATE "
                    "id=VALUES(id)")
                .arg(uid)
                .arg(payrollId)};
}

QString Sent::updatePerson(const ExportRow &line, const PersonValues &values)
{
    return update(line, values, QString(), "  ");
}

QString Sent::updatePersonAndLastCalc(const ExportRow &line, const PersonValues &values,
                                      const QDate &lastCalc)
{
    return update(line, values, QString("lastCalc=%1, ").arg(localMidnight(lastCalc)), " ");
}

QStringList Sent::notifyTerminals(uint pid, int uid)
{
    return {QString("SELECT uid FROM people WHERE pid=%1 LIMIT 1").arg(pid),
            QString("INSERT INTO `term_sync` (tid, type, ref, ref_col, ref_id, created, flags) "
                    "SELECT `tid` tid, 'U' type, 'people' ref, 'uid' ref_col, %1 ref_id, "
                    "UNIX_TIMESTAMP() created, 2 flags FROM people_term JOIN term USING(tid) WHERE "
                    "status = 1 AND uid = %1 AND (flags & 2)")
                .arg(uid),
            QString("CALL updateTermsSync(%1, 2)").arg(uid)};
}

QString Sent::sumBeforeMonth(uint pid)
{
    return QString("SELECT SUM(fm.value) FROM funds_move fm JOIN people p USING(uid) WHERE fm.day "
                   "< %2  AND fm.fid = 2 AND p.pid = %1")
        .arg(pid)
        .arg(localMidnight(firstOfThisMonth()));
}

QString Sent::sumOfCorrections(uint pid)
{
    return QString("SELECT SUM(fm.value) FROM funds_move fm JOIN people p USING(uid) WHERE "
                   "fm.type=3 AND fm.day >= %2 AND fm.day < midnightFromTs(UNIX_TIMESTAMP()) AND "
                   "fm.fid = 2 AND p.pid = %1")
        .arg(pid)
        .arg(localMidnight(firstOfThisMonth()));
}

QStringList Sent::balance(uint pid)
{
    return {sumBeforeMonth(pid), sumOfCorrections(pid)};
}

QString Sent::correction(int uid, int value)
{
    return QString("INSERT INTO funds_move (type, day, month, value, fid, uid) VALUES(3, %1, "
                   "monthFromTimestamp(%1), %2, 2, %3) ON DUPLICATE KEY UPDATE value=VALUES(value)")
        .arg(localMidnight(QDate::currentDate()))
        .arg(value)
        .arg(uid);
}

QString Sent::findAdmin(uint personalNumber)
{
    return QString("SELECT aid FROM admins WHERE personalNumber = %1").arg(personalNumber);
}

QStringList Sent::supervisor(int aid, int uid)
{
    return {
        "BEGIN WORK",
        QString("UPDATE admins_people SET request =0 WHERE uid=%1 AND aid != %2").arg(uid).arg(aid),
        QString("INSERT INTO admins_people (aid, uid, request) VALUES(%1, %2, 1) ON DUPLICATE "
                "KEY UPDATE request=1")
            .arg(aid)
            .arg(uid),
        "COMMIT"};
}

QString Sent::findUid(uint pid)
{
    return QString("SELECT uid FROM people WHERE pid = %1 LIMIT 1").arg(pid);
}

QString Sent::membership(uint pid, int bid)
{
    return QString("SELECT COUNT(*) FROM brape WHERE bid = %2 AND uid = (SELECT uid FROM people "
                   "WHERE pid = %1 LIMIT 1)")
        .arg(pid)
        .arg(bid);
}

QString Sent::group(int bid, int calendar)
{
    return QString("SELECT gid FROM branches b LEFT JOIN mastergroups mg ON mg.mgid = b.mgid LEFT "
                   "JOIN groups g ON g.parent = mg.mgid WHERE bid = %1 AND g.calendarID = %2 LIMIT "
                   "1")
        .arg(bid)
        .arg(calendar);
}

QString Sent::plannedGroup(int gid, int uid, int since)
{
    return QString("SELECT COUNT(*) FROM groups_plan WHERE gid = %1 AND uid = %2 AND since = %3")
        .arg(gid)
        .arg(uid)
        .arg(since);
}

QString Sent::planGroup(int gid, int uid, int since)
{
    return QString("INSERT INTO groups_plan (gid, uid, since) VALUES(%1, %2, %3) ON DUPLICATE KEY "
                   "UPDATE gid=VALUES(gid), uid=VALUES(uid), since=VALUES(since)")
        .arg(gid)
        .arg(uid)
        .arg(since);
}

QString Sent::updateMonths(int uid, int since)
{
    return QString(
               "INSERT INTO groups_month  (gid, uid, month) SELECT getCurrentGid(p.uid, "
               "monthFromTimestamp(a.date), p.gid) gid, a.uid, monthFromTimestamp(a.date) month  "
               "FROM atten a LEFT JOIN people p USING(uid) WHERE a.uid=%1 AND "
               "monthFromTimestamp(a.date) >= %2 GROUP BY monthFromTimestamp(a.date) HAVING gid IS "
               "NOT NULL ON DUPLICATE KEY UPDATE gid=VALUES(gid), uid=VALUES(uid), "
               "month=VALUES(month)")
        .arg(uid)
        .arg(since);
}

QStringList Sent::recalculation(int uid, const QDate &from)
{
    return {QString("UPDATE atten SET ok = -1 WHERE `lock` =0 AND `man`=0 AND `date` >= %1 AND "
                    "uid =%2")
                .arg(localMidnight(from))
                .arg(uid),
            QString("UPDATE people set lastCalc = %1, calc = 0 WHERE lastCalc > %1 AND uid=%2")
                .arg(localMidnight(from.addDays(-1)))
                .arg(uid)};
}

QStringList Sent::recalculation(int uid)
{
    return recalculation(uid, firstOfThisMonth().addMonths(-1));
}

QString Sent::joinBranch(int bid, const QString &uids)
{
    return "INSERT INTO brape (bid, uid, since) SELECT " + QString::number(bid)
        + " bid, uid, UNIX_TIMESTAMP() since FROM people WHERE uid IN(" + uids
        + ") ON DUPLICATE KEY UPDATE since=UNIX_TIMESTAMP()";
}

QStringList Sent::propagation(int bid, const QStringList &uids, const QVector<int> &tids,
                              const QVector<int> &aids)
{
    QStringList statements = {
        QString("SELECT tid FROM term WHERE status > 0 AND bid = %1").arg(bid)};
    for (const int tid : tids) {
        statements
            << "INSERT INTO people_term (tid, uid) VALUES " + tuples({tid}, uids)
                + " ON DUPLICATE KEY UPDATE tid=VALUES(tid)"
            << QString("INSERT INTO `term_sync` (tid, type, ref, ref_col, ref_id, created, "
                       "flags) SELECT %1 tid, 'I' type, 'people_term' ref, 'uid' ref_col, "
                       "`uid` ref_id, UNIX_TIMESTAMP() created, 2 flags FROM people WHERE "
                       "status = 1 AND uid IN(%2)")
                   .arg(tid)
                   .arg(uids.join(", "))
            << QString("Update `term` SET syn = syn | 2 WHERE status = 1 AND tid = %1").arg(tid);
    }
    statements << QString("SELECT aid FROM bradm WHERE bid = %1").arg(bid);
    if (!aids.isEmpty()) {
        statements << "INSERT INTO admins_people (aid, uid) VALUES " + tuples(aids, uids)
                + " ON DUPLICATE KEY UPDATE uid=VALUES(uid)";
    }
    return statements;
}
