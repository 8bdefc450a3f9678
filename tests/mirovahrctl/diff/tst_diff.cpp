#include "tests/mirovahrctl/program/rulefixtures.h"
#include "tests/mirovahrctl/program/toolrun.h"
#include "tests/support/exportfile.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

Q_DECLARE_METATYPE(ExportRow)
Q_DECLARE_METATYPE(QString ExportRow::*)

namespace {

using Row = ExportRow;
using Field = QString Row::*;

const QDate kToday = QDate::currentDate();

/// People with the personal numbers 1000 and up.
QVector<Row> some(int count)
{
    QVector<Row> people;
    for (int i = 0; i < count; ++i)
        people << Row().with(&Row::osobniCislo, 1000 + i);
    return people;
}

/// \a count people who have the balances first, first + step and so on, times a factor.
QVector<Row> withBalances(int count, double first, double step, double factor = 1)
{
    QVector<Row> people = some(count);
    for (int i = 0; i < count; ++i)
        people[i].with(&Row::dovolenaZustatek, QString::number((first + i * step) * factor));
    return people;
}

QJsonObject section(const ToolRun &run, const QString &id)
{
    for (const QJsonValue &candidate : run.json()["sections"].toArray()) {
        if (candidate.toObject()["id"] == id)
            return candidate.toObject();
    }
    return {};
}

QJsonArray table(const ToolRun &run, const QString &sectionId, const QString &id)
{
    return section(run, sectionId)["tables"].toObject()[id].toArray();
}

/// The cells of one column.
QStringList column(const QJsonArray &table, const QString &id)
{
    QStringList cells;
    for (const QJsonValue &row : table)
        cells << row.toObject()[id].toVariant().toString();
    return cells;
}

/// "changed 1" and the like, of the one field that differs; the field's name first.
QStringList summary(const ToolRun &run)
{
    QStringList texts;
    for (const QJsonValue &row : table(run, "fields", "fields")) {
        const QJsonObject field = row.toObject();
        for (const char *kind : {"changed", "emptied", "misread", "repaired"}) {
            if (field[kind].toInt() > 0)
                texts << QString("%1 %2").arg(field["field"].toString(), kind);
        }
    }
    return texts;
}

} // namespace

/// What differs between two exports.
class TestDiff : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_folder.reset(new QTemporaryDir); }

    void aValueIsRecognised_data();
    void aValueIsRecognised();
    void aNewPersonsMisreadValueCounts();
    void peopleAreRecognised_data();
    void peopleAreRecognised();
    void theLastLineOfAPersonCounts();
    void aLineThatNamesNobodyIsNobody();
    void theBalancesAreSummedUp();
    void balancesThatAreMultipliedAlikeAreReported_data();
    void balancesThatAreMultipliedAlikeAreReported();
    void aListIsCutUnlessAllIsWanted();
    void onePersonIsShownOnDemand_data();
    void onePersonIsShownOnDemand();
    void whatThePluginMakesOfAValueIsShown();
    void aBalanceIsShownAsInTheLanguage_data();
    void aBalanceIsShownAsInTheLanguage();
    void theTextReport();
    void equalExportsDifferInNothing();
    void aPageIsWritten();
    void aLargeExportIsCompared();
    void badUsageIsRefused();
    void everyRuleHasItsFixtures();

private:
    QString path(const QString &name) const { return m_folder->filePath(name); }
    ToolRun diff(const QVector<Row> &before, const QVector<Row> &now,
                 const QStringList &options = {"--json"});
    static void write(const QString &path, const QVector<Row> &people);

    QScopedPointer<QTemporaryDir> m_folder;
};

void TestDiff::write(const QString &path, const QVector<Row> &people)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        qFatal("%s cannot be written", qPrintable(path));
    for (const Row &person : people)
        file.write(person.text().toUtf8() + '\n');
}

ToolRun TestDiff::diff(const QVector<Row> &before, const QVector<Row> &now,
                       const QStringList &options)
{
    write(path("before"), before);
    write(path("now"), now);
    return runTool(QStringList{"diff", path("before"), path("now")} + options);
}

void TestDiff::aValueIsRecognised_data()
{
    QTest::addColumn<Field>("field");
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("now");
    QTest::addColumn<QStringList>("expected");
    const auto row = [](const char *name, Field field, const QString &before, const QString &now,
                        const QString &expected) {
        QTest::newRow(name) << field << before << now
                            << (expected.isEmpty() ? QStringList() : QStringList(expected));
    };
    const QString day = "2019-04-01 00:00:00.000";
    const QString past = exportDate(kToday.addDays(-1));
    const QString future = exportDate(kToday.addDays(1));

    row("another surname", &Row::prijmeni, "Nováková", "Tóthová", "Prijmeni changed");
    row("no surname", &Row::prijmeni, "Nováková", "", "Prijmeni emptied");
    row("a surname of broken bytes", &Row::prijmeni, "Nováková", "Nov\uFFFDkov\uFFFD",
        "Prijmeni misread");
    row("a surname encoded twice", &Row::prijmeni, "Nováková",
        QString::fromLatin1(QByteArray("Nováková")), "Prijmeni misread");
    row("a surname encoded twice by way of windows-1250", &Row::prijmeni, "Žiak", "Ĺ˝iak",
        "Prijmeni misread");
    row("capitals that look like bytes", &Row::prijmeni, "Daníšek", "DANÍŠEK", "Prijmeni changed");
    row("a damaged surname in order again", &Row::prijmeni, "Nov\uFFFDk", "Novák",
        "Prijmeni repaired");
    row("a name of the cost centre", &Row::strediskoPopis, "Sklad", "", "StrediskoPopis emptied");

    row("another first day", &Row::datumNastupu, day, "2019-05-01 00:00:00.000",
        "DatumNastupu changed");
    row("the same day at another hour", &Row::datumNastupu, day, "2019-04-01 12:00:00.000", "");
    row("a first day in Czech", &Row::datumNastupu, day, "1.4.2019", "DatumNastupu misread");
    row("a first day before the clock began", &Row::datumNastupu, day, "1969-04-01 00:00:00.000",
        "DatumNastupu changed");
    row("a last day for those who stay", &Row::datumVystupu, "", "9999-12-31 00:00:00.000",
        "DatumVystupu changed");
    row("a calendar's start before the clock began", &Row::kalendarPlatnostOd, day,
        "1969-04-01 00:00:00.000", "KalendarPlatnostOd changed");
    row("no calendar's start", &Row::kalendarPlatnostOd, day, "", "KalendarPlatnostOd emptied");
    row("a last day", &Row::datumVystupu, "", future, "DatumVystupu changed");
    row("a last day that is over is gone", &Row::datumVystupu, past, "", "DatumVystupu emptied");
    row("a last day to come is called off", &Row::datumVystupu, future, "", "DatumVystupu changed");
    row("a last day that is today is called off", &Row::datumVystupu, exportDate(kToday), "",
        "DatumVystupu changed");

    row("another calendar", &Row::kalendar, "3", "4", "Kalendar changed");
    row("a calendar with zeros in front", &Row::kalendar, "3", "003", "");
    row("no calendar", &Row::kalendar, "3", "", "Kalendar emptied");
    row("calendar 0", &Row::kalendar, "3", "0", "Kalendar emptied");
    row("calendar 0 and none", &Row::kalendar, "0", "", "");
    row("a calendar that is no number", &Row::kalendar, "3", "A3", "Kalendar misread");
    row("no cost centre", &Row::stredisko, "120", "0", "Stredisko emptied");
    row("no supervisor", &Row::nadrizenyOsobniCislo, "7", "0", "NadrizenyOsobniCislo emptied");
    row("the first supervisor", &Row::nadrizenyOsobniCislo, "0", "7",
        "NadrizenyOsobniCislo changed");
    row("no type", &Row::typPracovnihoPomeru, "11", "0", "TypPracovnihoPomeru emptied");
    row("state 0", &Row::stavPracovnihoPomeru, "1", "0", "StavPracovnihoPomeru changed");
    row("no state", &Row::stavPracovnihoPomeru, "1", "", "StavPracovnihoPomeru emptied");
    row("a state that wraps", &Row::stavPracovnihoPomeru, "1", "65540",
        "StavPracovnihoPomeru changed");
    row("a state that wraps to the same", &Row::stavPracovnihoPomeru, "1", "65537", "");
    row("register state 0 and none", &Row::evidencniStav, "0", "", "");

    row("another balance", &Row::dovolenaZustatek, "12.5", "12", "DovolenaZustatek changed");
    row("the same balance", &Row::dovolenaZustatek, "12.5", "12.50", "");
    row("the same hundredths", &Row::dovolenaZustatek, "12.501", "12.509", "");
    row("a decimal comma", &Row::dovolenaZustatek, "12.5", "12,5", "DovolenaZustatek misread");
    row("a decimal comma for 0", &Row::dovolenaZustatek, "0", "0,0", "DovolenaZustatek misread");
    row("two decimal commas", &Row::dovolenaZustatek, "12,5", "11,5", "");
    row("a decimal point again", &Row::dovolenaZustatek, "12,5", "11.5",
        "DovolenaZustatek repaired");
    row("no balance", &Row::dovolenaZustatek, "12.5", "", "DovolenaZustatek emptied");
    row("a balance that cannot be stored", &Row::dovolenaZustatek, "12.5", "1e9",
        "DovolenaZustatek changed");
    row("a balance that is no quantity", &Row::dovolenaZustatek, "12.5", "nan",
        "DovolenaZustatek changed");
}

void TestDiff::aValueIsRecognised()
{
    QFETCH(Field, field);
    QFETCH(QString, before);
    QFETCH(QString, now);
    QFETCH(QStringList, expected);
    const ToolRun run = diff({Row().with(field, before)}, {Row().with(field, now)});
    QCOMPARE(summary(run), expected);
    const bool isMisread = expected.join(' ').endsWith("misread");
    COMPARE_EXIT(run, isMisread ? ExitStatus::Findings : ExitStatus::Fine);
    QCOMPARE(run.rules(), isMisread ? QStringList("values-misread") : QStringList());
    if (expected.isEmpty())
        return;
    const QStringList words = expected.first().split(' ');
    const QJsonArray values = table(run, words.first(), words.last());
    QCOMPARE(column(values, "person"), QStringList("1234.1"));
}

void TestDiff::aNewPersonsMisreadValueCounts()
{
    const ToolRun run = diff({}, {Row().with(&Row::dovolenaZustatek, "12,5")});
    QCOMPARE(summary(run), QStringList("DovolenaZustatek misread"));
    const QJsonObject value = table(run, "DovolenaZustatek", "misread")[0].toObject();
    QCOMPARE(value["name"].toString(), QString("Jana Nováková"));
    QVERIFY(value["before"].isNull());
    QCOMPARE(value["now"].toString(), QString("12,5"));
}

void TestDiff::peopleAreRecognised_data()
{
    QTest::addColumn<QVector<ExportRow>>("before");
    QTest::addColumn<QVector<ExportRow>>("now");
    QTest::addColumn<QStringList>("expected"); // the tables that name the person
    const auto row = [](const char *name, const QVector<Row> &before, const QVector<Row> &now,
                        const QStringList &expected) {
        QTest::newRow(name) << before << now << expected;
    };
    const Row works;
    const Row left = Row().with(&Row::datumVystupu, kToday.addDays(-1));
    const Row ended = Row().with(&Row::stavPracovnihoPomeru, 4);
    const Row leaving = Row().with(&Row::datumVystupu, kToday.addDays(9));
    const Row moved = Row().with(&Row::stredisko, 130);

    row("nothing", {works}, {works}, {});
    row("new", {}, {works}, {"new"});
    row("gone", {works}, {}, {"gone", "leaving"});
    row("gone who had left", {left}, {}, {"gone"});
    row("a last day", {works}, {leaving}, {"leaving"});
    row("an ended state", {works}, {ended}, {"leaving"});
    row("a last day called off", {leaving}, {works}, {});
    row("back after the last day", {left}, {works}, {"returning"});
    row("back from an ended state", {ended}, {works}, {"returning"});
    row("another cost centre", {works}, {moved}, {"moving"});
    row("another cost centre of somebody who has left", {left},
        {Row(left).with(&Row::stredisko, 1)}, {});
}

void TestDiff::peopleAreRecognised()
{
    QFETCH(QVector<ExportRow>, before);
    QFETCH(QVector<ExportRow>, now);
    QFETCH(QStringList, expected);
    const QVector<Row> others{Row().with(&Row::osobniCislo, 7)};
    const ToolRun run = diff(others + before, others + now);
    QStringList named;
    const QJsonObject facts = run.json()["facts"].toObject();
    for (const char *id : {"new", "gone", "leaving", "returning", "moving"}) {
        const QStringList people = column(table(run, "people", id), "person");
        QCOMPARE(facts[id].toInt(), people.size());
        if (people == QStringList("1234.1"))
            named << id;
    }
    QCOMPARE(named, expected);
}

void TestDiff::theLastLineOfAPersonCounts()
{
    const Row first = Row().with(&Row::prijmeni, "First");
    const Row last = Row().with(&Row::prijmeni, "Last");
    const ToolRun run = diff({first, last}, {last, first});
    const QJsonObject value = table(run, "Prijmeni", "changed")[0].toObject();
    QCOMPARE(value["before"].toString(), QString("Last"));
    QCOMPARE(value["now"].toString(), QString("First"));
    QCOMPARE(run.json()["facts"].toObject()["repeatedLines"].toInt(), 2);
}

void TestDiff::aLineThatNamesNobodyIsNobody()
{
    const ToolRun run = diff({Row()}, {Row(), Row().with(&Row::osobniCislo, "x")});
    QCOMPARE(run.json()["facts"].toObject()["newRecords"].toInt(), 1);
    QCOMPARE(run.json()["verdict"].toString(),
             QString("The plugin reads the same people from both exports."));
}

void TestDiff::theBalancesAreSummedUp()
{
    QVector<Row> now = withBalances(5, 10, 1);
    now[0].with(&Row::dovolenaZustatek, "9.5");
    now[1].with(&Row::dovolenaZustatek, "14");
    now[2].with(&Row::dovolenaZustatek, "11");
    now[3].with(&Row::dovolenaZustatek, "13,5");
    const ToolRun run = diff(withBalances(5, 10, 1), now);
    const QJsonObject facts = run.json()["facts"].toObject();
    QCOMPARE(facts["balances"].toInt(), 4);
    QCOMPARE(facts["balanceSum"].toDouble(), 1.5);
    QCOMPARE(facts["balanceMedian"].toDouble(), -0.5);
    const QStringList sentences =
        section(run, "DovolenaZustatek")["sentences"].toVariant().toStringList();
    QCOMPARE(sentences.first(),
             QString("Balances that are read change by 1.50 days altogether, with a median of "
                     "-0.50 days."));
}

void TestDiff::balancesThatAreMultipliedAlikeAreReported_data()
{
    QTest::addColumn<QVector<ExportRow>>("now");
    QTest::addColumn<QString>("factor"); // empty: nothing is reported
    QTest::newRow("hours of eight") << withBalances(9, 0.25, 1.25, 8) << "8";
    QTest::newRow("hours of seven and a half") << withBalances(9, 0.25, 1.25, 7.5) << "7.5";
    QTest::newRow("a lost decimal point of three digits")
        << withBalances(9, 0.25, 1.25, 1000) << "1000";
    QTest::newRow("an eighth") << withBalances(9, 0.25, 1.25, 0.125) << "0.125";
    QTest::newRow("the opposite sign") << withBalances(9, 0.25, 1.25, -1) << "-1";
    QTest::newRow("twice, as by accrual") << withBalances(9, 0.25, 1.25, 2) << "";
    QTest::newRow("the new entitlement") << withBalances(9, 20.25, 1.25) << "";
    QTest::newRow("two of them") << withBalances(2, 0.25, 1.25, 8)
            + withBalances(9, 0.25, 1.25).mid(2)
                                 << "";
}

void TestDiff::balancesThatAreMultipliedAlikeAreReported()
{
    QFETCH(QVector<ExportRow>, now);
    QFETCH(QString, factor);
    const ToolRun run = diff(withBalances(9, 0.25, 1.25), now);
    const QJsonObject finding = run.findingsOf("balances-multiplied").value(0);
    QCOMPARE(finding.isEmpty(), factor.isEmpty());
    if (!factor.isEmpty())
        QVERIFY2(
            finding["message"].toString().endsWith(" are " + factor + " times what they were."),
            run.report().constData());
}

void TestDiff::aListIsCutUnlessAllIsWanted()
{
    const ToolRun cut = diff({}, some(21));
    QCOMPARE(table(cut, "people", "new").size(), 20);
    QCOMPARE(section(cut, "people")["sentences"].toVariant().toStringList(),
             QStringList("New: the first 20 of 21."));
    const ToolRun all = diff({}, some(21), {"--json", "--all"});
    QCOMPARE(table(all, "people", "new").size(), 21);
    QCOMPARE(column(table(all, "people", "new"), "person").last(), QString("1020.1"));
}

void TestDiff::onePersonIsShownOnDemand_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<QStringList>("sections");
    QTest::newRow("by the payroll id") << "1234.1" << QStringList("person-1234.1");
    QTest::newRow("by the pid") << "12341" << QStringList("person-1234.1");
    QTest::newRow("by the personal number")
        << "1234" << QStringList{"person-1234.1", "person-1234.2"};
    QTest::newRow("who is gone") << "7.1" << QStringList("person-7.1");
    QTest::newRow("nobody") << "8" << QStringList();
}

void TestDiff::onePersonIsShownOnDemand()
{
    QFETCH(QString, id);
    QFETCH(QStringList, sections);
    const Row second = Row().with(&Row::poradoveCisloPP, 2);
    const Row gone = Row().with(&Row::osobniCislo, 7);
    const ToolRun run = diff({Row(), second, gone}, {second, Row()}, {"--json", "--person", id});
    COMPARE_EXIT(run, sections.isEmpty() ? ExitStatus::Usage : ExitStatus::Fine);
    QStringList ids;
    for (const QJsonValue &section : run.json()["sections"].toArray())
        ids << section.toObject()["id"].toString();
    QCOMPARE(ids, sections);
    if (sections.isEmpty())
        QCOMPARE(run.failure(), QString("Neither export has a person '8'."));
}

void TestDiff::whatThePluginMakesOfAValueIsShown()
{
    const ToolRun run = diff(
        {Row()},
        {Row().with(&Row::dovolenaZustatek, "12,5").with(&Row::datumNastupu, QDate(2020, 1, 2))},
        {"--person", "1234.1"});
    QVERIFY2(run.out.contains("DatumNastupu      first day         2019-04-01  2020-01-02"),
             run.report().constData());
    QVERIFY2(run.out.contains("DovolenaZustatek  vacation balance  12.5        12,5        "
                              "Misread: the vacation balance is set to 0 days."),
             run.report().constData());
}

void TestDiff::aBalanceIsShownAsInTheLanguage_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("now");
    QTest::addColumn<QString>("shown");
    QTest::newRow("English") << "en"
                             << "12.5"
                             << "13.50"
                             << "12.5 13.50";
    QTest::newRow("Slovak") << "sk"
                            << "12.5"
                            << "13.50"
                            << "12,5 13,50";
    QTest::newRow("Czech") << "cs"
                           << "-0.25"
                           << "3"
                           << "-0,25 3";
    // The comma is the mistake.
    QTest::newRow("misread now") << "sk"
                                 << "12.5"
                                 << "12,5"
                                 << "12.5 12,5";
    QTest::newRow("misread before") << "sk"
                                    << "12,5"
                                    << "12.5"
                                    << "12,5 12.5";
    QTest::newRow("misread, of a new person") << "sk"
                                              << ""
                                              << "12,5"
                                              << "12,5";
}

void TestDiff::aBalanceIsShownAsInTheLanguage()
{
    QFETCH(QString, language);
    QFETCH(QString, before);
    QFETCH(QString, now);
    QFETCH(QString, shown);
    const QVector<Row> one{Row().with(&Row::dovolenaZustatek, before)};
    const QVector<Row> other{Row().with(&Row::dovolenaZustatek, now)};
    const QStringList words = diff(before.isEmpty() ? QVector<Row>() : one, other,
                                   {"--language", language, "--person", "1234.1"})
                                  .out.simplified()
                                  .split(' ');
    const QString row = words.mid(words.indexOf("DovolenaZustatek")).join(' ');
    QVERIFY2(row.contains(' ' + shown + ' ') || row.endsWith(' ' + shown), qPrintable(row));
    const QStringList list =
        diff(before.isEmpty() ? QVector<Row>() : one, other, {"--language", language})
            .out.split('\n')
            .filter("1234.1 ");
    QVERIFY2(list.last().simplified().endsWith(' ' + shown), qPrintable(list.join('\n')));
}

void TestDiff::theTextReport()
{
    const ToolRun run =
        diff({Row(), Row().with(&Row::osobniCislo, 7)},
             {Row().with(&Row::dovolenaZustatek, "12,5").with(&Row::stredisko, 130)}, {});
    COMPARE_EXIT(run, ExitStatus::Findings);
    QCOMPARE(run.err, QString());
    QCOMPARE(
        run.out.section('\n', 2),
        QString("\nFindings\n--------\n"
                "DovolenaZustatek: warning: The plugin misreads the vacation balance of 1 person: "
                "the vacation balance is set to 0 days. [values-misread]\n"
                "    check-file names the lines and what is wrong with each.\n\n"
                "People\n------\n"
                "Missing from the newer export:\n"
                "Person  Name           Cost centre\n"
                "------  -------------  -----------\n"
                "7.1     Jana Nováková  120\n"
                "Leaving:\n"
                "Person  Name           Cost centre\n"
                "------  -------------  -----------\n"
                "7.1     Jana Nováková  120\n"
                "Moving:\n"
                "Person  Name           From cost centre  To cost centre\n"
                "------  -------------  ----------------  --------------\n"
                "1234.1  Jana Nováková  120               130\n\n"
                "Fields\n------\n"
                "Field             Meaning           Changed  Emptied  Misread  Repaired\n"
                "----------------  ----------------  -------  -------  -------  --------\n"
                "Stredisko         cost centre       1        0        0        0\n"
                "DovolenaZustatek  vacation balance  0        0        1        0\n\n"
                "Cost centre\n-----------\n"
                "Changed:\n"
                "Person  Name           Before  Now\n"
                "------  -------------  ------  ---\n"
                "1234.1  Jana Nováková  120     130\n\n"
                "Vacation balance\n----------------\n"
                "Balances that are read change by 0.00 days altogether, with a median of 0.00 "
                "days.\n"
                "Misread:\n"
                "Person  Name           Before  Now\n"
                "------  -------------  ------  ----\n"
                "1234.1  Jana Nováková  12.5    12,5\n\n"
                "Summary\n-------\n"
                "People in the older export: 2\nPeople in the newer export: 1\n"
                "Lines about somebody of an earlier line, which is not compared: 0\n"
                "New: 0\nMissing from the newer export: 1\nLeaving: 1\nReturning: 0\nMoving: 1\n"
                "With another supervisor: 0\nWith another calendar: 0\n"
                "With another vacation balance: 1\n"
                "Sum of the changes of balances, in days: 0\n"
                "Median of the changes of balances, in days: 0\n\n"
                "The exports differ.\n"));
}

void TestDiff::equalExportsDifferInNothing()
{
    const ToolRun run = diff(some(3), some(3), {});
    COMPARE_EXIT(run, ExitStatus::Fine);
    QVERIFY(run.out.contains("Nobody is new, leaves, returns or moves.\n"));
    QVERIFY(!run.out.contains("Fields\n"));
    QVERIFY(run.out.endsWith("\nThe plugin reads the same people from both exports.\n"));
}

void TestDiff::aPageIsWritten()
{
    diff({Row()}, {Row().with(&Row::prijmeni, "<b>")}, {"--html", path("page.html")});
    QFile page(path("page.html"));
    QVERIFY(page.open(QIODevice::ReadOnly));
    QVERIFY(page.readAll().contains("&lt;b&gt;"));
}

void TestDiff::aLargeExportIsCompared()
{
    QVector<Row> now = some(20000);
    for (Row &person : now)
        person.with(&Row::dovolenaZustatek, "33");
    const ToolRun run = diff(some(20000), now);
    QCOMPARE(run.json()["facts"].toObject()["balances"].toInt(), 20000);
    QCOMPARE(run.json()["facts"].toObject()["balanceMedian"].toDouble(), 20.5);
}

void TestDiff::badUsageIsRefused()
{
    write(path("before"), some(1));
    write(path("now"), some(1));
    const ToolRun missing = runTool({"diff", path("before"), path("none")});
    COMPARE_EXIT(missing, ExitStatus::Usage);
    QCOMPARE(missing.err, QString("mirovahrctl: diff: There is no file '%1'.\n").arg(path("none")));
    COMPARE_EXIT(runTool({"diff", path("before")}), ExitStatus::Usage);
    for (const char *name : {"before", "now"}) {
        const ToolRun over = runTool({"diff", path("before"), path("now"), "--html", path(name)});
        COMPARE_EXIT(over, ExitStatus::Usage);
        QCOMPARE(over.err,
                 QString("mirovahrctl: diff: The result would overwrite the export; name another "
                         "file.\n"));
        QVERIFY(QFileInfo(path(name)).size() > 0);
    }
}

void TestDiff::everyRuleHasItsFixtures()
{
    QCOMPARE(RuleFixtures::ofReports("diff").missing("diff", {}), QStringList());
}

QTEST_GUILESS_MAIN(TestDiff)
#include "tst_diff.moc"
