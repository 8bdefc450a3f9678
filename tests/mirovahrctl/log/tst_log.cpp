#include "mirovahrctl/log/linetime.h"
#include "mirovahrctl/log/logmatcher.h"
#include "tests/mirovahrctl/program/rulefixtures.h"
#include "tests/mirovahrctl/program/toolrun.h"
#include "tests/support/localzone.h"
#include "tests/support/programrun.h"

#include <QFile>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>

Q_DECLARE_METATYPE(LogMatcher::Outcome)

namespace {

const char kBegin[] = "MHRWorker: BEGIN synchronization #%1 (force: NO)";
const char kEnd[] = "MHRWorker: END synchronization #%1 (waiting records: 0)";

/// A synchronisation without any changes, from one minute of 22 November to a later one.
QStringList synchronisation(int number, const QString &begin, const QString &end)
{
    return {QString("2021-11-22 %1:00 ").arg(begin) + QString(kBegin).arg(number),
            QString("2021-11-22 %1:00 MHRWorker::checkDovolenkaFond(): fid=0").arg(end),
            QString("2021-11-22 %1:00 ").arg(end) + QString(kEnd).arg(number)};
}

QJsonArray table(const ToolRun &run, const QString &name)
{
    const QJsonObject section = run.json()["sections"].toArray().at(0).toObject();
    return section["tables"].toObject()[name].toArray();
}

QJsonObject fact(const ToolRun &run)
{
    return run.json()["facts"].toObject();
}

/// The numbers of the synchronisations that a run shows.
QVector<int> numbers(const ToolRun &run)
{
    QVector<int> numbers;
    for (const QJsonValue &row : table(run, "synchronisations"))
        numbers << row.toObject()["number"].toInt();
    return numbers;
}

} // namespace

/// log, on logs of every form.
class TestLog : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aSynchronisationHasATimeInEveryForm_data();
    void aSynchronisationHasATimeInEveryForm();
    void theSameSecondInAnotherZoneIsAnotherTime();
    void aTimeWithoutAYearIsOfTheLastOne();
    void theLinesOfOthersAreNoMatter();
    void aProblemSaysWhatItMeansAndWhomItConcerns();
    void aTextThatEndsLikeAnotherOneIsItself();
    void aNameWithAnApostropheIsWhole();
    void problemsOfOneThingAreOneFinding();
    void whatComesAfterTheEndIsAboutNobody();
    void aCommandThatFailedIsNamedWithItsCode();
    void whatNeedsNoActionIsANote();
    void anErrorTakesBackOnlyWhatTheLogHasCounted();
    void aBalanceOutOfRangeTakesBackNoCorrection();
    void anInterruptedStatementPointsToDrift_data();
    void anInterruptedStatementPointsToDrift();
    void aSynchronisationWithoutEndIsFound();
    void aSynchronisationThatStillRunsIsANote();
    void anEndWithoutBeginIsANote();
    void aMissingSynchronisationIsFound();
    void whenOnlyOthersGoOnASynchronisationIsMissing_data();
    void whenOnlyOthersGoOnASynchronisationIsMissing();
    void aTickThatNeverCameIsFound();
    void aSynchronisationThatKeepsTheWorkerBusyMissesNoTick();
    void forcedSynchronisationsAreNoMeasure();
    void twoSynchronisationsAreNoMeasure();
    void aRestartMissesNothing();
    void withoutTimesNothingIsMissed();
    void debugLevelZeroCannotTell();
    void aLogOfOthersIsAFinding();
    void cutLines_data();
    void cutLines();
    void onlyTheLastAreShown();
    void aGapBeforeTheLastDoesNotMatter();
    void onlyTheLatestAreShown_data();
    void onlyTheLatestAreShown();
    void sinceNeedsTimes();
    void optionsThatAreNone_data();
    void optionsThatAreNone();
    void compressedLogsAreRead_data();
    void compressedLogsAreRead();
    void aCompressedLogAmongOthersIsReadInItsPlace();
    void aDamagedArchiveIsAFailure();
    void aMissingFileIsAFailure();
    void rotatedLogsAreReadInTheOrderOfTheirTimes();
    void standardInputIsRead();
    void standardInputIsReadInItsPlace();
    void compressedStandardInputIsAFailure();
    void anyBytesAreRead();
    void everyRuleIsRaisedAndNot();

private:
    QString write(const QString &name, const QByteArray &content);
    ToolRun read(const QStringList &lines, const QStringList &options = {});
    QString pack(const QString &program, const QStringList &lines);

    const LocalZone m_zone{"Europe/Bratislava"};
    QTemporaryDir m_folder;
};

QString TestLog::write(const QString &name, const QByteArray &content)
{
    QFile file(m_folder.filePath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("%s cannot be written", qPrintable(file.fileName()));
    return file.fileName();
}

ToolRun TestLog::read(const QStringList &lines, const QStringList &options)
{
    const QString path = write("server.log", lines.join('\n').toUtf8());
    return runTool(QStringList{"log", "--json"} + options + QStringList{path});
}

/// Writes a log that this program has compressed.
QString TestLog::pack(const QString &program, const QStringList &lines)
{
    const QString plain = write("plain", lines.join('\n').toUtf8());
    const QString packed = m_folder.filePath("packed");
    if (QProcess::execute("sh", {"-c", program + " -c < \"$0\" > \"$1\"", plain, packed}) != 0)
        qFatal("%s cannot compress", qPrintable(program));
    return packed;
}

void TestLog::aSynchronisationHasATimeInEveryForm_data()
{
    QTest::addColumn<QString>("begin");
    QTest::addColumn<QString>("end");
    QTest::addColumn<QString>("time");
    QTest::newRow("ISO 8601") << "2021-11-22T03:04:05.123+0100 host "
                              << "2021-11-22T03:05:05+01:00 "
                              << "2021-11-22T03:04:05+01:00";
    QTest::newRow("UTC") << "2021-11-22T02:04:05Z "
                         << "2021-11-22T02:05:05Z "
                         << "2021-11-22T03:04:05+01:00";
    QTest::newRow("local") << "[2021-07-22 03:04:05,123] "
                           << "[2021-07-22 03:05:05,456] "
                           << "2021-07-22T03:04:05+02:00";
    QTest::newRow("day first") << "22.11.2021 03:04:05 "
                               << "22.11.2021 03:05:05 "
                               << "2021-11-22T03:04:05+01:00";
    QTest::newRow("Unix time") << "1637546645.123456 host "
                               << "1637546705.5000 host "
                               << "2021-11-22T03:04:05+01:00";
    const QDate yesterday = QDate::currentDate().addDays(-1);
    const QString syslog = QLocale::c().toString(yesterday, "MMM ")
        + QString::number(yesterday.day()).rightJustified(2);
    const QDateTime local(yesterday, QTime(3, 4, 5));
    QTest::newRow("syslog") << syslog + " 03:04:05 host yav[12]: "
                            << syslog + " 03:05:05 host yav[12]: "
                            << local.toOffsetFromUtc(local.offsetFromUtc()).toString(Qt::ISODate);
}

void TestLog::aSynchronisationHasATimeInEveryForm()
{
    QFETCH(QString, begin);
    QFETCH(QString, end);
    const ToolRun run = read({begin + QString(kBegin).arg(7), end + QString(kEnd).arg(7)});
    const QJsonObject row = table(run, "synchronisations").at(0).toObject();
    QTEST(row["begin"].toString(), "time");
    QCOMPARE(row["seconds"].toInt(-1), 60);
    QCOMPARE(row["number"].toInt(), 7);
}

/// As in the night in which summer time ends.
void TestLog::theSameSecondInAnotherZoneIsAnotherTime()
{
    LineTime times(QDateTime::currentDateTime());
    const auto seconds = [&times](const char *prefix) {
        return times.of(prefix)->toSecsSinceEpoch();
    };
    const qint64 summer = seconds("2021-10-31T02:30:00+02:00 ");
    QCOMPARE(seconds("2021-10-31T02:30:00+01:00 "), summer + 3600);
    QCOMPARE(seconds("2021-10-31T02:30:00.123+02:00 "), summer);
    QCOMPARE(seconds("2021-10-31T02:30:00.456+01:00 "), summer + 3600);
    QCOMPARE(seconds("2021-10-31T02:30:00Z "), summer + 7200);
}

void TestLog::aTimeWithoutAYearIsOfTheLastOne()
{
    LineTime times(QDateTime(QDate(2021, 11, 22), QTime(12, 0)));
    QCOMPARE(times.of("Nov 22 11:59:00 ")->date(), QDate(2021, 11, 22));
    QCOMPARE(times.of("Nov 24 11:59:00 ")->date(), QDate(2020, 11, 24));
    times.setNow(QDateTime(QDate(2021, 11, 24), QTime(12, 0)));
    QCOMPARE(times.of("Nov 24 11:59:01 ")->date(), QDate(2021, 11, 24));
}

void TestLog::theLinesOfOthersAreNoMatter()
{
    QStringList lines;
    for (const QString &line : synchronisation(1, "01:00", "01:01")) {
        lines << "Nov 22 01:00:00 host systemd[1]: Started MirovaHR attendance" << line
              << "the key YAV.MHRWorker.forceSync, see MHRWorker"
              << "Directory of others" << QString() << "Start of Stop in the MHR";
    }
    const ToolRun run = read(lines);
    COMPARE_EXIT(run, ExitStatus::Fine);
    QCOMPARE(fact(run)["pluginLines"].toInt(), 3);
    QCOMPARE(fact(run)["lines"].toInt(), 18);
    QCOMPARE(numbers(run), QVector<int>{1});
}

void TestLog::aProblemSaysWhatItMeansAndWhomItConcerns()
{
    const ToolRun run = read(
        synchronisation(1, "01:00", "01:01")
        + QStringList{"2021-11-22 01:02:00 MHRWorker: Branch '150' NOT FOUND for employee: "
                      "'1235.1 Novák Ján (S: 150, K: 1 from ) N-V:  - '",
                      "2021-11-22 01:02:00 MHRWorker::dbUpdatePerson(1235.1) - SQL ERROR: no"});
    COMPARE_EXIT(run, ExitStatus::Findings);
    const QJsonObject warning = run.findingsOf("logged-warning").value(0);
    QCOMPARE(warning["severity"].toString(), QString("warning"));
    QCOMPARE(warning["subject"].toString(), QString("1235.1 Novák Ján"));
    QVERIFY(warning["message"].toString().contains("No branch has this cost centre"));
    QVERIFY(warning["message"].toString().contains("branch 150"));
    QVERIFY(warning["advice"].toString().startsWith("Set up the branch"));
    const QJsonObject error = run.findingsOf("logged-error").value(0);
    QCOMPARE(error["severity"].toString(), QString("error"));
    QCOMPARE(error["subject"].toString(), QString("1235.1 Novák Ján"));
}

void TestLog::aTextThatEndsLikeAnotherOneIsItself()
{
    const QStringList whole = synchronisation(1, "01:00", "01:01");
    const ToolRun run =
        read(QStringList{whole.first(),
                         "MHRWorker::dbAddPerson(1235.1) - SQL ERROR: refused (see above)"}
             + whole.mid(1));
    QCOMPARE(run.findingsOf("logged-error").size(), 1);
    QCOMPARE(table(run, "changes").at(0).toObject()["created"].toInt(), 0);
}

void TestLog::aNameWithAnApostropheIsWhole()
{
    const ToolRun run = read({"MHRWorker: Branch '150' NOT FOUND for employee: '1235.1 O'Brien "
                              "Pat (S: 150, K: 1 from ) N-V:  - '"});
    QCOMPARE(run.findingsOf("logged-warning").value(0)["subject"].toString(),
             QString("1235.1 O'Brien Pat"));
}

void TestLog::whatComesAfterTheEndIsAboutNobody()
{
    const QStringList whole = synchronisation(1, "01:00", "01:01");
    const QString error = "MHRWorker::dbLoadBranches() - SQL ERROR [1146]: no";
    const ToolRun run = read(QStringList{whole.first(), "MHRWorker::dbCheckFundMove(pid: 12351)"}
                             + whole.mid(1) + QStringList{error});
    QCOMPARE(run.findingsOf("logged-error").value(0)["subject"].toString(), QString());
}

void TestLog::aCommandThatFailedIsNamedWithItsCode()
{
    const ToolRun run = read({"MHRWorker::runCommand() - command: 'mirovahrctl gate --from "
                              "/var/lib/yav/hr/export.txt' exit with code: 5"});
    const QString message = run.findingsOf("logged-warning").value(0)["message"].toString();
    QVERIFY2(message.contains("It is about command mirovahrctl gate --from "
                              "/var/lib/yav/hr/export.txt, code 5."),
             qPrintable(message));
}

void TestLog::problemsOfOneThingAreOneFinding()
{
    QStringList lines;
    for (int person = 1; person <= 30; ++person) {
        lines << QString("MHRWorker: Branch '%1' NOT FOUND for employee: '%2.1 Novák Ján (S: 1'")
                     .arg(person % 2 + 150)
                     .arg(person);
    }
    const ToolRun run = read(lines);
    const auto warnings = run.findingsOf("logged-warning");
    QCOMPARE(warnings.size(), 2);
    const QString message = warnings.first()["message"].toString();
    QVERIFY2(message.contains("Logged 15 times"), qPrintable(message));
    QVERIFY2(message.contains("15 people, among them "), qPrintable(message));
}

void TestLog::whatNeedsNoActionIsANote()
{
    const ToolRun run =
        read(synchronisation(1, "01:00", "01:01")
             + QStringList{"MHRWorker::loadAndParseData() - file '/tmp/ron.data' NOT found!"});
    COMPARE_EXIT(run, ExitStatus::Fine);
    QCOMPARE(run.findingsOf("logged-warning").value(0)["severity"].toString(), QString("note"));
}

/// Logging may leave out lines when there are too many.
void TestLog::anErrorTakesBackOnlyWhatTheLogHasCounted()
{
    const QStringList whole = synchronisation(1, "01:00", "01:01");
    const ToolRun run =
        read(QStringList{whole.first(), "MHRWorker::dbAddPerson(1235.1) - SQL ERROR: no",
                         "MHRWorker::dbUpdatePerson(1236.1) - SQL ERROR: no"}
             + whole.mid(1));
    const QJsonObject changes = table(run, "changes").at(0).toObject();
    QCOMPARE(changes["created"].toInt(), 0);
    QCOMPARE(changes["updated"].toInt(), 0);
}

/// The plugin says of both that the move is not written.
void TestLog::aBalanceOutOfRangeTakesBackNoCorrection()
{
    const QString notWritten = "MHRWorker::doSyncRecord() - funds_move type (type=3, valeu=%1) not "
                               "writed for uid %2 (pid: 12341)";
    const QStringList whole = synchronisation(1, "01:00", "01:01");
    const ToolRun run = read(
        QStringList{whole.first(), "MHRWorker::writeFundMove3(uid: 4, value: 150)",
                    "MHRWorker::dbCheckFundMove(pid: 12351)", notWritten.arg(2147483647).arg(5),
                    "MHRWorker::writeFundMove3(uid: 6, value: 300)",
                    "MHRWorker::writeFundMove3() - SQL ERROR [1]: no", notWritten.arg(300).arg(6)}
        + whole.mid(1));
    QCOMPARE(table(run, "changes").at(0).toObject()["corrected"].toInt(), 1);
    QCOMPARE(table(run, "changes").at(0).toObject()["days"].toDouble(), 1.5);
}

void TestLog::anInterruptedStatementPointsToDrift_data()
{
    QTest::addColumn<QString>("error");
    QTest::addColumn<bool>("isInterruption");

    const QString execute = " QMYSQL: Unable to execute query";
    QTest::newRow("a deadlock")
        << "MHRWorker::dbSetAdminPeopleRequest() - SQL ERROR [1213]: Deadlock found when trying to "
           "get lock; try restarting transaction"
            + execute
        << true;
    QTest::newRow("without a number")
        << "MHRWorker::dbUpdatePerson(1235.1) - SQL ERROR: Deadlock found when trying to get lock; "
           "try restarting transaction"
            + execute
        << true;
    QTest::newRow("a lock's timeout")
        << "GroupsPlanRepo::add - ERROR[1205]: Lock wait timeout exceeded; try restarting "
           "transaction"
            + execute
        << true;
    QTest::newRow("a lost connection")
        << "BranchesRepository::addPeopleToBranch - ERROR: Lost connection to server during query"
            + execute
        << true;
    QTest::newRow("a server that is gone")
        << "MHRWorker::dbLoadBranches() - SQL ERROR [2006]: Server has gone away" + execute << true;
    QTest::newRow("a node that has lost its cluster")
        << "MHRWorker::dbSetAdminPeopleRequest() - SQL ERROR [1047]: WSREP has not yet prepared "
           "node for application use"
            + execute
        << true;
    QTest::newRow("another error")
        << "MHRWorker::dbUpdatePerson(1235.1) - SQL ERROR: Data too long" + execute << false;
    QTest::newRow("a name that says so")
        << "MHRWorker: Branch '150' NOT FOUND for employee: '1235.1 Deadlock found (S: 150, K: 1 "
           "from ) N-V:  - '"
        << false;
}

void TestLog::anInterruptedStatementPointsToDrift()
{
    QFETCH(QString, error);
    QFETCH(bool, isInterruption);
    const QString line = "2021-11-22 01:00:30 " + error;
    const QStringList whole = synchronisation(1, "01:00", "01:01");
    const ToolRun run = read(QStringList{whole.first(), line, line} + whole.mid(1));
    const auto found = run.findingsOf("interrupted");
    QCOMPARE(found.size(), isInterruption ? 1 : 0);
    if (!isInterruption)
        return;
    QCOMPARE(found.first()["message"].toString(),
             QString("2 statements failed through a deadlock, the timeout of a lock, a lost "
                     "connection or a cluster node that was not ready."));
    QVERIFY(found.first()["advice"].toString().contains("mirovahrctl drift"));
}

void TestLog::aSynchronisationWithoutEndIsFound()
{
    const ToolRun run =
        read(synchronisation(1, "01:00", "01:01").mid(0, 2) + synchronisation(2, "02:00", "02:01"));
    COMPARE_EXIT(run, ExitStatus::Findings);
    const QJsonObject finding = run.findingsOf("no-end").value(0);
    QCOMPARE(finding["severity"].toString(), QString("error"));
    QVERIFY(finding["message"].toString().contains("#1 of 2021-11-22T01:00:00+01:00"));
    QVERIFY(table(run, "synchronisations").at(0).toObject()["seconds"].isNull());

    const ToolRun restarted = read(synchronisation(1, "01:00", "01:01").mid(0, 2)
                                   + QStringList{"2021-11-22 01:10:00 MirovaHR::init()"});
    QCOMPARE(restarted.findingsOf("no-end").value(0)["severity"].toString(), QString("error"));
}

void TestLog::aSynchronisationThatStillRunsIsANote()
{
    const ToolRun run = read(synchronisation(1, "01:00", "01:01").mid(0, 2));
    COMPARE_EXIT(run, ExitStatus::Fine);
    QCOMPARE(run.findingsOf("no-end").value(0)["severity"].toString(), QString("note"));
}

void TestLog::anEndWithoutBeginIsANote()
{
    const ToolRun run =
        read(synchronisation(4, "01:00", "01:01").mid(1) + synchronisation(5, "02:00", "02:01"));
    COMPARE_EXIT(run, ExitStatus::Fine);
    QCOMPARE(run.rules(), QStringList{"no-begin"});
    QCOMPARE(numbers(run), (QVector<int>{4, 5}));
    QCOMPARE(table(run, "changes").size(), 1);
}

void TestLog::aMissingSynchronisationIsFound()
{
    QStringList lines;
    int number = 0;
    for (const char *hour : {"01", "02", "03", "04", "07", "08"})
        lines += synchronisation(++number, hour + QString(":00"), hour + QString(":01"));
    COMPARE_EXIT(read(lines.mid(0, 12)), ExitStatus::Fine);
    const ToolRun run = read(lines);
    COMPARE_EXIT(run, ExitStatus::Findings);
    QCOMPARE(run.rules(), QStringList{"no-synchronisation"});
    QVERIFY(run.findings().at(0)["message"].toString().contains(
        "between 2021-11-22T04:00:00+01:00 and 2021-11-22T07:00:00+01:00"));

    const ToolRun late = read(lines.mid(0, 12)
                              + QStringList{"2021-11-22 09:00:00 MHRWorker::checkSync() - database "
                                            "not open!"});
    QVERIFY(late.findingsOf("no-synchronisation")
                .value(0)["message"]
                .toString()
                .contains("the log ends then"));

    const ToolRun stopped =
        read(lines.mid(0, 12) + QStringList{"2021-11-22 09:00:00 Stop MirovaHR.."});
    COMPARE_EXIT(stopped, ExitStatus::Fine);
}

void TestLog::whenOnlyOthersGoOnASynchronisationIsMissing_data()
{
    QTest::addColumn<QString>("last");
    QTest::addColumn<QStringList>("messages");
    QTest::newRow("for hours")
        << "2021-11-22 09:00:00 host cron[1]: done"
        << QStringList{"No synchronisation came between 2021-11-22T04:00:00+01:00 and "
                       "2021-11-22T09:00:00+01:00, although one usually comes every 3600 seconds; "
                       "the log ends then."};
    QTest::newRow("for a while") << "2021-11-22 05:10:00 host cron[1]: done" << QStringList();
    QTest::newRow("in a line with a time in its text")
        << "2021-11-22 05:10:00 host cron[1]: next at 2021-11-22 09:00:00" << QStringList();
    QTest::newRow("in a text with a time and none before it")
        << "the next job of the night begins at 2021-11-22 09:00:00" << QStringList();
    QTest::newRow("in a line without a time") << "done" << QStringList();
    QTest::newRow("in a line of an earlier time")
        << "2021-11-22 03:00:00 host cron[1]: done" << QStringList();
}

/// The plugin cannot log that it has hung or died.
void TestLog::whenOnlyOthersGoOnASynchronisationIsMissing()
{
    QFETCH(QString, last);
    QStringList lines;
    for (const int hour : {1, 2, 3, 4})
        lines += synchronisation(hour, QString("0%1:00").arg(hour), QString("0%1:01").arg(hour));
    const ToolRun run = read(lines + QStringList{last});
    QStringList messages;
    const auto findings = run.findingsOf("no-synchronisation");
    for (const QJsonObject &finding : findings)
        messages << finding["message"].toString();
    QTEST(messages, "messages");
    QCOMPARE(fact(run)["to"].toString(), QString("2021-11-22T04:01:00+01:00"));
}

void TestLog::aTickThatNeverCameIsFound()
{
    QStringList lines = synchronisation(1, "01:00", "01:00");
    for (const int minute : {1, 2, 3, 4, 5, 9, 10})
        lines << QString("2021-11-22 01:%1:00 MHRWorker::checkSync(): #%2")
                     .arg(minute, 2, 10, QChar('0'))
                     .arg(minute);
    const ToolRun run = read(lines);
    COMPARE_EXIT(run, ExitStatus::Findings);
    QCOMPARE(run.rules(), QStringList{"no-tick"});
    QVERIFY(run.findings().at(0)["message"].toString().contains(
        "between 2021-11-22T01:05:00+01:00 and 2021-11-22T01:09:00+01:00"));
}

void TestLog::aSynchronisationThatKeepsTheWorkerBusyMissesNoTick()
{
    QStringList lines;
    for (const int minute : {1, 2, 3, 4, 5}) {
        lines << QString("2021-11-22 01:0%1:00 MHRWorker::checkSync(): #%1").arg(minute);
    }
    lines += synchronisation(1, "01:05", "01:30");
    lines << "2021-11-22 01:31:00 MHRWorker::checkSync(): #6";
    COMPARE_EXIT(read(lines), ExitStatus::Fine);
}

void TestLog::forcedSynchronisationsAreNoMeasure()
{
    QStringList lines;
    for (const int hour : {1, 2, 3, 4})
        lines += synchronisation(hour, QString("0%1:00").arg(hour), QString("0%1:00").arg(hour));
    for (const int minute : {10, 11, 12, 13, 14}) {
        const QString time = QString("04:%1").arg(minute);
        lines += synchronisation(minute, time, time).replaceInStrings("NO", "YES");
    }
    lines += synchronisation(15, "05:00", "05:00");
    COMPARE_EXIT(read(lines), ExitStatus::Fine);
}

void TestLog::twoSynchronisationsAreNoMeasure()
{
    const QString late =
        "2021-11-22 09:00:00 MHRWorker::loadAndParseData() - file '/tmp/ron.data' NOT found!";
    COMPARE_EXIT(read(synchronisation(1, "01:00", "01:01") + synchronisation(2, "01:30", "01:31")
                      + QStringList{late}),
                 ExitStatus::Fine);
}

/// Also where the lines of the stop and the start are missing: the plugin counts from 1 again.
void TestLog::aRestartMissesNothing()
{
    QStringList lines = synchronisation(1, "01:00", "01:00");
    int minute = 0;
    for (const int tick : {1, 2, 3, 4, 1, 2, 3}) {
        minute += tick == 1 ? 20 : 1;
        lines << QString("2021-11-22 01:%1:00 MHRWorker::checkSync(): #%2").arg(minute).arg(tick);
    }
    COMPARE_EXIT(read(lines), ExitStatus::Fine);
}

void TestLog::withoutTimesNothingIsMissed()
{
    QStringList lines;
    for (int number = 1; number < 9; ++number)
        lines << QString(kBegin).arg(number) << QString(kEnd).arg(number);
    const ToolRun run = read(lines);
    COMPARE_EXIT(run, ExitStatus::Fine);
    QVERIFY(run.out.contains("cannot be noticed"));
    QVERIFY(table(run, "synchronisations").at(0).toObject()["begin"].isNull());
}

void TestLog::debugLevelZeroCannotTell()
{
    const ToolRun run = read({"MHRWorker::checkSync() - database not open!"});
    COMPARE_EXIT(run, ExitStatus::Findings);
    QVERIFY(run.findingsOf("no-synchronisation")
                .value(0)["message"]
                .toString()
                .contains("nobody can tell"));
    QCOMPARE(fact(run)["debugLevel"].toInt(-1), 0);
}

void TestLog::aLogOfOthersIsAFinding()
{
    const ToolRun run = read({"Nov 22 01:00:00 host cron[1]: done"});
    COMPARE_EXIT(run, ExitStatus::Findings);
    QVERIFY(run.findings().at(0)["message"].toString().contains("no line of the plugin"));
    COMPARE_EXIT(read({}), ExitStatus::Findings);
}

void TestLog::cutLines_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<LogMatcher::Outcome>("outcome");
    using Outcome = LogMatcher::Outcome;
    QTest::newRow("only one text begins so")
        << QByteArray("MHRWorker: Branch '150' NOT FOUND for employee: '1235.1 Nov")
        << Outcome::Found;
    QTest::newRow("several texts begin so")
        << QByteArray("MHRWorker::dbAddPerson(1235.1") << Outcome::Unknown;
    QTest::newRow("in the name") << QByteArray("x MHRWorker::dbAddPe") << Outcome::Unknown;
    QTest::newRow("another version")
        << QByteArray("MHRWorker::dbAddPerson(1235.1) - done") << Outcome::Unknown;
    QTest::newRow("in a longer word")
        << QByteArray("XMHRWorker: END synchronization #1 (waiting records: 0)")
        << Outcome::Foreign;
    QTest::newRow("too short") << QByteArray("MirovaHR is") << Outcome::Foreign;
    QTest::newRow("before a number") << QByteArray("MHRWorker::checkSync(): #") << Outcome::Found;
    QTest::newRow("behind the sign of a number that has none")
        << QByteArray("MHRWorker::checkSync(): #-") << Outcome::Unknown;
    QTest::newRow("behind the sign of a number")
        << QByteArray("MHRWorker: END synchronization #1 (waiting records: -") << Outcome::Found;
    QTest::newRow("whole") << QByteArray("MHRWorker::dbAddPerson(1235.1)") << Outcome::Found;
}

void TestLog::cutLines()
{
    QFETCH(QByteArray, line);
    const LogMatcher matcher;
    LoggedText text;
    QTEST(matcher.find(line.constData(), text), "outcome");
}

void TestLog::onlyTheLastAreShown()
{
    const QStringList lines = QStringList{"2021-11-22 00:59:00 MHRWorker::checkSync() - database "
                                          "not open!"}
        + synchronisation(1, "01:00", "01:01") + synchronisation(2, "02:00", "02:01")
        + synchronisation(3, "03:00", "03:01");
    COMPARE_EXIT(read(lines), ExitStatus::Findings);
    const ToolRun run = read(lines, {"--last", "2"});
    COMPARE_EXIT(run, ExitStatus::Fine);
    QCOMPARE(numbers(run), (QVector<int>{2, 3}));
}

void TestLog::aGapBeforeTheLastDoesNotMatter()
{
    QStringList lines;
    int number = 0;
    for (const char *hour : {"01", "02", "03", "06", "07", "08"})
        lines += synchronisation(++number, hour + QString(":00"), hour + QString(":01"));
    COMPARE_EXIT(read(lines), ExitStatus::Findings);
    COMPARE_EXIT(read(lines, {"--last", "2"}), ExitStatus::Fine);
}

void TestLog::onlyTheLatestAreShown_data()
{
    QTest::addColumn<QString>("since");
    QTest::newRow("a time") << "2021-11-22T01:30";
    QTest::newRow("a time with a blank") << "2021-11-22 01:30:00";
    QTest::newRow("in another zone") << "2021-11-22T00:30:00Z";
    const qint64 minutes =
        QDateTime(QDate(2021, 11, 22), QTime(1, 30)).secsTo(QDateTime::currentDateTime()) / 60;
    QTest::newRow("so long ago") << QString("%1min").arg(minutes);
}

void TestLog::onlyTheLatestAreShown()
{
    QFETCH(QString, since);
    const ToolRun run =
        read(synchronisation(1, "01:00", "01:01") + synchronisation(2, "02:00", "02:01"),
             {"--since", since});
    QCOMPARE(numbers(run), QVector<int>{2});
}

void TestLog::sinceNeedsTimes()
{
    const ToolRun run = read({QString(kBegin).arg(1)}, {"--since", "1h"});
    COMPARE_EXIT(run, ExitStatus::Usage);
    QVERIFY(run.failure().contains("--since"));

    const ToolRun ofOthers = read({"done"}, {"--since", "1h"});
    COMPARE_EXIT(ofOthers, ExitStatus::Findings);
    QVERIFY(ofOthers.out.contains("no line of the plugin"));
}

void TestLog::optionsThatAreNone_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::newRow("a time") << QStringList{"--since", "yesterday"};
    QTest::newRow("a number") << QStringList{"--last", "0"};
    QTest::newRow("no number") << QStringList{"--last", "all"};
}

void TestLog::optionsThatAreNone()
{
    QFETCH(QStringList, options);
    COMPARE_EXIT(read({}, options), ExitStatus::Usage);
}

void TestLog::compressedLogsAreRead_data()
{
    QTest::addColumn<QString>("program");
    for (const char *program : {"gzip", "xz", "zstd"})
        QTest::newRow(program) << program;
}

void TestLog::compressedLogsAreRead()
{
    QFETCH(QString, program);
    const ToolRun run =
        runTool({"log", "--json", pack(program, synchronisation(1, "01:00", "01:01"))});
    COMPARE_EXIT(run, ExitStatus::Fine);
    QCOMPARE(numbers(run), QVector<int>{1});
}

/// Its beginning, which is looked at first, is all that is unpacked then.
void TestLog::aCompressedLogAmongOthersIsReadInItsPlace()
{
    const QString late = write("log", synchronisation(2, "02:00", "02:01").join('\n').toUtf8());
    const QString early = pack("gzip", synchronisation(1, "01:00", "01:01"));
    ProgramRun run;
    QVERIFY(run.run(MIROVAHRCTL, {"log", late, early}));
    COMPARE_STATUS(run, 0);
    QVERIFY2(run.output().contains("The log shows 2 synchronisations, 0 errors and 0 warnings."),
             run.report().constData());
    QCOMPARE(run.errors(), QString());
}

void TestLog::aDamagedArchiveIsAFailure()
{
    const ToolRun run = runTool({"log", "--json", write("damaged", "\x1f\x8b is no archive")});
    COMPARE_EXIT(run, ExitStatus::Usage);
    QVERIFY2(run.failure().contains("cannot be unpacked"), run.report().constData());
}

void TestLog::aMissingFileIsAFailure()
{
    const ToolRun run = runTool({"log", m_folder.filePath("none"), "--json"});
    COMPARE_EXIT(run, ExitStatus::Usage);
    QVERIFY2(run.failure().contains("none' cannot be read"), run.report().constData());
}

void TestLog::rotatedLogsAreReadInTheOrderOfTheirTimes()
{
    const QString late = write("log", synchronisation(2, "02:00", "02:01").join('\n').toUtf8());
    const QString early = write("log.1", synchronisation(1, "01:00", "01:01").join('\n').toUtf8());
    QCOMPARE(numbers(runTool({"log", "--json", late, early})), (QVector<int>{1, 2}));
}

void TestLog::standardInputIsRead()
{
    const QString path = write("input", synchronisation(1, "01:00", "01:01").join('\n').toUtf8());
    for (const char *const name : {"", "-"}) {
        ProgramRun run;
        QVERIFY(run.run("sh", {"-c", QString("'%1' log %2 < '%3'").arg(MIROVAHRCTL, name, path)}));
        COMPARE_STATUS(run, 0);
        QVERIFY2(run.output().contains("The log shows 1 synchronisation, 0 errors and 0 warnings."),
                 run.report().constData());
    }
}

void TestLog::standardInputIsReadInItsPlace()
{
    const QString input = write("input", synchronisation(2, "02:00", "02:01").join('\n').toUtf8());
    const QString early = write("log.1", synchronisation(1, "01:00", "01:01").join('\n').toUtf8());
    ProgramRun run;
    QVERIFY(
        run.run("sh", {"-c", QString("'%1' log '%2' - < '%3'").arg(MIROVAHRCTL, early, input)}));
    COMPARE_STATUS(run, 0);
    QVERIFY2(run.output().contains("The log shows 2 synchronisations, 0 errors and 0 warnings."),
             run.report().constData());
}

void TestLog::compressedStandardInputIsAFailure()
{
    const QString path = write("input", "\x1f\x8b is no log");
    ProgramRun run;
    QVERIFY(run.run("sh", {"-c", QString("'%1' log < '%2'").arg(MIROVAHRCTL, path)}));
    COMPARE_STATUS(run, 2);
    QVERIFY2(run.errors().contains("unpack it with zcat"), run.report().constData());
}

void TestLog::anyBytesAreRead()
{
    auto &random = *QRandomGenerator::global();
    const QByteArray pieces[] = {"MHRWorker",
                                 "MHRWorker: ",
                                 "::",
                                 "M:",
                                 "dbAddPerson(",
                                 ")",
                                 "%s",
                                 "MHRWorker: BEGIN synchronization #",
                                 "4294967296",
                                 " (force: ",
                                 "YES)",
                                 "MHRWorker: END synchronization #",
                                 "\n",
                                 "\n",
                                 "'",
                                 "2021-13-45 99:99:99 ",
                                 "Feb 29 23:59:59 ",
                                 "\xff\xfe",
                                 "\r",
                                 "-"};
    for (int round = 0; round < 50; ++round) {
        QByteArray content;
        for (int i = 0; i < 2000; ++i) {
            content += random.bounded(4) == 0
                ? QByteArray(random.bounded(5), char(random.bounded(256)))
                : pieces[random.bounded(int(std::size(pieces)))];
        }
        const ToolRun run = runTool({"log", "--json", write("bytes", content)});
        QVERIFY2(!run.json().isEmpty(), content.toHex());
        QVERIFY2(run.status == ExitStatus::Fine || run.status == ExitStatus::Findings,
                 content.toHex());
    }
    for (const QByteArray &piece : pieces) {
        const QByteArray line = piece.repeated(200000);
        QVERIFY(!runTool({"log", "--json", write("bytes", line)}).json().isEmpty());
    }
}

void TestLog::everyRuleIsRaisedAndNot()
{
    QCOMPARE(RuleFixtures::ofReports("log").missing("log", {}), QStringList());
}

QTEST_GUILESS_MAIN(TestLog)
#include "tst_log.moc"
