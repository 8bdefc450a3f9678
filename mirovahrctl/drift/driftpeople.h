#pragma once

#include "mirovahrctl/export/sqltexts.h"
#include "mirovahrctl/site/columnwidths.h"
#include "worker/mirovaronrecord.h"

#include <QSet>
#include <QString>
#include <QVector>

class Console;
class QFile;

/// A person of the export.
struct DriftPerson {
    MirovaRonRecord record; ///< as the plugin reads the line
    QSet<QString> doubtful; ///< fields of the export for which check-file has a finding
};

/// The people of an export of whom it is certain what the plugin makes of their lines.
class DriftPeople {
public:
    /// Reads the export. False when it cannot be read to its end; errorString() then says why.
    bool read(QFile &file, const ColumnWidths &widths, const SqlTexts::Route &route,
              Console &console);

    const QVector<DriftPerson> &people() const { return m_people; }
    /// How many are left out: their line has an error, or they have several lines.
    int leftOut() const { return m_leftOut; }
    QString errorString() const { return m_error; }

private:
    QVector<DriftPerson> m_people;
    int m_leftOut = 0;
    QString m_error;
};
