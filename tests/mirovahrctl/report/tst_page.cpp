#include "tests/mirovahrctl/program/toolrun.h"
#include "tests/mirovahrctl/report/browser.h"
#include "tests/mirovahrctl/report/pagepicture.h"
#include "tests/support/exportfile.h"

#include <QTemporaryDir>
#include <QTest>

using namespace PagePicture;

/// The page for HR, as a browser shows it.
class TestPage : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void theBrowserUnderstandsThePage();
    void whatAnExportContainsIsNoMarkup();
    void aFindingIsSeenAtOnce();
    void aGoodExportIsSeenAtOnce();
    void aPhoneShowsCardsWithoutScrollingSideways_data();
    void aPhoneShowsCardsWithoutScrollingSideways();
    void aWindowShowsTheWholeTable_data();
    void aWindowShowsTheWholeTable();
    void thePageCanBePrinted();

private:
    static void addLanguages();
    QString page(const QByteArray &exportContent, const QString &language = "en");

    QTemporaryDir m_dir;
    Browser m_browser;
    QByteArray m_export; ///< an export with mistakes
    QString m_findings; ///< path of a page with findings
    QString m_fine; ///< path of a page without
};

void TestPage::initTestCase()
{
    const QByteArray good = ExportRow().text().toUtf8() + '\n';
    const QByteArray bad =
        ExportRow()
            .with(&ExportRow::prijmeni, "<script>document.title='x'</script>&amp;<b>Ž</b>")
            .with(&ExportRow::titul, QString(58, 'w') + "%1")
            .with(&ExportRow::osobniCislo, "77")
            .with(&ExportRow::dovolenaZustatek, "12,5")
            .text()
            .toUtf8()
        + '\n';
    m_fine = page(good);
    m_export = good + bad + "broken\n";
    m_findings = page(m_export);
}

void TestPage::addLanguages()
{
    QTest::addColumn<QString>("language");
    for (const char *const language : {"cs", "en", "sk"})
        QTest::newRow(language) << language;
}

QString TestPage::page(const QByteArray &exportContent, const QString &language)
{
    ExportFile file;
    file.writeBytes(exportContent);
    const QString path =
        m_dir.filePath(QString("%1-%2.html").arg(exportContent.size()).arg(language));
    runTool({"check-file", file.path(), "--html", path, "--language", language});
    return path;
}

void TestPage::theBrowserUnderstandsThePage()
{
    const QString dom = m_browser.dom(m_findings);
    QVERIFY2(dom.contains("<p class=\"verdict findings\">The export has 2 lines with errors; the "
                          "plugin drops 1 of them.</p>"),
             qPrintable(dom));
    QCOMPARE(dom.count("<table class=\"findings\">"), 1);
    QCOMPARE(dom.count("<tr><td data-label=\"Line\">"), 4);
    QVERIFY(dom.contains("<dt>Dropped by the plugin:</dt><dd>1</dd>"));
}

void TestPage::whatAnExportContainsIsNoMarkup()
{
    const QString dom = m_browser.dom(m_findings);
    QVERIFY(dom.contains("77.1 Jana &lt;script&gt;document.title='x'&lt;/script&gt;&amp;amp;"
                         "&lt;b&gt;Ž&lt;/b&gt;"));
    QVERIFY(!dom.contains("<script"));
    QVERIFY(dom.contains("<title>HR export "));
}

void TestPage::aFindingIsSeenAtOnce()
{
    const QImage picture = m_browser.picture(m_findings, 1200, 900);
    QCOMPARE(picture.size(), QSize(1200, 900));
    QVERIFY(count(picture, kRed) > 200);
    QCOMPARE(count(picture, kGreen), 0);
    QVERIFY(count(picture, kTableHead) > 10000);
}

void TestPage::aGoodExportIsSeenAtOnce()
{
    const QImage picture = m_browser.picture(m_fine, 1200, 900);
    QVERIFY(count(picture, kGreen) > 200);
    QCOMPARE(count(picture, kRed), 0);
}

void TestPage::aPhoneShowsCardsWithoutScrollingSideways_data()
{
    addLanguages();
}

void TestPage::aPhoneShowsCardsWithoutScrollingSideways()
{
    QFETCH(QString, language);
    const QImage picture = m_browser.picture(page(m_export, language), 500, 1800);
    QCOMPARE(picture.width(), 500);
    // No table head, and nothing in the margins.
    QCOMPARE(count(picture, kTableHead), 0);
    QVERIFY(count(picture, kRed) > 200);
    QVERIFY(isEmptyColumn(picture, 4));
    QVERIFY(isEmptyColumn(picture, 495));
}

void TestPage::aWindowShowsTheWholeTable_data()
{
    addLanguages();
}

void TestPage::aWindowShowsTheWholeTable()
{
    QFETCH(QString, language);
    const QImage picture = m_browser.picture(page(m_export, language), 900, 1800);
    QVERIFY(count(picture, kTableHead) > 10000);
    QVERIFY(isEmptyColumn(picture, 4));
    QVERIFY(isEmptyColumn(picture, 895));
}

void TestPage::thePageCanBePrinted()
{
    const auto sheets = [this](const QString &path) {
        const QByteArray pdf = m_browser.print(path);
        return pdf.startsWith("%PDF-") ? pdf.count("/Type /Page\n") : 0;
    };
    QCOMPARE(sheets(m_fine), 1);
    QVERIFY(sheets(page(QByteArray("broken\n").repeated(200))) > 5);
}

QTEST_GUILESS_MAIN(TestPage)
#include "tst_page.moc"
