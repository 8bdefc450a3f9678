#include "mirovahrctl/preview/previewpeople.h"

#include "db/groupsplanrepo.h"
#include "mirovahrctl/export/sqltexts.h"
#include "plugin/configuration.h"
#include "worker/boundedlinereader.h"
#include "worker/exportline.h"
#include "worker/importfile.h"

#include <QFile>

#include <algorithm>
#include <optional>

namespace {

std::optional<MirovaRonRecord> recordOf(const char *line)
{
    const QString text = ExportLine::decode(line);
    const ExportLine::Parts parts = ExportLine::split(text, ExportLine::kSeparator);
    if (parts.size() != ExportLine::kFieldCount)
        return std::nullopt;
    const MirovaRonRecord record = ExportLine::toRecord(parts);
    return ExportLine::isUsable(record) ? std::make_optional(record) : std::nullopt;
}

/// Whatever a backslash is to the server.
bool isHarmfulText(const QString &text)
{
    return !SqlTexts::meant(text, Backslash::Escapes)
        || !SqlTexts::meant(text, Backslash::IsLiteral);
}

bool isHarmful(const MirovaRonRecord &record)
{
    const QString *const texts[] = {&record.titul, &record.jmeno, &record.prijmeni, &record.titulZa,
                                    &record.telefon};
    return std::any_of(std::begin(texts), std::end(texts),
                       [](const QString *text) { return isHarmfulText(*text); });
}

bool isSame(const PreviewPeople::Placement &a, const PreviewPeople::Placement &b)
{
    return a.pid == b.pid && a.costCentre == b.costCentre && a.calendar == b.calendar
        && a.since == b.since;
}

} // namespace

PreviewPeople PreviewPeople::of(const QString &exportFile, const Configuration &configuration)
{
    PreviewPeople people;
    people.hasHarmfulState =
        std::any_of(configuration.messages.cbegin(), configuration.messages.cend(), isHarmfulText);
    QFile file;
    QString error;
    if (ImportFile::open(exportFile, file, error) != ImportFile::Opening::Done)
        return people;
    BoundedLineReader reader(file);
    while (reader.next()) {
        const auto record = recordOf(reader.line());
        if (!record)
            continue;
        people.pids += record->getPid();
        if (record->stredisko != 0 && record->kalendar != 0) {
            people.placements += {record->getPid(), record->stredisko, record->kalendar,
                                  GroupsPlanRepo::monthFromDate(record->kalendarPlatnostOd)};
        }
        if (people.harmfulLine == 0 && isHarmful(*record))
            people.harmfulLine = reader.lineNumber();
    }
    return people;
}

bool operator==(const PreviewPeople &a, const PreviewPeople &b)
{
    return a.pids == b.pids && a.harmfulLine == b.harmfulLine
        && std::equal(a.placements.cbegin(), a.placements.cend(), b.placements.cbegin(),
                      b.placements.cend(), isSame);
}
