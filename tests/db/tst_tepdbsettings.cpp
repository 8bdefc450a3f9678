#include "db/tepdbsettings.h"

#include "tests/db/repositorytest.h"
#include "tests/support/logcapture.h"

#include <QRegularExpression>
#include <QTest>

using Values = QMap<QString, QVariant>;

class TestTepDbSettings : public RepositoryTest {
    Q_OBJECT

private Q_SLOTS:
    void getReturnsTheValueOfTheKey();
    void getOfAMissingKeyReturnsTheDefaultAndLogsNothing();
    void getOfAKeyWithoutAValueDoesNotReturnTheDefault();
    void getReturnsTheDefaultWhenTheStatementFails();

    void setInsertsAKeyWithBoundValues();
    void setReplacesTheValueOfAKey();
    void setStoresValuesThatAreNotText_data();
    void setStoresValuesThatAreNotText();
    void setExecutesNothingWhenItCannotBePrepared();
    void setReportsAFailedExecution();

    void delDeletesTheKeySpelledExactly();
    void delLikeDeletesEveryKeyThatBeginsWithTheName();
    void delLikeTakesWildcardsInTheName();
    void delOfAMissingKeySucceeds();
    void delReportsAFailedStatement();

    void getMultipleOfAListReturnsThoseThatExist();
    void getMultipleOfAListTakesTheNamesAsTheyCome();
    void getMultipleOfAnEmptyListRunsNoStatement();
    void getMultipleOfAPrefixReturnsEveryKeyThatBeginsWithIt();
    void getMultipleOfAPrefixTakesWildcards();
    void getMultipleIsEmptyWhenTheStatementFails();

    void setMultipleWritesInTheOrderOfTheKeys();
    void setMultipleReplacesValues();
    void setMultipleGoesOnAfterABadEntry();
    void setMultipleOfAnEmptyMapSucceeds();
    void setMultipleWritesNothingWhenItCannotBePrepared();

    void caseAndAccentsMakeAnotherKey();

    void aQuoteInTheNameBreaksTheStatementsThatSpellIt_data();
    void aQuoteInTheNameBreaksTheStatementsThatSpellIt();
    void aQuoteInTheNameOfAListBreaksItsStatement();
    void aQuoteInTheNameOrValueIsHarmlessWhereItIsBound();
    void errorTextsAreLoggedInUtf8();

    void openAndCloseAreThoseOfTheConnection();
    void aFailedOpenIsLogged();
    void aClosedConnectionGivesDefaultsWithoutAnError();
    void aStoreWithoutAConnectionGivesDefaults();
    void setDBReplacesTheConnection();

private:
    void addVariables(const QStringList &names);
    QStringList names();
};

void TestTepDbSettings::addVariables(const QStringList &names)
{
    for (const QString &name : names)
        m_database.run(QStringLiteral("INSERT INTO vars VALUES ('%1', '%1 value')").arg(name));
}

QStringList TestTepDbSettings::names()
{
    QStringList names;
    for (const QStringList &row : m_database.rows("SELECT name FROM vars ORDER BY name"))
        names += row.first();
    return names;
}

void TestTepDbSettings::getReturnsTheValueOfTheKey()
{
    addVariables({"speed", "colour"});
    LogCapture log;
    QCOMPARE(TepDbSettings(m_connection).variableGet("colour", "none").toString(),
             QString("colour value"));
    QCOMPARE(m_database.statements(),
             QStringList("SELECT value FROM vars WHERE name='colour' LIMIT 1"));
    QCOMPARE(log.lines(), QStringList());
}

void TestTepDbSettings::getOfAMissingKeyReturnsTheDefaultAndLogsNothing()
{
    LogCapture log;
    QCOMPARE(TepDbSettings(m_connection).variableGet("colour", 17), QVariant(17));
    QCOMPARE(m_database.statements(),
             QStringList("SELECT value FROM vars WHERE name='colour' LIMIT 1"));
    QCOMPARE(log.lines(), QStringList());
}

void TestTepDbSettings::getOfAKeyWithoutAValueDoesNotReturnTheDefault()
{
    m_database.run("INSERT INTO vars VALUES ('colour', NULL)");
    const QVariant value = TepDbSettings(m_connection).variableGet("colour", 17);
    QVERIFY(value.isNull());
    QCOMPARE(value.toString(), QString());
}

void TestTepDbSettings::getReturnsTheDefaultWhenTheStatementFails()
{
    m_database.hideTable("vars");
    LogCapture log;
    QCOMPARE(TepDbSettings(m_connection).variableGet("colour", 17), QVariant(17));
    QCOMPARE(log.lines(),
             QStringList("C TepDbSettings::variableGet - SQL ERROR: Table 'tepdb.vars' doesn't"
                         " exist QMYSQL: Unable to execute query"));
}

void TestTepDbSettings::setInsertsAKeyWithBoundValues()
{
    LogCapture log;
    QVERIFY(TepDbSettings(m_connection).variableSet("colour", "red"));
    QCOMPARE(m_database.statements(),
             QStringList({"PREPARE: INSERT INTO vars (name, value) VALUES(?, ?)"
                          " ON DUPLICATE KEY UPDATE value=VALUES(value)",
                          "EXECUTE: INSERT INTO vars (name, value) VALUES('colour', 'red')"
                          " ON DUPLICATE KEY UPDATE value=VALUES(value)"}));
    QCOMPARE(m_database.rows("SELECT name, value FROM vars"), TableRows({{"colour", "red"}}));
    QCOMPARE(log.lines(), QStringList());
}

void TestTepDbSettings::setReplacesTheValueOfAKey()
{
    addVariables({"colour"});
    QVERIFY(TepDbSettings(m_connection).variableSet("colour", "red"));
    QVERIFY(TepDbSettings(m_connection).variableSet("colour", "red"));
    QCOMPARE(m_database.rows("SELECT name, value FROM vars"), TableRows({{"colour", "red"}}));
}

void TestTepDbSettings::setStoresValuesThatAreNotText_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("stored");
    QTest::newRow("integer") << QVariant(0) << "0";
    QTest::newRow("negative integer") << QVariant(-12) << "-12";
    QTest::newRow("true") << QVariant(true) << "1";
    QTest::newRow("empty text") << QVariant(QString("")) << "";
    QTest::newRow("no value") << QVariant() << "NULL";
}

void TestTepDbSettings::setStoresValuesThatAreNotText()
{
    QFETCH(QVariant, value);
    QFETCH(QString, stored);
    QVERIFY(TepDbSettings(m_connection).variableSet("key", value));
    QCOMPARE(m_database.rows("SELECT value FROM vars"), TableRows({{stored}}));
}

void TestTepDbSettings::setExecutesNothingWhenItCannotBePrepared()
{
    m_database.hideTable("vars");
    LogCapture log;
    QVERIFY(!TepDbSettings(m_connection).variableSet("colour", "red"));
    QCOMPARE(log.lines(),
             QStringList("C variableSet ERROR: \"Table 'tepdb.vars' doesn't exist"
                         " QMYSQL3: Unable to prepare statement\""));
    QVERIFY(m_database.statements().filter("EXECUTE").isEmpty());
}

void TestTepDbSettings::setReportsAFailedExecution()
{
    m_database.refuse("INSERT", "vars", "not this \"one\"");
    LogCapture log;
    QVERIFY(!TepDbSettings(m_connection).variableSet("colour", "red"));
    QCOMPARE(log.lines(),
             QStringList("C variableSet ERROR: \"not this \\\"one\\\""
                         " QMYSQL3: Unable to execute statement\""));
}

void TestTepDbSettings::delDeletesTheKeySpelledExactly()
{
    addVariables({"colour", "colours", "a colour", "Colour", "cólour", "colour "});
    LogCapture log;
    QVERIFY(TepDbSettings(m_connection).variableDel("colour", false));
    QCOMPARE(m_database.statements(), QStringList("DELETE FROM vars WHERE name='colour'"));
    QCOMPARE(names(), QStringList({"Colour", "a colour", "colour ", "colours", "cólour"}));
    QCOMPARE(log.lines(), QStringList());
}

void TestTepDbSettings::delLikeDeletesEveryKeyThatBeginsWithTheName()
{
    addVariables({"colour", "colours", "a colour"});
    LogCapture log;
    QVERIFY(TepDbSettings(m_connection).variableDel("colour", true));
    QCOMPARE(m_database.statements(), QStringList("DELETE FROM vars WHERE name LIKE 'colour%'"));
    QCOMPARE(names(), QStringList("a colour"));
    QCOMPARE(log.lines(), QStringList());
}

void TestTepDbSettings::delLikeTakesWildcardsInTheName()
{
    addVariables({"bx.1.on", "bay.1.on", "bx.on", "cx.1.on"});
    QVERIFY(TepDbSettings(m_connection).variableDel("b_.%.on", true));
    QCOMPARE(m_database.statements(), QStringList("DELETE FROM vars WHERE name LIKE 'b_.%.on%'"));
    QCOMPARE(names(), QStringList({"bay.1.on", "bx.on", "cx.1.on"}));
}

void TestTepDbSettings::delOfAMissingKeySucceeds()
{
    LogCapture log;
    QVERIFY(TepDbSettings(m_connection).variableDel("colour", false));
    QVERIFY(TepDbSettings(m_connection).variableDel("colour", true));
    QCOMPARE(log.lines(), QStringList());
}

void TestTepDbSettings::delReportsAFailedStatement()
{
    m_database.hideTable("vars");
    const QString line = "C TepDbSettings::variableDel - SQL ERROR: Table 'tepdb.vars' doesn't"
                         " exist QMYSQL: Unable to execute query";
    LogCapture log;
    QVERIFY(!TepDbSettings(m_connection).variableDel("colour", false));
    QVERIFY(!TepDbSettings(m_connection).variableDel("colour", true));
    QCOMPARE(log.lines(), QStringList({line, line}));
}

void TestTepDbSettings::getMultipleOfAListReturnsThoseThatExist()
{
    addVariables({"colour", "size", "speed"});
    LogCapture log;
    const Values values =
        TepDbSettings(m_connection).variableGetMultiple(QStringList({"speed", "age", "colour"}));
    QCOMPARE(values, Values({{"colour", "colour value"}, {"speed", "speed value"}}));
    QCOMPARE(m_database.statements(),
             QStringList("SELECT name, value FROM vars WHERE name IN('speed','age','colour')"));
    QCOMPARE(log.lines(), QStringList());
}

void TestTepDbSettings::getMultipleOfAListTakesTheNamesAsTheyCome()
{
    addVariables({"colour", " size", "speed"});
    LogCapture log;
    const Values values = TepDbSettings(m_connection)
                              .variableGetMultiple(QStringList({"colour", " size", "", "colour"}));
    QCOMPARE(values, Values({{" size", " size value"}, {"colour", "colour value"}}));
    QCOMPARE(m_database.statements(),
             QStringList("SELECT name, value FROM vars WHERE name IN('colour',' size','',"
                         "'colour')"));
    QCOMPARE(log.lines(), QStringList());
}

void TestTepDbSettings::getMultipleOfAnEmptyListRunsNoStatement()
{
    addVariables({"colour"});
    QCOMPARE(TepDbSettings(m_connection).variableGetMultiple(QStringList()), Values());
    QCOMPARE(m_database.statements(), QStringList());
}

void TestTepDbSettings::getMultipleOfAPrefixReturnsEveryKeyThatBeginsWithIt()
{
    addVariables({"colour", "colours", "a colour"});
    LogCapture log;
    QCOMPARE(TepDbSettings(m_connection).variableGetMultiple(QString("colour")),
             Values({{"colour", "colour value"}, {"colours", "colours value"}}));
    QCOMPARE(m_database.statements(),
             QStringList("SELECT name, value FROM vars WHERE name LIKE 'colour%'"));
    QCOMPARE(log.lines(), QStringList());
}

void TestTepDbSettings::getMultipleOfAPrefixTakesWildcards()
{
    addVariables({"exportPam.1.active", "exportPam.22.activeSince", "exportPam.active",
                  "exportPam..active", "exportPam.3.name", "my.exportPam.1.active"});
    const QStringList found =
        TepDbSettings(m_connection).variableGetMultiple(QString("exportPam.%.active")).keys();
    QCOMPARE(found,
             QStringList({"exportPam..active", "exportPam.1.active", "exportPam.22.activeSince"}));
    QCOMPARE(m_database.statements(),
             QStringList("SELECT name, value FROM vars WHERE name LIKE 'exportPam.%.active%'"));
}

void TestTepDbSettings::getMultipleIsEmptyWhenTheStatementFails()
{
    m_database.hideTable("vars");
    const QString line = "C TepDbSettings::variableGetMultiple - SQL ERROR: Table 'tepdb.vars'"
                         " doesn't exist QMYSQL: Unable to execute query";
    LogCapture log;
    QCOMPARE(TepDbSettings(m_connection).variableGetMultiple(QStringList("colour")), Values());
    QCOMPARE(TepDbSettings(m_connection).variableGetMultiple(QString("colour")), Values());
    QCOMPARE(log.lines(), QStringList({line, line}));
}

void TestTepDbSettings::setMultipleWritesInTheOrderOfTheKeys()
{
    LogCapture log;
    QVERIFY(TepDbSettings(m_connection).variableSetMultiple({{"b", "two"}, {"c", 3}, {"a", 1}}));
    QCOMPARE(m_database.statements(),
             QStringList({"PREPARE: INSERT INTO vars (name, value) VALUES(?, ?)"
                          " ON DUPLICATE KEY UPDATE value=VALUES(value)",
                          "EXECUTE: INSERT INTO vars (name, value) VALUES('a', 1)"
                          " ON DUPLICATE KEY UPDATE value=VALUES(value)",
                          "EXECUTE: INSERT INTO vars (name, value) VALUES('b', 'two')"
                          " ON DUPLICATE KEY UPDATE value=VALUES(value)",
                          "EXECUTE: INSERT INTO vars (name, value) VALUES('c', 3)"
                          " ON DUPLICATE KEY UPDATE value=VALUES(value)"}));
    QCOMPARE(m_database.rows("SELECT name, value FROM vars ORDER BY name"),
             TableRows({{"a", "1"}, {"b", "two"}, {"c", "3"}}));
    QCOMPARE(log.lines(), QStringList());
}

void TestTepDbSettings::setMultipleReplacesValues()
{
    addVariables({"a", "b"});
    QVERIFY(TepDbSettings(m_connection).variableSetMultiple({{"b", "two"}, {"c", "three"}}));
    QCOMPARE(m_database.rows("SELECT name, value FROM vars ORDER BY name"),
             TableRows({{"a", "a value"}, {"b", "two"}, {"c", "three"}}));
}

void TestTepDbSettings::setMultipleGoesOnAfterABadEntry()
{
    m_database.refuse("INSERT", "vars", "refused", "NEW.name = 'b'");
    LogCapture log;
    QVERIFY(!TepDbSettings(m_connection).variableSetMultiple({{"a", 1}, {"b", 2}, {"c", 3}}));
    QCOMPARE(m_database.rows("SELECT name, value FROM vars ORDER BY name"),
             TableRows({{"a", "1"}, {"c", "3"}}));
    QCOMPARE(log.lines(),
             QStringList("C variableSet ERROR: \"refused QMYSQL3: Unable to execute statement\""));
}

void TestTepDbSettings::setMultipleOfAnEmptyMapSucceeds()
{
    LogCapture log;
    QVERIFY(TepDbSettings(m_connection).variableSetMultiple({}));
    QVERIFY(m_database.statements().filter("EXECUTE").isEmpty());
    QCOMPARE(log.lines(), QStringList());
}

void TestTepDbSettings::setMultipleWritesNothingWhenItCannotBePrepared()
{
    m_database.hideTable("vars");
    LogCapture log;
    QVERIFY(!TepDbSettings(m_connection).variableSetMultiple({{"a", 1}, {"b", 2}}));
    QCOMPARE(log.lines(),
             QStringList("C variableSet ERROR: \"Table 'tepdb.vars' doesn't exist"
                         " QMYSQL3: Unable to prepare statement\""));
    QVERIFY(m_database.statements().filter("EXECUTE").isEmpty());
}

void TestTepDbSettings::caseAndAccentsMakeAnotherKey()
{
    const QStringList others = {"COLOUR", "Colour", "cólour"};
    addVariables(others);
    TepDbSettings settings(m_connection);
    LogCapture log;
    QCOMPARE(settings.variableGet("colour", 17), QVariant(17));
    QCOMPARE(settings.variableGetMultiple(QStringList("colour")), Values());
    QCOMPARE(settings.variableGetMultiple(QString("colour")), Values());
    QVERIFY(settings.variableDel("colour", false));
    QVERIFY(settings.variableDel("colour", true));
    QVERIFY(settings.variableSet("colour", "red"));
    QVERIFY(settings.variableSetMultiple({{"colour", "green"}}));
    QCOMPARE(settings.variableGet("colour", 17), QVariant("green"));
    QVERIFY(settings.variableDel("Colour", false));
    QVERIFY(settings.variableDel("cól", true));
    QCOMPARE(names(), QStringList({"COLOUR", "colour"}));
    QCOMPARE(settings.variableGet("COLOUR", 17), QVariant("COLOUR value"));
    QCOMPARE(log.lines(), QStringList());
}

void TestTepDbSettings::aQuoteInTheNameBreaksTheStatementsThatSpellIt_data()
{
    QTest::addColumn<QString>("operation");
    QTest::addColumn<QString>("sentence");
    QTest::newRow("get") << "variableGet"
                         << "' LIMIT 1";
    QTest::newRow("del") << "variableDel"
                         << "'";
    QTest::newRow("del like") << "variableDel"
                              << "%'";
    QTest::newRow("get multiple") << "variableGetMultiple"
                                  << "%'";
}

void TestTepDbSettings::aQuoteInTheNameBreaksTheStatementsThatSpellIt()
{
    QFETCH(QString, operation);
    QFETCH(QString, sentence);
    addVariables({"o"});
    const QString row = QTest::currentDataTag();
    LogCapture log;
    TepDbSettings settings(m_connection);
    if (row == "get")
        QCOMPARE(settings.variableGet("o'clock", 17), QVariant(17));
    else if (row == "get multiple")
        QCOMPARE(settings.variableGetMultiple(QString("o'clock")), Values());
    else
        QVERIFY(!settings.variableDel("o'clock", row == "del like"));
    QCOMPARE(log.lines(),
             QStringList("C TepDbSettings::" + operation
                         + " - SQL ERROR: You have an error in your SQL syntax; check the manual"
                           " that corresponds to your MariaDB server version for the right syntax"
                           " to use near 'clock"
                         + sentence + "' at line 1 QMYSQL: Unable to execute query"));
    QCOMPARE(names(), QStringList("o"));
}

void TestTepDbSettings::aQuoteInTheNameOfAListBreaksItsStatement()
{
    addVariables({"o"});
    LogCapture log;
    const QStringList names = {"o", "o'clock"};
    QCOMPARE(TepDbSettings(m_connection).variableGetMultiple(names), Values());
    QCOMPARE(m_database.statements(),
             QStringList("SELECT name, value FROM vars WHERE name IN('o','o'clock')"));
    QCOMPARE(log.lines().size(), 1);
}

void TestTepDbSettings::aQuoteInTheNameOrValueIsHarmlessWhereItIsBound()
{
    LogCapture log;
    TepDbSettings settings(m_connection);
    QVERIFY(settings.variableSet("o'clock", "it's"));
    QVERIFY(settings.variableSetMultiple({{"o'neill", "he's"}}));
    QCOMPARE(m_database.rows("SELECT name, value FROM vars ORDER BY name"),
             TableRows({{"o'clock", "it's"}, {"o'neill", "he's"}}));
    QCOMPARE(log.lines(), QStringList());
}

void TestTepDbSettings::errorTextsAreLoggedInUtf8()
{
    m_database.refuse("DELETE", "vars", "žiadne mazanie");
    addVariables({"colour"});
    LogCapture log;
    QVERIFY(!TepDbSettings(m_connection).variableDel("colour", false));
    QCOMPARE(log.lines(),
             QStringList("C TepDbSettings::variableDel - SQL ERROR: žiadne mazanie QMYSQL: Unable"
                         " to execute query"));
}

void TestTepDbSettings::openAndCloseAreThoseOfTheConnection()
{
    LogCapture log;
    TepDbSettings settings(m_connection);
    settings.closeDB();
    QVERIFY(!m_connection.isOpen());
    QVERIFY(settings.openDB());
    QVERIFY(m_connection.isOpen());
    QCOMPARE(log.lines(), QStringList());
}

void TestTepDbSettings::aFailedOpenIsLogged()
{
    QSqlDatabase connection = m_database.pluginConnection();
    connection.setConnectOptions("UNIX_SOCKET=/nowhere/socket");
    LogCapture log;
    QVERIFY(!TepDbSettings(connection).openDB());
    QCOMPARE(log.lines(),
             QStringList("C TepDbSettings Database Error: \"Can't connect to local server through"
                         " socket '/nowhere/socket' (2) QMYSQL: Unable to connect\""));
}

void TestTepDbSettings::aClosedConnectionGivesDefaultsWithoutAnError()
{
    m_connection.close();
    LogCapture log;
    TepDbSettings settings(m_connection);
    QCOMPARE(settings.variableGet("colour", 17), QVariant(17));
    QVERIFY(!settings.variableSet("colour", "red"));
    QVERIFY(!settings.variableDel("colour", false));
    QVERIFY(!settings.variableDel("colour", true));
    QCOMPARE(settings.variableGetMultiple(QStringList("colour")), Values());
    QCOMPARE(settings.variableGetMultiple(QString("colour")), Values());
    QVERIFY(!settings.variableSetMultiple({{"colour", "red"}}));
    QCOMPARE(log.lines().filter(QRegularExpression("^C")), QStringList());
}

void TestTepDbSettings::aStoreWithoutAConnectionGivesDefaults()
{
    LogCapture log;
    TepDbSettings settings;
    QVERIFY(!settings.openDB());
    QCOMPARE(settings.variableGet("colour", 17), QVariant(17));
    QVERIFY(!settings.variableSet("colour", "red"));
    QCOMPARE(log.lines().last(),
             QString("C variableSet ERROR: \"Driver not loaded Driver not loaded\""));
}

void TestTepDbSettings::setDBReplacesTheConnection()
{
    TepDbSettings settings;
    settings.setDB(m_connection);
    QVERIFY(settings.variableSet("colour", "red"));
    QCOMPARE(names(), QStringList("colour"));
    settings.setDB(m_database.pluginConnection());
    QVERIFY(settings.openDB());
    m_connection.close();
    QCOMPARE(settings.variableGet("colour", "none"), QVariant("red"));
    settings.closeDB();
}

QTEST_GUILESS_MAIN(TestTepDbSettings)
#include "tst_tepdbsettings.moc"
