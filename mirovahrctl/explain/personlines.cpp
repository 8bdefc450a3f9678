#include "mirovahrctl/explain/personlines.h"

#include "cli/text.h"
#include "mirovahrctl/program/progress.h"
#include "worker/exportline.h"

#include <QFile>

namespace {

/// The person whom the first two fields of a line name, dropped or not; nothing when they name
/// nobody.
std::optional<MirovaRonRecord> namedBy(const CheckedLine &line)
{
    const QString text = ExportLine::decode(line.raw.constData());
    const ExportLine::Parts parts = ExportLine::split(text, ExportLine::kSeparator);
    MirovaRonRecord record;
    record.osobniCislo = ExportLine::toNumber(parts.value(ExportLine::OsobniCislo));
    record.poradoveCisloPP = ExportLine::toNumber(parts.value(ExportLine::PoradoveCisloPP));
    if (record.osobniCislo == 0 || record.poradoveCisloPP == 0)
        return std::nullopt;
    return record;
}

} // namespace

PersonLines::PersonLines(const PersonId &person)
    : m_person(person)
{
}

bool PersonLines::find(QFile &file, const ColumnWidths &widths, const SqlTexts::Route &route,
                       Console &console)
{
    Progress progress(console, Text::tr("Reading the export"));
    ExportScan check(file, widths, route);
    check.setProgressListener(
        [&progress](qint64 done, qint64 total) { progress.update(done, total); });
    const bool read = check.run([this](const CheckedLine &line) { examine(line); });
    m_count = check.counts().lines;
    m_error = check.errorString();
    return read;
}

void PersonLines::examine(const CheckedLine &line)
{
    const auto named = line.record ? line.record : namedBy(line);
    if (!named)
        m_nameless += line.isDropped() ? 1 : 0;
    else if (m_person.matches(*named))
        keep(line);
    else if (named->osobniCislo == m_person.personalNumber())
        note(*named, line.number);
}

void PersonLines::keep(const CheckedLine &line)
{
    if (m_lines.size() < kMost)
        m_lines.append(line);
    else
        ++m_more;
}

void PersonLines::note(const MirovaRonRecord &record, qint64 line)
{
    if (m_others.size() < kMost)
        m_others += Text::tr("%1 (line %2)").arg(record.getPamId()).arg(line);
}
