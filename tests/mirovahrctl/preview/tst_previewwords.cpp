#include "mirovahrctl/preview/previewvalues.h"
#include "tests/mirovahrctl/preview/previewbench.h"
#include "tests/support/localzone.h"
#include "tests/worker/support/middayzone.h"
#include "tests/worker/support/sampleexport.h"

#include <QCoreApplication>
#include <QTest>

#include <ctime>

/// How preview describes each kind of difference.
class TestPreviewWords : public QObject {
    Q_OBJECT

public:
    static void initMain() { settleProgram(); }

private Q_SLOTS:
    void initTestCase();
    void init();

    void anExportWithoutPeopleChangesNothing();
    void aMomentHasItsOffsetAndADayHasNone();
    void aNameThatChanges();
    void aNewPerson();
    void aPersonWhoMoves();
    void aBalanceThatIsCorrected();
    void anotherSupervisor();
    void anotherCalendar();
    void theForceFlagIsWrittenBack();
    void whatATriggerDoes();
    void whatThePluginWarnsOf();
    void whatOthersHaveDoneIsNoDifference();
    void theStatementsMakeExactlyTheDescribedChanges();
    void numbersOfRowsAreLeftToTheServer();
    void aNumberOfItsOwnInEveryRowIsNoDifference();

private:
    /// The lines of a preview with one line of an export.
    QString described(const ExportRow &line,
                      const QString &account = QStringLiteral("mirovahrctl"));

    PreviewBench m_bench;
};

void TestPreviewWords::initTestCase()
{
    QVERIFY2(m_bench.start(), qPrintable(m_bench.site().errorString()));
}

void TestPreviewWords::init()
{
    m_bench.site().reset();
    m_bench.writeIni();
}

QString TestPreviewWords::described(const ExportRow &line, const QString &account)
{
    m_bench.writeExport({line});
    const PreviewResult result = m_bench.preview(account);
    return result.refusal ? result.refusal->sentence : result.described().join('\n');
}

void TestPreviewWords::anExportWithoutPeopleChangesNothing()
{
    m_bench.exportFile().writeBytes("broken\n");
    const PreviewResult result = m_bench.preview();
    QVERIFY(!result.refusal);
    QCOMPARE(result.changes, 0);
    QCOMPARE(result.described(), QStringList());
}

void TestPreviewWords::aMomentHasItsOffsetAndADayHasNone()
{
    const LocalZone zone("Europe/Bratislava");
    QCOMPARE(PreviewValues::time("1800000000"), QString("2027-01-15T09:00:00+01:00"));
    QCOMPARE(PreviewValues::time("1799967600"), QString("2027-01-15"));
}

void TestPreviewWords::aNameThatChanges()
{
    QCOMPARE(described(SampleExport::jana().with(&ExportRow::prijmeni, "Malá")),
             QString("changed-people | 1234.1 Jana Malá | surname | Nováková -> Malá\n"
                     "changed-people | 1234.1 Jana Malá | last changed |  -> now\n"
                     "terminals | terminal 1 (Sklad) | has to fetch | nothing -> people\n"
                     "terminals | 1234.1 Jana Malá | is queued for terminal 1 (Sklad) |  -> "));
}

void TestPreviewWords::aNewPerson()
{
    const ExportRow line = SampleExport::newcomer(6001)
                               .with(&ExportRow::datumNastupu, QDate(2024, 5, 1))
                               .with(&ExportRow::kalendarPlatnostOd, QDate(2024, 6, 1));
    QCOMPARE(described(line),
             QString("new-people | 6001.1 Eva Malá | is created |  -> \n"
                     "new-people | 6001.1 Eva Malá | uid |  -> 9\n"
                     "new-people | 6001.1 Eva Malá | pid |  -> 60011\n"
                     "new-people | 6001.1 Eva Malá | payroll id |  -> 6001.1\n"
                     "new-people | 6001.1 Eva Malá | first name |  -> Eva\n"
                     "new-people | 6001.1 Eva Malá | surname |  -> Malá\n"
                     "new-people | 6001.1 Eva Malá | employed from |  -> 2024-05-01\n"
                     "new-people | 6001.1 Eva Malá | created |  -> now\n"
                     "new-people | 6001.1 Eva Malá | employment type |  -> 1\n"
                     "new-people | 6001.1 Eva Malá | department |  -> 1\n"
                     "new-people | 6001.1 Eva Malá | HR's calendar |  -> 1\n"
                     "new-people | 6001.1 Eva Malá | home branch |  -> Sklad\n"
                     "new-people | 6001.1 Eva Malá | active |  -> yes\n"
                     "payroll | 6001.1 Eva Malá | settings of the payroll export |  -> 1\n"
                     "branches | 6001.1 Eva Malá | joins the branch Sklad |  -> \n"
                     "calendars | 6001.1 Eva Malá | calendar group from 2024-06 on |  -> group 11 "
                     "(calendar 1)\n"
                     "supervisors | 6001.1 Eva Malá | is shown to administrator 1 (1001.1 Mária "
                     "Kováčová) |  -> \n"
                     "supervisors | 6001.1 Eva Malá | is shown to administrator 4 |  -> \n"
                     "terminals | terminal 1 (Sklad) | has to fetch | nothing -> people\n"
                     "terminals | terminal 2 (Sklad) | has to fetch | nothing -> people\n"
                     "terminals | 6001.1 Eva Malá | is queued for terminal 1 (Sklad) |  -> \n"
                     "terminals | 6001.1 Eva Malá | is queued for terminal 2 (Sklad) |  -> \n"
                     "terminals | 6001.1 Eva Malá | is known to terminal 1 (Sklad) |  -> \n"
                     "terminals | 6001.1 Eva Malá | is known to terminal 2 (Sklad) |  -> \n"
                     "payroll | 6001.1 Eva Malá | is selected for exportPam.1 |  -> "));
}

void TestPreviewWords::aPersonWhoMoves()
{
    QCOMPARE(
        described(SampleExport::peter().with(&ExportRow::stredisko, 120)),
        QString("changed-people | 1002.1 Peter Horváth | last changed |  -> now\n"
                "changed-people | 1002.1 Peter Horváth | home branch | Predajňa -> Sklad\n"
                "recalculation | 1002.1 Peter Horváth | attendance recalculated from | 2025-04-01 "
                "-> 2016-09-01\n"
                "branches | 1002.1 Peter Horváth | joins the branch Sklad |  -> \n"
                "calendars | 1002.1 Peter Horváth | calendar group from 2016-09 on | group 21 "
                "(calendar 1) -> group 11 (calendar 1)\n"
                "supervisors | 1002.1 Peter Horváth | is shown to administrator 1 (1001.1 Mária "
                "Kováčová) |  -> \n"
                "supervisors | 1002.1 Peter Horváth | is shown to administrator 4 |  -> \n"
                "terminals | terminal 1 (Sklad) | has to fetch | nothing -> people\n"
                "terminals | terminal 2 (Sklad) | has to fetch | nothing -> people\n"
                "terminals | terminal 4 (Predajňa) | has to fetch | nothing -> people\n"
                "terminals | 1002.1 Peter Horváth | is queued for terminal 1 (Sklad) |  -> \n"
                "terminals | 1002.1 Peter Horváth | is queued for terminal 2 (Sklad) |  -> \n"
                "terminals | 1002.1 Peter Horváth | is queued for terminal 4 (Predajňa) |  -> \n"
                "terminals | 1002.1 Peter Horváth | is known to terminal 1 (Sklad) |  -> \n"
                "terminals | 1002.1 Peter Horváth | is known to terminal 2 (Sklad) |  -> "));
}

void TestPreviewWords::aBalanceThatIsCorrected()
{
    QCOMPARE(
        described(SampleExport::maria().with(&ExportRow::dovolenaZustatek, "22.25")),
        QString(
            "changed-people | 1001.1 Mária Kováčová | last changed |  -> now\n"
            "balances | 1001.1 Mária Kováčová | vacation balance corrected on %1 by |  -> +2.25 "
            "days\n"
            "terminals | terminal 1 (Sklad) | has to fetch | nothing -> people\n"
            "terminals | 1001.1 Mária Kováčová | is queued for terminal 1 (Sklad) |  -> ")
            .arg(QDate::currentDate().toString(Qt::ISODate)));
}

void TestPreviewWords::anotherSupervisor()
{
    QCOMPARE(
        described(SampleExport::jan().with(&ExportRow::nadrizenyOsobniCislo, 1002)),
        QString("changed-people | 1235.1 Ján Szabó | last changed |  -> now\n"
                "supervisors | 1235.1 Ján Szabó | requests no longer go to administrator 1 (1001.1 "
                "Mária Kováčová) |  -> \n"
                "supervisors | 1235.1 Ján Szabó | requests go to administrator 2 (1002.1 Peter "
                "Horváth) |  -> \n"
                "terminals | terminal 1 (Sklad) | has to fetch | nothing -> people\n"
                "terminals | 1235.1 Ján Szabó | is queued for terminal 1 (Sklad) |  -> "));
}

void TestPreviewWords::anotherCalendar()
{
    QCOMPARE(
        described(SampleExport::jan()
                      .with(&ExportRow::kalendar, 3)
                      .with(&ExportRow::kalendarPlatnostOd, QDate(2025, 2, 1))),
        QString("changed-people | 1235.1 Ján Szabó | last changed |  -> now\n"
                "changed-people | 1235.1 Ján Szabó | HR's calendar | 2 -> 3\n"
                "recalculation | 1235.1 Ján Szabó | attendance recalculated from | 2025-04-01 -> "
                "2025-02-01\n"
                "recalculation | 1235.1 Ján Szabó | attendance of 2025-03-03 | calculated -> to be "
                "calculated\n"
                "recalculation | 1235.1 Ján Szabó | attendance of 2025-03-04 | calculated -> to be "
                "calculated\n"
                "recalculation | 1235.1 Ján Szabó | attendance of 2025-03-05 | calculated -> to be "
                "calculated\n"
                "calendars | 1235.1 Ján Szabó | calendar group from 2025-02 on |  -> group 13 "
                "(calendar 3)\n"
                "calendars | 1235.1 Ján Szabó | calendar group in 2025-03 | group 12 (calendar 2) "
                "-> group 13 (calendar 3)\n"
                "terminals | terminal 1 (Sklad) | has to fetch | nothing -> people\n"
                "terminals | 1235.1 Ján Szabó | is queued for terminal 1 (Sklad) |  -> "));
}

void TestPreviewWords::theForceFlagIsWrittenBack()
{
    m_bench.site().run("DELETE FROM vars WHERE name LIKE '%forceSync'");
    QCOMPARE(described(SampleExport::tomas()),
             QString("changed-people | 2001.2 Tomáš Baláž | last changed |  -> now\n"
                     "settings | YAV.MHRWorker.forceSync | value |  -> 0"));
}

void TestPreviewWords::whatATriggerDoes()
{
    m_bench.site().run("CREATE TRIGGER t AFTER UPDATE ON people FOR EACH ROW BEGIN "
                       "DELETE FROM brape WHERE uid = NEW.uid; "
                       "DELETE FROM people_term WHERE uid = NEW.uid; "
                       "UPDATE branches SET note = 'x' WHERE bid = 1; "
                       "DELETE FROM bradm WHERE bid = 2; "
                       "UPDATE brape SET since = UNIX_TIMESTAMP('2024-01-01') WHERE uid = 5; END");
    QCOMPARE(
        described(SampleExport::jana().with(&ExportRow::datumVystupu, QDate(2026, 1, 31)), "root"),
        QString("changed-people | 1234.1 Jana Nováková | employed until |  -> 2026-01-31\n"
                "changed-people | 1234.1 Jana Nováková | last changed |  -> now\n"
                "other | branches bid 1 | note |  -> x\n"
                "branches | 1234.1 Jana Nováková | leaves the branch Sklad, in it since | "
                "2019-04-01 -> \n"
                "branches | 1235.1 Ján Szabó | is in the branch Sklad since | 2020-06-15 -> "
                "2024-01-01\n"
                "other | bradm bid 2, aid 2 | removed row: bid | 2 -> \n"
                "other | bradm bid 2, aid 2 | removed row: aid | 2 -> \n"
                "terminals | 1234.1 Jana Nováková | is forgotten by terminal 1 (Sklad) |  -> \n"
                "terminals | 1234.1 Jana Nováková | is forgotten by terminal 3 (Sklad) |  -> "));
}

void TestPreviewWords::whatThePluginWarnsOf()
{
    m_bench.writeIni("testMode=1");
    m_bench.exportFile().write(QStringList{
        SampleExport::jana().with(&ExportRow::stredisko, 150).text(), QStringLiteral("broken")});
    const PreviewResult result = m_bench.preview();
    const QStringList expected{
        "plugin-warning: MHRWorker::parseLine() - parts count (1) <> fields count(18) - line "
        "skipped!",
        "plugin-warning: MHRWorker::dbUpdatePerson(1234.1) - Testing mode is active, person not "
        "really update!"};
    QCOMPARE(result.warned().mid(0, 2), expected);
    QVERIFY(result.warned().at(2).startsWith(
        "plugin-warning: MHRWorker: Branch '150' NOT FOUND for employee: '1234.1 Nováková Jana "));
    QCOMPARE(result.warned().size(), 3);
}

void TestPreviewWords::whatOthersHaveDoneIsNoDifference()
{
    m_bench.site().run("INSERT INTO term_sync VALUES (1, 'U', 'people', 'uid', 4, NULL, NULL, 1, "
                       "2), (1, 'U', 'people', 'uid', 4, NULL, NULL, 1, 2)");
    m_bench.site().run("INSERT INTO term_sync SELECT tid, type, ref, ref_col, ref_id, ref_col2, "
                       "ref_id2, UNIX_TIMESTAMP() + 100, flags FROM term_sync");
    QCOMPARE(described(SampleExport::tomas()),
             QString("changed-people | 2001.2 Tomáš Baláž | last changed |  -> now"));
}

void TestPreviewWords::theStatementsMakeExactlyTheDescribedChanges()
{
    m_bench.site().run("UPDATE people SET title2 = 'O''Neill\\\\' WHERE uid = 4");
    m_bench.site().run("CREATE TRIGGER t BEFORE UPDATE ON people FOR EACH ROW "
                       "SET NEW.title2 = CONCAT(OLD.title2, NEW.title), NEW.gid = NULL");
    m_bench.writeExport({SampleExport::jana().with(&ExportRow::jmeno, "Ján")});
    const QString sql = m_bench.preview("root").sql;
    const QStringList statements =
        sql.section("START TRANSACTION;\n", 1).section("\nCOMMIT;", 0, 0).split('\n');
    const QStringList expected{
        "UPDATE `people` SET `name` = 'Ján', `title2` = _utf8mb4 X'4f274e65696c6c5c496e672e', "
        "`edited` = UNIX_TIMESTAMP(), `gid` = NULL WHERE `uid` <=> 4;",
        "UPDATE `term` SET `syn` = 2 WHERE `tid` <=> 1;",
        "INSERT INTO `term_sync` (`tid`, `type`, `ref`, `ref_col`, `ref_id`, `ref_col2`, "
        "`ref_id2`, `created`, `flags`) VALUES (1, 'U', 'people', 'uid', 4, NULL, NULL, "
        "UNIX_TIMESTAMP(), 2);"};
    QCOMPARE(statements.join('\n'), expected.join('\n'));
    QVERIFY(sql.contains("-- The effects of triggers are included: triggers must not fire again "
                         "when this is run.\n"));
}

void TestPreviewWords::numbersOfRowsAreLeftToTheServer()
{
    m_bench.writeExport({SampleExport::jana().with(&ExportRow::jmeno, "Ján"),
                         SampleExport::jan().with(&ExportRow::dovolenaZustatek, "3.5")});
    const auto changes = [this] {
        const PreviewResult result = m_bench.preview();
        return result.refusal
            ? result.refusal->sentence
            : result.described().join('\n') + result.sql.section("START TRANSACTION;", 1);
    };
    const QString usual = changes();
    QVERIFY2(usual.contains("INSERT INTO `term_sync` (`tid`, "), qPrintable(usual));
    QVERIFY2(usual.contains("INSERT INTO `funds_move` ("), qPrintable(usual));
    QVERIFY2(!usual.contains("`id`"), qPrintable(usual));
    m_bench.site().removeOwnNumbers();
    QCOMPARE(changes(), usual);
    m_bench.site().run("ALTER TABLE term_sync ADD number INT NOT NULL AUTO_INCREMENT UNIQUE FIRST");
    QCOMPARE(changes(), usual);
}

void TestPreviewWords::aNumberOfItsOwnInEveryRowIsNoDifference()
{
    m_bench.writeExport({SampleExport::jana().with(&ExportRow::jmeno, "Ján"),
                         SampleExport::jan().with(&ExportRow::dovolenaZustatek, "3.5")});
    const QStringList usual = m_bench.preview().described();
    QVERIFY(usual.size() > 2);
    m_bench.site().addOwnNumbers();
    const PreviewResult result = m_bench.preview();
    QCOMPARE(result.refusal ? result.refusal->sentence : QString(), QString());
    QCOMPARE(result.described().join('\n'), usual.join('\n'));
}

QTEST_GUILESS_MAIN(TestPreviewWords)
#include "tst_previewwords.moc"
