#include "mirovahrctl/anonymise/utf8characters.h"

namespace Utf8Characters {

namespace {

/// Not by QString::fromUcs4(), which takes a byte order mark for no character.
QByteArray encoded(uint character)
{
    if (!QChar::requiresSurrogates(character))
        return QString(QChar(character)).toUtf8();
    const QChar pair[] = {QChar(QChar::highSurrogate(character)),
                          QChar(QChar::lowSurrogate(character))};
    return QString(pair, 2).toUtf8();
}

/// How many bytes a character has that begins with this one.
int lengthFrom(char first)
{
    const auto byte = static_cast<uchar>(first);
    if (byte < 0xC0)
        return 1;
    if (byte < 0xE0)
        return 2;
    return byte < 0xF0 ? 3 : 4;
}

/// Appends the character at the begin of a text, and returns its length in bytes.
int appendFirst(const QByteArray &text, QVector<uint> &characters)
{
    const QByteArray one = text.left(lengthFrom(text.at(0)));
    const QString character = decoded(one);
    if (character.toUtf8() == one && character.toUcs4().size() == 1) {
        characters += character.toUcs4().constFirst();
        return one.size();
    }
    characters += kByte + static_cast<uchar>(text.at(0));
    return 1;
}

} // namespace

QString decoded(const QByteArray &text)
{
    // Without its size, the text would end at a NUL byte.
    return QString::fromUtf8(text.constData(), text.size());
}

QVector<uint> of(const QByteArray &text)
{
    const QString whole = decoded(text);
    if (whole.toUtf8() == text)
        return whole.toUcs4();
    QVector<uint> characters;
    for (int i = 0; i < text.size();)
        i += appendFirst(text.mid(i, 4), characters);
    return characters;
}

QByteArray bytes(const QVector<uint> &characters)
{
    QByteArray text;
    for (const uint character : characters) {
        if (character >= kByte)
            text += static_cast<char>(character - kByte);
        else
            text += encoded(character);
    }
    return text;
}

} // namespace Utf8Characters
