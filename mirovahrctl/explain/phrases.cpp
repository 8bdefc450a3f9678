#include "mirovahrctl/explain/phrases.h"

#include "cli/text.h"
#include "mirovahrctl/report/language.h"
#include "mirovahrctl/report/moment.h"

#include <QDateTime>
#include <QStringList>

#include <algorithm>
#include <iterator>

namespace Phrases {

namespace {

struct Word {
    const char *text;
    const char *meaning;
};

constexpr Word kWords[] = {
    QT_TRANSLATE_NOOP3("Text", "created", "outcome"),
    QT_TRANSLATE_NOOP3("Text", "merged", "outcome"),
    QT_TRANSLATE_NOOP3("Text", "updated", "outcome"),
    QT_TRANSLATE_NOOP3("Text", "unchanged", "outcome"),
    QT_TRANSLATE_NOOP3("Text", "never-created", "outcome"),
    QT_TRANSLATE_NOOP3("Text", "missed", "outcome"),
    QT_TRANSLATE_NOOP3("Text", "test-mode", "outcome"),
    QT_TRANSLATE_NOOP3("Text", "uncertain", "outcome"),
    QT_TRANSLATE_NOOP3("Text", "joins", "outcome"),
    QT_TRANSLATE_NOOP3("Text", "member", "outcome"),
    QT_TRANSLATE_NOOP3("Text", "set", "outcome"),
    QT_TRANSLATE_NOOP3("Text", "kept", "outcome"),
    QT_TRANSLATE_NOOP3("Text", "corrected", "outcome"),
    QT_TRANSLATE_NOOP3("Text", "equal", "outcome"),
    QT_TRANSLATE_NOOP3("Text", "later", "outcome"),
    QT_TRANSLATE_NOOP3("Text", "impossible", "outcome"),
    QT_TRANSLATE_NOOP3("Text", "no-fund", "outcome"),
    QT_TRANSLATE_NOOP3("Text", "unknown", "outcome"),
    QT_TRANSLATE_NOOP3("Text", "planned", "outcome"),
    QT_TRANSLATE_NOOP3("Text", "none", "outcome"),
    QT_TRANSLATE_NOOP3("Text", "all", "recalculation"),
    QT_TRANSLATE_NOOP3("Text", "uncertain", "recalculation"),
    QT_TRANSLATE_NOOP3("Text", "none", "recalculation"),
    QT_TRANSLATE_NOOP3("Text", "state", "cause"),
    QT_TRANSLATE_NOOP3("Text", "calendar", "cause"),
    QT_TRANSLATE_NOOP3("Text", "moved", "cause"),
    QT_TRANSLATE_NOOP3("Text", "balance", "cause"),
    QT_TRANSLATE_NOOP3("Text", "none", "cause"),
    QT_TRANSLATE_NOOP3("Text", "kept", "last calculation"),
    QT_TRANSLATE_NOOP3("Text", "back", "last calculation"),
    QT_TRANSLATE_NOOP3("Text", "forward", "last calculation"),
    QT_TRANSLATE_NOOP3("Text", "named", "export"),
    QT_TRANSLATE_NOOP3("Text", "importFile", "export"),
    QT_TRANSLATE_NOOP3("Text", "gate", "export"),
    QT_TRANSLATE_NOOP3("Text", "none", "export"),
};

} // namespace

QString day(qint64 time)
{
    return Moment::text(QDateTime::fromSecsSinceEpoch(time).date());
}

QString list(const QStringList &ids, const QString &none, const QString &one, const QString &many)
{
    if (ids.isEmpty())
        return none;
    if (ids.size() == 1)
        return one.arg(ids.first());
    const QString first = ids.mid(0, ids.size() - 1).join(QStringLiteral(", "));
    return many.arg(Text::tr("%1 and %2").arg(first, ids.last()));
}

QString days(qint64 hundredths)
{
    return Text::tr("%1 days").arg(Language::number(double(hundredths) / 100, 2));
}

QString word(const QString &word, const char *meaning)
{
    const auto *const found =
        std::find_if(std::begin(kWords), std::end(kWords), [&](const Word &candidate) {
            return word == QLatin1String(candidate.text)
                && QLatin1String(meaning) == QLatin1String(candidate.meaning);
        });
    Q_ASSERT_X(found != std::end(kWords), meaning, qPrintable(word));
    return Text::tr(found->text, found->meaning);
}

} // namespace Phrases
