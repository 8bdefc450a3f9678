#pragma once

#include "mirovahrctl/report/finding.h"
#include "mirovahrctl/site/columnwidths.h"
#include "worker/exportline.h"
#include "worker/mirovaronrecord.h"

#include <QByteArray>
#include <QStringList>
#include <QVector>

#include <optional>

class BoundedLineReader;

/// One line of an export, and what there is to say about it.
struct CheckedLine {
    qint64 number = 0; ///< counted from 1
    QByteArray raw; ///< its bytes without the line ending; empty for a line that is too long
    bool isBlank = false; ///< nothing but white space: no line at all to the plugin
    std::optional<MirovaRonRecord>
        record; ///< what the plugin reads; nothing when it drops the line
    QVector<Finding> findings;

    /// True when the plugin leaves the line out.
    bool isDropped() const { return !isBlank && !record; }
    /// True when the line does not reach the database as it should: it is dropped, its statement
    /// fails, or it is written over somebody else.
    bool isRejected() const;

    /// Adds a finding about this line.
    Finding &add(Severity severity, const char *rule, const QString &message,
                 const QString &advice);
};

/// Looks at the lines of an export one by one. What it takes to see two lines side by side is in
/// ExportScan.
class LineCheck {
public:
    /// \a widths: how long a text may be; see ColumnWidths.
    explicit LineCheck(const ColumnWidths &widths);

    /// Looks at the reader's current line.
    CheckedLine check(const BoundedLineReader &reader) const;

    /// The line of this number, which the reader skipped because it is too long.
    static CheckedLine tooLong(qint64 number);

private:
    void checkText(const QString &text, CheckedLine &line) const;
    void checkParts(const ExportLine::Parts &parts, CheckedLine &line) const;

    const QStringList m_fieldNames;
    const ColumnWidths m_widths;
};
