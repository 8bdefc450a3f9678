#include "mirovahrctl/export/exportscan.h"
#include "mirovahrctl/export/repeatedpids.h"
#include "tests/mirovahrctl/program/rulefixtures.h"
#include "tests/mirovahrctl/program/toolrun.h"
#include "tests/support/exportfile.h"
#include "worker/mirovaronrecord.h"

#include <QFile>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>

namespace {

/// The good line of test support with one field replaced.
QByteArray line(QString ExportRow::*field, const QString &value)
{
    return ExportRow().with(field, value).text().toUtf8() + '\n';
}

QByteArray line(QString ExportRow::*field, const QString &value, QString ExportRow::*other,
                const QString &otherValue)
{
    return ExportRow().with(field, value).with(other, otherValue).text().toUtf8() + '\n';
}

QByteArray good()
{
    return ExportRow().text().toUtf8() + '\n';
}

QByteArray goodOf(const QString &personalNumber, const QString &relationship)
{
    return ExportRow()
               .with(&ExportRow::osobniCislo, personalNumber)
               .with(&ExportRow::poradoveCisloPP, relationship)
               .text()
               .toUtf8()
        + '\n';
}

/// The rules of all findings of an export, when repetitions of so many people are found.
QStringList rulesOf(const QString &path, int mostRepeated)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s cannot be read", qPrintable(path));
    ExportScan scan(file, ColumnWidths(), SqlTexts::Route(), mostRepeated);
    QVector<Finding> findings;
    if (!scan.run([&findings](const CheckedLine &line) { findings += line.findings; }))
        qFatal("%s", qPrintable(scan.errorString()));
    findings += scan.fileFindings();
    QStringList rules;
    for (const Finding &finding : qAsConst(findings))
        rules << finding.rule;
    return rules;
}

} // namespace

/// check-file without a database.
class TestCheckFile : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();

    void aRuleTripsOnItsFixtureOnly_data();
    void aRuleTripsOnItsFixtureOnly();
    void everyRuleHasItsFixtures();
    void aDroppedLineIsFlagged_data();
    void aDroppedLineIsFlagged();
    void aGoodExportIsFine();
    void notesAloneAreFine();
    void nobodyArrivesWithAFileWithoutPeople_data();
    void nobodyArrivesWithAFileWithoutPeople();
    void factsCountTheLines();
    void aFindingSaysWhoAndWhere();
    void aDroppedLineSaysWhomItIsMostLikelyAbout_data();
    void aDroppedLineSaysWhomItIsMostLikelyAbout();
    void theLineItselfIsShown();
    void theTextReportIsComplete();
    void theAdviceFitsTheMistake_data();
    void theAdviceFitsTheMistake();
    void aDuplicateNamesTheFirstLine();
    void aClashNamesTheFirstPerson();
    void repetitionsOf200000PeopleAreFound();
    void tooManyRepetitionsAreReportedAsIncomplete();
    void everyLineOfALargeExportIsChecked();
    void theRejectsHoldTheLinesUnchanged();
    void theRejectsAreWrittenWithoutRejects();
    void theRejectsAreNoExport();
    void theExportIsNotChanged();
    void badUsageIsRefused_data();
    void badUsageIsRefused();
    void whatCannotBeWrittenIsBadUsage_data();
    void whatCannotBeWrittenIsBadUsage();
    void theExportIsNotWrittenOver_data();
    void theExportIsNotWrittenOver();
    void anUnreadableFileIsBadUsage();
    void progressIsShownOnATerminalOnly();

private:
    ToolRun check(const QByteArray &content, const QStringList &options = {"--json"});

    QScopedPointer<ExportFile> m_export;
    QScopedPointer<QTemporaryDir> m_dir;
    RuleFixtures m_fixtures;
};

void TestCheckFile::init()
{
    m_export.reset(new ExportFile);
    m_dir.reset(new QTemporaryDir);
}

ToolRun TestCheckFile::check(const QByteArray &content, const QStringList &options)
{
    m_export->writeBytes(content);
    return runTool(QStringList{"check-file", m_export->path()} + options);
}

void TestCheckFile::aRuleTripsOnItsFixtureOnly_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("rule");
    QTest::addColumn<int>("lineNumber"); // -1: the rule must not trip; 0: the file as a whole
    QTest::addColumn<QString>("field");

    const auto trips = [](const char *name, const QByteArray &content, const char *rule,
                          int lineNumber, const char *field) {
        QTest::newRow(name) << content << QString(rule) << lineNumber << QString(field);
    };
    const auto passes = [](const char *name, const QByteArray &content, const char *rule) {
        QTest::newRow(name) << content << QString(rule) << -1 << QString();
    };
    using E = ExportRow;

    trips("17 fields", good() + E().text().section('|', 0, 16).toUtf8() + "\n", "field-count", 2,
          "");
    trips("19 fields", E().text().toUtf8() + "|\n", "field-count", 1, "");
    passes("18 fields", good(), "field-count");
    passes("an empty line", "\n" + good() + " \t\r\n", "field-count");
    trips("a header", "OsobniCislo" + QByteArray(17, '|') + "\n" + good(), "header-line", 1, "");
    passes("no header", good(), "header-line");

    trips("a personal number that is a word", line(&E::osobniCislo, "abc"), "no-personal-number", 1,
          "OsobniCislo");
    trips("a personal number of 0", line(&E::osobniCislo, "000"), "no-personal-number", 1,
          "OsobniCislo");
    trips("a personal number of 33 bits", line(&E::osobniCislo, "4294967296"), "no-personal-number",
          1, "OsobniCislo");
    passes("a personal number with zeros in front", line(&E::osobniCislo, "0001234"),
           "no-personal-number");
    passes("a personal number between blanks", line(&E::osobniCislo, " 1234 "),
           "no-personal-number");
    trips("no relationship", line(&E::poradoveCisloPP, ""), "no-relationship-number", 1,
          "PoradoveCisloPP");
    passes("a relationship", line(&E::poradoveCisloPP, "2"), "no-relationship-number");
    trips("no name at all", E().with(&E::jmeno, "").with(&E::prijmeni, "").text().toUtf8() + "\n",
          "no-name", 1, "Prijmeni");
    passes("a first name only", line(&E::prijmeni, ""), "no-name");
    passes("a surname only", line(&E::jmeno, ""), "no-name");
    passes("a name of one blank", E().with(&E::jmeno, " ").with(&E::prijmeni, "").text().toUtf8(),
           "no-name");

    trips("numbers that make more than 32 bits", goodOf("4294967", "296"), "pid-zero", 1,
          "OsobniCislo");
    passes("numbers that make 32 bits", goodOf("4294967", "295"), "pid-zero");
    trips("two people of one number", goodOf("1234", "1") + goodOf("123", "41"), "pid-clash", 2,
          "");
    passes("two people of two numbers", goodOf("1234", "1") + goodOf("124", "1"), "pid-clash");
    passes("two people with the number 0", goodOf("4294967", "296") + goodOf("4294968", "1"),
           "pid-clash");
    trips("a relationship that comes twice", goodOf("1234", "1") + goodOf("01234", "1"),
          "duplicate-relationship", 2, "");
    passes("two relationships of one person", goodOf("1234", "1") + goodOf("1234", "2"),
           "duplicate-relationship");
    passes("a dropped line of the same number",
           goodOf("1234", "1") + goodOf("1234", "1").replace('\n', "|\n"),
           "duplicate-relationship");

    trips("an apostrophe", line(&E::prijmeni, "O'Neil"), "quote-in-text", 1, "Prijmeni");
    passes("a typographic apostrophe", line(&E::prijmeni, "O’Neil"), "quote-in-text");
    passes("an apostrophe where no statement has it", line(&E::strediskoPopis, "O'Neil"),
           "quote-in-text");
    trips("a backslash", line(&E::telefon, "12\\34"), "backslash-in-text", 1, "Telefon");
    passes("a slash", line(&E::telefon, "12/34"), "backslash-in-text");
    trips("a placeholder", line(&E::titul, "%1"), "placeholder-in-text", 1, "Titul");
    trips("a placeholder for a local number", line(&E::titulZa, "a %L9"), "placeholder-in-text", 1,
          "TitulZa");
    trips("a placeholder behind another percent sign", line(&E::jmeno, "%%5"),
          "placeholder-in-text", 1, "Jmeno");
    passes("a percent sign", line(&E::jmeno, "100% 5 %L %x"), "placeholder-in-text");

    trips("an emoji", line(&E::jmeno, "Jana 👤"), "wide-character", 1, "Jmeno");
    passes("an emoji where no statement has it", line(&E::strediskoPopis, "👤"), "wide-character");
    passes("letters of Slovak", line(&E::jmeno, "ľščťžýáíéôäňĎŇĹŔ"), "wide-character");

    trips("a leaving date in another form", line(&E::datumVystupu, "31.3.2021"), "bad-date", 1,
          "DatumVystupu");
    trips("a day that does not exist", line(&E::datumNastupu, "2021-02-30 00:00:00.000"),
          "bad-date", 1, "DatumNastupu");
    trips("a date between blanks", line(&E::kalendarPlatnostOd, " 2021-03-01 00:00:00.000"),
          "bad-date", 1, "KalendarPlatnostOd");
    passes("a leaving date", line(&E::datumVystupu, "2021-03-31 00:00:00.000"), "bad-date");
    passes("no leaving date", good(), "bad-date");
    trips("no start date", line(&E::datumNastupu, ""), "empty-date", 1, "DatumNastupu");
    trips("a calendar without a start", line(&E::kalendarPlatnostOd, ""), "empty-date", 1,
          "KalendarPlatnostOd");
    passes("neither a calendar nor its start",
           E().with(&E::kalendarPlatnostOd, "").with(&E::kalendar, "0").text().toUtf8(),
           "empty-date");
    passes("an open end", good(), "empty-date");
    trips("an end in the far future", line(&E::datumVystupu, "9999-12-31 00:00:00.000"),
          "date-out-of-range", 1, "DatumVystupu");
    trips("a start before 1970", line(&E::datumNastupu, "1969-12-31 00:00:00.000"),
          "date-out-of-range", 1, "DatumNastupu");
    passes("a start in 1971", line(&E::datumNastupu, "1971-01-01 00:00:00.000"),
           "date-out-of-range");
    passes("an end in 2105", line(&E::datumVystupu, "2105-12-31 00:00:00.000"),
           "date-out-of-range");
    trips("an end before the start", line(&E::datumVystupu, "2019-03-31 00:00:00.000"),
          "leaves-before-start", 1, "DatumVystupu");
    passes("an end on the first day", line(&E::datumVystupu, "2019-04-01 00:00:00.000"),
           "leaves-before-start");

    trips("a cost centre that is a word", line(&E::stredisko, "Sklad"), "bad-number", 1,
          "Stredisko");
    trips("a negative calendar", line(&E::kalendar, "-3"), "bad-number", 1, "Kalendar");
    trips("a supervisor with a relationship", line(&E::nadrizenyOsobniCislo, "1001.1"),
          "bad-number", 1, "NadrizenyOsobniCislo");
    trips("a balance with a comma", line(&E::dovolenaZustatek, "12,5"), "bad-number", 1,
          "DovolenaZustatek");
    passes("a balance with a point", line(&E::dovolenaZustatek, "-12.5"), "bad-number");
    passes("a cost centre of 0", line(&E::stredisko, "0"), "bad-number");
    trips("no cost centre", line(&E::stredisko, ""), "empty-number", 1, "Stredisko");
    trips("no register state", line(&E::evidencniStav, ""), "empty-number", 1, "EvidencniStav");
    trips("no balance", line(&E::dovolenaZustatek, ""), "empty-number", 1, "DovolenaZustatek");
    passes("no supervisor", line(&E::nadrizenyOsobniCislo, ""), "empty-number");
    trips("a code of 17 bits", line(&E::evidencniStav, "65537"), "code-wraps", 1, "EvidencniStav");
    passes("a code of 16 bits", line(&E::evidencniStav, "65535"), "code-wraps");
    trips("a balance without end", line(&E::dovolenaZustatek, "inf"), "balance-out-of-range", 1,
          "DovolenaZustatek");
    trips("a balance that is no number", line(&E::dovolenaZustatek, "nan"), "balance-out-of-range",
          1, "DovolenaZustatek");
    trips("a balance of 31 bits and more", line(&E::dovolenaZustatek, "21474836.48"),
          "balance-out-of-range", 1, "DovolenaZustatek");
    passes("the largest balance", line(&E::dovolenaZustatek, "21474836.46"),
           "balance-out-of-range");

    trips("a line of more than 64 KiB", good() + QByteArray(65537, 'x') + "\n" + good(),
          "line-too-long", 2, "");
    trips("a last line of more than 64 KiB", good() + QByteArray(65537, 'x'), "line-too-long", 2,
          "");
    passes("a line of 64 KiB", QByteArray(65536, 'x') + "\n", "line-too-long");
    trips("a NUL byte", good().replace("Jana", QByteArray("J\0na", 4)), "nul-byte", 1, "");
    trips("a line of NUL bytes", QByteArray("\0\0\n", 3), "nul-byte", 1, "");
    passes("no NUL byte", good(), "nul-byte");
    trips("bytes of another encoding", good().replace("Jana", "J\xE1na"), "not-utf8", 1, "");
    passes("a replacement character of HR's own", line(&E::jmeno, QString(QChar(0xFFFD))),
           "not-utf8");
    trips("a byte order mark", "\xEF\xBB\xBF" + good(), "byte-order-mark", 1, "");
    passes("no byte order mark", good(), "byte-order-mark");
    trips("UTF-16",
          QByteArray("\xFF\xFE"
                     "1\0|\0\n\0",
                     8),
          "utf-16", 1, "");
    passes("UTF-8", good(), "utf-16");

    trips("a file that ends in a line", good().chopped(1), "no-final-line-feed", 0, "");
    passes("a file that ends in a line feed", good(), "no-final-line-feed");
    trips("an empty file", "", "no-records", 0, "");
    passes("an empty file has no last line", "", "no-final-line-feed");
    passes("a file with a person", good(), "no-records");
}

void TestCheckFile::aRuleTripsOnItsFixtureOnly()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, rule);
    QFETCH(int, lineNumber);
    QFETCH(QString, field);

    const ToolRun run = check(content);

    const QVector<QJsonObject> found = run.findingsOf(rule);
    (lineNumber < 0 ? m_fixtures.passed : m_fixtures.tripped) << rule;
    if (lineNumber < 0) {
        QVERIFY2(found.isEmpty(), run.report().constData());
        return;
    }
    QVERIFY2(found.size() == 1, run.report().constData());
    QCOMPARE(found[0]["line"].toInt(), lineNumber);
    QCOMPARE(found[0]["field"].toString(), field);
    QVERIFY(!found[0]["message"].toString().isEmpty());
    QVERIFY(!found[0]["advice"].toString().isEmpty());
    COMPARE_EXIT(
        run, found[0]["severity"].toString() == "note" ? ExitStatus::Fine : ExitStatus::Findings);
}

void TestCheckFile::everyRuleHasItsFixtures()
{
    // These need a database or a very long export, and have test functions of their own.
    const QSet<QString> others{"text-too-long", "repetitions-not-all-found"};
    QCOMPARE(m_fixtures.missing("check-file", others), QStringList());
}

void TestCheckFile::aDroppedLineIsFlagged_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("dropped");
    using E = ExportRow;

    QTest::newRow("too few fields") << QByteArray("1|2\n") << true;
    QTest::newRow("a header") << "osobnicislo" + QByteArray(17, '|') + "\n" << true;
    QTest::newRow("no personal number") << line(&E::osobniCislo, "x") << true;
    QTest::newRow("no relationship") << line(&E::poradoveCisloPP, "0") << true;
    QTest::newRow("no name") << E().with(&E::jmeno, "").with(&E::prijmeni, "").text().toUtf8()
                             << true;
    QTest::newRow("too long") << QByteArray(70000, 'x') << true;
    QTest::newRow("a NUL byte in the last field")
        << good().replace("12.5|0", QByteArray("12.5|0\0", 7)) << false;
    QTest::newRow("a NUL byte before") << good().replace("Sklad", QByteArray(1, '\0')) << true;
    QTest::newRow("an apostrophe") << line(&E::jmeno, "'") << false;
    QTest::newRow("no number of 32 bits") << goodOf("4294967", "296") << false;
    QTest::newRow("no date and no numbers") << QByteArray("1|1|||x|||||||||||||") << false;
}

void TestCheckFile::aDroppedLineIsFlagged()
{
    QFETCH(QByteArray, content);
    QFETCH(bool, dropped);
    const ToolRun run = check(content);
    QVERIFY(!run.findings().isEmpty());
    for (const QJsonValue &finding : run.findings()) {
        if (finding.toObject().contains("line"))
            QCOMPARE(finding.toObject()["dropped"].toBool(), dropped);
    }
    QCOMPARE(run.json()["facts"].toObject()["dropped"].toInt(), dropped ? 1 : 0);
    QCOMPARE(run.json()["facts"].toObject()["records"].toInt(), dropped ? 0 : 1);
}

void TestCheckFile::aGoodExportIsFine()
{
    const ToolRun run = check(good() + goodOf("77", "1"), {});
    COMPARE_EXIT(run, ExitStatus::Fine);
    QCOMPARE(run.out,
             QString("HR export %1\n").arg(m_export->path())
                 + QString(10 + m_export->path().size(), '=')
                 + "\n\nSummary\n-------\n"
                   "Lines: 2\nRead as people: 2\nDropped by the plugin: 0\n"
                   "Lines with errors: 0\n\nThe export is fine.\n");
    QCOMPARE(run.err, QString());
}

void TestCheckFile::notesAloneAreFine()
{
    const ToolRun run = check("\xEF\xBB\xBF" + good());
    COMPARE_EXIT(run, ExitStatus::Fine);
    QCOMPARE(run.json()["result"].toString(), QString("fine"));
    QCOMPARE(run.rules(), QStringList{"byte-order-mark"});
}

void TestCheckFile::nobodyArrivesWithAFileWithoutPeople_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("blank lines") << QByteArray("\n\r\n");
}

void TestCheckFile::nobodyArrivesWithAFileWithoutPeople()
{
    QFETCH(QByteArray, content);
    const ToolRun run = check(content);
    COMPARE_EXIT(run, ExitStatus::Findings);
    QCOMPARE(run.json()["verdict"].toString(), QString("The file contains no people."));
}

void TestCheckFile::factsCountTheLines()
{
    const ToolRun run = check(good() + "\n" + line(&ExportRow::osobniCislo, "x")
                              + goodOf("4294967", "296") + QByteArray(70000, 'x') + "\n");
    const QJsonObject facts = run.json()["facts"].toObject();
    QCOMPARE(facts["lines"].toInt(), 5);
    QCOMPARE(facts["records"].toInt(), 2);
    QCOMPARE(facts["dropped"].toInt(), 2);
    QCOMPARE(facts["rejected"].toInt(), 3);
    QCOMPARE(run.json()["status"].toInt(), 1);
    QCOMPARE(run.json()["result"].toString(), QString("findings"));
    QCOMPARE(run.json()["subcommand"].toString(), QString("check-file"));
}

void TestCheckFile::aFindingSaysWhoAndWhere()
{
    const QJsonObject finding =
        check(line(&ExportRow::dovolenaZustatek, "12,5")).findingsOf("bad-number").value(0);
    QCOMPARE(finding["subject"].toString(), QString("1234.1 Jana Nováková"));
    QCOMPARE(finding["severity"].toString(), QString("warning"));
    QCOMPARE(
        finding["message"].toString(),
        QString(
            "The plugin cannot read \"12,5\" as a number. It is read as 0: the vacation balance is "
            "set to 0 days."));
    QVERIFY(!finding.contains("dropped"));
}

void TestCheckFile::aDroppedLineSaysWhomItIsMostLikelyAbout_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("likely");
    const QByteArray whole = good().chopped(1);
    QTest::newRow("a field too few at the end")
        << whole.left(whole.lastIndexOf('|')) << "1234.1 Jana Nováková";
    QTest::newRow("a field too many at the end") << whole + "|"
                                                 << "1234.1 Jana Nováková";
    QTest::newRow("the title is missing")
        << QByteArray("1246|1|Eva|Malá||0905|2026-11-01 00:00:00.000|") << "1246.1 Eva Malá";
    QTest::newRow("a field too many before the names")
        << QByteArray("1246|1||Ing.|Eva|Malá||0905|2026-11-01 00:00:00.000|") << "1246.1 Eva Malá";
    QTest::newRow("cut in the middle") << QByteArray("1246|1|Ing.|Eva|Mal") << "1246.1 Eva Mal";
    QTest::newRow("another separator")
        << QByteArray("1246;1;;Eva;O'Malá-Nová;;;2026-11-01") << "1246.1 Eva O'Malá-Nová";
    QTest::newRow("no personal number") << line(&ExportRow::osobniCislo, "abc") << "Jana Nováková";
    QTest::newRow("no relationship")
        << line(&ExportRow::poradoveCisloPP, "x") << "Jana Nováková, personal number 1234";
    QTest::newRow("numbers only") << QByteArray("1246|1") << "1246.1";
    QTest::newRow("a personal number only") << QByteArray("1246|") << "personal number 1246";
    QTest::newRow("nothing to be believed") << QByteArray("x1|0|a|b7|c.|") << "";
    QTest::newRow("a header") << QByteArray("OsobniCislo|PoradoveCisloPP|Titul|Jmeno|Prijmeni")
                              << "";
    QTest::newRow("a line that is too long") << QByteArray(70000, 'x') << "";
}

void TestCheckFile::aDroppedLineSaysWhomItIsMostLikelyAbout()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, likely);
    const QJsonArray findings = check(good() + content + '\n').findings();
    QVERIFY(!findings.isEmpty());
    QCOMPARE(findings.first()["dropped"].toBool(), true);
    QCOMPARE(findings.first()["likely"].toString(), likely);
}

void TestCheckFile::theLineItselfIsShown()
{
    const QByteArray broken = "1246|1||Eva|Mal\x1b[31m\xC3\xA1|" + QByteArray(400, 'x');
    const QByteArray misread = line(&ExportRow::dovolenaZustatek, "12,5");
    const ToolRun json = check(broken + "\n" + misread);
    QCOMPARE(json.findingsOf("field-count").value(0)["lineText"].toString(),
             QString::fromUtf8(broken).left(300) + "…");
    const QJsonObject warning = json.findingsOf("bad-number").value(0);
    QCOMPARE(warning["lineText"].toString(), QString::fromUtf8(misread).trimmed());
    QVERIFY(!warning.contains("likely"));

    const QString text =
        check(line(&ExportRow::dovolenaZustatek, "x", &ExportRow::datumVystupu, "y") + broken
                  + "\n",
              {})
            .out;
    QCOMPARE(text.count("    The line: 1234|1|"), 1); // of two findings
    QVERIFY2(text.contains("line 2 (most likely 1246.1 Eva): error: "), qPrintable(text));
    QVERIFY2(text.contains("The line: 1246|1||Eva|Mal\\x1b[31má|xxx"), qPrintable(text));
}

void TestCheckFile::theTextReportIsComplete()
{
    const ToolRun run = check(line(&ExportRow::datumVystupu, "31.3.2021").chopped(1), {});
    COMPARE_EXIT(run, ExitStatus::Findings);
    QCOMPARE(
        run.out.section('\n', 2),
        QString("\nFindings\n--------\n"
                "line 1, DatumVystupu (1234.1 Jana Nováková): warning: The plugin cannot read "
                "\"31.3.2021\" as a "
                "date: the person counts as not leaving. [bad-date]\n"
                "    Tell HR: Write dates as in 2021-03-31 00:00:00.000.\n"
                "    The line: %1\n"
                "warning: The last line does not end with a line feed. The plugin reads it, but "
                "the file may be truncated. [no-final-line-feed]\n"
                "    Tell HR: Check whether the export is complete.\n"
                "\nSummary\n-------\n"
                "Rule                Findings\n"
                "------------------  --------\n"
                "bad-date            1\n"
                "no-final-line-feed  1\n"
                "Lines: 1\nRead as people: 1\nDropped by the plugin: 0\n"
                "Lines with errors: 0\n"
                "\nEverybody in the export arrives, but there are findings.\n")
            .arg(QString::fromUtf8(line(&ExportRow::datumVystupu, "31.3.2021").trimmed())));
}

void TestCheckFile::theAdviceFitsTheMistake_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("advice");
    using E = ExportRow;
    QTest::newRow("semicolons") << good().replace('|', ';')
                                << "Separate fields with the character |, nothing else.";
    QTest::newRow("a separator at the end")
        << good().replace('\n', "|\n") << "There must be no | after the last field.";
    QTest::newRow("a separator in a text")
        << good().replace("Jana", "Ja|na") << "No text may contain the character |.";
    QTest::newRow("a field left out")
        << good().replace("|Sklad", "") << "Write empty fields too, each with its |.";
    QTest::newRow("a date without a time")
        << line(&E::datumVystupu, "2021-03-31")
        << "Write the date with a time, as in 2021-03-31 00:00:00.000.";
    QTest::newRow("a decimal comma") << line(&E::dovolenaZustatek, "12,5")
                                     << "Write the balance with a decimal point, as in 12.5.";
    QTest::newRow("the end of time")
        << line(&E::datumVystupu, "9999-12-31 00:00:00.000")
        << "Leave the leaving date empty for a person who does not leave.";
}

void TestCheckFile::theAdviceFitsTheMistake()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, advice);
    const ToolRun run = check(content);
    QVERIFY2(!run.findings().isEmpty(), run.report().constData());
    QCOMPARE(run.findings()[0].toObject()["advice"].toString(), advice);
}

void TestCheckFile::aDuplicateNamesTheFirstLine()
{
    const ToolRun run = check("\n" + good() + goodOf("7", "1") + good() + good());
    const QVector<QJsonObject> found = run.findingsOf("duplicate-relationship");
    QCOMPARE(found.size(), 2);
    QCOMPARE(found[0]["line"].toInt(), 4);
    QCOMPARE(found[1]["line"].toInt(), 5);
    QVERIFY(found[1]["message"].toString().startsWith("Line 2 has the same employment"));
}

void TestCheckFile::aClashNamesTheFirstPerson()
{
    const ToolRun run = check(goodOf("123", "41") + goodOf("7", "1") + goodOf("1234", "1"));
    const QVector<QJsonObject> found = run.findingsOf("pid-clash");
    QCOMPARE(found.size(), 1);
    QCOMPARE(found[0]["subject"].toString(), QString("1234.1 Jana Nováková"));
    QCOMPARE(found[0]["message"].toString(),
             QString("The person in line 1, 123.41, has the same number 12341: the plugin treats "
                     "both as one person, and the last line wins."));
}

void TestCheckFile::repetitionsOf200000PeopleAreFound()
{
    constexpr int kMost = 200000;
    constexpr int kPeople = kMost + 1;
    RepeatedPids pids(2 * kPeople);
    // Everybody once, and then once more.
    const auto person = [](int line) {
        MirovaRonRecord record;
        record.osobniCislo = quint32((line - 1) % kPeople + 1);
        record.poradoveCisloPP = 1;
        return record;
    };
    for (int line = 1; line <= 2 * kPeople; ++line)
        pids.note(person(line).getPid());
    int found = 0;
    for (int line = 1; line <= 2 * kPeople; ++line) {
        const auto first = pids.first(person(line), line);
        found += first && first->line == line - kPeople ? 1 : 0;
        if (pids.isComplete() != (line <= kMost))
            QFAIL(qPrintable(QString::number(line)));
    }
    QCOMPARE(found, kMost);
}

void TestCheckFile::tooManyRepetitionsAreReportedAsIncomplete()
{
    constexpr int kMost = 1000;
    QByteArray people;
    for (int i = 1; i <= kMost; ++i)
        people += goodOf(QString::number(i), "1");
    QVERIFY(check(people.repeated(2)).findingsOf("repetitions-not-all-found").isEmpty());
    QStringList expected(QVector<QString>(kMost, "duplicate-relationship").toList());
    m_export->writeBytes(people.repeated(2));
    QCOMPARE(rulesOf(m_export->path(), kMost), expected);

    // More people than are compared, each twice.
    people += goodOf(QString::number(kMost + 1), "1");
    m_export->writeBytes(people.repeated(2));
    expected += "repetitions-not-all-found";
    QCOMPARE(rulesOf(m_export->path(), kMost), expected);
}

void TestCheckFile::everyLineOfALargeExportIsChecked()
{
    QByteArray content;
    QVector<int> expected;
    for (int i = 1; i <= 60000; ++i) {
        const bool bad = i % 1013 == 0;
        content += goodOf(bad ? QString("x") : QString::number(i), "1");
        if (bad)
            expected << i;
    }
    QVector<int> found;
    for (const QJsonObject &finding : check(content).findingsOf("no-personal-number"))
        found << finding["line"].toInt();
    QCOMPARE(found, expected);
}

void TestCheckFile::theRejectsHoldTheLinesUnchanged()
{
    const QString path = m_dir->filePath("rejects.txt");
    const QByteArray broken("1|Ji\xF8\xED|\"x\\\r");
    const ExportRow other =
        ExportRow().with(&ExportRow::osobniCislo, 7).with(&ExportRow::jmeno, "O'Neil");
    const ToolRun run = check(broken + "\n" + line(&ExportRow::dovolenaZustatek, "1,5")
                                  + other.text().toUtf8() + "\n" + QByteArray(70000, 'x') + "\n",
                              {"--rejects", path});
    COMPARE_EXIT(run, ExitStatus::Findings);

    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QList<QByteArray> lines = file.readAll().split('\n');
    QCOMPARE(lines.value(0),
             "# Lines of the export " + QFileInfo(m_export->path()).fileName().toUtf8()
                 + " that the attendance system drops, cannot store correctly, or misreads.");
    QVERIFY(lines.value(1).startsWith("# Checked on "));
    QCOMPARE(
        lines.mid(2),
        QList<QByteArray>({
            "",
            "# Line 1 (most likely personal number 1): Some bytes are not UTF-8; each is read as "
            "the character \uFFFD. Save the "
            "export "
            "as UTF-8.",
            "# Line 1 (most likely personal number 1): The line has 3 fields instead of 18. Write "
            "empty fields too, each with "
            "its |.",
            broken.chopped(1),
            "",
            "# Line 2: DovolenaZustatek: The plugin cannot read \"1,5\" as a number. It is read as "
            "0: the vacation balance is set to 0 days. Write the balance with a decimal point, as "
            "in 12.5.",
            line(&ExportRow::dovolenaZustatek, "1,5").chopped(1),
            "",
            "# Line 3: Jmeno: The text \"O'Neil\" contains an apostrophe. It enters the "
            "SQL statement unescaped, and the statement fails or does something else: the person "
            "is not written. mirovahrctl gate writes such a text so that it arrives; without the "
            "gate, write it without ', or with the character ’.",
            other.text().toUtf8(),
            "",
            "# Line 4: The line is longer than 65536 bytes; the plugin skips it. The "
            "export is damaged; perhaps line feeds are missing.",
            "",
            "# 4 lines.",
            "",
        }));
}

void TestCheckFile::theRejectsAreWrittenWithoutRejects()
{
    const QString path = m_dir->filePath("rejects.txt");
    COMPARE_EXIT(check(good(), {"--rejects", path}), ExitStatus::Fine);
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(file.readAll().endsWith("\n\n# 0 lines.\n"));
}

void TestCheckFile::theRejectsAreNoExport()
{
    // Sent back by mistake, the remarks among the lines must not become people.
    const QString path = m_dir->filePath("rejects.txt");
    check(line(&ExportRow::jmeno, "'"), {"--rejects", path});
    const ToolRun run = runTool({"check-file", "--json", path});
    QCOMPARE(run.json()["facts"].toObject()["records"].toInt(), 1);
    QCOMPARE(run.json()["facts"].toObject()["dropped"].toInt(), 4);
}

void TestCheckFile::theExportIsNotChanged()
{
    const QByteArray content = good() + "broken\n";
    check(content);
    QFile file(m_export->path());
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), content);
}

void TestCheckFile::badUsageIsRefused_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("error");
    QTest::newRow("no file") << QStringList()
                             << "mirovahrctl: check-file: Missing argument FILE; see --help.\n";
    QTest::newRow("two files") << QStringList{"a", "b"}
                               << "mirovahrctl: check-file: Unexpected argument 'b'.\n";
    QTest::newRow("an option that is none")
        << QStringList{"a", "--strict"} << "mirovahrctl: check-file: Unknown option 'strict'.\n";
    QTest::newRow("an absent file") << QStringList{"/nowhere/ron.data"}
                                    << "mirovahrctl: check-file: There is no file "
                                       "'/nowhere/ron.data'.\n";
    QTest::newRow("a folder") << QStringList{"/srv"}
                              << "mirovahrctl: check-file: There is no file '/srv'.\n";
    QTest::newRow("a database without a user")
        << QStringList{"/etc/hostname", "--host", "h", "--database", "d"}
        << "mirovahrctl: check-file: Name the database user with --user, or in the "
           "file /etc/yav/mirovahrctl.ini.\n";
}

void TestCheckFile::badUsageIsRefused()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, error);
    const ToolRun run = runTool(QStringList("check-file") + arguments);
    COMPARE_EXIT(run, ExitStatus::Usage);
    QCOMPARE(run.err, error);
    QCOMPARE(run.out, QString());
}

void TestCheckFile::whatCannotBeWrittenIsBadUsage_data()
{
    QTest::addColumn<QString>("option");
    QTest::newRow("rejects") << "--rejects";
    QTest::newRow("page") << "--html";
}

void TestCheckFile::whatCannotBeWrittenIsBadUsage()
{
    QFETCH(QString, option);
    const ToolRun run = check(good(), {option, "/nowhere/x"});
    COMPARE_EXIT(run, ExitStatus::Usage);
    QVERIFY2(run.err.contains("'/nowhere/x' cannot be written: "), run.report().constData());
    QCOMPARE(run.out, QString());
}

void TestCheckFile::theExportIsNotWrittenOver_data()
{
    whatCannotBeWrittenIsBadUsage_data();
}

void TestCheckFile::theExportIsNotWrittenOver()
{
    QFETCH(QString, option);
    m_export->writeBytes(good());
    const QString link = m_dir->filePath("link");
    QVERIFY(QFile::link(m_export->path(), link));
    for (const QString &path : {m_export->path(), link}) {
        const ToolRun run = runTool({"check-file", m_export->path(), option, path});
        COMPARE_EXIT(run, ExitStatus::Usage);
        QCOMPARE(run.err,
                 QString("mirovahrctl: check-file: The result would overwrite the export; name "
                         "another file.\n"));
    }
    QFile file(m_export->path());
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), good());
}

void TestCheckFile::anUnreadableFileIsBadUsage()
{
    // It can be opened like a file, but reading fails.
    const ToolRun run = runTool({"check-file", "/proc/self/mem"});
    COMPARE_EXIT(run, ExitStatus::Usage);
    QVERIFY2(run.err.contains("'/proc/self/mem' cannot be read to its end: "),
             run.report().constData());
}

void TestCheckFile::progressIsShownOnATerminalOnly()
{
    m_export->writeBytes(good());
    QCOMPARE(runTool({"check-file", m_export->path()}, false).err, QString());
    const QString shown = runTool({"check-file", m_export->path()}, true).err;
    QVERIFY2(shown.startsWith("\r\x1b[KChecking the export: 50 %"), qPrintable(shown));
    QVERIFY(shown.endsWith("\r\x1b[K"));
}

QTEST_GUILESS_MAIN(TestCheckFile)
#include "tst_checkfile.moc"
