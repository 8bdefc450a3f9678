#include "mirovahrctl/export/sqlhazards.h"
#include "mirovahrctl/export/sqltexts.h"
#include "tests/mirovahrctl/program/toolrun.h"
#include "tests/support/exportfile.h"
#include "tests/support/testdatabase.h"
#include "worker/mhrworker.h"

#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>

Q_DECLARE_METATYPE(Backslash)

/// check-file with a database, and its findings about texts in SQL compared with what a database
/// does to them.
class TestCheckFileDatabase : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();

    void aTextLongerThanItsColumnIsFound_data();
    void aTextLongerThanItsColumnIsFound();
    void charactersAreCountedNotCodeUnits();
    void withoutADatabaseNoTextIsTooLong();
    void nothingIsWritten();
    void thePasswordMayComeFromTheEnvironment();
    void aServerThatIsNotThereIsNoDatabase();
    void aWrongPasswordIsNoDatabase();
    void aDatabaseWithoutPeopleBreaksTheContract();
    void aTextIsFlaggedUnlessItArrivesAsMeant_data();
    void aTextIsFlaggedUnlessItArrivesAsMeant();
    void aWrittenTextIsShortEnoughWhenItIsSoInTheDatabase();
    void theServerSaysWhatABackslashIs();

private:
    /// The SQL mode of the connections to come.
    void setServer(Backslash backslash);
    /// The surname of a new person, as the plugin writes it and as it is in the database then.
    QString addPerson(MHRWorker &worker, const QString &surname);
    QStringList databaseOptions();
    ToolRun check(const ExportRow &line, const QStringList &options);

    TestDatabase m_db;
    ExportFile m_export;
    quint32 m_personalNumber = 500000; ///< of the last person added
};

void TestCheckFileDatabase::setServer(Backslash backslash)
{
    m_db.run(backslash == Backslash::Escapes
                 ? "SET GLOBAL sql_mode = REPLACE(@@GLOBAL.sql_mode, 'NO_BACKSLASH_ESCAPES', '')"
                 : "SET GLOBAL sql_mode = CONCAT(@@GLOBAL.sql_mode, ',NO_BACKSLASH_ESCAPES')");
}

QString TestCheckFileDatabase::addPerson(MHRWorker &worker, const QString &surname)
{
    MirovaRonRecord record;
    record.osobniCislo = ++m_personalNumber;
    record.poradoveCisloPP = 1;
    record.prijmeni = surname;
    worker.dbAddPerson(record);
    return m_db.value(QString("SELECT surname FROM people WHERE pid = %1").arg(record.getPid()))
        .toString();
}

void TestCheckFileDatabase::initTestCase()
{
    QVERIFY2(m_db.start(), qPrintable(m_db.errorString()));
}

void TestCheckFileDatabase::init()
{
    m_db.reset();
}

QStringList TestCheckFileDatabase::databaseOptions()
{
    return {
        "--socket", m_db.server().socketPath(), "--database",      m_db.server().databaseName(),
        "--user",   m_db.server().userName(),   "--password-file", m_db.server().passwordFile()};
}

ToolRun TestCheckFileDatabase::check(const ExportRow &line, const QStringList &options)
{
    m_export.write({line.text()});
    return runTool(QStringList{"check-file", "--json", m_export.path()} + options);
}

void TestCheckFileDatabase::aTextLongerThanItsColumnIsFound_data()
{
    QTest::addColumn<QString>("column");
    QTest::addColumn<QString>("field");
    QTest::newRow("title") << "title"
                           << "Titul";
    QTest::newRow("first name") << "name"
                                << "Jmeno";
    QTest::newRow("surname") << "surname"
                             << "Prijmeni";
    QTest::newRow("title after the name") << "title2"
                                          << "TitulZa";
    QTest::newRow("phone") << "phone"
                           << "Telefon";
}

void TestCheckFileDatabase::aTextLongerThanItsColumnIsFound()
{
    QFETCH(QString, column);
    QFETCH(QString, field);
    m_db.run(QString("ALTER TABLE people MODIFY %1 VARCHAR(25) NOT NULL DEFAULT ''").arg(column));
    ExportRow line;
    QStringList fields = line.fields();
    const int position = QStringList{"title", "name", "surname", "title2", "phone"}.indexOf(column)
        + 2; // behind the two numbers

    fields[position] = QString(25, QChar(u'ž'));
    m_export.write(QStringList{fields.join('|')});
    const ToolRun fits =
        runTool(QStringList{"check-file", "--json", m_export.path()} + databaseOptions());
    COMPARE_EXIT(fits, ExitStatus::Fine);

    fields[position] = QString(26, QChar(u'ž'));
    m_export.write(QStringList{fields.join('|')});
    const ToolRun run =
        runTool(QStringList{"check-file", "--json", m_export.path()} + databaseOptions());
    COMPARE_EXIT(run, ExitStatus::Findings);
    const QJsonObject finding = run.findingsOf("text-too-long").value(0);
    QCOMPARE(finding["field"].toString(), field);
    QCOMPARE(
        finding["message"].toString(),
        QString("The text has 26 characters, but the column holds 25. Depending on its SQL mode, "
                "the database truncates the text or rejects the person."));
}

void TestCheckFileDatabase::charactersAreCountedNotCodeUnits()
{
    m_db.resetEmpty();
    m_db.run("ALTER TABLE people MODIFY name VARCHAR(3) NOT NULL DEFAULT ''");
    const ToolRun run = check(ExportRow().with(&ExportRow::jmeno, "👤👤👤"), databaseOptions());
    QVERIFY2(run.findingsOf("text-too-long").isEmpty(), run.report().constData());
}

void TestCheckFileDatabase::withoutADatabaseNoTextIsTooLong()
{
    const ToolRun run = check(ExportRow().with(&ExportRow::jmeno, QString(5000, 'x')), {});
    COMPARE_EXIT(run, ExitStatus::Fine);
}

void TestCheckFileDatabase::nothingIsWritten()
{
    m_db.clearStatements();
    COMPARE_EXIT(check(ExportRow(), databaseOptions()), ExitStatus::Fine);
    const QStringList statements = m_db.statements();
    QCOMPARE(statements.size(), 3);
    QCOMPARE(statements[0], QString("SET SESSION TRANSACTION READ ONLY"));
    QVERIFY2(statements[1].startsWith("SELECT COLUMN_NAME, "), qPrintable(statements[1]));
    QCOMPARE(statements[2], QString("SELECT @@SESSION.sql_mode"));
}

void TestCheckFileDatabase::thePasswordMayComeFromTheEnvironment()
{
    qputenv("MIROVAHRCTL_PASSWORD", m_db.server().password().toUtf8());
    COMPARE_EXIT(check(ExportRow(), databaseOptions().mid(0, 6)), ExitStatus::Fine);
    QVERIFY(!qEnvironmentVariableIsSet("MIROVAHRCTL_PASSWORD"));
}

void TestCheckFileDatabase::aServerThatIsNotThereIsNoDatabase()
{
    const ToolRun run =
        check(ExportRow(), {"--socket", "/nowhere/socket", "--database", "tepdb", "--user", "yav"});
    COMPARE_EXIT(run, ExitStatus::NoDatabase);
    QVERIFY2(run.err.startsWith("mirovahrctl: check-file: The database cannot be opened: "),
             run.report().constData());
    QVERIFY(run.failure().startsWith("The database cannot be opened: "));
}

void TestCheckFileDatabase::aWrongPasswordIsNoDatabase()
{
    QStringList options = databaseOptions();
    options.last() = "/dev/null";
    COMPARE_EXIT(check(ExportRow(), options), ExitStatus::NoDatabase);
}

void TestCheckFileDatabase::aDatabaseWithoutPeopleBreaksTheContract()
{
    m_db.hideTable("people");
    const ToolRun run = check(ExportRow(), databaseOptions());
    COMPARE_EXIT(run, ExitStatus::ContractBroken);
    QCOMPARE(run.err,
             QString("mirovahrctl: check-file: The database has no table 'people' with text "
                     "columns, or the account may not see it.\n"));
}

void TestCheckFileDatabase::aTextIsFlaggedUnlessItArrivesAsMeant_data()
{
    QTest::addColumn<Backslash>("backslash");
    QTest::newRow("a backslash escapes") << Backslash::Escapes;
    QTest::newRow("a backslash is literal") << Backslash::IsLiteral;
}

void TestCheckFileDatabase::aTextIsFlaggedUnlessItArrivesAsMeant()
{
    QFETCH(Backslash, backslash);
    static const QStringList pieces{"a",   "'", "\\", "%",  "1", "9", "L", "\"", "`",  ";",
                                    "-- ", "ž", "👤",  "/*", "_", "0", "?", ":x", "\t", "{"};
    setServer(backslash);
    MHRWorker worker;
    worker.setTepDb(m_db.openPluginConnection());
    QVERIFY(worker.dbCheckOpen());
    worker.init();
    QRandomGenerator random(7);
    for (int number = 1; number <= 400; ++number) {
        QString text;
        for (int i = random.bounded(1, 6); i > 0; --i)
            text += pieces.at(random.bounded(pieces.size()));

        const QString arrived = addPerson(worker, text);
        const auto meant = SqlTexts::meant(text, backslash);
        const bool fits = !SqlHazards::hasWideCharacter(text);
        // Before these two a backslash is kept literally, if nothing else is wrong.
        const bool spared = text.contains("\\%") || text.contains("\\_");
        if (meant && fits)
            QCOMPARE(arrived, *meant);
        else if (!spared)
            QVERIFY2(arrived != text, qPrintable(text));

        if (fits)
            QCOMPARE(addPerson(worker, SqlTexts::written(text, backslash)), text);
    }
    worker.dbClose();
    setServer(Backslash::Escapes);
}

void TestCheckFileDatabase::aWrittenTextIsShortEnoughWhenItIsSoInTheDatabase()
{
    m_db.resetEmpty();
    m_db.run("ALTER TABLE people MODIFY surname VARCHAR(7) NOT NULL DEFAULT ''");
    COMPARE_EXIT(check(ExportRow().with(&ExportRow::prijmeni, "O''Brien"), databaseOptions()),
                 ExitStatus::Fine);
    const ToolRun run =
        check(ExportRow().with(&ExportRow::prijmeni, "O''Briens"), databaseOptions());
    COMPARE_EXIT(run, ExitStatus::Findings);
    QCOMPARE(run.findingsOf("text-too-long").value(0)["subject"].toString(),
             QString("1234.1 Jana O'Briens"));
    QVERIFY2(run.findingsOf("text-too-long")
                 .value(0)["message"]
                 .toString()
                 .startsWith("The text has 8 characters, but the column holds 7."),
             run.report().constData());
}

void TestCheckFileDatabase::theServerSaysWhatABackslashIs()
{
    const ExportRow line = ExportRow().with(&ExportRow::telefon, "12\\34");
    COMPARE_EXIT(check(line, databaseOptions()), ExitStatus::Findings);
    setServer(Backslash::IsLiteral);
    const ToolRun run = check(line, databaseOptions());
    setServer(Backslash::Escapes);
    COMPARE_EXIT(run, ExitStatus::Fine);
}

QTEST_GUILESS_MAIN(TestCheckFileDatabase)
#include "tst_checkfiledatabase.moc"
