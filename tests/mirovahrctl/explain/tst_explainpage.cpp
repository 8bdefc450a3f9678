#include "tests/mirovahrctl/explain/explainedsite.h"
#include "tests/mirovahrctl/report/browser.h"
#include "tests/mirovahrctl/report/pagepicture.h"
#include "tests/worker/support/sampleexport.h"

#include <QTest>

using namespace PagePicture;

/// The page of explain, as a browser shows it.
class TestExplainPage : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void theBrowserUnderstandsThePage();
    void whatTheExportAndTheDatabaseContainIsNoMarkup();
    void aFindingIsSeenAtOnce();
    void aPersonWhoArrivesIsSeenAtOnce();
    void aPhoneShowsThePageWithoutScrollingSideways();
    void thePageCanBePrinted();

private:
    QString page(const QString &name, const ExportRow &line);

    TestDatabase m_db;
    ExplainedSite m_site{m_db};
    Browser m_browser;
    QString m_fine; ///< path of a page without findings
    QString m_findings; ///< path of a page with findings
};

void TestExplainPage::initTestCase()
{
    QVERIFY2(m_db.start(), qPrintable(m_db.errorString()));
    m_site.unlockAccount();
    m_db.run("UPDATE branches SET name = '<i>Predajňa</i>' WHERE bid = 2");
    m_fine = page("fine.html", SampleExport::jana());
    m_findings = page("findings.html",
                      SampleExport::jana()
                          .with(&ExportRow::prijmeni, "<script>document.title='x'</script>&amp;Ž")
                          .with(&ExportRow::stredisko, 130)
                          .with(&ExportRow::kalendar, 77));
}

QString TestExplainPage::page(const QString &name, const ExportRow &line)
{
    m_site.exportFile().write({line.text()});
    const QString path = m_site.filePath(name);
    m_site.explain("1234.1", {"--html", path});
    return path;
}

void TestExplainPage::theBrowserUnderstandsThePage()
{
    const QString dom = m_browser.dom(m_fine);
    QVERIFY2(dom.contains("<p class=\"verdict fine\">A synchronisation writes the row of "
                          "1234.1.</p>"),
             qPrintable(dom));
    QVERIFY(dom.contains("<h1>What happens to 1234.1</h1>"));
    for (const char *heading :
         {"In short", "Configuration", "Export", "Database", "Does the person work?",
          "Is the person created or updated?", "Is the vacation balance corrected?",
          "Who receives the person's requests?", "Which branch and calendar?",
          "Is attendance calculated again?", "What only the running plugin knows"})
        QCOMPARE(dom.count("<h2>" + QString(heading) + "</h2>"), 1);
    QCOMPARE(dom.count("<tr><td data-label=\"Field\">"), 14);
    QVERIFY(dom.contains("<dt>Person:</dt><dd>updated</dd>"));
}

void TestExplainPage::whatTheExportAndTheDatabaseContainIsNoMarkup()
{
    const QString dom = m_browser.dom(m_findings);
    QVERIFY(dom.contains("1234.1 Jana &lt;script&gt;document.title='x'&lt;/script&gt;&amp;amp;Ž"));
    QVERIFY(dom.contains("The cost centre 130 is branch 2, &lt;i&gt;Predajňa&lt;/i&gt;."));
    QVERIFY(!dom.contains("<script"));
    QVERIFY(!dom.contains("<i>"));
    QVERIFY(dom.contains("<title>What happens to 1234.1</title>"));
}

void TestExplainPage::aFindingIsSeenAtOnce()
{
    const QImage picture = m_browser.picture(m_findings, 1200, 900);
    QCOMPARE(picture.size(), QSize(1200, 900));
    QVERIFY(count(picture, kRed) > 200);
    QCOMPARE(count(picture, kGreen), 0);
}

void TestExplainPage::aPersonWhoArrivesIsSeenAtOnce()
{
    const QImage picture = m_browser.picture(m_fine, 1200, 900);
    QVERIFY(count(picture, kGreen) > 200);
    QCOMPARE(count(picture, kRed), 0);
}

void TestExplainPage::aPhoneShowsThePageWithoutScrollingSideways()
{
    const QImage picture = m_browser.picture(m_findings, 500, 4000);
    QCOMPARE(picture.width(), 500);
    QVERIFY(count(picture, kRed) > 200);
    QVERIFY(isEmptyColumn(picture, 4));
    QVERIFY(isEmptyColumn(picture, 495));
}

void TestExplainPage::thePageCanBePrinted()
{
    const QByteArray pdf = m_browser.print(m_findings);
    QVERIFY(pdf.startsWith("%PDF-"));
    const int sheets = pdf.count("/Type /Page\n");
    QVERIFY2(sheets >= 2 && sheets <= 4, qPrintable(QString::number(sheets)));
}

QTEST_GUILESS_MAIN(TestExplainPage)
#include "tst_explainpage.moc"
