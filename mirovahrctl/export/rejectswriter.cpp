#include "tools/rejectstext.h"

#include "tools/linecheck.h"
#include "tools/moment.h"
#include "tools/plaintext.h"

#include <QDateTime>
#include <QIODevice>

RejectsText::RejectsText(QIODevice &device, const QString &exportName)
    : m_device(device)
    , m_exportName(exportName)
{
}

void RejectsText::begin()
{
    comment(QStringLiteral("Lines of the export %1 that do not arrive in the attendance system as "
                           "they should.")
                .arg(m_exportName));
    comment(QStringLiteral("Checked on %1. The reasons stand above each line.")
                .arg(Moment::text(QDateTime::currentDateTime())));
}

void RejectsText::add(const CheckedLine &line)
{
    ++m_count;
    m_device.write("\n");
    for (const Finding &finding : line.findings) {
        if (finding.severity != Severity::Error)
            continue;
        const QString field =
            finding.field.isEmpty() ? QString() : finding.field + QLatin1String(": ");
        comment(QStringLiteral("Line %1: %2%3 %4")
                    .arg(QString::number(line.number), field, finding.message, finding.advice));
    }
    if (!line.raw.isEmpty())
        m_device.write(line.raw + '\n');
}

void RejectsText::end()
{
    m_device.write("\n");
    comment(QStringLiteral("%1.").arg(
        PlainText::counted(m_count, QStringLiteral("line"), QStringLiteral("lines"))));
}

void RejectsText::comment(const QString &text)
{
    m_device.write((QStringLiteral("# ") + PlainText::visible(text) + QLatin1Char('\n')).toUtf8());
}
