#include "mirovahrctl/drift/driftpeople.h"

#include "cli/text.h"
#include "mirovahrctl/export/exportscan.h"
#include "mirovahrctl/program/progress.h"

#include <algorithm>

namespace {

QSet<QString> fieldsOf(const QVector<Finding> &findings)
{
    QSet<QString> fields;
    for (const Finding &finding : findings)
        fields += finding.field;
    return fields;
}

} // namespace

bool DriftPeople::read(QFile &file, const ColumnWidths &widths, const SqlTexts::Route &route,
                       Console &console)
{
    Progress progress(console, Text::tr("Reading the export"));
    ExportScan scan(file, widths, route);
    scan.setProgressListener(
        [&progress](qint64 done, qint64 total) { progress.update(done, total); });
    QSet<quint32> seen;
    QSet<quint32> uncertain;
    const bool read = scan.run([&](const CheckedLine &line) {
        if (!line.record)
            return;
        const quint32 pid = line.record->getPid();
        if (line.isRejected() || seen.contains(pid))
            uncertain += pid;
        seen += pid;
        m_people += DriftPerson{*line.record, fieldsOf(line.findings)};
    });
    m_error = scan.errorString();
    m_leftOut = uncertain.size();
    m_people.erase(std::remove_if(m_people.begin(), m_people.end(),
                                  [&uncertain](const DriftPerson &person) {
                                      return uncertain.contains(person.record.getPid());
                                  }),
                   m_people.end());
    return read;
}
