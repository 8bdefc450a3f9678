#include "mirovahrctl/gate/gateexamination.h"

#include "cli/systemmessage.h"
#include "cli/text.h"
#include "mirovahrctl/export/rejectswriter.h"
#include "mirovahrctl/export/sqltexts.h"
#include "mirovahrctl/gate/gatesource.h"
#include "mirovahrctl/gatestate/gatefolder.h"
#include "mirovahrctl/program/progress.h"
#include "mirovahrctl/report/rules/checkfilerules.h"
#include "worker/boundedlinereader.h"

#include <QFile>

#include <algorithm>

namespace {

bool hasRule(const QVector<Finding> &findings, const Rule &rule)
{
    return std::any_of(findings.cbegin(), findings.cend(), [&rule](const Finding &finding) {
        return finding.rule == QLatin1String(rule.id);
    });
}

/// Whether the line looks as if it was not written to its end.
bool isBroken(const CheckedLine &line)
{
    return hasRule(line.findings, CheckFileRules::kFieldCount)
        || hasRule(line.findings, CheckFileRules::kLineTooLong)
        || hasRule(line.findings, CheckFileRules::kNulByte);
}

/// Whether a text of HR's is the written form of another one. \a record: as the gate writes it.
bool hasWrittenText(const MirovaRonRecord &record, Backslash texts)
{
    const MirovaRonRecord asHrWroteIt = SqlTexts::shown(record, texts);
    return SqlTexts::shown(asHrWroteIt, texts) != asHrWroteIt;
}

} // namespace

GateExamination::GateExamination(GateFolder &folder, const std::optional<Backslash> &texts,
                                 Console &console)
    : m_folder(folder)
    , m_texts(texts)
    , m_console(console)
{
}

bool GateExamination::run(const QString &copy, const QString &lastAdmitted, RejectsWriter &rejects)
{
    QFile newFile;
    QFile oldFile;
    if (!openFiles(copy, newFile, lastAdmitted, oldFile))
        return false;
    if (m_facts.hasBaseline && !(compareContents(newFile, oldFile) && readOld(oldFile)))
        return false;
    if (!readNew(newFile, rejects))
        return false;
    m_facts.oldLines = m_people.lines(ComparedPeople::Before);
    m_facts.newLines = m_people.lines(ComparedPeople::Now);
    m_facts.oldRepetitions = m_people.repetitions(ComparedPeople::Before);
    m_facts.newRepetitions = m_people.repetitions(ComparedPeople::Now);
    m_facts.changes = ExportDifferences::of(m_people, QDate::currentDate());
    return true;
}

bool GateExamination::openFiles(const QString &copy, QFile &newFile, const QString &lastAdmitted,
                                QFile &oldFile)
{
    bool missing = false;
    m_facts.hasBaseline = m_folder.openForReading(lastAdmitted, oldFile, missing);
    if ((m_facts.hasBaseline || missing) && m_folder.openForReading(copy, newFile, missing))
        return true;
    m_error = m_folder.errorString();
    return false;
}

bool GateExamination::compareContents(QFile &newFile, QFile &oldFile)
{
    m_unchanged = newFile.size() == oldFile.size();
    while (m_unchanged) {
        const QByteArray piece = newFile.read(kPieceSize);
        m_unchanged = piece == oldFile.read(kPieceSize);
        if (piece.isEmpty())
            break;
    }
    // Seeking resets the error.
    if (newFile.error() != QFileDevice::NoError || !newFile.seek(0))
        return failReadingCopy(newFile.errorString());
    if (oldFile.error() != QFileDevice::NoError || !oldFile.seek(0))
        return failReadingLast(oldFile.errorString());
    return true;
}

bool GateExamination::readOld(QFile &file)
{
    BoundedLineReader reader(file);
    while (reader.next())
        m_people.add(ComparedPeople::Before, reader.line());
    return !reader.hasFailed() || failReadingLast(reader.errorString());
}

bool GateExamination::readNew(QFile &file, RejectsWriter &rejects)
{
    ExportScan check(file, ColumnWidths(), {m_texts, m_texts.value_or(Backslash::Escapes)});
    Progress progress(m_console, Text::tr("Checking HR's file"));
    check.setProgressListener(
        [&progress](qint64 done, qint64 total) { progress.update(done, total); });
    const bool isRead = check.run([this, &rejects](const CheckedLine &line) {
        m_people.add(ComparedPeople::Now, line.raw.constData());
        if (line.isRejected() || line.hasWarnings())
            rejects.add(line);
        m_facts.isLastLineBroken = isBroken(line);
        if (m_texts && line.record && hasWrittenText(*line.record, *m_texts))
            ++m_facts.writtenTexts;
    });
    m_facts.counts = check.counts();
    m_facts.endsOpen = hasRule(check.fileFindings(), CheckFileRules::kNoFinalLineFeed);
    return isRead || failReadingCopy(check.errorString());
}

bool GateExamination::failReadingCopy(const QString &reason)
{
    m_error =
        Text::tr("The copy of HR's file cannot be read to its end: %1").arg(systemMessage(reason));
    return false;
}

bool GateExamination::failReadingLast(const QString &reason)
{
    m_error =
        Text::tr("The last admitted file cannot be read to its end: %1").arg(systemMessage(reason));
    return false;
}
