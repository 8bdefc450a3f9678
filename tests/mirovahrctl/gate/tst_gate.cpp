#include "mirovahrctl/gate/gatesource.h"
#include "mirovahrctl/gatestate/gatelimits.h"
#include "tests/mirovahrctl/gate/gatesite.h"
#include "tests/mirovahrctl/program/rulefixtures.h"

#include <QSet>
#include <QTest>

Q_DECLARE_METATYPE(ExportRow)

namespace {

using Row = ExportRow;

/// People 1000 and up, the first \a count of them changed.
QVector<Row> changed(int people, int count, QString Row::*field, const QString &value)
{
    QVector<Row> rows = GatePeople::some(people);
    for (int i = 0; i < count; ++i)
        rows[i].with(field, value);
    return rows;
}

/// \a count people of whom all but one have left already, and cannot leave again.
QVector<Row> formerPeople(int count)
{
    QVector<Row> rows = changed(count, count, &Row::stavPracovnihoPomeru, "4");
    rows[0].with(&Row::stavPracovnihoPomeru, "1");
    return rows;
}

const QDate kTomorrow = QDate::currentDate().addDays(1);

} // namespace

/// Which files the gate admits and which it refuses.
class TestGate : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_site.reset(new GateSite); }

    void theDefaultLimitsHoldToThePoint_data();
    void theDefaultLimitsHoldToThePoint();
    void aLimitHoldsToThePoint_data();
    void aLimitHoldsToThePoint();
    void leavingPeopleAreRecognised_data();
    void leavingPeopleAreRecognised();
    void movingPeopleAreRecognised_data();
    void movingPeopleAreRecognised();
    void aSupervisorsReasonIsRecognised_data();
    void aSupervisorsReasonIsRecognised();
    void theLastLineOfARelationshipCounts();
    void aDroppedLineIsALineLost();
    void everyReasonIsReported();

    void anEmptyFileIsRefused_data();
    void anEmptyFileIsRefused();
    void aTruncatedFileIsRefused_data();
    void aTruncatedFileIsRefused();
    void aMissingFileIsRefused_data();
    void aMissingFileIsRefused();
    void aFileOfMoreThanOneGibibyteIsRefused();
    void aFileThatWasJustWrittenIsRefused_data();
    void aFileThatWasJustWrittenIsRefused();
    void theFirstFileIsRefused();

    void acceptOverridesWhatHasChanged_data();
    void acceptOverridesWhatHasChanged();
    void acceptDoesNotOverrideAnEmptyFile();
    void acceptHoldsOnceOnly();
    void anAcceptedFileStaysAdmitted();

    void theReportForPeople();
    void theFirstTwentyChangesAreShown();
    void theReportNamesWhoseValuesAreTheReason();
    void theStatusFileNamesNobody();
    void linesWithWarningsAreCounted();
    void textsThatHrWritesForSqlAreNoted();
    void acceptIsAdvisedOnlyWhereItHelps();
    void theFirstFileIsCheckedForMisreadValues();
    void whatWasMisreadBeforeIsNoReason();
    void aRunWithoutFindingsIsPlain();
    void badUsageIsRefused_data();
    void badUsageIsRefused();
    void balancesThatAreMultipliedAlikeAreRefused();
    void everyRuleHasItsFixtures();

private:
    void compare(const ToolRun &run, const QStringList &reasons);

    QScopedPointer<GateSite> m_site;
};

/// Checks that the run refused its file for these reasons, or admitted it when there are none.
void TestGate::compare(const ToolRun &run, const QStringList &reasons)
{
    QStringList errors;
    for (const QJsonValue &finding : run.findings()) {
        if (finding.toObject()["severity"].toString() == "error")
            errors << finding.toObject()["rule"].toString();
    }
    QCOMPARE(errors, reasons);
    COMPARE_EXIT(run, reasons.isEmpty() ? ExitStatus::Fine : ExitStatus::GuardTripped);
    QCOMPARE(m_site->isPublished(), reasons.isEmpty());
    if (reasons.isEmpty())
        QCOMPARE(m_site->published(), contentOf(m_site->hrFile()));
    QCOMPARE(m_site->status()["result"].toString(),
             QString(reasons.isEmpty() ? "admitted" : "refused"));
    QCOMPARE(m_site->status()["reasons"].toArray().size(), reasons.size());
}

void TestGate::theDefaultLimitsHoldToThePoint_data()
{
    QTest::addColumn<QVector<ExportRow>>("before");
    QTest::addColumn<QVector<ExportRow>>("after");
    QTest::addColumn<QStringList>("reasons");
    const auto row = [](const char *name, const QVector<Row> &before, const QVector<Row> &after,
                        const QStringList &reasons) {
        QTest::newRow(name) << before << after << reasons;
    };

    row("50 lines of many", formerPeople(2000), formerPeople(1950), {});
    row("51 lines of many", formerPeople(2000), formerPeople(1949), {"lines-lost"});
    row("5 percent of the lines", formerPeople(200), formerPeople(190), {});
    row("more than 5 percent of the lines", formerPeople(200), formerPeople(189), {"lines-lost"});

    const auto state = &Row::stavPracovnihoPomeru;
    row("50 of many leave", GatePeople::some(2000), changed(2000, 50, state, "4"), {});
    row("51 of many leave", GatePeople::some(2000), changed(2000, 51, state, "4"),
        {"people-leaving"});
    row("5 percent leave", GatePeople::some(200), changed(200, 10, state, "4"), {});
    row("more than 5 percent leave", GatePeople::some(200), changed(200, 11, state, "4"),
        {"people-leaving"});

    const auto costCentre = &Row::stredisko;
    row("100 of many move", GatePeople::some(2000), changed(2000, 100, costCentre, "130"), {});
    row("101 of many move", GatePeople::some(2000), changed(2000, 101, costCentre, "130"),
        {"people-moving"});
    row("10 percent move", GatePeople::some(200), changed(200, 20, costCentre, "130"), {});
    row("more than 10 percent move", GatePeople::some(200), changed(200, 21, costCentre, "130"),
        {"people-moving"});
}

void TestGate::theDefaultLimitsHoldToThePoint()
{
    QFETCH(QVector<ExportRow>, before);
    QFETCH(QVector<ExportRow>, after);
    QFETCH(QStringList, reasons);
    m_site->admit(before);
    m_site->deliver(after);
    compare(m_site->run(), reasons);
}

/// A kind of change that has a limit, in a firm of 40.
struct LimitedKind {
    const char *option;
    const char *rule;
    QVector<Row> before;
    QVector<Row> (*change)(int count);
};

/// All of them. What \a count people do counts 2.5 percent for each of them.
static QVector<LimitedKind> limitedKinds()
{
    const QVector<Row> forty = GatePeople::some(40);
    return {
        {"max-lost-lines", "lines-lost", forty,
         [](int count) {
             return GatePeople::some(40 - count);
         }},
        {"max-repeated-lines", "lines-repeated", forty,
         [](int count) {
             return GatePeople::some(40) + GatePeople::some(count);
         }},
        {"max-leaving", "people-leaving", forty,
         [](int count) {
             return changed(40, count, &Row::datumVystupu, exportDate(kTomorrow));
         }},
        {"max-moving", "people-moving", forty,
         [](int count) {
             return changed(40, count, &Row::stredisko, "130");
         }},
        {"max-new", "people-new", forty,
         [](int count) {
             return GatePeople::some(40 + count);
         }},
        {"max-returning", "people-returning", changed(80, 40, &Row::stavPracovnihoPomeru, "4"),
         [](int count) {
             return changed(80, 40 - count, &Row::stavPracovnihoPomeru, "4");
         }},
        {"max-supervisors", "supervisors-changed", changed(40, 40, &Row::nadrizenyOsobniCislo, "7"),
         [](int count) {
             const auto supervisor = &Row::nadrizenyOsobniCislo;
             QVector<Row> people = changed(40, 40, supervisor, "7");
             for (int i = 0; i < count; ++i)
                 people[i].with(supervisor, i % 2 == 0 ? "8" : "0");
             return people;
         }},
        {"max-balances", "balances-zero", forty,
         [](int count) {
             return changed(40, count, &Row::dovolenaZustatek, "0");
         }},
        {"max-balances", "balances-implausible", forty,
         [](int count) {
             return changed(40, count, &Row::dovolenaZustatek, "101");
         }},
        {"max-changed", "values-changed", forty,
         [](int count) {
             return changed(40, count, &Row::telefon, "1");
         }},
        {"max-emptied", "values-emptied", forty,
         [](int count) {
             return changed(40, count, &Row::telefon, "");
         }},
        {"max-misread", "values-misread", forty,
         [](int count) {
             return changed(40, count, &Row::dovolenaZustatek, "12,5");
         }},
    };
}

void TestGate::aLimitHoldsToThePoint_data()
{
    QTest::addColumn<QVector<ExportRow>>("before");
    QTest::addColumn<QVector<ExportRow>>("after");
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QStringList>("reasons");

    for (const LimitedKind &kind : limitedKinds()) {
        const auto row = [&kind](const char *name, int count, const QString &limit,
                                 const QString &percent, const QString &few, bool trips) {
            // Lost lines count as leaving people, too, and last days as changed ones: not here.
            const QStringList options{"--max-leaving",
                                      "40",
                                      "--max-leaving-percent",
                                      "100",
                                      "--max-changed-percent",
                                      "100",
                                      "--few",
                                      few,
                                      QString("--") + kind.option,
                                      limit,
                                      QString("--%1-percent").arg(kind.option),
                                      percent};
            QTest::addRow("%s: %s", kind.rule, name)
                << kind.before << kind.change(count) << options
                << (trips ? QStringList(kind.rule) : QStringList());
        };
        row("as many as the number", 3, "3", "100", "0", false);
        row("one more than the number", 4, "3", "100", "0", true);
        row("none when the number is 0", 0, "0", "100", "0", false);
        row("one when the number is 0", 1, "0", "100", "0", true);
        row("exactly the percentage", 5, "40", "12.5", "0", false);
        row("one more than the percentage", 6, "40", "12.5", "0", true);
        row("none when the percentage is 0", 0, "40", "0", "0", false);
        row("one when the percentage is 0", 1, "40", "0", "0", true);
        row("few", 4, "40", "0", "4", false);
        row("one more than few", 5, "40", "0", "4", true);
        row("few, but more than the number", 4, "3", "100", "4", true);
        row("all but one", 39, "39", "97.5", "0", false);
    }
}

void TestGate::aLimitHoldsToThePoint()
{
    QFETCH(QVector<ExportRow>, before);
    QFETCH(QVector<ExportRow>, after);
    QFETCH(QStringList, options);
    QFETCH(QStringList, reasons);
    m_site->admit(before);
    m_site->deliver(after);
    compare(m_site->run(options), reasons);
}

void TestGate::leavingPeopleAreRecognised_data()
{
    QTest::addColumn<ExportRow>("before");
    QTest::addColumn<ExportRow>("after"); // without a personal number: no such line
    QTest::addColumn<bool>("leaves");
    const auto end = [](int days) {
        return Row().with(&Row::datumVystupu, QDate::currentDate().addDays(days));
    };
    const auto state = [](int code) {
        return Row().with(&Row::stavPracovnihoPomeru, code);
    };
    const Row gone = Row().with(&Row::osobniCislo, "");

    QTest::newRow("nothing changes") << Row() << Row() << false;
    QTest::newRow("gone") << Row() << gone << true;
    QTest::newRow("gone with an end in the future") << end(10) << gone << true;
    QTest::newRow("gone on the last day") << end(0) << gone << true;
    QTest::newRow("gone after the last day") << end(-1) << gone << false;
    QTest::newRow("gone in state 3") << state(3) << gone << true;
    QTest::newRow("gone in state 4") << state(4) << gone << false;
    QTest::newRow("state 3") << Row() << state(3) << false;
    QTest::newRow("state 4") << Row() << state(4) << true;
    QTest::newRow("state 4 had left before") << state(4) << state(5) << false;
    QTest::newRow("an end yesterday") << Row() << end(-1) << true;
    QTest::newRow("an end in the future") << Row() << end(300) << true;
    QTest::newRow("an earlier end") << end(300) << end(299) << true;
    QTest::newRow("a later end") << end(300) << end(301) << false;
    QTest::newRow("no end any more") << end(300) << Row() << false;
    QTest::newRow("the same end") << end(300) << end(300) << false;
    QTest::newRow("comes back") << end(-1) << Row() << false;
    QTest::newRow("another relationship")
        << Row() << Row().with(&Row::poradoveCisloPP, "2") << true;
    QTest::newRow("a supervisor's change")
        << Row() << Row().with(&Row::nadrizenyOsobniCislo, "7") << false;
}

void TestGate::leavingPeopleAreRecognised()
{
    QFETCH(ExportRow, before);
    QFETCH(ExportRow, after);
    QFETCH(bool, leaves);
    m_site->admit(GatePeople::some(9) + QVector<Row>{before});
    QVector<Row> people = GatePeople::some(9);
    if (!after.osobniCislo.isEmpty())
        people << after;
    m_site->deliver(people);
    const ToolRun run = m_site->run(
        {"--max-leaving", "0", "--max-leaving-percent", "0", "--max-lost-lines-percent", "100"});
    compare(run, leaves ? QStringList("people-leaving") : QStringList());
    QCOMPARE(run.json()["facts"].toObject()["leaving"].toInt(), leaves ? 1 : 0);
}

void TestGate::movingPeopleAreRecognised_data()
{
    QTest::addColumn<ExportRow>("before");
    QTest::addColumn<ExportRow>("after");
    QTest::addColumn<bool>("moves");
    const auto left = [](Row row) {
        return row.with(&Row::stavPracovnihoPomeru, "4");
    };
    const Row other = Row().with(&Row::stredisko, "130");
    const Row none = Row().with(&Row::stredisko, "");

    QTest::newRow("the same") << Row() << Row() << false;
    QTest::newRow("another one") << Row() << other << true;
    QTest::newRow("written with zeros in front")
        << Row() << Row().with(&Row::stredisko, "00120") << false;
    QTest::newRow("none any more") << Row() << none << true;
    QTest::newRow("one at last") << none << Row() << true;
    QTest::newRow("another description") << Row() << Row().with(&Row::strediskoPopis, "X") << false;
    QTest::newRow("another calendar") << Row() << Row().with(&Row::kalendar, "4") << false;
    QTest::newRow("who has left") << left(Row()) << left(other) << false;
    QTest::newRow("who comes back") << left(Row()) << other << false;
}

void TestGate::movingPeopleAreRecognised()
{
    QFETCH(ExportRow, before);
    QFETCH(ExportRow, after);
    QFETCH(bool, moves);
    m_site->admit(GatePeople::some(9) + QVector<Row>{before});
    m_site->deliver(GatePeople::some(9) + QVector<Row>{after});
    const ToolRun run = m_site->run({"--max-moving", "0"});
    compare(run, moves ? QStringList("people-moving") : QStringList());
    QCOMPARE(run.json()["facts"].toObject()["moving"].toInt(), moves ? 1 : 0);
}

void TestGate::aSupervisorsReasonIsRecognised_data()
{
    QTest::addColumn<ExportRow>("before"); // the former supervisor, 2000, who has people
    QTest::addColumn<ExportRow>("after");
    QTest::addColumn<QString>("former");
    QTest::addColumn<QString>("costCentre"); // of the people afterwards
    QTest::addColumn<bool>("counts");
    const Row boss = Row().with(&Row::osobniCislo, 2000);
    const auto row = [&boss](const char *name, const Row &after, bool counts) {
        QTest::newRow(name) << boss << after << "2000"
                            << "120" << counts;
    };
    row("the former one stays", boss, true);
    row("the former one gets another name", Row(boss).with(&Row::prijmeni, "Tóthová"), true);
    row("the former one is gone", Row().with(&Row::osobniCislo, 2001), false);
    row("the former one has an ended state", Row(boss).with(&Row::stavPracovnihoPomeru, 4), false);
    row("the former one has a last day", Row(boss).with(&Row::datumVystupu, kTomorrow), false);
    row("the former one moves", Row(boss).with(&Row::stredisko, 130), false);
    row("the former one is ill for long", Row(boss).with(&Row::evidencniStav, 21), false);
    const Row leaving = Row(boss).with(&Row::datumVystupu, kTomorrow);
    QTest::newRow("the former one has had a last day before") << leaving << leaving << "2000"
                                                              << "120" << false;
    const QDate later = QDate::currentDate().addMonths(4);
    const Row inTerm = Row(boss).with(&Row::datumVystupu, later);
    row("the former one has a new last day, which is far ahead", inTerm, false);
    QTest::newRow("the former one has had a last day far ahead before")
        << inTerm << inTerm << "2000"
        << "120" << true;
    QTest::newRow("the former one is in no file") << boss << boss << "7"
                                                  << "120" << true;
    QTest::newRow("there was none") << boss << boss << "0"
                                    << "120" << false;
    QTest::newRow("the people move") << boss << boss << "2000"
                                     << "130" << false;
}

void TestGate::aSupervisorsReasonIsRecognised()
{
    QFETCH(ExportRow, before);
    QFETCH(ExportRow, after);
    QFETCH(QString, former);
    QFETCH(QString, costCentre);
    QFETCH(bool, counts);
    QVector<Row> people = changed(9, 9, &Row::nadrizenyOsobniCislo, former);
    m_site->admit(people + QVector<Row>{before});
    for (Row &person : people)
        person.with(&Row::nadrizenyOsobniCislo, "3000").with(&Row::stredisko, costCentre);
    m_site->deliver(people + QVector<Row>{after});
    const ToolRun run = m_site->run({"--max-moving-percent", "100"});
    compare(run, counts ? QStringList("supervisors-changed") : QStringList());
    QCOMPARE(run.json()["facts"].toObject()["reassigned"].toInt(), counts ? 9 : 0);
}

void TestGate::theLastLineOfARelationshipCounts()
{
    const Row other = Row().with(&Row::stredisko, "130");
    m_site->admit(QVector<Row>{other, Row()});
    m_site->deliver(QVector<Row>{Row(), other, Row()});
    compare(m_site->run({"--max-moving", "0"}), {});
    m_site->takePublished();
    m_site->deliver(QVector<Row>{Row(), Row(), other});
    compare(m_site->run({"--max-moving", "0"}), {"people-moving"});
}

void TestGate::aDroppedLineIsALineLost()
{
    m_site->admit(GatePeople::some(10));
    QVector<Row> people = GatePeople::some(10);
    people[4].with(&Row::jmeno, "").with(&Row::prijmeni, "");
    m_site->deliver(people);
    const QStringList options{"--few", "0", "--max-leaving-percent", "10",
                              "--max-lost-lines-percent"};
    compare(m_site->run(options + QStringList("9.9")), {"lines-lost"});
    compare(m_site->run(options + QStringList("10")), {});
}

void TestGate::everyReasonIsReported()
{
    m_site->admit(GatePeople::some(100));
    m_site->deliver(GatePeople::file(changed(60, 30, &Row::stredisko, "130")).chopped(1));
    const ToolRun run = m_site->run();
    compare(run, {"truncated", "lines-lost", "people-leaving", "people-moving"});
    QStringList messages;
    for (const QJsonValue &finding : run.findings())
        messages << finding.toObject()["message"].toString();
    const QStringList expected{
        "The last line does not end with a line feed.",
        "40 lines (40.0 %) with people are missing compared with the last admitted file; the "
        "limits are 50 and 5 %.",
        "40 people (40.0 %) leave; the limits are 50 and 5 %.",
        "30 people (30.0 %) get another cost centre; the limits are 100 and 10 %."};
    QCOMPARE(messages, expected);
    const QStringList reasons = m_site->status()["reasons"].toVariant().toStringList();
    QCOMPARE(reasons.size(), 4);
    for (int i = 0; i < 4; ++i)
        QCOMPARE(reasons[i] + '.', expected[i]);
}

void TestGate::anEmptyFileIsRefused_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("no byte") << QByteArray();
    QTest::newRow("empty lines") << QByteArray("\n\r\n \n");
    QTest::newRow("nobody") << GatePeople::file({Row().with(&Row::osobniCislo, "0")});
}

void TestGate::anEmptyFileIsRefused()
{
    QFETCH(QByteArray, content);
    m_site->admit({Row()});
    m_site->deliver(content);
    compare(m_site->run({"--max-leaving-percent", "100", "--max-lost-lines-percent", "100"}),
            {"empty"});
}

void TestGate::aTruncatedFileIsRefused_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<bool>("refused");
    const QByteArray whole = GatePeople::file(GatePeople::some(20));
    const QByteArray good = GatePeople::file({Row()});
    const QStringList open("--may-end-open");

    QTest::newRow("whole") << whole + good << QStringList() << false;
    QTest::newRow("whole, with an empty line") << whole + good + "\r\n" << QStringList() << false;
    QTest::newRow("without a line feed") << whole + good.chopped(1) << QStringList() << true;
    QTest::newRow("without a line feed, allowed") << whole + good.chopped(1) << open << false;
    QTest::newRow("in the last field") << whole + good.chopped(2) << QStringList() << true;
    QTest::newRow("in the last line") << whole + good.left(30) << QStringList() << true;
    QTest::newRow("in the last line, open end allowed") << whole + good.left(30) << open << true;
    QTest::newRow("in the last line, with a line feed") << whole + good.left(30) + '\n'
                                                        << QStringList() << true;
    QTest::newRow("a broken line before an empty one") << whole + good.left(30) + "\n\n"
                                                       << QStringList() << true;
    QTest::newRow("too many fields") << whole + good.chopped(1) + "|\n" << QStringList() << true;
    QTest::newRow("zeros") << whole + QByteArray(4096, '\0') << open << true;
    QTest::newRow("zeros behind the last person") << whole + good.chopped(1) + QByteArray(3, '\0')
            + "\n" << QStringList() << true;
    QTest::newRow("a last line without end") << whole + QByteArray(70000, 'x') << open << true;
    QTest::newRow("a broken line in the middle")
        << whole + good.left(30) + '\n' + good << QStringList() << false;
    QTest::newRow("a last line without a name")
        << whole + GatePeople::file({Row().with(&Row::jmeno, "").with(&Row::prijmeni, "")})
        << QStringList() << false;
}

void TestGate::aTruncatedFileIsRefused()
{
    QFETCH(QByteArray, content);
    QFETCH(QStringList, options);
    QFETCH(bool, refused);
    m_site->admit(GatePeople::some(20));
    m_site->deliver(content);
    compare(m_site->run(options), refused ? QStringList("truncated") : QStringList());
}

void TestGate::aMissingFileIsRefused_data()
{
    QTest::addColumn<QString>("file");
    QTest::newRow("no file") << "nothing.txt";
    QTest::newRow("no folder") << "nowhere/export.txt";
    QTest::newRow("a file for a folder") << "export.txt/export.txt";
    QTest::newRow("a folder") << ".";
}

void TestGate::aMissingFileIsRefused()
{
    QFETCH(QString, file);
    m_site->admit({Row()});
    const QString path = m_site->folder() + "/hr/" + file;
    // The last occurrence of an option counts.
    const ToolRun run = m_site->run({"--accept", "--from", path});
    compare(run, {"missing"});
    QCOMPARE(run.findings()[0].toObject()["message"].toString(),
             QString("There is no file '%1'.").arg(path));
    QCOMPARE(m_site->status()["lastAdmitted"].toObject()["lines"].toInt(), 1);
}

void TestGate::aFileOfMoreThanOneGibibyteIsRefused()
{
    constexpr qint64 kMostBytes = qint64(1) << 30;
    m_site->admit({Row()});
    m_site->deliver(QVector<Row>{Row()});
    GateSource source(m_site->hrFile());
    QVERIFY(QFile::resize(m_site->hrFile(), kMostBytes));
    QCOMPARE(source.open(), GateSource::Outcome::Done);
    QVERIFY(!source.isTooLong());
    QVERIFY(QFile::resize(m_site->hrFile(), kMostBytes + 1));
    const ToolRun run = m_site->run({"--accept"});
    compare(run, {"file-too-long"});
    QCOMPARE(run.findings()[0].toObject()["message"].toString(),
             QString("The file is larger than 1 GiB; the plugin reads no further."));
    QCOMPARE(m_site->copies().size(), 1);
}

void TestGate::aFileThatWasJustWrittenIsRefused_data()
{
    QTest::addColumn<int>("age"); // seconds
    QTest::addColumn<QString>("settle");
    QTest::addColumn<bool>("refused");
    QTest::newRow("not asked for") << 0 << "0" << false;
    QTest::newRow("of the future, not asked for") << -3600 << "0" << false;
    QTest::newRow("old enough") << 3600 << "3600" << false;
    QTest::newRow("not old enough") << 3300 << "3600" << true;
    QTest::newRow("new") << 0 << "3600" << true;
    QTest::newRow("of the future") << -3600 << "1" << true;
}

void TestGate::aFileThatWasJustWrittenIsRefused()
{
    QFETCH(int, age);
    QFETCH(QString, settle);
    QFETCH(bool, refused);
    m_site->admit({Row()});
    m_site->deliver(QVector<Row>{Row()});
    QFile file(m_site->hrFile());
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.setFileTime(QDateTime::currentDateTime().addSecs(-age),
                             QFileDevice::FileModificationTime));
    file.close();
    const ToolRun run = m_site->run({"--accept", "--settle", settle});
    compare(run, refused ? QStringList("just-written") : QStringList());
    if (refused)
        QCOMPARE(run.findings()[0].toObject()["message"].toString(),
                 QString("The file was changed within the last %1 second%2.")
                     .arg(settle, settle == "1" ? "" : "s"));
}

void TestGate::theFirstFileIsRefused()
{
    m_site->deliver(GatePeople::some(3));
    compare(m_site->run(), {"no-baseline"});
    QVERIFY(!m_site->status().contains("lastAdmitted"));
    compare(m_site->run(), {"no-baseline"});
    m_site->run({"--accept"});
    m_site->takePublished();
    compare(m_site->run(), {});
}

void TestGate::acceptOverridesWhatHasChanged_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QStringList>("overridden");
    const QVector<Row> people = GatePeople::some(20);
    const auto state = &Row::stavPracovnihoPomeru;
    QTest::newRow("nothing to override") << GatePeople::file(people) << QStringList();
    QTest::newRow("truncated") << GatePeople::file(people).chopped(1)
                               << QStringList("The last line does not end with a line feed");
    QTest::newRow("lines lost") << GatePeople::file(people.mid(10))
                                << QStringList{
                                       "10 lines (50.0 %) with people are missing compared with "
                                       "the last admitted file; the limits are 50 and 5 %",
                                       "10 people (50.0 %) leave; the limits are 50 and 5 %"};
    QTest::newRow("leaving") << GatePeople::file(changed(20, 4, state, "4"))
                             << QStringList("4 people (20.0 %) leave; the limits are 50 and 5 %");
    QTest::newRow("moving")
        << GatePeople::file(changed(20, 3, &Row::stredisko, "9"))
        << QStringList("3 people (15.0 %) get another cost centre; the limits are 100 and 10 %");
}

void TestGate::acceptOverridesWhatHasChanged()
{
    QFETCH(QByteArray, content);
    QFETCH(QStringList, overridden);
    m_site->admit(GatePeople::some(20));
    m_site->deliver(content);
    if (!overridden.isEmpty())
        COMPARE_EXIT(m_site->run(), ExitStatus::GuardTripped);
    QVERIFY(!m_site->isPublished());

    const ToolRun run = m_site->run({"--accept"});

    compare(run, {});
    for (const QJsonValue &finding : run.findings()) {
        if (finding.toObject()["rule"] == "unchanged")
            continue;
        QCOMPARE(finding.toObject()["severity"].toString(), QString("warning"));
        QCOMPARE(finding.toObject()["advice"].toString(), QString("Overridden by --accept."));
    }
    QCOMPARE(m_site->status()["overridden"].toVariant().toStringList(), overridden);
    const QJsonObject last = m_site->status()["lastAdmitted"].toObject();
    if (!overridden.isEmpty())
        QCOMPARE(last["overridden"].toVariant().toStringList(), overridden);
}

void TestGate::acceptDoesNotOverrideAnEmptyFile()
{
    m_site->deliver(QByteArray());
    compare(m_site->run({"--accept"}), {"empty", "no-baseline"});
    m_site->admit(GatePeople::some(20));
    m_site->deliver(QByteArray("\n"));
    compare(m_site->run({"--accept"}), {"empty", "lines-lost", "people-leaving"});
    QCOMPARE(m_site->copies().size(), 1);
}

void TestGate::acceptHoldsOnceOnly()
{
    m_site->admit(GatePeople::some(20));
    m_site->deliver(GatePeople::some(10));
    compare(m_site->run({"--accept"}), {});
    m_site->takePublished();
    m_site->deliver(GatePeople::some(5));
    compare(m_site->run(), {"lines-lost", "people-leaving"});
    // The gate compares with the accepted file, not with the earlier one.
    m_site->deliver(GatePeople::some(11));
    compare(m_site->run(), {});
}

void TestGate::anAcceptedFileStaysAdmitted()
{
    m_site->admit(GatePeople::some(20));
    m_site->admit(GatePeople::file(GatePeople::some(3)).chopped(1));
    const ToolRun run = m_site->run();
    compare(run, {});
    QCOMPARE(run.rules(), QStringList("unchanged"));
}

void TestGate::theReportForPeople()
{
    m_site->admit(GatePeople::some(4));
    QVector<Row> people = GatePeople::some(3);
    people[0].with(&Row::stredisko, "130");
    people[1].with(&Row::prijmeni, "Néil👤");
    people[2].with(&Row::dovolenaZustatek, "12,5");
    m_site->deliver(people);
    writeFile(m_site->target(), "unread");

    const ToolRun run = runTool(m_site->arguments({"--few", "0", "--max-misread-percent", "100"}));

    COMPARE_EXIT(run, ExitStatus::GuardTripped);
    QCOMPARE(run.err, QString());
    QCOMPARE(
        run.out,
        QString(
            "Gate from %1 to %2\n%3\n\n"
            "Decision\n--------\n"
            "error: 1 line (25.0 %) with people is missing compared with the last admitted file; "
            "the limits are 50 and 5 %. [lines-lost]\n"
            "    Ask HR; if the change is intended, run the gate once with --accept.\n"
            "error: 1 person (25.0 %) leaves; the limits are 50 and 5 %. [people-leaving]\n"
            "    Ask HR; if the change is intended, run the gate once with --accept.\n"
            "error: 1 person (25.0 %) gets another cost centre; the limits are 100 and 10 %. "
            "[people-moving]\n"
            "    Ask HR; if the change is intended, run the gate once with --accept.\n"
            "Prijmeni: error: The surname of 1 person (33.3 %) changes; the limits are 1000 and "
            "20 %. [values-changed]\n"
            "    Ask HR; if the change is intended, run the gate once with --accept.\n"
            "note: An earlier file was still in place, which the plugin has not read or does not "
            "remove. It remains. [unread]\n"
            "note: The file has 1 line with errors, dropped or not written correctly. "
            "[rejected-lines]\n"
            "    Send HR the file %4.\n"
            "note: The file has 1 line with warnings: values that the plugin misreads, or that are "
            "hardly intended. [warned-lines]\n"
            "    Send HR the file %4.\n\n"
            "HR's file\n---------\n"
            "Lines: 3\nRead as people: 3\nDropped by the plugin: 0\n"
            "Lines with errors: 1\nLines with warnings: 1\n\n"
            "Compared with the last admitted file\n------------------------------------\n"
            "People in the last admitted file: 4\nEmployed people in it: 4\nLines lost: 1\n"
            "Lines repeated: 0\n"
            "People leaving: 1\nPeople moving: 1\nNew people: 0\nPeople returning: 0\n"
            "Supervisors changed without a visible reason: 0\n"
            "Leaving:\n"
            "Person  Name           Cost centre\n"
            "------  -------------  -----------\n"
            "1003.1  Jana Nováková  120\n"
            "Moving:\n"
            "Person  Name           From cost centre  To cost centre\n"
            "------  -------------  ----------------  --------------\n"
            "1000.1  Jana Nováková  120               130\n"
            "Values:\n"
            "Field             Meaning           Changed  Emptied  Misread  Repaired\n"
            "----------------  ----------------  -------  -------  -------  --------\n"
            "Prijmeni          surname           1        0        0        0\n"
            "Stredisko         cost centre       1        0        0        0\n"
            "DovolenaZustatek  vacation balance  0        0        1        0\n\n"
            "Whose values these are\n----------------------\n"
            "Surname [values-changed]:\n"
            "Person  Name         Before    Now\n"
            "------  -----------  --------  ------\n"
            "1001.1  Jana Néil👤  Nováková  Néil👤\n\n"
            "The file was refused. Nothing was published.\n")
            .arg(m_site->hrFile(), m_site->target(),
                 QString(14 + m_site->hrFile().size() + m_site->target().size(), '='),
                 m_site->inState("rejects.txt")));
    QCOMPARE(m_site->published(), QByteArray("unread"));
    m_site->run();
}

void TestGate::theFirstTwentyChangesAreShown()
{
    m_site->admit(GatePeople::some(60));
    m_site->deliver(changed(60, 21, &Row::stredisko, "130"));
    const ToolRun run = m_site->run();
    const QJsonObject section = run.json()["sections"].toArray().last().toObject();
    QCOMPARE(section["sentences"].toVariant().toStringList(),
             QStringList({"Moving: the first 20 of 21.", "Values:"}));
    const QJsonArray rows = section["tables"].toObject()["moving"].toArray();
    QCOMPARE(rows.size(), 20);
}

void TestGate::theReportNamesWhoseValuesAreTheReason()
{
    m_site->admit(GatePeople::some(60));
    m_site->deliver(changed(60, 21, &Row::dovolenaZustatek, "12,5"));
    const ToolRun run = m_site->run();
    compare(run, {"values-misread"});
    const QJsonObject finding = run.findingsOf("values-misread").value(0);
    QCOMPARE(finding["message"].toString(),
             QString("The vacation balance of 21 people (35.0 %) is misread: the vacation balance "
                     "is set to 0 days; the limits are 100 and 5 %."));
    QCOMPARE(finding["field"].toString(), QString("DovolenaZustatek"));
    const QJsonObject section = run.json()["sections"].toArray().last().toObject();
    QCOMPARE(section["sentences"].toVariant().toStringList(),
             QStringList("Vacation balance [values-misread]: the first 20 of 21."));
    const QJsonArray rows =
        section["tables"].toObject()["values-misread-DovolenaZustatek"].toArray();
    QCOMPARE(rows.size(), 20);
    QCOMPARE(rows[0].toObject(),
             QJsonObject({{"person", "1000.1"},
                          {"name", "Jana Nováková"},
                          {"before", "12.5"},
                          {"now", "12,5"}}));
}

void TestGate::theStatusFileNamesNobody()
{
    m_site->admit(GatePeople::some(60));
    m_site->deliver(changed(60, 21, &Row::prijmeni, "Tóthová"));
    compare(m_site->run(), {"values-changed"});
    const QByteArray status = contentOf(m_site->inState("status.json"));
    QVERIFY2(!status.contains("1001") && !status.contains("Tóth"), status.constData());
}

void TestGate::linesWithWarningsAreCounted()
{
    m_site->admit(GatePeople::some(60));
    QVector<Row> people = changed(60, 2, &Row::dovolenaZustatek, "12,5");
    people[1].with(&Row::prijmeni, "Néil👤");
    m_site->deliver(people);
    const ToolRun run = m_site->run();
    compare(run, {});
    QCOMPARE(run.rules(), QStringList({"rejected-lines", "warned-lines"}));
    QCOMPARE(run.json()["facts"].toObject()["warned"].toInt(), 1);
    for (const QJsonObject &status :
         {m_site->status(), m_site->status()["lastAdmitted"].toObject()}) {
        QCOMPARE(status["linesWithErrors"].toInt(), 1);
        QCOMPARE(status["linesWithWarnings"].toInt(), 1);
    }
    const QByteArray rejects = contentOf(m_site->inState("rejects.txt"));
    QVERIFY2(rejects.contains("\n# Line 1: DovolenaZustatek: The plugin cannot read \"12,5\" as a "
                              "number."),
             rejects.constData());
    QVERIFY(rejects.endsWith("\n\n# 2 lines.\n"));
}

void TestGate::textsThatHrWritesForSqlAreNoted()
{
    QVector<Row> people = GatePeople::some(3);
    people[0].with(&Row::prijmeni, "O'Brien").with(&Row::telefon, "100%1");
    m_site->admit(people);
    m_site->deliver(people);
    QVERIFY(!m_site->run().rules().contains("texts-written"));
    people[1].with(&Row::prijmeni, "O''Brien");
    people[2].with(&Row::titul, "100%' '1");
    m_site->deliver(people);
    const ToolRun run = m_site->run();
    QVERIFY(run.rules().contains("texts-written"));
    QVERIFY2(run.out.contains("The file has 2 lines with texts"), qPrintable(run.out));
    QVERIFY(!m_site->run({"--texts", "as-is"}).rules().contains("texts-written"));
}

void TestGate::acceptIsAdvisedOnlyWhereItHelps()
{
    const QString accept = "--accept";
    const auto advises = [&](const ToolRun &run) {
        QStringList rules;
        for (const QJsonValue &finding : run.findings()) {
            if (finding.toObject()["advice"].toString().contains(accept))
                rules << finding.toObject()["rule"].toString();
        }
        return rules;
    };
    m_site->deliver(QByteArray("\n"));
    QCOMPARE(advises(m_site->run()), QStringList());
    m_site->admit(GatePeople::some(40));
    m_site->deliver(GatePeople::some(20));
    QCOMPARE(advises(m_site->run()), QStringList({"lines-lost", "people-leaving"}));
    // No --accept for a file of which most values are misread.
    m_site->deliver(changed(20, 11, &Row::dovolenaZustatek, "12,5"));
    const QStringList reasons{"lines-lost", "people-leaving", "values-misread"};
    const ToolRun refused = m_site->run({accept});
    compare(refused, reasons);
    QCOMPARE(advises(refused), QStringList());
    m_site->deliver(changed(20, 10, &Row::dovolenaZustatek, "12,5"));
    compare(m_site->run({accept}), {});
}

void TestGate::theFirstFileIsCheckedForMisreadValues()
{
    m_site->deliver(changed(20, 20, &Row::dovolenaZustatek, "12,5"));
    compare(m_site->run(), {"no-baseline", "values-misread"});
    compare(m_site->run({"--accept"}), {"no-baseline", "values-misread"});
    // Unless that is what the site wants.
    compare(m_site->run({"--accept", "--max-misread-percent", "100"}), {});
}

void TestGate::whatWasMisreadBeforeIsNoReason()
{
    const QVector<Row> people = changed(20, 20, &Row::dovolenaZustatek, "12,5");
    m_site->deliver(people);
    compare(m_site->run({"--accept", "--max-misread-percent", "100"}), {});
    m_site->takePublished();
    m_site->deliver(changed(20, 20, &Row::dovolenaZustatek, "13,5"));
    compare(m_site->run(), {});
    m_site->takePublished();
    // Nor is that it is read again.
    m_site->deliver(GatePeople::some(20));
    compare(m_site->run(), {});
}

void TestGate::aRunWithoutFindingsIsPlain()
{
    m_site->admit(GatePeople::some(2));
    m_site->deliver(GatePeople::some(3));
    const ToolRun run = runTool(m_site->arguments());
    COMPARE_EXIT(run, ExitStatus::Fine);
    QCOMPARE(
        run.out.section('\n', 2),
        QString("\nHR's file\n---------\n"
                "Lines: 3\nRead as people: 3\nDropped by the plugin: 0\n"
                "Lines with errors: 0\nLines with warnings: 0\n\n"
                "Compared with the last admitted file\n"
                "------------------------------------\n"
                "People in the last admitted file: 2\nEmployed people in it: 2\nLines lost: 0\n"
                "Lines repeated: 0\n"
                "People leaving: 0\nPeople moving: 0\nNew people: 1\nPeople returning: 0\n"
                "Supervisors changed without a visible reason: 0\n"
                "New:\n"
                "Person  Name           Cost centre\n"
                "------  -------------  -----------\n"
                "1002.1  Jana Nováková  120\n\n"
                "The file was admitted and published: 3 people.\n"));
}

void TestGate::badUsageIsRefused_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("error");
    const QStringList paths{"--from", "/a/hr.txt", "--to", "/a/ron.data"};
    const QString number = "--%1 takes a whole number from 0.";
    const QString percent = "--%1 takes a percentage from 0 to 100.";

    QTest::newRow("no --from") << QStringList{"--to", "/a/ron.data"}
                               << "Missing option --from; see --help.";
    QTest::newRow("no --to") << QStringList{"--from", "/a/hr.txt"}
                             << "Missing option --to; see --help.";
    QTest::newRow("an empty --to")
        << QStringList{"--from", "/a/hr.txt", "--to", ""} << "Missing option --to; see --help.";
    QTest::newRow("a folder for --to")
        << QStringList{"--from", "/a/hr.txt", "--to", "/a/"} << "--to names no file.";
    QTest::newRow("one file for both") << QStringList{"--from", "/a/x", "--to", "/a/../a/x"}
                                       << "--from and --to name the same file.";
    const QString over = "--rejects would overwrite the export; name another file.";
    QTest::newRow("the rejects over HR's file")
        << paths + QStringList{"--rejects", "/a//hr.txt"} << over;
    QTest::newRow("the rejects over the plugin's file")
        << paths + QStringList{"--rejects", "/a/ron.data"} << over;
    QTest::newRow("a form of the texts that there is not")
        << paths + QStringList{"--texts", "quoted"}
        << "--texts takes one of: escaped, no-backslash-escapes, as-is.";
    QTest::newRow("an argument") << paths + QStringList("x") << "Unexpected argument 'x'.";
    QStringList numbers{"few", "keep", "settle"};
    QStringList percentages;
    for (const GateLimitOption &option : kGateLimitOptions) {
        numbers << option.name;
        percentages << QString("%1-percent").arg(option.name);
    }
    for (const QString &option : qAsConst(numbers)) {
        for (const char *value : {"", "x", "-1", "1.5", "1000000001"}) {
            QTest::addRow("--%s %s", qPrintable(option), value)
                << paths + QStringList{"--" + option, value} << number.arg(option);
        }
    }
    for (const QString &option : qAsConst(percentages)) {
        for (const char *value : {"", "x", "-0.1", "100.1", "nan", "5%"}) {
            QTest::addRow("--%s %s", qPrintable(option), value)
                << paths + QStringList{"--" + option, value} << percent.arg(option);
        }
    }
}

void TestGate::badUsageIsRefused()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, error);
    const ToolRun run = runTool(QStringList("gate") + arguments);
    COMPARE_EXIT(run, ExitStatus::Usage);
    QCOMPARE(run.err, "mirovahrctl: gate: " + error + '\n');
    QCOMPARE(run.out, QString());
    QVERIFY(!QFile::exists("/a"));
}

void TestGate::balancesThatAreMultipliedAlikeAreRefused()
{
    const auto people = [](double factor) {
        QVector<Row> rows = GatePeople::some(12);
        for (int i = 0; i < rows.size(); ++i)
            rows[i].with(&Row::dovolenaZustatek, QString::number((1 + i % 4) * factor));
        return rows;
    };
    m_site->admit(people(1));
    m_site->deliver(people(8));
    const ToolRun run = m_site->run();
    compare(run, {"balances-multiplied"});
    QCOMPARE(run.findings()[0].toObject()["message"].toString(),
             QString("The vacation balance of 12 people (100.0 %) is 8 times what it was; the "
                     "limit is 25 %."));
}

void TestGate::everyRuleHasItsFixtures()
{
    // These need another process, and have tests of their own.
    const QSet<QString> others{"busy", "changed-meanwhile"};
    QCOMPARE(RuleFixtures::ofReports("gate").missing("gate", others), QStringList());
}

QTEST_GUILESS_MAIN(TestGate)
#include "tst_gate.moc"
