#include "db/placeholders.h"
#include "mirovahrctl/export/sqltexts.h"
#include "tests/support/exportfile.h"
#include "worker/exportline.h"

#include <QRandomGenerator>
#include <QTest>

namespace {

/// What a text may consist of that statements, placeholders or lines make something of.
const QStringList kPieces{"a",  "'",  "\\",   "%",  "%1", "%L", "%99", "L", "1",      "0", "٣",
                          "\"", "`",  ";",    "--", "#",  "/*", "*/",  " ", "' '",    "ž", "👤",
                          "\t", "''", "\\\\", "?",  ":x", "_",  "\\%", "n", "\u00a0", "{"};

/// Bytes that are no UTF-8, and other oddities of lines.
const QVector<QByteArray> kOddBytes{"\xFF",         "\xC5", "\xC0\xA7",     "\xED\xA0\x80",
                                    "\xE2\x82",     "\xF0", "\xEF\xBB\xBF", "\xEF\xBF\xBD",
                                    "\xF4\x90\x80", "\r",   "\x1A",         "\x01"};

QString randomText(QRandomGenerator &random)
{
    QString text;
    for (int i = random.bounded(7); i > 0; --i)
        text += kPieces.at(random.bounded(kPieces.size()));
    return text;
}

QByteArray randomBytes(QRandomGenerator &random)
{
    QByteArray bytes = randomText(random).toUtf8();
    for (int i = random.bounded(3); i > 0; --i)
        bytes.insert(random.bounded(bytes.size() + 1), kOddBytes.at(random.bounded(12)));
    return bytes;
}

/// What a server reads from a text between two apostrophes that it is to take for one string: the
/// rules of its scanner, apart from the escapes that stand for other characters. Nothing when the
/// string ends within the text.
std::optional<QString> readByServer(const QString &text, Backslash backslash)
{
    QString read;
    for (int i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (c == '\\' && backslash == Backslash::Escapes) {
            if (++i == text.size())
                return std::nullopt; // it escapes the last apostrophe
            read += text.at(i);
        } else if (c != '\'') {
            read += c;
        } else if (text.mid(i, 2) == "''") {
            read += text.at(++i);
        } else if (text.mid(i, 3) == "' '") {
            i += 2;
        } else {
            return std::nullopt;
        }
    }
    return read;
}

MirovaRonRecord recordOf(const QByteArray &line)
{
    const QString text = ExportLine::decode(line.constData());
    return ExportLine::toRecord(ExportLine::split(text, ExportLine::kSeparator));
}

} // namespace

Q_DECLARE_METATYPE(Backslash)

/// The form in which texts survive the plugin's statements, and back.
class TestSqlTexts : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aTextIsWrittenSoThatItSurvives_data();
    void aTextIsWrittenSoThatItSurvives();
    void whatIsNotWrittenSafelyMeansNothing_data();
    void whatIsNotWrittenSafelyMeansNothing();
    void writingAndReadingAreInverse_data();
    void writingAndReadingAreInverse();
    void whatIsTakenForWrittenIsOneStringToTheServer_data();
    void whatIsTakenForWrittenIsOneStringToTheServer();
    void noPlaceholderOfATextIsFilled();
    void onlyTheTextsOfALineAreWritten();
    void aLineWithoutAllFieldsStaysAsItIs();
    void thePluginReadsTheTextsOfAnyLineAsTheyWereMeant_data();
    void thePluginReadsTheTextsOfAnyLineAsTheyWereMeant();
    void aWrittenRecordIsShownAsItWasMeant();

private:
    static void addServers();
};

void TestSqlTexts::addServers()
{
    QTest::addColumn<Backslash>("backslash");
    QTest::newRow("a backslash escapes") << Backslash::Escapes;
    QTest::newRow("a backslash is literal") << Backslash::IsLiteral;
}

void TestSqlTexts::aTextIsWrittenSoThatItSurvives_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("escaped");
    QTest::addColumn<QString>("literal");
    const auto add = [](const char *name, const QString &text, const QString &escaped,
                        const QString &literal) {
        QTest::newRow(name) << text << escaped << literal;
    };
    add("a plain text", "Nováková", "Nováková", "Nováková");
    add("no text", "", "", "");
    add("an apostrophe", "O'Brien", "O''Brien", "O''Brien");
    add("two apostrophes", "O''Brien", "O''''Brien", "O''''Brien");
    add("a backslash", "A\\B", "A\\\\B", "A\\B");
    add("a backslash at the end", "Ing.\\", "Ing.\\\\", "Ing.\\");
    add("a placeholder", "100%1", "100%' '1", "100%' '1");
    add("a placeholder for a local number", "%L1", "%' 'L1", "%' 'L1");
    add("a placeholder with two digits", "%12", "%' '12", "%' '12");
    add("a digit of another script", "%٣", "%' '٣", "%' '٣");
    add("placeholders in a row", "%1%2", "%' '1%' '2", "%' '1%' '2");
    add("percent signs that are no placeholders", "5 % %L %% %x", "5 % %L %% %x", "5 % %L %% %x");
    add("a placeholder behind a percent sign", "%%1", "%%' '1", "%%' '1");
    add("an apostrophe between percent sign and digit", "%'1", "%''1", "%''1");
    add("a backslash between percent sign and digit", "%\\1", "%\\\\1", "%\\1");
    add("what looks like parted strings", "%' '1", "%'' ''1", "%'' ''1");
}

void TestSqlTexts::aTextIsWrittenSoThatItSurvives()
{
    QFETCH(QString, text);
    QTEST(SqlTexts::written(text, Backslash::Escapes), "escaped");
    QTEST(SqlTexts::written(text, Backslash::IsLiteral), "literal");
}

void TestSqlTexts::whatIsNotWrittenSafelyMeansNothing_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("an apostrophe") << "O'Brien";
    QTest::newRow("three apostrophes") << "O'''Brien";
    QTest::newRow("a placeholder") << "100%1";
    QTest::newRow("an apostrophe at the end") << "''x'";
    QTest::newRow("strings parted without need") << "a' 'b";
    QTest::newRow("strings parted by another blank") << "%'\t'1";
    QTest::newRow("one of two placeholders") << "%' '1%2";
}

void TestSqlTexts::whatIsNotWrittenSafelyMeansNothing()
{
    QFETCH(QString, text);
    QVERIFY(!SqlTexts::meant(text, Backslash::Escapes));
    QVERIFY(!SqlTexts::meant(text, Backslash::IsLiteral));
    QCOMPARE(SqlTexts::shown(text, Backslash::Escapes), text);
}

void TestSqlTexts::writingAndReadingAreInverse_data()
{
    addServers();
}

void TestSqlTexts::writingAndReadingAreInverse()
{
    QFETCH(Backslash, backslash);
    QRandomGenerator random(20260331);
    for (int i = 0; i < 20000; ++i) {
        const QString text = randomText(random);
        const QString written = SqlTexts::written(text, backslash);
        const auto meant = SqlTexts::meant(written, backslash);
        QVERIFY2(meant, qPrintable(written));
        QCOMPARE(*meant, text);
        QCOMPARE(readByServer(written, backslash).value_or("the string ends"), text);
    }
}

void TestSqlTexts::whatIsTakenForWrittenIsOneStringToTheServer_data()
{
    addServers();
}

void TestSqlTexts::whatIsTakenForWrittenIsOneStringToTheServer()
{
    QFETCH(Backslash, backslash);
    QRandomGenerator random(7);
    int taken = 0;
    for (int i = 0; i < 20000; ++i) {
        const QString text = randomText(random);
        const auto meant = SqlTexts::meant(text, backslash);
        if (!meant)
            continue;
        ++taken;
        QCOMPARE(readByServer(text, backslash).value_or("the string ends"), *meant);
        QCOMPARE(SqlTexts::written(*meant, backslash), text);
    }
    QVERIFY(taken > 1000);
}

void TestSqlTexts::noPlaceholderOfATextIsFilled()
{
    QRandomGenerator random(11);
    for (int i = 0; i < 5000; ++i) {
        QStringList texts;
        for (int field = 0; field < 5; ++field)
            texts += SqlTexts::written(randomText(random), Backslash::Escapes);
        QCOMPARE(
            Placeholders::filled(QLatin1String("1=%1, 2='%2', 3='%3', 4='%4', 5='%5', 6='%6' 7=%7"),
                                 QStringList{"first"} + texts + QStringList{"last"}),
            "1=first, 2='" + texts.at(0) + "', 3='" + texts.at(1) + "', 4='" + texts.at(2)
                + "', 5='" + texts.at(3) + "', 6='" + texts.at(4) + "' 7=last");
    }
}

void TestSqlTexts::onlyTheTextsOfALineAreWritten()
{
    QStringList fields;
    for (int i = 0; i < ExportLine::kFieldCount; ++i)
        fields += QString("%1'\\").arg(i);
    QStringList written = fields;
    for (const int field : {ExportLine::Titul, ExportLine::Jmeno, ExportLine::Prijmeni,
                            ExportLine::TitulZa, ExportLine::Telefon})
        written[field] = QString("%1''\\\\").arg(field);
    QCOMPARE(SqlTexts::writtenLine(fields.join('|').toUtf8() + "\r\n", Backslash::Escapes),
             written.join('|').toUtf8() + "\r\n");
}

void TestSqlTexts::aLineWithoutAllFieldsStaysAsItIs()
{
    const QByteArray line = ExportRow().with(&ExportRow::prijmeni, "O'Brien").text().toUtf8();
    const QByteArray broken[] = {"'",
                                 "",
                                 "\n",
                                 line + '|',
                                 line.left(line.lastIndexOf('|')),
                                 QByteArray("1|1\0", 4) + line,
                                 QByteArray(1, '\0') + line};
    for (const QByteArray &other : broken)
        QCOMPARE(SqlTexts::writtenLine(other, Backslash::Escapes), other);
}

void TestSqlTexts::thePluginReadsTheTextsOfAnyLineAsTheyWereMeant_data()
{
    addServers();
}

void TestSqlTexts::thePluginReadsTheTextsOfAnyLineAsTheyWereMeant()
{
    QFETCH(Backslash, backslash);
    QRandomGenerator random(20260401);
    for (int i = 0; i < 5000; ++i) {
        QList<QByteArray> fields;
        for (const QString &field : ExportRow().fields())
            fields += random.bounded(4) == 0 ? randomBytes(random) : field.toUtf8();
        for (int field = ExportLine::Titul; field <= ExportLine::Telefon; ++field)
            fields[field] = randomBytes(random);
        const QByteArray line = fields.join('|') + (random.bounded(2) ? "\r\n" : "\n");
        const MirovaRonRecord own = recordOf(line);
        const QByteArray published = SqlTexts::writtenLine(line, backslash);
        const MirovaRonRecord read = recordOf(published);
        const auto compare = [&](QString MirovaRonRecord::*text) {
            QCOMPARE(read.*text, SqlTexts::written(own.*text, backslash));
        };
        compare(&MirovaRonRecord::titul);
        compare(&MirovaRonRecord::jmeno);
        compare(&MirovaRonRecord::prijmeni);
        compare(&MirovaRonRecord::titulZa);
        compare(&MirovaRonRecord::telefon);
        // A balance that is no number is none of the texts.
        QCOMPARE(qIsNaN(read.dovolenaZustatek) ? 0 : read.dovolenaZustatek,
                 qIsNaN(own.dovolenaZustatek) ? 0 : own.dovolenaZustatek);
        MirovaRonRecord shown = SqlTexts::shown(read, backslash);
        MirovaRonRecord expected = own;
        shown.dovolenaZustatek = expected.dovolenaZustatek = 0;
        QVERIFY2(shown == expected, line.constData());
        QVERIFY2(published.startsWith(line.left(line.indexOf('|') + 1)), line.constData());
        QVERIFY2(published.endsWith(line.mid(line.lastIndexOf('|'))), line.constData());
    }
}

void TestSqlTexts::aWrittenRecordIsShownAsItWasMeant()
{
    MirovaRonRecord record;
    record.prijmeni = "O''Brien";
    record.telefon = "100%' '1";
    record.strediskoPopis = "''";
    record.rsText = "''";
    const MirovaRonRecord shown = SqlTexts::shown(record, Backslash::Escapes);
    QCOMPARE(shown.prijmeni, QString("O'Brien"));
    QCOMPARE(shown.telefon, QString("100%1"));
    QCOMPARE(shown.strediskoPopis, QString("''"));
    QCOMPARE(shown.rsText, QString("''"));
}

QTEST_GUILESS_MAIN(TestSqlTexts)
#include "tst_sqltexts.moc"
