#include "mirovahrctl/anonymise/othertexts.h"

#include "mirovahrctl/anonymise/alphabets.h"
#include "mirovahrctl/anonymise/utf8characters.h"

#include <QCryptographicHash>
#include <QMessageAuthenticationCode>

#include <algorithm>

// Encryption that keeps the form, as NIST SP 800-38G describes it (FF1): a Feistel network over the
// places of a text where something changes. In each round one half of them is moved on within their
// alphabets, by amounts that a keyed hash makes of the other half. Whoever had the key could undo
// each round, so no two texts become the same, and no table of the texts is needed.

namespace {

constexpr int kTurns = 10; // as many as FF1 has

// What is kept of other texts: so many, of so many bytes, in a few MB.
constexpr int kMostKnown = 20000;
constexpr int kLongestKnown = 64;

constexpr uint kLastAscii = 0x7F;

using Characters = QVector<uint>;

/// Where a text changes.
struct Place {
    int position;
    const Alphabets::Alphabet *alphabet;
};

using Places = QVector<Place>;

bool isDigit(uint character)
{
    return character >= '0' && character <= '9';
}

/// Whether a letter may belong to a placeholder, which is "%L1" or, parted, "%' 'L1": there an L
/// must stay one, and nothing else become one.
bool mayBelongToPlaceholder(int position, const Characters &characters)
{
    constexpr int kBehindParting = 4;
    return characters.value(position - 1) == '%'
        || characters.value(position - kBehindParting) == '%';
}

bool isKept(int position, const Characters &characters, OtherTexts::Letters letters)
{
    return mayBelongToPlaceholder(position, characters)
        || (letters == OtherTexts::Letters::AsciiOnly && characters.at(position) > kLastAscii);
}

/// The zeros in front of a number stay, and no other digit there becomes one.
Places placesOf(const Characters &characters, OtherTexts::Letters letters)
{
    Places places;
    bool isInNumber = false; // behind its first digit that is not 0
    for (int i = 0; i < characters.size(); ++i) {
        const uint character = characters.at(i);
        const Alphabets::Alphabet *alphabet = nullptr;
        if (isDigit(character) && !isInNumber) {
            isInNumber = character != '0';
            alphabet = isInNumber ? &Alphabets::firstDigits() : nullptr;
        } else {
            isInNumber = isDigit(character);
            alphabet =
                isInNumber || !isKept(i, characters, letters) ? Alphabets::of(character) : nullptr;
        }
        if (alphabet != nullptr)
            places.append({i, alphabet});
    }
    return places;
}

QByteArray raw(const Characters &characters)
{
    return QByteArray(reinterpret_cast<const char *>(characters.constData()),
                      characters.size() * int(sizeof(uint)));
}

QByteArray keyedHash(const QByteArray &key, const QByteArray &text)
{
    return QMessageAuthenticationCode::hash(text, key, QCryptographicHash::Sha256);
}

/// Amounts without end, made of a text with a key.
class Amounts {
public:
    Amounts(const QByteArray &key, const QByteArray &text)
        : m_key(key)
        , m_block(keyedHash(key, text))
    {
    }

    uint next()
    {
        if (m_used == m_block.size()) {
            m_block = keyedHash(m_key, m_block);
            m_used = 0;
        }
        // No alphabet has more than 65536 members.
        const uint high = static_cast<uchar>(m_block.at(m_used++));
        return high << 8U | static_cast<uchar>(m_block.at(m_used++));
    }

private:
    const QByteArray m_key;
    QByteArray m_block;
    int m_used = 0; ///< of the block
};

uint movedOn(uint character, const Alphabets::Alphabet &alphabet, uint amount)
{
    const auto found = std::lower_bound(alphabet.cbegin(), alphabet.cend(), character);
    const uint index = uint(found - alphabet.cbegin()) + amount;
    return alphabet.at(int(index % uint(alphabet.size())));
}

/// One round: moves the places [begin, end) on.
void turn(const QByteArray &key, int round, const Places &places, int begin, int end,
          Characters &characters)
{
    Characters rest = characters;
    for (int i = begin; i < end; ++i)
        rest[places.at(i).position] = places.at(i).alphabet->constFirst();
    Amounts amounts(key, raw(rest) + QByteArray::number(round));
    for (int i = begin; i < end; ++i) {
        const Place &place = places.at(i);
        uint &character = characters[place.position];
        character = movedOn(character, *place.alphabet, amounts.next());
    }
}

QByteArray otherText(const QByteArray &key, const QByteArray &text, OtherTexts::Letters letters)
{
    Characters characters = Utf8Characters::of(text);
    const Places places = placesOf(characters, letters);
    const int middle = places.size() / 2;
    for (int round = 0; round < kTurns; ++round) {
        if (round % 2 == 0)
            turn(key, round, places, middle, places.size(), characters);
        else
            turn(key, round, places, 0, middle, characters);
    }
    return places.isEmpty() ? text : Utf8Characters::bytes(characters);
}

} // namespace

OtherTexts::OtherTexts(const QByteArray &key)
    : m_key(key)
{
}

QByteArray OtherTexts::of(const QByteArray &text, Letters letters)
{
    auto &known = m_known[static_cast<int>(letters)];
    const auto found = known.constFind(text);
    if (found != known.constEnd())
        return *found;
    const QByteArray other = otherText(m_key, text, letters);
    if (text.size() > kLongestKnown)
        return other;
    if (known.size() >= kMostKnown)
        known.clear();
    return *known.insert(text, other);
}
