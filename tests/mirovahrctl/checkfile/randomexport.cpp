#include "tests/mirovahrctl/checkfile/randomexport.h"

#include "tests/support/exportfile.h"

#include <QRandomGenerator>

namespace {

constexpr int kMostLines = 12;

using Random = QRandomGenerator;

template <typename T> const T &oneOf(Random &random, const QVector<T> &values)
{
    return values.at(random.bounded(values.size()));
}

QString randomNumber(Random &random)
{
    static const QVector<QString> numbers{"",           "0",
                                          "00",         "1",
                                          "0012",       " 12 ",
                                          "\t7",        "-1",
                                          "+5",         "12.0",
                                          "1 2",        "abc",
                                          "12a",        "0x10",
                                          "1e3",        "１２",
                                          "٣",          "\u00a01",
                                          "65536",      "4294967295",
                                          "4294967296", "99999999999999999999"};
    return oneOf(random, numbers);
}

QString randomText(Random &random)
{
    static const QVector<QString> texts{"",       "",       " ", "Jana", "O'Neil", "\\", "%1",
                                        "\u00a0", "\u2028", "👤", ";",    "ž",      "\t"};
    return oneOf(random, texts);
}

/// The fields of a person, often with bad numbers and names.
QStringList randomFields(Random &random)
{
    ExportRow line;
    line.with(&ExportRow::osobniCislo, 1000 + random.bounded(10));
    if (random.bounded(3) == 0)
        line.with(&ExportRow::osobniCislo, randomNumber(random));
    if (random.bounded(3) == 0)
        line.with(&ExportRow::poradoveCisloPP, randomNumber(random));
    if (random.bounded(2) == 0)
        line.with(&ExportRow::jmeno, randomText(random));
    if (random.bounded(2) == 0)
        line.with(&ExportRow::prijmeni, randomText(random));
    if (random.bounded(3) == 0)
        line.with(&ExportRow::titul, randomText(random));
    if (random.bounded(3) == 0)
        line.with(&ExportRow::datumVystupu, randomText(random));
    if (random.bounded(3) == 0)
        line.with(&ExportRow::stredisko, randomNumber(random));
    if (random.bounded(3) == 0)
        line.with(&ExportRow::dovolenaZustatek, randomNumber(random));
    return line.fields();
}

QByteArray randomPerson(Random &random)
{
    QStringList fields = randomFields(random);
    switch (random.bounded(12)) {
    case 0:
        fields.removeAt(random.bounded(fields.size()));
        break;
    case 1:
        fields.insert(random.bounded(fields.size()), "x");
        break;
    case 2:
        fields.append("");
        break;
    default:
        break;
    }
    return fields.join('|').toUtf8();
}

/// Bytes that a transfer may put into a line or around it, line feeds excepted.
QByteArray damaged(Random &random, QByteArray line)
{
    static const QVector<QByteArray> bytes{
        QByteArray(1, '\0'), "\xFF",        "\xC5", "\xEF\xBB\xBF", "\r", " ", "|", "\x1A",
        "\xC2\xA0",          "\xED\xA0\x80"};
    switch (random.bounded(8)) {
    case 0:
        return oneOf(random, bytes) + line;
    case 1:
        return line.insert(random.bounded(line.size()), oneOf(random, bytes));
    case 2:
        return line.left(random.bounded(line.size()));
    case 3:
        return line + "\r";
    case 4:
        return " \t" + line + " ";
    default:
        return line;
    }
}

QByteArray randomLine(Random &random)
{
    static const QVector<QByteArray> odd{"",
                                         " ",
                                         "\r",
                                         "\t \t",
                                         "\xC2\xA0",
                                         "\xEF\xBB\xBF",
                                         QByteArray(3, '\0'),
                                         QByteArray("\0x", 2),
                                         "|",
                                         "OsobniCislo|||||||||||||||||",
                                         "|||||||||||||||||"};
    const int kind = random.bounded(60);
    if (kind < 8)
        return oneOf(random, odd);
    const QByteArray person = randomPerson(random);
    if (kind == 8)
        return person + QByteArray(65537 - person.size(), random.bounded(2) == 0 ? ' ' : 'x');
    if (kind == 9)
        return QByteArray(65536 - person.size(), ' ') + person;
    return damaged(random, person);
}

} // namespace

namespace RandomExport {

QVector<QByteArray> lines(Random &random)
{
    QVector<QByteArray> all;
    const int count = 1 + random.bounded(kMostLines);
    for (int i = 0; i < count; ++i)
        all << randomLine(random);
    return all;
}

QByteArray joined(Random &random, const QVector<QByteArray> &lines)
{
    QByteArray content;
    for (const QByteArray &line : lines)
        content += line + '\n';
    if (random.bounded(4) == 0)
        content.chop(1);
    return content;
}

} // namespace RandomExport
