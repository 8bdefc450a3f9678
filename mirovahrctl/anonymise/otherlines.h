#pragma once

#include "mirovahrctl/anonymise/othernumbers.h"
#include "mirovahrctl/anonymise/othertexts.h"

#include <QByteArray>
#include <QList>

struct LineParts;

/// Puts other names and numbers in the place of those of an export's lines, so that the plugin
/// reads, drops and misreads the same. First all lines are noted, then settle() is called.
class OtherLines {
public:
    /// The generator must outlive the object, and nobody may be able to guess its numbers.
    explicit OtherLines(QRandomGenerator &random);

    void note(const QByteArray &line);
    void settle();

    /// The other line, which has as many bytes.
    QByteArray of(const QByteArray &line);
    /// The same for a line that the plugin skips as too long, or a piece of it.
    QByteArray ofPiece(const QByteArray &piece);

    /// How many numbers of people stay, as OtherNumbers::countKept() says.
    int countKept() const { return m_people.countKept(); }
    /// How many lines so far have too few or too many fields: nobody knows which is which.
    qint64 countBroken() const { return m_brokenCount; }

private:
    void replaceFields(QList<QByteArray> &fields);
    QByteArray ofField(int field, const QByteArray &text, quint32 person);
    quint32 otherNumber(int field, quint32 number, quint32 person) const;
    QByteArray ofText(int field, const QByteArray &text);
    QByteArray ofPart(const QByteArray &part);

    OtherNumbers m_people;
    OtherNumbers m_costCentres;
    OtherTexts m_texts;
    qint64 m_brokenCount = 0;
};
