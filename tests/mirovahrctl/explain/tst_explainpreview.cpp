#include "tests/mirovahrctl/preview/previewbench.h"
#include "tests/mirovahrctl/preview/randomsite.h"
#include "tests/mirovahrctl/program/toolrun.h"
#include "tests/support/environmentnumber.h"
#include "tests/worker/support/middayzone.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

#include <ctime>
#include <map>

namespace {

/// How many databases are tested, and the first seed.
const char kCount[] = "MIROVAHR_EXPLAIN_CASES";
const char kSeed[] = "MIROVAHR_EXPLAIN_SEED";
constexpr uint kQuickCount = 8;

/// The payroll ids at the beginning of an export's lines.
QSet<QString> payrollIds(const QByteArray &content)
{
    static const QRegularExpression numbers("^0*([1-9]\\d*)\\|0*([1-9]\\d*)\\|",
                                            QRegularExpression::MultilineOption);
    QSet<QString> ids;
    auto matches = numbers.globalMatch(QString::fromUtf8(content));
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        ids += match.captured(1) + '.' + match.captured(2);
    }
    return ids;
}

/// Without the people whose pid is 0: the uid of a pid is looked up once in the life of a process,
/// and theirs differs from preview to preview.
QByteArray withoutPidZero(const QByteArray &content)
{
    static const QRegularExpression line("^429496729\\|6\\|.*\\n",
                                         QRegularExpression::MultilineOption);
    return QString::fromUtf8(content).remove(line).toUtf8();
}

/// What explain says of one person.
struct Explained {
    QString payrollId;
    QString pid;
    QJsonObject facts;
    QStringList log; ///< what it says that the log will say

    bool isUncertain() const { return facts.value("person") == "uncertain"; }
};

} // namespace

/// explain and preview predict the same changes for a person.
class TestExplainPreview : public QObject {
    Q_OBJECT

public:
    static void initMain() { settleProgram(); }

private Q_SLOTS:
    void initTestCase();
    void bothSayTheSame_data();
    void bothSayTheSame();
    void everyKindOfChangeOccurred();

private:
    Explained explain(const QString &payrollId);
    void compare(const Explained &person, const QVector<PreviewedRow> &rows);
    void compareFact(const Explained &person, const char *fact, const QStringList &words,
                     bool isShown);
    void compareStrangers(const QVector<Explained> &people, const QVector<PreviewedRow> &rows);
    void compareWarnings(const QVector<Explained> &people, const QVector<Finding> &warnings);

    PreviewBench m_bench;
    QSet<QString> m_facts; ///< that said of a change, and were right
};

void TestExplainPreview::initTestCase()
{
    QVERIFY2(m_bench.start(), qPrintable(m_bench.site().errorString()));
}

void TestExplainPreview::bothSayTheSame_data()
{
    addSeeds(kCount, kQuickCount, kSeed);
}

void TestExplainPreview::bothSayTheSame()
{
    QFETCH(quint32, seed);
    TestDatabase &site = m_bench.site();
    RandomSite random(seed);
    site.reset();
    random.fill(site, RandomSite::Programs::None);
    RandomSite(seed).fillLeftBehind(site);
    m_bench.writeIni(random.ini());
    // The synchronisation of preview is always a forced one.
    const bool isForced = seed % 4 != 0;
    site.run(QStringLiteral("REPLACE INTO vars VALUES ('YAV.MHRWorker.forceSync', '%1')")
                 .arg(isForced ? 1 : 0));
    const QByteArray content =
        withoutPidZero(seed % 2 == 0 ? random.exportContent() : random.exportOfFewPeople());
    m_bench.exportFile().writeBytes(content);

    const PreviewResult preview = m_bench.preview();
    QVERIFY2(!preview.refusal, qPrintable(preview.refusal ? preview.refusal->sentence : QString()));
    QVector<Explained> people;
    QSet<QString> ids = payrollIds(content);
    // People who are missing from the export are left alone.
    ids += {"1001.1", "1234.1", "1237.1"};
    for (const QString &id : qAsConst(ids))
        people += explain(id);
    for (const Explained &person : qAsConst(people)) {
        compare(person, preview.rows);
        if (QTest::currentTestFailed()) {
            qWarning("%s in\n%s", qPrintable(person.payrollId), content.constData());
            return;
        }
    }
    compareStrangers(people, preview.rows);
    if (isForced)
        compareWarnings(people, preview.warnings);
}

Explained TestExplainPreview::explain(const QString &payrollId)
{
    const ToolRun run = runTool(QStringList{"explain", payrollId, "--json"} + m_bench.arguments());
    Explained explained;
    explained.payrollId = payrollId;
    explained.facts = run.json().value("facts").toObject();
    explained.pid = QString::number(explained.facts.value("pid").toVariant().toUInt());
    const QJsonArray findings = run.findings();
    for (const QJsonValue &finding : findings) {
        const QString message = finding.toObject().value("message").toString();
        if (message.contains("log says: "))
            explained.log += message.section("log says: ", 1);
    }
    return explained;
}

void TestExplainPreview::compare(const Explained &person, const QVector<PreviewedRow> &rows)
{
    if (person.isUncertain())
        return;
    QString uid =
        m_bench.site().value("SELECT uid FROM people WHERE pid = " + person.pid).toString();
    QHash<QString, QVector<PreviewedRow>> own; // by table
    QVector<PreviewedRow> selections;
    for (const PreviewedRow &row : rows) {
        if (row.table == "people" && row.cell("pid") == person.pid) {
            uid = row.cell("uid");
            own["people"] += row;
        }
        if (row.table == "vars" && row.cell("name").endsWith(".selPeople"))
            selections += row;
    }
    for (const PreviewedRow &row : rows) {
        if (row.table != "people" && row.cell("uid") == uid)
            own[row.table] += row;
    }
    const auto any = [](const QVector<PreviewedRow> &some, const char *column) {
        return std::any_of(some.cbegin(), some.cend(),
                           [column](const PreviewedRow &row) { return row.changes(column); });
    };
    const QVector<PreviewedRow> row = own.value("people");
    compareFact(person, "person", {"created"}, !row.isEmpty() && row.first().before.isEmpty());
    compareFact(person, "person", {"merged", "updated"},
                any(row, "edited") && !row.first().before.isEmpty());
    compareFact(person, "lastCalculation", {"back", "forward"},
                any(row, "lastCalc")
                    && !(row.first().before.isEmpty() && row.first().cell("lastCalc") == "0"));
    compareFact(person, "branch", {"joins"}, own.contains("brape"));
    compareFact(person, "calendar", {"planned"}, own.contains("groups_plan"));
    compareFact(person, "balance", {"corrected"}, own.contains("funds_move"));
    compareFact(person, "payrollSettings", {"set"}, own.contains("people_pam"));
    // A new member of a branch is shown to its administrators as well.
    const QVector<PreviewedRow> administrators = own.value("admins_people");
    compareFact(
        person, "supervisor", {"set"},
        std::any_of(administrators.cbegin(), administrators.cend(), [](const PreviewedRow &some) {
            const bool isShownOnly = some.before.isEmpty() && some.after["request"] == "0";
            return some.changes("request") && !isShownOnly;
        }));
    compareFact(
        person, "payroll", {"joins"},
        std::any_of(selections.cbegin(), selections.cend(), [&person](const PreviewedRow &some) {
            return some.after["value"].split(',').contains(person.pid)
                && !some.before["value"].split(',').contains(person.pid);
        }));
    if (person.facts.value("recalculatedDays") == "uncertain")
        return;
    const int days = own.value("atten").size();
    QVERIFY2(person.facts.value("recalculatedDays").toInt() == days, qPrintable(person.payrollId));
}

void TestExplainPreview::compareFact(const Explained &person, const char *fact,
                                     const QStringList &words, bool isShown)
{
    const QString word = person.facts.value(fact).toString();
    if (word == "uncertain")
        return;
    QVERIFY2(words.contains(word) == isShown,
             qPrintable(
                 QStringLiteral("%1: %2 is %3, and preview shows %4 %5")
                     .arg(person.payrollId, fact, word, isShown ? "" : "not", words.join(" or "))));
    if (isShown)
        m_facts += fact;
}

/// Nothing changes for people who were not explained.
void TestExplainPreview::compareStrangers(const QVector<Explained> &people,
                                          const QVector<PreviewedRow> &rows)
{
    QSet<QString> pids;
    for (const Explained &person : people)
        pids += person.pid;
    QHash<QString, QString> pidOf; // by uid
    const TableRows known = m_bench.site().rows("SELECT uid, pid FROM people");
    for (const QStringList &row : known)
        pidOf[row.at(0)] = row.at(1);
    for (const PreviewedRow &row : rows) {
        if (row.table == "people")
            pidOf[row.cell("uid")] = row.cell("pid");
    }
    static const QSet<QString> tables{"people",     "atten",         "brape",     "groups_plan",
                                      "funds_move", "admins_people", "people_pam"};
    for (const PreviewedRow &row : rows) {
        QVERIFY2(!tables.contains(row.table) || pids.contains(pidOf.value(row.cell("uid"))),
                 qPrintable(row.table + " " + row.cell("uid")));
    }
}

/// The plugin's warnings in preview are those that explain predicts, except for people whose row
/// may or may not be written.
void TestExplainPreview::compareWarnings(const QVector<Explained> &people,
                                         const QVector<Finding> &warnings)
{
    QStringList logged;
    for (const Finding &warning : warnings)
        logged += warning.message;
    QStringList foretold;
    QStringList uncertain;
    for (const Explained &person : people) {
        foretold += person.log;
        if (person.isUncertain())
            uncertain += {'(' + person.payrollId + ')', '\'' + person.payrollId + ' ',
                          '(' + person.payrollId + ' ', ' ' + person.pid};
    }
    const auto isOfUncertain = [&uncertain](const QString &text) {
        return std::any_of(uncertain.cbegin(), uncertain.cend(),
                           [&text](const QString &mark) { return text.contains(mark); });
    };
    static const QRegularExpression elsewhere("Testing mode is active|parts count \\(");
    for (const QString &text : qAsConst(logged)) {
        QVERIFY2(foretold.contains(text) || isOfUncertain(text) || elsewhere.match(text).hasMatch(),
                 qPrintable(text));
    }
    for (const QString &text : qAsConst(foretold))
        QVERIFY2(logged.contains(text) || isOfUncertain(text), qPrintable(text));
}

void TestExplainPreview::everyKindOfChangeOccurred()
{
    if (environmentNumber(kCount, kQuickCount) < kQuickCount)
        return;
    for (const char *fact : {"person", "lastCalculation", "branch", "calendar", "balance",
                             "payrollSettings", "supervisor", "payroll"})
        QVERIFY2(m_facts.contains(fact), fact);
}

QTEST_GUILESS_MAIN(TestExplainPreview)
#include "tst_explainpreview.moc"
