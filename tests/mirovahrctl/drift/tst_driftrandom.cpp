#include "tests/mirovahrctl/drift/driftedsite.h"
#include "tests/mirovahrctl/preview/previewbench.h"
#include "tests/mirovahrctl/preview/randomsite.h"
#include "tests/support/environmentnumber.h"
#include "worker/exportline.h"

#include <QSet>
#include <QTest>

namespace {

constexpr char kSeed[] = "MIROVAHR_DRIFT_SEED";
constexpr char kCount[] = "MIROVAHR_DRIFT_SITES";
constexpr uint kQuickCount = 25;

/// The lines of an export without those of people who have another line before, or no pid.
QByteArray onePerPerson(const QByteArray &content)
{
    QByteArray lines;
    QSet<quint32> pids;
    const QList<QByteArray> all = content.split('\n');
    for (const QByteArray &line : all) {
        const QString text = ExportLine::decode(line.constData());
        const auto parts = ExportLine::split(text, ExportLine::kSeparator);
        if (parts.size() != ExportLine::kFieldCount)
            continue;
        const quint32 pid = ExportLine::toRecord(parts).getPid();
        if (pid != 0 && !pids.contains(pid))
            lines += line + '\n';
        pids += pid;
    }
    return lines;
}

} // namespace

/// Random people whom the plugin has created, and random losses.
class TestDriftRandom : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void lossesAreNamedAndMended_data() { addSeeds(kCount, kQuickCount, kSeed); }
    void lossesAreNamedAndMended();
    void everyLossOccurred();

private:
    void lose(quint32 seed);
    DatabaseState state();

    PreviewBench m_bench;
    DriftedSite m_site{m_bench.site()};
    QSet<QString> m_rules;
};

void TestDriftRandom::initTestCase()
{
    QVERIFY2(m_bench.start(), qPrintable(m_bench.site().errorString()));
}

DatabaseState TestDriftRandom::state()
{
    return m_bench.site().dumpAll({"term_sync", "vars"});
}

/// Some rows of each kind, by their ids.
void TestDriftRandom::lose(quint32 seed)
{
    TestDatabase &site = m_bench.site();
    const QString some = QStringLiteral(" (uid * 7 + %1) % 3 = ").arg(seed % 1000);
    site.run("UPDATE admins_people SET request = 0 WHERE request AND" + some + "0");
    site.run("DELETE FROM admins_people WHERE" + some + "1");
    site.run("UPDATE people SET type = type ^ 1 WHERE type < 2 AND" + some + "2");
    site.run("DELETE FROM people_pam WHERE" + some + "1");
    site.run("DELETE FROM people_term WHERE" + some + "2");
    site.run("UPDATE vars SET value = '' WHERE name LIKE '%selPeople'");
    site.run("UPDATE term SET syn = syn & ~2 WHERE tid % 2 = " + QString::number(seed % 2));
}

void TestDriftRandom::lossesAreNamedAndMended()
{
    QFETCH(quint32, seed);
    TestDatabase &site = m_bench.site();
    RandomSite random(seed);
    site.reset();
    for (const char *const table : {"people", "people_pam", "brape", "groups_plan", "groups_month",
                                    "atten", "funds_move", "admins_people", "people_term"})
        site.run(QStringLiteral("DELETE FROM %1").arg(table));
    site.run("UPDATE vars SET value = '' WHERE name LIKE '%selPeople'");
    site.run("UPDATE admins SET personalNumber = NULL WHERE aid = 4");
    m_site.configure({});
    m_bench.writeIni();
    m_bench.exportFile().writeBytes(
        onePerPerson(random.exportContent(RandomSite::Texts::Harmless)));
    // The second one corrects the balances of the people whom the first one has created.
    QCOMPARE(m_bench.synchroniseSite(), QString());
    QCOMPARE(m_bench.synchroniseSite(), QString());

    const QString path = m_bench.exportFile().path();
    ToolRun run = m_site.drift(path);
    QVERIFY2(run.findings().isEmpty(), run.report().constData());

    const DatabaseState before = state();
    lose(seed);
    run = m_site.drift(path);
    for (const QString &rule : run.rules())
        m_rules += rule;
    QVERIFY2(m_site.mend(), qPrintable(site.server().errorString()));
    QCOMPARE(TestDatabase::difference(before, state()), QString());
    run = m_site.drift(path);
    QVERIFY2(run.findings().isEmpty(), run.report().constData());
}

void TestDriftRandom::everyLossOccurred()
{
    if (environmentNumber(kCount, kQuickCount) < kQuickCount)
        return;
    QStringList rules = m_rules.values();
    rules.sort();
    QCOMPARE(rules,
             (QStringList{"administrator-missing", "employment-type", "payroll-binding",
                          "payroll-selection", "supervisor-missing", "terminal-missing",
                          "terminal-not-marked"}));
}

QTEST_GUILESS_MAIN(TestDriftRandom)
#include "tst_driftrandom.moc"
