#include "tests/mirovahrctl/gate/gatesite.h"
#include "tests/worker/support/workertest.h"

#include <QtTest>

/// The gate as the export command of the worker, from HR's file to the database.
class TestGateWorker : public WorkerTest {
    Q_OBJECT

private Q_SLOTS:
    void anAdmittedFileArrives();
    void aRefusedFileDoesNotArrive();
    void afterARefusalTheWorkerGoesOn();
    void aRefusalDoesNotTakeBackWhatWasAdmitted();
    void theSameFileArrivesOnceMore();
    void statusReportsTheGate();

private:
    /// A worker that runs the gate of this site before every synchronisation.
    void startWorkerWith(const GateSite &site);
    QString command(const GateSite &site) const;
    /// Counts delivered people who are not in the sample data.
    int people(const QString &condition = "pid BETWEEN 10101 AND 10301");
};

void TestGateWorker::startWorkerWith(const GateSite &site)
{
    MHRWorker &worker = startWorker(2);
    worker.setImportFile(site.target());
    worker.setSyncInterval(1);
    worker.setSyncCommand(command(site));
    worker.setSyncCommandRunCondition(2);
}

QString TestGateWorker::command(const GateSite &site) const
{
    return MIROVAHRCTL " " + site.arguments().join(' ');
}

int TestGateWorker::people(const QString &condition)
{
    return m_db.value("SELECT COUNT(*) FROM people WHERE " + condition).toInt();
}

void TestGateWorker::anAdmittedFileArrives()
{
    GateSite site;
    site.admit(GatePeople::some(30));
    site.deliver(GatePeople::some(31));
    startWorkerWith(site);
    const QStringList log = tick();
    QCOMPARE(people(), 21);
    QCOMPARE(people("pid = 10301"), 1);
    QVERIFY(log.contains("D MHRWorker::runCommand(): '" + command(site) + '\''));
    QVERIFY(!log.join('\n').contains("exit with code"));
    // The worker removes what it has read.
    QVERIFY(!site.isPublished());
}

void TestGateWorker::aRefusedFileDoesNotArrive()
{
    GateSite site;
    site.admit(GatePeople::some(30));
    site.deliver(GatePeople::some(3));
    startWorkerWith(site);
    QCOMPARE(tick(),
             QStringList(
                 {"D MHRWorker::checkSync(): #1", "D MHRWorker::dbCheckOpen()",
                  "D MHRWorker: BEGIN synchronization #1 (force: NO)",
                  "D MHRWorker::runCommand(): '" + command(site) + '\'',
                  "W MHRWorker::runCommand() - command: '" + command(site) + "' exit with code: 5",
                  "D MHRWorker::loadAndParseData()",
                  "W MHRWorker::loadAndParseData() - file '" + site.target() + "' NOT found!",
                  "D MHRWorker: END synchronization #1 (waiting records: 0)",
                  "D MHRWorker::dbCheckOpen()"}));
    QCOMPARE(people(), 0);
}

void TestGateWorker::afterARefusalTheWorkerGoesOn()
{
    GateSite site;
    site.admit(GatePeople::some(30));
    site.deliver(QByteArray());
    startWorkerWith(site);
    tick();
    QCOMPARE(people(), 0);
    site.deliver(GatePeople::some(30));
    tick();
    QCOMPARE(people(), 20);
}

void TestGateWorker::aRefusalDoesNotTakeBackWhatWasAdmitted()
{
    GateSite site;
    site.admit(GatePeople::some(30));
    COMPARE_EXIT(site.run(), ExitStatus::Fine);
    site.deliver(QByteArray());
    startWorkerWith(site);
    const QStringList log = tick();
    QVERIFY(log.contains("W MHRWorker::runCommand() - command: '" + command(site)
                         + "' exit with code: 5"));
    QCOMPARE(people(), 20);
}

void TestGateWorker::theSameFileArrivesOnceMore()
{
    GateSite site;
    site.admit(GatePeople::some(3));
    startWorkerWith(site);
    tick();
    m_db.run("UPDATE people SET phone = 'lost' WHERE pid = 10011");
    tick();
    // An unchanged line is left alone, a forced synchronisation writes it.
    QCOMPARE(people("pid = 10011 AND phone = 'lost'"), 1);
    force();
    tick();
    QCOMPARE(people("pid = 10011 AND phone = '555123456'"), 1);
    QCOMPARE(forceFlag(), QString("0"));
}

void TestGateWorker::statusReportsTheGate()
{
    m_db.run(QString("ALTER USER mirovahrctl@localhost IDENTIFIED BY '%1' ACCOUNT UNLOCK")
                 .arg(m_db.server().password()));
    GateSite site;
    const QStringList status{"status",          "--json",
                             "--socket",        m_db.server().socketPath(),
                             "--database",      m_db.server().databaseName(),
                             "--user",          "mirovahrctl",
                             "--password-file", m_db.server().passwordFile(),
                             "--gate-status",   site.inState("status.json")};
    site.admit(GatePeople::some(30));
    const ToolRun admitted = runTool(status);
    COMPARE_EXIT(admitted, ExitStatus::Fine);
    const QJsonObject facts = admitted.json()["facts"].toObject();
    QCOMPARE(facts["gateResult"].toString(), QString("admitted"));
    QCOMPARE(facts["admittedFile"].toString(), site.hrFile());
    QCOMPARE(facts["admittedLines"].toInt(), 30);

    site.deliver(QByteArray(GatePeople::file(GatePeople::some(27)).chopped(1)));
    COMPARE_EXIT(site.run(), ExitStatus::GuardTripped);
    const ToolRun refused = runTool(status);
    COMPARE_EXIT(refused, ExitStatus::Findings);
    QCOMPARE(
        refused.findingsOf("gate-refused").value(0)["message"].toString(),
        QString("The gate has refused the last file: The last line does not end with a line feed; "
                "3 lines (10.0 %) with people are missing compared with the last admitted file; "
                "the limits are 50 and 5 %; 3 people (10.0 %) leave; the limits are 50 and 5 %."));
    QCOMPARE(refused.json()["facts"].toObject()["admittedLines"].toInt(), 30);
}

QTEST_GUILESS_MAIN(TestGateWorker)
#include "tst_gateworker.moc"
