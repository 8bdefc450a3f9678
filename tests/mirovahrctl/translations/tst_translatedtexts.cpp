#include "cli/text.h"
#include "tests/mirovahrctl/program/translatedtexts.h"

#include <QTest>

/// The check that every run of the tool in the tests undergoes: an English phrase is found unless
/// it comes from the translations.
class TestTranslatedTexts : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aTextOfTheTranslationsIsNotMissing_data();
    void aTextOfTheTranslationsIsNotMissing();
    void anotherTextIsMissing_data();
    void anotherTextIsMissing();
    void aTextThatWasTakenEarlierIsMissing();
    void whatIsQuotedIsNotMissing_data();
    void whatIsQuotedIsNotMissing();
};

namespace {

/// As the program takes them.
void takeTexts()
{
    Text::tr("There is no file '%1'");
    Text::tr("%Ln line(s).", nullptr, 3);
    Text::tr("%1, or in the file %2");
    Text::tr("The database server's host.");
    Text::tr("most likely %1");
}

} // namespace

void TestTranslatedTexts::aTextOfTheTranslationsIsNotMissing_data()
{
    QTest::addColumn<QString>("output");
    QTest::newRow("a sentence") << "There is no file '/tmp/x.data'.";
    QTest::newRow("a count") << "3 lines.";
    QTest::newRow("within a line") << "Line 7 (most likely Eva Malá): there is no file 'x'";
    QTest::newRow("an apostrophe") << "--host <host>  The database server's host.";
    QTest::newRow("broken into lines") << "  The database\n  server's host.";
    QTest::newRow("a name between texts") << "Eva Malá, or in the file y";
    QTest::newRow("on a terminal") << "\r\x1b[KThe database server's host\x1b[0m";
    QTest::newRow("JSON") << "{\"error\": \"There is no file '\\\"x'.\"}";
    QTest::newRow("a page") << "<!DOCTYPE html>\n<p>There is no file '<b>x</b>'.</p>";
}

void TestTranslatedTexts::aTextOfTheTranslationsIsNotMissing()
{
    QFETCH(QString, output);
    const TranslatedTexts texts;
    takeTexts();
    QCOMPARE(texts.missingIn(output), QStringList());
}

void TestTranslatedTexts::anotherTextIsMissing_data()
{
    QTest::addColumn<QString>("output");
    QTest::addColumn<QString>("missing");
    QTest::newRow("a sentence") << "The line has no name."
                                << "The line has no name";
    QTest::newRow("behind another") << "There is no file 'x', and that is odd."
                                    << "and that is odd";
    QTest::newRow("joined to another") << "There is no file of this name"
                                       << "of this name";
    QTest::newRow("a label") << "Lines with errors: 3"
                             << "Lines with errors";
    QTest::newRow("a short one") << "Nothing to do"
                                 << "Nothing to do";
    QTest::newRow("JSON") << "{\"verdict\": \"All is fine.\"}"
                          << "All is fine";
    QTest::newRow("a page") << "<!DOCTYPE html>\n<h2>Of the plugin</h2>"
                            << "Of the plugin";
}

void TestTranslatedTexts::anotherTextIsMissing()
{
    QFETCH(QString, output);
    QFETCH(QString, missing);
    const TranslatedTexts texts;
    takeTexts();
    QCOMPARE(texts.missingIn(output), QStringList(missing));
}

void TestTranslatedTexts::aTextThatWasTakenEarlierIsMissing()
{
    takeTexts();
    const TranslatedTexts texts;
    QCOMPARE(texts.missingIn("There is no file 'x'"), QStringList("There is no file"));
}

void TestTranslatedTexts::whatIsQuotedIsNotMissing_data()
{
    QTest::addColumn<QString>("output");
    QTest::newRow("ids and paths") << "[no-final-line-feed] /etc/is/the.ini not_a_word";
    QTest::newRow("SQL") << "UPDATE people SET name = '' WHERE uid = 1 AND NOT blocked";
    QTest::newRow("a name") << "1234.1 Jana Nováková";
    QTest::newRow("the plugin's log") << "MHRWorker::checkSync(): this is the tick";
    QTest::newRow("the server") << "SELECT command denied to user 'a'@'b' for table `vars`";
    QTest::newRow("its version") << "11.8.6-MariaDB-0+deb13u1 from Debian.";
    QTest::newRow("a line of an export") << "{\"lineText\": \"x|of the export\"}";
}

void TestTranslatedTexts::whatIsQuotedIsNotMissing()
{
    QFETCH(QString, output);
    const TranslatedTexts texts;
    QCOMPARE(texts.missingIn(output), QStringList());
}

QTEST_GUILESS_MAIN(TestTranslatedTexts)
#include "tst_translatedtexts.moc"
