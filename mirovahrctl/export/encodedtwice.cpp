#include "mirovahrctl/export/encodedtwice.h"

#include <QTextCodec>

#include <algorithm>
#include <array>

namespace {

constexpr ushort kLastAscii = 0x7F;

/// Letters of Latin alphabets with accents. Other characters are no evidence: two letters of a real
/// name, as in "DANÍŠEK", may be the bytes of some character, too.
bool isAccentedLetter(QChar c)
{
    return c.unicode() >= 0x00C0 && c.unicode() <= 0x017F;
}

bool isAscii(QChar c)
{
    return c.unicode() <= kLastAscii;
}

/// The text whose bytes the characters are; null when they are none.
QString decodedOnce(const QString &text, const QTextCodec *codec)
{
    static const QTextCodec *const utf8 = QTextCodec::codecForName("UTF-8");
    QTextCodec::ConverterState encoded;
    const QByteArray bytes = codec->fromUnicode(text.constData(), text.size(), &encoded);
    QTextCodec::ConverterState decoded;
    const QString result = utf8->toUnicode(bytes.constData(), bytes.size(), &decoded);
    const bool isUtf8 = encoded.invalidChars + decoded.invalidChars + decoded.remainingChars == 0;
    return isUtf8 ? result : QString();
}

} // namespace

bool isEncodedTwice(const QString &text)
{
    if (std::all_of(text.cbegin(), text.cend(), isAscii))
        return false;
    static const std::array codecs{QTextCodec::codecForName("ISO-8859-1"),
                                   QTextCodec::codecForName("windows-1252"),
                                   QTextCodec::codecForName("windows-1250")};
    for (const QTextCodec *const codec : codecs) {
        const QString once = decodedOnce(text, codec);
        const bool isText = std::all_of(once.cbegin(), once.cend(),
                                        [](QChar c) { return isAscii(c) || isAccentedLetter(c); });
        if (!once.isEmpty() && isText)
            return true;
    }
    return false;
}
