#include "db/tepdbcontract.h"
#include "tests/support/testdatabase.h"
#include "tests/support/verifysql.h"

#include <QDateTime>
#include <QFile>
#include <QTemporaryFile>
#include <QTimeZone>
#include <QVersionNumber>

namespace {

QStringList sorted(QStringList list)
{
    list.sort();
    return list;
}

/// One text for a unique key, whatever the order of its columns.
QString keyText(const QString &table, const QStringList &columns)
{
    return table + ": " + sorted(columns).join(' ');
}

qint64 timestamp(const QString &isoLocal, const char *zone)
{
    QDateTime time = QDateTime::fromString(isoLocal, Qt::ISODate);
    time.setTimeZone(QTimeZone(zone));
    return time.toSecsSinceEpoch();
}

QStringList firstColumn(const TableRows &rows)
{
    QStringList column;
    for (const QStringList &row : rows)
        column += row.first();
    return column;
}

} // namespace

/// The server runs in the time zone of Bratislava, which this program sets for itself.
class TestReferenceDb : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void init();

    void theSchemaHasTheTablesOfTheContractAndNoOther();
    void everyTableHasTheColumnsOfTheContractAndNoOther_data();
    void everyTableHasTheColumnsOfTheContractAndNoOther();
    void theSchemaHasTheUniqueKeysOfTheContractAndNoOther();
    void everyTableHasAPrimaryKey();
    void generatedColumnsAreFilledByTheDatabase();
    void numbersOfRowsAreFilledByTheDatabaseAndSeenByName();
    void theRoutinesAreThoseOfTheContractAndNoOther();
    void columnsOfTheContractAreNamedAndReferToEachOther();
    void textsOfTheConfigurationHaveTheRoomOfTheContract();
    void everyTableIsTransactionalAndTakesAnyCharacter();
    void theServerRunsWithItsDefaultSqlMode();

    void aNewPersonIsActiveAndNeedsNoMoreThanAPid();
    void timestampsOfPeopleTake64BitsWithSign();
    void theLargestUnsignedNumbersFit();
    void idsOfBranchesAndAdministratorsEndAt16Bits_data();
    void idsOfBranchesAndAdministratorsEndAt16Bits();
    void noBranchIsCreatedBeyond16Bits();
    void anUnquotedPayrollIdKeepsItsText();
    void branchesTakeNoNumberNoHoursAndNoMasterGroup();
    void theQueueTakesTheSameRowTwice();
    void settingsTakeLongTexts();
    void namesOfSettingsAreTheSameOnlyWhenSpelledTheSame();

    void midnightBeginsTheDayOfTheTimestamp_data();
    void midnightBeginsTheDayOfTheTimestamp();
    void theMonthIsThatOfTheLocalDay_data();
    void theMonthIsThatOfTheLocalDay();
    void daysAndMonthsThatTheServerDoesNotKnowAreNull_data();
    void daysAndMonthsThatTheServerDoesNotKnowAreNull();
    void daysFrom2038OnAreKnownToMariaDb11_5();
    void daysAndMonthsFollowTheTimeZoneOfTheSession();
    void theCurrentGroupIsTheLatestPlannedOneThatHasBegun_data();
    void theCurrentGroupIsTheLatestPlannedOneThatHasBegun();
    void groupsOfOtherPeopleDoNotCount();
    void terminalsOfThePersonAreMarked();
    void otherBitsAreMarkedLikewise();
    void routinesRunWithTheRightsOfTheCaller();
    void routinesHaveTheSqlModeOfTheirFile();

    void theSampleDataLoadsInStrictModeAndShowsEveryKindOfRow();
    void theSampleDataIsTheSameEveryTime();

private:
    /// How the server refuses a statement; empty when it does not.
    QString errorOf(const QString &sql);

    TestDatabase m_db;
};

void TestReferenceDb::initTestCase()
{
    qputenv("TZ", "Europe/Bratislava");
    QVERIFY2(m_db.start(), qPrintable(m_db.errorString()));
}

void TestReferenceDb::init()
{
    m_db.resetEmpty();
}

QString TestReferenceDb::errorOf(const QString &sql)
{
    const QString name = "refused";
    QString error;
    {
        QSqlDatabase database =
            m_db.server().addConnection(name, PrivateMariaDb::Account::Administrator);
        database.setDatabaseName(m_db.server().databaseName());
        database.open();
        QSqlQuery query(database);
        query.exec(sql);
        error = query.lastError().databaseText();
    }
    QSqlDatabase::removeDatabase(name);
    return error;
}

void TestReferenceDb::theSchemaHasTheTablesOfTheContractAndNoOther()
{
    QStringList expected;
    for (const TepDbContract::Table &table : TepDbContract::kTables)
        expected += table.name;
    QCOMPARE(sorted(firstColumn(m_db.rows("SELECT table_name FROM information_schema.tables"
                                          " WHERE table_schema = DATABASE()"))),
             sorted(expected));
}

void TestReferenceDb::everyTableHasTheColumnsOfTheContractAndNoOther_data()
{
    QTest::addColumn<QString>("table");
    QTest::addColumn<QStringList>("columns");
    for (const TepDbContract::Table &table : TepDbContract::kTables)
        QTest::newRow(table.name) << QString(
            table.name) << TepDbContract::columnsOf(table) + TepDbContract::names(table.ownNumber);
}

void TestReferenceDb::everyTableHasTheColumnsOfTheContractAndNoOther()
{
    QFETCH(QString, table);
    QFETCH(QStringList, columns);
    QCOMPARE(sorted(firstColumn(
                 m_db.rows(QStringLiteral("SELECT column_name FROM information_schema.columns"
                                          " WHERE table_schema = DATABASE() AND table_name = '%1'")
                               .arg(table)))),
             sorted(columns));
}

void TestReferenceDb::theSchemaHasTheUniqueKeysOfTheContractAndNoOther()
{
    QStringList expected;
    for (const TepDbContract::Table &table : TepDbContract::kTables) {
        for (const TepDbContract::UniqueKey &key : table.keys) {
            if (key.use != TepDbContract::KeyUse::None)
                expected += keyText(table.name, TepDbContract::names(key.columns));
        }
        if (*table.ownNumber != '\0')
            expected += keyText(table.name, {table.ownNumber});
    }
    QStringList found;
    const TableRows keys = m_db.rows("SELECT table_name, GROUP_CONCAT(column_name SEPARATOR ' ')"
                                     " FROM information_schema.statistics"
                                     " WHERE table_schema = DATABASE() AND non_unique = 0"
                                     " GROUP BY table_name, index_name");
    for (const QStringList &key : keys)
        found += keyText(key[0], key[1].split(' '));
    QCOMPARE(sorted(found), sorted(expected));
}

void TestReferenceDb::everyTableHasAPrimaryKey()
{
    QCOMPARE(m_db.rows("SELECT table_name FROM information_schema.tables WHERE table_schema ="
                       " DATABASE() AND table_name NOT IN (SELECT table_name FROM"
                       " information_schema.table_constraints WHERE table_schema = DATABASE() AND"
                       " constraint_type = 'PRIMARY KEY')"),
             TableRows());
}

void TestReferenceDb::numbersOfRowsAreFilledByTheDatabaseAndSeenByName()
{
    QStringList numbered;
    for (const TepDbContract::Table &table : TepDbContract::kTables) {
        if (*table.ownNumber == '\0')
            continue;
        numbered += table.name;
        QCOMPARE(m_db.rows(QStringLiteral("SELECT column_type, extra FROM"
                                          " information_schema.columns WHERE table_schema ="
                                          " DATABASE() AND table_name = '%1' AND column_name ="
                                          " '%2'")
                               .arg(table.name, table.ownNumber)),
                 TableRows({{"bigint(20) unsigned", "auto_increment, INVISIBLE"}}));
    }
    QCOMPARE(numbered, QStringList({"term_sync", "pzt"}));
}

void TestReferenceDb::generatedColumnsAreFilledByTheDatabase()
{
    int generated = 0;
    for (const TepDbContract::Table &table : TepDbContract::kTables) {
        if (*table.generatedColumn == '\0')
            continue;
        ++generated;
        QCOMPARE(m_db.value(QStringLiteral("SELECT extra FROM information_schema.columns WHERE "
                                           "table_schema = DATABASE()"
                                           " AND table_name = '%1' AND column_name = '%2'")
                                .arg(table.name, table.generatedColumn))
                     .toString(),
                 QString("auto_increment"));
    }
    QCOMPARE(generated, 2);
}

void TestReferenceDb::theRoutinesAreThoseOfTheContractAndNoOther()
{
    QStringList expected;
    for (const TepDbContract::Routine &routine : TepDbContract::kRoutines) {
        expected += QStringLiteral("%1 %2 %3")
                        .arg(routine.kind == TepDbContract::RoutineKind::Function ? "FUNCTION"
                                                                                  : "PROCEDURE",
                             routine.name)
                        .arg(routine.argumentCount);
    }
    QCOMPARE(sorted(firstColumn(m_db.rows(
                 "SELECT CONCAT_WS(' ', r.routine_type, r.routine_name,"
                 " (SELECT COUNT(*) FROM information_schema.parameters p"
                 "  WHERE p.specific_schema = r.routine_schema"
                 "  AND p.specific_name = r.specific_name AND p.ordinal_position > 0))"
                 " FROM information_schema.routines r WHERE r.routine_schema = DATABASE()"))),
             sorted(expected));
}

void TestReferenceDb::columnsOfTheContractAreNamedAndReferToEachOther()
{
    for (const TepDbContract::Column &column : TepDbContract::kColumns) {
        const bool isShown = QString(column.table) == "people"
            || column.written.kind == TepDbContract::Kind::Number
            || column.written.kind == TepDbContract::Kind::Time;
        QVERIFY2(!isShown || *column.label != '\0', qPrintable(column.fullName()));
        const QString owner = column.written.owner;
        QVERIFY2(owner.isEmpty()
                     || TepDbContract::findColumn(owner.section('.', 0, 0), owner.section('.', 1)),
                 qPrintable(column.fullName()));
    }
}

void TestReferenceDb::textsOfTheConfigurationHaveTheRoomOfTheContract()
{
    const TepDbContract::Column column = TepDbContract::columnOfKey("MES");
    QCOMPARE(m_db.value(QStringLiteral("SELECT character_maximum_length FROM"
                                       " information_schema.columns WHERE table_schema ="
                                       " DATABASE() AND table_name = '%1' AND column_name = '%2'")
                            .arg(column.table, column.name))
                 .toInt(),
             column.written.room);
}

void TestReferenceDb::everyTableIsTransactionalAndTakesAnyCharacter()
{
    QCOMPARE(m_db.rows("SELECT DISTINCT engine, table_collation FROM information_schema.tables"
                       " WHERE table_schema = DATABASE()"),
             TableRows({{"InnoDB", "utf8mb4_slovak_ci"}}));
}

void TestReferenceDb::theServerRunsWithItsDefaultSqlMode()
{
    QCOMPARE(m_db.value("SELECT @@GLOBAL.sql_mode").toString(),
             QString("STRICT_TRANS_TABLES,ERROR_FOR_DIVISION_BY_ZERO,NO_AUTO_CREATE_USER,"
                     "NO_ENGINE_SUBSTITUTION"));
}

void TestReferenceDb::aNewPersonIsActiveAndNeedsNoMoreThanAPid()
{
    m_db.run("INSERT INTO people (pid) VALUES (12341)");
    QCOMPARE(m_db.dump("people"),
             QString("uid=1 pid=12341 pamId= title= name= surname= title2= phone= begin=0 end=NULL"
                     " created=0 edited=0 editor=0 rsBegin=NULL rsEnd=NULL rsText= type=0 did=NULL"
                     " calendarID=0 bid=NULL status=1 lastCalc=0 calc=0 gid=NULL"));
}

void TestReferenceDb::timestampsOfPeopleTake64BitsWithSign()
{
    m_db.run(
        "INSERT INTO people (pid, begin, end, rsBegin, rsEnd, lastCalc, calc)"
        " VALUES (1, 4294967295, 253402300799, -62135596800, 253402300799, -86400, 4294967295)");
    QCOMPARE(m_db.rows("SELECT begin, end, rsBegin, rsEnd, lastCalc, calc FROM people"),
             TableRows({{"4294967295", "253402300799", "-62135596800", "253402300799", "-86400",
                         "4294967295"}}));
}

void TestReferenceDb::theLargestUnsignedNumbersFit()
{
    m_db.run("INSERT INTO people (pid, pamId, did, calendarID, bid)"
             " VALUES (4294967295, '4294967295.4294967295', 4294967295, 4294967295, 65535)");
    m_db.run("INSERT INTO branches (number, name, mgid) VALUES (4294967295, 'b', 4294967295)");
    m_db.run(
        "INSERT INTO groups_plan (gid, uid, since) VALUES (4294967295, 4294967295, 4294967295)");
    m_db.run("INSERT INTO admins (personalNumber) VALUES (4294967295)");
    QCOMPARE(m_db.value("SELECT pamId FROM people").toString(), QString("4294967295.4294967295"));
}

void TestReferenceDb::idsOfBranchesAndAdministratorsEndAt16Bits_data()
{
    QTest::addColumn<QString>("table");
    QTest::addColumn<QString>("column");
    QTest::newRow("home branch") << "people"
                                 << "bid";
    QTest::newRow("branch") << "branches"
                            << "bid";
    QTest::newRow("branch of a person") << "brape"
                                        << "bid";
    QTest::newRow("branch of an administrator") << "bradm"
                                                << "bid";
    QTest::newRow("administrator of a branch") << "bradm"
                                               << "aid";
    QTest::newRow("branch of a section") << "sec_branch"
                                         << "bid";
    QTest::newRow("administrator") << "admins"
                                   << "aid";
    QTest::newRow("administrator of a person") << "admins_people"
                                               << "aid";
    QTest::newRow("branch of a terminal") << "term"
                                          << "bid";
}

void TestReferenceDb::idsOfBranchesAndAdministratorsEndAt16Bits()
{
    QFETCH(QString, table);
    QFETCH(QString, column);
    m_db.reset();
    m_db.run(QStringLiteral("UPDATE %1 SET %2 = 65535 LIMIT 1").arg(table, column));
    QCOMPARE(errorOf(QStringLiteral("UPDATE %1 SET %2 = 65536 LIMIT 1").arg(table, column)),
             QStringLiteral("Out of range value for column '%1' at row 1").arg(column));
}

void TestReferenceDb::noBranchIsCreatedBeyond16Bits()
{
    m_db.run("INSERT INTO branches (bid) VALUES (65534)");
    m_db.run("INSERT INTO branches (number) VALUES (1)");
    QCOMPARE(errorOf("INSERT INTO branches (number) VALUES (2)"),
             QString("Out of range value for column 'bid' at row 1"));
}

void TestReferenceDb::anUnquotedPayrollIdKeepsItsText()
{
    m_db.run("INSERT INTO people (pid) VALUES (123410)");
    m_db.run("UPDATE people SET pamId=1234.10 WHERE pid=123410");
    QCOMPARE(m_db.value("SELECT pamId FROM people").toString(), QString("1234.10"));
}

void TestReferenceDb::branchesTakeNoNumberNoHoursAndNoMasterGroup()
{
    m_db.run("INSERT INTO branches (number, name, wh1b, wh1e, wh7b, wh7e, mgid)"
             " VALUES (NULL, 'a', 65535, 0, NULL, NULL, NULL), (NULL, 'b', 0, 0, 0, 0, 0)");
    QCOMPARE(m_db.rows("SELECT bid, number, wh1b, wh7e, mgid FROM branches ORDER BY bid"),
             TableRows({{"1", "NULL", "65535", "NULL", "NULL"}, {"2", "NULL", "0", "0", "0"}}));
}

void TestReferenceDb::theQueueTakesTheSameRowTwice()
{
    for (int i = 0; i < 2; ++i) {
        m_db.run("INSERT INTO term_sync (tid, type, ref, ref_col, ref_id, created, flags)"
                 " VALUES (1, 'U', 'people', 'uid', 4294967295, 1700000000, 2)");
        m_db.run("INSERT INTO pzt (zid, tid) VALUES (1, 1)");
    }
    const QStringList queued = {"1",    "U",    "people",     "uid", "4294967295",
                                "NULL", "NULL", "1700000000", "2"};
    QCOMPARE(m_db.rows("SELECT * FROM term_sync"), TableRows({queued, queued}));
    QCOMPARE(m_db.value("SELECT COUNT(*) FROM pzt").toInt(), 2);
    for (const char *table : {"term_sync", "pzt"})
        QCOMPARE(m_db.value(QString("SELECT COUNT(DISTINCT id) FROM ") + table).toInt(), 2);
}

void TestReferenceDb::settingsTakeLongTexts()
{
    m_db.run("INSERT INTO vars (name, value) VALUES ('a', REPEAT('1234567890,', 100000))");
    QCOMPARE(m_db.value("SELECT LENGTH(value) FROM vars").toInt(), 1100000);
}

void TestReferenceDb::namesOfSettingsAreTheSameOnlyWhenSpelledTheSame()
{
    m_db.run("INSERT INTO vars (name) VALUES ('a'), ('A'), ('á'), ('a ')");
    m_db.run("DELETE FROM vars WHERE name = 'a'");
    QCOMPARE(firstColumn(m_db.rows("SELECT name FROM vars ORDER BY name")),
             QStringList({"A", "a ", "á"}));
}

void TestReferenceDb::midnightBeginsTheDayOfTheTimestamp_data()
{
    QTest::addColumn<QString>("moment");
    QTest::addColumn<QString>("midnight");
    QTest::newRow("noon") << "2024-02-29T12:00:00"
                          << "2024-02-29T00:00:00";
    QTest::newRow("the midnight itself") << "2024-02-29T00:00:00"
                                         << "2024-02-29T00:00:00";
    QTest::newRow("the last second of a day") << "2024-02-29T23:59:59"
                                              << "2024-02-29T00:00:00";
    QTest::newRow("before the clock goes forward") << "2024-03-31T01:59:59"
                                                   << "2024-03-31T00:00:00";
    QTest::newRow("after the clock went forward") << "2024-03-31T03:00:00"
                                                  << "2024-03-31T00:00:00";
    QTest::newRow("end of the day of 23 hours") << "2024-03-31T23:59:59"
                                                << "2024-03-31T00:00:00";
    QTest::newRow("end of the day of 25 hours") << "2024-10-27T23:59:59"
                                                << "2024-10-27T00:00:00";
    QTest::newRow("the day after 25 hours") << "2024-10-28T00:00:00"
                                            << "2024-10-28T00:00:00";
}

void TestReferenceDb::midnightBeginsTheDayOfTheTimestamp()
{
    QFETCH(QString, moment);
    QFETCH(QString, midnight);
    QCOMPARE(m_db.value(QStringLiteral("SELECT midnightFromTs(%1)")
                            .arg(timestamp(moment, "Europe/Bratislava")))
                 .toLongLong(),
             timestamp(midnight, "Europe/Bratislava"));
}

void TestReferenceDb::theMonthIsThatOfTheLocalDay_data()
{
    QTest::addColumn<QString>("moment");
    QTest::addColumn<int>("month");
    QTest::newRow("first second of a month") << "2024-03-01T00:00:00" << 202403;
    QTest::newRow("last second of a month") << "2024-02-29T23:59:59" << 202402;
    QTest::newRow("first second of a year") << "2025-01-01T00:00:00" << 202501;
    QTest::newRow("last second of a year") << "2024-12-31T23:59:59" << 202412;
    QTest::newRow("month in which the clock goes forward") << "2024-03-31T23:59:59" << 202403;
    QTest::newRow("month in which the clock goes back") << "2024-10-31T23:59:59" << 202410;
    // Newer servers do not know the second 0.
    QTest::newRow("the first second that every server knows") << "1970-01-01T01:00:01" << 197001;
}

void TestReferenceDb::theMonthIsThatOfTheLocalDay()
{
    QFETCH(QString, moment);
    QFETCH(int, month);
    QCOMPARE(m_db.value(QStringLiteral("SELECT monthFromTimestamp(%1)")
                            .arg(timestamp(moment, "Europe/Bratislava")))
                 .toInt(),
             month);
}

void TestReferenceDb::daysAndMonthsThatTheServerDoesNotKnowAreNull_data()
{
    QTest::addColumn<QString>("moment");
    QTest::newRow("after the last second of 32 bits") << "4294967296";
    QTest::newRow("the year 9999") << "253402210800";
    QTest::newRow("before 1970") << "-1";
}

void TestReferenceDb::daysAndMonthsThatTheServerDoesNotKnowAreNull()
{
    QFETCH(QString, moment);
    QCOMPARE(m_db.rows(QStringLiteral("SELECT FROM_UNIXTIME(%1)").arg(moment)),
             TableRows({{"NULL"}}));
    QCOMPARE(
        m_db.rows(QStringLiteral("SELECT midnightFromTs(%1), monthFromTimestamp(%1)").arg(moment)),
        TableRows({{"NULL", "NULL"}}));
    m_db.run(QStringLiteral("INSERT INTO vars (name, value) SELECT 'a', midnightFromTs(%1)")
                 .arg(moment));
    m_db.run(QStringLiteral("INSERT INTO vars (name, value) SELECT 'b', monthFromTimestamp(%1)")
                 .arg(moment));
    QCOMPARE(m_db.dump("vars"), QString("name=a value=NULL\nname=b value=NULL"));
}

/// Up to MariaDB 11.4 the server's time has 32 bits with sign, later without.
void TestReferenceDb::daysFrom2038OnAreKnownToMariaDb11_5()
{
    const auto version = QVersionNumber::fromString(m_db.value("SELECT VERSION()").toString());
    const qint64 moment = timestamp("2040-03-01T12:00:00", "Europe/Bratislava");
    const TableRows known{
        {QString::number(timestamp("2040-03-01T00:00:00", "Europe/Bratislava")), "204003"}};
    QCOMPARE(
        m_db.rows(QStringLiteral("SELECT midnightFromTs(%1), monthFromTimestamp(%1)").arg(moment)),
        version < QVersionNumber(11, 5) ? TableRows({{"NULL", "NULL"}}) : known);
}

void TestReferenceDb::daysAndMonthsFollowTheTimeZoneOfTheSession()
{
    const QString statement = "SELECT midnightFromTs(%1), monthFromTimestamp(%1)";
    const qint64 moment = timestamp("2024-02-29T23:30:00", "UTC"); // March already in Bratislava
    QCOMPARE(m_db.rows(statement.arg(moment)),
             TableRows({{QString::number(timestamp("2024-03-01T00:00:00", "Europe/Bratislava")),
                         "202403"}}));
    m_db.run("SET time_zone = '-05:00'");
    QCOMPARE(m_db.rows(statement.arg(moment)),
             TableRows({{QString::number(timestamp("2024-02-29T05:00:00", "UTC")), "202402"}}));
    m_db.run("SET time_zone = DEFAULT");
}

void TestReferenceDb::theCurrentGroupIsTheLatestPlannedOneThatHasBegun_data()
{
    QTest::addColumn<QString>("month");
    QTest::addColumn<QString>("defaultGid");
    QTest::addColumn<QString>("gid");
    QTest::newRow("before the first plan") << "202312"
                                           << "5"
                                           << "5";
    QTest::newRow("before the first plan, no default") << "202312"
                                                       << "NULL"
                                                       << "NULL";
    QTest::newRow("first month of the first plan") << "202401"
                                                   << "5"
                                                   << "11";
    QTest::newRow("last month of the first plan") << "202405"
                                                  << "5"
                                                  << "11";
    QTest::newRow("first month of the second plan") << "202406"
                                                    << "NULL"
                                                    << "12";
    QTest::newRow("a year later") << "202506"
                                  << "5"
                                  << "12";
}

void TestReferenceDb::theCurrentGroupIsTheLatestPlannedOneThatHasBegun()
{
    QFETCH(QString, month);
    QFETCH(QString, defaultGid);
    QFETCH(QString, gid);
    m_db.run("INSERT INTO groups_plan (gid, uid, since) VALUES (12, 7, 202406), (11, 7, 202401)");
    QCOMPARE(m_db.rows(QStringLiteral("SELECT getCurrentGid(7, %1, %2)").arg(month, defaultGid)),
             TableRows({{gid}}));
}

void TestReferenceDb::groupsOfOtherPeopleDoNotCount()
{
    m_db.run("INSERT INTO groups_plan (gid, uid, since) VALUES (12, 7, 202401)");
    QCOMPARE(m_db.rows("SELECT getCurrentGid(8, 202401, NULL)"), TableRows({{"NULL"}}));
}

void TestReferenceDb::terminalsOfThePersonAreMarked()
{
    m_db.run(
        "INSERT INTO term (tid, status, flags, syn) VALUES"
        " (1, 1, 3, 64), (2, 1, 1, 0), (3, 0, 2, 0), (4, 2, 2, 0), (5, 1, 2, 2), (6, 1, 2, 0)");
    m_db.run(
        "INSERT INTO people_term (tid, uid) VALUES (1, 7), (2, 7), (3, 7), (4, 7), (5, 7), (6, 8)");
    m_db.run("CALL updateTermsSync(7, 2);");
    // Marked is the active terminal that holds the person and takes people; other bits stay.
    QCOMPARE(m_db.rows("SELECT tid, syn FROM term ORDER BY tid"),
             TableRows({{"1", "66"}, {"2", "0"}, {"3", "0"}, {"4", "0"}, {"5", "2"}, {"6", "0"}}));
}

void TestReferenceDb::otherBitsAreMarkedLikewise()
{
    m_db.run("INSERT INTO term (tid, status, flags, syn) VALUES (1, 1, 258, 0), (2, 1, 2, 0)");
    m_db.run("INSERT INTO people_term (tid, uid) VALUES (1, 7), (2, 7)");
    m_db.run("CALL updateTermsSync(7, 256);");
    QCOMPARE(m_db.rows("SELECT tid, syn FROM term ORDER BY tid"),
             TableRows({{"1", "256"}, {"2", "0"}}));
}

void TestReferenceDb::routinesRunWithTheRightsOfTheCaller()
{
    QCOMPARE(m_db.rows("SELECT DISTINCT security_type FROM information_schema.routines"
                       " WHERE routine_schema = DATABASE()"),
             TableRows({{"INVOKER"}}));
    QSqlQuery query(m_db.openPluginConnection());
    VERIFY_SQL(query, query.exec("CALL updateTermsSync(7, 2);"));
    VERIFY_SQL(query, query.exec("SELECT getCurrentGid(7, monthFromTimestamp(0), 1)"));
}

void TestReferenceDb::routinesHaveTheSqlModeOfTheirFile()
{
    for (const TepDbContract::Routine &routine : TepDbContract::kRoutines) {
        m_db.run(QStringLiteral("DROP %1 %2")
                     .arg(routine.kind == TepDbContract::RoutineKind::Function ? "FUNCTION"
                                                                               : "PROCEDURE",
                          routine.name));
    }
    QTemporaryFile script;
    QFile routines(MIROVAHR_REFERENCE_DB_DIR "/routines.sql");
    QVERIFY(script.open() && routines.open(QIODevice::ReadOnly));
    script.write("SET SESSION sql_mode = 'ANSI_QUOTES,STRICT_ALL_TABLES';\n");
    script.write(routines.readAll());
    script.write("INSERT INTO vars (name, value) VALUES ('mode', @@SESSION.sql_mode);\n");
    script.close();
    QVERIFY2(m_db.server().load({script.fileName()}), qPrintable(m_db.server().errorString()));
    QCOMPARE(m_db.rows("SELECT DISTINCT sql_mode FROM information_schema.routines WHERE"
                       " routine_schema = DATABASE()"),
             TableRows({{""}}));
    QCOMPARE(m_db.dump("vars"), QString("name=mode value=ANSI_QUOTES,STRICT_ALL_TABLES"));
}

void TestReferenceDb::theSampleDataLoadsInStrictModeAndShowsEveryKindOfRow()
{
    m_db.reset();
    const DatabaseState state = m_db.dumpAll({"term_sync"}); // filled by synchronisations only
    for (auto table = state.begin(); table != state.end(); ++table)
        QVERIFY2(!table->isEmpty(), qPrintable(table.key()));
    const QStringList kinds = {"people WHERE status = 0",
                               "people WHERE bid IS NULL",
                               "people WHERE gid IS NULL",
                               "branches WHERE number IS NULL",
                               "branches WHERE mgid IS NULL",
                               "branches WHERE wh6b > 0",
                               "term WHERE status = 0",
                               "term WHERE status = 2",
                               "term WHERE bid IS NULL",
                               "term WHERE status = 1 AND NOT flags & 2",
                               "term WHERE status = 1 AND flags & 64",
                               "term WHERE status = 1 AND flags & 256",
                               "atten WHERE `lock` = 1",
                               "atten WHERE man = 1",
                               "funds WHERE iid = 3 AND unit = 2",
                               "funds WHERE iid = 3 AND unit <> 2",
                               "funds_move WHERE type = 3",
                               "admins WHERE personalNumber IS NULL",
                               "admins_people WHERE request = 1",
                               "admins_people WHERE request = 0",
                               "vars WHERE name = 'exportPam.1.active'",
                               "vars WHERE name = 'exportPam.1.selPeople'"};
    for (const QString &kind : kinds)
        QVERIFY2(m_db.value("SELECT COUNT(*) FROM " + kind).toInt() > 0, qPrintable(kind));
    QCOMPARE(m_db.value("SELECT COUNT(*) FROM funds WHERE iid = 3 AND unit = 2").toInt(), 1);
    QCOMPARE(m_db.value("SELECT COUNT(*) FROM funds_move WHERE day <> midnightFromTs(day)"
                        " OR month <> monthFromTimestamp(day)")
                 .toInt(),
             0);
    QCOMPARE(m_db.value("SELECT COUNT(*) FROM atten WHERE date <> midnightFromTs(date)").toInt(),
             0);
}

void TestReferenceDb::theSampleDataIsTheSameEveryTime()
{
    m_db.reset();
    const DatabaseState before = m_db.dumpAll();
    m_db.reset();
    QCOMPARE(TestDatabase::difference(before, m_db.dumpAll()), QString());
}

QTEST_GUILESS_MAIN(TestReferenceDb)
#include "tst_referencedb.moc"
