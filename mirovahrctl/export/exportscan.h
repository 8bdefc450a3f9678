#pragma once

#include "mirovahrctl/export/linecheck.h"
#include "mirovahrctl/export/repeatedpids.h"

#include <functional>

class BoundedLineReader;
class QFile;

/// Scans a whole export and reports for each line what the plugin makes of it. Its memory does not
/// depend on the length of the export.
class ExportScan {
public:
    struct Counts {
        qint64 lines = 0; ///< including blank ones
        qint64 records = 0; ///< lines that the plugin reads as a person
        qint64 dropped = 0; ///< lines that it skips because of an error
        qint64 rejected = 0; ///< lines with errors, dropped ones included
        qint64 warned = 0; ///< lines with warnings and no errors
    };

    using LineListener = std::function<void(const CheckedLine &)>;
    /// Gets the bytes done, of the total of both passes.
    using ProgressListener = std::function<void(qint64 done, qint64 total)>;

    /// The file must be open and at its beginning. \a route: how its texts get into the database.
    /// \a mostRepeated: of how many people repetitions are found.
    ExportScan(QFile &file, const ColumnWidths &widths, const SqlTexts::Route &route,
               int mostRepeated = RepeatedPids::kMostCandidates);

    /// Without a listener no progress is reported.
    void setProgressListener(const ProgressListener &listener) { m_progress = listener; }

    /// Scans the export and passes its lines to the listener in order, without blank ones. False
    /// when the export cannot be read to its end; errorString() then says why, part of a sentence
    /// without its full stop.
    bool run(const LineListener &listener);
    QString errorString() const { return m_error; }

    /// What run() has counted.
    const Counts &counts() const { return m_counts; }

    /// The findings about the file as a whole, after run().
    QVector<Finding> fileFindings() const;

private:
    bool notePids();
    void notePid(const BoundedLineReader &reader);
    bool rewind();
    bool checkLines(const LineListener &listener);
    void reportTooLong(qint64 from, qint64 to, const LineListener &listener);
    void checkRepetition(CheckedLine &line);
    void report(const CheckedLine &line, const LineListener &listener);
    void reportProgress(qint64 done) const;
    bool checkEnd();
    bool fail(const QString &reason);

    QFile &m_file;
    const LineCheck m_lineCheck;
    const qint64 m_size;
    RepeatedPids m_pids;
    ProgressListener m_progress;
    Counts m_counts;
    bool m_endsWithLineFeed = true;
    QString m_error;
};
