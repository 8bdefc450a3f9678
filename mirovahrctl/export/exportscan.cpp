#include "mirovahrctl/export/exportscan.h"

#include "cli/text.h"
#include "mirovahrctl/report/rules/checkfilerules.h"
#include "worker/boundedlinereader.h"
#include "worker/exportline.h"

#include <QFile>

namespace {

/// The first two fields of a line with its line feed, as a text of their own.
QByteArray identityOf(const BoundedLineReader &reader)
{
    const char separator = ExportLine::kSeparator.toLatin1();
    const QByteArray line = QByteArray::fromRawData(reader.line(), reader.length());
    const int first = line.indexOf(separator);
    const int second = first < 0 ? -1 : line.indexOf(separator, first + 1);
    return QByteArray(reader.line(), second < 0 ? 0 : second);
}

bool isSameRelationship(const RepeatedPids::First &first, const MirovaRonRecord &record)
{
    return first.osobniCislo == record.osobniCislo
        && first.poradoveCisloPP == record.poradoveCisloPP;
}

Finding &addDuplicate(CheckedLine &line, const RepeatedPids::First &first)
{
    return line.add(CheckFileRules::kDuplicateRelationship,
                    Text::tr("Line %1 has the same employment relationship. The plugin "
                             "processes both, and the last line wins.")
                        .arg(first.line));
}

Finding &addClash(CheckedLine &line, const RepeatedPids::First &first, quint32 pid)
{
    return line.add(CheckFileRules::kPidClash,
                    Text::tr("The person in line %1, %2.%3, has the same number %4: the "
                             "plugin treats both as one person, and the last line wins.")
                        .arg(first.line)
                        .arg(first.osobniCislo)
                        .arg(first.poradoveCisloPP)
                        .arg(pid));
}

} // namespace

ExportScan::ExportScan(QFile &file, const ColumnWidths &widths, const SqlTexts::Route &route,
                       int mostRepeated)
    : m_file(file)
    , m_lineCheck(widths, route)
    , m_size(file.size())
    , m_pids(m_size, mostRepeated)
{
}

bool ExportScan::run(const LineListener &listener)
{
    return notePids() && rewind() && checkLines(listener) && checkEnd();
}

QVector<Finding> ExportScan::fileFindings() const
{
    CheckedLine file;
    if (m_counts.records == 0) {
        file.add(CheckFileRules::kNoRecords,
                 Text::tr("The file contains no people: the plugin would do nothing."));
    }
    if (!m_endsWithLineFeed) {
        file.add(CheckFileRules::kNoFinalLineFeed,
                 Text::tr("The last line does not end with a line feed. The plugin reads it, "
                          "but the file may be truncated."));
    }
    if (!m_pids.isComplete()) {
        file.add(CheckFileRules::kRepetitionsNotAllFound,
                 Text::tr("Too many people occur more than once: not all of them were compared."));
    }
    return file.findings;
}

bool ExportScan::notePids()
{
    BoundedLineReader reader(m_file);
    while (reader.next()) {
        notePid(reader);
        reportProgress(m_file.pos());
    }
    return !reader.hasFailed() || fail(reader.errorString());
}

/// Reads only the two numbers. A line that is dropped for another reason is noted, too: that merely
/// adds a candidate.
void ExportScan::notePid(const BoundedLineReader &reader)
{
    const QString identity = ExportLine::decode(identityOf(reader).constData());
    const ExportLine::Parts parts = ExportLine::split(identity, ExportLine::kSeparator);
    if (parts.size() < 2)
        return;
    MirovaRonRecord record;
    record.osobniCislo = ExportLine::toNumber(parts.at(0));
    record.poradoveCisloPP = ExportLine::toNumber(parts.at(1));
    if (record.osobniCislo != 0 && record.poradoveCisloPP != 0)
        m_pids.note(record.getPid());
}

bool ExportScan::rewind()
{
    return m_file.seek(0) || fail(m_file.errorString());
}

bool ExportScan::checkLines(const LineListener &listener)
{
    BoundedLineReader reader(m_file);
    qint64 checked = 0;
    while (reader.next()) {
        reportTooLong(checked + 1, reader.lineNumber(), listener);
        checked = reader.lineNumber();
        CheckedLine line = m_lineCheck.check(reader);
        checkRepetition(line);
        line.identify();
        report(line, listener);
        reportProgress(m_size + m_file.pos());
    }
    if (reader.hasFailed())
        return fail(reader.errorString());
    reportTooLong(checked + 1, reader.lineNumber() + 1, listener);
    m_counts.lines = reader.lineNumber();
    return true;
}

/// The reader skips a line that is too long: only its number is missing.
void ExportScan::reportTooLong(qint64 from, qint64 to, const LineListener &listener)
{
    for (qint64 number = from; number < to; ++number)
        report(LineCheck::tooLong(number), listener);
}

void ExportScan::checkRepetition(CheckedLine &line)
{
    // People with pid 0 have a finding of their own.
    if (!line.record || line.record->getPid() == 0)
        return;
    const MirovaRonRecord &record = *line.record;
    const auto first = m_pids.first(record, line.number);
    if (!first)
        return;
    Finding &finding = isSameRelationship(*first, record) ? addDuplicate(line, *first)
                                                          : addClash(line, *first, record.getPid());
    finding.subject = m_lineCheck.personOf(record);
}

void ExportScan::report(const CheckedLine &line, const LineListener &listener)
{
    if (line.isBlank && line.findings.isEmpty())
        return;
    m_counts.records += line.record ? 1 : 0;
    m_counts.dropped += line.isDropped() ? 1 : 0;
    m_counts.rejected += line.isRejected() ? 1 : 0;
    m_counts.warned += line.hasWarnings() && !line.isRejected() ? 1 : 0;
    listener(line);
}

void ExportScan::reportProgress(qint64 done) const
{
    if (m_progress)
        m_progress(done, 2 * m_size);
}

bool ExportScan::checkEnd()
{
    char last = '\n';
    m_endsWithLineFeed =
        m_size == 0 || (m_file.seek(m_size - 1) && m_file.getChar(&last) && last == '\n');
    return m_file.error() == QFileDevice::NoError || fail(m_file.errorString());
}

bool ExportScan::fail(const QString &reason)
{
    m_error = reason;
    return false;
}
