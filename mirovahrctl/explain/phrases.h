#pragma once

#include <QString>
#include <QStringList>

/// Wording that the explanation of a person uses in several places.
namespace Phrases {

/// The day of a Unix time.
QString day(qint64 time);

/// \a none, or a sentence with these ids in the place of its %1: "1", "1 and 4", "1, 2 and 4". \a
/// one is the sentence for one id.
QString list(const QStringList &ids, const QString &none, const QString &one, const QString &many);

/// "17.50 days" for hundredths of a day.
QString days(qint64 hundredths);

/// A stable word for scripts, such as "never-created", as people read it. \a meaning says which
/// fact it is of: "outcome", "recalculation", "cause", "last calculation" or "export".
QString word(const QString &word, const char *meaning);

} // namespace Phrases
