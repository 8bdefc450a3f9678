#include "tests/worker/support/sampleexport.h"
#include "tests/worker/support/workertest.h"

#include <QRegularExpression>
#include <QTest>

namespace {

/// Jana with another surname.
ExportRow jana(const QString &surname)
{
    return SampleExport::jana().with(&ExportRow::prijmeni, surname);
}

int syntaxErrors(const QStringList &log)
{
    return log
        .filter(
            QRegularExpression("^C MHRWorker::dbUpdatePerson\\(1234\\.1\\) - SQL ERROR: You have"
                               " an error in your SQL syntax"))
        .size();
}

} // namespace

/// What the texts of an export line can do to the database, as docs/security.md describes: they go
/// into the plugin's statements unescaped, and only the account limits them.
class TestExportTexts : public WorkerTest {
    Q_OBJECT

private Q_SLOTS:
    void anApostropheMakesTheStatementFail();
    void otherPeopleAreUnaffected();
    void aBackslashAtTheEndMakesTheStatementFail();
    void aBackslashInTheMiddleIsLost();
    void twoTextsReachEachOtherWithoutAnApostrophe();
    void aTextCanAddAStatement();
    void aTextCanFillAnotherColumn();
    void aTextCanMakeAllThatFollowsVanish_data();
    void aTextCanMakeAllThatFollowsVanish();
    void aTextCanCallAFunctionThatWaits();
    void whatTheAccountMayNotDoTheTextMayNotDo_data();
    void whatTheAccountMayNotDoTheTextMayNotDo();

private:
    QString surname(uint pid);
};

QString TestExportTexts::surname(uint pid)
{
    return m_db.value(QStringLiteral("SELECT surname FROM people WHERE pid = %1").arg(pid))
        .toString();
}

void TestExportTexts::anApostropheMakesTheStatementFail()
{
    const QStringList log = synchronise({jana("D'Arc")}).log;
    QCOMPARE(syntaxErrors(log), 1);
    QCOMPARE(surname(12341), QString("Nováková"));
}

void TestExportTexts::otherPeopleAreUnaffected()
{
    synchronise(
        {jana("D'Arc"), SampleExport::maria().with(&ExportRow::prijmeni, QStringLiteral("Malá"))});
    QCOMPARE(surname(10011), QString("Malá"));
}

void TestExportTexts::aBackslashAtTheEndMakesTheStatementFail()
{
    const QStringList log =
        synchronise({jana("Malá").with(&ExportRow::titul, QStringLiteral("Mgr.\\"))}).log;
    QCOMPARE(syntaxErrors(log), 1);
    QCOMPARE(surname(12341), QString("Nováková"));
}

void TestExportTexts::aBackslashInTheMiddleIsLost()
{
    synchronise({jana("A\\B")});
    QCOMPARE(surname(12341), QString("AB"));
}

void TestExportTexts::twoTextsReachEachOtherWithoutAnApostrophe()
{
    synchronise(
        {SampleExport::jana()
             .with(&ExportRow::titul, QStringLiteral("\\"))
             .with(&ExportRow::jmeno, QStringLiteral(", phone=0x393939 WHERE pid=12341 -- "))});
    QCOMPARE(m_db.value("SELECT phone FROM people WHERE pid = 12341").toString(), QString("999"));
}

void TestExportTexts::aTextCanAddAStatement()
{
    synchronise({jana("x' WHERE pid=12341; UPDATE vars SET value='changed'"
                      " WHERE name='exportPam.1.selPeople'; -- ")});
    QCOMPARE(m_db.value("SELECT value FROM vars WHERE name = 'exportPam.1.selPeople'").toString(),
             QString("changed"));
}

void TestExportTexts::aTextCanFillAnotherColumn()
{
    synchronise({jana("x', phone=(SELECT value FROM vars WHERE name='exportPam.1.selPeople')"
                      " WHERE pid=12341 -- ")});
    QVERIFY(
        m_db.value("SELECT phone FROM people WHERE pid = 12341").toString().startsWith("10011,"));
}

void TestExportTexts::aTextCanMakeAllThatFollowsVanish_data()
{
    QTest::addColumn<QString>("statement");
    QTest::newRow("a transaction") << "BEGIN";
    QTest::newRow("no automatic commits") << "SET autocommit=0";
    QTest::newRow("a distributed transaction") << "XA START 'x'";
}

void TestExportTexts::aTextCanMakeAllThatFollowsVanish()
{
    QFETCH(QString, statement);
    const QStringList log =
        synchronise({jana("x' WHERE pid=12341; " + statement + "; -- "),
                     SampleExport::maria().with(&ExportRow::prijmeni, QStringLiteral("Malá")),
                     SampleExport::newcomer(newPersonalNumber())})
            .log;
    QCOMPARE(surname(12341), QString("x"));
    QCOMPARE(surname(10011), QString("Kováčová"));
    QCOMPARE(m_db.value("SELECT COUNT(*) FROM people").toInt(), 8);
    QCOMPARE(log.filter(QRegularExpression("^[WC] ")), QStringList());
}

void TestExportTexts::aTextCanCallAFunctionThatWaits()
{
    synchronise({jana("x', phone=SLEEP(0.001) WHERE pid=12341 -- ")});
    QCOMPARE(m_db.value("SELECT phone FROM people WHERE pid = 12341").toString(), QString("0"));
}

void TestExportTexts::whatTheAccountMayNotDoTheTextMayNotDo_data()
{
    QTest::addColumn<QString>("statement");
    QTest::newRow("delete rows") << "DELETE FROM people";
    QTest::newRow("empty a table") << "TRUNCATE TABLE funds_move";
    QTest::newRow("drop a table") << "DROP TABLE atten";
    QTest::newRow("change a table") << "ALTER TABLE people DROP COLUMN phone";
    QTest::newRow("make a supervisor") << "UPDATE admins SET personalNumber = 1";
    QTest::newRow("close attendance") << "UPDATE atten SET `lock` = 1";
    QTest::newRow("make an account") << "CREATE USER other";
    QTest::newRow("write a file") << "SELECT 1 INTO OUTFILE '/tmp/from-the-database'";
}

void TestExportTexts::whatTheAccountMayNotDoTheTextMayNotDo()
{
    QFETCH(QString, statement);
    synchronise({jana("x' WHERE pid=12341; " + statement + "; -- ")});
    QCOMPARE(surname(12341), QString("x")); // the statement before it was run
    QCOMPARE(m_db.value("SELECT COUNT(*) FROM people").toInt(), 8);
    QCOMPARE(m_db.value("SELECT COUNT(*) FROM funds_move").toInt(), 6);
    QCOMPARE(m_db.value("SELECT COUNT(*) FROM atten WHERE `lock`").toInt(), 1);
    QCOMPARE(m_db.value("SELECT COUNT(phone) FROM people").toInt(), 8);
    QCOMPARE(m_db.value("SELECT COUNT(*) FROM admins WHERE personalNumber = 1").toInt(), 0);
    QCOMPARE(m_db.value("SELECT COUNT(*) FROM mysql.user WHERE User = 'other'").toInt(), 0);
    QVERIFY(!QFile::exists("/tmp/from-the-database"));
}

QTEST_GUILESS_MAIN(TestExportTexts)
#include "tst_exporttexts.moc"
