#include "cli/text.h"
#include "mirovahrctl/gate/gateassessment.h"
#include "mirovahrctl/report/language.h"
#include "mirovahrctl/report/rules/checkfilerules.h"
#include "mirovahrctl/report/rules/gaterules.h"
#include "tests/docs/markdown.h"
#include "tests/mirovahrctl/explain/explainedsite.h"
#include "tests/mirovahrctl/gate/gatesite.h"
#include "tests/mirovahrctl/program/toolrun.h"
#include "tests/support/testdatabase.h"

#include <QMap>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

/// The guide for the clerk of the HR department, against what check-file and the gate print in
/// Slovak.
class TestClerksGuide : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();

    void everySentenceAboutALineIsExplained();
    void everySentenceAboutAFileIsExplained();
    void everySentenceOfTheGateIsExplained();
    void everyRuleIsExplained();
    void theExampleIsPrinted();
    void theGuideFitsOnTwoPages();

private:
    QStringList checkFile(const QByteArray &content);
    QStringList gate(const QVector<ExportRow> &admitted, const QByteArray &delivered);
    QStringList ofLines();
    QStringList ofFiles();
    QStringList ofTheGate();
    QStringList messages(const ToolRun &run);

    TestDatabase m_database;
    ExplainedSite m_site{m_database};
    QSet<QString> m_rules; ///< of everything that was printed
};

namespace {

using Row = ExportRow;

const QString kGuide = QStringLiteral("docs/sk/odmietnute-riadky.md");

/// What the gate says about its own course: it is no question to the HR department.
const QSet<QString> kForAdministrators{
    "busy", "just-written", "no-baseline", "rejected-lines", "warned-lines", "unchanged", "unread"};

/// What of a table of the guide is not as it must be: each row explains one sentence of the report,
/// and each sentence is explained by one row. In a row "…" stands for any text.
QStringList mismatches(const QString &heading, const QStringList &sentences)
{
    QStringList wrong;
    QMap<QString, int> explained;
    for (const QStringList &row : Markdown::rows(kGuide, heading)) {
        const QString &pattern = row.constFirst();
        const QRegularExpression form(QRegularExpression::anchoredPattern(
            QRegularExpression::escape(pattern).replace(QRegularExpression::escape("…"), ".*")));
        const QStringList found = sentences.filter(form);
        if (found.size() != 1)
            wrong << QStringLiteral("%1 explains %2").arg(pattern, found.join(" / "));
        for (const QString &sentence : found)
            ++explained[sentence];
    }
    for (const QString &sentence : sentences) {
        if (explained.value(sentence) != 1)
            wrong << QStringLiteral("%1 rows explain %2").arg(explained[sentence]).arg(sentence);
    }
    return wrong;
}

QStringList each(QStringList sentences)
{
    sentences.removeDuplicates();
    return sentences;
}

/// A person for each number.
Row person(int number)
{
    return Row().with(&Row::osobniCislo, number);
}

/// A mistake in each line.
QByteArray brokenLines()
{
    const QVector<Row> people{
        person(1001).with(&Row::osobniCislo, ""),
        person(1002).with(&Row::poradoveCisloPP, 0),
        person(1003).with(&Row::jmeno, "").with(&Row::prijmeni, ""),
        person(429496730),
        person(106),
        person(10).with(&Row::poradoveCisloPP, 61),
        person(1006),
        person(1006),
        person(1007).with(&Row::prijmeni, "O'Neil"),
        person(1008).with(&Row::prijmeni, "Nová\\Malá"),
        person(1009).with(&Row::titulZa, "100%1"),
        person(1010).with(&Row::prijmeni, QString::fromUtf8("Nová \xF0\x9F\x98\x80")),
        person(1011).with(&Row::titul, QString(300, 'x')),
        person(1012).with(&Row::datumNastupu, ""),
        person(1013).with(&Row::datumVystupu, "31.3.2021"),
        person(1014).with(&Row::datumVystupu, QDate(2018, 12, 31)),
        person(1015).with(&Row::datumVystupu, QDate(2999, 12, 31)),
        person(1016).with(&Row::stredisko, ""),
        person(1017).with(&Row::dovolenaZustatek, "12,5"),
        person(1018).with(&Row::typPracovnihoPomeru, 70000),
        person(1019).with(&Row::dovolenaZustatek, "1e30"),
    };
    QByteArray lines = GatePeople::file(people);
    lines += "OsobniCislo|" + Row().fields().mid(1).join('|').toUtf8() + '\n';
    lines += person(1021).fields().mid(0, 17).join('|').toUtf8() + '\n';
    lines += "\xEF\xBB\xBF" + person(1022).text().toUtf8() + '\n';
    lines +=
        person(1023).with(&Row::jmeno, "Jan").text().toUtf8().replace("Jan|", "Jan\xE1|") + '\n';
    lines += person(1024).text().toUtf8() + '\0' + '\n';
    return lines + QByteArray(70000, 'x') + '\n';
}

/// 40 people, the first of whom have another value.
QVector<Row> with(int count, QString Row::*field, const QString &value)
{
    QVector<Row> people = GatePeople::some(40);
    for (int i = 0; i < count; ++i)
        people[i].with(field, value);
    return people;
}

/// 40 people with different balances, in such a unit.
QVector<Row> withBalances(int factor)
{
    QVector<Row> people = GatePeople::some(40);
    for (int i = 0; i < people.size(); ++i)
        people[i].with(&Row::dovolenaZustatek, (1 + i % 10) * factor);
    return people;
}

QByteArray changed(int count, QString Row::*field, const QString &value)
{
    return GatePeople::file(with(count, field, value));
}

} // namespace

void TestClerksGuide::initTestCase()
{
    QVERIFY2(m_database.start(), qPrintable(m_database.errorString()));
    m_site.unlockAccount();
}

void TestClerksGuide::cleanup()
{
    Language::use("en");
}

/// The sentences of the findings in their order, without the advice.
QStringList TestClerksGuide::messages(const ToolRun &run)
{
    static const QRegularExpression finding(
        "^(?:[^\n]*?: )?(?:chyba|upozornenie|poznámka): (.*) \\[([-a-z0-9]+)\\]$",
        QRegularExpression::MultilineOption);
    QStringList messages;
    auto matches = finding.globalMatch(run.out);
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        if (kForAdministrators.contains(match.captured(2)))
            continue;
        messages << match.captured(1).replace(QChar::Nbsp, ' ');
        m_rules << match.captured(2);
    }
    if (messages.isEmpty())
        qFatal("Nothing was found: %s", run.report().constData());
    return messages;
}

QStringList TestClerksGuide::checkFile(const QByteArray &content)
{
    m_site.exportFile().writeBytes(content);
    return messages(
        runTool(QStringList{"check-file", m_site.exportFile().path(), "--language", "sk"}
                + m_site.connection()));
}

QStringList TestClerksGuide::ofLines()
{
    return each(checkFile(brokenLines()));
}

QStringList TestClerksGuide::ofFiles()
{
    QStringList printed = checkFile("") + checkFile(Row().text().toUtf8());
    printed += checkFile(QByteArray("\xFF\xFE") + "1\n").mid(0, 1);
    m_rules << CheckFileRules::kRepetitionsNotAllFound.id;
    return each(printed << Text::tr(
                    "Too many people occur more than once: not all of them were compared."));
}

/// What the gate says of a file that is delivered after another one was admitted.
QStringList TestClerksGuide::gate(const QVector<ExportRow> &admitted, const QByteArray &delivered)
{
    GateSite site;
    site.admit(admitted);
    site.deliver(delivered);
    return messages(runTool(site.arguments({"--language", "sk"})));
}

QStringList TestClerksGuide::ofTheGate()
{
    const QVector<Row> people = GatePeople::some(40);
    const QByteArray file = GatePeople::file(people);
    QStringList printed = gate(people, "").mid(0, 1) + gate(people, file.chopped(1))
        + gate(people, file.chopped(20)) + gate(people, GatePeople::file(people.mid(10)))
        + gate(people, file + GatePeople::file(people.mid(30)))
        + gate(people, GatePeople::file(GatePeople::some(60)))
        + gate(people, changed(10, &Row::stredisko, "130"))
        + gate(people, changed(10, &Row::telefon, "555"))
        + gate(people, changed(10, &Row::telefon, ""))
        + gate(people, changed(10, &Row::dovolenaZustatek, "12,5"))
        + gate(people, changed(20, &Row::dovolenaZustatek, "0"))
        + gate(people, changed(20, &Row::dovolenaZustatek, "1250"))
        + gate(withBalances(1), GatePeople::file(withBalances(8)))
        + gate(with(40, &Row::nadrizenyOsobniCislo, "7"),
               changed(40, &Row::nadrizenyOsobniCislo, "8"))
        + gate(with(5, &Row::stavPracovnihoPomeru, "4"), file)
        + gate(people, file + person(1).with(&Row::prijmeni, "O''Neil").text().toUtf8() + '\n');
    GateSite site;
    site.admit(people);
    QFile::remove(site.hrFile());
    printed += messages(runTool(site.arguments({"--language", "sk"})));
    printed.replaceInStrings(site.folder(), "/var/lib/yav");
    for (const GateReason &reason :
         {GateAssessment::tooLong(), GateAssessment::changedMeanwhile()}) {
        printed << reason.finding.message;
        m_rules << reason.finding.rule;
    }
    return each(printed);
}

void TestClerksGuide::everySentenceAboutALineIsExplained()
{
    QCOMPARE(mismatches("Riadok", ofLines()), QStringList());
}

void TestClerksGuide::everySentenceAboutAFileIsExplained()
{
    QCOMPARE(mismatches("Súbor", ofFiles()), QStringList());
}

void TestClerksGuide::everySentenceOfTheGateIsExplained()
{
    QCOMPARE(mismatches("Brána", ofTheGate()), QStringList());
}

/// Those that a clerk meets.
void TestClerksGuide::everyRuleIsExplained()
{
    ofLines();
    ofFiles();
    ofTheGate();
    for (const Rule *const rule : CheckFileRules::kAll)
        QVERIFY2(m_rules.contains(rule->id), rule->id);
    for (const Rule *const rule : GateRules::kAll)
        QVERIFY2(kForAdministrators.contains(rule->id) || m_rules.contains(rule->id), rule->id);
}

/// The lines for HR that the guide begins with.
void TestClerksGuide::theExampleIsPrinted()
{
    static const QRegularExpression reason("^# Riadok .*$", QRegularExpression::MultilineOption);
    const Row eva = person(1246).with(&Row::jmeno, "Eva").with(&Row::prijmeni, "Malá");
    const QStringList lines{person(1).text(),
                            Row(eva).with(&Row::poradoveCisloPP, "x").fields().mid(0, 17).join('|'),
                            person(1247).with(&Row::stredisko, "").text()};
    const QString rejects = m_site.filePath("rejects.txt");
    m_site.exportFile().write(lines);
    runTool({"check-file", m_site.exportFile().path(), "--rejects", rejects, "--language", "sk"});
    const QString printed = QString::fromUtf8(contentOf(rejects));
    auto examples = reason.globalMatch(Markdown::text(kGuide));
    for (int i = 0; i < 2; ++i)
        QVERIFY2(printed.contains(examples.next().captured() + '\n'), qPrintable(printed));
    QVERIFY(!examples.hasNext());
}

/// So many words with their tables do, printed in 10 points.
void TestClerksGuide::theGuideFitsOnTwoPages()
{
    static const QRegularExpression word("\\S*\\w\\S*",
                                         QRegularExpression::UseUnicodePropertiesOption);
    int words = 0;
    auto matches = word.globalMatch(Markdown::text(kGuide));
    for (; matches.hasNext(); matches.next())
        ++words;
    QVERIFY2(words <= 900, qPrintable(QString::number(words)));
}

QTEST_GUILESS_MAIN(TestClerksGuide)
#include "tst_clerksguide.moc"
