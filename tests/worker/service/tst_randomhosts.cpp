#include "tests/plugin/loadedplugin.h"
#include "tests/plugin/pluginini.h"
#include "tests/support/environmentnumber.h"
#include "tests/support/exportfile.h"
#include "tests/support/testdatabase.h"
#include "tests/worker/service/randomhost.h"

#include <QTest>

#include <cstdio>
#include <thread>

/// What attendance servers do at random, one and two in a program, each with a copy of the plugin,
/// a database and a thread of its own. MIROVAHR_SEED repeats a sequence, MIROVAHR_STEPS is its
/// length, MIROVAHR_ROUNDS the number of sequences, each with the next seed.
class TestRandomHosts : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void oneHost();
    void twoHostsAtOnce();

private:
    void live(const QString &database, const QString &library, uint seed);
    void checkPeople(const QString &database);

    TestDatabase m_db;
    ExportFile m_file;
    uint m_seed = environmentNumber("MIROVAHR_SEED", std::random_device()());
    const uint m_steps = environmentNumber("MIROVAHR_STEPS", 40);
    const uint m_rounds = environmentNumber("MIROVAHR_ROUNDS", 1);
    std::unique_ptr<ThreadMessages> m_messages;
};

void TestRandomHosts::initTestCase()
{
    std::printf("MIROVAHR_SEED=%u\n", m_seed);
    QVERIFY2(m_db.start(), qPrintable(m_db.errorString()));
    m_db.run("SET GLOBAL general_log = 0");
    m_db.server().setDatabaseName("second");
    m_db.run("CREATE DATABASE second CHARACTER SET utf8mb4");
    m_db.run("GRANT ALL ON second.* TO 'yav'@'localhost'");
    const QString folder = REFERENCE_DB_DIR;
    QVERIFY2(m_db.server().load(
                 {folder + "/schema.sql", folder + "/routines.sql", folder + "/sample.sql"}),
             qPrintable(m_db.server().errorString()));
    QVector<ExportRow> people;
    for (int number = 7001; number <= 7010; ++number)
        people += ExportRow().with(&ExportRow::osobniCislo, number);
    m_file.write(people);
    PluginIni::write("importFile=" + m_file.path().toUtf8()
                     + "\ndeleteFile=false\ntimerInterval=1\nsyncInterval=1\n"
                       "syncCommandRun=2\nsyncCommand=/bin/true\n");
}

void TestRandomHosts::live(const QString &database, const QString &library, uint seed)
{
    const QString name = "host." + database;
    {
        QSqlDatabase connection = m_db.server().addConnection(name);
        connection.setDatabaseName(database);
        RandomHost host(library, connection, seed, *m_messages);
        host.live(m_steps);
        host.settle();
    }
    QSqlDatabase::removeDatabase(name);
    // A repeated start leaves a handle of it behind, of which Qt warns.
    QSqlDatabase::removeDatabase("YAV." + database + ".MirovaHR");
}

void TestRandomHosts::checkPeople(const QString &database)
{
    QCOMPARE(m_messages->openSynchronisations(), 0);
    const QStringList complaints = m_messages->complaints().filter(
        QRegularExpression("^(?!QSqlDatabasePrivate::removeDatabase: connection 'YAV\\.)"));
    QCOMPARE(complaints, QStringList());
    QCOMPARE(m_db.value("SELECT COUNT(*) FROM " + database + ".people p JOIN " + database
                        + ".brape USING(uid)"
                          " WHERE pid DIV 10 BETWEEN 7001 AND 7010 AND phone = '555123456'")
                 .toInt(),
             10);
}

void TestRandomHosts::oneHost()
{
    for (uint round = 0; round < m_rounds; ++round) {
        m_messages = std::make_unique<ThreadMessages>();
        std::thread([this] { live("tepdb", LoadedPlugin::path(), m_seed++); }).join();
        checkPeople("tepdb");
        m_messages.reset();
    }
}

void TestRandomHosts::twoHostsAtOnce()
{
    for (uint round = 0; round < m_rounds; ++round) {
        m_messages = std::make_unique<ThreadMessages>();
        std::thread first([this, seed = m_seed++] { live("tepdb", LoadedPlugin::path(), seed); });
        std::thread second([this, seed = m_seed++] { live("second", MIROVAHR_COPY, seed); });
        first.join();
        second.join();
        checkPeople("tepdb");
        checkPeople("second");
        m_messages.reset();
    }
}

int main(int argc, char *argv[])
{
    WorkerWatchingApplication application(argc, argv);
    TestRandomHosts test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_randomhosts.moc"
