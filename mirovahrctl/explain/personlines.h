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

/// What an export says of one person.
class PersonLines {
public:
    /// The most lines of the person, and the most other relationships, that are kept.
    static constexpr int kMost = 100;

    explicit PersonLines(const PersonId &person);

    /// Goes over the export. False when it cannot be read to its end; errorString() then says why,
    /// a part of a sentence without its full stop.
    bool find(QFile &file, const ColumnWidths &widths, Console &console);
    QString errorString() const { return m_error; }

    /// The lines that the plugin takes for the person's, or drops although the first two fields
    /// name the person.
    const QVector<CheckedLine> &lines() const { return m_lines; }
    /// How many more there are.
    qint64 more() const { return m_more; }
    /// Lines that are dropped and name nobody.
    qint64 nameless() const { return m_nameless; }
    /// Other relationships of the same personal number, such as "1234.2 (line 7)".
    const QStringList &others() const { return m_others; }
    /// All lines of the export.
    qint64 count() const { return m_count; }

private:
    void look(const CheckedLine &line);
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
