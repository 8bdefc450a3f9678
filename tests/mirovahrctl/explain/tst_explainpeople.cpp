#include "mirovahrctl/explain/peoplesearch.h"
#include "mirovahrctl/export/personname.h"
#include "tests/mirovahrctl/explain/explainedsite.h"
#include "tests/worker/support/sampleexport.h"

#include <QTest>

/// Whom explain finds by a name or a number.
class TestExplainPeople : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();

    void spellingsOfANameHaveTheSameWords_data();
    void spellingsOfANameHaveTheSameWords();
    void onePersonIsExplained_data();
    void onePersonIsExplained();
    void severalPeopleAreListed_data();
    void severalPeopleAreListed();
    void peopleAreListedAsHrMeantTheirNames();
    void findingNobodyIsReported_data();
    void findingNobodyIsReported();
    void aLineWithoutNumbersIsListed();
    void linesThatMayHideThePersonAreCounted_data();
    void linesThatMayHideThePersonAreCounted();
    void onlyTheFirstPeopleAreListed();
    void withoutAnExportTheDatabaseIsSearched();
    void aDatabaseWithoutPeopleBreaksTheContract();

private:
    static TableRows people(const ToolRun &run)
    {
        return ExplainedSite::table(run, "people", "people",
                                    {"person", "name", "line", "database"});
    }
    /// Whom a run explains, as the title names the person.
    static QString explained(const ToolRun &run)
    {
        return run.json().value("title").toString().remove("What happens to ");
    }

    TestDatabase m_db;
    ExplainedSite m_site{m_db};
};

void TestExplainPeople::initTestCase()
{
    QVERIFY2(m_db.start(), qPrintable(m_db.errorString()));
    m_site.unlockAccount();
    m_site.configure({});
}

void TestExplainPeople::init()
{
    m_db.reset();
    ExportRow second = SampleExport::jana();
    second.poradoveCisloPP = "2";
    m_site.exportFile().write(
        {SampleExport::jana().text(), second.text(), SampleExport::newcomer(3801).text(),
         SampleExport::newcomer(3802).with(&ExportRow::prijmeni, "Łukasz-Ødegård").text()});
}

void TestExplainPeople::spellingsOfANameHaveTheSameWords_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("words");
    QTest::newRow("as it is") << "Jana Novakova"
                              << "jana novakova";
    QTest::newRow("accents and capitals") << "JANA NOVÁKOVÁ"
                                          << "jana novakova";
    QTest::newRow("accents of their own")
        << QString("Jana Nova\u0301kova\u0301") << "jana novakova";
    QTest::newRow("a double name") << "Malá-Nováková"
                                   << "mala novakova";
    QTest::newRow("letters with strokes") << "Łukasz Đorđe Øster"
                                          << "lukasz dorde oster";
    QTest::newRow("a sharp s") << "Weiß"
                               << "weiss";
    QTest::newRow("a title") << "Ing. Jana"
                             << "ing jana";
    QTest::newRow("another script") << "Иванов"
                                    << "иванов";
    QTest::newRow("nothing") << " - "
                             << "";
}

void TestExplainPeople::spellingsOfANameHaveTheSameWords()
{
    QFETCH(QString, name);
    QFETCH(QString, words);
    QCOMPARE(nameWords(name).join(' '), words);
}

void TestExplainPeople::onePersonIsExplained_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("person");
    QTest::newRow("a name of the export") << "Malá"
                                          << "3801.1";
    QTest::newRow("another spelling") << "MALA"
                                      << "3801.1";
    QTest::newRow("two words in any order") << "malá  Eva"
                                            << "3801.1";
    QTest::newRow("a part of a double name") << "odegard"
                                             << "3802.1";
    QTest::newRow("a name of the database") << "žiak"
                                            << "1237.1";
    QTest::newRow("with a title") << "ing. Kováčová"
                                  << "1001.1";
    QTest::newRow("a personal number") << "3801"
                                       << "3801.1";
    QTest::newRow("a personal number of the database") << "2001"
                                                       << "2001.2";
    QTest::newRow("a pid") << "12342"
                           << "1234.2";
    QTest::newRow("a row with a strange payroll id") << "Szabó"
                                                     << "pid 12351";
}

void TestExplainPeople::onePersonIsExplained()
{
    QFETCH(QString, text);
    QFETCH(QString, person);
    m_db.run("UPDATE people SET pamId = 'x' WHERE uid = 5");
    const ToolRun run = m_site.explain(text);
    QVERIFY2(run.status == ExitStatus::Fine || run.status == ExitStatus::Findings,
             run.report().constData());
    QCOMPARE(explained(run), person);
    QVERIFY(ExplainedSite::sections(run).contains("database"));
}

void TestExplainPeople::severalPeopleAreListed_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<TableRows>("rows");
    QTest::newRow("a name in export and database")
        << "novakova"
        << TableRows{{"1234.1", "Ing. Jana Nováková", "1", "active"},
                     {"1234.2", "Ing. Jana Nováková", "2", ""}};
    QTest::newRow("a first name") << "EVA"
                                  << TableRows{{"3801.1", "Eva Malá", "3", ""},
                                               {"3802.1", "Eva Łukasz-Ødegård", "4", ""}};
    QTest::newRow("a personal number") << "1234"
                                       << TableRows{{"1234.1", "Ing. Jana Nováková", "1", "active"},
                                                    {"1234.2", "Ing. Jana Nováková", "2", ""}};
    QTest::newRow("a personal number that is a pid as well")
        << "3801"
        << TableRows{{"380.1", "Somebody", "", "not active"}, {"3801.1", "Eva Malá", "3", ""}};
}

void TestExplainPeople::severalPeopleAreListed()
{
    QFETCH(QString, text);
    QFETCH(TableRows, rows);
    m_db.run("INSERT INTO people (pid, pamId, name, status) VALUES (3801, '380.1', 'Somebody', 0)");
    const ToolRun run = m_site.explain(text);
    COMPARE_EXIT(run, ExitStatus::Findings);
    QCOMPARE(people(run), rows);
    QCOMPARE(run.rules(), QStringList("person-ambiguous"));
    QCOMPARE(ExplainedSite::facts(run), QJsonObject({{"matches", 2}}));
    QCOMPARE(ExplainedSite::verdict(run), QString("2 people match: name one of them."));
    // Naming one of them explains this person.
    for (const QStringList &row : rows)
        QCOMPARE(explained(m_site.explain(row.first())), row.first());
}

void TestExplainPeople::peopleAreListedAsHrMeantTheirNames()
{
    const auto obrien = [](int number) {
        return SampleExport::newcomer(number).with(&ExportRow::prijmeni, "O''Brien").text();
    };
    m_site.exportFile().write({obrien(3803), obrien(3804)});
    QCOMPARE(people(m_site.explain("o'brien")),
             TableRows({{"3803.1", "Eva O'Brien", "1", ""}, {"3804.1", "Eva O'Brien", "2", ""}}));
}

void TestExplainPeople::findingNobodyIsReported_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("a name") << "Nobodyová";
    QTest::newRow("the beginning of a name") << "Nová";
    QTest::newRow("one word too many") << "Jana Nováková Malá";
    QTest::newRow("a number") << "4711";
}

void TestExplainPeople::findingNobodyIsReported()
{
    QFETCH(QString, text);
    const ToolRun run = m_site.explain(text);
    COMPARE_EXIT(run, ExitStatus::Findings);
    QCOMPARE(run.rules(), QStringList("nobody-found"));
    QCOMPARE(ExplainedSite::facts(run), QJsonObject({{"matches", 0}}));
    QCOMPARE(ExplainedSite::verdict(run), "Nobody is known as \"" + text + "\".");
}

void TestExplainPeople::aLineWithoutNumbersIsListed()
{
    m_site.exportFile().write(
        {SampleExport::newcomer(3803).with(&ExportRow::osobniCislo, "x").text()});
    const ToolRun run = m_site.explain("mala");
    COMPARE_EXIT(run, ExitStatus::Findings);
    QCOMPARE(people(run), TableRows({{"", "Eva Malá", "1", ""}}));
}

void TestExplainPeople::linesThatMayHideThePersonAreCounted_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("sentence");
    QTest::newRow("by number") << "4711"
                               << "2 lines of the export are too broken to tell whom they are "
                                  "about, and the plugin drops them: see check-file.";
    QTest::newRow("by name") << "Nobodyová"
                             << "1 line of the export is too broken to tell whom it is about, and "
                                "the plugin drops it: see check-file.";
}

void TestExplainPeople::linesThatMayHideThePersonAreCounted()
{
    QFETCH(QString, text);
    QFETCH(QString, sentence);
    m_site.exportFile().write({QString("broken"), QString(), QString("x|1|||Malá|"),
                               SampleExport::newcomer(3804).text()});
    QCOMPARE(ExplainedSite::sentences(m_site.explain(text), "people"), QStringList(sentence));
}

void TestExplainPeople::onlyTheFirstPeopleAreListed()
{
    QVector<ExportRow> lines;
    for (int i = 0; i <= PeopleSearch::kMost; ++i)
        lines += SampleExport::newcomer(4000 + i);
    m_site.exportFile().write(lines);
    const ToolRun run = m_site.explain("mala");
    QCOMPARE(people(run).size(), PeopleSearch::kMost);
    QCOMPARE(ExplainedSite::sentences(run, "people"),
             QStringList("There are more; these are the first 100."));
}

void TestExplainPeople::withoutAnExportTheDatabaseIsSearched()
{
    m_site.exportFile().remove();
    QCOMPARE(explained(m_site.explain("novakova")), QString("1234.1"));
    QCOMPARE(explained(m_site.explain("1234")), QString("1234.1"));
}

void TestExplainPeople::aDatabaseWithoutPeopleBreaksTheContract()
{
    m_db.hideTable("people");
    const ToolRun run = m_site.explain("mala");
    COMPARE_EXIT(run, ExitStatus::ContractBroken);
    QVERIFY2(run.err.startsWith("mirovahrctl: explain: The database cannot be used: "),
             run.report().constData());
}

QTEST_GUILESS_MAIN(TestExplainPeople)
#include "tst_explainpeople.moc"
