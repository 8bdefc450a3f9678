#include "mirovahrctl/anonymise/otherexport.h"

#include "worker/boundedlinereader.h"

#include <QFile>

namespace {

/// One byte more than the longest line: without its line feed it is too long.
constexpr int kPiece = BoundedLineReader::kLongestLine + 1;

} // namespace

OtherExport::OtherExport(QFile &file, QRandomGenerator &random)
    : m_file(file)
    , m_lines(random)
{
}

bool OtherExport::write(QIODevice &out)
{
    if (!noteLines())
        return false;
    m_lines.settle();
    return writeLines(out);
}

bool OtherExport::noteLines()
{
    BoundedLineReader reader(m_file);
    while (reader.next()) {
        m_lines.note(QByteArray(reader.line(), reader.length()));
        reportProgress(m_file.pos());
    }
    m_lineCount = reader.lineNumber();
    m_size = m_file.pos();
    return !reader.hasFailed() || fail(reader.errorString());
}

/// Only what was noted: the output may be appended to the very file.
bool OtherExport::writeLines(QIODevice &out)
{
    if (!m_file.seek(0))
        return fail(m_file.errorString());
    QByteArray buffer(kPiece + 1, '\0');
    bool isInside = false; // of a line that is too long
    for (qint64 begin = 0; begin < m_size;) {
        const qint64 length = m_file.readLine(buffer.data(), buffer.size());
        if (length <= 0)
            return fail(m_file.errorString());
        const QByteArray piece = buffer.left(int(qMin(length, m_size - begin)));
        const bool isEnd = piece.endsWith('\n');
        isInside = isInside || (!isEnd && piece.size() == kPiece);
        out.write(isInside ? m_lines.ofPiece(piece) : m_lines.of(piece));
        isInside = isInside && !isEnd;
        begin += length;
        reportProgress(m_size + begin);
    }
    return true;
}

void OtherExport::reportProgress(qint64 done) const
{
    if (m_progress)
        m_progress(done, 2 * m_file.size());
}

bool OtherExport::fail(const QString &reason)
{
    m_error = reason;
    return false;
}
