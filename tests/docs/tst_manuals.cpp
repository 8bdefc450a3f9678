#include "tests/docs/markdown.h"
#include "tests/support/programrun.h"

#include <QRegularExpression>
#include <QTest>

namespace {

QString path(const QString &page)
{
    return QStringLiteral(PROJECT_FOLDER "/docs/man/%1.1").arg(page);
}

/// The page's source, its escapes for hyphens undone.
QString source(const QString &page)
{
    return Markdown::text(QStringLiteral("docs/man/%1.1").arg(page)).replace("\\-", "-");
}

QString helpOf(const QString &program)
{
    ProgramRun help;
    help.run(program, {"--help"});
    return help.output();
}

} // namespace

/// The manual pages of the other programs: that of mirovahrctl has a test of its own.
class TestManuals : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aManualIsWellFormed_data();
    void aManualIsWellFormed();
    void aManualIsShownWithoutWarnings_data();
    void aManualIsShownWithoutWarnings();
    void aManualKnowsEveryOption_data();
    void aManualKnowsEveryOption();
    void theManualOfYavhostKnowsEveryExitStatus();
    void theManualOfTheDemoKnowsItsOption();
};

void TestManuals::aManualIsWellFormed_data()
{
    QTest::addColumn<QString>("page");
    for (const char *page : {"yavhost", "private-mariadb", "mirovahr-demo"})
        QTest::newRow(page) << page;
}

void TestManuals::aManualIsWellFormed()
{
    QFETCH(QString, page);
    ProgramRun lint;
    QVERIFY(lint.run("mandoc", {"-T", "lint", "-W", "style", path(page)}));
    QCOMPARE(lint.output() + lint.errors(), QString());
    COMPARE_STATUS(lint, 0);
}

void TestManuals::aManualIsShownWithoutWarnings_data()
{
    aManualIsWellFormed_data();
}

void TestManuals::aManualIsShownWithoutWarnings()
{
    QFETCH(QString, page);
    ProgramRun man;
    man.setVariable("LC_ALL", "C.UTF-8");
    QVERIFY(man.run("man", {"--warnings", "--local-file", "-Tutf8", path(page)}));
    COMPARE_STATUS(man, 0);
    QCOMPARE(man.errors(), QString());
    QVERIFY(man.output().contains(page.toUpper()));
}

void TestManuals::aManualKnowsEveryOption_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("program");
    QTest::addColumn<int>("options");
    QTest::newRow("yavhost") << "yavhost" << YAVHOST << 14;
    QTest::newRow("private-mariadb") << "private-mariadb" << PRIVATE_MARIADB << 7;
}

void TestManuals::aManualKnowsEveryOption()
{
    QFETCH(QString, page);
    QFETCH(QString, program);
    static const QRegularExpression option("^  (?:-[a-z], )?(--[a-z-]+)",
                                           QRegularExpression::MultilineOption);
    int options = 0;
    auto matches = option.globalMatch(helpOf(program));
    while (matches.hasNext()) {
        const QString name = matches.next().captured(1);
        const QRegularExpression mention(
            QStringLiteral("^\\.(?:BI?R?) [^\\n]*%1($|[ \"])").arg(name),
            QRegularExpression::MultilineOption);
        QVERIFY2(source(page).contains(mention), qPrintable(name));
        ++options;
    }
    QTEST(options, "options");
}

void TestManuals::theManualOfYavhostKnowsEveryExitStatus()
{
    static const QRegularExpression status("^  (\\d)  (.+)$", QRegularExpression::MultilineOption);
    int statuses = 0;
    auto matches = status.globalMatch(helpOf(YAVHOST));
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        const QString entry =
            QStringLiteral(".B %1\n%2\n").arg(match.captured(1), match.captured(2));
        QVERIFY2(source("yavhost").contains(entry), qPrintable(entry));
        ++statuses;
    }
    QCOMPARE(statuses, 8);
}

void TestManuals::theManualOfTheDemoKnowsItsOption()
{
    QVERIFY(Markdown::text("packaging/mirovahr-demo.in").contains("[--full-log | "));
    QVERIFY(source("mirovahr-demo").contains("\n.B --full-log\n"));
}

QTEST_GUILESS_MAIN(TestManuals)
#include "tst_manuals.moc"
