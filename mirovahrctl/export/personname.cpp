#include "mirovahrctl/export/personname.h"

#include "worker/mirovaronrecord.h"

#include <QRegularExpression>

namespace {

/// Letters of European names that Unicode does not decompose into a letter and an accent.
struct Letter {
    ushort letter;
    const char *plain;
};

constexpr Letter kLetters[] = {{0x0142, "l"}, {0x0111, "d"}, {0x00F8, "o"}, {0x00DF, "ss"}};

} // namespace

QString personName(const MirovaRonRecord &record)
{
    return QStringLiteral("%1 %2 %3")
        .arg(record.getPamId(), record.jmeno, record.prijmeni)
        .simplified();
}

QStringList nameWords(const QString &name)
{
    static const QRegularExpression accents(QStringLiteral("\\p{Mn}+"));
    static const QRegularExpression separators(QStringLiteral("[^\\p{L}\\p{N}]+"));
    QString text = name.normalized(QString::NormalizationForm_KD).remove(accents).toCaseFolded();
    for (const Letter &letter : kLetters)
        text.replace(QChar(letter.letter), QLatin1String(letter.plain));
    return text.split(separators, Qt::SkipEmptyParts);
}
