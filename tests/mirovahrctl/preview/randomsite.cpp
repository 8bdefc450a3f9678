#include "tests/mirovahrctl/preview/randomsite.h"

#include "tests/support/environmentnumber.h"
#include "tests/support/testdatabase.h"

#include <QDate>
#include <QDateTime>

namespace {

constexpr int kLastUid = 20; ///< the sample has 1 to 8
constexpr int kFirstMonth = 202511;
/// Has the pid 0, which stands for every personal number that is too large: exports of different
/// seeds may hold that person, who must therefore have the same uid at all sites.
constexpr int kUidOfPidZero = 9;
/// A site's trigger may refuse moves of every person whose uid is a multiple of this.
constexpr int kRefusedUids = 5;

QString quoted(const QString &text)
{
    return "'" + text + "'";
}

} // namespace

void addSeeds(const char *countVariable, uint quickCount, const char *seedVariable)
{
    QTest::addColumn<quint32>("seed");
    const uint first = environmentNumber(seedVariable, 1);
    for (uint i = 0; i < environmentNumber(countVariable, quickCount); ++i)
        QTest::addRow("%s=%u", seedVariable, first + i) << first + i;
}

RandomSite::RandomSite(quint32 seed)
    : m_random(seed)
    , m_firstNumber(3000 + static_cast<int>(seed % 100000) * 40)
{
}

int RandomSite::number(int from, int to)
{
    // Not a distribution of the library: those differ between libraries, and a seed must not.
    return from + static_cast<int>(m_random() % static_cast<quint32>(to - from + 1));
}

bool RandomSite::chance(int percent)
{
    return number(1, 100) <= percent;
}

QString RandomSite::one(const QStringList &list)
{
    return list.at(number(0, list.size() - 1));
}

void RandomSite::fill(TestDatabase &db, Programs programs)
{
    fillPeople(db);
    fillRelations(db);
    fillAttendance(db);
    fillYears(db);
    fillSettings(db);
    if (chance(40) && programs == Programs::Some)
        addRoutinesAndTriggers(db);
}

QString RandomSite::time()
{
    const QDate day = QDate::currentDate().addDays(number(-500, 200));
    return QString::number(day.startOfDay().toSecsSinceEpoch() + (chance(20) ? 86399 : 0));
}

QString RandomSite::optionalTime()
{
    return chance(60) ? QStringLiteral("NULL") : time();
}

void RandomSite::fillPeople(TestDatabase &db)
{
    for (int uid = 9; uid <= kLastUid; ++uid) {
        const int personal = m_firstNumber + uid;
        const int relationship = number(1, 2);
        db.run(QStringLiteral("INSERT INTO people (uid, pid, pamId, title, name, surname, phone, "
                              "begin, `end`, rsBegin, rsEnd, rsText, type, did, calendarID, bid, "
                              "status, lastCalc, calc, gid) VALUES (%1, %2, '%3.%4', ")
                   .arg(uid)
                   .arg(uid == kUidOfPidZero ? 0 : personal * 10 + relationship)
                   .arg(personal)
                   .arg(relationship)
               + QStringList{quoted(one({"", "Ing.", "Mgr."})),
                             quoted(one({"Eva", "Ján", "Žofia"})),
                             quoted(one({"Malá", "Veľký", "O''Hara", "\\\\"})), quoted("0900"),
                             time(), optionalTime(), optionalTime(), optionalTime(),
                             quoted(one({"", "PN", "materská"})), QString::number(number(0, 4)),
                             one({"NULL", "1", "2"}), QString::number(number(0, 3)),
                             one({"NULL", "1", "2", "3"}), chance(85) ? "1" : "0", time(),
                             chance(70) ? "0" : time(), one({"NULL", "11", "23"})}
                     .join(", ")
               + ")");
    }
    // The next uid is not the one behind the last.
    if (chance(30))
        db.run(QStringLiteral("ALTER TABLE people AUTO_INCREMENT = %1").arg(number(30, 4000)));
}

void RandomSite::fillRelations(TestDatabase &db)
{
    for (int uid = 1; uid <= kLastUid; ++uid) {
        const QString id = QString::number(uid);
        if (chance(50))
            db.run("REPLACE INTO brape VALUES (" + one({"1", "2", "3"}) + ", " + id + ", 1)");
        if (chance(50))
            db.run("REPLACE INTO admins_people VALUES (" + one({"1", "2", "4"}) + ", " + id + ", "
                   + one({"0", "1"}) + ")");
        if (chance(50))
            db.run("REPLACE INTO people_term VALUES (" + one({"1", "3", "4", "6", "7"}) + ", " + id
                   + ")");
        if (chance(30))
            db.run("REPLACE INTO people_pam VALUES (" + id + ", " + one({"0", "1", "2"}) + ")");
        if (chance(50)) {
            db.run("REPLACE INTO groups_plan VALUES (" + one({"11", "12", "13", "21", "23"}) + ", "
                   + id + ", " + QString::number(kFirstMonth + number(0, 1)) + ")");
        }
    }
    db.run("UPDATE term SET status = " + one({"0", "1"}) + ", syn = " + one({"0", "2"})
           + " WHERE tid = " + one({"1", "2", "4", "7"}));
    db.run("INSERT INTO term_sync VALUES (1, 'U', 'people', 'uid', 4, NULL, NULL, 1, 2), "
           "(1, 'U', 'people', 'uid', 4, NULL, NULL, 1, 2)");
}

void RandomSite::fillAttendance(TestDatabase &db)
{
    QStringList days;
    QStringList moves;
    for (int uid = 1; uid <= kLastUid; ++uid) {
        for (int i = number(0, 4); i > 0; --i) {
            const QDate day = QDate::currentDate().addDays(-7 * i - number(0, 6));
            const QString start = QString::number(day.startOfDay().toSecsSinceEpoch());
            days += QStringLiteral("(%1, %2, %3, %4, %5)")
                        .arg(QString::number(uid), start, chance(90) ? "1" : "-1",
                             chance(10) ? "1" : "0", chance(10) ? "1" : "0");
            if (chance(40)) {
                moves += QStringLiteral("(%1, %2, %3, %4, 2, %5)")
                             .arg(one({"1", "2", "3"}), start, day.toString("yyyyMM"),
                                  QString::number(number(-300, 900)), QString::number(uid));
            }
        }
    }
    const QString today = QString::number(QDate::currentDate().startOfDay().toSecsSinceEpoch());
    moves += QStringLiteral("(3, %1, 202601, 5, 2, %2)").arg(today).arg(number(1, kLastUid));
    if (!days.isEmpty())
        db.run("REPLACE INTO atten VALUES " + days.join(", "));
    db.run("REPLACE INTO funds_move VALUES " + moves.join(", "));
    if (chance(10))
        db.run("DELETE FROM funds");
}

/// Days before, at and behind the day since which attendance is calculated again, closed ones among
/// them, and months of years ago.
void RandomSite::fillYears(TestDatabase &db)
{
    const QDate today = QDate::currentDate();
    const QDate first = QDate(today.year(), today.month(), 1).addMonths(-1);
    QStringList days;
    for (int uid = 1; uid <= kLastUid; ++uid) {
        for (const int distance : {-400, -35, -1, 0, 1}) {
            if (chance(60))
                continue;
            const QDateTime day = first.addDays(distance).startOfDay();
            days += QStringLiteral("(%1, %2, %3, %4, %5)")
                        .arg(QString::number(uid), QString::number(day.toSecsSinceEpoch()),
                             one({"1", "1", "1", "0", "-1", "-2"}), one({"0", "1"}),
                             one({"0", "0", "1"}));
        }
        if (chance(30)) {
            db.run(QStringLiteral("REPLACE INTO groups_month VALUES (%1, %2, %3)")
                       .arg(one({"11", "13", "23"}))
                       .arg(uid)
                       .arg(first.addDays(-35).toString("yyyyMM")));
        }
    }
    if (!days.isEmpty())
        db.run("REPLACE INTO atten VALUES " + days.join(", "));
}

void RandomSite::fillLeftBehind(TestDatabase &db)
{
    const int next = db.value("SELECT AUTO_INCREMENT FROM information_schema.TABLES WHERE "
                              "TABLE_SCHEMA = DATABASE() AND TABLE_NAME = 'people'")
                         .toInt();
    for (const int uid : {next - 1, next, next + 1, next + 3}) {
        const QString day = QString::number(
            QDate::currentDate().addDays(-number(1, 90)).startOfDay().toSecsSinceEpoch());
        if (chance(30)) {
            db.run(QStringLiteral("REPLACE INTO atten VALUES (%1, %2, %3, %4, 0)")
                       .arg(QString::number(uid), day, one({"1", "-1"}), one({"0", "1"})));
        }
        if (chance(20) && uid % kRefusedUids != 0) {
            db.run(QStringLiteral("REPLACE INTO funds_move VALUES (1, %1, 202601, 300, 2, %2)")
                       .arg(day)
                       .arg(uid));
        }
        if (chance(20))
            db.run(QStringLiteral("REPLACE INTO groups_month VALUES (12, %1, 202609)").arg(uid));
    }
}

void RandomSite::fillSettings(TestDatabase &db)
{
    if (chance(15))
        db.run("INSERT INTO vars VALUES ('exportPam.2.active', '1')");
    else if (chance(15))
        db.run("DELETE FROM vars WHERE name LIKE 'exportPam%'");
    if (chance(30))
        db.run("DELETE FROM vars WHERE name LIKE '%forceSync'");
    // "A smiling face", which the administrator's connection cannot say in itself.
    db.run("INSERT INTO vars VALUES (_utf8mb4 X'C4BEF09F98805C27', '\\n%1')");
}

void RandomSite::addRoutinesAndTriggers(TestDatabase &db)
{
    db.run("CREATE TABLE history (id INT UNSIGNED PRIMARY KEY AUTO_INCREMENT, what VARBINARY(60), "
           "weight FLOAT, price DECIMAL(20, 4), mask BIT(9), kind ENUM('á', 'b'), at DATETIME(3), "
           "twice DOUBLE AS (weight * 2) VIRTUAL, name VARCHAR(90) CHARACTER SET latin2) "
           "AUTO_INCREMENT = 70");
    db.run("INSERT INTO history (what, weight, price, mask, kind, at, name) VALUES (X'00FF27', "
           "0.1, -12345678901234.5678, 5, 'á', '2026-03-29 02:30:00.125', 'Žluťoučký'), (NULL, "
           "NULL, NULL, NULL, NULL, '0000-00-00', '')");
    db.run("CREATE PROCEDURE remember(p_what TEXT, p_weight INT) INSERT INTO history (what, "
           "weight, mask, name) SELECT p_what, p_weight, 1, MAX(name) FROM history");
    db.run("CREATE TRIGGER people_changed AFTER UPDATE ON people FOR EACH ROW "
           "CALL remember(CONCAT(OLD.surname, '/', NEW.surname), NEW.uid)");
    db.run("CREATE TRIGGER people_new BEFORE INSERT ON people FOR EACH ROW "
           "SET NEW.gid = IFNULL(NEW.gid, 12), NEW.phone = CONCAT('+', NEW.phone)");
    db.run(QStringLiteral(
               "CREATE TRIGGER move_refused BEFORE INSERT ON funds_move FOR EACH ROW IF NEW.uid % "
               "%1 = 0 THEN SIGNAL SQLSTATE '45000' SET MESSAGE_TEXT = 'refused'; END IF")
               .arg(kRefusedUids));
}

QString RandomSite::ini()
{
    QString text;
    if (chance(30))
        text += "departmentId=" + one({"0", "2", "x"}) + "\n";
    if (chance(5))
        text += "testMode=1\n";
    if (chance(60))
        text += "[MES]\n3=\"PN\"\n5=\"rodičovská, druhá\"\n";
    return text;
}

QByteArray RandomSite::exportContent(Texts texts)
{
    m_texts = texts;
    QByteArray content;
    for (int i = number(0, 30); i > 0; --i)
        content += line().toUtf8() + '\n';
    return content;
}

QString RandomSite::text()
{
    return m_texts == Texts::Harmless || chance(90)
        ? one({"", "Eva", "Ján", "Malá", "Ing.", "Nováková", "PhD.", "O''Hara"})
        : one({"O'Hara", "O''Hara", "a\\", "\\\\", "%1", "%' '1", "\xF0\x9F\x98\x80", "a%8b",
               QString(90, 'w')});
}

QString RandomSite::date()
{
    if (chance(10))
        return one({"", "0", "2026-02-30 00:00:00.000", "31.12.2026", "1899-01-01 00:00:00.000"});
    const QDate day =
        chance(5) ? QDate(2040, 1, 1) : QDate::currentDate().addDays(number(-400, 99));
    return exportDate(day);
}

QString RandomSite::person()
{
    if (chance(30))
        return one(
            {"1001|1", "1002|1", "1003|1", "1234|1", "1235|1", "1236|1", "1237|1", "2001|2"});
    if (chance(5))
        return one({"0|1", "429496729|6", "x|1", "12|341"});
    return QStringLiteral("%1|%2").arg(m_firstNumber + number(9, 32)).arg(number(1, 2));
}

QByteArray RandomSite::exportOfFewPeople()
{
    QVector<QStringList> lines;
    for (int people = number(4, 7); people > 0; --people) {
        QStringList fields = lineOf(person());
        for (int i = number(1, 4); i > 0; --i) {
            lines.insert(chance(60) ? lines.size() : number(0, lines.size()), fields);
            if (chance(65))
                fields = varied(fields);
        }
    }
    QByteArray content;
    for (const QStringList &fields : qAsConst(lines))
        content += fields.join('|').toUtf8() + '\n';
    return content;
}

/// The same line with a few fields behind the person's numbers changed.
QStringList RandomSite::varied(const QStringList &fields)
{
    const QStringList others = lineOf(fields.at(0) + '|' + fields.at(1));
    QStringList result = fields;
    for (int i = number(1, 3); i > 0; --i) {
        const int field = number(2, fields.size() - 1);
        result[field] = others.at(field);
    }
    return result;
}

QStringList RandomSite::lineOf(const QString &person)
{
    const bool isHarmless = chance(90);
    const auto name = [this, isHarmless](const QStringList &names) {
        return isHarmless ? one(names) : text();
    };
    return (QStringList{person, one({"", "Ing.", "Mgr."}), name({"Eva", "Ján"}),
                        name({"Malá", "Nováková", "Veľký"}), name({"", "PhD."}),
                        one({"", "0900", "555"}), date(), chance(75) ? QString() : date(),
                        one({"0", "120", "120", "130", "130", "140", "199"}), "Sklad",
                        one({"0", "1", "2", "3", "9"}), date(),
                        one({"1", "2", "11", "11", "11", "51", "61"}), one({"0", "1", "1", "4"}),
                        one({"0", "0", "1", "3", "5", "7"}),
                        one({"0", "12.5", "17.5", "-3", "x", "30000000"}),
                        one({"0", "1001", "1002", "1003", "9"})})
        .join('|')
        .split('|');
}

QString RandomSite::line()
{
    if (chance(4))
        return one({"", "broken", "|||||||||||||||||", "1|2|3"});
    const QString employedUntil = chance(75) ? QString() : date();
    return QStringList{person(),
                       one({"", "Ing.", "Mgr."}),
                       text(),
                       text(),
                       text(),
                       one({"", "0900", "555"}),
                       date(),
                       employedUntil,
                       one({"0", "120", "120", "130", "130", "140", "199"}),
                       "Sklad",
                       one({"0", "1", "2", "3", "9"}),
                       date(),
                       one({"1", "2", "11", "11", "51", "61"}),
                       one({"0", "1", "4"}),
                       one({"0", "0", "1", "3", "5", "7"}),
                       one({"0", "12.5", "-3", "x", "2,25"}),
                       one({"0", "1001", "1002", "1003", "9"})}
        .join('|');
}
