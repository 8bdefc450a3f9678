#include "mirovahrctl/export/rejectswriter.h"

#include "mirovahrctl/export/linecheck.h"
#include "mirovahrctl/report/moment.h"
#include "mirovahrctl/report/wording.h"

#include <QDateTime>
#include <QIODevice>

RejectsWriter::RejectsWriter(QIODevice &device, const QString &exportName)
    : m_device(device)
    , m_exportName(exportName)
{
}

void RejectsWriter::begin()
{
    comment(QStringLiteral("Lines of the export %1 that the attendance system drops, cannot store "
                           "correctly, or misreads.")
                .arg(m_exportName));
    comment(QStringLiteral("Checked on %1. Each line follows its reasons.")
                .arg(Moment::text(QDateTime::currentDateTime())));
}

void RejectsWriter::add(const CheckedLine &line)
{
    ++m_count;
    m_device.write("\n");
    for (const Finding &finding : line.findings) {
        if (finding.severity == Severity::Note)
            continue;
        const QString field =
            finding.field.isEmpty() ? QString() : finding.field + QLatin1String(": ");
        const QString likely = finding.likely.isEmpty()
            ? QString()
            : QStringLiteral(" (%1)").arg(findingPerson(finding));
        comment(
            QStringLiteral("Line %1%2: %3%4 %5")
                .arg(QString::number(line.number), likely, field, finding.message, finding.advice));
    }
    if (!line.raw.isEmpty())
        m_device.write(line.raw + '\n');
}

void RejectsWriter::end()
{
    m_device.write("\n");
    comment(QStringLiteral("%1.").arg(
        Wording::counted(m_count, QStringLiteral("line"), QStringLiteral("lines"))));
}

void RejectsWriter::comment(const QString &text)
{
    m_device.write((QStringLiteral("# ") + Wording::visible(text) + QLatin1Char('\n')).toUtf8());
}
