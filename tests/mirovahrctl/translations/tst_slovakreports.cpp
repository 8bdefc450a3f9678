#include "mirovahrctl/report/rules.h"
#include "mirovahrctl/subcommand.h"
#include "tests/mirovahrctl/explain/explainedsite.h"
#include "tests/mirovahrctl/gate/gatesite.h"
#include "tests/mirovahrctl/program/toolrun.h"
#include "tests/mirovahrctl/program/translatedtexts.h"
#include "tests/mirovahrctl/translations/translationfile.h"
#include "tests/support/testdatabase.h"

#include <QDirIterator>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

/// Reports, pages, lines for HR, help texts and errors in Slovak have no English word.
class TestSlovakReports : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();

    void theEnglishWordsAreKnown();
    void aReportHasNoEnglishWord_data();
    void aReportHasNoEnglishWord();
    void aPreviewHasNoEnglishWord();
    void theGateHasNoEnglishWord_data();
    void theGateHasNoEnglishWord();
    void aHelpTextHasNoEnglishWord_data();
    void aHelpTextHasNoEnglishWord();
    void anErrorHasNoEnglishWord_data();
    void anErrorHasNoEnglishWord();

private:
    QString page() const { return m_site.filePath("page.html"); }
    QString rejects() const { return m_site.filePath("rejects.txt"); }
    QString log() const { return m_site.filePath("server.log"); }
    QString gateStatus() const { return m_site.filePath("status.json"); }
    QString oldFile() const { return m_site.filePath("old.data"); }
    QStringList pluginsConnection();
    void verify(const QStringList &arguments);

    TestDatabase m_database;
    ExplainedSite m_site{m_database};
    QSet<QString> m_english; ///< words of the English texts that no Slovak one has
};

namespace {

using Row = ExportRow;

/// The words of a text in lower case. Ids, paths, SQL and the names of values are none.
QSet<QString> words(const QString &text)
{
    static const QRegularExpression word(R"((?<![-_./\\\w])\p{L}\p{Ll}{2,}(?![-_./\\\w=]))",
                                         QRegularExpression::UseUnicodePropertiesOption);
    QSet<QString> words;
    auto matches = word.globalMatch(text);
    while (matches.hasNext())
        words << matches.next().captured().toLower();
    return words;
}

/// Words of the English texts of the program that are in none of the Slovak ones, nor the name of
/// something.
QSet<QString> englishWords()
{
    QSet<QString> english;
    QSet<QString> others;
    QDirIterator files(QStringLiteral(MIROVAHR_TRANSLATIONS "/sk"), {"*.ts"}, QDir::Files);
    while (files.hasNext()) {
        for (const Translation &text : readTranslations(files.next())) {
            english += words(text.source);
            others += words(text.forms.join(' '));
        }
    }
    for (const RuleGroup &group : ruleGroups()) {
        others << group.subcommand;
        for (const Rule *const rule : group.rules)
            others << rule->id;
    }
    return english - others;
}

/// Lines with all kinds of mistakes.
QVector<Row> brokenPeople()
{
    return {Row(),
            Row().with(&Row::osobniCislo, "x"),
            Row().with(&Row::osobniCislo, 0).with(&Row::poradoveCisloPP, ""),
            Row().with(&Row::jmeno, "").with(&Row::prijmeni, ""),
            Row().with(&Row::osobniCislo, "4294967295").with(&Row::poradoveCisloPP, 1),
            Row().with(&Row::osobniCislo, 12).with(&Row::poradoveCisloPP, 341),
            Row().with(&Row::prijmeni, "O'Neil\\ 5%1"),
            Row().with(&Row::jmeno, QString::fromUtf8("Eva \xF0\x9F\x98\x80")),
            Row().with(&Row::datumNastupu, "").with(&Row::datumVystupu, "2020-01-31"),
            Row().with(&Row::datumVystupu, QDate(2010, 1, 1)),
            Row().with(&Row::datumVystupu, QDate(2999, 1, 1)).with(&Row::stredisko, ""),
            Row().with(&Row::kalendar, "abc").with(&Row::typPracovnihoPomeru, 70000),
            Row().with(&Row::dovolenaZustatek, "1,5").with(&Row::nadrizenyOsobniCislo, "?"),
            Row().with(&Row::dovolenaZustatek, "1e30").with(&Row::telefon, QString(99, '1'))};
}

QByteArray brokenExport()
{
    QByteArray text = GatePeople::file(brokenPeople());
    text += "\xEF\xBB\xBF"
            "1|2|3\n;;;\nosobniCislo|1\na\xFF\n"
        + QByteArray(1, '\0') + "b\n";
    return text + QByteArray(70000, 'x') + '\n' + Row().text().toUtf8();
}

/// A firm and what has become of it, too much for the gate.
QVector<Row> changedPeople(int count)
{
    QVector<Row> people = GatePeople::some(count);
    for (Row &person : people) {
        const int number = person.osobniCislo.toInt();
        if (number % 2 == 0)
            person.with(&Row::stredisko, 130).with(&Row::prijmeni, "Malá").with(&Row::titul, "");
        if (number % 3 == 0)
            person.with(&Row::dovolenaZustatek, 0).with(&Row::kalendar, "abc");
        if (number % 5 == 0)
            person.with(&Row::datumVystupu, QDate(2019, 12, 31));
    }
    return people.mid(count / 4) + QVector<Row>{Row(), Row()};
}

} // namespace

void TestSlovakReports::initTestCase()
{
    QVERIFY2(m_database.start(), qPrintable(m_database.errorString()));
    m_site.unlockAccount();
    m_english = englishWords();
}

void TestSlovakReports::init()
{
    m_database.reset();
    for (const QString &path : {page(), rejects()})
        QFile::remove(path);
}

/// With the account that may set the flag.
QStringList TestSlovakReports::pluginsConnection()
{
    return m_site.connection().replaceInStrings("mirovahrctl", m_database.server().userName());
}

/// \a arguments: of a subcommand that may write a page or lines for HR.
void TestSlovakReports::verify(const QStringList &arguments)
{
    const ToolRun run = runTool(arguments + QStringList{"--language", "sk"});
    QString all = withoutQuotations(run.out + run.err);
    for (const QString &path : {page(), rejects()}) {
        if (QFile::exists(path))
            all += withoutQuotations(QString::fromUtf8(contentOf(path)));
    }
    QStringList found = (words(all) & m_english).values();
    found.sort();
    QVERIFY2(found.isEmpty(), qPrintable(found.join(", ") + '\n' + all));
}

void TestSlovakReports::theEnglishWordsAreKnown()
{
    for (const char *const word : {"the", "findings", "line", "summary", "database", "error"})
        QVERIFY2(m_english.contains(word), word);
    QVERIFY2(!m_english.contains("people"), "the name of a table");
}

void TestSlovakReports::aReportHasNoEnglishWord_data()
{
    QTest::addColumn<QStringList>("arguments");
    const QStringList configuration{"--config", m_site.configurationPath()};
    const QStringList site = configuration + m_site.connection();
    const QStringList page{"--html", this->page()};
    const QString file = m_site.exportFile().path();

    QTest::newRow("rules") << QStringList{"rules"};
    QTest::newRow("a rule") << QStringList{"rules", "field-count"};
    QTest::newRow("check-config") << QStringList{"check-config", m_site.configurationPath()};
    QTest::newRow("check-db") << QStringList{"check-db"} + m_site.connection() + page;
    QTest::newRow("check-file") << QStringList{"check-file", file, "--rejects", rejects()} + page;
    QTest::newRow("check-file with a database")
        << QStringList{"check-file", file} + m_site.connection();
    QTest::newRow("diff") << QStringList{"diff", oldFile(), file} + page;
    QTest::newRow("diff of a person")
        << QStringList{"diff", oldFile(), file, "--person", "1234.1"} + page;
    QTest::newRow("doctor") << QStringList{"doctor"} + site + page;
    QTest::newRow("drift") << QStringList{"drift"} + site + page;
    QTest::newRow("explain") << QStringList{"explain", "1234.1"} + site + page;
    QTest::newRow("explain a wrong line") << QStringList{"explain", "12.341"} + site + page;
    QTest::newRow("explain a name") << QStringList{"explain", "Nováková"} + site + page;
    QTest::newRow("explain nobody") << QStringList{"explain", "77.7"} + site + page;
    QTest::newRow("force") << QStringList{"force"} + configuration + pluginsConnection();
    QTest::newRow("log") << QStringList{"log", log()} + page;
    QTest::newRow("log of nothing") << QStringList{"log", "/dev/null"};
    QTest::newRow("status") << QStringList{"status", "--gate-status", gateStatus()}
            + m_site.connection() + page;
    QTest::newRow("status for monitoring")
        << QStringList{"status", "--nagios"} + m_site.connection();
    QTest::newRow("force off") << QStringList{"force", "--clear"} + pluginsConnection();
}

void TestSlovakReports::aReportHasNoEnglishWord()
{
    QFETCH(QStringList, arguments);
    m_site.exportFile().writeBytes(brokenExport());
    writeFile(log(),
              "2026-11-21 05:10:00 MHRWorker: BEGIN synchronization #1 (force: NO)\n"
              "2026-11-21 05:10:01 MHRWorker::parseLine() - parts count (17) <> fields "
              "count(18) - line skipped!\n"
              "2026-11-21 05:10:02 MHRWorker: load people from TEPDB failed - "
              "synchronization terminated!\n");
    writeFile(gateStatus(), R"({"result": "refused", "time": "2026-11-21T05:10:00+01:00",
                                "reasons": ["Posledný riadok je poškodený"]})");
    writeFile(oldFile(), GatePeople::file(GatePeople::some(40)));
    m_site.configure("enabled=maybe\ndepartmentId=a\nsyncCommandRun=1\ntestMode=1\n"
                     "neznamy=1\nsyncInterval=0\ntimerInterval=x\n[MES]\n1=It's\n");
    verify(arguments);
}

void TestSlovakReports::aPreviewHasNoEnglishWord()
{
    m_site.exportFile().writeBytes(GatePeople::file(changedPeople(20)));
    m_site.configure("enabled=1\n");
    verify(QStringList{"preview", m_site.exportFile().path(), "--config",
                       m_site.configurationPath(), "--undo", m_site.filePath("undo.sql"),
                       "--details", "--html", page()}
           + m_site.connection());
    QVERIFY(contentOf(page()).contains("Nové osoby"));
    QVERIFY(contentOf(m_site.filePath("undo.sql")).contains("\n-- Not taken back:\n--   - What "));
}

void TestSlovakReports::theGateHasNoEnglishWord_data()
{
    QTest::addColumn<QByteArray>("admitted");
    QTest::addColumn<QByteArray>("delivered");
    QTest::addColumn<QStringList>("options");

    const QByteArray people = GatePeople::file(GatePeople::some(60));
    const QByteArray changed = GatePeople::file(changedPeople(80));
    QTest::newRow("the first file") << QByteArray() << people << QStringList();
    QTest::newRow("the same file") << people << people << QStringList();
    QTest::newRow("a changed file") << people << changed << QStringList();
    QTest::newRow("an accepted one") << people << changed << QStringList("--accept");
    QTest::newRow("a broken file") << people << brokenExport() << QStringList();
    QTest::newRow("an empty file") << people << QByteArray() << QStringList();
    QTest::newRow("a new file") << people << people << QStringList{"--settle", "100"};
}

void TestSlovakReports::theGateHasNoEnglishWord()
{
    QFETCH(QByteArray, admitted);
    QFETCH(QByteArray, delivered);
    QFETCH(QStringList, options);
    GateSite gate;
    if (!admitted.isEmpty())
        gate.admit(admitted);
    gate.deliver(delivered);
    verify(gate.arguments(QStringList{"--rejects", rejects()} + options));
}

void TestSlovakReports::aHelpTextHasNoEnglishWord_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("overview") << QStringList{"help"};
    QTest::newRow("without arguments") << QStringList();
    for (const Subcommand &subcommand : subcommands())
        QTest::newRow(subcommand.name) << QStringList{"help", subcommand.name};
}

void TestSlovakReports::aHelpTextHasNoEnglishWord()
{
    QFETCH(QStringList, arguments);
    verify(arguments);
}

void TestSlovakReports::anErrorHasNoEnglishWord_data()
{
    QTest::addColumn<QStringList>("arguments");
    const QString file = m_site.filePath("missing");
    QTest::newRow("no such file") << QStringList{"check-file", file};
    QTest::newRow("a folder") << QStringList{"check-file", m_site.filePath(".")};
    QTest::newRow("no such folder")
        << QStringList{"check-file", "/dev/null", "--html", "/proc/none/page"};
    QTest::newRow("no argument") << QStringList{"check-file"};
    QTest::newRow("an option of no subcommand") << QStringList{"force", "--paint"};
    QTest::newRow("an option without its value") << QStringList{"force", "--host"};
    QTest::newRow("no database") << QStringList{"check-db"};
    QTest::newRow("no server") << QStringList{"check-db", "--socket", file, "--database",
                                              "a",        "--user",   "b"};
    QTest::newRow("no such subcommand") << QStringList{"paint"};
    QTest::newRow("a number that is none") << QStringList{"gate", "--few", "x"};
}

void TestSlovakReports::anErrorHasNoEnglishWord()
{
    QFETCH(QStringList, arguments);
    verify(arguments);
}

QTEST_GUILESS_MAIN(TestSlovakReports)
#include "tst_slovakreports.moc"
