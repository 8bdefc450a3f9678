#include "tests/support/programrun.h"

#include <QTest>

namespace {

/// Stands in for a program that is not executable before it is installed.
const QStringList kDemo{"bash", BUILD_FOLDER "/packaging/mirovahr-demo"};

QStringList script(const char *name)
{
    return {QStringLiteral(PROJECT_FOLDER "/scripts/") + name};
}

} // namespace

/// What all programs and scripts have in common: help, version, and the status of wrong usage.
class TestPrograms : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void helpIsGiven_data();
    void helpIsGiven();
    void theVersionIsGiven_data();
    void theVersionIsGiven();
    void wrongUsageEndsWithTheSameStatus_data();
    void wrongUsageEndsWithTheSameStatus();

    void aBuildShowsItsProgress();
    void aBuildThatFailsShowsWhatItPrinted();

private:
    static void addPrograms();
    static void addRow(const QString &name, const QStringList &program, const QString &argument);
};

void TestPrograms::addRow(const QString &name, const QStringList &program, const QString &argument)
{
    QTest::newRow(qPrintable(name + ' ' + argument)) << name << (program + QStringList{argument});
}

void TestPrograms::helpIsGiven_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QStringList>("command");
    for (const char *argument : {"-h", "--help", "help"}) {
        addRow("mirovahrctl", {MIROVAHRCTL}, argument);
        addRow("yavhost", {YAVHOST}, argument);
        addRow("private-mariadb", {PRIVATE_MARIADB}, argument);
        addRow("mirovahr-demo", kDemo, argument);
        for (const char *name :
             {"bench", "check-code", "check-hardening", "demo", "fault-sweep", "fuzz",
              "long-service", "nightly", "package", "random-hosts", "test", "test-packages"})
            addRow(name, script(name), argument);
    }
    for (const char *argument : {"-h", "--help"})
        addRow("private-view", script("private-view"), argument);
}

void TestPrograms::helpIsGiven()
{
    QFETCH(QString, name);
    QFETCH(QStringList, command);
    ProgramRun run;
    QVERIFY(run.run(command.first(), command.mid(1)));
    COMPARE_STATUS(run, 0);
    QVERIFY2(run.output().section('\n', 0, 0).contains(name), run.report().constData());
    QCOMPARE(run.errors(), QString());
}

void TestPrograms::theVersionIsGiven_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QStringList>("command");
    for (const char *argument : {"-v", "--version"}) {
        addRow("mirovahrctl", {MIROVAHRCTL}, argument);
        addRow("yavhost", {YAVHOST}, argument);
        addRow("private-mariadb", {PRIVATE_MARIADB}, argument);
        addRow("mirovahr-demo", kDemo, argument);
    }
}

void TestPrograms::theVersionIsGiven()
{
    QFETCH(QString, name);
    QFETCH(QStringList, command);
    ProgramRun run;
    QVERIFY(run.run(command.first(), command.mid(1)));
    COMPARE_STATUS(run, 0);
    QCOMPARE(run.output(), name + " 1.5.3\n");
    QCOMPARE(run.errors(), QString());
}

void TestPrograms::wrongUsageEndsWithTheSameStatus_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QStringList>("command");
    const QString argument = "--no-such-option";
    addRow("mirovahrctl", {MIROVAHRCTL}, argument);
    addRow("yavhost", {YAVHOST}, argument);
    addRow("private-mariadb", {PRIVATE_MARIADB}, argument);
    addRow("mirovahr-demo", kDemo, argument);
    for (const char *name : {"check-hardening", "demo", "nightly", "package", "test-packages"})
        addRow(name, script(name), argument);
    QTest::newRow("yavhost alone") << "yavhost" << QStringList{YAVHOST};
    QTest::newRow("private-mariadb alone") << "private-mariadb" << QStringList{PRIVATE_MARIADB};
    QTest::newRow("private-view alone") << "private-view" << script("private-view");
}

void TestPrograms::wrongUsageEndsWithTheSameStatus()
{
    QFETCH(QString, name);
    QFETCH(QStringList, command);
    ProgramRun run;
    QVERIFY(run.run(command.first(), command.mid(1)));
    COMPARE_STATUS(run, 2);
    QCOMPARE(run.output(), QString());
    QVERIFY2(run.errors().contains(name), run.report().constData());
}

/// The scripts' output when this command stands in for the build.
static void build(ProgramRun &run, const QString &command)
{
    const QString line = QStringLiteral("source '" PROJECT_FOLDER "/scripts/lib/common.sh'; "
                                        "build() { %1; }; with_progress build");
    run.run("bash", {"-c", line.arg(command)});
}

void TestPrograms::aBuildShowsItsProgress()
{
    ProgramRun run;
    build(run, R"(for step in {1..40}; do echo "[$step/40] Building"; done)");
    COMPARE_STATUS(run, 0);
    QCOMPARE(run.output(),
             QString("  4 of 40 steps\n  8 of 40 steps\n  12 of 40 steps\n  16 of 40 steps\n"
                     "  20 of 40 steps\n  24 of 40 steps\n  28 of 40 steps\n  32 of 40 steps\n"
                     "  36 of 40 steps\n  40 of 40 steps\n"));
    QCOMPARE(run.errors(), QString());
}

void TestPrograms::aBuildThatFailsShowsWhatItPrinted()
{
    ProgramRun run;
    build(run, "echo '[1/100] Building a'; echo 'a: wrong' >&2; return 3");
    COMPARE_STATUS(run, 3);
    QCOMPARE(run.output(), QString());
    QCOMPARE(run.errors(), QString("[1/100] Building a\na: wrong\n"));
}

QTEST_GUILESS_MAIN(TestPrograms)
#include "tst_programs.moc"
