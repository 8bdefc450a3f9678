#pragma once

#include "mirovahrctl/explain/personid.h"
#include "mirovahrctl/export/exportscan.h"
#include "mirovahrctl/export/linecheck.h"
#include "mirovahrctl/site/columnwidths.h"

#include <QStringList>
#include <QVector>

#include <optional>

class Console;
class QFile;

/// The lines of an export about one person.
class PersonLines {
public:
    /// Maximum number of lines, and of other relationships, that are kept.
    static constexpr int kMost = 100;

    explicit PersonLines(const PersonId &person);

    /// Searches the whole export; \a route: how its texts get into the database. False when it
    /// cannot be read to its end; errorString() then says why, a part of a sentence without its
    /// full stop.
    bool find(QFile &file, const ColumnWidths &widths, const SqlTexts::Route &route,
              Console &console);
    QString errorString() const { return m_error; }

    /// The lines that the plugin treats as the person's, and dropped lines whose first two fields
    /// name the person.
    const QVector<CheckedLine> &lines() const { return m_lines; }
    /// How many more such lines there are.
    qint64 more() const { return m_more; }
    /// Dropped lines that name nobody.
    qint64 nameless() const { return m_nameless; }
    /// Other relationships of the same personal number, such as "1234.2 (line 7)".
    const QStringList &others() const { return m_others; }
    /// The number of lines in the export.
    qint64 count() const { return m_count; }

private:
    void examine(const CheckedLine &line);
    void keep(const CheckedLine &line);
    void note(const MirovaRonRecord &record, qint64 line);

    const PersonId m_person;
    QVector<CheckedLine> m_lines;
    QStringList m_others;
    qint64 m_more = 0;
    qint64 m_nameless = 0;
    qint64 m_count = 0;
    QString m_error;
};
