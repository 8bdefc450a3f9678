#include "mirovahrctl/anonymise/otherlines.h"

#include "mirovahrctl/anonymise/fieldforms.h"
#include "mirovahrctl/anonymise/lineparts.h"
#include "mirovahrctl/anonymise/utf8characters.h"
#include "mirovahrctl/export/encodedtwice.h"
#include "worker/exportline.h"

#include <QRandomGenerator>
#include <QString>

namespace {

using namespace ExportLine;
using Utf8Characters::decoded;

/// Bytes of the key: as many as the hash has.
constexpr int kKeyLength = 32;

QByteArray randomKey(QRandomGenerator &random)
{
    QByteArray key(kKeyLength, Qt::Uninitialized);
    for (char &byte : key)
        byte = static_cast<char>(random.generate());
    return key;
}

quint32 numberOf(const QByteArray &text)
{
    return toNumber(decoded(text));
}

/// The text with another number in it: white space, a sign and zeros in front stay.
QByteArray withNumber(QByteArray text, quint32 number, quint32 other)
{
    const QByteArray digits = QByteArray::number(number);
    return text.replace(text.lastIndexOf(digits), digits.size(), QByteArray::number(other));
}

} // namespace

OtherLines::OtherLines(QRandomGenerator &random)
    : m_people(random)
    , m_costCentres(random)
    , m_texts(randomKey(random))
{
}

/// In a line with too few or too many fields, the first is most likely the person's number.
void OtherLines::note(const QByteArray &line)
{
    const QList<QByteArray> fields = LineParts::of(line).fields;
    const quint32 number = numberOf(fields.at(OsobniCislo));
    if (number != 0)
        m_people.note(number);
    if (fields.size() != kFieldCount)
        return;
    const quint32 relationship = numberOf(fields.at(PoradoveCisloPP));
    if (number != 0 && relationship != 0)
        m_people.note(number, relationship);
    if (const quint32 supervisor = numberOf(fields.at(NadrizenyOsobniCislo)); supervisor != 0)
        m_people.note(supervisor);
    if (const quint32 costCentre = numberOf(fields.at(Stredisko)); costCentre != 0)
        m_costCentres.note(costCentre);
}

void OtherLines::settle()
{
    m_people.settle();
    m_costCentres.settle();
}

QByteArray OtherLines::of(const QByteArray &line)
{
    LineParts parts = LineParts::of(line);
    replaceFields(parts.fields);
    for (QByteArray &part : parts.hidden)
        part = ofPart(part);
    return parts.joined();
}

QByteArray OtherLines::ofPiece(const QByteArray &piece)
{
    QList<QByteArray> parts = piece.split(kSeparator.toLatin1());
    for (QByteArray &part : parts)
        part = ofPart(part);
    return parts.join(kSeparator.toLatin1());
}

void OtherLines::replaceFields(QList<QByteArray> &fields)
{
    if (fields.size() != kFieldCount) {
        ++m_brokenCount;
        for (QByteArray &field : fields)
            field = ofPart(field);
        return;
    }
    const quint32 number = numberOf(fields.at(OsobniCislo));
    for (int field = 0; field < kFieldCount; ++field)
        fields[field] = ofField(field, fields.at(field), number);
}

/// \a person: the person's number; 0 for none.
QByteArray OtherLines::ofField(int field, const QByteArray &text, quint32 person)
{
    if (FieldForms::isKept(field, decoded(text)))
        return text;
    const quint32 number = numberOf(text);
    const quint32 other = otherNumber(field, number, person);
    return other == 0 ? ofText(field, text) : withNumber(text, number, other);
}

/// 0 for a number that is none of a person and none of a cost centre.
quint32 OtherLines::otherNumber(int field, quint32 number, quint32 person) const
{
    switch (field) {
    case OsobniCislo:
    case NadrizenyOsobniCislo:
        return m_people.other(number);
    case PoradoveCisloPP:
        return person == 0 ? 0 : m_people.otherRelationship(person, number);
    case Stredisko:
        return m_costCentres.other(number);
    default:
        return 0;
    }
}

/// The first other text that is not kept itself and is read alike. As the other texts of one form
/// are a permutation, this is one of those that are read alike.
QByteArray OtherLines::ofText(int field, const QByteArray &text)
{
    const QString original = decoded(text);
    const int reading = FieldForms::readingOf(field, original);
    // In a text that was encoded twice, two characters are one letter: hardly any other two are.
    const auto letters =
        isEncodedTwice(original) ? OtherTexts::Letters::AsciiOnly : OtherTexts::Letters::All;
    QByteArray other = m_texts.of(text, letters);
    while (FieldForms::isKept(field, decoded(other))
           || FieldForms::readingOf(field, decoded(other)) != reading)
        other = m_texts.of(other, letters);
    return other;
}

/// A field of which nobody knows which it is. If its number is known, it is most likely that of the
/// person, or of the cost centre.
QByteArray OtherLines::ofPart(const QByteArray &part)
{
    const quint32 number = numberOf(part);
    for (const OtherNumbers *const numbers : {&m_people, &m_costCentres}) {
        if (const quint32 other = numbers->other(number); other != 0)
            return withNumber(part, number, other);
    }
    return FieldForms::isKept(decoded(part)) ? part : m_texts.of(part);
}
