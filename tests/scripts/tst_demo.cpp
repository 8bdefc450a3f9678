#include "tests/docs/markdown.h"
#include "tests/support/programrun.h"

#include <QTest>

namespace {

const QString kProject = QStringLiteral(PROJECT_FOLDER);

} // namespace

/// What scripts/demo shows, with the programs of this build.
class TestDemo : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void theDemoEndsByItself();
    void brokenLinesAndAnUnknownBranchCauseWarnings();
    void theFirstSynchronisationShowsEveryKindOfChange_data();
    void theFirstSynchronisationShowsEveryKindOfChange();
    void theSecondSynchronisationShowsWhatHrChanged_data();
    void theSecondSynchronisationShowsWhatHrChanged();
    void theExcerptInTheReadmeIsPrinted();

private:
    static void addRows(const QVector<QByteArray> &texts);

    ProgramRun m_demo;
    QString m_first;
    QString m_second;
};

void TestDemo::initTestCase()
{
    // As set by an administrator who works with another server; no server listens at that port.
    m_demo.setVariable("MYSQL_HOST", "127.0.0.1");
    m_demo.setVariable("MYSQL_TCP_PORT", "1");
    m_demo.setVariable("MYSQL_PWD", "of another server");
    QVERIFY2(
        m_demo.run(kProject + "/demo/start",
                   {kProject + "/scripts/private-view", PRIVATE_MARIADB, YAVHOST, MIROVAHR_PLUGIN}),
        m_demo.report().constData());
    const int later = m_demo.output().indexOf("\nLater, HR has changed");
    QVERIFY2(later > 0, m_demo.report().constData());
    m_first = m_demo.output().left(later);
    m_second = m_demo.output().mid(later);
}

void TestDemo::theDemoEndsByItself()
{
    COMPARE_STATUS(m_demo, 0);
    QCOMPARE(m_demo.errors(), QString());
    QVERIFY(m_second.contains("    yavhost: The plugin is unloaded.\n"));
    QVERIFY(m_second.contains("| YAV.MHRWorker.forceSync | 0     |\n"));
}

void TestDemo::brokenLinesAndAnUnknownBranchCauseWarnings()
{
    for (const char *text : {"parts count (17) <> fields count(18) - line skipped!",
                             "parts count (19) <> fields count(18) - line skipped!",
                             "Branch '150' NOT FOUND for employee: '1244.1",
                             "END synchronization #1 (waiting records: 1)"}) {
        QVERIFY2(m_first.contains(text), m_demo.report().constData());
    }
    QVERIFY(m_second.contains("END synchronization #2 (waiting records: 0)"));
    for (const char *surname : {"Malá", "Veľký", "Dlhá"})
        QVERIFY2(!m_demo.output().contains(surname), surname);
}

void TestDemo::addRows(const QVector<QByteArray> &texts)
{
    QTest::addColumn<QByteArray>("text");
    for (const QByteArray &text : texts)
        QTest::newRow(text.constData()) << text;
}

void TestDemo::theFirstSynchronisationShowsEveryKindOfChange_data()
{
    addRows({"\nPeople: ", "| 1241.1 | Katarína Poláková",
             "\nBranches: ", "\nCalendars: ", "\nAttendance: ", "| 2025-03-04, 2025-03-05 |",
             "\nVacation: ", "| 17.50       | -5.00      | 12.50    |",
             "\nSupervisors: ", "no longer gets them", "\nAdministrators of a branch",
             "\nTerminals of a branch", "\nThe terminal queue: ", "\nPayroll: "});
}

void TestDemo::theFirstSynchronisationShowsEveryKindOfChange()
{
    QFETCH(QByteArray, text);
    QVERIFY2(m_first.contains(QString::fromUtf8(text)), m_demo.report().constData());
}

void TestDemo::theSecondSynchronisationShowsWhatHrChanged_data()
{
    addRows({"BEGIN synchronization #2 (force: YES)", "surname \"Nováková\" -> \"Krajčírová\"",
             "state \"rodičovská dovolenka\"", "| leaves ", "| 1245.1 | Filip Dobrovodský",
             "|         150 | Dielňa"});
}

void TestDemo::theSecondSynchronisationShowsWhatHrChanged()
{
    QFETCH(QByteArray, text);
    QVERIFY2(m_second.contains(QString::fromUtf8(text)), m_demo.report().constData());
}

/// Line by line, in the same order.
void TestDemo::theExcerptInTheReadmeIsPrinted()
{
    const QStringList excerpt = Markdown::block("README.md", "An excerpt:").split('\n');
    const QStringList printed = m_demo.output().split('\n');
    QVERIFY(excerpt.size() > 10);
    int at = -1;
    for (const QString &line : excerpt) {
        at = printed.indexOf(line, at + 1);
        QVERIFY2(at >= 0, qPrintable(line));
    }
}

QTEST_GUILESS_MAIN(TestDemo)
#include "tst_demo.moc"
