// Random exports, most of them nearly right: the worker reads them as the plain reading does.
//
// MIROVAHR_INPUT_SEED=N makes other exports, MIROVAHR_INPUT_FILES=N more of them.

#include "tests/support/environmentnumber.h"
#include "tests/support/exportfile.h"
#include "tests/worker/input/parttexts.h"
#include "tests/worker/input/plainreading.h"
#include "tests/worker/input/workerreading.h"
#include "worker/exportline.h"

#include <QRandomGenerator>
#include <QTest>

namespace {

/// Makes exports of a few lines, with the mistakes that programs, transfers and people make.
class RandomExports {
public:
    explicit RandomExports(quint32 seed)
        : m_random(seed)
    {
    }

    QByteArray file()
    {
        QByteArray content = oneIn(10) ? kByteOrderMark : QByteArray();
        for (int count = below(6); count > 0; --count)
            content += line() + pick({"\n", "\n", "\n", "\r\n", "\n\n", "\r", ""});
        return oneIn(6) ? damaged(content) : content;
    }

private:
    bool oneIn(int n) { return below(n) == 0; }
    int below(int limit) { return int(m_random.bounded(limit)); }
    QByteArray pick(const QVector<QByteArray> &texts) { return texts.at(below(texts.size())); }

    QByteArray digits() { return QByteArray::number(m_random.generate() >> below(32)); }

    QByteArray number()
    {
        if (!oneIn(5))
            return digits();
        return pick({"",
                     "0",
                     "-1",
                     "+5",
                     "+",
                     "5.0",
                     "1e3",
                     "0x10",
                     "00012",
                     " 7",
                     "7\t",
                     "1 2",
                     "4294967295",
                     "4294967296",
                     "18446744073709551617",
                     "65537",
                     "\xD9\xA3",
                     "\xC2\xA0"
                     "8",
                     "\xE2\x88\x92"
                     "1",
                     "3\xE2\x80\xAF",
                     "1,000",
                     "++1",
                     "5+"});
    }

    QByteArray date()
    {
        if (oneIn(5))
            return {};
        QByteArray text =
            QString::asprintf("%04d-%02d-%02d %02d:%02d:%02d.%03d", below(10000), below(14),
                              below(33), below(25), below(61), below(61), below(1000))
                .toLatin1();
        if (oneIn(2))
            text = QString::asprintf("20%02d-%02d-%02d 00:00:00.000", below(40), 1 + below(12),
                                     1 + below(28))
                       .toLatin1();
        return oneIn(6) ? damaged(text) : text;
    }

    QByteArray text()
    {
        QByteArray text;
        for (int length = below(8); length > 0; --length) {
            text += pick({"a", "\xC5\xA0", " ", "'", "%1", "\xE2\x82\xAC", "\xF0\x9F\x98\x80", "-",
                          "\"", "\\", "\xC2\xA0", "\t"});
        }
        return text;
    }

    QByteArray balance()
    {
        if (!oneIn(4))
            return QByteArray::number((below(200000) - 100000) / 1000.0);
        return pick({"",
                     "12,5",
                     "1e2",
                     ".5",
                     "5.",
                     ".",
                     "inf",
                     "-INF",
                     "nan",
                     "1e",
                     "0x1p3",
                     "+1",
                     "--1",
                     " 2.5 ",
                     "1 000",
                     "infinity",
                     "1e-3",
                     "00.5",
                     "1.5.5",
                     "e5",
                     "\xE2\x88\x92"
                     "2.5",
                     "1e\xE2\x88\x92"
                     "2"});
    }

    QByteArray line()
    {
        QList<QByteArray> parts = {number(), number(), text(),   text(),   text(),    text(),
                                   text(),   date(),   date(),   number(), text(),    number(),
                                   date(),   number(), number(), number(), balance(), number()};
        if (oneIn(12))
            parts.removeAt(below(parts.size()));
        if (oneIn(12))
            parts.insert(below(parts.size()), text());
        const QByteArray line = parts.join('|');
        return oneIn(8) ? damaged(line) : line;
    }

    QByteArray damaged(QByteArray bytes)
    {
        for (int changes = 1 + below(3); changes > 0; --changes) {
            const int at = below(bytes.size() + 1);
            switch (below(5)) {
            case 0:
                bytes.truncate(at);
                break;
            case 1:
                bytes.remove(at, 1 + below(3));
                break;
            case 2:
                bytes.insert(at, char(below(256)));
                break;
            case 3:
                bytes.replace(at, 1, QByteArray(1, char(below(256))));
                break;
            default:
                bytes.insert(at,
                             pick({kByteOrderMark, QByteArray(1, '\0'), "|", "||", "\n", "\r",
                                   "\xED\xA0\x80", "\xC0\x80", "\xF4\x90\x80\x80", "\xFF\xFE",
                                   "\xE2\x80\xA8", "\xC2\x85", "\xE3\x80\x80"}));
            }
        }
        return bytes;
    }

    const QByteArray kByteOrderMark = "\xEF\xBB\xBF";
    QRandomGenerator m_random;
};

/// Empty when the lists are equal, else their first lines that are not.
QString difference(const QStringList &read, const QStringList &demanded)
{
    for (int i = 0; i < qMax(read.size(), demanded.size()); ++i) {
        if (read.value(i) != demanded.value(i))
            return "read: " + read.value(i) + "\ndemanded: " + demanded.value(i);
    }
    return QString();
}

} // namespace

class TestRandomLines : public QObject {
    Q_OBJECT
public:
    static void initMain() { qputenv("TZ", "UTC"); }

private Q_SLOTS:
    void theWorkerReadsThemAsTheFormatSays();
    void aFileThatIsCutShortGivesItsWholeLines();
};

void TestRandomLines::theWorkerReadsThemAsTheFormatSays()
{
    const uint seed = environmentNumber("MIROVAHR_INPUT_SEED", 20190401);
    const uint files = environmentNumber("MIROVAHR_INPUT_FILES", 3000);
    RandomExports exports{seed};
    int lines = 0;
    int taken = 0;
    for (uint i = 0; i < files; ++i) {
        const QByteArray file = exports.file();
        const QByteArray which = QString("seed %1, file %2: ").arg(seed).arg(i).toUtf8()
            + file.toPercentEncoding(" |:.");
        const QStringList texts = PlainReading::lines(file);
        QVector<MirovaRonRecord> records;
        for (const QString &text : texts) {
            const ExportLine::Parts parts = ExportLine::split(text, '|');
            const QStringList plainParts = PlainReading::parts(text);
            QVERIFY2(textsOf(parts) == plainParts, which.constData());
            if (parts.size() != 18)
                continue;
            const MirovaRonRecord read = ExportLine::toRecord(parts);
            QVERIFY2(PlainReading::areSame(read, PlainReading::record(plainParts)),
                     which.constData());
            QVERIFY2(ExportLine::isUsable(read) == PlainReading::isKept(read), which.constData());
            taken += ExportLine::isUsable(read) ? 1 : 0;
        }
        lines += texts.size();
        const QString unlike =
            difference(WorkerReading::ofContent(file), WorkerReading::demanded(file));
        QVERIFY2(unlike.isEmpty(), qPrintable(unlike + '\n' + which));
    }
    // The files are a fair mix.
    QVERIFY2(taken > lines / 3 && taken < lines * 9 / 10,
             qPrintable(QString("%1 of %2 lines").arg(taken).arg(lines)));
}

void TestRandomLines::aFileThatIsCutShortGivesItsWholeLines()
{
    const QVector<ExportRow> rows = {
        ExportRow(),
        ExportRow()
            .with(&ExportRow::osobniCislo, 1235)
            .with(&ExportRow::jmeno, "Ľubica")
            .with(&ExportRow::datumVystupu, QDate(2024, 2, 29))
            .with(&ExportRow::nadrizenyOsobniCislo, 1001),
        ExportRow().with(&ExportRow::osobniCislo, 1236).with(&ExportRow::strediskoPopis, "Šatňa €"),
    };
    QByteArray file;
    for (const ExportRow &row : rows)
        file += row.text().toUtf8() + "\r\n";

    for (int cut = 0; cut <= file.size(); ++cut) {
        const QByteArray rest = file.left(cut);
        QCOMPARE(WorkerReading::ofContent(rest), WorkerReading::demanded(rest));

        // What stands before the cut is read as if nothing were missing. Of the line that is cut a
        // record remains only when all its separators are there: it lacks digits of the last field
        // at most.
        const QVector<MirovaRonRecord> records = PlainReading::records(PlainReading::lines(rest));
        const int wholeLines = rest.count('\n');
        const QByteArray last = rest.mid(rest.lastIndexOf('\n') + 1);
        QCOMPARE(records.size(), wholeLines + (last.count('|') == 17 ? 1 : 0));
        const QVector<MirovaRonRecord> whole = PlainReading::records(PlainReading::lines(file));
        for (int i = 0; i < records.size(); ++i) {
            MirovaRonRecord expected = whole.at(i);
            if (i == wholeLines) {
                expected.nadrizenyOsobniCislo =
                    last.mid(last.lastIndexOf('|') + 1).trimmed().toUInt();
            }
            QVERIFY2(PlainReading::areSame(records.at(i), expected),
                     qPrintable(QString::number(cut)));
        }
    }
}

QTEST_GUILESS_MAIN(TestRandomLines)
#include "tst_randomlines.moc"
