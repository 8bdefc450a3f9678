// The HR export: reading the file and its lines.

#include "worker/mhrworker.h"

#include "worker/boundedlinereader.h"
#include "worker/exportline.h"
#include "worker/importfile.h"

#include <QDebug>
#include <QFile>
#include <QFileInfo>

#include <utility>

void MHRWorker::loadAndParseData()
{
    if (m_debugLevel > 1)
        qDebug("MHRWorker::loadAndParseData()");
    const QStringList fields = ExportLine::fieldNames();
    if (m_debugLevel > 2) {
        qDebug("MHRWorker::loadAndParseData() - fields: %s",
               qUtf8Printable(fields.join(QStringLiteral(", "))));
    }

    const QString path = ImportFile::path(m_importFile);
    if (m_debugLevel > 2) {
        qInfo("MHRWorker::loadAndParseData() - loading data from file: '%s'",
              qUtf8Printable(QFileInfo(path).absoluteFilePath()));
    }
    QFile file;
    QString error;
    switch (ImportFile::open(path, file, error)) {
    case ImportFile::Opening::Done:
        break;
    case ImportFile::Opening::NotFound:
        if (m_debugLevel >= 2) {
            qWarning("MHRWorker::loadAndParseData() - file '%s' NOT found!", qUtf8Printable(path));
        }
        return;
    case ImportFile::Opening::Failed:
        qCritical("MHRWorker::loadAndParseData() - file '%s' not opened!", qUtf8Printable(path));
        return;
    }
    // An export that cannot be read to its end is read again next time. The administrator must
    // learn of it even at a site that keeps its exports.
    const bool isRead = parseLines(file, fields);
    file.close();
    if (!isRead || (m_deleteFileAfterImport && !QFile::remove(path)))
        qWarning("MHRWorker::loadAndParseData() - file '%s' NOT removed!", qUtf8Printable(path));
}

bool MHRWorker::parseLines(QIODevice &file, const QStringList &fields)
{
    BoundedLineReader reader(file);
    while (reader.next()) {
        const QString line = ExportLine::decode(reader.line());
        if (!line.isEmpty())
            parseLine(line, fields, ExportLine::kSeparator);
    }
    m_sharedTexts.clear();
    return !reader.hasFailed();
}

void MHRWorker::parseLine(const QString &line, const QStringList &fields, QChar separator)
{
    if (m_debugLevel > 2)
        qDebug("MHRWorker::parseLine('%s')", qUtf8Printable(line));

    const ExportLine::Parts parts = ExportLine::split(line, separator);
    if (parts.size() != fields.size()) {
        if (m_debugLevel > 2) {
            qWarning("MHRWorker::parseLine() - parts count (%i) <> fields count(%i) - line "
                     "skipped!",
                     parts.size(), fields.size());
        }
        return;
    }

    // A caller may name fewer fields than a record has.
    if (parts.size() < ExportLine::kFieldCount)
        return;
    MirovaRonRecord record = ExportLine::toRecord(parts);
    if (!ExportLine::isUsable(record))
        return;
    shareTexts(record);
    if (!isAsLastSeen(record))
        m_changedPids.insert(record.getPid());
    m_records.append(std::move(record));
}

/// Lets equal texts share memory: most people have not changed since the last cycle, and names,
/// titles and cost centres repeat from person to person.
void MHRWorker::shareTexts(MirovaRonRecord &record)
{
    const auto last = m_lastRecords.constFind(record.getPid());
    const bool known = last != m_lastRecords.constEnd();
    for (QString MirovaRonRecord::*text :
         {&MirovaRonRecord::titul, &MirovaRonRecord::jmeno, &MirovaRonRecord::prijmeni,
          &MirovaRonRecord::titulZa, &MirovaRonRecord::telefon, &MirovaRonRecord::strediskoPopis}) {
        if (known && (*last).*text == record.*text)
            record.*text = (*last).*text;
        else if (text != &MirovaRonRecord::telefon) // hardly two people have the same
            record.*text = *m_sharedTexts.insert(record.*text);
    }
}

bool MHRWorker::isAsLastSeen(const MirovaRonRecord &record) const
{
    const auto last = m_lastRecords.constFind(record.getPid());
    return last != m_lastRecords.constEnd() && record == *last;
}

QDate MHRWorker::parseDate(const QString &text, const QString &format)
{
    return ExportLine::parseDate(text, format);
}
