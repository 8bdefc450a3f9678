#include "tests/support/environmentnumber.h"
#include "tests/support/localzone.h"
#include "tests/worker/operations/recordtext.h"
#include "worker/exportline.h"
#include "worker/mhrworker.h"
#include "worker/mirovaronrecord.h"

#include <QDateTime>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTest>

#include <cmath>
#include <limits>

namespace {

const QString kFormat = "yyyy-MM-dd hh:mm:ss.zzz";

// ---- A second reading of the format ---------------------------------------------------------

quint32 numberOf(const QString &text)
{
    static const QRegularExpression digits("^\\s*0*(\\d{1,10})\\s*$");
    const QRegularExpressionMatch match = digits.match(text);
    if (!match.hasMatch())
        return 0;
    const qulonglong number = match.captured(1).toULongLong();
    return number <= 4294967295ULL ? quint32(number) : 0;
}

quint16 codeOf(const QString &text)
{
    return quint16(numberOf(text) % 65536);
}

QDate dateOf(const QString &text)
{
    return QDateTime::fromString(text, kFormat).date();
}

MirovaRonRecord recordOf(const QStringList &parts)
{
    MirovaRonRecord r;
    r.osobniCislo = numberOf(parts[0]);
    r.poradoveCisloPP = numberOf(parts[1]);
    r.titul = parts[2];
    r.jmeno = parts[3];
    r.prijmeni = parts[4];
    r.titulZa = parts[5];
    r.telefon = parts[6];
    r.datumNastupu = dateOf(parts[7]);
    r.datumVystupu = dateOf(parts[8]);
    r.stredisko = numberOf(parts[9]);
    r.strediskoPopis = parts[10];
    r.kalendar = numberOf(parts[11]);
    r.kalendarPlatnostOd = dateOf(parts[12]);
    r.typPracovnihoPomeru = codeOf(parts[13]);
    r.stavPracovnihoPomeru = codeOf(parts[14]);
    r.evidencniStav = codeOf(parts[15]);
    r.dovolenaZustatek = parts[16].toDouble();
    r.nadrizenyOsobniCislo = numberOf(parts[17]);
    return r;
}

// ---- Random texts ---------------------------------------------------------------------------

/// Makes texts of the export's kinds, most of them good, some a little wrong. Always the same ones.
class RandomTexts {
public:
    explicit RandomTexts(quint32 seed)
        : m_random(seed)
    {
    }

    bool oneIn(int n) { return below(n) == 0; }

    QString date(int firstYear, int lastYear)
    {
        return QString("%1-%2-%3")
                   .arg(firstYear + below(lastYear - firstYear + 1), 4, 10, QChar('0'))
                   .arg(1 + below(12), 2, 10, QChar('0'))
                   .arg(1 + below(31), 2, 10, QChar('0'))
            + timeOfDay();
    }

    QString timeOfDay()
    {
        return QString(" %1:%2:%3.%4")
            .arg(below(24), 2, 10, QChar('0'))
            .arg(below(60), 2, 10, QChar('0'))
            .arg(below(60), 2, 10, QChar('0'))
            .arg(below(1000), 3, 10, QChar('0'));
    }

    QString mutated(QString text)
    {
        for (int changes = 1 + below(3); changes > 0; --changes) {
            const int at = text.isEmpty() ? 0 : below(text.size());
            switch (below(4)) {
            case 0:
                text.remove(at, 1 + below(3));
                break;
            case 1:
                text.insert(at, pick(kSmudges));
                break;
            case 2:
                text.replace(at, 1, pick(kSmudges));
                break;
            default:
                text.replace(at, 1, QChar('0' + below(10)));
            }
        }
        return text;
    }

    QString number()
    {
        QString text = QString::number(m_random.generate() >> below(32));
        if (oneIn(3))
            text.prepend(QString(below(6), '0'));
        if (oneIn(4))
            text = QString(below(3), ' ') + text + QString(below(3), '\t');
        if (oneIn(4))
            text.insert(below(text.size() + 1), pick({"-", ".", ",", " ", "x", "0", "9", "e3"}));
        return oneIn(8) ? QString() : text;
    }

    QString name()
    {
        QString text;
        for (int length = below(12); length > 0; --length)
            text += pick({"a", "Š", "ô", " ", "'", "%1", "€", "\U0001F600", "-", "ť", "\""});
        return text;
    }

    QString balance()
    {
        const QString text = QString::number((below(200000) - 100000) / 1000.0);
        return oneIn(4) ? mutated(text) : text;
    }

    QString dateField()
    {
        if (oneIn(6))
            return QString();
        const QString text = date(1990, 2035);
        return oneIn(4) ? mutated(text) : text;
    }

private:
    int below(int limit) { return int(m_random.bounded(limit)); }
    QString pick(const QStringList &texts) { return texts.at(below(texts.size())); }

    const QStringList kSmudges = {" ", "-", ":", ".",      "/",  "T",
                                  "0", "+", "a", "\u0663", "\t", "99"};
    QRandomGenerator m_random;
};

/// True for a text of the export's form whose moment the local clocks skip. It has to be the local
/// time: after 2037 Qt changes its clocks on the days of 2037, and those of a QTimeZone by the
/// rules.
bool isSkipped(const QString &text)
{
    static const QRegularExpression form(R"(^\d{4}-\d\d-\d\d \d\d:\d\d:\d\d\.\d{3}$)");
    if (!form.match(text).hasMatch())
        return false;
    const QDate date = QDate::fromString(text.left(10), "yyyy-MM-dd");
    const QTime time = QTime::fromString(text.mid(11), "hh:mm:ss.zzz");
    return date.isValid() && time.isValid() && !QDateTime(date, time).isValid();
}

/// The line of the format's example, with one part replaced.
QStringList exampleWith(int position, const QString &text)
{
    QStringList parts = {"1234",
                         "1",
                         "Ing.",
                         "Jana",
                         "Nováková",
                         "",
                         "555123456",
                         "2019-04-01 00:00:00.000",
                         "",
                         "120",
                         "Sklad",
                         "3",
                         "2019-04-01 00:00:00.000",
                         "1",
                         "1",
                         "1",
                         "12.5",
                         "1001"};
    parts[position] = text;
    return parts;
}

/// What is read from a line of these parts.
MirovaRonRecord recordRead(const QStringList &parts)
{
    const QString line = parts.join(ExportLine::kSeparator);
    return ExportLine::toRecord(ExportLine::split(line, ExportLine::kSeparator));
}

struct NumberField {
    const char *name;
    int position;
    quint32 (*value)(const MirovaRonRecord &);
};

const NumberField kNumberFields[] = {
    {"OsobniCislo", 0,
     [](const MirovaRonRecord &r) {
         return r.osobniCislo;
     }},
    {"PoradoveCisloPP", 1,
     [](const MirovaRonRecord &r) {
         return r.poradoveCisloPP;
     }},
    {"Stredisko", 9,
     [](const MirovaRonRecord &r) {
         return r.stredisko;
     }},
    {"Kalendar", 11,
     [](const MirovaRonRecord &r) {
         return r.kalendar;
     }},
    {"NadrizenyOsobniCislo", 17,
     [](const MirovaRonRecord &r) {
         return r.nadrizenyOsobniCislo;
     }},
};

struct CodeField {
    const char *name;
    int position;
    quint16 (*value)(const MirovaRonRecord &);
};

const CodeField kCodeFields[] = {
    {"TypPracovnihoPomeru", 13,
     [](const MirovaRonRecord &r) {
         return r.typPracovnihoPomeru;
     }},
    {"StavPracovnihoPomeru", 14,
     [](const MirovaRonRecord &r) {
         return r.stavPracovnihoPomeru;
     }},
    {"EvidencniStav", 15,
     [](const MirovaRonRecord &r) {
         return r.evidencniStav;
     }},
};

} // namespace

class TestExportLine : public QObject {
    Q_OBJECT
public:
    static void initMain() { qputenv("TZ", "Europe/Bratislava"); }

private Q_SLOTS:
    void theFieldsHaveTheirNamesAndOrder();
    void eachPartFillsItsMember();
    void derivedMembersStartEmpty();
    void numbersAreUnsignedDecimal_data();
    void numbersAreUnsignedDecimal();
    void codesKeepTheirLow16Bits_data();
    void codesKeepTheirLow16Bits();
    void balancesHaveADecimalPoint_data();
    void balancesHaveADecimalPoint();
    void textsKeepTheirSpaces();
    void badPartsDoNotSpoilTheOthers();
    void randomLinesAreReadAsTheFieldsSay();

    void aRecordNeedsBothNumbersAndAName_data();
    void aRecordNeedsBothNumbersAndAName();

    void datesHaveTheFormOfTheExport_data();
    void datesHaveTheFormOfTheExport();
    void aTimeThatTheZoneSkipsKeepsItsDate_data();
    void aTimeThatTheZoneSkipsKeepsItsDate();
    void otherFormatsAreReadAsQtReadsThem();
    void textsAroundAChangeOfTheClocksAreReadAsQtReadsThem_data();
    void textsAroundAChangeOfTheClocksAreReadAsQtReadsThem();
    void randomDatesAreReadAsQtReadsThem_data();
    void randomDatesAreReadAsQtReadsThem();
};

// ---- Fields -----------------------------------------------------------------------------------

void TestExportLine::theFieldsHaveTheirNamesAndOrder()
{
    const QStringList names = {"OsobniCislo",
                               "PoradoveCisloPP",
                               "Titul",
                               "Jmeno",
                               "Prijmeni",
                               "TitulZa",
                               "Telefon",
                               "DatumNastupu",
                               "DatumVystupu",
                               "Stredisko",
                               "StrediskoPopis",
                               "Kalendar",
                               "KalendarPlatnostOd",
                               "TypPracovnihoPomeru",
                               "StavPracovnihoPomeru",
                               "EvidencniStav",
                               "DovolenaZustatek",
                               "NadrizenyOsobniCislo"};
    QCOMPARE(names.size(), 18);
    QCOMPARE(int(ExportLine::kFieldCount), 18);
    QCOMPARE(ExportLine::fieldNames(), names);
    QCOMPARE(QString(ExportLine::kDateFormat), kFormat);
}

void TestExportLine::eachPartFillsItsMember()
{
    const MirovaRonRecord r =
        recordRead({"1", "2", "title", "first name", "surname", "title after", "phone",
                    "2001-02-03 04:05:06.007", "2002-03-04 05:06:07.008", "10", "centre", "12",
                    "2003-04-05 06:07:08.009", "14", "15", "16", "17.25", "18"});
    QCOMPARE(r.osobniCislo, 1U);
    QCOMPARE(r.poradoveCisloPP, 2U);
    QCOMPARE(r.titul, QString("title"));
    QCOMPARE(r.jmeno, QString("first name"));
    QCOMPARE(r.prijmeni, QString("surname"));
    QCOMPARE(r.titulZa, QString("title after"));
    QCOMPARE(r.telefon, QString("phone"));
    QCOMPARE(r.datumNastupu, QDate(2001, 2, 3));
    QCOMPARE(r.datumVystupu, QDate(2002, 3, 4));
    QCOMPARE(r.stredisko, 10U);
    QCOMPARE(r.strediskoPopis, QString("centre"));
    QCOMPARE(r.kalendar, 12U);
    QCOMPARE(r.kalendarPlatnostOd, QDate(2003, 4, 5));
    QCOMPARE(r.typPracovnihoPomeru, quint16(14));
    QCOMPARE(r.stavPracovnihoPomeru, quint16(15));
    QCOMPARE(r.evidencniStav, quint16(16));
    QCOMPARE(r.dovolenaZustatek, 17.25);
    QCOMPARE(r.nadrizenyOsobniCislo, 18U);
}

void TestExportLine::derivedMembersStartEmpty()
{
    const MirovaRonRecord r = recordRead(exampleWith(0, "1234"));
    QCOMPARE(r.rsFrom, QDate());
    QCOMPARE(r.rsTo, QDate());
    QCOMPARE(r.rsText, QString());
}

void TestExportLine::numbersAreUnsignedDecimal_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<quint32>("number");
    QTest::newRow("plain") << "1234" << 1234U;
    QTest::newRow("leading zeros") << "0001234" << 1234U;
    QTest::newRow("leading zeros, no octal") << "010" << 10U;
    QTest::newRow("blanks around") << "  1234 " << 1234U;
    QTest::newRow("tabs around") << "\t1234\t" << 1234U;
    QTest::newRow("zero") << "0" << 0U;
    QTest::newRow("nine digits") << "999999999" << 999999999U;
    QTest::newRow("largest") << "4294967295" << 4294967295U;
    QTest::newRow("one more") << "4294967296" << 0U;
    QTest::newRow("far more") << "99999999999999999999" << 0U;
    QTest::newRow("empty") << "" << 0U;
    QTest::newRow("blanks only") << "   " << 0U;
    QTest::newRow("letters") << "abc" << 0U;
    QTest::newRow("letters behind") << "12abc" << 0U;
    QTest::newRow("negative") << "-5" << 0U;
    QTest::newRow("fraction") << "5.0" << 0U;
    QTest::newRow("group separators") << "1,234" << 0U;
    QTest::newRow("blank between digits") << "1 234" << 0U;
    QTest::newRow("no-break space between digits") << "1\u00a0234" << 0U;
    QTest::newRow("hexadecimal") << "0x10" << 0U;
    QTest::newRow("exponent") << "1e3" << 0U;
    QTest::newRow("digits of another script") << "\u0661\u0662" << 0U;
}

void TestExportLine::numbersAreUnsignedDecimal()
{
    QFETCH(QString, text);
    QFETCH(quint32, number);
    for (const NumberField &field : kNumberFields) {
        const QStringList parts = exampleWith(field.position, text);
        QVERIFY2(field.value(recordRead(parts)) == number, field.name);
    }
}

void TestExportLine::codesKeepTheirLow16Bits_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<quint16>("code");
    QTest::newRow("plain") << "560" << quint16(560);
    QTest::newRow("blanks around") << " 21 " << quint16(21);
    QTest::newRow("largest") << "65535" << quint16(65535);
    QTest::newRow("65536") << "65536" << quint16(0);
    QTest::newRow("65537") << "65537" << quint16(1);
    QTest::newRow("largest number") << "4294967295" << quint16(65535);
    QTest::newRow("more than 32 bits") << "4294967297" << quint16(0);
    QTest::newRow("negative") << "-1" << quint16(0);
    QTest::newRow("letters") << "x" << quint16(0);
    QTest::newRow("empty") << "" << quint16(0);
}

void TestExportLine::codesKeepTheirLow16Bits()
{
    QFETCH(QString, text);
    QFETCH(quint16, code);
    for (const CodeField &field : kCodeFields) {
        const QStringList parts = exampleWith(field.position, text);
        QVERIFY2(field.value(recordRead(parts)) == code, field.name);
    }
}

void TestExportLine::balancesHaveADecimalPoint_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("balance");
    QTest::newRow("whole") << "12" << 12.0;
    QTest::newRow("fraction") << "12.5" << 12.5;
    QTest::newRow("three digits") << "12.345" << 12.345;
    QTest::newRow("negative") << "-0.5" << -0.5;
    QTest::newRow("blanks around") << " 12.5 " << 12.5;
    QTest::newRow("exponent") << "1e2" << 100.0;
    QTest::newRow("decimal comma") << "12,5" << 0.0;
    QTest::newRow("group separators") << "1,234.5" << 0.0;
    QTest::newRow("letters") << "abc" << 0.0;
    QTest::newRow("letters behind") << "12.5 d" << 0.0;
    QTest::newRow("empty") << "" << 0.0;
    QTest::newRow("infinite") << "inf" << std::numeric_limits<double>::infinity();
}

void TestExportLine::balancesHaveADecimalPoint()
{
    QFETCH(QString, text);
    QFETCH(double, balance);
    const double read = recordRead(exampleWith(16, text)).dovolenaZustatek;
    QVERIFY2(read == balance, qPrintable(QString::number(read, 'g', 17)));
}

void TestExportLine::textsKeepTheirSpaces()
{
    const QString text = "  D'Arc \t%1 ";
    QCOMPARE(recordRead(exampleWith(2, text)).titul, text);
    QCOMPARE(recordRead(exampleWith(3, text)).jmeno, text);
    QCOMPARE(recordRead(exampleWith(4, text)).prijmeni, text);
    QCOMPARE(recordRead(exampleWith(5, text)).titulZa, text);
    QCOMPARE(recordRead(exampleWith(6, text)).telefon, text);
    QCOMPARE(recordRead(exampleWith(10, text)).strediskoPopis, text);
}

void TestExportLine::badPartsDoNotSpoilTheOthers()
{
    QStringList parts = exampleWith(7, "1.4.2019");
    parts[9] = "sto";
    parts[16] = "veľa";
    MirovaRonRecord expected = recordRead(exampleWith(0, "1234"));
    expected.datumNastupu = QDate();
    expected.stredisko = 0;
    expected.dovolenaZustatek = 0.0;
    QCOMPARE(recordRead(parts), expected);
    QVERIFY(ExportLine::isUsable(expected));
}

void TestExportLine::randomLinesAreReadAsTheFieldsSay()
{
    // Without daylight-saving time, so that the plain reading of a date has no gaps.
    const LocalZone utc("UTC");
    RandomTexts random(20240315);
    int usable = 0;
    for (int i = 0; i < 20000; ++i) {
        const QStringList parts = {
            random.number(),    random.number(), random.name(),   random.name(),
            random.name(),      random.name(),   random.name(),   random.dateField(),
            random.dateField(), random.number(), random.name(),   random.number(),
            random.dateField(), random.number(), random.number(), random.number(),
            random.balance(),   random.number(),
        };
        const MirovaRonRecord read = recordRead(parts);
        const MirovaRonRecord expected = recordOf(parts);
        if (std::isnan(expected.dovolenaZustatek))
            continue;
        QVERIFY2(read == expected, qPrintable(parts.join('|')));

        const bool named = !parts[3].isEmpty() || !parts[4].isEmpty();
        const bool numbered = numberOf(parts[0]) != 0 && numberOf(parts[1]) != 0;
        QVERIFY2(ExportLine::isUsable(read) == (named && numbered), qPrintable(parts.join('|')));
        usable += named && numbered ? 1 : 0;
    }
    // The texts are a fair mix.
    QVERIFY(usable > 5000 && usable < 19000);
}

void TestExportLine::aRecordNeedsBothNumbersAndAName_data()
{
    QTest::addColumn<quint32>("personalNumber");
    QTest::addColumn<quint32>("relationship");
    QTest::addColumn<QString>("firstName");
    QTest::addColumn<QString>("surname");
    QTest::addColumn<bool>("usable");
    QTest::newRow("everything") << 1U << 1U << "Jana"
                                << "Nováková" << true;
    QTest::newRow("only a first name") << 1U << 1U << "Jana"
                                       << "" << true;
    QTest::newRow("only a surname") << 1U << 1U << ""
                                    << "Nováková" << true;
    QTest::newRow("a blank for a name") << 1U << 1U << " "
                                        << "" << true;
    QTest::newRow("no name") << 1U << 1U << ""
                             << "" << false;
    QTest::newRow("no personal number") << 0U << 1U << "Jana"
                                        << "Nováková" << false;
    QTest::newRow("no relationship") << 1U << 0U << "Jana"
                                     << "Nováková" << false;
    QTest::newRow("nothing") << 0U << 0U << ""
                             << "" << false;
}

void TestExportLine::aRecordNeedsBothNumbersAndAName()
{
    QFETCH(quint32, personalNumber);
    QFETCH(quint32, relationship);
    QFETCH(QString, firstName);
    QFETCH(QString, surname);
    MirovaRonRecord record;
    record.osobniCislo = personalNumber;
    record.poradoveCisloPP = relationship;
    record.jmeno = firstName;
    record.prijmeni = surname;
    QTEST(ExportLine::isUsable(record), "usable");
}

// ---- Dates ------------------------------------------------------------------------------------

void TestExportLine::datesHaveTheFormOfTheExport_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QDate>("date");
    QTest::newRow("midnight") << "2021-03-01 00:00:00.000" << QDate(2021, 3, 1);
    QTest::newRow("any time of the day") << "2021-03-01 23:59:59.999" << QDate(2021, 3, 1);
    QTest::newRow("leap day") << "2024-02-29 00:00:00.000" << QDate(2024, 2, 29);
    QTest::newRow("first year") << "0001-01-01 00:00:00.000" << QDate(1, 1, 1);
    QTest::newRow("last year") << "9999-12-31 00:00:00.000" << QDate(9999, 12, 31);
    QTest::newRow("empty") << "" << QDate();
    QTest::newRow("no leap day") << "2023-02-29 00:00:00.000" << QDate();
    QTest::newRow("month 13") << "2021-13-01 00:00:00.000" << QDate();
    QTest::newRow("month 0") << "2021-00-01 00:00:00.000" << QDate();
    QTest::newRow("day 0") << "2021-03-00 00:00:00.000" << QDate();
    QTest::newRow("day 32") << "2021-03-32 00:00:00.000" << QDate();
    QTest::newRow("year 0") << "0000-03-01 00:00:00.000" << QDate();
    QTest::newRow("hour 24") << "2021-03-01 24:00:00.000" << QDate();
    QTest::newRow("minute 60") << "2021-03-01 00:60:00.000" << QDate();
    QTest::newRow("second 60") << "2021-03-01 00:00:60.000" << QDate();
    QTest::newRow("date only") << "2021-03-01" << QDate();
    QTest::newRow("no seconds") << "2021-03-01 00:00" << QDate();
    QTest::newRow("no milliseconds") << "2021-03-01 00:00:00" << QDate();
    QTest::newRow("one digit of milliseconds") << "2021-03-01 00:00:00.0" << QDate();
    QTest::newRow("four digits of milliseconds") << "2021-03-01 00:00:00.0000" << QDate();
    QTest::newRow("one digit of the month") << "2021-3-01 00:00:00.000" << QDate();
    QTest::newRow("two digits of the year") << "21-03-01 00:00:00.000" << QDate();
    QTest::newRow("slashes") << "2021/03/01 00:00:00.000" << QDate();
    QTest::newRow("T between date and time") << "2021-03-01T00:00:00.000" << QDate();
    QTest::newRow("comma before milliseconds") << "2021-03-01 00:00:00,000" << QDate();
    QTest::newRow("blank in front") << " 2021-03-01 00:00:00.000" << QDate();
    QTest::newRow("blank behind") << "2021-03-01 00:00:00.000 " << QDate();
    QTest::newRow("local form") << "1.3.2021 00:00:00.000" << QDate();
    QTest::newRow("letters") << "yyyy-MM-dd hh:mm:ss.zzz" << QDate();
    QTest::newRow("digits of another script")
        << "\u0662\u0660\u0662\u0661-03-01 00:00:00.000" << QDate();
}

void TestExportLine::datesHaveTheFormOfTheExport()
{
    QFETCH(QString, text);
    QFETCH(QDate, date);
    QCOMPARE(ExportLine::parseDate(text, kFormat), date);
    QCOMPARE(MHRWorker().parseDate(text, kFormat), date);
    QCOMPARE(recordRead(exampleWith(7, text)).datumNastupu, date);
    QCOMPARE(recordRead(exampleWith(8, text)).datumVystupu, date);
    QCOMPARE(recordRead(exampleWith(12, text)).kalendarPlatnostOd, date);
}

void TestExportLine::aTimeThatTheZoneSkipsKeepsItsDate_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QDate>("date");
    QTest::newRow("Bratislava, first moment of the gap")
        << QByteArray("Europe/Bratislava") << "2021-03-28 02:00:00.000" << QDate(2021, 3, 28);
    QTest::newRow("Bratislava, last moment of the gap")
        << QByteArray("Europe/Bratislava") << "2021-03-28 02:59:59.999" << QDate(2021, 3, 28);
    QTest::newRow("Sao Paulo, a midnight that does not exist")
        << QByteArray("America/Sao_Paulo") << "2018-11-04 00:00:00.000" << QDate(2018, 11, 4);
    QTest::newRow("Beirut, a midnight that does not exist")
        << QByteArray("Asia/Beirut") << "2021-03-28 00:00:00.000" << QDate(2021, 3, 28);
}

void TestExportLine::aTimeThatTheZoneSkipsKeepsItsDate()
{
    QFETCH(QByteArray, zone);
    QFETCH(QString, text);
    QFETCH(QDate, date);
    const LocalZone local(zone);
    QVERIFY(isSkipped(text));
    QCOMPARE(ExportLine::parseDate(text, kFormat), date);
    QCOMPARE(MHRWorker().parseDate(text, kFormat), date);
    QCOMPARE(recordRead(exampleWith(8, text)).datumVystupu, date);
}

void TestExportLine::otherFormatsAreReadAsQtReadsThem()
{
    QCOMPARE(ExportLine::parseDate(u"1.3.2021", "d.M.yyyy"), QDate(2021, 3, 1));
    QCOMPARE(ExportLine::parseDate(u"2021-03-01 00:00:00.000", "d.M.yyyy"), QDate());
    QCOMPARE(ExportLine::parseDate(u"2021-03-01", "yyyy-MM-dd"), QDate(2021, 3, 1));
    QCOMPARE(ExportLine::parseDate(u"", ""), QDateTime::fromString("", "").date());
    QCOMPARE(MHRWorker().parseDate("1.3.2021", "d.M.yyyy"), QDate(2021, 3, 1));
}

void TestExportLine::textsAroundAChangeOfTheClocksAreReadAsQtReadsThem_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<QString>("day");
    QTest::newRow("Bratislava, spring") << QByteArray("Europe/Bratislava") << "2021-03-28";
    QTest::newRow("Bratislava, autumn") << QByteArray("Europe/Bratislava") << "2021-10-31";
    QTest::newRow("Sao Paulo, no midnight") << QByteArray("America/Sao_Paulo") << "2018-11-04";
    QTest::newRow("Sao Paulo, two") << QByteArray("America/Sao_Paulo") << "2018-02-18";
    QTest::newRow("Beirut, no midnight") << QByteArray("Asia/Beirut") << "2021-03-28";
    QTest::newRow("Lord Howe, half an hour") << QByteArray("Australia/Lord_Howe") << "2021-10-03";
    QTest::newRow("Apia, a whole day") << QByteArray("Pacific/Apia") << "2011-12-30";
}

void TestExportLine::textsAroundAChangeOfTheClocksAreReadAsQtReadsThem()
{
    QFETCH(QByteArray, zone);
    QFETCH(QString, day);
    const LocalZone local(zone);
    RandomTexts random(20240318);
    const int texts = int(environmentNumber("MIROVAHR_DATES", 20000)) / 10;
    const QDate date = QDate::fromString(day, "yyyy-MM-dd");
    for (int i = 0; i < texts; ++i) {
        const QString whole = date.addDays(i % 3 - 1).toString("yyyy-MM-dd") + random.timeOfDay();
        const QString text = random.oneIn(3) ? random.mutated(whole) : whole;
        // Only where the clocks skip does it give the day that Qt's parser refuses.
        const QDate expected =
            isSkipped(text) ? QDate::fromString(text.left(10), "yyyy-MM-dd") : dateOf(text);
        QVERIFY2(ExportLine::parseDate(text, kFormat) == expected, qPrintable(text));
    }
}

void TestExportLine::randomDatesAreReadAsQtReadsThem_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<int>("firstYear");
    QTest::addColumn<int>("lastYear");
    QTest::newRow("UTC, all years") << QByteArray("UTC") << 0 << 9999;
    QTest::newRow("UTC, years of a working life") << QByteArray("UTC") << 1970 << 2037;
    QTest::newRow("Bratislava") << QByteArray("Europe/Bratislava") << 1980 << 2037;
    QTest::newRow("Sao Paulo") << QByteArray("America/Sao_Paulo") << 1986 << 2037;
    QTest::newRow("Kolkata") << QByteArray("Asia/Kolkata") << 1970 << 2037;
    QTest::newRow("Beirut") << QByteArray("Asia/Beirut") << 1993 << 2037;
}

void TestExportLine::randomDatesAreReadAsQtReadsThem()
{
    QFETCH(QByteArray, zone);
    QFETCH(int, firstYear);
    QFETCH(int, lastYear);
    const LocalZone local(zone);
    RandomTexts random(20240316);
    int valid = 0;
    int skipped = 0;
    const int texts = int(environmentNumber("MIROVAHR_DATES", 20000));
    for (int i = 0; i < texts; ++i) {
        const QString whole = random.date(firstYear, lastYear);
        const QString text = random.oneIn(3) ? random.mutated(whole) : whole;
        const QDate read = ExportLine::parseDate(text, kFormat);
        if (isSkipped(text)) {
            QCOMPARE(read, QDate::fromString(text.left(10), "yyyy-MM-dd"));
            ++skipped;
            continue;
        }
        QVERIFY2(read == dateOf(text), qPrintable(text));
        valid += read.isValid() ? 1 : 0;
    }
    // The texts are a fair mix, and few fall into a gap.
    QVERIFY(valid > texts / 3 && valid < texts);
    QVERIFY(skipped <= texts / 1000);
}

QTEST_GUILESS_MAIN(TestExportLine)
#include "tst_exportline.moc"
