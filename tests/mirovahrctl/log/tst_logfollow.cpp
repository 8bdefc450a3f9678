#include "mirovahrctl/log/logtext.h"
#include "mirovahrctl/program/console.h"
#include "tests/mirovahrctl/program/toolrun.h"
#include "tests/support/localzone.h"
#include "tests/support/programrun.h"

#include <QFile>
#include <QJsonDocument>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>

namespace {

const char kProblem[] = "2021-11-22 09:00:00 MHRWorker: load people from TEPDB failed - "
                        "synchronization terminated!\n";

QByteArray begin(int number)
{
    return "2021-11-22 01:00:00 MHRWorker: BEGIN synchronization #" + QByteArray::number(number)
        + " (force: NO)\n";
}

QByteArray end(int number)
{
    return "2021-11-22 01:01:00 MHRWorker::checkDovolenkaFond(): fid=0\n"
           "2021-11-22 01:01:00 MHRWorker: END synchronization #"
        + QByteArray::number(number) + " (waiting records: 0)\n";
}

QByteArray synchronisation(int number)
{
    return begin(number) + end(number);
}

/// What the program shows of it.
QString line(int number)
{
    return QStringLiteral("2021-11-22T01:01:00+01:00 Synchronisation #%1. Seconds: 60; Forced: no; "
                          "Waiting: 0; Problems: 0\n")
        .arg(number);
}

} // namespace

/// log --follow, beside somebody who writes the log.
class TestLogFollow : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();

    void eachSynchronisationIsALine();
    void aProblemIsALineAtOnce();
    void itBeginsWithTheLastSynchronisations_data();
    void itBeginsWithTheLastSynchronisations();
    void itBeginsAtATime();
    void aSynchronisationThatRunsAtTheBeginIsComplete();
    void aLineWaitsForItsRest();
    void aRenamedLogIsReadToItsEnd();
    void aLogThatComesBackIsFollowed();
    void aRemovedLogIsReplaced();
    void aLinkToAnotherLogIsFollowed();
    void aLogThatIsCopiedAndEmptiedIsFollowed();
    void aLogThatIsNotThereYetIsAwaited();
    void aSynchronisationThatDoesNotEndIsAnError();
    void aLineThatIsNotKnownIsAWarning();
    void theStatusSaysWhatWasShown_data();
    void theStatusSaysWhatWasShown();
    void standardInputIsFollowedToItsEnd();
    void eachLineIsAnObject();
    void theEndIsNoticedWhenNobodyTakesTheLines();
    void aLogWithoutTimesHasNothingSince();
    void whatCannotBeFollowed_data();
    void whatCannotBeFollowed();
    void theFirstSentenceOfAMeaningIsWhole();

private:
    void append(const QByteArray &bytes) { append(m_path, bytes); }
    static void append(const QString &path, const QByteArray &bytes);
    void follow(ProgramRun &run, const QStringList &options = {});
    static void stop(ProgramRun &run);

    const LocalZone m_zone{"Europe/Bratislava"};
    QScopedPointer<QTemporaryDir> m_folder;
    QString m_path;
};

void TestLogFollow::init()
{
    m_folder.reset(new QTemporaryDir);
    m_path = m_folder->filePath("server.log");
}

void TestLogFollow::append(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::Append | QIODevice::Unbuffered) || file.write(bytes) != bytes.size())
        qFatal("%s cannot be written", qPrintable(path));
}

void TestLogFollow::follow(ProgramRun &run, const QStringList &options)
{
    run.start(MIROVAHRCTL, QStringList{"log", "--follow", m_path} + options);
}

void TestLogFollow::stop(ProgramRun &run)
{
    run.sendSignal(SIGTERM);
    QVERIFY2(run.waitForEnd(), run.report().constData());
}

void TestLogFollow::eachSynchronisationIsALine()
{
    append(synchronisation(1));
    ProgramRun run;
    follow(run);
    QVERIFY2(run.waitForText(line(1)), run.report().constData());
    append("Nov 22 01:00:00 host systemd[1]: Started\n" + synchronisation(2));
    QVERIFY2(run.waitForText(line(2)), run.report().constData());
    append(synchronisation(3));
    QVERIFY2(run.waitForText(line(3)), run.report().constData());
    stop(run);
    QCOMPARE(run.output(), line(1) + line(2) + line(3));
    QCOMPARE(run.errors(), QString());
}

void TestLogFollow::aProblemIsALineAtOnce()
{
    append(begin(1));
    ProgramRun run;
    follow(run);
    append("2021-11-22 01:00:30 MHRWorker: Branch '150' NOT FOUND for employee: '1235.1 Novák Ján "
           "(S: 150, K: 1 from ) N-V:  - '\n");
    QVERIFY2(run.waitForText("2021-11-22T01:00:30+01:00 warning: 1235.1 Novák Ján: No branch has "
                             "this cost centre as its number; the record waits, and the person "
                             "stays where they are. It is about branch 150.\n"),
             run.report().constData());
    append("2021-11-22 01:00:31 MHRWorker::dbUpdatePerson(1235.1) - SQL ERROR: too\x1blong\n");
    QVERIFY2(
        run.waitForText("2021-11-22T01:00:31+01:00 error: 1235.1 Novák Ján: The person was not "
                        "updated, and is not tried again by itself. \"MHRWorker::"
                        "dbUpdatePerson(1235.1) - SQL ERROR: too\\x1blong\"\n"),
        run.report().constData());
    append("MHRWorker::loadAndParseData() - file '/tmp/ron.data' NOT found!\n");
    QVERIFY2(run.waitForText("note: No export lies there. It is about file /tmp/ron.data.\n"),
             run.report().constData());
}

void TestLogFollow::itBeginsWithTheLastSynchronisations_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<int>("first");
    QTest::newRow("by default") << QStringList() << 4;
    QTest::newRow("two") << QStringList{"--last", "2"} << 3;
    QTest::newRow("more than there are") << QStringList{"--last", "9"} << 1;
}

/// Among so much else that the log is read in several blocks, each begin in another one or across
/// two.
void TestLogFollow::itBeginsWithTheLastSynchronisations()
{
    QFETCH(QStringList, options);
    QFETCH(int, first);
    for (int number = 1; number <= 4; ++number)
        append(QByteArray(100000 * number, 'x') + '\n' + synchronisation(number));
    ProgramRun run;
    follow(run, options);
    QVERIFY2(run.waitForText(line(4)), run.report().constData());
    stop(run);
    QString expected;
    for (int number = first; number <= 4; ++number)
        expected += line(number);
    QCOMPARE(run.output(), expected);
}

void TestLogFollow::itBeginsAtATime()
{
    append(synchronisation(1) + synchronisation(2).replace("2021-11-22", "2021-11-23"));
    ProgramRun run;
    follow(run, {"--since", "2021-11-23"});
    QVERIFY2(run.waitForText("Synchronisation #2."), run.report().constData());
    stop(run);
    QVERIFY2(!run.output().contains("#1."), run.report().constData());
}

void TestLogFollow::aSynchronisationThatRunsAtTheBeginIsComplete()
{
    append(begin(1) + "MHRWorker::dbAddPerson(1235.1)\n" + kProblem);
    ProgramRun run;
    follow(run);
    QVERIFY2(run.waitForText("could not be loaded"), run.report().constData());
    append("MHRWorker::dbAddPerson(1236.1)\n" + end(1));
    QVERIFY2(run.waitForText("; Created: 2\n"), run.report().constData());
}

void TestLogFollow::aLineWaitsForItsRest()
{
    const QByteArray last = end(1);
    const int half = last.size() - 10;
    append(begin(1));
    ProgramRun run;
    follow(run);
    append(kProblem + last.left(half));
    QVERIFY2(run.waitForText("could not be loaded"), run.report().constData());
    append(last.mid(half));
    QVERIFY2(run.waitForText("Waiting: 0; Problems: 1\n"), run.report().constData());
    stop(run);
    QCOMPARE(run.output().count("Synchronisation"), 1);
}

/// As logrotate does: the server still writes to the old file when there is a new one.
void TestLogFollow::aRenamedLogIsReadToItsEnd()
{
    append(synchronisation(1));
    ProgramRun run;
    follow(run);
    QVERIFY2(run.waitForText(line(1)), run.report().constData());
    const QString old = m_folder->filePath("server.log.1");
    for (int number = 2; number <= 6; number += 2) {
        QFile::remove(old);
        QVERIFY(QFile::rename(m_path, old));
        append("");
        append(old, synchronisation(number));
        append(synchronisation(number + 1));
        QVERIFY2(run.waitForText(line(number + 1)), run.report().constData());
    }
    stop(run);
    QCOMPARE(run.output(), line(1) + line(2) + line(3) + line(4) + line(5) + line(6) + line(7));
}

void TestLogFollow::aLogThatComesBackIsFollowed()
{
    append(synchronisation(1));
    ProgramRun run;
    follow(run);
    QVERIFY2(run.waitForText(line(1)), run.report().constData());
    QVERIFY(QFile::rename(m_path, m_path + ".1"));
    QVERIFY(QFile::rename(m_path + ".1", m_path));
    append(synchronisation(2));
    QVERIFY2(run.waitForText(line(2)), run.report().constData());
    append(synchronisation(3));
    QVERIFY2(run.waitForText(line(3)), run.report().constData());
}

void TestLogFollow::aRemovedLogIsReplaced()
{
    append(synchronisation(1));
    ProgramRun run;
    follow(run);
    QVERIFY2(run.waitForText(line(1)), run.report().constData());
    for (int number = 2; number <= 4; ++number) {
        QVERIFY(QFile::remove(m_path));
        append(synchronisation(number));
        QVERIFY2(run.waitForText(line(number)), run.report().constData());
    }
}

void TestLogFollow::aLinkToAnotherLogIsFollowed()
{
    QVERIFY(QDir(m_folder->path()).mkdir("logs"));
    const QString log = m_folder->filePath("logs/server.log");
    append(log, synchronisation(1));
    QVERIFY(QFile::link(log, m_path));
    ProgramRun run;
    follow(run);
    QVERIFY2(run.waitForText(line(1)), run.report().constData());
    QVERIFY(QFile::rename(log, m_folder->filePath("logs/server.log.1")));
    append(log, synchronisation(2));
    QVERIFY2(run.waitForText(line(2)), run.report().constData());
    const QString other = m_folder->filePath("logs/other.log");
    append(other, synchronisation(3));
    QVERIFY(QFile::link(other, m_path + ".new"));
    QCOMPARE(std::rename(qPrintable(m_path + ".new"), qPrintable(m_path)), 0);
    QVERIFY2(run.waitForText(line(3)), run.report().constData());
}

void TestLogFollow::aLogThatIsCopiedAndEmptiedIsFollowed()
{
    append(synchronisation(1) + synchronisation(2) + "the beginning of a line");
    ProgramRun run;
    follow(run, {"--last", "2"});
    QVERIFY2(run.waitForText(line(2)), run.report().constData());
    QVERIFY(QFile::resize(m_path, 0));
    append("MHRWorker: END synchronization #3 (waiting records: 0)\n");
    QVERIFY2(run.waitForText("Synchronisation #3."), run.report().constData());
}

void TestLogFollow::aLogThatIsNotThereYetIsAwaited()
{
    ProgramRun run;
    follow(run);
    QVERIFY2(run.waitForText("server.log' is not there yet."), run.report().constData());
    append(synchronisation(1));
    QVERIFY2(run.waitForText(line(1)), run.report().constData());
}

void TestLogFollow::aSynchronisationThatDoesNotEndIsAnError()
{
    append(begin(1) + begin(2) + "MirovaHR::init()\n" + begin(1) + end(3));
    ProgramRun run;
    follow(run, {"--last", "3"});
    QVERIFY2(run.waitForText("Synchronisation #3."), run.report().constData());
    stop(run);
    const QString error = "error: Synchronisation #%1 of 2021-11-22T01:00:00+01:00 did not end.\n";
    QVERIFY2(run.output().startsWith(error.arg(1) + error.arg(2) + error.arg(1)),
             run.report().constData());
    COMPARE_STATUS(run, 1);
}

void TestLogFollow::aLineThatIsNotKnownIsAWarning()
{
    append("MHRWorker::dbAddPerson(1235.1) - done\n");
    ProgramRun run;
    follow(run);
    QVERIFY2(run.waitForText("warning: This line begins like the plugin's and is none that is "
                             "known: \"MHRWorker::dbAddPerson(1235.1) - done\".\n"),
             run.report().constData());
}

void TestLogFollow::theStatusSaysWhatWasShown_data()
{
    QTest::addColumn<int>("signal");
    QTest::addColumn<QByteArray>("log");
    QTest::addColumn<int>("status");
    const QByteArray note = "MHRWorker::loadAndParseData() - file '/tmp/ron.data' NOT found!\n";
    QTest::newRow("nothing, SIGINT") << SIGINT << QByteArray() << 0;
    QTest::newRow("nothing, SIGTERM") << SIGTERM << QByteArray() << 0;
    QTest::newRow("a note") << SIGINT << note << 0;
    QTest::newRow("an error") << SIGTERM << QByteArray(kProblem) << 1;
}

void TestLogFollow::theStatusSaysWhatWasShown()
{
    QFETCH(int, signal);
    QFETCH(QByteArray, log);
    append(log + synchronisation(1));
    ProgramRun run;
    follow(run, {"--last", "2"});
    QVERIFY2(run.waitForText(line(1)), run.report().constData());
    run.sendSignal(signal);
    QVERIFY2(run.waitForEnd(), run.report().constData());
    QTEST(run.status(), "status");
}

void TestLogFollow::standardInputIsFollowedToItsEnd()
{
    for (const QStringList &name : {QStringList(), QStringList{"-"}}) {
        ProgramRun run;
        run.start(MIROVAHRCTL, QStringList{"log", "--follow"} + name);
        run.write(synchronisation(1));
        QVERIFY2(run.waitForText(line(1)), run.report().constData());
        run.write(synchronisation(2).chopped(1));
        run.closeInput();
        QVERIFY2(run.waitForEnd(), run.report().constData());
        QCOMPARE(run.output(), line(1) + line(2));
        COMPARE_STATUS(run, 0);
    }
}

void TestLogFollow::eachLineIsAnObject()
{
    append(begin(1) + kProblem + end(1));
    ProgramRun run;
    follow(run, {"--json"});
    QVERIFY2(run.waitForText("\"synchronisation\""), run.report().constData());
    stop(run);
    const QStringList lines = run.output().split('\n', Qt::SkipEmptyParts);
    QCOMPARE(lines.size(), 2);
    const QJsonObject finding =
        QJsonDocument::fromJson(lines.at(0).toUtf8()).object()["finding"].toObject();
    QCOMPARE(finding["rule"].toString(), QString("logged-error"));
    QCOMPARE(finding["time"].toString(), QString("2021-11-22T09:00:00+01:00"));
    QVERIFY(finding["advice"].toString().startsWith("Provide the export again"));
    const QJsonObject shown =
        QJsonDocument::fromJson(lines.at(1).toUtf8()).object()["synchronisation"].toObject();
    QCOMPARE(shown["number"].toInt(), 1);
    QCOMPARE(shown["begin"].toString(), QString("2021-11-22T01:00:00+01:00"));
    QCOMPARE(shown["seconds"].toInt(), 60);
    QCOMPARE(shown["problems"].toInt(), 1);
    QCOMPARE(shown["created"].toInt(-1), 0);
    COMPARE_STATUS(run, 1);
}

void TestLogFollow::theEndIsNoticedWhenNobodyTakesTheLines()
{
    append(synchronisation(1));
    ProgramRun run;
    QVERIFY(run.run(
        "sh", {"-c", QString("exec '%1' log --follow '%2' > /dev/full").arg(MIROVAHRCTL, m_path)}));
    COMPARE_STATUS(run, 2);
    QVERIFY2(run.errors().contains("The output cannot be written"), run.report().constData());
}

void TestLogFollow::aLogWithoutTimesHasNothingSince()
{
    append("done\n");
    ProgramRun run;
    follow(run, {"--since", "1h"});
    append("MHRWorker::init()\n");
    QVERIFY2(run.waitForEnd(), run.report().constData());
    COMPARE_STATUS(run, 2);
    QVERIFY2(run.errors().contains("The plugin's lines have no times"), run.report().constData());
}

void TestLogFollow::whatCannotBeFollowed_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("reason");
    QTest::newRow("two logs") << QStringList{"a", "b"} << "--follow takes one log";
    QTest::newRow("a page") << QStringList{"a", "--html", "page"} << "--follow writes no page";
    QTest::newRow("the last of standard input") << QStringList{"--last", "1"} << "needs a file";
    QTest::newRow("no folder") << QStringList{"/nowhere/log"} << "its folder cannot be watched";
    QTest::newRow("a folder") << QStringList{"/tmp"} << "it is no file";
    QTest::newRow("a device") << QStringList{"/dev/null"} << "it is no file";
    QTest::newRow("a compressed log") << QStringList{"packed"} << "A compressed log does not grow";
}

void TestLogFollow::whatCannotBeFollowed()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, reason);
    append(m_folder->filePath("packed"), "\x1f\x8b is packed");
    for (QString &argument : arguments)
        argument.replace(QRegularExpression("^(packed|page)$"), m_folder->filePath("\\1"));
    const ToolRun run = runTool(QStringList{"log", "--follow", "--json"} + arguments);
    COMPARE_EXIT(run, ExitStatus::Usage);
    QVERIFY2(run.failure().contains(reason), run.report().constData());
}

/// A line shows the first one.
void TestLogFollow::theFirstSentenceOfAMeaningIsWhole()
{
    static const QRegularExpression abbreviation("\\b[A-Za-z]\\. ");
    for (const LogTextGroup &group : logTextGroups()) {
        for (const LogText &text : group.texts)
            QVERIFY2(!QString(text.meaning).contains(abbreviation), text.meaning);
    }
}

QTEST_GUILESS_MAIN(TestLogFollow)
#include "tst_logfollow.moc"
