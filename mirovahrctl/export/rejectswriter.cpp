#include "mirovahrctl/export/rejectswriter.h"

#include "cli/text.h"
#include "mirovahrctl/export/linecheck.h"
#include "mirovahrctl/report/language.h"
#include "mirovahrctl/report/moment.h"
#include "mirovahrctl/report/wording.h"

#include <QDateTime>
#include <QIODevice>

namespace {

/// "Line 7 (most likely Eva Malá): Prijmeni: What is wrong. What to do."
QString reason(const Finding &finding)
{
    const QString field = finding.field.isEmpty() ? QString() : finding.field + QLatin1String(": ");
    const QString what =
        QStringLiteral("%1%2 %3").arg(field, finding.message, finding.advice).trimmed();
    const QString number = QString::number(finding.line);
    return finding.likely.isEmpty()
        ? Text::tr("Line %1: %2").arg(number, what)
        : Text::tr("Line %1 (%2): %3").arg(number, findingPerson(finding), what);
}

} // namespace

RejectsWriter::RejectsWriter(QIODevice &device, const QString &exportName)
    : m_device(device)
    , m_exportName(exportName)
{
}

void RejectsWriter::begin()
{
    comment(Text::tr("Lines of the export %1 that the attendance system drops, cannot store "
                     "correctly, or misreads.")
                .arg(m_exportName));
    comment(Text::tr("Checked on %1. Each line follows its reasons.")
                .arg(Moment::text(QDateTime::currentDateTime())));
}

void RejectsWriter::add(const CheckedLine &line)
{
    ++m_count;
    m_device.write("\n");
    for (const Finding &finding : line.findings) {
        if (finding.severity == Severity::Note)
            continue;
        comment(reason(finding));
    }
    if (!line.raw.isEmpty())
        m_device.write(line.raw + '\n');
}

void RejectsWriter::end()
{
    m_device.write("\n");
    comment(Text::tr("%Ln line(s).", nullptr, Language::count(m_count)));
}

void RejectsWriter::comment(const QString &text)
{
    m_device.write((QStringLiteral("# ") + Wording::visible(text) + QLatin1Char('\n')).toUtf8());
}
