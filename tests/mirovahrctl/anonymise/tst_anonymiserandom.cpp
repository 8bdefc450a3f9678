#include "mirovahrctl/anonymise/otherexport.h"
#include "mirovahrctl/export/exportscan.h"
#include "mirovahrctl/export/fieldreading.h"
#include "mirovahrctl/report/rules.h"
#include "tests/mirovahrctl/checkfile/randomexport.h"
#include "tests/support/exportfile.h"
#include "tests/worker/input/workerreading.h"

#include <QBuffer>
#include <QRandomGenerator>
#include <QSet>
#include <QTest>

namespace {

constexpr quint32 kSeed = 20210331;
constexpr int kFiles = 400;

const ColumnWidths kWidths{{"title", 4}, {"name", 6}, {"surname", 8}, {"title2", 4}, {"phone", 10}};

/// Every way in which the texts of an export can reach the database.
const QVector<SqlTexts::Route> kRoutes{{std::nullopt, Backslash::Escapes},
                                       {std::nullopt, Backslash::IsLiteral},
                                       {Backslash::Escapes, Backslash::Escapes},
                                       {Backslash::IsLiteral, Backslash::IsLiteral}};

using Random = QRandomGenerator;

template <typename T> const T &oneOf(Random &random, const QVector<T> &values)
{
    return values.at(random.bounded(values.size()));
}

/// Values of fields of all kinds, each also where it does not belong.
QString oddValue(Random &random)
{
    static const QVector<QString> values{"",
                                         " ",
                                         "Nováková",
                                         "Žiak-Nováková",
                                         "O'Neil",
                                         "O''Neil",
                                         "\\",
                                         "\\\\",
                                         "%1",
                                         "%L1",
                                         "%' '1",
                                         "%' 'L1",
                                         "%Ľ5",
                                         "100 %",
                                         "👤 Jana",
                                         "Іваненко",
                                         "NovÃ¡kovÃ¡",
                                         "\uFFFDn",
                                         "a\u0301",
                                         "Titul",
                                         "osobnicislo",
                                         "0905123456",
                                         "+421 905 123 456",
                                         "2019-04-01 00:00:00.000",
                                         "2019-04-01",
                                         "1.4.2019",
                                         "2021-02-30 00:00:00.000",
                                         "9999-12-31 00:00:00.000",
                                         "1969-12-31 00:00:00.000",
                                         "0",
                                         "007",
                                         "7",
                                         "123",
                                         " 1234 ",
                                         "+1234",
                                         "1234.5",
                                         "-12,5",
                                         "１２",
                                         "65535",
                                         "65537",
                                         "4294967295",
                                         "4294967296",
                                         "21474836.48",
                                         "inf",
                                         "nan",
                                         "1e3",
                                         "1e300",
                                         "abc"};
    return oneOf(random, values);
}

/// People whose numbers often clash, with supervisors among them.
QByteArray oddLine(Random &random)
{
    static const QVector<QString> numbers{"1",   "12",   "123",   "0123",    "1234",
                                          "124", "4711", "12345", "4294967", "429496729"};
    static const QVector<QString> relationships{"1",  "1",   "2",    "11",  "34",
                                                "41", "234", "2345", "295", "296"};
    QStringList fields = ExportRow()
                             .with(&ExportRow::osobniCislo, oneOf(random, numbers))
                             .with(&ExportRow::poradoveCisloPP, oneOf(random, relationships))
                             .with(&ExportRow::nadrizenyOsobniCislo, oneOf(random, numbers))
                             .fields();
    for (int changes = random.bounded(4); changes > 0; --changes)
        fields[random.bounded(fields.size())] = oddValue(random);
    if (random.bounded(10) == 0)
        fields.removeAt(random.bounded(fields.size()));
    return fields.join('|').toUtf8();
}

QVector<QByteArray> randomLines(Random &random)
{
    QVector<QByteArray> lines;
    if (random.bounded(3) == 0)
        lines = RandomExport::lines(random);
    for (int count = random.bounded(12); count > 0; --count)
        lines << oddLine(random);
    if (random.bounded(50) == 0)
        lines.prepend("\xFF\xFE" + QByteArray("1\0|\0J\0", 6));
    return lines;
}

using Record = std::optional<MirovaRonRecord>;

/// What check-file knows of an export.
struct Scan {
    QStringList findings; ///< rule, line, field, and whether the line is dropped
    QStringList rules;
    QVector<Record> records; ///< what the plugin reads of each line
};

Scan scanned(const QString &path, const SqlTexts::Route &route)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s cannot be read", qPrintable(path));
    Scan scan;
    const auto add = [&scan](const Finding &finding) {
        scan.rules << finding.rule;
        scan.findings << QString("%1 line %2 %3 %4")
                             .arg(finding.rule, QString::number(finding.line), finding.field,
                                  finding.dropped ? "dropped" : "");
    };
    ExportScan scanOfFile(file, kWidths, route);
    const bool isRead = scanOfFile.run([&](const CheckedLine &line) {
        for (const Finding &finding : line.findings)
            add(finding);
        scan.records << line.record;
    });
    if (!isRead)
        qFatal("%s", qPrintable(scanOfFile.errorString()));
    for (const Finding &finding : scanOfFile.fileFindings())
        add(finding);
    return scan;
}

/// What the worker does with each line, without what is in it.
QStringList workOn(const QString &path)
{
    QStringList steps;
    for (const QString &step : WorkerReading::ofFile(path))
        steps << (step.startsWith('W') ? step : step.section('(', 0, 0));
    return steps;
}

/// Which of the values are the same: for each the first that is.
template <typename T> QVector<int> pattern(const QVector<T> &values)
{
    QVector<int> pattern;
    for (const T &value : values)
        pattern << values.indexOf(value);
    return pattern;
}

template <typename Value> auto valuesOf(const QVector<Record> &records, const Value &value)
{
    QVector<decltype(value(MirovaRonRecord()))> values;
    for (const Record &record : records) {
        if (record)
            values << value(*record);
    }
    return values;
}

/// Numbers of people and of their supervisors in a row, to see who is whose.
QVector<quint32> people(const QVector<Record> &records)
{
    return valuesOf(records, [](const MirovaRonRecord &r) { return r.osobniCislo; })
        + valuesOf(records, [](const MirovaRonRecord &r) { return r.nadrizenyOsobniCislo; });
}

QVector<quint32> pids(const QVector<Record> &records)
{
    return valuesOf(records, [](const MirovaRonRecord &r) { return r.getPid(); });
}

QVector<quint32> costCentres(const QVector<Record> &records)
{
    return valuesOf(records, [](const MirovaRonRecord &r) { return r.stredisko; });
}

/// Every text of every record in a row: whatever field it is in, a text becomes the same other one.
QStringList texts(const QVector<Record> &records)
{
    QStringList texts;
    for (const Record &record : records) {
        if (record) {
            texts << record->titul << record->jmeno << record->prijmeni << record->titulZa
                  << record->telefon << record->strediskoPopis;
        }
    }
    return texts;
}

/// What gate and diff take for damaged or encoded twice.
QVector<int> damagedTexts(const QVector<Record> &records)
{
    QVector<int> kinds;
    for (const QString &text : texts(records))
        kinds << int(FieldReading::kindOf(ExportLine::Jmeno, text));
    return kinds;
}

/// Dates, and codes, calendars and balances that are as short as those of a table.
QStringList keptValues(const QVector<Record> &records)
{
    const auto below = [](double limit, double value) {
        return qAbs(value) < limit ? QString::number(value) : QString();
    };
    QStringList values;
    for (const Record &r : records) {
        if (!r)
            continue;
        values << r->datumNastupu.toString() << r->datumVystupu.toString()
               << r->kalendarPlatnostOd.toString() << below(1000, r->poradoveCisloPP)
               << below(1000, r->kalendar) << below(1000, r->dovolenaZustatek);
    }
    return values;
}

} // namespace

/// Exports with every kind of mistake: anonymised, they have the same mistakes.
class TestAnonymiseRandom : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyMistakeStaysWhereItIs();
    void thePluginReadsAndDropsTheSameLines();
    void whoIsWhoStays();
    void whatThePluginDecidesByStays();
    void everyRuleWasTried();

private:
    void forEachFile(const std::function<void()> &compare);
    QByteArray anonymised(const QByteArray &content);

    Random m_random{kSeed};
    ExportFile m_before;
    ExportFile m_after;
    QSet<QString> m_rules;
};

QByteArray TestAnonymiseRandom::anonymised(const QByteArray &content)
{
    m_before.writeBytes(content);
    QFile file(m_before.path());
    QBuffer out;
    if (!file.open(QIODevice::ReadOnly) || !out.open(QIODevice::WriteOnly))
        qFatal("%s cannot be read", qPrintable(m_before.path()));
    OtherExport other(file, m_random);
    if (!other.write(out))
        qFatal("%s", qPrintable(other.errorString()));
    return out.data();
}

void TestAnonymiseRandom::forEachFile(const std::function<void()> &compare)
{
    for (int i = 0; i < kFiles && !QTest::currentTestFailed(); ++i) {
        const QByteArray content = RandomExport::joined(m_random, randomLines(m_random));
        const QByteArray other = anonymised(content);
        m_after.writeBytes(other);
        compare();
        if (QTest::currentTestFailed())
            qWarning("%s\nbecame\n%s", content.left(4000).data(), other.left(4000).data());
    }
}

void TestAnonymiseRandom::everyMistakeStaysWhereItIs()
{
    forEachFile([this] {
        for (const SqlTexts::Route &route : kRoutes) {
            const Scan before = scanned(m_before.path(), route);
            QCOMPARE(scanned(m_after.path(), route).findings, before.findings);
            for (const QString &rule : before.rules)
                m_rules += rule;
        }
    });
}

void TestAnonymiseRandom::thePluginReadsAndDropsTheSameLines()
{
    forEachFile([this] {
        QCOMPARE(QFileInfo(m_after.path()).size(), QFileInfo(m_before.path()).size());
        QCOMPARE(workOn(m_after.path()), workOn(m_before.path()));
    });
}

void TestAnonymiseRandom::whoIsWhoStays()
{
    forEachFile([this] {
        const auto before = scanned(m_before.path(), kRoutes.first()).records;
        const auto after = scanned(m_after.path(), kRoutes.first()).records;
        QCOMPARE(pattern(people(after)), pattern(people(before)));
        QCOMPARE(pattern(pids(after)), pattern(pids(before)));
        QCOMPARE(pids(after).count(0), pids(before).count(0));
        QCOMPARE(pattern(costCentres(after)), pattern(costCentres(before)));
        QCOMPARE(pattern(texts(after).toVector()), pattern(texts(before).toVector()));
        QCOMPARE(damagedTexts(after), damagedTexts(before));
    });
}

void TestAnonymiseRandom::whatThePluginDecidesByStays()
{
    forEachFile([this] {
        QCOMPARE(keptValues(scanned(m_after.path(), kRoutes.first()).records),
                 keptValues(scanned(m_before.path(), kRoutes.first()).records));
    });
}

void TestAnonymiseRandom::everyRuleWasTried()
{
    // This one needs 200,000 people.
    QSet<QString> expected;
    for (const RuleGroup &group : ruleGroups()) {
        if (group.subcommand != QLatin1String("check-file"))
            continue;
        for (const Rule *const rule : group.rules)
            expected += rule->id;
    }
    expected -= "repetitions-not-all-found";
    QCOMPARE(m_rules, expected);
}

QTEST_GUILESS_MAIN(TestAnonymiseRandom)
#include "tst_anonymiserandom.moc"
