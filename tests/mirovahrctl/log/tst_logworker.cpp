#include "tests/mirovahrctl/program/toolrun.h"
#include "tests/worker/support/sampleexport.h"
#include "tests/worker/support/workertest.h"

#include <QFile>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>

/// log, compared with what the worker has done whose log it reads.
class TestLogWorker : public WorkerTest {
    Q_OBJECT

private Q_SLOTS:
    void theCountsAreThoseOfTheDatabase_data();
    void theCountsAreThoseOfTheDatabase();
    void whoCouldNotBeWrittenDoesNotCount();
    void inTestModeNobodyIsWritten();
    void anErrorIsAboutThePersonOfItsRecord();
    void anUnknownSupervisorIsAboutThePersonOfItsStep();
    void everyLineOfTheWorkerIsKnown_data();
    void everyLineOfTheWorkerIsKnown();
    void withoutAnExportNothingIsRead();

private:
    ToolRun read(const QStringList &lines, const QByteArray &prefix = {});
    QVector<ExportRow> randomLines();

    QTemporaryDir m_folder;
};

namespace {

QJsonObject row(const ToolRun &run, const QString &table, int number = 0)
{
    const QJsonObject section = run.json()["sections"].toArray().at(0).toObject();
    return section["tables"].toObject()[table].toArray().at(number).toObject();
}

} // namespace

/// Reads the lines of a worker as a server writes them: each with a prefix, among other lines.
ToolRun TestLogWorker::read(const QStringList &lines, const QByteArray &prefix)
{
    QFile file(m_folder.filePath("server.log"));
    if (!file.open(QIODevice::WriteOnly))
        qFatal("%s cannot be written", qPrintable(file.fileName()));
    for (const QString &line : lines) {
        file.write(prefix + line.mid(2).toUtf8() + "\n");
        file.write("Nov 22 04:00:00 host other[4]: Job END of another program\n");
    }
    file.close();
    return runTool({"log", "--json", file.fileName()});
}

/// People of the sample data with random changes, new people, unknown branches and supervisors.
QVector<ExportRow> TestLogWorker::randomLines()
{
    auto &random = *QRandomGenerator::global();
    using R = ExportRow;
    QVector<ExportRow> lines{SampleExport::maria(), SampleExport::peter(), SampleExport::zuzana(),
                             SampleExport::jana(), SampleExport::jan()};
    for (int i = 0; i < 10; ++i)
        lines << SampleExport::newcomer(newPersonalNumber());
    for (ExportRow &line : lines) {
        if (random.bounded(3) == 0)
            line.with(&R::prijmeni, QStringLiteral("Malá"));
        if (random.bounded(3) == 0)
            line.with(&R::dovolenaZustatek, QString::number(random.bounded(40)));
        if (random.bounded(3) == 0)
            line.with(&R::nadrizenyOsobniCislo, QVector<int>{1001, 1002, 4711}[random.bounded(3)]);
        if (random.bounded(3) == 0)
            line.with(&R::stredisko, QVector<int>{120, 130, 999}[random.bounded(3)]);
    }
    return lines;
}

void TestLogWorker::theCountsAreThoseOfTheDatabase_data()
{
    QTest::addColumn<int>("debugLevel");
    for (const int level : {1, 2, 3}) {
        for (int i = 0; i < 5; ++i)
            QTest::addRow("level %d, site %d", level, i) << level;
    }
}

void TestLogWorker::theCountsAreThoseOfTheDatabase()
{
    QFETCH(int, debugLevel);
    newWorker(debugLevel);
    const auto count = [this](const char *sql) {
        return m_db.value(sql).toInt();
    };
    const char people[] = "SELECT COUNT(*) FROM people";
    const char edited[] = "SELECT COUNT(*) FROM people WHERE edited > 1700000000 AND editor = 0"
                          " AND created < UNIX_TIMESTAMP() - 3600";
    const char members[] = "SELECT COUNT(*) FROM brape";
    const char corrections[] =
        "SELECT COUNT(*) FROM funds_move WHERE type = 3 AND day = midnightFromTs(UNIX_TIMESTAMP())";
    const char corrected[] =
        "SELECT COALESCE(SUM(value), 0) FROM funds_move WHERE type = 3 AND day "
        "= midnightFromTs(UNIX_TIMESTAMP())";
    const char supervised[] = "SELECT uid, aid FROM admins_people WHERE request = 1 ORDER BY 1, 2";
    m_db.run("UPDATE people SET edited = 0, created = 1");
    const int peopleBefore = count(people);
    const int membersBefore = count(members);
    const TableRows supervisedBefore = m_db.rows(supervised);
    QCOMPARE(count(corrections), 0);

    const QVector<ExportRow> lines = randomLines();
    const ToolRun run = read(synchronise(lines).log);
    const QJsonObject course = row(run, "synchronisations");
    const QJsonObject changes = row(run, "changes");
    QCOMPARE(course["records"].toInt(), lines.size());
    QCOMPARE(course["forced"].toBool(), false);
    QCOMPARE(changes["created"].toInt(), count(people) - peopleBefore);
    QCOMPARE(changes["updated"].toInt(), count(edited));
    QCOMPARE(changes["joined"].toInt(), count(members) - membersBefore);
    QCOMPARE(changes["corrected"].toInt(), count(corrections));
    QCOMPARE(qRound(changes["days"].toDouble() * 100), count(corrected));
    int set = 0;
    for (const QStringList &pair : m_db.rows(supervised))
        set += supervisedBefore.contains(pair) ? 0 : 1;
    QCOMPARE(changes["supervisors"].toInt(), set);

    int unknown = 0;
    for (const ExportRow &line : lines)
        unknown += line.stredisko == "999" ? 1 : 0;
    QCOMPARE(course["waiting"].toInt(), unknown);
    QVERIFY2(run.findingsOf("unknown-line").isEmpty(), run.report().constData());
}

void TestLogWorker::whoCouldNotBeWrittenDoesNotCount()
{
    newWorker(1);
    using R = ExportRow;
    const ToolRun run =
        read(synchronise(
                 {SampleExport::jana().with(&R::telefon, QString(500, '1')),
                  SampleExport::newcomer(newPersonalNumber()).with(&R::telefon, QString(500, '1'))})
                 .log);
    COMPARE_EXIT(run, ExitStatus::Findings);
    QCOMPARE(row(run, "changes")["created"].toInt(), 0);
    QCOMPARE(row(run, "changes")["updated"].toInt(), 0);
    QCOMPARE(run.findingsOf("logged-error").size(), 2);
}

void TestLogWorker::inTestModeNobodyIsWritten()
{
    newWorker(1);
    m_worker->setTestMode(true);
    const ToolRun run =
        read(synchronise({SampleExport::jana().with(&ExportRow::prijmeni, QString("Malá")),
                          SampleExport::newcomer(newPersonalNumber())})
                 .log);
    QCOMPARE(row(run, "changes")["created"].toInt(), 0);
    QCOMPARE(row(run, "changes")["updated"].toInt(), 0);
}

void TestLogWorker::anErrorIsAboutThePersonOfItsRecord()
{
    newWorker(3);
    m_db.run("DROP TABLE groups_plan");
    const ToolRun run = read(synchronise({SampleExport::jan(), SampleExport::jana()}).log);
    const auto errors = run.findingsOf("logged-error");
    QVERIFY2(!errors.isEmpty(), run.report().constData());
    const QString message = errors.first()["message"].toString();
    QVERIFY2(message.contains("1234.1 Nováková Jana"), qPrintable(message));
    QVERIFY2(message.contains("error 1146"), qPrintable(message));
}

void TestLogWorker::anUnknownSupervisorIsAboutThePersonOfItsStep()
{
    newWorker(1);
    using R = ExportRow;
    const ToolRun run = read(synchronise({SampleExport::jan().with(&R::nadrizenyOsobniCislo, 4711),
                                          SampleExport::jana().with(&R::stredisko, 999)})
                                 .log);
    const auto warnings = run.findingsOf("logged-warning");
    QCOMPARE(warnings.size(), 2);
    for (const QJsonObject &warning : warnings) {
        const bool isSupervisor = warning["message"].toString().contains("supervisor 4711");
        QCOMPARE(warning["subject"].toString(),
                 QString(isSupervisor ? "1235.1" : "1234.1 Nováková Jana"));
    }
}

void TestLogWorker::everyLineOfTheWorkerIsKnown_data()
{
    QTest::addColumn<QByteArray>("prefix");
    QTest::newRow("none") << QByteArray();
    QTest::newRow("syslog") << QByteArray("Nov 22 03:04:05 host yav[12]: ");
    QTest::newRow("journal") << QByteArray("2026-11-22T03:04:05+0100 host yavd[12]: MirovaHR: ");
    QTest::newRow("own times") << QByteArray("22.11.2026 03:04:05,123 [debug] default: ");
    QTest::newRow("yavhost") << QByteArray("debug     ");
}

void TestLogWorker::everyLineOfTheWorkerIsKnown()
{
    QFETCH(QByteArray, prefix);
    newWorker(3);
    m_export->write(randomLines());
    const QStringList log = synchronise().log;
    const ToolRun run = read(log, prefix);
    QVERIFY2(run.findingsOf("unknown-line").isEmpty(), run.report().constData());
    QCOMPARE(run.json()["facts"].toObject()["pluginLines"].toInt(), log.size());
    QCOMPARE(run.json()["facts"].toObject()["debugLevel"].toInt(), 3);
    QCOMPARE(row(run, "synchronisations")["begin"].toString().isEmpty(), !prefix.contains("22"));
}

void TestLogWorker::withoutAnExportNothingIsRead()
{
    newWorker(1);
    force();
    const ToolRun run = read(tick());
    COMPARE_EXIT(run, ExitStatus::Fine);
    QCOMPARE(row(run, "synchronisations")["records"].toInt(-1), 0);
    QCOMPARE(row(run, "synchronisations")["forced"].toBool(), true);
}

QTEST_GUILESS_MAIN(TestLogWorker)
#include "tst_logworker.moc"
