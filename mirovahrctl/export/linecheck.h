#pragma once

#include "mirovahrctl/export/sqltexts.h"
#include "mirovahrctl/report/finding.h"
#include "mirovahrctl/site/columnwidths.h"
#include "worker/exportline.h"
#include "worker/mirovaronrecord.h"

#include <QByteArray>
#include <QStringList>
#include <QVector>

#include <optional>

class BoundedLineReader;

/// One line of an export with its findings.
struct CheckedLine {
    qint64 number = 0; ///< counted from 1
    /// Its bytes in the export without the line ending; empty for a line that is too long.
    QByteArray raw;
    bool isBlank = false; ///< only white space: the plugin ignores the line
    /// What the plugin reads, with texts as the gate writes them; nothing when it drops the line.
    std::optional<MirovaRonRecord> record;
    QVector<Finding> findings;

    /// True when the plugin drops the line.
    bool isDropped() const { return !isBlank && !record; }
    /// True when the line has an error: it is dropped, its statement fails, or it overwrites
    /// another person.
    bool isRejected() const;
    /// True when the line has a warning: a value is misread, or hardly intended.
    bool hasWarnings() const;

    /// Notes in the findings that are no mere notes what the line is and, when it is dropped, whom
    /// it is most likely about: the file may be gone when they are read.
    void identify();

    /// Adds a finding about this line.
    Finding &add(const Rule &rule, const QString &message, const QString &advice = QString());
};

/// Checks the lines of an export one by one. Checks that compare lines are in ExportScan.
class LineCheck {
public:
    /// \a widths: the maximum lengths of the texts; \a route: how they get into the database.
    LineCheck(const ColumnWidths &widths, const SqlTexts::Route &route);

    /// Checks the reader's current line.
    CheckedLine check(const BoundedLineReader &reader) const;

    /// The result for a line that the reader skipped because it is too long.
    static CheckedLine tooLong(qint64 number);

    /// Payroll id and name of a record that the plugin reads, as HR meant them.
    QString personOf(const MirovaRonRecord &record) const;

private:
    void checkArriving(const QByteArray &arriving, CheckedLine &line) const;
    void checkText(const QString &text, CheckedLine &line) const;
    void checkParts(const ExportLine::Parts &parts, CheckedLine &line) const;

    const QStringList m_fieldNames;
    const ColumnWidths m_widths;
    const SqlTexts::Route m_route;
};
