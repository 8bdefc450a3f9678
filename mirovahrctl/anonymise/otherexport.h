#pragma once

#include "mirovahrctl/anonymise/otherlines.h"

#include <functional>

class QFile;
class QIODevice;

/// Writes an export again, with other names and numbers: line by line, for the same findings and
/// the same relations between people. Its memory grows with the number of people only.
class OtherExport {
public:
    /// Gets the bytes done, of the total of both passes.
    using ProgressListener = std::function<void(qint64 done, qint64 total)>;

    /// The file must be open and at its beginning. Nobody may be able to guess what the generator
    /// gives.
    OtherExport(QFile &file, QRandomGenerator &random);

    void setProgressListener(const ProgressListener &listener) { m_progress = listener; }

    /// Writes everything. False when the export cannot be read to its end; errorString() then says
    /// why, part of a sentence without its full stop. The owner of \a out checks whether writing
    /// failed.
    bool write(QIODevice &out);
    QString errorString() const { return m_error; }

    qint64 countLines() const { return m_lineCount; }
    /// How many numbers of people stay, as OtherNumbers::countKept() says.
    int countKept() const { return m_lines.countKept(); }
    /// How many lines were written that have too few or too many fields.
    qint64 countBroken() const { return m_lines.countBroken(); }

private:
    bool noteLines();
    bool writeLines(QIODevice &out);
    void reportProgress(qint64 done) const;
    bool fail(const QString &reason);

    QFile &m_file;
    OtherLines m_lines;
    qint64 m_size = 0; ///< of what was noted
    qint64 m_lineCount = 0;
    ProgressListener m_progress;
    QString m_error;
};
