#include "mirovahrctl/program/commandline.h"
#include "mirovahrctl/program/console.h"
#include "mirovahrctl/program/report.h"
#include "mirovahrctl/report/finding.h"
#include "mirovahrctl/report/htmlreport.h"
#include "mirovahrctl/report/jsonreport.h"
#include "mirovahrctl/report/textlayout.h"
#include "mirovahrctl/report/textreport.h"
#include "mirovahrctl/report/wording.h"

#include <QBuffer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <functional>

namespace {

Finding finding(const char *message)
{
    Finding finding;
    finding.severity = Severity::Error;
    finding.rule = "rule-id";
    finding.message = message;
    return finding;
}

Table table()
{
    return {"people",
            {{"pid", "Number"}, {"name", "Name"}},
            {{12341, "Nováková"}, {QVariant(), "<b>&\"x\""}}};
}

template <typename Writer, typename... Arguments>
QByteArray written(const std::function<void(ReportWriter &)> &write, Arguments... arguments)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    Writer writer(buffer, arguments...);
    writer.begin("preview", "A <title>");
    write(writer);
    writer.end(ExitStatus::Findings, "Done & dusted.");
    return buffer.data();
}

void everything(ReportWriter &report)
{
    report.section("first", "First section");
    report.sentence("A sentence with <tags> & \x1b[31mcolours.");
    report.table(table());
    report.section("second", "Second section");
    Finding full = finding("Wrong.");
    full.advice = "Do better.";
    full.line = 12;
    full.field = "Titul";
    full.subject = "1.1 Ján";
    full.forHr = true;
    full.dropped = true;
    report.finding(full);
    report.finding(finding("Bare."));
    report.sentence("Between the findings.");
    report.finding(finding("Last."));
    report.fact("lines", "Lines", 1200);
}

} // namespace

/// The three forms of a report.
class TestReports : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theTextForm();
    void theColouredTextForm();
    void aGoodVerdictIsGreen();
    void anAnswerIsBold();
    void coloursTakeNoRoom();
    void longTextIsBrokenAtBlanks();
    void aWideTableIsNarrowed();
    void aTableThatFitsIsLeftAlone();
    void theJsonForm();
    void theJsonFormWithoutAnything();
    void aFlagIsAWordForPeopleOnly();
    void aFailureEndsTheJsonObject_data();
    void aFailureEndsTheJsonObject();
    void aPageThatCannotBeWrittenIsAFailureInJson();
    void thePageHoldsEverythingEscaped();
    void thePageLeavesOutColumnsWithoutContent();
    void thePageNeedsNothingButItself();
    void thePageShowsTheFirstFindingsOnly();
    void aSectionWithoutContentHasNoHeading();
    void aVerdictThatComesFirstIsNotRepeated();
    void anAnswerStandsAboveTheFactsOfASection();
    void aCardIsASentenceInTextAndAListOnThePage();
    void anAbbreviatedTextSaysHowMuchMoreThereIs();
    void whatIsForScriptsIsInTheJsonFormOnly();
    void textIsMadeVisible_data();
    void textIsMadeVisible();
    void longTextIsCutWhenQuoted();
};

void TestReports::theTextForm()
{
    QCOMPARE(QString::fromUtf8(written<TextReport>(everything, 100)),
             QString("A <title>\n"
                     "=========\n"
                     "\n"
                     "First section\n"
                     "-------------\n"
                     "A sentence with <tags> & \\x1b[31mcolours.\n"
                     "Number  Name\n"
                     "------  --------\n"
                     "12341   Nováková\n"
                     "        <b>&\"x\"\n"
                     "\n"
                     "Second section\n"
                     "--------------\n"
                     "line 12, Titul (1.1 Ján): error: Wrong. [rule-id]\n"
                     "    Tell HR: Do better.\n"
                     "error: Bare. [rule-id]\n"
                     "Between the findings.\n"
                     "error: Last. [rule-id]\n"
                     "Lines: 1200\n"
                     "\n"
                     "Done & dusted.\n"));
}

void TestReports::theColouredTextForm()
{
    const auto severities = [](ReportWriter &report) {
        report.section("first", "First section");
        report.sentence("A sentence with \x1b[31mcolours.");
        for (const Severity severity : {Severity::Note, Severity::Warning, Severity::Error}) {
            Finding one = finding("A message.");
            one.severity = severity;
            one.line = 12;
            report.finding(one);
        }
    };
    QCOMPARE(QString::fromUtf8(written<TextReport>(severities, 100, true)),
             QString("\x1b[1mA <title>\x1b[0m\n"
                     "=========\n"
                     "\n"
                     "\x1b[1mFirst section\x1b[0m\n"
                     "-------------\n"
                     "A sentence with \\x1b[31mcolours.\n"
                     "line 12: note: A message. [rule-id]\n"
                     "line 12: \x1b[33mwarning\x1b[0m: A message. [rule-id]\n"
                     "line 12: \x1b[31merror\x1b[0m: A message. [rule-id]\n"
                     "\n"
                     "\x1b[31mDone & dusted.\x1b[0m\n"));
}

void TestReports::aGoodVerdictIsGreen()
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    TextReport report(buffer, 100, true);
    report.end(ExitStatus::Fine, "All is well.");
    QCOMPARE(buffer.data(), QByteArray("\n\x1b[32mAll is well.\x1b[0m\n"));
}

void TestReports::anAnswerIsBold()
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    TextReport report(buffer, 20, true);
    report.answer("The person has arrived.");
    report.end(ExitStatus::Fine, "The person has arrived.");
    QCOMPARE(buffer.data(), QByteArray("\n\x1b[1mThe person has\x1b[0m\n\x1b[1marrived.\x1b[0m\n"));
}

void TestReports::coloursTakeNoRoom()
{
    static const QRegularExpression sequence("\x1b\\[[0-9]*m");
    const auto wordy = [](ReportWriter &report) {
        report.section("first", "A section with a heading of more than one line");
        Finding one = finding("A message of some words, which is broken somewhere.");
        one.subject = "1234.1 Jana Nováková";
        for (int line = 1; line < 100000; line *= 10) {
            one.line = line;
            report.finding(one);
        }
    };
    for (int columns = 10; columns < 90; ++columns) {
        const QString plain = QString::fromUtf8(written<TextReport>(wordy, columns));
        const QString coloured = QString::fromUtf8(written<TextReport>(wordy, columns, true));
        QVERIFY(coloured != plain);
        QCOMPARE(QString(coloured).remove(sequence), plain);
    }
}

void TestReports::longTextIsBrokenAtBlanks()
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    TextReport report(buffer, 40);
    report.begin("check-config", "Configuration /etc/yav/a/long/name/of/an.ini");
    report.section("one", "One");
    report.sentence("A sentence with more than forty characters in it.");
    Finding wordy = finding("A message that has more characters than forty.");
    wordy.advice = "An advice that is as long as the message above it.";
    wordy.forHr = true;
    report.finding(wordy);
    report.fact("path", "Where", "/a/path/that/is/longer/than/forty/characters");
    report.end(ExitStatus::Findings, "A verdict of more than forty characters, too.");
    QCOMPARE(QString::fromUtf8(buffer.data()),
             QString("Configuration\n"
                     "/etc/yav/a/long/name/of/an.ini\n"
                     "==============================\n"
                     "\n"
                     "One\n"
                     "---\n"
                     "A sentence with more than forty\n"
                     "characters in it.\n"
                     "error: A message that has more\n"
                     "  characters than forty. [rule-id]\n"
                     "    Tell HR: An advice that is as long\n"
                     "    as the message above it.\n"
                     "Where:\n"
                     "    /a/path/that/is/longer/than/forty/characters\n"
                     "\n"
                     "A verdict of more than forty characters,\n"
                     "too.\n"));
}

void TestReports::aWideTableIsNarrowed()
{
    const QStringList lines = TextLayout::table(
        {"Key", "Value", "Meaning"},
        {{"a", "/a/path/of/more/than/a/line", "one two three four five six"}, {"b", "", "seven"}},
        36);
    QCOMPARE(lines,
             QStringList({"Key  Value           Meaning", "---  --------------  ---------------",
                          "a    /a/path/of/mor  one two three",
                          "     e/than/a/line   four five six", "b                    seven"}));
}

void TestReports::aTableThatFitsIsLeftAlone()
{
    QCOMPARE(TextLayout::table({"Key", "Value"}, {{"a b", "c"}}, 10),
             QStringList({"Key  Value", "---  -----", "a b  c"}));
}

void TestReports::theJsonForm()
{
    const QJsonObject json = QJsonDocument::fromJson(written<JsonReport>(everything)).object();
    const QJsonObject expected =
        QJsonDocument::fromJson(
            R"({"mirovahrctl": "1.5.3", "subcommand": "preview", "title": "A <title>",
            "findings": [
                {"severity": "error", "rule": "rule-id", "message": "Wrong.", "line": 12,
                 "advice": "Do better.", "field": "Titul", "subject": "1.1 Ján", "forHr": true, "dropped": true},
                {"severity": "error", "rule": "rule-id", "message": "Bare."},
                {"severity": "error", "rule": "rule-id", "message": "Last."}],
            "sections": [
                {"id": "first", "heading": "First section",
                 "sentences": ["A sentence with <tags> & \u001b[31mcolours."],
                 "tables": {"people": [{"pid": 12341, "name": "Nováková"},
                                       {"pid": null, "name": "<b>&\"x\""}]}},
                {"id": "second", "heading": "Second section",
                 "sentences": ["Between the findings."], "tables": {}}],
            "facts": {"lines": 1200}, "status": 1, "result": "findings",
            "verdict": "Done & dusted."})")
            .object();
    QVERIFY(!expected.isEmpty());
    QCOMPARE(json, expected);
}

void TestReports::theJsonFormWithoutAnything()
{
    const QJsonObject json =
        QJsonDocument::fromJson(written<JsonReport>([](ReportWriter &) {})).object();
    QCOMPARE(json["findings"].toArray().size(), 0);
    QCOMPARE(json["sections"].toArray().size(), 0);
    QCOMPARE(json["facts"].toObject().size(), 0);
    QCOMPARE(json["verdict"].toString(), QString("Done & dusted."));
}

void TestReports::aFlagIsAWordForPeopleOnly()
{
    const auto flags = [](ReportWriter &report) {
        report.section("one", "One");
        report.table({"t", {{"on", "On"}}, {{true}, {false}}});
        report.fact("yes", "Yes", true);
        report.fact("no", "No", false);
    };
    const QByteArray text = written<TextReport>(flags, 100);
    QVERIFY(text.contains("On\n---\nyes\nno\nYes: yes\nNo: no\n"));
    const QByteArray page = written<HtmlReport>(flags);
    QVERIFY(page.contains("<dt>Yes:</dt><dd>yes</dd>"));
    QVERIFY(page.contains("<td data-label=\"On\">no</td>"));
    const QJsonObject json = QJsonDocument::fromJson(written<JsonReport>(flags)).object();
    QCOMPARE(json["facts"].toObject(), QJsonObject({{"yes", true}, {"no", false}}));
    QCOMPARE(json["sections"].toArray().first()["tables"]["t"],
             QJsonValue(QJsonArray{QJsonObject{{"on", true}}, QJsonObject{{"on", false}}}));
}

void TestReports::aFailureEndsTheJsonObject_data()
{
    QTest::addColumn<bool>("begun");
    QTest::addColumn<bool>("ended");
    QTest::newRow("before anything was written") << false << false;
    QTest::newRow("in the middle") << true << false;
    QTest::newRow("when all is written") << true << true;
}

void TestReports::aFailureEndsTheJsonObject()
{
    QFETCH(bool, begun);
    QFETCH(bool, ended);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    JsonReport report(buffer);
    if (begun) {
        report.begin("check-db", "Title");
        report.section("one", "One");
        report.finding(finding("Wrong."));
    }
    if (ended)
        report.end(ExitStatus::Fine, "Done.");
    report.fail("check-db", ExitStatus::NoDatabase, "The server has gone");

    QJsonParseError error;
    const QJsonObject json = QJsonDocument::fromJson(buffer.data(), &error).object();
    QVERIFY2(error.error == QJsonParseError::NoError, buffer.data().constData());
    QCOMPARE(json["subcommand"].toString(), QString("check-db"));
    QCOMPARE(json["findings"].toArray().size(), begun ? 1 : 0);
    QCOMPARE(json["error"].toString(), ended ? QString() : QString("The server has gone"));
    QCOMPARE(json["verdict"].toString(), ended ? QString("Done.") : QString());
    QCOMPARE(json["status"].toInt(), ended ? 0 : 3);
    QCOMPARE(json["result"].toString(), QString(ended ? "fine" : "no-database"));
}

void TestReports::aPageThatCannotBeWrittenIsAFailureInJson()
{
    QTemporaryDir folder;
    QBuffer out;
    QBuffer err;
    out.open(QIODevice::WriteOnly);
    err.open(QIODevice::WriteOnly);
    Console console(out, err);
    CommandLine line("preview", "Does something.");
    line.addReportOptions(CommandLine::Page::Offered);
    const QStringList arguments{"--json", "--html", folder.filePath("page.html")};
    const ExitStatus status = Report::run(line, arguments, console, [&](Report &report) {
        report.begin("preview", "Title");
        folder.remove();
        return report.conclude(ExitStatus::Fine, "Done.");
    });
    QCOMPARE(status, ExitStatus::Usage);

    const QJsonObject json = QJsonDocument::fromJson(out.data()).object();
    QVERIFY2(json["error"].toString().startsWith("'"), out.data().constData());
    QCOMPARE(json["status"].toInt(), 2);
    QVERIFY(err.data().startsWith("mirovahrctl: preview: '"));
}

void TestReports::thePageHoldsEverythingEscaped()
{
    const QString page = QString::fromUtf8(written<HtmlReport>(everything));
    QVERIFY(page.startsWith("<!DOCTYPE html>\n<html lang=\"en\">\n"));
    for (const char *part :
         {"<meta charset=\"utf-8\">", "<title>A &lt;title&gt;</title>", "<h1>A &lt;title&gt;</h1>",
          "<p class=\"verdict findings\">Done &amp; dusted.</p>", "<dt>Lines:</dt><dd>1200</dd>",
          "<section id=\"first\">\n<h2>First section</h2>",
          "<p>A sentence with &lt;tags&gt; &amp; \\x1b[31mcolours.</p>",
          "<th>Number</th><th>Name</th>",
          "<td data-label=\"Number\"></td><td data-label=\"Name\">&lt;b&gt;&amp;&quot;x&quot;</td>",
          "<td data-label=\"Line\">12</td>", "<td data-label=\"Who\" class=\"who\">1.1 Ján</td>",
          "<td data-label=\"Field\">Titul</td>", "<span class=\"error\">dropped</span>",
          "Wrong.<p class=\"advice\">Do better.</p>", "<span class=\"error\">error</span>"}) {
        QVERIFY2(page.contains(part), part);
    }
    QCOMPARE(page.count("<table"), page.count("</table>"));
    QCOMPARE(page.count("<table class=\"findings\">"), 2);
    QCOMPARE(page.count("<section"), page.count("</section>"));
    QVERIFY(page.indexOf("Done &amp; dusted.") < page.indexOf("First section"));
}

void TestReports::thePageLeavesOutColumnsWithoutContent()
{
    const auto headings = [](const std::function<void(ReportWriter &)> &write) {
        static const QRegularExpression heading("<th[^>]*>([^<]*)</th>");
        QStringList texts;
        auto all = heading.globalMatch(QString::fromUtf8(written<HtmlReport>(write)));
        while (all.hasNext())
            texts << all.next().captured(1);
        return texts;
    };
    Finding ofLine = finding("Wrong.");
    ofLine.line = 12;
    Finding ofPerson = finding("Wrong.");
    ofPerson.subject = "1.1 Ján";
    QCOMPARE(headings([](ReportWriter &report) { report.finding(finding("Bare.")); }),
             QStringList({"Result", "What is wrong"}));
    QCOMPARE(headings([&](ReportWriter &report) {
                 report.finding(finding("Bare."));
                 report.finding(ofLine);
                 report.finding(ofPerson);
             }),
             QStringList({"Line", "Who", "Result", "What is wrong"}));
    // A table of its own for each section.
    QCOMPARE(headings([&](ReportWriter &report) {
                 report.section("first", "First section");
                 report.finding(ofLine);
                 report.section("second", "Second section");
                 report.finding(ofPerson);
             }),
             QStringList({"Line", "Result", "What is wrong", "Who", "Result", "What is wrong"}));
}

void TestReports::thePageNeedsNothingButItself()
{
    const QString page = QString::fromUtf8(written<HtmlReport>(everything));
    QVERIFY(page.contains("content=\"default-src 'none'; style-src 'unsafe-inline'\""));
    for (const char *part :
         {"http:", "https:", "<script", "<link", "<img", "url(", "@import", "src="})
        QVERIFY2(!page.contains(part), part);
}

void TestReports::thePageShowsTheFirstFindingsOnly()
{
    const auto findings = [](int count) {
        return QString::fromUtf8(written<HtmlReport>([count](ReportWriter &report) {
            report.section("findings", "Findings");
            for (int i = 0; i < count; ++i)
                report.finding(finding("Wrong."));
            report.section("next", "Next");
            report.sentence("More.");
        }));
    };
    QCOMPARE(findings(1000).count(">Wrong.<"), 1000);
    QVERIFY(!findings(1000).contains("not shown"));
    const QString page = findings(1001);
    QCOMPARE(page.count(">Wrong.<"), 1000);
    QVERIFY(page.contains("<p>Not shown on this page: 1 more finding.</p>"));
    QVERIFY(findings(1003).contains("<p>Not shown on this page: 3 more findings.</p>"));
    QVERIFY(page.contains("<h2>Next</h2>"));
}

void TestReports::aSectionWithoutContentHasNoHeading()
{
    const auto write = [](ReportWriter &report) {
        report.section("empty", "Empty");
        report.data(table());
        report.datum("none", 0);
        report.section("full", "Full");
        report.sentence("Something.");
        report.section("last", "Last");
    };
    QCOMPARE(QString::fromUtf8(written<TextReport>(write, 100)),
             QString("A <title>\n=========\n\nFull\n----\nSomething.\n\nDone & dusted.\n"));
    const QString page = QString::fromUtf8(written<HtmlReport>(write));
    QCOMPARE(page.count("<h2>"), 1);
    QCOMPARE(page.count("<section"), 1);
    QCOMPARE(page.count("</section>"), 1);
}

void TestReports::aVerdictThatComesFirstIsNotRepeated()
{
    const QString text = QString::fromUtf8(written<TextReport>(
        [](ReportWriter &report) {
            report.answer("Done & dusted.");
            report.section("one", "One");
            report.sentence("Why.");
        },
        100));
    QCOMPARE(text, QString("A <title>\n=========\n\nDone & dusted.\n\nOne\n---\nWhy.\n"));
}

void TestReports::anAnswerStandsAboveTheFactsOfASection()
{
    const QString page = QString::fromUtf8(written<HtmlReport>([](ReportWriter &report) {
        report.answer("Done & dusted.");
        report.fact("total", "Total", 7);
        report.section("one", "One");
        report.sentence("Why.");
        report.section("two", "Two");
        report.fact("lines", "Lines", 3);
        report.fact("people", "People", 4);
    }));
    QVERIFY2(page.contains("<dl>\n<div><dt>Total:</dt><dd>7</dd></div>\n</dl>\n</header>"),
             qPrintable(page));
    QVERIFY2(page.contains("<h2>Two</h2>\n<dl>\n<div><dt>Lines:</dt><dd>3</dd></div>\n<div><dt>"
                           "People:</dt><dd>4</dd></div>\n</dl>\n</section>"),
             qPrintable(page));
}

void TestReports::aCardIsASentenceInTextAndAListOnThePage()
{
    const auto write = [](ReportWriter &report) {
        report.section("people", "People");
        report.card({"1.1 <Ján>", {"joins A & B", "leaves \x1b"}, {"uid: 7", "pid: 11"}});
        report.card({"1.2 Eva", {"joins C"}, {}});
    };
    const QString text = QString::fromUtf8(written<TextReport>(write, 100));
    QVERIFY2(text.contains("\n1.1 <Ján>: joins A & B; leaves \\x1b; uid: 7; pid: 11.\n"
                           "1.2 Eva: joins C.\n"),
             qPrintable(text));
    const QString page = QString::fromUtf8(written<HtmlReport>(write));
    QVERIFY2(page.contains(
                 "<article><h3>1.1 &lt;Ján&gt;</h3>\n<ul><li>joins A &amp; B<li>leaves "
                 "\\x1b</ul><details><summary>Details</summary><ul><li>uid: "
                 "7<li>pid: 11</ul></details></article>\n<article><h3>1.2 Eva</h3>\n<ul><li>joins "
                 "C</ul></article>\n"),
             qPrintable(page));
}

void TestReports::anAbbreviatedTextSaysHowMuchMoreThereIs()
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    TextReport report(buffer, 100);
    report.abbreviate("--all shows it");
    report.begin("preview", "Long");
    report.fact("a", "A", 1);
    report.fact("b", "B", true);
    report.section("findings", "Findings");
    for (int i = 0; i < 20; ++i)
        report.finding(finding("Wrong."));
    report.section("people", "People");
    report.card({"Everybody", {"stays"}, {}, true});
    for (int i = 0; i < 100; ++i)
        report.card({"Somebody", {"changes"}, {"uid: 7"}});
    report.section("few", "Few");
    report.card({"Somebody else", {"changes"}, {}});
    report.section("details", "Details");
    report.card({"Nobody", {}, {"uid: 8"}});
    report.end(ExitStatus::Findings, "Done.");
    const QString text = QString::fromUtf8(buffer.data());
    QVERIFY2(text.contains("\nA: 1; B: yes.\n\nFindings\n"), qPrintable(text));
    QCOMPARE(text.count("Wrong."), 8);
    QVERIFY2(text.contains("\n… and 12 more: --all shows it.\n\nPeople\n"), qPrintable(text));
    QCOMPARE(text.count("Somebody: changes."), 9);
    QVERIFY2(text.contains("\n… and 91 more: --all shows it.\n\nFew\n"), qPrintable(text));
    QCOMPARE(text.count("more: "), 2);
    QVERIFY(!text.contains("uid") && !text.contains("Details"));
}

void TestReports::whatIsForScriptsIsInTheJsonFormOnly()
{
    const auto write = [](ReportWriter &report) {
        report.section("rows", "Rows");
        report.data(table());
        report.datum("count", 2);
        report.card({"Nováková", {"changes"}, {}});
    };
    const QJsonObject json = QJsonDocument::fromJson(written<JsonReport>(write)).object();
    QCOMPARE(json["facts"].toObject(), QJsonObject({{"count", 2}}));
    const QJsonObject section = json["sections"].toArray().first().toObject();
    QCOMPARE(section["tables"].toObject()["people"].toArray().size(), 2);
    QVERIFY(!written<TextReport>(write, 100).contains("12341"));
    QVERIFY(!written<HtmlReport>(write).contains("12341"));
}

void TestReports::textIsMadeVisible_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("visible");
    QTest::newRow("plain") << "Nováková 'x' <b> \\"
                           << "Nováková 'x' <b> \\";
    QTest::newRow("escape sequence") << "\x1b[2J"
                                     << "\\x1b[2J";
    QTest::newRow("line feed") << "a\nb\tc"
                               << "a\\x0ab\\x09c";
    QTest::newRow("control of the second range") << QString(QChar(0x9b)) << "\\x9b";
    QTest::newRow("direction") << QString(QChar(0x202e)) + "x"
                               << "\\u202ex";
    QTest::newRow("line separator") << QString(QChar(0x2028)) << "\\u2028";
    QTest::newRow("above 16 bits") << "👤"
                                   << "👤";
}

void TestReports::textIsMadeVisible()
{
    QFETCH(QString, text);
    QFETCH(QString, visible);
    QCOMPARE(Wording::visible(text), visible);
}

void TestReports::longTextIsCutWhenQuoted()
{
    QCOMPARE(Wording::quoted(QString(60, 'x')), '"' + QString(60, 'x') + '"');
    QCOMPARE(Wording::quoted(QString(61, 'x')), '"' + QString(60, 'x') + "\"…");
}

QTEST_GUILESS_MAIN(TestReports)
#include "tst_reports.moc"
