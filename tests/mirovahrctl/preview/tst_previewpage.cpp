#include "tests/mirovahrctl/preview/previewbench.h"
#include "tests/mirovahrctl/program/toolrun.h"
#include "tests/mirovahrctl/report/browser.h"
#include "tests/mirovahrctl/report/pagepicture.h"
#include "tests/support/programrun.h"
#include "tests/worker/support/sampleexport.h"

#include <QTest>

using namespace PagePicture;

namespace {

constexpr int kNewPeople = 1000;
constexpr int kMostPageBytes = 500 * kNewPeople;
constexpr int kMostScreenLines = 40;

/// A new employee with everything that HR writes of most people.
ExportRow newcomer(int number)
{
    return SampleExport::newcomer(number)
        .with(&ExportRow::titul, "Ing.")
        .with(&ExportRow::prijmeni, QStringLiteral("Novomestská-%1").arg(number))
        .with(&ExportRow::telefon, QStringLiteral("+421 905 00%1").arg(number))
        .with(&ExportRow::nadrizenyOsobniCislo, 1002)
        .with(&ExportRow::dovolenaZustatek, "20");
}

QString fileText(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s cannot be read", qPrintable(path));
    return QString::fromUtf8(file.readAll());
}

/// The cards of a page by their headings, and the people of the bookkeeping by their names.
QHash<QString, QString> cardsOf(const QString &page)
{
    QHash<QString, QString> cards;
    const QStringList parts =
        page.section("<section id=\"bookkeeping-people\">", 0, 0).split("<article><h3>").mid(1);
    for (const QString &part : parts)
        cards[part.section("</h3>", 0, 0)] = part.section("</article>", 0, 0);
    const QStringList people = page.section("<section id=\"bookkeeping-people\">", 1)
                                   .section("</section>", 0, 0)
                                   .split("<li>")
                                   .mid(1);
    for (const QString &person : people)
        cards[person.section(": ", 0, 0)] = person.section(": ", 1);
    return cards;
}

/// The differences as the tables for scripts have them, row by row.
QVector<QJsonObject> differencesOf(const ToolRun &run)
{
    QVector<QJsonObject> rows;
    for (const QJsonValue &section : run.json()["sections"].toArray()) {
        for (const QJsonValue &row : section["tables"]["differences"].toArray())
            rows += row.toObject();
    }
    return rows;
}

/// What a card lacks of a difference; empty when it has all of it.
QStringList missingIn(const QString &card, const QJsonObject &difference)
{
    const QString what = difference["what"].toString();
    // The heading is the new person's payroll id and name.
    const bool isHeading = QStringList({"payroll id", "first name", "surname"}).contains(what)
        && difference["before"].toString().isEmpty();
    QStringList wanted = isHeading ? QStringList() : what.toHtmlEscaped().split(' ');
    // "active: yes" is said by "active".
    for (const char *side : {"before", "after"}) {
        const QString value = difference[QLatin1String(side)].toString();
        if (!value.isEmpty() && value != "yes")
            wanted += value.toHtmlEscaped();
    }
    QStringList missing;
    for (const QString &text : qAsConst(wanted)) {
        if (!card.contains(text))
            missing += text;
    }
    return missing;
}

} // namespace

/// The report of preview: its page in a browser, and its text on a screen.
class TestPreviewPage : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();

    void aFirstLoadFitsAPageAndAScreen();
    void everyDifferenceIsReachableOnThePage();
    void peopleInWhomHrRecognisesNothingAreNotChanged();
    void theSummaryHasNoPeople();
    void onePersonIsShownAlone_data();
    void onePersonIsShownAlone();
    void aPersonWhomNothingConcernsIsSaidToStay();
    void aPersonWhomNobodyKnowsIsRefused();
    void theDetailsAreShownOnRequest();
    void nothingThatChangesNothingHasAHeading();
    void whatTheExportContainsIsNoMarkup();
    void thePageCanBeReadOnAPhoneAndOnPaper();

private:
    QStringList arguments(const QStringList &more = {});
    static QJsonObject factsOf(const ToolRun &run) { return run.json()["facts"].toObject(); }
    /// The report as text, in lines of 100 characters.
    QStringList textOf(const QStringList &more = {});
    QString path(const QString &name) const { return m_bench.filePath(name); }

    PreviewBench m_bench;
    Browser m_browser;
};

void TestPreviewPage::initTestCase()
{
    QVERIFY2(m_bench.start(), qPrintable(m_bench.site().errorString()));
}

void TestPreviewPage::init()
{
    m_bench.site().reset();
    m_bench.writeIni();
}

QStringList TestPreviewPage::arguments(const QStringList &more)
{
    return QStringList{"preview", m_bench.exportFile().path()} + m_bench.arguments() + more;
}

QStringList TestPreviewPage::textOf(const QStringList &more)
{
    ProgramRun program;
    program.run(MIROVAHRCTL, arguments(more));
    return program.output().split('\n');
}

void TestPreviewPage::aFirstLoadFitsAPageAndAScreen()
{
    QVector<ExportRow> people;
    for (int i = 0; i < kNewPeople; ++i)
        people += newcomer(3000 + i);
    m_bench.writeExport(people);
    const QStringList lines = textOf({"--html", path("load.html")});
    const QByteArray text = lines.join('\n').toUtf8();
    QVERIFY2(lines.contains("A synchronisation would create 1000 people."), text.constData());
    QVERIFY2(text.contains("\nNew people: 1000; "), text.constData());
    QVERIFY2(lines.indexOf(QRegularExpression("^… and 9\\d\\d more: .*--html.*--person.*")) > 0,
             text.constData());
    qInfo("%d lines of text", lines.size());
    QVERIFY2(lines.size() <= kMostScreenLines, text.constData());

    const qint64 bytes = QFileInfo(path("load.html")).size();
    qInfo("%d new people: a page of %lld bytes", kNewPeople, bytes);
    QVERIFY(bytes > 0 && bytes < kMostPageBytes);
    const QString page = fileText(path("load.html"));
    QVERIFY(page.contains("<h3>Each of these 1000 people</h3>\n<ul><li>settings of the payroll "
                          "export: 1<li>joins the branch Sklad<li>"));
    const QHash<QString, QString> cards = cardsOf(page);
    for (int i = 0; i < kNewPeople; ++i)
        QVERIFY(cards.contains(QStringLiteral("%1.1 Eva Novomestská-%1").arg(3000 + i)));
}

void TestPreviewPage::everyDifferenceIsReachableOnThePage()
{
    m_bench.site().run("CREATE TABLE trail (uid INT UNSIGNED PRIMARY KEY, note TEXT)");
    m_bench.site().run("CREATE TRIGGER t AFTER UPDATE ON people FOR EACH ROW BEGIN "
                       "REPLACE INTO trail VALUES (NEW.uid, '<changed>'); "
                       "DELETE FROM people_term WHERE uid = 1; "
                       "UPDATE branches SET note = 'x' WHERE bid = 1; END");
    m_bench.site().run("DELETE FROM vars WHERE name LIKE '%forceSync'");
    m_bench.writeExport({newcomer(3901), newcomer(3902).with(&ExportRow::stredisko, 130),
                         SampleExport::jana().with(&ExportRow::prijmeni, "O''Malá"),
                         SampleExport::jan()
                             .with(&ExportRow::kalendar, 3)
                             .with(&ExportRow::nadrizenyOsobniCislo, 1002)
                             .with(&ExportRow::kalendarPlatnostOd, QDate(2025, 2, 1)),
                         SampleExport::peter().with(&ExportRow::stredisko, 120),
                         SampleExport::maria().with(&ExportRow::dovolenaZustatek, "22.25"),
                         SampleExport::tomas()});
    QStringList asRoot = m_bench.arguments("root");
    asRoot += {"--json", "--html", path("all.html")};
    const ToolRun tool = runTool(QStringList{"preview", m_bench.exportFile().path()} + asRoot);
    const QVector<QJsonObject> differences = differencesOf(tool);
    QVERIFY2(differences.size() > 60, tool.report().constData());
    const QHash<QString, QString> cards = cardsOf(fileText(path("all.html")));
    for (const QJsonObject &difference : differences) {
        const QString who = difference["who"].toString().toHtmlEscaped();
        QVERIFY2(cards.contains(who), qPrintable(who));
        QVERIFY2(missingIn(cards[who], difference).isEmpty(),
                 qPrintable(who + ": " + missingIn(cards[who], difference).join(" | ") + "\n"
                            + cards[who]));
    }
}

void TestPreviewPage::peopleInWhomHrRecognisesNothingAreNotChanged()
{
    m_bench.writeExport(
        {SampleExport::tomas(), SampleExport::maria().with(&ExportRow::dovolenaZustatek, "22.25")});
    const ToolRun tool = runTool(arguments({"--json", "--html", path("stamp.html")}));
    const QJsonObject facts = factsOf(tool);
    QCOMPARE(facts["changed-people"].toInt(), 1);
    QCOMPARE(facts["bookkeeping-people"].toInt(), 1);
    QCOMPARE(facts["new-people"].toInt(), 0);
    QCOMPARE(tool.json()["verdict"].toString(),
             QString("A synchronisation would change 1 person."));
    const QHash<QString, QString> cards = cardsOf(fileText(path("stamp.html")));
    QVERIFY(cards["2001.2 Tomáš Baláž"].contains("last changed"));
    QVERIFY(cards["1001.1 Mária Kováčová"].contains("<li>vacation balance"));

    m_bench.writeExport({SampleExport::tomas()});
    const QString nobody = textOf().join('\n');
    QVERIFY2(nobody.contains("A synchronisation would change nobody, only 1 row besides."),
             qPrintable(nobody));
    QVERIFY2(!nobody.contains("Tomáš"), qPrintable(nobody));
}

void TestPreviewPage::theSummaryHasNoPeople()
{
    m_bench.writeExport({SampleExport::jana().with(&ExportRow::prijmeni, "Malá")});
    const ToolRun tool = runTool(arguments({"--summary", "--json", "--html", path("short.html")}));
    COMPARE_EXIT(tool, ExitStatus::Fine);
    QCOMPARE(factsOf(tool)["changed-people"].toInt(), 1);
    QCOMPARE(differencesOf(tool).size(), 0);
    QVERIFY(!tool.findingsOf("triggers-hidden").isEmpty());
    QVERIFY(!fileText(path("short.html")).contains("<article>"));
    QVERIFY(!textOf({"--summary"}).join('\n').contains("Malá"));
}

void TestPreviewPage::onePersonIsShownAlone_data()
{
    QTest::addColumn<QString>("id");
    QTest::newRow("by the payroll id") << "1234.1";
    QTest::newRow("by the personal number") << "1234";
    QTest::newRow("by the pid") << "12341";
}

void TestPreviewPage::onePersonIsShownAlone()
{
    QFETCH(QString, id);
    m_bench.writeExport({SampleExport::jana().with(&ExportRow::prijmeni, "Malá"), newcomer(3901)});
    const ToolRun tool = runTool(arguments({"--person", id, "--json"}));
    QCOMPARE(factsOf(tool)["changed-people"].toInt(), 1);
    QCOMPARE(factsOf(tool)["new-people"].toInt(), 0);
    const QVector<QJsonObject> differences = differencesOf(tool);
    QVERIFY(!differences.isEmpty());
    for (const QJsonObject &difference : differences)
        QCOMPARE(difference["who"].toString(), QString("1234.1 Jana Malá"));
}

void TestPreviewPage::aPersonWhomNothingConcernsIsSaidToStay()
{
    m_bench.writeExport({newcomer(3901)});
    const ToolRun tool = runTool(arguments({"--person", "1234.1", "--json"}));
    QCOMPARE(tool.json()["verdict"].toString(), QString("A synchronisation would change nothing."));
    QCOMPARE(differencesOf(tool).size(), 0);
}

void TestPreviewPage::aPersonWhomNobodyKnowsIsRefused()
{
    m_bench.writeExport({newcomer(3901)});
    const ToolRun tool = runTool(arguments({"--person", "77"}));
    COMPARE_EXIT(tool, ExitStatus::Usage);
    QCOMPARE(tool.err,
             QString("mirovahrctl: preview: Neither the database nor the export has a person "
                     "'77'.\n"));
    QCOMPARE(tool.out, QString());
}

void TestPreviewPage::theDetailsAreShownOnRequest()
{
    m_bench.writeExport({newcomer(3901), newcomer(3902), newcomer(3903), newcomer(3904)});
    const QString brief = textOf().join('\n');
    QVERIFY2(brief.contains("… and ") && !brief.contains("pid: "), qPrintable(brief));
    const QString all = textOf({"--details"}).join('\n');
    QVERIFY2(!all.contains("… and "), qPrintable(all));
    QCOMPARE(all.count("pid: "), 4);
    QVERIFY(all.contains("has to fetch: nothing → people"));
}

void TestPreviewPage::nothingThatChangesNothingHasAHeading()
{
    m_bench.exportFile().writeBytes("\n");
    const QStringList lines = textOf({"--html", path("nothing.html")});
    QVERIFY(lines.contains("A synchronisation would change nothing."));
    QCOMPARE(lines.filter(QRegularExpression("^-+$")).size(), 2); // findings and limits
    QCOMPARE(fileText(path("nothing.html")).count("<h2>"), 2);
}

void TestPreviewPage::whatTheExportContainsIsNoMarkup()
{
    m_bench.writeExport({SampleExport::jana()
                             .with(&ExportRow::prijmeni, "<script>x</script>&amp;")
                             .with(&ExportRow::telefon, "<b>1</b>")});
    runTool(arguments({"--html", path("markup.html")}));
    const QString dom = m_browser.dom(path("markup.html"));
    QVERIFY2(dom.contains("<h3>1234.1 Jana &lt;script&gt;x&lt;/script&gt;&amp;amp;</h3>"),
             qPrintable(dom));
    QVERIFY(!dom.contains("<script"));
    QVERIFY(!dom.contains("<b>"));
}

void TestPreviewPage::thePageCanBeReadOnAPhoneAndOnPaper()
{
    QVector<ExportRow> people;
    for (int i = 0; i < 30; ++i)
        people += newcomer(3000 + i);
    m_bench.writeExport(people);
    runTool(arguments({"--html", path("people.html")}));
    QCOMPARE(m_browser.dom(path("people.html")).count("<details><summary>"), 32);
    const QImage phone = m_browser.picture(path("people.html"), 500, 2500);
    QVERIFY(isEmptyColumn(phone, 4));
    QVERIFY(isEmptyColumn(phone, 495));
    const QByteArray pdf = m_browser.print(path("people.html"));
    const int sheets = pdf.count("/Type /Page\n");
    QVERIFY2(sheets >= 3 && sheets <= 10, qPrintable(QString::number(sheets)));
}

QTEST_GUILESS_MAIN(TestPreviewPage)
#include "tst_previewpage.moc"
