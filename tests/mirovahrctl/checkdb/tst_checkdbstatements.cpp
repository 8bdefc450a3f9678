#include "db/tepdbcontract.h"
#include "mirovahrctl/pluginside/pluginstatements.h"
#include "tests/mirovahrctl/program/toolrun.h"
#include "tests/support/testdatabase.h"

#include <QTest>

namespace {

/// More rows than may be walked without a warning.
const QString kSequence = "seq_1_to_2000";

/// A site on which it matters how rows are found: everybody has a branch, an administrator, a
/// terminal, and so on, of their own.
const char *const kLargeSite[] = {
    "mastergroups (mgid) SELECT seq",
    "`groups` (gid, parent, calendarID) SELECT seq, seq, 1",
    "branches (bid, number, mgid) SELECT seq, seq, seq",
    "people (uid, pid, pamId, bid) SELECT seq, seq * 10 + 1, CONCAT(seq, '.1'), seq",
    "people_pam (uid, id) SELECT seq, 1",
    "atten (uid, date, ok) SELECT seq, 1700000000, 1",
    "brape (bid, uid, since) SELECT seq, seq, 1700000000",
    "bradm (bid, aid) SELECT seq, seq",
    "groups_plan (gid, uid, since) SELECT seq, seq, 202401",
    "groups_month (gid, uid, month) SELECT seq, seq, 202401",
    "funds (fid, iid, unit) SELECT seq, 3, IF(seq = 1, 2, 1)",
    "funds_move (type, day, month, value, fid, uid) SELECT 1, 1700000000, 202311, 100, 1, seq",
    "admins (aid, personalNumber) SELECT seq, seq",
    "admins_people (aid, uid, request) SELECT seq, seq, 1",
    "term (tid, bid, status, flags) SELECT seq, seq, 1, 2",
    "people_term (tid, uid) SELECT seq, seq",
    "vars (name, value) SELECT CONCAT('exportPam.', seq, '.active'), 1",
};

/// The keys of the reference schema by which no statement for a person finds rows.
const QMap<QString, QString> kOtherKeys{
    {"people_pam.PRIMARY", "for the upsert: key-missing"},
    {"branches.number", "branches are loaded together, once in a synchronisation"},
    {"brape.PRIMARY", "for the upsert: key-missing. A membership is found by the person as well"},
    {"brape.uid", "for the administrators of a person, whom only other components look up"},
    {"groups.PRIMARY", "of other components: groups are found by their master group"},
    {"groups_month.PRIMARY", "for the upsert: key-missing"},
    {"funds.PRIMARY", "the vacation fund is looked up once in a synchronisation"},
    {"admins.PRIMARY", "of other components: the plugin looks for personal numbers"},
    {"admins_people.PRIMARY", "for the upsert: key-missing"},
    {"term_sync.PRIMARY", "for servers that want a primary key"},
    {"term_sync.tid", "for the terminals, which read the queue"},
    {"people_term.PRIMARY", "for the upsert: key-missing"},
    {"sections.PRIMARY", "of other components"},
    {"sec_branch.PRIMARY", "of other components"},
    {"bas.PRIMARY", "of other components"},
    {"inters.PRIMARY", "of other components"},
    {"inters_term.PRIMARY", "of other components"},
    {"pzt.PRIMARY", "for servers that want a primary key"},
    {"pzt.zid", "of other components"},
};

/// The columns of a key as the finding names them, where that is not the key's first one.
const QMap<QString, QString> kLookupOfKey{
    {"groups.parent", "calendarID, parent"},
    {"funds_move.PRIMARY", "fid, uid"},
};

QString quotedName(const QString &name)
{
    return '`' + name + '`';
}

} // namespace

/// check-db on a site that is large enough for a missing key to matter.
class TestCheckDbStatements : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();

    void aLargeSiteWithItsKeysIsFine();
    void everyKeyOfTheReferenceIsMissed_data();
    void everyKeyOfTheReferenceIsMissed();
    void everyLookupIsMissed_data();
    void everyLookupIsMissed();
    void aKeyThatServesAsWellIsEnough_data();
    void aKeyThatServesAsWellIsEnough();
    void aKeyThatDoesNotServeIsMissed_data();
    void aKeyThatDoesNotServeIsMissed();
    void theFindingSaysWhatItIsBasedOn();
    void aStatementForABranchCountsOnceForEachBranch();
    void theTablesOfAJoinAreWalkedOnceEach();
    void everyMissingKeyOfATableIsNamed();
    void aLongHistoryOfOnePersonIsFine();
    void tablesWithFewRowsNeedNoKeys_data();
    void tablesWithFewRowsNeedNoKeys();
    void aSiteWithoutStatisticsIsFine();
    void anAccountThatOnlyReadsSeesTheSame();
    void statementsThatAreNotExplainedAreMentioned();

    void theQueryOfAStatementFindsTheSameRows_data();
    void theQueryOfAStatementFindsTheSameRows();
    void theStatementsAreNotedWithoutATrace();

private:
    void fill();
    void analyze();
    ToolRun check(const QString &user = QStringLiteral("yav"), const QStringList &more = {});
    /// The tables with findings of the rule, each with what the finding says.
    QMap<QString, QString> scans(const ToolRun &run) const;
    /// The finding of the table after a change of a copy of it; empty when there is none.
    QString scanAfter(const QString &table, const QStringList &changes);
    QStringList keysOf(const QString &table);
    QStringList dropKeys(const QString &table, const QStringList &keys);

    TestDatabase m_db;
};

void TestCheckDbStatements::initTestCase()
{
    QVERIFY2(m_db.start(), qPrintable(m_db.errorString()));
    m_db.grant("grants.sql");
    fill();
}

void TestCheckDbStatements::fill()
{
    m_db.resetEmpty();
    for (const char *rows : kLargeSite)
        m_db.run(QStringLiteral("INSERT INTO %1 FROM %2").arg(QString(rows), kSequence));
    analyze();
}

void TestCheckDbStatements::analyze()
{
    const TableRows tables = m_db.rows("SHOW TABLES");
    for (const QStringList &table : tables)
        m_db.rows("ANALYZE TABLE " + quotedName(table.first()));
}

ToolRun TestCheckDbStatements::check(const QString &user, const QStringList &more)
{
    return runTool(QStringList{"check-db", "--json", "--socket", m_db.server().socketPath(),
                               "--database", m_db.server().databaseName(), "--user", user,
                               "--password-file", m_db.server().passwordFile()}
                   + kTimeouts + more);
}

QMap<QString, QString> TestCheckDbStatements::scans(const ToolRun &run) const
{
    QMap<QString, QString> scans;
    const QVector<QJsonObject> findings = run.findingsOf("statement-scans");
    for (const QJsonObject &finding : findings)
        scans.insert(finding.value("field").toString(), finding.value("message").toString());
    return scans;
}

QString TestCheckDbStatements::scanAfter(const QString &table, const QStringList &changes)
{
    const QString name = quotedName(table);
    m_db.run("RENAME TABLE " + name + " TO original");
    m_db.run("CREATE TABLE " + name + " LIKE original");
    for (const QString &change : changes)
        m_db.run("ALTER TABLE " + name + ' ' + change);
    m_db.run("INSERT INTO " + name + " SELECT * FROM original");
    m_db.rows("ANALYZE TABLE " + name);
    const ToolRun run = check();
    m_db.run("DROP TABLE " + name);
    m_db.run("RENAME TABLE original TO " + name);
    const QMap<QString, QString> found = scans(run);
    if (found.size() > found.contains(table))
        QTest::qFail(run.report().constData(), __FILE__, __LINE__);
    return found.value(table);
}

QStringList TestCheckDbStatements::keysOf(const QString &table)
{
    QStringList keys;
    const TableRows rows = m_db.rows("SELECT DISTINCT INDEX_NAME FROM information_schema.STATISTICS"
                                     " WHERE TABLE_SCHEMA = DATABASE() AND TABLE_NAME = '"
                                     + table + '\'');
    for (const QStringList &row : rows)
        keys += row.first();
    return keys;
}

/// Changes that drop the keys. An automatic number, which needs a key, becomes a plain one first.
QStringList TestCheckDbStatements::dropKeys(const QString &table, const QStringList &keys)
{
    QStringList changes;
    const TableRows automatic =
        m_db.rows("SELECT COLUMN_NAME, COLUMN_TYPE, IF(EXTRA LIKE '%INVISIBLE', 'INVISIBLE', '')"
                  " FROM information_schema.COLUMNS WHERE TABLE_SCHEMA = DATABASE() AND"
                  " EXTRA LIKE 'auto_increment%' AND TABLE_NAME = '"
                  + table + '\'');
    for (const QStringList &column : automatic) {
        changes += QStringLiteral("MODIFY %1 %2 NOT NULL DEFAULT 0 %3")
                       .arg(column.at(0), column.at(1), column.at(2));
    }
    for (const QString &key : keys)
        changes += "DROP KEY " + quotedName(key);
    return changes;
}

void TestCheckDbStatements::aLargeSiteWithItsKeysIsFine()
{
    const ToolRun run = runTool({"check-db", "--socket", m_db.server().socketPath(), "--database",
                                 m_db.server().databaseName(), "--user", "yav", "--password-file",
                                 m_db.server().passwordFile()});
    QVERIFY2(run.out.contains("The server finds their rows without walking a large table.\n"),
             run.report().constData());
}

void TestCheckDbStatements::everyKeyOfTheReferenceIsMissed_data()
{
    QTest::addColumn<QString>("table");
    QTest::addColumn<QString>("key");
    const TableRows keys = m_db.rows("SELECT DISTINCT TABLE_NAME, INDEX_NAME FROM"
                                     " information_schema.STATISTICS WHERE TABLE_SCHEMA ="
                                     " DATABASE()");
    QCOMPARE(keys.size(), 34);
    for (const QStringList &key : keys)
        QTest::newRow(qPrintable(key.join('.'))) << key.at(0) << key.at(1);
}

void TestCheckDbStatements::everyKeyOfTheReferenceIsMissed()
{
    QFETCH(QString, table);
    QFETCH(QString, key);
    const QString name = table + '.' + key;
    const QString firstColumn = m_db.value("SELECT COLUMN_NAME FROM information_schema.STATISTICS"
                                           " WHERE TABLE_SCHEMA = DATABASE() AND SEQ_IN_INDEX = 1"
                                           " AND TABLE_NAME = '"
                                           + table + "' AND INDEX_NAME = '" + key + '\'')
                                    .toString();
    const QString message = scanAfter(table, dropKeys(table, {key}));
    if (kOtherKeys.contains(name)) {
        QCOMPARE(message, QString());
        return;
    }
    const QString expected = QStringLiteral("The table %1 has no key on %2: ")
                                 .arg(table, kLookupOfKey.value(name, firstColumn));
    QVERIFY2(message.startsWith(expected), qPrintable(message));
}

void TestCheckDbStatements::everyLookupIsMissed_data()
{
    QTest::addColumn<QString>("table");
    QTest::addColumn<QString>("columns");
    for (const TepDbContract::Lookup &lookup : TepDbContract::kLookups) {
        QTest::addRow("%s by %s", lookup.table, lookup.columns)
            << QString(lookup.table) << TepDbContract::names(lookup.columns).join(", ");
    }
}

void TestCheckDbStatements::everyLookupIsMissed()
{
    QFETCH(QString, table);
    QFETCH(QString, columns);
    const QString message = scanAfter(table, dropKeys(table, keysOf(table)));
    const QRegularExpression named(QStringLiteral("\\bon %1(,|:)").arg(columns));
    QVERIFY2(named.match(message).hasMatch(), qPrintable(message));
}

void TestCheckDbStatements::aKeyThatServesAsWellIsEnough_data()
{
    QTest::addColumn<QString>("table");
    QTest::addColumn<QString>("key");
    QTest::newRow("more columns behind") << "atten"
                                         << "KEY (uid, ok, man)";
    QTest::newRow("columns in another order") << "funds_move"
                                              << "KEY (fid, uid)";
    QTest::newRow("only the column that leaves few rows") << "groups"
                                                          << "KEY (parent)";
    QTest::newRow("the beginning of a text") << "vars"
                                             << "KEY (name(20))";
}

void TestCheckDbStatements::aKeyThatServesAsWellIsEnough()
{
    QFETCH(QString, table);
    QFETCH(QString, key);
    const QStringList without = dropKeys(table, keysOf(table));
    QVERIFY(!scanAfter(table, without).isEmpty());
    QCOMPARE(scanAfter(table, without + QStringList("ADD " + key)), QString());
}

void TestCheckDbStatements::aKeyThatDoesNotServeIsMissed_data()
{
    QTest::addColumn<QString>("table");
    QTest::addColumn<QString>("key");
    QTest::newRow("another column before") << "atten"
                                           << "KEY (ok, uid)";
    QTest::newRow("only a column that leaves many rows") << "funds_move"
                                                         << "KEY (fid)";
    QTest::newRow("a key that the server ignores") << "admins"
                                                   << "KEY (personalNumber) IGNORED";
    QTest::newRow("a key of words") << "vars"
                                    << "FULLTEXT KEY (name)";
}

void TestCheckDbStatements::aKeyThatDoesNotServeIsMissed()
{
    QFETCH(QString, table);
    QFETCH(QString, key);
    const QStringList without = dropKeys(table, keysOf(table));
    QVERIFY(!scanAfter(table, without + QStringList("ADD " + key)).isEmpty());
}

void TestCheckDbStatements::theFindingSaysWhatItIsBasedOn()
{
    // This engine counts its rows, which others estimate.
    const QString message =
        scanAfter("atten", dropKeys("atten", {"PRIMARY"}) + QStringList("ENGINE = Aria"));
    const double people = m_db.value("SELECT TABLE_ROWS FROM information_schema.TABLES WHERE"
                                     " TABLE_SCHEMA = DATABASE() AND TABLE_NAME = 'people'")
                              .toDouble();
    QCOMPARE(message,
             QStringLiteral("The table atten has no key on uid: for each person or branch the "
                            "plugin sends 4 statements that walk up to 2000 of its rows. A "
                            "synchronisation in which all %1 people have changed takes up to about "
                            "%2 seconds longer, estimated with 1000000 rows a second.")
                 .arg(people)
                 .arg(int(4 * 2000 * people / 1000000)));
}

void TestCheckDbStatements::aStatementForABranchCountsOnceForEachBranch()
{
    m_db.run("INSERT INTO people (uid, pid) SELECT seq + 2000, seq * 10 + 2 FROM " + kSequence);
    m_db.rows("ANALYZE TABLE people");
    const QString message = scanAfter("bradm", dropKeys("bradm", {"PRIMARY"}));
    m_db.run("DELETE FROM people WHERE uid > 2000");
    m_db.rows("ANALYZE TABLE people");
    // 2000 rows for each of the 2000 branches, as the server estimates them.
    const QRegularExpression estimate(" takes up to about [345] seconds longer");
    QVERIFY2(estimate.match(message).hasMatch(), qPrintable(message));
}

void TestCheckDbStatements::theTablesOfAJoinAreWalkedOnceEach()
{
    for (const char *table : {"term", "people_term"}) {
        const QStringList changes = dropKeys(table, keysOf(table));
        for (const QString &change : changes)
            m_db.run(QStringLiteral("ALTER TABLE %1 %2").arg(QString(table), change));
    }
    analyze();
    const ToolRun run = check();
    fill();
    const QMap<QString, QString> found = scans(run);
    QCOMPARE(found.keys(), QStringList({"people_term", "term"}));
    // The statement that queues a change of a person joins the two.
    QVERIFY2(found.value("people_term").contains(" 1 statement that walks up to 2000 of its rows"),
             run.report().constData());
    QVERIFY2(found.value("term").contains(" 3 statements that walk up to 2000 of its rows"),
             run.report().constData());
}

void TestCheckDbStatements::everyMissingKeyOfATableIsNamed()
{
    const QString message = scanAfter("people", dropKeys("people", {"PRIMARY", "pid"}));
    QVERIFY2(message.startsWith("The table people has no key on uid, and none on pid: "),
             qPrintable(message));
}

void TestCheckDbStatements::aLongHistoryOfOnePersonIsFine()
{
    m_db.run("INSERT INTO atten (uid, date, ok) SELECT 1, 86400 * seq, 1 FROM seq_1_to_3000");
    const QString message = scanAfter("atten", {});
    m_db.run("DELETE FROM atten WHERE date < 86400 * 3001");
    QCOMPARE(message, QString());
}

void TestCheckDbStatements::tablesWithFewRowsNeedNoKeys_data()
{
    QTest::addColumn<int>("rows");
    QTest::newRow("none") << 0;
    QTest::newRow("one") << 1;
    QTest::newRow("a few hundred") << 400;
}

void TestCheckDbStatements::tablesWithFewRowsNeedNoKeys()
{
    QFETCH(int, rows);
    m_db.resetEmpty();
    for (const TepDbContract::Lookup &lookup : TepDbContract::kLookups) {
        const QStringList changes = dropKeys(lookup.table, keysOf(lookup.table));
        for (const QString &change : changes)
            m_db.run("ALTER TABLE " + quotedName(lookup.table) + ' ' + change);
    }
    for (const char *table : kLargeSite) {
        m_db.run(QStringLiteral("INSERT INTO %1 FROM %2 WHERE seq <= %3")
                     .arg(QString(table), kSequence, QString::number(rows)));
    }
    analyze();
    const ToolRun run = check();
    fill();
    QCOMPARE(scans(run), (QMap<QString, QString>()));
}

void TestCheckDbStatements::aSiteWithoutStatisticsIsFine()
{
    m_db.resetEmpty();
    m_db.run("DELETE FROM mysql.innodb_table_stats WHERE database_name = DATABASE()");
    m_db.run("DELETE FROM mysql.innodb_index_stats WHERE database_name = DATABASE()");
    m_db.run("FLUSH TABLES");
    const ToolRun empty = check();
    for (const char *rows : kLargeSite)
        m_db.run(QStringLiteral("INSERT INTO %1 FROM %2").arg(QString(rows), kSequence));
    const ToolRun filled = check();
    fill();
    QCOMPARE(scans(empty), (QMap<QString, QString>()));
    QCOMPARE(scans(filled), (QMap<QString, QString>()));
}

void TestCheckDbStatements::anAccountThatOnlyReadsSeesTheSame()
{
    m_db.run("ALTER USER mirovahrctl@localhost IDENTIFIED BY '' ACCOUNT UNLOCK");
    m_db.run("ALTER TABLE admins_people DROP KEY uid");
    m_db.rows("ANALYZE TABLE admins_people");
    const ToolRun plugin = check();
    const ToolRun reader =
        runTool({"check-db", "--json", "--other-account", "--socket", m_db.server().socketPath(),
                 "--database", m_db.server().databaseName(), "--user", "mirovahrctl"});
    m_db.run("ALTER TABLE admins_people ADD KEY (uid)");
    m_db.rows("ANALYZE TABLE admins_people");
    QCOMPARE(scans(reader).keys(), QStringList("admins_people"));
    QCOMPARE(scans(reader), scans(plugin));
}

void TestCheckDbStatements::statementsThatAreNotExplainedAreMentioned()
{
    m_db.hideTable("term");
    const ToolRun run = runTool({"check-db", "--socket", m_db.server().socketPath(), "--database",
                                 m_db.server().databaseName(), "--user", "yav", "--password-file",
                                 m_db.server().passwordFile()});
    m_db.restoreTable("term");
    COMPARE_EXIT(run, ExitStatus::ContractBroken);
    QVERIFY2(run.out.contains("The server does not explain all of them: "),
             run.report().constData());
}

void TestCheckDbStatements::theQueryOfAStatementFindsTheSameRows_data()
{
    QTest::addColumn<QString>("statement");
    QTest::addColumn<QString>("query");
    QTest::newRow("a query") << "SELECT uid FROM people WHERE pid = 1 LIMIT 1;"
                             << "SELECT uid FROM people WHERE pid = 1 LIMIT 1";
    QTest::newRow("an update") << "UPDATE people SET name='A', bid=2  WHERE pid=1"
                               << "SELECT 1 FROM people WHERE pid=1";
    QTest::newRow("an update in other letters") << "Update `term` set syn = syn | 2 where tid = 1"
                                                << "SELECT 1 FROM `term` WHERE tid = 1";
    QTest::newRow("an insert from a query")
        << "INSERT INTO term_sync (tid) SELECT tid FROM term WHERE (flags & 2);"
        << "SELECT tid FROM term WHERE (flags & 2)";
    QTest::newRow("an upsert from a query")
        << "INSERT INTO brape (bid) SELECT 1 bid FROM people WHERE uid IN(4) ON DUPLICATE KEY "
           "UPDATE bid=VALUES(bid);"
        << "SELECT 1 bid FROM people WHERE uid IN(4)";
    QTest::newRow("an insert of values") << "INSERT INTO people_pam (uid, id) VALUES(4, 1)"
                                         << "";
    QTest::newRow("a call") << "CALL updateTermsSync(4, 2);"
                            << "";
}

void TestCheckDbStatements::theQueryOfAStatementFindsTheSameRows()
{
    QFETCH(QString, statement);
    QFETCH(QString, query);
    QCOMPARE(queryOf(statement), query);
}

void TestCheckDbStatements::theStatementsAreNotedWithoutATrace()
{
    const QStringList connections = QSqlDatabase::connectionNames();
    const QStringList drivers = QSqlDatabase::drivers();
    m_db.clearStatements();
    QVERIFY(!pluginStatements({1, 11, 1, 1, 1}).isEmpty());
    QCOMPARE(m_db.statements(), QStringList());
    QCOMPARE(QSqlDatabase::connectionNames(), connections);
    QCOMPARE(QSqlDatabase::drivers(), drivers);
}

QTEST_GUILESS_MAIN(TestCheckDbStatements)
#include "tst_checkdbstatements.moc"
