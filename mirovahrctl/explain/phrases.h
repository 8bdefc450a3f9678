#pragma once

#include "mirovahrctl/report/finding.h"

#include <QDate>
#include <QString>
#include <QVector>

class Report;

/// Words for the explanation of a person.
namespace Phrases {

/// "2024-03-01"; "none" for an invalid date.
QString day(const QDate &date);

/// The same for a Unix time.
QString day(qint64 time);

/// "terminal 1", "terminals 1 and 4", "terminals 1, 2 and 4"; \a none when there are none.
QString list(const QString &one, const QString &many, const QStringList &ids, const QString &none);

/// "17.50 days" for hundredths of a day.
QString days(qint64 hundredths);

void tell(Report &report, Severity severity, const char *rule, const QString &message,
          const QString &advice);

} // namespace Phrases
