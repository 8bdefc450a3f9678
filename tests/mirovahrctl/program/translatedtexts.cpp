#include "tests/mirovahrctl/program/translatedtexts.h"

#include <QCoreApplication>
#include <QMutexLocker>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>
#include <iterator>

namespace {

/// "INSERT on uid", "enabled and active".
constexpr int kMostWordsBetweenValues = 4;

/// A phrase has one of these at least; names, values and SQL in capital letters have none.
const QSet<QString> &functionWords()
{
    static const QSet<QString> words{"all",   "and",   "are",  "been", "but",  "can",  "cannot",
                                     "does",  "for",   "from", "has",  "have", "how",  "if",
                                     "in",    "is",    "it",   "its",  "not",  "of",   "on",
                                     "only",  "or",    "than", "that", "the",  "then", "there",
                                     "these", "this",  "to",   "was",  "were", "what", "when",
                                     "where", "which", "who",  "why",  "will", "with", "without"};
    return words;
}

bool isFunctionWord(QString word, bool isFirst)
{
    // "No" and "In" at the beginning may be left of a damaged name.
    if (isFirst && word.size() > 2)
        word[0] = word.at(0).toLower();
    return functionWords().contains(word);
}

/// Whether words of one phrase make a text. Known single words, such as the "or" of "%1 or %2", may
/// stand between values.
bool isText(const QString &phrase, const QStringList &known)
{
    const QStringList words = phrase.split(' ');
    const bool isShort = words.size() <= kMostWordsBetweenValues;
    for (int i = 0; i < words.size() && words.size() > 1; ++i) {
        if (isFunctionWord(words.at(i), i == 0) && !(isShort && known.contains(words.at(i))))
            return true;
    }
    return false;
}

/// The sequences of words that nothing but a space separates, each once. Ids and paths are no
/// words.
QSet<QString> phrases(const QString &text)
{
    static const QString word(R"((?<![-_./\\\w])\p{L}+(?:['’]\p{L}+)*+(?![-_/\\\w]))");
    static const QRegularExpression phrase(word + "(?: " + word + ")*",
                                           QRegularExpression::UseUnicodePropertiesOption);
    QSet<QString> phrases;
    auto matches = phrase.globalMatch(text);
    while (matches.hasNext())
        phrases << matches.next().captured();
    return phrases;
}

/// What the database server says, which always speaks English to the plugin as well, and gzip.
const QRegularExpression &foreignMessage()
{
    static const QRegularExpression message(R"re((?x)
        (\w+\ command\ denied\ to\ user
        |Access\ denied\ for\ user
        |Aborted\ connection
        |Can't\ connect\ to\ local\ server
        |Index\ for\ table
        |Lost\ connection\ to
        |isn't\ in\ GROUP\ BY
        |gzip:\ stdin)
        [^"\n]*)re");
    return message;
}

QRegularExpression wholeWords(const QString &phrase)
{
    return QRegularExpression("\\b" + QRegularExpression::escape(phrase) + "\\b",
                              QRegularExpression::CaseInsensitiveOption
                                  | QRegularExpression::UseUnicodePropertiesOption);
}

/// The rest of a phrase when the known ones are removed from it, or it is a line of one.
QString without(const QStringList &known, QString phrase)
{
    for (const QString &one : known) {
        if (one.contains(phrase))
            return {};
        if (one.contains(' ') && phrase.contains(one, Qt::CaseInsensitive))
            phrase.replace(wholeWords(one), "\n");
    }
    return phrase;
}

} // namespace

QString withoutQuotations(QString output)
{
    static const QRegularExpression style("<style>.*</style>",
                                          QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression tag("<[^>]*>");
    static const QRegularExpression control("\x1b\\[[0-9;]*[A-Za-z]"); // of a terminal
    static const QRegularExpression exportLine(R"re("lineText": ?"(?:[^"\\]|\\.)*")re");
    static const QRegularExpression logLine(R"re((?:\w+::\w+|\bMHRWorker:? )[^"\n]*)re");
    static const QRegularExpression serverVersion(R"re(\S+-MariaDB\S* from Debian)re");
    // In the language of the gate, which is another run.
    static const QRegularExpression reasons(R"re((?<=The gate has refused )[^:]*:[^"\n]*)re");
    if (output.startsWith("<!DOCTYPE html>"))
        output.remove(style).replace(tag, "\n");
    else if (output.startsWith('{'))
        output.remove(exportLine).replace("\\n", "\n");
    output.replace(control, "\n");
    output.remove(logLine).remove(foreignMessage()).remove(serverVersion);
    return output.remove(reasons);
}

TranslatedTexts::TranslatedTexts()
{
    QCoreApplication::installTranslator(this);
}

TranslatedTexts::~TranslatedTexts()
{
    QCoreApplication::removeTranslator(this);
}

QString TranslatedTexts::translate(const char *context, const char *source, const char *meaning,
                                   int count) const
{
    const Request request{context, source, meaning, count};
    const QMutexLocker lock(&m_mutex);
    m_requests.insert(request.context + '\n' + request.source + '\n' + request.meaning + '\n'
                          + QByteArray::number(count),
                      request);
    return {};
}

QStringList TranslatedTexts::missingIn(const QString &output) const
{
    QStringList missing;
    const QStringList known = phrasesOfTexts();
    const QSet<QString> found = phrases(withoutQuotations(output));
    for (const QString &phrase : found) {
        if (!isText(phrase, {}))
            continue;
        const QSet<QString> rest = phrases(without(known, phrase));
        std::copy_if(rest.cbegin(), rest.cend(), std::back_inserter(missing),
                     [&known](const QString &one) { return isText(one, known); });
    }
    missing.sort();
    return missing;
}

/// The longest first.
QStringList TranslatedTexts::phrasesOfTexts() const
{
    static const QRegularExpression place("%L?[0-9]+");
    QMutexLocker lock(&m_mutex);
    const QHash<QByteArray, Request> requests = m_requests;
    lock.unlock();
    QSet<QString> known;
    for (const Request &request : requests) {
        const char *const meaning =
            request.meaning.isEmpty() ? nullptr : request.meaning.constData();
        known += phrases(
            QCoreApplication::translate(request.context, request.source, meaning, request.count)
                .replace(place, "\n"));
    }
    QStringList sorted = known.values();
    std::sort(sorted.begin(), sorted.end(),
              [](const QString &a, const QString &b) { return a.size() > b.size(); });
    return sorted;
}
