#pragma once

#include <QDate>
#include <QString>
#include <QStringList>

/// Wording that the explanation of a person uses in several places.
namespace Phrases {

/// "2024-03-01"; "none" for an invalid date.
QString day(const QDate &date);

/// The same for a Unix time.
QString day(qint64 time);

/// "terminal 1", "terminals 1 and 4", "terminals 1, 2 and 4"; \a none when there are none.
QString list(const QString &one, const QString &many, const QStringList &ids, const QString &none);

/// "17.50 days" for hundredths of a day.
QString days(qint64 hundredths);

} // namespace Phrases
