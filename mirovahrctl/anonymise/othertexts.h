#pragma once

#include <QByteArray>
#include <QHash>

/// Puts other texts in the place of texts: each letter and digit becomes another of its alphabet,
/// everything else stays. A text always gets the same other one, and no two of them the same. The
/// key of a run, which nobody keeps, decides which.
class OtherTexts {
public:
    enum class Letters { All, AsciiOnly };

    /// \a key: random bytes.
    explicit OtherTexts(const QByteArray &key);

    /// The other text, which has as many bytes. \a letters: which of them become others.
    QByteArray of(const QByteArray &text, Letters letters = Letters::All);

private:
    const QByteArray m_key;
    QHash<QByteArray, QByteArray> m_known[2]; ///< for each of Letters: most names come again
};
