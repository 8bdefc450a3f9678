#include "tests/mirovahrctl/explain/observedperson.h"
#include "tests/mirovahrctl/preview/previewbench.h"
#include "tests/mirovahrctl/preview/randomsite.h"
#include "tests/mirovahrctl/program/toolrun.h"
#include "tests/support/environmentnumber.h"
#include "tests/worker/support/middayzone.h"
#include "worker/exportline.h"

#include <QCoreApplication>
#include <QSet>
#include <QTest>

#include <ctime>
#include <map>
#include <memory>
#include <optional>

namespace {

/// How many databases are tested, and the first seed.
const char kCount[] = "MIROVAHR_EXPLAIN_CASES";
const char kSeed[] = "MIROVAHR_EXPLAIN_SEED";
constexpr uint kQuickCount = 30;

constexpr const char *kLineFacts[] = {"person",     "payroll", "payrollSettings", "balance",
                                      "supervisor", "branch",  "calendar"};

/// The records that the plugin reads in an export, in their order.
QVector<MirovaRonRecord> recordsOf(const QByteArray &content)
{
    QVector<MirovaRonRecord> records;
    const QList<QByteArray> lines = content.split('\n');
    for (const QByteArray &line : lines) {
        const QString text = ExportLine::decode(line.constData());
        const ExportLine::Parts parts = ExportLine::split(text, ExportLine::kSeparator);
        if (parts.size() != ExportLine::kFieldCount)
            continue;
        const MirovaRonRecord record = ExportLine::toRecord(parts);
        if (ExportLine::isUsable(record))
            records += record;
    }
    return records;
}

/// One person of an export: the explanation and the observation.
struct Person {
    QString payrollId;
    QJsonObject facts;
    QJsonArray lines; ///< empty when there is one only
    std::unique_ptr<ObservedPerson> observed;
    QVector<MirovaRonRecord> records;

    /// How many of the records wait afterwards, equal ones counted once.
    int waiting() const;
};

int Person::waiting() const
{
    if (lines.isEmpty())
        return facts.value("waits").toBool() ? 1 : 0;
    QVector<MirovaRonRecord> waiting;
    for (int i = 0; i < lines.size(); ++i) {
        if (lines.at(i).toObject().value("waits").toBool() && !waiting.contains(records.at(i)))
            waiting += records.at(i);
    }
    return waiting.size();
}

} // namespace

/// For people with several lines in random exports, the plugin does what the facts of explain say.
class TestExplainRandom : public QObject {
    Q_OBJECT

public:
    static void initMain() { settleProgram(); }

private Q_SLOTS:
    void initTestCase();
    void theFactsAreWhatHappens_data();
    void theFactsAreWhatHappens();
    void everyWordOccurred();

private:
    using People = std::map<quint32, Person>;

    void explain(Person &person);
    void observe(People &people, const QVector<MirovaRonRecord> &records, bool isForced);
    void compare(const Person &person);
    void compareFact(const QString &fact, const QJsonObject &explained,
                     const QJsonObject &observed);

    PreviewBench m_bench;
    QSet<QString> m_words; ///< such as "person created"
};

void TestExplainRandom::initTestCase()
{
    QVERIFY2(m_bench.start(), qPrintable(m_bench.site().errorString()));
}

void TestExplainRandom::theFactsAreWhatHappens_data()
{
    addSeeds(kCount, kQuickCount, kSeed);
}

void TestExplainRandom::theFactsAreWhatHappens()
{
    QFETCH(quint32, seed);
    const bool isForced = seed % 3 == 0;
    TestDatabase &site = m_bench.site();
    RandomSite random(seed);
    site.reset();
    random.fill(site, RandomSite::Programs::None);
    site.run(QStringLiteral("REPLACE INTO vars VALUES ('YAV.MHRWorker.forceSync', '%1')")
                 .arg(isForced ? 1 : 0));
    m_bench.writeIni(random.ini());
    const QByteArray content = random.exportOfFewPeople();
    m_bench.exportFile().writeBytes(content);

    const QVector<MirovaRonRecord> records = recordsOf(content);
    People people;
    for (const MirovaRonRecord &record : records)
        people[record.getPid()].payrollId = record.getPamId();
    for (auto &person : people) {
        person.second.observed = std::make_unique<ObservedPerson>(site, person.first);
        explain(person.second);
    }
    site.clearStatements();
    QCOMPARE(m_bench.synchroniseSite(), QString());
    observe(people, records, isForced);
    int waiting = 0;
    for (const auto &person : people) {
        waiting += person.second.waiting();
        compare(person.second);
        if (QTest::currentTestFailed()) {
            qWarning("%s in\n%s\n%s", qPrintable(person.second.payrollId), content.constData(),
                     qPrintable(m_bench.siteLog().join('\n')));
            return;
        }
    }
    QCOMPARE(
        m_bench.siteLog()
            .filter(QStringLiteral("END synchronization #1 (waiting records: %1)").arg(waiting))
            .size(),
        1);
}

void TestExplainRandom::explain(Person &person)
{
    const ToolRun run =
        runTool(QStringList{"explain", person.payrollId, "--json"} + m_bench.arguments());
    QVERIFY2(run.status == ExitStatus::Fine || run.status == ExitStatus::Findings,
             run.report().constData());
    person.facts = run.json().value("facts").toObject();
    const QJsonArray sections = run.json().value("sections").toArray();
    person.lines = sections.last().toObject().value("tables").toObject().value("lines").toArray();
}

void TestExplainRandom::observe(People &people, const QVector<MirovaRonRecord> &records,
                                bool isForced)
{
    const QVector<QStringList> parts = ObservedPerson::parts(m_bench.siteLog());
    QCOMPARE(parts.size(), records.size() + 1);
    for (int i = 0; i < records.size(); ++i) {
        Person &person = people.at(records.at(i).getPid());
        const bool isSame = !person.records.isEmpty() && person.records.last() == records.at(i);
        person.observed->see(parts.at(i + 1), isSame && !isForced);
        person.records += records.at(i);
    }
    const QStringList statements = m_bench.site().statements();
    for (auto &person : people)
        person.second.observed->finish(statements);
}

void TestExplainRandom::compare(const Person &person)
{
    if (person.facts.value("person") == "uncertain")
        return;
    const QJsonObject observed = person.observed->facts();
    for (const QString &fact : observed.keys())
        compareFact(fact, person.facts, observed);
    if (person.lines.isEmpty())
        return;
    QCOMPARE(person.lines.size(), person.observed->records().size());
    for (int i = 0; i < person.lines.size(); ++i) {
        for (const char *fact : kLineFacts)
            compareFact(fact, person.lines.at(i).toObject(), person.observed->records().at(i));
    }
}

/// The plugin treats it as a failure when merging a line changes nothing, which depends on the
/// second in which it happens, and then skips the remaining steps.
static bool mayEndEarly(const QString &fact, const QJsonObject &explained)
{
    return (explained.value("person") == "created" || explained.value("person") == "merged")
        && (fact == "supervisor" || fact == "payrollSettings");
}

void TestExplainRandom::compareFact(const QString &fact, const QJsonObject &explained,
                                    const QJsonObject &observed)
{
    const QString word = explained.value(fact).toVariant().toString();
    const QString actual = observed.value(fact).toVariant().toString();
    const bool changesNothing = word == "kept" || word == "unknown";
    const bool isRight = word == actual
        || (mayEndEarly(fact, explained)
            && (word == "uncertain" || (changesNothing && actual == "none")));
    QVERIFY2(isRight,
             qPrintable(QStringLiteral("%1: explained %2, observed %3").arg(fact, word, actual)));
    m_words += fact + ' ' + word;
}

void TestExplainRandom::everyWordOccurred()
{
    if (environmentNumber(kCount, kQuickCount) < kQuickCount)
        return;
    for (const char *word :
         {"person created",          "person merged",        "person updated",
          "person unchanged",        "person never-created", "person test-mode",
          "payroll joins",           "payroll member",       "payrollSettings set",
          "payrollSettings kept",    "balance corrected",    "balance equal",
          "balance later",           "balance impossible",   "balance kept",
          "balance no-fund",         "supervisor set",       "supervisor kept",
          "supervisor unknown",      "branch joins",         "branch member",
          "branch unknown",          "calendar planned",     "calendar kept",
          "calendar unknown",        "lastCalculation kept", "lastCalculation back",
          "lastCalculation forward", "recalculation none"})
        QVERIFY2(m_words.contains(word), word);
}

QTEST_GUILESS_MAIN(TestExplainRandom)
#include "tst_explainrandom.moc"
