#include "plugin/interfaces/serverinterface.h"
#include "tests/plugin/pluginini.h"
#include "tests/plugin/plugintest.h"

#include <QFile>
#include <QTest>

class TestConfiguration : public PluginTest {
    Q_OBJECT

private Q_SLOTS:
    void withoutAFileEveryKeyHasItsDefault();
    void enabledIsATruthValue_data();
    void enabledIsATruthValue();
    void timerIntervalIsInSeconds_data();
    void timerIntervalIsInSeconds();
    void syncIntervalIsInTicks_data();
    void syncIntervalIsInTicks();
    void testModeWritesNoPerson_data();
    void testModeWritesNoPerson();
    void importFileIsAPath_data();
    void importFileIsAPath();
    void deleteFileRemovesTheExport_data();
    void deleteFileRemovesTheExport();
    void syncCommandIsACommandLine_data();
    void syncCommandIsACommandLine();
    void syncCommandRunIsKeptInEightBits_data();
    void syncCommandRunIsKeptInEightBits();
    void departmentIdIsTheDepartmentOfNewPeople_data();
    void departmentIdIsTheDepartmentOfNewPeople();
    void messagesAreTextsByNumber_data();
    void messagesAreTextsByNumber();

private:
    QByteArray iniWithFile(const QByteArray &lines) const;
    void writeNewPerson(quint16 registerState = 0);
};

/// These top-level lines, and the export file of the test as the one to import.
QByteArray TestConfiguration::iniWithFile(const QByteArray &lines) const
{
    return "importFile=" + m_file->path().toUtf8() + '\n' + lines + '\n';
}

/// To the export file: pid 77771.
void TestConfiguration::writeNewPerson(quint16 registerState)
{
    m_file->write({ExportRow()
                       .with(&ExportRow::osobniCislo, 7777)
                       .with(&ExportRow::evidencniStav, registerState)});
}

void TestConfiguration::withoutAFileEveryKeyHasItsDefault()
{
    writeNewPerson();
    QVERIFY(QFile::copy(m_file->path(), "/tmp/ron.data"));
    load("", 3);
    PluginIni::remove();
    QVERIFY(m_plugin->server()->start());
    QVERIFY(m_log->contains("D MHRWorker::setMes() count: 0)"));
    QCOMPARE(host().periods(), QVector<int>{60000});

    host().tick();
    QVERIFY(m_log->contains("D MHRWorker: BEGIN synchronization #1 (force: NO)"));
    QVERIFY(m_log->contains(
        "I MHRWorker::loadAndParseData() - loading data from file: '/tmp/ron.data'"));
    QVERIFY(!m_log->waitForText("MHRWorker::runCommand()", 0));
    QVERIFY(!QFile::exists("/tmp/ron.data"));
    QCOMPARE(m_db.rows("SELECT did, rsText FROM people WHERE pid = 77771"), TableRows({{"1", ""}}));

    for (int number = 2; number < 60; ++number)
        host().tick();
    QVERIFY(!m_log->waitForText("BEGIN synchronization #2", 0));
    host().tick();
    QVERIFY(m_log->contains("D MHRWorker: BEGIN synchronization #2 (force: NO)"));
}

void TestConfiguration::enabledIsATruthValue_data()
{
    QTest::addColumn<QByteArray>("ini");
    QTest::addColumn<bool>("enabled");
    QTest::newRow("missing") << QByteArray("other=false\n") << true;
    for (const char *value : {"true", "1", "2", "00", "yes", "no", "off", "\"f, a\""})
        QTest::addRow("%s", value) << QByteArray("enabled=") + value << true;
    for (const char *value : {"", "0", "false", "FALSE", "False", "\"false\"", " false "})
        QTest::addRow("'%s'", value) << QByteArray("enabled=") + value << false;
    QTest::newRow("a list") << QByteArray("enabled=true, true") << false;
    QTest::newRow("in the general section") << QByteArray("[General]\nenabled=false") << false;
    QTest::newRow("in another section") << QByteArray("[Other]\nenabled=false") << true;
}

void TestConfiguration::enabledIsATruthValue()
{
    QFETCH(QByteArray, ini);
    QFETCH(bool, enabled);
    start(ini);
    QCOMPARE(host().worker() != nullptr, enabled);
    QCOMPARE(m_log->contains("W MirovaHR is DISABLED"), !enabled);
}

void TestConfiguration::timerIntervalIsInSeconds_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<int>("milliseconds");
    const auto row = [](const char *value, int milliseconds) {
        QTest::newRow(value) << QByteArray(value) << milliseconds;
    };
    row("1", 1000);
    row("30", 30000);
    row("\"45\"", 45000);
    row("0", 1000); // raised to a second
    row("", 1000); // no number is 0
    row("abc", 1000);
    row("-5", 1000);
    row("1.5", 1000);
    row("0x1E", 1000);
    row("30, 40", 1000); // a list
    row("2147483", 2147483000);
    row("2147484", 2147483647); // more than a timer takes
    row("4294967", 2147483647);
    row("4294968", 1000); // wraps to 704 ms
    row("4294969", 1704); // wraps
    row("4295000", 32704); // wraps
    row("4294967295", 2147483647); // wraps to 4294966296 ms
    row("4294967356", 60000); // the number itself has 32 bits: 60
}

void TestConfiguration::timerIntervalIsInSeconds()
{
    QFETCH(QByteArray, value);
    QFETCH(int, milliseconds);
    start("timerInterval=" + value);
    QCOMPARE(host().periods(), QVector<int>{milliseconds});
}

void TestConfiguration::syncIntervalIsInTicks_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QVector<int>>("expected");
    QTest::newRow("3") << QByteArray("3") << QVector<int>({1, 3, 6});
    QTest::newRow("1") << QByteArray("1") << QVector<int>({1, 2, 3, 4, 5, 6});
    QTest::newRow("0 counts as 1") << QByteArray("0") << QVector<int>({1, 2, 3, 4, 5, 6});
    QTest::newRow("no number is 0") << QByteArray("abc") << QVector<int>({1, 2, 3, 4, 5, 6});
    QTest::newRow("4294967295") << QByteArray("4294967295") << QVector<int>({1});
}

void TestConfiguration::syncIntervalIsInTicks()
{
    QFETCH(QByteArray, value);
    QFETCH(QVector<int>, expected);
    start(iniWithFile("syncInterval=" + value));
    QVector<int> synchronised;
    for (int number = 1; number <= 6; ++number) {
        m_log->clear();
        host().tick();
        if (m_log->waitForText("BEGIN synchronization", 0))
            synchronised += number;
    }
    QCOMPARE(synchronised, expected);
}

void TestConfiguration::testModeWritesNoPerson_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<bool>("on");
    QTest::newRow("missing") << QByteArray() << false;
    for (const char *value : {"false", "0", ""})
        QTest::addRow("'%s'", value) << QByteArray("testMode=") + value << false;
    for (const char *value : {"true", "1", "no", "off"})
        QTest::addRow("'%s'", value) << QByteArray("testMode=") + value << true;
}

void TestConfiguration::testModeWritesNoPerson()
{
    QFETCH(QByteArray, line);
    QFETCH(bool, on);
    writeNewPerson();
    start(iniWithFile(line));
    host().tick();
    QCOMPARE(m_log->contains("W MHRWorker::dbAddPerson(7777.1) - Testing mode is active, person "
                             "not really add!"),
             on);
    QCOMPARE(m_db.value("SELECT COUNT(*) FROM people WHERE pid = 77771").toInt(), on ? 0 : 1);
}

void TestConfiguration::importFileIsAPath_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QString>("path");
    QTest::newRow("plain") << QByteArray("/srv/hr/ron.data") << "/srv/hr/ron.data";
    QTest::newRow("beyond ASCII") << QByteArray("/srv/mzdy/výstup ľudí") << "/srv/mzdy/výstup ľudí";
    QTest::newRow("empty") << QByteArray("") << "/tmp/ron.data";
    QTest::newRow("a comma makes it a list") << QByteArray("/srv/a, b") << "/tmp/ron.data";
    QTest::newRow("quoted") << QByteArray("\"/srv/a, b\"") << "/srv/a, b";
}

void TestConfiguration::importFileIsAPath()
{
    QFETCH(QByteArray, value);
    QFETCH(QString, path);
    start("importFile=" + value);
    host().tick();
    QVERIFY(m_log->contains("W MHRWorker::loadAndParseData() - file '" + path + "' NOT found!"));
}

void TestConfiguration::deleteFileRemovesTheExport_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<bool>("removed");
    QTest::newRow("missing") << QByteArray() << true;
    for (const char *value : {"true", "1", "no", "off"})
        QTest::addRow("'%s'", value) << QByteArray("deleteFile=") + value << true;
    for (const char *value : {"false", "0", ""})
        QTest::addRow("'%s'", value) << QByteArray("deleteFile=") + value << false;
}

void TestConfiguration::deleteFileRemovesTheExport()
{
    QFETCH(QByteArray, line);
    QFETCH(bool, removed);
    writeNewPerson();
    start(iniWithFile(line));
    host().tick();
    QCOMPARE(m_file->exists(), !removed);
    QCOMPARE(m_db.value("SELECT COUNT(*) FROM people WHERE pid = 77771").toInt(), 1);
}

void TestConfiguration::syncCommandIsACommandLine_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QString>("logged");
    QTest::newRow("missing") << QByteArray() << "W MHRWorker::runCommand() - NO command, aborted!";
    QTest::newRow("plain") << QByteArray("syncCommand=/bin/true -x")
                           << "D MHRWorker::runCommand(): '/bin/true -x'";
    QTest::newRow("quoted") << QByteArray("syncCommand=\"/bin/sh -c \\\"true a, b\\\"\"")
                            << "D MHRWorker::runCommand(): '/bin/sh -c \"true a, b\"'";
    QTest::newRow("a comma makes it a list") << QByteArray("syncCommand=/bin/true a, b")
                                             << "W MHRWorker::runCommand() - NO command, aborted!";
}

void TestConfiguration::syncCommandIsACommandLine()
{
    QFETCH(QByteArray, line);
    QFETCH(QString, logged);
    start(iniWithFile("syncCommandRun=2\n" + line));
    host().tick();
    QVERIFY2(m_log->contains(logged), qPrintable(m_log->lines().join('\n')));
}

void TestConfiguration::syncCommandRunIsKeptInEightBits_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<bool>("onRegular");
    QTest::addColumn<bool>("onForced");
    const auto row = [](const char *line, bool onRegular, bool onForced) {
        QTest::newRow(line) << QByteArray(line) << onRegular << onForced;
    };
    row("", false, false);
    row("syncCommandRun=0", false, false);
    row("syncCommandRun=1", false, true);
    row("syncCommandRun=2", true, true);
    row("syncCommandRun=255", true, true);
    row("syncCommandRun=256", false, false);
    row("syncCommandRun=257", false, true);
    row("syncCommandRun=258", true, true);
    row("syncCommandRun=always", false, false);
    row("syncCommandRun=true", false, false);
}

void TestConfiguration::syncCommandRunIsKeptInEightBits()
{
    QFETCH(QByteArray, line);
    QFETCH(bool, onRegular);
    QFETCH(bool, onForced);
    const QString ran = "D MHRWorker::runCommand(): '/bin/true'";
    start(iniWithFile("syncCommand=/bin/true\n" + line));
    host().tick();
    QCOMPARE(m_log->contains(ran), onRegular);

    m_db.run("UPDATE vars SET value = '1' WHERE name = 'YAV.MHRWorker.forceSync'");
    m_log->clear();
    host().tick();
    QVERIFY(m_log->contains("D MHRWorker: BEGIN synchronization #2 (force: YES)"));
    QCOMPARE(m_log->contains(ran), onForced);
}

void TestConfiguration::departmentIdIsTheDepartmentOfNewPeople_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QString>("expected");
    QTest::newRow("missing") << QByteArray() << "1";
    QTest::newRow("7") << QByteArray("departmentId=7") << "7";
    QTest::newRow("4294967295") << QByteArray("departmentId=4294967295") << "4294967295";
    QTest::newRow("0 is none") << QByteArray("departmentId=0") << "NULL";
    QTest::newRow("no number is none") << QByteArray("departmentId=abc") << "NULL";
}

void TestConfiguration::departmentIdIsTheDepartmentOfNewPeople()
{
    QFETCH(QByteArray, line);
    QFETCH(QString, expected);
    writeNewPerson();
    start(iniWithFile(line));
    host().tick();
    QCOMPARE(m_db.rows("SELECT did FROM people WHERE pid = 77771"), TableRows({{expected}}));
}

void TestConfiguration::messagesAreTextsByNumber_data()
{
    QTest::addColumn<QByteArray>("lines");
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("code");
    QTest::addColumn<bool>("isState");
    QTest::addColumn<QString>("text");
    const auto row = [](const char *name, const QByteArray &lines, int count, int code,
                        bool isState, const char *text) {
        QTest::newRow(name) << lines << count << code << isState << QString(text);
    };
    row("none", "", 0, 7, false, "");
    row("one", "7=at home", 1, 7, true, "at home");
    row("another code", "8=at home", 1, 7, false, "");
    row("of the same number the last in order", "7=plain\n007=zeros", 1, 7, true, "plain");
    row("whatever their order in the file", "007=zeros\n7=plain", 1, 7, true, "plain");
    row("different numbers", "1=one\n7=seven\n21=x", 3, 7, true, "seven");
    row("UTF-8", "7=rodičovská dovolenka ľ", 1, 7, true, "rodičovská dovolenka ľ");
    row("16 bits of the number", "65543=wrapped", 1, 7, true, "wrapped");
    row("no number is 0", "seven=text", 1, 0, true, "text");
    row("nor is a hexadecimal one", "0x7=text", 1, 0, true, "text");
    row("an empty text is a state", "7=", 1, 7, true, "");
    row("a comma makes it a list", "7=at home, ill", 1, 7, true, "");
    row("quoted", "7=\"at home, ill\"", 1, 7, true, "at home, ill");
}

void TestConfiguration::messagesAreTextsByNumber()
{
    QFETCH(QByteArray, lines);
    QFETCH(int, count);
    QFETCH(int, code);
    QFETCH(bool, isState);
    QFETCH(QString, text);
    writeNewPerson(static_cast<quint16>(code));
    start(iniWithFile("[MES]\n" + lines));
    QCOMPARE(m_log->count(QString("D MHRWorker::setMes() count: %1)").arg(count)), 1);
    host().tick();
    // A state of the configuration begins on the day on which it is first seen.
    QCOMPARE(m_db.rows("SELECT rsBegin IS NOT NULL, rsText FROM people WHERE pid = 77771"),
             TableRows({{isState ? "1" : "0", text}}));
}

int main(int argc, char *argv[])
{
    HostApplication application(argc, argv);
    TestConfiguration test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_configuration.moc"
